#include "pon/diff_builder/rows.h"

using namespace pondiff;

/// The multicast VLAN and its class of service have no commands.
bool getdiff_GPonNetworkCfg(GPonNetworkCfg* lhs, GPonNetworkCfg* rhs, int* key, List<char>& out)
{
    static constexpr Row<GPonNetworkCfg> commands[] = {
        number(FIELD(GPonNetworkCfg, mac_age_time), "gpon network mac-age-time \"%s\""),
        hexadecimal(FIELD(GPonNetworkCfg, svlan_ethertype), 4, "gpon network svlan-ethertype \"%s\""),
        hexadecimal(FIELD(GPonNetworkCfg, cvlan_ethertype), 4, "gpon network cvlan-ethertype \"%s\""),
    };
    if (nothing_to_emit(lhs, rhs)) {
        return false;
    }
    emit_changed(commands, changed_or_common, lhs, rhs, {View::configure, key, out});
    descend_each(changed_or_common, getdiff_GVlanTagEx, lhs->terminal_vlan, rhs->terminal_vlan, of_object, key, out);
    return false;
}
