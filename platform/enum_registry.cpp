#include "platform/platform.h"

#include <cstddef>
#include <cstdint>

namespace {

struct Word {
    const char* type;
    std::uint16_t value;
    const char* word;
};

constexpr char unknown[] = "unknown";

// Sorted by type, then by value, which the static assertions below check. To add an enumeration, add its words.
//
// Documents are written in these words. The library has words of its own for some of these enumerations (alarm types,
// log levels, ...; see pon/DataToCommandsConvertor/vocabularies.cpp) since a device's registry may lack them or differ
// from the CLI. A test checks that the two agree here.
constexpr Word words[] = {
    {"GAlarmSeverity_enum", 0, "indeterminate"},
    {"GAlarmSeverity_enum", 1, "critical"},
    {"GAlarmSeverity_enum", 2, "major"},
    {"GAlarmSeverity_enum", 3, "minor"},
    {"GAlarmSeverity_enum", 4, "warning"},
    {"GAlarmSeverity_enum", 5, "cleared"},

    {"GAlarmType_enum", 0, "dummy"},
    {"GAlarmType_enum", 1, "load-average"},
    {"GAlarmType_enum", 2, "ram"},
    {"GAlarmType_enum", 3, "login"},
    {"GAlarmType_enum", 4, "config-save"},
    {"GAlarmType_enum", 5, "firmware-update"},
    {"GAlarmType_enum", 6, "duplicate-mac"},
    {"GAlarmType_enum", 8, "physical-layer-flapping"},
    {"GAlarmType_enum", 11, "free-space"},
    {"GAlarmType_enum", 12, "temperature"},
    {"GAlarmType_enum", 13, "fan"},
    {"GAlarmType_enum", 14, "pon-gpon-port-no-ont"},
    {"GAlarmType_enum", 15, "ont-physical-layer"},
    {"GAlarmType_enum", 16, "olt-update"},
    {"GAlarmType_enum", 17, "ont-update"},
    {"GAlarmType_enum", 18, "gpon-port-flapping"},
    {"GAlarmType_enum", 19, "ont-flapping"},
    {"GAlarmType_enum", 20, "download"},
    {"GAlarmType_enum", 21, "ont-battery-power"},
    {"GAlarmType_enum", 22, "ont-battery-low"},
    {"GAlarmType_enum", 23, "lan-los"},
    {"GAlarmType_enum", 24, "ont-config"},
    {"GAlarmType_enum", 25, "file-delete"},
    {"GAlarmType_enum", 26, "physical-layer-errors"},
    {"GAlarmType_enum", 27, "physical-layer-block"},
    {"GAlarmType_enum", 28, "ont-low-rx-power"},
    {"GAlarmType_enum", 29, "system-reboot"},
    {"GAlarmType_enum", 30, "power-supply"},
    {"GAlarmType_enum", 100, "link"},
    {"GAlarmType_enum", 102, "logout"},
    {"GAlarmType_enum", 103, "ont-dying-gasp"},
    {"GAlarmType_enum", 104, "redundancy-switch"},
    {"GAlarmType_enum", 105, "redundancy-fail"},
    {"GAlarmType_enum", 106, "ont-rei"},
    {"GAlarmType_enum", 107, "ont-power-off"},
    {"GAlarmType_enum", 200, "config-change"},
    {"GAlarmType_enum", 208, "shutdown"},
    {"GAlarmType_enum", 209, "oms"},
    {"GAlarmType_enum", 210, "ont-state-changed"},
    {"GAlarmType_enum", 211, "ont-config-changed"},
    {"GAlarmType_enum", 212, "gpon-port-state-changed"},
    {"GAlarmType_enum", 213, "pon-alarm-gpon-port"},
    {"GAlarmType_enum", 214, "pon-alarm-onui"},
    {"GAlarmType_enum", 215, "ont-update-inprogress"},
    {"GAlarmType_enum", 216, "olt-device-reset"},
    {"GAlarmType_enum", 217, "ont-signal-degrade"},
    {"GAlarmType_enum", 218, "ont-high-rx-power"},
    {"GAlarmType_enum", 219, "olt-device-not-working"},
    {"GAlarmType_enum", 220, "gpon-port-ont-count-overflow"},
    {"GAlarmType_enum", 226, "rssi-update"},
    {"GAlarmType_enum", 228, "pse-overload-red"},
    {"GAlarmType_enum", 229, "pse-overload-yellow"},
    {"GAlarmType_enum", 230, "ont-storm-detected"},

    {"GAuthType_enum", 0, "local"},
    {"GAuthType_enum", 1, "tacacs"},
    {"GAuthType_enum", 2, "radius"},

    {"GBool_enum", 0, "false"},
    {"GBool_enum", 1, "true"},

    {"GDBAServiceClass_enum", 0, "data"},
    {"GDBAServiceClass_enum", 1, "omci"},
    {"GDBAServiceClass_enum", 2, "voip"},
    {"GDBAServiceClass_enum", 3, "cbr"},
    {"GDBAServiceClass_enum", 4, "periodic-allocation"},
    {"GDBAServiceClass_enum", 5, "type5"},

    {"GDBAStatusReport_enum", 0, "nsr"},
    {"GDBAStatusReport_enum", 1, "mode0"},
    {"GDBAStatusReport_enum", 2, "mode1"},
    {"GDBAStatusReport_enum", 3, "mode2"},

    {"GDataMode_enum", 0, "text"},
    {"GDataMode_enum", 1, "binary"},

    {"GEnabledThirdState_enum", 0, "disabled"},
    {"GEnabledThirdState_enum", 1, "enabled"},
    {"GEnabledThirdState_enum", 2, "no-change"},

    {"GEnabled_enum", 0, "disabled"},
    {"GEnabled_enum", 1, "enabled"},

    {"GOltRedundandancyMode_enum", 0, "active"},
    {"GOltRedundandancyMode_enum", 1, "standby"},

    {"GOntBridgeModel_enum", 0, "bridge"},
    {"GOntBridgeModel_enum", 1, "router"},

    {"GOntCrossConnectType_enum", 0, "general"},
    {"GOntCrossConnectType_enum", 1, "management"},
    {"GOntCrossConnectType_enum", 2, "voice"},
    {"GOntCrossConnectType_enum", 3, "multicast"},

    {"GOntCustomConfigModel_enum", 0, "none"},
    {"GOntCustomConfigModel_enum", 1, "bridged"},
    {"GOntCustomConfigModel_enum", 2, "routed"},

    {"GOntDownstreamMulticastTagControl_enum", 0, "pass"},
    {"GOntDownstreamMulticastTagControl_enum", 1, "remove-tag"},
    {"GOntDownstreamMulticastTagControl_enum", 2, "add-tag"},
    {"GOntDownstreamMulticastTagControl_enum", 3, "replace-tag"},
    {"GOntDownstreamMulticastTagControl_enum", 4, "replace-vid"},
    {"GOntDownstreamMulticastTagControl_enum", 5, "add-tag-from-subscriber-info"},
    {"GOntDownstreamMulticastTagControl_enum", 6, "replace-tag-from-subscriber-info"},
    {"GOntDownstreamMulticastTagControl_enum", 7, "replace-vid-from-subscriber-info"},

    {"GOntMulticastIpVersion_enum", 0, "ipv4"},
    {"GOntMulticastIpVersion_enum", 1, "ipv6"},
    {"GOntMulticastIpVersion_enum", 2, "dual-stack"},

    {"GOntPortUniDuplex_enum", 0, "auto"},
    {"GOntPortUniDuplex_enum", 1, "half"},
    {"GOntPortUniDuplex_enum", 2, "full"},

    {"GOntPortUniSpeed_enum", 0, "auto"},
    {"GOntPortUniSpeed_enum", 1, "10m"},
    {"GOntPortUniSpeed_enum", 2, "100m"},
    {"GOntPortUniSpeed_enum", 3, "1000m"},

    {"GOntSnDisplayFormatType_enum", 0, "pretty"},
    {"GOntSnDisplayFormatType_enum", 1, "dense"},
    {"GOntSnDisplayFormatType_enum", 2, "dashed"},

    {"GOntTagMode_enum", 0, "untagged"},
    {"GOntTagMode_enum", 1, "single-tagged"},
    {"GOntTagMode_enum", 2, "double-tagged"},
    {"GOntTagMode_enum", 3, "tunnel"},
    {"GOntTagMode_enum", 4, "selective-tunnel"},

    {"GOntUpstreamIgmpMode_enum", 0, "snooping"},
    {"GOntUpstreamIgmpMode_enum", 1, "snooping-with-proxy-reporting"},
    {"GOntUpstreamIgmpMode_enum", 2, "proxy"},

    {"GOntUpstreamIgmpTagControl_enum", 0, "pass"},
    {"GOntUpstreamIgmpTagControl_enum", 1, "add-tag"},
    {"GOntUpstreamIgmpTagControl_enum", 2, "replace-tag"},
    {"GOntUpstreamIgmpTagControl_enum", 3, "replace-vid"},

    // As the OMCI attribute numbers them; it leaves 2 out.
    {"GOntVoiceAuthValidation_enum", 0, "disabled"},
    {"GOntVoiceAuthValidation_enum", 1, "md5-digest"},
    {"GOntVoiceAuthValidation_enum", 3, "basic"},

    {"GOpticsPolarity_enum", 0, "active-low"},
    {"GOpticsPolarity_enum", 1, "active-high"},

    {"GOpticsResetTypeNormal_enum", 0, "start-burst-based"},
    {"GOpticsResetTypeNormal_enum", 1, "end-burst-based"},

    {"GOpticsResetType_enum", 0, "delay-based"},
    {"GOpticsResetType_enum", 1, "single-reset"},
    {"GOpticsResetType_enum", 2, "double-reset"},

    {"GOpticsSDSource_enum", 0, "laser-sd"},
    {"GOpticsSDSource_enum", 1, "bcdr-lock"},
    {"GOpticsSDSource_enum", 2, "bcdr-sd"},

    {"GOpticsVoltageInterface_enum", 0, "lvpecl"},
    {"GOpticsVoltageInterface_enum", 1, "lvds"},
    {"GOpticsVoltageInterface_enum", 2, "cml"},

    {"GPonGEMPortType_enum", 0, "broadcast"},
    {"GPonGEMPortType_enum", 1, "multicast"},

    {"GPonLogDest_enum", 0, "syslog"},
    {"GPonLogDest_enum", 1, "console"},
    {"GPonLogDest_enum", 2, "telnet"},

    {"GPonLogLevel_enum", 0, "emergency"},
    {"GPonLogLevel_enum", 1, "alert"},
    {"GPonLogLevel_enum", 2, "critical"},
    {"GPonLogLevel_enum", 3, "error"},
    {"GPonLogLevel_enum", 4, "warning"},
    {"GPonLogLevel_enum", 5, "notice"},
    {"GPonLogLevel_enum", 6, "info"},
    {"GPonLogLevel_enum", 7, "debug"},
    {"GPonLogLevel_enum", 8, "none"},

    {"GPonOntAuthenticationMode_enum", 0, "serial-number"},
    {"GPonOntAuthenticationMode_enum", 1, "password"},
    {"GPonOntAuthenticationMode_enum", 2, "serial-number-and-password"},

    {"GPonProfileOntVoiceDtmfMode_enum", 0, "inband"},
    {"GPonProfileOntVoiceDtmfMode_enum", 1, "rfc4733"},
    {"GPonProfileOntVoiceDtmfMode_enum", 2, "sip-info"},

    {"GPonProfileOntVoiceFaxMode_enum", 0, "passthrough"},
    {"GPonProfileOntVoiceFaxMode_enum", 1, "t38"},

    {"GPonProfileOntVoiceSipProtocol_enum", 0, "udp"},
    {"GPonProfileOntVoiceSipProtocol_enum", 1, "tcp"},
    {"GPonProfileOntVoiceSipProtocol_enum", 2, "tls"},

    {"GSnmpTrapType_enum", 0, "v1"},
    {"GSnmpTrapType_enum", 1, "v2"},
    {"GSnmpTrapType_enum", 2, "inform"},

    {"GSystemIPSourceGuardMode_enum", 0, "static"},
    {"GSystemIPSourceGuardMode_enum", 1, "dynamic"},

    {"GSystemSNMPversion_enum", 1, "v2"},
    {"GSystemSNMPversion_enum", 2, "v3"},

    {"GUsersGroup_enum", 0, "users"},
    {"GUsersGroup_enum", 1, "operators"},
    {"GUsersGroup_enum", 2, "administrators"},

    {"GVlanForwardingMode_enum", 0, "n-to-1"},
    {"GVlanForwardingMode_enum", 1, "1-to-1"},
    {"GVlanForwardingMode_enum", 2, "tls"},
};

constexpr std::size_t word_count = sizeof words / sizeof words[0];

// std::strcmp, for constant expressions too.
constexpr int compare(const char* a, const char* b)
{
    return __builtin_strcmp(a, b);
}

constexpr bool starts_enumeration(std::size_t i)
{
    return i == 0 || compare(words[i - 1].type, words[i].type) != 0;
}

constexpr bool is_sorted()
{
    for (std::size_t i = 1; i < word_count; ++i) {
        const int order = compare(words[i - 1].type, words[i].type);
        if (order > 0 || (order == 0 && words[i - 1].value >= words[i].value)) {
            return false;
        }
    }
    return true;
}

constexpr bool has_distinct_words()
{
    for (std::size_t i = 0; i < word_count; ++i) {
        if (compare(words[i].word, "") == 0 || compare(words[i].word, unknown) == 0) {
            return false;
        }
        for (std::size_t j = i + 1; j < word_count && !starts_enumeration(j); ++j) {
            if (compare(words[i].word, words[j].word) == 0) {
                return false;
            }
        }
    }
    return true;
}

static_assert(is_sorted(), "types ascend, and so do the values of each type");
static_assert(has_distinct_words(), "a word stands for one value of its type, and \"unknown\" for none");

constexpr std::size_t count_enumerations()
{
    std::size_t count = 0;
    for (std::size_t i = 0; i < word_count; ++i) {
        count += starts_enumeration(i);
    }
    return count;
}

// The words of one enumeration.
struct Enumeration {
    const Word* begin;
    const Word* end;
};

struct Enumerations {
    static constexpr std::size_t size = count_enumerations();
    Enumeration at[size];
};

constexpr Enumerations find_enumerations()
{
    Enumerations result{};
    std::size_t count = 0;
    for (std::size_t i = 0; i < word_count; ++i) {
        if (starts_enumeration(i)) {
            result.at[count++].begin = &words[i];
        }
        result.at[count - 1].end = &words[i] + 1;
    }
    return result;
}

constexpr Enumerations enumerations = find_enumerations();

// The element for which `order` is 0, or null. `order` is negative for the elements before it, positive for those after
// it.
template <typename Element, typename Order>
const Element* find(const Element* begin, const Element* end, Order order)
{
    while (begin != end) {
        const Element* const middle = begin + (end - begin) / 2;
        const int side = order(*middle);
        if (side == 0) {
            return middle;
        }
        if (side < 0) {
            begin = middle + 1;
        } else {
            end = middle;
        }
    }
    return nullptr;
}

} // namespace

const char* gpon_enum_find_name_by_type(const char* type, int value)
{
    if (type == nullptr) {
        return unknown;
    }
    const Enumeration* const enumeration =
        find(enumerations.at, enumerations.at + Enumerations::size,
             [type](const Enumeration& candidate) { return compare(candidate.begin->type, type); });
    if (enumeration == nullptr) {
        return unknown;
    }
    const Word* const word = find(enumeration->begin, enumeration->end,
                                  [value](const Word& candidate) { return candidate.value - (value & 0xFFFF); });
    return word != nullptr ? word->word : unknown;
}
