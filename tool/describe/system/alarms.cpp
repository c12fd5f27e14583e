#include "tool/describe/table.h"

namespace pondiff::tool {

static constexpr Field alarm_type_fields[] = {
    number(FIELD(GSystemAlarmTypeCfg, revision)),
    enumeration(FIELD(GSystemAlarmTypeCfg, type), "GAlarmType_enum"),
    enumeration(FIELD(GSystemAlarmTypeCfg, severity), "GAlarmSeverity_enum"),
    boolean(FIELD(GSystemAlarmTypeCfg, send_on_in)),
    boolean(FIELD(GSystemAlarmTypeCfg, send_on_out)),
    number(FIELD(GSystemAlarmTypeCfg, ttl)),
};
DESCRIBE(GSystemAlarmTypeCfg, alarm_type_record, alarm_type_fields);

static constexpr Field alarm_thresholds_fields[] = {
    number(FIELD(GSystemAlarmSystemCfg, revision)),
    number(FIELD(GSystemAlarmSystemCfg, load_average), {}, "load averages"),
    number(FIELD(GSystemAlarmSystemCfg, free_ram)),
    number(FIELD(GSystemAlarmSystemCfg, free_space)),
    number(FIELD(GSystemAlarmSystemCfg, temperature), {}, "sensors"),
    number(FIELD(GSystemAlarmSystemCfg, min_temperature), {}, "sensors"),
    number(FIELD(GSystemAlarmSystemCfg, min_rpm)),
    number(FIELD(GSystemAlarmSystemCfg, max_rpm)),
};
DESCRIBE(GSystemAlarmSystemCfg, alarm_thresholds_record, alarm_thresholds_fields);

static constexpr Field alarm_fields[] = {
    record(FIELD(GSystemAlarmCfg, type), alarm_type_record, "alarm types"),
    record(FIELD(GSystemAlarmCfg, cfg), alarm_thresholds_record),
};
DESCRIBE(GSystemAlarmCfg, alarm_record, alarm_fields);

} // namespace pondiff::tool
