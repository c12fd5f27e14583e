#include "pon/diff_builder/profile.h"

using namespace pondiff;

bool getdiff_GVlanGeneralCfg(GVlanGeneralCfg* lhs, GVlanGeneralCfg* rhs, int* key, List<char>& out)
{
    static constexpr Row<GVlanGeneralCfg> commands[] = {
        hexadecimal(FIELD(GVlanGeneralCfg, extended_svlan_type), 4, "%s extended svlan-type \"%s\""),
        hexadecimal(FIELD(GVlanGeneralCfg, extended_cvlan_type), 4, "%s extended cvlan-type \"%s\""),
        hexadecimal(FIELD(GVlanGeneralCfg, insertion_svlan_ethertype), 4, "%s insertion svlan-ethertype \"%s\""),
        hexadecimal(FIELD(GVlanGeneralCfg, insertion_cvlan_ethertype), 4, "%s insertion cvlan-ethertype \"%s\""),
    };
    if (nothing_to_emit(lhs, rhs)) {
        return false;
    }
    const Value direction = key[of_element] != 0 ? "downlink" : "uplink";
    emit_changed(commands, changed_or_all, lhs, rhs, {View::vlan, key, out, &direction});
    return false;
}

/// The name is never forced: a full dump leaves it out.
bool getdiff_GPonProfileOltVlan(GPonProfileOltVlan* lhs, GPonProfileOltVlan* rhs, int* key, List<char>& out)
{
    if (no_profile(lhs, rhs)) {
        return false;
    }
    if (rhs->exist == 0) {
        if (navigate({View::configure, key, out})) {
            append(out, "no profile vlan %s", text_of(lhs->name));
        }
        return false;
    }
    const Where where{View::vlan, key, out};
    enter_new_profile(lhs, rhs, where);
    emit_profile_name(changed_only, lhs, rhs, where);
    emit_profile_description(lhs, rhs, where);
    descend_each(changed_or_all, getdiff_GVlanGeneralCfg, lhs->config_general, rhs->config_general, of_element, key,
                 out);
    return false;
}
