#include "pon/diff_builder/profile.h"

using namespace pondiff;

namespace {

/// One command for both limits, their values without quotes. It is never forced.
void emit_session_limits(const GPonProfileOltPppoeIa* lhs, const GPonProfileOltPppoeIa* rhs, const Where& where)
{
    constexpr u32 no_limit_per_user = 5;
    const Value limit = rhs->max_number_pppoe_sessions;
    const Value per_user = rhs->max_number_pppoe_sessions_per_user == no_limit_per_user
                               ? Value("unlimited")
                               : Value(rhs->max_number_pppoe_sessions_per_user);
    const bool limit_changed = lhs->max_number_pppoe_sessions != rhs->max_number_pppoe_sessions;
    const bool per_user_changed = lhs->max_number_pppoe_sessions_per_user != rhs->max_number_pppoe_sessions_per_user;
    if (limit_changed && per_user_changed) {
        emit(where, "sessions-limit %s per-user %s", limit, per_user);
    } else if (limit_changed) {
        emit(where, "sessions-limit %s", limit);
    } else if (per_user_changed) {
        emit(where, "sessions-limit per-user %s", per_user);
    }
}

} // namespace

/// No command deletes a profile: for a removed one, only its changed fields are emitted.
bool getdiff_GPonProfileOltPppoeIa(GPonProfileOltPppoeIa* lhs, GPonProfileOltPppoeIa* rhs, int* key, List<char>& out)
{
    static constexpr Row<GPonProfileOltPppoeIa> agent[] = {
        on_off(FIELD(GPonProfileOltPppoeIa, pppoe_plus_enabled), "enable", "no enable"),
        channel_format(FIELD(GPonProfileOltPppoeIa, circuit_id_format), "format circuit-id \"%s\""),
        channel_format(FIELD(GPonProfileOltPppoeIa, remote_id_format), "format remote-id \"%s\""),
        hexadecimal(FIELD(GPonProfileOltPppoeIa, vendor_id), 6, "vendor-id \"%s\""),
    };
    static constexpr Row<GPonProfileOltPppoeIa> protection[] = {
        on_off(FIELD(GPonProfileOltPppoeIa, dos_block_enabled), "dos-block enable", "no dos-block enable"),
        number(FIELD(GPonProfileOltPppoeIa, bc_packet_per_second), "dos-block packet-limit \"%s\""),
        number(FIELD(GPonProfileOltPppoeIa, port_block_time), "dos-block block-time \"%s\""),
        on_off(FIELD(GPonProfileOltPppoeIa, sessions_monitoring), "sessions-monitoring enable",
               "no sessions-monitoring enable"),
    };
    if (no_profile(lhs, rhs)) {
        return false;
    }
    const Where where{View::pppoe_ia, key, out};
    emit_profile_head(lhs, rhs, where);
    emit_changed(agent, changed_or_all, lhs, rhs, where);
    emit_session_limits(lhs, rhs, where);
    emit_changed(protection, changed_or_all, lhs, rhs, where);
    return false;
}
