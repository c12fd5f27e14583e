#include "tool/describe/table.h"

namespace pondiff::tool {

static constexpr Field allow_fields[] = {
    ipv4(AT(GSystemServiceAllow, ip)),
    number(AT(GSystemServiceAllow, mask)),
};
DESCRIBE(GSystemServiceAllow, allow_record, allow_fields);

static constexpr Field http_fields[] = {
    number(AT(GSystemHttpCfg, revision)),
    boolean(AT(GSystemHttpCfg, enabled)),
    boolean(AT(GSystemHttpCfg, access_control)),
    record(AT(GSystemHttpCfg, allow), allow_record, "allow-list entries"),
};
DESCRIBE(GSystemHttpCfg, http_record, http_fields);

static constexpr Field https_fields[] = {
    number(AT(GSystemHttpsCfg, revision)),
    boolean(AT(GSystemHttpsCfg, enabled)),
    boolean(AT(GSystemHttpsCfg, access_control)),
    record(AT(GSystemHttpsCfg, allow), allow_record, "allow-list entries"),
};
DESCRIBE(GSystemHttpsCfg, https_record, https_fields);

static constexpr Field telnet_fields[] = {
    number(AT(GSystemTelnetCfg, revision)),
    boolean(AT(GSystemTelnetCfg, enabled)),
    boolean(AT(GSystemTelnetCfg, access_control)),
    record(AT(GSystemTelnetCfg, allow), allow_record, "allow-list entries"),
};
DESCRIBE(GSystemTelnetCfg, telnet_record, telnet_fields);

static constexpr Field ssh_fields[] = {
    number(AT(GSystemSshCfg, revision)),
    boolean(AT(GSystemSshCfg, enabled)),
    boolean(AT(GSystemSshCfg, access_control)),
    record(AT(GSystemSshCfg, allow), allow_record, "allow-list entries"),
};
DESCRIBE(GSystemSshCfg, ssh_record, ssh_fields);

} // namespace pondiff::tool
