/// The rows of record diffs: a record with a field of each type, and the text of each verb.

#include "pon/command_file_generator/operation.h"
#include "pon/diff_builder/rows.h"
#include "tests/support/allocation.h"
#include "tests/support/diff.h"

#include <cstdio>
#include <string>
#include <type_traits>
#include <utility>

using namespace pondiff;

namespace {

struct __attribute__((packed)) Everything {
    std::uint8_t byte;
    std::int8_t small;
    std::uint16_t word;
    std::int16_t index[4];
    std::uint32_t number;
    std::int32_t whole;
    std::uint8_t address[4];
    std::uint8_t address6[16];
    std::uint8_t serial[8];
    std::uint8_t engine[13];
    char text[6];
    char format[24];
    char password[11];
    char book[3000];
};

/// Two blank records and the elements that a row appends to a caller's list, at the top level, so that the navigation
/// is empty.
class Rows : public testing::Test {
  protected:
    Rows() { current_view = {"root", {}}; }

    Elements changed(const Row<Everything>& row, const Value* lead = nullptr)
    {
        List<char> list;
        emit_changed(row, changed_only, &before, &after, {View::root, key, list, lead});
        return take_elements(list);
    }

    Session session;
    Everything before{};
    Everything after{};
    int key[10] = {3, 44};
};

/// The row's command, after an empty navigation.
Elements command_of(const std::string& text)
{
    return {"", text};
}

const char* even_or_null(int number)
{
    return number % 2 == 0 ? "even" : nullptr;
}

} // namespace

TEST_F(Rows, SayNothingOfEqualFields)
{
    EXPECT_EQ(changed(on_off(FIELD(Everything, word), "on", "off")), Elements{});
    EXPECT_EQ(changed(number(FIELD(Everything, number), "number %s")), Elements{});
    EXPECT_EQ(changed(text(FIELD(Everything, text), "text %s")), Elements{});
    EXPECT_EQ(changed(ipv4(FIELD(Everything, address), "ip %s")), Elements{});
}

TEST_F(Rows, Switches)
{
    after.word = 0x100;
    EXPECT_EQ(changed(on_off(FIELD(Everything, word), "on", "off")), command_of("on"));
    std::swap(before, after);
    EXPECT_EQ(changed(on_off(FIELD(Everything, word), "on", "off")), command_of("off"));
    EXPECT_EQ(changed(on_off(FIELD(Everything, word), "on", "")), command_of("")) << "it navigates all the same";
}

TEST_F(Rows, BitsOfASwitch)
{
    const auto commands = [this] { return changed(bit(FIELD(Everything, byte), 0x06, "on", "off")); };
    after.byte = 0xF9;
    EXPECT_EQ(commands(), Elements{}) << "the other bits do not count";
    after.byte = 0x04;
    EXPECT_EQ(commands(), command_of("on"));
    before.byte = 0x07;
    EXPECT_EQ(commands(), command_of("on")) << "one of the bits is a change";
    after.byte = 0x09;
    EXPECT_EQ(commands(), command_of("off"));
}

TEST_F(Rows, OneCommandForEveryValue)
{
    after.number = 0x10000;
    EXPECT_EQ(changed(whenever(FIELD(Everything, number), "again")), command_of("again"));
    std::swap(before, after);
    EXPECT_EQ(changed(whenever(FIELD(Everything, number), "again")), command_of("again"));
}

TEST_F(Rows, NumbersHaveTheWidthAndTheSignOfTheirField)
{
    after.byte = 255;
    after.small = -128;
    after.word = 65535;
    after.index[0] = -32768;
    after.number = 4294967295U;
    after.whole = -2147483647 - 1;
    EXPECT_EQ(changed(number(FIELD(Everything, byte), "<%s>")), command_of("<255>"));
    EXPECT_EQ(changed(number(FIELD(Everything, small), "<%d>")), command_of("<-128>"));
    EXPECT_EQ(changed(number(FIELD(Everything, word), "<%u>")), command_of("<65535>"));
    EXPECT_EQ(changed(number(FIELD(Everything, index[0]), "<%s>")), command_of("<-32768>"));
    EXPECT_EQ(changed(number(FIELD(Everything, number), "<%s>")), command_of("<4294967295>"));
    EXPECT_EQ(changed(number_as_signed(FIELD(Everything, number), "<%s>")), command_of("<-1>"));
    EXPECT_EQ(changed(number(FIELD(Everything, whole), "<%s>")), command_of("<-2147483648>"));
}

TEST_F(Rows, NumbersWithAWordForOneValue)
{
    after.whole = -1;
    EXPECT_EQ(changed(number_or_unused(FIELD(Everything, whole), "<%s>")), command_of("<unused>"));
    after.whole = -2;
    EXPECT_EQ(changed(number_or_unused(FIELD(Everything, whole), "<%s>")), command_of("<-2>"));
    after.number = 0xFFFFFFFF;
    EXPECT_EQ(changed(ber_interval(FIELD(Everything, number), "<%s>")), command_of("<none>"));
    after.number = 0xFFFFFFFE;
    EXPECT_EQ(changed(ber_interval(FIELD(Everything, number), "<%s>")), command_of("<4294967294>"));
}

TEST_F(Rows, HexadecimalNumbersHaveAtLeastSoManyDigits)
{
    after.word = 0xA;
    EXPECT_EQ(changed(hexadecimal(FIELD(Everything, word), 4, "<%s>")), command_of("<0x000A>"));
    after.number = 0xBCDEF012;
    EXPECT_EQ(changed(hexadecimal(FIELD(Everything, number), 6, "<%s>")), command_of("<0xBCDEF012>"));
}

TEST_F(Rows, Addresses)
{
    put(after.address, {192, 0, 2, 255});
    put(after.address6, {0x20, 0x01, 0x0D, 0xB8, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 1});
    put(after.serial, {'A', 'B', 'C', 'D', 0x12, 0x34, 0xAB, 0xCD});
    sn_format = 0;
    EXPECT_EQ(changed(ipv4(FIELD(Everything, address), "<%s>")), command_of("<192.0.2.255>"));
    EXPECT_EQ(changed(ipv6(FIELD(Everything, address6), "<%s>")), command_of("<2001:db8::1>"));
    EXPECT_EQ(changed(serial(FIELD(Everything, serial), "<%s>")), command_of("<ABCD1234ABCD>"));
    put(after.engine, {0x80, 0, 0x1F, 0x88, 4, 5, 6, 7, 8, 9, 0xAB, 0xCD, 0xEF});
    EXPECT_EQ(changed(engine_id(FIELD(Everything, engine), "<%s>")), command_of("<80001f88040506070809abcdef>"));
}

TEST_F(Rows, TextsEndWithTheirArray)
{
    put(after.text, "sixsix");
    put(after.format, "%CHANNELID%-%CHANNELID%.");
    put(after.password, "eleven-char");
    EXPECT_EQ(changed(text(FIELD(Everything, text), "<%s>")), command_of("<sixsix>"));
    EXPECT_EQ(changed(channel_format(FIELD(Everything, format), "<%s>")), command_of("<%GPON-PORT%-%GPON-PORT%.>"));
    EXPECT_EQ(changed(ont_password(FIELD(Everything, password), "<%s>")), command_of("<eleven-cha>"));
}

TEST_F(Rows, TheFirstBytesOfAPasswordAloneMayCount)
{
    after.password[10] = 'x';
    EXPECT_EQ(changed(ont_password(FIELD(Everything, password), "<%s>", 10)), Elements{});
    EXPECT_EQ(changed(ont_password(FIELD(Everything, password), "<%s>")), command_of("<>"));
    after.password[9] = 'y';
    EXPECT_EQ(changed(ont_password(FIELD(Everything, password), "<%s>", 10)), command_of("<>"));
}

TEST_F(Rows, Words)
{
    after.byte = 1;
    EXPECT_EQ(changed(enumeration(FIELD(Everything, byte), "GPonGEMPortType_enum", "to %s")),
              command_of("to multicast"));
    EXPECT_EQ(changed(word(FIELD(Everything, byte), even_or_null, "<%s>")), command_of("<>"))
        << "a word that is missing is the empty text";
    after.byte = 2;
    EXPECT_EQ(changed(word(FIELD(Everything, byte), even_or_null, "<%s>")), command_of("<even>"));
}

TEST_F(Rows, References)
{
    const auto commands = [this](std::size_t index) {
        return changed(element(reference(FIELD(Everything, index[0]), even_or_null, "<%s>"), index));
    };
    after.index[0] = 1;
    EXPECT_EQ(commands(0), Elements{}) << "a name that is missing suppresses the command";
    after.index[0] = 2;
    EXPECT_EQ(commands(0), command_of("<even>"));
    EXPECT_EQ(commands(3), Elements{});
    after.index[3] = 4;
    EXPECT_EQ(commands(3), command_of("<even>"));
    EXPECT_EQ(commands(2), Elements{});
}

TEST_F(Rows, PlaceholdersOfTemplates)
{
    after.byte = 7;
    EXPECT_EQ(changed(number(FIELD(Everything, byte), "service $ID1 cos \"%s\"")),
              command_of("service   44 cos \"7\""));
    EXPECT_EQ(changed(number(FIELD(Everything, byte), "cos \"%s\" of $ID1")), command_of("cos \"7\" of   44"));
    EXPECT_EQ(changed(number(FIELD(Everything, byte), "entry $ID0 %s")), command_of("entry    3 7"));
    std::snprintf(sship[3], sizeof sship[3], "192.0.2.3");
    EXPECT_EQ(changed(number(FIELD(Everything, byte), "ip ssh allow ip $ID0 mask %s")),
              command_of("ip ssh allow ip 192.0.2.3 mask 7"));
    std::memset(sship[3], 0, sizeof sship[3]);
}

TEST_F(Rows, PlaceholdersThatAValueBrings)
{
    put(after.text, "a$ID1z");
    EXPECT_EQ(changed(text(FIELD(Everything, text), "text %s")), command_of("text a  44z"));
    EXPECT_EQ(changed(text(FIELD(Everything, text), "$ID0 text %s")), command_of("   3 text a  44z"));
}

TEST_F(Rows, AValueThatLeadsFillsTheFirstConversion)
{
    const Value lead = "uplink";
    after.byte = 7;
    EXPECT_EQ(changed(number(FIELD(Everything, byte), "%s cos %s"), &lead), command_of("uplink cos 7"));
    EXPECT_EQ(changed(on_off(FIELD(Everything, byte), "%s on", "%s off"), &lead), command_of("uplink on"));
    EXPECT_EQ(changed(number(FIELD(Everything, byte), "%s cos %s $ID1"), &lead), command_of("uplink cos 7   44"));
    const Value marked = "a$ID1";
    EXPECT_EQ(changed(number(FIELD(Everything, byte), "%s %s"), &marked), command_of("a  44 7"));
}

TEST_F(Rows, ValuesWithoutAConversionAreLeftOut)
{
    const Value lead = "uplink";
    after.byte = 7;
    EXPECT_EQ(changed(number(FIELD(Everything, byte), "cos")), command_of("cos"));
    EXPECT_EQ(changed(number(FIELD(Everything, byte), "cos"), &lead), command_of("cos"));
    EXPECT_EQ(changed(number(FIELD(Everything, byte), "%s cos"), &lead), command_of("uplink cos"));
}

// ------------------------------------------------------------------------------------------------- how they are forced

TEST_F(Rows, RulesThatForce)
{
    struct Case {
        int all;
        int common;
        bool forced[4]; ///< in the order of the rules
    };
    constexpr Case cases[] = {
        {0, 0, {false, false, false, false}}, {0, 1, {false, false, false, false}},
        {0, 2, {false, false, false, false}}, {1, 0, {true, false, false, false}},
        {1, 1, {true, true, false, false}},   {1, 2, {true, true, true, false}},
        {1, 3, {true, false, false, false}},  {-1, -1, {true, false, false, false}},
    };
    for (const Case& given : cases) {
        SCOPED_TRACE(std::to_string(given.all) + " " + std::to_string(given.common));
        print_all = given.all;
        print_common = given.common;
        EXPECT_EQ(forced(changed_or_all), given.forced[0]);
        EXPECT_EQ(forced(changed_or_common), given.forced[1]);
        EXPECT_EQ(forced(changed_or_profile_common), given.forced[2]);
        EXPECT_EQ(forced(changed_only), given.forced[3]);
    }
}

// ------------------------------------------------------------------------------------------------------------
// templates

namespace {

template <const char* Form, class = void>
struct Compiles : std::false_type {
};
template <const char* Form>
struct Compiles<Form, std::void_t<std::integral_constant<std::uint8_t, RowData::Parts(Form).size>>> : std::true_type {
};

constexpr char two_conversions[] = "%s %s $ID1";
constexpr char three_conversions[] = "%s %s %s";
constexpr char two_placeholders[] = "$ID0 $ID1";

#define FIFTY "xxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxx"
constexpr char longest[] = FIFTY FIFTY FIFTY FIFTY FIFTY "xxxx";
constexpr char too_long[] = FIFTY FIFTY FIFTY FIFTY FIFTY "xxxxx";
#undef FIFTY
static_assert(sizeof longest == 254 + 1);

static_assert(Compiles<two_conversions>::value);
static_assert(!Compiles<three_conversions>::value, "a lead and a value are all that a row fills");
static_assert(!Compiles<two_placeholders>::value, "a row writes one");
static_assert(Compiles<longest>::value);
static_assert(!Compiles<too_long>::value, "a place in a template is a byte");

} // namespace

TEST_F(Rows, TemplatesAreTakenApart)
{
    const RowData::Parts parts(two_conversions);
    EXPECT_EQ(parts.first, 0);
    EXPECT_EQ(parts.second, 3);
    EXPECT_EQ(parts.mark, 6);
    EXPECT_EQ(parts.size, 10);
    const RowData::Parts none("");
    EXPECT_EQ(none.first, RowData::Parts::none);
    EXPECT_EQ(none.second, RowData::Parts::none);
    EXPECT_EQ(none.mark, RowData::Parts::none);
    EXPECT_EQ(none.size, 0);
    EXPECT_EQ(RowData::Parts(nullptr).size, 0);
}

// -------------------------------------------------------------------------------------------- texts that are too long

namespace {

void fill_book(Everything& record)
{
    std::memset(record.book, 'b', sizeof record.book);
}

} // namespace

TEST_F(Rows, ALongLineIsWhole)
{
    fill_book(after);
    EXPECT_EQ(changed(text(FIELD(Everything, book), "$ID1 <%s>")),
              command_of("  44 <" + std::string(sizeof after.book, 'b') + ">"));
}

TEST_F(Rows, ALongLineWithoutMemoryIsLeftOut)
{
    fill_book(after);
    List<char> list;
    {
        const FailingAllocation failure(3, Failing::once); // the navigation has a text and a node
        emit_changed(text(FIELD(Everything, book), "$ID1 <%s>"), changed_only, &before, &after,
                     {View::root, key, list});
        EXPECT_TRUE(failure.happened());
    }
    EXPECT_EQ(take_elements(list), Elements{""});
}

/// Longer than the room in which the text of an operation is built.
TEST_F(Rows, ALongLineOfAnOperationIsWhole)
{
    const std::string line(20000, 'l');
    const std::string longer(100000, 'm');
    Operation operation;
    const Where where{View::root, operation.key, operation.script};
    EXPECT_TRUE(emit(where, "first"));
    EXPECT_TRUE(emit(where, "%s", line.c_str()));
    EXPECT_TRUE(emit(where, "<%s>", longer.c_str()));
    EXPECT_TRUE(emit(where, "last"));
    EXPECT_EQ(taken(operation.finish(Ending::plain)), "first\n" + line + "\n<" + longer + ">\nlast\n");
}

TEST_F(Rows, ALongLineOfAnOperationWithoutMemoryLosesTheText)
{
    const std::string line(20000, 'l');
    current_view = {"configure-view", {}};
    for (const Failing how : {Failing::once, Failing::from_then_on}) {
        Operation operation;
        const Where where{View::root, operation.key, operation.script};
        EXPECT_TRUE(emit(where, "first"));
        {
            const FailingAllocation failure(1, how);
            EXPECT_FALSE(emit(where, "%s", line.c_str()));
            EXPECT_TRUE(failure.happened());
        }
        EXPECT_FALSE(command(where, "last")) << "nothing follows";
        EXPECT_EQ(operation.finish(Ending::commit), nullptr);
        EXPECT_STREQ(current_view.name, "configure-view") << "the script was not issued";
    }
}

/// The same for a row: its line is lost before the placeholder's place is known.
TEST_F(Rows, ALongRowOfAnOperationWithoutMemoryLosesTheText)
{
    fill_book(after);
    Operation operation;
    const Where where{View::root, operation.key, operation.script};
    for (int i = 0; i < 14; ++i) {
        EXPECT_TRUE(emit(where, "%s", std::string(1000, 'l').c_str())); // less room is left than the row needs
    }
    const FailingAllocation failure(1, Failing::once);
    emit_changed(text(FIELD(Everything, book), "$ID1 <%s>"), changed_only, &before, &after, where);
    EXPECT_TRUE(failure.happened());
    EXPECT_EQ(operation.finish(Ending::plain), nullptr);
}
