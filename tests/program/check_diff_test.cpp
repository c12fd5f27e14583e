/// What a diff says of the values that no script can carry.

#include "tests/support/program.h"

#include <gmock/gmock.h>

using ::testing::ElementsAre;
using ::testing::EndsWith;
using ::testing::HasSubstr;

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
        for (const std::string& finding : findings)
            text += "pondiff: cfg.json: " + finding + "\n";
        const Outcome outcome = between(orig, cfg, more);
        // Behind the findings may stand how many fields differ without a command.
        EXPECT_EQ(outcome.err.substr(0, text.size()), text) << cfg;
        EXPECT_EQ(outcome.err.find("cfg.json", text.size()), std::string::npos) << outcome.err;
        EXPECT_NE(outcome.status, 2);
    }
};

constexpr char quoted[] = R"({"system": {"network": {"hostname": "olt\"17"}}})";
constexpr char quote_finding[] = R"(system.network.hostname: "olt\"17" holds a quote)";

std::string pon(const std::string& fields)
{
    return R"({"pon": {)" + fields + "}}";
}

TEST_F(CheckDiff, ScriptIsWrittenAndTheValueReported)
{
    const Outcome outcome = between("{}", quoted);
    EXPECT_EQ(outcome.out, "configure terminal\nhostname \"olt\"17\"\nexit\ncommit\n");
    EXPECT_EQ(outcome.err, "pondiff: cfg.json: system.network.hostname: \"olt\\\"17\" holds a quote\n");
    EXPECT_EQ(outcome.status, 1);
}

TEST_F(CheckDiff, StandardInputIsNamed)
{
    write("orig.json", "{}");
    Surroundings surroundings;
    surroundings.input = quoted;
    EXPECT_EQ(run({"diff", "orig.json", "-"}, surroundings).err,
              "pondiff: standard input: system.network.hostname: \"olt\\\"17\" holds a quote\n");
}

TEST_F(CheckDiff, SecretsAreNotShown)
{
    expect("{}", R"({"system": {"services": {"snmp": {"communityro": "hunter\"2"}}}})",
           {"system.services.snmp.communityro: the value holds a quote"});
}

// ---------------------------------------------------------------------------------------------------- what is reported

TEST_F(CheckDiff, WhatTheDeviceRunsAlreadyIsPassedOver)
{
    expect(quoted, quoted, {});
    expect(quoted, R"({"system": {"network": {"hostname": "olt\"17", "dscp": 46}}})", {});
    expect(quoted, "{}", {});
}

TEST_F(CheckDiff, NewValueWithTheFlawOfTheOldOneIsReported)
{
    expect(quoted, R"({"system": {"network": {"hostname": "olt\"18"}}})",
           {R"(system.network.hostname: "olt\"18" holds a quote)"});
}

TEST_F(CheckDiff, AllTellsOfEqualValuesToo)
{
    expect(quoted, quoted, {quote_finding}, {"--all"});
}

TEST_F(CheckDiff, WhatComesIntoUseIsReported)
{
    expect(pon(R"("ont": {"3": {"description": "\""}})"), pon(R"("ont": {"3": {"exist": true, "description": "\""}})"),
           {R"(pon.ont.3.description: "\"" holds a quote)"});
    expect(pon(R"("profiles_ont": {"template_ont": {"0": {"exist": true, "profile_ont_ports": 4}}})"),
           pon(R"("profiles_ont": {"template_ont": {"0": {"exist": true, "profile_ont_ports": 4,
                                                          "profile_ont_ports_is_active": true}}})"),
           {"pon.profiles_ont.template_ont.0.profile_ont_ports: there is no ports profile 4"});
}

TEST_F(CheckDiff, WhatGoesOutOfUseIsPassedOver)
{
    expect(pon(R"("ont": {"3": {"exist": true}})"), pon(R"("ont": {"3": {"description": "\"", "custom_model": 9}})"),
           {});
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

TEST_F(CheckDiff, AreaTellsOfItsOwnFieldsAlone)
{
    constexpr char cfg[] = R"({"system": {"network": {"hostname": "olt\"17"}},
                               "pon": {"ont": {"3": {"exist": true, "description": "\""},
                                               "4": {"exist": true, "description": "\n"}}}})";
    const std::string third = R"(pon.ont.3.description: "\"" holds a quote)";
    const std::string fourth = R"(pon.ont.4.description: "\n" holds a control character)";
    expect("{}", cfg, {quote_finding, third, fourth});
    expect("{}", cfg, {quote_finding}, {"--only", "system"});
    expect("{}", cfg, {quote_finding}, {"--only", "block:management"});
    expect("{}", cfg, {third, fourth}, {"--only", "pon"});
    expect("{}", cfg, {third}, {"--only", "ont:3"});
    expect("{}", cfg, {fourth}, {"--only", "ont:0/4"});
    expect("{}", cfg, {}, {"--only", "ont:5"});
    expect("{}", cfg, {}, {"--only", "block:logging"});
}

TEST_F(CheckDiff, CommonSettingsTellOfTheirOwnFieldsAlone)
{
    constexpr char cfg[] = R"({"system": {"network": {"hostname": "olt\"17"}, "settings": {"ont_sn_format": 7},
                                          "services": {"alarm": {"type": {"0": {"type": 7}}}, "source_guard": {"mode": 7}}},
        "pon": {"olt": {"general": {"profile_olt_dhcpra": 9}},
                "network": {"terminal_vlan": {"0": {"exists": true, "name": "\""}}}}})";
    expect("{}", cfg,
           {"system.services.alarm.type.0.type: 7 has no word in GAlarmType_enum",
            "system.services.source_guard.mode: 7 has no word in GSystemIPSourceGuardMode_enum",
            "system.settings.ont_sn_format: 7 has no word in GOntSnDisplayFormatType_enum",
            "pon.olt.general.profile_olt_dhcpra: there is no DHCP relay agent profile 9",
            R"(pon.network.terminal_vlan.0.name: "\"" holds a quote)"},
           {"--common", "1"});
}

// -------------------------------------------------------------------------------------------------------------- strict

TEST_F(CheckDiff, StrictWritesNoScript)
{
    for (const Arguments& more : {Arguments{"--strict"}, Arguments{"--strict", "--verbatim"},
                                  Arguments{"--strict", "--only", "system"}, Arguments{"--strict", "-o", "script"}}) {
        const Outcome outcome = between("{}", quoted, more);
        EXPECT_EQ(outcome.out, "");
        EXPECT_EQ(outcome.err, "pondiff: cfg.json: system.network.hostname: \"olt\\\"17\" holds a quote\n"
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
    EXPECT_EQ(between(quoted, quoted, {"--strict", "--all"}).status, 2);
}

TEST_F(CheckDiff, ExamplePairPassesStrict)
{
    const Outcome outcome = run({"diff", "--strict", EXAMPLES_DIR "/orig.json", EXAMPLES_DIR "/cfg.json"});
    EXPECT_EQ(outcome.err, "");
    EXPECT_EQ(outcome.status, 1);
    EXPECT_THAT(outcome.out, HasSubstr("hostname \"olt-north-1\"\n"));
}

} // namespace
