#include "pon/diff_builder/rows.h"
#include "pon/diff_builder/system/access.h"

using namespace pondiff;

/// The agent's own configuration texts have no commands.
bool getdiff_GSystemSnmpCfg(GSystemSnmpCfg* lhs, GSystemSnmpCfg* rhs, int* key, List<char>& out)
{
    static constexpr Row<GSystemSnmpCfg> commands[] = {
        on_off(FIELD(GSystemSnmpCfg, enabled), "ip snmp enable", "no ip snmp enable"),
        on_off(FIELD(GSystemSnmpCfg, access_control), "ip snmp access-control", "no ip snmp access-control"),
        word(FIELD(GSystemSnmpCfg, version), getGSystemSNMPversion, "ip snmp version \"%s\""),
        text(FIELD(GSystemSnmpCfg, communityro), "ip snmp community read \"%s\""),
        text(FIELD(GSystemSnmpCfg, communityrw), "ip snmp community write \"%s\""),
        text(FIELD(GSystemSnmpCfg, trap), "ip snmp trap-community \"%s\""),
        text(FIELD(GSystemSnmpCfg, location), "ip snmp location \"%s\""),
        text(FIELD(GSystemSnmpCfg, contact), "ip snmp contact \"%s\""),
        enumeration(FIELD(GSystemSnmpCfg, serialNum), "GOntSnDisplayFormatType_enum", "ip snmp ont-sn-format \"%s\""),
        engine_id(FIELD(GSystemSnmpCfg, engineID), "ip snmp engineID \"%s\""),
    };
    if (nothing_to_emit(lhs, rhs)) {
        return false;
    }
    emit_changed(commands, changed_or_all, lhs, rhs, {View::configure, key, out});
    diff_allow_list("ip snmp", lhs->allow, rhs->allow, key, out);
    descend_each(changed_or_all, getdiff_GSystemSnmpTrap, lhs->traps, rhs->traps, of_object, key, out);
    descend_each(changed_or_all, getdiff_GSystemSnmpAlias, lhs->alias, rhs->alias, of_object, key, out);
    return false;
}

/// A new type is emitted only together with a new address.
bool getdiff_GSystemSnmpTrap(GSystemSnmpTrap* lhs, GSystemSnmpTrap* rhs, int* key, List<char>& out)
{
    if (!lhs || !rhs || !wanted(changed_or_all, lhs->ipaddr, rhs->ipaddr)) {
        return false;
    }
    emit({View::configure, key, out}, "ip snmp traps %s type %s", ipv4_of(rhs->ipaddr),
         enum_word("GSnmpTrapType_enum", rhs->type));
    return false;
}

bool getdiff_GSystemSnmpAlias(GSystemSnmpAlias* lhs, GSystemSnmpAlias* rhs, int* key, List<char>& out)
{
    static constexpr Row<GSystemSnmpAlias> commands[] = {
        text(FIELD(GSystemSnmpAlias, name), "ip snmp alias name \"%s\""),
        on_off(FIELD(GSystemSnmpAlias, upDownTrapEnable), "ip snmp alias name $ID0 up-down-trap",
               "no ip snmp alias name $ID0 up-down-trap"),
    };
    if (nothing_to_emit(lhs, rhs)) {
        return false;
    }
    emit_changed(commands, changed_or_all, lhs, rhs, {View::configure, key, out});
    return false;
}
