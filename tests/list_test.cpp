#include "tests/support/diff.h"

#include <cstdlib>
#include <type_traits>

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
    for (int i = 0; i < 100000; ++i) {
        list.push_back(i % 2 ? a : b);
    }
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
