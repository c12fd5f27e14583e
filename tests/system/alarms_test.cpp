#include "tests/support/diff.h"

namespace {

constexpr u32 ont_storm_detected = 230;

// ------------------------------------------------------------------------------------------------------ alarm types

TEST(AlarmType, EveryFieldInOrder)
{
    Session session;
    session.cfg->system.services.alarm.type[45].type = ont_storm_detected;
    session.open();
    Diff alarm{getdiff_GSystemAlarmTypeCfg};
    alarm.key[0] = 45;
    alarm.after.severity = 2;
    alarm.after.send_on_in = 1;
    alarm.after.send_on_out = 1;
    alarm.after.ttl = 2147483647;
    EXPECT_EQ(alarm.elements(), behind("configure terminal", "alarm ont-storm-detected severity \"major\"\n"
                                                             "alarm ont-storm-detected in true\n"
                                                             "alarm ont-storm-detected out true\n"
                                                             "alarm ont-storm-detected ttl \"2147483647\"\n"));
}

TEST(AlarmType, EachFieldAlone)
{
    Session session;
    session.open();
    Diff severity{getdiff_GSystemAlarmTypeCfg};
    severity.before.severity = 5;
    EXPECT_EQ(severity.script(), "configure terminal\nalarm dummy severity \"indeterminate\"\n");
    Diff in{getdiff_GSystemAlarmTypeCfg};
    in.before.send_on_in = 1;
    EXPECT_EQ(in.script(), "configure terminal\nalarm dummy in false\n");
    Diff out{getdiff_GSystemAlarmTypeCfg};
    out.before.send_on_out = 1;
    EXPECT_EQ(out.script(), "configure terminal\nalarm dummy out false\n");
    Diff ttl{getdiff_GSystemAlarmTypeCfg};
    ttl.after.ttl = -1;
    EXPECT_EQ(ttl.script(), "configure terminal\nalarm dummy ttl \"-1\"\n");
    ttl.after.ttl = -2147483647 - 1;
    EXPECT_EQ(ttl.script(), "configure terminal\nalarm dummy ttl \"-2147483648\"\n");
}

TEST(AlarmType, ValuesWithoutAWordAreTheRegistrysToName)
{
    Session session;
    session.open();
    Diff alarm{getdiff_GSystemAlarmTypeCfg};
    alarm.after.severity = 255;
    alarm.before.send_on_in = 1;
    alarm.after.send_on_in = 2;
    alarm.after.send_on_out = 65535;
    EXPECT_EQ(alarm.script(), "configure terminal\n"
                              "alarm dummy severity \"unknown\"\n"
                              "alarm dummy in unknown\n"
                              "alarm dummy out unknown\n");
}

TEST(AlarmType, TypeItselfHasNoCommand)
{
    Diff alarm{getdiff_GSystemAlarmTypeCfg};
    alarm.after.type = ont_storm_detected;
    EXPECT_EQ(alarm.elements(), Elements{});
}

TEST(AlarmType, TypeWithoutAWordLeavesTheNameEmpty)
{
    Session session;
    session.cfg->system.services.alarm.type[1].type = 7;
    session.cfg->system.services.alarm.type[1].severity = 1;
    session.cfg->system.services.alarm.type[2].type = 4294967295U;
    session.cfg->system.services.alarm.type[2].severity = 1;
    session.open();
    EXPECT_EQ(session.full_diff(), "configure terminal\n"
                                   "alarm  severity \"critical\"\n"
                                   "alarm  severity \"critical\"\n"
                                   "exit\n"
                                   "commit\n");
}

TEST(AlarmType, BeforeAnySessionTheNameIsEmpty)
{
    alarm2id_connection[0] = nullptr;
    Diff alarm{getdiff_GSystemAlarmTypeCfg};
    alarm.after.severity = 4;
    EXPECT_EQ(alarm.elements(), (Elements{"configure terminal", "alarm  severity \"warning\""}));
}

TEST(AlarmType, PrintAllForcesOnlyWithTheCommonSettings)
{
    Session session;
    session.open();
    for (const int common : {-1, 0, 3}) {
        Diff alarm{getdiff_GSystemAlarmTypeCfg};
        alarm.all = 1;
        alarm.common = common;
        EXPECT_EQ(alarm.elements(), Elements{}) << common;
    }
    for (const int common : {1, 2}) {
        Diff alarm{getdiff_GSystemAlarmTypeCfg};
        alarm.all = 1;
        alarm.common = common;
        EXPECT_EQ(alarm.script(), "configure terminal\n"
                                  "alarm dummy severity \"indeterminate\"\n"
                                  "alarm dummy in false\n"
                                  "alarm dummy out false\n"
                                  "alarm dummy ttl \"0\"\n")
            << common;
    }
}

// ------------------------------------------------------------------------------------------------------- thresholds

TEST(AlarmThresholds, EveryFieldInOrder)
{
    Diff alarm{getdiff_GSystemAlarmSystemCfg};
    alarm.after.load_average[0] = 255;
    alarm.after.free_ram = 65535;
    alarm.after.free_space = 10;
    alarm.after.temperature[0] = 70;
    alarm.after.temperature[1] = 255;
    alarm.after.min_temperature[0] = -128;
    alarm.after.min_temperature[1] = 127;
    EXPECT_EQ(alarm.elements(), behind("configure terminal", "alarm load-average level \"255\"\n"
                                                             "alarm ram free-ram \"65535\"\n"
                                                             "alarm free-space level \"10\"\n"
                                                             "alarm temperature sensor1 max \"70\"\n"
                                                             "alarm temperature sensor2 max \"255\"\n"
                                                             "alarm temperature sensor1 min \"-128\"\n"
                                                             "alarm temperature sensor2 min \"127\"\n"));
}

TEST(AlarmThresholds, OtherLoadAveragesAndFanSpeedsHaveNoCommand)
{
    for (const int common : {0, 1}) {
        Diff alarm{getdiff_GSystemAlarmSystemCfg};
        alarm.common = common;
        alarm.after.load_average[1] = 1;
        alarm.after.load_average[2] = 1;
        alarm.after.min_rpm = 1;
        alarm.after.max_rpm = 1;
        alarm.after.revision = 1;
        EXPECT_EQ(alarm.elements(), Elements{});
    }
}

TEST(AlarmThresholds, EachFieldAlone)
{
    Diff load{getdiff_GSystemAlarmSystemCfg};
    load.before.load_average[0] = 9;
    EXPECT_EQ(load.elements(), (Elements{"configure terminal", "alarm load-average level \"0\""}));
    Diff ram{getdiff_GSystemAlarmSystemCfg};
    ram.after.free_ram = 256;
    EXPECT_EQ(ram.elements(), (Elements{"configure terminal", "alarm ram free-ram \"256\""}));
    Diff space{getdiff_GSystemAlarmSystemCfg};
    space.after.free_space = 65535;
    EXPECT_EQ(space.elements(), (Elements{"configure terminal", "alarm free-space level \"65535\""}));
}

TEST(AlarmThresholds, SensorsAreSeenOneByOne)
{
    Diff first_max{getdiff_GSystemAlarmSystemCfg};
    first_max.before.temperature[0] = 60;
    EXPECT_EQ(first_max.elements(), (Elements{"configure terminal", "alarm temperature sensor1 max \"0\""}));
    Diff second_max{getdiff_GSystemAlarmSystemCfg};
    second_max.after.temperature[1] = 65;
    EXPECT_EQ(second_max.elements(), (Elements{"configure terminal", "alarm temperature sensor2 max \"65\""}));
    Diff first_min{getdiff_GSystemAlarmSystemCfg};
    first_min.after.min_temperature[0] = -5;
    EXPECT_EQ(first_min.elements(), (Elements{"configure terminal", "alarm temperature sensor1 min \"-5\""}));
    Diff second_min{getdiff_GSystemAlarmSystemCfg};
    second_min.before.min_temperature[1] = -5;
    EXPECT_EQ(second_min.elements(), (Elements{"configure terminal", "alarm temperature sensor2 min \"0\""}));
}

TEST(AlarmThresholds, ForcedShowsFreeMemoryAlone)
{
    for (const int common : {1, 2}) {
        Diff alarm{getdiff_GSystemAlarmSystemCfg};
        alarm.before.load_average[0] = 3;
        alarm.before.temperature[0] = 60;
        alarm.before.min_temperature[1] = -5;
        alarm.after = alarm.before;
        alarm.all = 1;
        alarm.common = common;
        EXPECT_EQ(alarm.elements(),
                  (Elements{"configure terminal", "alarm ram free-ram \"0\"", "", "alarm free-space level \"0\""}));
    }
}

TEST(AlarmThresholds, ForcedShowsTheSensorsAndTheLoadThatDiffer)
{
    Diff alarm{getdiff_GSystemAlarmSystemCfg};
    alarm.after.load_average[0] = 3;
    alarm.after.temperature[1] = 60;
    alarm.after.min_temperature[1] = -5;
    alarm.all = 1;
    alarm.common = 1;
    EXPECT_EQ(alarm.script(), "configure terminal\n"
                              "alarm load-average level \"3\"\n"
                              "alarm ram free-ram \"0\"\n"
                              "alarm free-space level \"0\"\n"
                              "alarm temperature sensor2 max \"60\"\n"
                              "alarm temperature sensor2 min \"-5\"\n");
}

TEST(AlarmThresholds, PrintAllWithoutTheCommonSettingsForcesNothing)
{
    for (const int common : {-1, 0, 3}) {
        Diff alarm{getdiff_GSystemAlarmSystemCfg};
        alarm.all = 1;
        alarm.common = common;
        EXPECT_EQ(alarm.elements(), Elements{}) << common;
    }
}

// ---------------------------------------------------------------------------------------------------- the container

TEST(Alarms, TypesThenThresholdsInAFullDiff)
{
    Session session;
    GSystemAlarmCfg& alarm = session.cfg->system.services.alarm;
    alarm.cfg.load_average[0] = 4;
    alarm.type[0].type = 13;
    alarm.type[0].ttl = 60;
    alarm.type[45].type = ont_storm_detected;
    alarm.type[45].severity = 3;
    session.open();
    EXPECT_EQ(session.full_diff(), "configure terminal\n"
                                   "alarm fan ttl \"60\"\n"
                                   "alarm ont-storm-detected severity \"minor\"\n"
                                   "alarm load-average level \"4\"\n"
                                   "exit\n"
                                   "commit\n");
}

TEST(Alarms, ThresholdsThatChangedWithoutACommand)
{
    Diff alarm{getdiff_GSystemAlarmCfg};
    alarm.after.cfg.load_average[1] = 1;
    EXPECT_EQ(alarm.elements(), Elements{});
    EXPECT_EQ(alarm.key[0], 45);
}

TEST(Alarms, PrintAllWithoutTheCommonSettingsForcesNothing)
{
    Diff alarm{getdiff_GSystemAlarmCfg};
    alarm.all = 1;
    EXPECT_EQ(alarm.elements(), Elements{});
    EXPECT_EQ(alarm.key[0], 45);
}

TEST(Alarms, ForcedByTheCommonSettingsShowsFourCommandsForEachType)
{
    Session session;
    session.cfg->system.services.alarm.type[45].type = ont_storm_detected;
    session.cfg->system.services.alarm.type[45].ttl = 30;
    session.settle();
    session.open();
    std::string expected = "configure terminal\n";
    for (int i = 0; i < 45; ++i) {
        expected += "alarm dummy severity \"indeterminate\"\n"
                    "alarm dummy in false\n"
                    "alarm dummy out false\n"
                    "alarm dummy ttl \"0\"\n";
    }
    expected += "alarm ont-storm-detected severity \"indeterminate\"\n"
                "alarm ont-storm-detected in false\n"
                "alarm ont-storm-detected out false\n"
                "alarm ont-storm-detected ttl \"30\"\n"
                "alarm ram free-ram \"0\"\n"
                "alarm free-space level \"0\"\n";
    for (const int common : {1, 2}) {
        Diff alarm{getdiff_GSystemAlarmCfg};
        alarm.before = alarm.after = session.cfg->system.services.alarm;
        alarm.all = 1;
        alarm.common = common;
        EXPECT_EQ(alarm.script(), expected);
        EXPECT_EQ(alarm.key[0], 45);
    }
}

} // namespace
