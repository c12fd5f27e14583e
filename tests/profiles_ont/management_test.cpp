#include "tests/profiles_ont/profile_test.h"

namespace {

using Profile = GPonProfileOntManagement;

class Management : public testing::Test {
  protected:
    ProfileDiff<Profile> diff{getdiff_GPonProfileOntManagement, "management-view"};
};

TEST_F(Management, EveryFieldInOrder)
{
    put(diff.after.description, "by OMCI");
    diff.after.enable_omci_configuration = 1;
    put(diff.after.url, "http://192.0.2.1/cfg");
    put(diff.after.username, "ont");
    put(diff.after.password, "as typed");
    put(diff.after.ont_config_version, "1.7");
    put(diff.after.ont_config_file, "ont.cfg");
    EXPECT_EQ(diff.elements(), behind("", "description \"by OMCI\"\n"
                                          "omci-configuration\n"
                                          "url \"http://192.0.2.1/cfg\"\n"
                                          "username \"ont\"\n"
                                          "password \"as typed\"\n"
                                          "ont-config version \"1.7\" file \"ont.cfg\"\n"));
}

TEST_F(Management, EachFieldAlone)
{
    expect_each_alone<Profile>(
        diff, {
                  {[](Profile& p) { put(p.description, "by OMCI"); }, "description \"by OMCI\"\n"},
                  {[](Profile& p) { p.enable_omci_configuration = 1; }, "omci-configuration\n"},
                  {[](Profile& p) { p.enable_omci_configuration = 2; }, "omci-configuration\n"},
                  {[](Profile& p) { p.enable_omci_configuration = 65535; }, "omci-configuration\n"},
                  {[](Profile& p) { put(p.url, "http://192.0.2.1/cfg"); }, "url \"http://192.0.2.1/cfg\"\n"},
                  {[](Profile& p) { put(p.username, "ont"); }, "username \"ont\"\n"},
                  {[](Profile& p) { put(p.password, "as typed"); }, "password \"as typed\"\n"},
                  {[](Profile& p) { put(p.ont_config_version, "1.7"); }, "ont-config version \"1.7\"\n"},
                  {[](Profile& p) { put(p.ont_config_file, "ont.cfg"); }, ""},
                  {[](Profile& p) { p.revision = 9; }, ""},
              });
}

TEST_F(Management, OmciConfigurationSwitchedOff)
{
    for (const std::uint16_t on : on_values) {
        diff.before.enable_omci_configuration = on;
        EXPECT_EQ(diff.script(), "no omci-configuration\n");
    }
}

TEST_F(Management, SwitchThatStaysOnIsShownWhenItsValueChanges)
{
    diff.before.enable_omci_configuration = 1;
    diff.after.enable_omci_configuration = 2;
    EXPECT_EQ(diff.script(), "omci-configuration\n");
}

TEST_F(Management, NewFileIsSeenOnlyTogetherWithANewVersion)
{
    put(diff.before.ont_config_version, "1.6");
    put(diff.before.ont_config_file, "old.cfg");
    diff.after = diff.before;
    put(diff.after.ont_config_file, "new.cfg");
    EXPECT_EQ(diff.elements(), Elements{});
    put(diff.after.ont_config_version, "1.7");
    EXPECT_EQ(diff.elements(), (Elements{"", "ont-config version \"1.7\" file \"new.cfg\""}));
    put(diff.after.ont_config_file, "old.cfg");
    EXPECT_EQ(diff.elements(), (Elements{"", "ont-config version \"1.7\""}));
}

TEST_F(Management, NewProfileWithOmciConfiguration)
{
    Session session;
    session.cfg->pon.profiles_ont.management[5].exist = 1;
    put(session.cfg->pon.profiles_ont.management[5].name, "gold");
    session.open();
    diff.view = "root";
    diff.before = Profile{};
    diff.after.enable_omci_configuration = 1;
    EXPECT_EQ(diff.elements(), (Elements{"configure terminal\nprofile management \"gold\"", "", "omci-configuration"}));
}

TEST_F(Management, DumpShowsEveryFieldWhateverPartIsWanted)
{
    for (const int common : {0, 1, 2}) {
        diff.all = 1;
        diff.common = common;
        EXPECT_EQ(diff.script(), "name \"gold\"\n"
                                 "description \"\"\n"
                                 "no omci-configuration\n"
                                 "url \"\"\n"
                                 "username \"\"\n"
                                 "password \"\"\n"
                                 "ont-config version \"\" file \"\"\n");
    }
}

TEST_F(Management, TextsThatFillTheirArrays)
{
    put(diff.after.url, std::string(128, 'u'));
    put(diff.after.username, std::string(26, 'n'));
    put(diff.after.password, std::string(26, 'p'));
    put(diff.after.ont_config_version, std::string(16, 'v'));
    put(diff.after.ont_config_file, std::string(128, 'f'));
    std::string expected = "url \"" + std::string(128, 'u') + "\"\n";
    expected += "username \"" + std::string(26, 'n') + "\"\n";
    expected += "password \"" + std::string(26, 'p') + "\"\n";
    expected += "ont-config version \"" + std::string(16, 'v') + "\" file \"" + std::string(128, 'f') + "\"\n";
    EXPECT_EQ(diff.script(), expected);
}

TEST_F(Management, BytesBehindATerminatorCountAsAChange)
{
    expect_each_alone<Profile>(diff,
                               {
                                   {[](Profile& p) { p.url[127] = 'x'; }, "url \"\"\n"},
                                   {[](Profile& p) { p.username[25] = 'x'; }, "username \"\"\n"},
                                   {[](Profile& p) { p.password[25] = 'x'; }, "password \"\"\n"},
                                   {[](Profile& p) { p.ont_config_version[15] = 'x'; }, "ont-config version \"\"\n"},
                               });
}

} // namespace
