#include "tool/describe/table.h"

namespace pondiff::tool {

static constexpr Field system_network_fields[] = {
    number(FIELD(GSystemNetworkCfg, revision)),
    text(FIELD(GSystemNetworkCfg, hostname)),
    ipv4(FIELD(GSystemNetworkCfg, ipaddr)),
    ipv4(FIELD(GSystemNetworkCfg, netmask)),
    number(FIELD(GSystemNetworkCfg, mngmtvlan)),
    ipv4(FIELD(GSystemNetworkCfg, gateway)),
    number(FIELD(GSystemNetworkCfg, vlan_prio)),
    number(FIELD(GSystemNetworkCfg, dscp)),
    ipv4(FIELD(GSystemNetworkCfg, ACSIp)),
    ipv4(FIELD(GSystemNetworkCfg, ACSMask)),
    number(FIELD(GSystemNetworkCfg, ACSVid)),
};
DESCRIBE(GSystemNetworkCfg, system_network_record, system_network_fields);

} // namespace pondiff::tool
