#include "pon/DataToCommandsConvertor.h"

#include <climits>
#include <gtest/gtest.h>
#include <map>

namespace {

using Words = std::map<int, const char*>;

/// Every value has its word or, where it has none, `otherwise`; a vocabulary does not cut its values to 16 bits.
void expect_words(const char* (*word)(int), const Words& words, const char* otherwise)
{
    const auto expect = [&](int value) {
        const auto entry = words.find(value);
        EXPECT_STREQ(word(value), entry == words.end() ? otherwise : entry->second) << value;
    };
    for (int value = -70000; value <= 70000; ++value) {
        expect(value);
    }
    for (const auto& entry : words) {
        for (const int far : {1 << 16, 1 << 17, 1 << 24, INT_MIN}) {
            expect(entry.first + far);
        }
    }
    for (const int value : {INT_MIN, INT_MIN + 1, INT_MAX - 1, INT_MAX}) {
        expect(value);
    }
}

} // namespace

TEST(Vocabularies, AlarmTypes)
{
    expect_words(getCliAlarmType,
                 {
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
                 },
                 "");
}

TEST(Vocabularies, LogSubmodules)
{
    expect_words(getCliSubmoduleType,
                 {
                     {0, "pmchal-gpon"},
                     {1, "pmchal-ipc"},
                     {2, "pmchal-machine"},
                     {3, "pmchal-olt"},
                     {4, "pmchal-ont"},
                     {5, "pmchal-gpon-port"},
                     {6, "pmchal-scheduler"},
                     {7, "pmchal-dhcpra"},
                     {8, "pmchal-pppoeia"},
                     {9, "pmchal-rdn"},
                     {10, "snmp"},
                     {11, "alarm"},
                     {12, "dhcpd"},
                     {13, "pmchal-dhcpv6ra"},
                 },
                 "");
}

TEST(Vocabularies, LogDestinations)
{
    expect_words(getCliSubmoduleDest, {{0, "syslog"}, {1, "console"}, {2, "telnet"}}, "invalid");
}

TEST(Vocabularies, LogLevels)
{
    expect_words(getCliSubmoduleLevel,
                 {
                     {0, "emergency"},
                     {1, "alert"},
                     {2, "critical"},
                     {3, "error"},
                     {4, "warning"},
                     {5, "notice"},
                     {6, "info"},
                     {7, "debug"},
                 },
                 "none");
}

TEST(Vocabularies, UpstreamIgmpTagControl)
{
    expect_words(getOntUpstreamIgmpTagControl, {{1, "add-tag"}, {2, "replace-tag"}, {3, "replace-vid"}}, "pass");
}

TEST(Vocabularies, DownstreamMulticastTagControl)
{
    expect_words(getOntDownstreamMulticastTagControl,
                 {
                     {1, "remove-tag"},
                     {2, "add-tag"},
                     {3, "replace-tag"},
                     {4, "replace-vid"},
                     {5, "add-tag-from-subscriber-info"},
                     {6, "replace-tag-from-subscriber-info"},
                     {7, "replace-vid-from-subscriber-info"},
                 },
                 "pass");
}

TEST(Vocabularies, DbaServiceClasses)
{
    expect_words(getGDBAServiceClass,
                 {
                     {0, "data"},
                     {1, "omci"},
                     {2, "voip"},
                     {3, "cbr"},
                     {4, "periodic-allocation"},
                     {5, "type5"},
                 },
                 nullptr);
}

TEST(Vocabularies, SignalDetectSources)
{
    expect_words(getGOpticsSDSource, {{0, "laser-sd"}, {1, "bcdr-lock"}, {2, "bcdr-sd"}}, nullptr);
}

TEST(Vocabularies, OpticsResetTypes)
{
    expect_words(getGOpticsResetType, {{0, "delay-based"}, {1, "single-reset"}, {2, "double-reset"}}, nullptr);
    expect_words(getGOpticsResetTypeNormal, {{0, "start-burst-based"}, {1, "end-burst-based"}}, nullptr);
}

TEST(Vocabularies, SnmpVersions)
{
    expect_words(getGSystemSNMPversion, {{1, "v2"}, {2, "v3"}}, nullptr);
}

TEST(Vocabularies, WordsAreConstants)
{
    const char* const level = getCliSubmoduleLevel(0);
    const char* const alarm = getCliAlarmType(230);
    EXPECT_STREQ(getCliSubmoduleLevel(7), "debug");
    EXPECT_STREQ(getCliAlarmType(1), "load-average");
    EXPECT_STREQ(level, "emergency") << "the next call does not reuse it";
    EXPECT_STREQ(alarm, "ont-storm-detected");
}
