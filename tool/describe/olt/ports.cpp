#include "tool/describe/table.h"

namespace pondiff::tool {

static constexpr Field channel_fields[] = {
    number(AT(GPonOltChannelCfg, revision)),
    boolean(AT(GPonOltChannelCfg, enabled)),
    boolean(AT(GPonOltChannelCfg, fec_down)),
    number(AT(GPonOltChannelCfg, max_ont_count)),
    reference(AT(GPonOltChannelCfg, profile_olt_vlan), Reference::vlan),
    reference(AT(GPonOltChannelCfg, profile_olt_address_table), Reference::address_table),
    boolean(AT(GPonOltChannelCfg, use_custom_optics_settings)),
    boolean(AT(GPonOltChannelCfg, mac_migration)),
    record(AT(GPonOltChannelCfg, optics), optics_record),
    number(AT(GPonOltChannelCfg, onus_range)),
    boolean(AT(GPonOltChannelCfg, unknown_multicast_forward)),
    enumeration(AT(GPonOltChannelCfg, unknown_multicast_forward_gem_port), "GPonGEMPortType_enum"),
};
DESCRIBE(GPonOltChannelCfg, channel_record, channel_fields);

static constexpr Field olt_fields[] = {
    record(AT(GPonOltCfg, general), olt_general_record),
    record(AT(GPonOltCfg, channel), channel_record, "GPON ports"),
};
DESCRIBE(GPonOltCfg, olt_record, olt_fields);

} // namespace pondiff::tool
