#include "tool/descriptor.h"

#include <cerrno>

namespace pondiff::tool {

bool write_all(int descriptor, std::string_view content)
{
    while (!content.empty()) {
        const ssize_t count = write(descriptor, content.data(), content.size());
        if (count < 0 && errno == EINTR) {
            continue;
        }
        if (count < 0) {
            return false;
        }
        content.remove_prefix(static_cast<std::size_t>(count));
    }
    return true;
}

} // namespace pondiff::tool
