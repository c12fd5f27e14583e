#include "bench/configurations.h"

#include "platform/platform.h"
#include "tool/describe/records.h"
#include "tool/profiles.h"

#include <algorithm>
#include <cstdio>
#include <cstring>
#include <map>
#include <string>
#include <string_view>
#include <vector>

namespace pondiff::bench {

namespace {

using tool::Field;
using tool::Form;
using tool::Leaf;
using tool::Reference;

/// Spreads a number over 64 bits (the finalizer of splitmix64).
std::uint64_t scatter(std::uint64_t value)
{
    value += 0x9E3779B97F4A7C15U;
    value = (value ^ (value >> 30U)) * 0xBF58476D1CE4E5B9U;
    value = (value ^ (value >> 27U)) * 0x94D049BB133111EBU;
    return value ^ (value >> 31U);
}

/// 1 to `last`, depending on the place.
std::int64_t pick(std::uint64_t seed, std::int64_t last)
{
    return 1 + static_cast<std::int64_t>(seed % static_cast<std::uint64_t>(last));
}

bool contains(std::string_view text, std::string_view part)
{
    return text.find(part) != std::string_view::npos;
}

/// The non-zero values of an enumeration that have a word.
const std::vector<int>& values_with_words(const char* type)
{
    static std::map<std::string, std::vector<int>> known;
    std::vector<int>& values = known[type];
    for (int value = 1; value < 256 && (values.empty() || values.back() < value); ++value) {
        if (std::strcmp(gpon_enum_find_name_by_type(type, value), "unknown") != 0) {
            values.push_back(value);
        }
    }
    if (values.empty()) {
        values.push_back(1);
    }
    return values;
}

/// How many profiles of the kinds there are that fields refer to. Slot 0 is never referred to: a blank field does.
int profiles(Reference to)
{
    return tool::kind_of(to)->slots;
}

std::int64_t number(const Leaf& leaf, std::uint64_t seed)
{
    const Field& field = leaf.field;
    const std::string_view name = field.name;
    if (field.layout == tool::Layout::ended_list) { // pairs of neighbours, ascending
        return 90 + static_cast<std::int64_t>(leaf.index / 2 * 180 + leaf.index % 2) + pick(seed, 1);
    }
    if (contains(name, "feature")) {
        return tool::largest(field);
    }
    if (contains(name, "vid") || contains(name, "vlan")) {
        return pick(seed, 4094);
    }
    if (contains(name, "prio") || contains(name, "cos")) {
        return pick(seed, 7);
    }
    if (name == "channel_index") {
        return pick(seed, GCFG_GPON_PORTS - 1);
    }
    if (name == "ont_id") {
        return pick(seed, GCFG_ONTS_PER_PORT - 1);
    }
    if (contains(name, "mask")) {
        return pick(seed, 32);
    }
    if (name == "power_priority") {
        return pick(seed, 3);
    }
    return pick(seed, std::min<std::int64_t>(tool::largest(field), 1'000'000));
}

std::int64_t reference(const Field& field, std::uint64_t seed)
{
    const std::int64_t terminal_vlan = pick(seed >> 8U, GCFG_TERMINAL_VLANS) - 1;
    const bool to_terminal_vlan = seed % 2 == 0;
    switch (field.reference) {
    case Reference::terminal_vlan_id:
        return to_terminal_vlan ? -100 - terminal_vlan : pick(seed, 4094);
    case Reference::terminal_vlan_priority:
        return to_terminal_vlan ? 100 + terminal_vlan : pick(seed, 7);
    default:
        return pick(seed, profiles(field.reference) - 1);
    }
}

std::string text(const Field& field, std::uint64_t seed)
{
    const std::string_view name = field.name;
    const std::string mark = std::to_string(seed % 100'000);
    if (name == "description") {
        return "subscriber line " + mark;
    }
    if (contains(name, "_id_format")) {
        return "%HOSTNAME%-%CHANNELID%/%ONTID%/" + mark;
    }
    if (field.form == Form::secret) {
        return "Kq" + mark;
    }
    std::string result = std::string(name) + '-' + mark;
    if (result.size() >= field.width) { // texts differ at their end
        result.erase(0, result.size() - (field.width - 1));
    }
    return result;
}

void fill(const Leaf& leaf, unsigned char* at)
{
    const Field& field = leaf.field;
    const std::uint64_t seed = scatter(leaf.offset);
    switch (field.form) {
    case Form::boolean:
        tool::set_number(field, at, 1);
        return;
    case Form::enumeration: {
        const std::vector<int>& values = values_with_words(field.enumeration);
        tool::set_number(field, at, values[static_cast<std::size_t>(seed % values.size())]);
        return;
    }
    case Form::hexadecimal:
        tool::set_number(field, at, field.width == 2 ? 0x8100 + pick(seed, 0x1000) : pick(seed, 0xFFFFFF));
        return;
    case Form::number:
        tool::set_number(field, at, number(leaf, seed));
        return;
    case Form::reference:
        tool::set_number(field, at, reference(field, seed));
        return;
    case Form::text:
    case Form::secret: {
        const std::string value = text(field, seed);
        std::memcpy(at, value.data(), value.size());
        return;
    }
    case Form::serial:
        std::memcpy(at, "ABCD", 4);
        std::memcpy(at + 4, &seed, 4);
        return;
    default: // addresses
        for (std::size_t i = 0; i < field.width; ++i) {
            at[i] = static_cast<unsigned char>(pick(scatter(seed + i), 254));
        }
    }
}

template <class Record, std::size_t N>
void name_each(Record (&records)[N], const char* kind)
{
    for (std::size_t i = 0; i < N; ++i) {
        std::memset(records[i].name, 0, sizeof records[i].name);
        std::snprintf(records[i].name, sizeof records[i].name, "%s-%zu", kind, i);
    }
}

void name_objects(GCfg& configuration)
{
    name_each(configuration.system.user, "operator");
    name_each(configuration.pon.network.terminal_vlan, "service");
    GPonProfilesOlt& olt = configuration.pon.profiles_olt;
    name_each(olt.vlan, "vlan");
    name_each(olt.address_table, "table");
    name_each(olt.pppoe_ia, "pppoe");
    name_each(olt.dhcp_ra, "dhcp");
    name_each(olt.dhcpv6_ra, "dhcpv6");
    GPonProfilesOnt& ont = configuration.pon.profiles_ont;
    name_each(ont.shaping, "shaping");
    name_each(ont.cross_connect, "crossconn");
    name_each(ont.alloc, "alloc");
    name_each(ont.ports, "ports");
    name_each(ont.management, "management");
    name_each(ont.template_ont, "template");
    name_each(ont.voice, "voice");
}

/// Blanks the elements in front of `first` and from `end` on.
template <class Element, std::size_t N>
void keep(Element (&elements)[N], std::size_t first, std::size_t end)
{
    std::memset(elements, 0, first * sizeof(Element));
    std::memset(elements + end, 0, (N - end) * sizeof(Element));
}

/// Makes every reference to a profile one to slot 1.
void refer_to_slot_1(GCfg& configuration)
{
    auto* const bytes = reinterpret_cast<unsigned char*>(&configuration);
    tool::for_each_leaf(tool::gcfg_record, [bytes](const Leaf& leaf) {
        const Field& field = leaf.field;
        const bool to_profile = field.form == Form::reference && tool::kind_of(field.reference) != nullptr;
        if (to_profile && tool::get_number(field, bytes + leaf.offset) != 0) {
            tool::set_number(field, bytes + leaf.offset, 1);
        }
    });
}

} // namespace

Configuration blank()
{
    return std::make_unique<GCfg>();
}

Configuration random_bytes(std::uint64_t seed)
{
    Configuration result = blank();
    auto* const bytes = reinterpret_cast<unsigned char*>(result.get());
    for (std::size_t i = 0; i < sizeof(GCfg); ++i) {
        bytes[i] = static_cast<unsigned char>(scatter(seed + i));
    }
    return result;
}

Configuration full()
{
    Configuration result = blank();
    auto* const bytes = reinterpret_cast<unsigned char*>(result.get());
    tool::for_each_leaf(tool::gcfg_record, [bytes](const Leaf& leaf) { fill(leaf, bytes + leaf.offset); });
    name_objects(*result);
    for (GPonProfileOltAddressTable& profile : result->pon.profiles_olt.address_table) {
        for (int i = 0; i < GCFG_SVLANS; ++i) {
            profile.svlan_config[i].svlan = static_cast<s16>(i + 1);
        }
    }
    return result;
}

Configuration small()
{
    Configuration result = full();
    GPonCfg& pon = result->pon;
    keep(result->system.user, 0, 1);
    keep(result->system.services.routing.route, 0, 6);
    keep(result->system.services.source_guard.bind, 0, 12);
    keep(result->system.services.source_guard.vid, 0, 46);
    keep(pon.olt.channel, 0, 1);
    keep(pon.ont, 0, 6);
    keep(pon.network.terminal_vlan, 0, 4);
    keep(pon.profiles_olt.vlan, 1, 2);
    keep(pon.profiles_olt.address_table, 1, 2);
    keep(pon.profiles_olt.address_table[1].svlan_config, 0, 160);
    keep(pon.profiles_olt.pppoe_ia, 1, 2);
    keep(pon.profiles_olt.dhcp_ra, 1, 2);
    keep(pon.profiles_olt.dhcpv6_ra, 1, 2);
    keep(pon.profiles_ont.shaping, 1, 2);
    keep(pon.profiles_ont.cross_connect, 1, 3);
    keep(pon.profiles_ont.alloc, 1, 3);
    keep(pon.profiles_ont.ports, 1, 2);
    keep(pon.profiles_ont.ports[1].igmp_settings.multicast_dynamic_entry, 0, 8);
    keep(pon.profiles_ont.ports[1].mld_settings.multicast_dynamic_entry_mld, 0, 8);
    keep(pon.profiles_ont.ports[1].port, 0, 2);
    keep(pon.profiles_ont.management, 1, 2);
    keep(pon.profiles_ont.template_ont, 1, 2);
    keep(pon.profiles_ont.voice, 1, 2);
    refer_to_slot_1(*result);
    return result;
}

Configuration with_other_hostname()
{
    Configuration result = full();
    result->system.network.hostname[0] ^= 1;
    return result;
}

} // namespace pondiff::bench
