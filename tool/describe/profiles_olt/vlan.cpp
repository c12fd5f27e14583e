#include "tool/describe/table.h"

namespace pondiff::tool {

static constexpr Field ethertypes_fields[] = {
    hexadecimal(AT(GVlanGeneralCfg, extended_svlan_type)),
    hexadecimal(AT(GVlanGeneralCfg, extended_cvlan_type)),
    hexadecimal(AT(GVlanGeneralCfg, insertion_svlan_ethertype)),
    hexadecimal(AT(GVlanGeneralCfg, insertion_cvlan_ethertype)),
};
DESCRIBE(GVlanGeneralCfg, ethertypes_record, ethertypes_fields);

static constexpr Field vlan_profile_fields[] = {
    number(AT(GPonProfileOltVlan, revision)),
    boolean(AT(GPonProfileOltVlan, exist)),
    text(AT(GPonProfileOltVlan, name)),
    text(AT(GPonProfileOltVlan, description)),
    record(AT(GPonProfileOltVlan, config_general), ethertypes_record, "directions"),
};
DESCRIBE(GPonProfileOltVlan, vlan_profile_record, vlan_profile_fields);

} // namespace pondiff::tool
