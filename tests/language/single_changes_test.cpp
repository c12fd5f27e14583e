/// Every field of the configuration changed by itself, and together with those that its command shows: what its
/// description says of its command is what the library writes and the reader makes of it.

#include "pon/DataToCommandsConvertor.h"
#include "tests/language/configurations.h"
#include "tests/support/plausible.h"
#include "tool/account/meaning.h"
#include "tool/account/replay.h"
#include "tool/describe/records.h"
#include "tool/language/objects.h"
#include "tool/language/sayable.h"

#include <algorithm>
#include <cstring>
#include <gtest/gtest.h>
#include <map>
#include <set>
#include <string>
#include <vector>

using namespace language_tests;

namespace {

using Kind = Syntax::Kind;

/// Fields whose description has a command that no change of them alone is written with.
constexpr std::string_view unwritten[] = {
    "system.network.ACSIp", // the record diff of the auto-configuration server is in no walk
    "system.network.ACSMask",
    "system.network.ACSVid",
    "pon.olt.general.dba_short_cycle.gpon_port.1", // the even port of a pair decides for both
    "pon.olt.general.dba_short_cycle.gpon_port.3",
    "pon.olt.general.dba_short_cycle.gpon_port.5",
    "pon.olt.general.dba_short_cycle.gpon_port.7",
};

/// Fields without a command whose change repeats the command of another field.
bool repeats_another(const std::string& path)
{
    constexpr std::string_view lists[] = {"system.services.http.allow.", "system.services.https.allow."};
    return std::any_of(std::begin(lists), std::end(lists),
                       [&](std::string_view list) { return path.compare(0, list.size(), list) == 0; });
}

bool is_unwritten(const std::string& path)
{
    return std::find(std::begin(unwritten), std::end(unwritten), path) != std::end(unwritten);
}

/// A leaf and the record that it belongs to.
struct Member {
    const Record* record;
    const Field* field;
    const Field* array; ///< the nearest one that it is in, if any
    std::size_t offset;
    std::size_t first; ///< the offset of its first element where it is an array
    std::string path;
};

/// Arrays of records at their first, a middle and their last element; of numbers every element.
bool is_sampled(const Field& field, std::size_t index)
{
    return field.record == nullptr || index == 0 || index == field.count / 2U || index + 1U == field.count;
}

template <class Visit>
void visit_sampled(const Record& record, const Field* array, std::size_t offset, Path& path, const Visit& visit)
{
    for (const Field& field : record) {
        for (std::size_t i = 0; i < field.count; ++i) {
            if (!is_sampled(field, i)) {
                continue;
            }
            const std::size_t at = offset + field.offset + i * field.width;
            path.push(field, i);
            if (field.record != nullptr) {
                visit_sampled(*field.record, field.array ? &field : array, at, path, visit);
            } else {
                visit(Member{&record, &field, array, at, offset + field.offset, path.text()}, path);
            }
            path.pop();
        }
    }
}

/// The member and those that are set together with it, by one command.
std::vector<Member> told_together(const Member& member)
{
    const std::size_t start = member.first - member.field->offset;
    const std::string prefix = member.path.substr(0, member.path.rfind('.') + 1);
    const std::string_view first =
        member.field->syntax.kind == Kind::with ? member.field->syntax.reason : member.field->name;
    std::vector<Member> members;
    for (const Field& field : *member.record) {
        if (!field.array &&
            (field.name == first || (field.syntax.kind == Kind::with && field.syntax.reason == first))) {
            const std::size_t at = start + field.offset;
            members.push_back({member.record, &field, member.array, at, at, prefix + std::string(field.name)});
        }
    }
    return members;
}

/// What tells objects and entries from others: its change makes others of them.
bool tells_objects(const Field& field)
{
    return field.syntax.kind == Kind::key || field.syntax.is_existence ||
           (field.name == "name" && field.form == Form::text);
}

/// Whether there is a command that says so when the member is changed alone, or with those that are set by its command.
bool has_command_of_its_own(const Member& member)
{
    switch (member.field->syntax.kind) {
    case Kind::key:
        return member.field->syntax.set != nullptr;
    case Kind::existence: {
        const Element& element = member.array->element;
        const Field* const key = member.record->key_member;
        return element.enter != nullptr || element.remove != nullptr || (key != nullptr && key->syntax.set != nullptr);
    }
    default:
        return true;
    }
}

bool set_with_key(const Member& member)
{
    const Field* const key = member.record->key_member;
    return member.field->syntax.kind == Kind::with && key != nullptr && key->name == member.field->syntax.reason;
}

class SingleChanges : public testing::Test {
  protected:
    void change_everything(int number)
    {
        orig_ = plausible(number);
        make_keys_distinct(*orig_);
        cfg_ = std::make_unique<GCfg>(*orig_);
        device_ = std::make_unique<GCfg>(*orig_);
        ASSERT_EQ(initiate_diff(orig_.get(), cfg_.get(), 0, 0), 0);
        Path root;
        visit_sampled(gcfg_record, nullptr, 0, root, [this](const Member& member, const Path& path) {
            members.emplace(member.path, member);
            if (!has_command(path)) {
                without_command.insert(member.path);
            }
            const std::vector<Member> together = told_together(member);
            for (const int value : {0, 1, 2, -1}) {
                change({member}, value);
                if (together.size() > 1) {
                    change(together, value);
                }
            }
        });
        finalize_diff();
        EXPECT_EQ(std::memcmp(device_.get(), orig_.get(), sizeof(GCfg)), 0)
            << "a line has set what it does not account for";
    }

    std::map<std::string, Member> members;
    std::set<std::string> without_command;
    std::set<std::string> shown;
    std::set<std::string> carried; ///< or written for several values

  private:
    static std::string script_of(GCfg& orig, GCfg& cfg)
    {
        return text_of(GetDiff(&orig, &cfg)) +
               text_of(GetRoutesDiffMemSafe(&orig.system.services.routing, &cfg.system.services.routing, nullptr));
    }

    /// @return false when nothing is changed
    bool write(const std::vector<Member>& changed, int value)
    {
        for (const Member& member : changed) {
            unsigned char* const at = bytes_of(*cfg_) + member.offset;
            if (is_number(member.field->form)) {
                set_number(*member.field, at, value);
            } else if (value == 0 || value == 1) {
                at[0] = static_cast<unsigned char>('A' + value);
            }
        }
        return std::any_of(changed.begin(), changed.end(), [this](const Member& member) {
            return std::memcmp(bytes_of(*cfg_) + member.offset, bytes_of(*orig_) + member.offset,
                               member.field->width) != 0;
        });
    }

    void change(const std::vector<Member>& changed, int value)
    {
        if (write(changed, value)) {
            ASSERT_EQ(data_prepare(orig_.get(), cfg_.get()), 0); // the names may be others now
            const std::string script = script_of(*orig_, *cfg_);
            const bool is_existence = changed[0].field->syntax.kind == Kind::existence; // shown when it begins, or ends
            if (read_back(changed, script) ||
                (is_existence && !Replay(*cfg_, script_of(*cfg_, *orig_)).changes_nothing())) {
                for (const Member& member : changed) {
                    shown.insert(member.path);
                }
            }
        }
        for (const Member& member : changed) {
            const bool list = member.field->layout == Layout::ended_list; // sorted by being written
            const std::size_t start = list ? member.first : member.offset;
            std::memcpy(bytes_of(*cfg_) + start, bytes_of(*orig_) + start,
                        list ? member.field->size : member.field->width);
        }
    }

    /// @return whether the script is more than moves
    bool read_back(const std::vector<Member>& changed, const std::string& script)
    {
        const bool others_are_meant = std::any_of(changed.begin(), changed.end(),
                                                  [](const Member& member) { return tells_objects(*member.field); });
        Touched touched;
        bool ambiguous = false;
        bool says = false;
        read_script(script, *device_, [&](const Line& line) {
            touched.add(line);
            ambiguous = ambiguous || line.ambiguous;
            says = says || line.kind != Line::Kind::move || line.created.array != nullptr;
            EXPECT_TRUE(others_are_meant || line.kind != Line::Kind::refused)
                << changed[0].path << ": " << line.text << ": " << line.reason;
        });
        if (!others_are_meant) {
            compare(changed, script, touched, ambiguous);
        }
        touched.put_back(*device_, *orig_);
        return says;
    }

    /// Compares what the device holds with what is wanted.
    void compare(const std::vector<Member>& changed, const std::string& script, const Touched& touched, bool ambiguous)
    {
        std::set<std::string> left;
        for_each_different_meaning({device_.get(), cfg_.get()}, [&](const Beside<2>& beside) {
            const std::string path = beside.path.text();
            left.insert(path);
            const auto member =
                std::find_if(changed.begin(), changed.end(), [&](const Member& one) { return one.path == path; });
            if (member == changed.end()) {
                // A command of a pair of ports is one of both.
                EXPECT_TRUE(beside.field.syntax.kind == Kind::irregular && changed[0].field == &beside.field)
                    << path << " is not as it was after a change of " << changed[0].path << ":\n"
                    << script;
                return;
            }
            const bool said = touched.has(member->offset, member->field->width);
            const bool can_be =
                has_command(beside.path) && beside.field.syntax.kind != Kind::ambiguous &&
                (!is_number(beside.field.form) || can_be_said(beside.field, get_number(beside.field, beside.at[1])));
            EXPECT_TRUE(!said || ambiguous || !can_be) << path << " is not as wanted after\n" << script;
        });
        for (const Member& member : changed) {
            if (left.count(member.path) == 0 || ambiguous) {
                carried.insert(member.path);
            }
        }
    }

    std::unique_ptr<GCfg> orig_;
    std::unique_ptr<GCfg> cfg_;
    std::unique_ptr<GCfg> device_;
};

TEST_F(SingleChanges, AreWrittenAndReadAsTheirDescriptionsSay)
{
    change_everything(0);
    change_everything(1);
    ASSERT_GT(members.size(), 2500U);
    std::size_t with_command = 0;
    for (const auto& [path, member] : members) {
        const Kind kind = member.field->syntax.kind;
        if (without_command.count(path) != 0) {
            EXPECT_TRUE(shown.count(path) == 0 || repeats_another(path))
                << path << " has a command, though its description says that it has none";
            continue;
        }
        if (is_unwritten(path) || !has_command_of_its_own(member)) {
            continue;
        }
        ++with_command;
        EXPECT_EQ(shown.count(path), 1U) << path << " has no command, though its description says so";
        EXPECT_TRUE(carried.count(path) != 0 || tells_objects(*member.field) || kind == Kind::ambiguous ||
                    set_with_key(member))
            << path << " is never as wanted after its command was read";
    }
    EXPECT_GT(with_command, 1500U);
    for (const std::string_view path : unwritten) {
        EXPECT_EQ(members.count(std::string(path)), 1U) << path << " is no field";
    }
}

} // namespace
