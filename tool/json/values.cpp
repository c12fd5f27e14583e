#include "tool/json/values.h"

#include "tool/json/forms.h"
#include "tool/json/words.h"
#include "tool/utf8.h"

#include <charconv>

namespace pondiff::tool {

namespace {

void append_form(std::string& out, void (*append)(std::string&, const unsigned char*), const unsigned char* at)
{
    out += '"';
    append(out, at);
    out += '"';
}

void append_boolean(std::string& out, std::int64_t value)
{
    if (value == 0) {
        out += "false";
    } else if (value == 1) {
        out += "true";
    } else {
        append_number(out, value);
    }
}

void append_enumeration(std::string& out, const Field& field, std::int64_t value)
{
    const std::string_view word = words_of(field).word_of(value);
    if (word.empty()) {
        append_number(out, value);
    } else {
        append_quoted(out, word);
    }
}

/// Text and nothing but zeros behind it reads as text; any other bytes are written as bytes, up to the last one that is
/// not zero.
void append_text(std::string& out, const Field& field, const unsigned char* at)
{
    std::size_t used = field.size;
    while (used > 0 && at[used - 1] == 0) {
        --used;
    }
    const std::string_view text(reinterpret_cast<const char*>(at), used);
    if (used < field.size && text.find('\0') == text.npos && is_utf8(text)) {
        append_quoted(out, text);
        return;
    }
    out += "{\"hex\": \"";
    append_hex(out, at, used);
    out += "\"}";
}

} // namespace

void append_number(std::string& out, std::int64_t number)
{
    char digits[20];
    const char* const end = std::to_chars(digits, digits + sizeof digits, number).ptr;
    out.append(digits, static_cast<std::size_t>(end - digits));
}

void append_value(std::string& out, const Field& field, const unsigned char* at)
{
    switch (field.form) {
    case Form::number:
    case Form::reference:
        append_number(out, get_number(field, at));
        break;
    case Form::boolean:
        append_boolean(out, get_number(field, at));
        break;
    case Form::enumeration:
        append_enumeration(out, field, get_number(field, at));
        break;
    case Form::hexadecimal:
        out += '"';
        append_hexadecimal(out, static_cast<std::uint32_t>(get_number(field, at)), field.width == 2 ? 4 : 1);
        out += '"';
        break;
    case Form::text:
    case Form::secret:
        append_text(out, field, at);
        break;
    case Form::ipv4:
        append_form(out, append_ipv4, at);
        break;
    case Form::ipv6:
        append_form(out, append_ipv6, at);
        break;
    case Form::mac:
        append_form(out, append_mac, at);
        break;
    case Form::serial:
        append_form(out, append_serial, at);
        break;
    case Form::engine_id:
        out += '"';
        append_hex(out, at, field.size);
        out += '"';
        break;
    case Form::record:
        break;
    }
}

} // namespace pondiff::tool
