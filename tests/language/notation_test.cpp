/// Values of commands: each form, in the one spelling that the CLI has for it.

#include "tests/language/readings.h"

#include <gtest/gtest.h>

using namespace language_tests;

namespace {

template <class Object>
void make_exist(Object& object, const char* name)
{
    object.exist = 1;
    std::strcpy(object.name, name);
}

/// An object of each kind that the values are given in.
std::unique_ptr<GCfg> device()
{
    auto configuration = blank_configuration();
    GCfg& device = *configuration;
    device.pon.ont[70].exist = 1;
    device.pon.ont[70].custom_cross_connect[3].exist = 1;
    std::strcpy(device.system.services.snmp.alias[3].name, "port-3");
    make_exist(device.pon.profiles_olt.pppoe_ia[0], "pppoe");
    make_exist(device.pon.profiles_olt.dhcpv6_ra[4], "six");
    make_exist(device.pon.profiles_ont.shaping[0], "shape");
    make_exist(device.pon.profiles_ont.cross_connect[0], "cc");
    device.pon.profiles_ont.cross_connect[0].u_vid = 9;
    device.pon.profiles_ont.cross_connect[0].mac_table_entry_limit = 9;
    make_exist(device.pon.profiles_ont.ports[0], "ports");
    make_exist(device.pon.profiles_ont.template_ont[0], "home");
    device.pon.profiles_ont.template_ont[0].ber_update_period = 9;
    device.pon.network.terminal_vlan[5].exists = 1;
    std::strcpy(device.pon.network.terminal_vlan[5].name, "iptv");
    return configuration;
}

const std::string in_ont = "interface ont 1/6\n";
const std::string in_cross_connect = "profile cross-connect cc\n";
const std::string in_ports = "profile ports ports\n";
const std::string in_pppoe = "profile pppoe-ia pppoe\n";
const std::string in_shaping = "profile shaping shape\n";
const std::string in_template = "template home\n";

const std::string number_16 = "expected a number from 0 to 65535";
const std::string cross_connect = "pon.profiles_ont.cross_connect.0.";

struct Case {
    std::string view; ///< the line that enters it
    std::string line;
    std::string refused; ///< why; empty: it is taken
    Texts changed;
};

void expect(const std::vector<Case>& cases)
{
    for (const Case& one : cases) {
        const Reading reading = reading_of(*device(), "configure terminal\n" + one.view + one.line + "\n");
        const std::string number = one.view.empty() ? "2: " : "3: ";
        EXPECT_EQ(reading.refused, one.refused.empty() ? Texts{} : Texts{number + one.refused}) << one.line;
        EXPECT_EQ(reading.changed, sorted(one.changed)) << one.line;
        EXPECT_EQ(reading.ambiguous, Texts{}) << one.line;
    }
}

TEST(Notation, Numbers)
{
    expect({
        {"", "management vid 65535", "", {"system.network.mngmtvlan 65535"}},
        {"", "management vid \"7\"", "", {"system.network.mngmtvlan 7"}},
        {"", "management vid 007", "mngmtvlan: " + number_16, {}},
        {"", "management vid 00", "mngmtvlan: " + number_16, {}},
        {"", "management vid -0", "mngmtvlan: " + number_16, {}},
        {"", "management vid +7", "mngmtvlan: " + number_16, {}},
        {"", "management vid \" 7\"", "mngmtvlan: " + number_16, {}},
        {"", "management vid \"\"", "mngmtvlan: " + number_16, {}},
        {"", "ip ntp timezone -3", "", {"system.services.ntp.timezone -3"}},
        {"", "ip ntp timezone -03", "timezone: expected a number from -32768 to 32767", {}},
        {"", "ip ntp timezone -", "timezone: expected a number from -32768 to 32767", {}},
        {"",
         "alarm link ttl -2147483648",
         "",
         {"system.services.alarm.type.0.type 100", "system.services.alarm.type.0.ttl -2147483648"}},
        {"", "gpon olt model 65536", "", {"pon.olt.general.datapath.model 65535"}},                    // counted from 1
        {"", "gpon olt unactivated-timout -2", "", {"pon.olt.general.absent_counter_max 4294967294"}}, // shown signed
        {in_shaping,
         "upstream 2 commited-rate 2147483648",
         "commited_rate: expected a number from -2147483648 to 2147483647",
         {}},
    });
}

TEST(Notation, NumbersOfElements)
{
    expect({
        {"", "interface ont 01/6", "expected a port and an id such as 1/6", {}},
        {"", "interface ont 1/06", "expected a port and an id such as 1/6", {}},
        {in_ports, "port 3 remove-tag", "", {"pon.profiles_ont.ports.0.port.3.remove_tag 1"}},
        {in_ports, "port 03 remove-tag", "expected a number from 0 to 3", {}},
        {in_ports, "port 4 remove-tag", "expected a number from 0 to 3", {}},
        {"", "alarm temperature sensor2 max 75", "", {"system.services.alarm.cfg.temperature.1 75"}},
        {"", "alarm temperature sensor02 max 75", "expected a number from 1 to 2", {}},
        {"", "ip snmp alias name    3 up-down-trap", "", {"system.services.snmp.alias.3.upDownTrapEnable 1"}},
    });
}

TEST(Notation, HexadecimalNumbers)
{
    const std::string field = "pon.network.svlan_ethertype ";
    const std::string refused = "svlan_ethertype: expected a hexadecimal number from 0x0000 to 0xFFFF";
    const std::string vendor = "vendor_id: expected a hexadecimal number from 0x000000 to 0xFFFFFFFF";
    expect({
        {"", "gpon network svlan-ethertype 0x88A8", "", {field + "34984"}},
        {"", "gpon network svlan-ethertype \"0x0005\"", "", {field + "5"}},
        {"", "gpon network svlan-ethertype 0x5", refused, {}},
        {"", "gpon network svlan-ethertype 0x00005", refused, {}},
        {"", "gpon network svlan-ethertype 0x88a8", refused, {}},
        {"", "gpon network svlan-ethertype 0X88A8", refused, {}},
        {"", "gpon network svlan-ethertype 0x10000", refused, {}},
        {"", "gpon network svlan-ethertype 34984", refused, {}},
        {"", "gpon network svlan-ethertype 0x-001", refused, {}},
        {in_pppoe, "vendor-id 0x001A2B", "", {"pon.profiles_olt.pppoe_ia.0.vendor_id 6699"}},
        {in_pppoe, "vendor-id 0x1001A2B", "", {"pon.profiles_olt.pppoe_ia.0.vendor_id 16783915"}},
        {in_pppoe, "vendor-id 0x1A2B", vendor, {}},
        {in_pppoe, "vendor-id 0x100000000", vendor, {}},
    });
}

TEST(Notation, Addresses)
{
    const std::string ip = "expected an address such as 10.0.0.1";
    const std::string ipv6 = "expected an address such as 2001:db8::1";
    expect({
        {"", "management gateway 192.0.2.254", "", {"system.network.gateway 192.0.2.254"}},
        {"", "management gateway 192.0.2.054", "gateway: " + ip, {}},
        {"", "management gateway 192.0.2", "gateway: " + ip, {}},
        {"", "management gateway 192.0.2.1.", "gateway: " + ip, {}},
        {in_ports,
         "mld querier fe80::1",
         "",
         {"pon.profiles_ont.ports.0.mld_settings.querier_ipv6 254.128.0.0.0.0.0.0.0.0.0.0.0.0.0.1"}},
        {in_ports, "mld querier FE80::1", "querier_ipv6: " + ipv6, {}},
        {in_ports, "mld querier fe80:0:0:0:0:0:0:1", "querier_ipv6: " + ipv6, {}},
        {in_ports, "mld querier fe80::01", "querier_ipv6: " + ipv6, {}},
        {in_ports, "mld querier 10.0.0.1", "querier_ipv6: " + ipv6, {}},
        {in_ports,
         "mld multicast dynamic-entry 2 group ff3e::1 \"ff3e::9\"",
         "",
         {"pon.profiles_ont.ports.0.mld_settings.multicast_dynamic_entry_mld.2.first_group_ip "
          "255.62.0.0.0.0.0.0.0.0.0.0.0.0.0.1",
          "pon.profiles_ont.ports.0.mld_settings.multicast_dynamic_entry_mld.2.last_group_ip "
          "255.62.0.0.0.0.0.0.0.0.0.0.0.0.0.9"}},
    });
}

TEST(Notation, MacAddressesAndEngineIds)
{
    const std::string bind = "ip source-guard bind ip 10.0.0.5 mac ";
    const std::string to = " interface-ont \"1/6\" service 2";
    const std::string mac = "mac: expected an address such as AA:BB:CC:DD:EE:FF";
    const std::string engine = "engineID: expected 26 hexadecimal digits in small letters";
    const std::string bound = "system.services.source_guard.bind.0.";
    expect({
        {"",
         bind + "AA:BB:CC:DD:EE:0F" + to,
         "",
         {bound + "exist 1", bound + "ip 10.0.0.5", bound + "mac 170.187.204.221.238.15", bound + "channel_index 1",
          bound + "ont_id 6", bound + "service_id 2"}},
        {"", bind + "aa:bb:cc:dd:ee:0f" + to, mac, {}},
        {"", bind + "AA-BB-CC-DD-EE-0F" + to, mac, {}},
        {"", bind + "AA:BB:CC:DD:EE" + to, mac, {}},
        {"",
         "ip snmp engineID 80001f88040a0b0c0d0e0f1011",
         "",
         {"system.services.snmp.engineID 128.0.31.136.4.10.11.12.13.14.15.16.17"}},
        {"", "ip snmp engineID 80001F88040A0B0C0D0E0F1011", engine, {}},
        {"", "ip snmp engineID 80001f88040a0b0c0d0e0f10", engine, {}},
    });
}

/// The layout of capital letters is for vendors that are four of them; others have their digits.
TEST(Notation, SerialNumbers)
{
    const std::string refused = "serial: expected a serial number such as ABCD01020304";
    const std::string serial = "pon.ont.70.serial ";
    expect({
        {in_ont, "serial ABCDEF020304", "", {serial + "65.66.67.68.239.2.3.4"}},
        {in_ont, "serial \"4142434401020304\"", "", {serial + "65.66.67.68.1.2.3.4"}},
        {in_ont, "serial 41424344-0102030A", "", {serial + "65.66.67.68.1.2.3.10"}},
        {in_ont, "serial 0000000000000001", "", {serial + "0.0.0.0.0.0.0.1"}},
        {in_ont, "serial abcd01020304", refused, {}},
        {in_ont, "serial 1BCD01020304", refused, {}},
        {in_ont, "serial ....01020304", refused, {}},
        {in_ont, "serial ABCDef020304", refused, {}},
        {in_ont, "serial 41424344ef020304", refused, {}},
        {in_ont, "serial 41424344-ef020304", refused, {}},
        {in_ont, "serial 414243-4401020304", refused, {}},
        {in_ont, "serial ABCD0102030", refused, {}},
    });
}

TEST(Notation, WordsForNumbers)
{
    expect({
        {in_ont, "service 3 custom cvid unused", "", {"pon.ont.70.custom_cross_connect.3.vid -1"}},
        {in_ont, "service 3 custom cvid -1", "vid: expected unused for this number", {}},
        {in_ont, "service 3 custom svid \"unused\"", "", {"pon.ont.70.custom_cross_connect.3.svid -1"}},
        {in_ont, "ber interval none", "", {"pon.ont.70.ber_interval 4294967295"}},
        {in_ont, "ber interval 4294967294", "", {"pon.ont.70.ber_interval 4294967294"}},
        {in_ont, "ber interval 4294967295", "ber_interval: expected none for this number", {}},
        {in_ont, "ber update-period none", "ber_update_period: expected a number from 0 to 4294967295", {}},
        {in_template, "ber update-period none", "", {"pon.profiles_ont.template_ont.0.ber_update_period 0"}},
        {in_cross_connect, "user vid untagged", "", {cross_connect + "u_vid 0"}},
        {in_cross_connect, "user vid 0", "u_vid: expected untagged for this number", {}},
        {in_cross_connect, "user cos unused", "", {cross_connect + "u_cos 255"}},
        {in_cross_connect, "no mac-table-limit", "", {cross_connect + "mac_table_entry_limit 127"}},
        {in_pppoe,
         "sessions-limit per-user unlimited",
         "",
         {"pon.profiles_olt.pppoe_ia.0.max_number_pppoe_sessions_per_user 5"}},
        {in_pppoe,
         "sessions-limit 8 per-user unlimited",
         "",
         {"pon.profiles_olt.pppoe_ia.0.max_number_pppoe_sessions 8",
          "pon.profiles_olt.pppoe_ia.0.max_number_pppoe_sessions_per_user 5"}},
        {in_pppoe, "sessions-limit unlimited", "max_number_pppoe_sessions: expected a number from 0 to 4294967295", {}},
    });
}

TEST(Notation, TerminalVlans)
{
    expect({
        {in_cross_connect, "outer vid terminal-vlan \"iptv\"", "", {cross_connect + "outer_vid -105"}},
        {in_cross_connect, "outer cos terminal-vlan iptv", "", {cross_connect + "outer_cos 105"}},
        {in_cross_connect, "inner vid terminal-vlan iptv", "", {cross_connect + "inner_vid -105"}},
        {in_cross_connect, "user vid terminal-vlan iptv", "", {cross_connect + "u_vid -105"}},
        {in_cross_connect, "user cos terminal-vlan iptv", "", {cross_connect + "u_cos 105"}},
        {in_cross_connect, "outer vid \"terminal-vlan\" iptv", "the view has no such command", {}},
        {in_cross_connect, "outer vid terminal-vlan unassigned", "", {cross_connect + "outer_vid -1"}},
        {in_cross_connect, "outer cos terminal-vlan unassigned", "", {cross_connect + "outer_cos 255"}},
        {in_cross_connect, "outer vid 12", "", {cross_connect + "outer_vid 12"}},
    });
}

TEST(Notation, ListsOfVlans)
{
    const std::string tunnel = "service 0 selective-tunnel uvid ";
    const std::string list = "pon.ont.70.tunnel.0.uvid.0 ";
    const std::string refused = "uvid: expected numbers and ranges such as 5,7-9";
    expect({
        {in_ont, tunnel + "9,5,7-8", "", {list + "9,5,7,8"}},
        {in_ont, tunnel + "\"5,7-9\"", "", {list + "5,7,8,9"}},
        {in_ont, tunnel + "-5--3", "", {list + "-5,-4,-3"}},
        {in_ont, tunnel + "-5-3", refused, {}}, // would pass through -1, which ends the list
        {in_ont, tunnel + "-1", refused, {}},
        {in_ont, tunnel + "-3--1", refused, {}},
        {in_ont, tunnel + "05", refused, {}},
        {in_ont, tunnel + "5-7-9", refused, {}},
        {in_ont, tunnel + "5--", refused, {}},
        {in_ont, tunnel + "5-5", refused, {}},
        {in_ont, tunnel + "32768", refused, {}},
    });
}

/// Whatever shows a value may stand between quotes, and no word of a command.
TEST(Notation, Quotes)
{
    const std::string unknown = "the view has no such command";
    expect({
        {"", "interface ont \"2/1\"", "", {"pon.ont.129.exist 1"}},
        {"", "interface \"ont\" 2/1", unknown, {}},
        {"",
         "alarm \"link\" ttl \"5\"",
         "",
         {"system.services.alarm.type.0.type 100", "system.services.alarm.type.0.ttl 5"}},
        {"", "alarm temperature \"sensor1\" max \"70\"", "", {"system.services.alarm.cfg.temperature.0 70"}},
        {"", "ip snmp alias name \"3\" up-down-trap", "", {"system.services.snmp.alias.3.upDownTrapEnable 1"}},
        {"", "ip snmp alias name 3 \"up-down-trap\"", unknown, {}},
        {"",
         "gpon olt dba-short-cycle gpon-port \"2-3\"",
         "",
         {"pon.olt.general.dba_short_cycle.gpon_port.2 1", "pon.olt.general.dba_short_cycle.gpon_port.3 1"}},
        {in_ont, "voice features cid \"call-name\"", "", {"pon.ont.70.voice.voip.feature_cid 2"}},
        {in_cross_connect, "user vid \"untagged\"", "", {cross_connect + "u_vid 0"}},
    });
}

/// The element that a line names is looked for, however little the line says about it.
TEST(Notation, ElementThatIsNotThereIsRefusedWhateverTheValue)
{
    const auto device = ::device();
    make_exist(device->pon.profiles_olt.address_table[0], "table");
    EXPECT_EQ(reading_of(*device, "configure terminal\nprofile address-table table\ns-vlan 0 forwarding-mode unknown\n"
                                  "exit\nprofile ports ports\nport 99 speed unknown\nexit\nalarm  ttl abc\n")
                  .refused,
              (Texts{"3: svlan: 0 is no entry", "6: expected a number from 0 to 3",
                     "8: ttl: expected a number from -2147483648 to 2147483647"}));
}

} // namespace
