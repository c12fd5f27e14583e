#include "tool/describe/table.h"

namespace pondiff::tool {

static const char* direction(int value)
{
    switch (value) {
    case 0:
        return "uplink";
    case 1:
        return "downlink";
    default:
        return nullptr;
    }
}

static constexpr Field ethertypes_fields[] = {
    hexadecimal(FIELD(GVlanGeneralCfg, extended_svlan_type), says("<#> extended svlan-type <extended_svlan_type>")),
    hexadecimal(FIELD(GVlanGeneralCfg, extended_cvlan_type), says("<#> extended cvlan-type <extended_cvlan_type>")),
    hexadecimal(FIELD(GVlanGeneralCfg, insertion_svlan_ethertype),
                says("<#> insertion svlan-ethertype <insertion_svlan_ethertype>")),
    hexadecimal(FIELD(GVlanGeneralCfg, insertion_cvlan_ethertype),
                says("<#> insertion cvlan-ethertype <insertion_cvlan_ethertype>")),
};
DESCRIBE(GVlanGeneralCfg, ethertypes_record, ethertypes_fields);

static constexpr Field vlan_profile_fields[] = {
    number(FIELD(GPonProfileOltVlan, revision), counter),
    boolean(FIELD(GPonProfileOltVlan, exist), existence),
    text(FIELD(GPonProfileOltVlan, name), says("name <name>")),
    text(FIELD(GPonProfileOltVlan, description), says("description <description>")),
    record(FIELD(GPonProfileOltVlan, config_general), ethertypes_record, by_word(direction), "directions"),
};
DESCRIBE(GPonProfileOltVlan, vlan_profile_record, vlan_profile_fields);

} // namespace pondiff::tool
