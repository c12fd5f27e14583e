#include "tests/profiles_ont/profile_test.h"

namespace {

using Profile = GPonProfileOntCrossConnect;

class CrossConnect : public testing::Test {
  protected:
    CrossConnect()
    {
        name_terminal_vlan(*session.cfg, 0, "iptv");
        name_terminal_vlan(*session.cfg, 7, "");
        name_terminal_vlan(*session.cfg, 31, "voip");
        name_terminal_vlan(*session.orig, 2, "gone");
        session.open();
        // No field of the old profile has a value that the tests give to the new one.
        diff.before.outer_vid = diff.before.inner_vid = diff.before.u_vid = 42;
        diff.before.outer_cos = diff.before.u_cos = 42;
        diff.before.mac_table_entry_limit = 42;
        diff.after = diff.before;
    }

    static void name_terminal_vlan(GCfg& configuration, int slot, const char* name)
    {
        configuration.pon.network.terminal_vlan[slot].exists = 1;
        put(configuration.pon.network.terminal_vlan[slot].name, name);
    }

    Session session;
    ProfileDiff<Profile> diff{getdiff_GPonProfileOntCrossConnect, "cross-connect-view"};
};

TEST_F(CrossConnect, EveryFieldInOrder)
{
    put(diff.after.description, "triple play");
    diff.after.model = 1;
    diff.after.bridge_group = 10;
    diff.after.tag_mode = 2;
    diff.after.outer_vid = 100;
    diff.after.outer_cos = 5;
    diff.after.inner_vid = 200;
    diff.after.u_vid = 300;
    diff.after.u_cos = 6;
    diff.after.mac_table_entry_limit = 16;
    diff.after.type = 3;
    diff.after.iphost_eid = 1;
    diff.after.priority_queue = 7;
    EXPECT_EQ(diff.elements(), behind("", "description \"triple play\"\n"
                                          "bridge\n"
                                          "bridge group \"10\"\n"
                                          "tag-mode double-tagged\n"
                                          "outer vid \"100\"\n"
                                          "outer cos \"5\"\n"
                                          "inner vid \"200\"\n"
                                          "user vid \"300\"\n"
                                          "user cos \"6\"\n"
                                          "mac-table-limit \"16\"\n"
                                          "type \"multicast\"\n"
                                          "iphost \"1\"\n"
                                          "priority \"7\"\n"));
}

TEST_F(CrossConnect, EachFieldAlone)
{
    expect_each_alone<Profile>(diff,
                               {
                                   {[](Profile& p) { put(p.description, "internet"); }, "description \"internet\"\n"},
                                   {[](Profile& p) { p.bridge_group = 255; }, "bridge group \"255\"\n"},
                                   {[](Profile& p) { p.tag_mode = 1; }, "tag-mode single-tagged\n"},
                                   {[](Profile& p) { p.tag_mode = 3; }, "tag-mode tunnel\n"},
                                   {[](Profile& p) { p.tag_mode = 4; }, "tag-mode selective-tunnel\n"},
                                   {[](Profile& p) { p.tag_mode = 65535; }, "tag-mode unknown\n"},
                                   {[](Profile& p) { p.type = 1; }, "type \"management\"\n"},
                                   {[](Profile& p) { p.type = 2; }, "type \"voice\"\n"},
                                   {[](Profile& p) { p.type = 9; }, "type \"unknown\"\n"},
                                   {[](Profile& p) { p.iphost_eid = 65535; }, "iphost \"65535\"\n"},
                                   {[](Profile& p) { p.priority_queue = 255; }, "priority \"255\"\n"},
                                   {[](Profile& p) { p.revision = 9; }, ""},
                               });
}

TEST_F(CrossConnect, ChangedModelIsBridgeWhateverItBecomes)
{
    for (const std::uint16_t model : on_values) {
        diff.before.model = 0;
        diff.after.model = model;
        EXPECT_EQ(diff.script(), "bridge\n");
        std::swap(diff.before, diff.after);
        EXPECT_EQ(diff.script(), "bridge\n");
        diff.before = diff.after;
    }
}

TEST_F(CrossConnect, OuterVid)
{
    expect_each_alone<Profile>(diff, {
                                         {[](Profile& p) { p.outer_vid = -100; }, "outer vid terminal-vlan \"iptv\"\n"},
                                         {[](Profile& p) { p.outer_vid = -131; }, "outer vid terminal-vlan \"voip\"\n"},
                                         {[](Profile& p) { p.outer_vid = -107; }, "outer vid terminal-vlan \"\"\n"},
                                         {[](Profile& p) { p.outer_vid = -99; }, "outer vid \"-99\"\n"},
                                         {[](Profile& p) { p.outer_vid = -132; }, "outer vid \"-132\"\n"},
                                         {[](Profile& p) { p.outer_vid = -101; }, "outer vid \"-101\"\n"},
                                         {[](Profile& p) { p.outer_vid = -102; }, "outer vid \"-102\"\n"},
                                         {[](Profile& p) { p.outer_vid = 0; }, "outer vid \"0\"\n"},
                                         {[](Profile& p) { p.outer_vid = -1; }, "outer vid \"-1\"\n"},
                                         {[](Profile& p) { p.outer_vid = 100; }, "outer vid \"100\"\n"},
                                         {[](Profile& p) { p.outer_vid = 32767; }, "outer vid \"32767\"\n"},
                                         {[](Profile& p) { p.outer_vid = -32768; }, "outer vid \"-32768\"\n"},
                                     });
}

TEST_F(CrossConnect, InnerVid)
{
    expect_each_alone<Profile>(diff, {
                                         {[](Profile& p) { p.inner_vid = -100; }, "inner vid terminal-vlan \"iptv\"\n"},
                                         {[](Profile& p) { p.inner_vid = -131; }, "inner vid terminal-vlan \"voip\"\n"},
                                         {[](Profile& p) { p.inner_vid = -107; }, "inner vid terminal-vlan \"\"\n"},
                                         {[](Profile& p) { p.inner_vid = -99; }, "inner vid \"-99\"\n"},
                                         {[](Profile& p) { p.inner_vid = -132; }, "inner vid \"-132\"\n"},
                                         {[](Profile& p) { p.inner_vid = -101; }, "inner vid \"-101\"\n"},
                                         {[](Profile& p) { p.inner_vid = 0; }, "inner vid \"0\"\n"},
                                         {[](Profile& p) { p.inner_vid = 32767; }, "inner vid \"32767\"\n"},
                                         {[](Profile& p) { p.inner_vid = -32768; }, "inner vid \"-32768\"\n"},
                                     });
}

TEST_F(CrossConnect, UserVid)
{
    expect_each_alone<Profile>(diff, {
                                         {[](Profile& p) { p.u_vid = -100; }, "user vid terminal-vlan \"iptv\"\n"},
                                         {[](Profile& p) { p.u_vid = -131; }, "user vid terminal-vlan \"voip\"\n"},
                                         {[](Profile& p) { p.u_vid = -107; }, "user vid terminal-vlan \"\"\n"},
                                         {[](Profile& p) { p.u_vid = -99; }, "user vid \"-99\"\n"},
                                         {[](Profile& p) { p.u_vid = -132; }, "user vid \"-132\"\n"},
                                         {[](Profile& p) { p.u_vid = -101; }, "user vid \"-101\"\n"},
                                         {[](Profile& p) { p.u_vid = 0; }, "user vid untagged\n"},
                                         {[](Profile& p) { p.u_vid = 1; }, "user vid \"1\"\n"},
                                         {[](Profile& p) { p.u_vid = -1; }, "user vid \"-1\"\n"},
                                         {[](Profile& p) { p.u_vid = 255; }, "user vid \"255\"\n"},
                                         {[](Profile& p) { p.u_vid = 32767; }, "user vid \"32767\"\n"},
                                         {[](Profile& p) { p.u_vid = -32768; }, "user vid \"-32768\"\n"},
                                     });
}

TEST_F(CrossConnect, OuterCos)
{
    expect_each_alone<Profile>(diff, {
                                         {[](Profile& p) { p.outer_cos = 100; }, "outer cos terminal-vlan \"iptv\"\n"},
                                         {[](Profile& p) { p.outer_cos = 131; }, "outer cos terminal-vlan \"voip\"\n"},
                                         {[](Profile& p) { p.outer_cos = 107; }, "outer cos terminal-vlan \"\"\n"},
                                         {[](Profile& p) { p.outer_cos = 99; }, "outer cos \"99\"\n"},
                                         {[](Profile& p) { p.outer_cos = 132; }, "outer cos \"132\"\n"},
                                         {[](Profile& p) { p.outer_cos = 101; }, "outer cos \"101\"\n"},
                                         {[](Profile& p) { p.outer_cos = 0; }, "outer cos \"0\"\n"},
                                         {[](Profile& p) { p.outer_cos = 255; }, "outer cos \"255\"\n"},
                                     });
}

TEST_F(CrossConnect, UserCos)
{
    expect_each_alone<Profile>(diff, {
                                         {[](Profile& p) { p.u_cos = 100; }, "user cos terminal-vlan \"iptv\"\n"},
                                         {[](Profile& p) { p.u_cos = 131; }, "user cos terminal-vlan \"voip\"\n"},
                                         {[](Profile& p) { p.u_cos = 107; }, "user cos terminal-vlan \"\"\n"},
                                         {[](Profile& p) { p.u_cos = 99; }, "user cos \"99\"\n"},
                                         {[](Profile& p) { p.u_cos = 132; }, "user cos \"132\"\n"},
                                         {[](Profile& p) { p.u_cos = 101; }, "user cos \"101\"\n"},
                                         {[](Profile& p) { p.u_cos = 255; }, "user cos unused\n"},
                                         {[](Profile& p) { p.u_cos = 254; }, "user cos \"254\"\n"},
                                         {[](Profile& p) { p.u_cos = 0; }, "user cos \"0\"\n"},
                                     });
}

TEST_F(CrossConnect, MacTableLimitOf127IsNone)
{
    expect_each_alone<Profile>(
        diff, {
                  {[](Profile& p) { p.mac_table_entry_limit = 127; }, "no mac-table-limit\n"},
                  {[](Profile& p) { p.mac_table_entry_limit = 126; }, "mac-table-limit \"126\"\n"},
                  {[](Profile& p) { p.mac_table_entry_limit = 128; }, "mac-table-limit \"128\"\n"},
                  {[](Profile& p) { p.mac_table_entry_limit = 0; }, "mac-table-limit \"0\"\n"},
                  {[](Profile& p) { p.mac_table_entry_limit = 127 + 256; }, "mac-table-limit \"383\"\n"},
                  {[](Profile& p) { p.mac_table_entry_limit = 65535; }, "mac-table-limit \"65535\"\n"},
              });
}

TEST_F(CrossConnect, TerminalVlansOfTheOldConfigurationHaveNoNameHere)
{
    diff.after.outer_vid = -102;
    diff.after.u_cos = 102;
    EXPECT_EQ(diff.script(), "outer vid \"-102\"\nuser cos \"102\"\n");
}

TEST_F(CrossConnect, OutsideASessionReferencesAreNumbers)
{
    finalize_diff();
    diff.after.outer_vid = diff.after.inner_vid = diff.after.u_vid = -100;
    diff.after.outer_cos = diff.after.u_cos = 131;
    EXPECT_EQ(diff.script(), "outer vid \"-100\"\n"
                             "outer cos \"131\"\n"
                             "inner vid \"-100\"\n"
                             "user vid \"-100\"\n"
                             "user cos \"131\"\n");
}

TEST_F(CrossConnect, DumpShowsEveryFieldWhateverPartIsWanted)
{
    for (const int common : {0, 1, 2}) {
        diff.before = Profile{};
        diff.before.exist = 1;
        put(diff.before.name, "gold");
        diff.after = diff.before;
        diff.all = 1;
        diff.common = common;
        EXPECT_EQ(diff.script(), "name \"gold\"\n"
                                 "description \"\"\n"
                                 "bridge\n"
                                 "bridge group \"0\"\n"
                                 "tag-mode untagged\n"
                                 "outer vid \"0\"\n"
                                 "outer cos \"0\"\n"
                                 "inner vid \"0\"\n"
                                 "user vid untagged\n"
                                 "user cos \"0\"\n"
                                 "mac-table-limit \"0\"\n"
                                 "type \"general\"\n"
                                 "iphost \"0\"\n"
                                 "priority \"0\"\n");
    }
}

TEST_F(CrossConnect, DumpShowsReferencesAndSpecialValues)
{
    diff.after.outer_vid = -100;
    diff.after.outer_cos = 100;
    diff.after.inner_vid = -131;
    diff.after.u_vid = -100;
    diff.after.u_cos = 255;
    diff.after.mac_table_entry_limit = 127;
    diff.before = diff.after;
    diff.all = 1;
    EXPECT_EQ(diff.script(), "name \"gold\"\n"
                             "description \"\"\n"
                             "bridge\n"
                             "bridge group \"0\"\n"
                             "tag-mode untagged\n"
                             "outer vid terminal-vlan \"iptv\"\n"
                             "outer cos terminal-vlan \"iptv\"\n"
                             "inner vid terminal-vlan \"voip\"\n"
                             "user vid terminal-vlan \"iptv\"\n"
                             "user cos unused\n"
                             "no mac-table-limit\n"
                             "type \"general\"\n"
                             "iphost \"0\"\n"
                             "priority \"0\"\n");
}

TEST_F(CrossConnect, RemovedShowsItsDifferingFieldsAlone)
{
    diff.after.exist = 0;
    diff.after.bridge_group = 1;
    EXPECT_EQ(diff.script(), "bridge group \"1\"\n");
}

} // namespace
