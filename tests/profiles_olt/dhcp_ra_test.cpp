#include "tests/profiles_olt/olt_profile.h"

namespace {

const std::string entered = "configure terminal\nprofile dhcp-ra \"office\"\n";

class DhcpRaProfile : public OltProfileTest<GPonProfileOltDhcpRa> {
  protected:
    DhcpRaProfile() : OltProfileTest(getdiff_GPonProfileOltDhcpRa, &GPonProfilesOlt::dhcp_ra) {}
};

TEST_F(DhcpRaProfile, EveryFieldChangedInOrder)
{
    put(diff.after.name, "sixteen-letters!");
    put(diff.after.description, "main");
    diff.after.relay_agent_enabled = 1;
    put(diff.after.circuit_id_format, "port %CHANNELID%");
    put(diff.after.remote_id_format, "%MAC%");
    diff.after.overwrite_client_option82 = 1;
    diff.after.dos_block_enabled = 1;
    diff.after.bc_packet_per_second = 4294967295U;
    diff.after.port_block_time = 60;
    diff.after.trusted_server_enable = 1;
    put(diff.after.trusted_primary, {192, 0, 2, 1});
    put(diff.after.trusted_secondary, {255, 254, 253, 252});
    diff.after.trusted_server_timeout = 65535;
    diff.after.circuit_id_mode = 1;
    diff.after.remote_id_mode = 1;
    EXPECT_EQ(script(), entered + "name \"sixteen-letters!\"\n"
                                  "description \"main\"\n"
                                  "enable\n"
                                  "overwrite-option82 circuit-id \"port %GPON-PORT%\" binary\n"
                                  "overwrite-option82 remote-id \"%MAC%\" binary\n"
                                  "overwrite-option82\n"
                                  "dos-block\n"
                                  "dos-block packet-limit \"4294967295\"\n"
                                  "dos-block block-time \"60\"\n"
                                  "trusted server\n"
                                  "trusted primary \"192.0.2.1\"\n"
                                  "trusted secondary \"255.254.253.252\"\n"
                                  "trusted timeout \"65535\"\n");
}

TEST_F(DhcpRaProfile, SwitchesOff)
{
    diff.before.relay_agent_enabled = diff.before.overwrite_client_option82 = 1;
    diff.before.dos_block_enabled = diff.before.trusted_server_enable = 1;
    EXPECT_EQ(script(), entered + "no enable\nno overwrite-option82\nno dos-block\nno trusted server\n");
}

TEST_F(DhcpRaProfile, AnyNonZeroSwitchIsOn)
{
    diff.before.relay_agent_enabled = diff.before.overwrite_client_option82 = 1;
    diff.after.relay_agent_enabled = diff.after.overwrite_client_option82 = 2;
    diff.after.dos_block_enabled = diff.after.trusted_server_enable = 65535;
    EXPECT_EQ(script(), entered + "enable\noverwrite-option82\ndos-block\ntrusted server\n");
}

TEST_F(DhcpRaProfile, FullDumpRepeatsTheName)
{
    for (const int common : {0, 1, 2}) {
        diff.all = 1;
        diff.common = common;
        EXPECT_EQ(script(), entered + "name \"office\"\n"
                                      "description \"\"\n"
                                      "no enable\n"
                                      "overwrite-option82 circuit-id \"\"\n"
                                      "overwrite-option82 remote-id \"\"\n"
                                      "no overwrite-option82\n"
                                      "no dos-block\n"
                                      "dos-block packet-limit \"0\"\n"
                                      "dos-block block-time \"0\"\n"
                                      "no trusted server\n"
                                      "trusted primary \"0.0.0.0\"\n"
                                      "trusted secondary \"0.0.0.0\"\n"
                                      "trusted timeout \"0\"\n");
    }
}

TEST_F(DhcpRaProfile, FullDumpShowsTheModes)
{
    diff.before.circuit_id_mode = diff.after.circuit_id_mode = 1;
    diff.all = 1;
    const std::string dump = script();
    EXPECT_NE(dump.find("\noverwrite-option82 circuit-id \"\" binary\noverwrite-option82 remote-id \"\"\n"),
              std::string::npos)
        << dump;
}

TEST_F(DhcpRaProfile, ModesAloneAreNoChange)
{
    put(diff.before.circuit_id_format, "c");
    put(diff.after.circuit_id_format, "c");
    diff.after.remote_id_mode = 1;
    EXPECT_EQ(elements(), Elements{});
    diff.after.circuit_id_mode = 65535;
    EXPECT_EQ(elements(), Elements{});
}

TEST_F(DhcpRaProfile, EachFormatShowsItsOwnMode)
{
    put(diff.after.circuit_id_format, "c");
    put(diff.after.remote_id_format, "r");
    diff.after.circuit_id_mode = 1;
    EXPECT_EQ(script(), entered + "overwrite-option82 circuit-id \"c\" binary\noverwrite-option82 remote-id \"r\"\n");
    diff.after.circuit_id_mode = 0;
    diff.after.remote_id_mode = 65535;
    EXPECT_EQ(script(), entered + "overwrite-option82 circuit-id \"c\"\noverwrite-option82 remote-id \"r\" binary\n");
}

TEST_F(DhcpRaProfile, OldModesAreNotLookedAt)
{
    diff.before.circuit_id_mode = diff.before.remote_id_mode = 1;
    put(diff.after.circuit_id_format, "c");
    put(diff.after.remote_id_format, "r");
    EXPECT_EQ(script(), entered + "overwrite-option82 circuit-id \"c\"\noverwrite-option82 remote-id \"r\"\n");
}

TEST_F(DhcpRaProfile, ClearedFormatsAreEmptyQuotes)
{
    put(diff.before.circuit_id_format, "c");
    put(diff.before.remote_id_format, "r");
    diff.after.remote_id_mode = 1;
    EXPECT_EQ(script(), entered + "overwrite-option82 circuit-id \"\"\noverwrite-option82 remote-id \"\" binary\n");
}

TEST_F(DhcpRaProfile, MarkerIsRenamedEverywhereInAFormat)
{
    put(diff.after.circuit_id_format, "a %CHANNELID% b %CHANNELID% c");
    put(diff.after.remote_id_format, "%CHANNELID%%CHANNELID%");
    EXPECT_EQ(script(), entered + "overwrite-option82 circuit-id \"a %GPON-PORT% b %GPON-PORT% c\"\n"
                                  "overwrite-option82 remote-id \"%GPON-PORT%%GPON-PORT%\"\n");
}

TEST_F(DhcpRaProfile, MarkerAtTheVeryEndOfTheArray)
{
    put(diff.after.circuit_id_format, std::string(245, 'c') + "%CHANNELID%");
    put(diff.after.remote_id_format, std::string(245, 'r') + "%CHANNELID%");
    diff.before.overwrite_client_option82 = diff.after.overwrite_client_option82 = 0x4141;
    diff.after.remote_id_mode = 1;
    EXPECT_EQ(script(), entered + "overwrite-option82 circuit-id \"" + std::string(245, 'c') +
                            "%GPON-PORT%\"\noverwrite-option82 remote-id \"" + std::string(245, 'r') +
                            "%GPON-PORT%\" binary\n");
}

TEST_F(DhcpRaProfile, MarkerThatTheEndOfTheArrayCutsOffStays)
{
    put(diff.before.remote_id_format, "D%");
    put(diff.after.remote_id_format, "D%");
    put(diff.after.circuit_id_format, std::string(247, 'c') + "%CHANNELI");
    EXPECT_EQ(script(), entered + "overwrite-option82 circuit-id \"" + std::string(247, 'c') + "%CHANNELI\"\n");
}

TEST_F(DhcpRaProfile, PlaceholderInAFormatIsSubstituted)
{
    put(diff.after.circuit_id_format, "a$ID0b");
    EXPECT_EQ(script(), entered + "overwrite-option82 circuit-id \"a   4b\"\n");
}

TEST_F(DhcpRaProfile, BytesBehindTheTerminatorOfAFormatCount)
{
    put(diff.before.circuit_id_format, "c");
    put(diff.after.circuit_id_format, "c");
    diff.after.circuit_id_format[255] = 'x';
    EXPECT_EQ(script(), entered + "overwrite-option82 circuit-id \"c\"\n");
}

} // namespace
