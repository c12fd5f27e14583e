/// Navigation with unusual arguments and names.

#include "pon/DataToCommandsConvertor/views.h"
#include "tests/support/allocation.h"
#include "tests/support/diff.h"

#include <algorithm>
#include <string>
#include <vector>

namespace {

/// The profiles 7 have names in both configurations; nothing else has.
class ViewLimits : public testing::Test {
  protected:
    ViewLimits()
    {
        session.cfg->pon.profiles_olt.vlan[7].exist = 1;
        put(session.cfg->pon.profiles_olt.vlan[7].name, "tags");
        session.cfg->pon.profiles_ont.ports[7].exist = 1;
        put(session.cfg->pon.profiles_ont.ports[7].name, "quad");
        session.open();
        session_name = vlan2id_connection[7];
        current_view = {"if-ont-view", {5, 6}};
    }
    ~ViewLimits() override { current_view = {"root", {}}; }

    /// The request does not move the script and writes nothing.
    static void expect_refused(const char* view, int* ids)
    {
        std::vector<char> out(1024, '!');
        EXPECT_EQ(goto_view_buf(view, ids, out.data()), -1);
        EXPECT_EQ(out, std::vector<char>(1024, '!'));
        expect_still_there();
    }
    static void expect_still_there()
    {
        EXPECT_STREQ(current_view.name, "if-ont-view");
        EXPECT_EQ(current_view.key[0], 5);
        EXPECT_EQ(current_view.key[1], 6);
    }

    std::string text(const char* view)
    {
        char out[1024] = "";
        EXPECT_EQ(goto_view_buf(view, key, out), 0);
        return out;
    }

    /// Gives the VLAN profile 7 a name of so many characters, as no session does.
    void name_vlan(std::size_t size)
    {
        name.assign(size, 'n');
        vlan2id_connection[7] = name.data();
    }
    void TearDown() override { vlan2id_connection[7] = session_name; }

    Session session;
    int key[10] = {7};
    std::string name;
    char* session_name = nullptr;
};

} // namespace

TEST_F(ViewLimits, NullArgumentsTouchNothing)
{
    testing::internal::CaptureStdout();
    expect_refused(nullptr, key);
    expect_refused("vlan-view", nullptr);
    EXPECT_EQ(goto_view_buf("vlan-view", key, nullptr), -1);
    expect_still_there();
    expect_refused(nullptr, nullptr);
    EXPECT_EQ(goto_view_buf(nullptr, nullptr, nullptr), -1);
    expect_still_there();
    EXPECT_EQ(testing::internal::GetCapturedStdout(), "");
}

TEST_F(ViewLimits, ATextOf1023CharactersIsTheLongest)
{
    const std::string around = "exit\nprofile vlan \"\"";
    name_vlan(1023 - around.size());
    EXPECT_EQ(text("vlan-view"), "exit\nprofile vlan \"" + name + "\"");
    EXPECT_STREQ(current_view.name, "vlan-view");
}

TEST_F(ViewLimits, ALongerTextTouchesNothing)
{
    const std::string around = "exit\nprofile vlan \"\"";
    for (const std::size_t size : {1024U, 1025U, 5000U}) {
        name_vlan(size - around.size());
        expect_refused("vlan-view", key);
    }
}

TEST_F(ViewLimits, ATextWithoutMemoryTouchesNothing)
{
    name_vlan(5000);
    const FailingAllocation failure(1, Failing::from_then_on);
    char out[1024] = "!";
    EXPECT_EQ(goto_view_buf("vlan-view", key, out), -1);
    EXPECT_TRUE(failure.happened());
    EXPECT_STREQ(out, "!");
    expect_still_there();
}

TEST_F(ViewLimits, AViewIsEnteredByItsConstantAsByItsName)
{
    using namespace pondiff;
    for (std::size_t i = 0; i < view_count; ++i) {
        for (std::size_t j = 0; j < view_count; ++j) {
            for (const int standing_id : {7, 8}) {
                SCOPED_TRACE(std::string(views[i].name) + " to " + views[j].name);
                current_view = {views[i].name, {standing_id}};
                const std::string by_name = text(views[j].name);
                const view_state there = current_view;

                current_view = {views[i].name, {standing_id}};
                Text by_constant;
                goto_view(static_cast<View>(j), key, by_constant);
                EXPECT_EQ(by_constant.c_str(), by_name);
                EXPECT_EQ(current_view.name, there.name);
                EXPECT_EQ(current_view.key[0], there.key[0]);
                EXPECT_TRUE(stands_at(static_cast<View>(j), key));
            }
        }
    }
}

/// The device has transitions from a view with a misspelt name to ports and voice profiles. No script enters it.
TEST_F(ViewLimits, FromTheMisspeltViewThereAreTwoWays)
{
    const struct {
        const char* view;
        const char* text;
        const char* now;
    } requests[] = {
        {"ports-view", "exit\nprofile ports \"quad\"", "ports-view"},
        {"voice-view", "exit\nprofile voice \"\"", "voice-view"},
        {"vlan-view", "\nconfigure terminal\nprofile vlan \"tags\"", "vlan-view"},
        {"management-view", "\nconfigure terminal\nprofile management \"\"", "management-view"},
        {"if-ont-view", "\nconfigure terminal\ninterface ont 0/7", "if-ont-view"},
        {"configure-view", "\nconfigure terminal", "configure-view"},
        {"root", "\n", "managemant-view"},
        {"ports", "\n", "managemant-view"},
        {"voice-view-x", "\n", "managemant-view"},
    };
    for (const auto& request : requests) {
        SCOPED_TRACE(request.view);
        current_view.name = "managemant-view";
        EXPECT_EQ(text(request.view), request.text);
        EXPECT_STREQ(current_view.name, request.now);
    }
}
