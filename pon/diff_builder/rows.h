#ifndef PON_DIFF_BUILDER_ROWS_H
#define PON_DIFF_BUILDER_ROWS_H

/// @file
/// What record diffs are written with. Most of a record diff is a table of rows, each a field and its command, which
/// `emit_changed` walks; what does not fit a row is plain code with `emit`, `navigate` and `append`. These own all
/// buffers: no record diff handles one.
///
/// To add a command: add a row where it belongs in the order of the commands. The verb says how the value is
/// written; the field's width and sign come from the struct.

#include "pon/DataToCommandsConvertor.h"
#include "pon/DataToCommandsConvertor/key.h"
#include "pon/DataToCommandsConvertor/views.h"
#include "pon/diff_builder.h"
#include "pon/diff_builder/comparison.h"
#include "pon/diff_builder/formatting.h"
#include "pon/diff_builder/switches.h"
#include "pon/member.h"

#include <cstddef>
#include <cstdint>
#include <cstring>
#include <initializer_list>
#include <type_traits>

namespace pondiff {

// ----------------------------------------------------------------------------------------------------------- rules

/// True when two records or byte arrays differ, or the rule forces them. Multi-byte scalars go through rows or are
/// compared by value: they cannot be bound to a reference.
template <class T>
bool wanted(Rule rule, const T& lhs, const T& rhs)
{
    static_assert(alignof(T) == 1, "records and byte arrays only");
    return forced(rule) || Comparison::differ(&lhs, &rhs, sizeof(T));
}

/// What each record diff checks first: it emits nothing for a null record or, without `print_all`, for equal ones.
template <class T>
bool nothing_to_emit(const T* lhs, const T* rhs)
{
    return !lhs || !rhs || !wanted(changed_or_all, *lhs, *rhs);
}

// ------------------------------------------------------------------------------------------------------ the script

/// Where commands go: the CLI view they are valid in, the object's key and the list. `lead`, if any, is the value of
/// the first conversion of every template: a direction, a service's prefix, a port's number.
struct Where {
    View view;
    int* key;
    List<char>& out;
    const Value* lead = nullptr;
};

/// Appends the navigation to the view and object, an empty element when the script is already there. Returns false when
/// an allocation fails, as do the functions below. A record diff may ignore that: the operation remembers it.
bool navigate(const Where& where);

/// Formats the template, substitutes placeholders and appends, without navigation.
bool command_values(const Where& where, const char* format, const Value* values, std::size_t count);

/// Formats and appends, without navigation or substitution.
bool append_values(List<char>& out, const char* format, const Value* values, std::size_t count);

template <class... Values>
bool command(const Where& where, const char* format, Values... values)
{
    const Value list[] = {Value(values)..., Value("")};
    return command_values(where, format, list, sizeof...(values));
}

template <class... Values>
bool append(List<char>& out, const char* format, Values... values)
{
    const Value list[] = {Value(values)..., Value("")};
    return append_values(out, format, list, sizeof...(values));
}

/// The usual case: the navigation to the command's view, then the command.
template <class... Values>
bool emit(const Where& where, const char* format, Values... values)
{
    return navigate(where) && command(where, format, values...);
}

// ------------------------------------------------------------------------------------------------------------ rows

struct RowData {
    enum class Kind : std::uint8_t {
        flag,      ///< `format` when the field, or a bit of `mask` in it, is set; `extra.words` when none is
        content,   ///< `format` with what the field holds, as `notation` writes it
        word,      ///< `format` with the word that `extra.name` gives; null is the empty text
        enum_word, ///< `format` with the registry's word in the vocabulary `extra.words`
        reference, ///< `format` with the name that `extra.name` gives; null suppresses the command
    };
    union Extra {
        constexpr Extra(const char* literal = nullptr) : words(literal) {}
        constexpr Extra(const char* (*lookup)(int)) : name(lookup) {}
        const char* words; ///< a command, or the name of a vocabulary
        const char* (*name)(int);
    };
    /// The parts of a template, found at compile time: nothing is searched at run time, which saves a sixth of the time
    /// of a line.
    struct Parts {
        constexpr Parts(const char* format)
        {
            for (; format && format[size] != '\0'; ++size) {
                if (format[size] == '%') {
                    if (second != none) {
                        more_than_two_conversions();
                    }
                    (first == none ? first : second) = size;
                }
                if (format[size] == '$') {
                    if (mark != none) {
                        more_than_one_placeholder();
                    }
                    mark = size;
                }
                if (size == none - 1) {
                    too_long();
                }
            }
        }
        /// Not constexpr: a template that breaks the rule does not compile.
        static void more_than_two_conversions() {}
        static void more_than_one_placeholder() {}
        static void too_long() {}
        static constexpr std::uint8_t none = 0xFF;
        std::uint8_t first = none; ///< position of the first conversion
        std::uint8_t second = none;
        std::uint8_t mark = none; ///< position of the placeholder
        std::uint8_t size = 0;
    };
    const char* format;
    Extra extra;
    Parts parts;       ///< of `format`
    Parts extra_parts; ///< of `extra.words`, where it is a command
    std::uint16_t offset;
    std::uint16_t size;
    std::uint16_t compared;
    Kind kind;
    Value::Notation notation;
    std::uint8_t detail; ///< flag: the bits that count, 0 for the whole field; content: least hexadecimal digits
    bool is_signed;
};

/// A row of a table whose fields all belong to `Record`.
template <class Record>
struct Row {
    RowData data;
};

namespace rows {

template <class Record, class Type>
constexpr Row<Record> row(Member<Record, Type> field, RowData::Kind kind, const char* format, RowData::Extra extra = {},
                          Value::Notation notation = Value::Notation::decimal, std::uint8_t detail = 0)
{
    const bool two_commands = kind == RowData::Kind::flag;
    return {{format, extra, format, two_commands ? extra.words : nullptr, static_cast<std::uint16_t>(field.offset),
             sizeof(Type), sizeof(Type), kind, notation, detail, std::is_signed_v<Type>}};
}

template <class Record, class Type>
constexpr Row<Record> content(Member<Record, Type> field, const char* format, Value::Notation notation,
                              std::uint8_t digits = 1)
{
    return row(field, RowData::Kind::content, format, {}, notation, digits);
}

/// Of at most 32 bits: no record has wider ones.
template <class Type>
constexpr bool is_number = std::is_integral_v<Type> && sizeof(Type) <= sizeof(std::uint32_t);

template <class Type, std::size_t N>
constexpr bool is_bytes = std::is_same_v<Type, std::uint8_t[N]>;

} // namespace rows

/// The first command when the field is non-zero, the second when it is zero. An empty command still navigates.
template <class R, class T>
constexpr Row<R> on_off(Member<R, T> field, const char* on, const char* off)
{
    static_assert(rows::is_number<T>);
    return rows::row(field, RowData::Kind::flag, on, off);
}

/// The same for the bits of `mask` alone: other bits are ignored.
template <class R, class T>
constexpr Row<R> bit(Member<R, T> field, std::uint8_t mask, const char* on, const char* off)
{
    static_assert(rows::is_number<T>);
    Row<R> row = rows::row(field, RowData::Kind::flag, on, off);
    row.data.detail = mask;
    return row;
}

/// One command, whatever the new value is.
template <class R, class T>
constexpr Row<R> whenever(Member<R, T> field, const char* command)
{
    static_assert(rows::is_number<T>);
    return rows::row(field, RowData::Kind::flag, command, command);
}

/// In decimal, with the sign that the field's type has.
template <class R, class T>
constexpr Row<R> number(Member<R, T> field, const char* format)
{
    static_assert(rows::is_number<T>);
    return rows::content(field, format, Value::Notation::decimal);
}

/// An unsigned field of 32 bits shown as if it were signed: values of 2^31 and above are negative.
template <class R, class T>
constexpr Row<R> number_as_signed(Member<R, T> field, const char* format)
{
    static_assert(std::is_same_v<T, std::uint32_t>);
    Row<R> row = number(field, format);
    row.data.is_signed = true;
    return row;
}

template <class R, class T>
constexpr Row<R> number_or_unused(Member<R, T> field, const char* format)
{
    static_assert(rows::is_number<T>);
    return rows::content(field, format, Value::Notation::decimal_or_unused);
}

template <class R, class T>
constexpr Row<R> ber_interval(Member<R, T> field, const char* format)
{
    static_assert(std::is_same_v<T, std::uint32_t>);
    return rows::content(field, format, Value::Notation::ber_interval);
}

/// 0x and at least so many upper-case digits.
template <class R, class T>
constexpr Row<R> hexadecimal(Member<R, T> field, std::uint8_t digits, const char* format)
{
    static_assert(rows::is_number<T> && std::is_unsigned_v<T>);
    return rows::content(field, format, Value::Notation::hexadecimal, digits);
}

template <class R, class T>
constexpr Row<R> ipv4(Member<R, T> field, const char* format)
{
    static_assert(rows::is_bytes<T, 4>);
    return rows::content(field, format, Value::Notation::ipv4);
}

template <class R, class T>
constexpr Row<R> ipv6(Member<R, T> field, const char* format)
{
    static_assert(rows::is_bytes<T, 16>);
    return rows::content(field, format, Value::Notation::ipv6);
}

template <class R, class T>
constexpr Row<R> serial(Member<R, T> field, const char* format)
{
    static_assert(rows::is_bytes<T, 8>);
    return rows::content(field, format, Value::Notation::serial);
}

template <class R, class T>
constexpr Row<R> engine_id(Member<R, T> field, const char* format)
{
    static_assert(rows::is_bytes<T, 13>);
    return rows::content(field, format, Value::Notation::engine_id);
}

/// The characters of the field, as stored.
template <class R, class T>
constexpr Row<R> text(Member<R, T> field, const char* format)
{
    static_assert(std::is_same_v<std::remove_extent_t<T>, char> && std::is_array_v<T>);
    return rows::content(field, format, Value::Notation::text);
}

/// The same for a format, in which the marker of the GPON port is renamed.
template <class R, std::size_t N>
constexpr Row<R> channel_format(Member<R, char[N]> field, const char* format)
{
    Row<R> row = text(field, format);
    row.data.notation = Value::Notation::channel_format;
    return row;
}

/// An ONT password: at most 10 characters of it are shown. A change is looked for in as many bytes as are compared:
/// those shown for an ONT, all of them for a template.
template <class R, class T>
constexpr Row<R> ont_password(Member<R, T> field, const char* format, std::uint16_t compared = sizeof(T))
{
    static_assert(std::is_same_v<T, char[11]>);
    Row<R> row = text(field, format);
    row.data.size = 10;
    row.data.compared = compared;
    return row;
}

/// The word of the device-wide registry in the vocabulary `type`.
template <class R, class T>
constexpr Row<R> enumeration(Member<R, T> field, const char* type, const char* format)
{
    static_assert(rows::is_number<T>);
    return rows::row(field, RowData::Kind::enum_word, format, type);
}

/// The word of one of the library's own vocabularies.
template <class R, class T>
constexpr Row<R> word(Member<R, T> field, const char* (*vocabulary)(int), const char* format)
{
    static_assert(rows::is_number<T>);
    return rows::row(field, RowData::Kind::word, format, vocabulary);
}

/// The name of the profile or template that the field refers to; nothing is emitted when the slot is empty.
template <class R, class T>
constexpr Row<R> reference(Member<R, T> field, const char* (*lookup)(int), const char* format)
{
    static_assert(std::is_same_v<T, std::int16_t>);
    return rows::row(field, RowData::Kind::reference, format, lookup);
}

/// The same row for element `index` of the array whose first element the row is for.
template <class Record>
constexpr Row<Record> element(Row<Record> row, std::size_t index)
{
    row.data.offset = static_cast<std::uint16_t>(row.data.offset + index * row.data.size);
    return row;
}

/// Emits one row of two records, when it has changed or is forced.
void emit_row(const RowData& row, bool force, const void* lhs, const void* rhs, const Where& where);

template <class Record>
void emit_changed(const Row<Record>& row, Rule rule, const Record* lhs, const Record* rhs, const Where& where)
{
    emit_row(row.data, forced(rule), lhs, rhs, where);
}

template <class Record, std::size_t N>
void emit_changed(const Row<Record> (&table)[N], Rule rule, const Record* lhs, const Record* rhs, const Where& where)
{
    const bool force = forced(rule);
    for (const Row<Record>& row : table) {
        emit_row(row.data, force, lhs, rhs, where);
    }
}

// -------------------------------------------------------------------------------------------- records in a record

/// Calls a record's diff on a part of two records when the part differs or is forced.
template <class Result, class Part>
void descend(Rule rule, Result (*diff)(Part*, Part*, int*, List<char>&), Part& lhs, Part& rhs, int* key,
             List<char>& out)
{
    if (wanted(rule, lhs, rhs)) {
        diff(&lhs, &rhs, key, out);
    }
}

/// The same for each element of an array. Its index is stored in the key's slot, whether the element is wanted or not.
template <class Result, class Element, std::size_t N>
void descend_each(Rule rule, Result (*diff)(Element*, Element*, int*, List<char>&), Element (&lhs)[N],
                  Element (&rhs)[N], KeySlot slot, int* key, List<char>& out)
{
    for (std::size_t i = 0; i < N; ++i) {
        key[slot] = static_cast<int>(i);
        descend(rule, diff, lhs[i], rhs[i], key, out);
    }
}

} // namespace pondiff

#endif
