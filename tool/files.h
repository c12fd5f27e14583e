#ifndef TOOL_FILES_H
#define TOOL_FILES_H

#include "tool/errors.h"

#include <string>
#include <string_view>

namespace pondiff::tool {

/// The file name that stands for standard input when reading and for standard output when writing.
inline constexpr char standard_stream[] = "-";

/// The name of an input file in messages.
std::string name_of_input(const std::string& file);

/// The whole content of a file.
/// @throws FileError  when it cannot be read, or changes while it is read
std::string read_file(const std::string& file);

/// Makes `content` the whole content of a file, or fails and leaves the file as it was.
///
/// The content is written to a new file, which then replaces the old one: nobody sees a half-written file. It gets the
/// owner, the group, the mode and the ACL of the old one; if that fails, nothing is written. If there was no file, only
/// its owner may read and write it. A symbolic link is kept and the file it points to is replaced.
///
/// Anything but a regular file, and the target of a descriptor such as /dev/stdout, is written to in place.
/// @throws FileError  also when the file is one that `read_file` has read
void write_file(const std::string& file, std::string_view content);

} // namespace pondiff::tool

#endif
