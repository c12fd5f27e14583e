#ifndef TOOL_LANGUAGE_UNSAID_H
#define TOOL_LANGUAGE_UNSAID_H

#include "gcfg/gcfg.h"

#include <cstddef>

namespace pondiff::tool {

/// Fills in what no command says, in the objects that the configuration has: each such field is taken from the object
/// of `base` that has the same number or name.
/// @param base  null where there is none: nothing is filled in
/// @return how many fields of these objects are left without a value
std::size_t fill_in_unsaid(GCfg& configuration, const GCfg* base);

} // namespace pondiff::tool

#endif
