#include "pon/DataToCommandsConvertor.h"

namespace {

struct Word {
    int value;
    const char* word;
};

/// Alarm type codes are sparse; those left out have no word.
constexpr Word alarm_types[] = {
    {0, "dummy"},
    {1, "load-average"},
    {2, "ram"},
    {3, "login"},
    {4, "config-save"},
    {5, "firmware-update"},
    {6, "duplicate-mac"},
    {8, "physical-layer-flapping"},
    {11, "free-space"},
    {12, "temperature"},
    {13, "fan"},
    {14, "pon-gpon-port-no-ont"},
    {15, "ont-physical-layer"},
    {16, "olt-update"},
    {17, "ont-update"},
    {18, "gpon-port-flapping"},
    {19, "ont-flapping"},
    {20, "download"},
    {21, "ont-battery-power"},
    {22, "ont-battery-low"},
    {23, "lan-los"},
    {24, "ont-config"},
    {25, "file-delete"},
    {26, "physical-layer-errors"},
    {27, "physical-layer-block"},
    {28, "ont-low-rx-power"},
    {29, "system-reboot"},
    {30, "power-supply"},
    {100, "link"},
    {102, "logout"},
    {103, "ont-dying-gasp"},
    {104, "redundancy-switch"},
    {105, "redundancy-fail"},
    {106, "ont-rei"},
    {107, "ont-power-off"},
    {200, "config-change"},
    {208, "shutdown"},
    {209, "oms"},
    {210, "ont-state-changed"},
    {211, "ont-config-changed"},
    {212, "gpon-port-state-changed"},
    {213, "pon-alarm-gpon-port"},
    {214, "pon-alarm-onui"},
    {215, "ont-update-inprogress"},
    {216, "olt-device-reset"},
    {217, "ont-signal-degrade"},
    {218, "ont-high-rx-power"},
    {219, "olt-device-not-working"},
    {220, "gpon-port-ont-count-overflow"},
    {226, "rssi-update"},
    {228, "pse-overload-red"},
    {229, "pse-overload-yellow"},
    {230, "ont-storm-detected"},
};

constexpr const char* submodule_types[] = {
    "pmchal-gpon",
    "pmchal-ipc",
    "pmchal-machine",
    "pmchal-olt",
    "pmchal-ont",
    "pmchal-gpon-port",
    "pmchal-scheduler",
    "pmchal-dhcpra",
    "pmchal-pppoeia",
    "pmchal-rdn",
    "snmp",
    "alarm",
    "dhcpd",
    "pmchal-dhcpv6ra",
};

constexpr const char* log_destinations[] = {"syslog", "console", "telnet"};

constexpr const char* log_levels[] = {"emergency", "alert", "critical", "error", "warning", "notice", "info", "debug"};

constexpr const char* upstream_igmp_tag_controls[] = {"pass", "add-tag", "replace-tag", "replace-vid"};

constexpr const char* downstream_multicast_tag_controls[] = {
    "pass",
    "remove-tag",
    "add-tag",
    "replace-tag",
    "replace-vid",
    "add-tag-from-subscriber-info",
    "replace-tag-from-subscriber-info",
    "replace-vid-from-subscriber-info",
};

constexpr const char* dba_service_classes[] = {"data", "omci", "voip", "cbr", "periodic-allocation", "type5"};

constexpr const char* optics_sd_sources[] = {"laser-sd", "bcdr-lock", "bcdr-sd"};

constexpr const char* optics_reset_types[] = {"delay-based", "single-reset", "double-reset"};

constexpr const char* optics_reset_types_normal[] = {"start-burst-based", "end-burst-based"};

constexpr const char* snmp_versions[] = {nullptr, "v2", "v3"};

template <std::size_t N>
const char* word_or(const char* const (&words)[N], int value, const char* otherwise)
{
    return value >= 0 && static_cast<std::size_t>(value) < N ? words[value] : otherwise;
}

} // namespace

const char* getCliAlarmType(int value)
{
    for (const Word& type : alarm_types) {
        if (type.value == value) {
            return type.word;
        }
    }
    return "";
}

const char* getCliSubmoduleType(int value)
{
    return word_or(submodule_types, value, "");
}

const char* getCliSubmoduleDest(int value)
{
    return word_or(log_destinations, value, "invalid");
}

const char* getCliSubmoduleLevel(int value)
{
    return word_or(log_levels, value, "none");
}

const char* getOntUpstreamIgmpTagControl(int value)
{
    return word_or(upstream_igmp_tag_controls, value, "pass");
}

const char* getOntDownstreamMulticastTagControl(int value)
{
    return word_or(downstream_multicast_tag_controls, value, "pass");
}

const char* getGDBAServiceClass(int value)
{
    return word_or(dba_service_classes, value, nullptr);
}

const char* getGOpticsSDSource(int value)
{
    return word_or(optics_sd_sources, value, nullptr);
}

const char* getGOpticsResetType(int value)
{
    return word_or(optics_reset_types, value, nullptr);
}

const char* getGOpticsResetTypeNormal(int value)
{
    return word_or(optics_reset_types_normal, value, nullptr);
}

const char* getGSystemSNMPversion(int value)
{
    return word_or(snmp_versions, value, nullptr);
}
