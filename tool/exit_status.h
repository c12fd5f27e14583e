#ifndef TOOL_EXIT_STATUS_H
#define TOOL_EXIT_STATUS_H

namespace pondiff::tool {

/// Exit statuses of the program, as users of diff(1) expect them.
enum class ExitStatus {
    success = 0,        ///< diff, plan: there is nothing to do
    script_written = 1, ///< diff, plan: there is a script
    found = 1,          ///< check, verify: there are findings
    refused = 1,        ///< apply: lines were refused
    error = 2,          ///< the command failed
};

} // namespace pondiff::tool

#endif
