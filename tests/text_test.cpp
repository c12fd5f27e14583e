#include "pon/DataToCommandsConvertor/text.h"

#include <climits>
#include <cstdint>
#include <cstdio>
#include <cstdlib>
#include <gtest/gtest.h>
#include <string>
#include <utility>
#include <vector>

using namespace pondiff;

namespace {

std::string content(const Text& text)
{
    return {text.data(), text.size()};
}

std::string natural(std::uint64_t value)
{
    Text text;
    text.append_natural(value);
    return content(text);
}

std::string decimal(std::int64_t value)
{
    Text text;
    text.append_decimal(value);
    return content(text);
}

std::string aligned(int value)
{
    Text text;
    text.append_aligned(value);
    return content(text);
}

/// In a block of its own, so that a sanitizer sees every access beyond it.
std::string identifier(int value)
{
    std::vector<char> out(4, 'x');
    put_identifier(out.data(), value);
    return {out.data(), out.size()};
}

void append(Text& text, const std::string& bytes)
{
    text.append(bytes.data(), bytes.size());
}

std::string front_replaced(const std::string& before, std::size_t count, const std::string& replacement)
{
    Text text;
    Text front;
    append(text, before);
    append(front, replacement);
    text.replace_front(count, front);
    EXPECT_EQ(content(front), replacement);
    EXPECT_FALSE(text.failed());
    return content(text);
}

} // namespace

TEST(Digits, NaturalNumbers)
{
    EXPECT_EQ(natural(0), "0");
    EXPECT_EQ(natural(UINT32_MAX), "4294967295");
    EXPECT_EQ(natural(INT64_MAX), "9223372036854775807");
    EXPECT_EQ(natural(UINT64_MAX), "18446744073709551615");
}

TEST(Digits, NaturalNumbersAroundEachPowerOfTen)
{
    std::uint64_t power = 1;
    for (std::size_t zeros = 1; zeros < 20; ++zeros) {
        power *= 10;
        EXPECT_EQ(natural(power), "1" + std::string(zeros, '0'));
        EXPECT_EQ(natural(power - 1), std::string(zeros, '9'));
        EXPECT_EQ(natural(power + 1), "1" + std::string(zeros - 1, '0') + "1");
    }
}

TEST(Digits, DecimalNumbers)
{
    EXPECT_EQ(decimal(0), "0");
    EXPECT_EQ(decimal(-1), "-1");
    EXPECT_EQ(decimal(-10), "-10");
    EXPECT_EQ(decimal(INT_MIN), "-2147483648");
    EXPECT_EQ(decimal(INT64_MAX), "9223372036854775807");
    EXPECT_EQ(decimal(INT64_MIN), "-9223372036854775808");
}

namespace {

/// What the printing conversions write.
std::string printed_natural(std::uint64_t value)
{
    char text[32];
    std::snprintf(text, sizeof text, "%ju", std::uintmax_t{value});
    return text;
}

std::string printed_decimal(std::int64_t value)
{
    char text[32];
    std::snprintf(text, sizeof text, "%jd", std::intmax_t{value});
    return text;
}

std::string printed_aligned(int value)
{
    char text[32];
    std::snprintf(text, sizeof text, "%4d", value);
    return text;
}

} // namespace

TEST(Digits, AreThoseOfThePrintingConversions)
{
    for (int value = 0; value < 100000; ++value) {
        ASSERT_EQ(natural(static_cast<unsigned>(value)), printed_natural(static_cast<unsigned>(value)));
        for (const int either : {value, -value}) {
            ASSERT_EQ(decimal(either), printed_decimal(either));
            ASSERT_EQ(aligned(either), printed_aligned(either));
            ASSERT_EQ(identifier(either), printed_aligned(either).substr(0, 4));
        }
    }
}

TEST(Digits, AroundTheLimitsOfTheTypes)
{
    std::vector<std::uint64_t> values;
    std::uint64_t power = 1;
    for (int zeros = 0; zeros < 20; ++zeros, power *= 10) {
        values.push_back(power);
    }
    for (unsigned bit = 0; bit < 64; ++bit) {
        values.push_back(std::uint64_t{1} << bit);
    }
    for (const std::uint64_t about : values) {
        for (const std::uint64_t value : {about - 1, about, about + 1, 0 - about}) {
            const auto as_signed = static_cast<std::int64_t>(value);
            const auto narrow = static_cast<int>(static_cast<std::uint32_t>(value));
            ASSERT_EQ(natural(value), printed_natural(value));
            ASSERT_EQ(decimal(as_signed), printed_decimal(as_signed));
            ASSERT_EQ(aligned(narrow), printed_aligned(narrow));
            ASSERT_EQ(identifier(narrow), printed_aligned(narrow).substr(0, 4));
        }
    }
    EXPECT_EQ(aligned(INT_MIN), "-2147483648");
    EXPECT_EQ(identifier(INT_MIN), "-214");
    EXPECT_EQ(identifier(INT_MAX), "2147");
}

TEST(ScratchText, IsEmptyAtFirst)
{
    Text text;
    EXPECT_EQ(text.size(), 0U);
    EXPECT_STREQ(text.c_str(), "");
    EXPECT_FALSE(text.failed());
}

TEST(ScratchText, TakesTextsBytesAndNumbers)
{
    Text text;
    text.append("port ");
    text.append_natural(7);
    text.append(" of ");
    text.append_decimal(-8);
    text.append('!');
    text.append("?more", 1);
    text.append("", 0);
    text.append("");
    EXPECT_STREQ(text.c_str(), "port 7 of -8!?");
    EXPECT_EQ(text.size(), 14U);
}

TEST(ScratchText, TakesTheLongestNumbers)
{
    Text text;
    text.append_natural(UINT64_MAX);
    text.append_decimal(INT64_MIN);
    EXPECT_STREQ(text.c_str(), "18446744073709551615-9223372036854775808");
}

TEST(ScratchText, IdentifiersStandInFourCharactersOrMore)
{
    const std::pair<int, const char*> identifiers[] = {
        {0, "   0"},   {42, "  42"},   {999, " 999"},    {1000, "1000"},          {12345, "12345"},        {-1, "  -1"},
        {-99, " -99"}, {-999, "-999"}, {-1000, "-1000"}, {INT_MAX, "2147483647"}, {INT_MIN, "-2147483648"}};
    for (const auto& [value, shown] : identifiers) {
        Text text;
        text.append("<");
        text.append_aligned(value);
        text.append(">");
        EXPECT_STREQ(text.c_str(), ("<" + std::string(shown) + ">").c_str());
    }
}

TEST(ScratchText, OfEveryLengthAroundItsRoomOnTheStack)
{
    for (std::size_t length = 1000; length < 1100; ++length) {
        const std::string bytes(length, 'v');
        Text whole;
        append(whole, bytes);
        EXPECT_EQ(whole.c_str(), bytes);
        Text pieces;
        for (const char byte : bytes) {
            pieces.append(byte);
        }
        EXPECT_EQ(pieces.c_str(), bytes);
        pieces.append_natural(UINT64_MAX);
        pieces.append_aligned(5);
        EXPECT_EQ(pieces.c_str(), bytes + "18446744073709551615   5");
    }
}

TEST(ScratchText, GrowsAsFarAsNeeded)
{
    Text text;
    std::string expected;
    for (std::size_t i = 0; i < 500; ++i) {
        const std::string piece(i * 7, static_cast<char>('a' + i % 26));
        append(text, piece);
        expected += piece;
    }
    EXPECT_EQ(content(text), expected);
    EXPECT_FALSE(text.failed());
}

TEST(ScratchText, HoldsAnyBytes)
{
    Text text;
    append(text, std::string("\0\xFF\n\0", 4));
    EXPECT_EQ(content(text), std::string("\0\xFF\n\0", 4));
}

TEST(ScratchText, ItsFrontIsReplaced)
{
    EXPECT_EQ(front_replaced("user $ID0 x", 10, "user \"n\" "), "user \"n\" x");
    EXPECT_EQ(front_replaced("abcdef", 3, "ABC"), "ABCdef");
    EXPECT_EQ(front_replaced("abcdef", 3, ""), "def");
    EXPECT_EQ(front_replaced("abcdef", 6, "longer than it"), "longer than it");
    EXPECT_EQ(front_replaced("abcdef", 0, "in front of "), "in front of abcdef");
    EXPECT_EQ(front_replaced("", 0, "new"), "new");
    EXPECT_EQ(front_replaced("", 0, ""), "");
}

TEST(ScratchText, ItsFrontIsReplacedAcrossItsRoomOnTheStack)
{
    for (std::size_t length = 1000; length < 1060; ++length) {
        const std::string tail(length, 't');
        EXPECT_EQ(front_replaced("head" + tail, 4, "a longer head "), "a longer head " + tail);
        EXPECT_EQ(front_replaced("a longer head " + tail, 14, "head"), "head" + tail);
    }
    EXPECT_EQ(front_replaced("head", 4, std::string(5000, 'n')), std::string(5000, 'n'));
}

TEST(ScratchText, HandsOutCopies)
{
    for (const std::size_t length : {0U, 1U, 1023U, 1024U, 5000U}) {
        Text text;
        append(text, std::string(length, 'v'));
        char* const copy = text.release_copy();
        ASSERT_NE(copy, nullptr);
        text.append(" and more");
        EXPECT_EQ(copy, std::string(length, 'v'));
        std::free(copy);
    }
}
