#ifndef TOOL_DESTINATION_H
#define TOOL_DESTINATION_H

#include <filesystem>
#include <optional>

namespace pondiff::tool {

/// The file that a file name leads to.
struct Destination {
    std::filesystem::path file;    ///< whether it exists or not; no symbolic link
    bool of_a_process = false;     ///< an open file of a process, such as /dev/stdout or /proc/17/fd/3
    std::optional<int> descriptor; ///< its number if it is open in this process
};

/// Follows the symbolic links of a name. A link that leads to itself is returned as it is.
Destination destination_of(std::filesystem::path file);

} // namespace pondiff::tool

#endif
