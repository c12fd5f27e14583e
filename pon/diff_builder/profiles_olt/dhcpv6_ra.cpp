#include "pon/diff_builder/profile.h"

using namespace pondiff;

namespace {

/// One command shows both options. It is emitted when both have changed; the interface-id decides its form.
void emit_suboptions(const GPonProfileOltDhcpv6Ra* lhs, const GPonProfileOltDhcpv6Ra* rhs, const Where& where)
{
    const bool both_changed = lhs->write_interface_id_option != rhs->write_interface_id_option &&
                              lhs->write_remote_id_option != rhs->write_remote_id_option;
    if (forced(changed_or_all) || both_changed) {
        emit(where, rhs->write_interface_id_option != 0 ? "add-suboptions" : "no add-suboptions");
    }
}

} // namespace

/// No command deletes a profile: for a removed one, only its changed fields are emitted.
bool getdiff_GPonProfileOltDhcpv6Ra(GPonProfileOltDhcpv6Ra* lhs, GPonProfileOltDhcpv6Ra* rhs, int* key, List<char>& out)
{
    static constexpr Row<GPonProfileOltDhcpv6Ra> agent = //
        on_off(FIELD(GPonProfileOltDhcpv6Ra, relay_agent_enabled), "enable", "no enable");
    static constexpr Row<GPonProfileOltDhcpv6Ra> protection[] = {
        on_off(FIELD(GPonProfileOltDhcpv6Ra, dos_block_enabled), "dos-block", "no dos-block"),
        number(FIELD(GPonProfileOltDhcpv6Ra, bc_packet_per_second), "dos-block packet-limit \"%s\""),
        number(FIELD(GPonProfileOltDhcpv6Ra, port_block_time), "dos-block block-time \"%s\""),
        on_off(FIELD(GPonProfileOltDhcpv6Ra, trusted_server_enable), "trusted server", "no trusted server"),
        ipv6(FIELD(GPonProfileOltDhcpv6Ra, trusted_primary), "trusted primary \"%s\""),
        ipv6(FIELD(GPonProfileOltDhcpv6Ra, trusted_secondary), "trusted secondary \"%s\""),
        number(FIELD(GPonProfileOltDhcpv6Ra, trusted_server_timeout), "trusted timeout \"%s\""),
    };
    if (no_profile(lhs, rhs)) {
        return false;
    }
    const Where where{View::dhcpv6_ra, key, out};
    emit_profile_head(lhs, rhs, where);
    emit_changed(agent, changed_or_all, lhs, rhs, where);
    emit_id_format(where, "add-interface-id \"%s\"%s", lhs->interface_id_format, rhs->interface_id_format,
                   rhs->interface_id_mode);
    emit_id_format(where, "add-remote-id \"%s\"%s", lhs->remote_id_format, rhs->remote_id_format, rhs->remote_id_mode);
    emit_suboptions(lhs, rhs, where);
    emit_changed(protection, changed_or_all, lhs, rhs, where);
    return false;
}
