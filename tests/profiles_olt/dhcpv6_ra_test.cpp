#include "tests/profiles_olt/olt_profile.h"

#include <utility>

namespace {

const std::string entered = "configure terminal\nprofile dhcpv6-ra \"office\"\n";

class Dhcpv6RaProfile : public OltProfileTest<GPonProfileOltDhcpv6Ra> {
  protected:
    Dhcpv6RaProfile() : OltProfileTest(getdiff_GPonProfileOltDhcpv6Ra, &GPonProfilesOlt::dhcpv6_ra) {}
};

TEST_F(Dhcpv6RaProfile, EveryFieldChangedInOrder)
{
    put(diff.after.name, "sixteen-letters!");
    put(diff.after.description, "main");
    diff.after.relay_agent_enabled = 1;
    put(diff.after.interface_id_format, "port %CHANNELID%");
    put(diff.after.remote_id_format, "%MAC%");
    diff.after.write_interface_id_option = 1;
    diff.after.write_remote_id_option = 1;
    diff.after.dos_block_enabled = 1;
    diff.after.bc_packet_per_second = 4294967295U;
    diff.after.port_block_time = 60;
    diff.after.trusted_server_enable = 1;
    put(diff.after.trusted_primary, {0x20, 0x01, 0x0d, 0xb8, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 1});
    put(diff.after.trusted_secondary, {0xfe, 0x80, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 2});
    diff.after.trusted_server_timeout = 65535;
    diff.after.interface_id_mode = 1;
    diff.after.remote_id_mode = 1;
    EXPECT_EQ(script(), entered + "name \"sixteen-letters!\"\n"
                                  "description \"main\"\n"
                                  "enable\n"
                                  "add-interface-id \"port %GPON-PORT%\" binary\n"
                                  "add-remote-id \"%MAC%\" binary\n"
                                  "add-suboptions\n"
                                  "dos-block\n"
                                  "dos-block packet-limit \"4294967295\"\n"
                                  "dos-block block-time \"60\"\n"
                                  "trusted server\n"
                                  "trusted primary \"2001:db8::1\"\n"
                                  "trusted secondary \"fe80::2\"\n"
                                  "trusted timeout \"65535\"\n");
}

TEST_F(Dhcpv6RaProfile, SwitchesOff)
{
    diff.before.relay_agent_enabled = diff.before.dos_block_enabled = diff.before.trusted_server_enable = 1;
    EXPECT_EQ(script(), entered + "no enable\nno dos-block\nno trusted server\n");
}

TEST_F(Dhcpv6RaProfile, AnyNonZeroSwitchIsOn)
{
    diff.before.relay_agent_enabled = 1;
    diff.after.relay_agent_enabled = 2;
    diff.after.dos_block_enabled = diff.after.trusted_server_enable = 65535;
    EXPECT_EQ(script(), entered + "enable\ndos-block\ntrusted server\n");
}

TEST_F(Dhcpv6RaProfile, FullDumpRepeatsTheName)
{
    for (const int common : {0, 1, 2}) {
        diff.all = 1;
        diff.common = common;
        EXPECT_EQ(script(), entered + "name \"office\"\n"
                                      "description \"\"\n"
                                      "no enable\n"
                                      "add-interface-id \"\"\n"
                                      "add-remote-id \"\"\n"
                                      "no add-suboptions\n"
                                      "no dos-block\n"
                                      "dos-block packet-limit \"0\"\n"
                                      "dos-block block-time \"0\"\n"
                                      "no trusted server\n"
                                      "trusted primary \"::\"\n"
                                      "trusted secondary \"::\"\n"
                                      "trusted timeout \"0\"\n");
    }
}

TEST_F(Dhcpv6RaProfile, FullDumpShowsTheInterfaceIdsOption)
{
    diff.before.write_interface_id_option = diff.after.write_interface_id_option = 1;
    diff.all = 1;
    EXPECT_NE(script().find("\nadd-suboptions\n"), std::string::npos);
    diff.before.write_interface_id_option = diff.after.write_interface_id_option = 0;
    diff.before.write_remote_id_option = diff.after.write_remote_id_option = 1;
    EXPECT_NE(script().find("\nno add-suboptions\n"), std::string::npos);
}

TEST_F(Dhcpv6RaProfile, OneOfTheTwoOptionsIsNoChange)
{
    for (const int old : {0, 1}) {
        diff.before.write_interface_id_option = diff.after.write_interface_id_option = static_cast<GBool_t>(old);
        diff.before.write_remote_id_option = static_cast<GBool_t>(old);
        diff.after.write_remote_id_option = static_cast<GBool_t>(1 - old);
        EXPECT_EQ(elements(), Elements{});
        diff.after.write_remote_id_option = static_cast<GBool_t>(old);
        diff.after.write_interface_id_option = static_cast<GBool_t>(1 - old);
        EXPECT_EQ(elements(), Elements{});
    }
}

TEST_F(Dhcpv6RaProfile, BothOptionsAreOneCommand)
{
    diff.after.write_interface_id_option = diff.after.write_remote_id_option = 1;
    EXPECT_EQ(elements(), (Elements{"configure terminal\nprofile dhcpv6-ra \"office\"", "add-suboptions"}));
    std::swap(diff.before, diff.after);
    EXPECT_EQ(elements(), (Elements{"configure terminal\nprofile dhcpv6-ra \"office\"", "no add-suboptions"}));
}

TEST_F(Dhcpv6RaProfile, InterfaceIdsOptionDecidesWhenTheTwoGoApart)
{
    diff.before.write_remote_id_option = 1;
    diff.after.write_interface_id_option = 1;
    EXPECT_EQ(script(), entered + "add-suboptions\n");
    std::swap(diff.before, diff.after);
    EXPECT_EQ(script(), entered + "no add-suboptions\n");
}

TEST_F(Dhcpv6RaProfile, OptionsThatStayOnAreAChangeOfTheirBytes)
{
    diff.before.write_interface_id_option = diff.before.write_remote_id_option = 1;
    diff.after.write_interface_id_option = 65535;
    diff.after.write_remote_id_option = 2;
    EXPECT_EQ(script(), entered + "add-suboptions\n");
}

TEST_F(Dhcpv6RaProfile, ModesAloneAreNoChange)
{
    diff.after.interface_id_mode = 1;
    EXPECT_EQ(elements(), Elements{});
    diff.after.remote_id_mode = 65535;
    EXPECT_EQ(elements(), Elements{});
}

TEST_F(Dhcpv6RaProfile, EachFormatShowsItsOwnNewMode)
{
    diff.before.interface_id_mode = diff.before.remote_id_mode = 1;
    put(diff.after.interface_id_format, "i");
    put(diff.after.remote_id_format, "r");
    EXPECT_EQ(script(), entered + "add-interface-id \"i\"\nadd-remote-id \"r\"\n");
    diff.after.interface_id_mode = 2;
    EXPECT_EQ(script(), entered + "add-interface-id \"i\" binary\nadd-remote-id \"r\"\n");
    diff.after.interface_id_mode = 0;
    diff.after.remote_id_mode = 65535;
    EXPECT_EQ(script(), entered + "add-interface-id \"i\"\nadd-remote-id \"r\" binary\n");
}

TEST_F(Dhcpv6RaProfile, ClearedFormatsAreEmptyQuotes)
{
    put(diff.before.interface_id_format, "i");
    put(diff.before.remote_id_format, "r");
    EXPECT_EQ(script(), entered + "add-interface-id \"\"\nadd-remote-id \"\"\n");
}

TEST_F(Dhcpv6RaProfile, MarkerIsRenamedEverywhereInAFormat)
{
    put(diff.after.interface_id_format, "%CHANNELID% b %CHANNELID% c");
    put(diff.after.remote_id_format, "%CHANNELID%CHANNELID%");
    EXPECT_EQ(script(), entered + "add-interface-id \"%GPON-PORT% b %GPON-PORT% c\"\n"
                                  "add-remote-id \"%GPON-PORT%GPON-PORT%\"\n");
}

TEST_F(Dhcpv6RaProfile, MarkerAtTheVeryEndOfTheArray)
{
    put(diff.after.interface_id_format, std::string(245, 'i') + "%CHANNELID%");
    put(diff.after.remote_id_format, std::string(245, 'r') + "%CHANNELID%");
    diff.before.write_interface_id_option = diff.after.write_interface_id_option = 0x4141;
    EXPECT_EQ(script(), entered + "add-interface-id \"" + std::string(245, 'i') + "%GPON-PORT%\"\nadd-remote-id \"" +
                            std::string(245, 'r') + "%GPON-PORT%\"\n");
}

TEST_F(Dhcpv6RaProfile, AddressesInTheirShortestForm)
{
    const struct {
        std::initializer_list<int> bytes;
        const char* words;
    } addresses[] = {
        {{0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0}, "::"},
        {{0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 1}, "::1"},
        {{0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0xff, 0xff, 192, 0, 2, 1}, "::ffff:192.0.2.1"},
        {{0x20, 0x01, 0x0d, 0xb8, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 1}, "2001:db8::1"},
        {{0x20, 0x01, 0, 0, 0, 0, 0, 1, 0, 0, 0, 0, 0, 0, 0, 1}, "2001:0:0:1::1"},
        {{0x20, 0x01, 0x0d, 0xb8, 0, 1, 0, 2, 0, 3, 0, 4, 0, 5, 0xab, 0xcd}, "2001:db8:1:2:3:4:5:abcd"},
        {{0xff, 0xff, 0xff, 0xff, 0xff, 0xff, 0xff, 0xff, 0xff, 0xff, 0xff, 0xff, 0xff, 0xff, 0xff, 0xff},
         "ffff:ffff:ffff:ffff:ffff:ffff:ffff:ffff"},
    };
    std::memset(diff.before.trusted_primary, 0x5a, 16);
    for (const auto& address : addresses) {
        put(diff.after.trusted_primary, address.bytes);
        EXPECT_EQ(script(), entered + "trusted primary \"" + address.words + "\"\n");
    }
    std::swap(diff.before.trusted_primary, diff.before.trusted_secondary);
    std::swap(diff.after.trusted_primary, diff.after.trusted_secondary);
    for (const auto& address : addresses) {
        put(diff.after.trusted_secondary, address.bytes);
        EXPECT_EQ(script(), entered + "trusted secondary \"" + address.words + "\"\n");
    }
}

TEST_F(Dhcpv6RaProfile, LastByteOfAnAddressCounts)
{
    diff.after.trusted_primary[15] = 1;
    diff.after.trusted_secondary[15] = 2;
    EXPECT_EQ(script(), entered + "trusted primary \"::1\"\ntrusted secondary \"::2\"\n");
}

} // namespace
