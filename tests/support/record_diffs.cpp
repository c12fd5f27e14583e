#include "tests/support/record_diffs.h"

#include "pon/profile_kinds.h"

#include <algorithm>
#include <cstddef>
#include <cstring>
#include <type_traits>
#include <utility>

namespace {

template <class Object, std::size_t N>
void keep(Object (&array)[N], int objects)
{
    const std::size_t kept = std::min(static_cast<std::size_t>(objects), N);
    std::memset(array + kept, 0, (N - kept) * sizeof(Object));
}

template <class Object, std::size_t N>
void keep_existing(Object (&array)[N], int objects)
{
    for (Object& object : array) {
        object.exist = 1;
    }
    keep(array, objects);
}

template <class R>
auto revision_of(int) -> decltype(R::revision, Bytes{})
{
    return {offsetof(R, revision), sizeof(R::revision)};
}
template <class R>
Bytes revision_of(long)
{
    return {};
}

template <class R>
auto exist_of(int) -> decltype(R::exist, Bytes{})
{
    return {offsetof(R, exist), sizeof(R::exist)};
}
template <class R>
auto exist_of(int) -> decltype(R::exists, Bytes{})
{
    return {offsetof(R, exists), sizeof(R::exists)};
}
template <class R>
Bytes exist_of(long)
{
    return {};
}

template <class Record, class Result>
RecordDiff on(const char* name, std::size_t offset, Result (*function)(Record*, Record*, int*, List<char>&))
{
    return {name, {offset, sizeof(Record)}, revision_of<Record>(0), exist_of<Record>(0), any_diff(function)};
}

template <class Record, class Result, class Prefix>
RecordDiff on(const char* name, std::size_t offset, Result (*function)(Prefix, Record*, Record*, int*, List<char>&),
              const char* prefix)
{
    return {name, {offset, sizeof(Record)}, revision_of<Record>(0), exist_of<Record>(0), any_diff(function, prefix)};
}

#define DIFF(function, path)                                                                                           \
    on<std::remove_reference_t<decltype(std::declval<GCfg&>().path)>>(#function, offsetof(GCfg, path), function)
#define DIFF_WITH(function, text, path)                                                                                \
    on<std::remove_reference_t<decltype(std::declval<GCfg&>().path)>>(#function, offsetof(GCfg, path), function, text)

} // namespace

const std::vector<RecordDiff>& record_diffs()
{
    static const std::vector<RecordDiff> all = {
        DIFF(getdiff_GSystemCfg, system),
        DIFF(getdiff_GSystemServices, system.services),
        DIFF(getdiff_GSystemNetworkCfg, system.network),
        DIFF(getdiff_GSystemMgmtCfg, system.network),
        DIFF(getdiff_GSystemAcsMgmtCfg, system.network),
        DIFF(getdiff_GSystemCommonSettings, system.settings),
        DIFF(getdiff_GSystemUser, system.user[1]),
        DIFF(getdiff_GSystemUserGroup, system.user[1].group[1]),
        DIFF_WITH(getdiff_GSystemServiceAllow, "ip ssh", system.services.ssh.allow[1]),
        DIFF(getdiff_GSystemHttpCfg, system.services.http),
        DIFF(getdiff_GSystemHttpsCfg, system.services.https),
        DIFF(getdiff_GSystemTelnetCfg, system.services.telnet),
        DIFF(getdiff_GSystemSshCfg, system.services.ssh),
        DIFF(getdiff_GSystemRoutingCfg, system.services.routing),
        DIFF(getdiff_GSystemRouteCfg, system.services.routing.route[1]),
        DIFF(getdiff_GSystemSourceGuardCfg, system.services.source_guard),
        DIFF(getdiff_GSystemSourceGuardBindCfg, system.services.source_guard.bind[1]),
        DIFF(getdiff_GSystemSourceGuardCfgVlanAllowed, system.services.source_guard.vid[1]),
        DIFF(getdiff_GSystemSnmpCfg, system.services.snmp),
        DIFF(getdiff_GSystemSnmpTrap, system.services.snmp.traps[1]),
        DIFF(getdiff_GSystemSnmpAlias, system.services.snmp.alias[1]),
        DIFF(getdiff_GSystemSyslogCfg, system.services.syslog),
        DIFF(getdiff_GSystemLogDestCfg, system.services.syslog.destinations),
        DIFF(getdiff_GSystemLogCfg, system.services.log),
        DIFF(getdiff_GSubmoduleLogCfg, system.services.log.submodule[1]),
        DIFF(getdiff_GSystemNtpCfg, system.services.ntp),
        DIFF(getdiff_GSystemAlarmCfg, system.services.alarm),
        DIFF(getdiff_GSystemAlarmTypeCfg, system.services.alarm.type[1]),
        DIFF(getdiff_GSystemAlarmSystemCfg, system.services.alarm.cfg),
        DIFF(getdiff_GSystemCliCfg, system.services.cli),
        DIFF(getdiff_GCustomOntListShowing, system.services.cli.custom_ont_list_showing),
        DIFF(getdiff_GSystemTftpCfg, system.services.tftp),
        DIFF(getdiff_GSystemConfigCfg, system.services.config),
        DIFF(getdiff_GSystemWebCfg, system.services.web),

        DIFF(getdiff_GPonNetworkCfg, pon.network),
        DIFF(getdiff_GVlanTagEx, pon.network.terminal_vlan[1]),

        DIFF(getdiff_GPonOltCfg, pon.olt),
        DIFF(getdiff_GPonOltGeneralCfg, pon.olt.general),
        DIFF(getdiff_GPonOltGeneralActivationCfg, pon.olt.general.activation),
        DIFF(getdiff_GPonOltGeneralRedundancyCfg, pon.olt.general.redundancy_cfg),
        DIFF(getdiff_GPonOltGeneralL3Cfg, pon.olt.general.l3),
        DIFF(getdiff_GPonOltGeneralL3DHCPCfg, pon.olt.general.l3.dhcp[1]),
        DIFF(getdiff_GPonOltGeneralL3PPPoECfg, pon.olt.general.l3.pppoe),
        DIFF(getdiff_GPonOltDhcpraCfgByVid, pon.olt.general.profile_olt_dhcpra_redefinition[1]),
        DIFF(getdiff_GPonOltDhcpv6raCfgByVid, pon.olt.general.profile_olt_dhcpv6ra_redefinition[1]),
        DIFF(getdiff_GPonOltGeneralDBAShortCycleCfg, pon.olt.general.dba_short_cycle),
        DIFF(getdiff_GPonOltGeneralDatapathCfg, pon.olt.general.datapath),
        DIFF(getdiff_GPonOntEncryption, pon.olt.general.encryption),
        DIFF(getdiff_GPonOltGeneralOpticsCfg, pon.olt.channel[1].optics),
        DIFF(getdiff_GPonOltChannelCfg, pon.olt.channel[1]),

        DIFF(getdiff_GPonOntCfg, pon.ont[1]),
        DIFF(getdiff_GPonOntCustomCrossConnect, pon.ont[1].custom_cross_connect[1]),
        DIFF(getdiff_GPonOntSelectiveTunnel, pon.ont[1].tunnel[1]),
        DIFF(getdiff_GPonOntPort, pon.ont[1].port[1]),
        DIFF(getdiff_GPonUniPoE, pon.ont[1].port[1].poe),
        DIFF(getdiff_GPonOntVoice, pon.ont[1].voice),

        DIFF(getdiff_GPonProfilesOlt, pon.profiles_olt),
        DIFF(getdiff_GPonProfileOltVlan, pon.profiles_olt.vlan[1]),
        DIFF(getdiff_GVlanGeneralCfg, pon.profiles_olt.vlan[1].config_general[1]),
        DIFF(getdiff_GPonProfileOltAddressTable, pon.profiles_olt.address_table[1]),
        DIFF(getdiff_GAddressTableConfig, pon.profiles_olt.address_table[1].table_config),
        DIFF(getdiff_GSvlanAddressTableConfig, pon.profiles_olt.address_table[1].svlan_config[1]),
        DIFF(getdiff_GPonProfileOltPppoeIa, pon.profiles_olt.pppoe_ia[1]),
        DIFF(getdiff_GPonProfileOltDhcpRa, pon.profiles_olt.dhcp_ra[1]),
        DIFF(getdiff_GPonProfileOltDhcpv6Ra, pon.profiles_olt.dhcpv6_ra[1]),

        DIFF(getdiff_GPonProfilesOnt, pon.profiles_ont),
        DIFF(getdiff_GPonProfileOntCrossConnect, pon.profiles_ont.cross_connect[1]),
        DIFF(getdiff_GPonProfileOntManagement, pon.profiles_ont.management[1]),
        DIFF(getdiff_GPonTemplateOnt, pon.profiles_ont.template_ont[1]),
        DIFF(getdiff_GPonIgmpSettings, pon.profiles_ont.ports[1].igmp_settings),
        DIFF(getdiff_GPonMldSettings, pon.profiles_ont.ports[1].mld_settings),
        DIFF(getdiff_GPonMulticastDynamicEntry, pon.profiles_ont.ports[1].igmp_settings.multicast_dynamic_entry[1]),
        DIFF(getdiff_GPonMulticastDynamicEntryV6,
             pon.profiles_ont.ports[1].mld_settings.multicast_dynamic_entry_mld[1]),
        DIFF_WITH(getdiff_GPonMulticastClientPortSettings, "veip",
                  pon.profiles_ont.ports[1].veip.multicast_port_settings),
        DIFF(getdiff_GPonProfileOntPorts, pon.profiles_ont.ports[1]),
        DIFF(getdiff_GPonUniPort, pon.profiles_ont.ports[1].port[1]),
        DIFF(getdiff_GPonVeipPort, pon.profiles_ont.ports[1].veip),
        DIFF(getdiff_GPonUniShapingDownstream, pon.profiles_ont.ports[1].port[1].shaper_downstream),
        DIFF(getdiff_GPonUniShapingUpstream, pon.profiles_ont.ports[1].port[1].shaper_upstream),
        DIFF(getdiff_GPonProfileOntVoice, pon.profiles_ont.voice[1]),
        DIFF(getdiff_GPonProfileOntVoiceSip, pon.profiles_ont.voice[1].sip),
        DIFF(getdiff_GPonProfileOntShaping, pon.profiles_ont.shaping[1]),
        DIFF(getdiff_GPonOntShapingDownstream, pon.profiles_ont.shaping[1].downstream),
        DIFF(getdiff_GPonOntShapingDownstreamParams, pon.profiles_ont.shaping[1].downstream.policer[1]),
        DIFF(getdiff_GPonOntShapingUpstream, pon.profiles_ont.shaping[1].upstream),
        DIFF_WITH(getdiff_GPonOntShapingUpstreamParams, "unicast",
                  pon.profiles_ont.shaping[1].upstream.shaper_unicast[1]),
        DIFF(getdiff_GPonOntStormControl, pon.profiles_ont.shaping[1].upstream.storm_control),
        DIFF(getdiff_GPonProfileOntAlloc, pon.profiles_ont.alloc[1]),
        DIFF(getdiff_GPonOntDba, pon.profiles_ont.alloc[1].dba),
        DIFF_WITH(getdiff_GZorvanSLA, "sla_data", pon.profiles_ont.alloc[1].dba.sla_data),

        DIFF(getdiff_GPonCfg, pon),
        on<GCfg>("getdiff_GCfg", 0, getdiff_GCfg),
    };
    return all;
}

int RecordDiff::run(GCfg& orig, GCfg& cfg, int* key, List<char>& out) const
{
    return diff(reinterpret_cast<char*>(&orig) + record.offset, reinterpret_cast<char*>(&cfg) + record.offset, key,
                out);
}

void fill(GCfg& configuration, int objects)
{
    std::memset(&configuration, 'a', sizeof configuration);
    keep_existing(configuration.system.user, objects);
    GSystemServices& services = configuration.system.services;
    keep_existing(services.source_guard.bind, objects);
    keep(services.source_guard.vid, objects);
    keep(services.routing.route, objects);
    GPonCfg& pon = configuration.pon;
    keep_existing(pon.ont, objects);
    for (GVlanTagEx& vlan : pon.network.terminal_vlan) {
        vlan.exists = 1;
    }
    keep(pon.network.terminal_vlan, objects);
#define KEEP_EXISTING(part, array, ...) keep_existing(pon.part.array, objects);
    PON_PROFILE_KINDS(KEEP_EXISTING)
#undef KEEP_EXISTING
    for (GPonProfileOltAddressTable& table : pon.profiles_olt.address_table) {
        keep(table.svlan_config, objects);
    }
}
