#include "tool/describe/table.h"

namespace pondiff::tool {

static constexpr Field activation_fields[] = {
    enumeration(FIELD(GPonOltGeneralActivationCfg, ont_authentication_mode), "GPonOntAuthenticationMode_enum"),
    number(FIELD(GPonOltGeneralActivationCfg, activation_period)),
    boolean(FIELD(GPonOltGeneralActivationCfg, check_password)),
    boolean(FIELD(GPonOltGeneralActivationCfg, auto_reconfigure_ont)),
    boolean(FIELD(GPonOltGeneralActivationCfg, auto_reconfigure_channel)),
    boolean(FIELD(GPonOltGeneralActivationCfg, auto_reconfigure_olt)),
    boolean(FIELD(GPonOltGeneralActivationCfg, alt_activation_mode)),
};
DESCRIBE(GPonOltGeneralActivationCfg, activation_record, activation_fields);

static constexpr Field redundancy_fields[] = {
    boolean(FIELD(GPonOltGeneralRedundancyCfg, enabled)),
    enumeration(FIELD(GPonOltGeneralRedundancyCfg, mode), "GOltRedundandancyMode_enum"),
    ipv4(FIELD(GPonOltGeneralRedundancyCfg, peer_ip)),
    number(FIELD(GPonOltGeneralRedundancyCfg, peer_port)),
    boolean(FIELD(GPonOltGeneralRedundancyCfg, net_channel), {}, "GPON ports"),
};
DESCRIBE(GPonOltGeneralRedundancyCfg, redundancy_record, redundancy_fields);

static constexpr Field l3_dhcp_fields[] = {
    boolean(FIELD(GPonOltGeneralL3DHCPCfg, exist)),
    boolean(FIELD(GPonOltGeneralL3DHCPCfg, relay_agent_enabled)),
    number(FIELD(GPonOltGeneralL3DHCPCfg, vid)),
    silent(text(FIELD(GPonOltGeneralL3DHCPCfg, circuit_id_format))),
    silent(text(FIELD(GPonOltGeneralL3DHCPCfg, remote_id_format))),
    boolean(FIELD(GPonOltGeneralL3DHCPCfg, overwrite_client_option82)),
    boolean(FIELD(GPonOltGeneralL3DHCPCfg, dos_block_enabled)),
    number(FIELD(GPonOltGeneralL3DHCPCfg, bc_packet_per_second)),
    number(FIELD(GPonOltGeneralL3DHCPCfg, port_block_time)),
    boolean(FIELD(GPonOltGeneralL3DHCPCfg, trusted_server_enable)),
    ipv4(FIELD(GPonOltGeneralL3DHCPCfg, trusted_primary)),
    ipv4(FIELD(GPonOltGeneralL3DHCPCfg, trusted_secondary)),
    number(FIELD(GPonOltGeneralL3DHCPCfg, trusted_server_timeout)),
};
DESCRIBE(GPonOltGeneralL3DHCPCfg, l3_dhcp_record, l3_dhcp_fields);

static constexpr Field l3_pppoe_fields[] = {
    boolean(FIELD(GPonOltGeneralL3PPPoECfg, pppoe_plus_enabled)),
    silent(text(FIELD(GPonOltGeneralL3PPPoECfg, circuit_id_format))),
    silent(text(FIELD(GPonOltGeneralL3PPPoECfg, remote_id_format))),
    hexadecimal(FIELD(GPonOltGeneralL3PPPoECfg, vendor_id)),
    number(FIELD(GPonOltGeneralL3PPPoECfg, max_number_pppoe_sessions)),
    number(FIELD(GPonOltGeneralL3PPPoECfg, max_number_pppoe_sessions_per_user)),
    boolean(FIELD(GPonOltGeneralL3PPPoECfg, dos_block_enabled)),
    number(FIELD(GPonOltGeneralL3PPPoECfg, bc_packet_per_second)),
    number(FIELD(GPonOltGeneralL3PPPoECfg, port_block_time)),
};
DESCRIBE(GPonOltGeneralL3PPPoECfg, l3_pppoe_record, l3_pppoe_fields);

static constexpr Field l3_fields[] = {
    record(FIELD(GPonOltGeneralL3Cfg, dhcp), l3_dhcp_record, "entries"),
    record(FIELD(GPonOltGeneralL3Cfg, pppoe), l3_pppoe_record),
};
DESCRIBE(GPonOltGeneralL3Cfg, l3_record, l3_fields);

static constexpr Field dhcpra_by_vid_fields[] = {
    boolean(FIELD(GPonOltDhcpraCfgByVid, exist)),
    number(FIELD(GPonOltDhcpraCfgByVid, vid)),
    reference(FIELD(GPonOltDhcpraCfgByVid, profile), Reference::dhcp_ra),
};
DESCRIBE(GPonOltDhcpraCfgByVid, dhcpra_by_vid_record, dhcpra_by_vid_fields);

static constexpr Field dhcpv6ra_by_vid_fields[] = {
    boolean(FIELD(GPonOltDhcpv6raCfgByVid, exist)),
    number(FIELD(GPonOltDhcpv6raCfgByVid, vid)),
    reference(FIELD(GPonOltDhcpv6raCfgByVid, profile), Reference::dhcpv6_ra),
};
DESCRIBE(GPonOltDhcpv6raCfgByVid, dhcpv6ra_by_vid_record, dhcpv6ra_by_vid_fields);

static constexpr Field datapath_fields[] = {
    number(FIELD(GPonOltGeneralDatapathCfg, model)),
    number(FIELD(GPonOltGeneralDatapathCfg, broadcast_gem_port)),
    number(FIELD(GPonOltGeneralDatapathCfg, multicast_gem_port)),
};
DESCRIBE(GPonOltGeneralDatapathCfg, datapath_record, datapath_fields);

static constexpr Field encryption_fields[] = {
    boolean(FIELD(GPonOntEncryption, enable)),
    number(FIELD(GPonOntEncryption, key_update_interval)),
};
DESCRIBE(GPonOntEncryption, encryption_record, encryption_fields);

static constexpr Field short_cycle_fields[] = {
    boolean(FIELD(GPonOltGeneralDBAShortCycle, gpon_port), {}, "GPON ports"),
};
DESCRIBE(GPonOltGeneralDBAShortCycle, short_cycle_record, short_cycle_fields);

static constexpr Field olt_general_fields[] = {
    number(FIELD(GPonOltGeneralCfg, revision)),
    record(FIELD(GPonOltGeneralCfg, activation), activation_record),
    boolean(FIELD(GPonOltGeneralCfg, block_duplicated_mac)),
    number(FIELD(GPonOltGeneralCfg, ont_block_time)),
    record(FIELD(GPonOltGeneralCfg, redundancy_cfg), redundancy_record),
    boolean(FIELD(GPonOltGeneralCfg, redundancy)),
    record(FIELD(GPonOltGeneralCfg, l3), l3_record),
    number(FIELD(GPonOltGeneralCfg, dhcpra_shaper)),
    number(FIELD(GPonOltGeneralCfg, pppoeia_shaper)),
    reference(FIELD(GPonOltGeneralCfg, profile_olt_pppoeia), Reference::pppoe_ia),
    reference(FIELD(GPonOltGeneralCfg, profile_olt_dhcpra), Reference::dhcp_ra),
    reference(FIELD(GPonOltGeneralCfg, profile_olt_dhcpv6ra), Reference::dhcpv6_ra),
    record(FIELD(GPonOltGeneralCfg, profile_olt_dhcpra_redefinition), dhcpra_by_vid_record, "redefinitions"),
    record(FIELD(GPonOltGeneralCfg, profile_olt_dhcpv6ra_redefinition), dhcpv6ra_by_vid_record, "redefinitions"),
    record(FIELD(GPonOltGeneralCfg, datapath), datapath_record),
    number(FIELD(GPonOltGeneralCfg, high_rx_power_alarm_level)),
    number(FIELD(GPonOltGeneralCfg, low_rx_power_alarm_level)),
    record(FIELD(GPonOltGeneralCfg, encryption), encryption_record),
    number(FIELD(GPonOltGeneralCfg, absent_counter_max)),
    boolean(FIELD(GPonOltGeneralCfg, dba_reduced_latency)),
    boolean(FIELD(GPonOltGeneralCfg, dba_excess_allocations)),
    boolean(FIELD(GPonOltGeneralCfg, alarm_ont_battery_power_enabled)),
    boolean(FIELD(GPonOltGeneralCfg, alarm_ont_battery_low_enabled)),
    record(FIELD(GPonOltGeneralCfg, dba_short_cycle), short_cycle_record),
};
DESCRIBE(GPonOltGeneralCfg, olt_general_record, olt_general_fields);

} // namespace pondiff::tool
