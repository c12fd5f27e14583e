#include "pon/DataToCommandsConvertor.h"
#include "tool/describe/table.h"

namespace pondiff::tool {

static constexpr Syntax not_its_level = no_command("the level alone has a command");

static constexpr Field log_destinations_fields[] = {
    enumeration(FIELD(GSystemLogDestCfg, system), "GPonLogLevel_enum",
                says("logging system loglevel <system>").words(getCliSubmoduleLevel)),
    enumeration(FIELD(GSystemLogDestCfg, console), "GPonLogLevel_enum",
                says("logging console loglevel <console>").words(getCliSubmoduleLevel)),
    enumeration(FIELD(GSystemLogDestCfg, remotes), "GPonLogLevel_enum",
                says("logging rsh loglevel <remotes>").words(getCliSubmoduleLevel)),
    enumeration(FIELD(GSystemLogDestCfg, file), "GPonLogLevel_enum",
                says("logging file loglevel <file>").words(getCliSubmoduleLevel)),
};
DESCRIBE(GSystemLogDestCfg, log_destinations_record, log_destinations_fields);

static constexpr Field syslog_fields[] = {
    number(FIELD(GSystemSyslogCfg, revision), counter),
    boolean(FIELD(GSystemSyslogCfg, enabled), no_command("whether the log is on cannot be set")),
    ipv4(FIELD(GSystemSyslogCfg, ip), says("logging remote <ip>")),
    number(FIELD(GSystemSyslogCfg, size), says("logging buffer <size>")),
    record(FIELD(GSystemSyslogCfg, destinations), log_destinations_record),
};
DESCRIBE(GSystemSyslogCfg, syslog_record, syslog_fields);

static constexpr Field submodule_fields[] = {
    number(FIELD(GSubmoduleLogCfg, revision), counter),
    enumeration(FIELD(GSubmoduleLogCfg, level), "GPonLogLevel_enum",
                says("logging module <#> loglevel <level>").words(getCliSubmoduleLevel)),
    enumeration(FIELD(GSubmoduleLogCfg, dest), "GPonLogDest_enum", not_its_level),
    boolean(FIELD(GSubmoduleLogCfg, show_time), not_its_level),
    boolean(FIELD(GSubmoduleLogCfg, show_prog_name), not_its_level),
    boolean(FIELD(GSubmoduleLogCfg, show_level), not_its_level),
    boolean(FIELD(GSubmoduleLogCfg, show_submodule_name), not_its_level),
};
DESCRIBE(GSubmoduleLogCfg, submodule_record, submodule_fields);

static constexpr Field log_fields[] = {
    record(FIELD(GSystemLogCfg, submodule), submodule_record, by_word(getCliSubmoduleType), "log submodules"),
};
DESCRIBE(GSystemLogCfg, log_record, log_fields);

} // namespace pondiff::tool
