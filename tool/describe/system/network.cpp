#include "tool/describe/table.h"

namespace pondiff::tool {

static constexpr Field system_network_fields[] = {
    number(FIELD(GSystemNetworkCfg, revision), counter),
    text(FIELD(GSystemNetworkCfg, hostname), says("hostname <hostname>")),
    ipv4(FIELD(GSystemNetworkCfg, ipaddr), says("management ip <ipaddr>").risky(RiskKind::management)),
    ipv4(FIELD(GSystemNetworkCfg, netmask), says("management mask <netmask>").risky(RiskKind::management)),
    number(FIELD(GSystemNetworkCfg, mngmtvlan), says("management vid <mngmtvlan>").risky(RiskKind::management)),
    ipv4(FIELD(GSystemNetworkCfg, gateway), says("management gateway <gateway>").risky(RiskKind::management)),
    number(FIELD(GSystemNetworkCfg, vlan_prio), says("management cos <vlan_prio>")),
    number(FIELD(GSystemNetworkCfg, dscp), says("management dscp <dscp>")),
    ipv4(FIELD(GSystemNetworkCfg, ACSIp), says("ip acs server ip <ACSIp>")),
    ipv4(FIELD(GSystemNetworkCfg, ACSMask), says("ip acs server mask <ACSMask>")),
    number(FIELD(GSystemNetworkCfg, ACSVid), says("ip acs server vid <ACSVid>")),
};
DESCRIBE(GSystemNetworkCfg, system_network_record, system_network_fields);

} // namespace pondiff::tool
