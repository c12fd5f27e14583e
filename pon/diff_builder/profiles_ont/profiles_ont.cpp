#include "pon/diff_builder/rows.h"

using namespace pondiff;

/// Not in the order of the record: voice comes before management and the templates, which refer to all the others.
bool getdiff_GPonProfilesOnt(GPonProfilesOnt* lhs, GPonProfilesOnt* rhs, int* key, List<char>& out)
{
    if (nothing_to_say(lhs, rhs))
        return false;
    walk(changed_or_all, getdiff_GPonProfileOntShaping, lhs->shaping, rhs->shaping, 0, key, out);
    walk(changed_or_all, getdiff_GPonProfileOntCrossConnect, lhs->cross_connect, rhs->cross_connect, 0, key, out);
    walk(changed_or_all, getdiff_GPonProfileOntAlloc, lhs->alloc, rhs->alloc, 0, key, out);
    walk(changed_or_all, getdiff_GPonProfileOntPorts, lhs->ports, rhs->ports, 0, key, out);
    walk(changed_or_all, getdiff_GPonProfileOntVoice, lhs->voice, rhs->voice, 0, key, out);
    walk(changed_or_all, getdiff_GPonProfileOntManagement, lhs->management, rhs->management, 0, key, out);
    walk(changed_or_all, getdiff_GPonTemplateOnt, lhs->template_ont, rhs->template_ont, 0, key, out);
    return false;
}
