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
/// @throws FileError
std::string read_file(const std::string& file);

/// Makes `content` the whole content of a file, or fails and leaves the file as it was.
///
/// The content goes to a temporary file beside it, which then takes its place: nobody sees a half-written file. An
/// existing file keeps its mode; a symbolic link stays and what it points to is replaced. Standard output, devices and
/// pipes are written to as they are.
/// @throws FileError
void write_file(const std::string& file, std::string_view content);

} // namespace pondiff::tool

#endif
