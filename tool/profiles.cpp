#include "tool/profiles.h"

#include <cstring>

namespace pondiff::tool {

namespace {

/// What every profile record begins with.
struct __attribute__((packed)) Head {
    u32 revision;
    GBool_t exist;
    GChar_t name[GCFG_NAME_SIZE];
};

template <class Array>
struct Profiles;

template <class Profile, std::size_t Slots>
struct Profiles<Profile[Slots]> {
    static_assert(offsetof(Profile, exist) == offsetof(Head, exist));
    static_assert(offsetof(Profile, name) == offsetof(Head, name) && sizeof(Profile::name) == sizeof(Head::name));
    static constexpr std::size_t size = sizeof(Profile);
    static constexpr int slots = Slots;
};

#define PROFILES(array)                                                                                                \
    offsetof(GCfg, array), Profiles<decltype(GCfg::array)>::size, Profiles<decltype(GCfg::array)>::slots

const char* start_of(const ProfileKind& kind, const GCfg& configuration, int slot)
{
    return reinterpret_cast<const char*>(&configuration) + kind.offset + static_cast<std::size_t>(slot) * kind.size;
}

} // namespace

const ProfileKind profile_kinds[12] = {
    {"address-table", "address-table profile", PROFILES(pon.profiles_olt.address_table), Reference::address_table},
    {"cross-connect", "cross-connect profile", PROFILES(pon.profiles_ont.cross_connect), Reference::cross_connect},
    {"dba", "allocation profile", PROFILES(pon.profiles_ont.alloc), Reference::alloc},
    {"dhcp-ra", "DHCP relay agent profile", PROFILES(pon.profiles_olt.dhcp_ra), Reference::dhcp_ra},
    {"dhcpv6-ra", "DHCPv6 relay agent profile", PROFILES(pon.profiles_olt.dhcpv6_ra), Reference::dhcpv6_ra},
    {"management", "management profile", PROFILES(pon.profiles_ont.management), Reference::management},
    {"ports", "ports profile", PROFILES(pon.profiles_ont.ports), Reference::ports},
    {"voice", "voice profile", PROFILES(pon.profiles_ont.voice), Reference::voice},
    {"pppoe-ia", "PPPoE intermediate agent profile", PROFILES(pon.profiles_olt.pppoe_ia), Reference::pppoe_ia},
    {"shaping", "shaping profile", PROFILES(pon.profiles_ont.shaping), Reference::shaping},
    {"vlan", "VLAN profile", PROFILES(pon.profiles_olt.vlan), Reference::vlan},
    {"template", "template", PROFILES(pon.profiles_ont.template_ont), Reference::template_ont},
};

bool ProfileKind::exists(const GCfg& configuration, int slot) const
{
    GBool_t exist;
    std::memcpy(&exist, start_of(*this, configuration, slot) + offsetof(Head, exist), sizeof exist);
    return exist != 0;
}

std::string_view ProfileKind::name_in(const GCfg& configuration, int slot) const
{
    const char* const text = start_of(*this, configuration, slot) + offsetof(Head, name);
    return {text, strnlen(text, sizeof Head::name)};
}

} // namespace pondiff::tool
