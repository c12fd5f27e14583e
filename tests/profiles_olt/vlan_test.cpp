#include "tests/profiles_olt/olt_profile.h"

namespace {

TEST(VlanEthertypes, UplinkNamesItsDirectionAndProfile)
{
    Session session;
    session.cfg->pon.profiles_olt.vlan[4].exist = 1;
    put(session.cfg->pon.profiles_olt.vlan[4].name, "office");
    session.open();
    Diff ethertypes{getdiff_GVlanGeneralCfg};
    ethertypes.key[0] = 4;
    ethertypes.after.extended_svlan_type = 0x8100;
    ethertypes.after.extended_cvlan_type = 0x88a8;
    ethertypes.after.insertion_svlan_ethertype = 0x9100;
    ethertypes.after.insertion_cvlan_ethertype = 1;
    EXPECT_EQ(ethertypes.script(), "configure terminal\nprofile vlan \"office\"\n"
                                   "uplink extended svlan-type \"0x8100\"\n"
                                   "uplink extended cvlan-type \"0x88A8\"\n"
                                   "uplink insertion svlan-ethertype \"0x9100\"\n"
                                   "uplink insertion cvlan-ethertype \"0x0001\"\n");
}

TEST(VlanEthertypes, DownlinkBeginsWithItsDirection)
{
    Diff ethertypes{getdiff_GVlanGeneralCfg};
    ethertypes.view = "vlan-view";
    ethertypes.key[1] = 1;
    ethertypes.after.extended_svlan_type = 0x8100;
    EXPECT_EQ(ethertypes.elements(), (Elements{"", "downlink extended svlan-type \"0x8100\""}));
}

TEST(VlanEthertypes, PrintAllForcesWhateverThePartWanted)
{
    for (const int common : {0, 1, 2}) {
        Diff ethertypes{getdiff_GVlanGeneralCfg};
        ethertypes.view = "vlan-view";
        ethertypes.key[1] = 2;
        ethertypes.all = 1;
        ethertypes.common = common;
        EXPECT_EQ(ethertypes.script(), "downlink extended svlan-type \"0x0000\"\n"
                                       "downlink extended cvlan-type \"0x0000\"\n"
                                       "downlink insertion svlan-ethertype \"0x0000\"\n"
                                       "downlink insertion cvlan-ethertype \"0x0000\"\n");
    }
}

class VlanProfile : public OltProfileTest<GPonProfileOltVlan> {
  protected:
    VlanProfile() : OltProfileTest(getdiff_GPonProfileOltVlan, &GPonProfilesOlt::vlan) {}
};

TEST_F(VlanProfile, NewIsEnteredAndNothingMore)
{
    diff.before = GPonProfileOltVlan{};
    EXPECT_EQ(elements(), Elements{"configure terminal\nprofile vlan \"office\""});
}

TEST_F(VlanProfile, NewWithSettingsOfItsOwn)
{
    diff.before = GPonProfileOltVlan{};
    put(diff.after.description, "main");
    diff.after.config_general[0].extended_svlan_type = 0x8100;
    EXPECT_EQ(elements(), (Elements{"configure terminal\nprofile vlan \"office\"", "", "description \"main\"", "",
                                    "uplink extended svlan-type \"0x8100\""}));
}

TEST_F(VlanProfile, NewInASlotThatHeldAnotherNameIsNotNamed)
{
    diff.before.exist = 0;
    put(diff.before.name, "hotel");
    EXPECT_EQ(elements(), Elements{"configure terminal\nprofile vlan \"office\""});
}

TEST_F(VlanProfile, NewInAViewThatIsEnteredAlreadyIsAnEmptyElement)
{
    diff.before.exist = 0;
    diff.view = "vlan-view";
    diff.view_key = 4;
    EXPECT_EQ(elements(), Elements{""});
}

TEST_F(VlanProfile, NewInAFullDumpIsNotNamedEither)
{
    diff.before = GPonProfileOltVlan{};
    diff.all = 1;
    EXPECT_EQ(
        elements(),
        (Elements{"configure terminal\nprofile vlan \"office\"", "", "description \"\"", "",
                  "uplink extended svlan-type \"0x0000\"", "", "uplink extended cvlan-type \"0x0000\"", "",
                  "uplink insertion svlan-ethertype \"0x0000\"", "", "uplink insertion cvlan-ethertype \"0x0000\"", "",
                  "downlink extended svlan-type \"0x0000\"", "", "downlink extended cvlan-type \"0x0000\"", "",
                  "downlink insertion svlan-ethertype \"0x0000\"", "",
                  "downlink insertion cvlan-ethertype \"0x0000\""}));
}

TEST_F(VlanProfile, RenamedUnderItsOldName)
{
    put(diff.after.name, "hotel");
    EXPECT_EQ(elements(), (Elements{"configure terminal\nprofile vlan \"office\"", "name \"hotel\""}));
}

TEST_F(VlanProfile, RenamedFromTheViewOfAnotherProfile)
{
    put(diff.after.name, "hotel");
    diff.view = "vlan-view";
    diff.view_key = 3;
    EXPECT_EQ(elements(), (Elements{"exit\nprofile vlan \"office\"", "name \"hotel\""}));
}

TEST_F(VlanProfile, NameThatFillsItsArray)
{
    put(diff.after.name, "sixteen-letters!");
    put(diff.after.description, "main");
    EXPECT_EQ(script(), "configure terminal\nprofile vlan \"office\"\n"
                        "name \"sixteen-letters!\"\n"
                        "description \"main\"\n");
}

TEST_F(VlanProfile, BytesBehindTheTerminatorOfTheNameCount)
{
    diff.after.name[15] = 'x';
    EXPECT_EQ(script(), "configure terminal\nprofile vlan \"office\"\nname \"office\"\n");
}

TEST_F(VlanProfile, EveryFieldChangedInOrder)
{
    put(diff.after.name, "hotel");
    put(diff.after.description, "main");
    diff.after.config_general[0] = {0x8100, 0x88a8, 0x9100, 1};
    diff.after.config_general[1] = {0x9200, 0x9300, 0xffff, 0x10};
    EXPECT_EQ(script(), "configure terminal\nprofile vlan \"office\"\n"
                        "name \"hotel\"\n"
                        "description \"main\"\n"
                        "uplink extended svlan-type \"0x8100\"\n"
                        "uplink extended cvlan-type \"0x88A8\"\n"
                        "uplink insertion svlan-ethertype \"0x9100\"\n"
                        "uplink insertion cvlan-ethertype \"0x0001\"\n"
                        "downlink extended svlan-type \"0x9200\"\n"
                        "downlink extended cvlan-type \"0x9300\"\n"
                        "downlink insertion svlan-ethertype \"0xFFFF\"\n"
                        "downlink insertion cvlan-ethertype \"0x0010\"\n");
}

TEST_F(VlanProfile, FullDumpShowsEverythingButTheName)
{
    for (const int common : {0, 1, 2}) {
        diff.all = 1;
        diff.common = common;
        EXPECT_EQ(script(), "configure terminal\nprofile vlan \"office\"\n"
                            "description \"\"\n"
                            "uplink extended svlan-type \"0x0000\"\n"
                            "uplink extended cvlan-type \"0x0000\"\n"
                            "uplink insertion svlan-ethertype \"0x0000\"\n"
                            "uplink insertion cvlan-ethertype \"0x0000\"\n"
                            "downlink extended svlan-type \"0x0000\"\n"
                            "downlink extended cvlan-type \"0x0000\"\n"
                            "downlink insertion svlan-ethertype \"0x0000\"\n"
                            "downlink insertion cvlan-ethertype \"0x0000\"\n");
    }
}

TEST_F(VlanProfile, FullDumpShowsTheNameOfARenamedProfile)
{
    put(diff.after.name, "hotel");
    diff.all = 1;
    const std::string begin = "configure terminal\nprofile vlan \"office\"\nname \"hotel\"\ndescription \"\"\n";
    EXPECT_EQ(script().substr(0, begin.size()), begin);
}

TEST_F(VlanProfile, DescriptionThatFillsItsArray)
{
    put(diff.after.description, std::string(256, 'd'));
    diff.before.config_general[0].extended_svlan_type = diff.after.config_general[0].extended_svlan_type = 0x4141;
    EXPECT_EQ(script(), "configure terminal\nprofile vlan \"office\"\ndescription \"" + std::string(256, 'd') + "\"\n");
}

TEST_F(VlanProfile, ClearedDescription)
{
    put(diff.before.description, "main");
    EXPECT_EQ(script(), "configure terminal\nprofile vlan \"office\"\ndescription \"\"\n");
}

TEST_F(VlanProfile, PlaceholderInTheDescriptionIsSubstituted)
{
    put(diff.after.description, "slot $ID0");
    EXPECT_EQ(script(), "configure terminal\nprofile vlan \"office\"\ndescription \"slot    4\"\n");
}

TEST_F(VlanProfile, DownlinkAlone)
{
    diff.after.config_general[1].insertion_svlan_ethertype = 0x88a8;
    EXPECT_EQ(elements(), (Elements{"configure terminal\nprofile vlan \"office\"",
                                    "downlink insertion svlan-ethertype \"0x88A8\""}));
    EXPECT_EQ(diff.key[0], 4);
    EXPECT_EQ(diff.key[1], 1);
}

TEST_F(VlanProfile, KeyHoldsTheDownlinkAfterwardsWhateverChanged)
{
    diff.after.config_general[0].extended_svlan_type = 0x8100;
    EXPECT_EQ(script(), "configure terminal\nprofile vlan \"office\"\nuplink extended svlan-type \"0x8100\"\n");
    EXPECT_EQ(diff.key[1], 1);
}

TEST_F(VlanProfile, RevisionHasNoCommand)
{
    diff.after.revision = 7;
    EXPECT_EQ(elements(), Elements{});
    EXPECT_EQ(diff.key[1], 1);
}

TEST_F(VlanProfile, RemovedIsOneCommandWithTheOldNameUnquoted)
{
    diff.after = GPonProfileOltVlan{};
    EXPECT_EQ(elements(), (Elements{"configure terminal", "no profile vlan office"}));
    EXPECT_EQ(diff.key[1], 9);
}

TEST_F(VlanProfile, RemovedShowsNoneOfItsOtherChanges)
{
    diff.after.exist = 0;
    put(diff.after.name, "hotel");
    put(diff.after.description, "main");
    diff.after.config_general[0].extended_svlan_type = 0x8100;
    for (const int all : {0, 1}) {
        diff.all = all;
        EXPECT_EQ(elements(), (Elements{"configure terminal", "no profile vlan office"}));
    }
}

TEST_F(VlanProfile, RemovedFromWhereTheScriptStands)
{
    diff.after.exist = 0;
    diff.view = "vlan-view";
    diff.view_key = 4;
    EXPECT_EQ(elements(), (Elements{"exit", "no profile vlan office"}));
    diff.view = "configure-view";
    EXPECT_EQ(elements(), (Elements{"", "no profile vlan office"}));
}

TEST_F(VlanProfile, RemovedKeepsPlaceholdersInItsName)
{
    diff.after.exist = 0;
    put(diff.before.name, "v$ID0");
    EXPECT_EQ(elements(), (Elements{"configure terminal", "no profile vlan v$ID0"}));
}

TEST_F(VlanProfile, RemovedNameThatFillsItsArray)
{
    diff.after.exist = 0;
    put(diff.before.name, "sixteen-letters!");
    put(diff.before.description, "main");
    EXPECT_EQ(elements(), (Elements{"configure terminal", "no profile vlan sixteen-letters!"}));
}

TEST_F(VlanProfile, RemovedWithoutANameHasNothingBehindTheKeyword)
{
    diff.after.exist = 0;
    put(diff.before.name, "");
    EXPECT_EQ(elements(), (Elements{"configure terminal", "no profile vlan "}));
}

TEST_F(VlanProfile, AnyNonZeroFlagOfTheOldRecordIsRemoved)
{
    diff.after.exist = 0;
    for (const int exist : {2, 65535}) {
        diff.before.exist = static_cast<GBool_t>(exist);
        EXPECT_EQ(elements(), (Elements{"configure terminal", "no profile vlan office"}));
    }
}

TEST_F(VlanProfile, NewWithAnotherFlagThanOneIsEnteredByItsSettingsAlone)
{
    diff.before.exist = 0;
    for (const int exist : {2, 65535}) {
        diff.after.exist = static_cast<GBool_t>(exist);
        put(diff.after.description, "");
        EXPECT_EQ(elements(), Elements{});
        put(diff.after.description, "main");
        EXPECT_EQ(elements(), (Elements{"configure terminal\nprofile vlan \"office\"", "description \"main\""}));
    }
}

TEST_F(VlanProfile, RenameIsSeenWhereTheOldFlagIsExactlyOne)
{
    put(diff.after.name, "hotel");
    diff.after.exist = 2;
    EXPECT_EQ(script(), "configure terminal\nprofile vlan \"office\"\nname \"hotel\"\n");
    diff.before.exist = 2;
    EXPECT_EQ(elements(), Elements{});
    diff.after.exist = 1;
    EXPECT_EQ(elements(), Elements{});
}

TEST_F(VlanProfile, AnotherFlagOfAProfileThatStaysSaysNothing)
{
    diff.after.exist = 2;
    EXPECT_EQ(elements(), Elements{});
}

} // namespace
