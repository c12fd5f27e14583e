#include "tests/profiles_olt/olt_profile.h"

#include <utility>

namespace {

// ---------------------------------------------------------------------------------------------- the general settings

TEST(AddressTable, SwitchesOnAndOff)
{
    Diff table{getdiff_GAddressTableConfig};
    table.view = "address-table-view";
    table.after.remove_when_aged = 1;
    EXPECT_EQ(table.elements(), (Elements{"", "remove-when-aged"}));
    table.after.discard_pid_unlearned_sa = 1;
    EXPECT_EQ(table.elements(), (Elements{"", "remove-when-aged", "", "discard-pid-unlearned-sa"}));
    std::swap(table.before, table.after);
    EXPECT_EQ(table.elements(), (Elements{"", "no remove-when-aged", "", "no discard-pid-unlearned-sa"}));
}

TEST(AddressTable, SettingsAreMadeInTheViewOfTheProfile)
{
    Session session;
    session.orig->pon.profiles_olt.address_table[31].exist = 1;
    put(session.orig->pon.profiles_olt.address_table[31].name, "office");
    session.open();
    Diff table{getdiff_GAddressTableConfig};
    table.key[0] = 31;
    table.after.remove_when_aged = 1;
    EXPECT_EQ(table.elements(), (Elements{"configure terminal\nprofile address-table \"office\"", "remove-when-aged"}));
}

TEST(AddressTable, AnyNonZeroSwitchIsOn)
{
    Diff table{getdiff_GAddressTableConfig};
    table.view = "address-table-view";
    table.before.remove_when_aged = 1;
    table.after.remove_when_aged = 2;
    table.after.discard_pid_unlearned_sa = 65535;
    EXPECT_EQ(table.script(), "remove-when-aged\ndiscard-pid-unlearned-sa\n");
}

TEST(AddressTable, AgingTimerHasNoCommand)
{
    Diff table{getdiff_GAddressTableConfig};
    table.after.aging_timer = 300;
    EXPECT_EQ(table.elements(), Elements{});
}

TEST(AddressTable, PrintAllForcesWhateverPartIsWanted)
{
    for (const int common : {0, 1, 2}) {
        Diff table{getdiff_GAddressTableConfig};
        table.view = "address-table-view";
        table.all = 1;
        table.common = common;
        EXPECT_EQ(table.script(), "no remove-when-aged\nno discard-pid-unlearned-sa\n");
    }
}

// ------------------------------------------------------------------------------------------------- one S-VLAN's slot

class SvlanEntry : public testing::Test {
  protected:
    SvlanEntry()
    {
        for (GSvlanAddressTableConfig* entry : {&diff.before, &diff.after}) {
            entry->exist = 1;
            entry->svlan = 100;
        }
        diff.view = "address-table-view";
    }

    Diff<GSvlanAddressTableConfig> diff{getdiff_GSvlanAddressTableConfig};
};

TEST_F(SvlanEntry, EverySettingOn)
{
    diff.after.forwarding_mode = 1;
    diff.after.use_svlan = 1;
    diff.after.use_cvlan = 1;
    diff.after.use_pbits = 1;
    diff.after.discard_unknown = 1;
    EXPECT_EQ(diff.elements(), behind("", "s-vlan 100 forwarding-mode \"1-to-1\"\n"
                                          "s-vlan 100 use s-vlan\n"
                                          "s-vlan 100 use c-vlan\n"
                                          "s-vlan 100 use pbits\n"
                                          "s-vlan 100 discard-unknown\n"));
}

TEST_F(SvlanEntry, EverySettingOff)
{
    diff.before.forwarding_mode = 2;
    diff.before.use_svlan = 1;
    diff.before.use_cvlan = 1;
    diff.before.use_pbits = 1;
    diff.before.discard_unknown = 1;
    EXPECT_EQ(diff.elements(), behind("", "s-vlan 100 forwarding-mode \"n-to-1\"\n"
                                          "no s-vlan 100 use s-vlan\n"
                                          "no s-vlan 100 use c-vlan\n"
                                          "no s-vlan 100 use pbits\n"
                                          "no s-vlan 100 discard-unknown\n"));
}

TEST_F(SvlanEntry, EachSettingByItself)
{
    diff.after.forwarding_mode = 2;
    EXPECT_EQ(diff.elements(), (Elements{"", "s-vlan 100 forwarding-mode \"tls\""}));
    diff.after.forwarding_mode = 0;
    diff.after.use_svlan = 1;
    EXPECT_EQ(diff.elements(), (Elements{"", "s-vlan 100 use s-vlan"}));
    diff.after.use_svlan = 0;
    diff.after.use_cvlan = 1;
    EXPECT_EQ(diff.elements(), (Elements{"", "s-vlan 100 use c-vlan"}));
    diff.after.use_cvlan = 0;
    diff.after.use_pbits = 1;
    EXPECT_EQ(diff.elements(), (Elements{"", "s-vlan 100 use pbits"}));
    diff.after.use_pbits = 0;
    diff.after.discard_unknown = 1;
    EXPECT_EQ(diff.elements(), (Elements{"", "s-vlan 100 discard-unknown"}));
}

TEST_F(SvlanEntry, AnyNonZeroSwitchIsOn)
{
    diff.before.use_svlan = 1;
    diff.after.use_svlan = 2;
    diff.after.use_cvlan = 65535;
    EXPECT_EQ(diff.script(), "s-vlan 100 use s-vlan\ns-vlan 100 use c-vlan\n");
}

TEST_F(SvlanEntry, ForwardingModeOutsideTheVocabulary)
{
    diff.after.forwarding_mode = 65535;
    EXPECT_EQ(diff.script(), "s-vlan 100 forwarding-mode \"unknown\"\n");
}

TEST_F(SvlanEntry, PrintAllForcesEverySettingAndNotTheBareNumber)
{
    for (const int common : {0, 1, 2}) {
        diff.all = 1;
        diff.common = common;
        EXPECT_EQ(diff.script(), "s-vlan 100 forwarding-mode \"n-to-1\"\n"
                                 "no s-vlan 100 use s-vlan\n"
                                 "no s-vlan 100 use c-vlan\n"
                                 "no s-vlan 100 use pbits\n"
                                 "no s-vlan 100 discard-unknown\n");
    }
}

TEST_F(SvlanEntry, SlotIsEmptyWhileItsNumberIsZeroOnBothSides)
{
    diff.before = GSvlanAddressTableConfig{};
    diff.after.svlan = 0;
    diff.after.forwarding_mode = 1;
    diff.after.use_svlan = 1;
    for (const int all : {0, 1}) {
        diff.all = all;
        EXPECT_EQ(diff.elements(), Elements{});
    }
}

TEST_F(SvlanEntry, SlotThatDoesNotExistShowsItsSettingsAllTheSame)
{
    diff.before.exist = diff.after.exist = 0;
    diff.after.use_pbits = 1;
    EXPECT_EQ(diff.script(), "s-vlan 100 use pbits\n");
    diff.after = diff.before;
    diff.after.svlan = 200;
    EXPECT_EQ(diff.script(), "s-vlan 200\n") << "and its move";
}

TEST_F(SvlanEntry, NewWithoutSettingsIsTheBareNumber)
{
    diff.before = GSvlanAddressTableConfig{};
    EXPECT_EQ(diff.elements(), (Elements{"", "s-vlan 100"}));
}

TEST_F(SvlanEntry, NewWithASettingIsNamedByIt)
{
    diff.before = GSvlanAddressTableConfig{};
    diff.after.discard_unknown = 1;
    EXPECT_EQ(diff.elements(), (Elements{"", "s-vlan 100 discard-unknown"}));
}

TEST_F(SvlanEntry, NewUnderTheNumberThatTheSlotHeld)
{
    diff.before.exist = 0;
    EXPECT_EQ(diff.elements(), (Elements{"", "s-vlan 100"}));
    diff.after.exist = 65535;
    EXPECT_EQ(diff.elements(), (Elements{"", "s-vlan 100"}));
}

TEST_F(SvlanEntry, BareNumberNavigatesLikeEveryCommand)
{
    diff.before.exist = 0;
    diff.view = "configure-view";
    EXPECT_EQ(diff.elements(), (Elements{"profile address-table \"\"", "s-vlan 100"}));
}

TEST_F(SvlanEntry, FlagAloneOfASlotThatExistedSaysNothing)
{
    diff.after.exist = 0;
    EXPECT_EQ(diff.elements(), Elements{});
    diff.after.exist = 2;
    EXPECT_EQ(diff.elements(), Elements{});
    std::swap(diff.before, diff.after);
    EXPECT_EQ(diff.elements(), Elements{}) << "2 existed: 1 is not new";
}

TEST_F(SvlanEntry, MovedToAnotherNumber)
{
    diff.after.svlan = 200;
    EXPECT_EQ(diff.elements(), (Elements{"", "s-vlan 200"}));
}

TEST_F(SvlanEntry, MovedWithASettingIsNamedByItAlone)
{
    diff.after.svlan = 200;
    diff.after.use_cvlan = 1;
    EXPECT_EQ(diff.elements(), (Elements{"", "s-vlan 200 use c-vlan"}));
}

TEST_F(SvlanEntry, MovedAndForcedShowsTheNewNumber)
{
    diff.after.svlan = 200;
    diff.all = 1;
    EXPECT_EQ(diff.script(), "s-vlan 200 forwarding-mode \"n-to-1\"\n"
                             "no s-vlan 200 use s-vlan\n"
                             "no s-vlan 200 use c-vlan\n"
                             "no s-vlan 200 use pbits\n"
                             "no s-vlan 200 discard-unknown\n");
}

TEST_F(SvlanEntry, ClearedIsTheBareZero)
{
    diff.before.use_svlan = diff.after.use_svlan = 1;
    diff.after.exist = 0;
    diff.after.svlan = 0;
    EXPECT_EQ(diff.elements(), (Elements{"", "s-vlan 0"}));
}

TEST_F(SvlanEntry, ClearedWithItsSettingsIsTheirNoForms)
{
    diff.before.use_svlan = diff.before.discard_unknown = 1;
    diff.after = GSvlanAddressTableConfig{};
    EXPECT_EQ(diff.elements(), (Elements{"", "no s-vlan 0 use s-vlan", "", "no s-vlan 0 discard-unknown"}));
}

TEST_F(SvlanEntry, NumberIsSigned)
{
    diff.after.svlan = -1;
    EXPECT_EQ(diff.script(), "s-vlan -1\n");
    diff.after.svlan = -32768;
    diff.after.use_svlan = 1;
    EXPECT_EQ(diff.script(), "s-vlan -32768 use s-vlan\n");
    diff.after.svlan = 32767;
    diff.after.use_svlan = 0;
    diff.after.forwarding_mode = 1;
    EXPECT_EQ(diff.script(), "s-vlan 32767 forwarding-mode \"1-to-1\"\n");
}

// ------------------------------------------------------------------------------------------------------- the profile

class AddressTableProfile : public OltProfileTest<GPonProfileOltAddressTable> {
  protected:
    AddressTableProfile() : OltProfileTest(getdiff_GPonProfileOltAddressTable, &GPonProfilesOlt::address_table) {}
};

TEST_F(AddressTableProfile, NewIsEnteredAndNothingMore)
{
    diff.before = GPonProfileOltAddressTable{};
    EXPECT_EQ(elements(), Elements{"configure terminal\nprofile address-table \"office\""});
}

TEST_F(AddressTableProfile, NewWithSettingsOfItsOwn)
{
    diff.before = GPonProfileOltAddressTable{};
    put(diff.after.description, "main");
    diff.after.table_config.discard_pid_unlearned_sa = 1;
    diff.after.svlan_config[0] = {1, 100, 1, 0, 0, 0, 0};
    EXPECT_EQ(elements(), (Elements{"configure terminal\nprofile address-table \"office\"", "", "description \"main\"",
                                    "", "discard-pid-unlearned-sa", "", "s-vlan 100 forwarding-mode \"1-to-1\""}));
}

TEST_F(AddressTableProfile, NewInASlotThatHeldAnotherNameIsNotNamed)
{
    diff.before.exist = 0;
    put(diff.before.name, "hotel");
    EXPECT_EQ(elements(), Elements{"configure terminal\nprofile address-table \"office\""});
}

TEST_F(AddressTableProfile, NewInAFullDumpIsEnteredBeforeItIsNamed)
{
    diff.before = GPonProfileOltAddressTable{};
    diff.all = 1;
    EXPECT_EQ(elements(), (Elements{"configure terminal\nprofile address-table \"office\"", "", "name \"office\"", "",
                                    "description \"\"", "", "no remove-when-aged", "", "no discard-pid-unlearned-sa"}));
}

TEST_F(AddressTableProfile, RenamedUnderItsOldName)
{
    put(diff.after.name, "hotel");
    EXPECT_EQ(elements(), (Elements{"configure terminal\nprofile address-table \"office\"", "name \"hotel\""}));
}

TEST_F(AddressTableProfile, EveryFieldChangedInOrder)
{
    put(diff.after.name, "sixteen-letters!");
    put(diff.after.description, std::string(256, 'd'));
    diff.after.table_config = {1, 1, 300};
    diff.after.svlan_config[0] = {1, 100, 0, 1, 0, 0, 0};
    diff.after.svlan_config[1] = {1, 200, 0, 0, 0, 0, 0};
    diff.after.svlan_config[511] = {1, 4094, 2, 0, 1, 0, 1};
    EXPECT_EQ(script(), "configure terminal\nprofile address-table \"office\"\n"
                        "name \"sixteen-letters!\"\n"
                        "description \"" +
                            std::string(256, 'd') +
                            "\"\n"
                            "remove-when-aged\n"
                            "discard-pid-unlearned-sa\n"
                            "s-vlan 100 use s-vlan\n"
                            "s-vlan 200\n"
                            "s-vlan 4094 forwarding-mode \"tls\"\n"
                            "s-vlan 4094 use c-vlan\n"
                            "s-vlan 4094 discard-unknown\n");
    EXPECT_EQ(diff.key[0], 4);
    EXPECT_EQ(diff.key[1], 511);
}

TEST_F(AddressTableProfile, AgingTimerHasNoCommand)
{
    diff.after.table_config.aging_timer = 300;
    EXPECT_EQ(elements(), Elements{});
    EXPECT_EQ(diff.key[1], 511);
}

TEST_F(AddressTableProfile, FullDumpRepeatsTheName)
{
    for (const int common : {0, 1, 2}) {
        diff.all = 1;
        diff.common = common;
        EXPECT_EQ(script(), "configure terminal\nprofile address-table \"office\"\n"
                            "name \"office\"\n"
                            "description \"\"\n"
                            "no remove-when-aged\n"
                            "no discard-pid-unlearned-sa\n");
    }
}

TEST_F(AddressTableProfile, FullDumpShowsSlotsWithANumberOnEitherSide)
{
    diff.all = 1;
    diff.after.svlan_config[0].svlan = 100;
    diff.before.svlan_config[1].svlan = 200;
    diff.before.svlan_config[511].svlan = diff.after.svlan_config[511].svlan = 300;
    EXPECT_EQ(script(), "configure terminal\nprofile address-table \"office\"\n"
                        "name \"office\"\n"
                        "description \"\"\n"
                        "no remove-when-aged\n"
                        "no discard-pid-unlearned-sa\n"
                        "s-vlan 100 forwarding-mode \"n-to-1\"\n"
                        "no s-vlan 100 use s-vlan\n"
                        "no s-vlan 100 use c-vlan\n"
                        "no s-vlan 100 use pbits\n"
                        "no s-vlan 100 discard-unknown\n"
                        "s-vlan 0 forwarding-mode \"n-to-1\"\n"
                        "no s-vlan 0 use s-vlan\n"
                        "no s-vlan 0 use c-vlan\n"
                        "no s-vlan 0 use pbits\n"
                        "no s-vlan 0 discard-unknown\n"
                        "s-vlan 300 forwarding-mode \"n-to-1\"\n"
                        "no s-vlan 300 use s-vlan\n"
                        "no s-vlan 300 use c-vlan\n"
                        "no s-vlan 300 use pbits\n"
                        "no s-vlan 300 discard-unknown\n");
}

TEST_F(AddressTableProfile, FullDumpOf512SlotsShowsFiveCommandsOfEach)
{
    diff.all = 1;
    for (int slot = 0; slot < 512; ++slot) {
        diff.after.svlan_config[slot].svlan = static_cast<s16>(slot + 1);
    }
    diff.before = diff.after;
    std::string expected = "configure terminal\nprofile address-table \"office\"\n"
                           "name \"office\"\n"
                           "description \"\"\n"
                           "no remove-when-aged\n"
                           "no discard-pid-unlearned-sa\n";
    for (int svlan = 1; svlan <= 512; ++svlan) {
        const std::string number = std::to_string(svlan);
        expected += "s-vlan " + number + " forwarding-mode \"n-to-1\"\n";
        for (const char* setting : {"use s-vlan", "use c-vlan", "use pbits", "discard-unknown"}) {
            expected += "no s-vlan " + number + " " + setting + "\n";
        }
    }
    EXPECT_EQ(script(), expected);
}

TEST_F(AddressTableProfile, RemovedIsOneCommandWithTheOldNameUnquoted)
{
    diff.before.svlan_config[0] = {1, 100, 0, 1, 0, 0, 0};
    diff.after = GPonProfileOltAddressTable{};
    for (const int all : {0, 1}) {
        diff.all = all;
        EXPECT_EQ(elements(), (Elements{"configure terminal", "no profile address-table office"}));
        EXPECT_EQ(diff.key[1], 9);
    }
}

TEST_F(AddressTableProfile, RemovedFromItsOwnView)
{
    diff.after.exist = 0;
    diff.view = "address-table-view";
    diff.view_key = 4;
    EXPECT_EQ(elements(), (Elements{"exit", "no profile address-table office"}));
}

TEST_F(AddressTableProfile, RemovedKeepsPlaceholdersInItsName)
{
    diff.after.exist = 0;
    put(diff.before.name, "slot$ID0");
    EXPECT_EQ(elements(), (Elements{"configure terminal", "no profile address-table slot$ID0"}));
}

TEST_F(AddressTableProfile, RemovedNameThatFillsItsArray)
{
    diff.after.exist = 0;
    put(diff.before.name, "sixteen-letters!");
    put(diff.before.description, "main");
    EXPECT_EQ(elements(), (Elements{"configure terminal", "no profile address-table sixteen-letters!"}));
}

TEST_F(AddressTableProfile, AnyNonZeroFlagOfTheOldRecordIsRemoved)
{
    diff.before.exist = 65535;
    diff.after.exist = 0;
    EXPECT_EQ(elements(), (Elements{"configure terminal", "no profile address-table office"}));
}

TEST_F(AddressTableProfile, NewWithAnotherFlagThanOneIsEnteredByItsSettingsAlone)
{
    diff.before.exist = 0;
    diff.after.exist = 2;
    EXPECT_EQ(elements(), Elements{});
    put(diff.after.description, "main");
    EXPECT_EQ(elements(), (Elements{"configure terminal\nprofile address-table \"office\"", "description \"main\""}));
}

TEST_F(AddressTableProfile, RenameIsSeenWhereTheOldFlagIsExactlyOne)
{
    put(diff.after.name, "hotel");
    diff.after.exist = 65535;
    EXPECT_EQ(script(), "configure terminal\nprofile address-table \"office\"\nname \"hotel\"\n");
    diff.before.exist = 2;
    EXPECT_EQ(elements(), Elements{});
}

} // namespace
