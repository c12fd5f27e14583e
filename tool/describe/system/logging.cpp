#include "tool/describe/table.h"

namespace pondiff::tool {

static constexpr Field log_destinations_fields[] = {
    enumeration(AT(GSystemLogDestCfg, system), "GPonLogLevel_enum"),
    enumeration(AT(GSystemLogDestCfg, console), "GPonLogLevel_enum"),
    enumeration(AT(GSystemLogDestCfg, remotes), "GPonLogLevel_enum"),
    enumeration(AT(GSystemLogDestCfg, file), "GPonLogLevel_enum"),
};
DESCRIBE(GSystemLogDestCfg, log_destinations_record, log_destinations_fields);

static constexpr Field syslog_fields[] = {
    number(AT(GSystemSyslogCfg, revision)),
    boolean(AT(GSystemSyslogCfg, enabled)),
    ipv4(AT(GSystemSyslogCfg, ip)),
    number(AT(GSystemSyslogCfg, size)),
    record(AT(GSystemSyslogCfg, destinations), log_destinations_record),
};
DESCRIBE(GSystemSyslogCfg, syslog_record, syslog_fields);

static constexpr Field submodule_fields[] = {
    number(AT(GSubmoduleLogCfg, revision)),
    enumeration(AT(GSubmoduleLogCfg, level), "GPonLogLevel_enum"),
    enumeration(AT(GSubmoduleLogCfg, dest), "GPonLogDest_enum"),
    boolean(AT(GSubmoduleLogCfg, show_time)),
    boolean(AT(GSubmoduleLogCfg, show_prog_name)),
    boolean(AT(GSubmoduleLogCfg, show_level)),
    boolean(AT(GSubmoduleLogCfg, show_submodule_name)),
};
DESCRIBE(GSubmoduleLogCfg, submodule_record, submodule_fields);

static constexpr Field log_fields[] = {
    record(AT(GSystemLogCfg, submodule), submodule_record, "log submodules"),
};
DESCRIBE(GSystemLogCfg, log_record, log_fields);

} // namespace pondiff::tool
