#include "tests/support/diff.h"

namespace {

TEST(FullDiff, EqualConfigurationsGiveAnEmptyText)
{
    Session session;
    session.open();
    EXPECT_EQ(session.full_diff(), "");
}

TEST(FullDiff, ChangedHostnameAlone)
{
    Session session;
    put(session.cfg->system.network.hostname, "olt-17");
    session.open();
    EXPECT_EQ(session.full_diff(), "configure terminal\n"
                                   "hostname \"olt-17\"\n"
                                   "exit\n"
                                   "commit\n");
}

TEST(FullDiff, EndsAtTheTopLevelSoThatTheNextOneStartsThere)
{
    Session session;
    put(session.cfg->system.network.hostname, "olt-17");
    session.open();
    const std::string first = session.full_diff();
    EXPECT_EQ(session.full_diff(), first);
    EXPECT_STREQ(current_view.name, "root");
}

TEST(FullDiff, SystemPartComesFirst)
{
    Session session;
    session.cfg->pon.network.mac_age_time = 300;
    session.cfg->system.settings.ont_sn_format = 1;
    put(session.cfg->system.network.hostname, "olt-17");
    session.open();
    EXPECT_EQ(session.full_diff(), "configure terminal\n"
                                   "hostname \"olt-17\"\n"
                                   "cli ont-sn-format \"dense\"\n"
                                   "gpon network mac-age-time \"300\"\n"
                                   "exit\n"
                                   "commit\n");
}

TEST(FullDiff, ChangeWithoutACommandGivesAnEmptyText)
{
    Session session;
    session.cfg->pon.network.mcvlan = 100;
    session.cfg->system.network.revision = 7;
    session.open();
    EXPECT_EQ(session.full_diff(), "");
}

TEST(FullDiff, RemovedTerminalVlanAloneIsNotPrecededByNavigation)
{
    Session session;
    session.orig->pon.network.terminal_vlan[4].exists = 1;
    put(session.orig->pon.network.terminal_vlan[4].name, "video");
    session.open();
    EXPECT_EQ(session.full_diff(), "no gpon network terminal-vlan \"video\"\ncommit\n");
}

TEST(FullDiff, ValueWithALineFeedAddsItsLineAndNoMore)
{
    Session session;
    put(session.cfg->system.network.hostname, "\nolt");
    session.open();
    EXPECT_EQ(session.full_diff(), "configure terminal\nhostname \"\nolt\"\nexit\ncommit\n");
}

TEST(FullDiff, SystemPartIsNotForced)
{
    Session session;
    session.open(1, 0);
    EXPECT_EQ(session.full_diff().find("hostname"), std::string::npos);
    EXPECT_EQ(session.full_diff().find("gpon network"), std::string::npos);
}

TEST(FullDiff, CommonRecordsAloneByDefault)
{
    Session session;
    put(session.cfg->system.network.hostname, "olt-17");
    put(session.cfg->pon.ont[0].description, "kiosk");
    session.cfg->pon.ont[0].exist = 1;
    session.open(0, 1);
    EXPECT_EQ(session.full_diff(), "");
    session.cfg->system.settings.ont_sn_format = 1;
    session.cfg->pon.network.mac_age_time = 300;
    EXPECT_EQ(session.full_diff(), "configure terminal\n"
                                   "cli ont-sn-format \"dense\"\n"
                                   "gpon network mac-age-time \"300\"\n"
                                   "exit\n"
                                   "commit\n");
}

TEST(FullDiff, SwitchesAreStoredAndKept)
{
    Session session;
    session.open(5, 7);
    EXPECT_EQ(print_all, 5);
    EXPECT_EQ(print_common, 7);
    EXPECT_EQ(finalize_diff(), 0);
    EXPECT_EQ(print_all, 5);
    EXPECT_EQ(print_common, 7);
}

TEST(FullDiff, NullRecordsGiveWhatEqualOnesGive)
{
    Session session;
    session.open();
    EXPECT_EQ(taken(GetDiff(nullptr, session.cfg)), "");
    EXPECT_EQ(taken(GetDiff(session.orig, nullptr)), "");
    int key[10] = {};
    List<char> out;
    EXPECT_FALSE(getdiff_GCfg(nullptr, session.cfg, key, out));
    EXPECT_FALSE(getdiff_GPonCfg(session.orig ? &session.orig->pon : nullptr, nullptr, key, out));
    EXPECT_EQ(out.size(), 0);
}

TEST(FullDiff, WalkOnAListOfTheCallersKeepsEveryElement)
{
    Session session;
    put(session.cfg->system.network.hostname, "olt-17");
    session.cfg->system.network.dscp = 1;
    session.open();
    Diff walk{getdiff_GCfg};
    walk.before = *session.orig;
    walk.after = *session.cfg;
    EXPECT_EQ(walk.elements(), (Elements{"configure terminal", "hostname \"olt-17\"", "", "management dscp \"1\""}));
}

TEST(FullDiff, OutsideASessionTheScriptStartsAtTheTopLevel)
{
    Session session;
    put(session.cfg->system.network.hostname, "olt-17");
    print_common = 0;
    current_view = {};
    EXPECT_EQ(session.full_diff(), "configure terminal\nhostname \"olt-17\"\nexit\ncommit\n");
}

} // namespace
