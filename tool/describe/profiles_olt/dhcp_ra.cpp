#include "tool/describe/table.h"

namespace pondiff::tool {

static constexpr Field dhcp_ra_profile_fields[] = {
    number(FIELD(GPonProfileOltDhcpRa, revision)),
    boolean(FIELD(GPonProfileOltDhcpRa, exist)),
    text(FIELD(GPonProfileOltDhcpRa, name)),
    text(FIELD(GPonProfileOltDhcpRa, description)),
    boolean(FIELD(GPonProfileOltDhcpRa, relay_agent_enabled)),
    text(FIELD(GPonProfileOltDhcpRa, circuit_id_format)),
    text(FIELD(GPonProfileOltDhcpRa, remote_id_format)),
    boolean(FIELD(GPonProfileOltDhcpRa, overwrite_client_option82)),
    boolean(FIELD(GPonProfileOltDhcpRa, dos_block_enabled)),
    number(FIELD(GPonProfileOltDhcpRa, bc_packet_per_second)),
    number(FIELD(GPonProfileOltDhcpRa, port_block_time)),
    boolean(FIELD(GPonProfileOltDhcpRa, trusted_server_enable)),
    ipv4(FIELD(GPonProfileOltDhcpRa, trusted_primary)),
    ipv4(FIELD(GPonProfileOltDhcpRa, trusted_secondary)),
    number(FIELD(GPonProfileOltDhcpRa, trusted_server_timeout)),
    enumeration(FIELD(GPonProfileOltDhcpRa, circuit_id_mode), "GDataMode_enum"),
    enumeration(FIELD(GPonProfileOltDhcpRa, remote_id_mode), "GDataMode_enum"),
};
DESCRIBE(GPonProfileOltDhcpRa, dhcp_ra_profile_record, dhcp_ra_profile_fields);

} // namespace pondiff::tool
