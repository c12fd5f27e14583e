#include "pon/diff_builder/list.h"
#include "tests/support/diff.h"

#include <cstdlib>
#include <string>
#include <type_traits>

using pondiff::Script;

namespace {

static_assert(!std::is_copy_constructible<List<char>>::value, "a list owns its nodes");
static_assert(!std::is_copy_assignable<List<char>>::value, "a list owns its nodes");

/// The elements from the first to the last; checks that the list agrees with them.
Elements elements(List<char>& list)
{
    EXPECT_TRUE(is_sound(list));
    EXPECT_EQ(list.first, list.begin());
    EXPECT_EQ(list.size(), list.lsize);
    return elements_of(list);
}

char a[] = "a";
char b[] = "b";
char c[] = "c";
char empty[] = "";

bool push(List<char>& list, const std::string& text)
{
    return pondiff::push(list, text.data(), text.size());
}

} // namespace

TEST(CommandList, IsEmptyAtFirst)
{
    List<char> list;
    EXPECT_EQ(list.begin(), nullptr);
    EXPECT_EQ(list.size(), 0);
    EXPECT_EQ(elements(list), Elements{});
    list.clear();
    EXPECT_EQ(elements(list), Elements{});
}

TEST(CommandList, HasThreeFieldsAndNoMore)
{
    struct Fields {
        ListElem<char>* first;
        ListElem<char>* last;
        int lsize;
    };
    EXPECT_EQ(sizeof(List<char>), sizeof(Fields));
    EXPECT_EQ(sizeof(ListElem<char>), 2 * sizeof(void*));
}

TEST(CommandList, KeepsTheOrderOfPushes)
{
    List<char> list;
    EXPECT_TRUE(list.push_back(b));
    EXPECT_EQ(elements(list), Elements({"b"}));
    EXPECT_EQ(list.first, list.last);
    EXPECT_TRUE(list.push_back(a));
    EXPECT_TRUE(list.push_back(c));
    EXPECT_TRUE(list.push_back(a));
    EXPECT_EQ(elements(list), Elements({"b", "a", "c", "a"}));
}

TEST(CommandList, StoresThePointerItself)
{
    List<char> list;
    list.push_back(a);
    EXPECT_EQ(list.begin()->elem, a);
    EXPECT_EQ(list.begin()->next, nullptr);
}

TEST(CommandList, EmptyTextsAndLineFeedsAreElements)
{
    char line_feed[] = "\nexit";
    List<char> list;
    list.push_back(empty);
    list.push_back(line_feed);
    list.push_back(nullptr);
    EXPECT_EQ(list.size(), 3);
    EXPECT_STREQ(list.first->elem, "");
    EXPECT_STREQ(list.first->next->elem, "\nexit");
    EXPECT_EQ(list.last->elem, nullptr);
}

TEST(CommandList, ClearingFreesNodesButNotTexts)
{
    List<char> list;
    list.push_back(a);
    list.push_back(b);
    list.clear();
    EXPECT_EQ(elements(list), Elements{});
    list.clear();
    EXPECT_STREQ(a, "a");
    list.push_back(c);
    EXPECT_EQ(elements(list), Elements({"c"})) << "a new list begins";
    EXPECT_EQ(list.first, list.last);
}

TEST(CommandList, GoesAwayWithoutItsTexts)
{
    char* text = strdup("kept");
    {
        List<char> list;
        list.push_back(text);
    }
    EXPECT_STREQ(text, "kept");
    std::free(text);
}

TEST(CommandList, HoldsManyElements)
{
    List<char> list;
    for (int i = 0; i < 100000; i++)
        list.push_back(i % 2 ? a : b);
    EXPECT_EQ(list.size(), 100000);
    EXPECT_EQ(elements(list)[99999], "a");
}

TEST(CommandList, DeletesTheFirstElement)
{
    List<char> list;
    list.push_back(a);
    list.push_back(b);
    list.push_back(c);
    list.delete_elem(list.first);
    EXPECT_EQ(elements(list), Elements({"b", "c"}));
}

TEST(CommandList, DeletesAnElementInTheMiddle)
{
    List<char> list;
    list.push_back(a);
    list.push_back(b);
    list.push_back(c);
    list.delete_elem(list.first->next);
    EXPECT_EQ(elements(list), Elements({"a", "c"}));
}

TEST(CommandList, DeletesTheLastElement)
{
    List<char> list;
    list.push_back(a);
    list.push_back(b);
    list.delete_elem(list.last);
    EXPECT_EQ(elements(list), Elements({"a"}));
    list.push_back(c);
    EXPECT_EQ(elements(list), Elements({"a", "c"})) << "what follows is linked behind the new last element";
}

TEST(CommandList, DeletesTheOnlyElement)
{
    List<char> list;
    list.push_back(a);
    list.delete_elem(list.first);
    EXPECT_EQ(elements(list), Elements{});
    list.push_back(b);
    EXPECT_EQ(elements(list), Elements({"b"}));
    EXPECT_STREQ(a, "a") << "the text is not freed";
}

TEST(CommandList, DeletesOneNodeOfSeveralWithTheSameText)
{
    List<char> list;
    list.push_back(a);
    list.push_back(a);
    list.push_back(b);
    ListElem<char>* const kept = list.first;
    list.delete_elem(list.first->next);
    EXPECT_EQ(elements(list), Elements({"a", "b"}));
    EXPECT_EQ(list.first, kept);
}

TEST(CommandList, LeavesNodesOfOthersAlone)
{
    List<char> list;
    List<char> other;
    list.push_back(a);
    other.push_back(b);
    list.delete_elem(other.first);
    list.delete_elem(nullptr);
    EXPECT_EQ(elements(list), Elements({"a"}));
    EXPECT_EQ(elements(other), Elements({"b"}));
    List<char> none;
    none.delete_elem(other.first);
    none.delete_elem(nullptr);
    EXPECT_EQ(elements(none), Elements{});
    EXPECT_EQ(elements(other), Elements({"b"}));
}

// ----------------------------------------------------------------------------------------- lists inside the library

TEST(PushedTexts, AListOfOthersGetsEveryElement)
{
    List<char> list;
    EXPECT_EQ(Script::of(list), nullptr);
    EXPECT_TRUE(push(list, "configure terminal\nip"));
    EXPECT_TRUE(push(list, ""));
    EXPECT_TRUE(push(list, "\nexit"));
    EXPECT_TRUE(push(list, "exit"));
    EXPECT_EQ(elements(list), Elements({"configure terminal\nip", "", "\nexit", "exit"}));
    take_elements(list);
}

TEST(PushedTexts, AreCopiesOfTheStatedSize)
{
    List<char> list;
    char text[] = "exit and more";
    EXPECT_TRUE(pondiff::push(list, text, 4));
    text[0] = 'X';
    EXPECT_EQ(elements(list), Elements({"exit"}));
    take_elements(list);
}

TEST(PushedTexts, AnOperationsListBecomesLinesWithoutEmptiesAndLineFeeds)
{
    List<char> list;
    Script script(list);
    EXPECT_EQ(Script::of(list), &script);
    EXPECT_TRUE(script.empty());
    EXPECT_TRUE(push(list, ""));
    EXPECT_TRUE(push(list, "\nexit"));
    EXPECT_TRUE(push(list, "\n"));
    EXPECT_TRUE(script.empty());
    EXPECT_TRUE(push(list, "configure terminal\ninterface ont 0/5"));
    EXPECT_FALSE(script.empty());
    EXPECT_TRUE(push(list, ""));
    EXPECT_TRUE(push(list, "shutdown"));
    EXPECT_TRUE(push(list, "exit\nexit"));
    script.append_line("commit", 6);
    EXPECT_FALSE(script.failed());
    EXPECT_EQ(taken(script.release()), "configure terminal\ninterface ont 0/5\nshutdown\nexit\nexit\ncommit\n");
    EXPECT_EQ(elements(list), Elements{}) << "nothing is kept twice";
}

TEST(PushedTexts, AnOperationWithNothingToSayHasAnEmptyText)
{
    List<char> list;
    Script script(list);
    EXPECT_TRUE(push(list, ""));
    EXPECT_EQ(taken(script.release()), "");
}

TEST(PushedTexts, AnOperationThatNeverHandsItsTextOverReleasesIt)
{
    List<char> list;
    {
        Script script(list);
        EXPECT_TRUE(push(list, std::string(5000, 'x')));
    }
    EXPECT_EQ(Script::of(list), nullptr);
    EXPECT_TRUE(push(list, ""));
    EXPECT_EQ(elements(list), Elements({""})) << "the list is an ordinary one again";
    take_elements(list);
}

TEST(PushedTexts, AListOfOthersStaysWholeWhileAnOperationIsUnderWay)
{
    List<char> list;
    List<char> other;
    Script script(list);
    EXPECT_EQ(Script::of(other), nullptr);
    EXPECT_TRUE(push(other, ""));
    EXPECT_TRUE(push(other, "\nother"));
    EXPECT_TRUE(push(list, "mine"));
    EXPECT_EQ(elements(other), Elements({"", "\nother"}));
    EXPECT_EQ(taken(script.release()), "mine\n");
    take_elements(other);
}

TEST(PushedTexts, AnOperationWithinAnotherHasItsOwnText)
{
    List<char> outer_list;
    Script outer(outer_list);
    EXPECT_TRUE(push(outer_list, "before"));
    {
        List<char> inner_list;
        Script inner(inner_list);
        EXPECT_TRUE(push(inner_list, "within"));
        EXPECT_EQ(taken(inner.release()), "within\n");
    }
    EXPECT_EQ(Script::of(outer_list), &outer);
    EXPECT_TRUE(push(outer_list, "after"));
    EXPECT_EQ(taken(outer.release()), "before\nafter\n");
}

TEST(PushedTexts, LongScriptsAreWhole)
{
    List<char> list;
    Script script(list);
    std::string expected;
    for (std::size_t i = 0; i < 3000; i++) {
        const std::string line(i + 1, static_cast<char>('a' + i % 26));
        EXPECT_TRUE(push(list, line));
        expected += line + '\n';
    }
    EXPECT_EQ(taken(script.release()), expected);
}

TEST(PushedTexts, LinesOfEveryLengthAroundPowersOfTwoAreWhole)
{
    for (const std::size_t power : {1024U, 4096U, 8192U}) {
        for (std::size_t length = power - 4; length < power + 4; length++) {
            List<char> list;
            Script script(list);
            EXPECT_TRUE(push(list, std::string(length, 'v')));
            EXPECT_TRUE(push(list, "w"));
            EXPECT_EQ(taken(script.release()), std::string(length, 'v') + "\nw\n");
        }
    }
}

TEST(PushedTexts, ALineMayBeBuiltInPlace)
{
    List<char> list;
    Script script(list);
    const auto build = [&script](const std::string& line) {
        char* const room = script.room();
        ASSERT_NE(room, nullptr);
        ASSERT_GT(script.room_size(), 1024U);
        line.copy(room, line.size());
        script.take_line(line.size());
    };
    build("");
    build("\n");
    build("\nexit");
    EXPECT_TRUE(script.empty()) << "neither empty ones nor those that begin with a line feed are lines";
    build("first");
    build("\nexit");
    build("");
    build("second\nthird\n");
    EXPECT_EQ(taken(script.release()), "first\nsecond\nthird\n\n");
}

TEST(PushedTexts, RoomForALineIsAlwaysFound)
{
    List<char> list;
    Script script(list);
    std::string expected;
    for (std::size_t i = 0; i < 3000; i++) {
        const std::string line(1023, static_cast<char>('a' + i % 26));
        char* const room = script.room();
        ASSERT_NE(room, nullptr);
        line.copy(room, line.size());
        script.take_line(line.size());
        expected += line + '\n';
    }
    EXPECT_EQ(taken(script.release()), expected);
}

TEST(PushedTexts, AScriptThatLostATextHasNoRoom)
{
    List<char> list;
    Script script(list);
    EXPECT_NE(script.room(), nullptr);
    script.lose();
    EXPECT_EQ(script.room(), nullptr);
    EXPECT_FALSE(push(list, "more"));
}

TEST(PushedTexts, AScriptThatLostATextIsNull)
{
    List<char> list;
    Script script(list);
    EXPECT_TRUE(push(list, "first"));
    script.lose();
    EXPECT_TRUE(script.failed());
    EXPECT_EQ(script.release(), nullptr);
}
