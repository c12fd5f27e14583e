#include "tool/describe/table.h"

namespace pondiff::tool {

static constexpr Field ntp_fields[] = {
    number(FIELD(GSystemNtpCfg, revision), counter),
    boolean(FIELD(GSystemNtpCfg, enabled), on_off("ip ntp enable", "no ip ntp enable")),
    ipv4(FIELD(GSystemNtpCfg, ntpserver), says("ip ntp ip <ntpserver>")),
    number(FIELD(GSystemNtpCfg, interval), says("ip ntp interval <interval>")),
    number(FIELD(GSystemNtpCfg, timezone), says("ip ntp timezone <timezone>")),
    boolean(FIELD(GSystemNtpCfg, daylightsaving), on_off("ip ntp daylightsaving", "no ip ntp daylightsaving")),
};
DESCRIBE(GSystemNtpCfg, ntp_record, ntp_fields);

} // namespace pondiff::tool
