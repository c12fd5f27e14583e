#include "pon/diff_builder/rows.h"

using namespace pondiff;

bool getdiff_GSystemMgmtCfg(GSystemNetworkCfg* lhs, GSystemNetworkCfg* rhs, int* key, List<char>& out)
{
    static constexpr Row<GSystemNetworkCfg> commands[] = {
        text(FIELD(GSystemNetworkCfg, hostname), "hostname \"%s\""),
        ipv4(FIELD(GSystemNetworkCfg, ipaddr), "management ip \"%s\""),
        ipv4(FIELD(GSystemNetworkCfg, netmask), "management mask \"%s\""),
        number(FIELD(GSystemNetworkCfg, mngmtvlan), "management vid \"%s\""),
        ipv4(FIELD(GSystemNetworkCfg, gateway), "management gateway \"%s\""),
        number(FIELD(GSystemNetworkCfg, vlan_prio), "management cos \"%s\""),
        number(FIELD(GSystemNetworkCfg, dscp), "management dscp \"%s\""),
    };
    if (nothing_to_emit(lhs, rhs)) {
        return false;
    }
    emit_changed(commands, changed_or_all, lhs, rhs, {View::configure, key, out});
    return false;
}

bool getdiff_GSystemNetworkCfg(GSystemNetworkCfg* lhs, GSystemNetworkCfg* rhs, int* key, List<char>& out)
{
    return getdiff_GSystemMgmtCfg(lhs, rhs, key, out);
}

bool getdiff_GSystemAcsMgmtCfg(GSystemNetworkCfg* lhs, GSystemNetworkCfg* rhs, int* key, List<char>& out)
{
    static constexpr Row<GSystemNetworkCfg> commands[] = {
        ipv4(FIELD(GSystemNetworkCfg, ACSIp), "ip acs server ip \"%s\""),
        ipv4(FIELD(GSystemNetworkCfg, ACSMask), "ip acs server mask \"%s\""),
        number(FIELD(GSystemNetworkCfg, ACSVid), "ip acs server vid \"%s\""),
    };
    if (nothing_to_emit(lhs, rhs)) {
        return false;
    }
    emit_changed(commands, changed_or_all, lhs, rhs, {View::configure, key, out});
    return false;
}
