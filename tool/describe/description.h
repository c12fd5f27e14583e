#ifndef TOOL_DESCRIBE_DESCRIPTION_H
#define TOOL_DESCRIBE_DESCRIPTION_H

/// @file
/// What the program knows of the fields of the records: a `Record` is the list of its `Field`s. The tables stand in
/// the files of this folder, one for each family of records, and are written with what table.h offers; records.h names
/// those that other files use. Nothing else in the program lists fields.
///
/// Fields are reached through offset and memcpy alone: most multi-byte fields of packed records are misaligned.

#include "gcfg/gcfg.h"
#include "pon/profile_kinds.h"
#include "tool/describe/syntax.h"

#include <cstddef>
#include <cstdint>
#include <cstring>
#include <string>
#include <string_view>
#include <vector>

namespace pondiff::tool {

/// How a person writes a field.
enum class Form : std::uint8_t {
    number,
    boolean,     ///< a switch; any other value than 0 and 1 is a number
    hexadecimal, ///< a number
    enumeration, ///< a word of the registry, or a number
    reference,   ///< the index of another object, see `Reference`
    text,        ///< terminated characters
    secret,      ///< a text that no message shows
    ipv4,
    ipv6,
    mac,
    serial, ///< of an ONT
    engine_id,
    record, ///< a record of its own
};

/// What a reference refers to. A profile is its index, -1 is none.
enum class Reference : std::uint8_t {
    none,
    terminal_vlan_id,       ///< -100 to -131 are the VLAN ids of terminal VLANs 0 to 31, others are no reference
    terminal_vlan_priority, ///< 100 to 131 are the priorities of terminal VLANs 0 to 31, others are no reference
#define TO_PROFILE(part, array, ...) array,
    PON_PROFILE_KINDS(TO_PROFILE)
#undef TO_PROFILE
};

/// What is special in the way an array is written.
enum class Layout : std::uint8_t {
    plain,
    ended_list, ///< numbers; what follows the last one of a list is -1
    flag_set,   ///< records of one flag each; the slots whose flag is set are listed
};

struct Record;

/// One field, as the struct declares it, and how a person writes it.
struct Field {
    std::string_view name;
    std::string_view owner;  ///< the struct
    const Record* record;    ///< Form::record: what each element is
    const char* enumeration; ///< Form::enumeration: the registry's type
    const char* plural;      ///< arrays: what the elements are called
    std::uint32_t offset;
    std::uint32_t size;  ///< all elements together
    std::uint32_t width; ///< one element; a text, an address or the like is one element
    std::uint16_t count;
    bool array;
    bool is_signed;
    bool silent; ///< a text that no command shows
    Form form;
    Layout layout;
    Reference reference;
    Syntax syntax;   ///< how the CLI says it; Form::record: why none of its fields has a command
    Element element; ///< Form::record: what it adds to the commands of the record
};

/// The fields of a record in the order of its struct; they tile it.
struct Record {
    const char* name; ///< of the struct
    const Field* fields;
    std::size_t count;
    std::size_t size;
    bool brief; ///< few short fields: fits on a line
    /// What tells an object of this kind from the others, and whether it is there; null where there is no such member.
    const Field* name_member;
    const Field* key_member;
    const Field* existence_member;

    constexpr const Field* begin() const { return fields; }
    constexpr const Field* end() const { return fields + count; }
};

/// The description of the struct `R`.
template <class R>
struct RecordOf : Record {
    template <std::size_t N>
    constexpr RecordOf(const char* struct_name, const Field (&table)[N]);
};

/// True for the forms whose element is a number, whatever it is written like.
constexpr bool is_number(Form form)
{
    return form <= Form::reference;
}

/// True for the forms whose element is terminated characters.
constexpr bool is_text(Form form)
{
    return form == Form::text || form == Form::secret;
}

constexpr std::int64_t smallest(const Field& field)
{
    return field.is_signed ? -(std::int64_t{1} << (8 * field.width - 1)) : 0;
}

constexpr std::int64_t largest(const Field& field)
{
    return (std::int64_t{1} << (8 * field.width - (field.is_signed ? 1U : 0U))) - 1;
}

/// The number in the element of `field` at `at`.
std::int64_t get_number(const Field& field, const unsigned char* at);

/// `number` is between `smallest` and `largest`.
void set_number(const Field& field, unsigned char* at, std::int64_t number);

/// Where a field or an element stands: "pon.ont.70.serial".
class Path {
  public:
    struct Step {
        const Field* field;
        std::size_t index; ///< of the element, 0 where the field is no array
    };

    void push(const Field& field, std::size_t index) { steps_.push_back({&field, index}); }
    void pop() { steps_.pop_back(); }
    std::string text() const;
    const std::vector<Step>& steps() const { return steps_; }

  private:
    std::vector<Step> steps_;
};

/// An element of a field that is no record: a number, a text, an address.
struct Leaf {
    const Field& field;
    std::size_t index;  ///< of the element in its field
    std::size_t offset; ///< from the start of the record that the walk began with
    const Path& path;
};

template <class Enter, class Visit>
void walk(const Record& record, std::size_t offset, Path& path, Enter& enter, Visit& visit)
{
    for (const Field& field : record) {
        const std::size_t start = offset + field.offset;
        if (!enter(start, std::size_t{field.size})) {
            continue;
        }
        for (std::size_t i = 0; i < field.count; ++i) {
            const std::size_t element = start + i * field.width;
            if (field.array && !enter(element, std::size_t{field.width})) {
                continue;
            }
            path.push(field, i);
            if (field.record != nullptr) {
                walk(*field.record, element, path, enter, visit);
            } else {
                visit(Leaf{field, i, element, path});
            }
            path.pop();
        }
    }
}

/// Calls `visit(const Leaf&)` for each leaf in its order. What `enter(offset, size)` refuses is left out, with all
/// that is in it; it is asked for fields and for elements of arrays.
template <class Enter, class Visit>
void for_each_leaf(const Record& record, Enter&& enter, Visit&& visit)
{
    Path path;
    walk(record, 0, path, enter, visit);
}

template <class Visit>
void for_each_leaf(const Record& record, Visit&& visit)
{
    for_each_leaf(
        record, [](std::size_t, std::size_t) { return true; }, visit);
}

/// Calls `visit(const Leaf&)` for each leaf in which the two records differ.
template <class Visit>
void for_each_difference(const Record& record, const void* a, const void* b, Visit&& visit)
{
    const auto* const left = static_cast<const unsigned char*>(a);
    const auto* const right = static_cast<const unsigned char*>(b);
    for_each_leaf(
        record,
        [=](std::size_t offset, std::size_t size) { return std::memcmp(left + offset, right + offset, size) != 0; },
        visit);
}

/// A part of a configuration: a record, or several that follow one another.
struct Range {
    std::size_t offset;
    std::size_t size;
};
using Ranges = std::vector<Range>;

/// Whether the part from `offset` on has anything in common with the ranges.
bool overlaps(const Ranges& ranges, std::size_t offset, std::size_t size);

/// How many leaves in the ranges differ.
std::size_t count_differing_fields(const GCfg& a, const GCfg& b, const Ranges& ranges = {{0, sizeof(GCfg)}});

} // namespace pondiff::tool

#endif
