#include "pon/DataToCommandsConvertor/views.h"

#include "pon/DataToCommandsConvertor/name_tables.h"

#include <cstdio>
#include <cstring>
#include <optional>

view_state current_view;

namespace pondiff {

constexpr ViewData views[view_count] = { // in the order of `View`
    {"root", nullptr},
    {"configure-view", nullptr},
    {"if-gpon-view", "interface gpon-port "},
    {"if-ont-view", "interface ont "},
    {"container-view", "profile container "},
#define PROFILE_VIEW(part, array, record, tables, lookup, prefix, name, called)                                        \
    {name "-view", prefix name " ", tables##2id_connection, def_##tables##2id_connection,                              \
     PON_PROFILE_SLOTS(part, array)},
    PON_PROFILE_KINDS(PROFILE_VIEW)
#undef PROFILE_VIEW
};

namespace {

static_assert(views[view_count - 1].name, "a row for each view");

std::optional<View> view_named(const char* name)
{
    for (std::size_t i = 0; i < view_count; ++i) {
        if (views[i].name == name || std::strcmp(views[i].name, name) == 0) {
            return static_cast<View>(i);
        }
    }
    return std::nullopt;
}

/// Two names are alike when they agree over the length of the shorter one.
bool alike(const char* a, const char* b)
{
    while (*a != '\0' && *a == *b) {
        ++a;
        ++b;
    }
    return *a == '\0' || *b == '\0';
}

std::optional<View> view_alike(const char* name)
{
    for (std::size_t i = 0; i < view_count; ++i) {
        if (alike(views[i].name, name)) {
            return static_cast<View>(i);
        }
    }
    return std::nullopt;
}

const char* current_name()
{
    return current_view.name ? current_view.name : data_of(View::root).name;
}

/// The current view, as seen on the way to `wanted`.
std::optional<View> view_before(std::optional<View> wanted)
{
    const char* const name = current_name();
    // The device's transition table misspells this view. From it, these two views are reached as from the one meant.
    if ((wanted == View::ports || wanted == View::voice) && std::strcmp(name, "managemant-view") == 0) {
        return View::management;
    }
    return view_named(name);
}

/// An object that the old configuration has is entered by its old name, which the device still knows it by.
void append_identifier(View view, int id, Text& out)
{
    const ViewData& data = data_of(view);
    if (data.names) {
        const char* const old_name = name_in(data.old_names, data.slots, id);
        const char* const name = old_name ? old_name : name_in(data.names, data.slots, id);
        out.append('"');
        out.append(name ? name : "");
        out.append('"');
    } else if (view == View::ont) {
        out.append_decimal(id / GCFG_ONTS_PER_PORT);
        out.append('/');
        out.append_decimal(id % GCFG_ONTS_PER_PORT);
    } else {
        out.append_aligned(id);
    }
}

/// Every path leads up to the configuration mode, or to the top level when that is the target, and down from there.
void append_path(View from, View to, const int* key, Text& out)
{
    const char* separator = "";
    const auto line = [&](const char* command) {
        out.append(separator);
        out.append(command);
        separator = "\n";
    };
    if (edits_object(from)) {
        line("exit");
    }
    if (to == View::root && from != View::root) {
        line("exit");
    }
    if (from == View::root && to != View::root) {
        line("configure terminal");
    }
    if (edits_object(to)) {
        line(data_of(to).enter);
        append_identifier(to, key[of_object], out);
    }
}

void move_to(View view, const int* key)
{
    current_view.name = data_of(view).name;
    std::memmove(current_view.key, key, sizeof current_view.key); // the key may be the view's own
}

/// `wanted` is empty for a name that is only a prefix of a view's, or the other way round; the current view is empty
/// when its name is no view's. Without either there is no direct path, and the script goes through the top level.
void leave_for(std::optional<View> wanted, const int* key, Text& out)
{
    const std::optional<View> current = view_before(wanted);
    if (current && wanted) {
        append_path(*current, *wanted, key, out);
        move_to(*wanted, key);
        return;
    }
    if (current && *current != View::root) {
        append_path(*current, View::root, key, out);
        current_view.name = data_of(View::root).name;
    }
    out.append('\n');
    if (wanted && *wanted != View::root) {
        append_path(View::root, *wanted, key, out);
        move_to(*wanted, key);
    }
}

} // namespace

void goto_view(View view, const int* key, Text& out)
{
    if (!alike(current_name(), data_of(view).name) || !same_object(view, key)) {
        leave_for(view, key, out);
    }
}

} // namespace pondiff

int goto_view_buf(const char* view, int* key, char* out)
{
    using namespace pondiff;
    constexpr std::size_t capacity = 1024;
    if (!view || !key || !out) {
        return -1;
    }
    const std::optional<View> known = view_alike(view);
    if (!known) {
        std::printf("\n\n\n\nVIEW %s NOT FOUND!!!!!!!!!!!!!!\n\n\n", view);
        return -1;
    }
    if (alike(current_name(), view) && same_object(*known, key)) {
        return 0;
    }
    const view_state before = current_view;
    Text text;
    leave_for(view_named(view), key, text);
    if (text.failed() || text.size() >= capacity) {
        current_view = before;
        return -1;
    }
    std::memcpy(out, text.c_str(), text.size() + 1);
    return 0;
}
