#include "tool/describe/table.h"

namespace pondiff::tool {

static constexpr Field policer_fields[] = {
    boolean(AT(GPonOntShapingDownstreamParams, enable)),
    number(AT(GPonOntShapingDownstreamParams, peak_rate)),
};
DESCRIBE(GPonOntShapingDownstreamParams, policer_record, policer_fields);

static constexpr Field downstream_fields[] = {
    boolean(AT(GPonOntShapingDownstream, one_policer)),
    record(AT(GPonOntShapingDownstream, policer), policer_record, "policers"),
};
DESCRIBE(GPonOntShapingDownstream, downstream_record, downstream_fields);

static constexpr Field shaper_fields[] = {
    boolean(AT(GPonOntShapingUpstreamParams, enable)),
    number(AT(GPonOntShapingUpstreamParams, commited_rate)),
    number(AT(GPonOntShapingUpstreamParams, peak_rate)),
};
DESCRIBE(GPonOntShapingUpstreamParams, shaper_record, shaper_fields);

static constexpr Field storm_control_fields[] = {
    number(AT(GPonOntStormControl, broadcast_threshold)),
    number(AT(GPonOntStormControl, multicast_threshold)),
    boolean(AT(GPonOntStormControl, broadcast_logging)),
    boolean(AT(GPonOntStormControl, multicast_logging)),
    boolean(AT(GPonOntStormControl, broadcast_shutdown)),
    boolean(AT(GPonOntStormControl, multicast_shutdown)),
};
DESCRIBE(GPonOntStormControl, storm_control_record, storm_control_fields);

static constexpr Field upstream_fields[] = {
    record(AT(GPonOntShapingUpstream, shaper), shaper_record, "shapers"),
    record(AT(GPonOntShapingUpstream, shaper_unicast), shaper_record, "shapers"),
    record(AT(GPonOntShapingUpstream, shaper_multicast), shaper_record, "shapers"),
    record(AT(GPonOntShapingUpstream, shaper_broadcast), shaper_record, "shapers"),
    record(AT(GPonOntShapingUpstream, storm_control), storm_control_record),
};
DESCRIBE(GPonOntShapingUpstream, upstream_record, upstream_fields);

static constexpr Field shaping_profile_fields[] = {
    number(AT(GPonProfileOntShaping, revision)),
    boolean(AT(GPonProfileOntShaping, exist)),
    text(AT(GPonProfileOntShaping, name)),
    text(AT(GPonProfileOntShaping, description)),
    record(AT(GPonProfileOntShaping, downstream), downstream_record),
    record(AT(GPonProfileOntShaping, upstream), upstream_record),
};
DESCRIBE(GPonProfileOntShaping, shaping_profile_record, shaping_profile_fields);

} // namespace pondiff::tool
