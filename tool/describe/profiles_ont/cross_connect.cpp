#include "tool/describe/table.h"

namespace pondiff::tool {

static constexpr Field cross_connect_profile_fields[] = {
    number(AT(GPonProfileOntCrossConnect, revision)),
    boolean(AT(GPonProfileOntCrossConnect, exist)),
    text(AT(GPonProfileOntCrossConnect, name)),
    text(AT(GPonProfileOntCrossConnect, description)),
    enumeration(AT(GPonProfileOntCrossConnect, model), "GOntBridgeModel_enum"),
    number(AT(GPonProfileOntCrossConnect, bridge_group)),
    enumeration(AT(GPonProfileOntCrossConnect, tag_mode), "GOntTagMode_enum"),
    reference(AT(GPonProfileOntCrossConnect, outer_vid), Reference::terminal_vlan_id),
    reference(AT(GPonProfileOntCrossConnect, outer_cos), Reference::terminal_vlan_priority),
    reference(AT(GPonProfileOntCrossConnect, inner_vid), Reference::terminal_vlan_id),
    reference(AT(GPonProfileOntCrossConnect, u_vid), Reference::terminal_vlan_id),
    reference(AT(GPonProfileOntCrossConnect, u_cos), Reference::terminal_vlan_priority),
    number(AT(GPonProfileOntCrossConnect, mac_table_entry_limit)),
    enumeration(AT(GPonProfileOntCrossConnect, type), "GOntCrossConnectType_enum"),
    number(AT(GPonProfileOntCrossConnect, iphost_eid)),
    number(AT(GPonProfileOntCrossConnect, priority_queue)),
};
DESCRIBE(GPonProfileOntCrossConnect, cross_connect_profile_record, cross_connect_profile_fields);

} // namespace pondiff::tool
