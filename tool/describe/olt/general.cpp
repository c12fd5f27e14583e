#include "tool/describe/table.h"

#include <cstddef>
#include <iterator>
#include <string_view>

namespace pondiff::tool {

static constexpr Syntax no_redundancy = no_command("redundancy has no command");
static constexpr Syntax no_layer_3 = no_command("the layer-3 settings have no command");

static constexpr Field activation_fields[] = {
    enumeration(FIELD(GPonOltGeneralActivationCfg, ont_authentication_mode), "GPonOntAuthenticationMode_enum",
                says("gpon olt authentication <ont_authentication_mode>")),
    number(FIELD(GPonOltGeneralActivationCfg, activation_period),
           says("gpon olt activation-period <activation_period>")),
    boolean(FIELD(GPonOltGeneralActivationCfg, check_password), no_command("the check of the password has no command")),
    boolean(FIELD(GPonOltGeneralActivationCfg, auto_reconfigure_ont),
            on_off("auto-reconfigure interface ont", "no auto-reconfigure interface ont")),
    boolean(FIELD(GPonOltGeneralActivationCfg, auto_reconfigure_channel),
            on_off("auto-reconfigure interface gpon-port", "no auto-reconfigure interface gpon-port")),
    boolean(FIELD(GPonOltGeneralActivationCfg, auto_reconfigure_olt),
            on_off("auto-reconfigure olt", "no auto-reconfigure olt")),
    boolean(FIELD(GPonOltGeneralActivationCfg, alt_activation_mode),
            on_off("gpon olt password-in-trap", "no gpon olt password-in-trap")),
};
DESCRIBE(GPonOltGeneralActivationCfg, activation_record, activation_fields);

static constexpr Field redundancy_fields[] = {
    boolean(FIELD(GPonOltGeneralRedundancyCfg, enabled), no_redundancy),
    enumeration(FIELD(GPonOltGeneralRedundancyCfg, mode), "GOltRedundandancyMode_enum", no_redundancy),
    ipv4(FIELD(GPonOltGeneralRedundancyCfg, peer_ip), no_redundancy),
    number(FIELD(GPonOltGeneralRedundancyCfg, peer_port), no_redundancy),
    boolean(FIELD(GPonOltGeneralRedundancyCfg, net_channel), no_redundancy, "GPON ports"),
};
DESCRIBE(GPonOltGeneralRedundancyCfg, redundancy_record, redundancy_fields);

static constexpr Field l3_dhcp_fields[] = {
    boolean(FIELD(GPonOltGeneralL3DHCPCfg, exist), no_layer_3.telling_existence()),
    boolean(FIELD(GPonOltGeneralL3DHCPCfg, relay_agent_enabled), no_layer_3),
    number(FIELD(GPonOltGeneralL3DHCPCfg, vid), no_layer_3),
    silent(text(FIELD(GPonOltGeneralL3DHCPCfg, circuit_id_format), no_layer_3)),
    silent(text(FIELD(GPonOltGeneralL3DHCPCfg, remote_id_format), no_layer_3)),
    boolean(FIELD(GPonOltGeneralL3DHCPCfg, overwrite_client_option82), no_layer_3),
    boolean(FIELD(GPonOltGeneralL3DHCPCfg, dos_block_enabled), no_layer_3),
    number(FIELD(GPonOltGeneralL3DHCPCfg, bc_packet_per_second), no_layer_3),
    number(FIELD(GPonOltGeneralL3DHCPCfg, port_block_time), no_layer_3),
    boolean(FIELD(GPonOltGeneralL3DHCPCfg, trusted_server_enable), no_layer_3),
    ipv4(FIELD(GPonOltGeneralL3DHCPCfg, trusted_primary), no_layer_3),
    ipv4(FIELD(GPonOltGeneralL3DHCPCfg, trusted_secondary), no_layer_3),
    number(FIELD(GPonOltGeneralL3DHCPCfg, trusted_server_timeout), no_layer_3),
};
DESCRIBE(GPonOltGeneralL3DHCPCfg, l3_dhcp_record, l3_dhcp_fields);

static constexpr Field l3_pppoe_fields[] = {
    boolean(FIELD(GPonOltGeneralL3PPPoECfg, pppoe_plus_enabled), no_layer_3),
    silent(text(FIELD(GPonOltGeneralL3PPPoECfg, circuit_id_format), no_layer_3)),
    silent(text(FIELD(GPonOltGeneralL3PPPoECfg, remote_id_format), no_layer_3)),
    hexadecimal(FIELD(GPonOltGeneralL3PPPoECfg, vendor_id), no_layer_3),
    number(FIELD(GPonOltGeneralL3PPPoECfg, max_number_pppoe_sessions), no_layer_3),
    number(FIELD(GPonOltGeneralL3PPPoECfg, max_number_pppoe_sessions_per_user), no_layer_3),
    boolean(FIELD(GPonOltGeneralL3PPPoECfg, dos_block_enabled), no_layer_3),
    number(FIELD(GPonOltGeneralL3PPPoECfg, bc_packet_per_second), no_layer_3),
    number(FIELD(GPonOltGeneralL3PPPoECfg, port_block_time), no_layer_3),
};
DESCRIBE(GPonOltGeneralL3PPPoECfg, l3_pppoe_record, l3_pppoe_fields);

static constexpr Field l3_fields[] = {
    record(FIELD(GPonOltGeneralL3Cfg, dhcp), l3_dhcp_record, "entries"),
    record(FIELD(GPonOltGeneralL3Cfg, pppoe), l3_pppoe_record),
};
DESCRIBE(GPonOltGeneralL3Cfg, l3_record, l3_fields);

static constexpr Field dhcpra_by_vid_fields[] = {
    boolean(FIELD(GPonOltDhcpraCfgByVid, exist), existence),
    number(FIELD(GPonOltDhcpraCfgByVid, vid), key()),
    reference(FIELD(GPonOltDhcpraCfgByVid, profile), Reference::dhcp_ra,
              says("gpon olt profile dhcpra <profile> vid <#>")),
};
DESCRIBE(GPonOltDhcpraCfgByVid, dhcpra_by_vid_record, dhcpra_by_vid_fields);

static constexpr Field dhcpv6ra_by_vid_fields[] = {
    boolean(FIELD(GPonOltDhcpv6raCfgByVid, exist), existence),
    number(FIELD(GPonOltDhcpv6raCfgByVid, vid), key()),
    reference(FIELD(GPonOltDhcpv6raCfgByVid, profile), Reference::dhcpv6_ra,
              says("gpon olt profile dhcpv6ra <profile> vid <#>")),
};
DESCRIBE(GPonOltDhcpv6raCfgByVid, dhcpv6ra_by_vid_record, dhcpv6ra_by_vid_fields);

static constexpr Field datapath_fields[] = {
    number(FIELD(GPonOltGeneralDatapathCfg, model), says("gpon olt model <model>").from_one()),
    number(FIELD(GPonOltGeneralDatapathCfg, broadcast_gem_port),
           says("gpon olt broadcast-gem-port <broadcast_gem_port>")),
    number(FIELD(GPonOltGeneralDatapathCfg, multicast_gem_port),
           says("gpon olt multicast-gem-port <multicast_gem_port>")),
};
DESCRIBE(GPonOltGeneralDatapathCfg, datapath_record, datapath_fields);

static constexpr Field encryption_fields[] = {
    boolean(FIELD(GPonOntEncryption, enable), on_off("gpon olt encryption", "no gpon olt encryption")),
    number(FIELD(GPonOntEncryption, key_update_interval), says("gpon olt encryption key-update <key_update_interval>")),
};
DESCRIBE(GPonOntEncryption, encryption_record, encryption_fields);

/// Ports go in pairs: "2-3".
static void read_pair_of_ports(Taking& taking)
{
    constexpr std::string_view pairs[] = {"0-1", "2-3", "4-5", "6-7"};
    for (std::size_t i = 0; i < std::size(pairs); ++i) {
        if (taking.word() == pairs[i]) {
            taking.set(2 * i, taking.off() ? 0 : 1);
            taking.set(2 * i + 1, taking.off() ? 0 : 1);
            return;
        }
    }
    taking.refuse("GPON ports go in pairs here: 0-1, 2-3, 4-5 or 6-7");
}

static constexpr Field short_cycle_fields[] = {
    boolean(FIELD(GPonOltGeneralDBAShortCycle, gpon_port),
            irregular("gpon olt dba-short-cycle gpon-port <?>", "no gpon olt dba-short-cycle gpon-port <?>",
                      read_pair_of_ports),
            "GPON ports"),
};
DESCRIBE(GPonOltGeneralDBAShortCycle, short_cycle_record, short_cycle_fields);

static constexpr Field olt_general_fields[] = {
    number(FIELD(GPonOltGeneralCfg, revision), counter),
    record(FIELD(GPonOltGeneralCfg, activation), activation_record),
    boolean(FIELD(GPonOltGeneralCfg, block_duplicated_mac),
            on_off("gpon olt block-duplicated-mac", "no gpon olt block-duplicated-mac")),
    number(FIELD(GPonOltGeneralCfg, ont_block_time), says("ont block-time <ont_block_time>")),
    record(FIELD(GPonOltGeneralCfg, redundancy_cfg), redundancy_record),
    boolean(FIELD(GPonOltGeneralCfg, redundancy), no_redundancy),
    record(FIELD(GPonOltGeneralCfg, l3), l3_record),
    number(FIELD(GPonOltGeneralCfg, dhcpra_shaper), says("gpon olt dhcpra-shaper <dhcpra_shaper>")),
    number(FIELD(GPonOltGeneralCfg, pppoeia_shaper), no_command("the shaper of the PPPoE agent has no command")),
    reference(FIELD(GPonOltGeneralCfg, profile_olt_pppoeia), Reference::pppoe_ia,
              says("gpon olt profile pppoeia <profile_olt_pppoeia>")),
    reference(FIELD(GPonOltGeneralCfg, profile_olt_dhcpra), Reference::dhcp_ra,
              says("gpon olt profile dhcpra <profile_olt_dhcpra>")),
    reference(FIELD(GPonOltGeneralCfg, profile_olt_dhcpv6ra), Reference::dhcpv6_ra,
              says("gpon olt profile dhcpv6ra <profile_olt_dhcpv6ra>")),
    record(FIELD(GPonOltGeneralCfg, profile_olt_dhcpra_redefinition), dhcpra_by_vid_record, by_key, "redefinitions"),
    record(FIELD(GPonOltGeneralCfg, profile_olt_dhcpv6ra_redefinition), dhcpv6ra_by_vid_record, by_key,
           "redefinitions"),
    record(FIELD(GPonOltGeneralCfg, datapath), datapath_record),
    number(FIELD(GPonOltGeneralCfg, high_rx_power_alarm_level),
           says("alarm ont-high-rx-power level <high_rx_power_alarm_level>")),
    number(FIELD(GPonOltGeneralCfg, low_rx_power_alarm_level),
           says("alarm ont-low-rx-power level <low_rx_power_alarm_level>")),
    record(FIELD(GPonOltGeneralCfg, encryption), encryption_record),
    number(FIELD(GPonOltGeneralCfg, absent_counter_max),
           says("gpon olt unactivated-timout <absent_counter_max>").as_signed()),
    boolean(FIELD(GPonOltGeneralCfg, dba_reduced_latency),
            says("gpon olt dba-reduced-latency allocation-mode most-demanding {dba_excess_allocations=0} | "
                 "gpon olt dba-reduced-latency allocation-mode fair-allocations {dba_excess_allocations=1}")),
    boolean(FIELD(GPonOltGeneralCfg, dba_excess_allocations), with("dba_reduced_latency")),
    boolean(FIELD(GPonOltGeneralCfg, alarm_ont_battery_power_enabled),
            on_off(nullptr, "alarm ont-battery-power status disable")),
    boolean(FIELD(GPonOltGeneralCfg, alarm_ont_battery_low_enabled),
            on_off(nullptr, "alarm ont-battery-low status disable")),
    record(FIELD(GPonOltGeneralCfg, dba_short_cycle), short_cycle_record),
};
DESCRIBE(GPonOltGeneralCfg, olt_general_record, olt_general_fields);

} // namespace pondiff::tool
