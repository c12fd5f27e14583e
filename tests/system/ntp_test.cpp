#include "tests/support/diff.h"

namespace {

TEST(Ntp, EveryFieldInOrder)
{
    Diff ntp{getdiff_GSystemNtpCfg};
    ntp.after.enabled = 1;
    put(ntp.after.ntpserver, {192, 0, 2, 123});
    ntp.after.interval = 65535;
    ntp.after.timezone = 12;
    ntp.after.daylightsaving = 1;
    EXPECT_EQ(ntp.elements(), behind("configure terminal", "ip ntp enable\n"
                                                           "ip ntp ip \"192.0.2.123\"\n"
                                                           "ip ntp interval \"65535\"\n"
                                                           "ip ntp timezone \"12\"\n"
                                                           "ip ntp daylightsaving\n"));
}

TEST(Ntp, SwitchedOff)
{
    Diff ntp{getdiff_GSystemNtpCfg};
    ntp.before.enabled = 1;
    EXPECT_EQ(ntp.elements(), (Elements{"configure terminal", "no ip ntp enable"}));
    ntp.before.enabled = 0;
    ntp.before.daylightsaving = 1;
    EXPECT_EQ(ntp.elements(), (Elements{"configure terminal", "no ip ntp daylightsaving"}));
}

TEST(Ntp, AnyNonZeroSwitchIsOnAndItsBytesAreCompared)
{
    Diff ntp{getdiff_GSystemNtpCfg};
    ntp.before.enabled = 1;
    ntp.after.enabled = 2;
    ntp.after.daylightsaving = 65535;
    EXPECT_EQ(ntp.script(), "configure terminal\nip ntp enable\nip ntp daylightsaving\n");
}

TEST(Ntp, TimezoneIsSigned)
{
    Diff ntp{getdiff_GSystemNtpCfg};
    ntp.after.timezone = -3;
    EXPECT_EQ(ntp.script(), "configure terminal\nip ntp timezone \"-3\"\n");
    ntp.after.timezone = -1;
    EXPECT_EQ(ntp.script(), "configure terminal\nip ntp timezone \"-1\"\n");
    ntp.after.timezone = -32768;
    EXPECT_EQ(ntp.script(), "configure terminal\nip ntp timezone \"-32768\"\n");
    ntp.after.timezone = 32767;
    EXPECT_EQ(ntp.script(), "configure terminal\nip ntp timezone \"32767\"\n");
}

TEST(Ntp, EqualRecordUnderPrintAllShowsEveryField)
{
    for (const int common : {0, 1, 2}) {
        Diff ntp{getdiff_GSystemNtpCfg};
        ntp.all = 1;
        ntp.common = common;
        EXPECT_EQ(ntp.script(), "configure terminal\n"
                                "no ip ntp enable\n"
                                "ip ntp ip \"0.0.0.0\"\n"
                                "ip ntp interval \"0\"\n"
                                "ip ntp timezone \"0\"\n"
                                "no ip ntp daylightsaving\n");
    }
}

} // namespace
