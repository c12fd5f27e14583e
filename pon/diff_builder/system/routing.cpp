#include "pon/diff_builder/rows.h"

using namespace pondiff;

/// A full dump, too, shows only the routes that differ.
bool getdiff_GSystemRoutingCfg(GSystemRoutingCfg* lhs, GSystemRoutingCfg* rhs, int* key, List<char>& out)
{
    if (nothing_to_emit(lhs, rhs)) {
        return false;
    }
    descend_each(changed_only, getdiff_GSystemRouteCfg, lhs->route, rhs->route, of_object, key, out);
    return false;
}

/// No command removes a route: a cleared slot is emitted with its cleared values.
bool getdiff_GSystemRouteCfg(GSystemRouteCfg* lhs, GSystemRouteCfg* rhs, int* key, List<char>& out)
{
    if (nothing_to_emit(lhs, rhs)) {
        return false;
    }
    emit({View::configure, key, out}, "ip route prefix $ID0 mask \"%s\" gateway \"%s\"", rhs->mask,
         ipv4_of(rhs->gateway));
    return false;
}
