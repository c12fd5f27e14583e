#include "tests/support/program.h"

#include <cstddef>
#include <gmock/gmock.h>

using ::testing::AllOf;
using ::testing::ElementsAre;
using ::testing::EndsWith;
using ::testing::HasSubstr;
using ::testing::Not;
using ::testing::StartsWith;

namespace {

constexpr char blank[] = "{}";
constexpr char named_olt_17[] = R"({"system": {"network": {"hostname": "olt-17"}}})";
constexpr char renamed_script[] = "configure terminal\n"
                                  "hostname \"olt-17\"\n"
                                  "exit\n"
                                  "commit\n";

/// A record with every byte zero but the name of the device.
std::string record_named(const std::string& hostname)
{
    std::string record(sizeof(GCfg), '\0');
    record.replace(offsetof(GCfg, system.network.hostname), hostname.size(), hostname);
    return record;
}

class Diff : public ProgramTest {
  public:
    Diff()
    {
        write("orig.json", blank);
        write("cfg.json", named_olt_17);
    }

    /// Runs a diff of what holds the text `cfg` against the blank configuration.
    Outcome against_blank(const std::string& cfg, Arguments more = {})
    {
        write("cfg.json", cfg);
        more.insert(more.begin(), {"diff", "orig.json", "cfg.json"});
        return run(more);
    }
};

using Files = Diff;

// ------------------------------------------------------------------------------------------------------ the script

TEST_F(Diff, HostnameAloneGivesItsCommandInTheConfigureView)
{
    const Outcome outcome = run({"diff", "orig.json", "cfg.json"});
    EXPECT_EQ(outcome.out, renamed_script);
    EXPECT_EQ(outcome.err, "");
    EXPECT_EQ(outcome.status, 1);
}

TEST_F(Diff, EqualConfigurationsPrintNothing)
{
    const Outcome outcome = run({"diff", "cfg.json", "cfg.json"});
    EXPECT_EQ(outcome.out, "");
    EXPECT_EQ(outcome.err, "");
    EXPECT_EQ(outcome.status, 0);
}

TEST_F(Diff, FieldWithoutACommandIsNamed)
{
    const Outcome outcome = against_blank(R"({"pon": {"network": {"mcvlan": 100}}})");
    EXPECT_EQ(outcome.out, "");
    EXPECT_EQ(outcome.err, "pondiff: not applied: pon.network.mcvlan: wanted 100, stays 0; the multicast VLAN has no "
                           "command\n");
    EXPECT_EQ(outcome.status, 0);
}

TEST_F(Diff, EveryFieldWithoutACommandIsNamedButRevisions)
{
    const Outcome outcome = against_blank(R"({"system": {"network": {"revision": 7, "ACSIp": "192.0.2.9"}},
                                              "pon": {"network": {"mccos": 5}}})");
    EXPECT_EQ(outcome.out, "");
    EXPECT_EQ(outcome.err,
              "pondiff: not applied: system.network.ACSIp: wanted \"192.0.2.9\", stays \"0.0.0.0\"; the "
              "script has no command for it\n"
              "pondiff: not applied: pon.network.mccos: wanted 5, stays 0; the class of service of multicast "
              "has no command\n");
    EXPECT_EQ(outcome.status, 0);
}

TEST_F(Diff, FieldsWithoutACommandAreNamedBesideAScript)
{
    const Outcome outcome = against_blank(R"({"pon": {"network": {"mcvlan": 100, "mac_age_time": 300}}})");
    EXPECT_EQ(outcome.out, "configure terminal\ngpon network mac-age-time \"300\"\nexit\ncommit\n");
    EXPECT_EQ(outcome.err, "pondiff: not applied: pon.network.mcvlan: wanted 100, stays 0; the multicast VLAN has no "
                           "command\n");
    EXPECT_EQ(outcome.status, 1);
}

TEST_F(Diff, RemovalNeedsNoNavigation)
{
    write("orig.json", R"({"pon": {"network": {"terminal_vlan": {"4": {"exists": true, "name": "iptv"}}}}})");
    const Outcome outcome = against_blank(blank);
    EXPECT_EQ(outcome.out, "no gpon network terminal-vlan \"iptv\"\ncommit\n");
    EXPECT_EQ(outcome.status, 1);
}

TEST_F(Diff, AllRendersEqualFieldsToo)
{
    const Outcome outcome = run({"diff", "--all", "orig.json", "cfg.json"});
    EXPECT_THAT(outcome.out, StartsWith("configure terminal\n"
                                        "hostname \"olt-17\"\n"
                                        "management ip \"0.0.0.0\"\n"
                                        "management mask \"0.0.0.0\"\n"
                                        "management vid \"0\"\n"
                                        "management gateway \"0.0.0.0\"\n"
                                        "management cos \"0\"\n"
                                        "management dscp \"0\"\n"));
    EXPECT_THAT(outcome.out, Not(HasSubstr("mac-age-time")));
    EXPECT_THAT(outcome.out, EndsWith("exit\ncommit\n"));
    EXPECT_EQ(outcome.status, 1);
}

TEST_F(Diff, AllWithTheCommonSettingsRendersThose)
{
    const Outcome outcome = run({"diff", "orig.json", "cfg.json", "--all", "--common", "2"});
    EXPECT_THAT(outcome.out,
                AllOf(HasSubstr("\nhostname \"olt-17\"\n"), HasSubstr("\ngpon network mac-age-time \"0\"\n")));
    EXPECT_EQ(outcome.status, 1);
}

TEST_F(Diff, CommonSettingsAlone)
{
    constexpr char cfg[] =
        R"({"system": {"network": {"hostname": "olt-17"}}, "pon": {"network": {"mac_age_time": 300}}})";
    const Outcome outcome = against_blank(cfg, {"--common", "1"});
    EXPECT_EQ(outcome.out, "configure terminal\ngpon network mac-age-time \"300\"\nexit\ncommit\n");
    EXPECT_EQ(outcome.status, 1);
}

TEST_F(Diff, FieldOutsideTheCommonSettingsIsNamedWhenTheyAreCompared)
{
    const Outcome outcome = run({"diff", "orig.json", "cfg.json", "--common=1"});
    EXPECT_EQ(outcome.out, "");
    EXPECT_EQ(outcome.err,
              "pondiff: not applied: system.network.hostname: wanted \"olt-17\", stays \"\"; the script has "
              "no command for it\n");
    EXPECT_EQ(outcome.status, 0);
}

TEST_F(Diff, SwitchWhoseOneStateHasNoCommandIsNothingToDo)
{
    // A port that is switched on: the script enters its view and says nothing there.
    constexpr char cfg[] = R"({"pon": {"olt": {"channel": {"3": {"enabled": true}}}}})";
    const Outcome quiet = against_blank(cfg);
    EXPECT_EQ(quiet.out, "");
    EXPECT_EQ(quiet.err,
              "pondiff: not applied: pon.olt.channel.3.enabled: wanted true, stays false; no command says this "
              "value\n");
    EXPECT_EQ(quiet.status, 0);

    const Outcome verbatim = against_blank(cfg, {"--verbatim"});
    EXPECT_EQ(verbatim.out, "configure terminal\ninterface gpon-port    3\nexit\nexit\ncommit\n");
    EXPECT_EQ(verbatim.err, quiet.err);
    EXPECT_EQ(verbatim.status, 0);
}

TEST_F(Diff, NewOntIsSomethingToDoByItself)
{
    const Outcome outcome = against_blank(R"({"pon": {"ont": {"70": {"exist": true}}}})");
    EXPECT_EQ(outcome.out, "configure terminal\ninterface ont 1/6\nexit\nexit\ncommit\n");
    EXPECT_EQ(besides_not_applied(outcome.err), "");
    EXPECT_EQ(outcome.status, 1);
}

TEST_F(Diff, NewProfileIsSomethingToDoByItself)
{
    const Outcome outcome =
        against_blank(R"({"pon": {"profiles_ont": {"voice": {"2": {"exist": true, "name": "sip"}}}}})");
    EXPECT_EQ(outcome.out, "configure terminal\nprofile voice \"sip\"\nexit\nexit\ncommit\n");
    EXPECT_EQ(outcome.status, 1);
}

TEST_F(Diff, OntThatStaysIsNotCreatedAgain)
{
    // 1 and 2 both mean that the ONT exists.
    write("orig.json", R"({"pon": {"ont": {"70": {"exist": true}}}})");
    const Outcome outcome = against_blank(R"({"pon": {"ont": {"70": {"exist": 2}}}})");
    EXPECT_EQ(outcome.out, "");
    EXPECT_EQ(outcome.err, "");
    EXPECT_EQ(outcome.status, 0);
}

TEST_F(Diff, ProfileOfAPortIsACommand)
{
    constexpr char orig[] = R"({"pon": {"profiles_olt": {"vlan": {"0": {"exist": true, "name": "homes"}}},
                                        "olt": {"channel": {"2": {"profile_olt_vlan": -1}}}}})";
    write("orig.json", orig);
    const Outcome outcome =
        against_blank(R"({"pon": {"profiles_olt": {"vlan": {"0": {"exist": true, "name": "homes"}}}}})");
    EXPECT_EQ(outcome.out, "configure terminal\n"
                           "interface gpon-port    2\n"
                           "profile vlan \"homes\"\n"
                           "exit\n"
                           "exit\n"
                           "commit\n");
    EXPECT_EQ(outcome.status, 1);
}

// ----------------------------------------------------------------------------------------------- scripts of no effect

class Script : public Diff {
  public:
    Script()
    {
        // Equal, so that nothing is reported about fields that differ.
        const std::string objects = R"({"pon": {"ont": {"70": {"exist": true}, "531": {"exist": true}},
            "profiles_olt": {"vlan": {"3": {"exist": true, "name": "residential"}, "4": {"name": "freed"}},
                             "dhcp_ra": {"0": {"exist": true, "name": "relay"}}},
            "profiles_ont": {"voice": {"31": {"exist": true, "name": "two\nlines"}},
                             "template_ont": {"0": {"exist": true, "name": "home"}},
                             "alloc": {"127": {"exist": true, "name": {"hex": "5369787465656E4C6574746572735858"}}}}}})";
        write("orig.json", objects);
        write("cfg.json", objects);
    }

    /// Lets the program take `script` for the library's, whatever it does.
    Outcome given(const std::string& script, const Arguments& more = {}) const
    {
        Arguments arguments{"diff", "--force", "orig.json", "cfg.json"};
        arguments.insert(arguments.end(), more.begin(), more.end());
        return run(arguments, with_other_library("TEST_SCRIPT=" + script));
    }

    void expect_nothing_to_do(const std::string& script) const
    {
        const Outcome outcome = given(script);
        EXPECT_EQ(outcome.out, "") << script;
        EXPECT_EQ(besides_not_applied(outcome.err), "") << script;
        EXPECT_EQ(outcome.status, 0) << script;
    }

    void expect_printed(const std::string& script) const
    {
        const Outcome outcome = given(script);
        EXPECT_EQ(outcome.out, script);
        EXPECT_EQ(besides_not_applied(outcome.err), "") << script;
        EXPECT_EQ(outcome.status, 1) << script;
    }
};

TEST_F(Script, MovesBetweenViewsOfWhatExistsAreNothingToDo)
{
    expect_nothing_to_do("");
    expect_nothing_to_do("commit\n");
    expect_nothing_to_do("configure terminal\nexit\ncommit\n");
    expect_nothing_to_do("configure terminal\ninterface gpon-port    0\nexit\ninterface gpon-port    7\nexit\nexit\n"
                         "commit\n");
    expect_nothing_to_do("configure terminal\ninterface ont 1/6\nexit\ninterface ont 8/19\nexit\nexit\ncommit\n");
    expect_nothing_to_do("configure terminal\nprofile vlan \"residential\"\nexit\nprofile dhcp-ra \"relay\"\nexit\n"
                         "template \"home\"\nexit\nprofile dba \"SixteenLettersXX\"\nexit\nexit\ncommit\n");
    expect_nothing_to_do("configure terminal\nprofile vlan residential\nexit\nexit\ncommit\n");
}

TEST_F(Script, ANameThatBreaksALineIsNoMove)
{
    expect_printed("configure terminal\nprofile voice \"two\nlines\"\nexit\nexit\ncommit\n");
}

TEST_F(Script, EveryKindOfProfileIsKnown)
{
    const std::vector<std::pair<std::string, std::string>> kinds{
        {"profiles_olt.vlan", "profile vlan"},
        {"profiles_olt.address_table", "profile address-table"},
        {"profiles_olt.pppoe_ia", "profile pppoe-ia"},
        {"profiles_olt.dhcp_ra", "profile dhcp-ra"},
        {"profiles_olt.dhcpv6_ra", "profile dhcpv6-ra"},
        {"profiles_ont.shaping", "profile shaping"},
        {"profiles_ont.cross_connect", "profile cross-connect"},
        {"profiles_ont.alloc", "profile dba"},
        {"profiles_ont.ports", "profile ports"},
        {"profiles_ont.management", "profile management"},
        {"profiles_ont.template_ont", "template"},
        {"profiles_ont.voice", "profile voice"},
    };
    for (const auto& [held, unused] : kinds) {
        const std::size_t dot = held.find('.');
        const std::string one = R"({"pon": {")" + held.substr(0, dot) + R"(": {")" + held.substr(dot + 1) +
                                R"(": {"31": {"exist": true, "name": "x"}}}}})";
        write("orig.json", one);
        write("cfg.json", one);
        for (const auto& [kind, command] : kinds) {
            const std::string script = "configure terminal\n" + command + " \"x\"\nexit\nexit\ncommit\n";
            EXPECT_EQ(given(script).status, kind == held ? 0 : 1) << held << ": " << command;
        }
    }
}

TEST_F(Script, EnteringTheViewOfWhatDoesNotExistCreatesIt)
{
    expect_printed("configure terminal\ninterface ont 1/7\nexit\nexit\ncommit\n");
    expect_printed("configure terminal\ninterface ont 0/0\nexit\nexit\ncommit\n");
    expect_printed("configure terminal\nprofile vlan \"business\"\nexit\nexit\ncommit\n");
    expect_printed("configure terminal\nprofile vlan \"freed\"\nexit\nexit\ncommit\n");
    expect_printed("configure terminal\ntemplate \"office\"\nexit\nexit\ncommit\n");
}

TEST_F(Script, ProfileIsKnownByItsKindAndItsWholeName)
{
    expect_printed("configure terminal\nprofile dhcpv6-ra \"relay\"\nexit\nexit\ncommit\n");
    expect_printed("configure terminal\nprofile vlan \"resident\"\nexit\nexit\ncommit\n");
    expect_printed("configure terminal\nprofile dba \"SixteenLettersX\"\nexit\nexit\ncommit\n");
}

TEST_F(Script, LineThatEntersAViewElsewhereIsACommandInsideOne)
{
    expect_printed("configure terminal\ninterface gpon-port    2\nprofile vlan \"residential\"\nexit\nexit\ncommit\n");
    expect_printed("configure terminal\ninterface ont 1/6\ntemplate \"home\"\nexit\nexit\ncommit\n");
    expect_printed("configure terminal\ninterface ont 1/6\nprofile voice \"two\nlines\"\nexit\nexit\ncommit\n");
}

TEST_F(Script, CommandsArePrinted)
{
    expect_printed("configure terminal\ninterface ont 1/6\ncommit\nexit\nexit\ncommit\n");
    expect_printed("exit\ncommit\n");
    expect_printed("configure terminal\nip ssh enable\nexit\ncommit\n");
    expect_printed("configure terminal\nno interface ont 1/6\nexit\ncommit\n");
    expect_printed("no user \"guest\"\ncommit\n");
    expect_printed(
        "configure terminal\ninterface gpon-port    0\nexit\ninterface gpon-port    1\nshutdown\nexit\nexit\n"
        "commit\n");
    expect_printed("configure terminal\nhostname \"commit\nexit\"\nexit\ncommit\n");
}

TEST_F(Script, VerbatimPrintsWhatWouldChangeNothing)
{
    constexpr char moves[] = "configure terminal\ninterface gpon-port    3\nexit\nexit\ncommit\n";
    const Outcome outcome = given(moves, {"--verbatim"});
    EXPECT_EQ(outcome.out, moves);
    EXPECT_EQ(outcome.err, "");
    EXPECT_EQ(outcome.status, 0);

    EXPECT_EQ(given(moves, {"--verbatim", "-o", "script"}).out, "");
    EXPECT_EQ(read("script"), moves);
}

TEST_F(Script, MovesAreNoCommandsForTheFieldsThatDiffer)
{
    write("cfg.json", R"({"pon": {"olt": {"channel": {"3": {"max_ont_count": 64}}}}})");
    write("orig.json", blank);
    constexpr char moves[] = "configure terminal\ninterface gpon-port    3\nexit\nexit\ncommit\n";
    const Outcome quiet = given(moves);
    EXPECT_EQ(quiet.out, "");
    EXPECT_EQ(quiet.err,
              "pondiff: not applied: pon.olt.channel.3.max_ont_count: wanted 64, stays 0; the limit of ONTs has "
              "no command\n");
    EXPECT_EQ(quiet.status, 0);

    const Outcome verbatim = given(moves, {"--verbatim"});
    EXPECT_EQ(verbatim.out, moves);
    EXPECT_EQ(verbatim.err, quiet.err);
    EXPECT_EQ(verbatim.status, 0);
}

TEST_F(Script, LibraryWithoutMemoryIsAnError)
{
    for (const char* const variable : {"TEST_NO_SESSION=1", "TEST_NO_SCRIPT=1"}) {
        write("script", "as it was\n");
        const Outcome outcome = run({"diff", "orig.json", "cfg.json", "-o", "script"}, with_other_library(variable));
        EXPECT_EQ(outcome.out, "");
        EXPECT_EQ(outcome.err, "pondiff: out of memory\n");
        EXPECT_EQ(outcome.status, 2);
        EXPECT_EQ(read("script"), "as it was\n");
    }
}

// --------------------------------------------------------------------------------------------------- reading files

TEST_F(Files, RecordsAndDocumentsMayBeMixed)
{
    write("orig.bin", std::string(sizeof(GCfg), '\0'));
    write("cfg.bin", record_named("olt-17"));
    for (const char* const orig : {"orig.bin", "orig.json"}) {
        for (const char* const cfg : {"cfg.bin", "cfg.json"}) {
            EXPECT_EQ(run({"diff", orig, cfg}).out, renamed_script) << orig << " " << cfg;
        }
    }
}

TEST_F(Files, ContentDecidesNotTheName)
{
    write("orig.json", std::string(sizeof(GCfg), '\0'));
    write("cfg.bin", named_olt_17);
    EXPECT_EQ(run({"diff", "orig.json", "cfg.bin"}).out, renamed_script);
}

TEST_F(Files, DocumentMayBeginWithBlanksOrAByteOrderMark)
{
    EXPECT_EQ(against_blank(std::string(" \t\r\n") + named_olt_17).out, renamed_script);
    EXPECT_EQ(against_blank(std::string("\xEF\xBB\xBF") + named_olt_17).out, renamed_script);
}

TEST_F(Files, DocumentOfTheSizeOfARecord)
{
    std::string document = named_olt_17;
    document.resize(sizeof(GCfg), ' ');
    EXPECT_EQ(against_blank(document).out, renamed_script);
}

TEST_F(Files, MistakeInADocumentOfTheSizeOfARecord)
{
    std::string document = R"({"system" {}})";
    document.resize(sizeof(GCfg), ' ');
    const Outcome outcome = against_blank(document);
    EXPECT_THAT(outcome.err, StartsWith("pondiff: cfg.json:1:"));
    EXPECT_EQ(outcome.status, 2);
}

TEST_F(Files, RecordThatBeginsLikeADocument)
{
    std::string record = record_named("olt-17");
    record[0] = '{'; // the lowest byte of a revision
    EXPECT_EQ(against_blank(record).out, renamed_script);
}

TEST_F(Files, StandardInputIsEitherOfTheTwo)
{
    Surroundings surroundings;
    surroundings.input = named_olt_17;
    EXPECT_EQ(run({"diff", "orig.json", "-"}, surroundings).out, renamed_script);
    surroundings.input = std::string(sizeof(GCfg), '\0');
    EXPECT_EQ(run({"diff", "-", "cfg.json"}, surroundings).out, renamed_script);
    surroundings.input = "not a configuration";
    EXPECT_EQ(run({"diff", "-", "cfg.json"}, surroundings).err,
              "pondiff: standard input: " + no_configuration(19) +
                  ", and no line is a command; the first is: not a configuration\n");
    surroundings.closed = {STDIN_FILENO};
    EXPECT_EQ(run({"diff", "-", "cfg.json"}, surroundings).err, "pondiff: standard input: Bad file descriptor\n");
}

TEST_F(Files, WrongSizeIsReportedWithTheRightOne)
{
    write("short.bin", std::string(sizeof(GCfg) - 1, '\0'));
    write("long.bin", std::string(sizeof(GCfg) + 1, '\0'));
    write("empty", "");
    const std::vector<std::pair<std::string, std::size_t>> sizes{
        {"short.bin", sizeof(GCfg) - 1}, {"long.bin", sizeof(GCfg) + 1}, {"empty", 0}};
    for (const auto& [name, size] : sizes) {
        const Outcome outcome = run({"diff", "orig.json", name});
        EXPECT_EQ(outcome.out, "");
        EXPECT_EQ(outcome.err, "pondiff: " + name + ": " + no_configuration(size) + "\n");
        EXPECT_EQ(outcome.status, 2);
    }
}

TEST_F(Files, WhatCannotBeReadIsNamedWithTheReason)
{
    EXPECT_EQ(run({"diff", "absent", "cfg.json"}).err, "pondiff: absent: No such file or directory\n");
    EXPECT_EQ(run({"diff", "orig.json", "."}).err, "pondiff: .: Is a directory\n");
    EXPECT_EQ(run({"diff", "orig.json", "cfg.json/x"}).err, "pondiff: cfg.json/x: Not a directory\n");
    EXPECT_EQ(run({"diff", "orig.json", ""}).err, "pondiff: '': No such file or directory\n");
    const Outcome endless = run({"diff", "orig.json", "/dev/zero"});
    EXPECT_EQ(endless.err, "pondiff: /dev/zero: File too large\n");
    EXPECT_EQ(endless.out, "");
    EXPECT_EQ(endless.status, 2);
}

TEST_F(Files, MistakeInADocumentWritesNothing)
{
    for (const char* const document :
         {"{", R"({"system": {"network": {"hostnme": "x"}}})", R"({"pon": {"network": {"mcvlan": 70000}}})"}) {
        write("cfg.json", document);
        write("script", "as it was\n");
        const Outcome outcome = run({"diff", "orig.json", "cfg.json", "-o", "script"});
        EXPECT_EQ(outcome.out, "");
        EXPECT_THAT(outcome.err, AllOf(StartsWith("pondiff: cfg.json:"), EndsWith("\n")));
        EXPECT_EQ(outcome.status, 2);
        EXPECT_EQ(read("script"), "as it was\n");
    }
    EXPECT_THAT(names(), ElementsAre("cfg.json", "orig.json", "script"));
}

TEST_F(Files, MistakeInADocumentIsReportedWithItsPath)
{
    EXPECT_EQ(against_blank(R"({"pon": {"ont": {"600": {"exist": true}}}})").err,
              "pondiff: cfg.json: pon.ont.600: index 600, but there are 532 ONTs (0 to 531)\n");
}

TEST_F(Files, RecordsOfTheCallerAreOnlyRead)
{
    // The list is out of order; the library sorts it in its own copy.
    write("cfg.json", R"({"pon": {"ont": {"3": {"exist": true, "tunnel": {"0": {"uvid": [30, 10, 20]}}}}}})");
    ASSERT_EQ(run({"pack", "cfg.json", "-o", "cfg.bin"}).status, 0);
    const std::string before = read("cfg.bin");
    EXPECT_NE(run({"diff", "orig.json", "cfg.bin"}).status, 2);
    EXPECT_EQ(read("cfg.bin"), before);
}

} // namespace
