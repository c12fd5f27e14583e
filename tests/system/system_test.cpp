#include "tests/support/diff.h"

namespace {

const char management_of_a_blank_record[] = "management ip \"0.0.0.0\"\n"
                                            "management mask \"0.0.0.0\"\n"
                                            "management vid \"0\"\n"
                                            "management gateway \"0.0.0.0\"\n"
                                            "management cos \"0\"\n"
                                            "management dscp \"0\"\n";

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
    EXPECT_EQ(system.script(), "configure terminal\nhostname \"olt-17\"\n" + std::string(management_of_a_blank_record));
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

std::string repeated(int count, const std::string& text)
{
    std::string result;
    while (count-- > 0)
        result += text;
    return result;
}

/// The entries of an allow list that are shown by their index.
std::string indexed_entries(const std::string& service)
{
    std::string result;
    for (int i = 0; i < 16; ++i)
        result += service + " allow ip   " + (i < 10 ? " " : "") + std::to_string(i) + " mask \"0\"\n";
    return result;
}

std::string blank_services_before_the_alarms()
{
    std::string text = indexed_entries("http") + indexed_entries("https");
    text += "no ip telnet enable\nno ip telnet access-control\n";
    text += repeated(16, "ip telnet allow ip 0.0.0.0 mask \"0\"\n");
    text += "no ip ssh enable\nno ip ssh access-control\n";
    text += repeated(16, "ip ssh allow ip 0.0.0.0 mask \"0\"\n");
    text += "no ip snmp enable\n"
            "no ip snmp access-control\n"
            "ip snmp version \"\"\n"
            "ip snmp community read \"\"\n"
            "ip snmp community write \"\"\n"
            "ip snmp trap-community \"\"\n"
            "ip snmp location \"\"\n"
            "ip snmp contact \"\"\n"
            "ip snmp ont-sn-format \"pretty\"\n"
            "ip snmp engineID \"00000000000000000000000000\"\n";
    text += repeated(16, "ip snmp allow ip 0.0.0.0 mask \"0\"\n");
    text += repeated(16, "ip snmp traps 0.0.0.0 type v1\n");
    for (int i = 0; i < 18; ++i)
        text += "ip snmp alias name \"\"\nno ip snmp alias name   " + std::string(i < 10 ? " " : "") +
                std::to_string(i) + " up-down-trap\n";
    text += "logging remote \"0.0.0.0\"\n"
            "logging buffer \"0\"\n"
            "logging system loglevel \"emergency\"\n"
            "logging console loglevel \"emergency\"\n"
            "logging rsh loglevel \"emergency\"\n"
            "logging file loglevel \"emergency\"\n"
            "no ip ntp enable\n"
            "ip ntp ip \"0.0.0.0\"\n"
            "ip ntp interval \"0\"\n"
            "ip ntp timezone \"0\"\n"
            "no ip ntp daylightsaving\n";
    return text;
}

std::string blank_alarms()
{
    return repeated(46, "alarm dummy severity \"indeterminate\"\n"
                        "alarm dummy in false\n"
                        "alarm dummy out false\n"
                        "alarm dummy ttl \"0\"\n") +
           "alarm ram free-ram \"0\"\n"
           "alarm free-space level \"0\"\n";
}

const char blank_services_behind_the_alarms[] = "cli session-timeout \"0\"\n"
                                                "cli max-sessions \"0\"\n"
                                                "no cli display assigned-channel\n"
                                                "no cli display gpon-port\n"
                                                "no cli display status\n"
                                                "no cli display rssi\n"
                                                "no cli display version\n"
                                                "no cli display equipment-id\n"
                                                "no cli display config-password\n"
                                                "no cli display received-password\n"
                                                "no cli display description\n"
                                                "no cli display profile management\n"
                                                "no cli display profile shaping\n"
                                                "no cli display profile ports\n"
                                                "no cli display profile cross-connect\n"
                                                "no cli display profile dba\n"
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
                                                "logging module pmchal-dhcpv6ra loglevel \"emergency\"\n"
                                                "no backup on save\n"
                                                "no backup on timer\n"
                                                "backup timer period \"0\"\n"
                                                "backup uri \"\"\n"
                                                "no config autosave enable\n"
                                                "config autosave hour \"0\"\n";

TEST(Services, PrintAllForcesAllButAlarmsAndSourceGuard)
{
    Session session;
    session.open();
    Diff services{getdiff_GSystemServices};
    services.all = 1;
    EXPECT_EQ(services.script(),
              "configure terminal\n" + blank_services_before_the_alarms() + blank_services_behind_the_alarms);
}

TEST(Services, PrintAllWithTheCommonSettingsForcesTheAlarmsToo)
{
    Session session;
    session.open();
    Diff services{getdiff_GSystemServices};
    services.all = 1;
    services.common = 2;
    EXPECT_EQ(services.script(), "configure terminal\n" + blank_services_before_the_alarms() + blank_alarms() +
                                     blank_services_behind_the_alarms);
}

TEST(Services, AChangeWithoutACommandForcesTheOthersUnderPrintAll)
{
    Session session;
    session.cfg->system.services.fan.min_speed = 1;
    session.open(1, 0);
    const std::string forced =
        "configure terminal\n" + blank_services_before_the_alarms() + blank_services_behind_the_alarms;
    EXPECT_EQ(session.full_diff().substr(0, forced.size()), forced);
}

TEST(Services, SourceGuardThatDiffersIsForcedInside)
{
    Session session;
    session.open();
    Diff services{getdiff_GSystemServices};
    services.all = 1;
    services.after.source_guard.revision = 1;
    EXPECT_EQ(services.script(), "configure terminal\n" + blank_services_before_the_alarms() +
                                     blank_services_behind_the_alarms +
                                     "no ip source-guard enable\n"
                                     "ip source-guard mode static\n");
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
