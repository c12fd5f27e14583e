#include "tests/support/diff.h"

namespace {

class OntVoice : public testing::Test {
  protected:
    OntVoice()
    {
        diff.key[0] = diff.view_key = 70;
        diff.view = "if-ont-view";
    }

    void reset() { before = after = {}; }

    Diff<GPonOntVoiceCfg> diff{getdiff_GPonOntVoice};
    GPonOntVoiceCfg& before = diff.before;
    GPonOntVoiceCfg& after = diff.after;
};

void fill_port(GPonOntVoicePort& port, const std::string& number)
{
    put(port.number, number);
    put(port.auth_name, "user-" + number);
    put(port.auth_passwd, "pass-" + number);
    put(port.auth_realm, "realm-" + number);
    port.auth_validation = 1;
    port.physical_impedance = 600;
    port.physical_gain_tx = -3;
    port.physical_gain_rx = 127;
}

TEST_F(OntVoice, EveryRowInOrder)
{
    diff.view = "root";
    put(after.voice_iphost.static_ip, {192, 0, 2, 10});
    put(after.voice_iphost.static_mask, {255, 255, 255, 0});
    put(after.voice_iphost.static_gateway, {192, 0, 2, 1});
    fill_port(after.voice_port[0], "100");
    fill_port(after.voice_port[1], "101");
    after.voice_port[1].auth_validation = 3;
    after.voice_port[1].physical_impedance = -32768;
    after.voice_port[1].physical_gain_tx = 12;
    after.voice_port[1].physical_gain_rx = -128;
    after.voip.feature_cid = 63;
    after.voip.feature_call_wait = 3;
    after.voip.feature_call_progress = 255;
    after.voip.feature_call_present = 15;
    after.voip.fax_mode = 1;
    after.voip.dtmf_mode = 2;
    after.voip.cas_events = 1;
    after.voip.piggyback_events = 1;
    after.voip.tone_events = 1;
    after.voip.dtmf_events = 1;
    EXPECT_EQ(diff.script(), "configure terminal\n"
                             "interface ont 1/6\n"
                             "voice iphost static ip \"192.0.2.10\"\n"
                             "voice iphost static mask \"255.255.255.0\"\n"
                             "voice iphost static gateway \"192.0.2.1\"\n"
                             "voice port 0 number \"100\"\n"
                             "voice port 0 authentication username \"user-100\"\n"
                             "voice port 0 authentication password \"pass-100\"\n"
                             "voice port 0 authentication realm \"realm-100\"\n"
                             "voice port 0 authentication validation md5-digest\n"
                             "voice port 0 physical impedance 600\n"
                             "voice port 0 physical gain tx -3\n"
                             "voice port 0 physical gain rx 127\n"
                             "voice port 1 number \"101\"\n"
                             "voice port 1 authentication username \"user-101\"\n"
                             "voice port 1 authentication password \"pass-101\"\n"
                             "voice port 1 authentication realm \"realm-101\"\n"
                             "voice port 1 authentication validation basic\n"
                             "voice port 1 physical impedance -32768\n"
                             "voice port 1 physical gain tx 12\n"
                             "voice port 1 physical gain rx -128\n"
                             "voice features cid call-number\n"
                             "voice features cid call-name\n"
                             "voice features cid cid-block\n"
                             "voice features cid cid-number\n"
                             "voice features cid cid-name\n"
                             "voice features cid anon-cid-block\n"
                             "voice features call-wait enable\n"
                             "voice features call-wait call-id-annonce\n"
                             "voice features call-progress 3way\n"
                             "voice features call-progress transfer\n"
                             "voice features call-progress hold\n"
                             "voice features call-progress park\n"
                             "voice features call-progress not-disturb\n"
                             "voice features call-progress flash-on-emergency\n"
                             "voice features call-progress emergency-hold\n"
                             "voice features call-progress 6way\n"
                             "voice features call-presentation splash-ring\n"
                             "voice features call-presentation special-dialtone\n"
                             "voice features call-presentation visual\n"
                             "voice features call-presentation call-forward\n"
                             "voice fax-mode \"t38\"\n"
                             "voice dtmf mode \"sip-info\"\n"
                             "voice rtp cas enable\n"
                             "voice rtp piggyback enable\n"
                             "voice rtp tone enable\n"
                             "voice rtp dtmf enable\n");
}

TEST_F(OntVoice, PrintAllForcesWhateverPartIsWanted)
{
    diff.all = 1;
    for (const int common : {0, 1, 2}) {
        diff.common = common;
        EXPECT_EQ(diff.script(), "voice iphost static ip \"0.0.0.0\"\n"
                                 "voice iphost static mask \"0.0.0.0\"\n"
                                 "voice iphost static gateway \"0.0.0.0\"\n"
                                 "voice port 0 number \"\"\n"
                                 "voice port 0 authentication username \"\"\n"
                                 "voice port 0 authentication password \"\"\n"
                                 "voice port 0 authentication realm \"\"\n"
                                 "voice port 0 authentication validation disabled\n"
                                 "voice port 0 physical impedance 0\n"
                                 "voice port 0 physical gain tx 0\n"
                                 "voice port 0 physical gain rx 0\n"
                                 "voice port 1 number \"\"\n"
                                 "voice port 1 authentication username \"\"\n"
                                 "voice port 1 authentication password \"\"\n"
                                 "voice port 1 authentication realm \"\"\n"
                                 "voice port 1 authentication validation disabled\n"
                                 "voice port 1 physical impedance 0\n"
                                 "voice port 1 physical gain tx 0\n"
                                 "voice port 1 physical gain rx 0\n"
                                 "no voice features cid call-number\n"
                                 "no voice features cid call-name\n"
                                 "no voice features cid cid-block\n"
                                 "no voice features cid cid-number\n"
                                 "no voice features cid cid-name\n"
                                 "no voice features cid anon-cid-block\n"
                                 "no voice features call-wait enable\n"
                                 "no voice features call-wait call-id-annonce\n"
                                 "no voice features call-progress 3way\n"
                                 "no voice features call-progress transfer\n"
                                 "no voice features call-progress hold\n"
                                 "no voice features call-progress park\n"
                                 "no voice features call-progress not-disturb\n"
                                 "no voice features call-progress flash-on-emergency\n"
                                 "no voice features call-progress emergency-hold\n"
                                 "no voice features call-progress 6way\n"
                                 "no voice features call-presentation splash-ring\n"
                                 "no voice features call-presentation special-dialtone\n"
                                 "no voice features call-presentation visual\n"
                                 "no voice features call-presentation call-forward\n"
                                 "voice fax-mode \"passthrough\"\n"
                                 "voice dtmf mode \"inband\"\n"
                                 "no voice rtp cas\n"
                                 "no voice rtp piggyback\n"
                                 "no voice rtp tone\n"
                                 "no voice rtp dtmf\n");
    }
}

// ---------------------------------------------------------------------------------------------------- voice ports

TEST_F(OntVoice, EachFieldOfAPortAlone)
{
    put(after.voice_port[1].number, "5");
    EXPECT_EQ(diff.elements(), (Elements{"", "voice port 1 number \"5\""}));
    reset();
    put(after.voice_port[0].auth_name, "anna");
    EXPECT_EQ(diff.elements(), (Elements{"", "voice port 0 authentication username \"anna\""}));
    reset();
    put(after.voice_port[1].auth_passwd, "pw");
    EXPECT_EQ(diff.elements(), (Elements{"", "voice port 1 authentication password \"pw\""}));
    reset();
    put(after.voice_port[0].auth_realm, "home");
    EXPECT_EQ(diff.elements(), (Elements{"", "voice port 0 authentication realm \"home\""}));
    reset();
    after.voice_port[1].auth_validation = 2;
    EXPECT_EQ(diff.elements(), (Elements{"", "voice port 1 authentication validation unknown"}));
    reset();
    after.voice_port[0].physical_impedance = 32767;
    EXPECT_EQ(diff.elements(), (Elements{"", "voice port 0 physical impedance 32767"}));
    reset();
    after.voice_port[1].physical_gain_tx = -3;
    EXPECT_EQ(diff.elements(), (Elements{"", "voice port 1 physical gain tx -3"}));
    reset();
    after.voice_port[0].physical_gain_rx = -128;
    EXPECT_EQ(diff.elements(), (Elements{"", "voice port 0 physical gain rx -128"}));
}

TEST_F(OntVoice, PortAloneEntersTheViewOfTheOnt)
{
    diff.view = "root";
    after.voice_port[1].physical_gain_tx = 1;
    EXPECT_EQ(diff.elements(), (Elements{"configure terminal\ninterface ont 1/6", "voice port 1 physical gain tx 1"}));
    reset();
    put(after.voice_port[1].auth_realm, "r");
    EXPECT_EQ(diff.elements(),
              (Elements{"configure terminal\ninterface ont 1/6", "voice port 1 authentication realm \"r\""}));
    reset();
    put(after.voice_port[0].number, "1");
    EXPECT_EQ(diff.elements(), (Elements{"configure terminal\ninterface ont 1/6", "voice port 0 number \"1\""}));
}

TEST_F(OntVoice, RealmIsComparedWithTheOldPassword)
{
    // Unchanged and unlike the old password: shown as soon as anything else changes.
    put(before.voice_port[0].auth_passwd, "x");
    put(before.voice_port[0].auth_realm, "r");
    after = before;
    EXPECT_EQ(diff.elements(), Elements{});
    after.voip.fax_mode = 1;
    EXPECT_EQ(diff.script(), "voice port 0 authentication realm \"r\"\nvoice fax-mode \"t38\"\n");
}

TEST_F(OntVoice, RealmThatEqualsTheOldPasswordSaysNothing)
{
    put(before.voice_port[1].auth_passwd, "abc");
    put(before.voice_port[1].auth_realm, "old");
    after = before;
    put(after.voice_port[1].auth_realm, "abc");
    EXPECT_EQ(diff.elements(), Elements{});
    put(after.voice_port[1].auth_passwd, "new");
    EXPECT_EQ(diff.script(), "voice port 1 authentication password \"new\"\n");
    diff.all = 1;
    EXPECT_NE(diff.script().find("voice port 1 authentication realm \"abc\"\n"), std::string::npos);
}

TEST_F(OntVoice, RealmIsComparedBehindItsTerminatorToo)
{
    put(before.voice_port[0].auth_passwd, "abc");
    after = before;
    put(after.voice_port[0].auth_realm, "abc");
    after.voice_port[0].auth_realm[24] = 'z';
    EXPECT_EQ(diff.script(), "voice port 0 authentication realm \"abc\"\n");
}

TEST_F(OntVoice, TextsThatFillTheirArrays)
{
    put(after.voice_port[0].number, std::string(25, '1'));
    after.voice_port[0].auth_validation = 'x';
    put(after.voice_port[0].auth_name, std::string(25, 'n'));
    put(after.voice_port[0].auth_passwd, std::string(25, 'p'));
    put(after.voice_port[0].auth_realm, std::string(25, 'r'));
    after.voice_port[0].physical_impedance = 0x7878;
    EXPECT_EQ(diff.script(), "voice port 0 number \"1111111111111111111111111\"\n"
                             "voice port 0 authentication username \"nnnnnnnnnnnnnnnnnnnnnnnnn\"\n"
                             "voice port 0 authentication password \"ppppppppppppppppppppppppp\"\n"
                             "voice port 0 authentication realm \"rrrrrrrrrrrrrrrrrrrrrrrrr\"\n"
                             "voice port 0 authentication validation unknown\n"
                             "voice port 0 physical impedance 30840\n");
}

TEST_F(OntVoice, BytesBehindTheTerminatorCountAsAChange)
{
    after.voice_port[1].number[24] = 'x';
    EXPECT_EQ(diff.elements(), (Elements{"", "voice port 1 number \"\""}));
}

TEST_F(OntVoice, PlaceholdersInTextsAreSubstituted)
{
    diff.key[1] = 3;
    put(after.voice_port[0].number, "$ID1");
    put(after.voice_port[0].auth_realm, "$ID0");
    EXPECT_EQ(diff.script(), "voice port 0 number \"   3\"\nvoice port 0 authentication realm \"  70\"\n");
}

// ------------------------------------------------------------------------------------------ host, features, modes

TEST_F(OntVoice, EachAddressOfTheHostAlone)
{
    put(after.voice_iphost.static_ip, {10, 0, 0, 255});
    EXPECT_EQ(diff.elements(), (Elements{"", "voice iphost static ip \"10.0.0.255\""}));
    reset();
    put(after.voice_iphost.static_mask, {255, 0, 0, 0});
    EXPECT_EQ(diff.elements(), (Elements{"", "voice iphost static mask \"255.0.0.0\""}));
    reset();
    put(before.voice_iphost.static_gateway, {10, 0, 0, 1});
    EXPECT_EQ(diff.elements(), (Elements{"", "voice iphost static gateway \"0.0.0.0\""}));
}

TEST_F(OntVoice, EachFeatureBitAlone)
{
    const auto shown = [this](auto set, unsigned bits, const std::string& feature) {
        reset();
        set(after.voip, bits);
        EXPECT_EQ(diff.elements(), (Elements{"", "voice features " + feature}));
        std::swap(before, after);
        EXPECT_EQ(diff.elements(), (Elements{"", "no voice features " + feature}));
    };
    const auto cid = [](GPonOntVoiceVoip& voip, unsigned bits) { voip.feature_cid = static_cast<u8>(bits); };
    const auto wait = [](GPonOntVoiceVoip& voip, unsigned bits) { voip.feature_call_wait = static_cast<u8>(bits); };
    const auto progress = [](GPonOntVoiceVoip& voip, unsigned bits) {
        voip.feature_call_progress = static_cast<u16>(bits);
    };
    const auto present = [](GPonOntVoiceVoip& voip, unsigned bits) {
        voip.feature_call_present = static_cast<u16>(bits);
    };
    shown(cid, 1, "cid call-number");
    shown(cid, 2, "cid call-name");
    shown(cid, 4, "cid cid-block");
    shown(cid, 8, "cid cid-number");
    shown(cid, 16, "cid cid-name");
    shown(cid, 32, "cid anon-cid-block");
    shown(wait, 1, "call-wait enable");
    shown(wait, 2, "call-wait call-id-annonce");
    shown(progress, 1, "call-progress 3way");
    shown(progress, 2, "call-progress transfer");
    shown(progress, 4, "call-progress hold");
    shown(progress, 8, "call-progress park");
    shown(progress, 16, "call-progress not-disturb");
    shown(progress, 32, "call-progress flash-on-emergency");
    shown(progress, 64, "call-progress emergency-hold");
    shown(progress, 128, "call-progress 6way");
    shown(present, 1, "call-presentation splash-ring");
    shown(present, 2, "call-presentation special-dialtone");
    shown(present, 4, "call-presentation visual");
    shown(present, 8, "call-presentation call-forward");
}

TEST_F(OntVoice, BitsWithoutAFeatureSayNothing)
{
    after.voip.feature_cid = 64 + 128;
    after.voip.feature_call_wait = 252;
    after.voip.feature_call_progress = 0xFF00;
    after.voip.feature_call_present = 0xFFF0;
    EXPECT_EQ(diff.elements(), Elements{});
}

TEST_F(OntVoice, UpperBitsDoNotCountAsSet)
{
    before.voip.feature_call_progress = 0x0001;
    after.voip.feature_call_progress = 0x0100;
    EXPECT_EQ(diff.elements(), (Elements{"", "no voice features call-progress 3way"}));
}

TEST_F(OntVoice, OtherBitsOfTheSameWordAreLeftOut)
{
    before.voip.feature_cid = 1 + 4;
    after.voip.feature_cid = 1 + 8;
    EXPECT_EQ(diff.script(), "no voice features cid cid-block\nvoice features cid cid-number\n");
}

TEST_F(OntVoice, EachModeAlone)
{
    after.voip.fax_mode = 1;
    EXPECT_EQ(diff.elements(), (Elements{"", "voice fax-mode \"t38\""}));
    after.voip.fax_mode = 255;
    EXPECT_EQ(diff.elements(), (Elements{"", "voice fax-mode \"unknown\""}));
    reset();
    after.voip.dtmf_mode = 1;
    EXPECT_EQ(diff.elements(), (Elements{"", "voice dtmf mode \"rfc4733\""}));
    std::swap(before, after);
    EXPECT_EQ(diff.elements(), (Elements{"", "voice dtmf mode \"inband\""}));
}

TEST_F(OntVoice, EachRtpEventAlone)
{
    const auto shown = [this](auto set, const std::string& on, const std::string& off) {
        reset();
        set(before.voip, 1);
        set(after.voip, 2);
        EXPECT_EQ(diff.elements(), (Elements{"", on}));
        set(after.voip, 0x0100);
        EXPECT_EQ(diff.elements(), (Elements{"", on}));
        set(after.voip, 0);
        EXPECT_EQ(diff.elements(), (Elements{"", off}));
    };
    shown([](GPonOntVoiceVoip& voip, u16 value) { voip.cas_events = value; }, "voice rtp cas enable",
          "no voice rtp cas");
    shown([](GPonOntVoiceVoip& voip, u16 value) { voip.piggyback_events = value; }, "voice rtp piggyback enable",
          "no voice rtp piggyback");
    shown([](GPonOntVoiceVoip& voip, u16 value) { voip.tone_events = value; }, "voice rtp tone enable",
          "no voice rtp tone");
    shown([](GPonOntVoiceVoip& voip, u16 value) { voip.dtmf_events = value; }, "voice rtp dtmf enable",
          "no voice rtp dtmf");
}

} // namespace
