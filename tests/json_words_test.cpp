#include "tool/json/words.h"

#include <cstring>
#include <gtest/gtest.h>
#include <string>
#include <vector>

using pondiff::tool::Words;

namespace {

/// A registry with all oddities that are possible.
const char* look_up(const char* type, int value)
{
    static constexpr const char* words[] = {"same", "same", "", nullptr, "\xFF", "7", "say \"so\"", "?"};
    if (std::strcmp(type, "Awkward_enum") != 0) {
        return "?";
    }
    const int low = value & 0xFFFF;
    return low < 8 ? words[low] : low == 255 ? "near" : low == 256 ? "far" : low == 1023 ? "last" : "?";
}

std::vector<std::string> texts(const Words& words)
{
    std::vector<std::string> result;
    for (const Words::Word& word : words) {
        result.emplace_back(word.word);
    }
    return result;
}

} // namespace

TEST(JsonWords, AWordStandsForOneValue)
{
    const Words words("Awkward_enum", 65535, look_up);
    EXPECT_EQ(texts(words), (std::vector<std::string>{"same", "7", "say \"so\"", "near", "far", "last"}));
    EXPECT_EQ(words.word_of(0), "same");
    ASSERT_NE(words.find("same"), nullptr);
    EXPECT_EQ(words.find("same")->value, 0);
    EXPECT_EQ(words.word_of(5), "7");
    EXPECT_EQ(words.find("7")->value, 5);
    EXPECT_EQ(words.word_of(1023), "last");
}

TEST(JsonWords, WhatIsNoWordIsNone)
{
    const Words words("Awkward_enum", 65535, look_up);
    EXPECT_EQ(words.word_of(1), "") << "another value's word";
    EXPECT_EQ(words.word_of(2), "") << "empty";
    EXPECT_EQ(words.word_of(3), "") << "null";
    EXPECT_EQ(words.word_of(4), "") << "not UTF-8";
    EXPECT_EQ(words.word_of(7), "") << "the text for values without words";
    EXPECT_EQ(words.word_of(8), "");
    EXPECT_EQ(words.word_of(65536), "") << "the registry sees 0";
    for (const char* const word : {"", "?", "\xFF", "Same"}) {
        EXPECT_EQ(words.find(word), nullptr) << word;
    }
}

TEST(JsonWords, WordsOfValuesThatDoNotFitAreLeftOut)
{
    const Words words("Awkward_enum", 255, look_up);
    EXPECT_EQ(texts(words).back(), "near");
    EXPECT_EQ(words.find("far"), nullptr);
}

TEST(JsonWords, AnUnknownEnumerationHasNoWords)
{
    EXPECT_TRUE(texts(Words("Other_enum", 65535, look_up)).empty());
}
