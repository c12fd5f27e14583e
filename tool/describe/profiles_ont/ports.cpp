#include "tool/describe/table.h"

namespace pondiff::tool {

static constexpr Field uni_shaping_fields[] = {
    boolean(FIELD(GPonUniShaping, enable)),
    number(FIELD(GPonUniShaping, commited_rate)),
    number(FIELD(GPonUniShaping, peak_rate)),
};
DESCRIBE(GPonUniShaping, uni_shaping_record, uni_shaping_fields);

static constexpr Field uni_port_profile_fields[] = {
    enumeration(FIELD(GPonUniPort, speed), "GOntPortUniSpeed_enum"),
    enumeration(FIELD(GPonUniPort, duplex), "GOntPortUniDuplex_enum"),
    number(FIELD(GPonUniPort, bridge_group)),
    boolean(FIELD(GPonUniPort, remove_tag)),
    boolean(FIELD(GPonUniPort, spanning_tree_for_bridge_group)),
    boolean(FIELD(GPonUniPort, multicast_enable)),
    record(FIELD(GPonUniPort, multicast_port_settings), multicast_port_record),
    record(FIELD(GPonUniPort, shaper_downstream), uni_shaping_record),
    record(FIELD(GPonUniPort, shaper_upstream), uni_shaping_record),
    record(FIELD(GPonUniPort, poe), poe_record),
};
DESCRIBE(GPonUniPort, uni_port_profile_record, uni_port_profile_fields);

static constexpr Field veip_fields[] = {
    boolean(FIELD(GPonVeipPort, multicast_enable)),
    record(FIELD(GPonVeipPort, multicast_port_settings), multicast_port_record),
};
DESCRIBE(GPonVeipPort, veip_record, veip_fields);

static constexpr Field ports_profile_fields[] = {
    number(FIELD(GPonProfileOntPorts, revision)),
    boolean(FIELD(GPonProfileOntPorts, exist)),
    text(FIELD(GPonProfileOntPorts, name)),
    text(FIELD(GPonProfileOntPorts, description)),
    enumeration(FIELD(GPonProfileOntPorts, multicast_ip_version), "GOntMulticastIpVersion_enum"),
    record(FIELD(GPonProfileOntPorts, igmp_settings), igmp_record),
    record(FIELD(GPonProfileOntPorts, mld_settings), mld_record),
    record(FIELD(GPonProfileOntPorts, veip), veip_record),
    record(FIELD(GPonProfileOntPorts, port), uni_port_profile_record, "UNI ports"),
};
DESCRIBE(GPonProfileOntPorts, ports_profile_record, ports_profile_fields);

} // namespace pondiff::tool
