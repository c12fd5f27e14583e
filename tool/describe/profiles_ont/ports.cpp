#include "tool/describe/table.h"

namespace pondiff::tool {

static constexpr Field uni_shaping_fields[] = {
    boolean(AT(GPonUniShaping, enable)),
    number(AT(GPonUniShaping, commited_rate)),
    number(AT(GPonUniShaping, peak_rate)),
};
DESCRIBE(GPonUniShaping, uni_shaping_record, uni_shaping_fields);

static constexpr Field uni_port_profile_fields[] = {
    enumeration(AT(GPonUniPort, speed), "GOntPortUniSpeed_enum"),
    enumeration(AT(GPonUniPort, duplex), "GOntPortUniDuplex_enum"),
    number(AT(GPonUniPort, bridge_group)),
    boolean(AT(GPonUniPort, remove_tag)),
    boolean(AT(GPonUniPort, spanning_tree_for_bridge_group)),
    boolean(AT(GPonUniPort, multicast_enable)),
    record(AT(GPonUniPort, multicast_port_settings), multicast_port_record),
    record(AT(GPonUniPort, shaper_downstream), uni_shaping_record),
    record(AT(GPonUniPort, shaper_upstream), uni_shaping_record),
    record(AT(GPonUniPort, poe), poe_record),
};
DESCRIBE(GPonUniPort, uni_port_profile_record, uni_port_profile_fields);

static constexpr Field veip_fields[] = {
    boolean(AT(GPonVeipPort, multicast_enable)),
    record(AT(GPonVeipPort, multicast_port_settings), multicast_port_record),
};
DESCRIBE(GPonVeipPort, veip_record, veip_fields);

static constexpr Field ports_profile_fields[] = {
    number(AT(GPonProfileOntPorts, revision)),
    boolean(AT(GPonProfileOntPorts, exist)),
    text(AT(GPonProfileOntPorts, name)),
    text(AT(GPonProfileOntPorts, description)),
    enumeration(AT(GPonProfileOntPorts, multicast_ip_version), "GOntMulticastIpVersion_enum"),
    record(AT(GPonProfileOntPorts, igmp_settings), igmp_record),
    record(AT(GPonProfileOntPorts, mld_settings), mld_record),
    record(AT(GPonProfileOntPorts, veip), veip_record),
    record(AT(GPonProfileOntPorts, port), uni_port_profile_record, "UNI ports"),
};
DESCRIBE(GPonProfileOntPorts, ports_profile_record, ports_profile_fields);

} // namespace pondiff::tool
