#include "tests/support/diff.h"

#include <array>
#include <climits>
#include <string>
#include <vector>

namespace {

/// Slot 1 of the ONT table for a serial number in a layout.
std::string serial_text(unsigned short format, std::initializer_list<int> serial)
{
    Session session;
    session.cfg->system.settings.ont_sn_format = format;
    put(session.cfg->pon.ont[1].serial, serial);
    session.open();
    EXPECT_EQ(sn_format, format);
    return ont2id_connection[1] ? ont2id_connection[1] : "null";
}

class SerialNumbers : public testing::Test {
  protected:
    ~SerialNumbers() override { sn_format = 0; }
};

} // namespace

TEST_F(SerialNumbers, ThePrettyLayoutIsForFourCapitalLetters)
{
    EXPECT_EQ(serial_text(0, {'A', 'B', 'Y', 'Z', 0x01, 0x23, 0xAB, 0xFF}), "ABYZ0123ABFF");
}

TEST_F(SerialNumbers, AnyOtherVendorByteBringsTheDenseLayout)
{
    for (int place = 0; place < 4; ++place) {
        for (const int byte : {0x00, 0x1F, 0x20, 0x30, 0x39, 0x40, 0x5B, 0x61, 0x7A, 0x7F, 0x80, 0xC1, 0xFF}) {
            SCOPED_TRACE(testing::Message() << "byte " << byte << " in place " << place);
            std::array<int, 4> vendor = {0x41, 0x42, 0x43, 0x44};
            vendor[static_cast<std::size_t>(place)] = byte;
            std::string expected;
            for (const int value : vendor) {
                expected += {"0123456789ABCDEF"[value / 16], "0123456789ABCDEF"[value % 16]};
            }
            EXPECT_EQ(serial_text(0, {vendor[0], vendor[1], vendor[2], vendor[3], 1, 2, 3, 4}), expected + "01020304");
        }
    }
}

TEST_F(SerialNumbers, TheOtherLayouts)
{
    EXPECT_EQ(serial_text(1, {'A', 'B', 'C', 'D', 1, 2, 3, 4}), "4142434401020304");
    EXPECT_EQ(serial_text(2, {'A', 'B', 'C', 'D', 1, 2, 3, 4}), "41424344-01020304");
    EXPECT_EQ(serial_text(2, {0xFF, 0, 0, 0, 0, 0, 0, 0xFF}), "FF000000-000000FF");
}

TEST_F(SerialNumbers, NoLayoutGivesNoText)
{
    for (const int format : {3, 4, 256, 32768, 65535}) {
        EXPECT_EQ(serial_text(static_cast<unsigned short>(format), {'A', 'B', 'C', 'D', 1, 2, 3, 4}), "");
    }
}

TEST_F(SerialNumbers, TheSerialNumberOfTheNewConfigurationInItsLayoutCounts)
{
    Session session;
    session.orig->system.settings.ont_sn_format = 2;
    put(session.orig->pon.ont[1].serial, {'O', 'L', 'D', 'S', 0, 0, 0, 0});
    put(session.cfg->pon.ont[1].serial, {'N', 'E', 'W', 'S', 0, 0, 0, 0});
    session.cfg->system.settings.ont_sn_format = 1;
    session.open();
    EXPECT_EQ(sn_format, 1);
    EXPECT_STREQ(ont2id_connection[1], "4E45575300000000");
}

TEST_F(SerialNumbers, AreWrittenIntoTheCallersBuffer)
{
    const unsigned char serial[8] = {'A', 'B', 'C', 'D', 1, 2, 3, 4};
    const struct {
        int format;
        const char* text;
    } formats[] = {{0, "ABCD01020304"}, {1, "4142434401020304"}, {2, "41424344-01020304"}};
    for (const auto& layout : formats) {
        std::vector<char> out(24);
        sn_format = layout.format;
        EXPECT_EQ(convert_sn_by_format(out.data(), serial), out.data());
        EXPECT_STREQ(out.data(), layout.text);
    }
    for (const int format : {3, -1, 65536, INT_MAX, INT_MIN}) {
        std::vector<char> out(24, 'x');
        sn_format = format;
        EXPECT_EQ(convert_sn_by_format(out.data(), serial), out.data());
        EXPECT_EQ(out, std::vector<char>(24, 'x')) << "left untouched";
    }
}
