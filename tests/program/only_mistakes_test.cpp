#include "tests/support/program.h"
#include "tool/profiles.h"

#include <gmock/gmock.h>

using ::testing::AllOf;
using ::testing::EndsWith;
using ::testing::HasSubstr;
using ::testing::StartsWith;

namespace {

class OnlyMistakes : public ProgramTest {
  public:
    OnlyMistakes() { write("cfg.json", "{}"); }

    Outcome of(const std::string& area) const { return run({"diff", "--only", area, "cfg.json", "cfg.json"}); }

    void expect_mistake(const std::string& area, const std::string& message) const
    {
        const Outcome outcome = of(area);
        EXPECT_EQ(outcome.out, "") << area;
        EXPECT_EQ(outcome.err, "pondiff: --only " + area + ": " + message + "\nTry 'pondiff diff --help'.\n");
        EXPECT_EQ(outcome.status, 2) << area;
    }
};

constexpr char all_areas[] = "there are system, pon, ont:INDEX, port:N, profiles-olt, profiles-ont, profile:KIND, "
                             "profile:KIND:ID, block:NAME, alarm, routes and terminal-vlans";
const std::string all_kinds = [] {
    std::string names;
    for (const pondiff::tool::ProfileKind& kind : pondiff::tool::profile_kinds) {
        names += std::string(", ") + kind.name;
    }
    names.replace(names.rfind(", "), 2, " and ");
    return "there are " + names.substr(2);
}();
constexpr char all_blocks[] = "there are olt, network, backup, cli, config, management, ntp, snmp, ssh, source_guard, "
                              "telnet, logging, user and route";

TEST_F(OnlyMistakes, UnknownAreaListsThoseThatThereAre)
{
    for (const char* const area : {"", "wan", ":", "SYSTEM", "system:", "system:3", "pon ", "alarm:1", "routes:0"}) {
        const Outcome outcome = of(area);
        EXPECT_EQ(outcome.out, "");
        EXPECT_THAT(outcome.err, AllOf(StartsWith(std::string("pondiff: --only ") + area + ": no such area"),
                                       HasSubstr(all_areas), EndsWith("\nTry 'pondiff diff --help'.\n")));
        EXPECT_EQ(outcome.status, 2);
    }
    expect_mistake("wan", std::string("no such area; ") + all_areas);
    expect_mistake("terminal-vlan", std::string("no such area (did you mean \"terminal-vlans\"?); ") + all_areas);
}

TEST_F(OnlyMistakes, UnknownKindOfProfileListsThoseThatThereAre)
{
    for (const char* const area : {"profile", "profile:", "profile::3", "profile:wan", "profile:wan:3"}) {
        expect_mistake(area, "no such kind of profile; " + all_kinds);
    }
    expect_mistake("profile:alloc", "no such kind of profile; " + all_kinds);
    expect_mistake("profile:dhcp_ra:0", "no such kind of profile (did you mean \"dhcp-ra\"?); " + all_kinds);
}

TEST_F(OnlyMistakes, UnknownBlockListsThoseThatThereAre)
{
    for (const char* const area : {"block", "block:", "block:wan", "block:olt:"}) {
        EXPECT_THAT(of(area).err, AllOf(HasSubstr("no such block"), HasSubstr(all_blocks)));
    }
    expect_mistake("block:wan", std::string("no such block; ") + all_blocks);
    expect_mistake("block:source-guard", std::string("no such block (did you mean \"source_guard\"?); ") + all_blocks);
}

TEST_F(OnlyMistakes, OntBeyondTheArray)
{
    for (const char* const area :
         {"ont", "ont:", "ont:532", "ont:-1", "ont:01", "ont:x", "ont:99999999999999999999", "ont:8/20", "ont:0/64",
          "ont:9/0", "ont:600/0", "ont:/", "ont:1/", "ont:/1", "ont:1/6/0", "ont:1:6"}) {
        expect_mistake(area, "no such ONT; there are 0 to 531, also written 0/0 to 8/19");
    }
}

TEST_F(OnlyMistakes, PortBeyondTheArray)
{
    for (const char* const area : {"port", "port:", "port:8", "port:-1", "port:1/6", "port:x"}) {
        expect_mistake(area, "no such GPON port; there are 0 to 7");
    }
}

TEST_F(OnlyMistakes, ProfileBeyondTheArray)
{
    expect_mistake("profile:vlan:32", "no such VLAN profile; there are 0 to 31");
    expect_mistake("profile:shaping:128", "no such shaping profile; there are 0 to 127");
    for (const char* const area :
         {"profile:template:", "profile:template:-1", "profile:template:x", "profile:template:1:2"}) {
        expect_mistake(area, "no such template; there are 0 to 31");
    }
}

TEST_F(OnlyMistakes, MistakeIsReportedBeforeAnyFileIsRead)
{
    const Outcome outcome = run({"diff", "--only", "port:8", "absent", "absent", "-o", "script"});
    EXPECT_THAT(outcome.err, StartsWith("pondiff: --only port:8: no such GPON port"));
    EXPECT_EQ(outcome.status, 2);
}

} // namespace
