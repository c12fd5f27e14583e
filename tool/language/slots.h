#ifndef TOOL_LANGUAGE_SLOTS_H
#define TOOL_LANGUAGE_SLOTS_H

#include "gcfg/gcfg.h"

namespace pondiff::tool {

/// Moves what a configuration tells by name or key to the slots that it has in another one; what the other one does not
/// have goes where both are free, as long as there is such a slot. References follow, so that the configuration means
/// what it meant. A diff, which compares slot by slot, then finds the same objects beside each other.
void take_slots_of(const GCfg& other, GCfg& configuration);

} // namespace pondiff::tool

#endif
