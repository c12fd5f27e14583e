#include "tool/describe/table.h"

namespace pondiff::tool {

static constexpr Syntax held = no_command("held for the device software");

static constexpr Field acs_fields[] = {
    number(FIELD(GSystemAcsCfg, revision), counter),
    boolean(FIELD(GSystemAcsCfg, enabled), held),
    number(FIELD(GSystemAcsCfg, port), held),
    silent(text(FIELD(GSystemAcsCfg, path), held)),
    silent(text(FIELD(GSystemAcsCfg, scheme), held)),
    silent(text(FIELD(GSystemAcsCfg, login), held)),
    silent(secret(FIELD(GSystemAcsCfg, password), held)),
    ipv4(FIELD(GSystemAcsCfg, external_fw_ip), held),
    number(FIELD(GSystemAcsCfg, external_fw_port), held),
    number(FIELD(GSystemAcsCfg, local_fw_port), held),
    boolean(FIELD(GSystemAcsCfg, dhcp_server_enabled), held),
    ipv4(FIELD(GSystemAcsCfg, dhcp_ip_range_first), held),
    ipv4(FIELD(GSystemAcsCfg, dhcp_ip_range_last), held),
    number(FIELD(GSystemAcsCfg, dhcp_max_lease_time), held),
    boolean(FIELD(GSystemAcsCfg, dhcp_insert_option43), held),
};
DESCRIBE(GSystemAcsCfg, acs_record, acs_fields);

static constexpr Field auth_server_fields[] = {
    ipv4(FIELD(GSystemAuthNetCfg, ip), held),
    number(FIELD(GSystemAuthNetCfg, port), held),
    number(FIELD(GSystemAuthNetCfg, timeout), held),
    silent(secret(FIELD(GSystemAuthNetCfg, secret), held)),
};
DESCRIBE(GSystemAuthNetCfg, auth_server_record, auth_server_fields);

static constexpr Field auth_fields[] = {
    number(FIELD(GSystemAuthCfg, revision), counter),
    enumeration(FIELD(GSystemAuthCfg, authtype), "GAuthType_enum", held),
    enumeration(FIELD(GSystemAuthCfg, accounting), "GAuthType_enum", held),
    boolean(FIELD(GSystemAuthCfg, accounting_cmd), held),
    boolean(FIELD(GSystemAuthCfg, authorization), held),
    record(FIELD(GSystemAuthCfg, server), auth_server_record),
    record(FIELD(GSystemAuthCfg, radius_server), auth_server_record),
};
DESCRIBE(GSystemAuthCfg, auth_record, auth_fields);

static constexpr Field fan_fields[] = {
    number(FIELD(GSystemFanCfg, revision), counter),
    number(FIELD(GSystemFanCfg, speed_table), held, "temperature steps"),
    number(FIELD(GSystemFanCfg, fixed_speed), held),
    number(FIELD(GSystemFanCfg, min_speed), held),
};
DESCRIBE(GSystemFanCfg, fan_record, fan_fields);

static constexpr Field services_fields[] = {
    record(FIELD(GSystemServices, http), http_record),
    record(FIELD(GSystemServices, https), https_record),
    record(FIELD(GSystemServices, telnet), telnet_record),
    record(FIELD(GSystemServices, ssh), ssh_record),
    record(FIELD(GSystemServices, snmp), snmp_record),
    record(FIELD(GSystemServices, syslog), syslog_record),
    record(FIELD(GSystemServices, ntp), ntp_record),
    record(FIELD(GSystemServices, alarm), alarm_record),
    record(FIELD(GSystemServices, web), web_record),
    record(FIELD(GSystemServices, cli), cli_record),
    record(FIELD(GSystemServices, log), log_record),
    record(FIELD(GSystemServices, tftp), tftp_record),
    record(FIELD(GSystemServices, config), config_record),
    record(FIELD(GSystemServices, acs), acs_record),
    record(FIELD(GSystemServices, auth), auth_record),
    record(FIELD(GSystemServices, fan), fan_record),
    record(FIELD(GSystemServices, routing), routing_record),
    record(FIELD(GSystemServices, source_guard), source_guard_record),
};
DESCRIBE(GSystemServices, services_record, services_fields);

static constexpr Field system_fields[] = {
    record(FIELD(GSystemCfg, network), system_network_record),
    record(FIELD(GSystemCfg, user), user_record, by_name.removed_by("no user <#>"), "users"),
    record(FIELD(GSystemCfg, services), services_record),
    record(FIELD(GSystemCfg, settings), common_settings_record),
};
DESCRIBE(GSystemCfg, system_record, system_fields);

} // namespace pondiff::tool
