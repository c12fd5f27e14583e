#include "tool/describe/table.h"

namespace pondiff::tool {

static constexpr Field acs_fields[] = {
    number(AT(GSystemAcsCfg, revision)),
    boolean(AT(GSystemAcsCfg, enabled)),
    number(AT(GSystemAcsCfg, port)),
    silent(text(AT(GSystemAcsCfg, path))),
    silent(text(AT(GSystemAcsCfg, scheme))),
    silent(text(AT(GSystemAcsCfg, login))),
    silent(secret(AT(GSystemAcsCfg, password))),
    ipv4(AT(GSystemAcsCfg, external_fw_ip)),
    number(AT(GSystemAcsCfg, external_fw_port)),
    number(AT(GSystemAcsCfg, local_fw_port)),
    boolean(AT(GSystemAcsCfg, dhcp_server_enabled)),
    ipv4(AT(GSystemAcsCfg, dhcp_ip_range_first)),
    ipv4(AT(GSystemAcsCfg, dhcp_ip_range_last)),
    number(AT(GSystemAcsCfg, dhcp_max_lease_time)),
    boolean(AT(GSystemAcsCfg, dhcp_insert_option43)),
};
DESCRIBE(GSystemAcsCfg, acs_record, acs_fields);

static constexpr Field auth_server_fields[] = {
    ipv4(AT(GSystemAuthNetCfg, ip)),
    number(AT(GSystemAuthNetCfg, port)),
    number(AT(GSystemAuthNetCfg, timeout)),
    silent(secret(AT(GSystemAuthNetCfg, secret))),
};
DESCRIBE(GSystemAuthNetCfg, auth_server_record, auth_server_fields);

static constexpr Field auth_fields[] = {
    number(AT(GSystemAuthCfg, revision)),
    enumeration(AT(GSystemAuthCfg, authtype), "GAuthType_enum"),
    enumeration(AT(GSystemAuthCfg, accounting), "GAuthType_enum"),
    boolean(AT(GSystemAuthCfg, accounting_cmd)),
    boolean(AT(GSystemAuthCfg, authorization)),
    record(AT(GSystemAuthCfg, server), auth_server_record),
    record(AT(GSystemAuthCfg, radius_server), auth_server_record),
};
DESCRIBE(GSystemAuthCfg, auth_record, auth_fields);

static constexpr Field fan_fields[] = {
    number(AT(GSystemFanCfg, revision)),
    number(AT(GSystemFanCfg, speed_table), "temperature steps"),
    number(AT(GSystemFanCfg, fixed_speed)),
    number(AT(GSystemFanCfg, min_speed)),
};
DESCRIBE(GSystemFanCfg, fan_record, fan_fields);

static constexpr Field services_fields[] = {
    record(AT(GSystemServices, http), http_record),
    record(AT(GSystemServices, https), https_record),
    record(AT(GSystemServices, telnet), telnet_record),
    record(AT(GSystemServices, ssh), ssh_record),
    record(AT(GSystemServices, snmp), snmp_record),
    record(AT(GSystemServices, syslog), syslog_record),
    record(AT(GSystemServices, ntp), ntp_record),
    record(AT(GSystemServices, alarm), alarm_record),
    record(AT(GSystemServices, web), web_record),
    record(AT(GSystemServices, cli), cli_record),
    record(AT(GSystemServices, log), log_record),
    record(AT(GSystemServices, tftp), tftp_record),
    record(AT(GSystemServices, config), config_record),
    record(AT(GSystemServices, acs), acs_record),
    record(AT(GSystemServices, auth), auth_record),
    record(AT(GSystemServices, fan), fan_record),
    record(AT(GSystemServices, routing), routing_record),
    record(AT(GSystemServices, source_guard), source_guard_record),
};
DESCRIBE(GSystemServices, services_record, services_fields);

static constexpr Field system_fields[] = {
    record(AT(GSystemCfg, network), system_network_record),
    record(AT(GSystemCfg, user), user_record, "users"),
    record(AT(GSystemCfg, services), services_record),
    record(AT(GSystemCfg, settings), common_settings_record),
};
DESCRIBE(GSystemCfg, system_record, system_fields);

} // namespace pondiff::tool
