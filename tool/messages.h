#ifndef TOOL_MESSAGES_H
#define TOOL_MESSAGES_H

#include <cstdio>
#include <string>

namespace pondiff::tool {

/// Tells the user something on standard error. When that cannot be written to, there is nobody to tell.
inline void tell(const std::string& message)
{
    std::fputs(("pondiff: " + message + "\n").c_str(), stderr);
}

} // namespace pondiff::tool

#endif
