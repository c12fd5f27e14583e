#include "tool/describe/table.h"

namespace pondiff::tool {

static constexpr Field dhcp_ra_profile_fields[] = {
    number(FIELD(GPonProfileOltDhcpRa, revision), counter),
    boolean(FIELD(GPonProfileOltDhcpRa, exist), existence),
    text(FIELD(GPonProfileOltDhcpRa, name), says("name <name>")),
    text(FIELD(GPonProfileOltDhcpRa, description), says("description <description>")),
    boolean(FIELD(GPonProfileOltDhcpRa, relay_agent_enabled), on_off("enable", "no enable")),
    text(FIELD(GPonProfileOltDhcpRa, circuit_id_format),
         says("overwrite-option82 circuit-id <circuit_id_format> [binary:circuit_id_mode]").marked()),
    text(FIELD(GPonProfileOltDhcpRa, remote_id_format),
         says("overwrite-option82 remote-id <remote_id_format> [binary:remote_id_mode]").marked()),
    boolean(FIELD(GPonProfileOltDhcpRa, overwrite_client_option82),
            on_off("overwrite-option82", "no overwrite-option82")),
    boolean(FIELD(GPonProfileOltDhcpRa, dos_block_enabled), on_off("dos-block", "no dos-block")),
    number(FIELD(GPonProfileOltDhcpRa, bc_packet_per_second), says("dos-block packet-limit <bc_packet_per_second>")),
    number(FIELD(GPonProfileOltDhcpRa, port_block_time), says("dos-block block-time <port_block_time>")),
    boolean(FIELD(GPonProfileOltDhcpRa, trusted_server_enable), on_off("trusted server", "no trusted server")),
    ipv4(FIELD(GPonProfileOltDhcpRa, trusted_primary), says("trusted primary <trusted_primary>")),
    ipv4(FIELD(GPonProfileOltDhcpRa, trusted_secondary), says("trusted secondary <trusted_secondary>")),
    number(FIELD(GPonProfileOltDhcpRa, trusted_server_timeout), says("trusted timeout <trusted_server_timeout>")),
    enumeration(FIELD(GPonProfileOltDhcpRa, circuit_id_mode), "GDataMode_enum", with("circuit_id_format").as_switch()),
    enumeration(FIELD(GPonProfileOltDhcpRa, remote_id_mode), "GDataMode_enum", with("remote_id_format").as_switch()),
};
DESCRIBE(GPonProfileOltDhcpRa, dhcp_ra_profile_record, dhcp_ra_profile_fields);

} // namespace pondiff::tool
