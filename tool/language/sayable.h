#ifndef TOOL_LANGUAGE_SAYABLE_H
#define TOOL_LANGUAGE_SAYABLE_H

/// @file
/// What commands there are, by the descriptions: which fields have one, and for which values.

#include "tool/describe/description.h"

#include <cstdint>

namespace pondiff::tool {

/// Whether a field is an array whose first element alone has a command.
bool has_command_for_first(const Field& field);

/// Why no command ever sets the leaf that a path leads to; null where there is one. A key and a flag of existence have
/// one: what names or enters their element.
const char* why_no_command(const Path& path);

inline bool has_command(const Path& path)
{
    return why_no_command(path) == nullptr;
}

/// Whether the command of a field that has one sets it to this number: there is a form for it, a word for it and for
/// no other, or a word for each bit.
bool can_be_said(const Field& field, std::int64_t number);

} // namespace pondiff::tool

#endif
