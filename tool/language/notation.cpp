#include "tool/language/notation.h"

#include "platform/platform.h"
#include "tool/json/forms.h"
#include "tool/language/objects.h"

#include <algorithm>
#include <charconv>
#include <cstring>
#include <fmt/format.h>
#include <map>
#include <unordered_map>

namespace pondiff::tool {

namespace {

constexpr std::int64_t ambiguous = -1;

Said refused(std::string reason)
{
    Said said;
    said.result = Said::Result::refused;
    said.reason = std::move(reason);
    return said;
}

Said value(std::int64_t number)
{
    Said said;
    said.number = number;
    return said;
}

/// The words of an enumeration. A word of several known values stands for none of them.
class KnownWords {
  public:
    explicit KnownWords(const Field& field)
    {
        const Syntax& syntax = field.syntax;
        // The words of every enumeration stand for small values; the platform does not say which.
        constexpr std::int64_t values = 1024;
        if (syntax.vocabulary == nullptr) {
            otherwise_ = gpon_enum_find_name_by_type("", 0);
        } else if (syntax.otherwise != nullptr) {
            otherwise_ = syntax.otherwise;
        }
        for (std::int64_t number = 0; number < std::min(values, largest(field) + 1); ++number) {
            add(word_of(field, number), number, syntax.vocabulary != nullptr);
        }
    }

    Said read(std::string_view word) const
    {
        const auto known = numbers_.find(word);
        if (known == numbers_.end() && word != otherwise_ && !(word.empty() && has_wordless_)) {
            return refused("no value has this word");
        }
        if (known != numbers_.end() && known->second != ambiguous) {
            return value(known->second);
        }
        Said said;
        said.result = Said::Result::ambiguous;
        return said;
    }

  private:
    /// @param first_is_meant  whether what several numbers share is the word of the first and, besides, of unknown ones
    void add(std::string_view word, std::int64_t number, bool first_is_meant)
    {
        has_wordless_ = has_wordless_ || word.empty();
        if (word.empty() || word == otherwise_) {
            return;
        }
        const bool is_new = numbers_.emplace(word, number).second;
        if (!is_new && !first_is_meant) {
            numbers_[word] = ambiguous;
        }
    }

    std::unordered_map<std::string_view, std::int64_t> numbers_;
    std::string_view otherwise_;
    bool has_wordless_ = false;
};

Said read_number(const Field& field, std::string_view digits)
{
    const Syntax& syntax = field.syntax;
    std::int64_t least = smallest(field) + syntax.counted_from;
    std::int64_t greatest = largest(field) + syntax.counted_from;
    if (syntax.shown_signed) {
        least = INT32_MIN;
        greatest = INT32_MAX;
    }
    std::int64_t number = 0;
    if (!read_decimal(digits, least, greatest, number)) {
        return refused(fmt::format("expected a number from {} to {}", least, greatest));
    }
    return value(number - syntax.counted_from);
}

Said read_hexadecimal(const Field& field, std::string_view digits)
{
    std::uint64_t number = 0;
    if (!parse_hexadecimal(digits, number) || number > static_cast<std::uint64_t>(largest(field))) {
        return refused(fmt::format("expected a hexadecimal number from 0x0 to {:#X}", largest(field)));
    }
    return value(static_cast<std::int64_t>(number));
}

Said read_name(const Field& field, std::string_view name, const GCfg& configuration)
{
    const auto to = referred(field.reference);
    auto* const bytes = const_cast<unsigned char*>(reinterpret_cast<const unsigned char*>(&configuration));
    const Table table{to->field, bytes + to->offset};
    const auto slot = table.find_text(*to->field->record->name_member, name);
    if (slot) {
        return value(number_referring(field, *slot));
    }
    if (name == "unassigned") {
        return value(-1);
    }
    return refused("no object has this name");
}

Said read_text(const Field& field, std::string_view text)
{
    const std::size_t longest = field.syntax.longest != 0 ? field.syntax.longest : field.width;
    if (text.size() > longest) {
        return refused(fmt::format("expected at most {} characters", longest));
    }
    Said said;
    said.text = text;
    return said;
}

/// "5,7-9": numbers, and ranges by their first and last.
Said read_list(const Field& field, std::string_view list)
{
    Said said;
    const auto take_number = [&](std::int64_t& number) {
        const auto [end, error] = std::from_chars(list.data(), list.data() + list.size(), number);
        if (error != std::errc{} || number < smallest(field) || number > largest(field) || number == -1) {
            return false;
        }
        list.remove_prefix(static_cast<std::size_t>(end - list.data()));
        return true;
    };
    while (!list.empty()) {
        std::int64_t first = 0;
        if (!take_number(first)) {
            return refused("expected numbers and ranges such as 5,7-9");
        }
        std::int64_t last = first;
        if (!list.empty() && list.front() == '-') {
            list.remove_prefix(1);
            if (!take_number(last) || last <= first) {
                return refused("expected numbers and ranges such as 5,7-9");
            }
        }
        if (static_cast<std::uint64_t>(last - first) >= field.count - said.numbers.size()) {
            return refused(fmt::format("expected at most {} numbers", field.count));
        }
        for (; first <= last; ++first) {
            said.numbers.push_back(first);
        }
        if (!list.empty() && (list.front() != ',' || list.size() == 1)) {
            return refused("expected numbers and ranges such as 5,7-9");
        }
        list.remove_prefix(list.empty() ? 0 : 1);
    }
    return said;
}

/// A serial number in one of its layouts. Where the CLI shows none, it is written empty for every ONT.
Said read_serial(std::string_view text)
{
    Said said;
    constexpr std::size_t vendor_digits = 8;
    std::string digits(text);
    if (digits.size() == 17 && digits[vendor_digits] == '-') {
        digits.erase(vendor_digits, 1);
    }
    if (text.empty()) {
        said.result = Said::Result::ambiguous;
    } else if (!parse_serial(digits, said.bytes)) {
        return refused("expected a serial number such as ABCD01020304");
    }
    return said;
}

template <class Parse>
Said read_bytes(std::string_view text, Parse parse, const char* expected)
{
    Said said;
    if (!parse(text, said.bytes)) {
        return refused(expected);
    }
    return said;
}

/// The port's marker in a relay format, in the spelling that records have.
void spell_marker(unsigned char* text, std::size_t size)
{
    constexpr std::string_view shown = "%GPON-PORT%";
    constexpr std::string_view stored = "%CHANNELID%";
    static_assert(shown.size() == stored.size());
    const std::string_view all(reinterpret_cast<const char*>(text), size);
    for (std::size_t at = 0; (at = all.find(shown, at)) != all.npos; at += stored.size()) {
        std::memcpy(text + at, stored.data(), stored.size());
    }
}

} // namespace

bool has_words(const Field& field)
{
    return field.syntax.vocabulary != nullptr || field.syntax.registry != nullptr || field.form == Form::enumeration;
}

std::string_view word_of(const Field& field, std::int64_t number)
{
    const Syntax& syntax = field.syntax;
    const auto asked = static_cast<int>(number);
    const char* const word =
        syntax.vocabulary != nullptr
            ? syntax.vocabulary(asked)
            : gpon_enum_find_name_by_type(syntax.registry != nullptr ? syntax.registry : field.enumeration, asked);
    return word != nullptr ? word : "";
}

bool read_decimal(std::string_view digits, std::int64_t least, std::int64_t greatest, std::int64_t& number)
{
    const auto [end, error] = std::from_chars(digits.data(), digits.data() + digits.size(), number);
    return error == std::errc{} && end == digits.data() + digits.size() && number >= least && number <= greatest;
}

Said read_word(const Field& field, std::string_view word)
{
    static std::map<const Field*, KnownWords> known;
    return known.try_emplace(&field, field).first->second.read(word);
}

Said read_terminal_vlan(const Field& field, const Token& token, const GCfg& configuration)
{
    return read_name(field, token.text, configuration);
}

Said read_value(const Field& field, const Token& token, const GCfg& configuration)
{
    const Syntax& syntax = field.syntax;
    if (syntax.special != nullptr && token.text == syntax.special) {
        return value(syntax.special_value);
    }
    if (has_words(field)) {
        return read_word(field, token.text);
    }
    if (field.layout == Layout::ended_list) {
        return read_list(field, token.text);
    }
    switch (field.form) {
    case Form::number:
    case Form::boolean:
        return read_number(field, token.text);
    case Form::hexadecimal:
        return read_hexadecimal(field, token.text);
    case Form::reference:
        return field.reference == Reference::terminal_vlan_id || field.reference == Reference::terminal_vlan_priority
                   ? read_number(field, token.text)
                   : read_name(field, token.text, configuration);
    case Form::text:
    case Form::secret:
        return read_text(field, token.text);
    case Form::ipv4:
        return read_bytes(token.text, parse_ipv4, "expected an address such as 10.0.0.1");
    case Form::ipv6:
        return read_bytes(token.text, parse_ipv6, "expected an address such as 2001:db8::1");
    case Form::mac:
        return read_bytes(token.text, parse_mac, "expected an address such as AA:BB:CC:DD:EE:FF");
    case Form::serial:
        return read_serial(token.text);
    case Form::engine_id:
        return read_bytes(
            token.text,
            [&field](std::string_view text, unsigned char* out) { return parse_hex(text, out, field.width); },
            "expected 26 hexadecimal digits");
    case Form::enumeration:
    case Form::record:
        break;
    }
    return refused("the field has no value of its own");
}

void store(const Field& field, unsigned char* at, const Said& said)
{
    if (field.layout == Layout::ended_list) {
        std::memset(at, 0xFF, field.size); // -1 ends the list
        for (std::size_t i = 0; i < said.numbers.size(); ++i) {
            set_number(field, at + i * field.width, said.numbers[i]);
        }
    } else if (is_number(field.form)) {
        set_number(field, at, said.number);
    } else if (field.form == Form::text || field.form == Form::secret) {
        std::memset(at, 0, field.width);
        std::memcpy(at, said.text.data(), said.text.size());
        if (field.syntax.port_marker) {
            spell_marker(at, field.width);
        }
    } else {
        std::memcpy(at, said.bytes, field.width);
    }
}

} // namespace pondiff::tool
