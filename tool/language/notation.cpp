#include "tool/language/notation.h"

#include "platform/platform.h"
#include "tool/json/forms.h"
#include "tool/language/objects.h"

#include <algorithm>
#include <arpa/inet.h>
#include <charconv>
#include <cstring>
#include <fmt/format.h>
#include <map>
#include <unordered_map>

namespace pondiff::tool {

namespace {

constexpr std::int64_t ambiguous = -1;

void refuse(Said& said, std::string reason)
{
    said.result = Said::Result::refused;
    said.reason = std::move(reason);
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

    void read(std::string_view word, Said& said) const
    {
        const auto known = numbers_.find(word);
        if (known == numbers_.end() && word != otherwise_ && !(word.empty() && has_wordless_)) {
            refuse(said, "no value has this word");
        } else if (known == numbers_.end() || known->second == ambiguous) {
            said.result = Said::Result::ambiguous;
        } else {
            said.number = known->second;
        }
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

void read_number(const Field& field, std::string_view digits, Said& said)
{
    const Syntax& syntax = field.syntax;
    const std::int64_t least = syntax.shown_signed ? INT32_MIN : smallest(field) + syntax.counted_from;
    const std::int64_t greatest = syntax.shown_signed ? INT32_MAX : largest(field) + syntax.counted_from;
    if (!read_decimal(digits, least, greatest, said.number)) {
        refuse(said, fmt::format("expected a number from {} to {}", least, greatest));
    } else if (syntax.special != nullptr && said.number == syntax.special_value) {
        refuse(said, fmt::format("expected {} for this number", syntax.special));
    }
    said.number -= syntax.counted_from;
}

/// With as many digits as the CLI writes, and more only where the number needs them.
void read_hexadecimal(const Field& field, std::string_view text, Said& said)
{
    const int digits = field.width == 2 ? 4 : 6;
    std::uint64_t number = 0;
    std::string written;
    if (parse_hexadecimal(text, number) && number <= static_cast<std::uint64_t>(largest(field))) {
        append_hexadecimal(written, static_cast<std::uint32_t>(number), digits);
    }
    if (written != text) {
        refuse(said, fmt::format("expected a hexadecimal number from 0x{:0{}X} to 0x{:X}", 0, digits, largest(field)));
    }
    said.number = static_cast<std::int64_t>(number);
}

void read_name(const Field& field, std::string_view name, const GCfg& configuration, Said& said)
{
    const auto to = referred(field.reference);
    auto* const bytes = const_cast<unsigned char*>(reinterpret_cast<const unsigned char*>(&configuration));
    const Table table{to->field, bytes + to->offset};
    if (const auto slot = table.find_text(*to->field->record->name_member, name)) {
        said.number = number_referring(field, *slot);
    } else if (name == "unassigned") {
        said.number = -1;
    } else {
        refuse(said, "no object has this name");
    }
}

void read_text(const Field& field, std::string_view text, Said& said)
{
    const std::size_t longest = field.syntax.longest != 0 ? field.syntax.longest : field.width;
    if (text.size() > longest) {
        refuse(said, fmt::format("expected at most {} characters", longest));
    }
    said.text = text;
}

/// "5,7-9": numbers, and ranges by their first and last, in any order. -1, which ends a list, is in none.
void read_list(const Field& field, std::string_view list, Said& said)
{
    const auto take_number = [&](std::int64_t& number) {
        const std::size_t sign = list.substr(0, 1) == "-" ? 1 : 0;
        const std::size_t end = std::min(list.find_first_of(",-", sign), list.size());
        const bool taken = read_decimal(list.substr(0, end), smallest(field), largest(field), number) && number != -1;
        list.remove_prefix(end);
        return taken;
    };
    const auto take_range = [&](std::int64_t& first, std::int64_t& last) {
        if (!take_number(first)) {
            return false;
        }
        last = first;
        if (list.substr(0, 1) == "-") {
            list.remove_prefix(1);
            return take_number(last) && last > first && (first > -1 || last < -1);
        }
        return true;
    };
    for (bool more = !list.empty(); more;) {
        std::int64_t first = 0;
        std::int64_t last = 0;
        if (!take_range(first, last)) {
            return refuse(said, "expected numbers and ranges such as 5,7-9");
        }
        if (static_cast<std::uint64_t>(last - first) >= field.count - said.numbers.size()) {
            return refuse(said, fmt::format("expected at most {} numbers", field.count));
        }
        for (; first <= last; ++first) {
            said.numbers.push_back(first);
        }
        more = !list.empty();
        if (more && list.front() != ',') {
            return refuse(said, "expected numbers and ranges such as 5,7-9");
        }
        list.remove_prefix(more ? 1 : 0);
    }
}

/// A serial number in one of the layouts of the CLI. Where that shows none, it is written empty for every ONT.
void read_serial(std::string_view text, Said& said)
{
    constexpr std::size_t pretty = 12;
    constexpr std::size_t dashed = 17;
    constexpr std::size_t vendor = 4; // its characters; in other layouts the CLI shows any that are no capital letters
    constexpr std::string_view capitals = "ABCDEFGHIJKLMNOPQRSTUVWXYZ";
    if (text.empty()) {
        said.result = Said::Result::ambiguous;
        return;
    }
    std::string digits(text.substr(0, dashed));
    if (digits.size() == dashed && digits[2 * vendor] == '-') {
        digits.erase(2 * vendor, 1);
    }
    char written[24] = {};
    const bool has_capitals = text.substr(0, vendor).find_first_not_of(capitals) == text.npos;
    if ((text.size() != pretty || has_capitals) && parse_serial(digits, said.bytes)) {
        const auto convert = text.size() == pretty   ? convert_sn_bintostr_pretty
                             : text.size() == dashed ? convert_sn_bintostr_dashed
                                                     : convert_sn_bintostr_dense;
        convert(written, said.bytes);
    }
    if (text != written) {
        refuse(said, "expected a serial number such as ABCD01020304");
    }
}

/// An address or the like that is written in one way only.
template <class Parse, class Write>
void read_bytes(std::string_view text, Parse parse, Write write, const char* expected, Said& said)
{
    char written[64] = {};
    if (parse(text, said.bytes)) {
        write(written, said.bytes);
    }
    if (text != written) {
        refuse(said, expected);
    }
}

/// Leaves out what a notation allows besides: "007", "-0".
bool is_shortest(std::string_view number)
{
    const std::string_view digits = number.substr(number.substr(0, 1) == "-" ? 1 : 0);
    return digits.substr(0, 1) != "0" || number == "0";
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
    return error == std::errc{} && end == digits.data() + digits.size() && number >= least && number <= greatest &&
           is_shortest(digits);
}

void read_word(const Field& field, std::string_view word, Said& said)
{
    static std::map<const Field*, KnownWords> known;
    known.try_emplace(&field, field).first->second.read(word, said);
}

void read_terminal_vlan(const Field& field, const Token& token, const GCfg& configuration, Said& said)
{
    said.clear();
    read_name(field, token.text, configuration, said);
}

void read_value(const Field& field, const Token& token, const GCfg& configuration, Said& said)
{
    const Syntax& syntax = field.syntax;
    const std::string_view text = token.text;
    said.clear();
    if (syntax.special != nullptr && text == syntax.special) {
        said.number = syntax.special_value;
        return;
    }
    if (has_words(field)) {
        return read_word(field, text, said);
    }
    if (field.layout == Layout::ended_list) {
        return read_list(field, text, said);
    }
    switch (field.form) {
    case Form::number:
    case Form::boolean:
        return read_number(field, text, said);
    case Form::hexadecimal:
        return read_hexadecimal(field, text, said);
    case Form::reference:
        return refers_to_terminal_vlan(field) ? read_number(field, text, said)
                                              : read_name(field, text, configuration, said);
    case Form::text:
    case Form::secret:
        return read_text(field, text, said);
    case Form::ipv4:
        return read_bytes(text, parse_ipv4, convert_ip_bintostr, "expected an address such as 10.0.0.1", said);
    case Form::ipv6:
        return read_bytes(
            text, parse_ipv6,
            [](char* out, const unsigned char* bytes) { inet_ntop(AF_INET6, bytes, out, INET6_ADDRSTRLEN); },
            "expected an address such as 2001:db8::1", said);
    case Form::mac:
        return read_bytes(text, parse_mac, convert_mac_bintostr, "expected an address such as AA:BB:CC:DD:EE:FF", said);
    case Form::serial:
        return read_serial(text, said);
    case Form::engine_id:
        return read_bytes(
            text, [&field](std::string_view digits, unsigned char* out) { return parse_hex(digits, out, field.width); },
            convert_snmpengineid_bintostr, "expected 26 hexadecimal digits in small letters", said);
    case Form::enumeration:
    case Form::record:
        break;
    }
    refuse(said, "the field has no value of its own");
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
    } else if (is_text(field.form)) {
        std::memset(at, 0, field.width);
        std::memcpy(at, said.text.data(), said.text.size());
        if (field.syntax.port_marker) {
            spell_marker(reinterpret_cast<char*>(at), field.width);
        }
    } else {
        std::memcpy(at, said.bytes, field.width);
    }
}

} // namespace pondiff::tool
