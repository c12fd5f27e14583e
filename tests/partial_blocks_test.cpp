#include "tests/partial_diff.h"

namespace {

const std::string nothing = "configure terminal\nexit\ncommit\n";

std::string shown(const std::string& commands)
{
    return "configure terminal\n" + commands + "exit\ncommit\n";
}

/// Something has changed in every block, and outside them.
class PartialBlocks : public PartialDiff {
  protected:
    PartialBlocks()
    {
        GCfg& cfg = *session.cfg;
        GSystemServices& services = cfg.system.services;
        cfg.pon.olt.general.ont_block_time = 60;
        cfg.pon.network.mac_age_time = 300;
        put(services.tftp.backup_uri, "tftp://192.0.2.9/olt");
        services.cli.session_timeout = 600;
        services.config.autosave_hour = 3;
        put(cfg.system.network.hostname, "olt-17");
        services.ntp.interval = 64;
        put(services.snmp.location, "roof");
        services.ssh.access_control = 1;
        services.source_guard.vid[7].allowed = 1;
        services.telnet.enabled = 1;
        services.syslog.size = 4096;
        services.log.submodule[13].level = 7;
        session.orig->system.user[0].exist = 1;
        put(session.orig->system.user[0].name, "guest");
        cfg.system.user[15].exist = 1;
        put(cfg.system.user[15].name, "admin");
        put(cfg.system.user[15].password, "$1$Kq8$new");
        put(services.routing.route[511].prefix, {198, 51, 100, 0});
        services.routing.route[511].mask = 24;
        put(services.routing.route[511].gateway, {192, 0, 2, 1});

        cfg.system.settings.ont_sn_format = 1;
        services.alarm.type[0].severity = 1;
        services.http.allow[0].mask = 8;
        services.https.allow[0].mask = 8;
        cfg.system.network.ACSVid = 9;
        cfg.pon.olt.channel[0].fec_down = 1;
        cfg.pon.ont[0].exist = 1;
        cfg.pon.profiles_olt.vlan[0].exist = 1;
        session.open();
    }
};

TEST_F(PartialBlocks, EachShowsItsOwnRecordsAlone)
{
    EXPECT_EQ(block("olt"), shown("ont block-time \"60\"\n"));
    EXPECT_EQ(block("network"), shown("gpon network mac-age-time \"300\"\n"));
    EXPECT_EQ(block("backup"), shown("backup uri \"tftp://192.0.2.9/olt\"\n"));
    EXPECT_EQ(block("cli"), shown("cli session-timeout \"600\"\n"));
    EXPECT_EQ(block("config"), shown("config autosave hour \"3\"\n"));
    EXPECT_EQ(block("management"), shown("hostname \"olt-17\"\n"));
    EXPECT_EQ(block("ntp"), shown("ip ntp interval \"64\"\n"));
    EXPECT_EQ(block("snmp"), shown("ip snmp location \"roof\"\n"));
    EXPECT_EQ(block("ssh"), shown("ip ssh access-control\n"));
    EXPECT_EQ(block("source_guard"), shown("ip source-guard ignore-vlan    7\n"));
    EXPECT_EQ(block("telnet"), shown("ip telnet enable\n"));
    EXPECT_EQ(block("logging"), shown("logging buffer \"4096\"\n"
                                      "logging module pmchal-dhcpv6ra loglevel \"debug\"\n"));
    EXPECT_EQ(block("user"), shown("no user \"guest\"\n"
                                   "user \"admin\" crypted_password \"$1$Kq8$new\"\n"));
    EXPECT_EQ(block("route"), shown("ip route prefix 198.51.100.0 mask \"24\" gateway \"192.0.2.1\"\n"));
    EXPECT_STREQ(current_view.name, "root");
}

TEST_F(PartialBlocks, EqualConfigurationsGiveNavigationsAndCommit)
{
    session.settle();
    for (const char* const name : {"olt", "network", "backup", "cli", "config", "management", "ntp", "snmp", "ssh",
                                   "source_guard", "telnet", "logging", "user", "route"}) {
        EXPECT_EQ(block(name), nothing) << name;
    }
}

TEST_F(PartialBlocks, UnknownNameSelectsNothing)
{
    session.open(1, 2);
    for (const char* const unknown :
         {"",      "o",      "ol",      "olts",         "OLT",      " olt",          "olt ",   "system",
          "pon",   "http",   "https",   "alarm",        "web",      "log",           "syslog", "tftp",
          "users", "routes", "routing", "source-guard", "settings", "terminal-vlans"}) {
        EXPECT_EQ(block(unknown), nothing) << unknown;
    }
}

TEST_F(PartialBlocks, LoggingShowsEitherRecordWithoutTheOther)
{
    session.orig->system.services.syslog = session.cfg->system.services.syslog;
    EXPECT_EQ(block("logging"), shown("logging module pmchal-dhcpv6ra loglevel \"debug\"\n"));
    *session.orig = *session.cfg;
    session.orig->system.services.syslog.size = 1;
    EXPECT_EQ(block("logging"), shown("logging buffer \"4096\"\n"));
}

TEST_F(PartialBlocks, NewUserHasItsNameAndPrivilege)
{
    session.cfg->system.user[7].exist = 1;
    session.cfg->system.user[7].priority = 15;
    put(session.cfg->system.user[7].name, "operator");
    session.open();
    EXPECT_EQ(block("user"), shown("no user \"guest\"\n"
                                   "user \"operator\" crypted_password \"\"\n"
                                   "user \"operator\" privilege \"15\"\n"
                                   "user \"admin\" crypted_password \"$1$Kq8$new\"\n"));
}

TEST_F(PartialBlocks, FirstAndLastRouteInOrder)
{
    session.cfg->system.services.routing.route[0].mask = 8;
    session.open();
    EXPECT_EQ(block("route"), shown("ip route prefix 0.0.0.0 mask \"8\" gateway \"0.0.0.0\"\n"
                                    "ip route prefix 198.51.100.0 mask \"24\" gateway \"192.0.2.1\"\n"));
}

TEST_F(PartialBlocks, PrintAllForcesARecordThatIsEqual)
{
    session.settle();
    session.open(1, 0);
    const auto subjects_of = [this](const char* name) { return subjects(block(name)); };
    EXPECT_EQ(subjects_of("management"), (Elements{"configure", "hostname", "management", "exit", "commit"}));
    EXPECT_EQ(subjects_of("config"), (Elements{"configure", "config", "exit", "commit"}));
    EXPECT_EQ(subjects_of("backup"), (Elements{"configure", "backup", "exit", "commit"}));
    EXPECT_EQ(subjects_of("ntp"), (Elements{"configure", "ip ntp", "exit", "commit"}));
    EXPECT_EQ(subjects_of("source_guard"), (Elements{"configure", "ip source-guard", "exit", "commit"}));
}

TEST_F(PartialBlocks, PrintAllShowsNoEqualUserOrRoute)
{
    session.settle();
    session.open(1, 2);
    EXPECT_EQ(block("user"), nothing);
    EXPECT_EQ(block("route"), nothing);
}

TEST_F(PartialBlocks, PrintAllForcesTheCommonRecordsOnlyWithPrintCommon)
{
    session.settle();
    session.open(1, 0);
    EXPECT_EQ(block("network"), nothing);
    EXPECT_EQ(block("olt"), nothing);
    for (const int common : {1, 2}) {
        session.open(1, common);
        EXPECT_EQ(block("network"), shown("gpon network mac-age-time \"300\"\n"
                                          "gpon network svlan-ethertype \"0x0000\"\n"
                                          "gpon network cvlan-ethertype \"0x0000\"\n"));
        const std::string front = "configure terminal\n"
                                  "no gpon olt block-duplicated-mac\n"
                                  "ont block-time \"60\"\n"
                                  "gpon olt dhcpra-shaper \"0\"\n";
        EXPECT_EQ(block("olt").substr(0, front.size()), front);
    }
}

} // namespace
