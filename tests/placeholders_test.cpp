#include "tests/support/diff.h"

#include <climits>
#include <cstdlib>
#include <string>
#include <vector>

namespace {

/// Substitutes with a template and a key in blocks of their own, so that a sanitizer sees every access beyond them.
std::string substituted(const std::string& command, const std::vector<int>& key)
{
    std::vector<char> text(command.c_str(), command.c_str() + command.size() + 1);
    std::vector<int> ids(key);
    ids.resize(10);
    const std::vector<int> ids_before = ids;
    std::string result = taken(useVariables(text.data(), ids.data()));
    EXPECT_STREQ(text.data(), command.c_str()) << "the template is only read";
    EXPECT_EQ(ids, ids_before) << "the key is only read";
    return result;
}

/// With slot n holding 100 + n.
std::string numbered(const std::string& command)
{
    return substituted(command, {100, 101, 102, 103, 104, 105, 106, 107, 108, 109});
}

/// A session with something in slot 3 of everything that commands name.
class NamedCommands : public testing::Test {
  protected:
    void SetUp() override
    {
        GSystemServices& services = session.cfg->system.services;
        add_user(3, "operator");
        services.alarm.type[3].type = 226;
        put(services.ssh.allow[3].ip, {192, 0, 2, 22});
        put(services.snmp.allow[3].ip, {192, 0, 2, 161});
        put(services.telnet.allow[3].ip, {192, 0, 2, 23});
        put(services.routing.route[3].prefix, {198, 51, 100, 0});
        put(services.source_guard.bind[3].ip, {203, 0, 113, 255});
    }

    void add_user(int slot, const std::string& name) const
    {
        GSystemUser& user = session.cfg->system.user[slot];
        user.exist = 1;
        put(user.name, name);
    }

    Session session;
};

struct NamedCommand {
    const char* begin; ///< up to the placeholder
    const char* named; ///< what stands for slot 3, with the blanks around it
    const char* empty; ///< what stands for a slot without a text
};
constexpr NamedCommand named_commands[] = {
    {"user ", "user \"operator\" ", "user \"\" "},
    {"log submodule ", "log submodule pmchal-olt ", "log submodule  "},
    {"alarm ", "alarm rssi-update ", "alarm  "},
    {"ip ssh allow ip ", "ip ssh allow ip 192.0.2.22 ", "ip ssh allow ip  "},
    {"ip snmp allow ip ", "ip snmp allow ip 192.0.2.161 ", "ip snmp allow ip  "},
    {"ip telnet allow ip ", "ip telnet allow ip 192.0.2.23 ", "ip telnet allow ip  "},
    {"ip route prefix ", "ip route prefix 198.51.100.0 ", "ip route prefix  "},
    {"ip source-guard bind ip ", "ip source-guard bind ip 203.0.113.255 ", "ip source-guard bind ip  "},
};

/// What `generate_command_buf` makes of a buffer of 'x' when it is told `size`.
std::string buffer_after(const std::string& command, std::size_t size, std::size_t capacity)
{
    std::vector<char> text(command.c_str(), command.c_str() + command.size() + 1);
    int ids[10] = {7, 8};
    std::vector<char> output(capacity, 'x');
    EXPECT_EQ(generate_command_buf(text.data(), ids, output.data(), size), 0);
    return {output.begin(), output.end()};
}

} // namespace

// ---------------------------------------------------------------------------------------------------------- numbers

TEST(Placeholders, ATemplateWithoutAnyComesBackAsItIs)
{
    for (const char* text :
         {"", "ip ntp enable", "$ I D $id1 $Id1 ID1 $I", "I$D1", "100% %s %d %n \"a\"\nsecond line"}) {
        EXPECT_EQ(numbered(text), text);
    }
}

TEST(Placeholders, EachSlotStandsInFourCharacters)
{
    EXPECT_EQ(substituted("port $ID1 shutdown", {0, 3}), "port    3 shutdown");
    EXPECT_EQ(substituted("a $ID0 b $ID1 c", {1, 22}), "a    1 b   22 c");
    EXPECT_EQ(numbered("$ID0$ID1$ID2$ID3$ID4$ID5$ID6$ID7$ID8$ID9"), " 100 101 102 103 104 105 106 107 108 109");
    EXPECT_EQ(numbered("$ID9,$ID9"), " 109, 109");
    EXPECT_EQ(numbered("$$ID1"), "$ 101");
    EXPECT_EQ(numbered("$I$ID1"), "$I 101");
}

TEST(Placeholders, WideNumbersAreCutToTheirFirstFourCharacters)
{
    const struct {
        int id;
        const char* shown;
    } numbers[] = {{0, "   0"},    {9, "   9"},     {10, "  10"},      {999, " 999"},    {1000, "1000"},
                   {9999, "9999"}, {12345, "1234"}, {INT_MAX, "2147"}, {-1, "  -1"},     {-99, " -99"},
                   {-999, "-999"}, {-1000, "-100"}, {-12345, "-123"},  {INT_MIN, "-214"}};
    for (const auto& number : numbers) {
        EXPECT_EQ(substituted("port $ID0 up", {number.id}), std::string("port ") + number.shown + " up");
        EXPECT_EQ(substituted("$ID9", {0, 0, 0, 0, 0, 0, 0, 0, 0, number.id}), number.shown);
    }
}

TEST(Placeholders, ANumberOutsideTheKeyIsNoPlaceholder)
{
    for (const char* text : {"a $ID12 b", "a $ID-1 b", "$ID10", "$ID 10", "$ID+10", "$ID-9", "$ID  -1", "$ID99"}) {
        EXPECT_EQ(numbered(text), text);
    }
}

TEST(Placeholders, ANumberOfTooManyDigitsIsOutsideTheKey)
{
    for (const char* text : {"$ID2147483648", "$ID4294967297", "$ID-4294967295", "$ID99999999999999999999",
                             "$ID18446744073709551617", "$ID-18446744073709551615"}) {
        EXPECT_EQ(numbered(text), text);
    }
    EXPECT_EQ(numbered("$ID" + std::string(5000, '1')), "$ID" + std::string(5000, '1'));
}

TEST(Placeholders, TheSearchGoesOnBehindWhatIsNoPlaceholder)
{
    EXPECT_EQ(numbered("$ID12$ID1"), "$ID12 101");
    EXPECT_EQ(numbered("$ID-1$ID2"), "$ID-1 102");
    EXPECT_EQ(numbered("$ID10 $ID11 $ID3 $ID12 $ID4"), "$ID10 $ID11  103 $ID12  104");
}

TEST(Placeholders, BlanksAndASignBeforeTheNumberAreReadButFourCharactersAreWritten)
{
    EXPECT_EQ(numbered("$ID 1"), " 1011");
    EXPECT_EQ(numbered("$ID  2 x"), " 102 2 x");
    EXPECT_EQ(numbered("$ID\t3"), " 1033");
    EXPECT_EQ(numbered("$ID\n\v\f\r4"), " 104\v\f\r4");
    EXPECT_EQ(numbered("$ID+5x"), " 1055x");
    EXPECT_EQ(numbered("$ID +6"), " 106+6");
    EXPECT_EQ(numbered("$ID-0"), " 1000");
    EXPECT_EQ(numbered("$ID07"), " 1077");
    EXPECT_EQ(numbered("$ID00000000000000000000005"), " 1050000000000000000000005");
}

TEST(Placeholders, WithoutANumberTheOneReadLastServes)
{
    EXPECT_EQ(numbered("$ID3 $IDx"), " 103  103");
    EXPECT_EQ(numbered("$ID3 $ID. $ID5 $ID."), " 103  103  105  105");
    EXPECT_EQ(numbered("$ID 7 $IDx"), " 1077  107");
    EXPECT_EQ(numbered("$ID2$ID x"), " 102 102x");
    EXPECT_EQ(numbered("$ID2$ID+ 5"), " 102 102 5");
    EXPECT_EQ(numbered("$ID2$ID--5"), " 102 102-5");
    EXPECT_EQ(numbered("$ID2$ID - 5"), " 102 102- 5");
}

TEST(Placeholders, NothingButBlanksAndASignIsSkippedOnTheWayToANumber)
{
    EXPECT_EQ(numbered("a $ID\x01"
                       "5 z"),
              "a  1005 z");
    EXPECT_EQ(numbered("a $ID\x08"
                       "5 z"),
              "a  1005 z");
    EXPECT_EQ(numbered("a $ID\x0E"
                       "5 z"),
              "a  1005 z");
    EXPECT_EQ(numbered("a $ID\xFF"
                       "5 z"),
              "a  1005 z");
    EXPECT_EQ(numbered("a $ID\x09"
                       "5 z"),
              "a  1055 z");
    EXPECT_EQ(numbered("a $ID\x0D"
                       "5 z"),
              "a  1055 z");
}

TEST(Placeholders, BeforeAnyNumberItIsSlotZero)
{
    EXPECT_EQ(numbered("$IDx"), " 100");
    EXPECT_EQ(numbered("a $ID b"), "a  100b");
    EXPECT_EQ(numbered("$ID12 $IDx"), "$ID12  100") << "a number outside the key was not read";
    EXPECT_EQ(numbered("$ID3 $ID12 $IDx"), " 103 $ID12  103");
    EXPECT_EQ(numbered("$ID$ID1"), " 100ID1") << "the second dollar sign is overwritten";
}

TEST(Placeholders, ANumberIsForgottenBetweenCalls)
{
    EXPECT_EQ(numbered("$ID5"), " 105");
    EXPECT_EQ(numbered("$IDx"), " 100");
}

TEST(Placeholders, AtTheVeryEndTheTextGrowsByOne)
{
    EXPECT_EQ(numbered("$ID"), " 100");
    EXPECT_EQ(numbered("port $ID"), "port  100");
    EXPECT_EQ(numbered("$ID4 $ID"), " 104  104");
    EXPECT_EQ(numbered("$ID8$ID "), " 108 108") << "a blank is there to be overwritten";
}

TEST(Placeholders, ValuesAreSubstitutedLikeTheTemplate)
{
    EXPECT_EQ(substituted("description \"room $ID1\"", {0, 42}), "description \"room   42\"");
    EXPECT_EQ(substituted("description \"room $ID\"", {7}), "description \"room    7");
    EXPECT_EQ(substituted("description \"room $ID12\"", {7}), "description \"room $ID12\"");
}

TEST(Placeholders, LongTextsAreNotCut)
{
    for (const std::size_t length : {1015U, 1016U, 1017U, 1018U, 1019U, 1020U, 1023U, 1024U, 1025U, 2048U, 70000U}) {
        const std::string value(length, 'v');
        EXPECT_EQ(numbered(value), value);
        EXPECT_EQ(numbered(value + "$ID1" + value + "$ID"), value + " 101" + value + " 101");
    }
}

// --------------------------------------------------------------------------------------------------- named commands

TEST_F(NamedCommands, ShowTheirFirstIdentifierAsAText)
{
    session.open();
    for (const NamedCommand& named : named_commands) {
        EXPECT_EQ(substituted(std::string(named.begin) + "$ID0 enable \"7\"", {3}),
                  std::string(named.named) + "enable \"7\"");
    }
}

TEST_F(NamedCommands, ShowFurtherIdentifiersAsNumbers)
{
    session.open();
    for (const NamedCommand& named : named_commands) {
        EXPECT_EQ(substituted(std::string(named.begin) + "$ID0 to $ID1, $ID0, $ID", {3, 12}),
                  std::string(named.named) + "to   12,    3,    3");
    }
}

TEST_F(NamedCommands, ThatEndBehindThePlaceholderHaveAnEmptyRest)
{
    session.open();
    for (const NamedCommand& named : named_commands) {
        EXPECT_EQ(substituted(std::string(named.begin) + "$ID0", {3}), named.named);
        EXPECT_EQ(substituted(std::string(named.begin) + "$ID0 ", {3}), named.named);
    }
}

TEST_F(NamedCommands, SkipTheCharacterBehindThePlaceholderWhateverItIs)
{
    session.open();
    for (const NamedCommand& named : named_commands) {
        EXPECT_EQ(substituted(std::string(named.begin) + "$ID0,x", {3}), std::string(named.named) + "x");
        EXPECT_EQ(substituted(std::string(named.begin) + "$ID0  x", {3}), std::string(named.named) + " x");
    }
}

TEST_F(NamedCommands, AreKnownByTheWholeBeginning)
{
    session.open();
    for (const NamedCommand& named : named_commands) {
        const std::string begin = named.begin;
        EXPECT_EQ(substituted("no " + begin + "$ID0 x", {3}), "no " + begin + "   3 x");
        EXPECT_EQ(substituted(" " + begin + "$ID0 x", {3}), " " + begin + "   3 x");
        EXPECT_EQ(substituted(begin + "$ID1 x", {3, 4}), begin + "   4 x");
        EXPECT_EQ(substituted(begin + " $ID0 x", {3}), begin + "    3 x");
        EXPECT_EQ(substituted(begin + "$ID", {3}), begin + "   3");
        EXPECT_EQ(substituted(begin + "x $ID0", {3}), begin + "x    3");
    }
    EXPECT_EQ(substituted("ip http allow ip $ID0 x", {3}), "ip http allow ip    3 x");
    EXPECT_EQ(substituted("USER $ID0 x", {3}), "USER    3 x");
}

TEST_F(NamedCommands, WithoutAnEntryGiveTheEmptyText)
{
    session.open();
    for (const NamedCommand& named : named_commands) {
        for (const int slot : {-1, 1024, INT_MAX, INT_MIN}) {
            SCOPED_TRACE(slot);
            EXPECT_EQ(substituted(std::string(named.begin) + "$ID0 enable", {slot}),
                      std::string(named.empty) + "enable");
            EXPECT_EQ(substituted(std::string(named.begin) + "$ID0", {slot}), named.empty);
        }
    }
    EXPECT_EQ(substituted("user $ID0 priority", {4}), "user \"\" priority") << "no such user";
}

TEST_F(NamedCommands, ReachToTheLastSlotOfTheirTable)
{
    GSystemServices& services = session.cfg->system.services;
    add_user(15, "last");
    services.alarm.type[45].type = 1;
    put(services.ssh.allow[15].ip, {1, 2, 3, 4});
    put(services.snmp.allow[15].ip, {2, 3, 4, 5});
    put(services.telnet.allow[15].ip, {3, 4, 5, 6});
    put(services.routing.route[511].prefix, {4, 5, 6, 7});
    put(services.source_guard.bind[1023].ip, {255, 255, 255, 255});
    session.open();
    const struct {
        const char* begin;
        int last;
        const char* named;
        const char* beyond;
    } last_ones[] = {
        {"user ", 15, "user \"last\" x", "user \"\" x"},
        {"log submodule ", 13, "log submodule pmchal-dhcpv6ra x", "log submodule  x"},
        {"alarm ", 45, "alarm load-average x", "alarm  x"},
        {"ip ssh allow ip ", 15, "ip ssh allow ip 1.2.3.4 x", "ip ssh allow ip  x"},
        {"ip snmp allow ip ", 15, "ip snmp allow ip 2.3.4.5 x", "ip snmp allow ip  x"},
        {"ip telnet allow ip ", 15, "ip telnet allow ip 3.4.5.6 x", "ip telnet allow ip  x"},
        {"ip route prefix ", 511, "ip route prefix 4.5.6.7 x", "ip route prefix  x"},
        {"ip source-guard bind ip ", 1023, "ip source-guard bind ip 255.255.255.255 x", "ip source-guard bind ip  x"},
    };
    for (const auto& named : last_ones) {
        EXPECT_EQ(substituted(std::string(named.begin) + "$ID0 x", {named.last}), named.named);
        EXPECT_EQ(substituted(std::string(named.begin) + "$ID0 x", {named.last + 1}), named.beyond);
    }
}

TEST_F(NamedCommands, AnAlarmOfATypeWithoutAWordIsAddressedByAnEmptyOne)
{
    session.cfg->system.services.alarm.type[5].type = 7;
    session.open();
    EXPECT_EQ(substituted("alarm $ID0 severity major", {5}), "alarm  severity major");
    EXPECT_EQ(substituted("alarm $ID0 severity major", {0}), "alarm dummy severity major");
}

TEST_F(NamedCommands, NamesMayBringPlaceholdersAlong)
{
    add_user(0, "desk $ID1");
    add_user(1, "desk $ID");
    add_user(2, "$ID0 $ID12 $ID9");
    session.open();
    EXPECT_EQ(substituted("user $ID0 priority $ID1", {0, 42}), "user \"desk   42\" priority   42");
    EXPECT_EQ(substituted("user $ID0 priority", {1, 42}), "user \"desk    1 priority") << "the quote is overwritten";
    EXPECT_EQ(substituted("user $ID0 x", {2, 0, 0, 0, 0, 0, 0, 0, 0, 99}), "user \"   2 $ID12   99\" x");
}

TEST_F(NamedCommands, ANameThatFillsItsFieldHasNoTerminator)
{
    add_user(7, std::string(32, 'n'));
    put(session.cfg->system.user[7].password, "secret");
    session.open();
    EXPECT_EQ(substituted("user $ID0 priority", {7}), "user \"" + std::string(32, 'n') + "\" priority");
}

TEST_F(NamedCommands, LongTemplatesAreNotCut)
{
    session.open();
    for (const NamedCommand& named : named_commands) {
        for (const std::size_t length : {970U, 980U, 990U, 1000U, 1010U, 1020U, 1030U, 5000U}) {
            EXPECT_EQ(substituted(named.begin + ("$ID0 " + std::string(length, 'v')) + "$ID1", {3, 4}),
                      named.named + std::string(length, 'v') + "   4");
        }
    }
}

TEST_F(NamedCommands, UsersAreNamelessOutsideASession)
{
    session.open();
    finalize_diff();
    EXPECT_EQ(substituted("user $ID0 x", {3}), "user \"\" x");
    EXPECT_EQ(substituted("alarm $ID0 x", {3}), "alarm rssi-update x") << "the other texts are kept";
    EXPECT_EQ(substituted("ip route prefix $ID0 x", {3}), "ip route prefix 198.51.100.0 x");
}

// ---------------------------------------------------------------------------------------------- a buffer of one's own

TEST(GenerateCommandBuf, WritesNoMoreThanItMay)
{
    const std::string whole("port    8 up\0", 13);
    EXPECT_EQ(buffer_after("port $ID1 up", 13, 16), whole + "xxx");
    EXPECT_EQ(buffer_after("port $ID1 up", 1024, 1024).substr(0, 13), whole);
    EXPECT_EQ(buffer_after("port $ID1 up", 0, 4), "xxxx");
    EXPECT_EQ(buffer_after("port $ID1 up", 1, 4), std::string("\0xxx", 4));
    EXPECT_EQ(buffer_after("port $ID1 up", 12, 14), std::string("port    8 u\0xx", 14));
    EXPECT_EQ(buffer_after("port $ID1 up", 6, 8), std::string("port \0xx", 8));
    EXPECT_EQ(buffer_after("", 1, 2), std::string("\0x", 2));
    EXPECT_EQ(buffer_after("", 0, 2), "xx");
}

TEST(GenerateCommandBuf, TakesMoreThanTheUsualThousandCharacters)
{
    const std::string value(3000, 'v');
    EXPECT_EQ(buffer_after(value + "$ID0", 4000, 4000).substr(0, 3005), value + "   7" + '\0');
}

TEST(GenerateCommandBuf, NullArgumentsAreHarmless)
{
    char command[] = "port $ID1 up";
    int ids[10] = {};
    char output[16] = {};
    EXPECT_EQ(generate_command_buf(nullptr, ids, output, sizeof output), 0);
    EXPECT_STREQ(output, "");
    EXPECT_EQ(generate_command_buf(command, ids, nullptr, 16), 0);
    EXPECT_EQ(generate_command_buf(command, ids, nullptr, 0), 0);
    EXPECT_EQ(generate_command_buf(command, nullptr, output, sizeof output), 0);
    EXPECT_NE(std::memchr(output, '\0', sizeof output), nullptr);
}

TEST(Placeholders, NullArgumentsAreHarmless)
{
    char command[] = "ip ntp enable";
    int ids[10] = {};
    char* text = useVariables(nullptr, ids);
    EXPECT_TRUE(!text || !*text);
    std::free(text);
    text = useVariables(command, nullptr);
    EXPECT_TRUE(!text || std::string(text) == command || !*text);
    std::free(text);
    char numbers[] = "port $ID1";
    text = useVariables(numbers, nullptr);
    EXPECT_TRUE(!text || std::string(text).substr(0, 5) == "port " || !*text);
    std::free(text);
}
