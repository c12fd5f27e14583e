#include "pon/diff_builder/rows.h"

using namespace pondiff;

/// A full dump, too, shows only the bindings and VLANs that differ.
bool getdiff_GSystemSourceGuardCfg(GSystemSourceGuardCfg* lhs, GSystemSourceGuardCfg* rhs, int* key, List<char>& out)
{
    static constexpr Row<GSystemSourceGuardCfg> commands[] = {
        on_off(FIELD(GSystemSourceGuardCfg, enabled), "ip source-guard enable", "no ip source-guard enable"),
        enumeration(FIELD(GSystemSourceGuardCfg, mode), "GSystemIPSourceGuardMode_enum", "ip source-guard mode %s"),
    };
    if (nothing_to_emit(lhs, rhs)) {
        return false;
    }
    emit_changed(commands, changed_or_all, lhs, rhs, {View::configure, key, out});
    descend_each(changed_only, getdiff_GSystemSourceGuardBindCfg, lhs->bind, rhs->bind, of_object, key, out);
    descend_each(changed_only, getdiff_GSystemSourceGuardCfgVlanAllowed, lhs->vid, rhs->vid, of_object, key, out);
    return false;
}

/// No command removes a binding: a cleared slot is emitted with its cleared values.
bool getdiff_GSystemSourceGuardBindCfg(GSystemSourceGuardBindCfg* lhs, GSystemSourceGuardBindCfg* rhs, int* key,
                                       List<char>& out)
{
    if (nothing_to_emit(lhs, rhs)) {
        return false;
    }
    emit({View::configure, key, out}, "ip source-guard bind ip $ID0 mac \"%s\" interface-ont %d/%d service %d",
         mac_of(rhs->mac), rhs->channel_index, static_cast<int>(rhs->ont_id), rhs->service_id);
    return false;
}

bool getdiff_GSystemSourceGuardCfgVlanAllowed(GSystemSourceGuardCfgVlanAllowed* lhs,
                                              GSystemSourceGuardCfgVlanAllowed* rhs, int* key, List<char>& out)
{
    static constexpr Row<GSystemSourceGuardCfgVlanAllowed> allowed =
        on_off(FIELD(GSystemSourceGuardCfgVlanAllowed, allowed), "ip source-guard ignore-vlan $ID0",
               "no ip source-guard ignore-vlan $ID0");
    if (nothing_to_emit(lhs, rhs)) {
        return false;
    }
    emit_changed(allowed, changed_or_all, lhs, rhs, {View::configure, key, out});
    return false;
}
