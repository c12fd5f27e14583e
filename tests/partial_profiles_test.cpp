#include "pon/profile_kinds.h"
#include "tests/partial_diff.h"

#include <climits>
#include <ostream>

namespace {

/// What every kind of profile begins with.
struct __attribute__((packed)) Head {
    u32 revision;
    GBool_t exist;
    GChar_t name[GCFG_NAME_SIZE];
    GChar_t description[GCFG_DESCRIPTION_SIZE];
};

struct Kind {
    const char* name;
    const char* enter; ///< the command that enters its view, up to the profile's name
    void* (*slot)(GPonCfg& configuration, int index);
    int slots;
};

std::ostream& operator<<(std::ostream& out, const Kind& kind)
{
    return out << kind.name;
}

const Kind kinds[] = {
#define KIND(part, array, record, tables, lookup, prefix, name, called)                                                \
    {name, prefix name, [](GPonCfg& pon, int i) -> void* { return &pon.part.array[i]; },                               \
     PON_PROFILE_SLOTS(part, array)},
    PON_PROFILE_KINDS(KIND)
#undef KIND
};

const std::string nothing = "configure terminal\nexit\ncommit\n";

/// One kind of profile; slots beside the kind's own are changed too, and must not show.
class PartialProfiles : public PartialDiff, public testing::WithParamInterface<Kind> {
  protected:
    /// A profile that both configurations hold; the new one describes it otherwise.
    void change(const Kind& of, int index, const std::string& name) const
    {
        Head head{};
        head.exist = 1;
        put(head.name, name);
        std::memcpy(of.slot(session.orig->pon, index), &head, sizeof head);
        put(head.description, "of " + name);
        std::memcpy(of.slot(session.cfg->pon, index), &head, sizeof head);
    }

    void change_every_kind(int index, const std::string& name) const
    {
        for (const Kind& any : kinds) {
            change(any, index < 0 ? any.slots + index : index, name);
        }
    }

    std::string shown(const std::string& name) const
    {
        return std::string(kind.enter) + " \"" + name + "\"\ndescription \"of " + name + "\"\nexit\n";
    }

    const Kind kind = GetParam();
};

TEST_P(PartialProfiles, NegativeIdShowsEverySlotThatDiffersInOrder)
{
    change_every_kind(-1, "last");
    change_every_kind(0, "first");
    change_every_kind(7, "seventh");
    session.open();
    const std::string all =
        "configure terminal\n" + shown("first") + shown("seventh") + shown("last") + "exit\ncommit\n";
    EXPECT_EQ(profile(kind.name, -1), all);
    EXPECT_STREQ(current_view.name, "root");
    EXPECT_EQ(profile(kind.name, -2), all);
    EXPECT_EQ(profile(kind.name, INT_MIN), all);
}

TEST_P(PartialProfiles, OtherIdShowsThatSlotAlone)
{
    change_every_kind(0, "first");
    change_every_kind(7, "seventh");
    change_every_kind(-1, "last");
    session.open();
    EXPECT_EQ(profile(kind.name, 0), "configure terminal\n" + shown("first") + "exit\ncommit\n");
    EXPECT_EQ(profile(kind.name, 7), "configure terminal\n" + shown("seventh") + "exit\ncommit\n");
    EXPECT_EQ(profile(kind.name, kind.slots - 1), "configure terminal\n" + shown("last") + "exit\ncommit\n");
    EXPECT_EQ(profile(kind.name, 6), nothing);
    EXPECT_STREQ(current_view.name, "root");
}

TEST_P(PartialProfiles, IdBeyondTheSlotsSelectsNothing)
{
    for (int index = 0; index < 32; ++index) {
        change_every_kind(index, "profile");
    }
    session.open();
    for (const int id : {kind.slots, kind.slots + 1, 2 * kind.slots, 1000000, INT_MAX}) {
        EXPECT_EQ(profile(kind.name, id), nothing) << id;
    }
}

TEST_P(PartialProfiles, EqualSlotIsShownUnderPrintAllWhenAskedForById)
{
    const bool is_vlan = std::string(kind.name) == "vlan"; // whose name is not forced
    change(kind, 3, "third");
    session.settle();
    session.open();
    EXPECT_EQ(profile(kind.name, 3), nothing);
    EXPECT_EQ(profile(kind.name, -1), nothing);
    for (const int common : {2, 1, 0}) {
        session.open(1, common);
        EXPECT_EQ(profile(kind.name, -1), nothing) << common;
    }
    const std::string text = profile(kind.name, 3);
    const std::string front = std::string("configure terminal\n") + kind.enter + " \"third\"\n" +
                              (!is_vlan ? "name \"third\"\n" : "") + "description \"of third\"\n";
    const std::string back = "\nexit\nexit\ncommit\n";
    ASSERT_GT(text.size(), front.size() + back.size());
    EXPECT_EQ(text.substr(0, front.size()), front);
    EXPECT_EQ(text.substr(text.size() - back.size()), back);
    EXPECT_EQ(profile(kind.name, 4), nothing);
}

TEST_P(PartialProfiles, NewProfileIsCreatedByItsView)
{
    Head head{};
    head.exist = 1;
    put(head.name, "new");
    std::memcpy(kind.slot(session.cfg->pon, kind.slots - 1), &head, sizeof head);
    session.open();
    const std::string text = std::string("configure terminal\n") + kind.enter + " \"new\"\nexit\nexit\ncommit\n";
    EXPECT_EQ(profile(kind.name, -1), text);
    EXPECT_EQ(profile(kind.name, kind.slots - 1), text);
}

INSTANTIATE_TEST_SUITE_P(EveryKind, PartialProfiles, testing::ValuesIn(kinds));

class PartialProfileNames : public PartialProfiles {};

TEST_P(PartialProfileNames, UnknownKindSelectsNothing)
{
    change_every_kind(0, "first");
    session.open(1, 2);
    for (const char* const unknown : {"", "v", "vla", "vlans", "VLAN", " vlan", "vlan ", "alloc", "ont", "profile vlan",
                                      "dhcp", "dhcpv6", "pppoe", "address_table", "container"}) {
        EXPECT_EQ(profile(unknown, -1), nothing) << unknown;
        EXPECT_EQ(profile(unknown, 0), nothing) << unknown;
    }
}

INSTANTIATE_TEST_SUITE_P(AnyKind, PartialProfileNames, testing::Values(kinds[10]));

TEST_F(PartialDiff, OneVlanProfileOfSeveral)
{
    GPonProfileOltVlan& before = session.orig->pon.profiles_olt.vlan[5];
    GPonProfileOltVlan& after = session.cfg->pon.profiles_olt.vlan[5];
    before.exist = after.exist = 1;
    put(before.name, "office");
    put(after.name, "lobby");
    after.config_general[1].extended_svlan_type = 0x88A8;
    session.open();
    EXPECT_EQ(profile("vlan", -1), "configure terminal\n"
                                   "profile vlan \"office\"\n"
                                   "name \"lobby\"\n"
                                   "downlink extended svlan-type \"0x88A8\"\n"
                                   "exit\n"
                                   "exit\n"
                                   "commit\n");
}

TEST_F(PartialDiff, EqualVlanProfileInFull)
{
    session.cfg->pon.profiles_olt.vlan[5].exist = 1;
    put(session.cfg->pon.profiles_olt.vlan[5].name, "office");
    session.settle();
    session.open(1, 0);
    EXPECT_EQ(profile("vlan", 5), "configure terminal\n"
                                  "profile vlan \"office\"\n"
                                  "description \"\"\n"
                                  "uplink extended svlan-type \"0x0000\"\n"
                                  "uplink extended cvlan-type \"0x0000\"\n"
                                  "uplink insertion svlan-ethertype \"0x0000\"\n"
                                  "uplink insertion cvlan-ethertype \"0x0000\"\n"
                                  "downlink extended svlan-type \"0x0000\"\n"
                                  "downlink extended cvlan-type \"0x0000\"\n"
                                  "downlink insertion svlan-ethertype \"0x0000\"\n"
                                  "downlink insertion cvlan-ethertype \"0x0000\"\n"
                                  "exit\n"
                                  "exit\n"
                                  "commit\n");
}

TEST_F(PartialDiff, RemovedVlanProfileIsDeletedInTheGlobalConfiguration)
{
    session.orig->pon.profiles_olt.vlan[31].exist = 1;
    put(session.orig->pon.profiles_olt.vlan[31].name, "gone");
    session.open();
    EXPECT_EQ(profile("vlan", 31), "configure terminal\nno profile vlan gone\nexit\ncommit\n");
}

} // namespace
