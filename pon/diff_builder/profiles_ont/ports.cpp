#include "pon/diff_builder/profile.h"

using namespace pondiff;

namespace {

bool emit_uni_shaping(const char* direction, const GPonUniShaping* lhs, const GPonUniShaping* rhs, int* key,
                      List<char>& out)
{
    static constexpr Row<GPonUniShaping> commands[] = {
        on_off(FIELD(GPonUniShaping, enable), "port $ID1 shaper %s", "no port $ID1 shaper %s"),
        number(FIELD(GPonUniShaping, commited_rate), "port $ID1 shaper %s commited-rate \"%s\""),
        number(FIELD(GPonUniShaping, peak_rate), "port $ID1 shaper %s peak-rate \"%s\""),
    };
    if (nothing_to_emit(lhs, rhs)) {
        return false;
    }
    const Value lead = direction;
    emit_changed(commands, changed_or_all, lhs, rhs, {View::ports, key, out, &lead});
    return false;
}

} // namespace

bool getdiff_GPonProfileOntPorts(GPonProfileOntPorts* lhs, GPonProfileOntPorts* rhs, int* key, List<char>& out)
{
    static constexpr Row<GPonProfileOntPorts> ip_version = enumeration(
        FIELD(GPonProfileOntPorts, multicast_ip_version), "GOntMulticastIpVersion_enum", "multicast ip version %s");
    if (no_profile(lhs, rhs)) {
        return false;
    }
    const Where where{View::ports, key, out};
    emit_profile_head(lhs, rhs, where);
    emit_changed(ip_version, changed_or_all, lhs, rhs, where);
    descend(changed_or_all, getdiff_GPonIgmpSettings, lhs->igmp_settings, rhs->igmp_settings, key, out);
    descend(changed_or_all, getdiff_GPonMldSettings, lhs->mld_settings, rhs->mld_settings, key, out);
    descend(changed_or_all, getdiff_GPonVeipPort, lhs->veip, rhs->veip, key, out);
    descend_each(changed_or_all, getdiff_GPonUniPort, lhs->port, rhs->port, of_element, key, out);
    return false;
}

/// Power over Ethernet has no commands here.
bool getdiff_GPonUniPort(GPonUniPort* lhs, GPonUniPort* rhs, int* key, List<char>& out)
{
    static constexpr Row<GPonUniPort> commands[] = {
        enumeration(FIELD(GPonUniPort, speed), "GOntPortUniSpeed_enum", "port $ID1 speed \"%s\""),
        enumeration(FIELD(GPonUniPort, duplex), "GOntPortUniDuplex_enum", "port $ID1 duplex \"%s\""),
        number(FIELD(GPonUniPort, bridge_group), "port $ID1 bridge group \"%s\""),
        on_off(FIELD(GPonUniPort, spanning_tree_for_bridge_group), "port $ID1 bridge group spanning-tree",
               "no port $ID1 bridge group spanning-tree"),
        on_off(FIELD(GPonUniPort, remove_tag), "port $ID1 remove-tag", "no port $ID1 remove-tag"),
        on_off(FIELD(GPonUniPort, multicast_enable), "port $ID1 multicast", "no port $ID1 multicast"),
    };
    if (nothing_to_emit(lhs, rhs)) {
        return false;
    }
    emit_changed(commands, changed_or_all, lhs, rhs, {View::ports, key, out});
    getdiff_GPonMulticastClientPortSettings("port[$ID1]", &lhs->multicast_port_settings, &rhs->multicast_port_settings,
                                            key, out);
    descend(changed_or_all, getdiff_GPonUniShapingDownstream, lhs->shaper_downstream, rhs->shaper_downstream, key, out);
    descend(changed_or_all, getdiff_GPonUniShapingUpstream, lhs->shaper_upstream, rhs->shaper_upstream, key, out);
    return false;
}

bool getdiff_GPonVeipPort(GPonVeipPort* lhs, GPonVeipPort* rhs, int* key, List<char>& out)
{
    static constexpr Row<GPonVeipPort> multicast =
        on_off(FIELD(GPonVeipPort, multicast_enable), "veip multicast", "no veip multicast");
    if (nothing_to_emit(lhs, rhs)) {
        return false;
    }
    emit_changed(multicast, changed_or_all, lhs, rhs, {View::ports, key, out});
    getdiff_GPonMulticastClientPortSettings("veip", &lhs->multicast_port_settings, &rhs->multicast_port_settings, key,
                                            out);
    return false;
}

bool getdiff_GPonUniShapingDownstream(GPonUniShaping* lhs, GPonUniShaping* rhs, int* key, List<char>& out)
{
    return emit_uni_shaping("downstream", lhs, rhs, key, out);
}

bool getdiff_GPonUniShapingUpstream(GPonUniShaping* lhs, GPonUniShaping* rhs, int* key, List<char>& out)
{
    return emit_uni_shaping("upstream", lhs, rhs, key, out);
}

bool getdiff_GPonMulticastClientPortSettings(const char* prefix, GPonMulticastClientPortSettings* lhs,
                                             GPonMulticastClientPortSettings* rhs, int* key, List<char>& out)
{
    using Settings = GPonMulticastClientPortSettings;
    static constexpr Row<Settings> commands[] = {
        number(FIELD(Settings, upstream_igmp_vid), "%s upstream vid \"%s\""),
        number(FIELD(Settings, upstream_igmp_prio), "%s upstream priority \"%s\""),
        word(FIELD(Settings, upstream_igmp_tag_control), getOntUpstreamIgmpTagControl, "%s upstream tag-control %s"),
        number(FIELD(Settings, downstream_multicast_vid), "%s downstream vid \"%s\""),
        number(FIELD(Settings, downstream_multicast_prio), "%s downstream priority \"%s\""),
        word(FIELD(Settings, downstream_multicast_tag_control), getOntDownstreamMulticastTagControl,
             "%s downstream tag-control %s"),
        number(FIELD(Settings, max_groups), "%s max groups \"%s\""),
        number(FIELD(Settings, max_multicast_bandwidth), "%s max bandwidth \"%s\""),
    };
    if (nothing_to_emit(lhs, rhs)) {
        return false;
    }
    const bool is_uni = prefix && std::strcmp(prefix, "port[$ID1]") == 0;
    const Value lead = is_uni ? "port $ID1 igmp" : prefix;
    emit_changed(commands, changed_or_all, lhs, rhs, {View::ports, key, out, &lead});
    return false;
}
