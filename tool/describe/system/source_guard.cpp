#include "tool/describe/table.h"

namespace pondiff::tool {

static constexpr Field bind_fields[] = {
    boolean(AT(GSystemSourceGuardBindCfg, exist)),
    ipv4(AT(GSystemSourceGuardBindCfg, ip)),
    mac(AT(GSystemSourceGuardBindCfg, mac)),
    number(AT(GSystemSourceGuardBindCfg, channel_index)),
    number(AT(GSystemSourceGuardBindCfg, ont_id)),
    number(AT(GSystemSourceGuardBindCfg, service_id)),
};
DESCRIBE(GSystemSourceGuardBindCfg, bind_record, bind_fields);

static constexpr Field vlan_allowed_fields[] = {
    boolean(AT(GSystemSourceGuardCfgVlanAllowed, allowed)),
};
DESCRIBE(GSystemSourceGuardCfgVlanAllowed, vlan_allowed_record, vlan_allowed_fields);

static constexpr Field source_guard_fields[] = {
    number(AT(GSystemSourceGuardCfg, revision)),
    boolean(AT(GSystemSourceGuardCfg, enabled)),
    enumeration(AT(GSystemSourceGuardCfg, mode), "GSystemIPSourceGuardMode_enum"),
    record(AT(GSystemSourceGuardCfg, bind), bind_record, "bindings"),
    flag_set(AT(GSystemSourceGuardCfg, vid), vlan_allowed_record, "VLANs"),
};
DESCRIBE(GSystemSourceGuardCfg, source_guard_record, source_guard_fields);

} // namespace pondiff::tool
