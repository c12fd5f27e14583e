#include "tool/json/forms.h"

#include "tool/utf8.h"

#include <arpa/inet.h>
#include <array>
#include <charconv>
#include <cstring>
#include <limits>

namespace pondiff::tool {

namespace {

constexpr char upper_digits[] = "0123456789ABCDEF";
constexpr char lower_digits[] = "0123456789abcdef";

void append_byte(std::string& out, unsigned char byte, const char* digits)
{
    const char pair[] = {digits[byte >> 4], digits[byte & 0xF]};
    out.append(pair, sizeof pair);
}

/// -1 when it is no hexadecimal digit.
int digit_value(char c)
{
    if (c >= '0' && c <= '9') {
        return c - '0';
    }
    if (c >= 'A' && c <= 'F') {
        return c - 'A' + 10;
    }
    return c >= 'a' && c <= 'f' ? c - 'a' + 10 : -1;
}

bool is_vendor(const char* characters)
{
    for (int i = 0; i < 4; ++i) {
        const char c = characters[i];
        if (!((c >= 'A' && c <= 'Z') || (c >= '0' && c <= '9'))) {
            return false;
        }
    }
    return true;
}

bool parse_address(int family, std::string_view text, unsigned char* bytes)
{
    std::array<char, INET6_ADDRSTRLEN> terminated{};
    if (text.size() >= terminated.size() || text.find('\0') != text.npos) {
        return false;
    }
    text.copy(terminated.data(), text.size());
    return inet_pton(family, terminated.data(), bytes) == 1;
}

} // namespace

void append_ipv4(std::string& out, const unsigned char* bytes)
{
    for (int i = 0; i < 4; ++i) {
        char digits[3];
        if (i != 0) {
            out += '.';
        }
        out.append(digits, std::to_chars(digits, digits + sizeof digits, bytes[i]).ptr);
    }
}

bool parse_ipv4(std::string_view text, unsigned char* bytes)
{
    return parse_address(AF_INET, text, bytes);
}

void append_ipv6(std::string& out, const unsigned char* bytes)
{
    char text[INET6_ADDRSTRLEN] = "";
    inet_ntop(AF_INET6, bytes, text, sizeof text);
    out += text;
}

bool parse_ipv6(std::string_view text, unsigned char* bytes)
{
    return parse_address(AF_INET6, text, bytes);
}

void append_mac(std::string& out, const unsigned char* bytes)
{
    for (int i = 0; i < 6; ++i) {
        if (i > 0) {
            out += ':';
        }
        append_byte(out, bytes[i], upper_digits);
    }
}

bool parse_mac(std::string_view text, unsigned char* bytes)
{
    if (text.size() != 17) {
        return false;
    }
    char digits[12];
    for (std::size_t i = 0; i < 17; ++i) {
        if (i % 3 == 2) {
            if (text[i] != ':') {
                return false;
            }
        } else {
            digits[i - i / 3] = text[i];
        }
    }
    return parse_hex({digits, sizeof digits}, bytes, 6);
}

void append_serial(std::string& out, const unsigned char* bytes)
{
    char vendor[4];
    std::memcpy(vendor, bytes, sizeof vendor);
    const bool pretty = is_vendor(vendor);
    if (pretty) {
        out.append(vendor, sizeof vendor);
    }
    for (int i = pretty ? 4 : 0; i < 8; ++i) {
        append_byte(out, bytes[i], upper_digits);
    }
}

bool parse_serial(std::string_view text, unsigned char* bytes)
{
    if (text.size() != 12) {
        return parse_hex(text, bytes, 8);
    }
    if (!is_vendor(text.data()) || !parse_hex(text.substr(4), bytes + 4, 4)) {
        return false;
    }
    std::memcpy(bytes, text.data(), 4);
    return true;
}

void append_hex(std::string& out, const unsigned char* bytes, std::size_t count)
{
    for (std::size_t i = 0; i < count; ++i) {
        append_byte(out, bytes[i], lower_digits);
    }
}

bool parse_hex(std::string_view text, unsigned char* bytes, std::size_t count)
{
    if (text.size() != 2 * count) {
        return false;
    }
    for (const char c : text) {
        if (digit_value(c) < 0) {
            return false;
        }
    }
    for (std::size_t i = 0; i < count; ++i) {
        bytes[i] = static_cast<unsigned char>(16 * digit_value(text[2 * i]) + digit_value(text[2 * i + 1]));
    }
    return true;
}

void append_hexadecimal(std::string& out, std::uint32_t number, int digits)
{
    out += "0x";
    int shift = 28;
    while (shift >= 4 * digits && number >> shift == 0) {
        shift -= 4;
    }
    for (; shift >= 0; shift -= 4) {
        out += upper_digits[number >> shift & 0xF];
    }
}

bool parse_hexadecimal(std::string_view text, std::uint64_t& number)
{
    if (text.size() < 3 || text.size() > 18 || text[0] != '0' || (text[1] != 'x' && text[1] != 'X')) {
        return false;
    }
    const char* const end = text.data() + text.size();
    return std::from_chars(text.data() + 2, end, number, 16).ptr == end;
}

bool parse_decimal(std::string_view text, std::uint64_t& number)
{
    if (text.empty() || (text[0] == '0' && text.size() > 1) || text.find_first_not_of("0123456789") != text.npos) {
        return false;
    }
    if (std::from_chars(text.data(), text.data() + text.size(), number).ec == std::errc::result_out_of_range) {
        number = std::numeric_limits<std::uint64_t>::max();
    }
    return true;
}

void append_quoted(std::string& out, std::string_view text)
{
    out += '"';
    std::size_t plain = 0;
    for (std::size_t i = 0; i < text.size(); ++i) {
        const char c = text[i];
        const auto byte = static_cast<unsigned char>(c);
        if (byte >= 0x20 && byte != 0x7F && c != '"' && c != '\\') {
            continue;
        }
        out.append(text, plain, i - plain);
        plain = i + 1;
        out += '\\';
        switch (c) {
        case '"':
        case '\\':
            out += c;
            break;
        case '\n':
            out += 'n';
            break;
        case '\r':
            out += 'r';
            break;
        case '\t':
            out += 't';
            break;
        default:
            out += "u00";
            append_byte(out, byte, lower_digits);
        }
    }
    out.append(text, plain, text.size() - plain);
    out += '"';
}

std::string quote(std::string_view text)
{
    constexpr std::size_t longest = 60;
    const bool cut = text.size() > longest;
    if (cut) {
        text = text.substr(0, longest);
        // Not in the middle of a character.
        while (!text.empty() && !is_utf8(text)) {
            text.remove_suffix(1);
        }
    }
    std::string result;
    append_quoted(result, text);
    if (cut) {
        result += "...";
    }
    return result;
}

} // namespace pondiff::tool
