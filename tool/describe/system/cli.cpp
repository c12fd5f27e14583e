#include "tool/describe/table.h"

namespace pondiff::tool {

static constexpr Field web_fields[] = {
    number(FIELD(GSystemWebCfg, revision), counter),
    number(FIELD(GSystemWebCfg, session_timeout), no_command("the timeout of the web session has no command")),
};
DESCRIBE(GSystemWebCfg, web_record, web_fields);

static constexpr Field ont_list_fields[] = {
    boolean(FIELD(GCustomOntListShowing, serial), no_command("the column is always shown")),
    boolean(FIELD(GCustomOntListShowing, ont_id), no_command("the column is always shown")),
    boolean(FIELD(GCustomOntListShowing, assigned_channel),
            on_off("cli display assigned-channel", "no cli display assigned-channel")),
    boolean(FIELD(GCustomOntListShowing, channel), on_off("cli display gpon-port", "no cli display gpon-port")),
    boolean(FIELD(GCustomOntListShowing, status), on_off("cli display status", "no cli display status")),
    boolean(FIELD(GCustomOntListShowing, rssi), on_off("cli display rssi", "no cli display rssi")),
    boolean(FIELD(GCustomOntListShowing, profile_management),
            on_off("cli display profile management", "no cli display profile management")),
    boolean(FIELD(GCustomOntListShowing, profile_shaping),
            on_off("cli display profile shaping", "no cli display profile shaping")),
    boolean(FIELD(GCustomOntListShowing, profile_ports),
            on_off("cli display profile ports", "no cli display profile ports")),
    boolean(FIELD(GCustomOntListShowing, profile_cross_connect),
            on_off("cli display profile cross-connect", "no cli display profile cross-connect")),
    boolean(FIELD(GCustomOntListShowing, profile_alloc),
            on_off("cli display profile dba", "no cli display profile dba")),
    boolean(FIELD(GCustomOntListShowing, version), on_off("cli display version", "no cli display version")),
    boolean(FIELD(GCustomOntListShowing, equipment_id),
            on_off("cli display equipment-id", "no cli display equipment-id")),
    boolean(FIELD(GCustomOntListShowing, config_password),
            on_off("cli display config-password", "no cli display config-password")),
    boolean(FIELD(GCustomOntListShowing, received_password),
            on_off("cli display received-password", "no cli display received-password")),
    boolean(FIELD(GCustomOntListShowing, description), on_off("cli display description", "no cli display description")),
};
DESCRIBE(GCustomOntListShowing, ont_list_record, ont_list_fields);

static constexpr Field cli_fields[] = {
    number(FIELD(GSystemCliCfg, revision), counter),
    number(FIELD(GSystemCliCfg, session_timeout), says("cli session-timeout <session_timeout>")),
    record(FIELD(GSystemCliCfg, custom_ont_list_showing), ont_list_record),
    number(FIELD(GSystemCliCfg, number_of_cli_sessions), says("cli max-sessions <number_of_cli_sessions>")),
};
DESCRIBE(GSystemCliCfg, cli_record, cli_fields);

} // namespace pondiff::tool
