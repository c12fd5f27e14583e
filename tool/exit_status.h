#ifndef TOOL_EXIT_STATUS_H
#define TOOL_EXIT_STATUS_H

namespace pondiff::tool {

/// Exit statuses of the program, as users of diff(1) expect them.
enum class ExitStatus {
    success = 0,        ///< of a diff: there is nothing to do
    script_written = 1, ///< of a diff: the configurations differ
    found = 1,          ///< of a check: there are findings
    refused = 1,        ///< of an application: lines were refused
    error = 2,          ///< what was asked could not be done
};

} // namespace pondiff::tool

#endif
