#include "pon/DataToCommandsConvertor.h"
#include "tool/describe/table.h"

namespace pondiff::tool {

static constexpr Field alarm_type_fields[] = {
    number(FIELD(GSystemAlarmTypeCfg, revision), counter),
    enumeration(FIELD(GSystemAlarmTypeCfg, type), "GAlarmType_enum", key().words(getCliAlarmType).in_use_unless_zero()),
    enumeration(FIELD(GSystemAlarmTypeCfg, severity), "GAlarmSeverity_enum", says("alarm <#> severity <severity>")),
    boolean(FIELD(GSystemAlarmTypeCfg, send_on_in), says("alarm <#> in <send_on_in>").words("GBool_enum")),
    boolean(FIELD(GSystemAlarmTypeCfg, send_on_out), says("alarm <#> out <send_on_out>").words("GBool_enum")),
    number(FIELD(GSystemAlarmTypeCfg, ttl), says("alarm <#> ttl <ttl>")),
};
DESCRIBE(GSystemAlarmTypeCfg, alarm_type_record, alarm_type_fields);

static constexpr Field alarm_thresholds_fields[] = {
    number(FIELD(GSystemAlarmSystemCfg, revision), counter),
    number(FIELD(GSystemAlarmSystemCfg, load_average), says("alarm load-average level <load_average>"),
           "load averages"),
    number(FIELD(GSystemAlarmSystemCfg, free_ram), says("alarm ram free-ram <free_ram>")),
    number(FIELD(GSystemAlarmSystemCfg, free_space), says("alarm free-space level <free_space>")),
    number(FIELD(GSystemAlarmSystemCfg, temperature), says("alarm temperature sensor<#1> max <temperature>"),
           "sensors"),
    number(FIELD(GSystemAlarmSystemCfg, min_temperature), says("alarm temperature sensor<#1> min <min_temperature>"),
           "sensors"),
    number(FIELD(GSystemAlarmSystemCfg, min_rpm), no_command("the limits of the fan speed have no command")),
    number(FIELD(GSystemAlarmSystemCfg, max_rpm), no_command("the limits of the fan speed have no command")),
};
DESCRIBE(GSystemAlarmSystemCfg, alarm_thresholds_record, alarm_thresholds_fields);

static constexpr Field alarm_fields[] = {
    record(FIELD(GSystemAlarmCfg, type), alarm_type_record, by_key, "alarm types"),
    record(FIELD(GSystemAlarmCfg, cfg), alarm_thresholds_record),
};
DESCRIBE(GSystemAlarmCfg, alarm_record, alarm_fields);

} // namespace pondiff::tool
