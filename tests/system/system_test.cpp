#include "tests/support/diff.h"

namespace {

TEST(System, PartsInOrder)
{
    Session session;
    GSystemCfg& system = session.cfg->system;
    system.settings.ont_sn_format = 1;
    system.services.ntp.enabled = 1;
    system.user[0].exist = 1;
    put(system.user[0].name, "admin");
    put(system.user[0].password, "secret");
    put(session.orig->system.user[15].name, "guest");
    session.orig->system.user[15].exist = 1;
    put(system.network.hostname, "olt-17");
    session.open();
    EXPECT_EQ(session.full_diff(), "configure terminal\n"
                                   "hostname \"olt-17\"\n"
                                   "user \"admin\" crypted_password \"secret\"\n"
                                   "no user \"guest\"\n"
                                   "ip ntp enable\n"
                                   "cli ont-sn-format \"dense\"\n"
                                   "exit\n"
                                   "commit\n");
}

TEST(System, PrintAllForcesNothingInEqualParts)
{
    for (const int common : {0, 1, 2}) {
        Diff system{getdiff_GSystemCfg};
        system.before.user[0].exist = 1;
        system.before.services.ssh.enabled = 1;
        system.after = system.before;
        system.all = 1;
        system.common = common;
        EXPECT_EQ(system.elements(), Elements{});
        EXPECT_EQ(system.key[0], 15);
    }
}

TEST(System, PrintAllForcesInsideThePartThatDiffers)
{
    Diff system{getdiff_GSystemCfg};
    put(system.after.network.hostname, "olt-17");
    system.all = 1;
    system.common = 2;
    EXPECT_EQ(subjects(system.script()), (Elements{"configure", "hostname", "management"}));
}

TEST(System, PrintAllForcesTheUserThatDiffersAlone)
{
    Diff system{getdiff_GSystemCfg};
    for (const int slot : {2, 3}) {
        system.before.user[slot].exist = 1;
        put(system.before.user[slot].password, "secret");
    }
    system.after = system.before;
    system.after.user[3].revision = 1;
    system.all = 1;
    EXPECT_EQ(system.script(), "configure terminal\n"
                               "user \"\" crypted_password \"secret\"\n"
                               "user \"\" privilege \"0\"\n");
    EXPECT_EQ(system.key[0], 15);
    EXPECT_EQ(system.key[1], 15);
}

TEST(System, PrintAllForcesTheSettingsThatDifferByTheirOwnRule)
{
    Diff system{getdiff_GSystemCfg};
    system.after.settings.revision = 1;
    system.all = 1;
    EXPECT_EQ(system.elements(), Elements{});
    system.common = 1;
    EXPECT_EQ(system.script(), "configure terminal\ncli ont-sn-format \"pretty\"\n");
}

TEST(System, ServicesWithoutCommands)
{
    const auto changed = [](void (*change)(GSystemServices&)) {
        Diff system{getdiff_GSystemCfg};
        change(system.after.services);
        return system.elements();
    };
    EXPECT_EQ(changed([](GSystemServices& services) { services.acs.enabled = 1; }), Elements{});
    EXPECT_EQ(changed([](GSystemServices& services) { services.auth.authtype = 1; }), Elements{});
    EXPECT_EQ(changed([](GSystemServices& services) { services.fan.min_speed = 1; }), Elements{});
    EXPECT_EQ(changed([](GSystemServices& services) { services.web.session_timeout = 1; }), Elements{});
    EXPECT_EQ(changed([](GSystemServices& services) { services.routing.route[0].mask = 1; }), Elements{});
}

TEST(Services, MembersInOrder)
{
    Diff services{getdiff_GSystemServices};
    services.after.http.allow[0].mask = 1;
    services.after.https.allow[0].mask = 2;
    services.after.telnet.enabled = 1;
    services.after.ssh.enabled = 1;
    services.after.snmp.enabled = 1;
    services.after.syslog.size = 3;
    services.after.ntp.enabled = 1;
    services.after.alarm.cfg.free_ram = 4;
    services.after.web.session_timeout = 5;
    services.after.cli.session_timeout = 6;
    services.after.log.submodule[0].level = 7;
    services.after.tftp.backup_on_timer = 1;
    services.after.config.autosave = 1;
    services.after.acs.enabled = 1;
    services.after.auth.authorization = 1;
    services.after.fan.fixed_speed = 1;
    services.after.routing.route[0].exist = 1;
    services.after.source_guard.enabled = 1;
    EXPECT_EQ(services.script(), "configure terminal\n"
                                 "http allow ip    0 mask \"1\"\n"
                                 "https allow ip    0 mask \"2\"\n"
                                 "ip telnet enable\n"
                                 "ip ssh enable\n"
                                 "ip snmp enable\n"
                                 "logging buffer \"3\"\n"
                                 "ip ntp enable\n"
                                 "alarm ram free-ram \"4\"\n"
                                 "cli session-timeout \"6\"\n"
                                 "logging module pmchal-gpon loglevel \"debug\"\n"
                                 "backup on timer\n"
                                 "config autosave enable\n"
                                 "ip source-guard enable\n");
    EXPECT_EQ(services.key[0], 4094);
}

TEST(Services, MembersThatAreEqualLeaveTheKeyAlone)
{
    Diff services{getdiff_GSystemServices};
    services.key[0] = 5;
    services.after.fan.min_speed = 1;
    services.after.ntp.interval = 64;
    EXPECT_EQ(services.elements(), (Elements{"configure terminal", "ip ntp interval \"64\""}));
    EXPECT_EQ(services.key[0], 5);
}

/// The subjects of the services that `print_all` shows though they are equal, without and with the alarms.
Elements forced_services(bool alarms)
{
    Elements services = {"configure", "http", "https", "ip telnet", "ip ssh", "ip snmp", "logging", "ip ntp"};
    if (alarms) {
        services.push_back("alarm");
    }
    services.insert(services.end(), {"cli", "logging", "backup", "config"});
    return services;
}

TEST(Services, PrintAllForcesAllButAlarmsAndSourceGuard)
{
    Session session;
    session.open();
    Diff services{getdiff_GSystemServices};
    services.all = 1;
    EXPECT_EQ(subjects(services.script()), forced_services(false));
}

TEST(Services, PrintAllWithTheCommonSettingsForcesTheAlarmsToo)
{
    Session session;
    session.open();
    Diff services{getdiff_GSystemServices};
    services.all = 1;
    services.common = 2;
    EXPECT_EQ(subjects(services.script()), forced_services(true));
}

TEST(Services, AChangeWithoutACommandForcesTheOthersUnderPrintAll)
{
    Session session;
    session.cfg->system.services.fan.min_speed = 1;
    session.open(1, 0);
    const Elements expected = forced_services(false);
    Elements shown = subjects(session.full_diff());
    ASSERT_GT(shown.size(), expected.size());
    shown.resize(expected.size());
    EXPECT_EQ(shown, expected);
}

TEST(Services, SourceGuardThatDiffersIsForcedInside)
{
    Session session;
    session.open();
    Diff services{getdiff_GSystemServices};
    services.all = 1;
    services.after.source_guard.revision = 1;
    Elements expected = forced_services(false);
    expected.emplace_back("ip source-guard");
    EXPECT_EQ(subjects(services.script()), expected);
}

TEST(Web, SessionTimeoutHasNoCommand)
{
    Diff web{getdiff_GSystemWebCfg};
    web.after.session_timeout = 1;
    EXPECT_EQ(web.elements(), Elements{});
    web.all = 1;
    EXPECT_EQ(web.elements(), Elements{});
}

} // namespace
