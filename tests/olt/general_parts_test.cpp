#include "tests/support/diff.h"

namespace {

// ------------------------------------------------------------------------------------------------------ activation

class OltActivation : public testing::Test {
  protected:
    OltActivation() { diff.view = "configure-view"; }

    Diff<GPonOltGeneralActivationCfg> diff{getdiff_GPonOltGeneralActivationCfg};
    GPonOltGeneralActivationCfg& before = diff.before;
    GPonOltGeneralActivationCfg& after = diff.after;
};

TEST_F(OltActivation, EveryFieldInOrder)
{
    diff.view = "root";
    after = {2, 4294967295U, 1, 1, 1, 1, 1};
    EXPECT_EQ(diff.script(), "configure terminal\n"
                             "gpon olt authentication \"serial-number-and-password\"\n"
                             "gpon olt activation-period \"4294967295\"\n"
                             "auto-reconfigure interface ont\n"
                             "auto-reconfigure interface gpon-port\n"
                             "auto-reconfigure olt\n"
                             "gpon olt password-in-trap\n");
}

TEST_F(OltActivation, EveryFieldOff)
{
    before = {2, 5, 1, 1, 2, 65535, 1};
    EXPECT_EQ(diff.script(), "gpon olt authentication \"serial-number\"\n"
                             "gpon olt activation-period \"0\"\n"
                             "no auto-reconfigure interface ont\n"
                             "no auto-reconfigure interface gpon-port\n"
                             "no auto-reconfigure olt\n"
                             "no gpon olt password-in-trap\n");
}

TEST_F(OltActivation, EachFieldAlone)
{
    after.ont_authentication_mode = 1;
    EXPECT_EQ(diff.elements(), (Elements{"", "gpon olt authentication \"password\""}));
    after.ont_authentication_mode = 65535;
    EXPECT_EQ(diff.elements(), (Elements{"", "gpon olt authentication \"unknown\""}));
    after = {};
    after.activation_period = 60;
    EXPECT_EQ(diff.elements(), (Elements{"", "gpon olt activation-period \"60\""}));
    after = {};
    after.auto_reconfigure_ont = 2;
    EXPECT_EQ(diff.elements(), (Elements{"", "auto-reconfigure interface ont"}));
    after = {};
    after.auto_reconfigure_channel = 2;
    EXPECT_EQ(diff.elements(), (Elements{"", "auto-reconfigure interface gpon-port"}));
    after = {};
    after.auto_reconfigure_olt = 2;
    EXPECT_EQ(diff.elements(), (Elements{"", "auto-reconfigure olt"}));
    after = {};
    after.alt_activation_mode = 2;
    EXPECT_EQ(diff.elements(), (Elements{"", "gpon olt password-in-trap"}));
}

TEST_F(OltActivation, PasswordCheckHasNoCommand)
{
    after.check_password = 1;
    EXPECT_EQ(diff.elements(), Elements{});
}

TEST_F(OltActivation, ForcedByTheCommonSettingsAlone)
{
    diff.all = 1;
    EXPECT_EQ(diff.elements(), Elements{});
    for (const int common : {1, 2}) {
        diff.common = common;
        EXPECT_EQ(diff.script(), "gpon olt authentication \"serial-number\"\n"
                                 "gpon olt activation-period \"0\"\n"
                                 "no auto-reconfigure interface ont\n"
                                 "no auto-reconfigure interface gpon-port\n"
                                 "no auto-reconfigure olt\n"
                                 "no gpon olt password-in-trap\n");
    }
    diff.all = 0;
    EXPECT_EQ(diff.elements(), Elements{});
}

// ------------------------------------------------------------------------------------- records without any command

TEST(OltRedundancy, HasNoCommands)
{
    Diff redundancy{getdiff_GPonOltGeneralRedundancyCfg};
    std::memset(&redundancy.after, 0x11, sizeof redundancy.after);
    redundancy.all = 1;
    redundancy.common = 2;
    EXPECT_EQ(redundancy.elements(), Elements{});
}

TEST(OltL3, HasNoCommandsAndLeavesItsLastIndexInTheKey)
{
    Diff l3{getdiff_GPonOltGeneralL3Cfg};
    l3.after.dhcp[0].exist = 1;
    l3.after.dhcp[15].vid = 7;
    put(l3.after.pppoe.circuit_id_format, "%HOSTNAME%");
    EXPECT_EQ(l3.elements(), Elements{});
    EXPECT_EQ(l3.key[0], 15);
}

TEST(OltL3, EqualRecordsLeaveTheKeyUnlessForced)
{
    Diff l3{getdiff_GPonOltGeneralL3Cfg};
    l3.key[0] = 4;
    EXPECT_EQ(l3.elements(), Elements{});
    EXPECT_EQ(l3.key[0], 4);
    l3.all = 1;
    EXPECT_EQ(l3.elements(), Elements{});
    EXPECT_EQ(l3.key[0], 15);
}

TEST(OltL3, PartsHaveNoCommands)
{
    Diff dhcp{getdiff_GPonOltGeneralL3DHCPCfg};
    dhcp.after.relay_agent_enabled = 1;
    dhcp.all = 1;
    EXPECT_EQ(dhcp.elements(), Elements{});
    Diff pppoe{getdiff_GPonOltGeneralL3PPPoECfg};
    pppoe.after.vendor_id = 3561;
    pppoe.all = 1;
    EXPECT_EQ(pppoe.elements(), Elements{});
}

// -------------------------------------------------------------------------------------------------- redefinitions

/// Both kinds of relay are alike but for their profiles and one word of the command.
class OltRedefinition : public testing::Test {
  protected:
    OltRedefinition()
    {
        for (const int slot : {3, 4}) {
            session.cfg->pon.profiles_olt.dhcp_ra[slot].exist = 1;
            session.cfg->pon.profiles_olt.dhcpv6_ra[slot].exist = 1;
        }
        put(session.cfg->pon.profiles_olt.dhcp_ra[3].name, "pool-a");
        put(session.cfg->pon.profiles_olt.dhcp_ra[4].name, "");
        put(session.cfg->pon.profiles_olt.dhcpv6_ra[3].name, "six-a");
        put(session.cfg->pon.profiles_olt.dhcpv6_ra[4].name, "");
        session.open();
        v4.view = v6.view = "configure-view";
    }

    void set(const GPonOltDhcpraCfgByVid& old_entry, const GPonOltDhcpraCfgByVid& new_entry)
    {
        v4.before = old_entry;
        v4.after = new_entry;
        v6.before = {old_entry.exist, old_entry.vid, old_entry.profile};
        v6.after = {new_entry.exist, new_entry.vid, new_entry.profile};
    }

    void force(int common)
    {
        v4.all = v6.all = 1;
        v4.common = v6.common = common;
    }

    Session session;
    Diff<GPonOltDhcpraCfgByVid> v4{getdiff_GPonOltDhcpraCfgByVid};
    Diff<GPonOltDhcpv6raCfgByVid> v6{getdiff_GPonOltDhcpv6raCfgByVid};
};

TEST_F(OltRedefinition, ChangedProfileOrVidIsOneCommand)
{
    v4.view = v6.view = "root";
    set({1, 100, 7}, {1, 100, 3});
    EXPECT_EQ(v4.elements(), (Elements{"configure terminal", "gpon olt profile dhcpra pool-a vid 100"}));
    EXPECT_EQ(v6.elements(), (Elements{"configure terminal", "gpon olt profile dhcpv6ra six-a vid 100"}));
    set({1, 100, 3}, {1, 65535, 3});
    EXPECT_EQ(v4.elements(), (Elements{"configure terminal", "gpon olt profile dhcpra pool-a vid 65535"}));
    EXPECT_EQ(v6.elements(), (Elements{"configure terminal", "gpon olt profile dhcpv6ra six-a vid 65535"}));
}

TEST_F(OltRedefinition, WhetherItExistsIsNotLookedAt)
{
    set({0, 100, 3}, {1, 100, 3});
    EXPECT_EQ(v4.elements(), Elements{});
    EXPECT_EQ(v6.elements(), Elements{});
    set({1, 100, 3}, {0, 101, 3});
    EXPECT_EQ(v4.script(), "gpon olt profile dhcpra pool-a vid 101\n");
    EXPECT_EQ(v6.script(), "gpon olt profile dhcpv6ra six-a vid 101\n");
}

TEST_F(OltRedefinition, ProfileWithoutANameSaysNothing)
{
    set({1, 100, 7}, {1, 101, 7});
    EXPECT_EQ(v4.elements(), Elements{});
    EXPECT_EQ(v6.elements(), Elements{});
    force(2);
    EXPECT_EQ(v4.elements(), Elements{});
    EXPECT_EQ(v6.elements(), Elements{});
}

TEST_F(OltRedefinition, UnassignedProfileIsNamedSo)
{
    for (const s16 nowhere : std::initializer_list<s16>{-1, 32, -32768}) {
        set({1, 100, 3}, {1, 100, nowhere});
        EXPECT_EQ(v4.script(), "gpon olt profile dhcpra unassigned vid 100\n");
        EXPECT_EQ(v6.script(), "gpon olt profile dhcpv6ra unassigned vid 100\n");
    }
}

TEST_F(OltRedefinition, EmptyNameIsAName)
{
    set({1, 100, 3}, {1, 100, 4});
    EXPECT_EQ(v4.script(), "gpon olt profile dhcpra  vid 100\n");
    EXPECT_EQ(v6.script(), "gpon olt profile dhcpv6ra  vid 100\n");
}

TEST_F(OltRedefinition, ForcedWithTheProfilesAlone)
{
    set({1, 100, 3}, {1, 100, 3});
    for (const int common : {0, 1}) {
        force(common);
        EXPECT_EQ(v4.elements(), Elements{});
        EXPECT_EQ(v6.elements(), Elements{});
    }
    force(2);
    EXPECT_EQ(v4.script(), "gpon olt profile dhcpra pool-a vid 100\n");
    EXPECT_EQ(v6.script(), "gpon olt profile dhcpv6ra six-a vid 100\n");
    v4.all = v6.all = 0;
    EXPECT_EQ(v4.elements(), Elements{});
    EXPECT_EQ(v6.elements(), Elements{});
}

// ---------------------------------------------------------------------------------------------------- short cycle

TEST(OltShortCycle, OnePairOfPortsNavigatesInEveryPass)
{
    Diff cycle{getdiff_GPonOltGeneralDBAShortCycleCfg};
    cycle.after.gpon_port[0] = 1;
    EXPECT_EQ(cycle.elements(), (Elements{"configure terminal", "gpon olt dba-short-cycle gpon-port 0-1", "", "", ""}));
}

TEST(OltShortCycle, EveryPairOnAndOff)
{
    Diff cycle{getdiff_GPonOltGeneralDBAShortCycleCfg};
    for (const int port : {0, 2, 4, 6}) {
        cycle.after.gpon_port[port] = 65535;
    }
    EXPECT_EQ(cycle.script(), "configure terminal\n"
                              "gpon olt dba-short-cycle gpon-port 0-1\n"
                              "gpon olt dba-short-cycle gpon-port 2-3\n"
                              "gpon olt dba-short-cycle gpon-port 4-5\n"
                              "gpon olt dba-short-cycle gpon-port 6-7\n");
    std::swap(cycle.before, cycle.after);
    EXPECT_EQ(cycle.script(), "configure terminal\n"
                              "no gpon olt dba-short-cycle gpon-port 0-1\n"
                              "no gpon olt dba-short-cycle gpon-port 2-3\n"
                              "no gpon olt dba-short-cycle gpon-port 4-5\n"
                              "no gpon olt dba-short-cycle gpon-port 6-7\n");
}

TEST(OltShortCycle, OddPortsNavigateAndSayNothing)
{
    for (const int port : {1, 3, 5, 7}) {
        Diff cycle{getdiff_GPonOltGeneralDBAShortCycleCfg};
        cycle.after.gpon_port[port] = 1;
        EXPECT_EQ(cycle.elements(), (Elements{"configure terminal", "", "", ""}));
    }
}

TEST(OltShortCycle, AnotherNonZeroValueIsAChange)
{
    Diff cycle{getdiff_GPonOltGeneralDBAShortCycleCfg};
    cycle.before.gpon_port[6] = 1;
    cycle.after.gpon_port[6] = 2;
    EXPECT_EQ(cycle.script(), "configure terminal\ngpon olt dba-short-cycle gpon-port 6-7\n");
}

TEST(OltShortCycle, ForcedByTheCommonSettingsAlone)
{
    Diff cycle{getdiff_GPonOltGeneralDBAShortCycleCfg};
    cycle.before.gpon_port[4] = cycle.after.gpon_port[4] = 1;
    EXPECT_EQ(cycle.elements(), Elements{});
    cycle.all = 1;
    EXPECT_EQ(cycle.elements(), (Elements{"configure terminal", "", "", ""}));
    for (const int common : {1, 2}) {
        cycle.common = common;
        EXPECT_EQ(cycle.script(), "configure terminal\n"
                                  "no gpon olt dba-short-cycle gpon-port 0-1\n"
                                  "no gpon olt dba-short-cycle gpon-port 2-3\n"
                                  "gpon olt dba-short-cycle gpon-port 4-5\n"
                                  "no gpon olt dba-short-cycle gpon-port 6-7\n");
    }
}

// ------------------------------------------------------------------------------------------- datapath, encryption

TEST(OltDatapath, EveryField)
{
    Diff datapath{getdiff_GPonOltGeneralDatapathCfg};
    datapath.after = {1, 4095, 65535};
    EXPECT_EQ(datapath.elements(), behind("configure terminal", "gpon olt model \"2\"\n"
                                                                "gpon olt broadcast-gem-port \"4095\"\n"
                                                                "gpon olt multicast-gem-port \"65535\"\n"));
}

TEST(OltDatapath, ModelCountsFromOne)
{
    Diff datapath{getdiff_GPonOltGeneralDatapathCfg};
    datapath.before.model = 1;
    EXPECT_EQ(datapath.script(), "configure terminal\ngpon olt model \"1\"\n");
    datapath.after.model = 65535;
    EXPECT_EQ(datapath.script(), "configure terminal\ngpon olt model \"65536\"\n");
}

TEST(OltDatapath, ForcedByTheCommonSettingsAlone)
{
    Diff datapath{getdiff_GPonOltGeneralDatapathCfg};
    EXPECT_EQ(datapath.elements(), Elements{});
    datapath.all = 1;
    EXPECT_EQ(datapath.elements(), Elements{});
    for (const int common : {1, 2}) {
        datapath.common = common;
        EXPECT_EQ(datapath.script(), "configure terminal\n"
                                     "gpon olt model \"1\"\n"
                                     "gpon olt broadcast-gem-port \"0\"\n"
                                     "gpon olt multicast-gem-port \"0\"\n");
    }
}

TEST(OltEncryption, EveryFieldOnAndOff)
{
    Diff encryption{getdiff_GPonOntEncryption};
    encryption.after = {2, 65535};
    EXPECT_EQ(encryption.elements(),
              (Elements{"configure terminal", "gpon olt encryption", "", "gpon olt encryption key-update \"65535\""}));
    std::swap(encryption.before, encryption.after);
    EXPECT_EQ(encryption.elements(),
              (Elements{"configure terminal", "no gpon olt encryption", "", "gpon olt encryption key-update \"0\""}));
}

TEST(OltEncryption, ForcedByTheCommonSettingsAlone)
{
    Diff encryption{getdiff_GPonOntEncryption};
    EXPECT_EQ(encryption.elements(), Elements{});
    encryption.all = 1;
    EXPECT_EQ(encryption.elements(), Elements{});
    for (const int common : {1, 2}) {
        encryption.common = common;
        EXPECT_EQ(encryption.script(), "configure terminal\n"
                                       "no gpon olt encryption\n"
                                       "gpon olt encryption key-update \"0\"\n");
    }
}

} // namespace
