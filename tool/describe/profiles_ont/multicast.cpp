#include "tool/describe/table.h"

namespace pondiff::tool {

static constexpr Field dynamic_entry_fields[] = {
    number(FIELD(GPonMulticastDynamicEntry, vlan_id)),
    ipv4(FIELD(GPonMulticastDynamicEntry, first_group_ip)),
    ipv4(FIELD(GPonMulticastDynamicEntry, last_group_ip)),
};
DESCRIBE(GPonMulticastDynamicEntry, dynamic_entry_record, dynamic_entry_fields);

static constexpr Field igmp_fields[] = {
    number(FIELD(GPonIgmpSettings, igmp_version)),
    enumeration(FIELD(GPonIgmpSettings, igmp_mode), "GOntUpstreamIgmpMode_enum"),
    boolean(FIELD(GPonIgmpSettings, immediate_leave)),
    number(FIELD(GPonIgmpSettings, robustness)),
    ipv4(FIELD(GPonIgmpSettings, querier_ip)),
    number(FIELD(GPonIgmpSettings, query_interval)),
    number(FIELD(GPonIgmpSettings, query_max_response_time)),
    number(FIELD(GPonIgmpSettings, last_member_query_interval)),
    record(FIELD(GPonIgmpSettings, multicast_dynamic_entry), dynamic_entry_record, "dynamic entries"),
};
DESCRIBE(GPonIgmpSettings, igmp_record, igmp_fields);

static constexpr Field dynamic_entry_v6_fields[] = {
    number(FIELD(GPonMulticastDynamicEntryV6, vlan_id)),
    ipv6(FIELD(GPonMulticastDynamicEntryV6, first_group_ip)),
    ipv6(FIELD(GPonMulticastDynamicEntryV6, last_group_ip)),
    number(FIELD(GPonMulticastDynamicEntryV6, preview_length)),
    number(FIELD(GPonMulticastDynamicEntryV6, preview_repeat_time)),
    number(FIELD(GPonMulticastDynamicEntryV6, preview_repeat_count)),
    number(FIELD(GPonMulticastDynamicEntryV6, preview_reset_time)),
};
DESCRIBE(GPonMulticastDynamicEntryV6, dynamic_entry_v6_record, dynamic_entry_v6_fields);

static constexpr Field mld_fields[] = {
    number(FIELD(GPonMldSettings, mld_version)),
    enumeration(FIELD(GPonMldSettings, mld_mode), "GOntUpstreamIgmpMode_enum"),
    boolean(FIELD(GPonMldSettings, immediate_leave)),
    number(FIELD(GPonMldSettings, robustness)),
    ipv6(FIELD(GPonMldSettings, querier_ipv6)),
    number(FIELD(GPonMldSettings, query_interval)),
    number(FIELD(GPonMldSettings, query_max_response_time)),
    number(FIELD(GPonMldSettings, last_member_query_interval)),
    record(FIELD(GPonMldSettings, multicast_dynamic_entry_mld), dynamic_entry_v6_record, "dynamic entries"),
};
DESCRIBE(GPonMldSettings, mld_record, mld_fields);

static constexpr Field multicast_port_fields[] = {
    number(FIELD(GPonMulticastClientPortSettings, upstream_igmp_vid)),
    number(FIELD(GPonMulticastClientPortSettings, upstream_igmp_prio)),
    enumeration(FIELD(GPonMulticastClientPortSettings, upstream_igmp_tag_control), "GOntUpstreamIgmpTagControl_enum"),
    number(FIELD(GPonMulticastClientPortSettings, downstream_multicast_vid)),
    number(FIELD(GPonMulticastClientPortSettings, downstream_multicast_prio)),
    enumeration(FIELD(GPonMulticastClientPortSettings, downstream_multicast_tag_control),
                "GOntDownstreamMulticastTagControl_enum"),
    number(FIELD(GPonMulticastClientPortSettings, max_groups)),
    number(FIELD(GPonMulticastClientPortSettings, max_multicast_bandwidth)),
};
DESCRIBE(GPonMulticastClientPortSettings, multicast_port_record, multicast_port_fields);

} // namespace pondiff::tool
