#include "tool/describe/table.h"

namespace pondiff::tool {

static constexpr Field cross_connect_profile_fields[] = {
    number(FIELD(GPonProfileOntCrossConnect, revision)),
    boolean(FIELD(GPonProfileOntCrossConnect, exist)),
    text(FIELD(GPonProfileOntCrossConnect, name)),
    text(FIELD(GPonProfileOntCrossConnect, description)),
    enumeration(FIELD(GPonProfileOntCrossConnect, model), "GOntBridgeModel_enum"),
    number(FIELD(GPonProfileOntCrossConnect, bridge_group)),
    enumeration(FIELD(GPonProfileOntCrossConnect, tag_mode), "GOntTagMode_enum"),
    reference(FIELD(GPonProfileOntCrossConnect, outer_vid), Reference::terminal_vlan_id),
    reference(FIELD(GPonProfileOntCrossConnect, outer_cos), Reference::terminal_vlan_priority),
    reference(FIELD(GPonProfileOntCrossConnect, inner_vid), Reference::terminal_vlan_id),
    reference(FIELD(GPonProfileOntCrossConnect, u_vid), Reference::terminal_vlan_id),
    reference(FIELD(GPonProfileOntCrossConnect, u_cos), Reference::terminal_vlan_priority),
    number(FIELD(GPonProfileOntCrossConnect, mac_table_entry_limit)),
    enumeration(FIELD(GPonProfileOntCrossConnect, type), "GOntCrossConnectType_enum"),
    number(FIELD(GPonProfileOntCrossConnect, iphost_eid)),
    number(FIELD(GPonProfileOntCrossConnect, priority_queue)),
};
DESCRIBE(GPonProfileOntCrossConnect, cross_connect_profile_record, cross_connect_profile_fields);

} // namespace pondiff::tool
