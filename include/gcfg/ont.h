/* One ONT interface with its services, UNI ports and voice ports.
 *
 * Packed, little-endian; the layout is shared with the device software and must not change.
 */
#ifndef GCFG_ONT_H
#define GCFG_ONT_H

#include "scalars.h"

/* Custom VLANs of one service. */
typedef struct __attribute__((packed)) GPonOntCustomCrossConnect {
    GBool_t exist; /* 0 = absent */
    s16 vid;       /* customer VLAN, -1 = unused */
    u8 cos;
    s16 svid; /* service VLAN, -1 = unused */
} GPonOntCustomCrossConnect, GPonOntCustomCrossConnect_t;

/* Selective tunnel of one service. */
typedef struct __attribute__((packed)) GPonOntSelectiveTunnel {
    s16 uvid[GCFG_TUNNEL_VIDS]; /* user VLAN ids; -1 ends the list, a full list has no end mark */
} GPonOntSelectiveTunnel, GPonOntSelectiveTunnel_t;

/* Power over Ethernet of one UNI port. */
typedef struct __attribute__((packed)) GPonUniPoE {
    GBool_t enable;
    u8 power_detection_status;      /* status, not configuration */
    u8 power_classification_status; /* status, not configuration */
    u8 pse_class_control;
    u8 power_priority;             /* 1 = critical, 2 = high, 3 = low */
    u32 current_power_consumption; /* status, not configuration */
} GPonUniPoE, GPonUniPoE_t;
static_assert(sizeof(GPonUniPoE) == 10, "size of GPonUniPoE");

/* One UNI port. */
typedef struct __attribute__((packed)) GPonOntPort {
    GBool_t shutdown;
    GPonUniPoE poe;
} GPonOntPort, GPonOntPort_t;

/* One telephone port. */
typedef struct __attribute__((packed)) GPonOntVoicePort {
    GChar_t number[25];
    u8 auth_validation; /* named by GOntVoiceAuthValidation_enum */
    GChar_t auth_name[25];
    GChar_t auth_passwd[25];
    GChar_t auth_realm[25];
    s16 physical_impedance;
    s8 physical_gain_tx;
    s8 physical_gain_rx;
} GPonOntVoicePort, GPonOntVoicePort_t;

typedef struct __attribute__((packed)) GPonOntVoiceIpHost {
    u8 static_ip[4];
    u8 static_mask[4];
    u8 static_gateway[4];
} GPonOntVoiceIpHost, GPonOntVoiceIpHost_t;

/* Features are bit sets; the bits are listed from bit 0 on. */
typedef struct __attribute__((packed)) GPonOntVoiceVoip {
    u8 feature_cid;            /* call number, call name, CID block, CID number, CID name, anonymous CID block */
    u8 feature_call_wait;      /* on, caller-ID announcement */
    u16 feature_call_progress; /* 3way, transfer, hold, park, not-disturb, flash on emergency, emergency hold, 6way */
    u16 feature_call_present;  /* splash ring, special dial tone, visual, call forward */
    u8 fax_mode;               /* named by GPonProfileOntVoiceFaxMode_enum */
    u8 dtmf_mode;              /* named by GPonProfileOntVoiceDtmfMode_enum */
    GBool_t cas_events;        /* this and the next three: RTP events */
    GBool_t piggyback_events;
    GBool_t tone_events;
    GBool_t dtmf_events;
} GPonOntVoiceVoip, GPonOntVoiceVoip_t;

typedef struct __attribute__((packed)) GPonOntVoiceCfg {
    GPonOntVoicePort voice_port[GCFG_VOICE_PORTS];
    GPonOntVoiceIpHost voice_iphost;
    GPonOntVoiceVoip voip;
} GPonOntVoiceCfg, GPonOntVoiceCfg_t;

typedef struct __attribute__((packed)) GPonOntCfg {
    u32 revision;
    GBool_t exist; /* 0 = absent */
    GChar_t description[GCFG_DESCRIPTION_SIZE];
    GBool_t enabled; /* administratively up */
    u8 serial[8];    /* a GOntSerial_t */
    GOntPassword_t password;
    u8 auth_method;
    GBool_t fec_up; /* forward error correction upstream */
    GBool_t downstream_broadcast;
    u32 ber_interval; /* bit error rate measurement, all bits set = none */
    u32 ber_update_period;
    GBool_t pppoe_sessions_unlimit; /* on = no limit */
    GPonOntCustomCrossConnect custom_cross_connect[GCFG_SERVICES];
    GPonOntSelectiveTunnel tunnel[GCFG_SERVICES];
    GProfileIndex_t profile_ont_shaping;                      /* -1 = unassigned, here and below */
    GProfileIndex_t profile_ont_cross_connect[GCFG_SERVICES]; /* by service */
    GProfileIndex_t profile_ont_alloc[GCFG_SERVICES];         /* by service */
    GProfileIndex_t profile_ont_ports;
    GProfileIndex_t profile_ont_voice;
    GProfileIndex_t profile_ont_management;
    GProfileIndex_t template_ont;
    GEnabledThirdState_t rf_port_state;
    GBool_t omci_error_tolerant; /* tolerate OMCI errors */
    GOntCustomConfigModel_t custom_model;
    s16 ems_profile_index; /* profile in the management system */
    GPonOntVoiceCfg voice;
    GPonOntPort port[GCFG_UNI_PORTS];
} GPonOntCfg, GPonOntCfg_t;

#endif
