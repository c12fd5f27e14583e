// The layout that the library shares with the device software: sizes, offsets, byte order and signs, written by hand.
#include "gcfg/gcfg.h"

#include <array>
#include <cstddef>
#include <cstring>
#include <gtest/gtest.h>
#include <initializer_list>
#include <memory>
#include <set>
#include <string>
#include <type_traits>

extern "C" int layout_seen_from_c(const char* record);
extern "C" int layout_records_seen_from_c(void);

namespace {

struct Size {
    const char* record;
    int here;
    int written;
};

template <class Record, class Alias>
constexpr Size size_of(const char* record, int written)
{
    static_assert(std::is_same_v<Record, Alias>);
    static_assert(std::is_trivial_v<Record> && std::is_standard_layout_v<Record>);
    static_assert(alignof(Record) == 1);
    return {record, static_cast<int>(sizeof(Record)), written};
}

#define SIZE(record, written) size_of<record, record##_t>(#record, written)

template <class... Sizes>
constexpr std::array<Size, sizeof...(Sizes)> list(Sizes... sizes)
{
    return {sizes...};
}

constexpr auto sizes = list(
    SIZE(GSystemNetworkCfg, 286), SIZE(GSystemUserGroup, 4), SIZE(GSystemUser, 233), SIZE(GSystemServiceAllow, 5),
    SIZE(GSystemHttpCfg, 88), SIZE(GSystemHttpsCfg, 88), SIZE(GSystemTelnetCfg, 88), SIZE(GSystemSshCfg, 88),
    SIZE(GSystemSnmpTrap, 6), SIZE(GSystemSnmpAlias, 66), SIZE(GSystemSnmpCfg, 3629), SIZE(GSystemLogDestCfg, 8),
    SIZE(GSystemSyslogCfg, 22), SIZE(GSystemNtpCfg, 16), SIZE(GSystemAlarmTypeCfg, 17), SIZE(GSystemAlarmSystemCfg, 19),
    SIZE(GSystemAlarmCfg, 801), SIZE(GSystemWebCfg, 8), SIZE(GCustomOntListShowing, 32), SIZE(GSystemCliCfg, 41),
    SIZE(GSubmoduleLogCfg, 16), SIZE(GSystemLogCfg, 224), SIZE(GSystemTftpCfg, 268), SIZE(GSystemConfigCfg, 7),
    SIZE(GSystemAcsCfg, 322), SIZE(GSystemAuthNetCfg, 264), SIZE(GSystemAuthCfg, 540), SIZE(GSystemFanCfg, 14),
    SIZE(GSystemRouteCfg, 11), SIZE(GSystemRoutingCfg, 5636), SIZE(GSystemSourceGuardBindCfg, 18),
    SIZE(GSystemSourceGuardCfgVlanAllowed, 2), SIZE(GSystemSourceGuardCfg, 26630), SIZE(GSystemServices, 38510),
    SIZE(GSystemPrivilegeLevel, 17), SIZE(GSystemCommonSettings, 244), SIZE(GSystemCfg, 42768),
    SIZE(GPonOltGeneralActivationCfg, 16), SIZE(GPonOltGeneralRedundancyCfg, 26), SIZE(GPonOltGeneralL3DHCPCfg, 542),
    SIZE(GPonOltGeneralL3PPPoECfg, 536), SIZE(GPonOltGeneralL3Cfg, 9208), SIZE(GPonOltDhcpraCfgByVid, 6),
    SIZE(GPonOltDhcpv6raCfgByVid, 6), SIZE(GPonOltGeneralDatapathCfg, 6), SIZE(GPonOntEncryption, 4),
    SIZE(GPonOltGeneralDBAShortCycle, 16), SIZE(GPonOltGeneralCfg, 9510), SIZE(GPonOltGeneralOpticsCfg, 73),
    SIZE(GPonOltChannelCfg, 97), SIZE(GPonOltCfg, 10286), SIZE(GPonOntCustomCrossConnect, 7),
    SIZE(GPonOntSelectiveTunnel, 84), SIZE(GPonUniPoE, 10), SIZE(GPonOntPort, 12), SIZE(GPonOntVoicePort, 105),
    SIZE(GPonOntVoiceIpHost, 12), SIZE(GPonOntVoiceVoip, 16), SIZE(GPonOntVoiceCfg, 238), SIZE(GPonOntCfg, 2122),
    SIZE(GVlanTag, 5), SIZE(GVlanTagEx, 26), SIZE(GPonNetworkCfg, 847), SIZE(GVlanGeneralCfg, 8),
    SIZE(GPonProfileOltVlan, 294), SIZE(GAddressTableConfig, 8), SIZE(GSvlanAddressTableConfig, 14),
    SIZE(GPonProfileOltAddressTable, 7454), SIZE(GPonProfileOltPppoeIa, 816), SIZE(GPonProfileOltDhcpRa, 820),
    SIZE(GPonProfileOltDhcpv6Ra, 846), SIZE(GPonProfilesOlt, 327360), SIZE(GPonOntShapingDownstreamParams, 6),
    SIZE(GPonOntShapingDownstream, 98), SIZE(GPonOntShapingUpstreamParams, 10), SIZE(GPonOntStormControl, 16),
    SIZE(GPonOntShapingUpstream, 656), SIZE(GPonProfileOntShaping, 1032), SIZE(GPonProfileOntCrossConnect, 298),
    SIZE(GZorvanSLA, 21), SIZE(GPonOntDba, 21), SIZE(GPonProfileOntAlloc, 301), SIZE(GPonMulticastDynamicEntry, 10),
    SIZE(GPonMulticastDynamicEntryV6, 42), SIZE(GPonIgmpSettings, 222), SIZE(GPonMldSettings, 874),
    SIZE(GPonMulticastClientPortSettings, 16), SIZE(GPonUniShaping, 10), SIZE(GPonUniPort, 57), SIZE(GPonVeipPort, 18),
    SIZE(GPonProfileOntPorts, 1622), SIZE(GPonProfileOntManagement, 604), SIZE(GPonTemplateOnt, 473),
    SIZE(GPonProfileOntVoiceSip, 82), SIZE(GPonProfileOntVoice, 504), SIZE(GPonProfilesOnt, 311264),
    SIZE(GPonCfg, 1778661), SIZE(GCfg, 1821429));

struct Offset {
    const char* field;
    std::size_t here;
    std::size_t written;
};

// One row of OFFSETS.
#define AT(field, written) offset_of(#field, offsetof(Record, field), written)

#define OFFSETS(record, ...)                                                                                           \
    do {                                                                                                               \
        using Record = record;                                                                                         \
        expect_offsets(#record, __VA_ARGS__);                                                                          \
    } while (false)

Offset offset_of(const char* field, std::size_t here, std::size_t written)
{
    return {field, here, written};
}

template <class... Offsets>
void expect_offsets(const char* record, Offsets... offsets)
{
    for (const Offset& offset : {offsets...}) {
        EXPECT_EQ(offset.here, offset.written) << record << "." << offset.field;
    }
}

// A packed field cannot be bound to the references that the EXPECT macros take.
long long value(long long field)
{
    return field;
}

template <class Record>
Record all_bits_set()
{
    Record record;
    std::memset(&record, 0xff, sizeof(record));
    return record;
}

class Bytes {
  public:
    GCfg& cfg() { return *cfg_; }

    // Stores bytes at an offset from the start of the whole configuration.
    void put(std::size_t offset, std::initializer_list<unsigned char> bytes)
    {
        std::memcpy(reinterpret_cast<unsigned char*>(cfg_.get()) + offset, bytes.begin(), bytes.size());
    }

  private:
    std::unique_ptr<GCfg> cfg_ = std::make_unique<GCfg>();
};

} // namespace

TEST(Layout, EveryRecordHasItsSize)
{
    for (const Size& size : sizes) {
        EXPECT_EQ(size.here, size.written) << size.record;
    }
}

TEST(Layout, CAndCxxAgreeOnEveryRecord)
{
    std::set<std::string> records;
    for (const Size& size : sizes) {
        EXPECT_TRUE(records.insert(size.record).second) << size.record << " is listed twice";
        EXPECT_EQ(layout_seen_from_c(size.record), size.here) << size.record;
    }
    EXPECT_EQ(records.size(), 98U);
    EXPECT_EQ(layout_records_seen_from_c(), 98);
    EXPECT_EQ(layout_seen_from_c("GNoSuchCfg"), -1);
}

// Of every record each field but the first.
TEST(Layout, SystemFieldsStandAtTheirOffsets)
{
    OFFSETS(GSystemNetworkCfg, AT(hostname, 4), AT(ipaddr, 260), AT(netmask, 264), AT(mngmtvlan, 268), AT(gateway, 270),
            AT(vlan_prio, 274), AT(dscp, 275), AT(ACSIp, 276), AT(ACSMask, 280), AT(ACSVid, 284));
    OFFSETS(GSystemUserGroup, AT(name, 2));
    OFFSETS(GSystemUser, AT(exist, 4), AT(name, 6), AT(password, 38), AT(priority, 168), AT(group, 169));
    OFFSETS(GSystemServiceAllow, AT(mask, 4));
    OFFSETS(GSystemHttpCfg, AT(enabled, 4), AT(access_control, 6), AT(allow, 8));
    OFFSETS(GSystemHttpsCfg, AT(enabled, 4), AT(access_control, 6), AT(allow, 8));
    OFFSETS(GSystemTelnetCfg, AT(enabled, 4), AT(access_control, 6), AT(allow, 8));
    OFFSETS(GSystemSshCfg, AT(enabled, 4), AT(access_control, 6), AT(allow, 8));
    OFFSETS(GSystemSnmpTrap, AT(ipaddr, 2));
    OFFSETS(GSystemSnmpAlias, AT(upDownTrapEnable, 64));
    OFFSETS(GSystemSnmpCfg, AT(enabled, 4), AT(access_control, 6), AT(allow, 8), AT(traps, 88), AT(version, 184),
            AT(communityro, 186), AT(communityrw, 250), AT(trap, 314), AT(location, 378), AT(contact, 633),
            AT(alias, 888), AT(serialNum, 2076), AT(engineID, 2080), AT(pattern_cfg, 2093), AT(private_cfg, 2605),
            AT(binary_cfg, 3117));
    OFFSETS(GSystemLogDestCfg, AT(console, 2), AT(remotes, 4), AT(file, 6));
    OFFSETS(GSystemSyslogCfg, AT(enabled, 4), AT(ip, 6), AT(size, 10), AT(destinations, 14));
    OFFSETS(GSystemNtpCfg, AT(enabled, 4), AT(ntpserver, 6), AT(interval, 10), AT(timezone, 12),
            AT(daylightsaving, 14));
    OFFSETS(GSystemAlarmTypeCfg, AT(type, 4), AT(severity, 8), AT(send_on_in, 9), AT(send_on_out, 11), AT(ttl, 13));
    OFFSETS(GSystemAlarmSystemCfg, AT(load_average, 4), AT(free_ram, 7), AT(free_space, 9), AT(temperature, 11),
            AT(min_temperature, 13), AT(min_rpm, 15), AT(max_rpm, 17));
    OFFSETS(GSystemAlarmCfg, AT(cfg, 782));
    OFFSETS(GSystemWebCfg, AT(session_timeout, 4));
    OFFSETS(GCustomOntListShowing, AT(ont_id, 2), AT(assigned_channel, 4), AT(channel, 6), AT(status, 8), AT(rssi, 10),
            AT(profile_management, 12), AT(profile_shaping, 14), AT(profile_ports, 16), AT(profile_cross_connect, 18),
            AT(profile_alloc, 20), AT(version, 22), AT(equipment_id, 24), AT(config_password, 26),
            AT(received_password, 28), AT(description, 30));
    OFFSETS(GSystemCliCfg, AT(session_timeout, 4), AT(custom_ont_list_showing, 8), AT(number_of_cli_sessions, 40));
    OFFSETS(GSubmoduleLogCfg, AT(level, 4), AT(dest, 6), AT(show_time, 8), AT(show_prog_name, 10), AT(show_level, 12),
            AT(show_submodule_name, 14));
    OFFSETS(GSystemTftpCfg, AT(backup_on_conf_save, 4), AT(backup_on_timer, 6), AT(backup_on_timer_period, 8),
            AT(backup_uri, 12));
    OFFSETS(GSystemConfigCfg, AT(autosave, 4), AT(autosave_hour, 6));
    OFFSETS(GSystemAcsCfg, AT(enabled, 4), AT(port, 6), AT(path, 8), AT(scheme, 72), AT(login, 136), AT(password, 168),
            AT(external_fw_ip, 298), AT(external_fw_port, 302), AT(local_fw_port, 304), AT(dhcp_server_enabled, 306),
            AT(dhcp_ip_range_first, 308), AT(dhcp_ip_range_last, 312), AT(dhcp_max_lease_time, 316),
            AT(dhcp_insert_option43, 320));
    OFFSETS(GSystemAuthNetCfg, AT(port, 4), AT(timeout, 6), AT(secret, 8));
    OFFSETS(GSystemAuthCfg, AT(authtype, 4), AT(accounting, 6), AT(accounting_cmd, 8), AT(authorization, 10),
            AT(server, 12), AT(radius_server, 276));
    OFFSETS(GSystemFanCfg, AT(speed_table, 4), AT(fixed_speed, 12), AT(min_speed, 13));
    OFFSETS(GSystemRouteCfg, AT(prefix, 2), AT(mask, 6), AT(gateway, 7));
    OFFSETS(GSystemRoutingCfg, AT(route, 4));
    OFFSETS(GSystemSourceGuardBindCfg, AT(ip, 2), AT(mac, 6), AT(channel_index, 12), AT(ont_id, 13),
            AT(service_id, 17));
    OFFSETS(GSystemSourceGuardCfg, AT(enabled, 4), AT(mode, 6), AT(bind, 8), AT(vid, 18440));
    OFFSETS(GSystemServices, AT(https, 88), AT(telnet, 176), AT(ssh, 264), AT(snmp, 352), AT(syslog, 3981),
            AT(ntp, 4003), AT(alarm, 4019), AT(web, 4820), AT(cli, 4828), AT(log, 4869), AT(tftp, 5093),
            AT(config, 5361), AT(acs, 5368), AT(auth, 5690), AT(fan, 6230), AT(routing, 6244), AT(source_guard, 11880));
    OFFSETS(GSystemCommonSettings, AT(ont_sn_format, 4), AT(level, 6));
    OFFSETS(GSystemCfg, AT(user, 286), AT(services, 4014), AT(settings, 42524));
}

TEST(Layout, OltFieldsStandAtTheirOffsets)
{
    OFFSETS(GPonOltGeneralActivationCfg, AT(activation_period, 2), AT(check_password, 6), AT(auto_reconfigure_ont, 8),
            AT(auto_reconfigure_channel, 10), AT(auto_reconfigure_olt, 12), AT(alt_activation_mode, 14));
    OFFSETS(GPonOltGeneralRedundancyCfg, AT(mode, 2), AT(peer_ip, 4), AT(peer_port, 8), AT(net_channel, 10));
    OFFSETS(GPonOltGeneralL3DHCPCfg, AT(relay_agent_enabled, 2), AT(vid, 4), AT(circuit_id_format, 6),
            AT(remote_id_format, 262), AT(overwrite_client_option82, 518), AT(dos_block_enabled, 520),
            AT(bc_packet_per_second, 522), AT(port_block_time, 526), AT(trusted_server_enable, 530),
            AT(trusted_primary, 532), AT(trusted_secondary, 536), AT(trusted_server_timeout, 540));
    OFFSETS(GPonOltGeneralL3PPPoECfg, AT(circuit_id_format, 2), AT(remote_id_format, 258), AT(vendor_id, 514),
            AT(max_number_pppoe_sessions, 518), AT(max_number_pppoe_sessions_per_user, 522), AT(dos_block_enabled, 526),
            AT(bc_packet_per_second, 528), AT(port_block_time, 532));
    OFFSETS(GPonOltGeneralL3Cfg, AT(pppoe, 8672));
    OFFSETS(GPonOltDhcpraCfgByVid, AT(vid, 2), AT(profile, 4));
    OFFSETS(GPonOltDhcpv6raCfgByVid, AT(vid, 2), AT(profile, 4));
    OFFSETS(GPonOltGeneralDatapathCfg, AT(broadcast_gem_port, 2), AT(multicast_gem_port, 4));
    OFFSETS(GPonOntEncryption, AT(key_update_interval, 2));
    OFFSETS(GPonOltGeneralCfg, AT(activation, 4), AT(block_duplicated_mac, 20), AT(ont_block_time, 22),
            AT(redundancy_cfg, 26), AT(redundancy, 52), AT(l3, 54), AT(dhcpra_shaper, 9262), AT(pppoeia_shaper, 9266),
            AT(profile_olt_pppoeia, 9270), AT(profile_olt_dhcpra, 9272), AT(profile_olt_dhcpv6ra, 9274),
            AT(profile_olt_dhcpra_redefinition, 9276), AT(profile_olt_dhcpv6ra_redefinition, 9372), AT(datapath, 9468),
            AT(high_rx_power_alarm_level, 9474), AT(low_rx_power_alarm_level, 9476), AT(encryption, 9478),
            AT(absent_counter_max, 9482), AT(dba_reduced_latency, 9486), AT(dba_excess_allocations, 9488),
            AT(alarm_ont_battery_power_enabled, 9490), AT(alarm_ont_battery_low_enabled, 9492),
            AT(dba_short_cycle, 9494));
    OFFSETS(GPonOltGeneralOpticsCfg, AT(laser_reset_polarity, 2), AT(laser_sd_polarity, 4), AT(sd_source, 6),
            AT(sd_hold_normal, 8), AT(sd_hold_snr_ranging, 10), AT(reset_type_snr_ranging, 12),
            AT(reset_type_normal, 14), AT(reset_data_burst_bcdr_d1, 16), AT(reset_data_burst_bcdr_d2, 17),
            AT(reset_data_burst_laser_d1, 18), AT(reset_data_burst_laser_d2, 19), AT(reset_snr_burst_bcdr_d1, 20),
            AT(reset_snr_burst_bcdr_d2, 21), AT(reset_snr_burst_laser_d1, 22), AT(reset_snr_burst_laser_d2, 23),
            AT(reset_rng_burst_bcdr_d1, 24), AT(reset_rng_burst_bcdr_d2, 25), AT(reset_rng_burst_laser_d1, 26),
            AT(reset_rng_burst_laser_d2, 27), AT(reset_single_bcdr_d1, 28), AT(reset_single_bcdr_d2, 29),
            AT(reset_single_laser_d1, 30), AT(reset_single_laser_d2, 31), AT(reset_double_bcdr_d4, 32),
            AT(reset_double_bcdr_d3, 33), AT(reset_double_laser_d4, 34), AT(reset_double_laser_d3, 35),
            AT(delay_snr_timer, 36), AT(delay_snr_preamble, 38), AT(delay_snr_delimiter, 40), AT(delay_snr_burst, 42),
            AT(delay_rng_timer, 44), AT(delay_rng_preamble, 46), AT(delay_rng_delimiter, 48), AT(delay_rng_burst, 50),
            AT(delay_single_burst, 52), AT(delay_double_burst, 54), AT(preamble_correlation_preamble_length, 56),
            AT(preamble_length_snr_rng, 57), AT(preamble_guard_time_data_mode, 58), AT(preamble_type1_size_data, 59),
            AT(preamble_type2_size_data, 60), AT(preamble_type3_size_data, 61), AT(preamble_type3_pattern, 62),
            AT(preamble_delimiter_size, 63), AT(preamble_delimiter_byte1, 64), AT(preamble_delimiter_byte2, 65),
            AT(preamble_delimiter_byte3, 66), AT(voltage_if_mode, 67), AT(rssi_trigger_pulse_width, 69));
    OFFSETS(GPonOltChannelCfg, AT(enabled, 4), AT(fec_down, 6), AT(max_ont_count, 8), AT(profile_olt_vlan, 12),
            AT(profile_olt_address_table, 14), AT(use_custom_optics_settings, 16), AT(mac_migration, 18),
            AT(optics, 20), AT(onus_range, 93), AT(unknown_multicast_forward, 94),
            AT(unknown_multicast_forward_gem_port, 96));
    OFFSETS(GPonOltCfg, AT(channel, 9510));
}

TEST(Layout, OntFieldsStandAtTheirOffsets)
{
    OFFSETS(GPonOntCustomCrossConnect, AT(vid, 2), AT(cos, 4), AT(svid, 5));
    OFFSETS(GPonUniPoE, AT(power_detection_status, 2), AT(power_classification_status, 3), AT(pse_class_control, 4),
            AT(power_priority, 5), AT(current_power_consumption, 6));
    OFFSETS(GPonOntPort, AT(poe, 2));
    OFFSETS(GPonOntVoicePort, AT(auth_validation, 25), AT(auth_name, 26), AT(auth_passwd, 51), AT(auth_realm, 76),
            AT(physical_impedance, 101), AT(physical_gain_tx, 103), AT(physical_gain_rx, 104));
    OFFSETS(GPonOntVoiceIpHost, AT(static_mask, 4), AT(static_gateway, 8));
    OFFSETS(GPonOntVoiceVoip, AT(feature_call_wait, 1), AT(feature_call_progress, 2), AT(feature_call_present, 4),
            AT(fax_mode, 6), AT(dtmf_mode, 7), AT(cas_events, 8), AT(piggyback_events, 10), AT(tone_events, 12),
            AT(dtmf_events, 14));
    OFFSETS(GPonOntVoiceCfg, AT(voice_iphost, 210), AT(voip, 222));
    OFFSETS(GPonOntCfg, AT(exist, 4), AT(description, 6), AT(enabled, 262), AT(serial, 264), AT(password, 272),
            AT(auth_method, 283), AT(fec_up, 284), AT(downstream_broadcast, 286), AT(ber_interval, 288),
            AT(ber_update_period, 292), AT(pppoe_sessions_unlimit, 296), AT(custom_cross_connect, 298), AT(tunnel, 410),
            AT(profile_ont_shaping, 1754), AT(profile_ont_cross_connect, 1756), AT(profile_ont_alloc, 1788),
            AT(profile_ont_ports, 1820), AT(profile_ont_voice, 1822), AT(profile_ont_management, 1824),
            AT(template_ont, 1826), AT(rf_port_state, 1828), AT(omci_error_tolerant, 1830), AT(custom_model, 1832),
            AT(ems_profile_index, 1834), AT(voice, 1836), AT(port, 2074));
}

TEST(Layout, NetworkFieldsStandAtTheirOffsets)
{
    OFFSETS(GVlanTag, AT(vid, 2), AT(prio, 4));
    OFFSETS(GVlanTagEx, AT(exists, 4), AT(name, 5), AT(tag, 21));
    OFFSETS(GPonNetworkCfg, AT(mac_age_time, 4), AT(svlan_ethertype, 8), AT(cvlan_ethertype, 10), AT(mcvlan, 12),
            AT(mccos, 14), AT(terminal_vlan, 15));
}

TEST(Layout, OltProfileFieldsStandAtTheirOffsets)
{
    OFFSETS(GVlanGeneralCfg, AT(extended_cvlan_type, 2), AT(insertion_svlan_ethertype, 4),
            AT(insertion_cvlan_ethertype, 6));
    OFFSETS(GPonProfileOltVlan, AT(exist, 4), AT(name, 6), AT(description, 22), AT(config_general, 278));
    OFFSETS(GAddressTableConfig, AT(discard_pid_unlearned_sa, 2), AT(aging_timer, 4));
    OFFSETS(GSvlanAddressTableConfig, AT(svlan, 2), AT(forwarding_mode, 4), AT(use_svlan, 6), AT(use_cvlan, 8),
            AT(use_pbits, 10), AT(discard_unknown, 12));
    OFFSETS(GPonProfileOltAddressTable, AT(exist, 4), AT(name, 6), AT(description, 22), AT(table_config, 278),
            AT(svlan_config, 286));
    OFFSETS(GPonProfileOltPppoeIa, AT(exist, 4), AT(name, 6), AT(description, 22), AT(pppoe_plus_enabled, 278),
            AT(circuit_id_format, 280), AT(remote_id_format, 536), AT(vendor_id, 792),
            AT(max_number_pppoe_sessions, 796), AT(max_number_pppoe_sessions_per_user, 800), AT(dos_block_enabled, 804),
            AT(bc_packet_per_second, 806), AT(port_block_time, 810), AT(sessions_monitoring, 814));
    OFFSETS(GPonProfileOltDhcpRa, AT(exist, 4), AT(name, 6), AT(description, 22), AT(relay_agent_enabled, 278),
            AT(circuit_id_format, 280), AT(remote_id_format, 536), AT(overwrite_client_option82, 792),
            AT(dos_block_enabled, 794), AT(bc_packet_per_second, 796), AT(port_block_time, 800),
            AT(trusted_server_enable, 804), AT(trusted_primary, 806), AT(trusted_secondary, 810),
            AT(trusted_server_timeout, 814), AT(circuit_id_mode, 816), AT(remote_id_mode, 818));
    OFFSETS(GPonProfileOltDhcpv6Ra, AT(exist, 4), AT(name, 6), AT(description, 22), AT(relay_agent_enabled, 278),
            AT(interface_id_format, 280), AT(remote_id_format, 536), AT(write_interface_id_option, 792),
            AT(write_remote_id_option, 794), AT(dos_block_enabled, 796), AT(bc_packet_per_second, 798),
            AT(port_block_time, 802), AT(trusted_server_enable, 806), AT(trusted_primary, 808),
            AT(trusted_secondary, 824), AT(trusted_server_timeout, 840), AT(interface_id_mode, 842),
            AT(remote_id_mode, 844));
    OFFSETS(GPonProfilesOlt, AT(address_table, 9408), AT(pppoe_ia, 247936), AT(dhcp_ra, 274048), AT(dhcpv6_ra, 300288));
}

TEST(Layout, OntProfileFieldsStandAtTheirOffsets)
{
    OFFSETS(GPonOntShapingDownstreamParams, AT(peak_rate, 2));
    OFFSETS(GPonOntShapingDownstream, AT(policer, 2));
    OFFSETS(GPonOntShapingUpstreamParams, AT(commited_rate, 2), AT(peak_rate, 6));
    OFFSETS(GPonOntStormControl, AT(multicast_threshold, 4), AT(broadcast_logging, 8), AT(multicast_logging, 10),
            AT(broadcast_shutdown, 12), AT(multicast_shutdown, 14));
    OFFSETS(GPonOntShapingUpstream, AT(shaper_unicast, 160), AT(shaper_multicast, 320), AT(shaper_broadcast, 480),
            AT(storm_control, 640));
    OFFSETS(GPonProfileOntShaping, AT(exist, 4), AT(name, 6), AT(description, 22), AT(downstream, 278),
            AT(upstream, 376));
    OFFSETS(GPonProfileOntCrossConnect, AT(exist, 4), AT(name, 6), AT(description, 22), AT(model, 278),
            AT(bridge_group, 280), AT(tag_mode, 281), AT(outer_vid, 283), AT(outer_cos, 285), AT(inner_vid, 286),
            AT(u_vid, 288), AT(u_cos, 290), AT(mac_table_entry_limit, 291), AT(type, 293), AT(iphost_eid, 295),
            AT(priority_queue, 297));
    OFFSETS(GZorvanSLA, AT(status_reporting, 2), AT(alloc_size, 4), AT(alloc_period, 8), AT(fixed_bandwidth, 9),
            AT(guaranteed_bandwidth, 13), AT(besteffort_bandwidth, 17));
    OFFSETS(GPonProfileOntAlloc, AT(exist, 4), AT(name, 6), AT(description, 22), AT(dba, 278),
            AT(allocate_new_alloc, 299));
    OFFSETS(GPonMulticastDynamicEntry, AT(first_group_ip, 2), AT(last_group_ip, 6));
    OFFSETS(GPonMulticastDynamicEntryV6, AT(first_group_ip, 2), AT(last_group_ip, 18), AT(preview_length, 34),
            AT(preview_repeat_time, 36), AT(preview_repeat_count, 38), AT(preview_reset_time, 40));
    OFFSETS(GPonIgmpSettings, AT(igmp_mode, 1), AT(immediate_leave, 3), AT(robustness, 5), AT(querier_ip, 6),
            AT(query_interval, 10), AT(query_max_response_time, 14), AT(last_member_query_interval, 18),
            AT(multicast_dynamic_entry, 22));
    OFFSETS(GPonMldSettings, AT(mld_mode, 1), AT(immediate_leave, 3), AT(robustness, 5), AT(querier_ipv6, 6),
            AT(query_interval, 22), AT(query_max_response_time, 26), AT(last_member_query_interval, 30),
            AT(multicast_dynamic_entry_mld, 34));
    OFFSETS(GPonMulticastClientPortSettings, AT(upstream_igmp_prio, 2), AT(upstream_igmp_tag_control, 3),
            AT(downstream_multicast_vid, 5), AT(downstream_multicast_prio, 7), AT(downstream_multicast_tag_control, 8),
            AT(max_groups, 10), AT(max_multicast_bandwidth, 12));
    OFFSETS(GPonUniShaping, AT(commited_rate, 2), AT(peak_rate, 6));
    OFFSETS(GPonUniPort, AT(duplex, 2), AT(bridge_group, 4), AT(remove_tag, 5), AT(spanning_tree_for_bridge_group, 7),
            AT(multicast_enable, 9), AT(multicast_port_settings, 11), AT(shaper_downstream, 27),
            AT(shaper_upstream, 37), AT(poe, 47));
    OFFSETS(GPonVeipPort, AT(multicast_port_settings, 2));
    OFFSETS(GPonProfileOntPorts, AT(exist, 4), AT(name, 6), AT(description, 22), AT(multicast_ip_version, 278),
            AT(igmp_settings, 280), AT(mld_settings, 502), AT(veip, 1376), AT(port, 1394));
    OFFSETS(GPonProfileOntManagement, AT(exist, 4), AT(name, 6), AT(description, 22),
            AT(enable_omci_configuration, 278), AT(url, 280), AT(username, 408), AT(password, 434),
            AT(ont_config_version, 460), AT(ont_config_file, 476));
    OFFSETS(GPonTemplateOnt, AT(exist, 4), AT(name, 6), AT(description, 22), AT(serial, 278), AT(serial_is_active, 286),
            AT(password, 288), AT(password_is_active, 299), AT(fec_up, 301), AT(fec_up_is_active, 303),
            AT(downstream_broadcast, 305), AT(downstream_broadcast_is_active, 307), AT(ber_interval, 309),
            AT(ber_interval_is_active, 313), AT(ber_update_period, 315), AT(ber_update_period_is_active, 319),
            AT(profile_ont_shaping, 321), AT(profile_ont_shaping_is_active, 323), AT(profile_ont_cross_connect, 325),
            AT(profile_ont_cross_connect_is_active, 357), AT(profile_ont_alloc, 389),
            AT(profile_ont_alloc_is_active, 421), AT(profile_ont_ports, 453), AT(profile_ont_ports_is_active, 455),
            AT(profile_ont_voice, 457), AT(profile_ont_voice_is_active, 459), AT(profile_ont_management, 461),
            AT(profile_ont_management_is_active, 463), AT(rf_port_state, 465), AT(rf_port_state_is_active, 467),
            AT(omci_error_tolerant, 469), AT(omci_error_tolerant_is_active, 471));
    OFFSETS(GPonProfileOntVoiceSip, AT(domain, 25), AT(outband_proxy, 50), AT(port, 75), AT(proto, 79),
            AT(expire_time, 80));
    OFFSETS(GPonProfileOntVoice, AT(exist, 4), AT(name, 6), AT(description, 22), AT(sip, 278),
            AT(ont_config_version, 360), AT(ont_config_file, 376));
    OFFSETS(GPonProfilesOnt, AT(cross_connect, 132096), AT(alloc, 170240), AT(ports, 208768), AT(management, 260672),
            AT(template_ont, 280000), AT(voice, 295136));
    OFFSETS(GPonCfg, AT(ont, 10286), AT(network, 1139190), AT(profiles_olt, 1140037), AT(profiles_ont, 1467397));
    OFFSETS(GCfg, AT(pon, 42768));
}

TEST(Layout, BytesOfTheWholeConfigurationReadAsFields)
{
    Bytes bytes;
    GCfg& cfg = bytes.cfg();

    bytes.put(3949, {15});
    EXPECT_EQ(cfg.system.user[15].priority, 15);
    bytes.put(6458, {0x5a});
    EXPECT_EQ(cfg.system.services.snmp.engineID[12], 0x5a);
    bytes.put(8029, {0xfd, 0xff});
    EXPECT_EQ(value(cfg.system.services.ntp.timezone), -3);
    bytes.put(8811, {0x78, 0x56, 0x34, 0x12});
    EXPECT_EQ(value(cfg.system.services.alarm.type[45].ttl), 0x12345678);
    bytes.put(8829, {0xfb});
    EXPECT_EQ(cfg.system.services.alarm.cfg.min_temperature[1], -5);
    bytes.put(15893, {254});
    EXPECT_EQ(cfg.system.services.routing.route[511].gateway[3], 254);
    bytes.put(42522, {1, 2});
    EXPECT_EQ(value(cfg.system.services.source_guard.vid[4094].allowed), 0x0201);
    bytes.put(42767, {7});
    EXPECT_EQ(cfg.system.settings.level[13].privilege[16], 7);

    bytes.put(52242, {0xe4, 0xff});
    EXPECT_EQ(value(cfg.pon.olt.general.high_rx_power_alarm_level), -28);
    bytes.put(53053, {3});
    EXPECT_EQ(cfg.pon.olt.channel[7].unknown_multicast_forward_gem_port, 3);
    bytes.put(1181662, {0xff, 0xff});
    EXPECT_EQ(value(cfg.pon.ont[531].template_ont), -1);
    bytes.put(1181953, {2});
    EXPECT_EQ(cfg.pon.ont[531].port[3].poe.power_priority, 2);
    bytes.put(1182804, {6});
    EXPECT_EQ(cfg.pon.network.terminal_vlan[31].tag.prio, 6);

    bytes.put(1430729, {100, 0});
    EXPECT_EQ(value(cfg.pon.profiles_olt.address_table[31].svlan_config[511].svlan), 100);
    bytes.put(1680395, {0x9c, 0xff});
    EXPECT_EQ(value(cfg.pon.profiles_ont.cross_connect[127].u_vid), -100);
    bytes.put(1770823, {0x00, 0x00, 0x00, 0x80});
    EXPECT_EQ(value(cfg.pon.profiles_ont.ports[31].port[3].shaper_upstream.peak_rate), 0x80000000LL);
    bytes.put(1821428, {'z'});
    EXPECT_EQ(cfg.pon.profiles_ont.voice[31].ont_config_file[127], 'z');
}

TEST(Layout, SignedFieldsAreSigned)
{
    EXPECT_EQ(value(all_bits_set<GSystemNtpCfg>().timezone), -1);
    EXPECT_EQ(value(all_bits_set<GSystemAlarmTypeCfg>().ttl), -1);
    EXPECT_EQ(value(all_bits_set<GSystemAlarmSystemCfg>().min_temperature[0]), -1);
    EXPECT_EQ(value(all_bits_set<GSystemTftpCfg>().backup_on_timer_period), -1);
    EXPECT_EQ(value(all_bits_set<GSystemFanCfg>().fixed_speed), -1);

    EXPECT_EQ(value(all_bits_set<GPonOltDhcpraCfgByVid>().profile), -1);
    EXPECT_EQ(value(all_bits_set<GPonOltDhcpv6raCfgByVid>().profile), -1);
    EXPECT_EQ(value(all_bits_set<GPonOltGeneralCfg>().low_rx_power_alarm_level), -1);
    EXPECT_EQ(value(all_bits_set<GPonOltGeneralCfg>().profile_olt_pppoeia), -1);
    EXPECT_EQ(value(all_bits_set<GPonOltGeneralCfg>().profile_olt_dhcpra), -1);
    EXPECT_EQ(value(all_bits_set<GPonOltGeneralCfg>().profile_olt_dhcpv6ra), -1);
    EXPECT_EQ(value(all_bits_set<GPonOltChannelCfg>().profile_olt_vlan), -1);
    EXPECT_EQ(value(all_bits_set<GPonOltChannelCfg>().profile_olt_address_table), -1);

    EXPECT_EQ(value(all_bits_set<GPonOntCustomCrossConnect>().vid), -1);
    EXPECT_EQ(value(all_bits_set<GPonOntCustomCrossConnect>().svid), -1);
    EXPECT_EQ(value(all_bits_set<GPonOntSelectiveTunnel>().uvid[41]), -1);
    EXPECT_EQ(value(all_bits_set<GPonOntVoicePort>().physical_impedance), -1);
    EXPECT_EQ(value(all_bits_set<GPonOntVoicePort>().physical_gain_tx), -1);
    EXPECT_EQ(value(all_bits_set<GPonOntVoicePort>().physical_gain_rx), -1);
    EXPECT_EQ(value(all_bits_set<GPonOntCfg>().profile_ont_cross_connect[15]), -1);
    EXPECT_EQ(value(all_bits_set<GPonOntCfg>().ems_profile_index), -1);

    EXPECT_EQ(value(all_bits_set<GSvlanAddressTableConfig>().svlan), -1);
    EXPECT_EQ(value(all_bits_set<GPonProfileOntCrossConnect>().outer_vid), -1);
    EXPECT_EQ(value(all_bits_set<GPonProfileOntCrossConnect>().inner_vid), -1);
    EXPECT_EQ(value(all_bits_set<GPonMulticastDynamicEntry>().vlan_id), -1);
    EXPECT_EQ(value(all_bits_set<GPonMulticastDynamicEntryV6>().vlan_id), -1);
    EXPECT_EQ(value(all_bits_set<GPonTemplateOnt>().profile_ont_alloc[15]), -1);
}

TEST(Layout, UnsignedFieldsAreUnsigned)
{
    EXPECT_EQ(value(all_bits_set<GSystemNetworkCfg>().mngmtvlan), 65535);
    EXPECT_EQ(value(all_bits_set<GSystemUser>().priority), 255);
    EXPECT_EQ(value(all_bits_set<GSystemAlarmTypeCfg>().type), 4294967295LL);
    EXPECT_EQ(value(all_bits_set<GSystemAlarmTypeCfg>().severity), 255);
    EXPECT_EQ(value(all_bits_set<GSystemAlarmSystemCfg>().temperature[1]), 255);
    EXPECT_EQ(value(all_bits_set<GSystemSourceGuardBindCfg>().ont_id), 4294967295LL);
    EXPECT_EQ(value(all_bits_set<GPonOltGeneralDatapathCfg>().model), 65535);
    EXPECT_EQ(value(all_bits_set<GPonOntCustomCrossConnect>().cos), 255);
    EXPECT_EQ(value(all_bits_set<GPonOntCfg>().ber_interval), 4294967295LL);
    EXPECT_EQ(value(all_bits_set<GVlanTag>().ethertype), 65535);
    EXPECT_EQ(value(all_bits_set<GPonProfileOltPppoeIa>().vendor_id), 4294967295LL);
    EXPECT_EQ(value(all_bits_set<GPonProfileOntCrossConnect>().u_cos), 255);
    EXPECT_EQ(value(all_bits_set<GPonProfileOntCrossConnect>().mac_table_entry_limit), 65535);
    EXPECT_EQ(value(all_bits_set<GPonOntShapingUpstreamParams>().commited_rate), 4294967295LL);
    EXPECT_EQ(value(all_bits_set<GPonProfileOntVoiceSip>().port), 4294967295LL);
    EXPECT_EQ(value(all_bits_set<GSystemUser>().exist), 65535);
}
