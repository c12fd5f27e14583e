#include "tool/script.h"

#include <algorithm>
#include <cstring>
#include <fmt/format.h>
#include <string>
#include <vector>

namespace pondiff::tool {

namespace {

template <class Profile, std::size_t Slots>
void add_profile_views(std::vector<std::string>& lines, std::string_view command, const Profile (&profiles)[Slots])
{
    for (const Profile& profile : profiles) {
        if (profile.exist == 0)
            continue;
        const std::string_view name{profile.name, strnlen(profile.name, sizeof profile.name)};
        lines.push_back(fmt::format("{} \"{}\"\n", command, name));
    }
}

/// The lines that lead from the configure view into the view of an object that exists already.
std::vector<std::string> lines_into_views(const GCfg& orig)
{
    std::vector<std::string> lines;
    lines.reserve(GCFG_GPON_PORTS + GCFG_ONTS);
    for (int port = 0; port < GCFG_GPON_PORTS; ++port)
        lines.push_back(fmt::format("interface gpon-port {:4}\n", port));
    for (int i = 0; i < GCFG_ONTS; ++i)
        if (orig.pon.ont[i].exist != 0)
            lines.push_back(fmt::format("interface ont {}/{}\n", i / GCFG_ONTS_PER_PORT, i % GCFG_ONTS_PER_PORT));
    const GPonProfilesOlt& olt = orig.pon.profiles_olt;
    add_profile_views(lines, "profile vlan", olt.vlan);
    add_profile_views(lines, "profile address-table", olt.address_table);
    add_profile_views(lines, "profile pppoe-ia", olt.pppoe_ia);
    add_profile_views(lines, "profile dhcp-ra", olt.dhcp_ra);
    add_profile_views(lines, "profile dhcpv6-ra", olt.dhcpv6_ra);
    const GPonProfilesOnt& ont = orig.pon.profiles_ont;
    add_profile_views(lines, "profile shaping", ont.shaping);
    add_profile_views(lines, "profile cross-connect", ont.cross_connect);
    add_profile_views(lines, "profile dba", ont.alloc);
    add_profile_views(lines, "profile ports", ont.ports);
    add_profile_views(lines, "profile management", ont.management);
    add_profile_views(lines, "template", ont.template_ont);
    add_profile_views(lines, "profile voice", ont.voice);
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

} // namespace

bool changes_nothing(std::string_view script, const GCfg& orig)
{
    enum class View { root, configure, object };
    View view = View::root;
    std::vector<std::string> into_views;
    while (!script.empty()) {
        if (view != View::root && take(script, "exit\n")) {
            view = view == View::object ? View::configure : View::root;
        } else if (view == View::root && take(script, "configure terminal\n")) {
            view = View::configure;
        } else if (view == View::configure) {
            if (into_views.empty())
                into_views = lines_into_views(orig);
            if (std::none_of(into_views.begin(), into_views.end(),
                             [&script](const std::string& line) { return take(script, line); }))
                return false;
            view = View::object;
        } else if (view == View::object || !take(script, "commit\n")) {
            return false;
        }
    }
    return true;
}

} // namespace pondiff::tool
