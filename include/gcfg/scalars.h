/* Scalar types, enumerations and array bounds of the configuration records.
 *
 * The records are shared with the device software, so their layout is fixed: every record is packed (no gaps, no
 * padding, alignment 1), integers are little-endian, and character arrays hold a terminated text whose capacity counts
 * the terminator. Multi-byte fields are often unaligned: read them by value, never through a pointer or reference.
 */
#ifndef GCFG_SCALARS_H
#define GCFG_SCALARS_H

#if !defined(__cplusplus) && (!defined(__STDC_VERSION__) || __STDC_VERSION__ < 201112L)
#error "The configuration records need C11 or later: compile with -std=c11 or -std=gnu11."
#endif

#include <assert.h>
#include <stdint.h>

static_assert(__BYTE_ORDER__ == __ORDER_LITTLE_ENDIAN__, "the records are little-endian");

typedef uint8_t u8;
typedef uint16_t u16;
typedef uint32_t u32;
typedef uint64_t u64;
typedef int8_t s8;
typedef int16_t s16;
typedef int32_t s32;

typedef char GChar_t;

/* Switches: 0 = off, any other value = on. */
typedef u16 GBool_t;
typedef u16 GEnabled_t;
typedef u16 GEnabledThirdState_t; /* three states */

typedef u16 u16_HEX_t; /* shown in hexadecimal */
typedef u32 u32_HEX_t; /* shown in hexadecimal */

typedef s16 GProfileIndex_t; /* slot in the profile array of its kind, -1 = unassigned */

typedef u8 GAlarmSeverity_t;
typedef u32 GAlarmType_t; /* alarm code, not the alarm's slot */

typedef u8 GIPAddr_t[4];    /* most significant byte first */
typedef u8 GIPV6Addr_t[16]; /* most significant byte first */
typedef u8 GMACAddr_t[6];
typedef u8 GOntSerial_t[8];      /* 4 vendor bytes, 4 serial bytes */
typedef char GOntPassword_t[11]; /* up to 10 characters and the terminator */
typedef u8 GSNMPEngineID_t[13];

/* Enumerations whose CLI words come from the device's registry, under the type's name with _enum in place of _t. */
typedef u16 GVlanForwardingMode_t;
typedef u16 GOntMulticastIpVersion_t;
typedef u16 GOpticsPolarity_t;
typedef u16 GOpticsVoltageInterface_t;
typedef u16 GOntPortUniSpeed_t;
typedef u16 GOntPortUniDuplex_t;
typedef u16 GDBAStatusReport_t;
typedef u16 GOntCustomConfigModel_t;
typedef u16 GSystemIPSourceGuardMode_t;
typedef u16 GOntTagMode_t;
typedef u16 GOntUpstreamIgmpMode_t;
typedef u16 GOntCrossConnectType_t;
typedef u16 GSnmpTrapType_t;
typedef u16 GOntSnDisplayFormatType_t; /* 0 = pretty, 1 = dense, 2 = dashed */
typedef u16 GPonOntAuthenticationMode_t;

/* Other enumerations. The CLI shows them in words of the library's own, as numbers, or not at all. The registry may
 * name them, too: documents use its names. */
typedef u16 GOpticsSDSource_t;        /* 0 = laser-sd, 1 = bcdr-lock, 2 = bcdr-sd */
typedef u16 GOpticsResetType_t;       /* 0 = delay-based, 1 = single-reset, 2 = double-reset */
typedef u16 GOpticsResetTypeNormal_t; /* 0 = start-burst-based, 1 = end-burst-based */
typedef u16 GDBAServiceClass_t;       /* 0 = data, 1 = omci, 2 = voip, 3 = cbr, 4 = periodic-allocation, 5 = type5 */
typedef u16 GDatapathConfigModel_t;   /* counted from 0, shown counted from 1 */
typedef u16 GUsersGroup_t;
typedef u16 GSystemSNMPversion_t; /* 1 = v2, 2 = v3 */
typedef u16 GPonLogLevel_t;       /* 0 = emergency ... 7 = debug, anything else = none */
typedef u16 GPonLogDest_t;        /* 0 = syslog, 1 = console, 2 = telnet */
typedef u16 GOntBridgeModel_t;
typedef u16 GOntUpstreamIgmpTagControl_t;        /* 1 = add, 2 = replace tag, 3 = replace VID, anything else = pass */
typedef u16 GOntDownstreamMulticastTagControl_t; /* 1 to 7, anything else = pass */
typedef u16 GOltRedundandancyMode_t;
typedef u16 GAuthType_t;
typedef u16 GDataMode_t; /* 0 = text, anything else = binary */

/* Array bounds. One enumeration, so that they may be compared with one another. */
enum {
    GCFG_USERS = 16,
    GCFG_USER_GROUPS = 16,
    GCFG_PRIVILEGE_LEVELS = 14,
    GCFG_ALLOW_ENTRIES = 16, /* allow list of one access service */
    GCFG_SNMP_TRAPS = 16,
    GCFG_SNMP_ALIASES = 18,
    GCFG_ALARM_TYPES = 46,
    GCFG_TEMPERATURE_SENSORS = 2,
    GCFG_LOG_SUBMODULES = 14,
    GCFG_ROUTES = 512,
    GCFG_SOURCE_GUARD_BINDINGS = 1024,
    GCFG_SOURCE_GUARD_VLANS = 4095,

    GCFG_GPON_PORTS = 8,
    GCFG_L3_DHCP_ENTRIES = 16,
    GCFG_RELAY_REDEFINITIONS = 16, /* relay profiles by VLAN, of DHCP and of DHCPv6 each */

    GCFG_ONTS = 532,
    GCFG_ONTS_PER_PORT = 64, /* the CLI shows ONT index i as port i / 64 and id i % 64 */
    GCFG_SERVICES = 16,      /* services of one ONT */
    GCFG_UNI_PORTS = 4,
    GCFG_VOICE_PORTS = 2,
    GCFG_TUNNEL_VIDS = 42, /* selective tunnel of one service */

    GCFG_TERMINAL_VLANS = 32,

    GCFG_OLT_PROFILES = 32, /* of each OLT kind */
    GCFG_SHAPING_PROFILES = 128,
    GCFG_CROSS_CONNECT_PROFILES = 128,
    GCFG_ALLOC_PROFILES = 128,
    GCFG_ONT_PROFILES = 32, /* of each other ONT kind: ports, management, template, voice */

    GCFG_VLAN_DIRECTIONS = 2,  /* 0 = uplink, 1 = downlink */
    GCFG_SVLANS = 512,         /* S-VLAN slots of an address-table profile */
    GCFG_DYNAMIC_ENTRIES = 20, /* multicast group ranges of a ports profile, of IGMP and of MLD each */
    GCFG_SHAPERS = 16,         /* downstream policers, and upstream shapers of each traffic class */

    /* Capacities of texts, terminator included. */
    GCFG_NAME_SIZE = 16, /* profile or terminal VLAN */
    GCFG_DESCRIPTION_SIZE = 256,
    GCFG_ID_FORMAT_SIZE = 256 /* circuit-id, remote-id and interface-id formats */
};

#endif
