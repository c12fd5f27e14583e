#include "pon/diff_builder/rows.h"

using namespace pondiff;

namespace {

/// What differs between the protocols: the first word of their commands, and fields with other names.
template <class Settings>
struct Protocol;

template <>
struct Protocol<GPonIgmpSettings> {
    static constexpr char word[] = "igmp";
    static constexpr auto version = FIELD(GPonIgmpSettings, igmp_version);
    static constexpr auto mode = FIELD(GPonIgmpSettings, igmp_mode);
    static constexpr Row<GPonIgmpSettings> querier = ipv4(FIELD(GPonIgmpSettings, querier_ip), "%s querier \"%s\"");
};

template <>
struct Protocol<GPonMldSettings> {
    static constexpr char word[] = "mld";
    static constexpr auto version = FIELD(GPonMldSettings, mld_version);
    static constexpr auto mode = FIELD(GPonMldSettings, mld_mode);
    static constexpr Row<GPonMldSettings> querier = ipv6(FIELD(GPonMldSettings, querier_ipv6), "%s querier \"%s\"");
};

template <class Settings>
void emit_settings(const Settings* lhs, const Settings* rhs, int* key, List<char>& out)
{
    using Own = Protocol<Settings>;
    static constexpr Row<Settings> commands[] = {
        number(Own::version, "%s version \"%s\""),
        enumeration(Own::mode, "GOntUpstreamIgmpMode_enum", "%s mode \"%s\""),
        on_off(FIELD(Settings, immediate_leave), "%s immediate-leave", "no %s immediate-leave"),
        number(FIELD(Settings, robustness), "%s robustness \"%s\""),
        Own::querier,
        number(FIELD(Settings, query_interval), "%s query interval \"%s\""),
        number(FIELD(Settings, query_max_response_time), "%s query response \"%s\""),
        number(FIELD(Settings, last_member_query_interval), "%s query last-member \"%s\""),
    };
    const Value protocol = Own::word;
    emit_changed(commands, changed_or_all, lhs, rhs, {View::ports, key, out, &protocol});
}

Value group(const std::uint8_t (&address)[4])
{
    return ipv4_of(address);
}

Value group(const std::uint8_t (&address)[16])
{
    return ipv6_of(address);
}

/// The VLAN and the groups of one entry. A full dump writes what is equal in the "no" form.
template <class Entry>
void emit_range(const Entry* lhs, const Entry* rhs, const Where& where)
{
    const bool force = forced(changed_or_all);

    if (lhs->vlan_id != rhs->vlan_id) {
        emit(where, "%s multicast dynamic-entry $ID1 vid \"%s\"", rhs->vlan_id);
    } else if (force) {
        emit(where, "no %s multicast dynamic-entry $ID1 vid");
    }

    if (wanted(changed_only, lhs->first_group_ip, rhs->first_group_ip) ||
        wanted(changed_only, lhs->last_group_ip, rhs->last_group_ip)) {
        emit(where, "%s multicast dynamic-entry $ID1 group \"%s\" \"%s\"", group(rhs->first_group_ip),
             group(rhs->last_group_ip));
    } else if (force) {
        emit(where, "no %s multicast dynamic-entry $ID1 group");
    }
}

} // namespace

bool getdiff_GPonIgmpSettings(GPonIgmpSettings* lhs, GPonIgmpSettings* rhs, int* key, List<char>& out)
{
    if (nothing_to_emit(lhs, rhs)) {
        return false;
    }
    emit_settings(lhs, rhs, key, out);
    descend_each(changed_or_all, getdiff_GPonMulticastDynamicEntry, lhs->multicast_dynamic_entry,
                 rhs->multicast_dynamic_entry, of_element, key, out);
    return false;
}

bool getdiff_GPonMldSettings(GPonMldSettings* lhs, GPonMldSettings* rhs, int* key, List<char>& out)
{
    if (nothing_to_emit(lhs, rhs)) {
        return false;
    }
    emit_settings(lhs, rhs, key, out);
    descend_each(changed_or_all, getdiff_GPonMulticastDynamicEntryV6, lhs->multicast_dynamic_entry_mld,
                 rhs->multicast_dynamic_entry_mld, of_element, key, out);
    return false;
}

bool getdiff_GPonMulticastDynamicEntry(GPonMulticastDynamicEntry* lhs, GPonMulticastDynamicEntry* rhs, int* key,
                                       List<char>& out)
{
    if (nothing_to_emit(lhs, rhs)) {
        return false;
    }
    const Value protocol = Protocol<GPonIgmpSettings>::word;
    emit_range(lhs, rhs, {View::ports, key, out, &protocol});
    return false;
}

bool getdiff_GPonMulticastDynamicEntryV6(GPonMulticastDynamicEntryV6* lhs, GPonMulticastDynamicEntryV6* rhs, int* key,
                                         List<char>& out)
{
    static constexpr Row<GPonMulticastDynamicEntryV6> preview[] = {
        number(FIELD(GPonMulticastDynamicEntryV6, preview_length),
               "%s multicast dynamic-entry $ID1 preview-length \"%s\""),
        number(FIELD(GPonMulticastDynamicEntryV6, preview_repeat_time),
               "%s multicast dynamic-entry $ID1 preview-repeat-time \"%s\""),
        number(FIELD(GPonMulticastDynamicEntryV6, preview_repeat_count),
               "%s multicast dynamic-entry $ID1 preview-repeat-count \"%s\""),
        number(FIELD(GPonMulticastDynamicEntryV6, preview_reset_time),
               "%s multicast dynamic-entry $ID1 preview-reset-time \"%s\""),
    };
    if (nothing_to_emit(lhs, rhs)) {
        return false;
    }
    const Value protocol = Protocol<GPonMldSettings>::word;
    const Where where{View::ports, key, out, &protocol};
    emit_range(lhs, rhs, where);
    emit_changed(preview, changed_or_all, lhs, rhs, where);
    return false;
}
