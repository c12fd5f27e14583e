#include "pon/diff_builder/rows.h"

using namespace pondiff;

bool getdiff_GPonOltCfg(GPonOltCfg* lhs, GPonOltCfg* rhs, int* key, List<char>& out)
{
    if (nothing_to_emit(lhs, rhs)) {
        return false;
    }
    descend(changed_or_all, getdiff_GPonOltGeneralCfg, lhs->general, rhs->general, key, out);
    descend_each(changed_or_all, getdiff_GPonOltChannelCfg, lhs->channel, rhs->channel, of_object, key, out);
    return false;
}

/// Most settings can only be switched on: switched off they are an empty command. The limit of ONTs has no command.
bool getdiff_GPonOltChannelCfg(GPonOltChannelCfg* lhs, GPonOltChannelCfg* rhs, int* key, List<char>& out)
{
    static constexpr Row<GPonOltChannelCfg> settings[] = {
        reference(FIELD(GPonOltChannelCfg, profile_olt_vlan), getVlanName, "profile vlan \"%s\""),
        reference(FIELD(GPonOltChannelCfg, profile_olt_address_table), getAddressTableName,
                  "profile address-table \"%s\""),
        on_off(FIELD(GPonOltChannelCfg, enabled), "", "shutdown"),
        on_off(FIELD(GPonOltChannelCfg, fec_down), "fec", ""),
        on_off(FIELD(GPonOltChannelCfg, mac_migration), "mac-migration", ""),
        on_off(FIELD(GPonOltChannelCfg, use_custom_optics_settings), "optics use-custom", "no optics use-custom"),
    };
    static constexpr Row<GPonOltChannelCfg> range = number(FIELD(GPonOltChannelCfg, onus_range), "range %u");
    static constexpr Row<GPonOltChannelCfg> no_range = whenever(FIELD(GPonOltChannelCfg, onus_range), "");
    static constexpr Row<GPonOltChannelCfg> forward =
        on_off(FIELD(GPonOltChannelCfg, unknown_multicast_forward), "unknown-multicast-forward enable", "");
    static constexpr Row<GPonOltChannelCfg> forward_to =
        enumeration(FIELD(GPonOltChannelCfg, unknown_multicast_forward_gem_port), "GPonGEMPortType_enum",
                    "unknown-multicast-forward to %s");
    static constexpr Row<GPonOltChannelCfg> forward_nowhere =
        whenever(FIELD(GPonOltChannelCfg, unknown_multicast_forward_gem_port), "");

    if (nothing_to_emit(lhs, rhs)) {
        return false;
    }
    const Where where{View::gpon_port, key, out};
    emit_changed(settings, changed_or_all, lhs, rhs, where);
    emit_changed(rhs->onus_range != 0 ? range : no_range, changed_or_all, lhs, rhs, where);
    emit_changed(forward, changed_or_all, lhs, rhs, where);
    emit_changed(rhs->unknown_multicast_forward != 0 ? forward_to : forward_nowhere, changed_or_all, lhs, rhs, where);
    descend(changed_or_all, getdiff_GPonOltGeneralOpticsCfg, lhs->optics, rhs->optics, key, out);
    return false;
}
