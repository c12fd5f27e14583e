#include "tests/support/program.h"

namespace {

using OtherPlatform = ProgramTest;

/// Another library of the platform's symbols that is loaded first serves the library.
TEST_F(OtherPlatform, ItsWordsStandInTheScript)
{
    write("orig.json", "{}");
    write("cfg.json", R"({
        "system": {
            "settings": {"ont_sn_format": 2},
            "services": {"source_guard": {"bind": {"0": {"ip": "192.0.2.1", "mac": "AA:BB:CC:DD:EE:0F"}}}}
        },
        "pon": {"ont": {"70": {"exist": true, "serial": "ABCD0102030F"}}}
    })");
    Surroundings surroundings = with_other_library("TEST_NOTHING=");
    surroundings.environment[1] = "LD_PRELOAD=" PONDIFF_OTHER_PLATFORM;
    ASSERT_EQ(run({"pack", "orig.json", "-o", "orig.bin"}).status, 0);
    ASSERT_EQ(run({"pack", "cfg.json", "-o", "cfg.bin"}).status, 0);
    const Outcome outcome = run({"diff", "orig.bin", "cfg.bin"}, surroundings);
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

} // namespace
