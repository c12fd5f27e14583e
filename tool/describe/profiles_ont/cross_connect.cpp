#include "tool/describe/table.h"

namespace pondiff::tool {

static constexpr Field cross_connect_profile_fields[] = {
    number(FIELD(GPonProfileOntCrossConnect, revision), counter),
    boolean(FIELD(GPonProfileOntCrossConnect, exist), existence),
    text(FIELD(GPonProfileOntCrossConnect, name), says("name <name>")),
    text(FIELD(GPonProfileOntCrossConnect, description), says("description <description>")),
    enumeration(FIELD(GPonProfileOntCrossConnect, model), "GOntBridgeModel_enum", whatever_the_value("bridge")),
    number(FIELD(GPonProfileOntCrossConnect, bridge_group), says("bridge group <bridge_group>")),
    enumeration(FIELD(GPonProfileOntCrossConnect, tag_mode), "GOntTagMode_enum", says("tag-mode <tag_mode>")),
    reference(FIELD(GPonProfileOntCrossConnect, outer_vid), Reference::terminal_vlan_id, says("outer vid <outer_vid>")),
    reference(FIELD(GPonProfileOntCrossConnect, outer_cos), Reference::terminal_vlan_priority,
              says("outer cos <outer_cos>")),
    reference(FIELD(GPonProfileOntCrossConnect, inner_vid), Reference::terminal_vlan_id, says("inner vid <inner_vid>")),
    reference(FIELD(GPonProfileOntCrossConnect, u_vid), Reference::terminal_vlan_id,
              says("user vid <u_vid>").word("untagged", 0)),
    reference(FIELD(GPonProfileOntCrossConnect, u_cos), Reference::terminal_vlan_priority,
              says("user cos <u_cos>").word("unused", 255)),
    number(FIELD(GPonProfileOntCrossConnect, mac_table_entry_limit),
           says("mac-table-limit <mac_table_entry_limit>").turned_off_by("no mac-table-limit", 127)),
    enumeration(FIELD(GPonProfileOntCrossConnect, type), "GOntCrossConnectType_enum", says("type <type>")),
    number(FIELD(GPonProfileOntCrossConnect, iphost_eid), says("iphost <iphost_eid>")),
    number(FIELD(GPonProfileOntCrossConnect, priority_queue), says("priority <priority_queue>")),
};
DESCRIBE(GPonProfileOntCrossConnect, cross_connect_profile_record, cross_connect_profile_fields);

} // namespace pondiff::tool
