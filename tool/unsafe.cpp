#include "tool/unsafe.h"

#include "platform/platform.h"
#include "pon/DataToCommandsConvertor.h"
#include "tool/describe/records.h"
#include "tool/json/forms.h"
#include "tool/language/objects.h"
#include "tool/utf8.h"
#include "tool/visible.h"

#include <algorithm>
#include <cstdlib>
#include <cstring>
#include <fmt/format.h>
#include <memory>
#include <new>
#include <set>

namespace pondiff::tool {

namespace {

/// Unsafe texts are replaced by marks: a character that no other text contains then, and a number. The shortest text
/// field has room for one.
constexpr char mark_begin = '\x02';
constexpr std::size_t mark_size = 7;

/// Whether the library would replace something in a text that holds the value.
bool holds_placeholder(std::string_view value)
{
    if (value.find("$ID") == value.npos) {
        return false;
    }
    std::string text(value);
    int identifiers[10] = {};
    const std::unique_ptr<char, decltype(&std::free)> emitted{useVariables(text.data(), identifiers), &std::free};
    if (!emitted) {
        throw std::bad_alloc();
    }
    return text != emitted.get();
}

bool holds_control_character(std::string_view text)
{
    return std::any_of(text.begin(), text.end(), [](char c) {
        const auto byte = static_cast<unsigned char>(c);
        return byte < 0x20 || byte == 0x7F;
    });
}

/// Everything that is wrong with a text: " holds a quote and holds a control character".
std::string unsafe_part(std::string_view text)
{
    return fmt::format("{}", fmt::join(unsafe_parts(text), " and"));
}

/// Why a text cannot stand without quotes around it.
std::string_view unquotable_part(std::string_view text)
{
    if (text.empty()) {
        return " is empty";
    }
    return text.find(' ') != text.npos ? " holds a blank" : "";
}

/// A text that has been replaced.
struct Replaced {
    const Field* field;
    std::string path;
    std::string text;
    bool in_cfg;
};

class Marks {
  public:
    Marks(GCfg& orig, GCfg& cfg) : orig_(bytes_of(orig)), cfg_(bytes_of(cfg))
    {
        for_each_leaf(gcfg_record, [this](const Leaf& leaf) {
            if (is_text(leaf.field.form)) {
                replace(leaf);
            }
        });
    }

    const std::vector<Replaced>& replaced() const { return replaced_; }

  private:
    static unsigned char* bytes_of(GCfg& configuration) { return reinterpret_cast<unsigned char*>(&configuration); }

    void replace(const Leaf& leaf)
    {
        unsigned char* const old_at = orig_ + leaf.offset;
        unsigned char* const new_at = cfg_ + leaf.offset;
        const std::string old_text(text_in(leaf.field, old_at));
        const std::string new_text(text_in(leaf.field, new_at));
        const bool same = old_text == new_text; // gets the same mark: it is no change
        if (is_marked(leaf.field, new_text)) {
            mark(leaf, new_at, new_text, true);
            if (same) {
                std::memcpy(old_at, new_at, leaf.field.width);
            }
        }
        if (!same && is_marked(leaf.field, old_text)) {
            mark(leaf, old_at, old_text, false);
        }
    }

    static bool is_marked(const Field& field, std::string_view text)
    {
        const bool names_object = field.name == "name";
        return !unsafe_part(text).empty() || (names_object && !unquotable_part(text).empty());
    }

    void mark(const Leaf& leaf, unsigned char* at, const std::string& text, bool in_cfg)
    {
        std::string mark = fmt::format("{}{:06x}", mark_begin, replaced_.size());
        mark.resize(leaf.field.width);
        std::copy(mark.begin(), mark.end(), at);
        replaced_.push_back({&leaf.field, leaf.path.text(), text, in_cfg});
    }

    unsigned char* orig_;
    unsigned char* cfg_;
    std::vector<Replaced> replaced_;
};

/// Whether the character at `at` is between quotes on its line.
bool is_quoted(std::string_view script, std::size_t at)
{
    const std::size_t line = script.rfind('\n', at) + 1; // 0 where there is none
    std::size_t quotes = 0;
    for (const char c : script.substr(line, at - line)) {
        quotes += c == '"' ? 1 : 0;
    }
    return quotes % 2 == 1;
}

/// The registry's words for the values of both configurations that no script can carry.
std::set<std::string> unsafe_words(const GCfg& orig, const GCfg& cfg)
{
    std::set<std::string> words;
    for_each_leaf(gcfg_record, [&](const Leaf& leaf) {
        const char* const type = leaf.field.syntax.registry ? leaf.field.syntax.registry : leaf.field.enumeration;
        if (type == nullptr) {
            return;
        }
        for (const GCfg* const configuration : {&orig, &cfg}) {
            const auto* const at = reinterpret_cast<const unsigned char*>(configuration) + leaf.offset;
            const char* const word = gpon_enum_find_name_by_type(type, static_cast<int>(get_number(leaf.field, at)));
            if (word != nullptr && !unsafe_part(word).empty()) {
                words.insert(word);
            }
        }
    });
    return words;
}

UnsafeText finding(const Replaced& replaced, std::string_view what)
{
    return {replaced.in_cfg ? UnsafeText::Source::cfg : UnsafeText::Source::orig, replaced.path,
            shown_text(*replaced.field, replaced.text) + std::string(what)};
}

} // namespace

std::string shown_text(const Field& field, std::string_view text)
{
    if (field.form == Form::secret) {
        return "the value";
    }
    return is_utf8(text) ? visible(quote(text)) : "the text";
}

std::vector<std::string> unsafe_parts(std::string_view text)
{
    std::vector<std::string> parts;
    if (text.find('"') != text.npos) {
        parts.emplace_back(" holds a quote");
    }
    const bool control = holds_control_character(text);
    if (control) {
        parts.emplace_back(" holds a control character");
    }
    if (!is_utf8(text)) {
        parts.emplace_back(" is not UTF-8");
    } else if (!control && !is_visible(text)) {
        parts.emplace_back(" holds a character that does not show");
    }
    if (holds_placeholder(text)) {
        parts.emplace_back(" holds a placeholder");
    }
    return parts;
}

std::vector<UnsafeText> unsafe_texts(const GCfg& orig, const GCfg& cfg,
                                     const std::function<std::string(GCfg& orig, GCfg& cfg)>& script)
{
    const auto old_copy = std::make_unique<GCfg>(orig);
    const auto new_copy = std::make_unique<GCfg>(cfg);
    const Marks marks(*old_copy, *new_copy);
    const std::string text = script(*old_copy, *new_copy);

    std::vector<UnsafeText> found;
    std::set<std::size_t> met;
    for (std::size_t at = 0; (at = text.find(mark_begin, at)) != text.npos; at += mark_size) {
        const std::size_t number = std::strtoul(text.substr(at + 1, mark_size - 1).c_str(), nullptr, 16);
        if (number >= marks.replaced().size()) {
            break;
        }
        const Replaced& replaced = marks.replaced()[number];
        const std::string unsafe = unsafe_part(replaced.text);
        const bool is_new = met.count(number) == 0;
        if (!unsafe.empty() && is_new) {
            found.push_back(finding(replaced, unsafe));
            met.insert(number);
        } else if (unsafe.empty() && is_new && !is_quoted(text, at)) {
            found.push_back(
                finding(replaced, std::string(unquotable_part(replaced.text)) + " and is written without quotes"));
            met.insert(number);
        }
    }
    for (const std::string& word : unsafe_words(orig, cfg)) {
        if (text.find(word) != text.npos) {
            found.push_back({UnsafeText::Source::platform, "",
                             "the platform library's word " + visible(quote(word)) + unsafe_part(word)});
        }
    }
    return found;
}

} // namespace pondiff::tool
