#include "tool/describe/table.h"

namespace pondiff::tool {

static constexpr Field uni_shaping_fields[] = {
    boolean(FIELD(GPonUniShaping, enable), on_off("port <#> shaper <*>", "no port <#> shaper <*>")),
    number(FIELD(GPonUniShaping, commited_rate), says("port <#> shaper <*> commited-rate <commited_rate>")),
    number(FIELD(GPonUniShaping, peak_rate), says("port <#> shaper <*> peak-rate <peak_rate>")),
};
DESCRIBE(GPonUniShaping, uni_shaping_record, uni_shaping_fields);

static constexpr Field uni_port_profile_fields[] = {
    enumeration(FIELD(GPonUniPort, speed), "GOntPortUniSpeed_enum", says("port <#> speed <speed>")),
    enumeration(FIELD(GPonUniPort, duplex), "GOntPortUniDuplex_enum", says("port <#> duplex <duplex>")),
    number(FIELD(GPonUniPort, bridge_group), says("port <#> bridge group <bridge_group>")),
    boolean(FIELD(GPonUniPort, remove_tag), on_off("port <#> remove-tag", "no port <#> remove-tag")),
    boolean(FIELD(GPonUniPort, spanning_tree_for_bridge_group),
            on_off("port <#> bridge group spanning-tree", "no port <#> bridge group spanning-tree")),
    boolean(FIELD(GPonUniPort, multicast_enable), on_off("port <#> multicast", "no port <#> multicast")),
    record(FIELD(GPonUniPort, multicast_port_settings), multicast_port_record, lead("port <#> igmp")),
    record(FIELD(GPonUniPort, shaper_downstream), uni_shaping_record, lead("downstream")),
    record(FIELD(GPonUniPort, shaper_upstream), uni_shaping_record, lead("upstream")),
    record(FIELD(GPonUniPort, poe), poe_record, no_command("power over Ethernet cannot be set in a profile")),
};
DESCRIBE(GPonUniPort, uni_port_profile_record, uni_port_profile_fields);

static constexpr Field veip_fields[] = {
    boolean(FIELD(GPonVeipPort, multicast_enable), on_off("veip multicast", "no veip multicast")),
    record(FIELD(GPonVeipPort, multicast_port_settings), multicast_port_record, lead("veip")),
};
DESCRIBE(GPonVeipPort, veip_record, veip_fields);

static constexpr Field ports_profile_fields[] = {
    number(FIELD(GPonProfileOntPorts, revision), counter),
    boolean(FIELD(GPonProfileOntPorts, exist), existence),
    text(FIELD(GPonProfileOntPorts, name), says("name <name>")),
    text(FIELD(GPonProfileOntPorts, description), says("description <description>")),
    enumeration(FIELD(GPonProfileOntPorts, multicast_ip_version), "GOntMulticastIpVersion_enum",
                says("multicast ip version <multicast_ip_version>")),
    record(FIELD(GPonProfileOntPorts, igmp_settings), igmp_record),
    record(FIELD(GPonProfileOntPorts, mld_settings), mld_record),
    record(FIELD(GPonProfileOntPorts, veip), veip_record),
    record(FIELD(GPonProfileOntPorts, port), uni_port_profile_record, "UNI ports"),
};
DESCRIBE(GPonProfileOntPorts, ports_profile_record, ports_profile_fields);

} // namespace pondiff::tool
