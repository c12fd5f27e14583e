#ifndef TOOL_JSON_FORMS_H
#define TOOL_JSON_FORMS_H

/// @file
/// Text forms of values. Each form can be appended to a text and parsed from one. Parsing returns false and leaves the
/// bytes unchanged unless the text has exactly that form. Parsing what was appended gives the same bytes.

#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>

namespace pondiff::tool {

/// "10.0.0.1"
void append_ipv4(std::string& out, const unsigned char* bytes);
bool parse_ipv4(std::string_view text, unsigned char* bytes);

/// "2001:db8::1"
void append_ipv6(std::string& out, const unsigned char* bytes);
bool parse_ipv6(std::string_view text, unsigned char* bytes);

/// "AA:BB:CC:DD:EE:FF", in capitals or small letters
void append_mac(std::string& out, const unsigned char* bytes);
bool parse_mac(std::string_view text, unsigned char* bytes);

/// "ABCD01020304" when the vendor is four capital letters or digits, else 16 hexadecimal digits
void append_serial(std::string& out, const unsigned char* bytes);
bool parse_serial(std::string_view text, unsigned char* bytes);

/// Two hexadecimal digits for each byte; parses exactly `count` bytes.
void append_hex(std::string& out, const unsigned char* bytes, std::size_t count);
bool parse_hex(std::string_view text, unsigned char* bytes, std::size_t count);

/// "0x88A8", with at least `digits` digits
void append_hexadecimal(std::string& out, std::uint32_t number, int digits);
bool parse_hexadecimal(std::string_view text, std::uint64_t& number);

/// Digits only, without leading zeros. A number that is too large becomes the largest one.
bool parse_decimal(std::string_view text, std::uint64_t& number);

/// The text between quotes, with escapes; it is UTF-8.
void append_quoted(std::string& out, std::string_view text);

/// The same for a message: shortened if it is long.
std::string quote(std::string_view text);

} // namespace pondiff::tool

#endif
