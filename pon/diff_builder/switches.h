#ifndef PON_DIFF_BUILDER_SWITCHES_H
#define PON_DIFF_BUILDER_SWITCHES_H

#include <cstdint>

namespace pondiff {

/// When a field is emitted although it has not changed.
enum Rule : std::uint8_t {
    changed_or_all,            ///< whenever `print_all` is set
    changed_or_common,         ///< `print_all`, and `print_common` is 1 or 2
    changed_or_profile_common, ///< `print_all`, and `print_common` is 2
    changed_only,              ///< never
};

/// Whether the switches `print_all` and `print_common` force commands under the rule.
bool forced(Rule rule);

} // namespace pondiff

#endif
