#include "tool/describe/table.h"

namespace pondiff::tool {

static constexpr Field profiles_olt_fields[] = {
    record(FIELD(GPonProfilesOlt, vlan), vlan_profile_record,
           by_name.entered_by("profile vlan <#>").removed_by("no profile vlan <#>"), "VLAN profiles"),
    record(FIELD(GPonProfilesOlt, address_table), address_table_profile_record,
           by_name.entered_by("profile address-table <#>").removed_by("no profile address-table <#>"),
           "address-table profiles"),
    record(FIELD(GPonProfilesOlt, pppoe_ia), pppoe_ia_profile_record, by_name.entered_by("profile pppoe-ia <#>"),
           "PPPoE intermediate agent profiles"),
    record(FIELD(GPonProfilesOlt, dhcp_ra), dhcp_ra_profile_record, by_name.entered_by("profile dhcp-ra <#>"),
           "DHCP relay agent profiles"),
    record(FIELD(GPonProfilesOlt, dhcpv6_ra), dhcpv6_ra_profile_record, by_name.entered_by("profile dhcpv6-ra <#>"),
           "DHCPv6 relay agent profiles"),
};
DESCRIBE(GPonProfilesOlt, profiles_olt_record, profiles_olt_fields);

} // namespace pondiff::tool
