#include "pon/diff_builder/rows.h"

using namespace pondiff;

bool getdiff_GSystemNtpCfg(GSystemNtpCfg* lhs, GSystemNtpCfg* rhs, int* key, List<char>& out)
{
    static constexpr Row<GSystemNtpCfg> commands[] = {
        on_off(FIELD(GSystemNtpCfg, enabled), "ip ntp enable", "no ip ntp enable"),
        ipv4(FIELD(GSystemNtpCfg, ntpserver), "ip ntp ip \"%s\""),
        number(FIELD(GSystemNtpCfg, interval), "ip ntp interval \"%s\""),
        number(FIELD(GSystemNtpCfg, timezone), "ip ntp timezone \"%s\""),
        on_off(FIELD(GSystemNtpCfg, daylightsaving), "ip ntp daylightsaving", "no ip ntp daylightsaving"),
    };
    if (nothing_to_emit(lhs, rhs)) {
        return false;
    }
    emit_changed(commands, changed_or_all, lhs, rhs, {View::configure, key, out});
    return false;
}
