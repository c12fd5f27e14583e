#include "tests/support/diff.h"

#include <algorithm>
#include <array>
#include <climits>
#include <cstring>
#include <iterator>
#include <string>
#include <vector>

namespace {

constexpr char untouched = '\x5A';

/// What one request wrote: `touched` is false when not a single byte of the caller's buffer was.
struct Way {
    int result;
    bool touched;
    std::string text;
};

using Key = std::array<int, 10>;

Way go_with(const std::string& view, const Key& key)
{
    // Blocks of their own, so that a sanitizer sees every access beyond them.
    std::vector<char> out(1024, untouched);
    std::vector<int> ids(key.begin(), key.end());
    Way way{};
    way.result = goto_view_buf(view.c_str(), ids.data(), out.data());
    way.touched = out != std::vector<char>(1024, untouched);
    EXPECT_TRUE(std::equal(ids.begin(), ids.end(), key.begin())) << "the key is only read";
    if (way.touched) {
        EXPECT_NE(std::memchr(out.data(), '\0', out.size()), nullptr) << "no terminator";
        way.text = out.data();
    }
    return way;
}

Way go(const std::string& view, int id = 0)
{
    return go_with(view, {id});
}

/// The text of a successful request.
std::string text(const std::string& view, int id = 0)
{
    const Way way = go(view, id);
    EXPECT_EQ(way.result, 0);
    return way.text;
}

void expect_nothing_written(const Way& way)
{
    EXPECT_EQ(way.result, 0);
    EXPECT_FALSE(way.touched);
}

void expect_position(const char* name, int id)
{
    EXPECT_STREQ(current_view.name, name);
    EXPECT_EQ(current_view.key[0], id);
}

void expect_key(const Key& key)
{
    EXPECT_TRUE(std::equal(key.begin(), key.end(), current_view.key));
}

/// How each view is entered for the object 7, once `name_object_seven` has named it.
struct Entered {
    const char* view;
    const char* command;
};
constexpr Entered entered[] = {
    {"if-gpon-view", "interface gpon-port    7"},
    {"if-ont-view", "interface ont 0/7"},
    {"address-table-view", "profile address-table \"addresses\""},
    {"container-view", "profile container    7"},
    {"cross-connect-view", "profile cross-connect \"cross\""},
    {"dba-view", "profile dba \"bandwidth\""},
    {"template-view", "template \"villa\""},
    {"dhcp-ra-view", "profile dhcp-ra \"relay four\""},
    {"management-view", "profile management \"managed\""},
    {"ports-view", "profile ports \"quad\""},
    {"voice-view", "profile voice \"phone\""},
    {"pppoe-ia-view", "profile pppoe-ia \"agent\""},
    {"shaping-view", "profile shaping \"limited\""},
    {"vlan-view", "profile vlan \"tags\""},
    {"dhcpv6-ra-view", "profile dhcpv6-ra \"relay six\""},
};

template <class Profile>
void create(Profile& profile, const std::string& name)
{
    profile.exist = 1;
    put(profile.name, name);
}

void name_object_seven(GCfg& cfg, const std::string& prefix = "")
{
    GPonProfilesOlt& olt = cfg.pon.profiles_olt;
    GPonProfilesOnt& ont = cfg.pon.profiles_ont;
    create(olt.address_table[7], prefix + "addresses");
    create(ont.cross_connect[7], prefix + "cross");
    create(ont.alloc[7], prefix + "bandwidth");
    create(ont.template_ont[7], prefix + "villa");
    create(olt.dhcp_ra[7], prefix + "relay four");
    create(ont.management[7], prefix + "managed");
    create(ont.ports[7], prefix + "quad");
    create(ont.voice[7], prefix + "phone");
    create(olt.pppoe_ia[7], prefix + "agent");
    create(ont.shaping[7], prefix + "limited");
    create(olt.vlan[7], prefix + "tags");
    create(olt.dhcpv6_ra[7], prefix + "relay six");
}

/// Every test starts at the top level with no session open and a key of zeros.
class Views : public testing::Test {
  protected:
    void SetUp() override
    {
        finalize_diff();
        current_view = {"root", {}};
    }
    void TearDown() override { current_view = {"root", {}}; }

    void open_named()
    {
        name_object_seven(*session.cfg);
        session.open();
    }
    static void stand_in(const char* view, int id) { current_view = {view, {id}}; }

    Session session;
};

} // namespace

// ------------------------------------------------------------------------------------------------- every two views

TEST_F(Views, FromTheTopLevelAndBack)
{
    open_named();
    for (const Entered& to : entered) {
        SCOPED_TRACE(to.view);
        EXPECT_EQ(text(to.view, 7), std::string("configure terminal\n") + to.command);
        expect_position(to.view, 7);
        EXPECT_EQ(text("root", 7), "exit\nexit");
        expect_position("root", 7);
    }
    EXPECT_EQ(text("configure-view"), "configure terminal");
    EXPECT_STREQ(current_view.name, "configure-view");
    EXPECT_EQ(text("root"), "exit");
    EXPECT_STREQ(current_view.name, "root");
}

TEST_F(Views, FromTheConfigurationModeAndBack)
{
    open_named();
    text("configure-view");
    for (const Entered& to : entered) {
        SCOPED_TRACE(to.view);
        EXPECT_EQ(text(to.view, 7), to.command);
        expect_position(to.view, 7);
        EXPECT_EQ(text("configure-view", 7), "exit");
        expect_position("configure-view", 7);
    }
}

TEST_F(Views, FromEveryViewOfAnObjectToEveryOther)
{
    open_named();
    for (const Entered& from : entered) {
        for (const Entered& to : entered) {
            SCOPED_TRACE(std::string(from.view) + " to " + to.view);
            stand_in("root", 0);
            text(from.view, 7);
            if (&from == &to) {
                expect_nothing_written(go(to.view, 7));
                continue;
            }
            EXPECT_EQ(text(to.view, 7), std::string("exit\n") + to.command);
            expect_position(to.view, 7);
        }
    }
}

TEST_F(Views, FromOneObjectToAnotherOfTheSameView)
{
    open_named();
    for (const Entered& view : entered) {
        SCOPED_TRACE(view.view);
        current_view = {"root", {}};
        text(view.view, 6);
        EXPECT_EQ(text(view.view, 7), std::string("exit\n") + view.command);
        expect_position(view.view, 7);
    }
}

TEST_F(Views, NoObjectTellsTheTopLevelOrTheConfigurationModeApart)
{
    expect_nothing_written(go("root", 3));
    expect_position("root", 0);
    text("configure-view", 1);
    expect_nothing_written(go("configure-view", 4));
    expect_position("configure-view", 1);
}

TEST_F(Views, FromPortsOrVoiceToManagementUnderItsRightName)
{
    create(session.cfg->pon.profiles_ont.management[2], "mgmt");
    session.open();
    for (const char* from : {"ports-view", "voice-view"}) {
        SCOPED_TRACE(from);
        text(from, 1);
        EXPECT_EQ(text("management-view", 2), "exit\nprofile management \"mgmt\"");
        EXPECT_STREQ(current_view.name, "management-view");
    }
}

// ------------------------------------------------------------------------------------------------------------- keys

TEST_F(Views, TheSecondRequestForAnObjectWritesNothingWhateverTheOtherSlots)
{
    session.open();
    EXPECT_EQ(go_with("if-ont-view", {5, 1, 2, 3, 4, 5, 6, 7, 8, 9}).text, "configure terminal\ninterface ont 0/5");
    for (int slot = 1; slot < 10; ++slot) {
        Key key = {5, 1, 2, 3, 4, 5, 6, 7, 8, 9};
        key[static_cast<std::size_t>(slot)] = -1000;
        SCOPED_TRACE(slot);
        expect_nothing_written(go_with("if-ont-view", key));
        EXPECT_EQ(current_view.key[slot], slot) << "nothing moved, so the position keeps its key";
    }
}

TEST_F(Views, AllTenSlotsAreCopiedIntoThePosition)
{
    session.open();
    go_with("if-gpon-view", {2, 11, 12, 13, 14, 15, 16, 17, 18, INT_MIN});
    expect_key({2, 11, 12, 13, 14, 15, 16, 17, 18, INT_MIN});
}

TEST_F(Views, SlotsLeftOverFromAnotherViewDoNotHideAMove)
{
    session.open();
    text("if-ont-view", 9);
    text("configure-view", 9);
    EXPECT_EQ(text("if-ont-view", 9), "interface ont 0/9");
    text("root", 9);
    EXPECT_EQ(text("if-ont-view", 9), "configure terminal\ninterface ont 0/9");
    EXPECT_EQ(text("if-gpon-view", 9), "exit\ninterface gpon-port    9");
}

TEST_F(Views, TheCallersNameIsNotKept)
{
    char view[] = "if-ont-view";
    int key[10] = {3};
    char out[1024] = {};
    ASSERT_EQ(goto_view_buf(view, key, out), 0);
    std::memset(view, 'x', sizeof view - 1);
    EXPECT_STREQ(current_view.name, "if-ont-view");
}

// ------------------------------------------------------------------------------------------------------ identifiers

TEST_F(Views, AnOntIsItsPortAndItsNumber)
{
    const int indexes[] = {0, 5, 63, 64, 70, 130, 511, 512, 531, -1, -64, -65, INT_MAX, INT_MIN};
    const char* const shown[] = {"0/0", "0/5",  "0/63", "1/0",  "1/6",   "2/2",         "7/63",
                                 "8/0", "8/19", "0/-1", "-1/0", "-1/-1", "33554431/63", "-33554432/0"};
    for (std::size_t i = 0; i < std::size(indexes); ++i) {
        stand_in("configure-view", 0);
        EXPECT_EQ(text("if-ont-view", indexes[i]), std::string("interface ont ") + shown[i]);
    }
}

TEST_F(Views, AGponPortOrContainerStandsInFourCharacters)
{
    const int ids[] = {0, 3, 10, 1234, 12345, -1, -999, -1000, INT_MAX, INT_MIN};
    const char* const shown[] = {"   0", "   3", "  10",  "1234",       "12345",
                                 "  -1", "-999", "-1000", "2147483647", "-2147483648"};
    for (std::size_t i = 0; i < std::size(ids); ++i) {
        stand_in("configure-view", 0);
        EXPECT_EQ(text("if-gpon-view", ids[i]), std::string("interface gpon-port ") + shown[i]);
        stand_in("configure-view", 0);
        EXPECT_EQ(text("container-view", ids[i]), std::string("profile container ") + shown[i]);
    }
    stand_in("if-gpon-view", 1);
    EXPECT_EQ(text("if-gpon-view", 2), "exit\ninterface gpon-port    2");
}

TEST_F(Views, TheOldNameIsPreferredToTheNewOne)
{
    name_object_seven(*session.cfg);
    name_object_seven(*session.orig, "old ");
    session.open();
    for (const Entered& to : entered) {
        std::string command = to.command;
        const std::size_t quote = command.find('"');
        if (quote == std::string::npos) {
            continue;
        }
        stand_in("configure-view", 0);
        EXPECT_EQ(text(to.view, 7), command.insert(quote + 1, "old "));
    }
}

TEST_F(Views, AProfileThatIsGoneIsStillEnteredUnderItsOldName)
{
    create(session.orig->pon.profiles_ont.ports[3], "gone");
    session.open();
    EXPECT_EQ(text("ports-view", 3), "configure terminal\nprofile ports \"gone\"");
}

TEST_F(Views, AnEmptyOldNameIsAName)
{
    create(session.orig->pon.profiles_ont.ports[3], "");
    create(session.cfg->pon.profiles_ont.ports[3], "new");
    session.open();
    EXPECT_EQ(text("ports-view", 3), "configure terminal\nprofile ports \"\"");
}

TEST_F(Views, ANameOfSixteenCharactersHasNoTerminator)
{
    create(session.cfg->pon.profiles_ont.shaping[127], "sixteen letters!");
    put(session.cfg->pon.profiles_ont.shaping[127].description, "the field behind it");
    session.open();
    EXPECT_EQ(text("shaping-view", 127), "configure terminal\nprofile shaping \"sixteen letters!\"");
}

TEST_F(Views, ASlotWithoutANameGivesEmptyQuotes)
{
    session.open();
    for (const Entered& to : entered) {
        const std::string command = to.command;
        const std::size_t quote = command.find('"');
        if (quote == std::string::npos) {
            continue;
        }
        for (const int slot : {0, 31, 32, 127, 128, -1, INT_MIN, INT_MAX}) {
            SCOPED_TRACE(std::string(to.view) + " " + std::to_string(slot));
            stand_in("configure-view", 0);
            EXPECT_EQ(text(to.view, slot), command.substr(0, quote) + "\"\"");
        }
    }
}

TEST_F(Views, WithoutASessionNoSlotHasAName)
{
    open_named();
    finalize_diff();
    EXPECT_EQ(text("management-view", 7), "configure terminal\nprofile management \"\"");
    EXPECT_EQ(text("if-ont-view", 7), "exit\ninterface ont 0/7");
}

// --------------------------------------------------------------------------------------------- where a session starts

TEST_F(Views, AnUnsetViewCountsAsTheTopLevel)
{
    stand_in(nullptr, 0);
    EXPECT_EQ(text("if-ont-view", 5), "configure terminal\ninterface ont 0/5");
    expect_position("if-ont-view", 5);
    stand_in(nullptr, 0);
    EXPECT_EQ(text("configure-view"), "configure terminal");
    stand_in(nullptr, 0);
    expect_nothing_written(go("root", 4));
    EXPECT_EQ(text("conf"), "\n");
}

TEST_F(Views, ASessionStartsAtTheTopLevelWithTheKeyLeftAlone)
{
    session.open();
    go_with("if-ont-view", {5, 4, 3, 2, 1, 0, -1, -2, -3, -4});
    finalize_diff();
    session.open();
    EXPECT_STREQ(current_view.name, "root");
    expect_key({5, 4, 3, 2, 1, 0, -1, -2, -3, -4});
    EXPECT_EQ(text("if-ont-view", 5), "configure terminal\ninterface ont 0/5");
}

// ---------------------------------------------------------------------------------------------------- unknown views

TEST_F(Views, AnUnknownViewIsSaidOnStandardOutputAndChangesNothing)
{
    const std::string long_name(5000, 'z');
    const std::string names[] = {
        "managemant-view", "user",           "ont",  "if-ont_view", "ROOT", "Configure-view", "rood", " root",
        "if-ont-wiew",     "dhcpv4-ra-view", "%s%n", long_name};
    for (const std::string& name : names) {
        for (const char* from : {"root", "configure-view", "ports-view"}) {
            SCOPED_TRACE(name + " from " + from);
            current_view = {from, {1, 2, 3, 4, 5, 6, 7, 8, 9, 10}};
            testing::internal::CaptureStdout();
            const Way way = go_with(name, {11, 12, 13});
            const std::string said = testing::internal::GetCapturedStdout();
            EXPECT_EQ(way.result, -1);
            EXPECT_FALSE(way.touched);
            EXPECT_EQ(said, "\n\n\n\nVIEW " + name + " NOT FOUND!!!!!!!!!!!!!!\n\n\n");
            EXPECT_STREQ(current_view.name, from);
            expect_key({1, 2, 3, 4, 5, 6, 7, 8, 9, 10});
        }
    }
}

TEST_F(Views, AKnownViewIsNotTalkedAbout)
{
    testing::internal::CaptureStdout();
    go("if-ont-view", 1);
    go("if-ont-view", 1);
    go("conf");
    go("");
    EXPECT_EQ(testing::internal::GetCapturedStdout(), "");
}

// --------------------------------------------- names that only begin like a view's, or that begin with a view's name

TEST_F(Views, AnEmptyNameIsWhereverTheScriptStands)
{
    for (const char* from : {"root", "configure-view", "if-ont-view", "vlan-view"}) {
        SCOPED_TRACE(from);
        stand_in(from, 8);
        expect_nothing_written(go("", 9));
        expect_position(from, 8);
    }
}

TEST_F(Views, FromTheTopLevelAHalfNameIsALineFeed)
{
    for (const char* name : {"conf", "configure-view-x", "if-ont-view-x", "if-", "vlan", "management", "c"}) {
        SCOPED_TRACE(name);
        stand_in("root", 8);
        const Way way = go(name, 9);
        EXPECT_EQ(way.result, 0);
        EXPECT_EQ(way.text, "\n");
        expect_position("root", 8);
    }
}

TEST_F(Views, AHalfNameLeadsBackToTheTopLevelWhereTheKeyStaysTheOldOne)
{
    const struct {
        const char* from;
        const char* name;
        const char* text;
    } requests[] = {
        {"if-gpon-view", "conf", "exit\nexit\n"},          {"vlan-view", "if-ont-view-x", "exit\nexit\n"},
        {"configure-view", "if-ont-view-x", "exit\n"},     {"configure-view", "r", "exit\n"},
        {"ports-view", "rootx", "exit\nexit\n"},           {"container-view", "dhcpv6", "exit\nexit\n"},
        {"dhcp-ra-view", "dhcpv6-ra-vie", "exit\nexit\n"}, {"dhcpv6-ra-view", "dhcp-ra-viewer", "exit\nexit\n"},
    };
    for (const auto& request : requests) {
        SCOPED_TRACE(std::string(request.from) + " to " + request.name);
        current_view = {request.from, {8, 1, 2, 3, 4, 5, 6, 7, 8, 9}};
        const Way way = go(request.name, 9);
        EXPECT_EQ(way.result, 0);
        EXPECT_EQ(way.text, request.text);
        expect_key({8, 1, 2, 3, 4, 5, 6, 7, 8, 9});
        EXPECT_STREQ(current_view.name, "root");
    }
}

TEST_F(Views, AHalfNameOfTheViewOneStandsInIsThatView)
{
    stand_in("configure-view", 8);
    expect_nothing_written(go("conf", 9));
    stand_in("if-ont-view", 8);
    expect_nothing_written(go("if-ont-view-x", 8));
    expect_nothing_written(go("if-ont", 8));
    expect_position("if-ont-view", 8);
    EXPECT_EQ(go("if-ont-view-x", 9).text, "exit\nexit\n") << "another object";
    expect_position("root", 8);
}

TEST_F(Views, TheFirstViewThatBeginsAlikeSaysHowManySlotsCount)
{
    // "con" is the configuration mode first, which no object tells apart, although the script stands in a container.
    stand_in("container-view", 8);
    expect_nothing_written(go("con", 9));
    EXPECT_EQ(go("cont", 9).text, "exit\nexit\n");
}

TEST_F(Views, ALongNameThatBeginsWithAViewsIsTakenWhole)
{
    stand_in("configure-view", 0);
    EXPECT_EQ(go("vlan-view" + std::string(3000, '!'), 1).text, "exit\n");
}

TEST_F(Views, AnUnknownStandingPlaceIsLeftByALineFeed)
{
    stand_in("elsewhere", 8);
    EXPECT_EQ(text("if-ont-view", 5), "\nconfigure terminal\ninterface ont 0/5");
    expect_position("if-ont-view", 5);
    stand_in("elsewhere", 8);
    EXPECT_EQ(text("root", 5), "\n") << "no way leads to the top level";
    expect_position("elsewhere", 8);
    stand_in("if-ont-view-x", 8);
    expect_nothing_written(go("if-ont-view", 8));
}
