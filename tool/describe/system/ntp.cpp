#include "tool/describe/table.h"

namespace pondiff::tool {

static constexpr Field ntp_fields[] = {
    number(FIELD(GSystemNtpCfg, revision)),
    boolean(FIELD(GSystemNtpCfg, enabled)),
    ipv4(FIELD(GSystemNtpCfg, ntpserver)),
    number(FIELD(GSystemNtpCfg, interval)),
    number(FIELD(GSystemNtpCfg, timezone)),
    boolean(FIELD(GSystemNtpCfg, daylightsaving)),
};
DESCRIBE(GSystemNtpCfg, ntp_record, ntp_fields);

} // namespace pondiff::tool
