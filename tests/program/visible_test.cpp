/// Texts in messages and previews: no control characters, nothing invisible.

#include "tool/visible.h"

#include <gtest/gtest.h>
#include <string>

using pondiff::tool::is_visible;
using pondiff::tool::visible;

namespace {

void expect_written_out(const std::string& text, const std::string& written)
{
    EXPECT_FALSE(is_visible(text)) << written;
    EXPECT_EQ(visible(text), written);
}

TEST(Visible, WhatShowsStaysAsItIs)
{
    for (const std::string text : {"", "olt-17", "Zur Mühle, 2. Stock", "\xE4\xB8\xAD\xE6\x96\x87", "\xF0\x9F\x8C\x8D",
                                   "a \"quote\" and a \\"}) {
        EXPECT_TRUE(is_visible(text)) << text;
        EXPECT_EQ(visible(text), text);
    }
}

TEST(Visible, ControlCharactersAreWrittenOut)
{
    expect_written_out("a\nb", "a\\x0Ab");
    expect_written_out("\x1B[2J", "\\x1B[2J");
    expect_written_out(std::string("a\0b", 3), "a\\x00b");
    expect_written_out("\x7F", "\\x7F");
    expect_written_out("\xC2\x9B"
                       "2J",
                       "\\u{9B}2J");
    expect_written_out("\x9B"
                       "2J",
                       "\\x9B2J");
}

TEST(Visible, DirectionLineEndsAndWhatTakesNoRoomAreWrittenOut)
{
    expect_written_out("\xE2\x80\xAE", "\\u{202E}");
    expect_written_out("\xE2\x81\xA6", "\\u{2066}");
    expect_written_out("\xD8\x9C", "\\u{61C}");
    expect_written_out("\xE2\x80\xA8", "\\u{2028}");
    expect_written_out("\xE2\x80\xA9", "\\u{2029}");
    expect_written_out("\xE2\x80\x8B", "\\u{200B}");
    expect_written_out("\xE2\x81\xA0", "\\u{2060}");
    expect_written_out("\xEF\xBB\xBF", "\\u{FEFF}");
}

TEST(Visible, BytesThatAreNoUtf8AreWrittenOut)
{
    expect_written_out("\xFF", "\\xFF");
    expect_written_out("\xC0\xAF", "\\xC0\\xAF");                   // overlong
    expect_written_out("\xED\xA0\x80", "\\xED\\xA0\\x80");          // half of a pair
    expect_written_out("\xF4\x90\x80\x80", "\\xF4\\x90\\x80\\x80"); // beyond the last character
    expect_written_out("a\xE4\xB8", "a\\xE4\\xB8");                 // cut
}

TEST(Visible, CutBetweenCharacters)
{
    EXPECT_EQ(pondiff::tool::shortened("abc", 3), "abc");
    EXPECT_EQ(pondiff::tool::shortened("abcd", 3), "abc...");
    EXPECT_EQ(pondiff::tool::shortened("ab\u00E9d", 3), "ab...");
    EXPECT_EQ(pondiff::tool::shortened("ab\u00E9d", 4), "ab\u00E9...");
}

} // namespace
