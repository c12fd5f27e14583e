#include "tool/describe/table.h"

namespace pondiff::tool {

static constexpr Field tag_fields[] = {
    hexadecimal(FIELD(GVlanTag, ethertype)),
    number(FIELD(GVlanTag, vid)),
    number(FIELD(GVlanTag, prio)),
};
DESCRIBE(GVlanTag, tag_record, tag_fields);

static constexpr Field terminal_vlan_fields[] = {
    number(FIELD(GVlanTagEx, revision)),
    boolean(FIELD(GVlanTagEx, exists)),
    text(FIELD(GVlanTagEx, name)),
    record(FIELD(GVlanTagEx, tag), tag_record),
};
DESCRIBE(GVlanTagEx, terminal_vlan_record, terminal_vlan_fields);

} // namespace pondiff::tool
