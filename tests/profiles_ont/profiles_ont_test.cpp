#include "tests/profiles_ont/profile_test.h"

#include <tuple>

namespace {

// ---------------------------------------------------------------------------------------- what every kind begins with

/// A kind of profile: its diff, its array, and how its view is entered.
template <class Record, bool (*Function)(Record*, Record*, int*, List<char>&), class Array,
          Array GPonProfilesOnt::*Slots>
struct Kind {
    using Profile = Record;
    static constexpr auto function = Function;
    static constexpr auto slots = Slots;
    static const char* const entry;
};

#define KIND(record, array) Kind<record, getdiff_##record, decltype(GPonProfilesOnt::array), &GPonProfilesOnt::array>
using ShapingKind = KIND(GPonProfileOntShaping, shaping);
using CrossConnectKind = KIND(GPonProfileOntCrossConnect, cross_connect);
using AllocKind = KIND(GPonProfileOntAlloc, alloc);
using PortsKind = KIND(GPonProfileOntPorts, ports);
using VoiceKind = KIND(GPonProfileOntVoice, voice);
using ManagementKind = KIND(GPonProfileOntManagement, management);
using TemplateKind = KIND(GPonTemplateOnt, template_ont);
#undef KIND

template <>
const char* const ShapingKind::entry = "profile shaping";
template <>
const char* const CrossConnectKind::entry = "profile cross-connect";
template <>
const char* const AllocKind::entry = "profile dba";
template <>
const char* const PortsKind::entry = "profile ports";
template <>
const char* const VoiceKind::entry = "profile voice";
template <>
const char* const ManagementKind::entry = "profile management";
template <>
const char* const TemplateKind::entry = "template";

/// Slot 31 of a kind: blank on both sides until a test fills it.
template <class Kind>
class OntProfileHead : public testing::Test {
  protected:
    OntProfileHead() { diff.key[0] = slot; }

    void exists(typename Kind::Profile& profile, const char* name)
    {
        profile.exist = 1;
        put(profile.name, name);
    }

    Elements elements()
    {
        (session.orig->pon.profiles_ont.*Kind::slots)[slot] = diff.before;
        (session.cfg->pon.profiles_ont.*Kind::slots)[slot] = diff.after;
        session.open();
        return diff.elements();
    }

    std::string entering(const char* name) const
    {
        return std::string("configure terminal\n") + Kind::entry + " \"" + name + "\"";
    }

    static constexpr int slot = 31;
    Session session;
    Diff<typename Kind::Profile> diff{Kind::function};
};

struct KindName {
    template <class Kind>
    static std::string GetName(int)
    {
        const std::string entry = Kind::entry;
        const std::string word = entry.substr(entry.rfind(' ') + 1);
        return word == "cross-connect" ? "cross_connect" : word;
    }
};

using Kinds =
    testing::Types<ShapingKind, CrossConnectKind, AllocKind, PortsKind, VoiceKind, ManagementKind, TemplateKind>;
TYPED_TEST_SUITE(OntProfileHead, Kinds, KindName);

TYPED_TEST(OntProfileHead, NewProfileIsCreatedByEnteringItsView)
{
    this->exists(this->diff.after, "gold");
    EXPECT_EQ(this->elements(), Elements{this->entering("gold")});
}

TYPED_TEST(OntProfileHead, NewProfileWithADescription)
{
    this->exists(this->diff.after, "gold");
    put(this->diff.after.description, "the best");
    EXPECT_EQ(this->elements(), (Elements{this->entering("gold"), "", "description \"the best\""}));
}

TYPED_TEST(OntProfileHead, RenameComesFirstAndEntersUnderTheOldName)
{
    this->exists(this->diff.before, "gold");
    this->exists(this->diff.after, "silver");
    put(this->diff.after.description, "the second best");
    EXPECT_EQ(this->elements(),
              (Elements{this->entering("gold"), "name \"silver\"", "", "description \"the second best\""}));
}

TYPED_TEST(OntProfileHead, OnlyAProfileWhoseFlagIsExactlyOneIsRenamed)
{
    this->exists(this->diff.before, "gold");
    this->exists(this->diff.after, "silver");
    for (const std::uint16_t flag : odd_values) {
        this->diff.before.exist = flag;
        EXPECT_EQ(this->elements(), Elements{});
    }
}

TYPED_TEST(OntProfileHead, OnlyAProfileWhoseFlagIsExactlyOneIsCreated)
{
    this->exists(this->diff.after, "gold");
    for (const std::uint16_t flag : odd_values) {
        this->diff.after.exist = flag;
        EXPECT_EQ(this->elements(), Elements{});
    }
}

TYPED_TEST(OntProfileHead, ProfileWithANonsenseFlagShowsItsDescription)
{
    this->diff.before.exist = this->diff.after.exist = 65535;
    put(this->diff.before.name, "gold");
    put(this->diff.after.name, "gold");
    put(this->diff.after.description, "odd");
    EXPECT_EQ(this->elements(), (Elements{this->entering("gold"), "description \"odd\""}));
}

TYPED_TEST(OntProfileHead, RemovedProfileHasNoCommandOfItsOwn)
{
    this->exists(this->diff.before, "gold");
    EXPECT_EQ(this->elements(), (Elements{this->entering("gold"), "name \"\""}));
    put(this->diff.after.name, "gold");
    EXPECT_EQ(this->elements(), Elements{});
    put(this->diff.after.description, "left behind");
    EXPECT_EQ(this->elements(), (Elements{this->entering("gold"), "description \"left behind\""}));
}

TYPED_TEST(OntProfileHead, FreeSlotSaysNothing)
{
    std::memset(&this->diff.after, 0xFF, sizeof this->diff.after);
    this->diff.after.exist = 0;
    EXPECT_EQ(this->elements(), Elements{});
    this->diff.all = 1;
    EXPECT_EQ(this->elements(), Elements{});
}

TYPED_TEST(OntProfileHead, EqualProfilesAndRevisionsSayNothing)
{
    this->exists(this->diff.before, "gold");
    this->exists(this->diff.after, "gold");
    EXPECT_EQ(this->elements(), Elements{});
    this->diff.after.revision = 4294967295U;
    EXPECT_EQ(this->elements(), Elements{});
}

TYPED_TEST(OntProfileHead, DumpBeginsWithNameAndDescription)
{
    for (const int common : {0, 1, 2}) {
        this->exists(this->diff.before, "gold");
        this->exists(this->diff.after, "gold");
        this->diff.all = 1;
        this->diff.common = common;
        const Elements elements = this->elements();
        ASSERT_GE(elements.size(), 4U);
        EXPECT_EQ(Elements(elements.begin(), elements.begin() + 4),
                  (Elements{this->entering("gold"), "name \"gold\"", "", "description \"\""}));
    }
}

TYPED_TEST(OntProfileHead, DumpOfAllProfilesReachesAnEqualOne)
{
    for (const int common : {0, 1, 2}) {
        this->exists((this->session.orig->pon.profiles_ont.*TypeParam::slots)[this->slot], "gold");
        this->exists((this->session.cfg->pon.profiles_ont.*TypeParam::slots)[this->slot], "gold");
        this->session.open();
        const std::unique_ptr<Diff<GPonProfilesOnt>> all{new Diff<GPonProfilesOnt>(getdiff_GPonProfilesOnt)};
        all->before = this->session.orig->pon.profiles_ont;
        all->after = this->session.cfg->pon.profiles_ont;
        all->all = 1;
        all->common = common;
        const Elements elements = all->elements();
        ASSERT_GE(elements.size(), 2U);
        EXPECT_EQ(elements[0], this->entering("gold"));
        EXPECT_EQ(elements[1], "name \"gold\"");
        EXPECT_EQ(all->key[0], 31);
    }
}

TYPED_TEST(OntProfileHead, DumpNamesANewProfileAndEntersItOnceMore)
{
    this->exists(this->diff.after, "gold");
    this->diff.all = 1;
    const Elements elements = this->elements();
    ASSERT_GE(elements.size(), 5U);
    EXPECT_EQ(Elements(elements.begin(), elements.begin() + 5),
              (Elements{this->entering("gold"), "name \"gold\"", "", "", "description \"\""}));
}

TYPED_TEST(OntProfileHead, TextsThatFillTheirArrays)
{
    this->exists(this->diff.before, "gold");
    this->exists(this->diff.after, "sixteen-letters!");
    put(this->diff.after.description, std::string(256, 'd'));
    EXPECT_EQ(this->elements(), (Elements{this->entering("gold"), "name \"sixteen-letters!\"", "",
                                          "description \"" + std::string(256, 'd') + "\""}));
}

TYPED_TEST(OntProfileHead, PlaceholdersInTextsAreSubstituted)
{
    this->exists(this->diff.before, "gold");
    this->exists(this->diff.after, "g$ID0");
    put(this->diff.after.description, "$ID1 of $ID0");
    this->diff.key[1] = 7;
    EXPECT_EQ(this->elements(),
              (Elements{this->entering("gold"), "name \"g  31\"", "", "description \"   7 of   31\""}));
}

TYPED_TEST(OntProfileHead, NullRecordsSayNothing)
{
    List<char> list;
    int key[10] = {};
    this->exists(this->diff.after, "gold");
    print_all = 1;
    EXPECT_FALSE(TypeParam::function(nullptr, &this->diff.after, key, list));
    EXPECT_FALSE(TypeParam::function(&this->diff.after, nullptr, key, list));
    EXPECT_EQ(list.size(), 0);
}

// ----------------------------------------------------------------------------------------------------------- container

class OntProfiles : public testing::Test {
  protected:
    template <class Profile>
    static void name(Profile& profile, const char* name)
    {
        profile.exist = 1;
        put(profile.name, name);
    }

    /// The walk over the profiles alone, from the top level.
    std::string walk(int all = 0)
    {
        session.open();
        diff->before = session.orig->pon.profiles_ont;
        diff->after = session.cfg->pon.profiles_ont;
        diff->all = all;
        return diff->script();
    }

    Session session;
    GPonProfilesOnt& before = session.orig->pon.profiles_ont;
    GPonProfilesOnt& after = session.cfg->pon.profiles_ont;
    std::unique_ptr<Diff<GPonProfilesOnt>> diff{new Diff<GPonProfilesOnt>(getdiff_GPonProfilesOnt)};
};

TEST_F(OntProfiles, KindsInOrderEachByAscendingSlot)
{
    name(after.template_ont[0], "t0");
    name(after.template_ont[31], "t31");
    name(after.management[0], "m0");
    name(after.management[31], "m31");
    name(after.voice[0], "v0");
    name(after.voice[31], "v31");
    name(after.ports[0], "p0");
    name(after.ports[31], "p31");
    name(after.alloc[0], "a0");
    name(after.alloc[127], "a127");
    name(after.cross_connect[0], "c0");
    name(after.cross_connect[127], "c127");
    name(after.shaping[0], "s0");
    name(after.shaping[127], "s127");
    diff->key[1] = 9;
    EXPECT_EQ(walk(), "configure terminal\nprofile shaping \"s0\"\n"
                      "exit\nprofile shaping \"s127\"\n"
                      "exit\nprofile cross-connect \"c0\"\n"
                      "exit\nprofile cross-connect \"c127\"\n"
                      "exit\nprofile dba \"a0\"\n"
                      "exit\nprofile dba \"a127\"\n"
                      "exit\nprofile ports \"p0\"\n"
                      "exit\nprofile ports \"p31\"\n"
                      "exit\nprofile voice \"v0\"\n"
                      "exit\nprofile voice \"v31\"\n"
                      "exit\nprofile management \"m0\"\n"
                      "exit\nprofile management \"m31\"\n"
                      "exit\ntemplate \"t0\"\n"
                      "exit\ntemplate \"t31\"\n");
    EXPECT_EQ(diff->key[0], 31);
    EXPECT_EQ(diff->key[1], 3) << "as the ports profiles left it";
}

TEST_F(OntProfiles, OtherKeySlotsAreLeftAsTheyAre)
{
    after.voice[3].revision = 9;
    for (int slot = 0; slot < 10; ++slot)
        diff->key[slot] = 100 + slot;
    EXPECT_EQ(walk(), "");
    EXPECT_EQ(diff->key[0], 31);
    for (int slot = 1; slot < 10; ++slot)
        EXPECT_EQ(diff->key[slot], 100 + slot);
}

TEST_F(OntProfiles, EqualProfilesLeaveTheKey)
{
    name(before.shaping[1], "slow");
    name(after.shaping[1], "slow");
    diff->key[0] = 77;
    EXPECT_EQ(walk(), "");
    EXPECT_EQ(diff->key[0], 77);
}

TEST_F(OntProfiles, FreeSlotsThatDifferSayNothing)
{
    after.alloc[64].allocate_new_alloc = 1;
    after.ports[3].igmp_settings.robustness = 2;
    EXPECT_EQ(walk(), "");
    EXPECT_EQ(walk(1), "");
    EXPECT_EQ(diff->key[0], 31);
}

TEST_F(OntProfiles, RemovedProfilesHaveNoCommand)
{
    name(before.alloc[1], "gold");
    put(after.alloc[1].name, "gold");
    EXPECT_EQ(walk(), "");
}

TEST_F(OntProfiles, DumpHandsEveryEqualProfileToItsDiff)
{
    name(before.alloc[127], "gold");
    name(before.management[0], "omci");
    after = before;
    EXPECT_EQ(walk(1), "configure terminal\nprofile dba \"gold\"\n"
                       "name \"gold\"\n"
                       "description \"\"\n"
                       "no allocation-scheme\n"
                       "sla class \"data\"\n"
                       "sla status-reporting \"nsr\"\n"
                       "alloc size \"0\"\n"
                       "alloc period \"0\"\n"
                       "bandwidth fixed \"0\"\n"
                       "bandwidth guaranteed \"0\"\n"
                       "bandwidth besteffort \"0\"\n"
                       "exit\nprofile management \"omci\"\n"
                       "name \"omci\"\n"
                       "description \"\"\n"
                       "no omci-configuration\n"
                       "url \"\"\n"
                       "username \"\"\n"
                       "password \"\"\n"
                       "ont-config version \"\" file \"\"\n");
}

TEST_F(OntProfiles, FullDiffShowsThemBehindTheNetwork)
{
    session.cfg->pon.network.mac_age_time = 300;
    name(before.alloc[2], "gold");
    after = before;
    after.alloc[2].allocate_new_alloc = 1;
    name(after.template_ont[0], "kiosk");
    after.template_ont[0].profile_ont_alloc[0] = 2;
    session.open();
    EXPECT_EQ(session.full_diff(), "configure terminal\n"
                                   "gpon network mac-age-time \"300\"\n"
                                   "profile dba \"gold\"\n"
                                   "allocation-scheme allocate-new-t-cont\n"
                                   "exit\n"
                                   "template \"kiosk\"\n"
                                   "service 0 profile dba \"gold\"\n"
                                   "exit\n"
                                   "exit\n"
                                   "commit\n");
}

TEST_F(OntProfiles, NullRecordsSayNothing)
{
    List<char> list;
    int key[10] = {};
    EXPECT_FALSE(getdiff_GPonProfilesOnt(nullptr, &after, key, list));
    EXPECT_FALSE(getdiff_GPonProfilesOnt(&before, nullptr, key, list));
    EXPECT_EQ(list.size(), 0);
}

} // namespace
