#ifndef TOOL_AREAS_H
#define TOOL_AREAS_H

#include "tool/describe/description.h"

#include <functional>
#include <string>
#include <string_view>
#include <vector>

namespace pondiff::tool {

/// A part of the configuration that can be compared by itself.
struct Area {
    Ranges records;                            ///< the records that it covers
    std::function<char*(GCfg&, GCfg&)> script; ///< the library's operation, for the records of the session
};

/// The whole configuration.
/// @param common  as for `initiate_diff`: at 1 the common records alone
Area whole_configuration(int common);

/// The area of a name such as "system", "ont:1/6" or "profile:vlan:3".
/// @throws UsageError  when there is no such area; its message lists those that there are
Area area_named(const std::string& name);

/// The names of the areas for a shell to complete, as `completed_by` takes them.
std::string area_candidates();

/// The names of the areas that need no index of an object, those of several settings first.
std::vector<std::string> names_of_areas();

/// The blocks of settings that `area_named` knows.
std::vector<std::string_view> names_of_blocks();

/// The names of the areas and what they cover, for a help page: an indented line each.
std::string list_of_areas();

} // namespace pondiff::tool

#endif
