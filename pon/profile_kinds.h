#ifndef PON_PROFILE_KINDS_H
#define PON_PROFILE_KINDS_H

#include "gcfg/gcfg.h"

#include <cstddef>
#include <type_traits>

/// The kinds of profiles, including the templates. Everything that exists once for each kind is generated from this
/// list.
///
/// KIND(part, array, record, tables, lookup, prefix, name, called):
/// - part, array   profiles are the elements of `GPonCfg::part.array`; `View::array` is the view of one, in the program
///                 `Reference::array` is a field that refers to one
/// - record        their struct; `getdiff_<record>` is its record diff
/// - tables        their names are in `<tables>2id_connection` and `def_<tables>2id_connection` ...
/// - lookup        ... and come from `get<lookup>Name` and `def_get<lookup>Name`
/// - prefix, name  how the CLI enters one, such as `profile vlan "office"`; the name also identifies the kind elsewhere
/// - called        what messages call one
// clang-format off
#define PON_PROFILE_KINDS(KIND)                                                                                        \
    KIND(profiles_olt, address_table, GPonProfileOltAddressTable, address_table, AddressTable,                         \
         "profile ", "address-table", "address-table profile")                                                         \
    KIND(profiles_ont, cross_connect, GPonProfileOntCrossConnect, cross_connect, CrossConnect,                         \
         "profile ", "cross-connect", "cross-connect profile")                                                         \
    KIND(profiles_ont, alloc, GPonProfileOntAlloc, alloc, Alloc,                                                       \
         "profile ", "dba", "allocation profile")                                                                      \
    KIND(profiles_olt, dhcp_ra, GPonProfileOltDhcpRa, dhcpra, DhcpRa,                                                  \
         "profile ", "dhcp-ra", "DHCP relay agent profile")                                                            \
    KIND(profiles_olt, dhcpv6_ra, GPonProfileOltDhcpv6Ra, dhcpv6ra, Dhcpv6Ra,                                          \
         "profile ", "dhcpv6-ra", "DHCPv6 relay agent profile")                                                        \
    KIND(profiles_ont, management, GPonProfileOntManagement, management, Management,                                   \
         "profile ", "management", "management profile")                                                               \
    KIND(profiles_ont, ports, GPonProfileOntPorts, ports, Ports,                                                       \
         "profile ", "ports", "ports profile")                                                                         \
    KIND(profiles_ont, voice, GPonProfileOntVoice, voice, Voice,                                                       \
         "profile ", "voice", "voice profile")                                                                         \
    KIND(profiles_olt, pppoe_ia, GPonProfileOltPppoeIa, pppoeia, Pppoe,                                                \
         "profile ", "pppoe-ia", "PPPoE intermediate agent profile")                                                   \
    KIND(profiles_ont, shaping, GPonProfileOntShaping, shaping, Shaping,                                               \
         "profile ", "shaping", "shaping profile")                                                                     \
    KIND(profiles_olt, vlan, GPonProfileOltVlan, vlan, Vlan,                                                           \
         "profile ", "vlan", "VLAN profile")                                                                           \
    KIND(profiles_ont, template_ont, GPonTemplateOnt, onttemplate, Template,                                           \
         "", "template", "template")
// clang-format on

/// How many profiles of a kind there are.
#define PON_PROFILE_SLOTS(part, array) std::extent_v<decltype(GPonCfg::part.array)>

namespace pondiff {

#define ONE_KIND(...) +1
constexpr std::size_t profile_kind_count = 0 PON_PROFILE_KINDS(ONE_KIND);
#undef ONE_KIND

} // namespace pondiff

#endif
