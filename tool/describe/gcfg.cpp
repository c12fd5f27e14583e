#include "tool/describe/table.h"

namespace pondiff::tool {

static constexpr Field pon_fields[] = {
    record(AT(GPonCfg, olt), olt_record),
    record(AT(GPonCfg, ont), ont_record, "ONTs"),
    record(AT(GPonCfg, network), pon_network_record),
    record(AT(GPonCfg, profiles_olt), profiles_olt_record),
    record(AT(GPonCfg, profiles_ont), profiles_ont_record),
};
DESCRIBE(GPonCfg, pon_record, pon_fields);

static constexpr Field gcfg_fields[] = {
    record(AT(GCfg, system), system_record),
    record(AT(GCfg, pon), pon_record),
};
DESCRIBE(GCfg, gcfg_record, gcfg_fields);

} // namespace pondiff::tool
