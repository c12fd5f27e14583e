#include "tool/describe/table.h"

namespace pondiff::tool {

static constexpr Field dhcpv6_ra_profile_fields[] = {
    number(FIELD(GPonProfileOltDhcpv6Ra, revision)),
    boolean(FIELD(GPonProfileOltDhcpv6Ra, exist)),
    text(FIELD(GPonProfileOltDhcpv6Ra, name)),
    text(FIELD(GPonProfileOltDhcpv6Ra, description)),
    boolean(FIELD(GPonProfileOltDhcpv6Ra, relay_agent_enabled)),
    text(FIELD(GPonProfileOltDhcpv6Ra, interface_id_format)),
    text(FIELD(GPonProfileOltDhcpv6Ra, remote_id_format)),
    boolean(FIELD(GPonProfileOltDhcpv6Ra, write_interface_id_option)),
    boolean(FIELD(GPonProfileOltDhcpv6Ra, write_remote_id_option)),
    boolean(FIELD(GPonProfileOltDhcpv6Ra, dos_block_enabled)),
    number(FIELD(GPonProfileOltDhcpv6Ra, bc_packet_per_second)),
    number(FIELD(GPonProfileOltDhcpv6Ra, port_block_time)),
    boolean(FIELD(GPonProfileOltDhcpv6Ra, trusted_server_enable)),
    ipv6(FIELD(GPonProfileOltDhcpv6Ra, trusted_primary)),
    ipv6(FIELD(GPonProfileOltDhcpv6Ra, trusted_secondary)),
    number(FIELD(GPonProfileOltDhcpv6Ra, trusted_server_timeout)),
    enumeration(FIELD(GPonProfileOltDhcpv6Ra, interface_id_mode), "GDataMode_enum"),
    enumeration(FIELD(GPonProfileOltDhcpv6Ra, remote_id_mode), "GDataMode_enum"),
};
DESCRIBE(GPonProfileOltDhcpv6Ra, dhcpv6_ra_profile_record, dhcpv6_ra_profile_fields);

} // namespace pondiff::tool
