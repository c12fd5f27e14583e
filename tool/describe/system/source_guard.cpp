#include "tool/describe/table.h"

namespace pondiff::tool {

static constexpr Field bind_fields[] = {
    boolean(FIELD(GSystemSourceGuardBindCfg, exist), existence),
    ipv4(FIELD(GSystemSourceGuardBindCfg, ip), key()),
    mac(FIELD(GSystemSourceGuardBindCfg, mac),
        says("ip source-guard bind ip <#> mac <mac> interface-ont <channel_index>/<ont_id> service <service_id>")),
    number(FIELD(GSystemSourceGuardBindCfg, channel_index), with("mac")),
    number(FIELD(GSystemSourceGuardBindCfg, ont_id), with("mac").as_signed()),
    number(FIELD(GSystemSourceGuardBindCfg, service_id), with("mac")),
};
DESCRIBE(GSystemSourceGuardBindCfg, bind_record, bind_fields);

static constexpr Field vlan_allowed_fields[] = {
    boolean(FIELD(GSystemSourceGuardCfgVlanAllowed, allowed),
            on_off("ip source-guard ignore-vlan <#>", "no ip source-guard ignore-vlan <#>")),
};
DESCRIBE(GSystemSourceGuardCfgVlanAllowed, vlan_allowed_record, vlan_allowed_fields);

static constexpr Field source_guard_fields[] = {
    number(FIELD(GSystemSourceGuardCfg, revision), counter),
    boolean(FIELD(GSystemSourceGuardCfg, enabled), on_off("ip source-guard enable", "no ip source-guard enable")),
    enumeration(FIELD(GSystemSourceGuardCfg, mode), "GSystemIPSourceGuardMode_enum",
                says("ip source-guard mode <mode>")),
    record(FIELD(GSystemSourceGuardCfg, bind), bind_record, by_key, "bindings"),
    flag_set(FIELD(GSystemSourceGuardCfg, vid), vlan_allowed_record, "VLANs"),
};
DESCRIBE(GSystemSourceGuardCfg, source_guard_record, source_guard_fields);

} // namespace pondiff::tool
