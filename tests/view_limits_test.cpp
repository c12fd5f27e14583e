/// Navigation with arguments and names that no well-behaved caller gives.

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

TEST_F(ViewLimits, TheRegistrysOwnNamesAreKnownByTheirAddress)
{
    for (std::size_t i = 0; i < pondiff::view_count(); i++) {
        const pondiff::view_data& view = pondiff::view(i);
        for (std::size_t j = 0; j < pondiff::view_count(); j++) {
            SCOPED_TRACE(std::string(pondiff::view(j).name) + " to " + view.name);
            current_view = {pondiff::view(j).name, {7}};
            ASSERT_EQ(pondiff::registered_view(view.name), &view);
            EXPECT_EQ(text(view.name).empty(), i == j);
            EXPECT_EQ(current_view.name, view.name);
            EXPECT_EQ(text(view.name), "");
        }
    }
}

/// Two rows of the table lead to it: from where ports and voice profiles are edited.
TEST_F(ViewLimits, TheMisspeltViewIsLeftByItsRowsAlone)
{
    current_view.name = "managemant-view";
    EXPECT_EQ(text("ports-view"), "exit\nprofile ports \"quad\"");
    EXPECT_STREQ(current_view.name, "ports-view");
    current_view.name = "managemant-view";
    EXPECT_EQ(text("voice-view"), "exit\nprofile voice \"\"");
    current_view.name = "managemant-view";
    EXPECT_EQ(text("vlan-view"), "\nconfigure terminal\nprofile vlan \"tags\"");
    EXPECT_STREQ(current_view.name, "vlan-view");
    current_view.name = "managemant-view";
    EXPECT_EQ(text("management-view"), "\nconfigure terminal\nprofile management \"\"");
}
