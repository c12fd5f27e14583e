#include "pon/command_file_generator.h"
#include "pon/command_file_generator/operation.h"
#include "pon/diff_builder/rows.h"

#include <cstring>

using namespace pondiff;

namespace {

/// An operation that opens with the navigation to the global configuration and closes with the one back to the top.
/// Both are part of its text even when nothing differs.
template <class Body>
char* from_configure_view(Ending ending, Body body)
{
    Operation operation;
    operation.go_to(View::configure);
    body(operation.key, operation.script);
    operation.go_to(View::root);
    return operation.finish(ending);
}

/// All slots of one profile kind that differ, or the one slot `id`, which is not compared first. A slot beyond the
/// array selects nothing.
template <auto Area, auto Profiles, auto Diff>
void diff_profiles(GPonCfg& orig, GPonCfg& cfg, int id, int* key, List<char>& out)
{
    auto& lhs = orig.*Area.*Profiles;
    auto& rhs = cfg.*Area.*Profiles;
    if (id < 0) {
        walk(changed_only, Diff, lhs, rhs, 0, key, out);
    } else if (static_cast<std::size_t>(id) < sizeof lhs / sizeof *lhs) {
        key[0] = id;
        Diff(&lhs[id], &rhs[id], key, out);
    }
}

struct ProfileKind {
    const char* name;
    void (*diff)(GPonCfg& orig, GPonCfg& cfg, int id, int* key, List<char>& out);
};

template <auto Profiles, auto Diff>
constexpr auto olt_profiles = diff_profiles<&GPonCfg::profiles_olt, Profiles, Diff>;

template <auto Profiles, auto Diff>
constexpr auto ont_profiles = diff_profiles<&GPonCfg::profiles_ont, Profiles, Diff>;

constexpr ProfileKind profile_kinds[] = {
    {"address-table", olt_profiles<&GPonProfilesOlt::address_table, getdiff_GPonProfileOltAddressTable>},
    {"cross-connect", ont_profiles<&GPonProfilesOnt::cross_connect, getdiff_GPonProfileOntCrossConnect>},
    {"dba", ont_profiles<&GPonProfilesOnt::alloc, getdiff_GPonProfileOntAlloc>},
    {"dhcp-ra", olt_profiles<&GPonProfilesOlt::dhcp_ra, getdiff_GPonProfileOltDhcpRa>},
    {"dhcpv6-ra", olt_profiles<&GPonProfilesOlt::dhcpv6_ra, getdiff_GPonProfileOltDhcpv6Ra>},
    {"management", ont_profiles<&GPonProfilesOnt::management, getdiff_GPonProfileOntManagement>},
    {"ports", ont_profiles<&GPonProfilesOnt::ports, getdiff_GPonProfileOntPorts>},
    {"voice", ont_profiles<&GPonProfilesOnt::voice, getdiff_GPonProfileOntVoice>},
    {"pppoe-ia", olt_profiles<&GPonProfilesOlt::pppoe_ia, getdiff_GPonProfileOltPppoeIa>},
    {"shaping", ont_profiles<&GPonProfilesOnt::shaping, getdiff_GPonProfileOntShaping>},
    {"vlan", olt_profiles<&GPonProfilesOlt::vlan, getdiff_GPonProfileOltVlan>},
    {"template", ont_profiles<&GPonProfilesOnt::template_ont, getdiff_GPonTemplateOnt>},
};

/// A record that a block shows: its place in the configuration and its diff. A block of several records has a row for
/// each, in the order of their commands.
struct BlockRecord {
    const char* block;
    std::size_t offset;
    void (*diff)(void* orig, void* cfg, int* key, List<char>& out);
};

template <class Record, bool (*Diff)(Record*, Record*, int*, List<char>&)>
void diff_record(void* orig, void* cfg, int* key, List<char>& out)
{
    Diff(static_cast<Record*>(orig), static_cast<Record*>(cfg), key, out);
}

void diff_users(void* orig, void* cfg, int* key, List<char>& out)
{
    using Users = GSystemUser[GCFG_USERS];
    walk(changed_only, getdiff_GSystemUser, *static_cast<Users*>(orig), *static_cast<Users*>(cfg), 0, key, out);
}

#define RECORD_AT(path, diff) offsetof(GCfg, path), diff_record<decltype(GCfg::path), diff>

constexpr BlockRecord block_records[] = {
    {"olt", RECORD_AT(pon.olt.general, getdiff_GPonOltGeneralCfg)},
    {"network", RECORD_AT(pon.network, getdiff_GPonNetworkCfg)},
    {"backup", RECORD_AT(system.services.tftp, getdiff_GSystemTftpCfg)},
    {"cli", RECORD_AT(system.services.cli, getdiff_GSystemCliCfg)},
    {"config", RECORD_AT(system.services.config, getdiff_GSystemConfigCfg)},
    {"management", RECORD_AT(system.network, getdiff_GSystemMgmtCfg)},
    {"ntp", RECORD_AT(system.services.ntp, getdiff_GSystemNtpCfg)},
    {"snmp", RECORD_AT(system.services.snmp, getdiff_GSystemSnmpCfg)},
    {"ssh", RECORD_AT(system.services.ssh, getdiff_GSystemSshCfg)},
    {"source_guard", RECORD_AT(system.services.source_guard, getdiff_GSystemSourceGuardCfg)},
    {"telnet", RECORD_AT(system.services.telnet, getdiff_GSystemTelnetCfg)},
    {"logging", RECORD_AT(system.services.syslog, getdiff_GSystemSyslogCfg)},
    {"logging", RECORD_AT(system.services.log, getdiff_GSystemLogCfg)},
    {"user", offsetof(GCfg, system.user), diff_users},
    {"route", RECORD_AT(system.services.routing, getdiff_GSystemRoutingCfg)},
};

#undef RECORD_AT

void diff_block(const char* block, GCfg& orig, GCfg& cfg, int* key, List<char>& out)
{
    for (const BlockRecord& record : block_records)
        if (std::strcmp(record.block, block) == 0)
            record.diff(reinterpret_cast<char*>(&orig) + record.offset, reinterpret_cast<char*>(&cfg) + record.offset,
                        key, out);
}

} // namespace

char* GetSystemDiff(GSystemCfg_t* orig, GSystemCfg_t* cfg)
{
    Operation operation;
    getdiff_GSystemCfg(orig, cfg, operation.key, operation.script);
    return operation.finish(Ending::plain);
}

char* GetPonDiff(GPonCfg_t* orig, GPonCfg_t* cfg)
{
    Operation operation;
    getdiff_GPonCfg(orig, cfg, operation.key, operation.script);
    return operation.finish(Ending::plain);
}

char* GetGponOntDiff(GPonOntCfg_t* orig, GPonOntCfg_t* cfg, int ont_index)
{
    return from_configure_view(Ending::plain, [&](int* key, List<char>& out) {
        key[0] = ont_index;
        getdiff_GPonOntCfg(orig, cfg, key, out);
    });
}

char* GetGponChannelDiff(GPonOltChannelCfg_t* orig, GPonOltChannelCfg_t* cfg, int channel_index)
{
    return from_configure_view(Ending::plain, [&](int* key, List<char>& out) {
        key[0] = channel_index;
        getdiff_GPonOltChannelCfg(orig, cfg, key, out);
    });
}

char* GetGPonProfilesOltDiff(GPonProfilesOlt_t* orig, GPonProfilesOlt_t* cfg)
{
    Operation operation;
    getdiff_GPonProfilesOlt(orig, cfg, operation.key, operation.script);
    operation.go_to(View::root);
    return operation.finish(Ending::commit);
}

char* GetGPonProfilesOntDiff(GPonProfilesOnt_t* orig, GPonProfilesOnt_t* cfg)
{
    Operation operation;
    getdiff_GPonProfilesOnt(orig, cfg, operation.key, operation.script);
    operation.go_to(View::root);
    return operation.finish(Ending::commit);
}

char* GetProfileDiff(GPonCfg_t* orig, GPonCfg_t* cfg, char* profile, int id)
{
    return from_configure_view(Ending::commit, [&](int* key, List<char>& out) {
        if (!orig || !cfg || !profile)
            return;
        for (const ProfileKind& kind : profile_kinds)
            if (std::strcmp(kind.name, profile) == 0)
                kind.diff(*orig, *cfg, id, key, out);
    });
}

char* GetBlockDiff(GCfg_t* orig, GCfg_t* cfg, char* cmd)
{
    return from_configure_view(Ending::commit, [&](int* key, List<char>& out) {
        if (orig && cfg && cmd)
            diff_block(cmd, *orig, *cfg, key, out);
    });
}

char* GetAlarmDiff(GCfg_t* orig, GCfg_t* cfg)
{
    return from_configure_view(Ending::commit, [&](int* key, List<char>& out) {
        if (orig && cfg)
            getdiff_GSystemAlarmCfg(&orig->system.services.alarm, &cfg->system.services.alarm, key, out);
    });
}

char* GetTerminalVlanHeaders()
{
    Operation operation;
    operation.go_to(View::configure);
    for (int i = 0; i < GCFG_TERMINAL_VLANS; ++i) {
        const char* const name = getTerminalVlanName(i);
        if (name && *name != '\0')
            append(operation.script, "gpon network terminal-vlan \"%s\"", name);
    }
    return operation.finish(Ending::plain);
}
