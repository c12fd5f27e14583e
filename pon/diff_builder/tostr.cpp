#include "pon/diff_builder.h"
#include "pon/diff_builder/formatting.h"

#include <algorithm>
#include <cstdio>
#include <cstdlib>
#include <cstring>

// The exported formatters: record diffs in other software call them, the library itself does not.

using pondiff::Text;
using pondiff::Value;

namespace {

/// The value's text in a zero-filled heap block of `capacity` bytes, or of more where the text needs it.
char* heap_text(const Value& value, std::size_t capacity)
{
    Text text;
    value.append_to(text);
    if (text.failed()) {
        return nullptr;
    }
    auto* const block = static_cast<char*>(std::calloc(1, std::max(capacity, text.size() + 1)));
    if (block) {
        std::memcpy(block, text.data(), text.size());
    }
    return block;
}

constexpr std::size_t number_capacity = 256;

char* heap_number(Value::Notation notation, std::int64_t number, std::uint8_t digits = 1)
{
    return heap_text(Value::of_number(notation, number, digits), number_capacity);
}

template <class T>
char* heap_array(const T* values, int count, std::size_t widest)
{
    Text text;
    for (int i = 0; i < count; ++i) {
        if (i != 0) {
            text.append(',');
        }
        text.append_decimal(values[i]);
    }
    const std::size_t capacity = count > 0 ? static_cast<std::size_t>(count) * widest : 1;
    return text.failed() ? nullptr : heap_text(Value::of_text(text.c_str(), text.size()), capacity);
}

} // namespace

char* u32_tostr(unsigned int value)
{
    return heap_number(Value::Notation::natural, value);
}

char* u16_tostr(unsigned short value)
{
    return heap_number(Value::Notation::natural, value);
}

char* int_tostr(int value)
{
    return heap_number(Value::Notation::decimal, value);
}

char* u64_tostr(unsigned long long value)
{
    return heap_number(Value::Notation::natural, static_cast<std::int64_t>(value));
}

char* double_tostr(double value)
{
    const int size = std::snprintf(nullptr, 0, "%f", value);
    const std::size_t capacity = std::max(number_capacity, static_cast<std::size_t>(size) + 1);
    auto* const text = static_cast<char*>(std::calloc(1, capacity));
    if (text) {
        std::snprintf(text, capacity, "%f", value);
    }
    return text;
}

char* int_tostr_or_unused(int value)
{
    return heap_number(Value::Notation::decimal_or_unused, value);
}

char* BerInterval_tostr(unsigned int value)
{
    return heap_number(Value::Notation::ber_interval, value);
}

char* u64_tostr_hex(unsigned long long value)
{
    return heap_number(Value::Notation::hexadecimal, static_cast<std::int64_t>(value));
}

char* u32_tostr_hex(unsigned int value)
{
    return heap_number(Value::Notation::hexadecimal, value);
}

char* u16_tostr_hex(unsigned short value)
{
    return heap_number(Value::Notation::hexadecimal, value, 4);
}

char* int_3byte_tostr_hex(int value)
{
    return heap_number(Value::Notation::hexadecimal, static_cast<unsigned>(value), 6);
}

char* int_tostr_hex(int value)
{
    return heap_number(Value::Notation::hexadecimal, static_cast<unsigned>(value), 8);
}

char* GIPAddr_t_tostr(unsigned char* address)
{
    return heap_text(Value::of_bytes(Value::Notation::ipv4, address), 16);
}

char* GMACAddr_t_tostr(unsigned char* address)
{
    return heap_text(Value::of_bytes(Value::Notation::mac, address), pondiff::mac_size);
}

char* GOntSerial_t_tostr(unsigned char* serial)
{
    return heap_text(Value::of_bytes(Value::Notation::serial, serial), pondiff::serial_size);
}

char* GSNMPEngineID_t_tostr(unsigned char* id)
{
    return heap_text(Value::of_bytes(Value::Notation::engine_id, id), pondiff::engine_id_size);
}

char* GOntPassword_t_tostr(char* password)
{
    constexpr std::size_t longest_password = 10;
    constexpr std::size_t capacity = 32;
    return heap_text(Value::of_text(password, longest_password), capacity);
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
    return heap_array(values, count, sizeof "255");
}

char* convertarrays16tostr(short* values, int count)
{
    return heap_array(values, count, sizeof "-32768");
}
