#include "pon/diff_builder/rows.h"

using namespace pondiff;

/// The privilege levels have no commands.
bool getdiff_GSystemCommonSettings(GSystemCommonSettings* lhs, GSystemCommonSettings* rhs, int* key, List<char>& out)
{
    static constexpr Row<GSystemCommonSettings> commands[] = {
        enumeration(FIELD(GSystemCommonSettings, ont_sn_format), "GOntSnDisplayFormatType_enum",
                    "cli ont-sn-format \"%s\""),
    };
    if (nothing_to_emit(lhs, rhs)) {
        return false;
    }
    emit_changed(commands, changed_or_common, lhs, rhs, {View::configure, key, out});
    return false;
}
