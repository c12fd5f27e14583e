#include "tool/describe/table.h"

namespace pondiff::tool {

static constexpr Field pppoe_ia_profile_fields[] = {
    number(FIELD(GPonProfileOltPppoeIa, revision), counter),
    boolean(FIELD(GPonProfileOltPppoeIa, exist), existence),
    text(FIELD(GPonProfileOltPppoeIa, name), says("name <name>")),
    text(FIELD(GPonProfileOltPppoeIa, description), says("description <description>")),
    boolean(FIELD(GPonProfileOltPppoeIa, pppoe_plus_enabled), on_off("enable", "no enable")),
    text(FIELD(GPonProfileOltPppoeIa, circuit_id_format), says("format circuit-id <circuit_id_format>").marked()),
    text(FIELD(GPonProfileOltPppoeIa, remote_id_format), says("format remote-id <remote_id_format>").marked()),
    hexadecimal(FIELD(GPonProfileOltPppoeIa, vendor_id), says("vendor-id <vendor_id>")),
    number(FIELD(GPonProfileOltPppoeIa, max_number_pppoe_sessions),
           says("sessions-limit <max_number_pppoe_sessions> [per-user <max_number_pppoe_sessions_per_user>]")),
    number(FIELD(GPonProfileOltPppoeIa, max_number_pppoe_sessions_per_user),
           says("sessions-limit per-user <max_number_pppoe_sessions_per_user>").word("unlimited", 5)),
    boolean(FIELD(GPonProfileOltPppoeIa, dos_block_enabled), on_off("dos-block enable", "no dos-block enable")),
    number(FIELD(GPonProfileOltPppoeIa, bc_packet_per_second), says("dos-block packet-limit <bc_packet_per_second>")),
    number(FIELD(GPonProfileOltPppoeIa, port_block_time), says("dos-block block-time <port_block_time>")),
    boolean(FIELD(GPonProfileOltPppoeIa, sessions_monitoring),
            on_off("sessions-monitoring enable", "no sessions-monitoring enable")),
};
DESCRIBE(GPonProfileOltPppoeIa, pppoe_ia_profile_record, pppoe_ia_profile_fields);

} // namespace pondiff::tool
