#include "tests/support/program.h"
#include "tool/profiles.h"

#include <gmock/gmock.h>

using ::testing::ContainsRegex;
using ::testing::EndsWith;
using ::testing::HasSubstr;
using ::testing::Not;
using ::testing::StartsWith;

namespace {

/// Something has changed in every area, and nothing else anywhere.
constexpr char before[] = R"({
  "system": {"user": {"0": {"exist": true, "name": "guest"}}},
  "pon": {
    "ont": {"3": {"exist": true}, "70": {"exist": true}},
    "profiles_olt": {"vlan": {"4": {"exist": true, "name": "homes"}}},
    "profiles_ont": {"alloc": {"127": {"exist": true, "name": "slow"}}}
  }
})";

constexpr char after[] = R"({
  "system": {
    "network": {"hostname": "olt-17"},
    "user": {"1": {"exist": true, "name": "noc", "password": "$1$Kq8$new", "priority": 5}},
    "services": {
      "ssh": {"access_control": true},
      "telnet": {"enabled": true},
      "snmp": {"location": "roof"},
      "syslog": {"size": 4096},
      "ntp": {"interval": 64},
      "alarm": {"type": {"4": {"type": "login", "severity": "critical"}}},
      "cli": {"session_timeout": 600},
      "log": {"submodule": {"13": {"level": "debug"}}},
      "tftp": {"backup_uri": "tftp://192.0.2.9/olt"},
      "config": {"autosave_hour": 3},
      "routing": {"route": {"2": {"exist": true, "prefix": "198.51.100.0", "mask": 24, "gateway": "192.0.2.1"}}},
      "source_guard": {"vid": "7"}
    },
    "settings": {"ont_sn_format": "dense"}
  },
  "pon": {
    "olt": {
      "general": {"ont_block_time": 60},
      "channel": {"0": {"onus_range": 20}, "7": {"fec_down": true}}
    },
    "ont": {"3": {"exist": true, "fec_up": true}, "531": {"exist": true}},
    "network": {
      "mac_age_time": 300,
      "terminal_vlan": {"0": {"exists": true, "name": "iptv", "tag": {"vid": 30}}, "31": {"exists": true, "name": "last"}}
    },
    "profiles_olt": {
      "vlan": {"4": {"exist": true, "name": "homes", "description": "Homes"}},
      "address_table": {"0": {"exist": true, "name": "table"}},
      "pppoe_ia": {"1": {"exist": true, "name": "agent"}},
      "dhcp_ra": {"2": {"exist": true, "name": "relay"}},
      "dhcpv6_ra": {"31": {"exist": true, "name": "relay6"}}
    },
    "profiles_ont": {
      "shaping": {"126": {"exist": true, "name": "fast"}},
      "cross_connect": {"5": {"exist": true, "name": "data"}},
      "alloc": {"127": {"exist": true, "name": "slow", "description": "Slow"}},
      "ports": {"6": {"exist": true, "name": "four"}},
      "management": {"7": {"exist": true, "name": "remote"}},
      "template_ont": {"8": {"exist": true, "name": "home"}},
      "voice": {"9": {"exist": true, "name": "sip"}}
    }
  }
})";

class Only : public ProgramTest {
  public:
    Only()
    {
        write("orig.json", before);
        write("cfg.json", after);
    }

    Outcome of(const std::string& area, const Arguments& more = {}) const
    {
        Arguments arguments{"diff", "--only", area, "orig.json", "cfg.json"};
        arguments.insert(arguments.end(), more.begin(), more.end());
        return run(arguments);
    }

    void expect_script(const std::string& area, const std::string& script) const
    {
        for (const Arguments& more : {Arguments{}, Arguments{"--verbatim"}}) {
            const Outcome outcome = of(area, more);
            EXPECT_EQ(outcome.out, script) << area;
            EXPECT_EQ(besides_not_applied(outcome.err), "") << area;
            EXPECT_EQ(outcome.status, 1) << area;
        }
    }

    /// The configurations are equal, or differ in fields that have no command in the area.
    void expect_nothing_to_do(const std::string& area, const std::string& verbatim,
                              const std::vector<std::string>& fields = {}) const
    {
        const Outcome quiet = of(area);
        EXPECT_EQ(quiet.out, "") << area;
        EXPECT_EQ(fields_not_applied(quiet.err), fields) << area;
        EXPECT_EQ(quiet.status, 0) << area;
        const Outcome outcome = of(area, {"--verbatim"});
        EXPECT_EQ(outcome.out, verbatim) << area;
        EXPECT_EQ(outcome.err, quiet.err) << area;
        EXPECT_EQ(outcome.status, 0) << area;
    }
};

// ----------------------------------------------------------------------------------------------- what each area prints

TEST_F(Only, SystemEndsInTheViewOfItsLastCommand)
{
    expect_script("system", "configure terminal\n"
                            "hostname \"olt-17\"\n"
                            "no user \"guest\"\n"
                            "user \"noc\" crypted_password \"$1$Kq8$new\"\n"
                            "user \"noc\" privilege \"5\"\n"
                            "ip telnet enable\n"
                            "ip ssh access-control\n"
                            "ip snmp location \"roof\"\n"
                            "logging buffer \"4096\"\n"
                            "ip ntp interval \"64\"\n"
                            "alarm login severity \"critical\"\n"
                            "cli session-timeout \"600\"\n"
                            "logging module pmchal-dhcpv6ra loglevel \"debug\"\n"
                            "backup uri \"tftp://192.0.2.9/olt\"\n"
                            "config autosave hour \"3\"\n"
                            "ip source-guard ignore-vlan    7\n"
                            "cli ont-sn-format \"dense\"\n");
}

TEST_F(Only, PonEndsInTheViewOfItsLastCommand)
{
    const Outcome outcome = of("pon");
    EXPECT_THAT(outcome.out, StartsWith("configure terminal\n"
                                        "gpon network mac-age-time \"300\"\n"
                                        "gpon network terminal-vlan \"iptv\" vid \"30\"\n"
                                        "gpon network terminal-vlan \"last\"\n"
                                        "profile vlan \"homes\"\n"
                                        "description \"Homes\"\n"
                                        "exit\n"
                                        "profile address-table \"table\"\n"
                                        "exit\n"
                                        "profile pppoe-ia \"agent\"\n"));
    EXPECT_THAT(outcome.out, EndsWith("exit\n"
                                      "ont block-time \"60\"\n"
                                      "interface gpon-port    0\n"
                                      "range 20\n"
                                      "exit\n"
                                      "interface gpon-port    7\n"
                                      "fec\n"
                                      "exit\n"
                                      "interface ont 0/3\n"
                                      "fec\n"
                                      "exit\n"
                                      "no interface ont 1/6\n"
                                      "interface ont 8/19\n"));
    EXPECT_THAT(outcome.out, Not(HasSubstr("hostname")));
    EXPECT_EQ(besides_not_applied(outcome.err), "");
    EXPECT_EQ(outcome.status, 1);
}

TEST_F(Only, OntIsNavigatedToAndFromWithoutCommit)
{
    expect_script("ont:3", "configure terminal\ninterface ont 0/3\nfec\nexit\nexit\n");
    expect_script("ont:70", "configure terminal\nno interface ont 1/6\nexit\n");
    expect_script("ont:531", "configure terminal\ninterface ont 8/19\nexit\nexit\n");
}

TEST_F(Only, OntIsNamedByPortAndIdAsWell)
{
    expect_script("ont:0/3", "configure terminal\ninterface ont 0/3\nfec\nexit\nexit\n");
    expect_script("ont:1/6", "configure terminal\nno interface ont 1/6\nexit\n");
    expect_script("ont:8/19", "configure terminal\ninterface ont 8/19\nexit\nexit\n");
}

TEST_F(Only, PortIsNavigatedToAndFromWithoutCommit)
{
    expect_script("port:0", "configure terminal\ninterface gpon-port    0\nrange 20\nexit\nexit\n");
    expect_script("port:7", "configure terminal\ninterface gpon-port    7\nfec\nexit\nexit\n");
}

TEST_F(Only, OltProfilesEndAtTheTopLevelWithCommit)
{
    expect_script("profiles-olt", "configure terminal\n"
                                  "profile vlan \"homes\"\n"
                                  "description \"Homes\"\n"
                                  "exit\n"
                                  "profile address-table \"table\"\n"
                                  "exit\n"
                                  "profile pppoe-ia \"agent\"\n"
                                  "exit\n"
                                  "profile dhcp-ra \"relay\"\n"
                                  "exit\n"
                                  "profile dhcpv6-ra \"relay6\"\n"
                                  "exit\n"
                                  "exit\n"
                                  "commit\n");
}

TEST_F(Only, OntProfilesEndAtTheTopLevelWithCommit)
{
    // In the order of the walk, which is not that of the record.
    expect_script("profiles-ont", "configure terminal\n"
                                  "profile shaping \"fast\"\n"
                                  "exit\n"
                                  "profile cross-connect \"data\"\n"
                                  "exit\n"
                                  "profile dba \"slow\"\n"
                                  "description \"Slow\"\n"
                                  "exit\n"
                                  "profile ports \"four\"\n"
                                  "exit\n"
                                  "profile voice \"sip\"\n"
                                  "exit\n"
                                  "profile management \"remote\"\n"
                                  "exit\n"
                                  "template \"home\"\n"
                                  "exit\n"
                                  "exit\n"
                                  "commit\n");
}

struct KnownKind {
    const char* name;
    const char* id;     ///< of the slot in which something has changed
    const char* script; ///< between "configure terminal" and "exit", "exit", "commit"
    const char* last;   ///< slot
};

constexpr KnownKind kinds[] = {
    {"address-table", "0", "profile address-table \"table\"\n", "31"},
    {"cross-connect", "5", "profile cross-connect \"data\"\n", "127"},
    {"dba", "127", "profile dba \"slow\"\ndescription \"Slow\"\n", "127"},
    {"dhcp-ra", "2", "profile dhcp-ra \"relay\"\n", "31"},
    {"dhcpv6-ra", "31", "profile dhcpv6-ra \"relay6\"\n", "31"},
    {"management", "7", "profile management \"remote\"\n", "31"},
    {"ports", "6", "profile ports \"four\"\n", "31"},
    {"voice", "9", "profile voice \"sip\"\n", "31"},
    {"pppoe-ia", "1", "profile pppoe-ia \"agent\"\n", "31"},
    {"shaping", "126", "profile shaping \"fast\"\n", "127"},
    {"vlan", "4", "profile vlan \"homes\"\ndescription \"Homes\"\n", "31"},
    {"template", "8", "template \"home\"\n", "31"},
};

TEST_F(Only, ProfilesOfAKind)
{
    for (const KnownKind& kind : kinds) {
        const std::string script = std::string("configure terminal\n") + kind.script + "exit\nexit\ncommit\n";
        const std::string area = std::string("profile:") + kind.name;
        expect_script(area, script);
        expect_script(area + ":" + kind.id, script);
        expect_nothing_to_do(area + ":" + (kind.id == std::string("3") ? "4" : "3"),
                             "configure terminal\nexit\ncommit\n");
    }
}

TEST_F(Only, ProfileSlotsEndWithTheArray)
{
    for (const KnownKind& kind : kinds) {
        const std::string area = std::string("profile:") + kind.name + ":";
        EXPECT_NE(of(area + kind.last).status, 2) << area;
        const Outcome beyond = of(area + (kind.last == std::string("31") ? "32" : "128"));
        EXPECT_THAT(beyond.err, HasSubstr(std::string("; there are 0 to ") + kind.last + "\n"));
        EXPECT_EQ(beyond.status, 2) << area;
    }
}

TEST_F(Only, OneProfileIsRenderedByAllThoughItIsEqual)
{
    write("orig.json", after);
    const Outcome outcome = of("profile:vlan:4", {"--all"});
    EXPECT_THAT(outcome.out, StartsWith("configure terminal\nprofile vlan \"homes\"\ndescription \"Homes\"\n"));
    EXPECT_EQ(outcome.status, 1);
    expect_nothing_to_do("profile:vlan", "configure terminal\nexit\ncommit\n");
}

TEST_F(Only, Blocks)
{
    const std::vector<std::pair<std::string, std::string>> blocks{
        {"olt", "ont block-time \"60\"\n"},
        {"network", "gpon network mac-age-time \"300\"\n"
                    "gpon network terminal-vlan \"iptv\" vid \"30\"\n"
                    "gpon network terminal-vlan \"last\"\n"},
        {"backup", "backup uri \"tftp://192.0.2.9/olt\"\n"},
        {"cli", "cli session-timeout \"600\"\n"},
        {"config", "config autosave hour \"3\"\n"},
        {"management", "hostname \"olt-17\"\n"},
        {"ntp", "ip ntp interval \"64\"\n"},
        {"snmp", "ip snmp location \"roof\"\n"},
        {"ssh", "ip ssh access-control\n"},
        {"source_guard", "ip source-guard ignore-vlan    7\n"},
        {"telnet", "ip telnet enable\n"},
        {"logging", "logging buffer \"4096\"\nlogging module pmchal-dhcpv6ra loglevel \"debug\"\n"},
        {"user", "no user \"guest\"\n"
                 "user \"noc\" crypted_password \"$1$Kq8$new\"\n"
                 "user \"noc\" privilege \"5\"\n"},
        {"route", "ip route prefix 198.51.100.0 mask \"24\" gateway \"192.0.2.1\"\n"},
    };
    for (const auto& [name, commands] : blocks) {
        expect_script("block:" + name, "configure terminal\n" + commands + "exit\ncommit\n");
    }
    write("orig.json", after);
    for (const auto& [name, unused] : blocks) {
        expect_nothing_to_do("block:" + name, "configure terminal\nexit\ncommit\n");
    }
}

TEST_F(Only, Alarms)
{
    expect_script("alarm", "configure terminal\nalarm login severity \"critical\"\nexit\ncommit\n");
}

TEST_F(Only, Routes)
{
    expect_script("routes", "configure terminal\n"
                            "ip route prefix 198.51.100.0 mask \"24\" gateway \"192.0.2.1\"\n"
                            "exit\n"
                            "commit\n");
}

TEST_F(Only, TerminalVlansAreDeclaredInTheConfigureView)
{
    expect_script("terminal-vlans", "configure terminal\n"
                                    "gpon network terminal-vlan \"iptv\"\n"
                                    "gpon network terminal-vlan \"last\"\n");
}

TEST_F(Only, GoesIntoAFileToo)
{
    EXPECT_EQ(of("port:7", {"-o", "script"}).out, "");
    EXPECT_EQ(read("script"), "configure terminal\ninterface gpon-port    7\nfec\nexit\nexit\n");
}

// -------------------------------------------------------------------------------------------- scripts of no effect

TEST_F(Only, EqualConfigurationsAreNothingToDo)
{
    write("orig.json", after);
    expect_nothing_to_do("system", "");
    expect_nothing_to_do("pon", "");
    expect_nothing_to_do("ont:3", "configure terminal\nexit\n");
    expect_nothing_to_do("port:7", "configure terminal\nexit\n");
    expect_nothing_to_do("profiles-olt", "");
    expect_nothing_to_do("profiles-ont", "");
    expect_nothing_to_do("alarm", "configure terminal\nexit\ncommit\n");
    expect_nothing_to_do("routes", "");
}

TEST_F(Only, ScriptsOfMovesAreNothingToDoWhereverTheyEnd)
{
    // A port that is switched on: the script enters its view and says nothing there.
    write("orig.json", "{}");
    write("cfg.json", R"({"pon": {"olt": {"channel": {"3": {"enabled": true}}}}})");
    expect_nothing_to_do("pon", "configure terminal\ninterface gpon-port    3\n", {"pon.olt.channel.3.enabled"});
    expect_nothing_to_do("port:3", "configure terminal\ninterface gpon-port    3\nexit\nexit\n",
                         {"pon.olt.channel.3.enabled"});
}

TEST_F(Only, DeclarationsOfKnownTerminalVlansAreNothingToDo)
{
    constexpr char declarations[] = "configure terminal\n"
                                    "gpon network terminal-vlan \"iptv\"\n"
                                    "gpon network terminal-vlan \"last\"\n";
    write("orig.json", after);
    expect_nothing_to_do("terminal-vlans", declarations);

    // One that is new brings all of them.
    write("orig.json", R"({"pon": {"network": {"terminal_vlan": {"0": {"exists": true, "name": "iptv"},
                                                                 "31": {"exists": false, "name": "last"}}}}})");
    expect_script("terminal-vlans", declarations);
}

TEST_F(Only, NoTerminalVlansAreNothingToDo)
{
    write("cfg.json", "{}");
    expect_nothing_to_do("terminal-vlans", "configure terminal\n");
}

TEST_F(Only, ChangeThatDeclaresNothingIsNamed)
{
    write("orig.json", R"({"pon": {"network": {"terminal_vlan": {"2": {"exists": true, "name": "gone"},
                                                                 "3": {"exists": true, "name": "voice"}}}}})");
    write("cfg.json", R"({"pon": {"network": {"mac_age_time": 300,
                                              "terminal_vlan": {"3": {"exists": true, "name": "voice", "tag": {"vid": 5}}}}}})");
    expect_nothing_to_do("terminal-vlans", "configure terminal\ngpon network terminal-vlan \"voice\"\n",
                         {"pon.network.terminal_vlan.2.exists", "pon.network.terminal_vlan.2.name",
                          "pon.network.terminal_vlan.3.tag.vid"});
}

TEST_F(Only, FieldsWithoutACommandAreNamedInTheAreaAlone)
{
    write("orig.json", "{}");
    write("cfg.json", R"({
      "system": {"network": {"ACSVid": 9}, "services": {
        "syslog": {"revision": 1}, "log": {"submodule": {"0": {"dest": "console", "show_time": true}}},
        "alarm": {"cfg": {"min_rpm": 1, "max_rpm": 2}}, "routing": {"revision": 4}}},
      "pon": {
        "ont": {"3": {"auth_method": 1}, "4": {"auth_method": 1, "ems_profile_index": 2}},
        "olt": {"channel": {"1": {"max_ont_count": 64}, "2": {"max_ont_count": 64, "revision": 1}}},
        "network": {"mcvlan": 9},
        "profiles_olt": {"vlan": {"1": {"revision": 1}, "2": {"name": "freed", "revision": 1}}},
        "profiles_ont": {"voice": {"0": {"revision": 1}}}
      }
    })");
    constexpr char moves[] = "configure terminal\nexit\n";
    constexpr char committed[] = "configure terminal\nexit\ncommit\n";
    expect_nothing_to_do("system", "",
                         {"system.network.ACSVid", "system.services.alarm.cfg.min_rpm",
                          "system.services.alarm.cfg.max_rpm", "system.services.log.submodule.0.dest",
                          "system.services.log.submodule.0.show_time"});
    expect_nothing_to_do("pon", "", {"pon.olt.channel.1.max_ont_count (and 1 more like it)", "pon.network.mcvlan"});
    expect_nothing_to_do("ont:2", moves);
    // What a free slot holds means nothing, and neither do revisions.
    expect_nothing_to_do("ont:3", moves);
    expect_nothing_to_do("ont:0/4", moves);
    expect_nothing_to_do("profiles-olt", "");
    expect_nothing_to_do("profiles-ont", "");
    expect_nothing_to_do("profile:vlan", committed);
    expect_nothing_to_do("profile:vlan:1", committed);
    expect_nothing_to_do("profile:vlan:2", committed);
    expect_nothing_to_do("profile:vlan:3", committed);
    expect_nothing_to_do("profile:dhcp-ra", committed);
    expect_nothing_to_do("block:management", committed, {"system.network.ACSVid"});
    expect_nothing_to_do("block:logging", committed,
                         {"system.services.log.submodule.0.dest", "system.services.log.submodule.0.show_time"});
    expect_nothing_to_do("block:network", committed, {"pon.network.mcvlan"});
    expect_nothing_to_do("block:olt", committed);
    expect_nothing_to_do("alarm", committed,
                         {"system.services.alarm.cfg.min_rpm", "system.services.alarm.cfg.max_rpm"});
    expect_nothing_to_do("routes", "");
    const Outcome port = of("port:2");
    EXPECT_EQ(fields_not_applied(port.err), Arguments{"pon.olt.channel.2.max_ont_count"});
}

// --------------------------------------------------------------------------------------------------------------- help

TEST_F(Only, HelpListsAreasKindsAndBlocks)
{
    const std::string help = run({"diff", "--help"}).out;
    for (const char* const area :
         {"system", "pon", "ont:INDEX", "port:N", "profiles-olt", "profiles-ont", "profile:KIND", "profile:KIND:ID",
          "block:NAME", "alarm", "routes", "terminal-vlans"}) {
        EXPECT_THAT(help, HasSubstr(std::string("\n  ") + area + "  ")) << help;
    }
    std::string listed = help.substr(help.find("\nKinds of profiles:\n"));
    listed.resize(listed.find("\n\nBlocks of settings:\n"));
    for (const pondiff::tool::ProfileKind& kind : pondiff::tool::profile_kinds) {
        EXPECT_THAT(listed + ",", ContainsRegex(std::string("[ \n]") + kind.name + ",")) << kind.name;
    }
    EXPECT_THAT(listed, Not(ContainsRegex("[^\n]{81}")));
    EXPECT_THAT(help, HasSubstr("\nBlocks of settings:\n"
                                "    olt, network, backup, cli, config, management, ntp, snmp, ssh, source_guard,\n"
                                "    telnet, logging, user, route\n"));
}

} // namespace
