#include "tool/describe/table.h"

namespace pondiff::tool {

static constexpr Field pon_network_fields[] = {
    number(FIELD(GPonNetworkCfg, revision), counter),
    number(FIELD(GPonNetworkCfg, mac_age_time), says("gpon network mac-age-time <mac_age_time>")),
    hexadecimal(FIELD(GPonNetworkCfg, svlan_ethertype), says("gpon network svlan-ethertype <svlan_ethertype>")),
    hexadecimal(FIELD(GPonNetworkCfg, cvlan_ethertype), says("gpon network cvlan-ethertype <cvlan_ethertype>")),
    number(FIELD(GPonNetworkCfg, mcvlan), no_command("the multicast VLAN has no command")),
    number(FIELD(GPonNetworkCfg, mccos), no_command("the class of service of multicast has no command")),
    record(FIELD(GPonNetworkCfg, terminal_vlan), terminal_vlan_record,
           by_name.removed_by("no gpon network terminal-vlan <#>"), "terminal VLANs"),
};
DESCRIBE(GPonNetworkCfg, pon_network_record, pon_network_fields);

} // namespace pondiff::tool
