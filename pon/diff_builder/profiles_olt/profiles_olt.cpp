#include "pon/diff_builder/rows.h"

using namespace pondiff;

bool getdiff_GPonProfilesOlt(GPonProfilesOlt* lhs, GPonProfilesOlt* rhs, int* key, List<char>& out)
{
    if (nothing_to_emit(lhs, rhs)) {
        return false;
    }
    descend_each(changed_or_all, getdiff_GPonProfileOltVlan, lhs->vlan, rhs->vlan, of_object, key, out);
    descend_each(changed_or_all, getdiff_GPonProfileOltAddressTable, lhs->address_table, rhs->address_table, of_object,
                 key, out);
    descend_each(changed_or_all, getdiff_GPonProfileOltPppoeIa, lhs->pppoe_ia, rhs->pppoe_ia, of_object, key, out);
    descend_each(changed_or_all, getdiff_GPonProfileOltDhcpRa, lhs->dhcp_ra, rhs->dhcp_ra, of_object, key, out);
    descend_each(changed_or_all, getdiff_GPonProfileOltDhcpv6Ra, lhs->dhcpv6_ra, rhs->dhcpv6_ra, of_object, key, out);
    return false;
}
