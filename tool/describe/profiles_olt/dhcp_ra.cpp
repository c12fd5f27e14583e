#include "tool/describe/table.h"

namespace pondiff::tool {

static constexpr Field dhcp_ra_profile_fields[] = {
    number(AT(GPonProfileOltDhcpRa, revision)),
    boolean(AT(GPonProfileOltDhcpRa, exist)),
    text(AT(GPonProfileOltDhcpRa, name)),
    text(AT(GPonProfileOltDhcpRa, description)),
    boolean(AT(GPonProfileOltDhcpRa, relay_agent_enabled)),
    text(AT(GPonProfileOltDhcpRa, circuit_id_format)),
    text(AT(GPonProfileOltDhcpRa, remote_id_format)),
    boolean(AT(GPonProfileOltDhcpRa, overwrite_client_option82)),
    boolean(AT(GPonProfileOltDhcpRa, dos_block_enabled)),
    number(AT(GPonProfileOltDhcpRa, bc_packet_per_second)),
    number(AT(GPonProfileOltDhcpRa, port_block_time)),
    boolean(AT(GPonProfileOltDhcpRa, trusted_server_enable)),
    ipv4(AT(GPonProfileOltDhcpRa, trusted_primary)),
    ipv4(AT(GPonProfileOltDhcpRa, trusted_secondary)),
    number(AT(GPonProfileOltDhcpRa, trusted_server_timeout)),
    enumeration(AT(GPonProfileOltDhcpRa, circuit_id_mode), "GDataMode_enum"),
    enumeration(AT(GPonProfileOltDhcpRa, remote_id_mode), "GDataMode_enum"),
};
DESCRIBE(GPonProfileOltDhcpRa, dhcp_ra_profile_record, dhcp_ra_profile_fields);

} // namespace pondiff::tool
