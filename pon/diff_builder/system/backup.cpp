#include "pon/diff_builder/rows.h"

using namespace pondiff;

bool getdiff_GSystemTftpCfg(GSystemTftpCfg* lhs, GSystemTftpCfg* rhs, int* key, List<char>& out)
{
    static constexpr Row<GSystemTftpCfg> commands[] = {
        on_off(FIELD(GSystemTftpCfg, backup_on_conf_save), "backup on save", "no backup on save"),
        on_off(FIELD(GSystemTftpCfg, backup_on_timer), "backup on timer", "no backup on timer"),
        number(FIELD(GSystemTftpCfg, backup_on_timer_period), "backup timer period \"%s\""),
        text(FIELD(GSystemTftpCfg, backup_uri), "backup uri \"%s\""),
    };
    if (nothing_to_emit(lhs, rhs)) {
        return false;
    }
    emit_changed(commands, changed_or_all, lhs, rhs, {View::configure, key, out});
    return false;
}

bool getdiff_GSystemConfigCfg(GSystemConfigCfg* lhs, GSystemConfigCfg* rhs, int* key, List<char>& out)
{
    static constexpr Row<GSystemConfigCfg> commands[] = {
        on_off(FIELD(GSystemConfigCfg, autosave), "config autosave enable", "no config autosave enable"),
        number(FIELD(GSystemConfigCfg, autosave_hour), "config autosave hour \"%s\""),
    };
    if (nothing_to_emit(lhs, rhs)) {
        return false;
    }
    emit_changed(commands, changed_or_all, lhs, rhs, {View::configure, key, out});
    return false;
}
