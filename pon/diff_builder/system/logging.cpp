#include "pon/diff_builder/rows.h"

using namespace pondiff;

/// The switch of the system log has no command.
bool getdiff_GSystemSyslogCfg(GSystemSyslogCfg* lhs, GSystemSyslogCfg* rhs, int* key, List<char>& out)
{
    static constexpr Row<GSystemSyslogCfg> commands[] = {
        ipv4(FIELD(GSystemSyslogCfg, ip), "logging remote \"%s\""),
        number(FIELD(GSystemSyslogCfg, size), "logging buffer \"%s\""),
    };
    if (nothing_to_emit(lhs, rhs)) {
        return false;
    }
    emit_changed(commands, changed_or_all, lhs, rhs, {View::configure, key, out});
    descend(changed_or_all, getdiff_GSystemLogDestCfg, lhs->destinations, rhs->destinations, key, out);
    return false;
}

bool getdiff_GSystemLogDestCfg(GSystemLogDestCfg* lhs, GSystemLogDestCfg* rhs, int* key, List<char>& out)
{
    static constexpr Row<GSystemLogDestCfg> commands[] = {
        word(FIELD(GSystemLogDestCfg, system), getCliSubmoduleLevel, "logging system loglevel \"%s\""),
        word(FIELD(GSystemLogDestCfg, console), getCliSubmoduleLevel, "logging console loglevel \"%s\""),
        word(FIELD(GSystemLogDestCfg, remotes), getCliSubmoduleLevel, "logging rsh loglevel \"%s\""),
        word(FIELD(GSystemLogDestCfg, file), getCliSubmoduleLevel, "logging file loglevel \"%s\""),
    };
    if (nothing_to_emit(lhs, rhs)) {
        return false;
    }
    emit_changed(commands, changed_or_all, lhs, rhs, {View::configure, key, out});
    return false;
}

bool getdiff_GSystemLogCfg(GSystemLogCfg* lhs, GSystemLogCfg* rhs, int* key, List<char>& out)
{
    if (nothing_to_emit(lhs, rhs)) {
        return false;
    }
    descend_each(changed_or_all, getdiff_GSubmoduleLogCfg, lhs->submodule, rhs->submodule, of_object, key, out);
    return false;
}

/// Only the level has a command.
bool getdiff_GSubmoduleLogCfg(GSubmoduleLogCfg* lhs, GSubmoduleLogCfg* rhs, int* key, List<char>& out)
{
    static constexpr Row<GSubmoduleLogCfg> level =
        word(FIELD(GSubmoduleLogCfg, level), getCliSubmoduleLevel, "logging module %s loglevel \"%s\"");
    if (nothing_to_emit(lhs, rhs)) {
        return false;
    }
    const Value submodule = getCliSubmoduleType(key[of_object]);
    emit_changed(level, changed_or_all, lhs, rhs, {View::configure, key, out, &submodule});
    return false;
}
