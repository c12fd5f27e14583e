#include "tool/describe/table.h"

namespace pondiff::tool {

static constexpr Field table_config_fields[] = {
    boolean(FIELD(GAddressTableConfig, remove_when_aged)),
    boolean(FIELD(GAddressTableConfig, discard_pid_unlearned_sa)),
    number(FIELD(GAddressTableConfig, aging_timer)),
};
DESCRIBE(GAddressTableConfig, table_config_record, table_config_fields);

static constexpr Field svlan_fields[] = {
    boolean(FIELD(GSvlanAddressTableConfig, exist)),
    number(FIELD(GSvlanAddressTableConfig, svlan)),
    enumeration(FIELD(GSvlanAddressTableConfig, forwarding_mode), "GVlanForwardingMode_enum"),
    boolean(FIELD(GSvlanAddressTableConfig, use_svlan)),
    boolean(FIELD(GSvlanAddressTableConfig, use_cvlan)),
    boolean(FIELD(GSvlanAddressTableConfig, use_pbits)),
    boolean(FIELD(GSvlanAddressTableConfig, discard_unknown)),
};
DESCRIBE(GSvlanAddressTableConfig, svlan_record, svlan_fields);

static constexpr Field address_table_profile_fields[] = {
    number(FIELD(GPonProfileOltAddressTable, revision)),
    boolean(FIELD(GPonProfileOltAddressTable, exist)),
    text(FIELD(GPonProfileOltAddressTable, name)),
    text(FIELD(GPonProfileOltAddressTable, description)),
    record(FIELD(GPonProfileOltAddressTable, table_config), table_config_record),
    record(FIELD(GPonProfileOltAddressTable, svlan_config), svlan_record, "S-VLAN slots"),
};
DESCRIBE(GPonProfileOltAddressTable, address_table_profile_record, address_table_profile_fields);

} // namespace pondiff::tool
