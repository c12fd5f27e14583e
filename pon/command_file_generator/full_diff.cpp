#include "pon/command_file_generator/full_diff.h"

#include "pon/command_file_generator.h"
#include "pon/command_file_generator/operation.h"
#include "pon/diff_builder/rows.h"

using namespace pondiff;

namespace {

/// Each under its own rule: nothing is compared at this level.
void diff_common_records(GCfg& orig, GCfg& cfg, CommonSet set, int* key, List<char>& out)
{
    if (set == CommonSet::whole) {
        getdiff_GSystemCliCfg(&orig.system.services.cli, &cfg.system.services.cli, key, out);
    }
    getdiff_GSystemAlarmCfg(&orig.system.services.alarm, &cfg.system.services.alarm, key, out);
    getdiff_GSystemCommonSettings(&orig.system.settings, &cfg.system.settings, key, out);
    getdiff_GPonNetworkCfg(&orig.pon.network, &cfg.pon.network, key, out);
    getdiff_GPonOltGeneralCfg(&orig.pon.olt.general, &cfg.pon.olt.general, key, out);
    if (set == CommonSet::whole) {
        getdiff_GSystemSourceGuardCfg(&orig.system.services.source_guard, &cfg.system.services.source_guard, key, out);
    }
}

} // namespace

char* pondiff::full_diff(GCfg* orig, GCfg* cfg, CommonSet set)
{
    constexpr int common_records_only = 1;
    Operation operation;
    if (orig && cfg) {
        if (print_common == common_records_only) {
            diff_common_records(*orig, *cfg, set, operation.key, operation.script);
        } else {
            const Comparison comparison(orig, cfg, sizeof *orig);
            getdiff_GCfg(orig, cfg, operation.key, operation.script);
        }
    }
    operation.go_to(View::root);
    return operation.finish(Ending::commit);
}

char* GetDiff(GCfg_t* orig, GCfg_t* cfg)
{
    return full_diff(orig, cfg, CommonSet::whole);
}

bool getdiff_GCfg(GCfg* lhs, GCfg* rhs, int* key, List<char>& out)
{
    if (!lhs || !rhs) {
        return false;
    }
    descend(changed_or_all, getdiff_GSystemCfg, lhs->system, rhs->system, key, out);
    descend(changed_or_all, getdiff_GPonCfg, lhs->pon, rhs->pon, key, out);
    return false;
}

bool getdiff_GPonCfg(GPonCfg* lhs, GPonCfg* rhs, int* key, List<char>& out)
{
    if (nothing_to_emit(lhs, rhs)) {
        return false;
    }
    descend(changed_or_all, getdiff_GPonNetworkCfg, lhs->network, rhs->network, key, out);
    descend(changed_or_all, getdiff_GPonProfilesOlt, lhs->profiles_olt, rhs->profiles_olt, key, out);
    descend(changed_or_all, getdiff_GPonProfilesOnt, lhs->profiles_ont, rhs->profiles_ont, key, out);
    descend(changed_or_all, getdiff_GPonOltCfg, lhs->olt, rhs->olt, key, out);
    // An equal ONT is never shown, not even by a full dump.
    descend_each(changed_only, getdiff_GPonOntCfg, lhs->ont, rhs->ont, of_object, key, out);
    return false;
}
