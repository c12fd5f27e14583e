#include "tests/profiles_ont/profile_test.h"

namespace {

using Profile = GPonProfileOntPorts;
using Uni = GPonUniPort;
using Veip = GPonVeipPort;
using Shaping = GPonUniShaping;
using Client = GPonMulticastClientPortSettings;

/// UNI port 2 and the other parts of ports profile 3, while the script stands in its view.
template <class Record>
class Part : public PartDiff<Record> {
  public:
    template <class... Arguments>
    explicit Part(Arguments... arguments) : PartDiff<Record>("ports-view", 3, 2, arguments...)
    {
    }
};

// ------------------------------------------------------------------------------------------- multicast client settings

TEST(MulticastClient, EveryFieldOfAUniPortInOrder)
{
    Part<Client> client{getdiff_GPonMulticastClientPortSettings, "port[$ID1]"};
    client.after.upstream_igmp_vid = 30;
    client.after.upstream_igmp_prio = 4;
    client.after.upstream_igmp_tag_control = 1;
    client.after.downstream_multicast_vid = 31;
    client.after.downstream_multicast_prio = 5;
    client.after.downstream_multicast_tag_control = 7;
    client.after.max_groups = 64;
    client.after.max_multicast_bandwidth = 100000;
    EXPECT_EQ(client.elements(), behind("", "port    2 igmp upstream vid \"30\"\n"
                                            "port    2 igmp upstream priority \"4\"\n"
                                            "port    2 igmp upstream tag-control add-tag\n"
                                            "port    2 igmp downstream vid \"31\"\n"
                                            "port    2 igmp downstream priority \"5\"\n"
                                            "port    2 igmp downstream tag-control replace-vid-from-subscriber-info\n"
                                            "port    2 igmp max groups \"64\"\n"
                                            "port    2 igmp max bandwidth \"100000\"\n"));
    EXPECT_EQ(client.key[1], 2);
}

TEST(MulticastClient, EachFieldAlone)
{
    const Part<Client> client{getdiff_GPonMulticastClientPortSettings, "veip"};
    expect_each_alone<Client>(
        client,
        {
            {[](Client& c) { c.upstream_igmp_vid = 65535; }, "veip upstream vid \"65535\"\n"},
            {[](Client& c) { c.upstream_igmp_prio = 255; }, "veip upstream priority \"255\"\n"},
            {[](Client& c) { c.upstream_igmp_tag_control = 1; }, "veip upstream tag-control add-tag\n"},
            {[](Client& c) { c.upstream_igmp_tag_control = 2; }, "veip upstream tag-control replace-tag\n"},
            {[](Client& c) { c.upstream_igmp_tag_control = 3; }, "veip upstream tag-control replace-vid\n"},
            {[](Client& c) { c.upstream_igmp_tag_control = 4; }, "veip upstream tag-control pass\n"},
            {[](Client& c) { c.upstream_igmp_tag_control = 65535; }, "veip upstream tag-control pass\n"},
            {[](Client& c) { c.downstream_multicast_vid = 65535; }, "veip downstream vid \"65535\"\n"},
            {[](Client& c) { c.downstream_multicast_prio = 255; }, "veip downstream priority \"255\"\n"},
            {[](Client& c) { c.downstream_multicast_tag_control = 1; }, "veip downstream tag-control remove-tag\n"},
            {[](Client& c) { c.downstream_multicast_tag_control = 2; }, "veip downstream tag-control add-tag\n"},
            {[](Client& c) { c.downstream_multicast_tag_control = 3; }, "veip downstream tag-control replace-tag\n"},
            {[](Client& c) { c.downstream_multicast_tag_control = 4; }, "veip downstream tag-control replace-vid\n"},
            {[](Client& c) { c.downstream_multicast_tag_control = 5; },
             "veip downstream tag-control add-tag-from-subscriber-info\n"},
            {[](Client& c) { c.downstream_multicast_tag_control = 6; },
             "veip downstream tag-control replace-tag-from-subscriber-info\n"},
            {[](Client& c) { c.downstream_multicast_tag_control = 7; },
             "veip downstream tag-control replace-vid-from-subscriber-info\n"},
            {[](Client& c) { c.downstream_multicast_tag_control = 8; }, "veip downstream tag-control pass\n"},
            {[](Client& c) { c.max_groups = 65535; }, "veip max groups \"65535\"\n"},
            {[](Client& c) { c.max_multicast_bandwidth = 4294967295U; }, "veip max bandwidth \"4294967295\"\n"},
        });
}

TEST(MulticastClient, DumpShowsEveryFieldWhateverPartIsWanted)
{
    for (const int common : {0, 1, 2}) {
        Part<Client> client{getdiff_GPonMulticastClientPortSettings, "port[$ID1]"};
        client.all = 1;
        client.common = common;
        EXPECT_EQ(client.script(), "port    2 igmp upstream vid \"0\"\n"
                                   "port    2 igmp upstream priority \"0\"\n"
                                   "port    2 igmp upstream tag-control pass\n"
                                   "port    2 igmp downstream vid \"0\"\n"
                                   "port    2 igmp downstream priority \"0\"\n"
                                   "port    2 igmp downstream tag-control pass\n"
                                   "port    2 igmp max groups \"0\"\n"
                                   "port    2 igmp max bandwidth \"0\"\n");
    }
}

TEST(MulticastClient, OtherPrefixesStandAsTheyAre)
{
    const char* const prefixes[][2] = {
        {"veip", "veip max groups \"1\"\n"},
        {"port[$ID1]x", "port[   2]x max groups \"1\"\n"},
        {"port[$ID1", "port[   2 max groups \"1\"\n"},
        {"100% of $ID0", "100% of    3 max groups \"1\"\n"},
        {"", " max groups \"1\"\n"},
    };
    for (const auto& [prefix, expected] : prefixes) {
        Part<Client> client{getdiff_GPonMulticastClientPortSettings, prefix};
        client.after.max_groups = 1;
        EXPECT_EQ(client.script(), expected);
    }
    Part<Client> long_prefix{getdiff_GPonMulticastClientPortSettings, std::string(4000, 'p').c_str()};
    long_prefix.after.max_groups = 1;
    EXPECT_EQ(long_prefix.script(), std::string(4000, 'p') + " max groups \"1\"\n");
}

TEST(MulticastClient, NullPrefixIsTheEmptyOne)
{
    Diff<Client> client{+[](Client* lhs, Client* rhs, int* key, List<char>& out) {
        return getdiff_GPonMulticastClientPortSettings(nullptr, lhs, rhs, key, out);
    }};
    client.view = "ports-view";
    client.after.max_groups = 1;
    EXPECT_EQ(client.script(), " max groups \"1\"\n");
}

// --------------------------------------------------------------------------------------------------------- UNI shapers

TEST(UniShaping, EveryFieldInOrder)
{
    Part<Shaping> downstream{getdiff_GPonUniShapingDownstream};
    downstream.after = {1, 64, 4294967295U};
    EXPECT_EQ(downstream.elements(), behind("", "port    2 shaper downstream\n"
                                                "port    2 shaper downstream commited-rate \"64\"\n"
                                                "port    2 shaper downstream peak-rate \"4294967295\"\n"));
    Part<Shaping> upstream{getdiff_GPonUniShapingUpstream};
    upstream.after = {1, 4294967295U, 128};
    EXPECT_EQ(upstream.elements(), behind("", "port    2 shaper upstream\n"
                                              "port    2 shaper upstream commited-rate \"4294967295\"\n"
                                              "port    2 shaper upstream peak-rate \"128\"\n"));
}

TEST(UniShaping, EachFieldAlone)
{
    Part<Shaping> downstream{getdiff_GPonUniShapingDownstream};
    Part<Shaping> upstream{getdiff_GPonUniShapingUpstream};
    downstream.before = downstream.after = upstream.before = upstream.after = {2, 1, 1};
    expect_each_alone<Shaping>(
        downstream, {
                        {[](Shaping& s) { s.enable = 0; }, "no port    2 shaper downstream\n"},
                        {[](Shaping& s) { s.enable = 1; }, "port    2 shaper downstream\n"},
                        {[](Shaping& s) { s.enable = 65535; }, "port    2 shaper downstream\n"},
                        {[](Shaping& s) { s.commited_rate = 0; }, "port    2 shaper downstream commited-rate \"0\"\n"},
                        {[](Shaping& s) { s.peak_rate = 0; }, "port    2 shaper downstream peak-rate \"0\"\n"},
                    });
    expect_each_alone<Shaping>(
        upstream, {
                      {[](Shaping& s) { s.enable = 0; }, "no port    2 shaper upstream\n"},
                      {[](Shaping& s) { s.enable = 1; }, "port    2 shaper upstream\n"},
                      {[](Shaping& s) { s.commited_rate = 0; }, "port    2 shaper upstream commited-rate \"0\"\n"},
                      {[](Shaping& s) { s.peak_rate = 0; }, "port    2 shaper upstream peak-rate \"0\"\n"},
                  });
}

TEST(UniShaping, RatesAreShownThoughTheShaperIsSwitchedOff)
{
    Part<Shaping> downstream{getdiff_GPonUniShapingDownstream};
    downstream.before.enable = 1;
    downstream.after = {0, 64, 128};
    EXPECT_EQ(downstream.script(), "no port    2 shaper downstream\n"
                                   "port    2 shaper downstream commited-rate \"64\"\n"
                                   "port    2 shaper downstream peak-rate \"128\"\n");
}

TEST(UniShaping, DumpShowsEveryField)
{
    Part<Shaping> downstream{getdiff_GPonUniShapingDownstream};
    downstream.all = 1;
    EXPECT_EQ(downstream.script(), "no port    2 shaper downstream\n"
                                   "port    2 shaper downstream commited-rate \"0\"\n"
                                   "port    2 shaper downstream peak-rate \"0\"\n");
    Part<Shaping> upstream{getdiff_GPonUniShapingUpstream};
    upstream.all = 1;
    EXPECT_EQ(upstream.script(), "no port    2 shaper upstream\n"
                                 "port    2 shaper upstream commited-rate \"0\"\n"
                                 "port    2 shaper upstream peak-rate \"0\"\n");
}

// ----------------------------------------------------------------------------------------------------------- UNI ports

TEST(UniPort, EveryFieldInOrder)
{
    Part<Uni> port{getdiff_GPonUniPort};
    port.after.speed = 3;
    port.after.duplex = 2;
    port.after.bridge_group = 10;
    port.after.remove_tag = 1;
    port.after.spanning_tree_for_bridge_group = 1;
    port.after.multicast_enable = 1;
    port.after.multicast_port_settings.upstream_igmp_vid = 30;
    port.after.multicast_port_settings.max_multicast_bandwidth = 5;
    port.after.shaper_downstream.enable = 1;
    port.after.shaper_upstream.peak_rate = 64;
    EXPECT_EQ(port.elements(), behind("", "port    2 speed \"1000m\"\n"
                                          "port    2 duplex \"full\"\n"
                                          "port    2 bridge group \"10\"\n"
                                          "port    2 bridge group spanning-tree\n"
                                          "port    2 remove-tag\n"
                                          "port    2 multicast\n"
                                          "port    2 igmp upstream vid \"30\"\n"
                                          "port    2 igmp max bandwidth \"5\"\n"
                                          "port    2 shaper downstream\n"
                                          "port    2 shaper upstream peak-rate \"64\"\n"));
    EXPECT_EQ(port.key[1], 2);
}

TEST(UniPort, EachFieldAlone)
{
    Part<Uni> port{getdiff_GPonUniPort};
    port.before.remove_tag = port.before.spanning_tree_for_bridge_group = port.before.multicast_enable = 2;
    port.after = port.before;
    expect_each_alone<Uni>(
        port, {
                  {[](Uni& p) { p.speed = 1; }, "port    2 speed \"10m\"\n"},
                  {[](Uni& p) { p.speed = 2; }, "port    2 speed \"100m\"\n"},
                  {[](Uni& p) { p.speed = 65535; }, "port    2 speed \"unknown\"\n"},
                  {[](Uni& p) { p.duplex = 1; }, "port    2 duplex \"half\"\n"},
                  {[](Uni& p) { p.duplex = 65535; }, "port    2 duplex \"unknown\"\n"},
                  {[](Uni& p) { p.bridge_group = 255; }, "port    2 bridge group \"255\"\n"},
                  {[](Uni& p) { p.spanning_tree_for_bridge_group = 0; }, "no port    2 bridge group spanning-tree\n"},
                  {[](Uni& p) { p.spanning_tree_for_bridge_group = 65535; }, "port    2 bridge group spanning-tree\n"},
                  {[](Uni& p) { p.remove_tag = 0; }, "no port    2 remove-tag\n"},
                  {[](Uni& p) { p.remove_tag = 1; }, "port    2 remove-tag\n"},
                  {[](Uni& p) { p.multicast_enable = 0; }, "no port    2 multicast\n"},
                  {[](Uni& p) { p.multicast_enable = 1; }, "port    2 multicast\n"},
                  {[](Uni& p) { p.multicast_port_settings.max_groups = 1; }, "port    2 igmp max groups \"1\"\n"},
                  {[](Uni& p) { p.shaper_downstream.peak_rate = 1; }, "port    2 shaper downstream peak-rate \"1\"\n"},
                  {[](Uni& p) { p.shaper_upstream.enable = 1; }, "port    2 shaper upstream\n"},
              });
}

TEST(UniPort, SpanningTreeComesBeforeTagRemoval)
{
    Part<Uni> port{getdiff_GPonUniPort};
    port.before.spanning_tree_for_bridge_group = 1;
    port.after.remove_tag = 1;
    EXPECT_EQ(port.script(), "no port    2 bridge group spanning-tree\nport    2 remove-tag\n");
}

TEST(UniPort, PowerOverEthernetHasNoCommand)
{
    Part<Uni> port{getdiff_GPonUniPort};
    std::memset(&port.after.poe, 0xFF, sizeof port.after.poe);
    EXPECT_EQ(port.elements(), Elements{});
}

TEST(UniPort, DumpShowsEveryFieldWhateverPartIsWanted)
{
    for (const int common : {0, 1, 2}) {
        Part<Uni> port{getdiff_GPonUniPort};
        port.all = 1;
        port.common = common;
        EXPECT_EQ(port.script(), "port    2 speed \"auto\"\n"
                                 "port    2 duplex \"auto\"\n"
                                 "port    2 bridge group \"0\"\n"
                                 "no port    2 bridge group spanning-tree\n"
                                 "no port    2 remove-tag\n"
                                 "no port    2 multicast\n"
                                 "port    2 igmp upstream vid \"0\"\n"
                                 "port    2 igmp upstream priority \"0\"\n"
                                 "port    2 igmp upstream tag-control pass\n"
                                 "port    2 igmp downstream vid \"0\"\n"
                                 "port    2 igmp downstream priority \"0\"\n"
                                 "port    2 igmp downstream tag-control pass\n"
                                 "port    2 igmp max groups \"0\"\n"
                                 "port    2 igmp max bandwidth \"0\"\n"
                                 "no port    2 shaper downstream\n"
                                 "port    2 shaper downstream commited-rate \"0\"\n"
                                 "port    2 shaper downstream peak-rate \"0\"\n"
                                 "no port    2 shaper upstream\n"
                                 "port    2 shaper upstream commited-rate \"0\"\n"
                                 "port    2 shaper upstream peak-rate \"0\"\n");
    }
}

// ---------------------------------------------------------------------------------------------------------------- VEIP

TEST(VeipPort, EachFieldAlone)
{
    Part<Veip> veip{getdiff_GPonVeipPort};
    veip.before.multicast_enable = veip.after.multicast_enable = 2;
    expect_each_alone<Veip>(
        veip, {
                  {[](Veip& v) { v.multicast_enable = 0; }, "no veip multicast\n"},
                  {[](Veip& v) { v.multicast_enable = 1; }, "veip multicast\n"},
                  {[](Veip& v) { v.multicast_enable = 65535; }, "veip multicast\n"},
                  {[](Veip& v) { v.multicast_port_settings.upstream_igmp_vid = 30; }, "veip upstream vid \"30\"\n"},
              });
}

TEST(VeipPort, SwitchComesBeforeTheClientSettings)
{
    Part<Veip> veip{getdiff_GPonVeipPort};
    veip.after.multicast_enable = 1;
    veip.after.multicast_port_settings.max_groups = 64;
    EXPECT_EQ(veip.elements(), (Elements{"", "veip multicast", "", "veip max groups \"64\""}));
}

TEST(VeipPort, DumpShowsEveryField)
{
    Part<Veip> veip{getdiff_GPonVeipPort};
    veip.all = 1;
    EXPECT_EQ(veip.script(), "no veip multicast\n"
                             "veip upstream vid \"0\"\n"
                             "veip upstream priority \"0\"\n"
                             "veip upstream tag-control pass\n"
                             "veip downstream vid \"0\"\n"
                             "veip downstream priority \"0\"\n"
                             "veip downstream tag-control pass\n"
                             "veip max groups \"0\"\n"
                             "veip max bandwidth \"0\"\n");
}

// ------------------------------------------------------------------------------------------------------------- profile

class PortsProfile : public testing::Test {
  protected:
    PortsProfile() { diff.key[1] = 9; }

    ProfileDiff<Profile> diff{getdiff_GPonProfileOntPorts, "ports-view"};
};

TEST_F(PortsProfile, EveryPartInOrder)
{
    put(diff.after.description, "four ports");
    diff.after.multicast_ip_version = 2;
    diff.after.igmp_settings.igmp_version = 2;
    diff.after.igmp_settings.multicast_dynamic_entry[12].vlan_id = 30;
    diff.after.mld_settings.mld_version = 1;
    diff.after.mld_settings.multicast_dynamic_entry_mld[1].vlan_id = 31;
    diff.after.veip.multicast_enable = 1;
    diff.after.port[0].multicast_port_settings.upstream_igmp_vid = 30;
    diff.after.port[3].bridge_group = 1;
    EXPECT_EQ(diff.elements(), behind("", "description \"four ports\"\n"
                                          "multicast ip version dual-stack\n"
                                          "igmp version \"2\"\n"
                                          "igmp multicast dynamic-entry   12 vid \"30\"\n"
                                          "mld version \"1\"\n"
                                          "mld multicast dynamic-entry    1 vid \"31\"\n"
                                          "veip multicast\n"
                                          "port    0 igmp upstream vid \"30\"\n"
                                          "port    3 bridge group \"1\"\n"));
    EXPECT_EQ(diff.key[0], 5);
    EXPECT_EQ(diff.key[1], 3);
}

TEST_F(PortsProfile, EachPartAlone)
{
    expect_each_alone<Profile>(
        diff,
        {
            {[](Profile& p) { put(p.description, "four ports"); }, "description \"four ports\"\n"},
            {[](Profile& p) { p.multicast_ip_version = 1; }, "multicast ip version ipv6\n"},
            {[](Profile& p) { p.multicast_ip_version = 65535; }, "multicast ip version unknown\n"},
            {[](Profile& p) { p.igmp_settings.last_member_query_interval = 10; }, "igmp query last-member \"10\"\n"},
            {[](Profile& p) { p.mld_settings.robustness = 2; }, "mld robustness \"2\"\n"},
            {[](Profile& p) { p.veip.multicast_port_settings.upstream_igmp_vid = 30; }, "veip upstream vid \"30\"\n"},
            {[](Profile& p) { p.port[1].speed = 1; }, "port    1 speed \"10m\"\n"},
            {[](Profile& p) { p.port[2].shaper_upstream.enable = 1; }, "port    2 shaper upstream\n"},
            {[](Profile& p) { std::memset(&p.port[2].poe, 0xFF, sizeof p.port[2].poe); }, ""},
            {[](Profile& p) { p.revision = 9; }, ""},
        });
}

TEST_F(PortsProfile, WalkOfThePortsLeavesItsLastIndex)
{
    diff.after.revision = 9;
    EXPECT_EQ(diff.elements(), Elements{});
    EXPECT_EQ(diff.key[1], 3);
}

TEST_F(PortsProfile, DumpShowsEveryPartOfEqualProfiles)
{
    diff.all = 1;
    const Elements elements = diff.elements();
    Elements lines;
    for (std::size_t i = 1; i < elements.size(); i += 2) {
        lines.push_back(elements[i]);
    }
    // Head 2 and version 1; IGMP 8 and 20 entries of 2; MLD 8 and 20 entries of 6; VEIP 9; 4 ports of 20.
    ASSERT_EQ(lines.size(), 3U + 48U + 128U + 9U + 80U);
    EXPECT_EQ(lines[0], "name \"gold\"");
    EXPECT_EQ(lines[1], "description \"\"");
    EXPECT_EQ(lines[2], "multicast ip version ipv4");
    EXPECT_EQ(lines[3], "igmp version \"0\"");
    EXPECT_EQ(lines[50], "no igmp multicast dynamic-entry   19 group");
    EXPECT_EQ(lines[51], "mld version \"0\"");
    EXPECT_EQ(lines[178], "mld multicast dynamic-entry   19 preview-reset-time \"0\"");
    EXPECT_EQ(lines[179], "no veip multicast");
    EXPECT_EQ(lines[188], "port    0 speed \"auto\"");
    EXPECT_EQ(lines[267], "port    3 shaper upstream peak-rate \"0\"");
    EXPECT_EQ(diff.key[1], 3);
}

TEST_F(PortsProfile, PartsEnterTheViewOfTheProfile)
{
    Session session;
    session.orig->pon.profiles_ont.ports[3].exist = 1;
    put(session.orig->pon.profiles_ont.ports[3].name, "four");
    session.open();

    Part<Uni> port{getdiff_GPonUniPort};
    port.view = "root";
    port.after.remove_tag = 1;
    EXPECT_EQ(port.script(), "configure terminal\nprofile ports \"four\"\nport    2 remove-tag\n");

    Part<Veip> veip{getdiff_GPonVeipPort};
    veip.view = "root";
    veip.after.multicast_enable = 1;
    EXPECT_EQ(veip.script(), "configure terminal\nprofile ports \"four\"\nveip multicast\n");

    Part<Shaping> shaper{getdiff_GPonUniShapingUpstream};
    shaper.view = "root";
    shaper.after.enable = 1;
    EXPECT_EQ(shaper.script(), "configure terminal\nprofile ports \"four\"\nport    2 shaper upstream\n");

    Part<Client> client{getdiff_GPonMulticastClientPortSettings, "port[$ID1]"};
    client.view = "root";
    client.after.max_groups = 1;
    EXPECT_EQ(client.script(), "configure terminal\nprofile ports \"four\"\nport    2 igmp max groups \"1\"\n");
}

} // namespace
