/// Every text field of every record, by its description, with every byte at its first, middle and last place and in a
/// full array: what a value holds shows as it is, where the value stands and nowhere else.

#include "pon/DataToCommandsConvertor.h"
#include "pon/command_file_generator.h"
#include "pon/profile_kinds.h"
#include "tests/support/plausible.h"

#include <algorithm>
#include <cstdlib>
#include <cstring>
#include <gtest/gtest.h>
#include <set>
#include <string>
#include <vector>

using namespace pondiff::tool;

namespace {

constexpr char mark = 'Q'; // stands for the byte; no command has it

struct TextField {
    std::string path;
    std::string name; ///< with its struct: "GSystemUser.password"
    std::size_t offset;
    std::size_t width;
    std::size_t record; ///< the record that holds it: where it begins ...
    std::size_t record_size;
    const Field* exists; ///< ... and its flag, if it has one
    bool is_name;
    bool is_silent;
};

std::string full_name(const Field& field)
{
    return std::string(field.owner) + "." + std::string(field.name);
}

const Field* flag_of(const Record& record)
{
    const auto* const flag = std::find_if(record.begin(), record.end(), [](const Field& field) {
        return field.name == "exist" || field.name == "exists";
    });
    return flag == record.end() ? nullptr : flag;
}

void collect(const Record& record, std::size_t offset, std::size_t element, Path& path, std::vector<TextField>& fields)
{
    for (const Field& field : record) {
        const std::size_t index = std::min(element, field.count - std::size_t{1});
        const std::size_t at = offset + field.offset + index * field.width;
        path.push(field, index);
        if (field.record != nullptr) {
            collect(*field.record, at, element, path, fields);
        } else if (is_text(field.form)) {
            fields.push_back({path.text(), full_name(field), at, field.width, offset, record.size, flag_of(record),
                              field.name == "name" && flag_of(record) != nullptr, field.silent});
        }
        path.pop();
    }
}

/// One element of an array stands for all.
std::vector<TextField> text_fields(std::size_t element)
{
    std::vector<TextField> fields;
    Path path;
    collect(gcfg_record, 0, element, path, fields);
    return fields;
}

/// Those that name objects.
std::vector<TextField> names(std::size_t element)
{
    std::vector<TextField> fields = text_fields(element);
    fields.erase(std::remove_if(fields.begin(), fields.end(), [](const TextField& field) { return !field.is_name; }),
                 fields.end());
    return fields;
}

/// Behind the last element of the last array the configuration ends.
constexpr std::size_t last_element = GCFG_SOURCE_GUARD_VLANS;
/// Where every reference of `plausible(1)` leads.
constexpr std::size_t referred_element = 1;

bool begins(const std::string& text, const char* with)
{
    return text.compare(0, std::strlen(with), with) == 0;
}

std::size_t count(const std::string& text, char character)
{
    return static_cast<std::size_t>(std::count(text.begin(), text.end(), character));
}

std::string with_mark_as(char character, std::string text)
{
    std::replace(text.begin(), text.end(), mark, character);
    return text;
}

template <std::size_t N>
void collect_marks(char* const (&names)[N], std::vector<char*>& marks)
{
    for (char* const name : names) {
        for (char* at = name; at != nullptr && *at != '\0'; ++at) {
            if (*at == mark) {
                marks.push_back(at);
            }
        }
    }
}

/// Where the mark stands in the names that the session has copied.
std::vector<char*> marks_in_session()
{
    std::vector<char*> marks;
    collect_marks(user2id_connection, marks);
    collect_marks(terminalvlan2id_connection, marks);
#define COLLECT_MARKS(part, array, record, tables, ...)                                                                \
    collect_marks(tables##2id_connection, marks);                                                                      \
    collect_marks(def_##tables##2id_connection, marks);
    PON_PROFILE_KINDS(COLLECT_MARKS)
#undef COLLECT_MARKS
    return marks;
}

/// What becomes of the object whose text is looked at.
enum class Change { changed, renamed, removed, added, referred_to };

enum class Place { first, middle, last, full };

class Injection : public testing::Test {
  protected:
    Injection()
    {
        for_each_leaf(gcfg_record, [this](const Leaf& leaf) {
            for (std::size_t i = 0; is_text(leaf.field.form) && i < leaf.field.width; ++i) {
                bytes(*equal)[leaf.offset + i] =
                    i % 2 == 0 ? 'y' : 'z'; // without an end, so that reading on would show
            }
        });
        *orig = *cfg = *equal;
    }
    ~Injection() override { finalize_diff(); }

    static char* bytes(GCfg& configuration) { return reinterpret_cast<char*>(&configuration); }

    /// The operation that shows the field's record and reads little else.
    std::string script(const TextField& field)
    {
        struct Kind {
            const char* path;
            const char* word;
        };
        static constexpr Kind kinds[] = {
#define KIND(part, array, record, tables, lookup, prefix, name, called) {"pon." #part "." #array ".", name},
            PON_PROFILE_KINDS(KIND)
#undef KIND
        };
        for (const Kind& kind : kinds) {
            if (begins(field.path, kind.path)) {
                char word[16];
                std::strcpy(word, kind.word);
                const int last = std::stoi(field.path.substr(std::strlen(kind.path)));
                return taken(GetProfileDiff(&orig->pon, &cfg->pon, word, last));
            }
        }
        if (begins(field.path, "system.")) { // stays in the view of the last command
            return at_top_level(GetSystemDiff(&orig->system, &cfg->system));
        }
        if (begins(field.path, "pon.ont.")) {
            return taken(GetGponOntDiff(&orig->pon.ont[GCFG_ONTS - 1], &cfg->pon.ont[GCFG_ONTS - 1], GCFG_ONTS - 1));
        }
        char network[] = "network";
        char olt[] = "olt";
        return taken(GetBlockDiff(orig.get(), cfg.get(), begins(field.path, "pon.network.") ? network : olt));
    }

    std::string full_script()
    {
        return taken(GetDiff(orig.get(), cfg.get()));
    }

    /// A session in which the record of the field differs in all that it holds, and nothing else does.
    void prepare(const TextField& field, Change change, Place place);
    /// Puts the byte wherever the mark is.
    void put(char byte)
    {
        for (char* const at : marks) {
            *at = byte;
        }
    }
    void differ_in_references();
    /// Checks the script of every byte in the place.
    void inject(const TextField& field, Change change, Place place);

    const std::unique_ptr<GCfg> blank = plausible(0);
    const std::unique_ptr<GCfg> equal = plausible(1);
    const std::unique_ptr<GCfg> orig{new GCfg};
    const std::unique_ptr<GCfg> cfg{new GCfg};
    std::vector<char*> marks;
    std::string longest; ///< the longest of the mark's runs that the last script showed

  private:
    static std::string at_top_level(char* text)
    {
        std::string script = taken(text);
        current_view = {"root", {}};
        return script;
    }

    static std::string taken(char* text)
    {
        std::string copy = text != nullptr ? text : "no text";
        std::free(text);
        return copy;
    }
};

void Injection::prepare(const TextField& field, Change change, Place place)
{
    if (change == Change::referred_to) {
        differ_in_references();
    } else {
        std::memcpy(bytes(*orig) + field.record, bytes(*blank) + field.record, field.record_size);
    }
    if (change == Change::added || change == Change::removed) {
        GCfg& without = change == Change::added ? *orig : *cfg;
        set_number(*field.exists,
                   reinterpret_cast<unsigned char*>(bytes(without)) + field.record + field.exists->offset, 0);
    }
    std::string value(field.width, place == Place::full ? mark : 'a');
    if (place == Place::first) {
        value.front() = mark;
    } else if (place == Place::middle) {
        value[field.width / 2] = mark;
    } else if (place == Place::last) {
        value.back() = mark;
    }
    std::vector<GCfg*> patched;
    if (change != Change::changed && change != Change::added) {
        patched.push_back(orig.get());
    }
    if (change != Change::renamed && change != Change::removed) {
        patched.push_back(cfg.get());
    }
    for (GCfg* const configuration : patched) {
        std::memcpy(bytes(*configuration) + field.offset, value.data(), field.width);
    }
    ASSERT_EQ(initiate_diff(orig.get(), cfg.get(), 0, 0), 0);
    marks = marks_in_session();
    for (GCfg* const configuration : patched) {
        for (std::size_t i = 0; i < field.width; ++i) {
            if (value[i] == mark) {
                marks.push_back(bytes(*configuration) + field.offset + i);
            }
        }
    }
}

/// The records that refer to others.
void Injection::differ_in_references()
{
    GPonCfg& before = orig->pon;
    before.olt = blank->pon.olt;
    before.ont[GCFG_ONTS - 1] = blank->pon.ont[GCFG_ONTS - 1];
    before.profiles_ont.template_ont[GCFG_ONT_PROFILES - 1] =
        blank->pon.profiles_ont.template_ont[GCFG_ONT_PROFILES - 1];
    constexpr int cross_connect = GCFG_CROSS_CONNECT_PROFILES - 1;
    before.profiles_ont.cross_connect[cross_connect] = blank->pon.profiles_ont.cross_connect[cross_connect];
    cfg->pon.profiles_ont.cross_connect[cross_connect].outer_vid = -101;
    cfg->pon.profiles_ont.cross_connect[cross_connect].u_cos = 101;
}

void Injection::inject(const TextField& field, Change change, Place place)
{
    prepare(field, change, place);
    const bool referred_to = change == Change::referred_to;
    const auto show = [&] { return referred_to ? full_script() : script(field); };
    const std::string marked = show();
    const std::string marked_full = full_script();
    put('a');
    ASSERT_EQ(count(show(), mark), 0U) << "the mark shows the value alone";
    longest.clear();
    for (std::size_t at = marked.find(mark); at != marked.npos; at = marked.find(mark, at)) {
        const std::size_t behind = std::min(marked.find_first_not_of(mark, at), marked.size() - 1);
        ASSERT_LE(behind - at, field.width) << marked;
        longest = std::max(longest, marked.substr(at, behind - at));
        ASSERT_TRUE(place < Place::last || std::strchr("\" \n", marked[behind]) != nullptr)
            << "what stands behind the array is read: " << marked;
        at = behind;
    }
    for (int byte = 1; byte < 256; ++byte) {
        const auto character = static_cast<char>(byte);
        put(character);
        const std::string text = show();
        ASSERT_EQ(text, with_mark_as(character, marked)) << "byte " << byte;
        ASSERT_EQ(count(text, '\n'), count(marked, '\n') + (byte == '\n' ? count(marked, mark) : 0));
    }
    put('\n');
    ASSERT_EQ(full_script(), with_mark_as('\n', marked_full));
    *orig = *cfg = *equal;
}

/// What the description holds besides texts.
bool is_no_text(const Field& field)
{
    switch (field.form) {
    case Form::ipv4:
    case Form::ipv6:
    case Form::mac:
    case Form::serial:
    case Form::engine_id:
        return true;
    default:
        return is_number(field.form);
    }
}

std::set<std::string> full_names(const std::vector<TextField>& fields)
{
    std::set<std::string> names;
    for (const TextField& field : fields) {
        names.insert(field.name);
    }
    return names;
}

} // namespace

TEST(InjectedFields, AreAllTextsOfTheDescription)
{
    std::set<std::string> texts;
    std::size_t bytes = 0;
    for_each_leaf(gcfg_record, [&](const Leaf& leaf) {
        if (!is_no_text(leaf.field)) {
            texts.insert(full_name(leaf.field));
            bytes += leaf.field.width;
        }
    });
    ASSERT_EQ(texts.count("GSystemNetworkCfg.hostname"), 1U);
    ASSERT_GT(bytes, texts.size());
    EXPECT_EQ(full_names(text_fields(last_element)), texts);
    EXPECT_EQ(full_names(text_fields(referred_element)), texts);
}

TEST(InjectedFields, AreTheNamesOfAllKindsOfObjects)
{
    const std::set<std::string> expected = {"GSystemUser.name", "GVlanTagEx.name",
#define NAME(part, array, record, ...) #record ".name",
                                            PON_PROFILE_KINDS(NAME)
#undef NAME
    };
    EXPECT_EQ(full_names(names(last_element)), expected);
}

TEST_F(Injection, ATextShowsAsItIs)
{
    const std::vector<TextField> fields = text_fields(last_element);
    for (const TextField& field : fields) {
        for (const Place place : {Place::first, Place::middle, Place::last, Place::full}) {
            SCOPED_TRACE(field.path + ", place " + std::to_string(static_cast<int>(place)));
            ASSERT_NO_FATAL_FAILURE(inject(field, Change::changed, place));
            // The last byte of an ONT's password is never read.
            const bool cut = place >= Place::last &&
                             (field.name == "GPonOntCfg.password" || field.name == "GPonTemplateOnt.password");
            const std::size_t full = place == Place::full ? field.width : 1;
            EXPECT_EQ(longest.size(), field.is_silent ? 0 : full - (cut ? 1 : 0));
        }
    }
}

TEST_F(Injection, TheNameOfWhatComesGoesOrChangesShowsAsItIs)
{
    for (const TextField& field : names(last_element)) {
        for (const Change change : {Change::renamed, Change::removed, Change::added}) {
            for (const Place place : {Place::first, Place::middle, Place::last, Place::full}) {
                SCOPED_TRACE(field.path + ", change " + std::to_string(static_cast<int>(change)) + ", place " +
                             std::to_string(static_cast<int>(place)));
                ASSERT_NO_FATAL_FAILURE(inject(field, change, place));
                // Only a profile is entered under the name that it had.
                const bool is_gone =
                    change == Change::renamed && (field.name == "GSystemUser.name" || field.name == "GVlanTagEx.name");
                EXPECT_EQ(longest.size(), is_gone ? 0 : (place == Place::full ? field.width : 1));
            }
        }
    }
}

TEST_F(Injection, TheNameOfWhatIsReferredToShowsAsItIs)
{
    for (const TextField& field : names(referred_element)) {
        for (const Place place : {Place::first, Place::middle, Place::last, Place::full}) {
            SCOPED_TRACE(field.path + ", place " + std::to_string(static_cast<int>(place)));
            ASSERT_NO_FATAL_FAILURE(inject(field, Change::referred_to, place));
            const bool is_referred_to = field.name != "GSystemUser.name";
            EXPECT_EQ(longest.size(), is_referred_to ? (place == Place::full ? field.width : 1) : 0);
        }
    }
}
