#ifndef TOOL_SCRIPT_H
#define TOOL_SCRIPT_H

#include "tool/areas.h"

#include <string>

namespace pondiff::tool {

/// What the library is asked to write.
struct ScriptRequest {
    Area area;
    bool all = false; ///< as for `initiate_diff`: what is equal, too
    int common = 0;   ///< the same
};

/// The script that turns a device from one configuration to the other, as the library writes it.
/// @throws std::bad_alloc when there is not enough memory
std::string script_of(const ScriptRequest& request, GCfg& running, GCfg& wanted);

} // namespace pondiff::tool

#endif
