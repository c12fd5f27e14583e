#include "tool/describe/table.h"

namespace pondiff::tool {

static constexpr Field pppoe_ia_profile_fields[] = {
    number(AT(GPonProfileOltPppoeIa, revision)),
    boolean(AT(GPonProfileOltPppoeIa, exist)),
    text(AT(GPonProfileOltPppoeIa, name)),
    text(AT(GPonProfileOltPppoeIa, description)),
    boolean(AT(GPonProfileOltPppoeIa, pppoe_plus_enabled)),
    text(AT(GPonProfileOltPppoeIa, circuit_id_format)),
    text(AT(GPonProfileOltPppoeIa, remote_id_format)),
    hexadecimal(AT(GPonProfileOltPppoeIa, vendor_id)),
    number(AT(GPonProfileOltPppoeIa, max_number_pppoe_sessions)),
    number(AT(GPonProfileOltPppoeIa, max_number_pppoe_sessions_per_user)),
    boolean(AT(GPonProfileOltPppoeIa, dos_block_enabled)),
    number(AT(GPonProfileOltPppoeIa, bc_packet_per_second)),
    number(AT(GPonProfileOltPppoeIa, port_block_time)),
    boolean(AT(GPonProfileOltPppoeIa, sessions_monitoring)),
};
DESCRIBE(GPonProfileOltPppoeIa, pppoe_ia_profile_record, pppoe_ia_profile_fields);

} // namespace pondiff::tool
