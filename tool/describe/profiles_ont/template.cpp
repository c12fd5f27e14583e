#include "tool/describe/table.h"

namespace pondiff::tool {

static constexpr Field template_fields[] = {
    number(AT(GPonTemplateOnt, revision)),
    boolean(AT(GPonTemplateOnt, exist)),
    text(AT(GPonTemplateOnt, name)),
    text(AT(GPonTemplateOnt, description)),
    serial(AT(GPonTemplateOnt, serial)),
    boolean(AT(GPonTemplateOnt, serial_is_active)),
    secret(AT(GPonTemplateOnt, password)),
    boolean(AT(GPonTemplateOnt, password_is_active)),
    boolean(AT(GPonTemplateOnt, fec_up)),
    boolean(AT(GPonTemplateOnt, fec_up_is_active)),
    boolean(AT(GPonTemplateOnt, downstream_broadcast)),
    boolean(AT(GPonTemplateOnt, downstream_broadcast_is_active)),
    number(AT(GPonTemplateOnt, ber_interval)),
    boolean(AT(GPonTemplateOnt, ber_interval_is_active)),
    number(AT(GPonTemplateOnt, ber_update_period)),
    boolean(AT(GPonTemplateOnt, ber_update_period_is_active)),
    reference(AT(GPonTemplateOnt, profile_ont_shaping), Reference::shaping),
    boolean(AT(GPonTemplateOnt, profile_ont_shaping_is_active)),
    reference(AT(GPonTemplateOnt, profile_ont_cross_connect), Reference::cross_connect, "services"),
    boolean(AT(GPonTemplateOnt, profile_ont_cross_connect_is_active), "services"),
    reference(AT(GPonTemplateOnt, profile_ont_alloc), Reference::alloc, "services"),
    boolean(AT(GPonTemplateOnt, profile_ont_alloc_is_active), "services"),
    reference(AT(GPonTemplateOnt, profile_ont_ports), Reference::ports),
    boolean(AT(GPonTemplateOnt, profile_ont_ports_is_active)),
    reference(AT(GPonTemplateOnt, profile_ont_voice), Reference::voice),
    boolean(AT(GPonTemplateOnt, profile_ont_voice_is_active)),
    reference(AT(GPonTemplateOnt, profile_ont_management), Reference::management),
    boolean(AT(GPonTemplateOnt, profile_ont_management_is_active)),
    enumeration(AT(GPonTemplateOnt, rf_port_state), "GEnabledThirdState_enum"),
    boolean(AT(GPonTemplateOnt, rf_port_state_is_active)),
    boolean(AT(GPonTemplateOnt, omci_error_tolerant)),
    boolean(AT(GPonTemplateOnt, omci_error_tolerant_is_active)),
};
DESCRIBE(GPonTemplateOnt, template_record, template_fields);

} // namespace pondiff::tool
