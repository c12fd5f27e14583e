#include "tool/describe/table.h"

namespace pondiff::tool {

static constexpr Field ntp_fields[] = {
    number(AT(GSystemNtpCfg, revision)),
    boolean(AT(GSystemNtpCfg, enabled)),
    ipv4(AT(GSystemNtpCfg, ntpserver)),
    number(AT(GSystemNtpCfg, interval)),
    number(AT(GSystemNtpCfg, timezone)),
    boolean(AT(GSystemNtpCfg, daylightsaving)),
};
DESCRIBE(GSystemNtpCfg, ntp_record, ntp_fields);

} // namespace pondiff::tool
