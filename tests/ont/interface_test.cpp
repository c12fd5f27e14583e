#include "tests/support/diff.h"

namespace {

/// An ONT that exists in both configurations, index 70. The new configuration has a profile of each kind: shaping 127
/// "home", cross-connect 1 "inet" and 2 "iptv", allocation 3 "gold", ports 4 "4fe", voice 5 "sip", management 6
/// "tr069", template 7 "basic"; the slots 10 hold profiles with empty names.
class Ont : public testing::Test {
  protected:
    Ont()
    {
        GPonProfilesOnt& profiles = session.cfg->pon.profiles_ont;
        add(profiles.shaping[127], "home");
        add(profiles.cross_connect[1], "inet");
        add(profiles.cross_connect[2], "iptv");
        add(profiles.alloc[3], "gold");
        add(profiles.ports[4], "4fe");
        add(profiles.voice[5], "sip");
        add(profiles.management[6], "tr069");
        add(profiles.template_ont[7], "basic");
        add(profiles.shaping[10], "");
        add(profiles.ports[10], "");
        session.open();
        before.exist = after.exist = 1;
        diff.key[0] = 70;
        diff.view = "if-ont-view";
        diff.view_key = 70;
    }

    template <class Profile>
    static void add(Profile& profile, const char* name)
    {
        profile.exist = 1;
        put(profile.name, name);
    }

    void reset()
    {
        before = after = {};
        before.exist = after.exist = 1;
    }

    Session session;
    Diff<GPonOntCfg> diff{getdiff_GPonOntCfg};
    GPonOntCfg& before = diff.before;
    GPonOntCfg& after = diff.after;
};

const char* const interfaces[][2] = {
    {"0", "0/0"}, {"63", "0/63"}, {"64", "1/0"}, {"70", "1/6"}, {"511", "7/63"}, {"512", "8/0"}, {"531", "8/19"},
};

TEST_F(Ont, DeletedIsTwoElements)
{
    diff.view = "root";
    before.enabled = 1;
    put(after.description, "gone");
    after.profile_ont_shaping = 127;
    diff.key[1] = 9;
    for (const auto& interface : interfaces) {
        diff.key[0] = std::stoi(interface[0]);
        after.exist = 0;
        EXPECT_EQ(diff.elements(), (Elements{"configure terminal", std::string("no interface ont ") + interface[1]}));
        EXPECT_EQ(diff.key[1], 9);
    }
}

TEST_F(Ont, DeletedFromItsOwnViewLeavesItFirst)
{
    before.exist = 2;
    after.exist = 0;
    EXPECT_EQ(diff.elements(), (Elements{"exit", "no interface ont 1/6"}));
}

TEST_F(Ont, CreatedByEnteringItsView)
{
    diff.view = "root";
    before.exist = 0;
    for (const auto& interface : interfaces) {
        diff.key[0] = std::stoi(interface[0]);
        EXPECT_EQ(diff.elements(), Elements{std::string("configure terminal\ninterface ont ") + interface[1]});
    }
}

TEST_F(Ont, CreatedShutDown)
{
    diff.view = "configure-view";
    before.exist = 0;
    before.enabled = 1;
    EXPECT_EQ(diff.elements(), (Elements{"interface ont 1/6", "", "shutdown"}));
}

TEST_F(Ont, CreatedComparesItsFieldsWithTheOldSlot)
{
    before = {};
    put(before.description, "kiosk");
    before.ber_interval = 5;
    after = before;
    after.exist = 1;
    after.ber_update_period = 10;
    EXPECT_EQ(diff.elements(), (Elements{"", "", "ber update-period \"10\""}));
}

TEST_F(Ont, AnotherNonZeroExistenceNavigatesAlone)
{
    diff.view = "root";
    after.exist = 65535;
    EXPECT_EQ(diff.elements(), Elements{"configure terminal\ninterface ont 1/6"});
}

TEST_F(Ont, AnyNonZeroExistenceShowsItsChanges)
{
    before.exist = after.exist = 65535;
    after.fec_up = 1;
    EXPECT_EQ(diff.elements(), (Elements{"", "fec"}));
    before.exist = 1;
    EXPECT_EQ(diff.elements(), (Elements{"", "", "fec"})) << "its view is entered first";
}

TEST_F(Ont, EveryRowInOrder)
{
    diff.view = "root";
    put(after.description, "kiosk");
    after.enabled = 1;
    put(after.serial, {'A', 'B', 'C', 'D', 0x12, 0x34, 0xAB, 0xCD});
    put(after.password, "secret");
    after.fec_up = 1;
    after.pppoe_sessions_unlimit = 1;
    after.downstream_broadcast = 1;
    after.ber_interval = 4294967295U;
    after.ber_update_period = 4294967295U;
    after.profile_ont_shaping = 127;
    after.profile_ont_cross_connect[0] = 1;
    after.profile_ont_alloc[0] = 3;
    after.profile_ont_alloc[1] = 3;
    after.profile_ont_cross_connect[15] = 2;
    after.profile_ont_alloc[15] = 3;
    after.profile_ont_ports = 4;
    after.profile_ont_voice = 5;
    after.profile_ont_management = 6;
    after.template_ont = 7;
    after.rf_port_state = 2;
    after.omci_error_tolerant = 1;
    after.custom_model = 2;
    after.voice.voip.tone_events = 1;
    after.custom_cross_connect[2] = {1, 100, 5, 200};
    after.tunnel[2].uvid[0] = -1;
    after.tunnel[3].uvid[0] = -1;
    after.custom_cross_connect[15] = {1, 101, 0, 0};
    after.port[0].shutdown = 1;
    after.port[3].poe.enable = 1;
    EXPECT_EQ(diff.script(), "configure terminal\n"
                             "interface ont 1/6\n"
                             "description \"kiosk\"\n"
                             "no shutdown\n"
                             "serial \"ABCD1234ABCD\"\n"
                             "password \"secret\"\n"
                             "fec\n"
                             "pppoe-sessions-unlimit\n"
                             "broadcast-downstream\n"
                             "ber interval \"none\"\n"
                             "ber update-period \"4294967295\"\n"
                             "profile shaping \"home\"\n"
                             "service 0 profile cross-connect \"inet\"\n"
                             "service 0 profile dba \"gold\"\n"
                             "service 1 profile dba \"gold\"\n"
                             "service 15 profile cross-connect \"iptv\"\n"
                             "service 15 profile dba \"gold\"\n"
                             "profile ports \"4fe\"\n"
                             "profile voice \"sip\"\n"
                             "profile management \"tr069\"\n"
                             "template \"basic\"\n"
                             "rf-port-state \"no-change\"\n"
                             "omci-error-tolerant\n"
                             "custom-model \"routed\"\n"
                             "voice rtp tone enable\n"
                             "service    2 custom cvid \"100\"\n"
                             "service    2 custom svid \"200\"\n"
                             "service    2 custom cos \"5\"\n"
                             "service    2 selective-tunnel uvid \n"
                             "service    3 selective-tunnel uvid \n"
                             "service   15 custom cvid \"101\"\n"
                             "port    0 shutdown\n"
                             "port    3 poe enable\n");
    EXPECT_EQ(diff.key[0], 70);
    EXPECT_EQ(diff.key[1], 3);
}

TEST_F(Ont, EverySwitchOff)
{
    before.enabled = 1;
    before.fec_up = 1;
    before.pppoe_sessions_unlimit = 2;
    before.downstream_broadcast = 65535;
    before.omci_error_tolerant = 1;
    EXPECT_EQ(diff.script(), "shutdown\n"
                             "no fec\n"
                             "no pppoe-sessions-unlimit\n"
                             "no broadcast-downstream\n"
                             "no omci-error-tolerant\n");
}

TEST_F(Ont, SwitchesWithNonsenseValuesAreOn)
{
    before.enabled = before.fec_up = before.pppoe_sessions_unlimit = 1;
    before.downstream_broadcast = before.omci_error_tolerant = 1;
    after.enabled = after.fec_up = after.pppoe_sessions_unlimit = 2;
    after.downstream_broadcast = after.omci_error_tolerant = 65535;
    EXPECT_EQ(diff.script(), "no shutdown\n"
                             "fec\n"
                             "pppoe-sessions-unlimit\n"
                             "broadcast-downstream\n"
                             "omci-error-tolerant\n");
}

TEST_F(Ont, PrintAllForcesWhateverPartIsWanted)
{
    std::string expected = "description \"\"\n"
                           "shutdown\n"
                           "serial \"0000000000000000\"\n"
                           "password \"\"\n"
                           "no fec\n"
                           "no pppoe-sessions-unlimit\n"
                           "no broadcast-downstream\n"
                           "ber interval \"0\"\n"
                           "ber update-period \"0\"\n"
                           "service 9 profile dba \"gold\"\n"
                           "profile management \"unassigned\"\n"
                           "rf-port-state \"disabled\"\n"
                           "no omci-error-tolerant\n"
                           "custom-model \"none\"\n";
    const std::size_t voice = expected.size();
    for (GPonOntCfg* ont : {&before, &after}) {
        ont->profile_ont_alloc[9] = 3;
        ont->profile_ont_management = -1;
        ont->custom_cross_connect[1].exist = 1;
        for (GPonOntSelectiveTunnel& tunnel : ont->tunnel) {
            tunnel.uvid[0] = -1;
        }
    }
    for (int service = 0; service < 16; ++service) {
        const std::string prefix = std::string("service ") + (service < 10 ? "   " : "  ") + std::to_string(service);
        if (service == 1) {
            expected +=
                prefix + " custom cvid \"0\"\n" + prefix + " custom svid \"0\"\n" + prefix + " custom cos \"0\"\n";
        }
        expected += prefix + " selective-tunnel uvid \n";
    }
    for (const std::string port : {"port    0", "port    1", "port    2", "port    3"}) {
        expected += "no " + port + " shutdown\n" + "no " + port + " poe enable\n" + port +
                    " poe pse-class-control \"0\"\n" + port + " poe power-priority \"invalid value\"\n";
    }
    diff.all = 1;
    for (const int common : {0, 1, 2}) {
        diff.common = common;
        const std::string script = diff.script();
        EXPECT_EQ(script.substr(0, voice), expected.substr(0, voice));
        const std::size_t services = script.find("service    0 ");
        ASSERT_NE(services, std::string::npos);
        EXPECT_EQ(script.substr(services), expected.substr(voice));
        EXPECT_EQ(script.substr(voice, 19), "voice iphost static");
        EXPECT_EQ(script.substr(services - 18, 18), "no voice rtp dtmf\n");
    }
}

TEST_F(Ont, FieldsWithoutACommand)
{
    after.revision = 1;
    after.auth_method = 1;
    after.ems_profile_index = 1;
    after.port[0].poe.power_detection_status = 1;
    EXPECT_EQ(diff.elements(), Elements{});
    EXPECT_EQ(diff.key[1], 3);
}

TEST_F(Ont, Description)
{
    put(before.description, "old");
    EXPECT_EQ(diff.elements(), (Elements{"", "description \"\""}));
    put(after.description, std::string(256, 'd'));
    after.enabled = 0x4141;
    EXPECT_EQ(diff.script(), "description \"" + std::string(256, 'd') + "\"\nno shutdown\n");
    reset();
    after.description[255] = 'x';
    EXPECT_EQ(diff.elements(), (Elements{"", "description \"\""}));
}

TEST_F(Ont, DescriptionWithPlaceholders)
{
    put(after.description, "$ID0 and $ID1");
    diff.key[1] = 12;
    EXPECT_EQ(diff.elements(), (Elements{"", "description \"  70 and   12\""}));
}

TEST_F(Ont, SerialInEveryLayout)
{
    put(after.serial, {'A', 'B', 'C', 'D', 0, 1, 2, 255});
    EXPECT_EQ(diff.elements(), (Elements{"", "serial \"ABCD000102FF\""}));
    put(after.serial, {'A', 'B', 'c', 'D', 0, 1, 2, 255});
    EXPECT_EQ(diff.elements(), (Elements{"", "serial \"41426344000102FF\""}));
    sn_format = 1;
    EXPECT_EQ(diff.elements(), (Elements{"", "serial \"41426344000102FF\""}));
    sn_format = 2;
    EXPECT_EQ(diff.elements(), (Elements{"", "serial \"41426344-000102FF\""}));
    sn_format = 3;
    EXPECT_EQ(diff.elements(), (Elements{"", "serial \"\""}));
    sn_format = 0;
}

TEST_F(Ont, PasswordIsTenCharacters)
{
    after.password[10] = 'x';
    EXPECT_EQ(diff.elements(), Elements{});
    put(after.password, "0123456789A");
    EXPECT_EQ(diff.elements(), (Elements{"", "password \"0123456789\""}));
    put(before.password, "012345678");
    put(after.password, "0123456789");
    EXPECT_EQ(diff.elements(), (Elements{"", "password \"0123456789\""}));
}

TEST_F(Ont, BerInterval)
{
    after.ber_interval = 4294967294U;
    EXPECT_EQ(diff.elements(), (Elements{"", "ber interval \"4294967294\""}));
    after.ber_interval = 4294967295U;
    EXPECT_EQ(diff.elements(), (Elements{"", "ber interval \"none\""}));
    reset();
    after.ber_update_period = 2147483648U;
    EXPECT_EQ(diff.elements(), (Elements{"", "ber update-period \"2147483648\""}));
}

TEST_F(Ont, ReferenceToASlotWithoutAProfileSaysNothing)
{
    after.profile_ont_shaping = 126;
    after.profile_ont_cross_connect[0] = 9;
    after.profile_ont_alloc[15] = 9;
    after.profile_ont_ports = 9;
    after.profile_ont_voice = 9;
    after.profile_ont_management = 9;
    after.template_ont = 9;
    EXPECT_EQ(diff.elements(), Elements{});
    diff.all = 1;
    EXPECT_EQ(diff.script().find("profile"), std::string::npos);
    EXPECT_EQ(diff.script().find("template"), std::string::npos);
}

TEST_F(Ont, ReferenceToNothingIsUnassigned)
{
    for (const s16 nowhere : std::initializer_list<s16>{-1, 128, 32767, -32768}) {
        after.profile_ont_shaping = nowhere;
        after.profile_ont_cross_connect[3] = nowhere;
        after.profile_ont_alloc[3] = nowhere;
        after.profile_ont_ports = nowhere;
        after.profile_ont_voice = nowhere;
        after.profile_ont_management = nowhere;
        after.template_ont = nowhere;
        EXPECT_EQ(diff.script(), "profile shaping \"unassigned\"\n"
                                 "service 3 profile cross-connect \"unassigned\"\n"
                                 "service 3 profile dba \"unassigned\"\n"
                                 "profile ports \"unassigned\"\n"
                                 "profile voice \"unassigned\"\n"
                                 "profile management \"unassigned\"\n"
                                 "template \"unassigned\"\n")
            << nowhere;
    }
    reset();
    after.profile_ont_ports = 32;
    EXPECT_EQ(diff.elements(), (Elements{"", "profile ports \"unassigned\""}));
}

TEST_F(Ont, EmptyNameIsAName)
{
    after.profile_ont_shaping = 10;
    after.profile_ont_ports = 10;
    EXPECT_EQ(diff.script(), "profile shaping \"\"\nprofile ports \"\"\n");
}

TEST_F(Ont, EachServiceHasItsOwnProfiles)
{
    std::string expected;
    for (int service = 0; service < 16; ++service) {
        after.profile_ont_cross_connect[service] = service % 2 == 0 ? 1 : 2;
        after.profile_ont_alloc[service] = 3;
        const std::string prefix = "service " + std::to_string(service) + " profile ";
        expected += prefix + "cross-connect " + (service % 2 == 0 ? "\"inet\"\n" : "\"iptv\"\n");
        expected += prefix + "dba \"gold\"\n";
    }
    EXPECT_EQ(diff.script(), expected);
}

TEST_F(Ont, WordsOfTheRegistry)
{
    after.rf_port_state = 1;
    after.custom_model = 1;
    EXPECT_EQ(diff.script(), "rf-port-state \"enabled\"\ncustom-model \"bridged\"\n");
    std::swap(before, after);
    EXPECT_EQ(diff.script(), "rf-port-state \"disabled\"\ncustom-model \"none\"\n");
    after.rf_port_state = 3;
    after.custom_model = 65535;
    EXPECT_EQ(diff.script(), "rf-port-state \"unknown\"\ncustom-model \"unknown\"\n");
}

} // namespace
