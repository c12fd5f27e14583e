#include "tests/profiles_ont/profile_test.h"

namespace {

using Profile = GPonProfileOntVoice;
using Sip = GPonProfileOntVoiceSip;

class VoiceProfile : public testing::Test {
  protected:
    VoiceProfile() { sip.view = "voice-view"; }

    ProfileDiff<Profile> diff{getdiff_GPonProfileOntVoice, "voice-view"};
    Diff<Sip> sip{getdiff_GPonProfileOntVoiceSip};
};

TEST_F(VoiceProfile, EveryFieldInOrder)
{
    put(diff.after.description, "telephones");
    put(diff.after.sip.proxy, "192.0.2.5");
    put(diff.after.sip.domain, "voip.example");
    put(diff.after.sip.outband_proxy, "192.0.2.6");
    diff.after.sip.port = 5060;
    diff.after.sip.proto = 1;
    diff.after.sip.expire_time = 3600;
    put(diff.after.ont_config_version, "2.1");
    put(diff.after.ont_config_file, "voice.cfg");
    EXPECT_EQ(diff.elements(), behind("", "description \"telephones\"\n"
                                          "sip proxy \"192.0.2.5\"\n"
                                          "sip domain \"voip.example\"\n"
                                          "sip outbound-proxy \"192.0.2.6\"\n"
                                          "sip port 5060\n"
                                          "sip proto \"tcp\"\n"
                                          "sip register expire 3600\n"
                                          "ont-config version \"2.1\" file \"voice.cfg\"\n"));
}

TEST_F(VoiceProfile, EachSipFieldAlone)
{
    expect_each_alone<Sip>(sip, {
                                    {[](Sip& s) { put(s.proxy, "192.0.2.5"); }, "sip proxy \"192.0.2.5\"\n"},
                                    {[](Sip& s) { put(s.domain, "voip.example"); }, "sip domain \"voip.example\"\n"},
                                    {[](Sip& s) { put(s.outband_proxy, "out"); }, "sip outbound-proxy \"out\"\n"},
                                    {[](Sip& s) { s.port = 5060; }, "sip port 5060\n"},
                                    {[](Sip& s) { s.port = 2147483647U; }, "sip port 2147483647\n"},
                                    {[](Sip& s) { s.port = 2147483648U; }, "sip port -2147483648\n"},
                                    {[](Sip& s) { s.port = 4294967295U; }, "sip port -1\n"},
                                    {[](Sip& s) { s.proto = 1; }, "sip proto \"tcp\"\n"},
                                    {[](Sip& s) { s.proto = 2; }, "sip proto \"tls\"\n"},
                                    {[](Sip& s) { s.proto = 255; }, "sip proto \"unknown\"\n"},
                                    {[](Sip& s) { s.expire_time = 1; }, "sip register expire 1\n"},
                                    {[](Sip& s) { s.expire_time = 65535; }, "sip register expire 65535\n"},
                                });
}

TEST_F(VoiceProfile, EachProfileFieldAlone)
{
    expect_each_alone<Profile>(
        diff, {
                  {[](Profile& p) { put(p.description, "telephones"); }, "description \"telephones\"\n"},
                  {[](Profile& p) { p.sip.expire_time = 60; }, "sip register expire 60\n"},
                  {[](Profile& p) { put(p.ont_config_version, "2.1"); }, "ont-config version \"2.1\"\n"},
                  {[](Profile& p) { put(p.ont_config_file, "voice.cfg"); }, ""},
                  {[](Profile& p) { p.revision = 9; }, ""},
              });
}

TEST_F(VoiceProfile, NewFileIsSeenOnlyTogetherWithANewVersion)
{
    put(diff.before.ont_config_version, "2.0");
    put(diff.before.ont_config_file, "old.cfg");
    diff.after = diff.before;
    put(diff.after.ont_config_file, "new.cfg");
    EXPECT_EQ(diff.elements(), Elements{});
    put(diff.after.ont_config_version, "2.1");
    EXPECT_EQ(diff.elements(), (Elements{"", "ont-config version \"2.1\" file \"new.cfg\""}));
    put(diff.after.ont_config_file, "old.cfg");
    EXPECT_EQ(diff.elements(), (Elements{"", "ont-config version \"2.1\""}));
}

TEST_F(VoiceProfile, DumpShowsEveryFieldWhateverPartIsWanted)
{
    for (const int common : {0, 1, 2}) {
        diff.all = 1;
        diff.common = common;
        EXPECT_EQ(diff.script(), "name \"gold\"\n"
                                 "description \"\"\n"
                                 "sip proxy \"\"\n"
                                 "sip domain \"\"\n"
                                 "sip outbound-proxy \"\"\n"
                                 "sip port 0\n"
                                 "sip proto \"udp\"\n"
                                 "sip register expire 0\n"
                                 "ont-config version \"\" file \"\"\n");
    }
}

TEST_F(VoiceProfile, SipCommandsEnterTheViewOfTheProfile)
{
    Session session;
    session.orig->pon.profiles_ont.voice[31].exist = 1;
    put(session.orig->pon.profiles_ont.voice[31].name, "lines");
    session.open();
    sip.view = "root";
    sip.key[0] = 31;
    sip.after.port = 5061;
    EXPECT_EQ(sip.script(), "configure terminal\nprofile voice \"lines\"\nsip port 5061\n");
}

TEST_F(VoiceProfile, TextsThatFillTheirArrays)
{
    put(diff.after.sip.proxy, std::string(25, 'p'));
    put(diff.after.sip.domain, std::string(25, 'd'));
    put(diff.after.sip.outband_proxy, std::string(25, 'o'));
    diff.after.sip.port = 0x41414141;
    put(diff.after.ont_config_version, std::string(16, 'v'));
    put(diff.after.ont_config_file, std::string(128, 'f'));
    std::string expected = "sip proxy \"" + std::string(25, 'p') + "\"\n";
    expected += "sip domain \"" + std::string(25, 'd') + "\"\n";
    expected += "sip outbound-proxy \"" + std::string(25, 'o') + "\"\n";
    expected += "sip port 1094795585\n";
    expected += "ont-config version \"" + std::string(16, 'v') + "\" file \"" + std::string(128, 'f') + "\"\n";
    EXPECT_EQ(diff.script(), expected);
}

} // namespace
