#include "tests/partial_diff.h"

#include <climits>

namespace {

/// Where each operation begins and ends.
using Partial = PartialDiff;

TEST_F(Partial, SystemPartNeitherBeginsNorEndsWithANavigationOfItsOwn)
{
    session.cfg->system.settings.ont_sn_format = 1;
    session.cfg->system.services.ntp.enabled = 1;
    put(session.cfg->system.network.hostname, "olt-17");
    session.cfg->pon.network.mac_age_time = 300;
    session.open();
    EXPECT_EQ(system(), "configure terminal\n"
                        "hostname \"olt-17\"\n"
                        "ip ntp enable\n"
                        "cli ont-sn-format \"dense\"\n");
    EXPECT_STREQ(current_view.name, "configure-view");
}

TEST_F(Partial, SystemPartWithNothingToSayIsAnEmptyText)
{
    session.open();
    EXPECT_EQ(system(), "");
    EXPECT_STREQ(current_view.name, "root");
    session.open(1, 2);
    EXPECT_EQ(system(), "");
}

TEST_F(Partial, SystemPartThatRemovesAUserAloneDoesNotNavigate)
{
    session.orig->system.user[2].exist = 1;
    put(session.orig->system.user[2].name, "guest");
    session.open();
    EXPECT_EQ(system(), "no user \"guest\"\n");
    EXPECT_STREQ(current_view.name, "root");
}

TEST_F(Partial, PonPartNeitherBeginsNorEndsWithANavigationOfItsOwn)
{
    put(session.cfg->system.network.hostname, "olt-17");
    session.cfg->pon.network.mac_age_time = 300;
    change_ont(130);
    session.open();
    EXPECT_EQ(pon(), "configure terminal\n"
                     "gpon network mac-age-time \"300\"\n"
                     "interface ont 2/2\n"
                     "fec\n");
    EXPECT_STREQ(current_view.name, "if-ont-view");
    EXPECT_EQ(current_view.key[0], 130);
}

TEST_F(Partial, PonPartWithNothingToSayIsAnEmptyText)
{
    put(session.cfg->system.network.hostname, "olt-17");
    session.open();
    EXPECT_EQ(pon(), "");
    EXPECT_STREQ(current_view.name, "root");
}

TEST_F(Partial, OntIsSurroundedByNavigationsWithoutCommit)
{
    change_ont(130);
    session.open();
    EXPECT_EQ(ont(130, 130), "configure terminal\n"
                             "interface ont 2/2\n"
                             "fec\n"
                             "exit\n"
                             "exit\n");
    EXPECT_STREQ(current_view.name, "root");
}

TEST_F(Partial, OntWithNothingToSayIsNavigationsAlone)
{
    session.open();
    EXPECT_EQ(ont(0, 0), "configure terminal\nexit\n");
    EXPECT_STREQ(current_view.name, "root");
}

TEST_F(Partial, OntIsShownUnderTheIndexGiven)
{
    change_ont(3);
    session.open();
    EXPECT_EQ(ont(3, 0), "configure terminal\ninterface ont 0/0\nfec\nexit\nexit\n");
    EXPECT_EQ(ont(3, 63), "configure terminal\ninterface ont 0/63\nfec\nexit\nexit\n");
    EXPECT_EQ(ont(3, 64), "configure terminal\ninterface ont 1/0\nfec\nexit\nexit\n");
    EXPECT_EQ(ont(3, 531), "configure terminal\ninterface ont 8/19\nfec\nexit\nexit\n");
}

TEST_F(Partial, OntIndexMayBeAnyNumber)
{
    change_ont(3);
    session.open();
    EXPECT_EQ(ont(3, 532), "configure terminal\ninterface ont 8/20\nfec\nexit\nexit\n");
    EXPECT_EQ(ont(3, -65), "configure terminal\ninterface ont -1/-1\nfec\nexit\nexit\n");
    EXPECT_EQ(ont(3, INT_MAX), "configure terminal\ninterface ont 33554431/63\nfec\nexit\nexit\n");
    EXPECT_EQ(ont(3, INT_MIN), "configure terminal\ninterface ont -33554432/0\nfec\nexit\nexit\n");
}

TEST_F(Partial, OntThatIsRemovedLeavesTheScriptInTheGlobalConfiguration)
{
    session.orig->pon.ont[64].exist = 1;
    session.open();
    EXPECT_EQ(ont(64, 64), "configure terminal\nno interface ont 1/0\nexit\n");
}

TEST_F(Partial, OntThatIsNewIsCreatedByItsView)
{
    session.cfg->pon.ont[64].exist = 1;
    session.open();
    EXPECT_EQ(ont(64, 64), "configure terminal\ninterface ont 1/0\nexit\nexit\n");
}

TEST_F(Partial, EqualOntIsRenderedByPrintAll)
{
    session.cfg->pon.ont[64].exist = 1;
    put(session.cfg->pon.ont[64].description, "kiosk");
    session.settle();
    session.open(1, 0);
    const std::string text = ont(64, 64);
    const std::string front = "configure terminal\n"
                              "interface ont 1/0\n"
                              "description \"kiosk\"\n"
                              "shutdown\n"
                              "serial \"0000000000000000\"\n"
                              "password \"\"\n"
                              "no fec\n";
    const std::string back = "no port    3 poe enable\n"
                             "port    3 poe pse-class-control \"0\"\n"
                             "port    3 poe power-priority \"invalid value\"\n"
                             "exit\n"
                             "exit\n";
    ASSERT_GE(text.size(), front.size() + back.size());
    EXPECT_EQ(text.substr(0, front.size()), front);
    EXPECT_EQ(text.substr(text.size() - back.size()), back);
}

TEST_F(Partial, ChannelIsSurroundedByNavigationsWithoutCommit)
{
    session.cfg->pon.olt.channel[3].fec_down = 1;
    session.open();
    EXPECT_EQ(channel(3, 3), "configure terminal\n"
                             "interface gpon-port    3\n"
                             "fec\n"
                             "exit\n"
                             "exit\n");
    EXPECT_STREQ(current_view.name, "root");
}

TEST_F(Partial, ChannelWithNothingToSayIsNavigationsAlone)
{
    session.open();
    EXPECT_EQ(channel(7, 7), "configure terminal\nexit\n");
}

TEST_F(Partial, ChannelIsShownUnderTheIndexGiven)
{
    session.cfg->pon.olt.channel[3].fec_down = 1;
    session.open();
    EXPECT_EQ(channel(3, 0), "configure terminal\ninterface gpon-port    0\nfec\nexit\nexit\n");
    EXPECT_EQ(channel(3, 7), "configure terminal\ninterface gpon-port    7\nfec\nexit\nexit\n");
    EXPECT_EQ(channel(3, 8), "configure terminal\ninterface gpon-port    8\nfec\nexit\nexit\n");
    EXPECT_EQ(channel(3, 12345), "configure terminal\ninterface gpon-port 12345\nfec\nexit\nexit\n");
    EXPECT_EQ(channel(3, INT_MIN), "configure terminal\ninterface gpon-port -2147483648\nfec\nexit\nexit\n");
}

TEST_F(Partial, EqualChannelIsRenderedByPrintAll)
{
    session.cfg->pon.olt.channel[3].onus_range = 20;
    session.cfg->pon.olt.channel[3].profile_olt_vlan = -1;
    session.cfg->pon.olt.channel[3].profile_olt_address_table = 5;
    session.settle();
    session.open(1, 0);
    const std::string text = channel(3, 3);
    const std::string front = "configure terminal\n"
                              "interface gpon-port    3\n"
                              "profile vlan \"unassigned\"\n"
                              "shutdown\n"
                              "no optics use-custom\n"
                              "range 20\n"
                              "optics laser-reset\n";
    const std::string back = "\nexit\nexit\n";
    ASSERT_GE(text.size(), front.size() + back.size());
    EXPECT_EQ(text.substr(0, front.size()), front);
    EXPECT_EQ(text.substr(text.size() - back.size()), back);
}

TEST_F(Partial, OltProfilesEndAtTheTopLevelWithCommit)
{
    session.cfg->pon.profiles_olt.pppoe_ia[31].exist = 1;
    put(session.cfg->pon.profiles_olt.pppoe_ia[31].name, "last");
    session.cfg->pon.profiles_olt.vlan[4].exist = 1;
    put(session.cfg->pon.profiles_olt.vlan[4].name, "office");
    session.cfg->pon.profiles_ont.management[0].exist = 1;
    session.open();
    EXPECT_EQ(profiles_olt(), "configure terminal\n"
                              "profile vlan \"office\"\n"
                              "exit\n"
                              "profile pppoe-ia \"last\"\n"
                              "exit\n"
                              "exit\n"
                              "commit\n");
    EXPECT_STREQ(current_view.name, "root");
}

TEST_F(Partial, OntProfilesEndAtTheTopLevelWithCommit)
{
    session.cfg->pon.profiles_ont.voice[2].exist = 1;
    put(session.cfg->pon.profiles_ont.voice[2].name, "sip");
    session.cfg->pon.profiles_ont.shaping[127].exist = 1;
    put(session.cfg->pon.profiles_ont.shaping[127].name, "slow");
    session.cfg->pon.profiles_olt.vlan[0].exist = 1;
    session.open();
    EXPECT_EQ(profiles_ont(), "configure terminal\n"
                              "profile shaping \"slow\"\n"
                              "exit\n"
                              "profile voice \"sip\"\n"
                              "exit\n"
                              "exit\n"
                              "commit\n");
    EXPECT_STREQ(current_view.name, "root");
}

TEST_F(Partial, EqualProfileSetsGiveAnEmptyTextWithoutCommit)
{
    session.cfg->pon.profiles_olt.vlan[0].exist = session.cfg->pon.profiles_ont.voice[0].exist = 1;
    session.settle();
    session.open();
    EXPECT_EQ(profiles_olt(), "");
    EXPECT_EQ(profiles_ont(), "");
}

TEST_F(Partial, SetsOfFreeProfilesGiveAnEmptyTextUnderPrintAllToo)
{
    session.open(1, 0);
    EXPECT_EQ(profiles_olt(), "");
    EXPECT_EQ(profiles_ont(), "");
}

TEST_F(Partial, AlarmsAreSurroundedByNavigationsWithCommit)
{
    session.cfg->system.services.alarm.type[4].type = 3;
    session.cfg->system.services.alarm.type[4].severity = 1;
    session.cfg->system.services.ntp.enabled = 1;
    session.open();
    EXPECT_EQ(alarm(), "configure terminal\n"
                       "alarm login severity \"critical\"\n"
                       "exit\n"
                       "commit\n");
    EXPECT_STREQ(current_view.name, "root");
}

TEST_F(Partial, AlarmsWithNothingToSayAreNavigationsAndCommit)
{
    session.open();
    EXPECT_EQ(alarm(), "configure terminal\nexit\ncommit\n");
    session.open(1, 0);
    EXPECT_EQ(alarm(), "configure terminal\nexit\ncommit\n");
}

TEST_F(Partial, EqualAlarmsAreForcedWithTheCommonRecords)
{
    session.cfg->system.services.alarm.type[0].type = 13;
    session.settle();
    for (const int common : {1, 2}) {
        session.open(1, common);
        const std::string text = alarm();
        const std::string front = "configure terminal\n"
                                  "alarm fan severity \"indeterminate\"\n"
                                  "alarm fan in false\n"
                                  "alarm fan out false\n"
                                  "alarm fan ttl \"0\"\n";
        const std::string back = "alarm ram free-ram \"0\"\n"
                                 "alarm free-space level \"0\"\n"
                                 "exit\n"
                                 "commit\n";
        ASSERT_GE(text.size(), front.size() + back.size());
        EXPECT_EQ(text.substr(0, front.size()), front);
        EXPECT_EQ(text.substr(text.size() - back.size()), back);
    }
}

TEST_F(Partial, TerminalVlanHeadersNameEachOfTheNewConfigurationInOrder)
{
    add_terminal_vlan(31, "last");
    add_terminal_vlan(0, "first");
    add_terminal_vlan(7, "sixteen-letters!");
    session.orig->pon.network.terminal_vlan[1].exists = 1;
    put(session.orig->pon.network.terminal_vlan[1].name, "gone");
    put(session.cfg->pon.network.terminal_vlan[2].name, "absent");
    add_terminal_vlan(3, "");
    session.open();
    EXPECT_EQ(headers(), "configure terminal\n"
                         "gpon network terminal-vlan \"first\"\n"
                         "gpon network terminal-vlan \"sixteen-letters!\"\n"
                         "gpon network terminal-vlan \"last\"\n");
    EXPECT_STREQ(current_view.name, "configure-view");
}

TEST_F(Partial, TerminalVlanHeadersAreTheSessionsAndNotTheRecords)
{
    add_terminal_vlan(5, "video");
    session.settle();
    session.open();
    session.cfg->pon.network.terminal_vlan[5].exists = 0;
    EXPECT_EQ(headers(), "configure terminal\ngpon network terminal-vlan \"video\"\n");
}

TEST_F(Partial, TerminalVlanNamesPassWithoutSubstitution)
{
    add_terminal_vlan(5, "v$ID0%s");
    session.open();
    EXPECT_EQ(headers(), "configure terminal\ngpon network terminal-vlan \"v$ID0%s\"\n");
}

TEST_F(Partial, NoTerminalVlansIsTheNavigationAlone)
{
    session.open();
    EXPECT_EQ(headers(), "configure terminal\n");
    EXPECT_STREQ(current_view.name, "configure-view");
    EXPECT_EQ(headers(), "");
}

} // namespace
