#include "tool/describe/table.h"

namespace pondiff::tool {

static constexpr Field dhcpv6_ra_profile_fields[] = {
    number(FIELD(GPonProfileOltDhcpv6Ra, revision), counter),
    boolean(FIELD(GPonProfileOltDhcpv6Ra, exist), existence),
    text(FIELD(GPonProfileOltDhcpv6Ra, name), says("name <name>")),
    text(FIELD(GPonProfileOltDhcpv6Ra, description), says("description <description>")),
    boolean(FIELD(GPonProfileOltDhcpv6Ra, relay_agent_enabled), on_off("enable", "no enable")),
    text(FIELD(GPonProfileOltDhcpv6Ra, interface_id_format),
         says("add-interface-id <interface_id_format> [binary:interface_id_mode]").marked()),
    text(FIELD(GPonProfileOltDhcpv6Ra, remote_id_format),
         says("add-remote-id <remote_id_format> [binary:remote_id_mode]").marked()),
    boolean(FIELD(GPonProfileOltDhcpv6Ra, write_interface_id_option),
            on_off("add-suboptions {write_remote_id_option=1}", "no add-suboptions {write_remote_id_option=0}")),
    boolean(FIELD(GPonProfileOltDhcpv6Ra, write_remote_id_option), with("write_interface_id_option")),
    boolean(FIELD(GPonProfileOltDhcpv6Ra, dos_block_enabled), on_off("dos-block", "no dos-block")),
    number(FIELD(GPonProfileOltDhcpv6Ra, bc_packet_per_second), says("dos-block packet-limit <bc_packet_per_second>")),
    number(FIELD(GPonProfileOltDhcpv6Ra, port_block_time), says("dos-block block-time <port_block_time>")),
    boolean(FIELD(GPonProfileOltDhcpv6Ra, trusted_server_enable), on_off("trusted server", "no trusted server")),
    ipv6(FIELD(GPonProfileOltDhcpv6Ra, trusted_primary), says("trusted primary <trusted_primary>")),
    ipv6(FIELD(GPonProfileOltDhcpv6Ra, trusted_secondary), says("trusted secondary <trusted_secondary>")),
    number(FIELD(GPonProfileOltDhcpv6Ra, trusted_server_timeout), says("trusted timeout <trusted_server_timeout>")),
    enumeration(FIELD(GPonProfileOltDhcpv6Ra, interface_id_mode), "GDataMode_enum",
                with("interface_id_format").as_switch()),
    enumeration(FIELD(GPonProfileOltDhcpv6Ra, remote_id_mode), "GDataMode_enum", with("remote_id_format").as_switch()),
};
DESCRIBE(GPonProfileOltDhcpv6Ra, dhcpv6_ra_profile_record, dhcpv6_ra_profile_fields);

} // namespace pondiff::tool
