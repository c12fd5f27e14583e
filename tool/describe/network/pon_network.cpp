#include "tool/describe/table.h"

namespace pondiff::tool {

static constexpr Field pon_network_fields[] = {
    number(FIELD(GPonNetworkCfg, revision)),
    number(FIELD(GPonNetworkCfg, mac_age_time)),
    hexadecimal(FIELD(GPonNetworkCfg, svlan_ethertype)),
    hexadecimal(FIELD(GPonNetworkCfg, cvlan_ethertype)),
    number(FIELD(GPonNetworkCfg, mcvlan)),
    number(FIELD(GPonNetworkCfg, mccos)),
    record(FIELD(GPonNetworkCfg, terminal_vlan), terminal_vlan_record, "terminal VLANs"),
};
DESCRIBE(GPonNetworkCfg, pon_network_record, pon_network_fields);

} // namespace pondiff::tool
