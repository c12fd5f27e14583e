#include "tool/describe/table.h"

namespace pondiff::tool {

static constexpr Field activation_fields[] = {
    enumeration(AT(GPonOltGeneralActivationCfg, ont_authentication_mode), "GPonOntAuthenticationMode_enum"),
    number(AT(GPonOltGeneralActivationCfg, activation_period)),
    boolean(AT(GPonOltGeneralActivationCfg, check_password)),
    boolean(AT(GPonOltGeneralActivationCfg, auto_reconfigure_ont)),
    boolean(AT(GPonOltGeneralActivationCfg, auto_reconfigure_channel)),
    boolean(AT(GPonOltGeneralActivationCfg, auto_reconfigure_olt)),
    boolean(AT(GPonOltGeneralActivationCfg, alt_activation_mode)),
};
DESCRIBE(GPonOltGeneralActivationCfg, activation_record, activation_fields);

static constexpr Field redundancy_fields[] = {
    boolean(AT(GPonOltGeneralRedundancyCfg, enabled)),
    enumeration(AT(GPonOltGeneralRedundancyCfg, mode), "GOltRedundandancyMode_enum"),
    ipv4(AT(GPonOltGeneralRedundancyCfg, peer_ip)),
    number(AT(GPonOltGeneralRedundancyCfg, peer_port)),
    boolean(AT(GPonOltGeneralRedundancyCfg, net_channel), "GPON ports"),
};
DESCRIBE(GPonOltGeneralRedundancyCfg, redundancy_record, redundancy_fields);

static constexpr Field l3_dhcp_fields[] = {
    boolean(AT(GPonOltGeneralL3DHCPCfg, exist)),
    boolean(AT(GPonOltGeneralL3DHCPCfg, relay_agent_enabled)),
    number(AT(GPonOltGeneralL3DHCPCfg, vid)),
    silent(text(AT(GPonOltGeneralL3DHCPCfg, circuit_id_format))),
    silent(text(AT(GPonOltGeneralL3DHCPCfg, remote_id_format))),
    boolean(AT(GPonOltGeneralL3DHCPCfg, overwrite_client_option82)),
    boolean(AT(GPonOltGeneralL3DHCPCfg, dos_block_enabled)),
    number(AT(GPonOltGeneralL3DHCPCfg, bc_packet_per_second)),
    number(AT(GPonOltGeneralL3DHCPCfg, port_block_time)),
    boolean(AT(GPonOltGeneralL3DHCPCfg, trusted_server_enable)),
    ipv4(AT(GPonOltGeneralL3DHCPCfg, trusted_primary)),
    ipv4(AT(GPonOltGeneralL3DHCPCfg, trusted_secondary)),
    number(AT(GPonOltGeneralL3DHCPCfg, trusted_server_timeout)),
};
DESCRIBE(GPonOltGeneralL3DHCPCfg, l3_dhcp_record, l3_dhcp_fields);

static constexpr Field l3_pppoe_fields[] = {
    boolean(AT(GPonOltGeneralL3PPPoECfg, pppoe_plus_enabled)),
    silent(text(AT(GPonOltGeneralL3PPPoECfg, circuit_id_format))),
    silent(text(AT(GPonOltGeneralL3PPPoECfg, remote_id_format))),
    hexadecimal(AT(GPonOltGeneralL3PPPoECfg, vendor_id)),
    number(AT(GPonOltGeneralL3PPPoECfg, max_number_pppoe_sessions)),
    number(AT(GPonOltGeneralL3PPPoECfg, max_number_pppoe_sessions_per_user)),
    boolean(AT(GPonOltGeneralL3PPPoECfg, dos_block_enabled)),
    number(AT(GPonOltGeneralL3PPPoECfg, bc_packet_per_second)),
    number(AT(GPonOltGeneralL3PPPoECfg, port_block_time)),
};
DESCRIBE(GPonOltGeneralL3PPPoECfg, l3_pppoe_record, l3_pppoe_fields);

static constexpr Field l3_fields[] = {
    record(AT(GPonOltGeneralL3Cfg, dhcp), l3_dhcp_record, "entries"),
    record(AT(GPonOltGeneralL3Cfg, pppoe), l3_pppoe_record),
};
DESCRIBE(GPonOltGeneralL3Cfg, l3_record, l3_fields);

static constexpr Field dhcpra_by_vid_fields[] = {
    boolean(AT(GPonOltDhcpraCfgByVid, exist)),
    number(AT(GPonOltDhcpraCfgByVid, vid)),
    reference(AT(GPonOltDhcpraCfgByVid, profile), Reference::dhcp_ra),
};
DESCRIBE(GPonOltDhcpraCfgByVid, dhcpra_by_vid_record, dhcpra_by_vid_fields);

static constexpr Field dhcpv6ra_by_vid_fields[] = {
    boolean(AT(GPonOltDhcpv6raCfgByVid, exist)),
    number(AT(GPonOltDhcpv6raCfgByVid, vid)),
    reference(AT(GPonOltDhcpv6raCfgByVid, profile), Reference::dhcpv6_ra),
};
DESCRIBE(GPonOltDhcpv6raCfgByVid, dhcpv6ra_by_vid_record, dhcpv6ra_by_vid_fields);

static constexpr Field datapath_fields[] = {
    number(AT(GPonOltGeneralDatapathCfg, model)),
    number(AT(GPonOltGeneralDatapathCfg, broadcast_gem_port)),
    number(AT(GPonOltGeneralDatapathCfg, multicast_gem_port)),
};
DESCRIBE(GPonOltGeneralDatapathCfg, datapath_record, datapath_fields);

static constexpr Field encryption_fields[] = {
    boolean(AT(GPonOntEncryption, enable)),
    number(AT(GPonOntEncryption, key_update_interval)),
};
DESCRIBE(GPonOntEncryption, encryption_record, encryption_fields);

static constexpr Field short_cycle_fields[] = {
    boolean(AT(GPonOltGeneralDBAShortCycle, gpon_port), "GPON ports"),
};
DESCRIBE(GPonOltGeneralDBAShortCycle, short_cycle_record, short_cycle_fields);

static constexpr Field olt_general_fields[] = {
    number(AT(GPonOltGeneralCfg, revision)),
    record(AT(GPonOltGeneralCfg, activation), activation_record),
    boolean(AT(GPonOltGeneralCfg, block_duplicated_mac)),
    number(AT(GPonOltGeneralCfg, ont_block_time)),
    record(AT(GPonOltGeneralCfg, redundancy_cfg), redundancy_record),
    boolean(AT(GPonOltGeneralCfg, redundancy)),
    record(AT(GPonOltGeneralCfg, l3), l3_record),
    number(AT(GPonOltGeneralCfg, dhcpra_shaper)),
    number(AT(GPonOltGeneralCfg, pppoeia_shaper)),
    reference(AT(GPonOltGeneralCfg, profile_olt_pppoeia), Reference::pppoe_ia),
    reference(AT(GPonOltGeneralCfg, profile_olt_dhcpra), Reference::dhcp_ra),
    reference(AT(GPonOltGeneralCfg, profile_olt_dhcpv6ra), Reference::dhcpv6_ra),
    record(AT(GPonOltGeneralCfg, profile_olt_dhcpra_redefinition), dhcpra_by_vid_record, "redefinitions"),
    record(AT(GPonOltGeneralCfg, profile_olt_dhcpv6ra_redefinition), dhcpv6ra_by_vid_record, "redefinitions"),
    record(AT(GPonOltGeneralCfg, datapath), datapath_record),
    number(AT(GPonOltGeneralCfg, high_rx_power_alarm_level)),
    number(AT(GPonOltGeneralCfg, low_rx_power_alarm_level)),
    record(AT(GPonOltGeneralCfg, encryption), encryption_record),
    number(AT(GPonOltGeneralCfg, absent_counter_max)),
    boolean(AT(GPonOltGeneralCfg, dba_reduced_latency)),
    boolean(AT(GPonOltGeneralCfg, dba_excess_allocations)),
    boolean(AT(GPonOltGeneralCfg, alarm_ont_battery_power_enabled)),
    boolean(AT(GPonOltGeneralCfg, alarm_ont_battery_low_enabled)),
    record(AT(GPonOltGeneralCfg, dba_short_cycle), short_cycle_record),
};
DESCRIBE(GPonOltGeneralCfg, olt_general_record, olt_general_fields);

} // namespace pondiff::tool
