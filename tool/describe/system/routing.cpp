#include "tool/describe/table.h"

namespace pondiff::tool {

static constexpr Field route_fields[] = {
    boolean(FIELD(GSystemRouteCfg, exist)),
    ipv4(FIELD(GSystemRouteCfg, prefix)),
    number(FIELD(GSystemRouteCfg, mask)),
    ipv4(FIELD(GSystemRouteCfg, gateway)),
};
DESCRIBE(GSystemRouteCfg, route_record, route_fields);

static constexpr Field routing_fields[] = {
    number(FIELD(GSystemRoutingCfg, revision)),
    record(FIELD(GSystemRoutingCfg, route), route_record, "routes"),
};
DESCRIBE(GSystemRoutingCfg, routing_record, routing_fields);

} // namespace pondiff::tool
