#include "tool/describe/table.h"

namespace pondiff::tool {

static constexpr Field system_network_fields[] = {
    number(AT(GSystemNetworkCfg, revision)),
    text(AT(GSystemNetworkCfg, hostname)),
    ipv4(AT(GSystemNetworkCfg, ipaddr)),
    ipv4(AT(GSystemNetworkCfg, netmask)),
    number(AT(GSystemNetworkCfg, mngmtvlan)),
    ipv4(AT(GSystemNetworkCfg, gateway)),
    number(AT(GSystemNetworkCfg, vlan_prio)),
    number(AT(GSystemNetworkCfg, dscp)),
    ipv4(AT(GSystemNetworkCfg, ACSIp)),
    ipv4(AT(GSystemNetworkCfg, ACSMask)),
    number(AT(GSystemNetworkCfg, ACSVid)),
};
DESCRIBE(GSystemNetworkCfg, system_network_record, system_network_fields);

} // namespace pondiff::tool
