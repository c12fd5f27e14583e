#ifndef TOOL_DESCRIBE_RECORDS_H
#define TOOL_DESCRIBE_RECORDS_H

/// @file
/// The described records that other files use. A record that only its own file uses is described there and nowhere
/// declared.

#include "tool/describe/description.h"

namespace pondiff::tool {

extern const RecordOf<GCfg> gcfg_record;

// system
extern const RecordOf<GSystemNetworkCfg> system_network_record;
extern const RecordOf<GSystemCommonSettings> common_settings_record;
extern const RecordOf<GSystemUser> user_record;
extern const RecordOf<GSystemServiceAllow> allow_record;
extern const RecordOf<GSystemHttpCfg> http_record;
extern const RecordOf<GSystemHttpsCfg> https_record;
extern const RecordOf<GSystemTelnetCfg> telnet_record;
extern const RecordOf<GSystemSshCfg> ssh_record;
extern const RecordOf<GSystemRoutingCfg> routing_record;
extern const RecordOf<GSystemSourceGuardCfg> source_guard_record;
extern const RecordOf<GSystemSnmpCfg> snmp_record;
extern const RecordOf<GSystemSyslogCfg> syslog_record;
extern const RecordOf<GSystemLogCfg> log_record;
extern const RecordOf<GSystemNtpCfg> ntp_record;
extern const RecordOf<GSystemAlarmCfg> alarm_record;
extern const RecordOf<GSystemWebCfg> web_record;
extern const RecordOf<GSystemCliCfg> cli_record;
extern const RecordOf<GSystemTftpCfg> tftp_record;
extern const RecordOf<GSystemConfigCfg> config_record;
extern const RecordOf<GSystemCfg> system_record;

// network
extern const RecordOf<GVlanTagEx> terminal_vlan_record;
extern const RecordOf<GPonNetworkCfg> pon_network_record;

// olt
extern const RecordOf<GPonOltGeneralCfg> olt_general_record;
extern const RecordOf<GPonOltGeneralOpticsCfg> optics_record;
extern const RecordOf<GPonOltCfg> olt_record;

// ont
extern const RecordOf<GPonUniPoE> poe_record;
extern const RecordOf<GPonOntVoiceCfg> ont_voice_record;
extern const RecordOf<GPonOntCfg> ont_record;

// profiles_olt
extern const RecordOf<GPonProfileOltVlan> vlan_profile_record;
extern const RecordOf<GPonProfileOltAddressTable> address_table_profile_record;
extern const RecordOf<GPonProfileOltPppoeIa> pppoe_ia_profile_record;
extern const RecordOf<GPonProfileOltDhcpRa> dhcp_ra_profile_record;
extern const RecordOf<GPonProfileOltDhcpv6Ra> dhcpv6_ra_profile_record;
extern const RecordOf<GPonProfilesOlt> profiles_olt_record;

// profiles_ont
extern const RecordOf<GPonProfileOntCrossConnect> cross_connect_profile_record;
extern const RecordOf<GPonProfileOntManagement> management_profile_record;
extern const RecordOf<GPonTemplateOnt> template_record;
extern const RecordOf<GPonIgmpSettings> igmp_record;
extern const RecordOf<GPonMldSettings> mld_record;
extern const RecordOf<GPonMulticastClientPortSettings> multicast_port_record;
extern const RecordOf<GPonProfileOntPorts> ports_profile_record;
extern const RecordOf<GPonProfileOntVoice> voice_profile_record;
extern const RecordOf<GPonProfileOntShaping> shaping_profile_record;
extern const RecordOf<GPonProfileOntAlloc> alloc_profile_record;
extern const RecordOf<GPonProfilesOnt> profiles_ont_record;

} // namespace pondiff::tool

#endif
