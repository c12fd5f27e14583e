#include "tool/describe/table.h"

namespace pondiff::tool {

static constexpr Field pppoe_ia_profile_fields[] = {
    number(FIELD(GPonProfileOltPppoeIa, revision)),
    boolean(FIELD(GPonProfileOltPppoeIa, exist)),
    text(FIELD(GPonProfileOltPppoeIa, name)),
    text(FIELD(GPonProfileOltPppoeIa, description)),
    boolean(FIELD(GPonProfileOltPppoeIa, pppoe_plus_enabled)),
    text(FIELD(GPonProfileOltPppoeIa, circuit_id_format)),
    text(FIELD(GPonProfileOltPppoeIa, remote_id_format)),
    hexadecimal(FIELD(GPonProfileOltPppoeIa, vendor_id)),
    number(FIELD(GPonProfileOltPppoeIa, max_number_pppoe_sessions)),
    number(FIELD(GPonProfileOltPppoeIa, max_number_pppoe_sessions_per_user)),
    boolean(FIELD(GPonProfileOltPppoeIa, dos_block_enabled)),
    number(FIELD(GPonProfileOltPppoeIa, bc_packet_per_second)),
    number(FIELD(GPonProfileOltPppoeIa, port_block_time)),
    boolean(FIELD(GPonProfileOltPppoeIa, sessions_monitoring)),
};
DESCRIBE(GPonProfileOltPppoeIa, pppoe_ia_profile_record, pppoe_ia_profile_fields);

} // namespace pondiff::tool
