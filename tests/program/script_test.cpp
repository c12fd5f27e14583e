/// Whether declarations of terminal VLANs change anything; program_test.cpp tests moves between views.

#include "tool/account/replay.h"

#include <cstring>
#include <gtest/gtest.h>
#include <memory>
#include <string>

namespace {

class Judgement : public testing::Test {
  protected:
    Judgement()
    {
        GVlanTagEx* const vlans = orig->pon.network.terminal_vlan;
        vlans[0].exists = 1;
        std::memcpy(vlans[0].name, "iptv", 4);
        vlans[1].exists = 1;
        std::memcpy(vlans[1].name, "sixteen-letters!", 16);
        std::memcpy(vlans[2].name, "freed", 5);
        vlans[3].exists = 1;
        std::memcpy(vlans[4].name, "x\" vid \"3", 9);
        vlans[4].exists = 1;
    }
    bool changes_nothing(const std::string& script) const
    {
        return pondiff::tool::Replay(*orig, script).changes_nothing();
    }

    std::unique_ptr<GCfg> orig{new GCfg{}};
};

TEST_F(Judgement, DeclarationOfAKnownNameChangesNothing)
{
    EXPECT_TRUE(changes_nothing("configure terminal\ngpon network terminal-vlan \"iptv\"\n"
                                "gpon network terminal-vlan \"sixteen-letters!\"\n"));
    EXPECT_TRUE(changes_nothing("configure terminal\ngpon network terminal-vlan \"iptv\"\nexit\ncommit\n"));
    EXPECT_TRUE(
        changes_nothing("configure terminal\ngpon network terminal-vlan \"\"\n")); // there is one without a name
}

TEST_F(Judgement, DeclarationOfAnotherNameDoes)
{
    EXPECT_FALSE(changes_nothing("configure terminal\ngpon network terminal-vlan \"ipt\"\n"));
    EXPECT_FALSE(changes_nothing("configure terminal\ngpon network terminal-vlan \"freed\"\n"));
    EXPECT_FALSE(changes_nothing("configure terminal\ngpon network terminal-vlan \"sixteen-letters\"\n"));
}

TEST_F(Judgement, SettingsOfAKnownNameAreCommands)
{
    EXPECT_FALSE(changes_nothing("configure terminal\ngpon network terminal-vlan \"iptv\" vid \"30\"\n"));
    EXPECT_FALSE(changes_nothing("configure terminal\nno gpon network terminal-vlan \"iptv\"\n"));
    // There is a VLAN whose name reads like this one's command.
    EXPECT_FALSE(changes_nothing("configure terminal\ngpon network terminal-vlan \"x\" vid \"3\"\n"));
}

TEST_F(Judgement, DeclarationsBelongToTheConfigureView)
{
    EXPECT_FALSE(changes_nothing("gpon network terminal-vlan \"iptv\"\n"));
    EXPECT_FALSE(
        changes_nothing("configure terminal\ninterface gpon-port    0\ngpon network terminal-vlan \"iptv\"\n"));
}

} // namespace
