/* The system part of the configuration: management network, users, services and common settings.
 *
 * Packed, little-endian; the layout is shared with the device software and must not change.
 */
#ifndef GCFG_SYSTEM_H
#define GCFG_SYSTEM_H

#include "scalars.h"

typedef struct __attribute__((packed)) GSystemNetworkCfg {
    u32 revision;
    GChar_t hostname[256];
    u8 ipaddr[4]; /* management interface */
    u8 netmask[4];
    u16 mngmtvlan; /* VLAN id of management traffic */
    u8 gateway[4];
    u8 vlan_prio; /* 802.1p priority of management traffic */
    u8 dscp;      /* DSCP of management traffic */
    u8 ACSIp[4];  /* auto-configuration server */
    u8 ACSMask[4];
    u16 ACSVid; /* VLAN id of the auto-configuration server */
} GSystemNetworkCfg, GSystemNetworkCfg_t;

typedef struct __attribute__((packed)) GSystemUserGroup {
    GBool_t exist; /* 0 = absent */
    GUsersGroup_t name;
} GSystemUserGroup, GSystemUserGroup_t;
static_assert(sizeof(GSystemUserGroup) == 4, "size of GSystemUserGroup");

typedef struct __attribute__((packed)) GSystemUser {
    u32 revision;
    GBool_t exist;         /* 0 = absent */
    GChar_t name[32];      /* identifies the user in the CLI */
    GChar_t password[130]; /* encrypted form */
    u8 priority;           /* privilege level */
    GSystemUserGroup group[GCFG_USER_GROUPS];
} GSystemUser, GSystemUser_t;
static_assert(sizeof(GSystemUser) == 233, "size of GSystemUser");

/* One permitted source network of an access service. */
typedef struct __attribute__((packed)) GSystemServiceAllow {
    u8 ip[4];
    u8 mask; /* prefix length */
} GSystemServiceAllow, GSystemServiceAllow_t;
static_assert(sizeof(GSystemServiceAllow) == 5, "size of GSystemServiceAllow");

typedef struct __attribute__((packed)) GSystemHttpCfg {
    u32 revision;
    GBool_t enabled;
    GBool_t access_control; /* on = only sources in the allow list may connect */
    GSystemServiceAllow allow[GCFG_ALLOW_ENTRIES];
} GSystemHttpCfg, GSystemHttpCfg_t;

typedef struct __attribute__((packed)) GSystemHttpsCfg {
    u32 revision;
    GBool_t enabled;
    GBool_t access_control; /* on = only sources in the allow list may connect */
    GSystemServiceAllow allow[GCFG_ALLOW_ENTRIES];
} GSystemHttpsCfg, GSystemHttpsCfg_t;

typedef struct __attribute__((packed)) GSystemTelnetCfg {
    u32 revision;
    GBool_t enabled;
    GBool_t access_control; /* on = only sources in the allow list may connect */
    GSystemServiceAllow allow[GCFG_ALLOW_ENTRIES];
} GSystemTelnetCfg, GSystemTelnetCfg_t;

typedef struct __attribute__((packed)) GSystemSshCfg {
    u32 revision;
    GBool_t enabled;
    GBool_t access_control; /* on = only sources in the allow list may connect */
    GSystemServiceAllow allow[GCFG_ALLOW_ENTRIES];
} GSystemSshCfg, GSystemSshCfg_t;

typedef struct __attribute__((packed)) GSystemSnmpTrap {
    GSnmpTrapType_t type;
    u8 ipaddr[4]; /* receiver */
} GSystemSnmpTrap, GSystemSnmpTrap_t;
static_assert(sizeof(GSystemSnmpTrap) == 6, "size of GSystemSnmpTrap");

/* Name of one interface in SNMP. */
typedef struct __attribute__((packed)) GSystemSnmpAlias {
    GChar_t name[64];
    GBool_t upDownTrapEnable; /* send a trap when the interface goes up or down */
} GSystemSnmpAlias, GSystemSnmpAlias_t;
static_assert(sizeof(GSystemSnmpAlias) == 66, "size of GSystemSnmpAlias");

typedef struct __attribute__((packed)) GSystemSnmpCfg {
    u32 revision;
    GBool_t enabled;
    GBool_t access_control; /* on = only sources in the allow list may query */
    GSystemServiceAllow allow[GCFG_ALLOW_ENTRIES];
    GSystemSnmpTrap traps[GCFG_SNMP_TRAPS];
    GSystemSNMPversion_t version;
    GChar_t communityro[64]; /* read community */
    GChar_t communityrw[64]; /* write community */
    GChar_t trap[64];        /* trap community */
    GChar_t location[255];
    GChar_t contact[255];
    GSystemSnmpAlias alias[GCFG_SNMP_ALIASES];
    u32 serialNum;            /* layout of ONT serial numbers: the low 16 bits are a GOntSnDisplayFormatType_t */
    u8 engineID[13];          /* a GSNMPEngineID_t */
    GChar_t pattern_cfg[512]; /* this and the next two: configuration texts of the agent */
    GChar_t private_cfg[512];
    GChar_t binary_cfg[512];
} GSystemSnmpCfg, GSystemSnmpCfg_t;

/* The lowest severity that is sent to each destination. */
typedef struct __attribute__((packed)) GSystemLogDestCfg {
    GPonLogLevel_t system;
    GPonLogLevel_t console;
    GPonLogLevel_t remotes; /* remote log server */
    GPonLogLevel_t file;
} GSystemLogDestCfg, GSystemLogDestCfg_t;
static_assert(sizeof(GSystemLogDestCfg) == 8, "size of GSystemLogDestCfg");

typedef struct __attribute__((packed)) GSystemSyslogCfg {
    u32 revision;
    GBool_t enabled;
    u8 ip[4]; /* remote log server */
    u32 size; /* of the log buffer */
    GSystemLogDestCfg destinations;
} GSystemSyslogCfg, GSystemSyslogCfg_t;

typedef struct __attribute__((packed)) GSystemNtpCfg {
    u32 revision;
    GBool_t enabled;
    u8 ntpserver[4];
    u16 interval;
    s16 timezone; /* signed offset */
    GBool_t daylightsaving;
} GSystemNtpCfg, GSystemNtpCfg_t;

typedef struct __attribute__((packed)) GSystemAlarmTypeCfg {
    u32 revision;
    GAlarmType_t type; /* which alarm this slot holds */
    GAlarmSeverity_t severity;
    GBool_t send_on_in;  /* report when the alarm is raised */
    GBool_t send_on_out; /* report when it clears */
    s32 ttl;             /* time to live */
} GSystemAlarmTypeCfg, GSystemAlarmTypeCfg_t;
static_assert(sizeof(GSystemAlarmTypeCfg) == 17, "size of GSystemAlarmTypeCfg");

/* Thresholds of the alarms that concern the device itself. */
typedef struct __attribute__((packed)) GSystemAlarmSystemCfg {
    u32 revision;
    u8 load_average[3]; /* only the first has a command */
    u16 free_ram;
    u16 free_space;
    u8 temperature[GCFG_TEMPERATURE_SENSORS];     /* maximum of each sensor */
    s8 min_temperature[GCFG_TEMPERATURE_SENSORS]; /* minimum of each sensor */
    u16 min_rpm;                                  /* lowest fan speed */
    u16 max_rpm;                                  /* highest fan speed */
} GSystemAlarmSystemCfg, GSystemAlarmSystemCfg_t;
static_assert(sizeof(GSystemAlarmSystemCfg) == 19, "size of GSystemAlarmSystemCfg");

typedef struct __attribute__((packed)) GSystemAlarmCfg {
    GSystemAlarmTypeCfg type[GCFG_ALARM_TYPES];
    GSystemAlarmSystemCfg cfg;
} GSystemAlarmCfg, GSystemAlarmCfg_t;

typedef struct __attribute__((packed)) GSystemWebCfg {
    u32 revision;
    u32 session_timeout;
} GSystemWebCfg, GSystemWebCfg_t;

/* The columns of the CLI's list of ONTs. */
typedef struct __attribute__((packed)) GCustomOntListShowing {
    GEnabled_t serial; /* always shown */
    GEnabled_t ont_id; /* always shown */
    GEnabled_t assigned_channel;
    GEnabled_t channel; /* GPON port */
    GEnabled_t status;
    GEnabled_t rssi;
    GEnabled_t profile_management;
    GEnabled_t profile_shaping;
    GEnabled_t profile_ports;
    GEnabled_t profile_cross_connect;
    GEnabled_t profile_alloc;
    GEnabled_t version;
    GEnabled_t equipment_id;
    GEnabled_t config_password;
    GEnabled_t received_password;
    GEnabled_t description;
} GCustomOntListShowing, GCustomOntListShowing_t;
static_assert(sizeof(GCustomOntListShowing) == 32, "size of GCustomOntListShowing");

typedef struct __attribute__((packed)) GSystemCliCfg {
    u32 revision;
    u32 session_timeout;
    GCustomOntListShowing custom_ont_list_showing;
    u8 number_of_cli_sessions; /* upper limit */
} GSystemCliCfg, GSystemCliCfg_t;

typedef struct __attribute__((packed)) GSubmoduleLogCfg {
    u32 revision;
    GPonLogLevel_t level;
    GPonLogDest_t dest;
    GEnabled_t show_time;
    GEnabled_t show_prog_name;
    GEnabled_t show_level;
    GEnabled_t show_submodule_name;
} GSubmoduleLogCfg, GSubmoduleLogCfg_t;
static_assert(sizeof(GSubmoduleLogCfg) == 16, "size of GSubmoduleLogCfg");

typedef struct __attribute__((packed)) GSystemLogCfg {
    GSubmoduleLogCfg submodule[GCFG_LOG_SUBMODULES];
} GSystemLogCfg, GSystemLogCfg_t;

/* Backup of the configuration to a server. */
typedef struct __attribute__((packed)) GSystemTftpCfg {
    u32 revision;
    GEnabled_t backup_on_conf_save; /* whenever the configuration is saved */
    GEnabled_t backup_on_timer;     /* periodically */
    s32 backup_on_timer_period;
    GChar_t backup_uri[256];
} GSystemTftpCfg, GSystemTftpCfg_t;

typedef struct __attribute__((packed)) GSystemConfigCfg {
    u32 revision;
    GEnabled_t autosave;
    u8 autosave_hour;
} GSystemConfigCfg, GSystemConfigCfg_t;

/* Auto-configuration server. For the device software; has no commands. */
typedef struct __attribute__((packed)) GSystemAcsCfg {
    u32 revision;
    GBool_t enabled;
    u16 port;
    GChar_t path[64];
    GChar_t scheme[64];
    GChar_t login[32];
    GChar_t password[130];
    u8 external_fw_ip[4];
    u16 external_fw_port;
    u16 local_fw_port;
    GBool_t dhcp_server_enabled;
    u8 dhcp_ip_range_first[4];
    u8 dhcp_ip_range_last[4];
    u32 dhcp_max_lease_time;
    GBool_t dhcp_insert_option43;
} GSystemAcsCfg, GSystemAcsCfg_t;

/* One authentication server. */
typedef struct __attribute__((packed)) GSystemAuthNetCfg {
    u8 ip[4];
    u16 port;
    u16 timeout;
    GChar_t secret[256]; /* shared with the server */
} GSystemAuthNetCfg, GSystemAuthNetCfg_t;

/* User authentication. For the device software; has no commands. */
typedef struct __attribute__((packed)) GSystemAuthCfg {
    u32 revision;
    GAuthType_t authtype;
    GAuthType_t accounting;
    GBool_t accounting_cmd;
    GBool_t authorization;
    GSystemAuthNetCfg server;
    GSystemAuthNetCfg radius_server;
} GSystemAuthCfg, GSystemAuthCfg_t;

/* Fans. For the device software; has no commands. */
typedef struct __attribute__((packed)) GSystemFanCfg {
    u32 revision;
    u8 speed_table[8]; /* by temperature step */
    s8 fixed_speed;
    u8 min_speed;
} GSystemFanCfg, GSystemFanCfg_t;

typedef struct __attribute__((packed)) GSystemRouteCfg {
    GBool_t exist; /* 0 = absent */
    u8 prefix[4];
    u8 mask; /* prefix length */
    u8 gateway[4];
} GSystemRouteCfg, GSystemRouteCfg_t;
static_assert(sizeof(GSystemRouteCfg) == 11, "size of GSystemRouteCfg");

typedef struct __attribute__((packed)) GSystemRoutingCfg {
    u32 revision;
    GSystemRouteCfg route[GCFG_ROUTES];
} GSystemRoutingCfg, GSystemRoutingCfg_t;

/* Binds an address to a service of an ONT. */
typedef struct __attribute__((packed)) GSystemSourceGuardBindCfg {
    GBool_t exist; /* 0 = absent */
    u8 ip[4];
    u8 mac[6];
    u8 channel_index; /* GPON port */
    u32 ont_id;       /* ONT on that port */
    u8 service_id;
} GSystemSourceGuardBindCfg, GSystemSourceGuardBindCfg_t;
static_assert(sizeof(GSystemSourceGuardBindCfg) == 18, "size of GSystemSourceGuardBindCfg");

typedef struct __attribute__((packed)) GSystemSourceGuardCfgVlanAllowed {
    GBool_t allowed; /* on = source guard ignores the VLAN */
} GSystemSourceGuardCfgVlanAllowed, GSystemSourceGuardCfgVlanAllowed_t;
static_assert(sizeof(GSystemSourceGuardCfgVlanAllowed) == 2, "size of GSystemSourceGuardCfgVlanAllowed");

typedef struct __attribute__((packed)) GSystemSourceGuardCfg {
    u32 revision;
    GBool_t enabled;
    GSystemIPSourceGuardMode_t mode;
    GSystemSourceGuardBindCfg bind[GCFG_SOURCE_GUARD_BINDINGS];
    GSystemSourceGuardCfgVlanAllowed vid[GCFG_SOURCE_GUARD_VLANS]; /* slot = VLAN number */
} GSystemSourceGuardCfg, GSystemSourceGuardCfg_t;

typedef struct __attribute__((packed)) GSystemServices {
    GSystemHttpCfg http;
    GSystemHttpsCfg https;
    GSystemTelnetCfg telnet;
    GSystemSshCfg ssh;
    GSystemSnmpCfg snmp;
    GSystemSyslogCfg syslog;
    GSystemNtpCfg ntp;
    GSystemAlarmCfg alarm;
    GSystemWebCfg web;
    GSystemCliCfg cli;
    GSystemLogCfg log;
    GSystemTftpCfg tftp;
    GSystemConfigCfg config;
    GSystemAcsCfg acs;
    GSystemAuthCfg auth;
    GSystemFanCfg fan;
    GSystemRoutingCfg routing;
    GSystemSourceGuardCfg source_guard;
} GSystemServices, GSystemServices_t;

typedef struct __attribute__((packed)) GSystemPrivilegeLevel {
    u8 privilege[17];
} GSystemPrivilegeLevel, GSystemPrivilegeLevel_t;

typedef struct __attribute__((packed)) GSystemCommonSettings {
    u32 revision;
    GOntSnDisplayFormatType_t ont_sn_format; /* layout in which the CLI shows ONT serial numbers */
    GSystemPrivilegeLevel level[GCFG_PRIVILEGE_LEVELS];
} GSystemCommonSettings, GSystemCommonSettings_t;

typedef struct __attribute__((packed)) GSystemCfg {
    GSystemNetworkCfg network;
    GSystemUser user[GCFG_USERS];
    GSystemServices services;
    GSystemCommonSettings settings;
} GSystemCfg, GSystemCfg_t;
static_assert(sizeof(GSystemCfg) == 42768, "size of GSystemCfg");

#endif
