#ifndef TOOL_SCRIPT_H
#define TOOL_SCRIPT_H

#include "gcfg/gcfg.h"

#include <string_view>

namespace pondiff::tool {

/// Whether a script would leave a device that runs `orig` as it is: an empty one, or one that holds nothing but moves
/// from view to view, declarations of terminal VLANs by names that `orig` holds, and "commit".
///
/// Entering the view of an ONT or a profile that `orig` does not hold creates it, so that is no mere move. Inside a
/// view, a line such as `profile vlan "x"` is a command of that view.
/// @param script  begins at the top level of the CLI; it may end anywhere
bool changes_nothing(std::string_view script, const GCfg& orig);

} // namespace pondiff::tool

#endif
