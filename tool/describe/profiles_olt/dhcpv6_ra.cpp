#include "tool/describe/table.h"

namespace pondiff::tool {

static constexpr Field dhcpv6_ra_profile_fields[] = {
    number(AT(GPonProfileOltDhcpv6Ra, revision)),
    boolean(AT(GPonProfileOltDhcpv6Ra, exist)),
    text(AT(GPonProfileOltDhcpv6Ra, name)),
    text(AT(GPonProfileOltDhcpv6Ra, description)),
    boolean(AT(GPonProfileOltDhcpv6Ra, relay_agent_enabled)),
    text(AT(GPonProfileOltDhcpv6Ra, interface_id_format)),
    text(AT(GPonProfileOltDhcpv6Ra, remote_id_format)),
    boolean(AT(GPonProfileOltDhcpv6Ra, write_interface_id_option)),
    boolean(AT(GPonProfileOltDhcpv6Ra, write_remote_id_option)),
    boolean(AT(GPonProfileOltDhcpv6Ra, dos_block_enabled)),
    number(AT(GPonProfileOltDhcpv6Ra, bc_packet_per_second)),
    number(AT(GPonProfileOltDhcpv6Ra, port_block_time)),
    boolean(AT(GPonProfileOltDhcpv6Ra, trusted_server_enable)),
    ipv6(AT(GPonProfileOltDhcpv6Ra, trusted_primary)),
    ipv6(AT(GPonProfileOltDhcpv6Ra, trusted_secondary)),
    number(AT(GPonProfileOltDhcpv6Ra, trusted_server_timeout)),
    enumeration(AT(GPonProfileOltDhcpv6Ra, interface_id_mode), "GDataMode_enum"),
    enumeration(AT(GPonProfileOltDhcpv6Ra, remote_id_mode), "GDataMode_enum"),
};
DESCRIBE(GPonProfileOltDhcpv6Ra, dhcpv6_ra_profile_record, dhcpv6_ra_profile_fields);

} // namespace pondiff::tool
