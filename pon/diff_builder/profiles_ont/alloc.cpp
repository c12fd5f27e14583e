#include "pon/diff_builder/rows.h"

using namespace pondiff;

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
    if (nothing_to_say(lhs, rhs))
        return false;
    emit_changed(commands, changed_or_all, lhs, rhs, {"dba-view", key, out});
    return false;
}
