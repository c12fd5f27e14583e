/* The profiles of the OLT: VLAN, address table, PPPoE intermediate agent, DHCP and DHCPv6 relay agent.
 *
 * Packed, little-endian; the layout is shared with the device software and must not change. Every profile begins with
 * the same four fields: revision, exist, name, description.
 */
#ifndef GCFG_PROFILES_OLT_H
#define GCFG_PROFILES_OLT_H

#include "scalars.h"

/* Ethertypes of one direction. */
typedef struct __attribute__((packed)) GVlanGeneralCfg {
    u16_HEX_t extended_svlan_type;
    u16_HEX_t extended_cvlan_type;
    u16_HEX_t insertion_svlan_ethertype; /* of an S-VLAN tag that is inserted */
    u16_HEX_t insertion_cvlan_ethertype; /* of a C-VLAN tag that is inserted */
} GVlanGeneralCfg, GVlanGeneralCfg_t;

typedef struct __attribute__((packed)) GPonProfileOltVlan {
    u32 revision;
    GBool_t exist; /* 0 = absent */
    GChar_t name[GCFG_NAME_SIZE];
    GChar_t description[GCFG_DESCRIPTION_SIZE];
    GVlanGeneralCfg config_general[GCFG_VLAN_DIRECTIONS]; /* uplink, downlink */
} GPonProfileOltVlan, GPonProfileOltVlan_t;
static_assert(sizeof(GPonProfileOltVlan) == 294, "size of GPonProfileOltVlan");

typedef struct __attribute__((packed)) GAddressTableConfig {
    GBool_t remove_when_aged;
    GBool_t discard_pid_unlearned_sa; /* discard source addresses that are unknown on the port-ID */
    u32 aging_timer;
} GAddressTableConfig, GAddressTableConfig_t;

typedef struct __attribute__((packed)) GSvlanAddressTableConfig {
    GBool_t exist; /* 0 = absent */
    s16 svlan;     /* S-VLAN id, 0 = empty slot */
    GVlanForwardingMode_t forwarding_mode;
    GBool_t use_svlan; /* the S-VLAN is part of the table's key */
    GBool_t use_cvlan; /* the C-VLAN is part of the table's key */
    GBool_t use_pbits; /* the priority bits are part of the table's key */
    GBool_t discard_unknown;
} GSvlanAddressTableConfig, GSvlanAddressTableConfig_t;

typedef struct __attribute__((packed)) GPonProfileOltAddressTable {
    u32 revision;
    GBool_t exist; /* 0 = absent */
    GChar_t name[GCFG_NAME_SIZE];
    GChar_t description[GCFG_DESCRIPTION_SIZE];
    GAddressTableConfig table_config;
    GSvlanAddressTableConfig svlan_config[GCFG_SVLANS];
} GPonProfileOltAddressTable, GPonProfileOltAddressTable_t;
static_assert(sizeof(GPonProfileOltAddressTable) == 7454, "size of GPonProfileOltAddressTable");

typedef struct __attribute__((packed)) GPonProfileOltPppoeIa {
    u32 revision;
    GBool_t exist; /* 0 = absent */
    GChar_t name[GCFG_NAME_SIZE];
    GChar_t description[GCFG_DESCRIPTION_SIZE];
    GBool_t pppoe_plus_enabled;                     /* agent on */
    GChar_t circuit_id_format[GCFG_ID_FORMAT_SIZE]; /* may hold %CHANNELID% */
    GChar_t remote_id_format[GCFG_ID_FORMAT_SIZE];  /* may hold %CHANNELID% */
    u32_HEX_t vendor_id;                            /* 24 bits */
    u32 max_number_pppoe_sessions;
    u32 max_number_pppoe_sessions_per_user; /* 5 = unlimited */
    GBool_t dos_block_enabled;              /* flood protection */
    u32 bc_packet_per_second;               /* flood protection: packet limit */
    u32 port_block_time;                    /* flood protection: blocking time */
    GBool_t sessions_monitoring;
} GPonProfileOltPppoeIa, GPonProfileOltPppoeIa_t;
static_assert(sizeof(GPonProfileOltPppoeIa) == 816, "size of GPonProfileOltPppoeIa");

typedef struct __attribute__((packed)) GPonProfileOltDhcpRa {
    u32 revision;
    GBool_t exist; /* 0 = absent */
    GChar_t name[GCFG_NAME_SIZE];
    GChar_t description[GCFG_DESCRIPTION_SIZE];
    GBool_t relay_agent_enabled;
    GChar_t circuit_id_format[GCFG_ID_FORMAT_SIZE]; /* option 82, may hold %CHANNELID% */
    GChar_t remote_id_format[GCFG_ID_FORMAT_SIZE];  /* option 82, may hold %CHANNELID% */
    GBool_t overwrite_client_option82;              /* replace the option that the client sends */
    GBool_t dos_block_enabled;                      /* flood protection */
    u32 bc_packet_per_second;                       /* flood protection: packet limit */
    u32 port_block_time;                            /* flood protection: blocking time */
    GBool_t trusted_server_enable;                  /* on = only trusted servers are answered */
    u8 trusted_primary[4];
    u8 trusted_secondary[4];
    u16 trusted_server_timeout;
    GDataMode_t circuit_id_mode;
    GDataMode_t remote_id_mode;
} GPonProfileOltDhcpRa, GPonProfileOltDhcpRa_t;
static_assert(sizeof(GPonProfileOltDhcpRa) == 820, "size of GPonProfileOltDhcpRa");

typedef struct __attribute__((packed)) GPonProfileOltDhcpv6Ra {
    u32 revision;
    GBool_t exist; /* 0 = absent */
    GChar_t name[GCFG_NAME_SIZE];
    GChar_t description[GCFG_DESCRIPTION_SIZE];
    GBool_t relay_agent_enabled;
    GChar_t interface_id_format[GCFG_ID_FORMAT_SIZE]; /* may hold %CHANNELID% */
    GChar_t remote_id_format[GCFG_ID_FORMAT_SIZE];    /* may hold %CHANNELID% */
    GBool_t write_interface_id_option;                /* add the interface-id option */
    GBool_t write_remote_id_option;                   /* add the remote-id option */
    GBool_t dos_block_enabled;                        /* flood protection */
    u32 bc_packet_per_second;                         /* flood protection: packet limit */
    u32 port_block_time;                              /* flood protection: blocking time */
    GBool_t trusted_server_enable;                    /* on = only trusted servers are answered */
    GIPV6Addr_t trusted_primary;
    GIPV6Addr_t trusted_secondary;
    u16 trusted_server_timeout;
    GDataMode_t interface_id_mode;
    GDataMode_t remote_id_mode;
} GPonProfileOltDhcpv6Ra, GPonProfileOltDhcpv6Ra_t;
static_assert(sizeof(GPonProfileOltDhcpv6Ra) == 846, "size of GPonProfileOltDhcpv6Ra");

typedef struct __attribute__((packed)) GPonProfilesOlt {
    GPonProfileOltVlan vlan[GCFG_OLT_PROFILES];
    GPonProfileOltAddressTable address_table[GCFG_OLT_PROFILES];
    GPonProfileOltPppoeIa pppoe_ia[GCFG_OLT_PROFILES];
    GPonProfileOltDhcpRa dhcp_ra[GCFG_OLT_PROFILES];
    GPonProfileOltDhcpv6Ra dhcpv6_ra[GCFG_OLT_PROFILES];
} GPonProfilesOlt, GPonProfilesOlt_t;

#endif
