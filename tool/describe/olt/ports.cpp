#include "tool/describe/table.h"

namespace pondiff::tool {

static constexpr Field channel_fields[] = {
    number(FIELD(GPonOltChannelCfg, revision)),
    boolean(FIELD(GPonOltChannelCfg, enabled)),
    boolean(FIELD(GPonOltChannelCfg, fec_down)),
    number(FIELD(GPonOltChannelCfg, max_ont_count)),
    reference(FIELD(GPonOltChannelCfg, profile_olt_vlan), Reference::vlan),
    reference(FIELD(GPonOltChannelCfg, profile_olt_address_table), Reference::address_table),
    boolean(FIELD(GPonOltChannelCfg, use_custom_optics_settings)),
    boolean(FIELD(GPonOltChannelCfg, mac_migration)),
    record(FIELD(GPonOltChannelCfg, optics), optics_record),
    number(FIELD(GPonOltChannelCfg, onus_range)),
    boolean(FIELD(GPonOltChannelCfg, unknown_multicast_forward)),
    enumeration(FIELD(GPonOltChannelCfg, unknown_multicast_forward_gem_port), "GPonGEMPortType_enum"),
};
DESCRIBE(GPonOltChannelCfg, channel_record, channel_fields);

static constexpr Field olt_fields[] = {
    record(FIELD(GPonOltCfg, general), olt_general_record),
    record(FIELD(GPonOltCfg, channel), channel_record, "GPON ports"),
};
DESCRIBE(GPonOltCfg, olt_record, olt_fields);

} // namespace pondiff::tool
