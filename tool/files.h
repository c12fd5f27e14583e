#ifndef TOOL_FILES_H
#define TOOL_FILES_H

#include "gcfg/gcfg.h"
#include "tool/errors.h"

#include <memory>
#include <string>
#include <string_view>

namespace pondiff::tool {

/// The file name that stands for standard input where a file is read and for standard output where one is written.
inline constexpr char standard_stream[] = "-";

/// What messages call a file that is read.
std::string name_of_input(const std::string& file);

/// The configuration that a file holds, as a record or as a JSON document.
///
/// The content decides, never the name. What begins with '{', blanks aside, is a document; what has the record's exact
/// size is a record. What meets both is a record when it holds a zero byte: no JSON text holds one, and no
/// configuration is without.
/// @throws FileError  when the file cannot be read
/// @throws InputError when its content is neither, or a document with a mistake in it
std::unique_ptr<GCfg> read_configuration(const std::string& file);

/// Makes `content` the whole content of a file, or fails and leaves the file as it was.
///
/// The content goes to a temporary file beside it, which then takes its place: nobody sees a half-written file. An
/// existing file keeps its mode; a symbolic link stays and what it points to is replaced. Standard output, devices and
/// pipes are written to as they are.
/// @throws FileError
void write_file(const std::string& file, std::string_view content);

} // namespace pondiff::tool

#endif
