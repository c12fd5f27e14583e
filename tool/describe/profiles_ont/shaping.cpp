#include "tool/describe/table.h"

namespace pondiff::tool {

static constexpr Field policer_fields[] = {
    boolean(FIELD(GPonOntShapingDownstreamParams, enable),
            on_off("downstream policer <#> enable", "no downstream policer <#> enable")),
    number(FIELD(GPonOntShapingDownstreamParams, peak_rate), says("downstream policer <#> peak-rate <peak_rate>")),
};
DESCRIBE(GPonOntShapingDownstreamParams, policer_record, policer_fields);

static constexpr Field downstream_fields[] = {
    boolean(FIELD(GPonOntShapingDownstream, one_policer),
            on_off("downstream one-policer", "no downstream one-policer")),
    record(FIELD(GPonOntShapingDownstream, policer), policer_record, "policers"),
};
DESCRIBE(GPonOntShapingDownstream, downstream_record, downstream_fields);

static constexpr Field shaper_fields[] = {
    boolean(FIELD(GPonOntShapingUpstreamParams, enable),
            on_off("upstream <*> <#> enable", "no upstream <*> <#> enable")),
    number(FIELD(GPonOntShapingUpstreamParams, commited_rate),
           says("upstream <*> <#> commited-rate <commited_rate>").as_signed()),
    number(FIELD(GPonOntShapingUpstreamParams, peak_rate), says("upstream <*> <#> peak-rate <peak_rate>").as_signed()),
};
DESCRIBE(GPonOntShapingUpstreamParams, shaper_record, shaper_fields);

static constexpr Field storm_control_fields[] = {
    number(FIELD(GPonOntStormControl, broadcast_threshold),
           says("upstream broadcast storm-control [rate-limit <broadcast_threshold>] [logging:broadcast_logging] "
                "[shutdown:broadcast_shutdown]")),
    number(FIELD(GPonOntStormControl, multicast_threshold),
           says("upstream multicast storm-control [rate-limit <multicast_threshold>] [logging:multicast_logging] "
                "[shutdown:multicast_shutdown]")),
    boolean(FIELD(GPonOntStormControl, broadcast_logging), with("broadcast_threshold")),
    boolean(FIELD(GPonOntStormControl, multicast_logging), with("multicast_threshold")),
    boolean(FIELD(GPonOntStormControl, broadcast_shutdown), with("broadcast_threshold")),
    boolean(FIELD(GPonOntStormControl, multicast_shutdown), with("multicast_threshold")),
};
DESCRIBE(GPonOntStormControl, storm_control_record, storm_control_fields);

static constexpr Field upstream_fields[] = {
    record(FIELD(GPonOntShapingUpstream, shaper), shaper_record, lead(""), "shapers"),
    record(FIELD(GPonOntShapingUpstream, shaper_unicast), shaper_record, lead("unicast"), "shapers"),
    record(FIELD(GPonOntShapingUpstream, shaper_multicast), shaper_record, lead("multicast"), "shapers"),
    record(FIELD(GPonOntShapingUpstream, shaper_broadcast), shaper_record, lead("broadcast"), "shapers"),
    record(FIELD(GPonOntShapingUpstream, storm_control), storm_control_record),
};
DESCRIBE(GPonOntShapingUpstream, upstream_record, upstream_fields);

static constexpr Field shaping_profile_fields[] = {
    number(FIELD(GPonProfileOntShaping, revision), counter),
    boolean(FIELD(GPonProfileOntShaping, exist), existence),
    text(FIELD(GPonProfileOntShaping, name), says("name <name>")),
    text(FIELD(GPonProfileOntShaping, description), says("description <description>")),
    record(FIELD(GPonProfileOntShaping, downstream), downstream_record),
    record(FIELD(GPonProfileOntShaping, upstream), upstream_record),
};
DESCRIBE(GPonProfileOntShaping, shaping_profile_record, shaping_profile_fields);

} // namespace pondiff::tool
