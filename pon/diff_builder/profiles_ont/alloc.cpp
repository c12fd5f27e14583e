#include "pon/diff_builder/profile.h"

using namespace pondiff;

bool getdiff_GPonProfileOntAlloc(GPonProfileOntAlloc* lhs, GPonProfileOntAlloc* rhs, int* key, List<char>& out)
{
    static constexpr Row<GPonProfileOntAlloc> allocation_scheme =
        on_off(FIELD(GPonProfileOntAlloc, allocate_new_alloc), "allocation-scheme allocate-new-t-cont",
               "no allocation-scheme");
    if (no_profile(lhs, rhs)) {
        return false;
    }
    const Where where{View::alloc, key, out};
    emit_profile_head(lhs, rhs, where);
    emit_changed(allocation_scheme, changed_or_all, lhs, rhs, where);
    descend(changed_or_all, getdiff_GPonOntDba, lhs->dba, rhs->dba, key, out);
    return false;
}

bool getdiff_GPonOntDba(GPonOntDba* lhs, GPonOntDba* rhs, int* key, List<char>& out)
{
    if (nothing_to_emit(lhs, rhs)) {
        return false;
    }
    char name[] = "sla_data";
    return getdiff_GZorvanSLA(name, &lhs->sla_data, &rhs->sla_data, key, out);
}

bool getdiff_GZorvanSLA(char* /*name*/, GZorvanSLA* lhs, GZorvanSLA* rhs, int* key, List<char>& out)
{
    static constexpr Row<GZorvanSLA> commands[] = {
        word(FIELD(GZorvanSLA, service_class), getGDBAServiceClass, "sla class \"%s\""),
        enumeration(FIELD(GZorvanSLA, status_reporting), "GDBAStatusReport_enum", "sla status-reporting \"%s\""),
        number(FIELD(GZorvanSLA, alloc_size), "alloc size \"%s\""),
        number(FIELD(GZorvanSLA, alloc_period), "alloc period \"%s\""),
        number(FIELD(GZorvanSLA, fixed_bandwidth), "bandwidth fixed \"%s\""),
        number(FIELD(GZorvanSLA, guaranteed_bandwidth), "bandwidth guaranteed \"%s\""),
        number(FIELD(GZorvanSLA, besteffort_bandwidth), "bandwidth besteffort \"%s\""),
    };
    if (nothing_to_emit(lhs, rhs)) {
        return false;
    }
    emit_changed(commands, changed_or_all, lhs, rhs, {View::alloc, key, out});
    return false;
}
