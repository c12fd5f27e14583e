#include "platform/platform.h"

#include <climits>
#include <cstddef>
#include <gtest/gtest.h>
#include <set>
#include <string>
#include <vector>

namespace {

using Converter = void (*)(char* out, const unsigned char* value);

constexpr char guard_byte = '\x5A';
constexpr std::size_t guard_size = 32;

constexpr std::size_t ip_size = 16;
constexpr std::size_t mac_size = 25;
constexpr std::size_t engine_id_size = 29;
constexpr std::size_t serial_size = 24;

// The text that `convert` writes into a buffer of `size` bytes, whose neighbours on both sides must stay as they are.
// The value is a block of its own length, so that a sanitizer sees every read beyond it.
std::string text_of(Converter convert, std::size_t size, const std::vector<unsigned char>& value)
{
    const std::string guard(guard_size, guard_byte);
    std::string memory(guard_size + size + guard_size, guard_byte);
    convert(&memory[guard_size], value.data());

    EXPECT_EQ(guard, memory.substr(0, guard_size)) << "written in front of the buffer";
    EXPECT_EQ(guard, memory.substr(guard_size + size)) << "written behind the buffer";
    const std::string buffer = memory.substr(guard_size, size);
    const std::size_t length = buffer.find('\0');
    EXPECT_NE(std::string::npos, length) << "no terminator";
    return buffer.substr(0, length);
}

std::string ip(const std::vector<unsigned char>& value)
{
    return text_of(convert_ip_bintostr, ip_size, value);
}

std::string mac(const std::vector<unsigned char>& value)
{
    return text_of(convert_mac_bintostr, mac_size, value);
}

std::string engine_id(const std::vector<unsigned char>& value)
{
    return text_of(convert_snmpengineid_bintostr, engine_id_size, value);
}

std::string pretty(const std::vector<unsigned char>& value)
{
    return text_of(convert_sn_bintostr_pretty, serial_size, value);
}

std::string dense(const std::vector<unsigned char>& value)
{
    return text_of(convert_sn_bintostr_dense, serial_size, value);
}

std::string dashed(const std::vector<unsigned char>& value)
{
    return text_of(convert_sn_bintostr_dashed, serial_size, value);
}

const std::vector<unsigned char> abcd = {'A', 'B', 'C', 'D', 0x01, 0x02, 0x03, 0x04};
const std::vector<unsigned char> zeros(8, 0x00);
const std::vector<unsigned char> ones(8, 0xFF);
const std::vector<unsigned char> mixed = {0x0A, 0xB0, 0x9C, 0xD9, 0xEF, 0xFE, 0x10, 0x8F};

TEST(PlatformIp, IsDottedDecimalWithoutLeadingZeros)
{
    EXPECT_EQ("10.0.0.1", ip({10, 0, 0, 1}));
    EXPECT_EQ("1.20.255.9", ip({1, 20, 255, 9}));
    EXPECT_EQ("192.168.100.200", ip({192, 168, 100, 200}));
    EXPECT_EQ("99.100.101.109", ip({99, 100, 101, 109}));
}

TEST(PlatformIp, ShortestAndLongestText)
{
    EXPECT_EQ("0.0.0.0", ip({0, 0, 0, 0}));
    EXPECT_EQ("255.255.255.255", ip({255, 255, 255, 255}));
}

TEST(PlatformIp, EveryByteAtEveryPosition)
{
    for (int byte = 0; byte < 256; ++byte) {
        const auto value = static_cast<unsigned char>(byte);
        const std::string decimal = std::to_string(byte);
        EXPECT_EQ(decimal + ".1.2.3", ip({value, 1, 2, 3}));
        EXPECT_EQ("1." + decimal + ".2.3", ip({1, value, 2, 3}));
        EXPECT_EQ("1.2." + decimal + ".3", ip({1, 2, value, 3}));
        EXPECT_EQ("1.2.3." + decimal, ip({1, 2, 3, value}));
    }
}

TEST(PlatformIp, OnlyZerosAreWrittenBehindTheTerminator)
{
    char out[ip_size] = {};
    const unsigned char value[] = {1, 2, 3, 4};
    convert_ip_bintostr(out, value);
    EXPECT_EQ(std::string("1.2.3.4") + std::string(9, '\0'), std::string(out, sizeof out));
}

TEST(PlatformMac, IsUpperCaseWithColons)
{
    EXPECT_EQ("AA:BB:CC:DD:EE:FF", mac({0xAA, 0xBB, 0xCC, 0xDD, 0xEE, 0xFF}));
    EXPECT_EQ("01:23:45:67:89:AB", mac({0x01, 0x23, 0x45, 0x67, 0x89, 0xAB}));
}

TEST(PlatformMac, Extremes)
{
    EXPECT_EQ("00:00:00:00:00:00", mac({0, 0, 0, 0, 0, 0}));
    EXPECT_EQ("FF:FF:FF:FF:FF:FF", mac({255, 255, 255, 255, 255, 255}));
}

TEST(PlatformEngineId, IsLowerCaseHexadecimal)
{
    EXPECT_EQ("80001f8804abcdef0123456789",
              engine_id({0x80, 0x00, 0x1F, 0x88, 0x04, 0xAB, 0xCD, 0xEF, 0x01, 0x23, 0x45, 0x67, 0x89}));
}

TEST(PlatformEngineId, Extremes)
{
    EXPECT_EQ("00000000000000000000000000", engine_id(std::vector<unsigned char>(13, 0x00)));
    EXPECT_EQ("ffffffffffffffffffffffffff", engine_id(std::vector<unsigned char>(13, 0xFF)));
}

TEST(PlatformSerial, PrettyShowsTheVendorAsCharacters)
{
    EXPECT_EQ("ABCD01020304", pretty(abcd));
    EXPECT_EQ("wxYZDEADBEEF", pretty({'w', 'x', 'Y', 'Z', 0xDE, 0xAD, 0xBE, 0xEF}));
    EXPECT_EQ("1%$ 0000000A", pretty({'1', '%', '$', ' ', 0x00, 0x00, 0x00, 0x0A}));
}

TEST(PlatformSerial, PrettyShowsUnprintableVendorBytesAsDots)
{
    EXPECT_EQ("....00000000", pretty(zeros));
    EXPECT_EQ("....FFFFFFFF", pretty(ones));
    EXPECT_EQ(". ~.20202020", pretty({0x1F, 0x20, 0x7E, 0x7F, 0x20, 0x20, 0x20, 0x20}));
    EXPECT_EQ("A..D80818283", pretty({'A', 0x80, 0x0A, 'D', 0x80, 0x81, 0x82, 0x83}));
}

TEST(PlatformSerial, DenseIsUpperCaseHexadecimal)
{
    EXPECT_EQ("4142434401020304", dense(abcd));
    EXPECT_EQ("0AB09CD9EFFE108F", dense(mixed));
    EXPECT_EQ("0000000000000000", dense(zeros));
    EXPECT_EQ("FFFFFFFFFFFFFFFF", dense(ones));
}

TEST(PlatformSerial, DashedParts)
{
    EXPECT_EQ("41424344-01020304", dashed(abcd));
    EXPECT_EQ("0AB09CD9-EFFE108F", dashed(mixed));
    EXPECT_EQ("00000000-00000000", dashed(zeros));
    EXPECT_EQ("FFFFFFFF-FFFFFFFF", dashed(ones));
}

TEST(PlatformSerial, ALayoutOverwritesALongerOne)
{
    char out[serial_size] = {};
    convert_sn_bintostr_dashed(out, abcd.data());
    convert_sn_bintostr_pretty(out, abcd.data());
    EXPECT_STREQ("ABCD01020304", out);
    convert_sn_bintostr_dense(out, abcd.data());
    EXPECT_STREQ("4142434401020304", out);
}

struct Vocabulary {
    const char* type;
    const char* words;
};

// Users read and write the words in files and on command lines, so each is checked.
const Vocabulary vocabularies[] = {
    {"GAlarmSeverity_enum", "0=indeterminate 1=critical 2=major 3=minor 4=warning 5=cleared"},
    {"GAlarmType_enum",
     "0=dummy 1=load-average 2=ram 3=login 4=config-save 5=firmware-update 6=duplicate-mac "
     "8=physical-layer-flapping 11=free-space 12=temperature 13=fan 14=pon-gpon-port-no-ont "
     "15=ont-physical-layer 16=olt-update 17=ont-update 18=gpon-port-flapping 19=ont-flapping 20=download "
     "21=ont-battery-power 22=ont-battery-low 23=lan-los 24=ont-config 25=file-delete "
     "26=physical-layer-errors 27=physical-layer-block 28=ont-low-rx-power 29=system-reboot 30=power-supply "
     "100=link 102=logout 103=ont-dying-gasp 104=redundancy-switch 105=redundancy-fail 106=ont-rei "
     "107=ont-power-off 200=config-change 208=shutdown 209=oms 210=ont-state-changed 211=ont-config-changed "
     "212=gpon-port-state-changed 213=pon-alarm-gpon-port 214=pon-alarm-onui 215=ont-update-inprogress "
     "216=olt-device-reset 217=ont-signal-degrade 218=ont-high-rx-power 219=olt-device-not-working "
     "220=gpon-port-ont-count-overflow 226=rssi-update 228=pse-overload-red 229=pse-overload-yellow "
     "230=ont-storm-detected"},
    {"GAuthType_enum", "0=local 1=tacacs 2=radius"},
    {"GBool_enum", "0=false 1=true"},
    {"GDBAServiceClass_enum", "0=data 1=omci 2=voip 3=cbr 4=periodic-allocation 5=type5"},
    {"GDBAStatusReport_enum", "0=nsr 1=mode0 2=mode1 3=mode2"},
    {"GDataMode_enum", "0=text 1=binary"},
    {"GEnabledThirdState_enum", "0=disabled 1=enabled 2=no-change"},
    {"GEnabled_enum", "0=disabled 1=enabled"},
    {"GOltRedundandancyMode_enum", "0=active 1=standby"},
    {"GOntBridgeModel_enum", "0=bridge 1=router"},
    {"GOntCrossConnectType_enum", "0=general 1=management 2=voice 3=multicast"},
    {"GOntCustomConfigModel_enum", "0=none 1=bridged 2=routed"},
    {"GOntDownstreamMulticastTagControl_enum",
     "0=pass 1=remove-tag 2=add-tag 3=replace-tag 4=replace-vid 5=add-tag-from-subscriber-info "
     "6=replace-tag-from-subscriber-info 7=replace-vid-from-subscriber-info"},
    {"GOntMulticastIpVersion_enum", "0=ipv4 1=ipv6 2=dual-stack"},
    {"GOntPortUniDuplex_enum", "0=auto 1=half 2=full"},
    {"GOntPortUniSpeed_enum", "0=auto 1=10m 2=100m 3=1000m"},
    {"GOntSnDisplayFormatType_enum", "0=pretty 1=dense 2=dashed"},
    {"GOntTagMode_enum", "0=untagged 1=single-tagged 2=double-tagged 3=tunnel 4=selective-tunnel"},
    {"GOntUpstreamIgmpMode_enum", "0=snooping 1=snooping-with-proxy-reporting 2=proxy"},
    {"GOntUpstreamIgmpTagControl_enum", "0=pass 1=add-tag 2=replace-tag 3=replace-vid"},
    {"GOntVoiceAuthValidation_enum", "0=disabled 1=md5-digest 3=basic"},
    {"GOpticsPolarity_enum", "0=active-low 1=active-high"},
    {"GOpticsResetTypeNormal_enum", "0=start-burst-based 1=end-burst-based"},
    {"GOpticsResetType_enum", "0=delay-based 1=single-reset 2=double-reset"},
    {"GOpticsSDSource_enum", "0=laser-sd 1=bcdr-lock 2=bcdr-sd"},
    {"GOpticsVoltageInterface_enum", "0=lvpecl 1=lvds 2=cml"},
    {"GPonGEMPortType_enum", "0=broadcast 1=multicast"},
    {"GPonLogDest_enum", "0=syslog 1=console 2=telnet"},
    {"GPonLogLevel_enum", "0=emergency 1=alert 2=critical 3=error 4=warning 5=notice 6=info 7=debug 8=none"},
    {"GPonOntAuthenticationMode_enum", "0=serial-number 1=password 2=serial-number-and-password"},
    {"GPonProfileOntVoiceDtmfMode_enum", "0=inband 1=rfc4733 2=sip-info"},
    {"GPonProfileOntVoiceFaxMode_enum", "0=passthrough 1=t38"},
    {"GPonProfileOntVoiceSipProtocol_enum", "0=udp 1=tcp 2=tls"},
    {"GSnmpTrapType_enum", "0=v1 1=v2 2=inform"},
    {"GSystemIPSourceGuardMode_enum", "0=static 1=dynamic"},
    {"GSystemSNMPversion_enum", "1=v2 2=v3"},
    {"GUsersGroup_enum", "0=users 1=operators 2=administrators"},
    {"GVlanForwardingMode_enum", "0=n-to-1 1=1-to-1 2=tls"},
};

// Every value of the enumeration that has a word.
std::map<int, std::string> words_of(const char* type)
{
    std::map<int, std::string> words;
    for (int value = 0; value <= 0xFFFF; ++value) {
        const std::string word = gpon_enum_find_name_by_type(type, value);
        if (word != "unknown") {
            words[value] = word;
        }
    }
    return words;
}

TEST(PlatformEnum, WordsOfEveryEnumeration)
{
    for (const Vocabulary& vocabulary : vocabularies) {
        std::string words;
        for (const auto& [value, word] : words_of(vocabulary.type)) {
            words += (words.empty() ? "" : " ") + std::to_string(value) + "=" + word;
        }
        EXPECT_EQ(vocabulary.words, words) << vocabulary.type;
    }
}

TEST(PlatformEnum, WordsAreUniqueWithinTheirEnumeration)
{
    for (const Vocabulary& vocabulary : vocabularies) {
        std::set<std::string> seen;
        for (const auto& [value, word] : words_of(vocabulary.type)) {
            EXPECT_TRUE(seen.insert(word).second) << vocabulary.type << ' ' << value << ' ' << word;
        }
        EXPECT_LE(2U, seen.size()) << vocabulary.type;
    }
}

// So that a word is one token on a command line and is never taken for the value itself.
TEST(PlatformEnum, WordsAreLowerCaseAndNotNumbers)
{
    for (const Vocabulary& vocabulary : vocabularies) {
        const std::map<int, std::string> words = words_of(vocabulary.type);
        EXPECT_FALSE(words.empty()) << vocabulary.type;
        for (const auto& [value, word] : words) {
            EXPECT_EQ(std::string::npos, word.find_first_not_of("abcdefghijklmnopqrstuvwxyz0123456789-"))
                << vocabulary.type << ' ' << value << ' ' << word;
            EXPECT_NE(std::string::npos, word.find_first_of("abcdefghijklmnopqrstuvwxyz"))
                << vocabulary.type << ' ' << value << ' ' << word;
        }
    }
}

TEST(PlatformEnum, OnlyTheLow16BitsCount)
{
    EXPECT_STREQ("true", gpon_enum_find_name_by_type("GBool_enum", 0x10001));
    EXPECT_STREQ("false", gpon_enum_find_name_by_type("GBool_enum", 0x7FFF0000));
    EXPECT_STREQ("false", gpon_enum_find_name_by_type("GBool_enum", INT_MIN));
    EXPECT_STREQ("true", gpon_enum_find_name_by_type("GBool_enum", -65535));
    EXPECT_STREQ("ont-storm-detected", gpon_enum_find_name_by_type("GAlarmType_enum", 0x500E6));
}

TEST(PlatformEnum, AnUnknownValueIsUnknown)
{
    EXPECT_STREQ("unknown", gpon_enum_find_name_by_type("GBool_enum", 2));
    EXPECT_STREQ("unknown", gpon_enum_find_name_by_type("GBool_enum", -1));
    EXPECT_STREQ("unknown", gpon_enum_find_name_by_type("GBool_enum", INT_MAX));
    EXPECT_STREQ("unknown", gpon_enum_find_name_by_type("GSystemSNMPversion_enum", 0));
    EXPECT_STREQ("unknown", gpon_enum_find_name_by_type("GAlarmType_enum", 7));
    EXPECT_STREQ("unknown", gpon_enum_find_name_by_type("GOntVoiceAuthValidation_enum", 2));
}

TEST(PlatformEnum, AnUnknownTypeIsUnknown)
{
    const char* const types[] = {"",           "G",           "GBool",
                                 "GBool_t",    "GBool_enu",   "GBool_enumx",
                                 "gbool_enum", " GBool_enum", "GDatapathConfigModel_enum",
                                 "AAAA",       "zzzz",        "\xFF\xFE"};
    for (const char* type : types) {
        EXPECT_STREQ("unknown", gpon_enum_find_name_by_type(type, 0)) << type;
        EXPECT_STREQ("unknown", gpon_enum_find_name_by_type(type, 1)) << type;
    }
}

TEST(PlatformEnum, ANullTypeIsUnknown)
{
    EXPECT_STREQ("unknown", gpon_enum_find_name_by_type(nullptr, 0));
    EXPECT_STREQ("unknown", gpon_enum_find_name_by_type(nullptr, 1));
}

TEST(PlatformEnum, AWordStaysWhereItIs)
{
    const char* const word = gpon_enum_find_name_by_type("GAlarmSeverity_enum", 1);
    EXPECT_STREQ("warning", gpon_enum_find_name_by_type("GAlarmSeverity_enum", 4));
    EXPECT_STREQ("critical", word);
    EXPECT_EQ(word, gpon_enum_find_name_by_type("GAlarmSeverity_enum", 1));
}

} // namespace
