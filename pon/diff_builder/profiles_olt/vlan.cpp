#include "pon/diff_builder/rows.h"

using namespace pondiff;

bool getdiff_GVlanGeneralCfg(GVlanGeneralCfg* lhs, GVlanGeneralCfg* rhs, int* key, List<char>& out)
{
    static constexpr Row<GVlanGeneralCfg> commands[] = {
        hexadecimal(FIELD(GVlanGeneralCfg, extended_svlan_type), 4, "%s extended svlan-type \"%s\""),
        hexadecimal(FIELD(GVlanGeneralCfg, extended_cvlan_type), 4, "%s extended cvlan-type \"%s\""),
        hexadecimal(FIELD(GVlanGeneralCfg, insertion_svlan_ethertype), 4, "%s insertion svlan-ethertype \"%s\""),
        hexadecimal(FIELD(GVlanGeneralCfg, insertion_cvlan_ethertype), 4, "%s insertion cvlan-ethertype \"%s\""),
    };
    if (nothing_to_say(lhs, rhs))
        return false;
    const Value direction = key[1] != 0 ? "downlink" : "uplink";
    emit_changed(commands, changed_or_all, lhs, rhs, {"vlan-view", key, out, &direction});
    return false;
}
