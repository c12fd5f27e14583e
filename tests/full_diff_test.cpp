#include "tests/support/diff.h"

namespace {

TEST(FullDiff, EqualConfigurationsGiveAnEmptyText)
{
    Session session;
    session.open();
    EXPECT_EQ(session.full_diff(), "");
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

TEST(FullDiff, ChangeWithoutACommandGivesAnEmptyText)
{
    Session session;
    session.cfg->pon.network.mcvlan = 100;
    session.cfg->system.network.revision = 7;
    session.open();
    EXPECT_EQ(session.full_diff(), "");
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

// Taken before any test sets them.
const int initial_print_all = print_all;
const int initial_print_common = print_common;

TEST(FullDiff, SwitchesSayAtFirstWhatIsUsualForASession)
{
    EXPECT_EQ(initial_print_all, 0) << "nothing is forced";
    EXPECT_EQ(initial_print_common, 1) << "the common records alone";
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

TEST(FullDiff, CommonRecordsAreForcedByPrintAll)
{
    Session session;
    session.cfg->system.services.alarm.type[0].type = 13;
    session.settle();
    session.open(1, 1);
    const std::string text = session.full_diff();
    const std::string front = "configure terminal\ncli session-timeout \"0\"\ncli max-sessions \"0\"\n";
    const std::string back = "no ip source-guard enable\nip source-guard mode static\nexit\ncommit\n";
    EXPECT_EQ(text.substr(0, front.size()), front);
    EXPECT_NE(text.find("no cli display profile dba\nalarm fan severity \"indeterminate\"\n"), std::string::npos);
    EXPECT_NE(text.find("alarm free-space level \"0\"\ncli ont-sn-format \"pretty\"\ngpon network mac-age-time"),
              std::string::npos);
    ASSERT_GE(text.size(), back.size());
    EXPECT_EQ(text.substr(text.size() - back.size()), back);
}

TEST(FullDiff, PrintAllNeverShowsAnEqualOnt)
{
    Session session;
    for (const int index : {1, 70, 531}) {
        session.cfg->pon.ont[index].exist = 1;
        put(session.cfg->pon.ont[index].description, "kiosk");
    }
    session.settle();
    for (const int common : {0, 2}) {
        session.open(1, common);
        EXPECT_EQ(session.full_diff().find("\ninterface ont"), std::string::npos);
    }
    session.cfg->pon.ont[70].revision = 2;
    const std::string text = session.full_diff();
    const std::size_t at = text.find("\ninterface ont 1/6\ndescription \"kiosk\"\nshutdown\n");
    EXPECT_NE(at, std::string::npos);
    EXPECT_EQ(text.find("\ninterface ont"), at);
    EXPECT_EQ(text.rfind("\ninterface ont"), at);
}

TEST(FullDiff, WalkOverTheOntsLeavesItsKeys)
{
    const auto walk = std::make_unique<Diff<GPonCfg>>(getdiff_GPonCfg);
    walk->key[0] = 4;
    EXPECT_EQ(walk->elements(), Elements{});
    EXPECT_EQ(walk->key[0], 4);
    walk->after.ont[2].exist = walk->after.ont[9].exist = 1;
    put(walk->after.ont[2].description, "$ID0 $ID1");
    put(walk->after.ont[9].description, "$ID0 $ID1");
    EXPECT_EQ(walk->script(), "configure terminal\n"
                              "interface ont 0/2\n"
                              "description \"   2    0\"\n"
                              "exit\n"
                              "interface ont 0/9\n"
                              "description \"   9    3\"\n");
    EXPECT_EQ(walk->key[0], 531);
    EXPECT_EQ(walk->key[1], 3);
}

bool holds(const std::string& text, const std::string& part)
{
    return text.find(part) != std::string::npos;
}

TEST(FullDiff, PrintAllRendersEqualProfilesAndOltSettings)
{
    Session session;
    session.cfg->pon.profiles_olt.vlan[0].exist = 1;
    put(session.cfg->pon.profiles_olt.vlan[0].name, "office");
    session.cfg->pon.profiles_ont.management[31].exist = 1;
    put(session.cfg->pon.profiles_ont.management[31].name, "remote");
    session.settle();
    session.open(1, 0);
    for (const std::string& text : {session.full_diff(), taken(GetPonDiff(&session.orig->pon, &session.cfg->pon))}) {
        EXPECT_TRUE(holds(text, "profile vlan \"office\"\ndescription \"\"\nuplink extended svlan-type \"0x0000\"\n"));
        EXPECT_TRUE(holds(text, "profile management \"remote\"\nname \"remote\"\ndescription \"\"\n"
                                "no omci-configuration\n"));
        EXPECT_TRUE(holds(text, "interface gpon-port    7\nprofile vlan \"office\"\nshutdown\n"));
        EXPECT_FALSE(holds(text, "gpon network"));
        EXPECT_FALSE(holds(text, "interface ont"));
    }
}

TEST(FullDiff, PrintAllRendersTheCommonSettingsOfTheTreeAsWell)
{
    Session session;
    session.open(1, 2);
    const std::string text = session.full_diff();
    EXPECT_TRUE(holds(text, "gpon network mac-age-time \"0\"\n"));
    EXPECT_TRUE(holds(text, "gpon olt activation-period \"0\"\n"));
}

TEST(FullDiff, TheNextOperationSeesWhatHasChangedSince)
{
    Session session;
    put(session.cfg->pon.ont[531].description, "kiosk");
    session.cfg->pon.ont[531].exist = 1;
    session.open();
    EXPECT_TRUE(holds(session.full_diff(), "interface ont 8/19\ndescription \"kiosk\"\n"));
    session.settle();
    EXPECT_EQ(session.full_diff(), "");
    put(session.cfg->pon.ont[531].description, "bakery");
    EXPECT_EQ(taken(GetPonDiff(&session.orig->pon, &session.cfg->pon)),
              "configure terminal\ninterface ont 8/19\ndescription \"bakery\"\n");
}

} // namespace
