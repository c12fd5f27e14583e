#ifndef TOOL_PROFILES_H
#define TOOL_PROFILES_H

#include "tool/describe/description.h"

#include <string_view>

namespace pondiff::tool {

/// A kind of profile, templates among them: an array of the configuration whose elements the CLI knows by their names.
struct ProfileKind {
    const char* name;   ///< what the CLI calls the kind
    const char* called; ///< what messages call one of them
    std::size_t offset; ///< of the first in the configuration
    std::size_t size;   ///< of one
    int slots;
    Reference reference; ///< of the fields that refer to one

    bool exists(const GCfg& configuration, int slot) const;
    std::string_view name_in(const GCfg& configuration, int slot) const;
};

extern const ProfileKind profile_kinds[12];

} // namespace pondiff::tool

#endif
