#include "tests/support/diff.h"

namespace {

class TerminalVlan : public testing::Test {
  protected:
    TerminalVlan()
    {
        for (GVlanTagEx* vlan : {&diff.before, &diff.after}) {
            vlan->exists = 1;
            put(vlan->name, "video");
            vlan->tag.vid = 100;
            vlan->tag.prio = 5;
        }
    }

    Diff<GVlanTagEx> diff{getdiff_GVlanTagEx};
};

TEST_F(TerminalVlan, RemovedIsOneLineWithoutNavigation)
{
    diff.after.exists = 0;
    EXPECT_EQ(diff.elements(), Elements{"no gpon network terminal-vlan \"video\""});
}

TEST_F(TerminalVlan, RemovedKeepsPlaceholdersInItsName)
{
    put(diff.before.name, "v$ID0");
    diff.after.exists = 0;
    EXPECT_EQ(diff.elements(), Elements{"no gpon network terminal-vlan \"v$ID0\""});
}

TEST_F(TerminalVlan, RemovedWithoutANameSaysNothing)
{
    put(diff.before.name, "");
    diff.after.exists = 0;
    EXPECT_EQ(diff.elements(), Elements{});
}

TEST_F(TerminalVlan, NewWithTheOldSlotsTagIsNamed)
{
    diff.before.exists = 0;
    put(diff.before.name, "");
    EXPECT_EQ(diff.script(), "configure terminal\ngpon network terminal-vlan \"video\"\n");
}

TEST_F(TerminalVlan, NewWithItsOwnTag)
{
    diff.before = GVlanTagEx{};
    EXPECT_EQ(diff.script(), "configure terminal\n"
                             "gpon network terminal-vlan \"video\" vid \"100\"\n"
                             "gpon network terminal-vlan \"video\" cos \"5\"\n");
}

TEST_F(TerminalVlan, NewWithAVidOfItsOwnAlone)
{
    diff.before = GVlanTagEx{};
    diff.before.tag.prio = 5;
    EXPECT_EQ(diff.script(), "configure terminal\ngpon network terminal-vlan \"video\" vid \"100\"\n");
}

TEST_F(TerminalVlan, RenameEmitsTheNewNameAndLeavesTheOld)
{
    put(diff.after.name, "iptv");
    EXPECT_EQ(diff.script(), "configure terminal\ngpon network terminal-vlan \"iptv\"\n");
}

TEST_F(TerminalVlan, RenameWithAnotherPriorityIsNamedByIt)
{
    put(diff.after.name, "iptv");
    diff.after.tag.prio = 255;
    EXPECT_EQ(diff.script(), "configure terminal\ngpon network terminal-vlan \"iptv\" cos \"255\"\n");
}

TEST_F(TerminalVlan, EthertypeHasNoCommand)
{
    diff.after.tag.ethertype = 0x88A8;
    EXPECT_EQ(diff.elements(), Elements{});
}

TEST_F(TerminalVlan, NameThatFillsItsArray)
{
    put(diff.after.name, "sixteen-letters!");
    diff.before.tag.ethertype = diff.after.tag.ethertype = 0x4141; // what stands behind the name
    EXPECT_EQ(diff.script(), "configure terminal\ngpon network terminal-vlan \"sixteen-letters!\"\n");
}

TEST_F(TerminalVlan, RemovedWhoseNameFillsItsArray)
{
    put(diff.before.name, "sixteen-letters!");
    diff.before.tag.ethertype = 0x4141;
    diff.after.exists = 0;
    EXPECT_EQ(diff.elements(), Elements{"no gpon network terminal-vlan \"sixteen-letters!\""});
}

TEST_F(TerminalVlan, TagUnderANameThatFillsItsArray)
{
    put(diff.after.name, "sixteen-letters!");
    diff.after.tag.ethertype = 0x4141;
    diff.after.tag.vid = 7;
    EXPECT_EQ(diff.script(), "configure terminal\ngpon network terminal-vlan \"sixteen-letters!\" vid \"7\"\n");
}

TEST_F(TerminalVlan, ForcedByTheCommonSettingsShowsTheTagButNotTheBareName)
{
    diff.all = 1;
    EXPECT_EQ(diff.elements(), Elements{});
    diff.common = 1;
    EXPECT_EQ(diff.script(), "configure terminal\n"
                             "gpon network terminal-vlan \"video\" vid \"100\"\n"
                             "gpon network terminal-vlan \"video\" cos \"5\"\n");
}

TEST_F(TerminalVlan, PlaceholderInTheNewNameIsSubstituted)
{
    diff.key[0] = 3;
    put(diff.after.name, "v$ID0");
    EXPECT_EQ(diff.script(), "configure terminal\ngpon network terminal-vlan \"v   3\"\n");
}

} // namespace
