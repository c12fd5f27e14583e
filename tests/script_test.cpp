#include "pon/diff_builder/script.h"
#include "tests/support/diff.h"

#include <new>
#include <string>

using pondiff::Script;

namespace {

bool push(List<char>& list, const std::string& text)
{
    pondiff::Text copy;
    copy.append(text.data(), text.size());
    return pondiff::push(list, copy);
}

} // namespace

TEST(PushedTexts, AListOfOthersGetsEveryElement)
{
    List<char> list;
    EXPECT_EQ(Script::of(list), nullptr);
    EXPECT_TRUE(push(list, "configure terminal\nip"));
    EXPECT_TRUE(push(list, ""));
    EXPECT_TRUE(push(list, "\nexit"));
    EXPECT_TRUE(push(list, "exit"));
    EXPECT_EQ(take_elements(list), Elements({"configure terminal\nip", "", "\nexit", "exit"}));
}

TEST(PushedTexts, AreCopies)
{
    List<char> list;
    pondiff::Text text;
    text.append("exit");
    EXPECT_TRUE(pondiff::push(list, text));
    *text.data() = 'X';
    EXPECT_EQ(take_elements(list), Elements({"exit"}));
}

TEST(PushedTexts, ATextThatLostAPartIsNoElement)
{
    List<char> list;
    pondiff::Text text;
    text.append("exit");
    text.fail();
    EXPECT_FALSE(pondiff::push(list, text));
    EXPECT_EQ(take_elements(list), Elements{});
}

TEST(PushedTexts, AnOperationsListBecomesLinesWithoutEmptiesAndLineFeeds)
{
    Script script;
    EXPECT_EQ(Script::of(script), &script);
    EXPECT_TRUE(script.empty());
    EXPECT_TRUE(push(script, ""));
    EXPECT_TRUE(push(script, "\nexit"));
    EXPECT_TRUE(push(script, "\n"));
    EXPECT_TRUE(script.empty());
    EXPECT_TRUE(push(script, "configure terminal\ninterface ont 0/5"));
    EXPECT_FALSE(script.empty());
    EXPECT_TRUE(push(script, ""));
    EXPECT_TRUE(push(script, "shutdown"));
    EXPECT_TRUE(push(script, "exit\nexit"));
    EXPECT_TRUE(push(script, "commit"));
    EXPECT_FALSE(script.failed());
    EXPECT_EQ(taken(script.release()), "configure terminal\ninterface ont 0/5\nshutdown\nexit\nexit\ncommit\n");
    EXPECT_EQ(script.size(), 0) << "nothing is kept twice";
}

TEST(PushedTexts, AnOperationWithNothingToSayHasAnEmptyText)
{
    Script script;
    EXPECT_TRUE(push(script, ""));
    EXPECT_EQ(taken(script.release()), "");
}

TEST(PushedTexts, AnOperationThatNeverHandsItsTextOverReleasesIt)
{
    alignas(Script) unsigned char place[sizeof(Script)];
    auto* const script = new (place) Script;
    EXPECT_TRUE(push(*script, std::string(5000, 'x')));
    script->~Script();
    auto* const list = new (place) List<char>;
    EXPECT_TRUE(push(*list, ""));
    EXPECT_EQ(take_elements(*list), Elements({""})) << "what stands in its place is an ordinary list";
    list->~List();
}

TEST(PushedTexts, AListOfOthersStaysWholeWhileAnOperationIsUnderWay)
{
    List<char> other;
    Script script;
    EXPECT_EQ(Script::of(other), nullptr);
    EXPECT_TRUE(push(other, ""));
    EXPECT_TRUE(push(other, "\nother"));
    EXPECT_TRUE(push(script, "mine"));
    EXPECT_EQ(take_elements(other), Elements({"", "\nother"}));
    EXPECT_EQ(taken(script.release()), "mine\n");
}

TEST(PushedTexts, AnOperationWithinAnotherHasItsOwnText)
{
    Script outer;
    EXPECT_TRUE(push(outer, "before"));
    {
        Script inner;
        EXPECT_TRUE(push(inner, "within"));
        EXPECT_EQ(taken(inner.release()), "within\n");
    }
    EXPECT_EQ(Script::of(outer), &outer);
    EXPECT_TRUE(push(outer, "after"));
    EXPECT_EQ(taken(outer.release()), "before\nafter\n");
}

TEST(PushedTexts, LongScriptsAreWhole)
{
    Script script;
    std::string expected;
    for (std::size_t i = 0; i < 3000; ++i) {
        const std::string line(i + 1, static_cast<char>('a' + i % 26));
        EXPECT_TRUE(push(script, line));
        expected += line + '\n';
    }
    EXPECT_EQ(taken(script.release()), expected);
}

TEST(PushedTexts, LinesOfEveryLengthAroundPowersOfTwoAreWhole)
{
    for (const std::size_t power : {1024U, 4096U, 8192U}) {
        for (std::size_t length = power - 4; length < power + 4; ++length) {
            Script script;
            EXPECT_TRUE(push(script, std::string(length, 'v')));
            EXPECT_TRUE(push(script, "w"));
            EXPECT_EQ(taken(script.release()), std::string(length, 'v') + "\nw\n");
        }
    }
}

TEST(PushedTexts, AScriptThatLostATextIsNull)
{
    Script script;
    EXPECT_TRUE(push(script, "first"));
    pondiff::Text lost;
    lost.append("second");
    lost.fail();
    EXPECT_FALSE(pondiff::push(script, lost));
    EXPECT_FALSE(push(script, "third"));
    EXPECT_TRUE(script.failed());
    EXPECT_EQ(script.release(), nullptr);
}
