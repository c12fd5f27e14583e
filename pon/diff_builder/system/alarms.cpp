#include "pon/diff_builder/rows.h"

using namespace pondiff;

namespace {

/// Temperature levels of the device. No command uses them.
[[maybe_unused]] constexpr int temperature_levels[8] = {30, 40, 45, 50, 55, 60, 65, 70};

} // namespace

bool getdiff_GSystemAlarmCfg(GSystemAlarmCfg* lhs, GSystemAlarmCfg* rhs, int* key, List<char>& out)
{
    if (nothing_to_emit(lhs, rhs)) {
        return false;
    }
    descend_each(changed_or_common, getdiff_GSystemAlarmTypeCfg, lhs->type, rhs->type, of_object, key, out);
    descend(changed_or_common, getdiff_GSystemAlarmSystemCfg, lhs->cfg, rhs->cfg, key, out);
    return false;
}

/// The alarm type names the slot in the commands; it has no command itself.
bool getdiff_GSystemAlarmTypeCfg(GSystemAlarmTypeCfg* lhs, GSystemAlarmTypeCfg* rhs, int* key, List<char>& out)
{
    static constexpr Row<GSystemAlarmTypeCfg> commands[] = {
        enumeration(FIELD(GSystemAlarmTypeCfg, severity), "GAlarmSeverity_enum", "alarm $ID0 severity \"%s\""),
        enumeration(FIELD(GSystemAlarmTypeCfg, send_on_in), "GBool_enum", "alarm $ID0 in %s"),
        enumeration(FIELD(GSystemAlarmTypeCfg, send_on_out), "GBool_enum", "alarm $ID0 out %s"),
        number(FIELD(GSystemAlarmTypeCfg, ttl), "alarm $ID0 ttl \"%s\""),
    };
    if (nothing_to_emit(lhs, rhs)) {
        return false;
    }
    emit_changed(commands, changed_or_common, lhs, rhs, {View::configure, key, out});
    return false;
}

/// A full dump, too, shows the load average and the temperatures only where they differ. The other load averages and
/// the fan speeds have no commands.
bool getdiff_GSystemAlarmSystemCfg(GSystemAlarmSystemCfg* lhs, GSystemAlarmSystemCfg* rhs, int* key, List<char>& out)
{
    static constexpr Row<GSystemAlarmSystemCfg> load_average =
        number(FIELD(GSystemAlarmSystemCfg, load_average[0]), "alarm load-average level \"%d\"");
    static constexpr Row<GSystemAlarmSystemCfg> free_memory[] = {
        number(FIELD(GSystemAlarmSystemCfg, free_ram), "alarm ram free-ram \"%s\""),
        number(FIELD(GSystemAlarmSystemCfg, free_space), "alarm free-space level \"%s\""),
    };
    if (nothing_to_emit(lhs, rhs)) {
        return false;
    }
    const Where where{View::configure, key, out};
    emit_changed(load_average, changed_only, lhs, rhs, where);
    emit_changed(free_memory, changed_or_common, lhs, rhs, where);
    for (int i = 0; i < GCFG_TEMPERATURE_SENSORS; ++i) {
        if (lhs->temperature[i] != rhs->temperature[i]) {
            emit(where, "alarm temperature sensor%d max \"%d\"", i + 1, rhs->temperature[i]);
        }
    }
    for (int i = 0; i < GCFG_TEMPERATURE_SENSORS; ++i) {
        if (lhs->min_temperature[i] != rhs->min_temperature[i]) {
            emit(where, "alarm temperature sensor%d min \"%d\"", i + 1, rhs->min_temperature[i]);
        }
    }
    return false;
}
