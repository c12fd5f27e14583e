#ifndef TOOL_DESCRIBE_TABLE_H
#define TOOL_DESCRIBE_TABLE_H

/// @file
/// What the tables of this folder are written with: a line for each field of the struct, in its order. The verb says
/// how a person writes the field; name, place, width, sign and length are the struct's. A line that is missing, out of
/// its order or in the wrong table does not compile, nor does a verb that does not suit the field.
///
/// To add a field: add its line where the struct has it.
/// To add a record: write its table and DESCRIBE it above the record that holds it, or, when that one is in another
/// file, declare it in records.h.

#include "pon/member.h"
#include "tool/describe/description.h"
#include "tool/describe/phrases.h"
#include "tool/describe/records.h"

#include <cstddef>
#include <string_view>
#include <type_traits>

/// Makes `name` the description of the struct `record` by the lines of `table`.
#define DESCRIBE(record, name, table)                                                                                  \
    static_assert(::pondiff::tool::belong(table, #record), #record ": a line is of another struct");                   \
    static_assert(::pondiff::tool::tile<record>(table), #record ": not a line for each field in its order");           \
    static_assert(::pondiff::tool::have_syntax(table), #record ": a line without its command, or a broken one");       \
    static_assert(::std::is_same_v<record, record##_t>, #record "_t: not another name of the same struct");            \
    constexpr ::pondiff::tool::RecordOf<record> name(#record, table)

namespace pondiff::tool {

/// No array is longer.
constexpr std::size_t most_elements = 4096;
/// No record has more.
constexpr std::size_t most_fields = 64;

template <class Type>
inline constexpr bool is_integer =
    std::is_integral_v<Type> && !std::is_same_v<Type, char> && !std::is_same_v<Type, bool> && sizeof(Type) <= 4;

template <class Struct, class Type>
constexpr Field single(Member<Struct, Type> member, Form form, const Syntax& syntax = {})
{
    Field field{};
    field.name = member.name;
    field.owner = member.record;
    field.offset = static_cast<std::uint32_t>(member.offset);
    field.size = sizeof(Type);
    field.width = sizeof(Type);
    field.count = 1;
    field.is_signed = std::is_signed_v<Type>;
    field.form = form;
    field.syntax = syntax;
    return field;
}

template <class Struct, class Type, std::size_t N>
constexpr Field array(Member<Struct, Type[N]> member, Form form, const Syntax& syntax, const char* plural)
{
    static_assert(N <= most_elements);
    Field field = single(Member<Struct, Type>{member.record, member.name, member.offset}, form, syntax);
    field.size = sizeof(Type[N]);
    field.count = N;
    field.array = true;
    field.plural = plural;
    return field;
}

// ------------------------------------------------------------------------------------------------------- the verbs
//
// Where a field is an array, the last argument is what its elements are called.

template <class Struct, class Type>
constexpr Field number(Member<Struct, Type> member, const Syntax& syntax = {})
{
    static_assert(is_integer<Type>, "an integer");
    return single(member, Form::number, syntax);
}

template <class Struct, class Type, std::size_t N>
constexpr Field number(Member<Struct, Type[N]> member, const Syntax& syntax, const char* plural)
{
    static_assert(is_integer<Type>, "integers");
    return array(member, Form::number, syntax, plural);
}

/// Numbers that -1 ends; a full array has no end mark.
template <class Struct, class Type, std::size_t N>
constexpr Field ended_list(Member<Struct, Type[N]> member, const Syntax& syntax, const char* plural)
{
    static_assert(is_integer<Type> && std::is_signed_v<Type>, "integers, -1 among them");
    Field field = array(member, Form::number, syntax, plural);
    field.layout = Layout::ended_list;
    return field;
}

template <class Struct, class Type>
constexpr Field boolean(Member<Struct, Type> member, const Syntax& syntax = {})
{
    static_assert(is_integer<Type> && std::is_unsigned_v<Type>, "an unsigned integer");
    return single(member, Form::boolean, syntax);
}

template <class Struct, class Type, std::size_t N>
constexpr Field boolean(Member<Struct, Type[N]> member, const Syntax& syntax, const char* plural)
{
    static_assert(is_integer<Type> && std::is_unsigned_v<Type>, "unsigned integers");
    return array(member, Form::boolean, syntax, plural);
}

template <class Struct, class Type>
constexpr Field hexadecimal(Member<Struct, Type> member, const Syntax& syntax = {})
{
    static_assert(is_integer<Type> && std::is_unsigned_v<Type>, "an unsigned integer");
    return single(member, Form::hexadecimal, syntax);
}

/// `type` is the registry's name of the enumeration, "GBool_enum".
template <class Struct, class Type>
constexpr Field enumeration(Member<Struct, Type> member, const char* type, const Syntax& syntax = {})
{
    static_assert(is_integer<Type> && std::is_unsigned_v<Type>, "an unsigned integer");
    Field field = single(member, Form::enumeration, syntax);
    field.enumeration = type;
    return field;
}

template <class Struct, class Type>
constexpr Field reference(Member<Struct, Type> member, Reference to, const Syntax& syntax = {})
{
    static_assert(is_integer<Type>, "an integer");
    Field field = single(member, Form::reference, syntax);
    field.reference = to;
    return field;
}

template <class Struct, class Type, std::size_t N>
constexpr Field reference(Member<Struct, Type[N]> member, Reference to, const Syntax& syntax, const char* plural)
{
    static_assert(is_integer<Type>, "integers");
    Field field = array(member, Form::reference, syntax, plural);
    field.reference = to;
    return field;
}

template <class Struct, std::size_t N>
constexpr Field text(Member<Struct, char[N]> member, const Syntax& syntax = {})
{
    return single(member, Form::text, syntax);
}

template <class Struct, std::size_t N>
constexpr Field secret(Member<Struct, char[N]> member, const Syntax& syntax = {})
{
    return single(member, Form::secret, syntax);
}

/// A text that no command shows: whatever it holds, a script is not concerned.
constexpr Field silent(Field field)
{
    field.silent = true;
    return field;
}

template <class Struct>
constexpr Field ipv4(Member<Struct, GIPAddr_t> member, const Syntax& syntax = {})
{
    return single(member, Form::ipv4, syntax);
}

template <class Struct>
constexpr Field ipv6(Member<Struct, GIPV6Addr_t> member, const Syntax& syntax = {})
{
    return single(member, Form::ipv6, syntax);
}

template <class Struct>
constexpr Field mac(Member<Struct, GMACAddr_t> member, const Syntax& syntax = {})
{
    return single(member, Form::mac, syntax);
}

template <class Struct>
constexpr Field serial(Member<Struct, GOntSerial_t> member, const Syntax& syntax = {})
{
    return single(member, Form::serial, syntax);
}

template <class Struct>
constexpr Field engine_id(Member<Struct, GSNMPEngineID_t> member, const Syntax& syntax = {})
{
    return single(member, Form::engine_id, syntax);
}

template <class Struct, class Type>
constexpr Field record(Member<Struct, Type> member, const RecordOf<Type>& described, const Element& element = {})
{
    Field field = single(member, Form::record);
    field.record = &described;
    field.element = element;
    return field;
}

/// A record whose commands are unknown in this place. @param syntax  a `no_command`
template <class Struct, class Type>
constexpr Field record(Member<Struct, Type> member, const RecordOf<Type>& described, const Syntax& syntax)
{
    Field field = record(member, described);
    field.syntax = syntax;
    return field;
}

template <class Struct, class Type, std::size_t N>
constexpr Field record(Member<Struct, Type[N]> member, const RecordOf<Type>& described, const Element& element,
                       const char* plural)
{
    Field field = array(member, Form::record, {}, plural);
    field.record = &described;
    field.element = element;
    return field;
}

template <class Struct, class Type, std::size_t N>
constexpr Field record(Member<Struct, Type[N]> member, const RecordOf<Type>& described, const char* plural)
{
    return record(member, described, Element{}, plural);
}

/// Records that hold one flag each, so many that they are written as a list of those that are set.
template <class Struct, class Type, std::size_t N>
constexpr Field flag_set(Member<Struct, Type[N]> member, const RecordOf<Type>& described, const char* plural)
{
    static_assert(sizeof(Type) == sizeof(GBool_t), "one flag");
    Field field = record(member, described, plural);
    field.layout = Layout::flag_set;
    return field;
}

// ------------------------------------------------------------------------------------------------------ the checks

template <std::size_t N>
constexpr bool belong(const Field (&table)[N], std::string_view owner)
{
    for (const Field& field : table) {
        if (field.owner != owner) {
            return false;
        }
    }
    return true;
}

template <class Struct, std::size_t N>
constexpr bool tile(const Field (&table)[N])
{
    std::size_t offset = 0;
    for (const Field& field : table) {
        if (field.offset != offset || field.size != field.width * field.count) {
            return false;
        }
        offset += field.size;
    }
    return offset == sizeof(Struct);
}

template <std::size_t N>
constexpr const Field* find_member(const Field (&table)[N], std::string_view name)
{
    for (const Field& field : table) {
        if (field.name == name) {
            return &field;
        }
    }
    return nullptr;
}

/// Whether the brackets of a command are balanced and what stands in them is a sign of phrases.h or a member.
template <std::size_t N>
constexpr bool is_well_formed(const char* command, const Field (&table)[N])
{
    std::string_view rest = command != nullptr ? command : "";
    bool optional = false;
    while (!rest.empty()) {
        const char sign = rest.front();
        rest.remove_prefix(1);
        if (sign == '[' || sign == ']') {
            if (optional == (sign == '[')) {
                return false;
            }
            optional = sign == '[';
        } else if (sign == '<' || sign == '{' || (sign == ':' && optional)) {
            const std::size_t end = rest.find(sign == '<' ? '>' : sign == '{' ? '}' : ']');
            if (end == rest.npos) {
                return false;
            }
            const std::string_view inside = rest.substr(0, end);
            const std::string_view name = sign == '{' ? inside.substr(0, inside.find('=')) : inside;
            const bool special = name == "#" || name == "##" || name == "#1" || name == "*" || name == "?";
            if (!(sign == '<' && special) && find_member(table, name) == nullptr) {
                return false;
            }
            rest.remove_prefix(sign == ':' ? end : end + 1);
        } else if (sign == '>' || sign == '}') {
            return false;
        }
    }
    return !optional;
}

/// Whether a command has a place for the member.
constexpr bool shows(std::string_view command, std::string_view member)
{
    for (std::size_t at = command.find(member); at != command.npos; at = command.find(member, at + 1)) {
        const std::size_t end = at + member.size();
        if (at != 0 && end != command.size() &&
            std::string_view("<{:").find(command[at - 1]) != std::string_view::npos &&
            std::string_view(">=]").find(command[end]) != std::string_view::npos) {
            return true;
        }
    }
    return false;
}

/// Whether a line has a command, or says why it has none.
constexpr bool has_command_or_reason(const Field& field)
{
    const Syntax& syntax = field.syntax;
    const bool has_reason = syntax.reason != nullptr && syntax.reason[0] != '\0';
    switch (syntax.kind) {
    case Syntax::Kind::undescribed:
        return field.form == Form::record;
    case Syntax::Kind::says:
        return syntax.set != nullptr || syntax.off != nullptr;
    case Syntax::Kind::flags:
        return syntax.set != nullptr && syntax.off != nullptr && syntax.flag_count != 0;
    case Syntax::Kind::ambiguous:
        return syntax.set != nullptr;
    case Syntax::Kind::irregular:
        return syntax.set != nullptr && syntax.read != nullptr;
    case Syntax::Kind::with: // the reason is the other member
    case Syntax::Kind::counter:
    case Syntax::Kind::no_command:
        return has_reason;
    case Syntax::Kind::key:
    case Syntax::Kind::existence:
        return true;
    }
    return false;
}

/// Whether each line says how the CLI says its field, in commands that can be followed.
template <std::size_t N>
constexpr bool have_syntax(const Field (&table)[N])
{
    for (const Field& field : table) {
        const Syntax& syntax = field.syntax;
        if (!has_command_or_reason(field)) {
            return false;
        }
        const bool has_value = syntax.kind == Syntax::Kind::says && field.form != Form::boolean;
        if (has_value && (syntax.set == nullptr || !shows(syntax.set, field.name))) {
            return false;
        }
        if (!is_well_formed(syntax.set, table) || !is_well_formed(syntax.off, table)) {
            return false;
        }
        if (syntax.kind == Syntax::Kind::with) {
            const Field* const other = find_member(table, syntax.reason);
            if (other == nullptr || other->syntax.set == nullptr || !shows(other->syntax.set, field.name)) {
                return false;
            }
        }
        for (const char* const command : {field.element.enter, field.element.remove}) {
            if (command != nullptr && std::string_view(command).find("<#>") == std::string_view::npos) {
                return false;
            }
        }
    }
    return true;
}

/// True when each field is a single short value and the names leave room for the values on a line.
template <std::size_t N>
constexpr bool is_brief(const Field (&table)[N])
{
    std::size_t length = 0;
    for (const Field& field : table) {
        if (field.array || !(is_number(field.form) || field.form == Form::ipv4 || field.form == Form::mac)) {
            return false;
        }
        length += field.name.size();
    }
    return length <= 48;
}

/// Null when no line of the table is what is looked for.
template <std::size_t N, class Is>
constexpr const Field* first_member(const Field (&table)[N], Is is)
{
    for (const Field& field : table) {
        if (is(field)) {
            return &field;
        }
    }
    return nullptr;
}

template <class Struct>
template <std::size_t N>
constexpr RecordOf<Struct>::RecordOf(const char* struct_name, const Field (&table)[N])
    : Record{struct_name,
             table,
             N,
             sizeof(Struct),
             is_brief(table),
             first_member(table, [](const Field& field) { return field.name == "name"; }),
             first_member(table, [](const Field& field) { return field.syntax.kind == Syntax::Kind::key; }),
             first_member(table, [](const Field& field) { return field.syntax.is_existence; })}
{
    static_assert(N <= most_fields);
    static_assert(alignof(Struct) == 1, "packed");
    static_assert(std::is_trivial_v<Struct> && std::is_standard_layout_v<Struct>, "the same in C");
}

} // namespace pondiff::tool

#endif
