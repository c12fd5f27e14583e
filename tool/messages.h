#ifndef TOOL_MESSAGES_H
#define TOOL_MESSAGES_H

/// @file
/// What the program prints on standard error. When that cannot be written to, nobody is left to report it to.

#include <string_view>

namespace pondiff::tool {

/// Reports what stopped the program.
/// @param hint  what to do next, on a line of its own
void report_error(std::string_view message, std::string_view hint = {});

/// Reports something that did not stop the program.
void report_warning(std::string_view message);

} // namespace pondiff::tool

#endif
