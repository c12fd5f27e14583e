#include "tool/describe/table.h"

namespace pondiff::tool {

static constexpr Field template_fields[] = {
    number(FIELD(GPonTemplateOnt, revision)),
    boolean(FIELD(GPonTemplateOnt, exist)),
    text(FIELD(GPonTemplateOnt, name)),
    text(FIELD(GPonTemplateOnt, description)),
    serial(FIELD(GPonTemplateOnt, serial)),
    boolean(FIELD(GPonTemplateOnt, serial_is_active)),
    secret(FIELD(GPonTemplateOnt, password)),
    boolean(FIELD(GPonTemplateOnt, password_is_active)),
    boolean(FIELD(GPonTemplateOnt, fec_up)),
    boolean(FIELD(GPonTemplateOnt, fec_up_is_active)),
    boolean(FIELD(GPonTemplateOnt, downstream_broadcast)),
    boolean(FIELD(GPonTemplateOnt, downstream_broadcast_is_active)),
    number(FIELD(GPonTemplateOnt, ber_interval)),
    boolean(FIELD(GPonTemplateOnt, ber_interval_is_active)),
    number(FIELD(GPonTemplateOnt, ber_update_period)),
    boolean(FIELD(GPonTemplateOnt, ber_update_period_is_active)),
    reference(FIELD(GPonTemplateOnt, profile_ont_shaping), Reference::shaping),
    boolean(FIELD(GPonTemplateOnt, profile_ont_shaping_is_active)),
    reference(FIELD(GPonTemplateOnt, profile_ont_cross_connect), Reference::cross_connect, {}, "services"),
    boolean(FIELD(GPonTemplateOnt, profile_ont_cross_connect_is_active), {}, "services"),
    reference(FIELD(GPonTemplateOnt, profile_ont_alloc), Reference::alloc, {}, "services"),
    boolean(FIELD(GPonTemplateOnt, profile_ont_alloc_is_active), {}, "services"),
    reference(FIELD(GPonTemplateOnt, profile_ont_ports), Reference::ports),
    boolean(FIELD(GPonTemplateOnt, profile_ont_ports_is_active)),
    reference(FIELD(GPonTemplateOnt, profile_ont_voice), Reference::voice),
    boolean(FIELD(GPonTemplateOnt, profile_ont_voice_is_active)),
    reference(FIELD(GPonTemplateOnt, profile_ont_management), Reference::management),
    boolean(FIELD(GPonTemplateOnt, profile_ont_management_is_active)),
    enumeration(FIELD(GPonTemplateOnt, rf_port_state), "GEnabledThirdState_enum"),
    boolean(FIELD(GPonTemplateOnt, rf_port_state_is_active)),
    boolean(FIELD(GPonTemplateOnt, omci_error_tolerant)),
    boolean(FIELD(GPonTemplateOnt, omci_error_tolerant_is_active)),
};
DESCRIBE(GPonTemplateOnt, template_record, template_fields);

} // namespace pondiff::tool
