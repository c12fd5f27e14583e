#include "tool/script.h"

#include "tool/profiles.h"

#include <algorithm>
#include <cstring>
#include <fmt/format.h>
#include <optional>
#include <string>
#include <vector>

namespace pondiff::tool {

namespace {

/// Lines of the configure view.
struct KnownLines {
    std::vector<std::string> into_views; ///< that lead into the view of an object that exists already
    std::vector<std::string> of_names;   ///< that declare a name which is known already
};

std::string_view text_of(const char* field, std::size_t size)
{
    return {field, strnlen(field, size)};
}

KnownLines known_lines(const GCfg& orig)
{
    KnownLines lines;
    lines.into_views.reserve(GCFG_GPON_PORTS + GCFG_ONTS);
    for (int port = 0; port < GCFG_GPON_PORTS; ++port)
        lines.into_views.push_back(fmt::format("interface gpon-port {:4}\n", port));
    for (int i = 0; i < GCFG_ONTS; ++i)
        if (orig.pon.ont[i].exist != 0)
            lines.into_views.push_back(
                fmt::format("interface ont {}/{}\n", i / GCFG_ONTS_PER_PORT, i % GCFG_ONTS_PER_PORT));
    for (const ProfileKind& kind : profile_kinds)
        for (int slot = 0; slot < kind.slots; ++slot)
            if (kind.exists(orig, slot))
                lines.into_views.push_back(fmt::format("{} \"{}\"\n", kind.command, kind.name_in(orig, slot)));
    for (const GVlanTagEx& vlan : orig.pon.network.terminal_vlan) {
        const std::string_view name = text_of(vlan.name, sizeof vlan.name);
        // Behind a name with a quote in it the line could go on as another command.
        if (vlan.exists != 0 && !name.empty() && name.find('"') == name.npos)
            lines.of_names.push_back(fmt::format("gpon network terminal-vlan \"{}\"\n", name));
    }
    return lines;
}

/// Takes the line off the script's beginning. A name may hold line feeds, so the script is not split at them.
bool take(std::string_view& script, std::string_view line)
{
    if (script.substr(0, line.size()) != line)
        return false;
    script.remove_prefix(line.size());
    return true;
}

bool take_any(std::string_view& script, const std::vector<std::string>& lines)
{
    return std::any_of(lines.begin(), lines.end(), [&script](const std::string& line) { return take(script, line); });
}

} // namespace

bool changes_nothing(std::string_view script, const GCfg& orig)
{
    enum class View { root, configure, object };
    View view = View::root;
    std::optional<KnownLines> known;
    while (!script.empty()) {
        if (view != View::root && take(script, "exit\n")) {
            view = view == View::object ? View::configure : View::root;
        } else if (view == View::root && take(script, "configure terminal\n")) {
            view = View::configure;
        } else if (view == View::configure) {
            if (!known)
                known = known_lines(orig);
            if (take_any(script, known->into_views))
                view = View::object;
            else if (!take_any(script, known->of_names))
                return false;
        } else if (view == View::object || !take(script, "commit\n")) {
            return false;
        }
    }
    return true;
}

} // namespace pondiff::tool
