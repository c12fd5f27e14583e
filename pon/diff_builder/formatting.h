#ifndef PON_DIFF_BUILDER_FORMATTING_H
#define PON_DIFF_BUILDER_FORMATTING_H

#include "gcfg/gcfg.h"
#include "pon/DataToCommandsConvertor/text.h"

#include <cstddef>
#include <cstdint>

namespace pondiff {

/// A value to be written into a command, and how it is written. It points to texts and addresses, so it must not
/// outlive the record that it was taken from.
class Value {
  public:
    enum class Notation : std::uint8_t {
        decimal,
        natural,
        hexadecimal,
        decimal_or_unused, ///< -1 is "unused"
        ber_interval,      ///< all bits set is "none"
        ipv4,
        ipv6,
        text,
        channel_format, ///< a text in which the marker of the GPON port is renamed
        mac,            ///< this and the following are written by the platform library
        serial,
        engine_id,
    };

    /// A constant text or name; null is the empty text.
    Value(const char* text) : Value(Notation::text, text ? text : "", text ? std::strlen(text) : 0) {}
    /// A text field may lack its terminator: use `text_of(field)`, which knows the size of the array.
    Value(char* field) = delete;
    Value(int number) : notation_(Notation::decimal), number_(number) {}
    Value(unsigned number) : notation_(Notation::natural), number_(number) {}

    /// A text field: up to its terminator or the end of its array.
    static Value of_text(const void* array, std::size_t capacity, Notation notation = Notation::text)
    {
        return {notation, array, strnlen(static_cast<const char*>(array), capacity)};
    }
    static Value of_number(Notation notation, std::int64_t number, std::uint8_t digits = 1)
    {
        Value value(notation, nullptr, digits);
        value.number_ = number;
        return value;
    }
    static Value of_bytes(Notation notation, const void* bytes) { return {notation, bytes, 0}; }

    void append_to(Text& out) const;
    /// Whether the text written may itself contain a placeholder.
    bool may_hold_mark() const
    {
        return notation_ >= Notation::mac ||
               (notation_ >= Notation::text && std::memchr(bytes_, '$', size_) != nullptr);
    }

  private:
    Value(Notation notation, const void* bytes, std::size_t size) : notation_(notation), size_(size), bytes_(bytes) {}

    Notation notation_;
    std::size_t size_ = 0; ///< of a text; the least number of digits of a hexadecimal number
    union {
        std::int64_t number_;
        const void* bytes_;
    };
};

/// Values of record fields for commands that show more than one.
inline Value ipv4_of(const std::uint8_t (&address)[4])
{
    return Value::of_bytes(Value::Notation::ipv4, address);
}

inline Value ipv6_of(const std::uint8_t (&address)[16])
{
    return Value::of_bytes(Value::Notation::ipv6, address);
}

inline Value mac_of(const std::uint8_t (&address)[6])
{
    return Value::of_bytes(Value::Notation::mac, address);
}

template <std::size_t N>
Value text_of(const char (&field)[N])
{
    return Value::of_text(field, N);
}

template <std::size_t N>
Value channel_format_of(const char (&field)[N])
{
    return Value::of_text(field, N, Value::Notation::channel_format);
}

/// How much each of the platform's converters may write, terminator included.
constexpr std::size_t mac_size = 25;
constexpr std::size_t serial_size = 24;
constexpr std::size_t engine_id_size = 29;

/// The registry's word for an enumeration value of which the low 16 bits count; never null.
const char* enum_word(const char* type, std::int64_t value);

/// Writes a template. Each conversion takes the next value: %s, %d or %u alike, since the value knows its notation.
void append_formatted(Text& out, const char* format, const Value* values, std::size_t count);

} // namespace pondiff

#endif
