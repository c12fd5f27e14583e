#include "tool/describe/table.h"

namespace pondiff::tool {

static constexpr Field route_fields[] = {
    boolean(FIELD(GSystemRouteCfg, exist), existence),
    ipv4(FIELD(GSystemRouteCfg, prefix), key()),
    number(FIELD(GSystemRouteCfg, mask), says("ip route prefix <#> mask <mask> gateway <gateway>")),
    ipv4(FIELD(GSystemRouteCfg, gateway), with("mask")),
};
DESCRIBE(GSystemRouteCfg, route_record, route_fields);

static constexpr Field routing_fields[] = {
    number(FIELD(GSystemRoutingCfg, revision), counter),
    record(FIELD(GSystemRoutingCfg, route), route_record, by_key, "routes"),
};
DESCRIBE(GSystemRoutingCfg, routing_record, routing_fields);

} // namespace pondiff::tool
