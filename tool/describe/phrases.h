#ifndef TOOL_DESCRIBE_PHRASES_H
#define TOOL_DESCRIBE_PHRASES_H

/// @file
/// How the CLI says a field. A field's line has one of these beside the form in which a person writes it:
///
///     ipv4(FIELD(GSystemNtpCfg, ntpserver), says("ip ntp ip <ntpserver>")),
///     boolean(FIELD(GSystemNtpCfg, enabled), on_off("ip ntp enable", "no ip ntp enable")),
///     number(FIELD(GSystemSyslogCfg, enabled), no_command("whether the log is on cannot be set")),
///
/// A template is written as the command is, without quotes. In it
///
///     <member>      is the value of that member of the same record, in the notation of the member's own line
///     <#>           tells the element of the nearest array: its number, name or key, as the array's line says;
///                   <##> is its number whatever that line says, <#1> its number counted from 1. To the line of
///                   an array of numbers that array is the nearest; without any of these its element 0 is meant
///     <*>           are the words that the line of the enclosing record adds (`lead`, `led_by`)
///     [...]         may be left out, which leaves its members as they are; [word:member] switches the member on, or
///                   off when the word is not there
///     {member=1}    sets that member, and shows nothing
///     a | b         are two commands; one that does not show the line's own field sets it to 1
///
/// A change that a person should see before any other, as it may lock people out or cut subscribers off, is marked on
/// the line of its field, or of the record or array in which every change is one:
///
///     ipv4(FIELD(GSystemNetworkCfg, ipaddr), says("management ip <ipaddr>").risky(RiskKind::management)),
///     boolean(FIELD(GPonOntCfg, enabled), on_off("no shutdown", "shutdown").risky_when_off(RiskKind::shutdown)),
///     record(FIELD(GPonCfg, network), pon_network_record, risky(RiskKind::network)),
///
/// What people read of it is made of the command: "management ip changes from 192.0.2.1 to 192.0.2.2".
///
/// The commands are those of the view that the enclosing object is edited in (`Element::enter`), else of the
/// configure view.

#include "tool/describe/syntax.h"

#include <cstddef>
#include <cstdint>

namespace pondiff::tool {

constexpr Syntax syntax_of(Syntax::Kind kind, const char* set = nullptr, const char* off = nullptr,
                           const char* reason = nullptr)
{
    Syntax syntax;
    syntax.kind = kind;
    syntax.set = set;
    syntax.off = off;
    syntax.reason = reason;
    return syntax;
}

// ------------------------------------------------------------------------------------------------- a field's command

/// The command that shows the value; `off`, where there is one, sets the members that it shows, or else the field, to
/// 0: an empty list, where the field is one.
constexpr Syntax says(const char* set, const char* off = nullptr)
{
    return syntax_of(Syntax::Kind::says, set, off);
}

/// A switch: `set` sets it to 1, `off` to 0. Null where there is no such command.
constexpr Syntax on_off(const char* set, const char* off)
{
    return syntax_of(Syntax::Kind::says, set, off);
}

/// A set of switches in one number: <#> is the word of a bit, `words` begins with that of bit 0.
template <std::size_t N>
constexpr Syntax flags(const char* set, const char* off, const char* const (&words)[N])
{
    Syntax syntax = syntax_of(Syntax::Kind::flags, set, off);
    syntax.flags = words;
    syntax.flag_count = N;
    return syntax;
}

/// One command, whatever the value is.
constexpr Syntax whatever_the_value(const char* set)
{
    return syntax_of(Syntax::Kind::ambiguous, set);
}

/// A command with a reader of its own: <?> is any word, handed to the reader.
constexpr Syntax irregular(const char* set, const char* off, void (*read)(Taking&))
{
    Syntax syntax = syntax_of(Syntax::Kind::irregular, set, off);
    syntax.read = read;
    return syntax;
}

/// Set only together with `member` of the same record, by that member's command.
constexpr Syntax with(const char* member)
{
    return syntax_of(Syntax::Kind::with, nullptr, nullptr, member);
}

/// Tells its entry from the others; `set`, where there is one, names the entry and nothing else.
constexpr Syntax key(const char* set = nullptr)
{
    return syntax_of(Syntax::Kind::key, set);
}

/// What no command enters or names has a `no_command(...).telling_existence()` instead.
constexpr Syntax existence = syntax_of(Syntax::Kind::existence).telling_existence();
constexpr Syntax counter = syntax_of(Syntax::Kind::counter, nullptr, nullptr, "counts revisions");
constexpr Syntax status = syntax_of(Syntax::Kind::counter, nullptr, nullptr, "shows a status");

/// @param reason  why there is none, for messages
constexpr Syntax no_command(const char* reason)
{
    return syntax_of(Syntax::Kind::no_command, nullptr, nullptr, reason);
}

// ------------------------------------------------------------------------------------------- a record in a record

constexpr Element told_by(Element::Told told)
{
    Element element;
    element.told = told;
    return element;
}

constexpr Element by_number = told_by(Element::Told::by_number);
constexpr Element by_port_and_id = told_by(Element::Told::by_port_and_id);
constexpr Element by_name = told_by(Element::Told::by_name);
constexpr Element by_key = told_by(Element::Told::by_key);

constexpr Element by_word(Vocabulary words)
{
    Element element = told_by(Element::Told::by_word);
    element.vocabulary = words;
    return element;
}

/// The words that stand at <*> in the templates of the record, where its elements are told by their number.
constexpr Element lead(const char* words)
{
    return by_number.led_by(words);
}

/// A record, no array, in which every change is a risk.
constexpr Element risky(RiskKind kind)
{
    return by_number.risky(kind);
}

} // namespace pondiff::tool

#endif
