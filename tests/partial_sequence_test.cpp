#include "tests/partial_diff.h"
#include "tests/support/allocation.h"

namespace {

/// Several operations in one session.
using PartialSequence = PartialDiff;

TEST_F(PartialSequence, SystemPartLeavesTheScriptWhereTheNextOperationGoesOn)
{
    put(session.cfg->system.network.hostname, "olt-17");
    session.cfg->pon.network.mac_age_time = 300;
    session.open();
    EXPECT_EQ(system(), "configure terminal\nhostname \"olt-17\"\n");
    EXPECT_EQ(system(), "hostname \"olt-17\"\n");
    EXPECT_EQ(pon(), "gpon network mac-age-time \"300\"\n");
    EXPECT_EQ(block("network"), "gpon network mac-age-time \"300\"\nexit\ncommit\n");
    EXPECT_EQ(block("network"), "configure terminal\ngpon network mac-age-time \"300\"\nexit\ncommit\n");
}

TEST_F(PartialSequence, PonPartLeavesTheScriptInTheViewOfItsLastCommand)
{
    put(session.cfg->system.network.hostname, "olt-17");
    change_ont(5);
    session.open();
    EXPECT_EQ(pon(), "configure terminal\ninterface ont 0/5\nfec\n");
    EXPECT_EQ(pon(), "fec\n");
    EXPECT_EQ(ont(5, 5), "exit\ninterface ont 0/5\nfec\nexit\nexit\n");
    EXPECT_EQ(pon(), "configure terminal\ninterface ont 0/5\nfec\n");
    EXPECT_EQ(system(), "exit\nhostname \"olt-17\"\n");
    EXPECT_EQ(pon(), "interface ont 0/5\nfec\n");
    EXPECT_EQ(session.full_diff(), "exit\nhostname \"olt-17\"\ninterface ont 0/5\nfec\nexit\nexit\ncommit\n");
    EXPECT_EQ(session.full_diff(), "configure terminal\n"
                                   "hostname \"olt-17\"\n"
                                   "interface ont 0/5\n"
                                   "fec\n"
                                   "exit\n"
                                   "exit\n"
                                   "commit\n");
}

TEST_F(PartialSequence, WayBackToTheTopLevelIsATextThatIsCommitted)
{
    change_ont(5);
    session.open();
    const std::string changed = "configure terminal\ninterface ont 0/5\nfec\n";
    EXPECT_EQ(pon(), changed);
    EXPECT_EQ(profiles_olt(), "exit\nexit\ncommit\n");
    EXPECT_EQ(profiles_olt(), "");
    EXPECT_EQ(pon(), changed);
    EXPECT_EQ(profiles_ont(), "exit\nexit\ncommit\n");
    EXPECT_EQ(profiles_ont(), "");
    EXPECT_EQ(headers(), "configure terminal\n");
    EXPECT_EQ(taken(GetDiff(session.cfg, session.cfg)), "exit\ncommit\n");
    EXPECT_EQ(taken(GetDiff(session.cfg, session.cfg)), "");
}

TEST_F(PartialSequence, OperationsThatBeginInTheGlobalConfigurationLeaveAnotherViewFirst)
{
    change_ont(5);
    add_terminal_vlan(0, "video");
    session.orig->pon.network = session.cfg->pon.network;
    session.open();
    const std::string changed = "configure terminal\ninterface ont 0/5\nfec\n";
    EXPECT_EQ(pon(), changed);
    EXPECT_EQ(alarm(), "exit\nexit\ncommit\n");
    EXPECT_EQ(pon(), changed);
    EXPECT_EQ(profile("vlan", -1), "exit\nexit\ncommit\n");
    EXPECT_EQ(pon(), changed);
    EXPECT_EQ(block("ntp"), "exit\nexit\ncommit\n");
    EXPECT_EQ(pon(), changed);
    EXPECT_EQ(channel(0, 0), "exit\nexit\n");
    EXPECT_EQ(pon(), changed);
    EXPECT_EQ(headers(), "exit\ngpon network terminal-vlan \"video\"\n");
    EXPECT_STREQ(current_view.name, "configure-view");
}

TEST_F(PartialSequence, TerminalVlanHeadersLeaveTheScriptInTheGlobalConfiguration)
{
    add_terminal_vlan(0, "video");
    session.orig->pon.network = session.cfg->pon.network;
    put(session.cfg->system.network.hostname, "olt-17");
    session.open();
    EXPECT_EQ(headers(), "configure terminal\ngpon network terminal-vlan \"video\"\n");
    EXPECT_EQ(headers(), "gpon network terminal-vlan \"video\"\n");
    EXPECT_EQ(system(), "hostname \"olt-17\"\n");
    EXPECT_EQ(alarm(), "exit\ncommit\n");
    EXPECT_EQ(alarm(), "configure terminal\nexit\ncommit\n");
}

TEST_F(PartialSequence, NewSessionBeginsAtTheTopLevel)
{
    change_ont(5);
    session.open();
    EXPECT_EQ(pon(), "configure terminal\ninterface ont 0/5\nfec\n");
    finalize_diff();
    session.open();
    EXPECT_EQ(pon(), "configure terminal\ninterface ont 0/5\nfec\n");
    session.open();
    EXPECT_EQ(profiles_olt(), "");
}

TEST_F(PartialSequence, EachOperationBeginsWithABlankKey)
{
    change_ont(5);
    put(session.cfg->system.network.hostname, "$ID0-$ID1-$ID9");
    session.open();
    EXPECT_EQ(pon(), "configure terminal\ninterface ont 0/5\nfec\n");
    EXPECT_EQ(system(), "exit\nhostname \"   0-   0-   0\"\n");
}

/// Null records, no session, failing allocations.
using PartialOddity = PartialDiff;

TEST_F(PartialOddity, NullRecordsGiveWhatEqualOnesGive)
{
    session.open(1, 2);
    GCfg& cfg = *session.cfg;
    char vlan[] = "vlan";
    char ntp[] = "ntp";
    EXPECT_EQ(taken(GetSystemDiff(nullptr, &cfg.system)), "");
    EXPECT_EQ(taken(GetSystemDiff(&cfg.system, nullptr)), "");
    EXPECT_EQ(taken(GetPonDiff(nullptr, &cfg.pon)), "");
    EXPECT_EQ(taken(GetPonDiff(&cfg.pon, nullptr)), "");
    EXPECT_EQ(taken(GetGponOntDiff(nullptr, &cfg.pon.ont[0], 0)), "configure terminal\nexit\n");
    EXPECT_EQ(taken(GetGponOntDiff(&cfg.pon.ont[0], nullptr, 0)), "configure terminal\nexit\n");
    EXPECT_EQ(taken(GetGponChannelDiff(nullptr, &cfg.pon.olt.channel[0], 0)), "configure terminal\nexit\n");
    EXPECT_EQ(taken(GetGponChannelDiff(&cfg.pon.olt.channel[0], nullptr, 0)), "configure terminal\nexit\n");
    EXPECT_EQ(taken(GetGPonProfilesOltDiff(nullptr, &cfg.pon.profiles_olt)), "");
    EXPECT_EQ(taken(GetGPonProfilesOltDiff(&cfg.pon.profiles_olt, nullptr)), "");
    EXPECT_EQ(taken(GetGPonProfilesOntDiff(nullptr, &cfg.pon.profiles_ont)), "");
    EXPECT_EQ(taken(GetGPonProfilesOntDiff(&cfg.pon.profiles_ont, nullptr)), "");
    EXPECT_EQ(taken(GetProfileDiff(nullptr, &cfg.pon, vlan, 0)), "configure terminal\nexit\ncommit\n");
    EXPECT_EQ(taken(GetProfileDiff(&cfg.pon, nullptr, vlan, -1)), "configure terminal\nexit\ncommit\n");
    EXPECT_EQ(taken(GetProfileDiff(&cfg.pon, &cfg.pon, nullptr, 0)), "configure terminal\nexit\ncommit\n");
    EXPECT_EQ(taken(GetBlockDiff(nullptr, &cfg, ntp)), "configure terminal\nexit\ncommit\n");
    EXPECT_EQ(taken(GetBlockDiff(&cfg, nullptr, ntp)), "configure terminal\nexit\ncommit\n");
    EXPECT_EQ(taken(GetBlockDiff(&cfg, &cfg, nullptr)), "configure terminal\nexit\ncommit\n");
    EXPECT_EQ(taken(GetAlarmDiff(nullptr, &cfg)), "configure terminal\nexit\ncommit\n");
    EXPECT_EQ(taken(GetAlarmDiff(&cfg, nullptr)), "configure terminal\nexit\ncommit\n");
}

TEST_F(PartialOddity, OutsideASessionTheScriptStartsAtTheTopLevelAndNamesAreEmpty)
{
    change_ont(5);
    add_terminal_vlan(0, "video");
    session.cfg->pon.profiles_olt.vlan[0].exist = 1;
    put(session.cfg->pon.profiles_olt.vlan[0].name, "office");
    current_view = {};
    EXPECT_EQ(ont(5, 5), "configure terminal\ninterface ont 0/5\nfec\nexit\nexit\n");
    current_view = {};
    EXPECT_EQ(headers(), "configure terminal\n");
    current_view = {};
    EXPECT_EQ(profiles_olt(), "configure terminal\nprofile vlan \"\"\nexit\nexit\ncommit\n");
}

TEST_F(PartialOddity, TextThatCannotBeHadWholeIsNullAndTheScriptStaysWhereItWas)
{
    for (int i = 0; i < 32; ++i) {
        add_terminal_vlan(i, "sixteen-letters!");
    }
    for (GSystemRouteCfg& route : session.cfg->system.services.routing.route) {
        route.mask = 24;
    }
    session.open();
    EXPECT_NE(headers(), "");
    char route[] = "route";
    const std::string whole = block("route");
    EXPECT_EQ(taken(GetTerminalVlanHeaders()).substr(0, 19), "configure terminal\n");
    int nulls = 0;
    for (int granted = 0;; ++granted) {
        char* text = nullptr;
        {
            const LimitedAllocations limit(granted);
            text = GetBlockDiff(session.orig, session.cfg, route);
        }
        if (text) {
            EXPECT_EQ("configure terminal\n" + taken(text), "configure terminal\n" + whole);
            break;
        }
        ++nulls;
        ASSERT_STREQ(current_view.name, "configure-view") << granted;
    }
    EXPECT_GT(nulls, 0);
    EXPECT_STREQ(current_view.name, "root");
}

} // namespace
