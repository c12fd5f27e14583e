#include "pon/diff_builder/formatting.h"

#include "platform/platform.h"
#include "pon/DataToCommandsConvertor.h"
#include "pon/diff_builder.h"

#include <algorithm>
#include <arpa/inet.h>
#include <cstdio>
#include <cstdlib>

namespace pondiff {

namespace {

constexpr std::uint32_t no_ber_interval = 0xFFFFFFFFU;

/// Room for what each of the platform's converters may write, terminator included.
constexpr std::size_t mac_size = 25;
constexpr std::size_t serial_size = 24;
constexpr std::size_t engine_id_size = 29;

void append_hexadecimal(Text& out, std::uint64_t value, std::size_t least_digits)
{
    char digits[2 + 16];
    char* at = digits + sizeof digits;
    std::size_t count = 0;
    for (; value != 0 || count < least_digits; value /= 16, ++count)
        *--at = "0123456789ABCDEF"[value % 16];
    *--at = 'x';
    *--at = '0';
    out.append(at, count + 2);
}

void append_ipv4(Text& out, const std::uint8_t* address)
{
    char dotted[std::size_t{3} * 4 + most_digits];
    char* at = dotted;
    for (int i = 0; i < 4; ++i) {
        if (i != 0)
            *at++ = '.';
        at += put_natural(at, address[i]);
    }
    out.append(dotted, static_cast<std::size_t>(at - dotted));
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
    switch (form_) {
    case Form::text:
        out.append(static_cast<const char*>(bytes_), size_);
        break;
    case Form::decimal:
        out.append_decimal(number_);
        break;
    case Form::natural:
        out.append_natural(static_cast<std::uint64_t>(number_));
        break;
    case Form::hexadecimal:
        append_hexadecimal(out, static_cast<std::uint64_t>(number_), size_);
        break;
    case Form::decimal_or_unused:
        if (number_ == -1)
            out.append("unused");
        else
            out.append_decimal(number_);
        break;
    case Form::ber_interval:
        if (static_cast<std::uint32_t>(number_) == no_ber_interval)
            out.append("none");
        else
            out.append_natural(static_cast<std::uint32_t>(number_));
        break;
    case Form::channel_format:
        append_channel_format(out, static_cast<const char*>(bytes_), size_);
        break;
    case Form::ipv4:
        append_ipv4(out, bytes());
        break;
    case Form::ipv6:
        append_ipv6(out, bytes_);
        break;
    case Form::mac:
        append_converted<mac_size>(out, convert_mac_bintostr, bytes());
        break;
    case Form::serial:
        append_converted<serial_size>(out, convert_sn_by_format, bytes());
        break;
    case Form::engine_id:
        append_converted<engine_id_size>(out, convert_snmpengineid_bintostr, bytes());
        break;
    }
}

const char* enum_word(const char* type, std::int64_t value)
{
    const char* const word = gpon_enum_find_name_by_type(type, static_cast<std::uint16_t>(value));
    return word ? word : "";
}

void format(Text& out, const char* form, const Value* values, std::size_t count)
{
    while (const char* const conversion = std::strchr(form, '%')) {
        out.append(form, static_cast<std::size_t>(conversion - form));
        if (count != 0) {
            values->append_to(out);
            ++values;
            --count;
        }
        form = conversion + 2;
    }
    out.append(form);
}

namespace {

/// The value's text in a zero-filled heap block of `capacity` bytes, or of more where the text needs it.
char* heap_text(const Value& value, std::size_t capacity)
{
    Text text;
    value.append_to(text);
    if (text.failed())
        return nullptr;
    auto* const block = static_cast<char*>(std::calloc(1, std::max(capacity, text.size() + 1)));
    if (block)
        std::memcpy(block, text.data(), text.size());
    return block;
}

constexpr std::size_t number_capacity = 256;

char* heap_number(Value::Form form, std::int64_t number, std::uint8_t digits = 1)
{
    return heap_text(Value::number(form, number, digits), number_capacity);
}

template <class T>
char* heap_array(const T* values, int count, std::size_t widest)
{
    Text text;
    for (int i = 0; i < count; ++i) {
        if (i != 0)
            text.append(",", 1);
        text.append_decimal(values[i]);
    }
    const std::size_t capacity = count > 0 ? static_cast<std::size_t>(count) * widest : 1;
    return text.failed() ? nullptr : heap_text(Value::text(text.c_str(), text.size()), capacity);
}

} // namespace

} // namespace pondiff

using pondiff::heap_number;
using pondiff::heap_text;
using pondiff::Value;

char* u32_tostr(unsigned int value)
{
    return heap_number(Value::Form::natural, value);
}

char* u16_tostr(unsigned short value)
{
    return heap_number(Value::Form::natural, value);
}

char* int_tostr(int value)
{
    return heap_number(Value::Form::decimal, value);
}

char* u64_tostr(unsigned long long value)
{
    return heap_number(Value::Form::natural, static_cast<std::int64_t>(value));
}

char* double_tostr(double value)
{
    const int size = std::snprintf(nullptr, 0, "%f", value);
    const std::size_t capacity = std::max(pondiff::number_capacity, static_cast<std::size_t>(size) + 1);
    auto* const text = static_cast<char*>(std::calloc(1, capacity));
    if (text)
        std::snprintf(text, capacity, "%f", value);
    return text;
}

char* int_tostr_or_unused(int value)
{
    return heap_number(Value::Form::decimal_or_unused, value);
}

char* BerInterval_tostr(unsigned int value)
{
    return heap_number(Value::Form::ber_interval, value);
}

char* u64_tostr_hex(unsigned long long value)
{
    return heap_number(Value::Form::hexadecimal, static_cast<std::int64_t>(value));
}

char* u32_tostr_hex(unsigned int value)
{
    return heap_number(Value::Form::hexadecimal, value);
}

char* u16_tostr_hex(unsigned short value)
{
    return heap_number(Value::Form::hexadecimal, value, 4);
}

char* int_3byte_tostr_hex(int value)
{
    return heap_number(Value::Form::hexadecimal, static_cast<unsigned>(value), 6);
}

char* int_tostr_hex(int value)
{
    return heap_number(Value::Form::hexadecimal, static_cast<unsigned>(value), 8);
}

char* GIPAddr_t_tostr(unsigned char* address)
{
    return heap_text(Value::bytes(Value::Form::ipv4, address), 16);
}

char* GMACAddr_t_tostr(unsigned char* address)
{
    return heap_text(Value::bytes(Value::Form::mac, address), pondiff::mac_size);
}

char* GOntSerial_t_tostr(unsigned char* serial)
{
    return heap_text(Value::bytes(Value::Form::serial, serial), pondiff::serial_size);
}

char* GSNMPEngineID_t_tostr(unsigned char* id)
{
    return heap_text(Value::bytes(Value::Form::engine_id, id), pondiff::engine_id_size);
}

char* GOntPassword_t_tostr(char* password)
{
    constexpr std::size_t longest_password = 10;
    constexpr std::size_t capacity = 32;
    return heap_text(Value::text(password, longest_password), capacity);
}

char* GEncryptionKey_t_tostr(unsigned char* key)
{
    return heap_text(Value(reinterpret_cast<const char*>(key)), 0);
}

char* Enum_tostr(char* type, int value)
{
    return heap_text(Value(pondiff::enum_word(type, value)), 0);
}

char* convertarrayu8tostr(unsigned char* values, int count)
{
    return pondiff::heap_array(values, count, sizeof "255");
}

char* convertarrays16tostr(short* values, int count)
{
    return pondiff::heap_array(values, count, sizeof "-32768");
}

void str_replace(char* text, const char* needle, const char* replacement)
{
    if (!text || !needle || !replacement)
        return;
    const std::size_t size = std::strlen(replacement);
    // Written over an occurrence, the needle's own beginning changes nothing; nor is there anything to find for an
    // empty needle. Every other replacement makes the text differ, and always in the same direction of the order of
    // its bytes at the first place where the two texts differ: the search ends.
    if (*needle == '\0' || std::strncmp(needle, replacement, size) == 0)
        return;
    const bool again_behind = std::strstr(replacement, needle) != nullptr;
    const char* const end = text + std::strlen(text);
    char* from = text;
    while (char* const found = std::strstr(from, needle)) {
        const std::size_t written = std::min(size, static_cast<std::size_t>(end - found));
        std::memcpy(found, replacement, written);
        from = again_behind ? found + written : text;
    }
}
