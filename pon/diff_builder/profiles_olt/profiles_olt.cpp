#include "pon/diff_builder/rows.h"

using namespace pondiff;

bool getdiff_GPonProfilesOlt(GPonProfilesOlt* lhs, GPonProfilesOlt* rhs, int* key, List<char>& out)
{
    if (nothing_to_say(lhs, rhs))
        return false;
    walk(changed_or_all, getdiff_GPonProfileOltVlan, lhs->vlan, rhs->vlan, 0, key, out);
    walk(changed_or_all, getdiff_GPonProfileOltAddressTable, lhs->address_table, rhs->address_table, 0, key, out);
    walk(changed_or_all, getdiff_GPonProfileOltPppoeIa, lhs->pppoe_ia, rhs->pppoe_ia, 0, key, out);
    walk(changed_or_all, getdiff_GPonProfileOltDhcpRa, lhs->dhcp_ra, rhs->dhcp_ra, 0, key, out);
    walk(changed_or_all, getdiff_GPonProfileOltDhcpv6Ra, lhs->dhcpv6_ra, rhs->dhcpv6_ra, 0, key, out);
    return false;
}
