/// What the record diffs of most profiles begin with: the name, the creation by entering the view, the description. The
/// VLAN profile and the address table, which differ, have tests of their own.

#include "tests/profiles_ont/profile_test.h"

#include <algorithm>
#include <string>

namespace {

/// A kind of profile: its record diff, and the one of the container that it belongs to.
template <class Record, auto Function, auto ContainerFunction, auto Container, auto Slots>
struct Kind {
    using Profile = Record;
    static constexpr auto function = Function;
    static constexpr auto container_function = ContainerFunction;
    static auto& container(GCfg& configuration) { return configuration.pon.*Container; }
    static auto& slots(GCfg& configuration) { return container(configuration).*Slots; }
};

#define OLT_KIND(record, array)                                                                                        \
    Kind<record, getdiff_##record, getdiff_GPonProfilesOlt, &GPonCfg::profiles_olt, &GPonProfilesOlt::array>
#define ONT_KIND(record, array)                                                                                        \
    Kind<record, getdiff_##record, getdiff_GPonProfilesOnt, &GPonCfg::profiles_ont, &GPonProfilesOnt::array>

struct PppoeIa : OLT_KIND(GPonProfileOltPppoeIa, pppoe_ia) {
    static constexpr const char* entry = "profile pppoe-ia";
};
struct DhcpRa : OLT_KIND(GPonProfileOltDhcpRa, dhcp_ra) {
    static constexpr const char* entry = "profile dhcp-ra";
};
struct Dhcpv6Ra : OLT_KIND(GPonProfileOltDhcpv6Ra, dhcpv6_ra) {
    static constexpr const char* entry = "profile dhcpv6-ra";
};
struct Shaping : ONT_KIND(GPonProfileOntShaping, shaping) {
    static constexpr const char* entry = "profile shaping";
};
struct CrossConnect : ONT_KIND(GPonProfileOntCrossConnect, cross_connect) {
    static constexpr const char* entry = "profile cross-connect";
};
struct Alloc : ONT_KIND(GPonProfileOntAlloc, alloc) {
    static constexpr const char* entry = "profile dba";
};
struct Ports : ONT_KIND(GPonProfileOntPorts, ports) {
    static constexpr const char* entry = "profile ports";
};
struct Voice : ONT_KIND(GPonProfileOntVoice, voice) {
    static constexpr const char* entry = "profile voice";
};
struct Management : ONT_KIND(GPonProfileOntManagement, management) {
    static constexpr const char* entry = "profile management";
};
struct Template : ONT_KIND(GPonTemplateOnt, template_ont) {
    static constexpr const char* entry = "template";
};

/// Slot 31 of a kind: blank on both sides until a test fills it.
template <class Kind>
class ProfileHead : public testing::Test {
  protected:
    ProfileHead() { diff.key[0] = slot; }

    void exists(typename Kind::Profile& profile, const char* name)
    {
        profile.exist = 1;
        put(profile.name, name);
    }

    Elements elements()
    {
        Kind::slots(*session.orig)[slot] = diff.before;
        Kind::slots(*session.cfg)[slot] = diff.after;
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
        std::string word = entry.substr(entry.rfind(' ') + 1);
        std::replace(word.begin(), word.end(), '-', '_');
        return word;
    }
};

using Kinds =
    testing::Types<PppoeIa, DhcpRa, Dhcpv6Ra, Shaping, CrossConnect, Alloc, Ports, Voice, Management, Template>;
TYPED_TEST_SUITE(ProfileHead, Kinds, KindName);

TYPED_TEST(ProfileHead, NewProfileIsCreatedByEnteringItsView)
{
    this->exists(this->diff.after, "gold");
    EXPECT_EQ(this->elements(), Elements{this->entering("gold")});
}

TYPED_TEST(ProfileHead, NewProfileWithADescription)
{
    this->exists(this->diff.after, "gold");
    put(this->diff.after.description, "the best");
    EXPECT_EQ(this->elements(), (Elements{this->entering("gold"), "", "description \"the best\""}));
}

TYPED_TEST(ProfileHead, NewProfileIsComparedWithWhatItsSlotHeld)
{
    this->exists(this->diff.before, "silver");
    this->exists(this->diff.after, "gold");
    this->diff.before.exist = 0;
    put(this->diff.before.description, "the best");
    put(this->diff.after.description, "the best");
    EXPECT_EQ(this->elements(), Elements{this->entering("gold")}) << "neither named nor described";
}

TYPED_TEST(ProfileHead, RenameComesFirstAndEntersUnderTheOldName)
{
    this->exists(this->diff.before, "gold");
    this->exists(this->diff.after, "silver");
    put(this->diff.after.description, "the second best");
    for (const std::uint16_t flag : on_values) {
        this->diff.after.exist = flag;
        EXPECT_EQ(this->elements(), behind(this->entering("gold"), "name \"silver\"\n"
                                                                   "description \"the second best\"\n"));
    }
}

TYPED_TEST(ProfileHead, OnlyAProfileWhoseFlagIsExactlyOneIsRenamed)
{
    this->exists(this->diff.before, "gold");
    this->exists(this->diff.after, "silver");
    for (const std::uint16_t flag : odd_values) {
        this->diff.before.exist = flag;
        EXPECT_EQ(this->elements(), Elements{});
    }
}

TYPED_TEST(ProfileHead, OnlyAProfileWhoseFlagIsExactlyOneIsCreated)
{
    this->exists(this->diff.after, "gold");
    for (const std::uint16_t flag : odd_values) {
        this->diff.after.exist = flag;
        EXPECT_EQ(this->elements(), Elements{});
    }
}

TYPED_TEST(ProfileHead, ProfileWithANonsenseFlagShowsItsDescription)
{
    this->diff.before.exist = this->diff.after.exist = 65535;
    put(this->diff.before.name, "gold");
    put(this->diff.after.name, "gold");
    put(this->diff.after.description, "odd");
    EXPECT_EQ(this->elements(), (Elements{this->entering("gold"), "description \"odd\""}));
}

TYPED_TEST(ProfileHead, RemovedProfileHasNoCommandOfItsOwn)
{
    this->exists(this->diff.before, "gold");
    EXPECT_EQ(this->elements(), (Elements{this->entering("gold"), "name \"\""}));
    put(this->diff.after.name, "gold");
    EXPECT_EQ(this->elements(), Elements{});
    put(this->diff.after.description, "left behind");
    EXPECT_EQ(this->elements(), (Elements{this->entering("gold"), "description \"left behind\""}));
}

TYPED_TEST(ProfileHead, DumpBeginsWithNameAndDescription)
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

TYPED_TEST(ProfileHead, DumpOfAllProfilesReachesAnEqualOne)
{
    for (const int common : {0, 1, 2}) {
        for (GCfg* configuration : {this->session.orig, this->session.cfg}) {
            this->exists(TypeParam::slots(*configuration)[this->slot], "gold");
        }
        this->session.open();
        Diff all{TypeParam::container_function};
        all.before = TypeParam::container(*this->session.orig);
        all.after = TypeParam::container(*this->session.cfg);
        all.all = 1;
        all.common = common;
        const Elements elements = all.elements();
        ASSERT_GE(elements.size(), 2U);
        EXPECT_EQ(elements[0], this->entering("gold"));
        EXPECT_EQ(elements[1], "name \"gold\"");
        EXPECT_EQ(all.key[0], 31);
    }
}

TYPED_TEST(ProfileHead, DumpNamesANewProfileAndEntersItOnceMore)
{
    this->exists(this->diff.after, "gold");
    this->diff.all = 1;
    const Elements elements = this->elements();
    ASSERT_GE(elements.size(), 5U);
    EXPECT_EQ(Elements(elements.begin(), elements.begin() + 5),
              (Elements{this->entering("gold"), "name \"gold\"", "", "", "description \"\""}));
}

TYPED_TEST(ProfileHead, TextsThatFillTheirArrays)
{
    this->exists(this->diff.before, "gold");
    this->exists(this->diff.after, "sixteen-letters!");
    put(this->diff.after.description, std::string(256, 'd'));
    EXPECT_EQ(this->elements(), (Elements{this->entering("gold"), "name \"sixteen-letters!\"", "",
                                          "description \"" + std::string(256, 'd') + "\""}));
}

TYPED_TEST(ProfileHead, PlaceholdersInTextsAreSubstituted)
{
    this->exists(this->diff.before, "gold");
    this->exists(this->diff.after, "g$ID0");
    put(this->diff.after.description, "$ID1 of $ID0");
    this->diff.key[1] = 7;
    EXPECT_EQ(this->elements(),
              (Elements{this->entering("gold"), "name \"g  31\"", "", "description \"   7 of   31\""}));
}

} // namespace
