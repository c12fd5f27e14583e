#ifndef PON_DATATOCOMMANDSCONVERTOR_VIEWS_H
#define PON_DATATOCOMMANDSCONVERTOR_VIEWS_H

#include "pon/DataToCommandsConvertor.h"
#include "pon/DataToCommandsConvertor/text.h"

#include <cstddef>

namespace pondiff {

/// One entry of the view registry.
struct view_data {
    const char* name;
    const char* command; ///< enters the view; "$ID0" stands where the object's identifier goes
    int id_count;        ///< how many key slots identify an object of this view
};

/// One row of the view-to-view table. Its two texts are put together from the registry's commands: first `lead`, then
/// the command that enters a view (none when the way leads to the top level).
struct view2view {
    struct Way {
        const char* lead;
        const char* enter;
    };
    const char* from;
    const char* to;
    Way commandto;   ///< moves from `from` to `to`
    Way commandfrom; ///< moves back
};

std::size_t view_count();
const view_data& view(std::size_t index);

std::size_t view2view_count();
view2view view2view_row(std::size_t index);

/// The registry's entry of a view; null when there is none.
const view_data* registered_view(const char* name);

/// True when `key` names the object that the script stands at, were its view `view`.
inline bool same_object(const view_data& view, const int* key)
{
    for (int i = 0; i < view.id_count; ++i)
        if (current_view.key[i] != key[i])
            return false;
    return true;
}

/// True when the script already stands in a view of the registry at the object `key`.
inline bool stands_in(const view_data& view, const int* key)
{
    return current_view.name == view.name && same_object(view, key);
}

/// `goto_view_buf` into a text of any length.
int goto_view(const char* view, const int* key, Text& out);

} // namespace pondiff

#endif
