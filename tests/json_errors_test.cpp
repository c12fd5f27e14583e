#include "json_helpers.h"

#include <cstring>
#include <gtest/gtest.h>
#include <string>

using namespace pondiff::json_tests;

namespace {

std::string repeated(const std::string& text, std::size_t times)
{
    std::string result;
    for (std::size_t i = 0; i < times; ++i) {
        result += text;
    }
    return result;
}

} // namespace

// ------------------------------------------------------------------------------------------------------------ keys

TEST(JsonKeys, IndexesAreDecimalNumbersWithinTheArray)
{
    EXPECT_EQ(static_cast<int>(read(R"({"pon": {"ont": {"531": {"exist": true}}}})")->pon.ont[531].exist), 1);
    EXPECT_EQ(static_cast<int>(read(R"({"pon": {"ont": {"0": {"exist": true}}}})")->pon.ont[0].exist), 1);
    EXPECT_EQ(error_of(R"({"pon": {"ont": {"600": {}}}})"),
              "cfg.json: pon.ont.600: index 600, but there are 532 ONTs (0 to 531)");
    EXPECT_EQ(error_of(R"({"pon": {"ont": {"1": {}, "532": {}}}})"),
              "cfg.json: pon.ont.532: index 532, but there are 532 ONTs (0 to 531)");
    EXPECT_EQ(error_of(R"({"pon": {"ont": {")" + std::string(50, '9') + R"(": {}}}})"),
              "cfg.json: pon.ont.99999999999999999999: index 99999999999999999999, but there are 532 ONTs (0 to 531)");
    for (const char* const key : {"070", "+7", "-1", "", " 7", "7 ", "0x7", "00", "seven", "7.0"}) {
        EXPECT_EQ(error_of(R"({"pon": {"ont": {")" + std::string(key) + R"(": {}}}})"),
                  "cfg.json: pon.ont: \"" + std::string(key) + "\" is no index: expected a number from 0 to 531");
    }
    EXPECT_EQ(error_of(R"({"system": {"user": {"16": {}}}})"),
              "cfg.json: system.user.16: index 16, but there are 16 users (0 to 15)");
    EXPECT_EQ(error_of(in_ont(R"("port": {"4": {}})")),
              "cfg.json: pon.ont.70.port.4: index 4, but there are 4 UNI ports (0 to 3)");
}

TEST(JsonKeys, UnknownFieldsGetASuggestion)
{
    EXPECT_EQ(error_of(in_ont(R"("serail": "ABCD01020304")")),
              "cfg.json: pon.ont.70: unknown field \"serail\" (did you mean \"serial\"?)");
    EXPECT_EQ(error_of(R"({"sytem": {}})"), "cfg.json: unknown field \"sytem\" (did you mean \"system\"?)");
    EXPECT_EQ(error_of(in_ont(R"("colour": 1)")), "cfg.json: pon.ont.70: unknown field \"colour\"");
    EXPECT_EQ(error_of(in_ont("\"" + std::string(1000, 'x') + "\": 1")),
              "cfg.json: pon.ont.70: unknown field \"" + std::string(60, 'x') + "\"...");
    EXPECT_EQ(error_of(in_ont("\"" + repeated("\xC3\xA9", 40) + "\": 1")),
              "cfg.json: pon.ont.70: unknown field \"" + repeated("\xC3\xA9", 30) + "\"...");
    EXPECT_EQ(error_of(in_ont("\"" + repeated("\xE2\x82\xAC", 19) + "e" + repeated("\xE2\x82\xAC", 9) + "\": 1")),
              "cfg.json: pon.ont.70: unknown field \"" + repeated("\xE2\x82\xAC", 19) + "e\"...")
        << "not cut within a character";
    EXPECT_EQ(error_of(in_ont(R"("": 1)")), "cfg.json: pon.ont.70: unknown field \"\"");
    EXPECT_EQ(error_of(in_ont(R"("a\u0000\u001b": 1)")), "cfg.json: pon.ont.70: unknown field \"a\\u0000\\u001b\"");
}

TEST(JsonKeys, DuplicatesAreErrors)
{
    EXPECT_EQ(error_of(in_ont(R"("exist": true, "serial": "ABCD01020304", "exist": true)")),
              "cfg.json: pon.ont.70: duplicate key \"exist\"");
    EXPECT_EQ(error_of(R"({"pon": {"ont": {"70": {}, "71": {}, "70": {}}}})"),
              "cfg.json: pon.ont: duplicate key \"70\"");
    EXPECT_EQ(error_of(R"({"pon": {}, "pon": {}})"), "cfg.json: duplicate key \"pon\"");
    EXPECT_EQ(error_of(in_ont(R"("profile_ont_alloc": {"3": 1, "3": 1})")),
              "cfg.json: pon.ont.70.profile_ont_alloc: duplicate key \"3\"");
}

TEST(JsonKeys, FieldsMayComeInAnyOrder)
{
    const Config config = read(in_ont(R"("template_ont": 3, "revision": 1, "serial": "ABCD01020304", "exist": true)"));
    EXPECT_EQ(static_cast<int>(config->pon.ont[70].template_ont), 3);
    EXPECT_EQ(static_cast<unsigned>(config->pon.ont[70].revision), 1U);
    EXPECT_EQ(static_cast<int>(config->pon.ont[70].exist), 1);
}

// ------------------------------------------------------------------------------------------------------- structure

TEST(JsonStructure, RecordsAndArraysOfRecordsAreObjects)
{
    EXPECT_EQ(error_of("[]"), "cfg.json: expected an object with the fields of the configuration, found a list");
    EXPECT_EQ(error_of("17"), "cfg.json: expected an object with the fields of the configuration, found 17");
    EXPECT_EQ(error_of("\"x\""), "cfg.json: expected an object with the fields of the configuration, found \"x\"");
    EXPECT_EQ(error_of("null"), "cfg.json: expected an object with the fields of the configuration, found null");
    EXPECT_EQ(error_of(R"({"system": 5})"), "cfg.json: system: expected an object, found 5");
    EXPECT_EQ(error_of(R"({"system": []})"), "cfg.json: system: expected an object, found a list");
    EXPECT_EQ(error_of(R"({"pon": {"ont": [{"exist": true}]}})"),
              "cfg.json: pon.ont: expected an object with the ONTs by their indexes, found a list");
    EXPECT_EQ(error_of(R"({"pon": {"ont": true}})"),
              "cfg.json: pon.ont: expected an object with the ONTs by their indexes, found true");
    EXPECT_EQ(error_of(R"({"pon": {"ont": {"7": null}}})"), "cfg.json: pon.ont.7: expected an object, found null");
    EXPECT_EQ(error_of(R"({"pon": {"ont": {"7": []}}})"), "cfg.json: pon.ont.7: expected an object, found a list");
    EXPECT_EQ(error_of(in_network(R"("ipaddr": {"0": 1})")),
              "cfg.json: system.network.ipaddr: expected an IPv4 address such as \"10.0.0.1\", found an object");
}

TEST(JsonArrays, NumbersAreListsOrIndexed)
{
    const Config list = read(in_ont(R"("profile_ont_alloc": [5, -1, 7])"));
    EXPECT_EQ(static_cast<int>(list->pon.ont[70].profile_ont_alloc[0]), 5);
    EXPECT_EQ(static_cast<int>(list->pon.ont[70].profile_ont_alloc[1]), -1);
    EXPECT_EQ(static_cast<int>(list->pon.ont[70].profile_ont_alloc[2]), 7);
    EXPECT_EQ(static_cast<int>(list->pon.ont[70].profile_ont_alloc[3]), 0);
    EXPECT_EQ(shown(list, "profile_ont_alloc"), "[5, -1, 7]");
    const Config indexed = read(in_ont(R"("profile_ont_alloc": {"15": 2, "3": 1})"));
    EXPECT_EQ(static_cast<int>(indexed->pon.ont[70].profile_ont_alloc[3]), 1);
    EXPECT_EQ(static_cast<int>(indexed->pon.ont[70].profile_ont_alloc[15]), 2);
    EXPECT_EQ(shown(indexed, "profile_ont_alloc"), R"({"3": 1, "15": 2})");
    EXPECT_EQ(shown(indexed, "profile_ont_alloc", true), "[0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0]")
        << "the first ONT's";
    EXPECT_EQ(shown(read(in_ont(R"("profile_ont_alloc": [0, 0, 4])")), "profile_ont_alloc"), R"({"2": 4})");
    EXPECT_EQ(shown(read(in_ont(R"("profile_ont_alloc": [0, 4])")), "profile_ont_alloc"), "[0, 4]");
    EXPECT_EQ(shown(read(in_ont(R"("profile_ont_alloc": [1, 1, 0, 0, 0, 0, 0, 1])")), "profile_ont_alloc"),
              "[1, 1, 0, 0, 0, 0, 0, 1]")
        << "as long as the object";
    EXPECT_EQ(shown(read(in_ont(R"("profile_ont_alloc": [])")), "profile_ont_alloc"), "absent");
    EXPECT_EQ(shown(read(R"({"pon": {"olt": {"general": {"dba_short_cycle": {"gpon_port": [true, false, 2]}}}}})"),
                    "gpon_port"),
              "[true, false, 2]");
    EXPECT_EQ(shown(read(R"({"system": {"services": {"alarm": {"cfg": {"min_temperature": [-40, -128]}}}}})"),
                    "min_temperature"),
              "[-40, -128]");
    EXPECT_EQ(shown(read(R"({"system": {"settings": {"level": {"13": {"privilege": [1, 2, 255]}}}}})"), "privilege"),
              "[1, 2, 255]");
    EXPECT_TRUE(is_kept(list));
    EXPECT_TRUE(is_kept(indexed));
}

TEST(JsonArrays, ElementsAreChecked)
{
    const std::string where = "cfg.json: pon.ont.70.profile_ont_alloc";
    EXPECT_EQ(error_of(in_ont(R"("profile_ont_alloc": [1, 2, "x"])")),
              where + ".2: expected a whole number from -32768 to 32767, found \"x\"");
    EXPECT_EQ(error_of(in_ont(R"("profile_ont_alloc": [1, [2]])")),
              where + ".1: expected a whole number from -32768 to 32767, found a list");
    EXPECT_EQ(error_of(in_ont(R"("profile_ont_alloc": [1, {}])")),
              where + ".1: expected a whole number from -32768 to 32767, found an object");
    EXPECT_EQ(error_of(in_ont(R"("profile_ont_alloc": {"7": {}})")),
              where + ".7: expected a whole number from -32768 to 32767, found an object");
    EXPECT_EQ(error_of(in_ont(R"("profile_ont_alloc": 7)")),
              where + ": expected a list of the services, or an object with them by their indexes, found 7");
    EXPECT_EQ(error_of(in_ont(R"("profile_ont_alloc": {"16": 1})")),
              where + ".16: index 16, but there are 16 services (0 to 15)");
    EXPECT_EQ(error_of(in_ont(R"("profile_ont_alloc": [0,0,0,0,0,0,0,0,0,0,0,0,0,0,0,0,0])")),
              where + ".16: index 16, but there are 16 services (0 to 15)");
    EXPECT_EQ(error_of(R"({"pon": {"olt": {"general": {"dba_short_cycle": {"gpon_port": [1,1,1,1,1,1,1,1,1]}}}}})"),
              "cfg.json: pon.olt.general.dba_short_cycle.gpon_port.8: index 8, but there are 8 GPON ports (0 to 7)");
}

TEST(JsonArrays, TunnelListsEndInMinusOne)
{
    const Config config = read(in_ont(R"("tunnel": {"1": {"uvid": [100, 200]}, "2": {"uvid": []}})"));
    const auto uvid = [&config](int service, int i) {
        return static_cast<int>(config->pon.ont[70].tunnel[service].uvid[i]);
    };
    EXPECT_EQ(uvid(1, 0), 100);
    EXPECT_EQ(uvid(1, 1), 200);
    for (int i = 2; i < 42; ++i) {
        EXPECT_EQ(uvid(1, i), -1);
    }
    for (int i = 0; i < 42; ++i) {
        EXPECT_EQ(uvid(2, i), -1);
        EXPECT_EQ(uvid(0, i), 0) << "absent";
    }
    EXPECT_NE(shown(config).find(R"("tunnel": {
          "1": {
            "uvid": [100, 200]
          },
          "2": {
            "uvid": []
          }
        })"),
              std::string::npos)
        << shown(config);
    EXPECT_TRUE(is_kept(config));
    const std::string full = "[" + repeated("7, ", 41) + "7]";
    EXPECT_EQ(shown(read(in_ont(R"("tunnel": {"0": {"uvid": )" + full + "}}")), "uvid"), full);
    const std::string zeros_behind = "[5" + repeated(", 0", 41) + "]";
    EXPECT_EQ(shown(read(in_ont(R"("tunnel": {"0": {"uvid": )" + zeros_behind + "}}")), "uvid"), zeros_behind);
    EXPECT_EQ(shown(blank(), "uvid", true), "[0" + repeated(", 0", 41) + "]");
    EXPECT_EQ(shown(read(in_ont(R"("tunnel": {"0": {"uvid": [1, -1, 2, -1]}})")), "uvid"), "[1, -1, 2]");
    EXPECT_EQ(shown(read(in_ont(R"("tunnel": {"0": {"uvid": [0]}})")), "uvid"), "[0]");
    EXPECT_EQ(error_of(in_ont(R"("tunnel": {"0": {"uvid": [)" + repeated("1, ", 42) + "1]}}")),
              "cfg.json: pon.ont.70.tunnel.0.uvid.42: index 42, but there are 42 tunnel VLANs (0 to 41)");
}

// ------------------------------------------------------------------------------------------------------- flag sets

TEST(JsonFlagSets, AreNumbersAndRanges)
{
    const Config config = read(in_source_guard(R"("vid": "100,200-210")"));
    for (int vid = 0; vid < 4095; ++vid) {
        ASSERT_EQ(static_cast<int>(config->system.services.source_guard.vid[vid].allowed),
                  vid == 100 || (vid >= 200 && vid <= 210) ? 1 : 0)
            << vid;
    }
    EXPECT_EQ(shown(config, "vid"), "\"100,200-210\"");
    EXPECT_TRUE(is_kept(config));
    for (const char* const same : {R"([100, "200-210"])", R"(["200-205", "100,206-210"])", R"("100, 200-210")",
                                   R"({"100": true, "200-210": 1})", R"({"200-210,100": "true"})"}) {
        EXPECT_EQ(
            std::memcmp(read(in_source_guard(R"("vid": )" + std::string(same))).get(), config.get(), sizeof(GCfg)), 0)
            << same;
    }
    EXPECT_EQ(shown(read(in_source_guard(R"("vid": 4094)")), "vid"), "\"4094\"");
    EXPECT_EQ(shown(read(in_source_guard(R"("vid": "0-4094")")), "vid"), "\"0-4094\"");
    EXPECT_EQ(shown(read(in_source_guard(R"("vid": [0, 1, 3])")), "vid"), "\"0-1,3\"");
    EXPECT_EQ(shown(read(in_source_guard(R"("vid": "")")), "vid"), "absent");
    EXPECT_EQ(shown(read(in_source_guard(R"("vid": [])")), "vid"), "absent");
    EXPECT_EQ(shown(read(in_source_guard(R"("vid": {})")), "vid"), "absent");
}

TEST(JsonFlagSets, OtherFlagsAreAnObject)
{
    const Config config = read(in_source_guard(R"("vid": {"100": 2, "200-210": true, "211": 65535, "7": false})"));
    EXPECT_EQ(static_cast<int>(config->system.services.source_guard.vid[100].allowed), 2);
    EXPECT_EQ(static_cast<int>(config->system.services.source_guard.vid[205].allowed), 1);
    EXPECT_EQ(shown(config), R"({
  "system": {
    "services": {
      "source_guard": {
        "vid": {
          "100": 2,
          "200-210": true,
          "211": 65535
        }
      }
    }
  }
}
)");
    EXPECT_TRUE(is_kept(config));
}

TEST(JsonFlagSets, AreChecked)
{
    const std::string where = "cfg.json: system.services.source_guard.vid";
    const std::string expected =
        where + ": expected numbers and ranges such as \"1,100-200\" of the VLANs that are set, or an object, found ";
    for (const char* const value : {R"("x")", R"("1,")", R"(",1")", R"("2-1")", R"("1-")", R"("-1")", R"("1 2")",
                                    R"("01")", R"("1--2")", R"("1-2-3")", "true", "null", "-1", "1.5"}) {
        EXPECT_EQ(error_of(in_source_guard(R"("vid": )" + std::string(value))), expected + value);
        EXPECT_EQ(error_of(in_source_guard(R"("vid": [)" + std::string(value) + "]")), expected + value);
    }
    EXPECT_EQ(error_of(in_source_guard(R"("vid": [[1]])")), expected + "a list");
    EXPECT_EQ(error_of(in_source_guard(R"("vid": [{"1": 1}])")), expected + "an object");
    EXPECT_EQ(error_of(in_source_guard(R"("vid": [""])")), expected + "\"\"");
    EXPECT_EQ(error_of(in_source_guard(R"("vid": "1,4095")")),
              where + ".4095: index 4095, but there are 4095 VLANs (0 to 4094)");
    EXPECT_EQ(error_of(in_source_guard(R"("vid": "0-99999999999999999999")")),
              where + ".99999999999999999999: index 99999999999999999999, but there are 4095 VLANs (0 to 4094)");
    EXPECT_EQ(error_of(in_source_guard(R"("vid": "100,90-110")")), where + ": 100 is given twice");
    EXPECT_EQ(error_of(in_source_guard(R"("vid": [7, 7])")), where + ": 7 is given twice");
    EXPECT_EQ(error_of(in_source_guard(R"("vid": {"7": 1, "1-9": 1})")), where + ": 7 is given twice");
    EXPECT_EQ(error_of(in_source_guard(R"("vid": {"a": 1})")),
              where + ": expected a number or a range such as \"100-200\" as key, found \"a\"");
    EXPECT_EQ(error_of(in_source_guard(R"("vid": {"": 1})")),
              where + ": expected a number or a range such as \"100-200\" as key, found \"\"");
    for (const char* const value : {"65536", "-1", "null", "\"x\""}) {
        EXPECT_EQ(error_of(in_source_guard(R"("vid": {"7": )" + std::string(value) + "}")),
                  where + ": expected true, false or a whole number from 0 to 65535, found " + value);
    }
    EXPECT_EQ(error_of(in_source_guard(R"("vid": {"7": {}})")),
              where + ": expected true, false or a whole number from 0 to 65535, found an object");
}

// ---------------------------------------------------------------------------------------------------------- syntax

/// The place of the error; the parser's description of it differs from version to version.
std::string place_of_error(const std::string& document)
{
    const std::string error = error_of(document);
    const std::size_t end = error.find(": ");
    EXPECT_GT(error.size(), end + 10) << error;
    return error.substr(0, end);
}

TEST(JsonSyntax, ErrorsTellLineAndColumn)
{
    EXPECT_EQ(place_of_error("{\n  \"system\": {\n    \"user\": }\n}"), "cfg.json:3:13");
    EXPECT_EQ(place_of_error("{\"pon\": {}"), "cfg.json:1:11");
    EXPECT_EQ(place_of_error("{\"pon\": {},}"), "cfg.json:1:12");
    EXPECT_EQ(place_of_error("{}\n{}"), "cfg.json:2:1");
    EXPECT_EQ(place_of_error(""), "cfg.json:1:1");
    EXPECT_EQ(place_of_error("{\"pon\"\n: tru}"), "cfg.json:2:6");
    EXPECT_EQ(place_of_error("{\"pon\": {}}\xFF"), "cfg.json:1:12");
    EXPECT_EQ(place_of_error("{\n// no comments\n}"), "cfg.json:2:1");
    EXPECT_EQ(error_of(in_network("\"mngmtvlan\": 1e999")), "cfg.json:1:42: number too large");
    EXPECT_EQ(error_of(std::string("{\n}\0 {}", 6)), "cfg.json:2:2: a zero byte, which no JSON document holds");
}

TEST(JsonSyntax, AByteOrderMarkIsSkipped)
{
    EXPECT_EQ(error_of("\xEF\xBB\xBF{}"), "no error");
}

TEST(JsonSyntax, NothingHostileGoesDeep)
{
    constexpr std::size_t many = 20'000'000;
    EXPECT_EQ(error_of(std::string(many, '[')),
              "cfg.json: expected an object with the fields of the configuration, found a list");
    EXPECT_EQ(error_of(repeated("{\"system\":", 1'000'000)), "cfg.json: system: unknown field \"system\"");
    EXPECT_EQ(error_of(in_network("\"revision\": " + std::string(many, '['))),
              "cfg.json: system.network.revision: expected a whole number from 0 to 4294967295, found a list");
    EXPECT_EQ(error_of(in_network("\"revision\": " + std::string(1'000'000, '9'))).substr(0, 14), "cfg.json:1:100");
    EXPECT_EQ(error_of(in_network("\"hostname\": \"" + std::string(many, 'h') + "\"")),
              "cfg.json: system.network.hostname: \"" + std::string(60, 'h') +
                  "\"... has 20000000 bytes, but at most 255 fit");
    EXPECT_EQ(error_of("{\"" + std::string(many, 'k') + "\": 1}"),
              "cfg.json: unknown field \"" + std::string(60, 'k') + "\"...");
}
