/// Warnings of a diff: a script that shows an unsafe text is not printed, one with a value that is meaningless to a
/// device is.

#include "tests/support/program.h"

#include <gmock/gmock.h>

using ::testing::ElementsAre;
using ::testing::EndsWith;
using ::testing::HasSubstr;
using ::testing::StartsWith;

namespace {

class CheckDiff : public ProgramTest {
  public:
    /// Runs a diff of what holds the text `cfg` against what holds `orig`.
    Outcome between(const std::string& orig, const std::string& cfg, Arguments more = {}) const
    {
        write("orig.json", orig);
        write("cfg.json", cfg);
        more.insert(more.begin(), {"diff", "orig.json", "cfg.json"});
        return run(more);
    }

    /// @param findings  a line each, without the name of the file
    void expect(const std::string& orig, const std::string& cfg, const std::vector<std::string>& findings,
                const Arguments& more = {}) const
    {
        std::string text;
        for (const std::string& finding : findings) {
            text += "pondiff: cfg.json: " + finding + "\n";
        }
        const Outcome outcome = between(orig, cfg, more);
        EXPECT_EQ(besides_not_applied(outcome.err), text) << cfg;
        EXPECT_NE(outcome.status, 2);
    }
};

constexpr char quoted[] = R"({"system": {"network": {"hostname": "olt\"17"}}})";
constexpr char quote_finding[] = R"(system.network.hostname: "olt\"17" holds a quote)";

std::string pon(const std::string& fields)
{
    return R"({"pon": {)" + fields + "}}";
}

/// The message about a script that is not printed.
std::string refusal(const std::vector<std::string>& findings)
{
    std::string text;
    for (const std::string& finding : findings) {
        text += "pondiff: cfg.json: " + finding + "\n";
    }
    return text + "pondiff: no script is written: it would not do what it shows; --force writes it\n";
}

// --------------------------------------------------------------------------------------------------------- unsafe
// texts

TEST_F(CheckDiff, AScriptThatShowsAnUnsafeTextIsNotPrinted)
{
    for (const Arguments& more : {Arguments{}, Arguments{"--strict"}, Arguments{"--verbatim"}, Arguments{"--all"},
                                  Arguments{"--only", "system"}, Arguments{"-o", "script"}}) {
        const Outcome outcome = between("{}", quoted, more);
        EXPECT_EQ(outcome.out, "");
        EXPECT_EQ(outcome.err, refusal({quote_finding}));
        EXPECT_EQ(outcome.status, 2);
    }
    EXPECT_THAT(names(), ElementsAre("cfg.json", "orig.json"));
}

TEST_F(CheckDiff, ForcePrintsItAllTheSame)
{
    const Outcome outcome = between("{}", quoted, {"--force"});
    EXPECT_EQ(outcome.out, "configure terminal\nhostname \"olt\"17\"\nexit\ncommit\n");
    EXPECT_EQ(besides_not_applied(outcome.err),
              "pondiff: cfg.json: system.network.hostname: \"olt\\\"17\" holds a quote\n");
    EXPECT_EQ(outcome.status, 1);
}

TEST_F(CheckDiff, TheFileThatHoldsTheTextIsNamed)
{
    write("orig.json", "{}");
    Surroundings surroundings;
    surroundings.input = quoted;
    EXPECT_THAT(run({"diff", "orig.json", "-"}, surroundings).err,
                StartsWith("pondiff: standard input: system.network.hostname: \"olt\\\"17\" holds a quote\n"));
    const std::string name =
        R"("profiles_ont": {"voice": {"0": {"exist": true, "name": "a\"b", "description": "old"}}})";
    EXPECT_THAT(between(pon(name), pon(R"("profiles_ont": {"voice": {"0": {"exist": true, "name": "plain"}}})")).err,
                StartsWith("pondiff: orig.json: pon.profiles_ont.voice.0.name: \"a\\\"b\" holds a quote\n"));
}

TEST_F(CheckDiff, SecretsAreNotShown)
{
    EXPECT_EQ(between("{}", R"({"system": {"services": {"snmp": {"communityro": "hunter\"2"}}}})").err,
              refusal({"system.services.snmp.communityro: the value holds a quote"}));
}

TEST_F(CheckDiff, WhatTheScriptDoesNotShowIsPassedOver)
{
    EXPECT_EQ(between(quoted, quoted).err, "");
    EXPECT_EQ(between(quoted, R"({"system": {"network": {"hostname": "olt\"17", "dscp": 46}}})").err, "");
    EXPECT_EQ(between(quoted, "{}").err, "");
    EXPECT_EQ(between(pon(R"("ont": {"3": {"exist": true}})"), pon(R"("ont": {"3": {"description": "\""}})")).err, "");
    EXPECT_EQ(between("{}", quoted, {"--only", "pon"}).status, 0);
}

TEST_F(CheckDiff, WhatIsWrittenThoughItIsEqualCounts)
{
    EXPECT_EQ(between(quoted, quoted, {"--all", "--only", "block:management"}).err, refusal({quote_finding}));
}

TEST_F(CheckDiff, AnAreaShowsNamesOfOthers)
{
    const Outcome outcome = between(pon(R"("ont": {"70": {"exist": true, "profile_ont_shaping": -1}})"),
                                    pon(R"("ont": {"70": {"exist": true, "profile_ont_shaping": 1}},
                       "profiles_ont": {"shaping": {"1": {"exist": true, "name": "a\nb"}}})"),
                                    {"--only", "ont:1/6"});
    EXPECT_EQ(outcome.err, refusal({R"(pon.profiles_ont.shaping.1.name: "a\nb" holds a control character)"}));
    EXPECT_EQ(outcome.status, 2);
}

TEST_F(CheckDiff, NothingToDoIsNotConcludedFromAHostileText)
{
    const std::string first = R"("profiles_olt": {"dhcp_ra": {"1": {"exist": true, "name": "a\"\nname \"b"}, "2": )";
    const Outcome outcome =
        between(pon(first + R"({"exist": true, "name": "a"}}})"), pon(first + R"({"exist": true, "name": "b"}}})"));
    EXPECT_NE(outcome.status, 0);
}

// ---------------------------------------------------------------------------------------------------- what is reported

TEST_F(CheckDiff, WhatComesIntoUseIsReported)
{
    const Outcome same = between(pon(R"("ont": {"3": {"description": "\""}})"),
                                 pon(R"("ont": {"3": {"exist": true, "description": "\"", "fec_up": true}})"));
    EXPECT_EQ(besides_not_applied(same.err), "");
    expect(pon(R"("profiles_ont": {"template_ont": {"0": {"exist": true, "profile_ont_ports": 4}}})"),
           pon(R"("profiles_ont": {"template_ont": {"0": {"exist": true, "profile_ont_ports": 4,
                                                          "profile_ont_ports_is_active": true}}})"),
           {"pon.profiles_ont.template_ont.0.profile_ont_ports: there is no ports profile 4"});
}

TEST_F(CheckDiff, ReferenceWhoseProfileGoesIsReported)
{
    const std::string ont = R"("ont": {"3": {"exist": true, "profile_ont_ports": 4, "profile_ont_voice": 0}})";
    expect(pon(ont + R"(, "profiles_ont": {"ports": {"4": {"exist": true, "name": "four"}},
                                           "voice": {"0": {"exist": true, "name": "sip"}}})"),
           pon(ont),
           {"pon.ont.3.profile_ont_ports: there is no ports profile 4",
            "pon.ont.3.profile_ont_voice: there is no voice profile 0"});
    expect(pon(ont), pon(ont), {});
}

TEST_F(CheckDiff, NameThatComesToBeSharedIsReported)
{
    const std::string first = R"("4": {"exist": true, "name": "homes"})";
    expect(pon(R"("profiles_olt": {"vlan": {)" + first + "}}"),
           pon(R"("profiles_olt": {"vlan": {"0": {"exist": true, "name": "homes"}, )" + first + "}}"),
           {R"(pon.profiles_olt.vlan.0.name: "homes" is also the name of pon.profiles_olt.vlan.4)",
            R"(pon.profiles_olt.vlan.4.name: "homes" is also the name of pon.profiles_olt.vlan.0)"});
}

TEST_F(CheckDiff, ZeroThatIsSetIsReported)
{
    expect(pon(R"("ont": {"3": {"exist": true, "profile_ont_ports": 4}})"), pon(R"("ont": {"3": {"exist": true}})"),
           {"pon.ont.3.profile_ont_ports: there is no ports profile 0"});
    expect(R"({"system": {"services": {"snmp": {"version": "v2"}}}})", "{}",
           {"system.services.snmp.version: 0 has no word in GSystemSNMPversion_enum"});
    expect(R"({"system": {"services": {"snmp": {"version": "v2"}}}})", "{}",
           {"system.services.snmp.version: 0 has no word in GSystemSNMPversion_enum"}, {"--all"});
}

TEST_F(CheckDiff, ZeroThatStaysIsPassedOver)
{
    expect("{}", pon(R"("ont": {"3": {"exist": true, "description": "kiosk"}})"), {});
    // The other references have been dangling before one of them is taken back.
    expect(pon(R"("ont": {"3": {"exist": true, "profile_ont_ports": 4}})"),
           pon(R"("ont": {"3": {"exist": true, "profile_ont_ports": -1}})"), {});
}

// --------------------------------------------------------------------------------------------------------------- scope

TEST_F(CheckDiff, AnAreaReportsWhatItShows)
{
    constexpr char cfg[] = R"({"system": {"network": {"hostname": "olt\"17"}},
                               "pon": {"ont": {"3": {"exist": true, "description": "\""},
                                               "4": {"exist": true, "description": "\n"}}}})";
    const std::string third = R"(pon.ont.3.description: "\"" holds a quote)";
    const std::string fourth = R"(pon.ont.4.description: "\n" holds a control character)";
    EXPECT_EQ(between("{}", cfg).err, refusal({quote_finding, third, fourth}));
    EXPECT_EQ(between("{}", cfg, {"--only", "system"}).err, refusal({quote_finding}));
    EXPECT_EQ(between("{}", cfg, {"--only", "block:management"}).err, refusal({quote_finding}));
    EXPECT_EQ(between("{}", cfg, {"--only", "pon"}).err, refusal({third, fourth}));
    EXPECT_EQ(between("{}", cfg, {"--only", "ont:3"}).err, refusal({third}));
    EXPECT_EQ(between("{}", cfg, {"--only", "ont:0/4"}).err, refusal({fourth}));
    EXPECT_EQ(between("{}", cfg, {"--only", "ont:5"}).status, 0);
    EXPECT_EQ(between("{}", cfg, {"--only", "block:logging"}).status, 0);
}

TEST_F(CheckDiff, CommonSettingsTellOfTheirOwnFieldsAlone)
{
    constexpr char cfg[] = R"({"system": {"network": {"hostname": "olt\"17"}, "settings": {"ont_sn_format": 7},
                                          "services": {"alarm": {"type": {"0": {"type": 7}}}, "source_guard": {"mode": 7}}},
        "pon": {"olt": {"general": {"profile_olt_dhcpra": 9}}}})";
    expect("{}", cfg,
           {"system.services.alarm.type.0.type: 7 has no word in GAlarmType_enum",
            "system.services.source_guard.mode: 7 has no word in GSystemIPSourceGuardMode_enum",
            "system.settings.ont_sn_format: 7 has no word in GOntSnDisplayFormatType_enum",
            "pon.olt.general.profile_olt_dhcpra: there is no DHCP relay agent profile 9"},
           {"--common", "1"});
}

// -------------------------------------------------------------------------------------------------------------- strict

TEST_F(CheckDiff, StrictWritesNoScript)
{
    const std::string dangling = pon(R"("ont": {"3": {"exist": true, "profile_ont_ports": 4}})");
    for (const Arguments& more : {Arguments{"--strict"}, Arguments{"--strict", "--verbatim"},
                                  Arguments{"--strict", "--only", "pon"}, Arguments{"--strict", "-o", "script"}}) {
        const Outcome outcome = between("{}", dangling, more);
        EXPECT_EQ(outcome.out, "");
        EXPECT_EQ(outcome.err, "pondiff: cfg.json: pon.ont.3.profile_ont_ports: there is no ports profile 4\n"
                               "pondiff: no script is written: --strict\n");
        EXPECT_EQ(outcome.status, 2);
    }
    EXPECT_THAT(names(), ElementsAre("cfg.json", "orig.json"));
}

TEST_F(CheckDiff, StrictIsAnErrorThoughNothingIsToDo)
{
    // Entering the view of a profile whose name is taken creates none.
    const std::string first = R"("4": {"exist": true, "name": "homes"})";
    const std::string orig = pon(R"("profiles_olt": {"vlan": {)" + first + "}}");
    const std::string cfg = pon(R"("profiles_olt": {"vlan": {"0": {"exist": true, "name": "homes"}, )" + first + "}}");
    EXPECT_EQ(between(orig, cfg).status, 0);
    const Outcome outcome = between(orig, cfg, {"--strict"});
    EXPECT_THAT(outcome.err, EndsWith("pondiff: no script is written: --strict\n"));
    EXPECT_EQ(outcome.status, 2);
}

TEST_F(CheckDiff, StrictLetsPassWhatIsNotReported)
{
    const Outcome outcome =
        between(quoted, R"({"system": {"network": {"hostname": "olt\"17", "dscp": 46}}})", {"--strict"});
    EXPECT_EQ(outcome.out, "configure terminal\nmanagement dscp \"46\"\nexit\ncommit\n");
    EXPECT_EQ(outcome.err, "");
    EXPECT_EQ(outcome.status, 1);
    EXPECT_EQ(between("{}", quoted, {"--strict", "--only", "pon"}).status, 0);
}

TEST_F(CheckDiff, StrictAsksForAllThatIsWanted)
{
    const char cfg[] = R"({"pon": {"network": {"mcvlan": 100, "mac_age_time": 300}}})";
    EXPECT_EQ(between("{}", cfg).status, 1);
    const Outcome outcome = between("{}", cfg, {"--strict"});
    EXPECT_EQ(outcome.out, "");
    EXPECT_EQ(outcome.err, "pondiff: not applied: pon.network.mcvlan: wanted 100, stays 0; the multicast VLAN has no "
                           "command\n"
                           "pondiff: no script is written: it does not reach all that is wanted, and --strict asks for "
                           "it\n");
    EXPECT_EQ(outcome.status, 2);
    EXPECT_EQ(between("{}", cfg, {"--strict", "--only", "block:cli"}).status, 0);
}

} // namespace
