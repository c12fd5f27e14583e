#include "tool/describe/table.h"

namespace pondiff::tool {

static constexpr Field route_fields[] = {
    boolean(AT(GSystemRouteCfg, exist)),
    ipv4(AT(GSystemRouteCfg, prefix)),
    number(AT(GSystemRouteCfg, mask)),
    ipv4(AT(GSystemRouteCfg, gateway)),
};
DESCRIBE(GSystemRouteCfg, route_record, route_fields);

static constexpr Field routing_fields[] = {
    number(AT(GSystemRoutingCfg, revision)),
    record(AT(GSystemRoutingCfg, route), route_record, "routes"),
};
DESCRIBE(GSystemRoutingCfg, routing_record, routing_fields);

} // namespace pondiff::tool
