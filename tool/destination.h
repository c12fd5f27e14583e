#ifndef TOOL_DESTINATION_H
#define TOOL_DESTINATION_H

#include <filesystem>
#include <optional>

namespace pondiff::tool {

/// Where the name of a file leads.
struct Destination {
    std::filesystem::path file;    ///< whether it exists or not; no symbolic link
    bool of_a_process = false;     ///< It is what a process has open, such as /dev/stdout or /proc/17/fd/3.
    std::optional<int> descriptor; ///< the number when this process has it open
};

/// Follows the symbolic links of a name. One that leads in a circle stays what it is.
Destination destination_of(std::filesystem::path file);

} // namespace pondiff::tool

#endif
