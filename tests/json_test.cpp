#include "json_helpers.h"

#include <cstring>
#include <gtest/gtest.h>
#include <memory>
#include <string>

using namespace pondiff::json_tests;

// ------------------------------------------------------------------------------------------------------- documents

TEST(Json, AnEmptyDocumentIsAllZero)
{
    EXPECT_EQ(std::memcmp(read("{}").get(), blank().get(), sizeof(GCfg)), 0);
    EXPECT_EQ(shown(blank()), "{}\n");
    EXPECT_TRUE(is_kept(blank()));
}

TEST(Json, ADocumentHasOnlyWhatIsSet)
{
    const Config config = read(R"({"pon": {"ont": {"70": {"exist": true, "serial": "ABCD01020304"}}}})");
    const Config expected = blank();
    expected->pon.ont[70].exist = 1;
    std::memcpy(expected->pon.ont[70].serial, "ABCD\1\2\3\4", 8);
    EXPECT_EQ(std::memcmp(config.get(), expected.get(), sizeof(GCfg)), 0);
    EXPECT_EQ(shown(config), R"({
  "pon": {
    "ont": {
      "70": {
        "exist": true,
        "serial": "ABCD01020304"
      }
    }
  }
}
)");
}

TEST(Json, KeysComeInRecordOrderAndShortRecordsOnALine)
{
    const Config config = read(R"({
        "pon": {"network": {"terminal_vlan": {"2": {"tag": {"prio": 5, "ethertype": "0x8100"}, "name": "iptv"}}}},
        "system": {"services": {"snmp": {"alias": {"17": {"upDownTrapEnable": true, "name": "pon8"}},
                                          "traps": {"0": {"ipaddr": "10.0.0.9", "type": "v2"}},
                                          "allow": {"3": {"mask": 24, "ip": "10.0.0.0"}}},
                                "alarm": {"type": {"5": {"type": "login", "severity": "minor", "ttl": -1}}}}}})");
    EXPECT_EQ(shown(config), R"({
  "system": {
    "services": {
      "snmp": {
        "allow": {
          "3": {"ip": "10.0.0.0", "mask": 24}
        },
        "traps": {
          "0": {"type": "v2", "ipaddr": "10.0.0.9"}
        },
        "alias": {
          "17": {
            "name": "pon8",
            "upDownTrapEnable": true
          }
        }
      },
      "alarm": {
        "type": {
          "5": {"type": "login", "severity": "minor", "ttl": -1}
        }
      }
    }
  },
  "pon": {
    "network": {
      "terminal_vlan": {
        "2": {
          "name": "iptv",
          "tag": {"ethertype": "0x8100", "prio": 5}
        }
      }
    }
  }
}
)");
    EXPECT_TRUE(is_kept(config));
}

TEST(Json, FullDocumentsHaveEverything)
{
    const std::string text = write_json(*blank(), true);
    const std::string start = R"({
  "system": {
    "network": {
      "revision": 0,
      "hostname": "",
      "ipaddr": "0.0.0.0",
      "netmask": "0.0.0.0",
      "mngmtvlan": 0,
      "gateway": "0.0.0.0",
      "vlan_prio": 0,
      "dscp": 0,
      "ACSIp": "0.0.0.0",
      "ACSMask": "0.0.0.0",
      "ACSVid": 0
    },
    "user": {
      "0": {
        "revision": 0,
        "exist": false,
        "name": "",
        "password": "",
        "priority": 0,
        "group")";
    EXPECT_EQ(text.substr(0, start.size()), start);
    for (const char* const piece :
         {R"("profile_ont_alloc": [0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0])", R"("vid": "")", R"("531": {)",
          R"("serial": "0000000000000000")", R"("engineID": "00000000000000000000000000")",
          R"("mac": "00:00:00:00:00:00")", R"("trusted_primary": "::")", R"("vendor_id": "0x0")",
          R"("svlan_ethertype": "0x0000")", R"("gpon_port": [false, false, false, false, false, false, false, false])",
          R"("bind": {)"}) {
        EXPECT_NE(text.find(piece), text.npos) << piece;
    }
}

// ----------------------------------------------------------------------------------------------------------- forms

TEST(Json, Booleans)
{
    for (const char* const value : {"true", "1", "\"true\""}) {
        EXPECT_EQ(static_cast<int>(read(in_ont(R"("exist": )" + std::string(value)))->pon.ont[70].exist), 1) << value;
    }
    for (const char* const value : {"false", "0", "\"false\""}) {
        EXPECT_EQ(static_cast<int>(read(in_ont(R"("exist": )" + std::string(value)))->pon.ont[70].exist), 0) << value;
    }
    const Config config = read(in_ont(R"("exist": 65535)"));
    EXPECT_EQ(static_cast<int>(config->pon.ont[70].exist), 65535);
    EXPECT_EQ(shown(config, "exist"), "65535");
    EXPECT_EQ(error_of(in_ont(R"("exist": 65536)")),
              "cfg.json: pon.ont.70.exist: expected true, false or a whole number from 0 to 65535, found 65536");
    EXPECT_EQ(error_of(in_ont(R"("exist": "yes")")),
              "cfg.json: pon.ont.70.exist: expected true, false or a whole number from 0 to 65535, found \"yes\"");
    const Config narrow = read(R"({"pon": {"network": {"terminal_vlan": {"0": {"exists": 255}}}}})");
    EXPECT_EQ(static_cast<int>(narrow->pon.network.terminal_vlan[0].exists), 255);
}

TEST(Json, NumbersHaveTheRangeOfTheirField)
{
    EXPECT_EQ(static_cast<int>(read(in_ont(R"("ems_profile_index": -32768)"))->pon.ont[70].ems_profile_index), -32768);
    EXPECT_EQ(static_cast<int>(read(in_ont(R"("template_ont": -1)"))->pon.ont[70].template_ont), -1);
    EXPECT_EQ(static_cast<unsigned>(read(in_ont(R"("ber_interval": 4294967295)"))->pon.ont[70].ber_interval),
              4294967295U);
    const std::string where = "cfg.json: pon.ont.70.ems_profile_index: expected a whole number from -32768 to 32767, ";
    EXPECT_EQ(error_of(in_ont(R"("ems_profile_index": 32768)")), where + "found 32768");
    EXPECT_EQ(error_of(in_ont(R"("ems_profile_index": -32769)")), where + "found -32769");
    EXPECT_EQ(error_of(in_ont(R"("ems_profile_index": 1.5)")), where + "found 1.5");
    EXPECT_EQ(error_of(in_ont(R"("ems_profile_index": 1e2)")), where + "found 1e2");
    EXPECT_EQ(error_of(in_ont(R"("ems_profile_index": 18446744073709551615)")), where + "found 18446744073709551615");
    EXPECT_EQ(error_of(in_ont(R"("ems_profile_index": 99999999999999999999)")), where + "found 99999999999999999999");
    EXPECT_EQ(error_of(in_ont(R"("ems_profile_index": "7")")), where + "found \"7\"");
    EXPECT_EQ(error_of(in_ont(R"("ems_profile_index": null)")), where + "found null");
    EXPECT_EQ(error_of(in_ont(R"("ems_profile_index": true)")), where + "found true");
    EXPECT_EQ(error_of(in_ont(R"("ems_profile_index": [])")), where + "found a list");
    EXPECT_EQ(error_of(in_ont(R"("ems_profile_index": {})")), where + "found an object");
    EXPECT_EQ(error_of(in_ont(R"("voice": {"voice_port": {"1": {"physical_gain_tx": 128}}})")),
              "cfg.json: pon.ont.70.voice.voice_port.1.physical_gain_tx: expected a whole number from -128 to 127, "
              "found 128");
}

TEST(Json, EnumerationsAreWordsOrNumbers)
{
    const Config config = read(in_ont(R"("rf_port_state": "no-change", "custom_model": 2)"));
    EXPECT_EQ(static_cast<int>(config->pon.ont[70].rf_port_state), 2);
    EXPECT_EQ(shown(config, "rf_port_state"), "\"no-change\"");
    EXPECT_EQ(shown(config, "custom_model"), "\"routed\"");
    EXPECT_EQ(shown(read(in_ont(R"("rf_port_state": 3)")), "rf_port_state"), "3");
    // The registry looks at 16 bits alone, so the number behind this word is another.
    const Config wide = read(R"({"system": {"services": {"snmp": {"serialNum": 65537}}}})");
    EXPECT_EQ(static_cast<unsigned>(wide->system.services.snmp.serialNum), 65537U);
    EXPECT_EQ(shown(wide, "serialNum"), "65537");
    EXPECT_EQ(
        error_of(in_ont(R"("rf_port_state": "no_change")")),
        "cfg.json: pon.ont.70.rf_port_state: expected one of \"disabled\", \"enabled\", \"no-change\", or a whole "
        "number from 0 to 65535, found \"no_change\" (did you mean \"no-change\"?)");
    EXPECT_EQ(
        error_of(in_ont(R"("rf_port_state": "unknown")")),
        "cfg.json: pon.ont.70.rf_port_state: expected one of \"disabled\", \"enabled\", \"no-change\", or a whole "
        "number from 0 to 65535, found \"unknown\"");
    const Config narrow = read(R"({"pon": {"olt": {"channel": {"0": {"unknown_multicast_forward_gem_port": 255}}}}})");
    EXPECT_EQ(shown(narrow, "unknown_multicast_forward_gem_port"), "255");
}

TEST(Json, HexadecimalNumbers)
{
    const Config config = read(R"({"pon": {"network": {"svlan_ethertype": "0x88A8", "cvlan_ethertype": 33024},
                         "profiles_olt": {"pppoe_ia": {"0": {"vendor_id": "0xabcdef"}}}}})");
    EXPECT_EQ(static_cast<int>(config->pon.network.svlan_ethertype), 0x88A8);
    EXPECT_EQ(static_cast<unsigned>(config->pon.profiles_olt.pppoe_ia[0].vendor_id), 0xABCDEFU);
    EXPECT_EQ(shown(config, "svlan_ethertype"), "\"0x88A8\"");
    EXPECT_EQ(shown(config, "cvlan_ethertype"), "\"0x8100\"");
    EXPECT_EQ(shown(config, "vendor_id"), "\"0xABCDEF\"");
    EXPECT_EQ(shown(read(R"({"pon": {"network": {"svlan_ethertype": 1}}})"), "svlan_ethertype"), "\"0x0001\"");
    for (const char* const value : {"0x10000", "88A8", "0x", "0x88G8", "-0x1", "0xFFFFFFFFFFFFFFFFFFFF"}) {
        EXPECT_EQ(error_of(R"({"pon": {"network": {"svlan_ethertype": ")" + std::string(value) + "\"}}}"),
                  "cfg.json: pon.network.svlan_ethertype: expected a hexadecimal number such as \"0x88A8\", or a whole "
                  "number from 0 to 65535, found \"" +
                      std::string(value) + "\"");
    }
}

TEST(Json, Ipv4Addresses)
{
    const Config config = read(in_network(R"("ipaddr": "10.255.0.1")"));
    EXPECT_EQ(std::memcmp(config->system.network.ipaddr, "\x0A\xFF\x00\x01", 4), 0);
    EXPECT_EQ(shown(config, "ipaddr"), "\"10.255.0.1\"");
    for (const char* const value : {"10.0.0", "10.0.0.256", "10.0.0.1.2", "10.0.0.1 ", "", "a.b.c.d"}) {
        EXPECT_EQ(error_of(in_network(R"("ipaddr": ")" + std::string(value) + "\"")),
                  "cfg.json: system.network.ipaddr: expected an IPv4 address such as \"10.0.0.1\", found \"" +
                      std::string(value) + "\"");
    }
    EXPECT_EQ(
        error_of(in_network(R"("ipaddr": "10.0.0.1\u0000")")),
        R"(cfg.json: system.network.ipaddr: expected an IPv4 address such as "10.0.0.1", found "10.0.0.1\u0000")");
}

TEST(Json, Ipv6Addresses)
{
    const std::string start = R"({"pon": {"profiles_olt": {"dhcpv6_ra": {"1": {"trusted_primary": )";
    const Config config = read(start + R"("2001:DB8::1"}}}}})");
    const unsigned char expected[] = {0x20, 0x01, 0x0D, 0xB8, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 1};
    EXPECT_EQ(std::memcmp(config->pon.profiles_olt.dhcpv6_ra[1].trusted_primary, expected, 16), 0);
    EXPECT_EQ(shown(config, "trusted_primary"), "\"2001:db8::1\"");
    EXPECT_EQ(error_of(start + R"("2001:db8::1::2"}}}}})"),
              "cfg.json: pon.profiles_olt.dhcpv6_ra.1.trusted_primary: expected an IPv6 address such as "
              "\"2001:db8::1\", found \"2001:db8::1::2\"");
}

TEST(Json, MacAddresses)
{
    const Config config = read(in_source_guard(R"("bind": {"0": {"mac": "aa:bb:0C:DD:EE:FF"}})"));
    EXPECT_EQ(std::memcmp(config->system.services.source_guard.bind[0].mac, "\xAA\xBB\x0C\xDD\xEE\xFF", 6), 0);
    EXPECT_EQ(shown(config, "mac"), "\"AA:BB:0C:DD:EE:FF\"}");
    for (const char* const value : {"AA:BB:CC:DD:EE", "AABBCCDDEEFF", "AA:BB:CC:DD:EE:FG", "AA-BB-CC-DD-EE-FF"}) {
        EXPECT_EQ(error_of(in_source_guard(R"("bind": {"1023": {"mac": ")" + std::string(value) + "\"}}")),
                  "cfg.json: system.services.source_guard.bind.1023.mac: expected a MAC address such as "
                  "\"AA:BB:CC:DD:EE:FF\", found \"" +
                      std::string(value) + "\"");
    }
}

TEST(Json, SerialNumbersAndEngineIds)
{
    const Config config = read(in_ont(R"("serial": "414243440a0B0c0D")"));
    EXPECT_EQ(std::memcmp(config->pon.ont[70].serial, "ABCD\x0A\x0B\x0C\x0D", 8), 0);
    EXPECT_EQ(shown(config, "serial"), "\"ABCD0A0B0C0D\"");
    EXPECT_EQ(shown(read(in_ont(R"("serial": "616263640A0B0C0D")")), "serial"), "\"616263640A0B0C0D\"")
        << "small letters";
    EXPECT_EQ(shown(read(in_ont(R"("serial": "3039415A01020304")")), "serial"), "\"09AZ01020304\"") << "digits";
    for (const char* const value : {"abcd01020304", "ABCD0102030", "ABCD0102030G", "ABC.01020304", "41424344"}) {
        EXPECT_EQ(error_of(in_ont(R"("serial": ")" + std::string(value) + "\"")),
                  "cfg.json: pon.ont.70.serial: expected a serial number such as \"ABCD01020304\", or 16 hexadecimal "
                  "digits, found \"" +
                      std::string(value) + "\"");
    }
    const Config engine = read(R"({"system": {"services": {"snmp": {"engineID": "80001F8803AABBCCDDEEFF0011"}}}})");
    EXPECT_EQ(engine->system.services.snmp.engineID[12], 0x11);
    EXPECT_EQ(shown(engine, "engineID"), "\"80001f8803aabbccddeeff0011\"");
    EXPECT_EQ(error_of(R"({"system": {"services": {"snmp": {"engineID": "80"}}}})"),
              "cfg.json: system.services.snmp.engineID: expected 26 hexadecimal digits, found \"80\"");
}

// ----------------------------------------------------------------------------------------------------------- texts

TEST(Json, Texts)
{
    const Config config = read(in_network(R"("hostname": "say \"hi\"\\\u0001\u001f\n\u00e9\ud83d\ude00")"));
    EXPECT_STREQ(config->system.network.hostname, "say \"hi\"\\\x01\x1F\n\xC3\xA9\xF0\x9F\x98\x80");
    EXPECT_EQ(shown(config, "hostname"), "\"say \\\"hi\\\"\\\\\\u0001\\u001f\\n\xC3\xA9\xF0\x9F\x98\x80\"");
    EXPECT_TRUE(is_kept(config));
    EXPECT_EQ(error_of(in_network(R"("hostname": 12)")),
              "cfg.json: system.network.hostname: expected a text, found 12");
    EXPECT_EQ(error_of(in_network(R"("hostname": ["a"])")),
              "cfg.json: system.network.hostname: expected a text, found a list");
    EXPECT_EQ(error_of(in_network(R"("hostname": "a\u0000b")")),
              "cfg.json: system.network.hostname: \"a\\u0000b\" holds the character U+0000, which ends a text");
}

TEST(Json, TextsFitTheirArray)
{
    const std::string start = R"({"pon": {"network": {"terminal_vlan": {"0": {"name": )";
    EXPECT_STREQ(read(start + R"("123456789012345"}}}}})")->pon.network.terminal_vlan[0].name, "123456789012345");
    EXPECT_EQ(error_of(start + R"("1234567890123456"}}}}})"),
              "cfg.json: pon.network.terminal_vlan.0.name: \"1234567890123456\" has 16 bytes, but at most 15 fit");
    EXPECT_EQ(error_of(in_network(R"("hostname": ")" + std::string(300, 'h') + "\"")),
              "cfg.json: system.network.hostname: \"" + std::string(60, 'h') +
                  "\"... has 300 bytes, but at most 255 fit");
}

TEST(Json, WhatIsNoTextIsShownAsBytes)
{
    const Config config = blank();
    auto& name = config->pon.network.terminal_vlan[0].name;
    const auto shown_as = [&](const std::string& bytes) {
        std::memset(name, 0, sizeof name);
        std::memcpy(name, bytes.data(), bytes.size());
        EXPECT_EQ(std::memcmp(read(shown(config)).get(), config.get(), sizeof(GCfg)), 0);
        return shown(config, "name");
    };
    EXPECT_EQ(shown_as("tv"), "\"tv\"");
    EXPECT_EQ(shown_as(std::string("tv\0junk", 7)), R"({"hex": "7476006a756e6b"})") << "behind the end";
    EXPECT_EQ(shown_as(std::string("\0v", 2)), R"({"hex": "0076"})") << "behind an empty text";
    EXPECT_EQ(shown_as("1234567890123456"), R"({"hex": "31323334353637383930313233343536"})") << "no end";
    EXPECT_EQ(shown_as("\xC3\xA9"), "\"\xC3\xA9\"");
    for (const char* const bytes :
         {"\xC3", "\xE9", "\xC0\x80", "\xED\xA0\x80", "\xF4\x90\x80\x80", "\xFF", "\x80", "\xE0\x80\x80",
          "\xF0\x80\x80\x80", "\xE2\x82", "\xF5\x80\x80\x80", "\xC3(", "\xF0\x9F\x98(", "\xE1\xC0\x80"}) {
        EXPECT_EQ(shown_as(bytes).substr(0, 8), R"({"hex": )") << "not UTF-8";
    }
}

TEST(Json, BytesOfATextAreChecked)
{
    const std::string where = "cfg.json: system.network.hostname: ";
    EXPECT_STREQ(read(in_network(R"("hostname": {"hex": "4142"})"))->system.network.hostname, "AB");
    EXPECT_EQ(error_of(in_network(R"("hostname": {"hex": "414"})")),
              where + "expected pairs of hexadecimal digits, found \"414\"");
    EXPECT_EQ(error_of(in_network(R"("hostname": {"hex": "4z"})")),
              where + "expected pairs of hexadecimal digits, found \"4z\"");
    EXPECT_EQ(error_of(in_network(R"("hostname": {"hex": 41})")),
              where + "expected pairs of hexadecimal digits, found 41");
    EXPECT_EQ(error_of(in_network(R"("hostname": {"hex": {}})")),
              where + "expected pairs of hexadecimal digits, found an object");
    EXPECT_EQ(error_of(in_network(R"("hostname": {"hex": []})")),
              where + "expected pairs of hexadecimal digits, found a list");
    EXPECT_EQ(error_of(in_network(R"("hostname": {"hex": ")" + std::string(514, '0') + "\"}")),
              where + "\"" + std::string(60, '0') + "\"... has 514 hexadecimal digits, but at most 512 fit");
    EXPECT_EQ(error_of(in_network(R"("hostname": {"hex": "41", "hex": "42"})")), where + "duplicate key \"hex\"");
    EXPECT_EQ(error_of(in_network(R"("hostname": {"bytes": "41"})")),
              where + "unknown key \"bytes\": the bytes of a text are given as \"hex\"");
    EXPECT_EQ(error_of(in_network(R"("hostname": {})")),
              where + "expected the bytes of the text as \"hex\", found nothing");
}

TEST(Json, MessagesNeverShowASecret)
{
    const std::string secret(200, 's');
    const std::string where = "cfg.json: system.user.3.password: ";
    const auto error = [](const std::string& value) {
        return error_of(R"({"system": {"user": {"3": {"password": )" + value + "}}}}");
    };
    EXPECT_EQ(error("\"" + secret + "\""), where + "a text has 200 bytes, but at most 129 fit");
    EXPECT_EQ(error("\"ss\\u0000\""), where + "a text holds the character U+0000, which ends a text");
    EXPECT_EQ(error("4711"), where + "expected a text, found a number");
    EXPECT_EQ(error("4711.5"), where + "expected a text, found a number");
    EXPECT_EQ(error("[\"sss\"]"), where + "expected a text, found a list");
    EXPECT_EQ(error("{\"hex\": \"73z\"}"), where + "expected pairs of hexadecimal digits, found a text");
    EXPECT_EQ(error("{\"hex\": \"" + std::string(262, '7') + "\"}"),
              where + "a text has 262 hexadecimal digits, but at most 260 fit");
    // The parser gives up in the middle of the text, and knows neither the field nor that it is a secret.
    EXPECT_EQ(error("\"hidden\x01\"").find("hidden"), std::string::npos);
    EXPECT_EQ(error("\"hidden\xFF\"").find("hidden"), std::string::npos);
    EXPECT_EQ(error("\"hidden").find("hidden"), std::string::npos);
    EXPECT_EQ(error("hidden").find("hidden"), std::string::npos);
    EXPECT_EQ(error("4711e9999").find("4711"), std::string::npos);
}
