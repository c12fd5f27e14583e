#include "pon/diff_builder/formatting.h"
#include "tests/support/diff.h"

#include <string>
#include <vector>

namespace {

/// The result for a text in a block of its own length.
std::string replaced(const std::string& text, const char* needle, const char* replacement)
{
    std::vector<char> bytes(text.c_str(), text.c_str() + text.size() + 1);
    str_replace(bytes.data(), needle, replacement);
    EXPECT_EQ(bytes.back(), '\0') << "the terminator stays";
    return {bytes.data(), text.size()};
}

} // namespace

TEST(FormattedTemplates, EachConversionTakesTheNextValue)
{
    const pondiff::Value values[] = {"one", -2, 3000000000U};
    const auto formatted = [&values](const char* format, std::size_t count) {
        pondiff::Text text;
        pondiff::append_formatted(text, format, values, count);
        return std::string(text.c_str());
    };
    EXPECT_EQ(formatted("", 3), "");
    EXPECT_EQ(formatted("plain", 3), "plain");
    EXPECT_EQ(formatted("%s", 3), "one");
    EXPECT_EQ(formatted("<%s>%d<%u>", 3), "<one>-2<3000000000>");
    EXPECT_EQ(formatted("<%d> and %s", 3), "<one> and -2") << "the value knows how it is written";
    EXPECT_EQ(formatted("<%s>%d<%u>", 1), "<one><>") << "a conversion without a value stands for nothing";
    EXPECT_EQ(formatted("<%s>", 0), "<>");
}

TEST(StrReplace, ReplacesEveryOccurrence)
{
    EXPECT_EQ(replaced("%CHANNELID%", "%CHANNELID%", "%GPON-PORT%"), "%GPON-PORT%");
    EXPECT_EQ(replaced("a/%CHANNELID%/b/%CHANNELID%.", "%CHANNELID%", "%GPON-PORT%"), "a/%GPON-PORT%/b/%GPON-PORT%.");
    EXPECT_EQ(replaced("%CHANNELID%%CHANNELID%", "%CHANNELID%", "%GPON-PORT%"), "%GPON-PORT%%GPON-PORT%");
    EXPECT_EQ(replaced("%CHANNELID %channelid%", "%CHANNELID%", "%GPON-PORT%"), "%CHANNELID %channelid%");
    EXPECT_EQ(replaced("", "%CHANNELID%", "%GPON-PORT%"), "");
}

TEST(StrReplace, SearchesFromTheStartAgain)
{
    EXPECT_EQ(replaced("%CHANNELID%CHANNELID%", "%CHANNELID%", "%GPON-PORT%"), "%GPON-PORT%GPON-PORT%");
    EXPECT_EQ(replaced("aab", "ab", "ba"), "baa") << "what was written makes a new occurrence with what stood before";
    EXPECT_EQ(replaced("aaabb", "ab", "ba"), "bbaaa");
}

TEST(StrReplace, AReplacementThatHoldsTheNeedleIsNotSearchedAgain)
{
    EXPECT_EQ(replaced("xay", "a", "aa"), "xaa");
    EXPECT_EQ(replaced("a b a", "a", "aa"), "aab a");
    EXPECT_EQ(replaced("ab..ab..", "ab", "<ab>"), "<ab><ab>");
    EXPECT_EQ(replaced("ab..ab", "ab", "ab"), "ab..ab");
}

TEST(StrReplace, AnEmptyNeedleReplacesNothing)
{
    EXPECT_EQ(replaced("text", "", "x"), "text");
    EXPECT_EQ(replaced("text", "", ""), "text");
    EXPECT_EQ(replaced("", "", "x"), "");
}

TEST(StrReplace, AShorterReplacementLeavesTheNeedlesTail)
{
    EXPECT_EQ(replaced("<%CHANNELID%>", "%CHANNELID%", "port"), "<portNNELID%>");
    EXPECT_EQ(replaced("abc abc", "abc", "x"), "xbc xbc");
}

TEST(StrReplace, AReplacementThatBeginsTheNeedleChangesNothingAndEnds)
{
    EXPECT_EQ(replaced("xab", "ab", "a"), "xab");
    EXPECT_EQ(replaced("ab ab", "ab", "a"), "ab ab");
    EXPECT_EQ(replaced("ab ab", "ab", ""), "ab ab");
    EXPECT_EQ(replaced("aaa", "aa", "a"), "aaa");
}

TEST(StrReplace, ALongerReplacementOverwritesWhatFollows)
{
    EXPECT_EQ(replaced("<ab>tail", "ab", "1234"), "<1234ail");
    EXPECT_EQ(replaced("ab cd ab cd", "ab", "1234"), "1234d 1234d");
    EXPECT_EQ(replaced("abab..", "ab", "123"), "123b..") << "the second occurrence is overwritten";
}

TEST(StrReplace, NothingIsWrittenBehindTheEnd)
{
    EXPECT_EQ(replaced("xab", "ab", "1234"), "x12");
    EXPECT_EQ(replaced("xabc", "ab", "1234"), "x123");
    EXPECT_EQ(replaced("xab", "ab", "<ab>"), "x<a");
    EXPECT_EQ(replaced("ab", "ab", std::string(5000, 'y').c_str()), "yy");
}

TEST(StrReplace, NullArgumentsAreHarmless)
{
    char text[] = "text";
    str_replace(nullptr, "text", "x");
    str_replace(text, nullptr, "x");
    str_replace(text, "text", nullptr);
    EXPECT_STREQ(text, "text");
}
