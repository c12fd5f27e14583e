/* The PON network settings and the terminal VLANs.
 *
 * Packed, little-endian; the layout is shared with the device software and must not change.
 */
#ifndef GCFG_NETWORK_H
#define GCFG_NETWORK_H

#include "scalars.h"

typedef struct __attribute__((packed)) GVlanTag {
    u16_HEX_t ethertype;
    u16 vid;
    u8 prio; /* 802.1p priority */
} GVlanTag, GVlanTag_t;

/* A terminal VLAN: a named tag that cross-connect profiles refer to. */
typedef struct __attribute__((packed)) GVlanTagEx {
    u32 revision;
    u8 exists; /* 0 = absent */
    GChar_t name[GCFG_NAME_SIZE];
    GVlanTag tag;
} GVlanTagEx, GVlanTagEx_t;

typedef struct __attribute__((packed)) GPonNetworkCfg {
    u32 revision;
    u32 mac_age_time;          /* ageing time of MAC addresses */
    u16_HEX_t svlan_ethertype; /* outer tag */
    u16_HEX_t cvlan_ethertype; /* inner tag */
    u16 mcvlan;                /* multicast VLAN */
    u8 mccos;                  /* class of service of multicast */
    GVlanTagEx terminal_vlan[GCFG_TERMINAL_VLANS];
} GPonNetworkCfg, GPonNetworkCfg_t;

#endif
