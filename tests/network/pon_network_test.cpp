#include "tests/support/diff.h"

namespace {

TEST(PonNetwork, EveryFieldInOrder)
{
    Diff network{getdiff_GPonNetworkCfg};
    network.after.mac_age_time = 4294967295U;
    network.after.svlan_ethertype = 0x88a8;
    network.after.cvlan_ethertype = 5;
    EXPECT_EQ(network.script(), "configure terminal\n"
                                "gpon network mac-age-time \"4294967295\"\n"
                                "gpon network svlan-ethertype \"0x88A8\"\n"
                                "gpon network cvlan-ethertype \"0x0005\"\n");
}

TEST(PonNetwork, MulticastVlanAndItsClassHaveNoCommand)
{
    Diff network{getdiff_GPonNetworkCfg};
    network.after.mcvlan = 100;
    network.after.mccos = 5;
    network.after.revision = 2;
    EXPECT_EQ(network.elements(), Elements{});
    EXPECT_EQ(network.key[0], 31);
}

TEST(PonNetwork, TerminalVlansFollowInSlotOrder)
{
    Diff network{getdiff_GPonNetworkCfg};
    for (const int slot : {0, 31}) {
        network.after.terminal_vlan[slot].exists = 1;
        put(network.after.terminal_vlan[slot].name, "v$ID0");
        network.after.terminal_vlan[slot].tag.vid = 7;
    }
    network.before.terminal_vlan[15].exists = 1;
    put(network.before.terminal_vlan[15].name, "gone");
    EXPECT_EQ(network.script(), "configure terminal\n"
                                "gpon network terminal-vlan \"v   0\" vid \"7\"\n"
                                "no gpon network terminal-vlan \"gone\"\n"
                                "gpon network terminal-vlan \"v  31\" vid \"7\"\n");
}

TEST(PonNetwork, RemovedTerminalVlanNavigatesNowhere)
{
    Diff network{getdiff_GPonNetworkCfg};
    network.before.terminal_vlan[15].exists = 1;
    put(network.before.terminal_vlan[15].name, "gone");
    EXPECT_EQ(network.elements(), Elements{"no gpon network terminal-vlan \"gone\""});
}

TEST(PonNetwork, PrintAllWithoutTheCommonSettingsForcesNothing)
{
    Diff network{getdiff_GPonNetworkCfg};
    network.before.terminal_vlan[0].exists = 1;
    network.after = network.before;
    network.all = 1;
    EXPECT_EQ(network.elements(), Elements{});
}

TEST(PonNetwork, ForcedByTheCommonSettingsShowsAllOfIt)
{
    for (const int common : {1, 2}) {
        Diff network{getdiff_GPonNetworkCfg};
        network.before.mac_age_time = 300;
        network.before.terminal_vlan[3].exists = 1;
        put(network.before.terminal_vlan[3].name, "video");
        network.after = network.before;
        network.all = 1;
        network.common = common;
        EXPECT_EQ(network.script(), "configure terminal\n"
                                    "gpon network mac-age-time \"300\"\n"
                                    "gpon network svlan-ethertype \"0x0000\"\n"
                                    "gpon network cvlan-ethertype \"0x0000\"\n"
                                    "gpon network terminal-vlan \"video\" vid \"0\"\n"
                                    "gpon network terminal-vlan \"video\" cos \"0\"\n");
    }
}

} // namespace
