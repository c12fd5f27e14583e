#include "tests/support/diff.h"

namespace {

TEST(VlanEthertypes, UplinkNamesItsDirectionAndProfile)
{
    Session session;
    session.cfg->pon.profiles_olt.vlan[4].exist = 1;
    put(session.cfg->pon.profiles_olt.vlan[4].name, "office");
    session.open();
    Diff ethertypes{getdiff_GVlanGeneralCfg};
    ethertypes.key[0] = 4;
    ethertypes.after.extended_svlan_type = 0x8100;
    ethertypes.after.extended_cvlan_type = 0x88a8;
    ethertypes.after.insertion_svlan_ethertype = 0x9100;
    ethertypes.after.insertion_cvlan_ethertype = 1;
    EXPECT_EQ(ethertypes.script(), "configure terminal\nprofile vlan \"office\"\n"
                                   "uplink extended svlan-type \"0x8100\"\n"
                                   "uplink extended cvlan-type \"0x88A8\"\n"
                                   "uplink insertion svlan-ethertype \"0x9100\"\n"
                                   "uplink insertion cvlan-ethertype \"0x0001\"\n");
}

TEST(VlanEthertypes, DownlinkBeginsWithItsDirection)
{
    Diff ethertypes{getdiff_GVlanGeneralCfg};
    ethertypes.view = "vlan-view";
    ethertypes.key[1] = 1;
    ethertypes.after.extended_svlan_type = 0x8100;
    EXPECT_EQ(ethertypes.elements(), (Elements{"", "downlink extended svlan-type \"0x8100\""}));
}

TEST(VlanEthertypes, PrintAllForcesWhateverThePartWanted)
{
    for (const int common : {0, 1, 2}) {
        Diff ethertypes{getdiff_GVlanGeneralCfg};
        ethertypes.view = "vlan-view";
        ethertypes.key[1] = 2;
        ethertypes.all = 1;
        ethertypes.common = common;
        EXPECT_EQ(ethertypes.script(), "downlink extended svlan-type \"0x0000\"\n"
                                       "downlink extended cvlan-type \"0x0000\"\n"
                                       "downlink insertion svlan-ethertype \"0x0000\"\n"
                                       "downlink insertion cvlan-ethertype \"0x0000\"\n");
    }
}

} // namespace
