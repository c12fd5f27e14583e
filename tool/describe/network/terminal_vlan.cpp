#include "tool/describe/table.h"

namespace pondiff::tool {

static constexpr Field tag_fields[] = {
    hexadecimal(AT(GVlanTag, ethertype)),
    number(AT(GVlanTag, vid)),
    number(AT(GVlanTag, prio)),
};
DESCRIBE(GVlanTag, tag_record, tag_fields);

static constexpr Field terminal_vlan_fields[] = {
    number(AT(GVlanTagEx, revision)),
    boolean(AT(GVlanTagEx, exists)),
    text(AT(GVlanTagEx, name)),
    record(AT(GVlanTagEx, tag), tag_record),
};
DESCRIBE(GVlanTagEx, terminal_vlan_record, terminal_vlan_fields);

} // namespace pondiff::tool
