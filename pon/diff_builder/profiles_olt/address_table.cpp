#include "pon/diff_builder/profile.h"

using namespace pondiff;

/// The aging timer has no command.
bool getdiff_GAddressTableConfig(GAddressTableConfig* lhs, GAddressTableConfig* rhs, int* key, List<char>& out)
{
    static constexpr Row<GAddressTableConfig> commands[] = {
        on_off(FIELD(GAddressTableConfig, remove_when_aged), "remove-when-aged", "no remove-when-aged"),
        on_off(FIELD(GAddressTableConfig, discard_pid_unlearned_sa), "discard-pid-unlearned-sa",
               "no discard-pid-unlearned-sa"),
    };
    if (nothing_to_emit(lhs, rhs)) {
        return false;
    }
    emit_changed(commands, changed_or_all, lhs, rhs, {View::address_table, key, out});
    return false;
}

/// The S-VLAN, not `exist`, decides whether a slot is in use. No command removes the entry of an S-VLAN.
bool getdiff_GSvlanAddressTableConfig(GSvlanAddressTableConfig* lhs, GSvlanAddressTableConfig* rhs, int* key,
                                      List<char>& out)
{
    static constexpr Row<GSvlanAddressTableConfig> settings[] = {
        enumeration(FIELD(GSvlanAddressTableConfig, forwarding_mode), "GVlanForwardingMode_enum",
                    "s-vlan %d forwarding-mode \"%s\""),
        on_off(FIELD(GSvlanAddressTableConfig, use_svlan), "s-vlan %d use s-vlan", "no s-vlan %d use s-vlan"),
        on_off(FIELD(GSvlanAddressTableConfig, use_cvlan), "s-vlan %d use c-vlan", "no s-vlan %d use c-vlan"),
        on_off(FIELD(GSvlanAddressTableConfig, use_pbits), "s-vlan %d use pbits", "no s-vlan %d use pbits"),
        on_off(FIELD(GSvlanAddressTableConfig, discard_unknown), "s-vlan %d discard-unknown",
               "no s-vlan %d discard-unknown"),
    };
    if (nothing_to_emit(lhs, rhs) || (lhs->svlan == 0 && rhs->svlan == 0)) {
        return false;
    }
    const Value svlan = rhs->svlan;
    const Where where{View::address_table, key, out, &svlan};
    // The commands of the settings declare the S-VLAN, too; a command of its own is needed only where none has changed.
    GSvlanAddressTableConfig old_settings = *lhs;
    old_settings.exist = rhs->exist;
    old_settings.svlan = rhs->svlan;
    if (wanted(changed_or_all, old_settings, *rhs)) {
        emit_changed(settings, changed_or_all, lhs, rhs, where);
    } else if ((lhs->exist == 0 && rhs->exist != 0) || lhs->svlan != rhs->svlan) {
        emit(where, "s-vlan %d");
    }
    return false;
}

/// The name is forced: a full dump shows it.
bool getdiff_GPonProfileOltAddressTable(GPonProfileOltAddressTable* lhs, GPonProfileOltAddressTable* rhs, int* key,
                                        List<char>& out)
{
    if (no_profile(lhs, rhs)) {
        return false;
    }
    if (rhs->exist == 0) {
        if (navigate({View::configure, key, out})) {
            append(out, "no profile address-table %s", text_of(lhs->name));
        }
        return false;
    }
    const Where where{View::address_table, key, out};
    enter_new_profile(lhs, rhs, where);
    emit_profile_name(changed_or_all, lhs, rhs, where);
    emit_profile_description(lhs, rhs, where);
    descend(changed_or_all, getdiff_GAddressTableConfig, lhs->table_config, rhs->table_config, key, out);
    descend_each(changed_or_all, getdiff_GSvlanAddressTableConfig, lhs->svlan_config, rhs->svlan_config, of_element,
                 key, out);
    return false;
}
