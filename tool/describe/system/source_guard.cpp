#include "tool/describe/table.h"

namespace pondiff::tool {

static constexpr Field bind_fields[] = {
    boolean(FIELD(GSystemSourceGuardBindCfg, exist)),
    ipv4(FIELD(GSystemSourceGuardBindCfg, ip)),
    mac(FIELD(GSystemSourceGuardBindCfg, mac)),
    number(FIELD(GSystemSourceGuardBindCfg, channel_index)),
    number(FIELD(GSystemSourceGuardBindCfg, ont_id)),
    number(FIELD(GSystemSourceGuardBindCfg, service_id)),
};
DESCRIBE(GSystemSourceGuardBindCfg, bind_record, bind_fields);

static constexpr Field vlan_allowed_fields[] = {
    boolean(FIELD(GSystemSourceGuardCfgVlanAllowed, allowed)),
};
DESCRIBE(GSystemSourceGuardCfgVlanAllowed, vlan_allowed_record, vlan_allowed_fields);

static constexpr Field source_guard_fields[] = {
    number(FIELD(GSystemSourceGuardCfg, revision)),
    boolean(FIELD(GSystemSourceGuardCfg, enabled)),
    enumeration(FIELD(GSystemSourceGuardCfg, mode), "GSystemIPSourceGuardMode_enum"),
    record(FIELD(GSystemSourceGuardCfg, bind), bind_record, "bindings"),
    flag_set(FIELD(GSystemSourceGuardCfg, vid), vlan_allowed_record, "VLANs"),
};
DESCRIBE(GSystemSourceGuardCfg, source_guard_record, source_guard_fields);

} // namespace pondiff::tool
