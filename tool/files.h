#ifndef TOOL_FILES_H
#define TOOL_FILES_H

#include "tool/errors.h"

#include <string>
#include <string_view>

namespace pondiff::tool {

/// The file name that stands for standard input where a file is read and for standard output where one is written.
inline constexpr char standard_stream[] = "-";

/// What messages call a file that is read.
std::string name_of_input(const std::string& file);

/// All that a file holds.
/// @throws FileError  when it cannot be read, or changes while it is read
std::string read_file(const std::string& file);

/// Makes `content` the whole content of a file, or fails and leaves the file as it was.
///
/// The content goes to a new file, which then takes the place of the old one: nobody sees a half-written file. It has
/// the owner, the group, the mode and the ACL of the old one; where it cannot, nothing is written. Where there was no
/// file, its owner alone may read and write it. A symbolic link stays and what it points to is replaced.
///
/// What is no regular file, and what stands behind a descriptor such as /dev/stdout, is written to as it is.
/// @throws FileError  also when the file is one that `read_file` has read
void write_file(const std::string& file, std::string_view content);

} // namespace pondiff::tool

#endif
