/// What a check finds, by documents; check_fields_test.cpp covers every field.

#include "tests/support/program.h"

#include <cstddef>
#include <fmt/format.h>
#include <gmock/gmock.h>

using ::testing::HasSubstr;

namespace {

class Check : public ProgramTest {
  public:
    Outcome of(const std::string& document, const Arguments& more = {}) const
    {
        write("cfg.json", document);
        Arguments arguments{"check", "cfg.json"};
        arguments.insert(arguments.end(), more.begin(), more.end());
        return run(arguments);
    }

    void expect_nothing(const std::string& document) const
    {
        const Outcome outcome = of(document);
        EXPECT_EQ(outcome.out, "") << document;
        EXPECT_EQ(outcome.err, "") << document;
        EXPECT_EQ(outcome.status, 0) << document;
    }

    /// @param findings  a line each, without the name of the file
    void expect(const std::string& document, const std::vector<std::string>& findings) const
    {
        std::string text;
        for (const std::string& finding : findings) {
            text += "cfg.json: " + finding + "\n";
        }
        const Outcome outcome = of(document);
        EXPECT_EQ(outcome.out, text) << document;
        EXPECT_EQ(outcome.err, "") << document;
        EXPECT_EQ(outcome.status, 1) << document;
    }
};

std::string hostname(const std::string& value)
{
    return R"({"system": {"network": {"hostname": ")" + value + R"("}}})";
}

std::string ont(const std::string& fields)
{
    return R"({"pon": {"ont": {"70": {"exist": true, )" + fields + "}}}}";
}

std::string pon(const std::string& fields)
{
    return R"({"pon": {)" + fields + "}}";
}

// --------------------------------------------------------------------------------------------------------------- texts

TEST_F(Check, BlankConfigurationIsInOrder)
{
    expect_nothing("{}");
    write("blank.bin", std::string(sizeof(GCfg), '\0'));
    EXPECT_EQ(run({"check", "blank.bin"}).status, 0);
}

TEST_F(Check, OrdinaryTextsAreInOrder)
{
    expect_nothing(hostname("olt-17"));
    expect_nothing(hostname("Ringstra\xC3\x9F"
                            "e 'A' \\\\ `$HOME` %s %CHANNELID% $I D0"));
}

TEST_F(Check, Quote)
{
    expect(hostname(R"(olt\"17)"), {R"(system.network.hostname: "olt\"17" holds a quote)"});
}

TEST_F(Check, ControlCharacters)
{
    expect(hostname(R"(olt\n17)"), {R"(system.network.hostname: "olt\n17" holds a control character)"});
    expect(hostname(R"(\u0001)"), {R"(system.network.hostname: "\u0001" holds a control character)"});
    expect(hostname(R"(\u001f)"), {R"(system.network.hostname: "\u001f" holds a control character)"});
    expect(hostname(R"(\t)"), {R"(system.network.hostname: "\t" holds a control character)"});
    expect(hostname(R"(\u007f)"), {R"(system.network.hostname: "\u007f" holds a control character)"});
    expect_nothing(hostname(" ~"));
}

TEST_F(Check, PlaceholdersAreThoseThatTheScriptReplaces)
{
    for (const char* const value :
         {"$ID0", "olt $ID9", "$ID", "$ID1$ID12", "$ID x", "$ID 3", "$ID+3", "$ID-0", "$ID-"}) {
        expect(hostname(value), {std::string("system.network.hostname: \"") + value + "\" holds a placeholder"});
    }
    for (const char* const value : {"$ID10", "$ID12", "$ID-1", "$ID 12", "$I", "$id0", "ID0", "$ ID0"}) {
        expect_nothing(hostname(value));
    }
}

TEST_F(Check, TextThatFillsItsField)
{
    expect(ont(R"("description": {"hex": ")" + std::string(512, '6') + R"("})"),
           {"pon.ont.70.description: \"" + std::string(60, 'f') + "\"... has no end within its 256 bytes"});
    expect_nothing(ont(R"("description": {"hex": ")" + std::string(510, '6') + R"("})"));
    // What stands behind the end is no part of the text.
    expect_nothing(R"({"system": {"network": {"hostname": {"hex": "7800220A24494430"}}}})");
}

TEST_F(Check, TextThatIsNotUtf8IsNotShown)
{
    expect(R"({"system": {"network": {"hostname": {"hex": "FF22"}}}})",
           {"system.network.hostname: the text holds a quote", "system.network.hostname: the text is not UTF-8"});
}

TEST_F(Check, EachFlawHasALine)
{
    expect(R"({"system": {"network": {"hostname": "a\"$ID0\n"}, "services": {"snmp": {"contact": "\""}}}})",
           {R"(system.network.hostname: "a\"$ID0\n" holds a quote)",
            R"(system.network.hostname: "a\"$ID0\n" holds a control character)",
            R"(system.network.hostname: "a\"$ID0\n" holds a placeholder)",
            R"(system.services.snmp.contact: "\"" holds a quote)"});
}

TEST_F(Check, SecretsAreNotShown)
{
    expect(R"({"system": {"user": {"2": {"exist": true, "name": "noc", "password": "hunter\"2\n$ID0"}},
                          "services": {"snmp": {"communityrw": "hunter\""}}},
               "pon": {"ont": {"3": {"exist": true, "password": {"hex": "68756E7465723268756E74"}}}}})",
           {"system.user.2.password: the value holds a quote",
            "system.user.2.password: the value holds a control character",
            "system.user.2.password: the value holds a placeholder",
            "system.services.snmp.communityrw: the value holds a quote",
            "pon.ont.3.password: the value has no end within its 11 bytes"});
}

TEST_F(Check, TextsThatNoCommandShowsMayHoldAnything)
{
    expect_nothing(R"({"system": {"services": {
        "snmp": {"pattern_cfg": "view \"all\"\n$ID0", "private_cfg": "\"", "binary_cfg": "\n"},
        "acs": {"path": "\"", "scheme": "$ID0", "login": "\n", "password": "\""},
        "auth": {"server": {"secret": "\""}, "radius_server": {"secret": "$ID"}}}},
        "pon": {"olt": {"general": {"l3": {"dhcp": {"0": {"exist": true, "circuit_id_format": "\""}},
                                           "pppoe": {"remote_id_format": "$ID0"}}}}}})");
    expect(R"({"system": {"services": {"acs": {"login": {"hex": ")" + std::string(64, '2') + R"("}}}}})",
           {"system.services.acs.login: \"" +
            [] {
                std::string quotes;
                for (int i = 0; i < 32; ++i) {
                    quotes += "\\\"";
                }
                return quotes;
            }() +
            "\" has no end within its 32 bytes"});
}

TEST_F(Check, WhatDoesNotExistIsPassedOver)
{
    expect_nothing(R"({"system": {"user": {"2": {"name": "a\"", "password": "\""}, "3": {"name": "a\""}}},
        "pon": {"ont": {"3": {"description": "\"", "custom_model": 99, "profile_ont_ports": 7,
                              "voice": {"voice_port": {"0": {"number": "\""}}}}},
                "network": {"terminal_vlan": {"3": {"name": "\""}}},
                "profiles_olt": {"vlan": {"0": {"name": "\"", "description": "$ID"}, "1": {"name": "\""}}},
                "profiles_ont": {"cross_connect": {"0": {"tag_mode": 99, "outer_vid": -100}}}}})");
}

TEST_F(Check, AProfileThatNoCommandRemovesShowsWhatItsSlotHolds)
{
    expect(pon(R"("profiles_olt": {"dhcp_ra": {"1": {"name": "ra1", "description": "x\"\nreload\nuser \"e"}}})"),
           {R"(pon.profiles_olt.dhcp_ra.1.description: "x\"\nreload\nuser \"e" holds a quote)",
            R"(pon.profiles_olt.dhcp_ra.1.description: "x\"\nreload\nuser \"e" holds a control character)"});
}

TEST_F(Check, CharactersThatHideALine)
{
    expect(hostname("a\xE2\x80\xAE"
                    "b"),
           {"system.network.hostname: \"a\\u{202E}b\" holds a character that does not show"});
    expect(hostname("a\xC2\x9B"
                    "b"),
           {"system.network.hostname: \"a\\u{9B}b\" holds a character that does not show"});
}

TEST_F(Check, VoicePortsBelongToTheirOnt)
{
    expect(ont(R"("voice": {"voice_port": {"1": {"number": "\"", "auth_passwd": "\""}}})"),
           {R"(pon.ont.70.voice.voice_port.1.number: "\"" holds a quote)",
            "pon.ont.70.voice.voice_port.1.auth_passwd: the value holds a quote"});
}

// --------------------------------------------------------------------------------------------------------------- names

TEST_F(Check, NameThatTwoProfilesShare)
{
    expect(
        pon(R"("profiles_olt": {"vlan": {"0": {"exist": true, "name": "homes"}, "4": {"exist": true, "name": "homes"},
                                            "5": {"exist": true, "name": "Homes"}, "6": {"name": "homes"}}})"),
        {R"(pon.profiles_olt.vlan.0.name: "homes" is also the name of pon.profiles_olt.vlan.4)",
         R"(pon.profiles_olt.vlan.4.name: "homes" is also the name of pon.profiles_olt.vlan.0)"});
}

TEST_F(Check, NameThatThreeProfilesShare)
{
    expect(pon(R"("profiles_ont": {"voice": {"3": {"exist": true}, "9": {"exist": true}, "31": {"exist": true}}})"),
           {R"(pon.profiles_ont.voice.3.name: "" is also the name of pon.profiles_ont.voice.9)",
            R"(pon.profiles_ont.voice.9.name: "" is also the name of pon.profiles_ont.voice.3)",
            R"(pon.profiles_ont.voice.31.name: "" is also the name of pon.profiles_ont.voice.3)"});
}

TEST_F(Check, NamesOfDifferentKindsAreApart)
{
    expect_nothing(pon(R"("profiles_olt": {"dhcp_ra": {"0": {"exist": true, "name": "x"}},
                                           "dhcpv6_ra": {"0": {"exist": true, "name": "x"}}},
                          "profiles_ont": {"template_ont": {"0": {"exist": true, "name": "x"}}},
                          "network": {"terminal_vlan": {"0": {"exists": true, "name": "x"}}})"));
}

TEST_F(Check, EveryKindOfProfileHasItsNames)
{
    for (const char* const array :
         {"profiles_olt.vlan", "profiles_olt.address_table", "profiles_olt.pppoe_ia", "profiles_olt.dhcp_ra",
          "profiles_olt.dhcpv6_ra", "profiles_ont.shaping", "profiles_ont.cross_connect", "profiles_ont.alloc",
          "profiles_ont.ports", "profiles_ont.management", "profiles_ont.template_ont", "profiles_ont.voice"}) {
        const std::string path = array;
        const std::size_t dot = path.find('.');
        constexpr char message[] = R"({}.name: "x" is also the name of {})";
        const std::string one = "pon." + path + ".30";
        const std::string other = "pon." + path + ".31";
        expect(pon("\"" + path.substr(0, dot) + R"(": {")" + path.substr(dot + 1) +
                   R"(": {"30": {"exist": true, "name": "x"}, "31": {"exist": 2, "name": "x"}}})"),
               {fmt::format(message, one, other), fmt::format(message, other, one)});
    }
}

TEST_F(Check, NamesOfTerminalVlansAndUsers)
{
    expect(R"({"system": {"user": {"0": {"exist": true, "name": "noc"}, "15": {"exist": true, "name": "noc"}}},
               "pon": {"network": {"terminal_vlan": {"1": {"exists": true, "name": "iptv"},
                                                     "2": {"exists": true, "name": "iptv"}}}}})",
           {R"(system.user.0.name: "noc" is also the name of system.user.15)",
            R"(system.user.15.name: "noc" is also the name of system.user.0)",
            R"(pon.network.terminal_vlan.1.name: "iptv" is also the name of pon.network.terminal_vlan.2)",
            R"(pon.network.terminal_vlan.2.name: "iptv" is also the name of pon.network.terminal_vlan.1)"});
}

TEST_F(Check, AliasesOfInterfacesMayBeAlike)
{
    expect_nothing(R"({"system": {"services": {"snmp": {"alias": {"0": {"name": "up"}, "1": {"name": "up"}}}}}})");
}

// ---------------------------------------------------------------------------------------------------------- references

TEST_F(Check, ReferencesOfAnOnt)
{
    expect(ont(R"("profile_ont_shaping": 5, "profile_ont_cross_connect": {"2": 127}, "profile_ont_alloc": {"15": 1},
                  "profile_ont_ports": 31, "profile_ont_voice": 2, "profile_ont_management": 3, "template_ont": 4)"),
           {"pon.ont.70.profile_ont_shaping: there is no shaping profile 5",
            "pon.ont.70.profile_ont_cross_connect.2: there is no cross-connect profile 127",
            "pon.ont.70.profile_ont_alloc.15: there is no allocation profile 1",
            "pon.ont.70.profile_ont_ports: there is no ports profile 31",
            "pon.ont.70.profile_ont_voice: there is no voice profile 2",
            "pon.ont.70.profile_ont_management: there is no management profile 3",
            "pon.ont.70.template_ont: there is no template 4"});
}

TEST_F(Check, ReferencesOfTheOltAndItsPorts)
{
    expect(pon(R"("olt": {"general": {"profile_olt_pppoeia": 1, "profile_olt_dhcpra": 2, "profile_olt_dhcpv6ra": 3,
                    "profile_olt_dhcpra_redefinition": {"0": {"exist": true, "profile": 4}, "1": {"profile": 5}},
                    "profile_olt_dhcpv6ra_redefinition": {"15": {"exist": true, "profile": 6}}},
                  "channel": {"7": {"profile_olt_vlan": 7, "profile_olt_address_table": 8}}})"),
           {"pon.olt.general.profile_olt_pppoeia: there is no PPPoE intermediate agent profile 1",
            "pon.olt.general.profile_olt_dhcpra: there is no DHCP relay agent profile 2",
            "pon.olt.general.profile_olt_dhcpv6ra: there is no DHCPv6 relay agent profile 3",
            "pon.olt.general.profile_olt_dhcpra_redefinition.0.profile: there is no DHCP relay agent profile 4",
            "pon.olt.general.profile_olt_dhcpv6ra_redefinition.15.profile: there is no DHCPv6 relay agent profile 6",
            "pon.olt.channel.7.profile_olt_vlan: there is no VLAN profile 7",
            "pon.olt.channel.7.profile_olt_address_table: there is no address-table profile 8"});
}

TEST_F(Check, ReferenceToWhatExistsOrToNothing)
{
    expect_nothing(pon(R"("ont": {"70": {"exist": true, "profile_ont_shaping": 5, "profile_ont_ports": 0}},
                          "profiles_ont": {"shaping": {"5": {"exist": true, "name": "fast"}}})"));
    expect(pon(R"("ont": {"70": {"exist": true, "profile_ont_shaping": 5}},
                  "profiles_ont": {"shaping": {"5": {"name": "freed"}}})"),
           {"pon.ont.70.profile_ont_shaping: there is no shaping profile 5"});
}

TEST_F(Check, ReferenceBeyondTheArray)
{
    expect(
        ont(R"("profile_ont_shaping": 128, "profile_ont_ports": 32, "profile_ont_voice": -2, "template_ont": 32767)"),
        {"pon.ont.70.profile_ont_shaping: there is no shaping profile 128 (0 to 127)",
         "pon.ont.70.profile_ont_ports: there is no ports profile 32 (0 to 31)",
         "pon.ont.70.profile_ont_voice: there is no voice profile -2 (0 to 31)",
         "pon.ont.70.template_ont: there is no template 32767 (0 to 31)"});
}

TEST_F(Check, ZeroMayHaveBeenLeftOut)
{
    expect_nothing(ont(R"("enabled": true)"));
    expect_nothing(ont(R"("profile_ont_shaping": 0)"));
    expect_nothing(pon(R"("olt": {"channel": {"0": {"profile_olt_vlan": 0}}, "general": {"profile_olt_dhcpra": 0}})"));
}

TEST_F(Check, ZeroBesideAReferenceToNothingIsMeant)
{
    expect(pon(R"("olt": {"channel": {"3": {"profile_olt_address_table": -1}, "4": {}}})"),
           {"pon.olt.channel.3.profile_olt_vlan: there is no VLAN profile 0"});
    expect_nothing(pon(R"("olt": {"channel": {"3": {"profile_olt_address_table": -1}}},
                          "profiles_olt": {"vlan": {"0": {"exist": true, "name": "homes"}}})"));
    const std::string unassigned = "[-1, -1, -1, -1, -1, -1, -1, -1, -1, -1, -1, -1, -1, -1, -1, -1]";
    expect(ont(R"("profile_ont_shaping": -1, "profile_ont_cross_connect": )" + unassigned +
               R"(, "profile_ont_alloc": )" + unassigned +
               R"(, "profile_ont_ports": -1, "profile_ont_voice": -1, "profile_ont_management": -1)"),
           {"pon.ont.70.template_ont: there is no template 0"});
}

TEST_F(Check, ReferencesOfATemplateCountWhereItDefinesThem)
{
    expect(pon(R"("profiles_ont": {"template_ont": {"1": {"exist": true, "name": "home",
            "profile_ont_shaping": 3, "profile_ont_ports": 4, "profile_ont_ports_is_active": true,
            "profile_ont_cross_connect": {"2": 5, "3": 6}, "profile_ont_cross_connect_is_active": {"3": true},
            "profile_ont_alloc_is_active": {"9": true}, "profile_ont_voice": -1, "profile_ont_voice_is_active": true}}})"),
           {"pon.profiles_ont.template_ont.1.profile_ont_cross_connect.3: there is no cross-connect profile 6",
            "pon.profiles_ont.template_ont.1.profile_ont_alloc.9: there is no allocation profile 0",
            "pon.profiles_ont.template_ont.1.profile_ont_ports: there is no ports profile 4"});
}

TEST_F(Check, TerminalVlansOfACrossConnectProfile)
{
    expect(pon(R"("network": {"terminal_vlan": {"0": {"exists": true, "name": "first"}, "5": {"name": "freed"}}},
                  "profiles_ont": {"cross_connect": {"0": {"exist": true, "name": "data", "outer_vid": -100,
                    "outer_cos": 100, "inner_vid": -105, "u_vid": -131, "u_cos": 131}}})"),
           {"pon.profiles_ont.cross_connect.0.inner_vid: there is no terminal VLAN 5",
            "pon.profiles_ont.cross_connect.0.u_vid: there is no terminal VLAN 31",
            "pon.profiles_ont.cross_connect.0.u_cos: there is no terminal VLAN 31"});
}

TEST_F(Check, OtherVlanIdsAndPrioritiesReferToNothing)
{
    expect_nothing(pon(R"("profiles_ont": {"cross_connect": {
        "0": {"exist": true, "name": "a", "outer_vid": -1, "outer_cos": 7, "inner_vid": -99, "u_vid": -132, "u_cos": 255},
        "1": {"exist": true, "name": "b", "outer_vid": 100, "outer_cos": 99, "inner_vid": 131, "u_vid": 0, "u_cos": 132}}})"));
}

// -------------------------------------------------------------------------------------------------------- enumerations

TEST_F(Check, ValueWithoutAWord)
{
    expect(R"({"system": {"services": {"snmp": {"version": 3}, "ntp": {"enabled": 7}}},
               "pon": {"ont": {"70": {"exist": true, "custom_model": 3, "rf_port_state": 2}}}})",
           {"system.services.snmp.version: 3 has no word in GSystemSNMPversion_enum",
            "pon.ont.70.custom_model: 3 has no word in GOntCustomConfigModel_enum"});
}

TEST_F(Check, ZeroWithoutAWordMayHaveBeenLeftOut)
{
    expect_nothing(R"({"system": {"services": {"snmp": {"enabled": true, "version": 0}}}})");
}

TEST_F(Check, ValueBeyondSixteenBitsHasNoWord)
{
    expect(R"({"system": {"services": {"snmp": {"serialNum": 65537}, "alarm": {"type": {"0": {"type": 65539}}}}}})",
           {"system.services.snmp.serialNum: 65537 has no word in GOntSnDisplayFormatType_enum",
            "system.services.alarm.type.0.type: 65539 has no word in GAlarmType_enum"});
}

TEST_F(Check, SVlanSlotIsInUseByItsSVlan)
{
    expect(pon(R"("profiles_olt": {"address_table": {"0": {"exist": true, "name": "t", "svlan_config": {
                    "1": {"svlan": 100, "forwarding_mode": 9}, "2": {"exist": true, "forwarding_mode": 9}}}}})"),
           {"pon.profiles_olt.address_table.0.svlan_config.1.forwarding_mode: 9 has no word in "
            "GVlanForwardingMode_enum"});
}

// --------------------------------------------------------------------------------------------------------- the command

TEST_F(Check, ExampleConfigurationsAreInOrder)
{
    for (const char* const file : {EXAMPLES_DIR "/orig.json", EXAMPLES_DIR "/cfg.json"}) {
        const Outcome outcome = run({"check", file});
        EXPECT_EQ(outcome.out, "");
        EXPECT_EQ(outcome.status, 0);
    }
}

TEST_F(Check, StrictIsAnErrorWhereSomethingIsFound)
{
    const Outcome outcome = of(hostname("$ID0"), {"--strict"});
    EXPECT_EQ(outcome.out, "cfg.json: system.network.hostname: \"$ID0\" holds a placeholder\n");
    EXPECT_EQ(outcome.err, "");
    EXPECT_EQ(outcome.status, 2);
    EXPECT_EQ(of("{}", {"--strict"}).status, 0);
}

TEST_F(Check, RecordAndStandardInput)
{
    std::string record(sizeof(GCfg), '\0');
    record.replace(offsetof(GCfg, system.network.hostname), 5, "olt\"1");
    write("cfg.bin", record);
    EXPECT_EQ(run({"check", "cfg.bin"}).out, "cfg.bin: system.network.hostname: \"olt\\\"1\" holds a quote\n");
    Surroundings surroundings;
    surroundings.input = record;
    EXPECT_EQ(run({"check", "-"}, surroundings).out,
              "standard input: system.network.hostname: \"olt\\\"1\" holds a quote\n");
}

TEST_F(Check, ErrorsAreReported)
{
    EXPECT_EQ(run({"check", "absent"}).err, "pondiff: absent: No such file or directory\n");
    EXPECT_EQ(run({"check"}).err, "pondiff: FILE is required\nTry 'pondiff check --help'.\n");
    write("cfg.json", hostname("$ID0"));
    Surroundings surroundings;
    surroundings.output_file = "/dev/full";
    const Outcome full = run({"check", "cfg.json"}, surroundings);
    EXPECT_EQ(full.err, "pondiff: standard output: No space left on device\n");
    EXPECT_EQ(full.status, 2);
}

TEST_F(Check, AnyRecordIsLookedAt)
{
    std::string record;
    for (unsigned i = 0; record.size() < sizeof(GCfg); ++i) {
        record += static_cast<char>((i * 2654435761U) >> 24);
    }
    write("odd.bin", record);
    const Outcome outcome = run({"check", "odd.bin"});
    EXPECT_THAT(outcome.out, HasSubstr("odd.bin: pon.ont.531."));
    EXPECT_EQ(outcome.err, "");
    EXPECT_EQ(outcome.status, 1);
}

} // namespace
