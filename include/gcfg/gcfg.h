/* The whole configuration of the device, GCfg, and with it every configuration record.
 *
 * Packed, little-endian; the layout is shared with the device software and must not change. The sizes that are asserted
 * here and in the other headers are those that the device software relies on.
 */
#ifndef GCFG_GCFG_H
#define GCFG_GCFG_H

#include "network.h"
#include "olt.h"
#include "ont.h"
#include "profiles_olt.h"
#include "profiles_ont.h"
#include "scalars.h"
#include "system.h"

typedef struct __attribute__((packed)) GPonCfg {
    GPonOltCfg olt;
    GPonOntCfg ont[GCFG_ONTS]; /* the CLI shows slot i as i / 64 "/" i % 64 */
    GPonNetworkCfg network;
    GPonProfilesOlt profiles_olt;
    GPonProfilesOnt profiles_ont;
} GPonCfg, GPonCfg_t;
static_assert(sizeof(GPonCfg) == 1778661, "size of GPonCfg");

typedef struct __attribute__((packed)) GCfg {
    GSystemCfg system;
    GPonCfg pon;
} GCfg, GCfg_t;
static_assert(sizeof(GCfg) == 1821429, "size of GCfg");

#endif
