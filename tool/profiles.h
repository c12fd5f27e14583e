#ifndef TOOL_PROFILES_H
#define TOOL_PROFILES_H

#include "pon/profile_kinds.h"
#include "tool/describe/description.h"

#include <string_view>

namespace pondiff::tool {

/// A kind of profile, or the templates: an array of the configuration whose elements the CLI identifies by name.
struct ProfileKind {
    const char* name;    ///< the name of the kind in the CLI
    const char* command; ///< the command that enters one, up to its name
    const char* called;  ///< what messages call one
    std::size_t offset;  ///< of the first one in the configuration
    std::size_t size;    ///< of each
    int slots;
    Reference reference; ///< of the fields that refer to one

    bool exists(const GCfg& configuration, int slot) const;
    std::string_view name_in(const GCfg& configuration, int slot) const;
};

extern const ProfileKind profile_kinds[profile_kind_count];

/// The kind of profile that a reference refers to; null for a reference to a terminal VLAN.
const ProfileKind* kind_of(Reference reference);

} // namespace pondiff::tool

#endif
