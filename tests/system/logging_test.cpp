#include "tests/support/diff.h"

namespace {

TEST(Syslog, EveryFieldInOrder)
{
    Diff syslog{getdiff_GSystemSyslogCfg};
    put(syslog.after.ip, {192, 0, 2, 14});
    syslog.after.size = 4294967295U;
    syslog.after.destinations.system = 1;
    syslog.after.destinations.console = 2;
    syslog.after.destinations.remotes = 3;
    syslog.after.destinations.file = 4;
    EXPECT_EQ(syslog.elements(), behind("configure terminal", "logging remote \"192.0.2.14\"\n"
                                                              "logging buffer \"4294967295\"\n"
                                                              "logging system loglevel \"alert\"\n"
                                                              "logging console loglevel \"critical\"\n"
                                                              "logging rsh loglevel \"error\"\n"
                                                              "logging file loglevel \"warning\"\n"));
}

TEST(Syslog, SwitchHasNoCommand)
{
    Diff syslog{getdiff_GSystemSyslogCfg};
    syslog.after.enabled = 1;
    syslog.after.revision = 1;
    EXPECT_EQ(syslog.elements(), Elements{});
}

TEST(Syslog, EqualRecordUnderPrintAllShowsEveryField)
{
    for (const int common : {0, 1, 2}) {
        Diff syslog{getdiff_GSystemSyslogCfg};
        syslog.all = 1;
        syslog.common = common;
        EXPECT_EQ(syslog.script(), "configure terminal\n"
                                   "logging remote \"0.0.0.0\"\n"
                                   "logging buffer \"0\"\n"
                                   "logging system loglevel \"emergency\"\n"
                                   "logging console loglevel \"emergency\"\n"
                                   "logging rsh loglevel \"emergency\"\n"
                                   "logging file loglevel \"emergency\"\n");
    }
}

TEST(LogDestinations, EachLevelAlone)
{
    Diff system{getdiff_GSystemLogDestCfg};
    system.after.system = 5;
    EXPECT_EQ(system.elements(), (Elements{"configure terminal", "logging system loglevel \"notice\""}));
    Diff console{getdiff_GSystemLogDestCfg};
    console.after.console = 6;
    EXPECT_EQ(console.elements(), (Elements{"configure terminal", "logging console loglevel \"info\""}));
    Diff remotes{getdiff_GSystemLogDestCfg};
    remotes.after.remotes = 7;
    EXPECT_EQ(remotes.elements(), (Elements{"configure terminal", "logging rsh loglevel \"debug\""}));
    Diff file{getdiff_GSystemLogDestCfg};
    file.before.file = 7;
    EXPECT_EQ(file.elements(), (Elements{"configure terminal", "logging file loglevel \"emergency\""}));
}

TEST(LogDestinations, LevelWithoutAWordIsNone)
{
    Diff destinations{getdiff_GSystemLogDestCfg};
    destinations.after.system = 8;
    destinations.after.file = 65535;
    EXPECT_EQ(destinations.script(), "configure terminal\n"
                                     "logging system loglevel \"none\"\n"
                                     "logging file loglevel \"none\"\n");
}

TEST(LogDestinations, ForcedByPrintAll)
{
    Diff destinations{getdiff_GSystemLogDestCfg};
    EXPECT_EQ(destinations.elements(), Elements{});
    destinations.all = 1;
    EXPECT_EQ(destinations.script(), "configure terminal\n"
                                     "logging system loglevel \"emergency\"\n"
                                     "logging console loglevel \"emergency\"\n"
                                     "logging rsh loglevel \"emergency\"\n"
                                     "logging file loglevel \"emergency\"\n");
}

TEST(SubmoduleLog, LevelAloneHasACommand)
{
    Diff log{getdiff_GSystemLogCfg};
    GSubmoduleLogCfg& submodule = log.after.submodule[5];
    submodule.revision = 1;
    submodule.dest = 1;
    submodule.show_time = 1;
    submodule.show_prog_name = 1;
    submodule.show_level = 1;
    submodule.show_submodule_name = 1;
    EXPECT_EQ(log.elements(), Elements{});
    EXPECT_EQ(log.key[0], 13);
    submodule.level = 7;
    EXPECT_EQ(log.elements(), (Elements{"configure terminal", "logging module pmchal-gpon-port loglevel \"debug\""}));
}

TEST(SubmoduleLog, PrintAllShowsEverySubmodule)
{
    Diff log{getdiff_GSystemLogCfg};
    log.before.submodule[13].level = log.after.submodule[13].level = 8;
    log.all = 1;
    EXPECT_EQ(log.script(), "configure terminal\n"
                            "logging module pmchal-gpon loglevel \"emergency\"\n"
                            "logging module pmchal-ipc loglevel \"emergency\"\n"
                            "logging module pmchal-machine loglevel \"emergency\"\n"
                            "logging module pmchal-olt loglevel \"emergency\"\n"
                            "logging module pmchal-ont loglevel \"emergency\"\n"
                            "logging module pmchal-gpon-port loglevel \"emergency\"\n"
                            "logging module pmchal-scheduler loglevel \"emergency\"\n"
                            "logging module pmchal-dhcpra loglevel \"emergency\"\n"
                            "logging module pmchal-pppoeia loglevel \"emergency\"\n"
                            "logging module pmchal-rdn loglevel \"emergency\"\n"
                            "logging module snmp loglevel \"emergency\"\n"
                            "logging module alarm loglevel \"emergency\"\n"
                            "logging module dhcpd loglevel \"emergency\"\n"
                            "logging module pmchal-dhcpv6ra loglevel \"none\"\n");
    EXPECT_EQ(log.key[0], 13);
}

TEST(SubmoduleLog, SubmoduleWithoutAWordIsEmpty)
{
    Diff submodule{getdiff_GSubmoduleLogCfg};
    submodule.key[0] = 14;
    submodule.after.level = 65535;
    EXPECT_EQ(submodule.elements(), (Elements{"configure terminal", "logging module  loglevel \"none\""}));
}

TEST(SubmoduleLog, SingleSubmoduleIsForcedByPrintAll)
{
    Diff submodule{getdiff_GSubmoduleLogCfg};
    submodule.key[0] = 10;
    EXPECT_EQ(submodule.elements(), Elements{});
    submodule.all = 1;
    EXPECT_EQ(submodule.elements(), (Elements{"configure terminal", "logging module snmp loglevel \"emergency\""}));
}

} // namespace
