#include "pon/DataToCommandsConvertor.h"
#include "tool/describe/table.h"

namespace pondiff::tool {

static constexpr Field dynamic_entry_fields[] = {
    number(FIELD(GPonMulticastDynamicEntry, vlan_id),
           says("igmp multicast dynamic-entry <#> vid <vlan_id>", "no igmp multicast dynamic-entry <#> vid")),
    ipv4(FIELD(GPonMulticastDynamicEntry, first_group_ip),
         says("igmp multicast dynamic-entry <#> group <first_group_ip> <last_group_ip>",
              "no igmp multicast dynamic-entry <#> group {last_group_ip=0}")),
    ipv4(FIELD(GPonMulticastDynamicEntry, last_group_ip), with("first_group_ip")),
};
DESCRIBE(GPonMulticastDynamicEntry, dynamic_entry_record, dynamic_entry_fields);

static constexpr Field igmp_fields[] = {
    number(FIELD(GPonIgmpSettings, igmp_version), says("igmp version <igmp_version>")),
    enumeration(FIELD(GPonIgmpSettings, igmp_mode), "GOntUpstreamIgmpMode_enum", says("igmp mode <igmp_mode>")),
    boolean(FIELD(GPonIgmpSettings, immediate_leave), on_off("igmp immediate-leave", "no igmp immediate-leave")),
    number(FIELD(GPonIgmpSettings, robustness), says("igmp robustness <robustness>")),
    ipv4(FIELD(GPonIgmpSettings, querier_ip), says("igmp querier <querier_ip>")),
    number(FIELD(GPonIgmpSettings, query_interval), says("igmp query interval <query_interval>")),
    number(FIELD(GPonIgmpSettings, query_max_response_time), says("igmp query response <query_max_response_time>")),
    number(FIELD(GPonIgmpSettings, last_member_query_interval),
           says("igmp query last-member <last_member_query_interval>")),
    record(FIELD(GPonIgmpSettings, multicast_dynamic_entry), dynamic_entry_record, "dynamic entries"),
};
DESCRIBE(GPonIgmpSettings, igmp_record, igmp_fields);

static constexpr Field dynamic_entry_v6_fields[] = {
    number(FIELD(GPonMulticastDynamicEntryV6, vlan_id),
           says("mld multicast dynamic-entry <#> vid <vlan_id>", "no mld multicast dynamic-entry <#> vid")),
    ipv6(FIELD(GPonMulticastDynamicEntryV6, first_group_ip),
         says("mld multicast dynamic-entry <#> group <first_group_ip> <last_group_ip>",
              "no mld multicast dynamic-entry <#> group {last_group_ip=0}")),
    ipv6(FIELD(GPonMulticastDynamicEntryV6, last_group_ip), with("first_group_ip")),
    number(FIELD(GPonMulticastDynamicEntryV6, preview_length),
           says("mld multicast dynamic-entry <#> preview-length <preview_length>")),
    number(FIELD(GPonMulticastDynamicEntryV6, preview_repeat_time),
           says("mld multicast dynamic-entry <#> preview-repeat-time <preview_repeat_time>")),
    number(FIELD(GPonMulticastDynamicEntryV6, preview_repeat_count),
           says("mld multicast dynamic-entry <#> preview-repeat-count <preview_repeat_count>")),
    number(FIELD(GPonMulticastDynamicEntryV6, preview_reset_time),
           says("mld multicast dynamic-entry <#> preview-reset-time <preview_reset_time>")),
};
DESCRIBE(GPonMulticastDynamicEntryV6, dynamic_entry_v6_record, dynamic_entry_v6_fields);

static constexpr Field mld_fields[] = {
    number(FIELD(GPonMldSettings, mld_version), says("mld version <mld_version>")),
    enumeration(FIELD(GPonMldSettings, mld_mode), "GOntUpstreamIgmpMode_enum", says("mld mode <mld_mode>")),
    boolean(FIELD(GPonMldSettings, immediate_leave), on_off("mld immediate-leave", "no mld immediate-leave")),
    number(FIELD(GPonMldSettings, robustness), says("mld robustness <robustness>")),
    ipv6(FIELD(GPonMldSettings, querier_ipv6), says("mld querier <querier_ipv6>")),
    number(FIELD(GPonMldSettings, query_interval), says("mld query interval <query_interval>")),
    number(FIELD(GPonMldSettings, query_max_response_time), says("mld query response <query_max_response_time>")),
    number(FIELD(GPonMldSettings, last_member_query_interval),
           says("mld query last-member <last_member_query_interval>")),
    record(FIELD(GPonMldSettings, multicast_dynamic_entry_mld), dynamic_entry_v6_record, "dynamic entries"),
};
DESCRIBE(GPonMldSettings, mld_record, mld_fields);

static constexpr Field multicast_port_fields[] = {
    number(FIELD(GPonMulticastClientPortSettings, upstream_igmp_vid), says("<*> upstream vid <upstream_igmp_vid>")),
    number(FIELD(GPonMulticastClientPortSettings, upstream_igmp_prio),
           says("<*> upstream priority <upstream_igmp_prio>")),
    enumeration(FIELD(GPonMulticastClientPortSettings, upstream_igmp_tag_control), "GOntUpstreamIgmpTagControl_enum",
                says("<*> upstream tag-control <upstream_igmp_tag_control>").words(getOntUpstreamIgmpTagControl)),
    number(FIELD(GPonMulticastClientPortSettings, downstream_multicast_vid),
           says("<*> downstream vid <downstream_multicast_vid>")),
    number(FIELD(GPonMulticastClientPortSettings, downstream_multicast_prio),
           says("<*> downstream priority <downstream_multicast_prio>")),
    enumeration(FIELD(GPonMulticastClientPortSettings, downstream_multicast_tag_control),
                "GOntDownstreamMulticastTagControl_enum",
                says("<*> downstream tag-control <downstream_multicast_tag_control>")
                    .words(getOntDownstreamMulticastTagControl)),
    number(FIELD(GPonMulticastClientPortSettings, max_groups), says("<*> max groups <max_groups>")),
    number(FIELD(GPonMulticastClientPortSettings, max_multicast_bandwidth),
           says("<*> max bandwidth <max_multicast_bandwidth>")),
};
DESCRIBE(GPonMulticastClientPortSettings, multicast_port_record, multicast_port_fields);

} // namespace pondiff::tool
