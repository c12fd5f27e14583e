#include "tool/describe/table.h"

namespace pondiff::tool {

static constexpr Field log_destinations_fields[] = {
    enumeration(FIELD(GSystemLogDestCfg, system), "GPonLogLevel_enum"),
    enumeration(FIELD(GSystemLogDestCfg, console), "GPonLogLevel_enum"),
    enumeration(FIELD(GSystemLogDestCfg, remotes), "GPonLogLevel_enum"),
    enumeration(FIELD(GSystemLogDestCfg, file), "GPonLogLevel_enum"),
};
DESCRIBE(GSystemLogDestCfg, log_destinations_record, log_destinations_fields);

static constexpr Field syslog_fields[] = {
    number(FIELD(GSystemSyslogCfg, revision)),
    boolean(FIELD(GSystemSyslogCfg, enabled)),
    ipv4(FIELD(GSystemSyslogCfg, ip)),
    number(FIELD(GSystemSyslogCfg, size)),
    record(FIELD(GSystemSyslogCfg, destinations), log_destinations_record),
};
DESCRIBE(GSystemSyslogCfg, syslog_record, syslog_fields);

static constexpr Field submodule_fields[] = {
    number(FIELD(GSubmoduleLogCfg, revision)),
    enumeration(FIELD(GSubmoduleLogCfg, level), "GPonLogLevel_enum"),
    enumeration(FIELD(GSubmoduleLogCfg, dest), "GPonLogDest_enum"),
    boolean(FIELD(GSubmoduleLogCfg, show_time)),
    boolean(FIELD(GSubmoduleLogCfg, show_prog_name)),
    boolean(FIELD(GSubmoduleLogCfg, show_level)),
    boolean(FIELD(GSubmoduleLogCfg, show_submodule_name)),
};
DESCRIBE(GSubmoduleLogCfg, submodule_record, submodule_fields);

static constexpr Field log_fields[] = {
    record(FIELD(GSystemLogCfg, submodule), submodule_record, "log submodules"),
};
DESCRIBE(GSystemLogCfg, log_record, log_fields);

} // namespace pondiff::tool
