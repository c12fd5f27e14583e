#include "tests/support/diff.h"

namespace {

/// VLAN profiles 3 "office" and 4 "", address tables 5 "iptv" and 6 "" of the new configuration.
class GponPort : public testing::Test {
  protected:
    GponPort()
    {
        GPonProfilesOlt& profiles = session.cfg->pon.profiles_olt;
        for (const int slot : {3, 4}) {
            profiles.vlan[slot].exist = 1;
        }
        for (const int slot : {5, 6}) {
            profiles.address_table[slot].exist = 1;
        }
        put(profiles.vlan[3].name, "office");
        put(profiles.address_table[5].name, "iptv");
        session.open();
        diff.key[0] = 7;
        diff.view = "if-gpon-view";
        diff.view_key = 7;
    }

    Session session;
    Diff<GPonOltChannelCfg> diff{getdiff_GPonOltChannelCfg};
    GPonOltChannelCfg& before = diff.before;
    GPonOltChannelCfg& after = diff.after;
};

const Elements empty_command{"", ""};

TEST_F(GponPort, EveryRowInOrder)
{
    diff.view = "root";
    before.enabled = 1;
    after.revision = 1;
    after.max_ont_count = 64;
    after.profile_olt_vlan = 3;
    after.profile_olt_address_table = 5;
    after.fec_down = 1;
    after.mac_migration = 1;
    after.use_custom_optics_settings = 1;
    after.onus_range = 20;
    after.unknown_multicast_forward = 1;
    after.unknown_multicast_forward_gem_port = 1;
    after.optics.laser_reset_enable = 1;
    EXPECT_EQ(diff.script(), "configure terminal\ninterface gpon-port    7\n"
                             "profile vlan \"office\"\n"
                             "profile address-table \"iptv\"\n"
                             "shutdown\n"
                             "fec\n"
                             "mac-migration\n"
                             "optics use-custom\n"
                             "range 20\n"
                             "unknown-multicast-forward enable\n"
                             "unknown-multicast-forward to multicast\n"
                             "optics laser-reset\n");
}

TEST_F(GponPort, EveryRowTakenBack)
{
    before.fec_down = 1;
    before.mac_migration = 1;
    before.use_custom_optics_settings = 1;
    before.onus_range = 20;
    before.unknown_multicast_forward = 1;
    before.unknown_multicast_forward_gem_port = 1;
    after.enabled = 1;
    Elements expected(14);
    expected[7] = "no optics use-custom";
    EXPECT_EQ(diff.elements(), expected);
}

TEST_F(GponPort, PrintAllForcesWhateverPartIsWanted)
{
    for (GPonOltChannelCfg* port : {&before, &after}) {
        port->profile_olt_vlan = 3;
        port->profile_olt_address_table = 5;
    }
    diff.all = 1;
    for (const int common : {0, 1, 2}) {
        diff.common = common;
        const Elements elements = diff.elements();
        ASSERT_EQ(elements.size(), 2U * (9 + 49));
        const Elements first(elements.begin(), elements.begin() + 20);
        EXPECT_EQ(joined(first), "profile vlan \"office\"\n"
                                 "profile address-table \"iptv\"\n"
                                 "shutdown\n"
                                 "no optics use-custom\n"
                                 "optics laser-reset\n");
        EXPECT_EQ(elements.back(), "optics voltage-if-mode \"lvpecl\"");
    }
}

TEST_F(GponPort, PrintAllLeavesOutProfilesWithoutAName)
{
    diff.all = 1;
    const Elements elements = diff.elements();
    ASSERT_EQ(elements.size(), 2U * (7 + 49));
    EXPECT_EQ(elements[1], "shutdown");
}

TEST_F(GponPort, OntLimitHasNoCommand)
{
    after.max_ont_count = 128;
    EXPECT_EQ(diff.elements(), Elements{});
}

TEST_F(GponPort, VlanProfile)
{
    after.profile_olt_vlan = 3;
    EXPECT_EQ(diff.elements(), (Elements{"", "profile vlan \"office\""}));
    after.profile_olt_vlan = 4;
    EXPECT_EQ(diff.script(), "profile vlan \"\"\n");
    after.profile_olt_vlan = 8;
    EXPECT_EQ(diff.elements(), Elements{});
    for (const s16 nowhere : std::initializer_list<s16>{-1, 32, -32768}) {
        after.profile_olt_vlan = nowhere;
        EXPECT_EQ(diff.script(), "profile vlan \"unassigned\"\n") << nowhere;
    }
}

TEST_F(GponPort, AddressTableProfile)
{
    after.profile_olt_address_table = 5;
    EXPECT_EQ(diff.elements(), (Elements{"", "profile address-table \"iptv\""}));
    after.profile_olt_address_table = 6;
    EXPECT_EQ(diff.script(), "profile address-table \"\"\n");
    after.profile_olt_address_table = 8;
    EXPECT_EQ(diff.elements(), Elements{});
    for (const s16 nowhere : std::initializer_list<s16>{-1, 32, -32768}) {
        after.profile_olt_address_table = nowhere;
        EXPECT_EQ(diff.script(), "profile address-table \"unassigned\"\n") << nowhere;
    }
}

TEST_F(GponPort, ShutDownAndBroughtUp)
{
    diff.view = "root";
    before.enabled = 2;
    EXPECT_EQ(diff.elements(), (Elements{"configure terminal\ninterface gpon-port    7", "shutdown"}));
    before.enabled = 0;
    after.enabled = 65535;
    EXPECT_EQ(diff.elements(), (Elements{"configure terminal\ninterface gpon-port    7", ""}));
}

TEST_F(GponPort, ErrorCorrection)
{
    after.fec_down = 2;
    EXPECT_EQ(diff.elements(), (Elements{"", "fec"}));
    before.fec_down = 1;
    EXPECT_EQ(diff.elements(), (Elements{"", "fec"}));
    after.fec_down = 0;
    EXPECT_EQ(diff.elements(), empty_command);
}

TEST_F(GponPort, MacMigration)
{
    after.mac_migration = 2;
    EXPECT_EQ(diff.elements(), (Elements{"", "mac-migration"}));
    std::swap(before, after);
    EXPECT_EQ(diff.elements(), empty_command);
}

TEST_F(GponPort, CustomOpticsAloneHasANegatedForm)
{
    after.use_custom_optics_settings = 2;
    EXPECT_EQ(diff.elements(), (Elements{"", "optics use-custom"}));
    std::swap(before, after);
    EXPECT_EQ(diff.elements(), (Elements{"", "no optics use-custom"}));
}

TEST_F(GponPort, Range)
{
    after.onus_range = 255;
    EXPECT_EQ(diff.elements(), (Elements{"", "range 255"}));
    before.onus_range = 20;
    after.onus_range = 0;
    EXPECT_EQ(diff.elements(), empty_command);
}

TEST_F(GponPort, UnknownMulticast)
{
    after.unknown_multicast_forward = 2;
    EXPECT_EQ(diff.elements(), (Elements{"", "unknown-multicast-forward enable"}));
    std::swap(before, after);
    EXPECT_EQ(diff.elements(), empty_command);
}

TEST_F(GponPort, GemPortOfUnknownMulticast)
{
    before.unknown_multicast_forward = after.unknown_multicast_forward = 1;
    after.unknown_multicast_forward_gem_port = 1;
    EXPECT_EQ(diff.elements(), (Elements{"", "unknown-multicast-forward to multicast"}));
    after.unknown_multicast_forward_gem_port = 255;
    EXPECT_EQ(diff.elements(), (Elements{"", "unknown-multicast-forward to unknown"}));
    std::swap(before, after);
    EXPECT_EQ(diff.elements(), (Elements{"", "unknown-multicast-forward to broadcast"}));
}

TEST_F(GponPort, GemPortWhileForwardingHasAnotherFlagThanOne)
{
    before.unknown_multicast_forward = after.unknown_multicast_forward = 2;
    after.unknown_multicast_forward_gem_port = 1;
    EXPECT_EQ(diff.elements(), (Elements{"", "unknown-multicast-forward to multicast"}));
    after.unknown_multicast_forward = 65535;
    EXPECT_EQ(diff.elements(), behind("", "unknown-multicast-forward enable\n"
                                          "unknown-multicast-forward to multicast\n"));
}

TEST_F(GponPort, GemPortWhileForwardingIsOffIsAnEmptyCommand)
{
    after.unknown_multicast_forward_gem_port = 1;
    EXPECT_EQ(diff.elements(), empty_command);
}

TEST_F(GponPort, SwitchingForwardingOnDoesNotRepeatTheGemPort)
{
    before.unknown_multicast_forward_gem_port = after.unknown_multicast_forward_gem_port = 1;
    after.unknown_multicast_forward = 1;
    EXPECT_EQ(diff.elements(), (Elements{"", "unknown-multicast-forward enable"}));
}

TEST_F(GponPort, OpticsAlone)
{
    after.optics.delay_snr_timer = 300;
    EXPECT_EQ(diff.elements(), (Elements{"", "optics snr timer \"300\""}));
}

// ----------------------------------------------------------------------------------------------------- container

TEST(Olt, GeneralSettingsThenPortsEachInItsView)
{
    Diff olt{getdiff_GPonOltCfg};
    olt.before.channel[0].enabled = 1;
    olt.before.channel[7].enabled = 1;
    olt.after.channel[7].onus_range = 20;
    olt.after.channel[3].optics.delay_rng_timer = 5;
    olt.after.general.ont_block_time = 60;
    EXPECT_EQ(olt.script(), "configure terminal\n"
                            "ont block-time \"60\"\n"
                            "interface gpon-port    0\n"
                            "shutdown\n"
                            "exit\n"
                            "interface gpon-port    3\n"
                            "optics rng timer \"5\"\n"
                            "exit\n"
                            "interface gpon-port    7\n"
                            "shutdown\n"
                            "range 20\n");
    EXPECT_EQ(olt.key[0], 7);
}

TEST(Olt, OnePortAlone)
{
    Diff olt{getdiff_GPonOltCfg};
    olt.after.channel[2].fec_down = 1;
    EXPECT_EQ(olt.elements(), (Elements{"configure terminal\ninterface gpon-port    2", "fec"}));
    EXPECT_EQ(olt.key[0], 7);
}

TEST(Olt, PrintAllShowsEveryPortButNotTheGeneralSettings)
{
    Session session; // so that no profile has a name
    session.open();
    Diff olt{getdiff_GPonOltCfg};
    olt.all = 1;
    const Elements elements = olt.elements();
    ASSERT_EQ(elements.size(), 8U * 2 * (7 + 49));
    for (std::size_t port = 0; port < 8; ++port) {
        const std::string enter = "interface gpon-port    " + std::to_string(port);
        EXPECT_EQ(elements[port * 112], (port == 0 ? "configure terminal\n" : "exit\n") + enter);
        EXPECT_EQ(elements[port * 112 + 1], "shutdown");
        EXPECT_EQ(elements[port * 112 + 111], "optics voltage-if-mode \"lvpecl\"");
    }
    EXPECT_EQ(olt.key[0], 7);
}

TEST(Olt, PrintAllWithTheCommonSettingsShowsThoseToo)
{
    Diff olt{getdiff_GPonOltCfg};
    olt.all = 1;
    olt.common = 1;
    const std::string begin = "configure terminal\nno gpon olt block-duplicated-mac\nont block-time \"0\"\n";
    EXPECT_EQ(olt.script().substr(0, begin.size()), begin);
}

} // namespace
