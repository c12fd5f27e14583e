/// Scripts with a mistake each: what is refused and why, and what is set in spite of it.

#include "tests/language/readings.h"

#include <gtest/gtest.h>

using namespace language_tests;

namespace {

/// A device with some objects, for the scripts to go wrong at.
std::unique_ptr<GCfg> device()
{
    auto configuration = blank_configuration();
    GCfg& device = *configuration;
    std::strcpy(device.system.network.hostname, "olt");
    for (const int slot : {1, 3}) {
        device.system.user[slot].exist = 1;
        std::strcpy(device.system.user[slot].name, "twin");
    }
    std::strcpy(device.system.services.snmp.alias[0].name, "port-0");
    std::strcpy(device.system.services.snmp.alias[1].name, "port-1");
    device.pon.network.terminal_vlan[2].exists = 1;
    std::strcpy(device.pon.network.terminal_vlan[2].name, "iptv");
    device.pon.profiles_olt.vlan[0].exist = 1;
    std::strcpy(device.pon.profiles_olt.vlan[0].name, "v1");
    device.pon.olt.channel[2].profile_olt_vlan = 0;
    device.pon.profiles_olt.address_table[3].exist = 1;
    std::strcpy(device.pon.profiles_olt.address_table[3].name, "t1");
    device.pon.profiles_ont.cross_connect[0].exist = 1;
    std::strcpy(device.pon.profiles_ont.cross_connect[0].name, "cc");
    device.pon.profiles_ont.cross_connect[0].outer_vid = -102;
    device.pon.profiles_ont.shaping[4].exist = 1;
    std::strcpy(device.pon.profiles_ont.shaping[4].name, "gold");
    device.pon.profiles_ont.template_ont[0].exist = 1;
    std::strcpy(device.pon.profiles_ont.template_ont[0].name, "home");
    device.pon.profiles_ont.template_ont[0].serial_is_active = 1;
    device.pon.profiles_ont.alloc[0].exist = 1;
    std::strcpy(device.pon.profiles_ont.alloc[0].name, "a1");
    device.pon.profiles_ont.ports[0].exist = 1;
    std::strcpy(device.pon.profiles_ont.ports[0].name, "p1");
    device.pon.profiles_ont.ports[0].port[1].speed = 2;
    device.pon.ont[70].exist = 1;
    device.pon.ont[70].enabled = 1;
    device.pon.ont[70].profile_ont_shaping = 4;
    const short vids[] = {3, 4};
    std::memcpy(device.pon.ont[70].tunnel[0].uvid, vids, sizeof vids);
    return configuration;
}

Reading read(const std::string& script)
{
    return reading_of(*device(), script);
}

const std::string in_configure = "configure terminal\n";
const std::string in_ont = "configure terminal\ninterface ont 1/6\n";
const std::string in_cross_connect = "configure terminal\nprofile cross-connect cc\n";
const std::string in_address_table = "configure terminal\nprofile address-table t1\n";
const std::string in_template = "configure terminal\ntemplate home\n";
const std::string unknown = "the view has no such command";

struct Case {
    const char* what;
    std::string script;
    Texts refused;
    Texts changed;
};

const Case cases[] = {
    // views
    {"command of another view", "hostname x\n", {"1: " + unknown}, {}},
    {"exit that is missing",
     in_ont + "hostname x\ndescription kiosk\n",
     {"3: " + unknown},
     {"pon.ont.70.description kiosk"}},
    {"exit at the top", "exit\nconfigure terminal\nhostname x\n", {"1: " + unknown}, {"system.network.hostname x"}},
    {"exit too many", in_configure + "exit\nexit\nhostname x\n", {"3: " + unknown, "4: " + unknown}, {}},
    {"commit in a view", in_configure + "commit\nhostname x\n", {"2: " + unknown}, {"system.network.hostname x"}},
    {"configure twice", in_configure + "configure terminal\n", {"2: " + unknown}, {}},
    {"port beyond the last",
     in_configure + "interface gpon-port 8\nfec\n",
     {"2: expected a number from 0 to 7", "3: " + unknown},
     {}},
    {"ONT beyond the last", in_configure + "interface ont 8/20\n", {"2: there are no such ONTs"}, {}},
    {"last ONT", in_configure + "interface ont 8/19\n", {}, {"pon.ont.531.exist 1"}},
    {"id beyond its port", in_configure + "interface ont 1/64\n", {"2: expected a port and an id such as 1/6"}, {}},
    {"ONT without a port", in_configure + "interface ont 70\n", {"2: expected a port and an id such as 1/6"}, {}},

    // words and quotes
    {"quote that is not closed", in_configure + "hostname \"x\n", {"2: a quote is not closed"}, {}},
    {"text behind a quote", in_configure + "hostname \"x\" y\n", {"2: " + unknown}, {}},
    {"text at a quote", in_configure + "hostname \"x\"y\n", {"2: a quote stands inside a word"}, {}},
    {"quote in a word", in_configure + "hostname x\"y\"\n", {"2: a quote stands inside a word"}, {}},
    {"command in quotes", in_configure + "\"hostname\" x\n", {"2: " + unknown}, {}},
    {"capital letters", in_configure + "HOSTNAME x\n", {"2: " + unknown}, {}},
    {"two words without quotes", in_configure + "hostname x y\n", {"2: " + unknown}, {}},
    {"value that is missing", in_configure + "hostname\n", {"2: " + unknown}, {}},
    {"carriage returns", "configure terminal\r\nhostname x\r\n", {}, {"system.network.hostname x"}},
    {"tabs and blanks", in_configure + "\t hostname \t x \t \n", {}, {"system.network.hostname x"}},
    {"no last line feed", in_configure + "hostname x", {}, {"system.network.hostname x"}},
    {"comments", in_configure + "! hostname a\n# hostname b\n  !c\n\n \t\n#\n", {}, {}},
    {"NUL in quotes", in_configure + std::string("hostname \"a\0b\"\n", 15), {"2: a NUL character stands in it"}, {}},
    {"NUL in a word", in_configure + std::string("hostname a\0b\n", 13), {"2: a NUL character stands in it"}, {}},
    {"word of a megabyte",
     in_configure + "hostname " + std::string(1 << 20, 'x') + "\n",
     {"2: hostname: expected at most 256 characters"},
     {}},
    {"line of a megabyte of words",
     in_configure + std::string(1 << 20, ' ').replace(0, 8, "hostname") + "x\n",
     {},
     {"system.network.hostname x"}},
    {"many words", in_configure + "a a a a a a a a a a a a a\n", {"2: no command has so many words"}, {}},

    // numbers, addresses, words of vocabularies
    {"number too large",
     in_configure + "management vid 65536\n",
     {"2: mngmtvlan: expected a number from 0 to 65535"},
     {}},
    {"number far too large",
     in_configure + "management vid 99999999999999999999\n",
     {"2: mngmtvlan: expected a number from 0 to 65535"},
     {}},
    {"negative number", in_configure + "management vid -1\n", {"2: mngmtvlan: expected a number from 0 to 65535"}, {}},
    {"number with a tail",
     in_configure + "management vid 5a\n",
     {"2: mngmtvlan: expected a number from 0 to 65535"},
     {}},
    {"number in hexadecimal",
     in_configure + "management vid 0x5\n",
     {"2: mngmtvlan: expected a number from 0 to 65535"},
     {}},
    {"number counted from one",
     in_configure + "gpon olt model 0\n",
     {"2: model: expected a number from 1 to 65536"},
     {}},
    {"hexadecimal without 0x",
     in_configure + "gpon network svlan-ethertype 8100\n",
     {"2: svlan_ethertype: expected a hexadecimal number from 0x0000 to 0xFFFF"},
     {}},
    {"address", in_configure + "management ip 10.0.0.256\n", {"2: ipaddr: expected an address such as 10.0.0.1"}, {}},
    {"word for no value", in_configure + "cli ont-sn-format fancy\n", {"2: ont_sn_format: no value has this word"}, {}},
    {"number of a word", in_configure + "cli ont-sn-format 1\n", {"2: ont_sn_format: no value has this word"}, {}},
    {"empty word of a registry",
     in_configure + "cli ont-sn-format \"\"\n",
     {"2: ont_sn_format: no value has this word"},
     {}},
    {"special word of another field",
     in_cross_connect + "user vid unused\nuser vid untagged\nuser cos unused\n",
     {"3: u_vid: expected a number from -32768 to 32767"},
     {"pon.profiles_ont.cross_connect.0.u_cos 255"}},
    {"serial number",
     in_ont + "serial abcd01020304\nserial 41424344-01020304\n",
     {"3: serial: expected a serial number such as ABCD01020304"},
     {"pon.ont.70.serial 65.66.67.68.1.2.3.4"}},
    {"password of eleven",
     in_ont + "password 12345678901\npassword 1234567890\n",
     {"3: password: expected at most 10 characters"},
     {"pon.ont.70.password 1234567890"}},
    {"sensor that is not there",
     in_configure +
         "alarm temperature sensor3 max 70\nalarm temperature sensor0 max 70\nalarm temperature sensor2 max 70\n",
     {"2: expected a number from 1 to 2", "3: expected a number from 1 to 2"},
     {"system.services.alarm.cfg.temperature.1 70"}},
    {"ports that are no pair",
     in_configure + "gpon olt dba-short-cycle gpon-port 1-2\ngpon olt dba-short-cycle gpon-port 2-3\n",
     {"2: GPON ports go in pairs here: 0-1, 2-3, 4-5 or 6-7"},
     {"pon.olt.general.dba_short_cycle.gpon_port.2 1", "pon.olt.general.dba_short_cycle.gpon_port.3 1"}},
    {"route without a gateway", in_configure + "ip route prefix 10.0.0.0 mask 8\n", {"2: " + unknown}, {}},

    // lists
    {"list with a range",
     in_ont + "service 0 selective-tunnel uvid 5,7-9\n",
     {},
     {"pon.ont.70.tunnel.0.uvid.0 5,7,8,9"}},
    {"broken lists",
     in_ont + "service 0 selective-tunnel uvid 5,\nservice 0 selective-tunnel uvid 9-7\nservice 0 selective-tunnel "
              "uvid 5-\nservice 0 selective-tunnel uvid ,5\nservice 0 selective-tunnel uvid 5;6\n",
     {"3: uvid: expected numbers and ranges such as 5,7-9", "4: uvid: expected numbers and ranges such as 5,7-9",
      "5: uvid: expected numbers and ranges such as 5,7-9", "6: uvid: expected numbers and ranges such as 5,7-9",
      "7: uvid: expected numbers and ranges such as 5,7-9"},
     {}},
    {"43 VLANs", in_ont + "service 0 selective-tunnel uvid 1-43\n", {"3: uvid: expected at most 42 numbers"}, {}},
    {"service that is not there",
     in_ont + "service 16 selective-tunnel uvid 1\n",
     {"3: expected a number from 0 to 15"},
     {}},
    {"list in another order", in_ont + "service 0 selective-tunnel uvid 4,3\n", {}, {}},
    {"no list", in_ont + "service 0 selective-tunnel uvid\n", {}, {"pon.ont.70.tunnel.0.uvid.0 "}},

    // names
    {"profile that is not there",
     in_ont + "profile shaping silver\n",
     {"3: profile_ont_shaping: no object has this name"},
     {}},
    {"terminal VLAN that is not there",
     in_cross_connect + "outer vid terminal-vlan voip\n",
     {"3: outer_vid: no object has this name"},
     {}},
    {"reference to the empty name",
     in_ont + "profile shaping \"\"\n",
     {"3: profile_ont_shaping: no object has this name"},
     {}},
    {"object of the empty name", in_configure + "profile vlan \"\"\n", {}, {"pon.profiles_olt.vlan.1.exist 1"}},
    {"user of the empty name",
     in_configure + "user \"\" privilege 1\n",
     {},
     {"system.user.0.exist 1", "system.user.0.name ", "system.user.0.priority 1"}},
    {"alias of the empty name", in_configure + "ip snmp alias name \"\"\n", {}, {}}, // an entry of nothing but zeros
    {"emptied name",                                                                 // another object, by its meaning
     in_address_table + "name \"\"\n",
     {},
     {"pon.profiles_olt.address_table.3.exist 1", "pon.profiles_olt.address_table.3.exist 0",
      "pon.profiles_olt.address_table.3.name "}},
    {"name of two words",
     in_configure + "no profile vlan my profile\ngpon olt profile dhcpra my profile vid 5\n",
     {"2: " + unknown, "3: " + unknown},
     {}},
    {"name too long",
     in_configure + "profile vlan 12345678901234567\n",
     {"2: name: expected at most 16 characters"},
     {}},
    {"unassigned", in_ont + "profile shaping unassigned\n", {}, {"pon.ont.70.profile_ont_shaping -1"}},
    {"object that is called unassigned",
     "configure terminal\nprofile shaping unassigned\nexit\ninterface ont 1/6\nprofile shaping unassigned\n",
     {},
     {"pon.ont.70.profile_ont_shaping 0", "pon.profiles_ont.shaping.0.exist 1",
      "pon.profiles_ont.shaping.0.name unassigned"}},
    {"two users of a name", in_configure + "user twin privilege 9\n", {}, {"system.user.1.priority 9"}},
    {"removed twice",
     in_configure + "no user twin\nno user twin\nno user twin\n",
     {},
     {"system.user.1.exist 0", "system.user.1.name ", "system.user.3.exist 0", "system.user.3.name "}},
    {"removal of what is not there",
     in_configure + "no user nobody\nno interface ont 3/3\nno profile vlan nothing\nno gpon network terminal-vlan "
                    "nothing\nno profile address-table \"\"\n",
     {},
     {}},
    {"removal that no kind has", in_configure + "no profile shaping gold\n", {"2: " + unknown}, {}},

    // entries
    {"S-VLAN 0",
     in_address_table + "s-vlan 0\ns-vlan 0 use c-vlan\n",
     {"3: svlan: 0 is no entry", "4: svlan: 0 is no entry"},
     {}},
    {"alarm without a type", in_configure + "alarm dummy ttl 5\n", {"2: type: dummy is no entry"}, {}},
    {"alarm that no entry has",
     in_configure + "alarm link ttl 5\n",
     {},
     {"system.services.alarm.type.0.type 100", "system.services.alarm.type.0.ttl 5"}},
    {"alarm that there is not", in_configure + "alarm fire ttl 5\n", {"2: type: no value has this word"}, {}},
    {"alias by its number",
     in_configure + "ip snmp alias name    1 up-down-trap\n",
     {},
     {"system.services.snmp.alias.1.upDownTrapEnable 1"}},
    {"alias beyond the last",
     in_configure + "ip snmp alias name 18 up-down-trap\n",
     {"2: expected a number from 0 to 17"},
     {}},

    // off forms
    {"definition that is taken back",
     in_template + "undefine serial\n",
     {},
     {"pon.profiles_ont.template_ont.0.serial_is_active 0"}},
    {"limit that is taken back",
     in_cross_connect + "no mac-table-limit\n",
     {},
     {"pon.profiles_ont.cross_connect.0.mac_table_entry_limit 127"}},
    {"limit without a number",
     in_cross_connect + "mac-table-limit unlimited\n",
     {"3: mac_table_entry_limit: expected a number from 0 to 65535"},
     {}},
    {"port that is switched on", in_configure + "interface gpon-port 2\nno shutdown\n", {"3: " + unknown}, {}},
    {"ONT that is switched off", in_ont + "shutdown\n", {}, {"pon.ont.70.enabled 0"}},
};

TEST(Mistakes, AreRefusedAndTheRestIsTaken)
{
    for (const Case& mistake : cases) {
        const Reading reading = read(mistake.script);
        EXPECT_EQ(reading.refused, mistake.refused) << mistake.what;
        EXPECT_EQ(reading.changed, sorted(mistake.changed)) << mistake.what;
        EXPECT_EQ(reading.ambiguous, Texts{}) << mistake.what;
    }
}

/// Commands that are written for several values are taken, and set nothing.
TEST(Mistakes, AreTakenWhereTheyAreAmbiguous)
{
    const std::pair<std::string, std::string> lines[] = {
        {in_cross_connect, "bridge"},
        {in_cross_connect, "tag-mode unknown"},
        {"configure terminal\nprofile dba a1\n", "sla class \"\""},
        {in_configure, "alarm  severity minor"},
        {in_configure, "alarm  ttl \"5\""},
        {in_configure, "cli ont-sn-format unknown"},
        {in_ont, "serial \"\""},
        {in_ont, "port 1 poe power-priority \"invalid value\""},
        {in_configure, "interface gpon-port 0\noptics laser-reset"},
    };
    for (const auto& [view, line] : lines) {
        const Reading reading = read(view + line + "\n");
        EXPECT_EQ(reading.refused, Texts{}) << line;
        EXPECT_EQ(reading.changed, Texts{}) << line;
        EXPECT_EQ(reading.ambiguous.size(), 1U) << line;
    }
}

/// A word that is written for a known value and, besides, for numbers without a word stands for the known value.
TEST(Mistakes, WordOfAKnownValueIsThatValue)
{
    const Reading reading = read("configure terminal\nprofile ports p1\nport 1 igmp upstream tag-control add-tag\n"
                                 "port 1 igmp upstream tag-control pass\nport 0 igmp downstream tag-control pass\n"
                                 "port 1 speed auto\n");
    EXPECT_EQ(reading.refused, Texts{});
    EXPECT_EQ(reading.ambiguous, Texts{});
    EXPECT_EQ(reading.changed, Texts{"pon.profiles_ont.ports.0.port.1.speed 0"});
}

TEST(Mistakes, RemovalOfAVlanProfileOrTerminalVlanClearsWhatRefersToIt)
{
    const Reading reading = read("configure terminal\nno profile vlan v1\nno gpon network terminal-vlan iptv\n");
    EXPECT_EQ(reading.refused, Texts{});
    EXPECT_EQ(reading.changed,
              (Texts{"pon.network.terminal_vlan.2.exists 0", "pon.network.terminal_vlan.2.name ",
                     "pon.olt.channel.2.profile_olt_vlan -1", "pon.profiles_olt.vlan.0.exist 0",
                     "pon.profiles_olt.vlan.0.name ", "pon.profiles_ont.cross_connect.0.outer_vid -1"}));
}

/// One is there already. What is refused is not entered, and "exit" leads from where the script stands.
TEST(Mistakes, FullTableRefuses)
{
    std::string script = in_configure;
    for (int i = 0; i < 32; ++i) {
        script += "profile vlan p" + std::to_string(i) + "\nexit\n";
    }
    EXPECT_EQ(read(script + "hostname x\n").refused, (Texts{"64: all 32 VLAN profiles are in use", "66: " + unknown}));
    EXPECT_EQ(read(script + "configure terminal\nprofile vlan p30\n").refused,
              Texts{"64: all 32 VLAN profiles are in use"});
}

} // namespace
