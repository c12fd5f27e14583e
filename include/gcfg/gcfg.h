/* The whole configuration of the device, GCfg, and with it every configuration record.
 *
 * Packed, little-endian; the layout is shared with the device software and must not change.
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

#include <stddef.h>

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

static_assert(offsetof(GCfg, system) == 0, "offset of system");
static_assert(offsetof(GCfg, system.network) == 0, "offset of system.network");
static_assert(offsetof(GCfg, system.user) == 286, "offset of system.user");
static_assert(offsetof(GCfg, system.services) == 4014, "offset of system.services");
static_assert(offsetof(GCfg, system.services.http) == 4014, "offset of system.services.http");
static_assert(offsetof(GCfg, system.services.https) == 4102, "offset of system.services.https");
static_assert(offsetof(GCfg, system.services.telnet) == 4190, "offset of system.services.telnet");
static_assert(offsetof(GCfg, system.services.ssh) == 4278, "offset of system.services.ssh");
static_assert(offsetof(GCfg, system.services.snmp) == 4366, "offset of system.services.snmp");
static_assert(offsetof(GCfg, system.services.syslog) == 7995, "offset of system.services.syslog");
static_assert(offsetof(GCfg, system.services.ntp) == 8017, "offset of system.services.ntp");
static_assert(offsetof(GCfg, system.services.alarm) == 8033, "offset of system.services.alarm");
static_assert(offsetof(GCfg, system.services.web) == 8834, "offset of system.services.web");
static_assert(offsetof(GCfg, system.services.cli) == 8842, "offset of system.services.cli");
static_assert(offsetof(GCfg, system.services.log) == 8883, "offset of system.services.log");
static_assert(offsetof(GCfg, system.services.tftp) == 9107, "offset of system.services.tftp");
static_assert(offsetof(GCfg, system.services.config) == 9375, "offset of system.services.config");
static_assert(offsetof(GCfg, system.services.acs) == 9382, "offset of system.services.acs");
static_assert(offsetof(GCfg, system.services.auth) == 9704, "offset of system.services.auth");
static_assert(offsetof(GCfg, system.services.fan) == 10244, "offset of system.services.fan");
static_assert(offsetof(GCfg, system.services.routing) == 10258, "offset of system.services.routing");
static_assert(offsetof(GCfg, system.services.source_guard) == 15894, "offset of system.services.source_guard");
static_assert(offsetof(GCfg, system.settings) == 42524, "offset of system.settings");
static_assert(offsetof(GCfg, pon) == 42768, "offset of pon");
static_assert(offsetof(GCfg, pon.olt) == 42768, "offset of pon.olt");
static_assert(offsetof(GCfg, pon.olt.channel) == 52278, "offset of pon.olt.channel");
static_assert(offsetof(GCfg, pon.ont) == 53054, "offset of pon.ont");
static_assert(offsetof(GCfg, pon.network) == 1181958, "offset of pon.network");
static_assert(offsetof(GCfg, pon.profiles_olt) == 1182805, "offset of pon.profiles_olt");
static_assert(offsetof(GCfg, pon.profiles_olt.vlan) == 1182805, "offset of pon.profiles_olt.vlan");
static_assert(offsetof(GCfg, pon.profiles_olt.address_table) == 1192213, "offset of pon.profiles_olt.address_table");
static_assert(offsetof(GCfg, pon.profiles_olt.pppoe_ia) == 1430741, "offset of pon.profiles_olt.pppoe_ia");
static_assert(offsetof(GCfg, pon.profiles_olt.dhcp_ra) == 1456853, "offset of pon.profiles_olt.dhcp_ra");
static_assert(offsetof(GCfg, pon.profiles_olt.dhcpv6_ra) == 1483093, "offset of pon.profiles_olt.dhcpv6_ra");
static_assert(offsetof(GCfg, pon.profiles_ont) == 1510165, "offset of pon.profiles_ont");
static_assert(offsetof(GCfg, pon.profiles_ont.shaping) == 1510165, "offset of pon.profiles_ont.shaping");
static_assert(offsetof(GCfg, pon.profiles_ont.cross_connect) == 1642261, "offset of pon.profiles_ont.cross_connect");
static_assert(offsetof(GCfg, pon.profiles_ont.alloc) == 1680405, "offset of pon.profiles_ont.alloc");
static_assert(offsetof(GCfg, pon.profiles_ont.ports) == 1718933, "offset of pon.profiles_ont.ports");
static_assert(offsetof(GCfg, pon.profiles_ont.management) == 1770837, "offset of pon.profiles_ont.management");
static_assert(offsetof(GCfg, pon.profiles_ont.template_ont) == 1790165, "offset of pon.profiles_ont.template_ont");
static_assert(offsetof(GCfg, pon.profiles_ont.voice) == 1805301, "offset of pon.profiles_ont.voice");

#endif
