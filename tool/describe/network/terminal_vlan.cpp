#include "tool/describe/table.h"

namespace pondiff::tool {

static constexpr Field tag_fields[] = {
    hexadecimal(FIELD(GVlanTag, ethertype), no_command("the ethertype of a terminal VLAN has no command")),
    number(FIELD(GVlanTag, vid), says("gpon network terminal-vlan <#> vid <vid>")),
    number(FIELD(GVlanTag, prio), says("gpon network terminal-vlan <#> cos <prio>")),
};
DESCRIBE(GVlanTag, tag_record, tag_fields);

static constexpr Field terminal_vlan_fields[] = {
    number(FIELD(GVlanTagEx, revision), counter),
    boolean(FIELD(GVlanTagEx, exists), existence),
    text(FIELD(GVlanTagEx, name), key("gpon network terminal-vlan <#>")),
    record(FIELD(GVlanTagEx, tag), tag_record),
};
DESCRIBE(GVlanTagEx, terminal_vlan_record, terminal_vlan_fields);

} // namespace pondiff::tool
