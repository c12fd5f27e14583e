#include "pon/diff_builder/profile.h"

using namespace pondiff;

/// No command deletes a profile: for a removed one, only its changed fields are emitted.
bool getdiff_GPonProfileOltDhcpRa(GPonProfileOltDhcpRa* lhs, GPonProfileOltDhcpRa* rhs, int* key, List<char>& out)
{
    static constexpr Row<GPonProfileOltDhcpRa> agent = //
        on_off(FIELD(GPonProfileOltDhcpRa, relay_agent_enabled), "enable", "no enable");
    static constexpr Row<GPonProfileOltDhcpRa> protection[] = {
        on_off(FIELD(GPonProfileOltDhcpRa, overwrite_client_option82), "overwrite-option82", "no overwrite-option82"),
        on_off(FIELD(GPonProfileOltDhcpRa, dos_block_enabled), "dos-block", "no dos-block"),
        number(FIELD(GPonProfileOltDhcpRa, bc_packet_per_second), "dos-block packet-limit \"%s\""),
        number(FIELD(GPonProfileOltDhcpRa, port_block_time), "dos-block block-time \"%s\""),
        on_off(FIELD(GPonProfileOltDhcpRa, trusted_server_enable), "trusted server", "no trusted server"),
        ipv4(FIELD(GPonProfileOltDhcpRa, trusted_primary), "trusted primary \"%s\""),
        ipv4(FIELD(GPonProfileOltDhcpRa, trusted_secondary), "trusted secondary \"%s\""),
        number(FIELD(GPonProfileOltDhcpRa, trusted_server_timeout), "trusted timeout \"%s\""),
    };
    if (no_profile(lhs, rhs)) {
        return false;
    }
    const Where where{View::dhcp_ra, key, out};
    emit_profile_head(lhs, rhs, where);
    emit_changed(agent, changed_or_all, lhs, rhs, where);
    emit_id_format(where, "overwrite-option82 circuit-id \"%s\"%s", lhs->circuit_id_format, rhs->circuit_id_format,
                   rhs->circuit_id_mode);
    emit_id_format(where, "overwrite-option82 remote-id \"%s\"%s", lhs->remote_id_format, rhs->remote_id_format,
                   rhs->remote_id_mode);
    emit_changed(protection, changed_or_all, lhs, rhs, where);
    return false;
}
