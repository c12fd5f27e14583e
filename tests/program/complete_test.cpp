/// What the completions for bash and zsh ask the program; tests/completions/ covers the rest of them.

#include "tests/support/program.h"
#include "tool/profiles.h"

#include <gmock/gmock.h>

using ::testing::AllOf;
using ::testing::HasSubstr;
using ::testing::Not;

namespace {

class Complete : public ProgramTest {
  public:
    std::string of(Arguments words) const
    {
        words.insert(words.begin(), {"complete", "--"});
        const Outcome outcome = run(words);
        EXPECT_EQ(outcome.err, "");
        EXPECT_EQ(outcome.status, 0);
        return outcome.out;
    }

    void expect(const Arguments& words, const std::string& candidates) const
    {
        EXPECT_EQ(of(words), candidates) << ::testing::PrintToString(words);
    }
};

constexpr char options_of_show[] = "-h\tPrint this help and exit\n"
                                   "--help\tPrint this help and exit\n"
                                   "--as\tForm to write: document, the default, text or record\n"
                                   "--base\tTake what no command can set from FILE, a record or "
                                   "JSON document, when reading a text of commands\n"
                                   "--full\tWrite the fields that are zero as well, in a document\n"
                                   "-o\tWrite to FILE instead of standard output\n"
                                   "--output\tWrite to FILE instead of standard output\n";

TEST_F(Complete, Commands)
{
    EXPECT_THAT(of({""}), AllOf(HasSubstr("diff\tPrint the commands that turn one configuration into another\n"),
                                HasSubstr("\nshow\tWrite a configuration as a document, text or record\n"),
                                Not(HasSubstr("complete"))));
    EXPECT_EQ(of({}), of({""}));
    expect({"sho"}, "show\tWrite a configuration as a document, text or record\n");
    expect({"show"}, "show\tWrite a configuration as a document, text or record\n");
    expect({"shower"}, "");
    expect({"complete"}, "");
}

TEST_F(Complete, Options)
{
    expect({"show", "-"}, options_of_show);
    expect({"show", "a.bin", "-o", "b.json", "-"}, options_of_show);
    expect({"show", "--o"}, "--output\tWrite to FILE instead of standard output\n");
    expect({"show", "--full"}, "--full\tWrite the fields that are zero as well, in a document\n");
    expect({"show", "--all"}, "");
    expect({"-"}, "-h\tPrint this help and exit\n"
                  "--help\tPrint this help and exit\n"
                  "--version\tPrint the version and exit\n");
}

TEST_F(Complete, DescriptionOfAnOptionIsItsFirstSentence)
{
    expect({"diff", "--co"}, "--common\tChoose what is compared\n");
    expect({"diff", "--al"}, "--all\tRender what is equal, too, as if it had changed\n");
}

TEST_F(Complete, FilesAreLeftToTheShell)
{
    for (const Arguments& words :
         {Arguments{"diff", ""}, Arguments{"diff", "run"}, Arguments{"diff", "a.bin", "b.bin", ""},
          Arguments{"pack", "-o", ""}, Arguments{"pack", "--output", "-"}, Arguments{"pack", "--output=x"},
          Arguments{"diff", "--only", "alarm", ""}, Arguments{"diff", "--", "-"}, Arguments{"diff", "-", ""},
          Arguments{"diff", "--strict", ""}}) {
        expect(words, "files\n");
    }
}

TEST_F(Complete, Areas)
{
    expect({"diff", "--only", ""}, "system\tThe system part\n"
                                   "pon\tThe PON part: network, profiles, OLT, ports and ONTs\n"
                                   "ont:\tOne ONT, 0 to 531; ont:1/6, port and id, is ont:70\n"
                                   "port:\tOne GPON port, 0 to 7\n"
                                   "profiles-olt\tThe OLT profiles\n"
                                   "profiles-ont\tThe ONT profiles and the templates\n"
                                   "profile:\tThe profiles of a kind that differ\n"
                                   "block:\tA block of settings\n"
                                   "alarm\tThe alarms\n"
                                   "routes\tThe static routes, which the whole diff leaves out\n"
                                   "terminal-vlans\tA line that declares each terminal VLAN of CFG by name\n");
    expect({"diff", "--only", "po"}, "pon\tThe PON part: network, profiles, OLT, ports and ONTs\n"
                                     "port:\tOne GPON port, 0 to 7\n");
    expect({"diff", "--only", "port:"}, "port:0\t\nport:1\t\nport:2\t\nport:3\t\n"
                                        "port:4\t\nport:5\t\nport:6\t\nport:7\t\n");
    expect({"diff", "--only", "ont:"}, "");
    expect({"diff", "--only", "wan"}, "");
}

TEST_F(Complete, KindsOfProfilesAndBlocks)
{
    std::string kinds;
    for (const pondiff::tool::ProfileKind& kind : pondiff::tool::profile_kinds) {
        kinds += std::string("profile:") + kind.name + "\t\n";
    }
    expect({"diff", "--only", "profile:"}, kinds);
    expect({"diff", "--only", "profile:d"}, "profile:dba\t\nprofile:dhcp-ra\t\nprofile:dhcpv6-ra\t\n");
    expect({"diff", "--only", "profile:vlan:"}, "");
    expect({"diff", "--only", "block:"}, "block:olt\t\nblock:network\t\nblock:backup\t\nblock:cli\t\n"
                                         "block:config\t\nblock:management\t\nblock:ntp\t\nblock:snmp\t\n"
                                         "block:ssh\t\nblock:source_guard\t\nblock:telnet\t\nblock:logging\t\n"
                                         "block:user\t\nblock:route\t\n");
}

TEST_F(Complete, ArgumentBehindAnEqualsSign)
{
    expect({"diff", "--only=block:n"}, "--only=block:network\t\n--only=block:ntp\t\n");
    expect({"diff", "--common="}, "--common=0\tthe whole configuration\n"
                                  "--common=1\tthe common settings only\n"
                                  "--common=2\twith --all, the common settings and the default relay profiles too\n");
    expect({"diff", "--strict=x"}, "");
    expect({"diff", "--wrong=x"}, "");
}

TEST_F(Complete, WordsOfAnyKindAreTakenAsTheyAre)
{
    for (const char* const word : {"$(touch harm)", "`touch harm`", ";touch harm", "\x1b[31m", "\n", "\t", "\x80\xFF",
                                   "'", "\"", "%s", "=", ":", "{}", "%%"}) {
        expect({word}, "");
        expect({word, ""}, "");
        expect({"diff", "--only", word}, "");
        expect({"diff", word, "-o", ""}, "files\n");
        expect({"diff", "--only", word, "--ver"}, of({"diff", "--ver"}));
        expect({"diff", std::string("--only=") + word}, "");
        expect({"diff", std::string("-") + word}, "");
    }
    EXPECT_EQ(names(), std::vector<std::string>());
}

} // namespace
