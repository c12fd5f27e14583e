#include "pon/diff_builder/rows.h"

using namespace pondiff;

/// Not in the order of the record: voice comes before management, and the templates, which refer to all others, last.
bool getdiff_GPonProfilesOnt(GPonProfilesOnt* lhs, GPonProfilesOnt* rhs, int* key, List<char>& out)
{
    if (nothing_to_emit(lhs, rhs)) {
        return false;
    }
    descend_each(changed_or_all, getdiff_GPonProfileOntShaping, lhs->shaping, rhs->shaping, of_object, key, out);
    descend_each(changed_or_all, getdiff_GPonProfileOntCrossConnect, lhs->cross_connect, rhs->cross_connect, of_object,
                 key, out);
    descend_each(changed_or_all, getdiff_GPonProfileOntAlloc, lhs->alloc, rhs->alloc, of_object, key, out);
    descend_each(changed_or_all, getdiff_GPonProfileOntPorts, lhs->ports, rhs->ports, of_object, key, out);
    descend_each(changed_or_all, getdiff_GPonProfileOntVoice, lhs->voice, rhs->voice, of_object, key, out);
    descend_each(changed_or_all, getdiff_GPonProfileOntManagement, lhs->management, rhs->management, of_object, key,
                 out);
    descend_each(changed_or_all, getdiff_GPonTemplateOnt, lhs->template_ont, rhs->template_ont, of_object, key, out);
    return false;
}
