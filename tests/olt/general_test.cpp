#include "tests/support/diff.h"

namespace {

/// Profiles of the new configuration, by slot: PPPoE 2 "bras"; DHCP 3 "pool-a" and 4 "pool-b"; DHCPv6 5 "six-a" and
/// 6 "six-b". Slots 30 hold a profile with an empty name, the others none.
class OltGeneral : public testing::Test {
  protected:
    OltGeneral()
    {
        GPonProfilesOlt& profiles = session.cfg->pon.profiles_olt;
        add(profiles.pppoe_ia[2], "bras");
        add(profiles.dhcp_ra[3], "pool-a");
        add(profiles.dhcp_ra[4], "pool-b");
        add(profiles.dhcpv6_ra[5], "six-a");
        add(profiles.dhcpv6_ra[6], "six-b");
        add(profiles.pppoe_ia[30], "");
        add(profiles.dhcp_ra[30], "");
        add(profiles.dhcpv6_ra[30], "");
        session.open();
        diff.view = "configure-view";
    }

    template <class Profile>
    static void add(Profile& profile, const char* name)
    {
        profile.exist = 1;
        put(profile.name, name);
    }

    Session session;
    Diff<GPonOltGeneralCfg> diff{getdiff_GPonOltGeneralCfg};
    GPonOltGeneralCfg& before = diff.before;
    GPonOltGeneralCfg& after = diff.after;
};

TEST_F(OltGeneral, EveryRowInOrder)
{
    diff.view = "root";
    after.revision = 9;
    after.block_duplicated_mac = 1;
    after.ont_block_time = 4294967295U;
    after.dhcpra_shaper = 100;
    after.pppoeia_shaper = 100;
    after.redundancy = 1;
    after.profile_olt_pppoeia = 2;
    after.profile_olt_dhcpra = 3;
    after.profile_olt_dhcpv6ra = 5;
    after.high_rx_power_alarm_level = -8;
    after.low_rx_power_alarm_level = -28;
    after.absent_counter_max = 300;
    after.dba_reduced_latency = 1;
    before.alarm_ont_battery_power_enabled = 1;
    before.alarm_ont_battery_low_enabled = 1;
    after.activation.ont_authentication_mode = 1;
    after.redundancy_cfg.enabled = 1;
    after.dba_short_cycle.gpon_port[2] = 1;
    after.l3.pppoe.pppoe_plus_enabled = 1;
    after.profile_olt_dhcpra_redefinition[0] = {1, 100, 3};
    after.profile_olt_dhcpra_redefinition[15] = {1, 4094, 4};
    after.profile_olt_dhcpv6ra_redefinition[0] = {1, 200, 5};
    after.profile_olt_dhcpv6ra_redefinition[15] = {1, 201, 6};
    after.datapath.model = 2;
    after.encryption.enable = 1;
    EXPECT_EQ(diff.script(), "configure terminal\n"
                             "gpon olt block-duplicated-mac\n"
                             "ont block-time \"4294967295\"\n"
                             "gpon olt dhcpra-shaper \"100\"\n"
                             "gpon olt profile pppoeia \"bras\"\n"
                             "gpon olt profile dhcpra \"pool-a\"\n"
                             "gpon olt profile dhcpv6ra \"six-a\"\n"
                             "alarm ont-high-rx-power level \"-8\"\n"
                             "alarm ont-low-rx-power level \"-28\"\n"
                             "gpon olt unactivated-timout \"300\"\n"
                             "gpon olt dba-reduced-latency allocation-mode most-demanding\n"
                             "alarm ont-battery-power status disable\n"
                             "alarm ont-battery-low status disable\n"
                             "gpon olt authentication \"password\"\n"
                             "gpon olt dba-short-cycle gpon-port 2-3\n"
                             "gpon olt profile dhcpra pool-a vid 100\n"
                             "gpon olt profile dhcpra pool-b vid 4094\n"
                             "gpon olt profile dhcpv6ra six-a vid 200\n"
                             "gpon olt profile dhcpv6ra six-b vid 201\n"
                             "gpon olt model \"3\"\n"
                             "gpon olt encryption\n");
    EXPECT_EQ(diff.key[0], 15);
}

TEST_F(OltGeneral, FieldsWithoutACommand)
{
    after.revision = 1;
    after.redundancy = 1;
    after.redundancy_cfg.mode = 1;
    after.pppoeia_shaper = 7;
    after.l3.dhcp[3].vid = 7;
    after.l3.pppoe.vendor_id = 7;
    after.activation.check_password = 1;
    after.dba_excess_allocations = 1;
    after.profile_olt_dhcpra_redefinition[1].exist = 1;
    after.profile_olt_dhcpv6ra_redefinition[1].exist = 1;
    EXPECT_EQ(diff.elements(), Elements{});
}

TEST_F(OltGeneral, PrintAllAloneForcesNothing)
{
    diff.all = 1;
    for (const int common : {0, 3, -1}) {
        diff.common = common;
        diff.key[0] = 9;
        EXPECT_EQ(diff.elements(), Elements{}) << common;
        EXPECT_EQ(diff.key[0], 15) << common;
    }
    after.ont_block_time = 5;
    EXPECT_EQ(diff.elements(), (Elements{"", "ont block-time \"5\""}));
}

TEST_F(OltGeneral, PrintAllWithTheCommonSettingsForcesAllButTheRelayProfiles)
{
    for (GPonOltGeneralCfg* general : {&before, &after}) {
        general->profile_olt_pppoeia = 2;
        general->profile_olt_dhcpra = 3;
        general->profile_olt_dhcpv6ra = 5;
        general->profile_olt_dhcpra_redefinition[7] = {1, 7, 3};
        general->profile_olt_dhcpv6ra_redefinition[7] = {1, 7, 5};
    }
    after.profile_olt_dhcpra_redefinition[8] = {1, 8, 4};
    diff.all = 1;
    diff.common = 1;
    EXPECT_EQ(diff.elements().size(), 2U * 25); // the reduced latency's command is empty
    EXPECT_EQ(diff.script(), "no gpon olt block-duplicated-mac\n"
                             "ont block-time \"0\"\n"
                             "gpon olt dhcpra-shaper \"0\"\n"
                             "alarm ont-high-rx-power level \"0\"\n"
                             "alarm ont-low-rx-power level \"0\"\n"
                             "gpon olt unactivated-timout \"0\"\n"
                             "alarm ont-battery-power status disable\n"
                             "alarm ont-battery-low status disable\n"
                             "gpon olt authentication \"serial-number\"\n"
                             "gpon olt activation-period \"0\"\n"
                             "no auto-reconfigure interface ont\n"
                             "no auto-reconfigure interface gpon-port\n"
                             "no auto-reconfigure olt\n"
                             "no gpon olt password-in-trap\n"
                             "no gpon olt dba-short-cycle gpon-port 0-1\n"
                             "no gpon olt dba-short-cycle gpon-port 2-3\n"
                             "no gpon olt dba-short-cycle gpon-port 4-5\n"
                             "no gpon olt dba-short-cycle gpon-port 6-7\n"
                             "gpon olt profile dhcpra pool-b vid 8\n"
                             "gpon olt model \"1\"\n"
                             "gpon olt broadcast-gem-port \"0\"\n"
                             "gpon olt multicast-gem-port \"0\"\n"
                             "no gpon olt encryption\n"
                             "gpon olt encryption key-update \"0\"\n");
}

TEST_F(OltGeneral, PrintAllWithTheProfilesForcesTheRelayProfilesToo)
{
    for (GPonOltGeneralCfg* general : {&before, &after}) {
        general->block_duplicated_mac = 1;
        general->dba_reduced_latency = 1;
        general->dba_excess_allocations = 1;
        general->alarm_ont_battery_power_enabled = 1;
        general->alarm_ont_battery_low_enabled = 1;
        general->profile_olt_pppoeia = 2;
        general->profile_olt_dhcpra = 3;
        general->profile_olt_dhcpv6ra = 5;
        general->profile_olt_dhcpra_redefinition[7] = {0, 7, 3};
        general->profile_olt_dhcpv6ra_redefinition[8] = {0, 8, 5};
    }
    diff.all = 1;
    diff.common = 2;
    EXPECT_EQ(diff.script(), "gpon olt block-duplicated-mac\n"
                             "ont block-time \"0\"\n"
                             "gpon olt dhcpra-shaper \"0\"\n"
                             "gpon olt profile pppoeia \"bras\"\n"
                             "gpon olt profile dhcpra \"pool-a\"\n"
                             "gpon olt profile dhcpv6ra \"six-a\"\n"
                             "alarm ont-high-rx-power level \"0\"\n"
                             "alarm ont-low-rx-power level \"0\"\n"
                             "gpon olt unactivated-timout \"0\"\n"
                             "gpon olt dba-reduced-latency allocation-mode fair-allocations\n"
                             "gpon olt authentication \"serial-number\"\n"
                             "gpon olt activation-period \"0\"\n"
                             "no auto-reconfigure interface ont\n"
                             "no auto-reconfigure interface gpon-port\n"
                             "no auto-reconfigure olt\n"
                             "no gpon olt password-in-trap\n"
                             "no gpon olt dba-short-cycle gpon-port 0-1\n"
                             "no gpon olt dba-short-cycle gpon-port 2-3\n"
                             "no gpon olt dba-short-cycle gpon-port 4-5\n"
                             "no gpon olt dba-short-cycle gpon-port 6-7\n"
                             "gpon olt profile dhcpra pool-a vid 7\n"
                             "gpon olt profile dhcpv6ra six-a vid 8\n"
                             "gpon olt model \"1\"\n"
                             "gpon olt broadcast-gem-port \"0\"\n"
                             "gpon olt multicast-gem-port \"0\"\n"
                             "no gpon olt encryption\n"
                             "gpon olt encryption key-update \"0\"\n");
}

TEST_F(OltGeneral, DuplicatedMacBlock)
{
    after.block_duplicated_mac = 65535;
    EXPECT_EQ(diff.elements(), (Elements{"", "gpon olt block-duplicated-mac"}));
    before.block_duplicated_mac = 1;
    after.block_duplicated_mac = 2;
    EXPECT_EQ(diff.elements(), (Elements{"", "gpon olt block-duplicated-mac"}));
    after.block_duplicated_mac = 0;
    EXPECT_EQ(diff.elements(), (Elements{"", "no gpon olt block-duplicated-mac"}));
}

TEST_F(OltGeneral, SingleNumbers)
{
    after.ont_block_time = 60;
    EXPECT_EQ(diff.elements(), (Elements{"", "ont block-time \"60\""}));
    after = {};
    after.dhcpra_shaper = 4294967295U;
    EXPECT_EQ(diff.elements(), (Elements{"", "gpon olt dhcpra-shaper \"4294967295\""}));
    after = {};
    after.high_rx_power_alarm_level = -28;
    EXPECT_EQ(diff.elements(), (Elements{"", "alarm ont-high-rx-power level \"-28\""}));
    after.high_rx_power_alarm_level = 32767;
    EXPECT_EQ(diff.elements(), (Elements{"", "alarm ont-high-rx-power level \"32767\""}));
    after = {};
    after.low_rx_power_alarm_level = -32768;
    EXPECT_EQ(diff.elements(), (Elements{"", "alarm ont-low-rx-power level \"-32768\""}));
}

TEST_F(OltGeneral, UnactivatedTimeOutIsShownSigned)
{
    after.absent_counter_max = 2147483647U;
    EXPECT_EQ(diff.script(), "gpon olt unactivated-timout \"2147483647\"\n");
    after.absent_counter_max = 2147483648U;
    EXPECT_EQ(diff.script(), "gpon olt unactivated-timout \"-2147483648\"\n");
    after.absent_counter_max = 4294967295U;
    EXPECT_EQ(diff.script(), "gpon olt unactivated-timout \"-1\"\n");
}

TEST_F(OltGeneral, PppoeProfile)
{
    after.profile_olt_pppoeia = 2;
    EXPECT_EQ(diff.elements(), (Elements{"", "gpon olt profile pppoeia \"bras\""}));
    after.profile_olt_pppoeia = 30;
    EXPECT_EQ(diff.script(), "gpon olt profile pppoeia \"\"\n");
    after.profile_olt_pppoeia = 7;
    EXPECT_EQ(diff.elements(), Elements{});
    for (const s16 nowhere : std::initializer_list<s16>{-1, -32768, 32, 32767}) {
        after.profile_olt_pppoeia = nowhere;
        EXPECT_EQ(diff.script(), "gpon olt profile pppoeia \"unassigned\"\n") << nowhere;
    }
}

TEST_F(OltGeneral, DhcpProfile)
{
    after.profile_olt_dhcpra = 4;
    EXPECT_EQ(diff.elements(), (Elements{"", "gpon olt profile dhcpra \"pool-b\""}));
    after.profile_olt_dhcpra = 30;
    EXPECT_EQ(diff.script(), "gpon olt profile dhcpra \"\"\n");
    after.profile_olt_dhcpra = 7;
    EXPECT_EQ(diff.elements(), Elements{});
    after.profile_olt_dhcpra = -1;
    EXPECT_EQ(diff.script(), "gpon olt profile dhcpra \"unassigned\"\n");
    after.profile_olt_dhcpra = 32;
    EXPECT_EQ(diff.script(), "gpon olt profile dhcpra \"unassigned\"\n");
}

TEST_F(OltGeneral, Dhcpv6Profile)
{
    after.profile_olt_dhcpv6ra = 6;
    EXPECT_EQ(diff.elements(), (Elements{"", "gpon olt profile dhcpv6ra \"six-b\""}));
    after.profile_olt_dhcpv6ra = 30;
    EXPECT_EQ(diff.script(), "gpon olt profile dhcpv6ra \"\"\n");
    after.profile_olt_dhcpv6ra = 7;
    EXPECT_EQ(diff.elements(), Elements{});
    after.profile_olt_dhcpv6ra = -1;
    EXPECT_EQ(diff.script(), "gpon olt profile dhcpv6ra \"unassigned\"\n");
    after.profile_olt_dhcpv6ra = 32;
    EXPECT_EQ(diff.script(), "gpon olt profile dhcpv6ra \"unassigned\"\n");
}

TEST_F(OltGeneral, ForcedProfileWithoutANameIsLeftOut)
{
    diff.all = 1;
    diff.common = 2;
    EXPECT_EQ(diff.script().find("gpon olt profile"), std::string::npos);
}

TEST_F(OltGeneral, AnyNonZeroReducedLatencyIsOn)
{
    for (const u16 flag : {u16{2}, u16{0x100}, u16{65535}}) {
        after.dba_reduced_latency = flag;
        EXPECT_EQ(diff.elements(), (Elements{"", "gpon olt dba-reduced-latency allocation-mode most-demanding"}));
    }
    before.dba_reduced_latency = 1;
    after.dba_reduced_latency = 2;
    EXPECT_EQ(diff.elements(), (Elements{"", "gpon olt dba-reduced-latency allocation-mode most-demanding"}));
}

TEST_F(OltGeneral, ReducedLatencyNamesItsAllocationMode)
{
    after.dba_reduced_latency = 1;
    EXPECT_EQ(diff.elements(), (Elements{"", "gpon olt dba-reduced-latency allocation-mode most-demanding"}));
    after.dba_excess_allocations = 2;
    EXPECT_EQ(diff.elements(), (Elements{"", "gpon olt dba-reduced-latency allocation-mode fair-allocations"}));
}

TEST_F(OltGeneral, ReducedLatencySwitchedOffIsAnEmptyCommand)
{
    diff.view = "root";
    before.dba_reduced_latency = 1;
    after.dba_excess_allocations = 1;
    EXPECT_EQ(diff.elements(), (Elements{"configure terminal", ""}));
}

TEST_F(OltGeneral, AnotherAllocationModeAloneIsNotSeen)
{
    before.dba_reduced_latency = after.dba_reduced_latency = 1;
    after.dba_excess_allocations = 1;
    EXPECT_EQ(diff.elements(), Elements{});
}

TEST_F(OltGeneral, BatteryAlarmsCanOnlyBeDisabled)
{
    diff.view = "root";
    after.alarm_ont_battery_power_enabled = 1;
    EXPECT_EQ(diff.elements(), (Elements{"configure terminal", ""}));
    after = {};
    after.alarm_ont_battery_low_enabled = 65535;
    EXPECT_EQ(diff.elements(), (Elements{"configure terminal", ""}));
    after = {};
    before.alarm_ont_battery_power_enabled = 1;
    EXPECT_EQ(diff.elements(), (Elements{"configure terminal", "alarm ont-battery-power status disable"}));
    before = {};
    before.alarm_ont_battery_low_enabled = 1;
    EXPECT_EQ(diff.elements(), (Elements{"configure terminal", "alarm ont-battery-low status disable"}));
}

TEST_F(OltGeneral, RedefinitionsStandUnderTheirIndex)
{
    add(session.cfg->pon.profiles_olt.dhcp_ra[3], "a$ID0");
    add(session.cfg->pon.profiles_olt.dhcpv6_ra[5], "b$ID0");
    session.open();
    after.profile_olt_dhcpra_redefinition[0].profile = 3;
    after.profile_olt_dhcpra_redefinition[12].profile = 3;
    after.profile_olt_dhcpv6ra_redefinition[13].profile = 5;
    EXPECT_EQ(diff.script(), "gpon olt profile dhcpra a   0 vid 0\n"
                             "gpon olt profile dhcpra a  12 vid 0\n"
                             "gpon olt profile dhcpv6ra b  13 vid 0\n");
}

} // namespace
