/* The OLT's own settings and its eight GPON ports with their optics.
 *
 * Packed, little-endian; the layout is shared with the device software and must not change.
 */
#ifndef GCFG_OLT_H
#define GCFG_OLT_H

#include "scalars.h"

typedef struct __attribute__((packed)) GPonOltGeneralActivationCfg {
    GPonOntAuthenticationMode_t ont_authentication_mode;
    u32 activation_period;
    GBool_t check_password;
    GBool_t auto_reconfigure_ont;     /* reconfigure ONT interfaces automatically */
    GBool_t auto_reconfigure_channel; /* reconfigure GPON ports automatically */
    GBool_t auto_reconfigure_olt;     /* reconfigure the OLT automatically */
    GBool_t alt_activation_mode;      /* on = ONT passwords are sent in traps */
} GPonOltGeneralActivationCfg, GPonOltGeneralActivationCfg_t;

/* OLT redundancy. For the device software; has no commands. */
typedef struct __attribute__((packed)) GPonOltGeneralRedundancyCfg {
    GBool_t enabled;
    GOltRedundandancyMode_t mode;
    u8 peer_ip[4];
    u16 peer_port;
    GEnabled_t net_channel[GCFG_GPON_PORTS]; /* by GPON port */
} GPonOltGeneralRedundancyCfg, GPonOltGeneralRedundancyCfg_t;

typedef struct __attribute__((packed)) GPonOltGeneralL3DHCPCfg {
    GBool_t exist; /* 0 = absent */
    GBool_t relay_agent_enabled;
    u16 vid;
    GChar_t circuit_id_format[GCFG_ID_FORMAT_SIZE];
    GChar_t remote_id_format[GCFG_ID_FORMAT_SIZE];
    GBool_t overwrite_client_option82;
    GBool_t dos_block_enabled; /* flood protection */
    u32 bc_packet_per_second;  /* flood protection: packet limit */
    u32 port_block_time;       /* flood protection: blocking time */
    GBool_t trusted_server_enable;
    u8 trusted_primary[4];
    u8 trusted_secondary[4];
    u16 trusted_server_timeout;
} GPonOltGeneralL3DHCPCfg, GPonOltGeneralL3DHCPCfg_t;

typedef struct __attribute__((packed)) GPonOltGeneralL3PPPoECfg {
    GBool_t pppoe_plus_enabled;
    GChar_t circuit_id_format[GCFG_ID_FORMAT_SIZE];
    GChar_t remote_id_format[GCFG_ID_FORMAT_SIZE];
    u32_HEX_t vendor_id;
    u32 max_number_pppoe_sessions;
    u32 max_number_pppoe_sessions_per_user;
    GBool_t dos_block_enabled; /* flood protection */
    u32 bc_packet_per_second;  /* flood protection: packet limit */
    u32 port_block_time;       /* flood protection: blocking time */
} GPonOltGeneralL3PPPoECfg, GPonOltGeneralL3PPPoECfg_t;

/* Layer-3 DHCP and PPPoE settings. For the device software; has no commands. */
typedef struct __attribute__((packed)) GPonOltGeneralL3Cfg {
    GPonOltGeneralL3DHCPCfg dhcp[GCFG_L3_DHCP_ENTRIES]; /* by VLAN */
    GPonOltGeneralL3PPPoECfg pppoe;
} GPonOltGeneralL3Cfg, GPonOltGeneralL3Cfg_t;

/* The DHCP relay profile of one VLAN, in place of the default one. */
typedef struct __attribute__((packed)) GPonOltDhcpraCfgByVid {
    GBool_t exist;
    u16 vid;
    GProfileIndex_t profile; /* DHCP relay agent profile */
} GPonOltDhcpraCfgByVid, GPonOltDhcpraCfgByVid_t;

/* The DHCPv6 relay profile of one VLAN, in place of the default one. */
typedef struct __attribute__((packed)) GPonOltDhcpv6raCfgByVid {
    GBool_t exist;
    u16 vid;
    GProfileIndex_t profile; /* DHCPv6 relay agent profile */
} GPonOltDhcpv6raCfgByVid, GPonOltDhcpv6raCfgByVid_t;

typedef struct __attribute__((packed)) GPonOltGeneralDatapathCfg {
    GDatapathConfigModel_t model; /* counted from 0, the CLI counts from 1 */
    u16 broadcast_gem_port;
    u16 multicast_gem_port;
} GPonOltGeneralDatapathCfg, GPonOltGeneralDatapathCfg_t;

/* Encryption of GEM frames. */
typedef struct __attribute__((packed)) GPonOntEncryption {
    GBool_t enable;
    u16 key_update_interval;
} GPonOntEncryption, GPonOntEncryption_t;

typedef struct __attribute__((packed)) GPonOltGeneralDBAShortCycle {
    GEnabled_t gpon_port[GCFG_GPON_PORTS]; /* ports go in pairs 0-1 to 6-7: the flag of the even one applies to both */
} GPonOltGeneralDBAShortCycle, GPonOltGeneralDBAShortCycle_t;

typedef struct __attribute__((packed)) GPonOltGeneralCfg {
    u32 revision;
    GPonOltGeneralActivationCfg activation;
    GBool_t block_duplicated_mac;
    u32 ont_block_time;
    GPonOltGeneralRedundancyCfg redundancy_cfg;
    GBool_t redundancy;
    GPonOltGeneralL3Cfg l3;
    u32 dhcpra_shaper;                    /* rate of the DHCP relay */
    u32 pppoeia_shaper;                   /* rate of the PPPoE intermediate agent */
    GProfileIndex_t profile_olt_pppoeia;  /* default PPPoE intermediate agent profile, -1 = unassigned */
    GProfileIndex_t profile_olt_dhcpra;   /* default DHCP relay agent profile, -1 = unassigned */
    GProfileIndex_t profile_olt_dhcpv6ra; /* default DHCPv6 relay agent profile, -1 = unassigned */
    GPonOltDhcpraCfgByVid profile_olt_dhcpra_redefinition[GCFG_RELAY_REDEFINITIONS];
    GPonOltDhcpv6raCfgByVid profile_olt_dhcpv6ra_redefinition[GCFG_RELAY_REDEFINITIONS];
    GPonOltGeneralDatapathCfg datapath;
    s16 high_rx_power_alarm_level; /* high receive power at an ONT */
    s16 low_rx_power_alarm_level;  /* low receive power at an ONT */
    GPonOntEncryption encryption;
    u32 absent_counter_max; /* time-out of ONTs that are not activated */
    GBool_t dba_reduced_latency;
    GBool_t dba_excess_allocations; /* with reduced latency: on = fair allocations, off = most demanding */
    GBool_t alarm_ont_battery_power_enabled;
    GBool_t alarm_ont_battery_low_enabled;
    GPonOltGeneralDBAShortCycle dba_short_cycle;
} GPonOltGeneralCfg, GPonOltGeneralCfg_t;

/* Timing of one port's burst-mode receiver and laser, in the units of the optics hardware. */
typedef struct __attribute__((packed)) GPonOltGeneralOpticsCfg {
    GEnabled_t laser_reset_enable;
    GOpticsPolarity_t laser_reset_polarity;
    GOpticsPolarity_t laser_sd_polarity;
    GOpticsSDSource_t sd_source; /* signal detect */
    GEnabled_t sd_hold_normal;
    GEnabled_t sd_hold_snr_ranging;
    GOpticsResetType_t reset_type_snr_ranging;
    GOpticsResetTypeNormal_t reset_type_normal;
    u8 reset_data_burst_bcdr_d1; /* BCDR = burst clock and data recovery */
    u8 reset_data_burst_bcdr_d2;
    u8 reset_data_burst_laser_d1;
    u8 reset_data_burst_laser_d2;
    u8 reset_snr_burst_bcdr_d1;
    u8 reset_snr_burst_bcdr_d2;
    u8 reset_snr_burst_laser_d1;
    u8 reset_snr_burst_laser_d2;
    u8 reset_rng_burst_bcdr_d1;
    u8 reset_rng_burst_bcdr_d2;
    u8 reset_rng_burst_laser_d1;
    u8 reset_rng_burst_laser_d2;
    u8 reset_single_bcdr_d1;
    u8 reset_single_bcdr_d2;
    u8 reset_single_laser_d1;
    u8 reset_single_laser_d2;
    u8 reset_double_bcdr_d4; /* d4 precedes d3 */
    u8 reset_double_bcdr_d3;
    u8 reset_double_laser_d4;
    u8 reset_double_laser_d3;
    u16 delay_snr_timer;
    u16 delay_snr_preamble;
    u16 delay_snr_delimiter;
    u16 delay_snr_burst;
    u16 delay_rng_timer;
    u16 delay_rng_preamble;
    u16 delay_rng_delimiter;
    u16 delay_rng_burst;
    u16 delay_single_burst;
    u16 delay_double_burst;
    u8 preamble_correlation_preamble_length;
    u8 preamble_length_snr_rng;
    u8 preamble_guard_time_data_mode;
    u8 preamble_type1_size_data;
    u8 preamble_type2_size_data;
    u8 preamble_type3_size_data;
    u8 preamble_type3_pattern;
    u8 preamble_delimiter_size;
    u8 preamble_delimiter_byte1;
    u8 preamble_delimiter_byte2;
    u8 preamble_delimiter_byte3;
    GOpticsVoltageInterface_t voltage_if_mode;
    u32 rssi_trigger_pulse_width;
} GPonOltGeneralOpticsCfg, GPonOltGeneralOpticsCfg_t;

/* One GPON port. */
typedef struct __attribute__((packed)) GPonOltChannelCfg {
    u32 revision;
    GEnabled_t enabled; /* administratively up */
    GBool_t fec_down;   /* forward error correction downstream */
    u32 max_ont_count;
    GProfileIndex_t profile_olt_vlan;          /* VLAN profile, -1 = unassigned */
    GProfileIndex_t profile_olt_address_table; /* address-table profile, -1 = unassigned */
    GBool_t use_custom_optics_settings;        /* the port uses its own optics settings */
    GBool_t mac_migration;
    GPonOltGeneralOpticsCfg optics;
    u8 onus_range; /* 0 = not set */
    GBool_t unknown_multicast_forward;
    u8 unknown_multicast_forward_gem_port; /* GEM port type, named by GPonGEMPortType_enum */
} GPonOltChannelCfg, GPonOltChannelCfg_t;

typedef struct __attribute__((packed)) GPonOltCfg {
    GPonOltGeneralCfg general;
    GPonOltChannelCfg channel[GCFG_GPON_PORTS];
} GPonOltCfg, GPonOltCfg_t;

#endif
