#include "pon/diff_builder/profile.h"

using namespace pondiff;

namespace {

void diff_shapers(const char* traffic_class, GPonOntShapingUpstreamParams (&lhs)[GCFG_SHAPERS],
                  GPonOntShapingUpstreamParams (&rhs)[GCFG_SHAPERS], int* key, List<char>& out)
{
    for (int i = 0; i < GCFG_SHAPERS; ++i) {
        key[of_element] = i;
        getdiff_GPonOntShapingUpstreamParams(traffic_class, &lhs[i], &rhs[i], key, out);
    }
}

/// The storm control of one kind of traffic.
struct Storm {
    u32 threshold;
    GBool_t logging;
    GBool_t shutdown;
};

enum StormStatus : unsigned char { storm_done = 0, storm_navigation_lost = 1, storm_command_lost = 3 };

/// One command for all settings: the rate limit only when it has changed, and all actions that are on.
StormStatus emit_storm(const char* traffic, const Storm& before, const Storm& after, const Where& where)
{
    const bool new_limit = before.threshold != after.threshold;
    if (!new_limit && before.logging == after.logging && before.shutdown == after.shutdown) {
        return storm_done;
    }
    if (!navigate(where)) {
        return storm_navigation_lost;
    }
    const char* const logging = after.logging != 0 ? " logging" : "";
    const char* const shutdown = after.shutdown != 0 ? " shutdown" : "";
    const bool emitted = new_limit ? command(where, "upstream %s storm-control rate-limit %u%s%s", traffic,
                                             after.threshold, logging, shutdown)
                                   : command(where, "upstream %s storm-control%s%s", traffic, logging, shutdown);
    return emitted ? storm_done : storm_command_lost;
}

} // namespace

bool getdiff_GPonProfileOntShaping(GPonProfileOntShaping* lhs, GPonProfileOntShaping* rhs, int* key, List<char>& out)
{
    if (no_profile(lhs, rhs)) {
        return false;
    }
    emit_profile_head(lhs, rhs, {View::shaping, key, out});
    descend(changed_or_all, getdiff_GPonOntShapingDownstream, lhs->downstream, rhs->downstream, key, out);
    descend(changed_or_all, getdiff_GPonOntShapingUpstream, lhs->upstream, rhs->upstream, key, out);
    return false;
}

bool getdiff_GPonOntShapingDownstream(GPonOntShapingDownstream* lhs, GPonOntShapingDownstream* rhs, int* key,
                                      List<char>& out)
{
    static constexpr Row<GPonOntShapingDownstream> one_policer =
        on_off(FIELD(GPonOntShapingDownstream, one_policer), "downstream one-policer", "no downstream one-policer");
    if (nothing_to_emit(lhs, rhs)) {
        return false;
    }
    emit_changed(one_policer, changed_or_all, lhs, rhs, {View::shaping, key, out});
    descend_each(changed_or_all, getdiff_GPonOntShapingDownstreamParams, lhs->policer, rhs->policer, of_element, key,
                 out);
    return false;
}

bool getdiff_GPonOntShapingDownstreamParams(GPonOntShapingDownstreamParams* lhs, GPonOntShapingDownstreamParams* rhs,
                                            int* key, List<char>& out)
{
    static constexpr Row<GPonOntShapingDownstreamParams> commands[] = {
        on_off(FIELD(GPonOntShapingDownstreamParams, enable), "downstream policer $ID1 enable",
               "no downstream policer $ID1 enable"),
        number(FIELD(GPonOntShapingDownstreamParams, peak_rate), "downstream policer $ID1 peak-rate \"%s\""),
    };
    if (nothing_to_emit(lhs, rhs)) {
        return false;
    }
    emit_changed(commands, changed_or_all, lhs, rhs, {View::shaping, key, out});
    return false;
}

bool getdiff_GPonOntShapingUpstream(GPonOntShapingUpstream* lhs, GPonOntShapingUpstream* rhs, int* key, List<char>& out)
{
    if (nothing_to_emit(lhs, rhs)) {
        return false;
    }
    diff_shapers("", lhs->shaper, rhs->shaper, key, out);
    diff_shapers("unicast", lhs->shaper_unicast, rhs->shaper_unicast, key, out);
    diff_shapers("multicast", lhs->shaper_multicast, rhs->shaper_multicast, key, out);
    diff_shapers("broadcast", lhs->shaper_broadcast, rhs->shaper_broadcast, key, out);
    descend(changed_or_all, getdiff_GPonOntStormControl, lhs->storm_control, rhs->storm_control, key, out);
    return false;
}

/// A full dump, too, shows only what differs. For the class without a word there are two blanks after "upstream".
bool getdiff_GPonOntShapingUpstreamParams(const char* traffic_class, GPonOntShapingUpstreamParams* lhs,
                                          GPonOntShapingUpstreamParams* rhs, int* key, List<char>& out)
{
    static constexpr Row<GPonOntShapingUpstreamParams> commands[] = {
        on_off(FIELD(GPonOntShapingUpstreamParams, enable), "upstream %s $ID1 enable", "no upstream %s $ID1 enable"),
        number_as_signed(FIELD(GPonOntShapingUpstreamParams, commited_rate), "upstream %s $ID1 commited-rate %d"),
        number_as_signed(FIELD(GPonOntShapingUpstreamParams, peak_rate), "upstream %s $ID1 peak-rate %d"),
    };
    if (nothing_to_emit(lhs, rhs)) {
        return false;
    }
    const Value lead = traffic_class;
    emit_changed(commands, changed_only, lhs, rhs, {View::shaping, key, out, &lead});
    return false;
}

/// A full dump, too, shows only what differs.
unsigned char getdiff_GPonOntStormControl(GPonOntStormControl* lhs, GPonOntStormControl* rhs, int* key, List<char>& out)
{
    constexpr unsigned char of_multicast = 10;
    if (nothing_to_emit(lhs, rhs)) {
        return storm_done;
    }
    const Where where{View::shaping, key, out};

    const StormStatus broadcast =
        emit_storm("broadcast", {lhs->broadcast_threshold, lhs->broadcast_logging, lhs->broadcast_shutdown},
                   {rhs->broadcast_threshold, rhs->broadcast_logging, rhs->broadcast_shutdown}, where);
    if (broadcast != storm_done) {
        return broadcast;
    }

    const StormStatus multicast =
        emit_storm("multicast", {lhs->multicast_threshold, lhs->multicast_logging, lhs->multicast_shutdown},
                   {rhs->multicast_threshold, rhs->multicast_logging, rhs->multicast_shutdown}, where);
    return multicast == storm_done ? storm_done : multicast + of_multicast;
}
