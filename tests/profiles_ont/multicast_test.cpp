#include "tests/profiles_ont/profile_test.h"

namespace {

using Igmp = GPonIgmpSettings;
using Mld = GPonMldSettings;
using Entry = GPonMulticastDynamicEntry;
using EntryV6 = GPonMulticastDynamicEntryV6;

/// The settings of ports profile 3, while the script stands in its view.
class Multicast : public testing::Test {
  protected:
    Multicast()
    {
        for (DiffRun* run : {static_cast<DiffRun*>(&igmp), static_cast<DiffRun*>(&mld), static_cast<DiffRun*>(&entry),
                             static_cast<DiffRun*>(&entry_v6)}) {
            run->view = "ports-view";
            run->view_key = run->key[0] = 3;
            run->key[1] = 11;
        }
    }

    Diff<Igmp> igmp{getdiff_GPonIgmpSettings};
    Diff<Mld> mld{getdiff_GPonMldSettings};
    Diff<Entry> entry{getdiff_GPonMulticastDynamicEntry};
    Diff<EntryV6> entry_v6{getdiff_GPonMulticastDynamicEntryV6};
};

/// ff3e::<last>
void put_group(GIPV6Addr_t& address, int last)
{
    put(address, {0xFF, 0x3E, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, last});
}

TEST_F(Multicast, EveryIgmpFieldInOrder)
{
    igmp.after.igmp_version = 3;
    igmp.after.igmp_mode = 1;
    igmp.after.immediate_leave = 1;
    igmp.after.robustness = 2;
    put(igmp.after.querier_ip, {192, 0, 2, 1});
    igmp.after.query_interval = 125;
    igmp.after.query_max_response_time = 100;
    igmp.after.last_member_query_interval = 10;
    igmp.after.multicast_dynamic_entry[0].vlan_id = 30;
    put(igmp.after.multicast_dynamic_entry[19].first_group_ip, {224, 0, 1, 1});
    EXPECT_EQ(igmp.elements(), behind("", "igmp version \"3\"\n"
                                          "igmp mode \"snooping-with-proxy-reporting\"\n"
                                          "igmp immediate-leave\n"
                                          "igmp robustness \"2\"\n"
                                          "igmp querier \"192.0.2.1\"\n"
                                          "igmp query interval \"125\"\n"
                                          "igmp query response \"100\"\n"
                                          "igmp query last-member \"10\"\n"
                                          "igmp multicast dynamic-entry    0 vid \"30\"\n"
                                          "igmp multicast dynamic-entry   19 group \"224.0.1.1\" \"0.0.0.0\"\n"));
    EXPECT_EQ(igmp.key[0], 3);
    EXPECT_EQ(igmp.key[1], 19);
}

TEST_F(Multicast, EachIgmpFieldAlone)
{
    expect_each_alone<Igmp>(
        igmp,
        {
            {[](Igmp& s) { s.igmp_version = 255; }, "igmp version \"255\"\n"},
            {[](Igmp& s) { s.igmp_mode = 2; }, "igmp mode \"proxy\"\n"},
            {[](Igmp& s) { s.igmp_mode = 65535; }, "igmp mode \"unknown\"\n"},
            {[](Igmp& s) { s.immediate_leave = 2; }, "igmp immediate-leave\n"},
            {[](Igmp& s) { s.immediate_leave = 65535; }, "igmp immediate-leave\n"},
            {[](Igmp& s) { s.robustness = 255; }, "igmp robustness \"255\"\n"},
            {[](Igmp& s) { s.querier_ip[3] = 255; }, "igmp querier \"0.0.0.255\"\n"},
            {[](Igmp& s) { s.query_interval = 4294967295U; }, "igmp query interval \"4294967295\"\n"},
            {[](Igmp& s) { s.query_max_response_time = 4294967295U; }, "igmp query response \"4294967295\"\n"},
            {[](Igmp& s) { s.last_member_query_interval = 4294967295U; }, "igmp query last-member \"4294967295\"\n"},
        });
}

TEST_F(Multicast, IgmpImmediateLeaveSwitchedOff)
{
    igmp.before.immediate_leave = 2;
    EXPECT_EQ(igmp.script(), "no igmp immediate-leave\n");
}

TEST_F(Multicast, IgmpEntryIsNamedByItsIndexAndShowsBothEndsOfItsRange)
{
    for (Igmp* settings : {&igmp.before, &igmp.after}) {
        settings->multicast_dynamic_entry[4].vlan_id = 30;
        put(settings->multicast_dynamic_entry[4].first_group_ip, {224, 0, 1, 1});
        put(settings->multicast_dynamic_entry[4].last_group_ip, {224, 0, 1, 9});
    }
    put(igmp.after.multicast_dynamic_entry[4].last_group_ip, {224, 0, 1, 200});
    EXPECT_EQ(igmp.script(), "igmp multicast dynamic-entry    4 group \"224.0.1.1\" \"224.0.1.200\"\n");
}

TEST_F(Multicast, EveryMldFieldInOrder)
{
    mld.after.mld_version = 2;
    mld.after.mld_mode = 2;
    mld.after.immediate_leave = 1;
    mld.after.robustness = 3;
    put(mld.after.querier_ipv6, {0x20, 0x01, 0x0D, 0xB8, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 1});
    mld.after.query_interval = 125;
    mld.after.query_max_response_time = 100;
    mld.after.last_member_query_interval = 10;
    mld.after.multicast_dynamic_entry_mld[0].vlan_id = 31;
    mld.after.multicast_dynamic_entry_mld[19].preview_length = 5;
    EXPECT_EQ(mld.elements(), behind("", "mld version \"2\"\n"
                                         "mld mode \"proxy\"\n"
                                         "mld immediate-leave\n"
                                         "mld robustness \"3\"\n"
                                         "mld querier \"2001:db8::1\"\n"
                                         "mld query interval \"125\"\n"
                                         "mld query response \"100\"\n"
                                         "mld query last-member \"10\"\n"
                                         "mld multicast dynamic-entry    0 vid \"31\"\n"
                                         "mld multicast dynamic-entry   19 preview-length \"5\"\n"));
    EXPECT_EQ(mld.key[0], 3);
    EXPECT_EQ(mld.key[1], 19);
}

TEST_F(Multicast, EachMldFieldAlone)
{
    expect_each_alone<Mld>(
        mld, {
                 {[](Mld& s) { s.mld_version = 255; }, "mld version \"255\"\n"},
                 {[](Mld& s) { s.mld_mode = 1; }, "mld mode \"snooping-with-proxy-reporting\"\n"},
                 {[](Mld& s) { s.mld_mode = 65535; }, "mld mode \"unknown\"\n"},
                 {[](Mld& s) { s.immediate_leave = 2; }, "mld immediate-leave\n"},
                 {[](Mld& s) { s.robustness = 255; }, "mld robustness \"255\"\n"},
                 {[](Mld& s) { s.querier_ipv6[15] = 1; }, "mld querier \"::1\"\n"},
                 {[](Mld& s) { std::memset(s.querier_ipv6, 0xFF, sizeof s.querier_ipv6); },
                  "mld querier \"ffff:ffff:ffff:ffff:ffff:ffff:ffff:ffff\"\n"},
                 {[](Mld& s) { s.query_interval = 4294967295U; }, "mld query interval \"4294967295\"\n"},
                 {[](Mld& s) { s.query_max_response_time = 4294967295U; }, "mld query response \"4294967295\"\n"},
                 {[](Mld& s) { s.last_member_query_interval = 4294967295U; }, "mld query last-member \"4294967295\"\n"},
             });
}

TEST_F(Multicast, MldImmediateLeaveSwitchedOff)
{
    mld.before.immediate_leave = 65535;
    EXPECT_EQ(mld.script(), "no mld immediate-leave\n");
}

TEST_F(Multicast, EachFieldOfAnEntryAlone)
{
    expect_each_alone<Entry>(
        entry, {
                   {[](Entry& e) { e.vlan_id = 4094; }, "igmp multicast dynamic-entry   11 vid \"4094\"\n"},
                   {[](Entry& e) { e.vlan_id = -1; }, "igmp multicast dynamic-entry   11 vid \"-1\"\n"},
                   {[](Entry& e) { e.vlan_id = -32768; }, "igmp multicast dynamic-entry   11 vid \"-32768\"\n"},
                   {[](Entry& e) {
                        put(e.first_group_ip, {224, 0, 1, 1});
                    },
                    "igmp multicast dynamic-entry   11 group \"224.0.1.1\" \"0.0.0.0\"\n"},
                   {[](Entry& e) {
                        put(e.last_group_ip, {255, 255, 255, 255});
                    },
                    "igmp multicast dynamic-entry   11 group \"0.0.0.0\" \"255.255.255.255\"\n"},
               });
}

TEST_F(Multicast, EachFieldOfAnMldEntryAlone)
{
    expect_each_alone<EntryV6>(
        entry_v6, {
                      {[](EntryV6& e) { e.vlan_id = 4094; }, "mld multicast dynamic-entry   11 vid \"4094\"\n"},
                      {[](EntryV6& e) { e.vlan_id = -1; }, "mld multicast dynamic-entry   11 vid \"-1\"\n"},
                      {[](EntryV6& e) { put_group(e.first_group_ip, 1); },
                       "mld multicast dynamic-entry   11 group \"ff3e::1\" \"::\"\n"},
                      {[](EntryV6& e) { put_group(e.last_group_ip, 9); },
                       "mld multicast dynamic-entry   11 group \"::\" \"ff3e::9\"\n"},
                      {[](EntryV6& e) { e.preview_length = 65535; },
                       "mld multicast dynamic-entry   11 preview-length \"65535\"\n"},
                      {[](EntryV6& e) { e.preview_repeat_time = 65535; },
                       "mld multicast dynamic-entry   11 preview-repeat-time \"65535\"\n"},
                      {[](EntryV6& e) { e.preview_repeat_count = 65535; },
                       "mld multicast dynamic-entry   11 preview-repeat-count \"65535\"\n"},
                      {[](EntryV6& e) { e.preview_reset_time = 65535; },
                       "mld multicast dynamic-entry   11 preview-reset-time \"65535\"\n"},
                  });
}

TEST_F(Multicast, EveryFieldOfAnEntryInOrder)
{
    entry.after.vlan_id = 30;
    put(entry.after.first_group_ip, {224, 0, 1, 1});
    put(entry.after.last_group_ip, {224, 0, 1, 9});
    EXPECT_EQ(entry.script(), "igmp multicast dynamic-entry   11 vid \"30\"\n"
                              "igmp multicast dynamic-entry   11 group \"224.0.1.1\" \"224.0.1.9\"\n");
    entry_v6.after.vlan_id = 31;
    put_group(entry_v6.after.first_group_ip, 1);
    put_group(entry_v6.after.last_group_ip, 255);
    entry_v6.after.preview_length = 1;
    entry_v6.after.preview_repeat_time = 2;
    entry_v6.after.preview_repeat_count = 3;
    entry_v6.after.preview_reset_time = 4;
    EXPECT_EQ(entry_v6.script(), "mld multicast dynamic-entry   11 vid \"31\"\n"
                                 "mld multicast dynamic-entry   11 group \"ff3e::1\" \"ff3e::ff\"\n"
                                 "mld multicast dynamic-entry   11 preview-length \"1\"\n"
                                 "mld multicast dynamic-entry   11 preview-repeat-time \"2\"\n"
                                 "mld multicast dynamic-entry   11 preview-repeat-count \"3\"\n"
                                 "mld multicast dynamic-entry   11 preview-reset-time \"4\"\n");
}

TEST_F(Multicast, DumpRemovesWhatIsTheSameInAnEntryAndShowsWhatIsNew)
{
    entry.all = 1;
    EXPECT_EQ(entry.script(), "no igmp multicast dynamic-entry   11 vid\n"
                              "no igmp multicast dynamic-entry   11 group\n");
    entry.after.vlan_id = 30;
    EXPECT_EQ(entry.script(), "igmp multicast dynamic-entry   11 vid \"30\"\n"
                              "no igmp multicast dynamic-entry   11 group\n");
    entry.before.vlan_id = 30;
    put(entry.after.last_group_ip, {224, 0, 1, 9});
    EXPECT_EQ(entry.script(), "no igmp multicast dynamic-entry   11 vid\n"
                              "igmp multicast dynamic-entry   11 group \"0.0.0.0\" \"224.0.1.9\"\n");

    entry_v6.all = 1;
    put_group(entry_v6.after.first_group_ip, 1);
    EXPECT_EQ(entry_v6.script(), "no mld multicast dynamic-entry   11 vid\n"
                                 "mld multicast dynamic-entry   11 group \"ff3e::1\" \"::\"\n"
                                 "mld multicast dynamic-entry   11 preview-length \"0\"\n"
                                 "mld multicast dynamic-entry   11 preview-repeat-time \"0\"\n"
                                 "mld multicast dynamic-entry   11 preview-repeat-count \"0\"\n"
                                 "mld multicast dynamic-entry   11 preview-reset-time \"0\"\n");
}

TEST_F(Multicast, DumpOfEqualIgmpSettingsRemovesEveryEntry)
{
    for (const int common : {0, 1, 2}) {
        igmp.all = 1;
        igmp.common = common;
        std::string expected = "igmp version \"0\"\n"
                               "igmp mode \"snooping\"\n"
                               "no igmp immediate-leave\n"
                               "igmp robustness \"0\"\n"
                               "igmp querier \"0.0.0.0\"\n"
                               "igmp query interval \"0\"\n"
                               "igmp query response \"0\"\n"
                               "igmp query last-member \"0\"\n";
        for (int i = 0; i < 20; ++i) {
            const std::string number = std::string(i < 10 ? "   " : "  ") + std::to_string(i);
            expected += "no igmp multicast dynamic-entry " + number + " vid\n";
            expected += "no igmp multicast dynamic-entry " + number + " group\n";
        }
        EXPECT_EQ(igmp.script(), expected);
        EXPECT_EQ(igmp.key[1], 19);
    }
}

TEST_F(Multicast, DumpOfEqualMldSettingsRemovesEveryEntryAndShowsItsPreview)
{
    mld.all = 1;
    std::string expected = "mld version \"0\"\n"
                           "mld mode \"snooping\"\n"
                           "no mld immediate-leave\n"
                           "mld robustness \"0\"\n"
                           "mld querier \"::\"\n"
                           "mld query interval \"0\"\n"
                           "mld query response \"0\"\n"
                           "mld query last-member \"0\"\n";
    for (int i = 0; i < 20; ++i) {
        const std::string lead =
            std::string("mld multicast dynamic-entry ") + (i < 10 ? "   " : "  ") + std::to_string(i);
        expected += "no " + lead + " vid\n";
        expected += "no " + lead + " group\n";
        expected += lead + " preview-length \"0\"\n";
        expected += lead + " preview-repeat-time \"0\"\n";
        expected += lead + " preview-repeat-count \"0\"\n";
        expected += lead + " preview-reset-time \"0\"\n";
    }
    EXPECT_EQ(mld.script(), expected);
    EXPECT_EQ(mld.key[1], 19);
}

TEST_F(Multicast, CommandsEnterTheViewOfThePortsProfile)
{
    Session session;
    session.cfg->pon.profiles_ont.ports[3].exist = 1;
    put(session.cfg->pon.profiles_ont.ports[3].name, "four");
    session.open();
    for (DiffRun* run : {static_cast<DiffRun*>(&igmp), static_cast<DiffRun*>(&mld), static_cast<DiffRun*>(&entry),
                         static_cast<DiffRun*>(&entry_v6)}) {
        run->view = "root";
    }
    igmp.after.robustness = 2;
    EXPECT_EQ(igmp.script(), "configure terminal\nprofile ports \"four\"\nigmp robustness \"2\"\n");
    mld.after.robustness = 2;
    EXPECT_EQ(mld.script(), "configure terminal\nprofile ports \"four\"\nmld robustness \"2\"\n");
    entry.after.vlan_id = 1;
    EXPECT_EQ(entry.script(), "configure terminal\nprofile ports \"four\"\n"
                              "igmp multicast dynamic-entry   11 vid \"1\"\n");
    entry_v6.after.preview_reset_time = 1;
    EXPECT_EQ(entry_v6.script(), "configure terminal\nprofile ports \"four\"\n"
                                 "mld multicast dynamic-entry   11 preview-reset-time \"1\"\n");
}

} // namespace
