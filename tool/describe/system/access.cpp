#include "tool/describe/table.h"

namespace pondiff::tool {

static constexpr Field allow_fields[] = {
    ipv4(FIELD(GSystemServiceAllow, ip)),
    number(FIELD(GSystemServiceAllow, mask)),
};
DESCRIBE(GSystemServiceAllow, allow_record, allow_fields);

static constexpr Field http_fields[] = {
    number(FIELD(GSystemHttpCfg, revision)),
    boolean(FIELD(GSystemHttpCfg, enabled)),
    boolean(FIELD(GSystemHttpCfg, access_control)),
    record(FIELD(GSystemHttpCfg, allow), allow_record, "allow-list entries"),
};
DESCRIBE(GSystemHttpCfg, http_record, http_fields);

static constexpr Field https_fields[] = {
    number(FIELD(GSystemHttpsCfg, revision)),
    boolean(FIELD(GSystemHttpsCfg, enabled)),
    boolean(FIELD(GSystemHttpsCfg, access_control)),
    record(FIELD(GSystemHttpsCfg, allow), allow_record, "allow-list entries"),
};
DESCRIBE(GSystemHttpsCfg, https_record, https_fields);

static constexpr Field telnet_fields[] = {
    number(FIELD(GSystemTelnetCfg, revision)),
    boolean(FIELD(GSystemTelnetCfg, enabled)),
    boolean(FIELD(GSystemTelnetCfg, access_control)),
    record(FIELD(GSystemTelnetCfg, allow), allow_record, "allow-list entries"),
};
DESCRIBE(GSystemTelnetCfg, telnet_record, telnet_fields);

static constexpr Field ssh_fields[] = {
    number(FIELD(GSystemSshCfg, revision)),
    boolean(FIELD(GSystemSshCfg, enabled)),
    boolean(FIELD(GSystemSshCfg, access_control)),
    record(FIELD(GSystemSshCfg, allow), allow_record, "allow-list entries"),
};
DESCRIBE(GSystemSshCfg, ssh_record, ssh_fields);

} // namespace pondiff::tool
