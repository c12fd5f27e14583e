#ifndef TOOL_MESSAGES_H
#define TOOL_MESSAGES_H

/// @file
/// What the program prints on standard error. When that cannot be written to, nobody is left to report it to. Whatever
/// a message quotes, it is one line, and nothing in it changes the state of a terminal.

#include <string_view>

namespace pondiff::tool {

/// Reports what stopped the program.
/// @param hint  what to do next, on a line of its own
void report_error(std::string_view message, std::string_view hint = {});

/// Reports something that did not stop the program.
void report_warning(std::string_view message);

/// Reports that there is no memory left, without asking for any, and ends the program.
[[noreturn]] void end_out_of_memory();

} // namespace pondiff::tool

#endif
