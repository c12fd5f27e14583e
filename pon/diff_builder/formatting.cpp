#include "pon/diff_builder/formatting.h"

#include "platform/platform.h"
#include "pon/DataToCommandsConvertor.h"
#include "pon/diff_builder.h"

#include <algorithm>
#include <arpa/inet.h>

namespace pondiff {

namespace {

constexpr std::uint32_t no_ber_interval = 0xFFFFFFFFU;

void append_hexadecimal(Text& out, std::uint64_t value, std::size_t least_digits)
{
    char digits[2 + 16];
    char* at = digits + sizeof digits;
    std::size_t count = 0;
    for (; value != 0 || count < least_digits; value /= 16, ++count) {
        *--at = "0123456789ABCDEF"[value % 16];
    }
    *--at = 'x';
    *--at = '0';
    out.append(at, count + 2);
}

void append_ipv4(Text& out, const std::uint8_t* address)
{
    for (int i = 0; i < 4; ++i) {
        if (i != 0) {
            out.append('.');
        }
        out.append_natural(address[i]);
    }
}

void append_ipv6(Text& out, const void* address)
{
    char words[INET6_ADDRSTRLEN] = {};
    inet_ntop(AF_INET6, address, words, sizeof words);
    out.append(words);
}

template <std::size_t Size, class Converter>
void append_converted(Text& out, Converter convert, const std::uint8_t* bytes)
{
    char words[Size] = {};
    convert(words, bytes);
    out.append(words);
}

void append_channel_format(Text& out, const char* text, std::size_t size)
{
    const std::size_t begin = out.size();
    out.append(text, size);
    str_replace(out.c_str() + begin, "%CHANNELID%", "%GPON-PORT%");
}

} // namespace

void Value::append_to(Text& out) const
{
    const auto bytes = [this] { return static_cast<const std::uint8_t*>(bytes_); };
    switch (notation_) {
    case Notation::text:
        out.append(static_cast<const char*>(bytes_), size_);
        break;
    case Notation::decimal:
        out.append_decimal(number_);
        break;
    case Notation::natural:
        out.append_natural(static_cast<std::uint64_t>(number_));
        break;
    case Notation::hexadecimal:
        append_hexadecimal(out, static_cast<std::uint64_t>(number_), size_);
        break;
    case Notation::decimal_or_unused:
        if (number_ == -1) {
            out.append("unused");
        } else {
            out.append_decimal(number_);
        }
        break;
    case Notation::ber_interval:
        if (static_cast<std::uint32_t>(number_) == no_ber_interval) {
            out.append("none");
        } else {
            out.append_natural(static_cast<std::uint32_t>(number_));
        }
        break;
    case Notation::channel_format:
        append_channel_format(out, static_cast<const char*>(bytes_), size_);
        break;
    case Notation::ipv4:
        append_ipv4(out, bytes());
        break;
    case Notation::ipv6:
        append_ipv6(out, bytes_);
        break;
    case Notation::mac:
        append_converted<mac_size>(out, convert_mac_bintostr, bytes());
        break;
    case Notation::serial:
        append_converted<serial_size>(out, convert_sn_by_format, bytes());
        break;
    case Notation::engine_id:
        append_converted<engine_id_size>(out, convert_snmpengineid_bintostr, bytes());
        break;
    }
}

const char* enum_word(const char* type, std::int64_t value)
{
    const char* const word = gpon_enum_find_name_by_type(type, static_cast<std::uint16_t>(value));
    return word ? word : "";
}

void append_formatted(Text& out, const char* format, const Value* values, std::size_t count)
{
    while (const char* const conversion = std::strchr(format, '%')) {
        out.append(format, static_cast<std::size_t>(conversion - format));
        if (count != 0) {
            values->append_to(out);
            ++values;
            --count;
        }
        format = conversion + 2;
    }
    out.append(format);
}

} // namespace pondiff

void str_replace(char* text, const char* needle, const char* replacement)
{
    if (!text || !needle || !replacement) {
        return;
    }
    const std::size_t size = std::strlen(replacement);
    // A replacement that is a prefix of the needle would change nothing, so the search would never end; an empty needle
    // would be found everywhere. Any other replacement makes the text larger, or smaller, in the order of its bytes
    // each time: the search ends.
    if (*needle == '\0' || std::strncmp(needle, replacement, size) == 0) {
        return;
    }
    const bool again_behind = std::strstr(replacement, needle) != nullptr;
    const char* const end = text + std::strlen(text);
    char* from = text;
    while (char* const found = std::strstr(from, needle)) {
        const std::size_t written = std::min(size, static_cast<std::size_t>(end - found));
        std::memcpy(found, replacement, written);
        from = again_behind ? found + written : text;
    }
}
