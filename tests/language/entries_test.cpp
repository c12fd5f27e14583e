/// Entries of lists and objects: how commands find, make, change and remove them.

#include "tests/language/readings.h"

#include <fmt/format.h>
#include <gtest/gtest.h>

using namespace language_tests;

namespace {

const std::string in_configure = "configure terminal\n";

/// What a script changes in a configuration that has nothing, or in `before`.
Texts changed(const std::string& script, const GCfg& before = *blank_configuration())
{
    const Reading reading = reading_of(before, in_configure + script);
    EXPECT_EQ(reading.refused, Texts{}) << script;
    EXPECT_EQ(reading.ambiguous, Texts{}) << script;
    return reading.changed;
}

Texts refused(const std::string& script, const GCfg& before = *blank_configuration())
{
    return reading_of(before, in_configure + script).refused;
}

/// The same line for each number.
std::string lines(const char* form, int first, int last)
{
    std::string text;
    for (int i = first; i <= last; ++i) {
        text += fmt::format(fmt::runtime(form), i);
    }
    return text;
}

template <class Object>
void make_exist(Object& object, const char* name)
{
    object.exist = 1;
    std::strcpy(object.name, name);
}

// -------------------------------------------------------------------------------------------------------------- lists

TEST(Entries, AllowLists)
{
    for (const std::string service : {"telnet", "ssh", "snmp"}) {
        const std::string allow = "ip " + service + " allow ip ";
        const std::string entry = "system.services." + service + ".allow.";
        EXPECT_EQ(
            changed(allow + "10.0.0.1 mask \"24\"\n" + allow + "10.0.0.2 mask 8\n" + allow + "10.0.0.1 mask 16\n"),
            (Texts{entry + "0.ip 10.0.0.1", entry + "0.mask 16", entry + "1.ip 10.0.0.2", entry + "1.mask 8"}));
        EXPECT_EQ(refused(lines(("ip " + service + " allow ip 10.0.1.{} mask 8\n").c_str(), 1, 17)),
                  Texts{"18: all 16 allow-list entries are in use"});
    }
}

/// The entries of these two go by number; their addresses have no command.
TEST(Entries, NumberedAllowLists)
{
    for (const std::string service : {"http", "https"}) {
        const std::string mask = "system.services." + service + ".allow.";
        EXPECT_EQ(changed(service + " allow ip    3 mask \"24\"\n" + service + " allow ip 15 mask 8\n"),
                  (Texts{mask + "15.mask 8", mask + "3.mask 24"}));
        EXPECT_EQ(refused(service + " allow ip 16 mask 8\n" + service + " allow ip 10.0.0.1 mask 8\n"),
                  (Texts{"2: expected a number from 0 to 15", "3: expected a number from 0 to 15"}));
    }
}

TEST(Entries, EntryOfNothingButZerosIsFree)
{
    EXPECT_EQ(changed("ip ssh allow ip 0.0.0.0 mask 0\n"), Texts{});
    EXPECT_EQ(changed("ip ssh allow ip 0.0.0.0 mask 0\nip ssh allow ip 10.0.0.1 mask 0\n"),
              Texts{"system.services.ssh.allow.0.ip 10.0.0.1"});
}

TEST(Entries, Traps)
{
    EXPECT_EQ(changed("ip snmp traps 10.0.0.1 type v1\nip snmp traps 10.0.0.2 type v2\nip snmp traps 10.0.0.1 type "
                      "v2\n"),
              (Texts{"system.services.snmp.traps.0.ipaddr 10.0.0.1", "system.services.snmp.traps.0.type 1",
                     "system.services.snmp.traps.1.ipaddr 10.0.0.2", "system.services.snmp.traps.1.type 1"}));
    EXPECT_EQ(refused(lines("ip snmp traps 10.0.1.{} type v1\n", 1, 17)), Texts{"18: all 16 traps are in use"});
}

TEST(Entries, Aliases)
{
    EXPECT_EQ(changed("ip snmp alias name a\nip snmp alias name b\nip snmp alias name a\n"),
              (Texts{"system.services.snmp.alias.0.name a", "system.services.snmp.alias.1.name b"}));
    EXPECT_EQ(refused(lines("ip snmp alias name n{}\n", 1, 19)), Texts{"20: all 18 aliases are in use"});
    const auto device = blank_configuration();
    device->system.services.snmp.alias[2].upDownTrapEnable = 1; // in use, under the empty name
    EXPECT_EQ(changed("ip snmp alias name \"\"\nip snmp alias name a\n", *device),
              Texts{"system.services.snmp.alias.0.name a"});
}

TEST(Entries, Routes)
{
    EXPECT_EQ(changed("ip route prefix 10.0.0.0 mask 8 gateway 10.0.0.1\nip route prefix 10.1.0.0 mask 16 gateway "
                      "10.0.0.2\nip route prefix 10.0.0.0 mask 9 gateway 10.0.0.3\n"),
              (Texts{"system.services.routing.route.0.exist 1", "system.services.routing.route.0.gateway 10.0.0.3",
                     "system.services.routing.route.0.mask 9", "system.services.routing.route.0.prefix 10.0.0.0",
                     "system.services.routing.route.1.exist 1", "system.services.routing.route.1.gateway 10.0.0.2",
                     "system.services.routing.route.1.mask 16", "system.services.routing.route.1.prefix 10.1.0.0"}));
    EXPECT_EQ(refused(lines("ip route prefix 10.1.{}.0 mask 24 gateway 10.0.0.1\n", 0, 255) +
                      lines("ip route prefix 10.2.{}.0 mask 24 gateway 10.0.0.1\n", 0, 255) +
                      "ip route prefix 10.2.7.0 mask 25 gateway 10.0.0.1\n"
                      "ip route prefix 10.3.0.0 mask 24 gateway 10.0.0.1\n"),
              Texts{"515: all 512 routes are in use"});
}

TEST(Entries, BindingsOfTheSourceGuard)
{
    const std::string bind = "ip source-guard bind ip 10.0.0.5 mac ";
    const std::string entry = "system.services.source_guard.bind.0.";
    EXPECT_EQ(changed(bind + "AA:BB:CC:DD:EE:01 interface-ont 1/6 service 2\n" + bind +
                      "AA:BB:CC:DD:EE:02 interface-ont 0/7 service 3\n"),
              (Texts{entry + "exist 1", entry + "ip 10.0.0.5", entry + "mac 170.187.204.221.238.2", entry + "ont_id 7",
                     entry + "service_id 3"}));
}

TEST(Entries, RedefinitionsOfRelayAgents)
{
    const auto device = blank_configuration();
    make_exist(device->pon.profiles_olt.dhcp_ra[3], "four");
    make_exist(device->pon.profiles_olt.dhcpv6_ra[4], "six");
    EXPECT_EQ(
        changed("gpon olt profile dhcpra four vid 7\ngpon olt profile dhcpra unassigned vid 8\n"
                "gpon olt profile dhcpra four\n",
                *device),
        (Texts{"pon.olt.general.profile_olt_dhcpra 3", "pon.olt.general.profile_olt_dhcpra_redefinition.0.exist 1",
               "pon.olt.general.profile_olt_dhcpra_redefinition.0.profile 3",
               "pon.olt.general.profile_olt_dhcpra_redefinition.0.vid 7",
               "pon.olt.general.profile_olt_dhcpra_redefinition.1.exist 1",
               "pon.olt.general.profile_olt_dhcpra_redefinition.1.vid 8"}));
    EXPECT_EQ(
        changed("gpon olt profile dhcpv6ra six vid 7\ngpon olt profile dhcpv6ra \"six\"\n"
                "gpon olt profile dhcpv6ra unassigned vid 7\n",
                *device),
        (Texts{"pon.olt.general.profile_olt_dhcpv6ra 4", "pon.olt.general.profile_olt_dhcpv6ra_redefinition.0.exist 1",
               "pon.olt.general.profile_olt_dhcpv6ra_redefinition.0.vid 7"}));
    EXPECT_EQ(refused("gpon olt profile dhcpv6ra four vid 7\n", *device), Texts{"2: profile: no object has this name"});
}

TEST(Entries, SVlansOfAnAddressTable)
{
    const auto device = blank_configuration();
    make_exist(device->pon.profiles_olt.address_table[1], "t");
    const std::string slot = "pon.profiles_olt.address_table.1.svlan_config.";
    EXPECT_EQ(changed("profile address-table t\ns-vlan 9\nno s-vlan 9 use s-vlan\ns-vlan 12 use c-vlan\n", *device),
              (Texts{slot + "0.exist 1", slot + "0.svlan 9", slot + "1.exist 1", slot + "1.svlan 12",
                     slot + "1.use_cvlan 1"}));
}

// ------------------------------------------------------------------------------------------------------------ objects

/// Each kind that is entered or named: as many as there are slots, and one more.
TEST(Objects, FullTablesRefuse)
{
    const struct {
        const char* form;
        int slots;
        const char* plural;
    } kinds[] = {
        {"user n{} privilege 1\n", 16, "users"},
        {"gpon network terminal-vlan n{}\n", 32, "terminal VLANs"},
        {"profile vlan n{}\nexit\n", 32, "VLAN profiles"},
        {"profile address-table n{}\nexit\n", 32, "address-table profiles"},
        {"profile pppoe-ia n{}\nexit\n", 32, "PPPoE intermediate agent profiles"},
        {"profile dhcp-ra n{}\nexit\n", 32, "DHCP relay agent profiles"},
        {"profile dhcpv6-ra n{}\nexit\n", 32, "DHCPv6 relay agent profiles"},
        {"profile shaping n{}\nexit\n", 128, "shaping profiles"},
        {"profile cross-connect n{}\nexit\n", 128, "cross-connect profiles"},
        {"profile dba n{}\nexit\n", 128, "allocation profiles"},
        {"profile ports n{}\nexit\n", 32, "ports profiles"},
        {"profile management n{}\nexit\n", 32, "management profiles"},
        {"template n{}\nexit\n", 32, "templates"},
        {"profile voice n{}\nexit\n", 32, "voice profiles"},
    };
    for (const auto& kind : kinds) {
        const bool entered = std::string(kind.form).find("exit") != std::string::npos;
        const int line = 2 + kind.slots * (entered ? 2 : 1);
        const std::string one_more = fmt::format(fmt::runtime(kind.form), kind.slots);
        EXPECT_EQ(refused(lines(kind.form, 0, kind.slots - 1) + one_more.substr(0, one_more.find('\n'))),
                  Texts{fmt::format("{}: all {} {} are in use", line, kind.slots, kind.plural)});
    }
}

TEST(Objects, RemovedTerminalVlanIsReferredToByNothing)
{
    const auto device = blank_configuration();
    device->pon.network.terminal_vlan[4].exists = 1;
    std::strcpy(device->pon.network.terminal_vlan[4].name, "iptv");
    make_exist(device->pon.profiles_ont.cross_connect[0], "c");
    make_exist(device->pon.profiles_ont.cross_connect[1], "d");
    auto& profile = device->pon.profiles_ont.cross_connect[0];
    profile.outer_vid = profile.inner_vid = profile.u_vid = -104;
    profile.outer_cos = profile.u_cos = 104;
    device->pon.profiles_ont.cross_connect[1].outer_vid = 104; // a VLAN id
    device->pon.profiles_ont.cross_connect[1].outer_cos = 4;
    EXPECT_EQ(changed("no gpon network terminal-vlan \"iptv\"\n", *device),
              (Texts{"pon.network.terminal_vlan.4.exists 0", "pon.network.terminal_vlan.4.name ",
                     "pon.profiles_ont.cross_connect.0.inner_vid -1", "pon.profiles_ont.cross_connect.0.outer_cos 255",
                     "pon.profiles_ont.cross_connect.0.outer_vid -1", "pon.profiles_ont.cross_connect.0.u_cos 255",
                     "pon.profiles_ont.cross_connect.0.u_vid -1"}));
}

/// What scripts write wherever they stand is known in the configure view alone.
TEST(Objects, RemovalIsRefusedInOtherViews)
{
    const auto device = blank_configuration();
    make_exist(device->system.user[0], "eve");
    device->pon.network.terminal_vlan[0].exists = 1;
    std::strcpy(device->pon.network.terminal_vlan[0].name, "iptv");
    const std::string removals = "no user \"eve\"\nno gpon network terminal-vlan \"iptv\"\n";
    const std::string unknown = ": the view has no such command";
    EXPECT_EQ(reading_of(*device, removals).refused, (Texts{"1" + unknown, "2" + unknown}));
    EXPECT_EQ(reading_of(*device, removals).changed, Texts{});
    for (const std::string view :
         {"interface ont 1/6\n", "interface gpon-port 0\n", "profile vlan x\n", "template x\n"}) {
        EXPECT_EQ(refused(view + removals, *device), (Texts{"3" + unknown, "4" + unknown})) << view;
    }
    EXPECT_EQ(refused(removals, *device), Texts{});
}

TEST(Objects, ObjectOfTheEmptyNameIsOneLikeOthers)
{
    EXPECT_EQ(changed("user \"\" privilege 7\nuser \"\" privilege 8\nprofile vlan \"\"\ndescription x\n"),
              (Texts{"pon.profiles_olt.vlan.0.description x", "pon.profiles_olt.vlan.0.exist 1",
                     "system.user.0.exist 1", "system.user.0.name ", "system.user.0.priority 8"}));
    EXPECT_EQ(changed("user \"\" privilege 7\nno user \"\"\n"), Texts{});
}

} // namespace
