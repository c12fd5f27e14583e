#include "tool/describe/table.h"

namespace pondiff::tool {

static constexpr Field pon_fields[] = {
    record(FIELD(GPonCfg, olt), olt_record),
    record(FIELD(GPonCfg, ont), ont_record,
           by_port_and_id.entered_by("interface ont <#>").removed_by("no interface ont <#>"), "ONTs"),
    record(FIELD(GPonCfg, network), pon_network_record, risky(RiskKind::network)),
    record(FIELD(GPonCfg, profiles_olt), profiles_olt_record),
    record(FIELD(GPonCfg, profiles_ont), profiles_ont_record),
};
DESCRIBE(GPonCfg, pon_record, pon_fields);

static constexpr Field gcfg_fields[] = {
    record(FIELD(GCfg, system), system_record),
    record(FIELD(GCfg, pon), pon_record),
};
DESCRIBE(GCfg, gcfg_record, gcfg_fields);

} // namespace pondiff::tool
