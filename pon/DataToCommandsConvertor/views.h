#ifndef PON_DATATOCOMMANDSCONVERTOR_VIEWS_H
#define PON_DATATOCOMMANDSCONVERTOR_VIEWS_H

#include "pon/DataToCommandsConvertor.h"
#include "pon/DataToCommandsConvertor/key.h"
#include "pon/DataToCommandsConvertor/text.h"
#include "pon/profile_kinds.h"

#include <cstddef>
#include <cstdint>

namespace pondiff {

/// The views of the CLI: the top level, the configuration mode, and below it the views that edit one object each. Each
/// kind of profile has one.
enum class View : std::uint8_t {
    root,
    configure,
    gpon_port,
    ont,
    container,
#define PROFILE_VIEW(part, array, ...) array,
    PON_PROFILE_KINDS(PROFILE_VIEW)
#undef PROFILE_VIEW
};
constexpr std::size_t view_count = static_cast<std::size_t>(View::container) + 1 + profile_kind_count;

struct ViewData {
    const char* name;  ///< as in `current_view` and `goto_view_buf`
    const char* enter; ///< the command that enters it from the configuration mode; the object's identifier follows
    char* const* names = nullptr; ///< of the objects, where the CLI knows them by name
    char* const* old_names = nullptr;
    int slots = 0;
};

/// In the order of `View`.
extern const ViewData views[view_count];

inline const ViewData& data_of(View view)
{
    return views[static_cast<std::size_t>(view)];
}

/// The top level and the configuration mode ignore the key.
constexpr bool edits_object(View view)
{
    return view > View::configure;
}

/// True when `key` names the current object, given that the current view is `view`.
inline bool same_object(View view, const int* key)
{
    return !edits_object(view) || current_view.key[of_object] == key[of_object];
}

/// True when the script is already in `view` at the object `key`.
inline bool stands_at(View view, const int* key)
{
    return current_view.name == data_of(view).name && same_object(view, key);
}

/// Writes the commands that lead from `current_view` to `view` and the object `key`, and moves `current_view` there.
void goto_view(View view, const int* key, Text& out);

} // namespace pondiff

#endif
