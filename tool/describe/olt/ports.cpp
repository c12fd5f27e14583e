#include "tool/describe/table.h"

namespace pondiff::tool {

static constexpr Field channel_fields[] = {
    number(FIELD(GPonOltChannelCfg, revision), counter),
    boolean(FIELD(GPonOltChannelCfg, enabled), on_off(nullptr, "shutdown").risky_when_off(RiskKind::shutdown)),
    boolean(FIELD(GPonOltChannelCfg, fec_down), on_off("fec", nullptr)),
    number(FIELD(GPonOltChannelCfg, max_ont_count), no_command("the limit of ONTs has no command")),
    reference(FIELD(GPonOltChannelCfg, profile_olt_vlan), Reference::vlan, says("profile vlan <profile_olt_vlan>")),
    reference(FIELD(GPonOltChannelCfg, profile_olt_address_table), Reference::address_table,
              says("profile address-table <profile_olt_address_table>")),
    boolean(FIELD(GPonOltChannelCfg, use_custom_optics_settings), on_off("optics use-custom", "no optics use-custom")),
    boolean(FIELD(GPonOltChannelCfg, mac_migration), on_off("mac-migration", nullptr)),
    record(FIELD(GPonOltChannelCfg, optics), optics_record),
    number(FIELD(GPonOltChannelCfg, onus_range), says("range <onus_range>")),
    boolean(FIELD(GPonOltChannelCfg, unknown_multicast_forward), on_off("unknown-multicast-forward enable", nullptr)),
    enumeration(FIELD(GPonOltChannelCfg, unknown_multicast_forward_gem_port), "GPonGEMPortType_enum",
                says("unknown-multicast-forward to <unknown_multicast_forward_gem_port>")),
};
DESCRIBE(GPonOltChannelCfg, channel_record, channel_fields);

static constexpr Field olt_fields[] = {
    record(FIELD(GPonOltCfg, general), olt_general_record, risky(RiskKind::network)),
    record(FIELD(GPonOltCfg, channel), channel_record, by_number.entered_by("interface gpon-port <#>"), "GPON ports"),
};
DESCRIBE(GPonOltCfg, olt_record, olt_fields);

} // namespace pondiff::tool
