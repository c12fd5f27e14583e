#ifndef TOOL_ACCOUNT_MEANING_H
#define TOOL_ACCOUNT_MEANING_H

/// @file
/// Configurations side by side, by what they mean: objects are matched by their number or name, entries of lists by
/// their key, in whatever slot they stand; a reference is the name of what it refers to. What free slots hold means
/// nothing, nor do revision counters and status fields.

#include "tool/describe/description.h"

#include <array>
#include <cstddef>
#include <cstdint>
#include <functional>
#include <string>
#include <string_view>
#include <vector>

namespace pondiff::tool {

/// What a reference means: the name of what it refers to, or none. A VLAN id or a priority means itself.
struct ReferenceMeant {
    enum class Kind : std::uint8_t { none, name, number } kind;
    std::string_view name;
    std::int64_t number = 0;

    bool operator==(const ReferenceMeant& other) const
    {
        return kind == other.kind && name == other.name && number == other.number;
    }
};

/// @param field  of Form::reference
ReferenceMeant reference_meant(const Field& field, const unsigned char* at, const GCfg& configuration);

/// A field of several configurations.
template <std::size_t N>
struct Beside {
    const Field& field;
    /// Where it stands in each; in a blank record where the object that it belongs to is not there.
    std::array<const unsigned char*, N> at;
    std::array<bool, N> there;                   ///< whether the object that it belongs to is there
    std::array<const unsigned char*, N> element; ///< that object or entry in each; the configuration where it is none
    const Path& path;                            ///< in the last configuration that has the object
    const std::vector<std::size_t>& counted_in;  ///< the configuration that each index of the path is of
    std::size_t object; ///< how many steps of the path lead to the object or entry that it belongs to
};

/// Calls `visit` for each field that does not mean the same in all of the configurations. An object that some have and
/// others have not is visited at its flag of existence, or at its key, and at each field that is not blank.
void for_each_different_meaning(const std::array<const GCfg*, 2>& configurations,
                                const std::function<void(const Beside<2>&)>& visit);
void for_each_different_meaning(const std::array<const GCfg*, 3>& configurations,
                                const std::function<void(const Beside<3>&)>& visit);

/// Whether a field means the same in two of the configurations, told by their numbers.
bool same_in(const Beside<3>& beside, const std::array<const GCfg*, 3>& configurations, std::size_t a, std::size_t b);

/// Whether two configurations mean the same.
bool mean_the_same(const GCfg& a, const GCfg& b);

/// Whether a field means the same in two configurations, at its place in each.
bool means_the_same(const Field& field, const unsigned char* a, const GCfg& in_a, const unsigned char* b,
                    const GCfg& in_b);

} // namespace pondiff::tool

#endif
