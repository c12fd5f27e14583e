#include "pon/diff_builder/rows.h"

using namespace pondiff;

namespace {

/// The relay profile of one VLAN. The entry's `exist` is not read; an entry that refers to an empty slot has no
/// command.
template <class Redefinition>
void emit_redefinition(const Redefinition& lhs, const Redefinition& rhs, const char* profile, const char* format,
                       const Where& where)
{
    if (!profile) {
        return;
    }
    if (forced(changed_or_profile_common) || lhs.vid != rhs.vid || lhs.profile != rhs.profile) {
        emit(where, format, profile, rhs.vid);
    }
}

/// There is no command that switches the mode off.
const char* reduced_latency_command(const GPonOltGeneralCfg& general)
{
    if (general.dba_reduced_latency == 0) {
        return "";
    }
    return general.dba_excess_allocations != 0 ? "gpon olt dba-reduced-latency allocation-mode fair-allocations"
                                               : "gpon olt dba-reduced-latency allocation-mode most-demanding";
}

} // namespace

/// The redundancy switch and the PPPoE shaper have no commands.
bool getdiff_GPonOltGeneralCfg(GPonOltGeneralCfg* lhs, GPonOltGeneralCfg* rhs, int* key, List<char>& out)
{
    static constexpr Row<GPonOltGeneralCfg> limits[] = {
        on_off(FIELD(GPonOltGeneralCfg, block_duplicated_mac), "gpon olt block-duplicated-mac",
               "no gpon olt block-duplicated-mac"),
        number(FIELD(GPonOltGeneralCfg, ont_block_time), "ont block-time \"%s\""),
        number(FIELD(GPonOltGeneralCfg, dhcpra_shaper), "gpon olt dhcpra-shaper \"%s\""),
    };
    static constexpr Row<GPonOltGeneralCfg> relay_profiles[] = {
        reference(FIELD(GPonOltGeneralCfg, profile_olt_pppoeia), getPppoeName, "gpon olt profile pppoeia \"%s\""),
        reference(FIELD(GPonOltGeneralCfg, profile_olt_dhcpra), getDhcpRaName, "gpon olt profile dhcpra \"%s\""),
        reference(FIELD(GPonOltGeneralCfg, profile_olt_dhcpv6ra), getDhcpv6RaName, "gpon olt profile dhcpv6ra \"%s\""),
    };
    static constexpr Row<GPonOltGeneralCfg> thresholds[] = {
        number(FIELD(GPonOltGeneralCfg, high_rx_power_alarm_level), "alarm ont-high-rx-power level \"%s\""),
        number(FIELD(GPonOltGeneralCfg, low_rx_power_alarm_level), "alarm ont-low-rx-power level \"%s\""),
        number_as_signed(FIELD(GPonOltGeneralCfg, absent_counter_max), "gpon olt unactivated-timout \"%s\""),
    };
    static constexpr Row<GPonOltGeneralCfg> battery_alarms[] = {
        on_off(FIELD(GPonOltGeneralCfg, alarm_ont_battery_power_enabled), "", "alarm ont-battery-power status disable"),
        on_off(FIELD(GPonOltGeneralCfg, alarm_ont_battery_low_enabled), "", "alarm ont-battery-low status disable"),
    };
    if (nothing_to_emit(lhs, rhs)) {
        return false;
    }
    const Where where{View::configure, key, out};
    emit_changed(limits, changed_or_common, lhs, rhs, where);
    emit_changed(relay_profiles, changed_or_profile_common, lhs, rhs, where);
    emit_changed(thresholds, changed_or_common, lhs, rhs, where);
    // A change of the allocation mode alone emits nothing.
    if (forced(changed_or_common) || lhs->dba_reduced_latency != rhs->dba_reduced_latency) {
        emit(where, reduced_latency_command(*rhs));
    }
    emit_changed(battery_alarms, changed_or_common, lhs, rhs, where);

    descend(changed_or_common, getdiff_GPonOltGeneralActivationCfg, lhs->activation, rhs->activation, key, out);
    descend(changed_or_common, getdiff_GPonOltGeneralRedundancyCfg, lhs->redundancy_cfg, rhs->redundancy_cfg, key, out);
    descend(changed_or_common, getdiff_GPonOltGeneralDBAShortCycleCfg, lhs->dba_short_cycle, rhs->dba_short_cycle, key,
            out);
    descend(changed_or_common, getdiff_GPonOltGeneralL3Cfg, lhs->l3, rhs->l3, key, out);
    descend_each(changed_or_common, getdiff_GPonOltDhcpraCfgByVid, lhs->profile_olt_dhcpra_redefinition,
                 rhs->profile_olt_dhcpra_redefinition, of_object, key, out);
    descend_each(changed_or_common, getdiff_GPonOltDhcpv6raCfgByVid, lhs->profile_olt_dhcpv6ra_redefinition,
                 rhs->profile_olt_dhcpv6ra_redefinition, of_object, key, out);
    descend(changed_or_common, getdiff_GPonOltGeneralDatapathCfg, lhs->datapath, rhs->datapath, key, out);
    descend(changed_or_common, getdiff_GPonOntEncryption, lhs->encryption, rhs->encryption, key, out);
    return false;
}

/// The password check has no command; "password-in-trap" shows the alternative activation mode.
bool getdiff_GPonOltGeneralActivationCfg(GPonOltGeneralActivationCfg* lhs, GPonOltGeneralActivationCfg* rhs, int* key,
                                         List<char>& out)
{
    static constexpr Row<GPonOltGeneralActivationCfg> commands[] = {
        enumeration(FIELD(GPonOltGeneralActivationCfg, ont_authentication_mode), "GPonOntAuthenticationMode_enum",
                    "gpon olt authentication \"%s\""),
        number(FIELD(GPonOltGeneralActivationCfg, activation_period), "gpon olt activation-period \"%s\""),
        on_off(FIELD(GPonOltGeneralActivationCfg, auto_reconfigure_ont), "auto-reconfigure interface ont",
               "no auto-reconfigure interface ont"),
        on_off(FIELD(GPonOltGeneralActivationCfg, auto_reconfigure_channel), "auto-reconfigure interface gpon-port",
               "no auto-reconfigure interface gpon-port"),
        on_off(FIELD(GPonOltGeneralActivationCfg, auto_reconfigure_olt), "auto-reconfigure olt",
               "no auto-reconfigure olt"),
        on_off(FIELD(GPonOltGeneralActivationCfg, alt_activation_mode), "gpon olt password-in-trap",
               "no gpon olt password-in-trap"),
    };
    if (nothing_to_emit(lhs, rhs)) {
        return false;
    }
    emit_changed(commands, changed_or_common, lhs, rhs, {View::configure, key, out});
    return false;
}

/// Has no commands.
bool getdiff_GPonOltGeneralRedundancyCfg(GPonOltGeneralRedundancyCfg* /*lhs*/, GPonOltGeneralRedundancyCfg* /*rhs*/,
                                         int* /*key*/, List<char>& /*out*/)
{
    return false;
}

/// Neither it nor its parts have commands, but walking them leaves the last index in the key.
bool getdiff_GPonOltGeneralL3Cfg(GPonOltGeneralL3Cfg* lhs, GPonOltGeneralL3Cfg* rhs, int* key, List<char>& out)
{
    if (nothing_to_emit(lhs, rhs)) {
        return false;
    }
    descend_each(changed_or_all, getdiff_GPonOltGeneralL3DHCPCfg, lhs->dhcp, rhs->dhcp, of_object, key, out);
    descend(changed_or_all, getdiff_GPonOltGeneralL3PPPoECfg, lhs->pppoe, rhs->pppoe, key, out);
    return false;
}

bool getdiff_GPonOltGeneralL3DHCPCfg(GPonOltGeneralL3DHCPCfg* /*lhs*/, GPonOltGeneralL3DHCPCfg* /*rhs*/, int* /*key*/,
                                     List<char>& /*out*/)
{
    return false;
}

bool getdiff_GPonOltGeneralL3PPPoECfg(GPonOltGeneralL3PPPoECfg* /*lhs*/, GPonOltGeneralL3PPPoECfg* /*rhs*/,
                                      int* /*key*/, List<char>& /*out*/)
{
    return false;
}

bool getdiff_GPonOltDhcpraCfgByVid(GPonOltDhcpraCfgByVid* lhs, GPonOltDhcpraCfgByVid* rhs, int* key, List<char>& out)
{
    if (nothing_to_emit(lhs, rhs)) {
        return false;
    }
    emit_redefinition(*lhs, *rhs, getDhcpRaName(rhs->profile), "gpon olt profile dhcpra %s vid %d",
                      {View::configure, key, out});
    return false;
}

bool getdiff_GPonOltDhcpv6raCfgByVid(GPonOltDhcpv6raCfgByVid* lhs, GPonOltDhcpv6raCfgByVid* rhs, int* key,
                                     List<char>& out)
{
    if (nothing_to_emit(lhs, rhs)) {
        return false;
    }
    emit_redefinition(*lhs, *rhs, getDhcpv6RaName(rhs->profile), "gpon olt profile dhcpv6ra %s vid %d",
                      {View::configure, key, out});
    return false;
}

/// The ports go in pairs and the even port's flag decides for both. Every pair navigates, changed or not.
bool getdiff_GPonOltGeneralDBAShortCycleCfg(GPonOltGeneralDBAShortCycle* lhs, GPonOltGeneralDBAShortCycle* rhs,
                                            int* key, List<char>& out)
{
    if (nothing_to_emit(lhs, rhs)) {
        return false;
    }
    const Where where{View::configure, key, out};
    for (int port = 0; port < GCFG_GPON_PORTS; port += 2) {
        const bool there = navigate(where);
        if (!there || (!forced(changed_or_common) && lhs->gpon_port[port] == rhs->gpon_port[port])) {
            continue;
        }
        command(where,
                rhs->gpon_port[port] != 0 ? "gpon olt dba-short-cycle gpon-port %d-%d"
                                          : "no gpon olt dba-short-cycle gpon-port %d-%d",
                port, port + 1);
    }
    return false;
}

bool getdiff_GPonOltGeneralDatapathCfg(GPonOltGeneralDatapathCfg* lhs, GPonOltGeneralDatapathCfg* rhs, int* key,
                                       List<char>& out)
{
    static constexpr Row<GPonOltGeneralDatapathCfg> gem_ports[] = {
        number(FIELD(GPonOltGeneralDatapathCfg, broadcast_gem_port), "gpon olt broadcast-gem-port \"%s\""),
        number(FIELD(GPonOltGeneralDatapathCfg, multicast_gem_port), "gpon olt multicast-gem-port \"%s\""),
    };
    if (nothing_to_emit(lhs, rhs)) {
        return false;
    }
    const Where where{View::configure, key, out};
    if (forced(changed_or_common) || lhs->model != rhs->model) {
        emit(where, "gpon olt model \"%d\"", rhs->model + 1);
    }
    emit_changed(gem_ports, changed_or_common, lhs, rhs, where);
    return false;
}

bool getdiff_GPonOntEncryption(GPonOntEncryption* lhs, GPonOntEncryption* rhs, int* key, List<char>& out)
{
    static constexpr Row<GPonOntEncryption> commands[] = {
        on_off(FIELD(GPonOntEncryption, enable), "gpon olt encryption", "no gpon olt encryption"),
        number(FIELD(GPonOntEncryption, key_update_interval), "gpon olt encryption key-update \"%s\""),
    };
    if (nothing_to_emit(lhs, rhs)) {
        return false;
    }
    emit_changed(commands, changed_or_common, lhs, rhs, {View::configure, key, out});
    return false;
}
