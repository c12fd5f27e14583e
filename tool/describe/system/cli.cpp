#include "tool/describe/table.h"

namespace pondiff::tool {

static constexpr Field web_fields[] = {
    number(AT(GSystemWebCfg, revision)),
    number(AT(GSystemWebCfg, session_timeout)),
};
DESCRIBE(GSystemWebCfg, web_record, web_fields);

static constexpr Field ont_list_fields[] = {
    boolean(AT(GCustomOntListShowing, serial)),
    boolean(AT(GCustomOntListShowing, ont_id)),
    boolean(AT(GCustomOntListShowing, assigned_channel)),
    boolean(AT(GCustomOntListShowing, channel)),
    boolean(AT(GCustomOntListShowing, status)),
    boolean(AT(GCustomOntListShowing, rssi)),
    boolean(AT(GCustomOntListShowing, profile_management)),
    boolean(AT(GCustomOntListShowing, profile_shaping)),
    boolean(AT(GCustomOntListShowing, profile_ports)),
    boolean(AT(GCustomOntListShowing, profile_cross_connect)),
    boolean(AT(GCustomOntListShowing, profile_alloc)),
    boolean(AT(GCustomOntListShowing, version)),
    boolean(AT(GCustomOntListShowing, equipment_id)),
    boolean(AT(GCustomOntListShowing, config_password)),
    boolean(AT(GCustomOntListShowing, received_password)),
    boolean(AT(GCustomOntListShowing, description)),
};
DESCRIBE(GCustomOntListShowing, ont_list_record, ont_list_fields);

static constexpr Field cli_fields[] = {
    number(AT(GSystemCliCfg, revision)),
    number(AT(GSystemCliCfg, session_timeout)),
    record(AT(GSystemCliCfg, custom_ont_list_showing), ont_list_record),
    number(AT(GSystemCliCfg, number_of_cli_sessions)),
};
DESCRIBE(GSystemCliCfg, cli_record, cli_fields);

} // namespace pondiff::tool
