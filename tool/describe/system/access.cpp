#include "tool/describe/table.h"

namespace pondiff::tool {

static constexpr Syntax not_its_list = no_command("the allow list alone has commands");

static constexpr Field allow_fields[] = {
    ipv4(FIELD(GSystemServiceAllow, ip), key()),
    number(FIELD(GSystemServiceAllow, mask), says("<*> allow ip <#> mask <mask>")),
};
DESCRIBE(GSystemServiceAllow, allow_record, allow_fields);

/// HTTP and HTTPS put the number of the entry in place of its address.
static constexpr Field numbered_allow_fields[] = {
    ipv4(FIELD(GSystemServiceAllow, ip), no_command("an address in this allow list has no command")),
    number(FIELD(GSystemServiceAllow, mask), says("<*> allow ip <#> mask <mask>")),
};
DESCRIBE(GSystemServiceAllow, numbered_allow_record, numbered_allow_fields);

static constexpr Field http_fields[] = {
    number(FIELD(GSystemHttpCfg, revision), counter),
    boolean(FIELD(GSystemHttpCfg, enabled), not_its_list),
    boolean(FIELD(GSystemHttpCfg, access_control), not_its_list),
    record(FIELD(GSystemHttpCfg, allow), numbered_allow_record, lead("http").risky(RiskKind::access),
           "allow-list entries"),
};
DESCRIBE(GSystemHttpCfg, http_record, http_fields);

static constexpr Field https_fields[] = {
    number(FIELD(GSystemHttpsCfg, revision), counter),
    boolean(FIELD(GSystemHttpsCfg, enabled), not_its_list),
    boolean(FIELD(GSystemHttpsCfg, access_control), not_its_list),
    record(FIELD(GSystemHttpsCfg, allow), numbered_allow_record, lead("https").risky(RiskKind::access),
           "allow-list entries"),
};
DESCRIBE(GSystemHttpsCfg, https_record, https_fields);

static constexpr Field telnet_fields[] = {
    number(FIELD(GSystemTelnetCfg, revision), counter),
    boolean(FIELD(GSystemTelnetCfg, enabled),
            on_off("ip telnet enable", "no ip telnet enable").risky_when_off(RiskKind::access)),
    boolean(FIELD(GSystemTelnetCfg, access_control),
            on_off("ip telnet access-control", "no ip telnet access-control").risky_when_off(RiskKind::access)),
    record(FIELD(GSystemTelnetCfg, allow), allow_record, by_key.led_by("ip telnet").risky(RiskKind::access),
           "allow-list entries"),
};
DESCRIBE(GSystemTelnetCfg, telnet_record, telnet_fields);

static constexpr Field ssh_fields[] = {
    number(FIELD(GSystemSshCfg, revision), counter),
    boolean(FIELD(GSystemSshCfg, enabled),
            on_off("ip ssh enable", "no ip ssh enable").risky_when_off(RiskKind::access)),
    boolean(FIELD(GSystemSshCfg, access_control),
            on_off("ip ssh access-control", "no ip ssh access-control").risky_when_off(RiskKind::access)),
    record(FIELD(GSystemSshCfg, allow), allow_record, by_key.led_by("ip ssh").risky(RiskKind::access),
           "allow-list entries"),
};
DESCRIBE(GSystemSshCfg, ssh_record, ssh_fields);

} // namespace pondiff::tool
