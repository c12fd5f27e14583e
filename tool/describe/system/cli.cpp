#include "tool/describe/table.h"

namespace pondiff::tool {

static constexpr Field web_fields[] = {
    number(FIELD(GSystemWebCfg, revision)),
    number(FIELD(GSystemWebCfg, session_timeout)),
};
DESCRIBE(GSystemWebCfg, web_record, web_fields);

static constexpr Field ont_list_fields[] = {
    boolean(FIELD(GCustomOntListShowing, serial)),
    boolean(FIELD(GCustomOntListShowing, ont_id)),
    boolean(FIELD(GCustomOntListShowing, assigned_channel)),
    boolean(FIELD(GCustomOntListShowing, channel)),
    boolean(FIELD(GCustomOntListShowing, status)),
    boolean(FIELD(GCustomOntListShowing, rssi)),
    boolean(FIELD(GCustomOntListShowing, profile_management)),
    boolean(FIELD(GCustomOntListShowing, profile_shaping)),
    boolean(FIELD(GCustomOntListShowing, profile_ports)),
    boolean(FIELD(GCustomOntListShowing, profile_cross_connect)),
    boolean(FIELD(GCustomOntListShowing, profile_alloc)),
    boolean(FIELD(GCustomOntListShowing, version)),
    boolean(FIELD(GCustomOntListShowing, equipment_id)),
    boolean(FIELD(GCustomOntListShowing, config_password)),
    boolean(FIELD(GCustomOntListShowing, received_password)),
    boolean(FIELD(GCustomOntListShowing, description)),
};
DESCRIBE(GCustomOntListShowing, ont_list_record, ont_list_fields);

static constexpr Field cli_fields[] = {
    number(FIELD(GSystemCliCfg, revision)),
    number(FIELD(GSystemCliCfg, session_timeout)),
    record(FIELD(GSystemCliCfg, custom_ont_list_showing), ont_list_record),
    number(FIELD(GSystemCliCfg, number_of_cli_sessions)),
};
DESCRIBE(GSystemCliCfg, cli_record, cli_fields);

} // namespace pondiff::tool
