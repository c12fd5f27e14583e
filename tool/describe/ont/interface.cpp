#include "tool/describe/table.h"

namespace pondiff::tool {

static constexpr Field custom_cross_connect_fields[] = {
    boolean(FIELD(GPonOntCustomCrossConnect, exist)),
    number(FIELD(GPonOntCustomCrossConnect, vid)),
    number(FIELD(GPonOntCustomCrossConnect, cos)),
    number(FIELD(GPonOntCustomCrossConnect, svid)),
};
DESCRIBE(GPonOntCustomCrossConnect, custom_cross_connect_record, custom_cross_connect_fields);

static constexpr Field tunnel_fields[] = {
    ended_list(FIELD(GPonOntSelectiveTunnel, uvid), {}, "tunnel VLANs"),
};
DESCRIBE(GPonOntSelectiveTunnel, tunnel_record, tunnel_fields);

static constexpr Field poe_fields[] = {
    boolean(FIELD(GPonUniPoE, enable)),
    number(FIELD(GPonUniPoE, power_detection_status)),
    number(FIELD(GPonUniPoE, power_classification_status)),
    number(FIELD(GPonUniPoE, pse_class_control)),
    number(FIELD(GPonUniPoE, power_priority)),
    number(FIELD(GPonUniPoE, current_power_consumption)),
};
DESCRIBE(GPonUniPoE, poe_record, poe_fields);

static constexpr Field uni_port_fields[] = {
    boolean(FIELD(GPonOntPort, shutdown)),
    record(FIELD(GPonOntPort, poe), poe_record),
};
DESCRIBE(GPonOntPort, uni_port_record, uni_port_fields);

static constexpr Field ont_fields[] = {
    number(FIELD(GPonOntCfg, revision)),
    boolean(FIELD(GPonOntCfg, exist)),
    text(FIELD(GPonOntCfg, description)),
    boolean(FIELD(GPonOntCfg, enabled)),
    serial(FIELD(GPonOntCfg, serial)),
    secret(FIELD(GPonOntCfg, password)),
    number(FIELD(GPonOntCfg, auth_method)),
    boolean(FIELD(GPonOntCfg, fec_up)),
    boolean(FIELD(GPonOntCfg, downstream_broadcast)),
    number(FIELD(GPonOntCfg, ber_interval)),
    number(FIELD(GPonOntCfg, ber_update_period)),
    boolean(FIELD(GPonOntCfg, pppoe_sessions_unlimit)),
    record(FIELD(GPonOntCfg, custom_cross_connect), custom_cross_connect_record, "services"),
    record(FIELD(GPonOntCfg, tunnel), tunnel_record, "services"),
    reference(FIELD(GPonOntCfg, profile_ont_shaping), Reference::shaping),
    reference(FIELD(GPonOntCfg, profile_ont_cross_connect), Reference::cross_connect, {}, "services"),
    reference(FIELD(GPonOntCfg, profile_ont_alloc), Reference::alloc, {}, "services"),
    reference(FIELD(GPonOntCfg, profile_ont_ports), Reference::ports),
    reference(FIELD(GPonOntCfg, profile_ont_voice), Reference::voice),
    reference(FIELD(GPonOntCfg, profile_ont_management), Reference::management),
    reference(FIELD(GPonOntCfg, template_ont), Reference::template_ont),
    enumeration(FIELD(GPonOntCfg, rf_port_state), "GEnabledThirdState_enum"),
    boolean(FIELD(GPonOntCfg, omci_error_tolerant)),
    enumeration(FIELD(GPonOntCfg, custom_model), "GOntCustomConfigModel_enum"),
    number(FIELD(GPonOntCfg, ems_profile_index)),
    record(FIELD(GPonOntCfg, voice), ont_voice_record),
    record(FIELD(GPonOntCfg, port), uni_port_record, "UNI ports"),
};
DESCRIBE(GPonOntCfg, ont_record, ont_fields);

} // namespace pondiff::tool
