#include "tests/support/diff.h"

namespace {

TEST(Network, ChangedHostnameIsOneCommand)
{
    Diff network{getdiff_GSystemNetworkCfg};
    put(network.after.hostname, "olt-17");
    EXPECT_EQ(network.script(), "configure terminal\nhostname \"olt-17\"\n");
}

TEST(Network, NavigationIsAnElementEvenWhenEmpty)
{
    Diff network{getdiff_GSystemNetworkCfg};
    put(network.after.hostname, "olt-17");
    network.after.dscp = 46;
    EXPECT_EQ(network.elements(),
              (Elements{"configure terminal", "hostname \"olt-17\"", "", "management dscp \"46\""}));
}

TEST(Network, EveryFieldInOrder)
{
    Diff network{getdiff_GSystemNetworkCfg};
    put(network.after.hostname, "olt-17");
    put(network.after.ipaddr, {192, 0, 2, 10});
    put(network.after.netmask, {255, 255, 255, 0});
    network.after.mngmtvlan = 65535;
    put(network.after.gateway, {192, 0, 2, 1});
    network.after.vlan_prio = 7;
    network.after.dscp = 255;
    EXPECT_EQ(network.script(), "configure terminal\n"
                                "hostname \"olt-17\"\n"
                                "management ip \"192.0.2.10\"\n"
                                "management mask \"255.255.255.0\"\n"
                                "management vid \"65535\"\n"
                                "management gateway \"192.0.2.1\"\n"
                                "management cos \"7\"\n"
                                "management dscp \"255\"\n");
}

TEST(Network, EqualRecordUnderPrintAllShowsEveryField)
{
    Diff network{getdiff_GSystemNetworkCfg};
    network.all = 1;
    EXPECT_EQ(network.script(), "configure terminal\n"
                                "hostname \"\"\n"
                                "management ip \"0.0.0.0\"\n"
                                "management mask \"0.0.0.0\"\n"
                                "management vid \"0\"\n"
                                "management gateway \"0.0.0.0\"\n"
                                "management cos \"0\"\n"
                                "management dscp \"0\"\n");
}

TEST(Network, AcsFieldsHaveNoCommandHere)
{
    Diff network{getdiff_GSystemNetworkCfg};
    put(network.after.ACSIp, {198, 51, 100, 1});
    network.after.ACSVid = 9;
    EXPECT_EQ(network.elements(), Elements{});
}

TEST(Network, UnterminatedHostnameEndsWithItsArray)
{
    Diff network{getdiff_GSystemNetworkCfg};
    put(network.after.hostname, std::string(256, 'h'));
    put(network.after.ipaddr, {'x', 'x', 'x', 'x'});
    EXPECT_EQ(network.script(),
              "configure terminal\nhostname \"" + std::string(256, 'h') + "\"\nmanagement ip \"120.120.120.120\"\n");
}

TEST(Network, BytesBehindTheTerminatorCountAsAChange)
{
    Diff network{getdiff_GSystemNetworkCfg};
    put(network.before.hostname, "olt");
    put(network.after.hostname, "olt");
    network.after.hostname[255] = 'x';
    EXPECT_EQ(network.script(), "configure terminal\nhostname \"olt\"\n");
}

TEST(Network, PlaceholderInAValueIsSubstituted)
{
    Diff network{getdiff_GSystemNetworkCfg};
    network.key[1] = 7;
    put(network.after.hostname, "a$ID1b");
    EXPECT_EQ(network.script(), "configure terminal\nhostname \"a   7b\"\n");
}

TEST(Network, ManagementBlockIsTheSameWork)
{
    Diff management{getdiff_GSystemMgmtCfg};
    put(management.after.hostname, "olt-17");
    management.after.ACSVid = 9;
    management.after.dscp = 1;
    EXPECT_EQ(management.script(), "configure terminal\nhostname \"olt-17\"\nmanagement dscp \"1\"\n");
}

TEST(Acs, EveryField)
{
    Diff acs{getdiff_GSystemAcsMgmtCfg};
    put(acs.after.ACSIp, {198, 51, 100, 1});
    put(acs.after.ACSMask, {255, 255, 255, 252});
    acs.after.ACSVid = 4094;
    EXPECT_EQ(acs.script(), "configure terminal\n"
                            "ip acs server ip \"198.51.100.1\"\n"
                            "ip acs server mask \"255.255.255.252\"\n"
                            "ip acs server vid \"4094\"\n");
}

TEST(Acs, OtherFieldsHaveNoCommandHere)
{
    Diff acs{getdiff_GSystemAcsMgmtCfg};
    put(acs.after.hostname, "olt-17");
    EXPECT_EQ(acs.elements(), Elements{});
}

TEST(Acs, EqualRecordUnderPrintAllShowsEveryField)
{
    Diff acs{getdiff_GSystemAcsMgmtCfg};
    acs.all = 1;
    EXPECT_EQ(acs.script(), "configure terminal\n"
                            "ip acs server ip \"0.0.0.0\"\n"
                            "ip acs server mask \"0.0.0.0\"\n"
                            "ip acs server vid \"0\"\n");
}

} // namespace
