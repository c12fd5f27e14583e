/// What the reader makes of commands, rule by rule.

#include "tests/language/configurations.h"
#include "tool/language/index.h"
#include "tool/language/objects.h"
#include "tool/language/sayable.h"

#include <algorithm>
#include <chrono>
#include <ctime>
#include <gtest/gtest.h>
#include <vector>

using namespace language_tests;

namespace {

/// @return how many lines are refused
std::size_t read(GCfg& device, const std::string& script)
{
    std::size_t refused = 0;
    read_script(script, device,
                [&refused](const Line& line) { refused += line.kind == Line::Kind::refused ? 1U : 0U; });
    return refused;
}

template <class Kinds>
void make_exist(Kinds& objects, std::size_t slot, const char* name)
{
    objects[slot].exist = 1;
    std::strcpy(objects[slot].name, name);
}

// ----------------------------------------------------------------------------------------------------------- creation

TEST(Rules, CreatedOntIsBlankWhateverItsPlaceHeld)
{
    const auto device = blank_configuration();
    std::memset(&device->pon.ont[70], 0x55, sizeof device->pon.ont[70]);
    device->pon.ont[70].exist = 0;
    EXPECT_EQ(read(*device, "configure terminal\ninterface ont 1/6\n"), 0U);
    const auto expected = blank_configuration();
    expected->pon.ont[70].exist = 1;
    EXPECT_EQ(std::memcmp(&device->pon.ont[70], &expected->pon.ont[70], sizeof device->pon.ont[70]), 0);
    EXPECT_EQ(s32(device->pon.ont[70].profile_ont_shaping), -1);
    EXPECT_EQ(s32(device->pon.ont[70].profile_ont_alloc[15]), -1);
    EXPECT_EQ(s16(device->pon.ont[70].tunnel[3].uvid[0]), -1);
    EXPECT_EQ(s16(device->pon.ont[70].tunnel[3].uvid[GCFG_TUNNEL_VIDS - 1]), -1);
    EXPECT_EQ(device->pon.ont[70].description[0], '\0');
}

TEST(Rules, CreatedObjectTakesTheFirstFreeSlotAndIsBlank)
{
    const auto device = blank_configuration();
    auto& profiles = device->pon.profiles_olt.vlan;
    make_exist(profiles, 0, "a");
    make_exist(profiles, 2, "c");
    std::memset(&profiles[1], 0x55, sizeof profiles[1]);
    profiles[1].exist = 0;
    EXPECT_EQ(read(*device, "configure terminal\nprofile vlan b\nexit\nprofile vlan d\n"), 0U);
    EXPECT_STREQ(profiles[1].name, "b");
    EXPECT_EQ(profiles[1].description[0], '\0');
    EXPECT_EQ(u16(profiles[1].config_general[0].extended_svlan_type), 0);
    EXPECT_STREQ(profiles[3].name, "d");
    EXPECT_NE(u16(profiles[3].exist), 0);
}

TEST(Rules, EnteringAnObjectThatIsThereChangesNothing)
{
    const auto device = blank_configuration();
    make_exist(device->pon.profiles_olt.vlan, 5, "a");
    const GCfg before = *device;
    EXPECT_EQ(read(*device, "configure terminal\nprofile vlan \"a\"\nexit\ninterface gpon-port 3\n"), 0U);
    EXPECT_EQ(std::memcmp(device.get(), &before, sizeof before), 0);
}

TEST(Rules, NamingAUserOrATerminalVlanCreatesIt)
{
    const auto device = blank_configuration();
    EXPECT_EQ(read(*device, "configure terminal\nuser eve crypted_password \"$1$x\"\n"
                            "gpon network terminal-vlan iptv\ngpon network terminal-vlan voip cos 5\n"),
              0U);
    EXPECT_NE(device->system.user[0].exist, 0);
    EXPECT_STREQ(device->system.user[0].name, "eve");
    EXPECT_STREQ(device->system.user[0].password, "$1$x");
    EXPECT_STREQ(device->pon.network.terminal_vlan[0].name, "iptv");
    EXPECT_STREQ(device->pon.network.terminal_vlan[1].name, "voip");
    EXPECT_EQ(u16(device->pon.network.terminal_vlan[1].tag.prio), 5);
}

// ------------------------------------------------------------------------------------------------------------ removal

TEST(Rules, RemovedObjectIsBlankAndItsSlotIsFree)
{
    const auto device = blank_configuration();
    std::memset(&device->pon.ont[3], 0x55, sizeof device->pon.ont[3]);
    EXPECT_EQ(read(*device, "configure terminal\nno interface ont 0/3\n"), 0U);
    EXPECT_EQ(std::memcmp(&device->pon.ont[3], &blank_configuration()->pon.ont[3], sizeof device->pon.ont[3]), 0);
}

TEST(Rules, RemovalClearsReferencesToTheObjectAndNoOthers)
{
    const auto device = blank_configuration();
    make_exist(device->pon.profiles_olt.address_table, 2, "t");
    make_exist(device->pon.profiles_olt.vlan, 2, "v");
    device->pon.olt.channel[0].profile_olt_address_table = 2;
    device->pon.olt.channel[0].profile_olt_vlan = 2;
    device->pon.olt.channel[7].profile_olt_address_table = 2;
    device->pon.olt.channel[6].profile_olt_address_table = 1;
    const std::string script = "configure terminal\nno profile address-table t\n";
    std::vector<std::size_t> cleared;
    read_script(script, *device, [&cleared](const Line& line) {
        for (const Setting& setting : line.settings) {
            cleared.push_back(setting.offset);
        }
    });
    EXPECT_EQ(s32(device->pon.olt.channel[0].profile_olt_address_table), -1);
    EXPECT_EQ(s32(device->pon.olt.channel[7].profile_olt_address_table), -1);
    EXPECT_EQ(s32(device->pon.olt.channel[6].profile_olt_address_table), 1);
    EXPECT_EQ(s32(device->pon.olt.channel[0].profile_olt_vlan), 2);
    EXPECT_EQ(cleared, (std::vector<std::size_t>{offsetof(GCfg, pon.olt.channel[0].profile_olt_address_table),
                                                 offsetof(GCfg, pon.olt.channel[7].profile_olt_address_table)}));
}

TEST(Rules, RemovedTerminalVlanLeavesNoPriorityBehind)
{
    const auto device = blank_configuration();
    device->pon.network.terminal_vlan[4].exists = 1;
    std::strcpy(device->pon.network.terminal_vlan[4].name, "iptv");
    make_exist(device->pon.profiles_ont.cross_connect, 1, "c");
    GPonProfileOntCrossConnect& profile = device->pon.profiles_ont.cross_connect[1];
    profile.u_vid = -104;
    profile.u_cos = 104;
    profile.outer_vid = 104;
    EXPECT_EQ(read(*device, "configure terminal\nno gpon network terminal-vlan \"iptv\"\n"), 0U);
    EXPECT_EQ(s16(profile.u_vid), -1);
    EXPECT_EQ(u8(profile.u_cos), 255);
    EXPECT_EQ(s16(profile.outer_vid), 104);
}

// ------------------------------------------------------------------------------------------------- names and entries

TEST(Rules, FirstOfSeveralObjectsOfANameIsMeant)
{
    const auto device = blank_configuration();
    for (const std::size_t slot : std::initializer_list<std::size_t>{9, 4, 6}) {
        make_exist(device->pon.profiles_ont.shaping, slot, "same");
    }
    make_exist(device->pon.profiles_ont.shaping, 1, "other");
    EXPECT_EQ(read(*device, "configure terminal\nprofile shaping same\ndescription first\nexit\ninterface ont 0/0\n"
                            "profile shaping same\nexit\nprofile shaping other\nname same\nexit\nprofile shaping same\n"
                            "description renamed\n"),
              0U);
    EXPECT_STREQ(device->pon.profiles_ont.shaping[4].description, "first");
    EXPECT_EQ(s32(device->pon.ont[0].profile_ont_shaping), 4);
    EXPECT_STREQ(device->pon.profiles_ont.shaping[1].description, "renamed");
}

TEST(Rules, RenamedEntryIsNamedByItsNewNameAtOnce)
{
    const auto device = blank_configuration();
    EXPECT_EQ(read(*device, "configure terminal\nip snmp alias name a\nip snmp alias name b\nip snmp alias name a\n"),
              0U);
    EXPECT_STREQ(device->system.services.snmp.alias[0].name, "a");
    EXPECT_STREQ(device->system.services.snmp.alias[1].name, "b");
    EXPECT_EQ(device->system.services.snmp.alias[2].name[0], '\0');
}

TEST(Rules, EntriesAreToldByWhatTheirCommandNamesFirst)
{
    const auto device = blank_configuration();
    device->system.services.ssh.allow[1] = {{10, 0, 0, 1}, 24};
    EXPECT_EQ(read(*device, "configure terminal\nip ssh allow ip 10.0.0.2 mask 8\nip ssh allow ip 10.0.0.1 mask 32\n"
                            "ip ssh allow ip 10.0.0.3 mask 0\n"),
              0U);
    const auto& allow = device->system.services.ssh.allow;
    EXPECT_EQ(u8(allow[0].mask), 8); // the first entry of nothing but zeros was free
    EXPECT_EQ(allow[0].ip[3], 2);
    EXPECT_EQ(u8(allow[1].mask), 32);
    EXPECT_EQ(allow[2].ip[3], 3);
}

TEST(Rules, RedefinitionsAreToldByTheirVlan)
{
    const auto device = blank_configuration();
    make_exist(device->pon.profiles_olt.dhcp_ra, 3, "dhcp");
    auto& redefined = device->pon.olt.general.profile_olt_dhcpra_redefinition;
    redefined[0].vid = 7; // is not there
    redefined[2].exist = 1;
    redefined[2].vid = 7;
    redefined[2].profile = 1;
    EXPECT_EQ(read(*device,
                   "configure terminal\ngpon olt profile dhcpra dhcp vid 7\ngpon olt profile dhcpra dhcp vid 0\n"
                   "gpon olt profile dhcpra dhcp\n"),
              0U);
    EXPECT_EQ(s32(redefined[2].profile), 3);
    EXPECT_NE(redefined[0].exist, 0);
    EXPECT_EQ(u16(redefined[0].vid), 0);
    EXPECT_EQ(s32(redefined[0].profile), 3);
    EXPECT_EQ(s32(device->pon.olt.general.profile_olt_dhcpra), 3);
}

TEST(Rules, HttpAllowListIsNumbered)
{
    const auto device = blank_configuration();
    EXPECT_EQ(read(*device, "configure terminal\nhttp allow ip    3 mask \"24\"\n"), 0U);
    EXPECT_EQ(u8(device->system.services.http.allow[3].mask), 24);
}

TEST(Rules, AlarmTakesTheFirstSlotWithoutAType)
{
    const auto device = blank_configuration();
    auto& alarms = device->system.services.alarm.type;
    alarms[0].type = 2;
    alarms[1].ttl = 77; // free
    EXPECT_EQ(read(*device, "configure terminal\nalarm link in true\nalarm ram out true\n"), 0U);
    EXPECT_EQ(u32(alarms[1].type), 100U);
    EXPECT_EQ(u32(alarms[1].ttl), 0U);
    EXPECT_NE(u16(alarms[1].send_on_in), 0);
    EXPECT_NE(u16(alarms[0].send_on_out), 0);
}

// --------------------------------------------------------------------------------------------- several fields at once

TEST(Rules, WordThatDoesNotFollowIsOff)
{
    const auto device = blank_configuration();
    make_exist(device->pon.profiles_olt.dhcp_ra, 0, "d");
    make_exist(device->pon.profiles_ont.shaping, 0, "s");
    GPonProfileOltDhcpRa& agent = device->pon.profiles_olt.dhcp_ra[0];
    agent.circuit_id_mode = 1;
    GPonOntStormControl& storm = device->pon.profiles_ont.shaping[0].upstream.storm_control;
    storm.broadcast_threshold = 500;
    storm.broadcast_logging = 1;
    EXPECT_EQ(read(*device, "configure terminal\nprofile dhcp-ra d\noverwrite-option82 circuit-id \"%PONID%\"\n"
                            "overwrite-option82 remote-id \"%GPON-PORT%\" binary\nexit\nprofile shaping s\n"
                            "upstream broadcast storm-control shutdown\n"
                            "upstream multicast storm-control rate-limit 8 logging\n"),
              0U);
    EXPECT_EQ(u16(agent.circuit_id_mode), 0);
    EXPECT_STREQ(agent.circuit_id_format, "%PONID%");
    EXPECT_EQ(u16(agent.remote_id_mode), 1);
    EXPECT_STREQ(agent.remote_id_format, "%CHANNELID%"); // as records have it
    EXPECT_EQ(u32(storm.broadcast_threshold), 500U);     // not shown, so as it was
    EXPECT_EQ(u16(storm.broadcast_logging), 0);
    EXPECT_EQ(u16(storm.broadcast_shutdown), 1);
    EXPECT_EQ(u32(storm.multicast_threshold), 8U);
    EXPECT_EQ(u16(storm.multicast_logging), 1);
    EXPECT_EQ(u16(storm.multicast_shutdown), 0);
}

TEST(Rules, OneCommandSetsBothSwitches)
{
    const auto device = blank_configuration();
    make_exist(device->pon.profiles_olt.dhcpv6_ra, 0, "d");
    GPonProfileOltDhcpv6Ra& agent = device->pon.profiles_olt.dhcpv6_ra[0];
    read(*device, "configure terminal\nprofile dhcpv6-ra d\nadd-suboptions\n");
    EXPECT_NE(u16(agent.write_interface_id_option), 0);
    EXPECT_NE(u16(agent.write_remote_id_option), 0);
    read(*device, "configure terminal\nprofile dhcpv6-ra d\nno add-suboptions\n");
    EXPECT_EQ(u16(agent.write_interface_id_option), 0);
    EXPECT_EQ(u16(agent.write_remote_id_option), 0);
}

TEST(Rules, OffFormOfAGroupClearsBothAddresses)
{
    const auto device = blank_configuration();
    make_exist(device->pon.profiles_ont.ports, 0, "p");
    auto& entry = device->pon.profiles_ont.ports[0].igmp_settings.multicast_dynamic_entry[4];
    const std::string view = "configure terminal\nprofile ports p\n";
    EXPECT_EQ(read(*device, view + "igmp multicast dynamic-entry 4 vid 9\nigmp multicast dynamic-entry 4 group "
                                   "239.0.0.1 239.0.0.9\n"),
              0U);
    EXPECT_EQ(u16(entry.vlan_id), 9);
    EXPECT_EQ(entry.last_group_ip[3], 9);
    EXPECT_EQ(read(*device, view + "no igmp multicast dynamic-entry 4 vid\nno igmp multicast dynamic-entry 4 group\n"),
              0U);
    EXPECT_EQ(u16(entry.vlan_id), 0);
    EXPECT_EQ(entry.first_group_ip[0], 0);
    EXPECT_EQ(entry.last_group_ip[0], 0);
}

TEST(Rules, FlagIsOneBit)
{
    const auto device = blank_configuration();
    device->pon.ont[0].exist = 1;
    device->pon.ont[0].voice.voip.feature_call_wait = 0x81;
    EXPECT_EQ(read(*device, "configure terminal\ninterface ont 0/0\nno voice features call-wait enable\n"
                            "voice features call-wait call-id-annonce\n"),
              0U);
    EXPECT_EQ(u32(device->pon.ont[0].voice.voip.feature_call_wait), 0x82U);
    EXPECT_EQ(read(*device, "configure terminal\ninterface ont 0/0\nvoice features call-wait sleep\n"), 1U);
}

// --------------------------------------------------------------------------------------------- what has a command

/// The path of the member that stands at an offset.
Path path_of(std::size_t offset)
{
    Path found;
    for_each_leaf(
        gcfg_record, [offset](std::size_t start, std::size_t size) { return offset >= start && offset < start + size; },
        [&found](const Leaf& leaf) { found = leaf.path; });
    return found;
}

TEST(Sayable, RecordsAndElementsWithoutCommandHaveNone)
{
    EXPECT_TRUE(has_command(path_of(offsetof(GCfg, pon.ont[3].port[1].poe.enable))));
    EXPECT_STREQ(why_no_command(path_of(offsetof(GCfg, pon.profiles_ont.ports[3].port[1].poe.enable))),
                 "power over Ethernet cannot be set in a profile");
    EXPECT_TRUE(has_command(path_of(offsetof(GCfg, system.services.alarm.cfg.load_average[0]))));
    EXPECT_STREQ(why_no_command(path_of(offsetof(GCfg, system.services.alarm.cfg.load_average[1]))),
                 "the first one alone has a command");
    EXPECT_TRUE(has_command(path_of(offsetof(GCfg, pon.ont[3].profile_ont_alloc[5]))));
    EXPECT_FALSE(has_command(path_of(offsetof(GCfg, system.network.revision))));
}

TEST(Sayable, ValuesWithoutAFormCannotBeSaid)
{
    const auto field = [](std::size_t offset) -> const Field& { return *path_of(offset).steps().back().field; };
    const Field& port = field(offsetof(GCfg, pon.olt.channel[0].enabled));
    EXPECT_TRUE(can_be_said(port, 0));
    EXPECT_FALSE(can_be_said(port, 1)); // there is "shutdown" alone
    const Field& features = field(offsetof(GCfg, pon.ont[0].voice.voip.feature_call_wait));
    EXPECT_TRUE(can_be_said(features, 3));
    EXPECT_FALSE(can_be_said(features, 4));
    const Field& layout = field(offsetof(GCfg, system.services.snmp.serialNum));
    EXPECT_TRUE(can_be_said(layout, 2));
    EXPECT_FALSE(can_be_said(layout, 65538)); // its low 16 bits are shown
    EXPECT_FALSE(can_be_said(layout, 3));
    const Field& service = field(offsetof(GCfg, pon.profiles_ont.alloc[0].dba.sla_data.service_class));
    EXPECT_TRUE(can_be_said(service, 5));
    EXPECT_FALSE(can_be_said(service, 6));
    const Field& model = field(offsetof(GCfg, pon.profiles_ont.cross_connect[0].model));
    EXPECT_FALSE(can_be_said(model, 0));
    const Field& in = field(offsetof(GCfg, system.services.alarm.type[0].send_on_in));
    EXPECT_TRUE(can_be_said(in, 1));
    EXPECT_FALSE(can_be_said(in, 2)); // "unknown"
}

// ---------------------------------------------------------------------------------------------------------------- time

double seconds_of(const std::string& script)
{
    const auto device = blank_configuration();
    const std::clock_t start = std::clock();
    read(*device, script);
    return static_cast<double>(std::clock() - start) / CLOCKS_PER_SEC;
}

std::string repeated(const std::string& lines, int times)
{
    std::string text = "configure terminal\n";
    for (int i = 0; i < times; ++i) {
        text += lines;
    }
    return text;
}

/// Ten times the lines take no more than about ten times the time.
TEST(Time, IsLinearInTheLines)
{
    const std::string kinds[] = {
        "gpon network terminal-vlan x\nno gpon network terminal-vlan x\n",
        "profile vlan x\nexit\nno profile vlan x\n",
        "interface ont 8/19\nexit\nno interface ont 8/19\n",
        "profile address-table x\ns-vlan 7\nexit\nno profile address-table x\n",
        "this is no command at all\n",
    };
    constexpr int few = 2000;
    for (const std::string& lines : kinds) {
        const double short_time = seconds_of(repeated(lines, few));
        const double long_time = seconds_of(repeated(lines, 10 * few));
        EXPECT_LT(long_time, 30 * short_time + 0.05) << lines;
    }
}

TEST(Time, IsLinearInTheLengthOfALine)
{
    for (const char* const pattern : {"x", "x ", "\"", "/", "hostname "}) {
        std::string line;
        while (line.size() < 4000000) {
            line += pattern;
        }
        EXPECT_LT(seconds_of("configure terminal\n" + line + "\n"), 2.0) << pattern;
    }
}

} // namespace
