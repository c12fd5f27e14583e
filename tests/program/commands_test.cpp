#include "pondiff.h"
#include "tests/support/program.h"

#include <gmock/gmock.h>
#include <sstream>

using ::testing::AllOf;
using ::testing::ElementsAre;
using ::testing::HasSubstr;
using ::testing::Not;
using ::testing::StartsWith;

namespace {

std::string blank_record()
{
    return std::string(sizeof(GCfg), '\0');
}

// ---------------------------------------------------------------------------------------------------- pack and show

using Pack = ProgramTest;

TEST_F(Pack, RecordHoldsWhatTheDocumentSaysAndIsZeroElsewhere)
{
    write("cfg.json", R"({"system": {"network": {"hostname": "olt-17", "ipaddr": "192.0.2.10", "mngmtvlan": 258}}})");
    const Outcome outcome = run({"pack", "cfg.json", "-o", "cfg.bin"});
    EXPECT_EQ(outcome.out, "");
    EXPECT_EQ(outcome.err, "");
    EXPECT_EQ(outcome.status, 0);
    std::string expected = blank_record();
    expected.replace(4, 6, "olt-17");
    expected.replace(260, 4, "\xC0\x00\x02\x0A", 4);
    expected.replace(268, 2, "\x02\x01");
    EXPECT_TRUE(read("cfg.bin") == expected);
    EXPECT_THAT(names(), ElementsAre("cfg.bin", "cfg.json"));
}

TEST_F(Pack, StandardInputToStandardOutput)
{
    Surroundings surroundings;
    surroundings.input = "{}";
    const Outcome outcome = run({"pack", "-", "-o", "-"}, surroundings);
    EXPECT_TRUE(outcome.out == blank_record());
    EXPECT_EQ(outcome.status, 0);
}

TEST_F(Pack, NeedsToKnowWhereTheRecordGoes)
{
    write("cfg.json", "{}");
    const Outcome outcome = run({"pack", "cfg.json"});
    EXPECT_EQ(outcome.out, "");
    EXPECT_EQ(outcome.err, "pondiff: --output is required\nTry 'pondiff pack --help'.\n");
    EXPECT_EQ(outcome.status, 2);
}

TEST_F(Pack, MistakeWritesNothing)
{
    write("cfg.json", R"({"system": {"network": {"hostname": 17}}})");
    const Outcome outcome = run({"pack", "cfg.json", "-o", "cfg.bin"});
    EXPECT_THAT(outcome.err, AllOf(StartsWith("pondiff: cfg.json:"), HasSubstr("system.network.hostname")));
    EXPECT_EQ(outcome.status, 2);
    EXPECT_THAT(names(), ElementsAre("cfg.json"));
}

class Show : public ProgramTest {
  public:
    Show()
    {
        std::string record = blank_record();
        record.replace(4, 6, "olt-17");
        record.replace(268, 2, "\x02\x01");
        write("cfg.bin", record);
    }
};

TEST_F(Show, WhatIsZeroIsLeftOut)
{
    const Outcome outcome = run({"show", "cfg.bin"});
    EXPECT_EQ(outcome.out, "{\n"
                           "  \"system\": {\n"
                           "    \"network\": {\n"
                           "      \"hostname\": \"olt-17\",\n"
                           "      \"mngmtvlan\": 258\n"
                           "    }\n"
                           "  }\n"
                           "}\n");
    EXPECT_EQ(outcome.err, "");
    EXPECT_EQ(outcome.status, 0);
}

TEST_F(Show, FullLeavesNothingOut)
{
    const Outcome outcome = run({"show", "--full", "cfg.bin"});
    EXPECT_THAT(outcome.out, HasSubstr("\"hostname\": \"olt-17\","));
    EXPECT_THAT(outcome.out, HasSubstr("\"gateway\": \"0.0.0.0\","));
    EXPECT_THAT(outcome.out, HasSubstr("\"mcvlan\": 0,"));
    EXPECT_EQ(outcome.status, 0);
    write("full.json", outcome.out);
    EXPECT_EQ(run({"pack", "full.json", "-o", "again.bin"}).status, 0);
    EXPECT_TRUE(read("again.bin") == read("cfg.bin"));
}

TEST_F(Show, AnyRecordComesBackFromItsDocument)
{
    // Every byte differs from its neighbours, so that texts are unterminated and numbers out of the usual.
    std::string record;
    for (unsigned i = 0; record.size() < sizeof(GCfg); ++i) {
        record += static_cast<char>((i * 2654435761U) >> 24);
    }
    write("odd.bin", record);
    ASSERT_EQ(run({"show", "odd.bin", "-o", "odd.json"}).status, 0);
    ASSERT_EQ(run({"pack", "odd.json", "-o", "again.bin"}).status, 0);
    EXPECT_TRUE(read("again.bin") == record);
}

TEST_F(Show, DocumentComesOutInTheUsualNotation)
{
    write("cfg.json", R"({"system":{"network":{"mngmtvlan":258,"hostname":"\u006flt-17","dscp":0}}})");
    EXPECT_EQ(run({"show", "cfg.json"}).out, run({"show", "cfg.bin"}).out);
}

TEST_F(Show, FromStandardInputToAFile)
{
    Surroundings surroundings;
    surroundings.input = read("cfg.bin");
    const Outcome outcome = run({"show", "-", "-o", "cfg.json"}, surroundings);
    EXPECT_EQ(outcome.out, "");
    EXPECT_EQ(outcome.status, 0);
    EXPECT_EQ(read("cfg.json"), run({"show", "cfg.bin"}).out);
}

TEST_F(Show, WrongSizeIsAnError)
{
    write("cfg.bin", "short");
    const Outcome outcome = run({"show", "cfg.bin", "-o", "cfg.json"});
    EXPECT_EQ(outcome.err,
              "pondiff: cfg.bin: " + no_configuration(5) + ", and no line is a command; the first is: short\n");
    EXPECT_EQ(outcome.status, 2);
    EXPECT_THAT(names(), ElementsAre("cfg.bin"));
}

// ------------------------------------------------------------------------------------------------- the command line

class CommandLine : public ProgramTest {
  public:
    /// The arguments that print the help of the program and of each command.
    std::vector<Arguments> help_pages() const
    {
        std::vector<Arguments> pages{{"--help"}};
        std::istringstream candidates(run({"complete", "--", ""}).out);
        for (std::string line; std::getline(candidates, line);) {
            pages.push_back({line.substr(0, line.find('\t')), "--help"});
        }
        EXPECT_GT(pages.size(), 4U);
        return pages;
    }
};

TEST_F(CommandLine, MistakesAreErrors)
{
    write("a.json", "{}");
    const std::vector<std::pair<Arguments, std::string>> mistakes{
        {{}, "pondiff: a command is required\nTry 'pondiff --help'.\n"},
        {{"dif", "a.json", "a.json"}, "pondiff: dif: no such command or option\nTry 'pondiff --help'.\n"},
        {{"--al"}, "pondiff: --al: no such command or option\nTry 'pondiff --help'.\n"},
        {{"diff"}, "pondiff: ORIG is required\nTry 'pondiff diff --help'.\n"},
        {{"diff", "a.json"}, "pondiff: CFG is required\nTry 'pondiff diff --help'.\n"},
        {{"diff", "a.json", "a.json", "b"},
         "pondiff: The following argument was not expected: b\nTry 'pondiff diff --help'.\n"},
        {{"diff", "a.json", "a.json", "--al"},
         "pondiff: The following argument was not expected: --al\nTry 'pondiff diff --help'.\n"},
        {{"diff", "a.json", "a.json", "--common", "x"},
         "pondiff: Could not convert: --common = x\nTry 'pondiff diff --help'.\n"},
        {{"diff", "a.json", "a.json", "--common", "4294967296"},
         "pondiff: Could not convert: --common = 4294967296\nTry 'pondiff diff --help'.\n"},
        {{"diff", "a.json", "a.json", "-o"},
         "pondiff: --output: 1 required TEXT missing\nTry 'pondiff diff --help'.\n"},
        {{"diff", "-", "-"}, "pondiff: only one of the files can be standard input\nTry 'pondiff diff --help'.\n"},
        {{"show"}, "pondiff: FILE is required\nTry 'pondiff show --help'.\n"},
        {{"pack", "-o", "a.bin"}, "pondiff: FILE is required\nTry 'pondiff pack --help'.\n"},
    };
    for (const auto& [arguments, message] : mistakes) {
        const Outcome outcome = run(arguments);
        EXPECT_EQ(outcome.out, "");
        EXPECT_EQ(outcome.err, message);
        EXPECT_EQ(outcome.status, 2);
    }
    EXPECT_THAT(names(), ElementsAre("a.json"));
}

TEST_F(CommandLine, FilesMayHaveTheNamesOfCommandsAndOptions)
{
    write("show", "{}");
    write("--all", R"({"system": {"network": {"hostname": "olt-17"}}})");
    const Outcome outcome = run({"diff", "--", "show", "--all"});
    EXPECT_THAT(outcome.out, HasSubstr("hostname \"olt-17\"\n"));
    EXPECT_EQ(outcome.err, "");
    EXPECT_EQ(run({"diff", "show", "show"}).status, 0);
    EXPECT_EQ(run({"show", "show"}).out, "{}\n");
}

TEST_F(CommandLine, Version)
{
    const Outcome outcome = run({"--version"});
    EXPECT_EQ(outcome.out, "pondiff " PONDIFF_VERSION_STRING "\n");
    EXPECT_EQ(outcome.err, "");
    EXPECT_EQ(outcome.status, 0);
}

TEST_F(CommandLine, HelpIsComplete)
{
    for (Arguments page : help_pages()) {
        const Outcome outcome = run(page);
        const std::string command = page.size() == 1 ? "" : " " + page.front();
        EXPECT_THAT(outcome.out, HasSubstr("\nUsage: pondiff" + command + " [OPTIONS] "));
        EXPECT_THAT(outcome.out, AllOf(HasSubstr("\nExit status:\n"), HasSubstr("\nExamples:\n")));
        // What the command line library calls an argument that has been given no name.
        EXPECT_THAT(outcome.out, AllOf(Not(HasSubstr("TEXT")), Not(HasSubstr("INT")), Not(HasSubstr("REQUIRED"))));
        EXPECT_EQ(outcome.err, "");
        EXPECT_EQ(outcome.status, 0);
        page.back() = "-h";
        EXPECT_EQ(run(page).out, outcome.out);
    }
}

TEST_F(CommandLine, HelpListsTheCommandsAndTheSizeOfARecord)
{
    EXPECT_THAT(run({"--help"}).out, AllOf(HasSubstr(std::to_string(sizeof(GCfg))),
                                           HasSubstr("\n\nCommands:\n"
                                                     "  diff               Print the commands that turn one "
                                                     "configuration into another\n"),
                                           Not(HasSubstr("\n  complete"))));
}

TEST_F(CommandLine, HelpFitsTheTerminal)
{
    for (const Arguments& page : help_pages()) {
        const std::string help = run(page).out;
        for (std::size_t start = 0; start < help.size();) {
            const std::size_t end = std::min(help.find('\n', start), help.size());
            EXPECT_LE(end - start, 80U) << help.substr(start, end - start);
            start = end + 1;
        }
    }
}

// --------------------------------------------------------------------------------------------------- the example pair

class Example : public ProgramTest {
  public:
    const std::string orig = EXAMPLES_DIR "/orig.json";
    const std::string cfg = EXAMPLES_DIR "/cfg.json";
};

TEST_F(Example, ScriptLeadsFromTheOneToTheOther)
{
    const Outcome outcome = run({"diff", orig, cfg});
    const std::vector<std::string> blocks{
        R"(configure terminal
hostname "olt-north-1"
management ip "192.0.2.11"
management dscp "48"
)",
        R"(no user "guest"
user "noc" crypted_password "$6$H3j4K5l6$9oIuYtReWqAsDfGhJk2L"
user "noc" privilege "10"
no ip telnet enable
ip ssh allow ip 198.51.100.0 mask "24"
)",
        R"(ip snmp traps 198.51.100.50 type inform
)",
        R"(ip ntp timezone "-3"
)",
        R"(alarm login in false
)",
        R"(no ip source-guard ignore-vlan  100
)",
        R"(gpon network terminal-vlan "internet" vid "310"
no gpon network terminal-vlan "trial"
gpon network terminal-vlan "voice" vid "320"
gpon network terminal-vlan "voice" cos "5"
profile vlan "residential"
)",
        R"(exit
no profile vlan legacy
profile address-table "standard"
)",
        R"(profile dhcp-ra "relay"
name "relay-v4"
)",
        R"(trusted primary "2001:db8::67"
)",
        R"(profile cross-connect "tv"
name "iptv"
mac-table-limit "32"
exit
)",
        R"(outer vid terminal-vlan "voice"
)",
        R"(interface gpon-port    1
profile vlan "residential"
profile address-table "standard"
fec
range 40
)",
        R"(exit
no interface ont 0/2
interface ont 1/6
description "Mill Lane 3, ground floor"
)",
        R"(service    2 selective-tunnel uvid 10-12,20,30-31
port    0 poe pse-class-control "4"
port    0 poe power-priority "critical"
)",
        R"(no port    3 shutdown
exit
interface ont 1/7
description "Mill Lane 5"
serial "41424344-0A0B0C0E"
password "mill-5"
fec
profile shaping "home-500"
)",
        R"(custom-model "bridged"
exit
exit
commit
)",
    };
    std::size_t at = 0;
    for (const std::string& block : blocks) {
        at = outcome.out.find(block, at);
        ASSERT_NE(at, std::string::npos) << block << "--- in\n" << outcome.out;
        at += block.size();
    }
    EXPECT_EQ(at, outcome.out.size());
    EXPECT_THAT(outcome.out, StartsWith(blocks.front()));
    EXPECT_EQ(besides_not_applied(outcome.err), "");
    EXPECT_THAT(fields_not_applied(outcome.err),
                ElementsAre("system.network.ACSIp", "system.user.2.group.0.exist", "system.user.2.group.0.name",
                            "system.services.snmp.alias.1.name", "system.services.snmp.alias.1.upDownTrapEnable",
                            "system.services.snmp.alias.1.upDownTrapEnable",
                            "pon.network.terminal_vlan.0.tag.ethertype", "pon.network.terminal_vlan.3.tag.ethertype",
                            "pon.profiles_olt.address_table.0.svlan_config.0.exist",
                            "pon.profiles_olt.address_table.0.svlan_config.0.svlan",
                            "pon.profiles_olt.address_table.0.svlan_config.0.use_svlan",
                            "pon.profiles_olt.address_table.0.svlan_config.0.use_svlan",
                            "pon.profiles_ont.cross_connect.2.model", "pon.ont.71.enabled", "pon.ont.71.ber_interval",
                            "pon.ont.71.tunnel.0.uvid (and 15 more like it)", "pon.ont.71.ems_profile_index"));
    EXPECT_EQ(outcome.status, 1);
}

TEST_F(Example, ComesBackFromItsRecord)
{
    for (const std::string& file : {orig, cfg}) {
        ASSERT_EQ(run({"pack", file, "-o", "once.bin"}).status, 0);
        ASSERT_EQ(run({"show", "once.bin", "-o", "again.json"}).status, 0);
        ASSERT_EQ(run({"pack", "again.json", "-o", "twice.bin"}).status, 0);
        EXPECT_TRUE(read("twice.bin") == read("once.bin")) << file;
    }
}

} // namespace
