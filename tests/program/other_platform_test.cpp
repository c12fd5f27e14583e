#include "tests/support/program.h"

namespace {

class OtherPlatform : public ProgramTest {
  public:
    /// From an empty configuration, by a program in front of whose platform library the other one is loaded.
    Outcome diff(const std::string& cfg)
    {
        write("orig.json", "{}");
        write("cfg.json", cfg);
        Surroundings surroundings = with_other_library("TEST_NOTHING=");
        surroundings.environment[1] = "LD_PRELOAD=" PONDIFF_OTHER_PLATFORM;
        EXPECT_EQ(run({"pack", "orig.json", "-o", "orig.bin"}).status, 0);
        EXPECT_EQ(run({"pack", "cfg.json", "-o", "cfg.bin"}).status, 0);
        return run({"diff", "orig.bin", "cfg.bin"}, surroundings);
    }
};

/// Another library of the platform's symbols that is loaded first serves the library.
TEST_F(OtherPlatform, ItsWordsStandInTheScript)
{
    const Outcome outcome = diff(R"({
        "system": {
            "settings": {"ont_sn_format": 2},
            "services": {"source_guard": {"bind": {"0": {"ip": "192.0.2.1", "mac": "AA:BB:CC:DD:EE:0F"}}}}
        },
        "pon": {"ont": {"70": {"exist": true, "serial": "ABCD0102030F"}}}
    })");
    EXPECT_EQ(outcome.status, 1);
    EXPECT_EQ(outcome.out, "configure terminal\n"
                           "ip source-guard bind ip 192/0/2/1 mac \"aa-bb-cc-dd-ee-0f\" interface-ont 0/0 service 0\n"
                           "cli ont-sn-format \"word-2\"\n"
                           "interface ont 1/6\n"
                           "serial \"dashed-0102030f\"\n"
                           "exit\n"
                           "exit\n"
                           "commit\n");
}

/// Values are part of the finished template in which placeholders are replaced, whoever wrote them.
TEST_F(OtherPlatform, PlaceholdersInWhatItWritesAreReplaced)
{
    const Outcome outcome = diff(R"({
        "system": {
            "services": {
                "snmp": {"engineID": "24000000000000000000000000"},
                "source_guard": {"bind": {
                    "2": {"ip": "192.0.2.1", "mac": "24:00:00:00:00:01"},
                    "3": {"ip": "36.0.0.1", "mac": "AA:BB:CC:DD:EE:0F"}
                }}
            }
        },
        "pon": {"ont": {
            "70": {"exist": true, "serial": "2400000001020304"},
            "71": {"exist": true, "serial": "2400000005060708"}
        }}
    })");
    EXPECT_EQ(outcome.status, 1);
    // The walks have left 15, the last user, in slot 0, and 3, the last port of an ONT, in slot 1. A mark without a
    // number takes the character behind it along: the quote.
    EXPECT_EQ(outcome.out, "configure terminal\n"
                           "ip snmp engineID \"  15-engine-   0-   0\n"
                           "ip source-guard bind ip 192/0/2/1 mac \"mac-   2-   0-$ID12\" interface-ont 0/0 service 0\n"
                           "ip source-guard bind ip    0/   3/x mac \"aa-bb-cc-dd-ee-0f\" interface-ont 0/0 service 0\n"
                           "interface ont 1/6\n"
                           "serial \"dense-   0-  70\"\n"
                           "exit\n"
                           "interface ont 1/7\n"
                           "serial \"dense-   3-  71\"\n"
                           "exit\n"
                           "exit\n"
                           "commit\n");
}

TEST_F(OtherPlatform, AWordThatItDoesNotHaveIsTheEmptyText)
{
    const Outcome outcome = diff(R"({
        "system": {
            "settings": {"ont_sn_format": 9},
            "services": {"snmp": {"traps": {"0": {"ipaddr": "192.0.2.9", "type": 19}}}}
        },
        "pon": {"profiles_ont": {"cross_connect": {"0": {"exist": true, "name": "inet", "tag_mode": 9}}}}
    })");
    EXPECT_EQ(outcome.status, 1);
    EXPECT_EQ(outcome.out, "configure terminal\n"
                           "ip snmp traps 192.0.2.9 type \n"
                           "cli ont-sn-format \"\"\n"
                           "profile cross-connect \"inet\"\n"
                           "tag-mode \n"
                           "exit\n"
                           "exit\n"
                           "commit\n");
}

} // namespace
