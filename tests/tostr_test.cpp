#include "tests/support/diff.h"

#include <algorithm>
#include <cfloat>
#include <climits>
#include <cstdlib>
#include <limits>
#include <string>
#include <vector>

namespace {

constexpr std::size_t number_size = 256; ///< capacity of the numbers' buffers

/// The text, with zeros behind it up to the buffer's capacity; frees it.
void expect_text(char* result, const std::string& text, std::size_t capacity)
{
    ASSERT_NE(result, nullptr);
    EXPECT_STREQ(result, text.c_str());
    const std::size_t size = std::max(capacity, text.size() + 1);
    if (text == result) {
        EXPECT_EQ(std::string(result, size), text + std::string(size - text.size(), '\0'));
    }
    std::free(result);
}

void expect_enum(const char* type, int value, const std::string& word)
{
    std::vector<char> name(type, type + std::strlen(type) + 1);
    expect_text(Enum_tostr(name.data(), value), word, word.size() + 1);
}

void expect_password(std::vector<char> field, const std::string& text)
{
    expect_text(GOntPassword_t_tostr(field.data()), text, 32);
}

void expect_u8s(std::vector<unsigned char> values, const std::string& text)
{
    const std::size_t capacity = 4 * values.size();
    expect_text(convertarrayu8tostr(values.data(), static_cast<int>(values.size())), text, capacity);
}

void expect_s16s(std::vector<short> values, const std::string& text)
{
    const std::size_t capacity = 7 * values.size();
    expect_text(convertarrays16tostr(values.data(), static_cast<int>(values.size())), text, capacity);
}

} // namespace

// ---------------------------------------------------------------------------------------------------------- numbers

TEST(ToStr, UnsignedNumbers)
{
    expect_text(u32_tostr(0), "0", number_size);
    expect_text(u32_tostr(10), "10", number_size);
    expect_text(u32_tostr(0x80000000), "2147483648", number_size);
    expect_text(u32_tostr(UINT_MAX), "4294967295", number_size);
    expect_text(u16_tostr(0), "0", number_size);
    expect_text(u16_tostr(32768), "32768", number_size);
    expect_text(u16_tostr(USHRT_MAX), "65535", number_size);
    expect_text(u64_tostr(0), "0", number_size);
    expect_text(u64_tostr(4294967296), "4294967296", number_size);
    expect_text(u64_tostr(ULLONG_MAX), "18446744073709551615", number_size);
}

TEST(ToStr, SignedNumbers)
{
    expect_text(int_tostr(0), "0", number_size);
    expect_text(int_tostr(-1), "-1", number_size);
    expect_text(int_tostr(-128), "-128", number_size);
    expect_text(int_tostr(255), "255", number_size);
    expect_text(int_tostr(INT_MAX), "2147483647", number_size);
    expect_text(int_tostr(INT_MIN), "-2147483648", number_size);
}

TEST(ToStr, NumbersThatMayBeUnused)
{
    expect_text(int_tostr_or_unused(-1), "unused", number_size);
    expect_text(int_tostr_or_unused(-2), "-2", number_size);
    expect_text(int_tostr_or_unused(0), "0", number_size);
    expect_text(int_tostr_or_unused(1), "1", number_size);
    expect_text(int_tostr_or_unused(INT_MAX), "2147483647", number_size);
    expect_text(int_tostr_or_unused(INT_MIN), "-2147483648", number_size);
}

TEST(ToStr, BitErrorIntervals)
{
    expect_text(BerInterval_tostr(0xFFFFFFFF), "none", number_size);
    expect_text(BerInterval_tostr(0xFFFFFFFE), "4294967294", number_size);
    expect_text(BerInterval_tostr(0), "0", number_size);
    expect_text(BerInterval_tostr(0x7FFFFFFF), "2147483647", number_size);
}

TEST(ToStr, RealNumbers)
{
    expect_text(double_tostr(0), "0.000000", number_size);
    expect_text(double_tostr(-0.0), "-0.000000", number_size);
    expect_text(double_tostr(1.5), "1.500000", number_size);
    expect_text(double_tostr(-23.75), "-23.750000", number_size);
    expect_text(double_tostr(0.0000004), "0.000000", number_size);
    expect_text(double_tostr(0.0000006), "0.000001", number_size);
    expect_text(double_tostr(DBL_MIN), "0.000000", number_size);
    expect_text(double_tostr(1e15), "1000000000000000.000000", number_size);
    expect_text(double_tostr(std::numeric_limits<double>::infinity()), "inf", number_size);
    expect_text(double_tostr(-std::numeric_limits<double>::infinity()), "-inf", number_size);
    expect_text(double_tostr(std::numeric_limits<double>::quiet_NaN()), "nan", number_size);
}

TEST(ToStr, TheLargestRealNumberIsWrittenWhole)
{
    const std::string digits = "17976931348623157081452742373170435679807056752584499659891747680315726078002853"
                               "87605895586327668781715404589535143824642343213268894641827684675467035375169860"
                               "49910576551282076245490090389328944075868508455133942304583236903222948165808559"
                               "332123348274797826204144723168738177180919299881250404026184124858368.000000";
    expect_text(double_tostr(DBL_MAX), digits, number_size);
    expect_text(double_tostr(-DBL_MAX), "-" + digits, number_size);
}

TEST(ToStr, HexadecimalNumbers)
{
    expect_text(u64_tostr_hex(0), "0x0", number_size);
    expect_text(u64_tostr_hex(0xABCDEF), "0xABCDEF", number_size);
    expect_text(u64_tostr_hex(0x100000000), "0x100000000", number_size);
    expect_text(u64_tostr_hex(ULLONG_MAX), "0xFFFFFFFFFFFFFFFF", number_size);
    expect_text(u32_tostr_hex(0), "0x0", number_size);
    expect_text(u32_tostr_hex(0xBEEF), "0xBEEF", number_size);
    expect_text(u32_tostr_hex(UINT_MAX), "0xFFFFFFFF", number_size);
}

TEST(ToStr, HexadecimalNumbersOfAFixedWidth)
{
    expect_text(u16_tostr_hex(0), "0x0000", number_size);
    expect_text(u16_tostr_hex(5), "0x0005", number_size);
    expect_text(u16_tostr_hex(0x88a8), "0x88A8", number_size);
    expect_text(u16_tostr_hex(USHRT_MAX), "0xFFFF", number_size);
    expect_text(int_3byte_tostr_hex(0), "0x000000", number_size);
    expect_text(int_3byte_tostr_hex(0xAB), "0x0000AB", number_size);
    expect_text(int_3byte_tostr_hex(0xFFFFFF), "0xFFFFFF", number_size);
    expect_text(int_3byte_tostr_hex(0x1000000), "0x1000000", number_size);
    expect_text(int_3byte_tostr_hex(-1), "0xFFFFFFFF", number_size);
    expect_text(int_3byte_tostr_hex(INT_MIN), "0x80000000", number_size);
    expect_text(int_tostr_hex(0), "0x00000000", number_size);
    expect_text(int_tostr_hex(0x1a2b3c), "0x001A2B3C", number_size);
    expect_text(int_tostr_hex(INT_MAX), "0x7FFFFFFF", number_size);
    expect_text(int_tostr_hex(-1), "0xFFFFFFFF", number_size);
    expect_text(int_tostr_hex(INT_MIN), "0x80000000", number_size);
}

// -------------------------------------------------------------------------------------------- addresses and the like

TEST(ToStr, Ipv4Addresses)
{
    const auto ip = [](std::vector<unsigned char> address) { return GIPAddr_t_tostr(address.data()); };
    expect_text(ip({10, 0, 0, 1}), "10.0.0.1", 16);
    expect_text(ip({0, 0, 0, 0}), "0.0.0.0", 16);
    expect_text(ip({1, 20, 255, 99}), "1.20.255.99", 16);
    expect_text(ip({255, 255, 255, 255}), "255.255.255.255", 16);
}

TEST(ToStr, MacAddresses)
{
    const auto mac = [](std::vector<unsigned char> address) { return GMACAddr_t_tostr(address.data()); };
    expect_text(mac({0x00, 0x1B, 0x2C, 0xAD, 0xFE, 0x0F}), "00:1B:2C:AD:FE:0F", 25);
    expect_text(mac({0xFF, 0xFF, 0xFF, 0xFF, 0xFF, 0xFF}), "FF:FF:FF:FF:FF:FF", 25);
}

TEST(ToStr, SnmpEngineIdentifiers)
{
    const auto id = [](std::vector<unsigned char> bytes) { return GSNMPEngineID_t_tostr(bytes.data()); };
    expect_text(id({0x80, 0, 0x1F, 0x88, 4, 5, 6, 7, 8, 9, 0xAB, 0xCD, 0xEF}), "80001f88040506070809abcdef", 29);
    expect_text(id(std::vector<unsigned char>(13, 0)), "00000000000000000000000000", 29);
}

TEST(ToStr, OntSerialNumbers)
{
    const auto serial = [](std::vector<unsigned char> bytes) { return GOntSerial_t_tostr(bytes.data()); };
    const std::vector<unsigned char> capital = {'A', 'B', 'C', 'Z', 1, 2, 3, 0xFF};
    const std::vector<unsigned char> small = {'a', 'B', 'C', 'Z', 1, 2, 3, 0xFF};
    sn_format = 0;
    expect_text(serial(capital), "ABCZ010203FF", 24);
    expect_text(serial(small), "6142435A010203FF", 24);
    expect_text(serial({'A', 'B', 'C', '7', 0, 0, 0, 0}), "4142433700000000", 24);
    sn_format = 1;
    expect_text(serial(capital), "4142435A010203FF", 24);
    sn_format = 2;
    expect_text(serial(capital), "4142435A-010203FF", 24);
    for (const int format : {3, -1, INT_MAX}) {
        sn_format = format;
        expect_text(serial(capital), "", 24);
    }
    sn_format = 0;
}

TEST(ToStr, OntPasswords)
{
    expect_password({'s', 'e', 'c', 'r', 'e', 't', 0, 'x', 'x', 'x', 'x'}, "secret");
    expect_password({'1', '2', '3', '4', '5', '6', '7', '8', '9', '0', 0}, "1234567890");
    expect_password({'1', '2', '3', '4', '5', '6', '7', '8', '9', '0', '!'}, "1234567890");
    expect_password({'1', '2', '3', '4', '5', '6', '7', '8', '9', '0'}, "1234567890"); // the 11th byte is not read
    expect_password({0, 'x', 'x', 'x', 'x', 'x', 'x', 'x', 'x', 'x', 'x'}, "");
    expect_password({'\xFF', '"', '%', 's', '\n', 0, 0, 0, 0, 0, 0}, "\xFF\"%s\n");
}

TEST(ToStr, EncryptionKeys)
{
    const auto key = [](std::vector<unsigned char> text) { return GEncryptionKey_t_tostr(text.data()); };
    expect_text(key({0}), "", 1);
    expect_text(key({'k', 'e', 'y', 0, 'x'}), "key", 4);
    expect_text(key({'%', 's', 0xFF, 0}), "%s\xFF", 4);
    std::vector<unsigned char> long_key(5000, 'k');
    long_key.push_back(0);
    expect_text(key(long_key), std::string(5000, 'k'), 5001);
}

TEST(ToStr, EnumerationWords)
{
    expect_enum("GBool_enum", 0, "false");
    expect_enum("GBool_enum", 1, "true");
    expect_enum("GEnabled_enum", 1, "enabled");
    expect_enum("GBool_enum", 0x10001, "true");
    expect_enum("GBool_enum", 0x7FFF0000, "false");
    expect_enum("GBool_enum", -65535, "true");
    expect_enum("GBool_enum", -1, "unknown");
    expect_enum("NoSuch_enum", 0, "unknown");
    expect_enum("", 0, "unknown");
}

// ------------------------------------------------------------------------------------------------------------ arrays

TEST(ToStr, ArraysOfBytes)
{
    expect_u8s({1, 2, 3}, "1,2,3");
    expect_u8s({255}, "255");
    expect_u8s({0}, "0");
    expect_u8s({0, 255, 0}, "0,255,0");
    expect_u8s({255, 255, 255, 255}, "255,255,255,255");
    std::string many = "255";
    for (int i = 1; i < 300; ++i) {
        many += ",255";
    }
    expect_u8s(std::vector<unsigned char>(300, 255), many);
}

TEST(ToStr, ArraysOfShorts)
{
    expect_s16s({1, 2, 3}, "1,2,3");
    expect_s16s({-1}, "-1");
    expect_s16s({0, SHRT_MAX, SHRT_MIN}, "0,32767,-32768");
    std::string many = "-32768";
    for (int i = 1; i < 300; ++i) {
        many += ",-32768";
    }
    expect_s16s(std::vector<short>(300, SHRT_MIN), many);
}

TEST(ToStr, ArraysWithoutElementsAreEmptyTexts)
{
    unsigned char byte = 1;
    short number = 1;
    expect_text(convertarrayu8tostr(&byte, 0), "", 1);
    expect_text(convertarrays16tostr(&number, 0), "", 1);
}
