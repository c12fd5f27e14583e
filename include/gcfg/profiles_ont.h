/* The profiles of the ONTs: shaping, cross-connect, allocation (DBA), ports, management, template and voice.
 *
 * Packed, little-endian; the layout is shared with the device software and must not change. Every profile begins with
 * the same four fields: revision, exist, name, description.
 */
#ifndef GCFG_PROFILES_ONT_H
#define GCFG_PROFILES_ONT_H

#include "ont.h"
#include "scalars.h"

/* One downstream policer. */
typedef struct __attribute__((packed)) GPonOntShapingDownstreamParams {
    GBool_t enable;
    u32 peak_rate;
} GPonOntShapingDownstreamParams, GPonOntShapingDownstreamParams_t;
static_assert(sizeof(GPonOntShapingDownstreamParams) == 6, "size of GPonOntShapingDownstreamParams");

typedef struct __attribute__((packed)) GPonOntShapingDownstream {
    GBool_t one_policer; /* on = one policer for all traffic */
    GPonOntShapingDownstreamParams policer[GCFG_SHAPERS];
} GPonOntShapingDownstream, GPonOntShapingDownstream_t;
static_assert(sizeof(GPonOntShapingDownstream) == 98, "size of GPonOntShapingDownstream");

/* One upstream shaper. */
typedef struct __attribute__((packed)) GPonOntShapingUpstreamParams {
    GBool_t enable;
    u32 commited_rate;
    u32 peak_rate;
} GPonOntShapingUpstreamParams, GPonOntShapingUpstreamParams_t;
static_assert(sizeof(GPonOntShapingUpstreamParams) == 10, "size of GPonOntShapingUpstreamParams");

typedef struct __attribute__((packed)) GPonOntStormControl {
    u32 broadcast_threshold; /* rate limit */
    u32 multicast_threshold; /* rate limit */
    GBool_t broadcast_logging;
    GBool_t multicast_logging;
    GBool_t broadcast_shutdown; /* a storm shuts the port down */
    GBool_t multicast_shutdown; /* a storm shuts the port down */
} GPonOntStormControl, GPonOntStormControl_t;
static_assert(sizeof(GPonOntStormControl) == 16, "size of GPonOntStormControl");

typedef struct __attribute__((packed)) GPonOntShapingUpstream {
    GPonOntShapingUpstreamParams shaper[GCFG_SHAPERS]; /* any traffic */
    GPonOntShapingUpstreamParams shaper_unicast[GCFG_SHAPERS];
    GPonOntShapingUpstreamParams shaper_multicast[GCFG_SHAPERS];
    GPonOntShapingUpstreamParams shaper_broadcast[GCFG_SHAPERS];
    GPonOntStormControl storm_control;
} GPonOntShapingUpstream, GPonOntShapingUpstream_t;
static_assert(sizeof(GPonOntShapingUpstream) == 656, "size of GPonOntShapingUpstream");

typedef struct __attribute__((packed)) GPonProfileOntShaping {
    u32 revision;
    GBool_t exist; /* 0 = absent */
    GChar_t name[GCFG_NAME_SIZE];
    GChar_t description[GCFG_DESCRIPTION_SIZE];
    GPonOntShapingDownstream downstream;
    GPonOntShapingUpstream upstream;
} GPonProfileOntShaping, GPonProfileOntShaping_t;
static_assert(sizeof(GPonProfileOntShaping) == 1032, "size of GPonProfileOntShaping");

/* How one service is bridged and tagged. A VLAN id of -100 down to -131, and a priority of 100 to 131, refer to
 * terminal VLAN 0 to 31. */
typedef struct __attribute__((packed)) GPonProfileOntCrossConnect {
    u32 revision;
    GBool_t exist; /* 0 = absent */
    GChar_t name[GCFG_NAME_SIZE];
    GChar_t description[GCFG_DESCRIPTION_SIZE];
    GOntBridgeModel_t model;
    u8 bridge_group;
    GOntTagMode_t tag_mode;
    s16 outer_vid;             /* -100 to -131 = terminal VLAN */
    u8 outer_cos;              /* 100 to 131 = terminal VLAN */
    s16 inner_vid;             /* -100 to -131 = terminal VLAN */
    s16 u_vid;                 /* user side; 0 = untagged, -100 to -131 = terminal VLAN */
    u8 u_cos;                  /* user side; 255 = unused, 100 to 131 = terminal VLAN */
    u16 mac_table_entry_limit; /* 127 = no limit */
    GOntCrossConnectType_t type;
    u16 iphost_eid; /* entity id of the IP host */
    u8 priority_queue;
} GPonProfileOntCrossConnect, GPonProfileOntCrossConnect_t;
static_assert(sizeof(GPonProfileOntCrossConnect) == 298, "size of GPonProfileOntCrossConnect");

/* DBA service-level agreement. */
typedef struct __attribute__((packed)) GZorvanSLA {
    GDBAServiceClass_t service_class;
    GDBAStatusReport_t status_reporting;
    u32 alloc_size;
    u8 alloc_period;
    u32 fixed_bandwidth;
    u32 guaranteed_bandwidth;
    u32 besteffort_bandwidth;
} GZorvanSLA, GZorvanSLA_t;
static_assert(sizeof(GZorvanSLA) == 21, "size of GZorvanSLA");

typedef struct __attribute__((packed)) GPonOntDba {
    GZorvanSLA sla_data;
} GPonOntDba, GPonOntDba_t;
static_assert(sizeof(GPonOntDba) == 21, "size of GPonOntDba");

typedef struct __attribute__((packed)) GPonProfileOntAlloc {
    u32 revision;
    GBool_t exist; /* 0 = absent */
    GChar_t name[GCFG_NAME_SIZE];
    GChar_t description[GCFG_DESCRIPTION_SIZE];
    GPonOntDba dba;
    GBool_t allocate_new_alloc; /* on = a new T-CONT for each service */
} GPonProfileOntAlloc, GPonProfileOntAlloc_t;
static_assert(sizeof(GPonProfileOntAlloc) == 301, "size of GPonProfileOntAlloc");

/* A static range of IPv4 multicast groups. */
typedef struct __attribute__((packed)) GPonMulticastDynamicEntry {
    s16 vlan_id;
    u8 first_group_ip[4];
    u8 last_group_ip[4];
} GPonMulticastDynamicEntry, GPonMulticastDynamicEntry_t;
static_assert(sizeof(GPonMulticastDynamicEntry) == 10, "size of GPonMulticastDynamicEntry");

/* A static range of IPv6 multicast groups. */
typedef struct __attribute__((packed)) GPonMulticastDynamicEntryV6 {
    s16 vlan_id;
    GIPV6Addr_t first_group_ip;
    GIPV6Addr_t last_group_ip;
    u16 preview_length;
    u16 preview_repeat_time;
    u16 preview_repeat_count;
    u16 preview_reset_time;
} GPonMulticastDynamicEntryV6, GPonMulticastDynamicEntryV6_t;
static_assert(sizeof(GPonMulticastDynamicEntryV6) == 42, "size of GPonMulticastDynamicEntryV6");

typedef struct __attribute__((packed)) GPonIgmpSettings {
    u8 igmp_version;
    GOntUpstreamIgmpMode_t igmp_mode;
    GBool_t immediate_leave;
    u8 robustness;
    u8 querier_ip[4];
    u32 query_interval;
    u32 query_max_response_time;
    u32 last_member_query_interval;
    GPonMulticastDynamicEntry multicast_dynamic_entry[GCFG_DYNAMIC_ENTRIES];
} GPonIgmpSettings, GPonIgmpSettings_t;
static_assert(sizeof(GPonIgmpSettings) == 222, "size of GPonIgmpSettings");

typedef struct __attribute__((packed)) GPonMldSettings {
    u8 mld_version;
    GOntUpstreamIgmpMode_t mld_mode; /* the modes of IGMP */
    GBool_t immediate_leave;
    u8 robustness;
    GIPV6Addr_t querier_ipv6;
    u32 query_interval;
    u32 query_max_response_time;
    u32 last_member_query_interval;
    GPonMulticastDynamicEntryV6 multicast_dynamic_entry_mld[GCFG_DYNAMIC_ENTRIES];
} GPonMldSettings, GPonMldSettings_t;
static_assert(sizeof(GPonMldSettings) == 874, "size of GPonMldSettings");

typedef struct __attribute__((packed)) GPonMulticastClientPortSettings {
    u16 upstream_igmp_vid;
    u8 upstream_igmp_prio;
    GOntUpstreamIgmpTagControl_t upstream_igmp_tag_control;
    u16 downstream_multicast_vid;
    u8 downstream_multicast_prio;
    GOntDownstreamMulticastTagControl_t downstream_multicast_tag_control;
    u16 max_groups;
    u32 max_multicast_bandwidth;
} GPonMulticastClientPortSettings, GPonMulticastClientPortSettings_t;
static_assert(sizeof(GPonMulticastClientPortSettings) == 16, "size of GPonMulticastClientPortSettings");

typedef struct __attribute__((packed)) GPonUniShaping {
    GBool_t enable;
    u32 commited_rate;
    u32 peak_rate;
} GPonUniShaping, GPonUniShaping_t;
static_assert(sizeof(GPonUniShaping) == 10, "size of GPonUniShaping");

typedef struct __attribute__((packed)) GPonUniPort {
    GOntPortUniSpeed_t speed;
    GOntPortUniDuplex_t duplex;
    u8 bridge_group;
    GBool_t remove_tag; /* strip VLAN tags */
    GBool_t spanning_tree_for_bridge_group;
    GBool_t multicast_enable;
    GPonMulticastClientPortSettings multicast_port_settings;
    GPonUniShaping shaper_downstream;
    GPonUniShaping shaper_upstream;
    GPonUniPoE poe; /* has no commands here */
} GPonUniPort, GPonUniPort_t;
static_assert(sizeof(GPonUniPort) == 57, "size of GPonUniPort");

/* Virtual Ethernet interface point. */
typedef struct __attribute__((packed)) GPonVeipPort {
    GBool_t multicast_enable;
    GPonMulticastClientPortSettings multicast_port_settings;
} GPonVeipPort, GPonVeipPort_t;

typedef struct __attribute__((packed)) GPonProfileOntPorts {
    u32 revision;
    GBool_t exist; /* 0 = absent */
    GChar_t name[GCFG_NAME_SIZE];
    GChar_t description[GCFG_DESCRIPTION_SIZE];
    GOntMulticastIpVersion_t multicast_ip_version;
    GPonIgmpSettings igmp_settings;
    GPonMldSettings mld_settings;
    GPonVeipPort veip;
    GPonUniPort port[GCFG_UNI_PORTS];
} GPonProfileOntPorts, GPonProfileOntPorts_t;
static_assert(sizeof(GPonProfileOntPorts) == 1622, "size of GPonProfileOntPorts");

typedef struct __attribute__((packed)) GPonProfileOntManagement {
    u32 revision;
    GBool_t exist; /* 0 = absent */
    GChar_t name[GCFG_NAME_SIZE];
    GChar_t description[GCFG_DESCRIPTION_SIZE];
    GBool_t enable_omci_configuration;
    GChar_t url[128]; /* configuration server */
    GChar_t username[26];
    GChar_t password[26]; /* as typed */
    GChar_t ont_config_version[16];
    GChar_t ont_config_file[128];
} GPonProfileOntManagement, GPonProfileOntManagement_t;
static_assert(sizeof(GPonProfileOntManagement) == 604, "size of GPonProfileOntManagement");

/* Settings for many ONTs. Each setting's _is_active flag tells whether the template defines it at all. */
typedef struct __attribute__((packed)) GPonTemplateOnt {
    u32 revision;
    GBool_t exist; /* 0 = absent */
    GChar_t name[GCFG_NAME_SIZE];
    GChar_t description[GCFG_DESCRIPTION_SIZE];
    u8 serial[8]; /* a GOntSerial_t */
    GBool_t serial_is_active;
    GOntPassword_t password;
    GBool_t password_is_active;
    GBool_t fec_up; /* forward error correction upstream */
    GBool_t fec_up_is_active;
    GBool_t downstream_broadcast;
    GBool_t downstream_broadcast_is_active;
    u32 ber_interval; /* bit error rate measurement, all bits set = none */
    GBool_t ber_interval_is_active;
    u32 ber_update_period; /* 0 = none */
    GBool_t ber_update_period_is_active;
    GProfileIndex_t profile_ont_shaping; /* -1 = unassigned, here and below */
    GBool_t profile_ont_shaping_is_active;
    GProfileIndex_t profile_ont_cross_connect[GCFG_SERVICES]; /* by service */
    GBool_t profile_ont_cross_connect_is_active[GCFG_SERVICES];
    GProfileIndex_t profile_ont_alloc[GCFG_SERVICES]; /* by service */
    GBool_t profile_ont_alloc_is_active[GCFG_SERVICES];
    GProfileIndex_t profile_ont_ports;
    GBool_t profile_ont_ports_is_active;
    GProfileIndex_t profile_ont_voice;
    GBool_t profile_ont_voice_is_active;
    GProfileIndex_t profile_ont_management;
    GBool_t profile_ont_management_is_active;
    GEnabledThirdState_t rf_port_state;
    GBool_t rf_port_state_is_active;
    GBool_t omci_error_tolerant; /* tolerate OMCI errors */
    GBool_t omci_error_tolerant_is_active;
} GPonTemplateOnt, GPonTemplateOnt_t;
static_assert(sizeof(GPonTemplateOnt) == 473, "size of GPonTemplateOnt");

typedef struct __attribute__((packed)) GPonProfileOntVoiceSip {
    GChar_t proxy[25];
    GChar_t domain[25];
    GChar_t outband_proxy[25]; /* outbound proxy */
    u32 port;
    u8 proto;        /* named by GPonProfileOntVoiceSipProtocol_enum */
    u16 expire_time; /* of the registration */
} GPonProfileOntVoiceSip, GPonProfileOntVoiceSip_t;
static_assert(sizeof(GPonProfileOntVoiceSip) == 82, "size of GPonProfileOntVoiceSip");

typedef struct __attribute__((packed)) GPonProfileOntVoice {
    u32 revision;
    GBool_t exist; /* 0 = absent */
    GChar_t name[GCFG_NAME_SIZE];
    GChar_t description[GCFG_DESCRIPTION_SIZE];
    GPonProfileOntVoiceSip sip;
    GChar_t ont_config_version[16];
    GChar_t ont_config_file[128];
} GPonProfileOntVoice, GPonProfileOntVoice_t;
static_assert(sizeof(GPonProfileOntVoice) == 504, "size of GPonProfileOntVoice");

typedef struct __attribute__((packed)) GPonProfilesOnt {
    GPonProfileOntShaping shaping[GCFG_SHAPING_PROFILES];
    GPonProfileOntCrossConnect cross_connect[GCFG_CROSS_CONNECT_PROFILES];
    GPonProfileOntAlloc alloc[GCFG_ALLOC_PROFILES];
    GPonProfileOntPorts ports[GCFG_ONT_PROFILES];
    GPonProfileOntManagement management[GCFG_ONT_PROFILES];
    GPonTemplateOnt template_ont[GCFG_ONT_PROFILES];
    GPonProfileOntVoice voice[GCFG_ONT_PROFILES];
} GPonProfilesOnt, GPonProfilesOnt_t;

#endif
