#include "tests/profiles_olt/olt_profile.h"

namespace {

const std::string entered = "configure terminal\nprofile pppoe-ia \"office\"\n";
const std::string marker = "%CHANNELID%";

class PppoeIaProfile : public OltProfileTest<GPonProfileOltPppoeIa> {
  protected:
    PppoeIaProfile() : OltProfileTest(getdiff_GPonProfileOltPppoeIa, &GPonProfilesOlt::pppoe_ia) {}
};

TEST_F(PppoeIaProfile, EveryFieldChangedInOrder)
{
    put(diff.after.name, "sixteen-letters!");
    put(diff.after.description, "main");
    diff.after.pppoe_plus_enabled = 1;
    put(diff.after.circuit_id_format, "%HOSTNAME% %CHANNELID%");
    put(diff.after.remote_id_format, "%CHANNELID%/%ONTID%");
    diff.after.vendor_id = 0xDE9;
    diff.after.max_number_pppoe_sessions = 100;
    diff.after.max_number_pppoe_sessions_per_user = 3;
    diff.after.dos_block_enabled = 1;
    diff.after.bc_packet_per_second = 4294967295U;
    diff.after.port_block_time = 60;
    diff.after.sessions_monitoring = 1;
    EXPECT_EQ(script(), entered + "name \"sixteen-letters!\"\n"
                                  "description \"main\"\n"
                                  "enable\n"
                                  "format circuit-id \"%HOSTNAME% %GPON-PORT%\"\n"
                                  "format remote-id \"%GPON-PORT%/%ONTID%\"\n"
                                  "vendor-id \"0x000DE9\"\n"
                                  "sessions-limit 100 per-user 3\n"
                                  "dos-block enable\n"
                                  "dos-block packet-limit \"4294967295\"\n"
                                  "dos-block block-time \"60\"\n"
                                  "sessions-monitoring enable\n");
}

TEST_F(PppoeIaProfile, SwitchesOff)
{
    diff.before.pppoe_plus_enabled = diff.before.dos_block_enabled = diff.before.sessions_monitoring = 1;
    EXPECT_EQ(script(), entered + "no enable\nno dos-block enable\nno sessions-monitoring enable\n");
}

TEST_F(PppoeIaProfile, AnyNonZeroSwitchIsOn)
{
    diff.before.pppoe_plus_enabled = diff.before.dos_block_enabled = 1;
    diff.after.pppoe_plus_enabled = 2;
    diff.after.dos_block_enabled = diff.after.sessions_monitoring = 65535;
    EXPECT_EQ(script(), entered + "enable\ndos-block enable\nsessions-monitoring enable\n");
}

TEST_F(PppoeIaProfile, FullDumpRepeatsTheNameAndLeavesTheSessionLimitsOut)
{
    diff.before.max_number_pppoe_sessions = diff.after.max_number_pppoe_sessions = 64;
    diff.before.max_number_pppoe_sessions_per_user = diff.after.max_number_pppoe_sessions_per_user = 5;
    for (const int common : {0, 1, 2}) {
        diff.all = 1;
        diff.common = common;
        EXPECT_EQ(script(), entered + "name \"office\"\n"
                                      "description \"\"\n"
                                      "no enable\n"
                                      "format circuit-id \"\"\n"
                                      "format remote-id \"\"\n"
                                      "vendor-id \"0x000000\"\n"
                                      "no dos-block enable\n"
                                      "dos-block packet-limit \"0\"\n"
                                      "dos-block block-time \"0\"\n"
                                      "no sessions-monitoring enable\n");
    }
}

TEST_F(PppoeIaProfile, FullDumpShowsAnotherSessionLimitInItsPlace)
{
    diff.after.max_number_pppoe_sessions = 64;
    diff.all = 1;
    const std::string dump = script();
    EXPECT_NE(dump.find("vendor-id \"0x000000\"\nsessions-limit 64\nno dos-block enable\n"), std::string::npos) << dump;
}

TEST_F(PppoeIaProfile, SessionLimitAlone)
{
    diff.before.max_number_pppoe_sessions_per_user = diff.after.max_number_pppoe_sessions_per_user = 5;
    diff.after.max_number_pppoe_sessions = 64;
    EXPECT_EQ(elements(), (Elements{"configure terminal\nprofile pppoe-ia \"office\"", "sessions-limit 64"}));
    diff.before.max_number_pppoe_sessions = 64;
    diff.after.max_number_pppoe_sessions = 0;
    EXPECT_EQ(script(), entered + "sessions-limit 0\n");
    diff.after.max_number_pppoe_sessions = 4294967295U;
    EXPECT_EQ(script(), entered + "sessions-limit 4294967295\n");
}

TEST_F(PppoeIaProfile, SessionLimitHasNoUnlimitedForm)
{
    diff.after.max_number_pppoe_sessions = 5;
    EXPECT_EQ(script(), entered + "sessions-limit 5\n");
}

TEST_F(PppoeIaProfile, LimitPerUserAlone)
{
    diff.before.max_number_pppoe_sessions = diff.after.max_number_pppoe_sessions = 64;
    diff.before.max_number_pppoe_sessions_per_user = 2;
    diff.after.max_number_pppoe_sessions_per_user = 5;
    EXPECT_EQ(elements(),
              (Elements{"configure terminal\nprofile pppoe-ia \"office\"", "sessions-limit per-user unlimited"}));
    diff.before.max_number_pppoe_sessions_per_user = 5;
    const unsigned limits[] = {0, 4, 6, 4294967295U};
    const char* const words[] = {"0", "4", "6", "4294967295"};
    for (int i = 0; i < 4; ++i) {
        diff.after.max_number_pppoe_sessions_per_user = limits[i];
        EXPECT_EQ(script(), entered + "sessions-limit per-user " + words[i] + "\n");
    }
}

TEST_F(PppoeIaProfile, BothLimitsAreOneCommand)
{
    diff.after.max_number_pppoe_sessions = 100;
    diff.after.max_number_pppoe_sessions_per_user = 3;
    EXPECT_EQ(elements(),
              (Elements{"configure terminal\nprofile pppoe-ia \"office\"", "sessions-limit 100 per-user 3"}));
    diff.after.max_number_pppoe_sessions = 5;
    diff.after.max_number_pppoe_sessions_per_user = 5;
    EXPECT_EQ(script(), entered + "sessions-limit 5 per-user unlimited\n");
}

TEST_F(PppoeIaProfile, VendorIdHasSixDigitsOrMore)
{
    const unsigned ids[] = {0xa, 0xabcdef, 0x12345678, 0xffffffff};
    const char* const words[] = {"0x00000A", "0xABCDEF", "0x12345678", "0xFFFFFFFF"};
    for (int i = 0; i < 4; ++i) {
        diff.after.vendor_id = ids[i];
        EXPECT_EQ(script(), entered + "vendor-id \"" + words[i] + "\"\n");
    }
}

TEST_F(PppoeIaProfile, MarkerIsRenamedEverywhereInAFormat)
{
    put(diff.after.circuit_id_format, "%CHANNELID% and %CHANNELID%");
    EXPECT_EQ(script(), entered + "format circuit-id \"%GPON-PORT% and %GPON-PORT%\"\n");
}

TEST_F(PppoeIaProfile, MarkersThatShareTheirPercentSign)
{
    put(diff.after.remote_id_format, "%CHANNELID%CHANNELID%");
    EXPECT_EQ(script(), entered + "format remote-id \"%GPON-PORT%GPON-PORT%\"\n");
}

TEST_F(PppoeIaProfile, MarkerAtTheVeryEndOfTheArray)
{
    put(diff.after.circuit_id_format, std::string(245, 'c') + marker);
    put(diff.after.remote_id_format, std::string(245, 'r') + marker);
    diff.before.vendor_id = diff.after.vendor_id = 0x41414141;
    EXPECT_EQ(script(), entered + "format circuit-id \"" + std::string(245, 'c') +
                            "%GPON-PORT%\"\nformat remote-id \"" + std::string(245, 'r') + "%GPON-PORT%\"\n");
}

TEST_F(PppoeIaProfile, MarkerThatTheEndOfTheArrayCutsOffStays)
{
    put(diff.before.remote_id_format, "%");
    put(diff.after.remote_id_format, "%");
    put(diff.after.circuit_id_format, std::string(246, 'c') + "%CHANNELID");
    EXPECT_EQ(script(), entered + "format circuit-id \"" + std::string(246, 'c') + "%CHANNELID\"\n");
}

TEST_F(PppoeIaProfile, MarkerInOtherTextsStays)
{
    put(diff.after.name, marker);
    put(diff.after.description, marker);
    EXPECT_EQ(script(), entered + "name \"%CHANNELID%\"\ndescription \"%CHANNELID%\"\n");
}

TEST_F(PppoeIaProfile, ConversionsInAFormatAreItsText)
{
    put(diff.after.circuit_id_format, "%s%d%%");
    EXPECT_EQ(script(), entered + "format circuit-id \"%s%d%%\"\n");
}

TEST_F(PppoeIaProfile, ClearedFormatsAreEmptyQuotes)
{
    put(diff.before.circuit_id_format, "c");
    put(diff.before.remote_id_format, "r");
    EXPECT_EQ(script(), entered + "format circuit-id \"\"\nformat remote-id \"\"\n");
}

} // namespace
