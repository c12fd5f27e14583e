#include "pon/diff_builder/rows.h"

using namespace pondiff;

/// `print_all` forces nothing at this level: a full dump of two equal system parts has no system commands.
bool getdiff_GSystemCfg(GSystemCfg* lhs, GSystemCfg* rhs, int* key, List<char>& out)
{
    if (nothing_to_say(lhs, rhs))
        return false;
    descend(changed_only, getdiff_GSystemNetworkCfg, lhs->network, rhs->network, key, out);
    descend(changed_only, getdiff_GSystemCommonSettings, lhs->settings, rhs->settings, key, out);
    return false;
}
