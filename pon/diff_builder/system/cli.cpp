#include "pon/diff_builder/rows.h"

using namespace pondiff;

bool getdiff_GSystemCliCfg(GSystemCliCfg* lhs, GSystemCliCfg* rhs, int* key, List<char>& out)
{
    static constexpr Row<GSystemCliCfg> commands[] = {
        number(FIELD(GSystemCliCfg, session_timeout), "cli session-timeout \"%s\""),
        number(FIELD(GSystemCliCfg, number_of_cli_sessions), "cli max-sessions \"%s\""),
    };
    if (nothing_to_emit(lhs, rhs)) {
        return false;
    }
    emit_changed(commands, changed_or_all, lhs, rhs, {View::configure, key, out});
    descend(changed_or_all, getdiff_GCustomOntListShowing, lhs->custom_ont_list_showing, rhs->custom_ont_list_showing,
            key, out);
    return false;
}

/// Not in the order of the fields: the columns of profiles come last. Serial number and ONT id are always shown.
bool getdiff_GCustomOntListShowing(GCustomOntListShowing* lhs, GCustomOntListShowing* rhs, int* key, List<char>& out)
{
    static constexpr Row<GCustomOntListShowing> columns[] = {
        on_off(FIELD(GCustomOntListShowing, assigned_channel), "cli display assigned-channel",
               "no cli display assigned-channel"),
        on_off(FIELD(GCustomOntListShowing, channel), "cli display gpon-port", "no cli display gpon-port"),
        on_off(FIELD(GCustomOntListShowing, status), "cli display status", "no cli display status"),
        on_off(FIELD(GCustomOntListShowing, rssi), "cli display rssi", "no cli display rssi"),
        on_off(FIELD(GCustomOntListShowing, version), "cli display version", "no cli display version"),
        on_off(FIELD(GCustomOntListShowing, equipment_id), "cli display equipment-id", "no cli display equipment-id"),
        on_off(FIELD(GCustomOntListShowing, config_password), "cli display config-password",
               "no cli display config-password"),
        on_off(FIELD(GCustomOntListShowing, received_password), "cli display received-password",
               "no cli display received-password"),
        on_off(FIELD(GCustomOntListShowing, description), "cli display description", "no cli display description"),
        on_off(FIELD(GCustomOntListShowing, profile_management), "cli display profile management",
               "no cli display profile management"),
        on_off(FIELD(GCustomOntListShowing, profile_shaping), "cli display profile shaping",
               "no cli display profile shaping"),
        on_off(FIELD(GCustomOntListShowing, profile_ports), "cli display profile ports",
               "no cli display profile ports"),
        on_off(FIELD(GCustomOntListShowing, profile_cross_connect), "cli display profile cross-connect",
               "no cli display profile cross-connect"),
        on_off(FIELD(GCustomOntListShowing, profile_alloc), "cli display profile dba", "no cli display profile dba"),
    };
    if (nothing_to_emit(lhs, rhs)) {
        return false;
    }
    emit_changed(columns, changed_or_all, lhs, rhs, {View::configure, key, out});
    return false;
}
