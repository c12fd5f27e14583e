#include "tool/describe/table.h"

namespace pondiff::tool {

static constexpr Field custom_cross_connect_fields[] = {
    boolean(AT(GPonOntCustomCrossConnect, exist)),
    number(AT(GPonOntCustomCrossConnect, vid)),
    number(AT(GPonOntCustomCrossConnect, cos)),
    number(AT(GPonOntCustomCrossConnect, svid)),
};
DESCRIBE(GPonOntCustomCrossConnect, custom_cross_connect_record, custom_cross_connect_fields);

static constexpr Field tunnel_fields[] = {
    ended_list(AT(GPonOntSelectiveTunnel, uvid), "tunnel VLANs"),
};
DESCRIBE(GPonOntSelectiveTunnel, tunnel_record, tunnel_fields);

static constexpr Field poe_fields[] = {
    boolean(AT(GPonUniPoE, enable)),
    number(AT(GPonUniPoE, power_detection_status)),
    number(AT(GPonUniPoE, power_classification_status)),
    number(AT(GPonUniPoE, pse_class_control)),
    number(AT(GPonUniPoE, power_priority)),
    number(AT(GPonUniPoE, current_power_consumption)),
};
DESCRIBE(GPonUniPoE, poe_record, poe_fields);

static constexpr Field uni_port_fields[] = {
    boolean(AT(GPonOntPort, shutdown)),
    record(AT(GPonOntPort, poe), poe_record),
};
DESCRIBE(GPonOntPort, uni_port_record, uni_port_fields);

static constexpr Field ont_fields[] = {
    number(AT(GPonOntCfg, revision)),
    boolean(AT(GPonOntCfg, exist)),
    text(AT(GPonOntCfg, description)),
    boolean(AT(GPonOntCfg, enabled)),
    serial(AT(GPonOntCfg, serial)),
    secret(AT(GPonOntCfg, password)),
    number(AT(GPonOntCfg, auth_method)),
    boolean(AT(GPonOntCfg, fec_up)),
    boolean(AT(GPonOntCfg, downstream_broadcast)),
    number(AT(GPonOntCfg, ber_interval)),
    number(AT(GPonOntCfg, ber_update_period)),
    boolean(AT(GPonOntCfg, pppoe_sessions_unlimit)),
    record(AT(GPonOntCfg, custom_cross_connect), custom_cross_connect_record, "services"),
    record(AT(GPonOntCfg, tunnel), tunnel_record, "services"),
    reference(AT(GPonOntCfg, profile_ont_shaping), Reference::shaping),
    reference(AT(GPonOntCfg, profile_ont_cross_connect), Reference::cross_connect, "services"),
    reference(AT(GPonOntCfg, profile_ont_alloc), Reference::alloc, "services"),
    reference(AT(GPonOntCfg, profile_ont_ports), Reference::ports),
    reference(AT(GPonOntCfg, profile_ont_voice), Reference::voice),
    reference(AT(GPonOntCfg, profile_ont_management), Reference::management),
    reference(AT(GPonOntCfg, template_ont), Reference::template_ont),
    enumeration(AT(GPonOntCfg, rf_port_state), "GEnabledThirdState_enum"),
    boolean(AT(GPonOntCfg, omci_error_tolerant)),
    enumeration(AT(GPonOntCfg, custom_model), "GOntCustomConfigModel_enum"),
    number(AT(GPonOntCfg, ems_profile_index)),
    record(AT(GPonOntCfg, voice), ont_voice_record),
    record(AT(GPonOntCfg, port), uni_port_record, "UNI ports"),
};
DESCRIBE(GPonOntCfg, ont_record, ont_fields);

} // namespace pondiff::tool
