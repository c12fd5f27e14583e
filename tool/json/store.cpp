#include "tool/json/store.h"

#include "tool/json/forms.h"
#include "tool/json/words.h"

#include <algorithm>
#include <cstring>
#include <fmt/format.h>
#include <vector>

namespace pondiff::tool {

namespace {

std::string range_of(const Field& field)
{
    return fmt::format("a whole number from {} to {}", smallest(field), largest(field));
}

std::string found(const JsonValue& value, bool secret)
{
    switch (value.type) {
    case JsonValue::Type::null:
        return "null";
    case JsonValue::Type::object:
        return "an object";
    case JsonValue::Type::list:
        return "a list";
    case JsonValue::Type::boolean:
        return value.number != 0 ? "true" : "false";
    case JsonValue::Type::whole:
        return secret ? "a number" : std::to_string(value.number);
    case JsonValue::Type::other_number:
        return secret ? "a number" : std::string(value.text.substr(0, 60)) + (value.text.size() > 60 ? "..." : "");
    case JsonValue::Type::text:
        break;
    }
    return secret ? "a text" : quote(value.text);
}

std::string store_number(const Field& field, unsigned char* at, const JsonValue& value)
{
    if (value.type != JsonValue::Type::whole || value.number < smallest(field) || value.number > largest(field)) {
        return mismatch(expectation(field, true), value);
    }
    set_number(field, at, value.number);
    return {};
}

std::string store_boolean(const Field& field, unsigned char* at, const JsonValue& value)
{
    if (value.type == JsonValue::Type::boolean) {
        set_number(field, at, value.number);
        return {};
    }
    if (value.type == JsonValue::Type::text && (value.text == "true" || value.text == "false")) {
        set_number(field, at, value.text == "true" ? 1 : 0);
        return {};
    }
    return store_number(field, at, value);
}

std::string store_hexadecimal(const Field& field, unsigned char* at, const JsonValue& value)
{
    std::uint64_t number = 0;
    if (value.type != JsonValue::Type::text) {
        return store_number(field, at, value);
    }
    if (!parse_hexadecimal(value.text, number) || number > static_cast<std::uint64_t>(largest(field))) {
        return mismatch(expectation(field, true), value);
    }
    set_number(field, at, static_cast<std::int64_t>(number));
    return {};
}

std::string store_enumeration(const Field& field, unsigned char* at, const JsonValue& value)
{
    if (value.type != JsonValue::Type::text) {
        return store_number(field, at, value);
    }
    const Words& words = words_of(field);
    const Words::Word* const word = words.find(value.text);
    if (word == nullptr) {
        std::vector<std::string_view> known;
        for (const Words::Word& candidate : words) {
            known.push_back(candidate.word);
        }
        return mismatch(expectation(field, true), value) + suggestion(value.text, known);
    }
    set_number(field, at, word->value);
    return {};
}

std::string store_text(const Field& field, unsigned char* at, const JsonValue& value)
{
    const bool secret = field.form == Form::secret;
    if (value.type != JsonValue::Type::text) {
        return mismatch(expectation(field, true), value, secret);
    }
    if (value.text.size() >= field.size) {
        return fmt::format("{} has {} bytes, but at most {} fit", found(value, secret), value.text.size(),
                           field.size - 1);
    }
    if (value.text.find('\0') != value.text.npos) {
        return fmt::format("{} holds the character U+0000, which ends a text", found(value, secret));
    }
    std::memcpy(at, value.text.data(), value.text.size());
    return {};
}

std::string store_form(bool (*parse)(std::string_view, unsigned char*), const Field& field, unsigned char* at,
                       const JsonValue& value)
{
    return value.type == JsonValue::Type::text && parse(value.text, at) ? ""
                                                                        : mismatch(expectation(field, true), value);
}

std::string expected_words(const Field& field)
{
    std::string result;
    for (const Words::Word& word : words_of(field)) {
        append_quoted(result, word.word);
        result += ", ";
    }
    return result.empty() ? range_of(field) : "one of " + result + "or " + range_of(field);
}

/// How many characters must be inserted, deleted or replaced to turn one text into the other.
std::size_t distance(std::string_view a, std::string_view b)
{
    // The distances between the part of `a` that has been looked at and each part of `b` that begins it.
    std::vector<std::size_t> row(b.size() + 1);
    for (std::size_t j = 0; j <= b.size(); ++j) {
        row[j] = j;
    }
    for (std::size_t i = 0; i < a.size(); ++i) {
        std::size_t diagonal = row[0];
        row[0] = i + 1;
        for (std::size_t j = 0; j < b.size(); ++j) {
            const std::size_t replaced = diagonal + (a[i] == b[j] ? 0 : 1);
            diagonal = row[j + 1];
            row[j + 1] = std::min({row[j] + 1, diagonal + 1, replaced});
        }
    }
    return row[b.size()];
}

} // namespace

std::string mismatch(const std::string& expected, const JsonValue& value, bool secret)
{
    return fmt::format("expected {}, found {}", expected, found(value, secret));
}

std::string expectation(const Field& field, bool element)
{
    if (field.layout == Layout::flag_set) {
        return fmt::format("numbers and ranges such as \"1,100-200\" of the {} that are set, or an object",
                           field.plural);
    }
    if (field.form == Form::record) {
        return field.array && !element ? fmt::format("an object with the {} by their indexes", field.plural)
                                       : "an object";
    }
    if (field.array && !element) {
        return fmt::format("a list of the {}, or an object with them by their indexes", field.plural);
    }
    switch (field.form) {
    case Form::number:
    case Form::reference:
        return range_of(field);
    case Form::boolean:
        return "true, false or " + range_of(field);
    case Form::hexadecimal:
        return "a hexadecimal number such as \"0x88A8\", or " + range_of(field);
    case Form::enumeration:
        return expected_words(field);
    case Form::ipv4:
        return "an IPv4 address such as \"10.0.0.1\"";
    case Form::ipv6:
        return "an IPv6 address such as \"2001:db8::1\"";
    case Form::mac:
        return "a MAC address such as \"AA:BB:CC:DD:EE:FF\"";
    case Form::serial:
        return "a serial number such as \"ABCD01020304\", or 16 hexadecimal digits";
    case Form::engine_id:
        return fmt::format("{} hexadecimal digits", 2 * field.size);
    default:
        return "a text";
    }
}

std::string store(const Field& field, unsigned char* at, const JsonValue& value)
{
    switch (field.form) {
    case Form::number:
    case Form::reference:
        return store_number(field, at, value);
    case Form::boolean:
        return store_boolean(field, at, value);
    case Form::hexadecimal:
        return store_hexadecimal(field, at, value);
    case Form::enumeration:
        return store_enumeration(field, at, value);
    case Form::text:
    case Form::secret:
        return store_text(field, at, value);
    case Form::ipv4:
        return store_form(parse_ipv4, field, at, value);
    case Form::ipv6:
        return store_form(parse_ipv6, field, at, value);
    case Form::mac:
        return store_form(parse_mac, field, at, value);
    case Form::serial:
        return store_form(parse_serial, field, at, value);
    case Form::engine_id:
        return store_form([](std::string_view text, unsigned char* bytes) { return parse_hex(text, bytes, 13); }, field,
                          at, value);
    case Form::record:
        break;
    }
    return mismatch(expectation(field, true), value);
}

std::string store_bytes(const Field& field, unsigned char* at, const JsonValue& value)
{
    const bool secret = field.form == Form::secret;
    if (value.type == JsonValue::Type::text && value.text.size() > 2 * std::size_t{field.size}) {
        return fmt::format("{} has {} hexadecimal digits, but at most {} fit", found(value, secret), value.text.size(),
                           2 * field.size);
    }
    if (value.type != JsonValue::Type::text || !parse_hex(value.text, at, value.text.size() / 2)) {
        return mismatch("pairs of hexadecimal digits", value, secret);
    }
    return {};
}

std::string_view nearest(std::string_view name, const std::vector<std::string_view>& names)
{
    std::string_view best;
    std::size_t least = name.size() / 3 + 1;
    if (name.size() > 64) {
        return best;
    }
    for (const std::string_view candidate : names) {
        const std::size_t away = distance(name, candidate);
        if (away < least) {
            least = away;
            best = candidate;
        }
    }
    return best;
}

std::string suggestion(std::string_view name, const std::vector<std::string_view>& names)
{
    const std::string_view meant = nearest(name, names);
    return meant.empty() ? "" : fmt::format(" (did you mean {}?)", quote(meant));
}

} // namespace pondiff::tool
