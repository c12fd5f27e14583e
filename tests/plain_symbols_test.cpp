#include "pondiff.h"
#include "tests/support/diff.h"

#include <functional>

namespace {

/// The result and the state after an operation.
struct Outcome {
    std::string text;
    std::string view;
    int key;
    int all;
    int common;
};

bool operator==(const Outcome& lhs, const Outcome& rhs)
{
    return lhs.text == rhs.text && lhs.view == rhs.view && lhs.key == rhs.key && lhs.all == rhs.all &&
           lhs.common == rhs.common;
}

void PrintTo(const Outcome& outcome, std::ostream* out)
{
    *out << outcome.text << "in " << outcome.view << " " << outcome.key << ", switches " << outcome.all << " "
         << outcome.common;
}

/// Configurations for which every operation has commands.
class PlainSymbols : public testing::Test {
  protected:
    PlainSymbols()
    {
        put(cfg->system.network.hostname, "olt-17");
        cfg->system.services.alarm.type[4].type = 3;
        cfg->system.services.alarm.type[4].severity = 1;
        cfg->pon.network.terminal_vlan[0].exists = 1;
        put(cfg->pon.network.terminal_vlan[0].name, "video");
        cfg->pon.profiles_olt.vlan[4].exist = 1;
        put(cfg->pon.profiles_olt.vlan[4].name, "office");
        cfg->pon.profiles_olt.vlan[9].exist = 1;
        put(cfg->pon.profiles_olt.vlan[9].name, "lobby");
        cfg->pon.profiles_ont.voice[2].exist = 1;
        put(cfg->pon.profiles_ont.voice[2].name, "sip");
        cfg->pon.olt.channel[3].fec_down = 1;
        cfg->pon.ont[130].exist = 1;
    }

    using Operation = std::function<char*()>;

    static Outcome outcome(const view_state& from, const Operation& operation)
    {
        current_view = from;
        const std::string text = taken(operation());
        return {text, current_view.name, current_view.key[0], print_all, print_common};
    }

    /// An entry point and its target, in every view and with all switches.
    void expect_same(const Operation& twin, const Operation& target)
    {
        for (const int all : {0, 1}) {
            for (const int common : {0, 1, 2}) {
                session.open(all, common);
                for (const view_state& from : {view_state{"root", {}}, view_state{"configure-view", {}},
                                               view_state{"if-ont-view", {130}}, view_state{"vlan-view", {4}}}) {
                    EXPECT_EQ(outcome(from, twin), outcome(from, target)) << from.name << ' ' << all << ' ' << common;
                }
            }
        }
        session.open(0, 0);
    }

    Session session;
    GCfg* const orig = session.orig;
    GCfg* const cfg = session.cfg;
};

TEST(Version, OfTheLibraryIsThatOfItsHeader)
{
    EXPECT_STREQ(pondiff_version(), PONDIFF_VERSION_STRING);
    EXPECT_EQ(pondiff_version(), std::to_string(PONDIFF_VERSION_MAJOR) + "." + std::to_string(PONDIFF_VERSION_MINOR) +
                                     "." + std::to_string(PONDIFF_VERSION_PATCH));
}

TEST_F(PlainSymbols, SessionIsOpenedWithItsSwitchesNamesAndPosition)
{
    current_view = {"if-ont-view", {130}};
    EXPECT_EQ(initiate_diff_c(orig, cfg, 5, 7), 0);
    EXPECT_EQ(print_all, 5);
    EXPECT_EQ(print_common, 7);
    EXPECT_STREQ(current_view.name, "root");
    EXPECT_STREQ(getVlanName(4), "office");
    EXPECT_STREQ(def_getVlanName(4), "unassigned");
    EXPECT_EQ(finalize_diff_c(), 0);
    EXPECT_EQ(getVlanName(4), nullptr);
    EXPECT_EQ(print_all, 5);
    EXPECT_EQ(print_common, 7);
}

TEST_F(PlainSymbols, OldAndNewConfigurationAreNotConfused)
{
    EXPECT_EQ(initiate_diff_c(cfg, orig, 0, 0), 0);
    EXPECT_EQ(getVlanName(4), nullptr);
    EXPECT_STREQ(def_getVlanName(4), "office");
}

TEST_F(PlainSymbols, SessionOverNoConfigurationIsRefused)
{
    EXPECT_EQ(initiate_diff_c(nullptr, cfg, 0, 0), -1);
    EXPECT_EQ(initiate_diff_c(orig, nullptr, 0, 0), -1);
    EXPECT_EQ(finalize_diff_c(), 0);
    EXPECT_EQ(finalize_diff_c(), 0);
}

TEST_F(PlainSymbols, FullDiff)
{
    expect_same([&] { return GetDiff_c(orig, cfg); }, [&] { return GetDiff(orig, cfg); });
    EXPECT_EQ(taken(GetDiff_c(orig, cfg)), "configure terminal\n"
                                           "hostname \"olt-17\"\n"
                                           "alarm login severity \"critical\"\n"
                                           "gpon network terminal-vlan \"video\"\n"
                                           "profile vlan \"office\"\n"
                                           "exit\n"
                                           "profile vlan \"lobby\"\n"
                                           "exit\n"
                                           "profile voice \"sip\"\n"
                                           "exit\n"
                                           "interface gpon-port    3\n"
                                           "fec\n"
                                           "exit\n"
                                           "interface ont 2/2\n"
                                           "exit\n"
                                           "exit\n"
                                           "commit\n");
}

const std::string pon_part = "configure terminal\n"
                             "gpon network terminal-vlan \"video\"\n"
                             "profile vlan \"office\"\n"
                             "exit\n"
                             "profile vlan \"lobby\"\n"
                             "exit\n"
                             "profile voice \"sip\"\n"
                             "exit\n"
                             "interface gpon-port    3\n"
                             "fec\n"
                             "exit\n"
                             "interface ont 2/2\n";

TEST_F(PlainSymbols, PonPart)
{
    expect_same([&] { return GetPonDiff_c(&orig->pon, &cfg->pon); }, [&] { return GetPonDiff(&orig->pon, &cfg->pon); });
    EXPECT_EQ(taken(GetPonDiff_c(&orig->pon, &cfg->pon)), pon_part);
    EXPECT_STREQ(current_view.name, "if-ont-view");
}

TEST_F(PlainSymbols, SystemPartIsThePonPart)
{
    expect_same([&] { return GetSystemDiff_c(&orig->pon, &cfg->pon); },
                [&] { return GetPonDiff(&orig->pon, &cfg->pon); });
    EXPECT_EQ(taken(GetSystemDiff_c(&orig->pon, &cfg->pon)), pon_part);
    EXPECT_STREQ(current_view.name, "if-ont-view");
}

TEST_F(PlainSymbols, ProfileSets)
{
    expect_same([&] { return GetGPonProfilesOltDiff_c(&orig->pon.profiles_olt, &cfg->pon.profiles_olt); },
                [&] { return GetGPonProfilesOltDiff(&orig->pon.profiles_olt, &cfg->pon.profiles_olt); });
    expect_same([&] { return GetGPonProfilesOntDiff_c(&orig->pon.profiles_ont, &cfg->pon.profiles_ont); },
                [&] { return GetGPonProfilesOntDiff(&orig->pon.profiles_ont, &cfg->pon.profiles_ont); });
    EXPECT_EQ(taken(GetGPonProfilesOltDiff_c(&orig->pon.profiles_olt, &cfg->pon.profiles_olt)),
              "configure terminal\nprofile vlan \"office\"\nexit\nprofile vlan \"lobby\"\nexit\nexit\ncommit\n");
    EXPECT_EQ(taken(GetGPonProfilesOntDiff_c(&orig->pon.profiles_ont, &cfg->pon.profiles_ont)),
              "configure terminal\nprofile voice \"sip\"\nexit\nexit\ncommit\n");
}

TEST_F(PlainSymbols, TerminalVlanHeaders)
{
    expect_same(GetTerminalVlanHeaders_c, GetTerminalVlanHeaders);
    EXPECT_EQ(taken(GetTerminalVlanHeaders_c()), "configure terminal\ngpon network terminal-vlan \"video\"\n");
    EXPECT_STREQ(current_view.name, "configure-view");
}

TEST_F(PlainSymbols, Ont)
{
    for (const int index : {0, 130, 531, -1}) {
        expect_same([&] { return GetGponOntDiff_c(&orig->pon.ont[130], &cfg->pon.ont[130], index); },
                    [&] { return GetGponOntDiff(&orig->pon.ont[130], &cfg->pon.ont[130], index); });
    }
    EXPECT_EQ(taken(GetGponOntDiff_c(&orig->pon.ont[130], &cfg->pon.ont[130], 131)),
              "configure terminal\ninterface ont 2/3\nexit\nexit\n");
}

TEST_F(PlainSymbols, Channel)
{
    for (const int index : {0, 3, 7, -1}) {
        expect_same([&] { return GetGponChannelDiff_c(&orig->pon.olt.channel[3], &cfg->pon.olt.channel[3], index); },
                    [&] { return GetGponChannelDiff(&orig->pon.olt.channel[3], &cfg->pon.olt.channel[3], index); });
    }
    EXPECT_EQ(taken(GetGponChannelDiff_c(&orig->pon.olt.channel[3], &cfg->pon.olt.channel[3], 6)),
              "configure terminal\ninterface gpon-port    6\nfec\nexit\nexit\n");
}

TEST_F(PlainSymbols, Profile)
{
    char vlan[] = "vlan";
    char voice[] = "voice";
    char unknown[] = "alloc";
    for (char* const kind : {vlan, voice, unknown, static_cast<char*>(nullptr)}) {
        for (const int id : {-1, 0, 2, 4, 31, 32}) {
            expect_same([&] { return GetProfileDiff_c(&orig->pon, &cfg->pon, kind, id); },
                        [&] { return GetProfileDiff(&orig->pon, &cfg->pon, kind, id); });
        }
    }
    EXPECT_EQ(taken(GetProfileDiff_c(&orig->pon, &cfg->pon, vlan, 9)),
              "configure terminal\nprofile vlan \"lobby\"\nexit\nexit\ncommit\n");
}

TEST_F(PlainSymbols, Block)
{
    char management[] = "management";
    char network[] = "network";
    char unknown[] = "alarm";
    for (char* const name : {management, network, unknown, static_cast<char*>(nullptr)}) {
        expect_same([&] { return GetBlockDiff_c(orig, cfg, name); }, [&] { return GetBlockDiff(orig, cfg, name); });
    }
    EXPECT_EQ(taken(GetBlockDiff_c(orig, cfg, management)), "configure terminal\nhostname \"olt-17\"\nexit\ncommit\n");
}

TEST_F(PlainSymbols, Alarms)
{
    expect_same([&] { return GetAlarmDiff_c(orig, cfg); }, [&] { return GetAlarmDiff(orig, cfg); });
    EXPECT_EQ(taken(GetAlarmDiff_c(orig, cfg)),
              "configure terminal\nalarm login severity \"critical\"\nexit\ncommit\n");
}

} // namespace
