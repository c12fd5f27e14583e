#ifndef TOOL_MESSAGES_H
#define TOOL_MESSAGES_H

/// @file
/// What the program prints on standard error. Errors of writing there are ignored. Whatever a message quotes, it is one
/// line without control characters.

#include <string_view>

namespace pondiff::tool {

/// Reports an error that ends the program.
/// @param hint  what to do next, on a line of its own
void report_error(std::string_view message, std::string_view hint = {});

/// Reports something that does not end the program.
void report_warning(std::string_view message);

/// Reports that there is no memory left, without allocating any, and ends the program.
[[noreturn]] void end_out_of_memory();

} // namespace pondiff::tool

#endif
