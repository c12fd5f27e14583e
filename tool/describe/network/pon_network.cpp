#include "tool/describe/table.h"

namespace pondiff::tool {

static constexpr Field pon_network_fields[] = {
    number(AT(GPonNetworkCfg, revision)),
    number(AT(GPonNetworkCfg, mac_age_time)),
    hexadecimal(AT(GPonNetworkCfg, svlan_ethertype)),
    hexadecimal(AT(GPonNetworkCfg, cvlan_ethertype)),
    number(AT(GPonNetworkCfg, mcvlan)),
    number(AT(GPonNetworkCfg, mccos)),
    record(AT(GPonNetworkCfg, terminal_vlan), terminal_vlan_record, "terminal VLANs"),
};
DESCRIBE(GPonNetworkCfg, pon_network_record, pon_network_fields);

} // namespace pondiff::tool
