#include "tool/describe/table.h"

namespace pondiff::tool {

static constexpr Field dynamic_entry_fields[] = {
    number(AT(GPonMulticastDynamicEntry, vlan_id)),
    ipv4(AT(GPonMulticastDynamicEntry, first_group_ip)),
    ipv4(AT(GPonMulticastDynamicEntry, last_group_ip)),
};
DESCRIBE(GPonMulticastDynamicEntry, dynamic_entry_record, dynamic_entry_fields);

static constexpr Field igmp_fields[] = {
    number(AT(GPonIgmpSettings, igmp_version)),
    enumeration(AT(GPonIgmpSettings, igmp_mode), "GOntUpstreamIgmpMode_enum"),
    boolean(AT(GPonIgmpSettings, immediate_leave)),
    number(AT(GPonIgmpSettings, robustness)),
    ipv4(AT(GPonIgmpSettings, querier_ip)),
    number(AT(GPonIgmpSettings, query_interval)),
    number(AT(GPonIgmpSettings, query_max_response_time)),
    number(AT(GPonIgmpSettings, last_member_query_interval)),
    record(AT(GPonIgmpSettings, multicast_dynamic_entry), dynamic_entry_record, "dynamic entries"),
};
DESCRIBE(GPonIgmpSettings, igmp_record, igmp_fields);

static constexpr Field dynamic_entry_v6_fields[] = {
    number(AT(GPonMulticastDynamicEntryV6, vlan_id)),
    ipv6(AT(GPonMulticastDynamicEntryV6, first_group_ip)),
    ipv6(AT(GPonMulticastDynamicEntryV6, last_group_ip)),
    number(AT(GPonMulticastDynamicEntryV6, preview_length)),
    number(AT(GPonMulticastDynamicEntryV6, preview_repeat_time)),
    number(AT(GPonMulticastDynamicEntryV6, preview_repeat_count)),
    number(AT(GPonMulticastDynamicEntryV6, preview_reset_time)),
};
DESCRIBE(GPonMulticastDynamicEntryV6, dynamic_entry_v6_record, dynamic_entry_v6_fields);

static constexpr Field mld_fields[] = {
    number(AT(GPonMldSettings, mld_version)),
    enumeration(AT(GPonMldSettings, mld_mode), "GOntUpstreamIgmpMode_enum"),
    boolean(AT(GPonMldSettings, immediate_leave)),
    number(AT(GPonMldSettings, robustness)),
    ipv6(AT(GPonMldSettings, querier_ipv6)),
    number(AT(GPonMldSettings, query_interval)),
    number(AT(GPonMldSettings, query_max_response_time)),
    number(AT(GPonMldSettings, last_member_query_interval)),
    record(AT(GPonMldSettings, multicast_dynamic_entry_mld), dynamic_entry_v6_record, "dynamic entries"),
};
DESCRIBE(GPonMldSettings, mld_record, mld_fields);

static constexpr Field multicast_port_fields[] = {
    number(AT(GPonMulticastClientPortSettings, upstream_igmp_vid)),
    number(AT(GPonMulticastClientPortSettings, upstream_igmp_prio)),
    enumeration(AT(GPonMulticastClientPortSettings, upstream_igmp_tag_control), "GOntUpstreamIgmpTagControl_enum"),
    number(AT(GPonMulticastClientPortSettings, downstream_multicast_vid)),
    number(AT(GPonMulticastClientPortSettings, downstream_multicast_prio)),
    enumeration(AT(GPonMulticastClientPortSettings, downstream_multicast_tag_control),
                "GOntDownstreamMulticastTagControl_enum"),
    number(AT(GPonMulticastClientPortSettings, max_groups)),
    number(AT(GPonMulticastClientPortSettings, max_multicast_bandwidth)),
};
DESCRIBE(GPonMulticastClientPortSettings, multicast_port_record, multicast_port_fields);

} // namespace pondiff::tool
