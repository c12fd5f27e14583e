#include "tool/describe/table.h"

namespace pondiff::tool {

static constexpr Field alarm_type_fields[] = {
    number(AT(GSystemAlarmTypeCfg, revision)),
    enumeration(AT(GSystemAlarmTypeCfg, type), "GAlarmType_enum"),
    enumeration(AT(GSystemAlarmTypeCfg, severity), "GAlarmSeverity_enum"),
    boolean(AT(GSystemAlarmTypeCfg, send_on_in)),
    boolean(AT(GSystemAlarmTypeCfg, send_on_out)),
    number(AT(GSystemAlarmTypeCfg, ttl)),
};
DESCRIBE(GSystemAlarmTypeCfg, alarm_type_record, alarm_type_fields);

static constexpr Field alarm_thresholds_fields[] = {
    number(AT(GSystemAlarmSystemCfg, revision)),
    number(AT(GSystemAlarmSystemCfg, load_average), "load averages"),
    number(AT(GSystemAlarmSystemCfg, free_ram)),
    number(AT(GSystemAlarmSystemCfg, free_space)),
    number(AT(GSystemAlarmSystemCfg, temperature), "sensors"),
    number(AT(GSystemAlarmSystemCfg, min_temperature), "sensors"),
    number(AT(GSystemAlarmSystemCfg, min_rpm)),
    number(AT(GSystemAlarmSystemCfg, max_rpm)),
};
DESCRIBE(GSystemAlarmSystemCfg, alarm_thresholds_record, alarm_thresholds_fields);

static constexpr Field alarm_fields[] = {
    record(AT(GSystemAlarmCfg, type), alarm_type_record, "alarm types"),
    record(AT(GSystemAlarmCfg, cfg), alarm_thresholds_record),
};
DESCRIBE(GSystemAlarmCfg, alarm_record, alarm_fields);

} // namespace pondiff::tool
