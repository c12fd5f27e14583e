#ifndef TOOL_PROFILES_H
#define TOOL_PROFILES_H

#include "pon/profile_kinds.h"
#include "tool/describe/description.h"

#include <string_view>

namespace pondiff::tool {

/// A kind of profile, templates among them: an array of the configuration whose elements the CLI knows by their names.
struct ProfileKind {
    const char* name;    ///< what the CLI calls the kind
    const char* command; ///< enters one; its name follows
    const char* called;  ///< what messages call one of them
    std::size_t offset;  ///< of the first in the configuration
    std::size_t size;    ///< of one
    int slots;
    Reference reference; ///< of the fields that refer to one

    bool exists(const GCfg& configuration, int slot) const;
    std::string_view name_in(const GCfg& configuration, int slot) const;
};

extern const ProfileKind profile_kinds[profile_kind_count];

/// What a reference leads to; null for one to a terminal VLAN.
const ProfileKind* kind_of(Reference reference);

} // namespace pondiff::tool

#endif
