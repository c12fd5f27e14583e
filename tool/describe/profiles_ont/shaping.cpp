#include "tool/describe/table.h"

namespace pondiff::tool {

static constexpr Field policer_fields[] = {
    boolean(FIELD(GPonOntShapingDownstreamParams, enable)),
    number(FIELD(GPonOntShapingDownstreamParams, peak_rate)),
};
DESCRIBE(GPonOntShapingDownstreamParams, policer_record, policer_fields);

static constexpr Field downstream_fields[] = {
    boolean(FIELD(GPonOntShapingDownstream, one_policer)),
    record(FIELD(GPonOntShapingDownstream, policer), policer_record, "policers"),
};
DESCRIBE(GPonOntShapingDownstream, downstream_record, downstream_fields);

static constexpr Field shaper_fields[] = {
    boolean(FIELD(GPonOntShapingUpstreamParams, enable)),
    number(FIELD(GPonOntShapingUpstreamParams, commited_rate)),
    number(FIELD(GPonOntShapingUpstreamParams, peak_rate)),
};
DESCRIBE(GPonOntShapingUpstreamParams, shaper_record, shaper_fields);

static constexpr Field storm_control_fields[] = {
    number(FIELD(GPonOntStormControl, broadcast_threshold)),
    number(FIELD(GPonOntStormControl, multicast_threshold)),
    boolean(FIELD(GPonOntStormControl, broadcast_logging)),
    boolean(FIELD(GPonOntStormControl, multicast_logging)),
    boolean(FIELD(GPonOntStormControl, broadcast_shutdown)),
    boolean(FIELD(GPonOntStormControl, multicast_shutdown)),
};
DESCRIBE(GPonOntStormControl, storm_control_record, storm_control_fields);

static constexpr Field upstream_fields[] = {
    record(FIELD(GPonOntShapingUpstream, shaper), shaper_record, "shapers"),
    record(FIELD(GPonOntShapingUpstream, shaper_unicast), shaper_record, "shapers"),
    record(FIELD(GPonOntShapingUpstream, shaper_multicast), shaper_record, "shapers"),
    record(FIELD(GPonOntShapingUpstream, shaper_broadcast), shaper_record, "shapers"),
    record(FIELD(GPonOntShapingUpstream, storm_control), storm_control_record),
};
DESCRIBE(GPonOntShapingUpstream, upstream_record, upstream_fields);

static constexpr Field shaping_profile_fields[] = {
    number(FIELD(GPonProfileOntShaping, revision)),
    boolean(FIELD(GPonProfileOntShaping, exist)),
    text(FIELD(GPonProfileOntShaping, name)),
    text(FIELD(GPonProfileOntShaping, description)),
    record(FIELD(GPonProfileOntShaping, downstream), downstream_record),
    record(FIELD(GPonProfileOntShaping, upstream), upstream_record),
};
DESCRIBE(GPonProfileOntShaping, shaping_profile_record, shaping_profile_fields);

} // namespace pondiff::tool
