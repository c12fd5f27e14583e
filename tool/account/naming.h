#ifndef TOOL_ACCOUNT_NAMING_H
#define TOOL_ACCOUNT_NAMING_H

#include "tool/describe/description.h"

#include <cstddef>
#include <string>

namespace pondiff::tool {

/// The field, and the element of it, at an offset of the configuration.
Path path_at(std::size_t offset);

/// How many steps of a path lead to the object of `object_path`.
std::size_t object_length(const Path& field);

/// The object that the field at the end of a path belongs to: what has a view of its own, or is removed by its name;
/// else the part of the configuration: "system.services.ssh".
Path object_path(const Path& field);

/// How the CLI calls an object: `interface ont 1/6`, `profile shaping "gold"`; where it has no name, its path.
std::string object_name(const Path& object, const unsigned char* configuration);

/// How the CLI calls a setting in its view: its command without the value, as in `management ip`, `port 3 shutdown` and
/// `user "admin" privilege`. Empty where it has no command.
std::string setting_name(const Path& field, const unsigned char* configuration);

/// What a person knows an object by besides: its serial number or its description; empty where it has none.
std::string object_detail(const Path& object, const unsigned char* configuration);

} // namespace pondiff::tool

#endif
