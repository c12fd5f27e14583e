#include "tool/describe/table.h"

namespace pondiff::tool {

static constexpr Field ethertypes_fields[] = {
    hexadecimal(FIELD(GVlanGeneralCfg, extended_svlan_type)),
    hexadecimal(FIELD(GVlanGeneralCfg, extended_cvlan_type)),
    hexadecimal(FIELD(GVlanGeneralCfg, insertion_svlan_ethertype)),
    hexadecimal(FIELD(GVlanGeneralCfg, insertion_cvlan_ethertype)),
};
DESCRIBE(GVlanGeneralCfg, ethertypes_record, ethertypes_fields);

static constexpr Field vlan_profile_fields[] = {
    number(FIELD(GPonProfileOltVlan, revision)),
    boolean(FIELD(GPonProfileOltVlan, exist)),
    text(FIELD(GPonProfileOltVlan, name)),
    text(FIELD(GPonProfileOltVlan, description)),
    record(FIELD(GPonProfileOltVlan, config_general), ethertypes_record, "directions"),
};
DESCRIBE(GPonProfileOltVlan, vlan_profile_record, vlan_profile_fields);

} // namespace pondiff::tool
