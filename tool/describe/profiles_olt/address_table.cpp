#include "tool/describe/table.h"

namespace pondiff::tool {

static constexpr Field table_config_fields[] = {
    boolean(AT(GAddressTableConfig, remove_when_aged)),
    boolean(AT(GAddressTableConfig, discard_pid_unlearned_sa)),
    number(AT(GAddressTableConfig, aging_timer)),
};
DESCRIBE(GAddressTableConfig, table_config_record, table_config_fields);

static constexpr Field svlan_fields[] = {
    boolean(AT(GSvlanAddressTableConfig, exist)),
    number(AT(GSvlanAddressTableConfig, svlan)),
    enumeration(AT(GSvlanAddressTableConfig, forwarding_mode), "GVlanForwardingMode_enum"),
    boolean(AT(GSvlanAddressTableConfig, use_svlan)),
    boolean(AT(GSvlanAddressTableConfig, use_cvlan)),
    boolean(AT(GSvlanAddressTableConfig, use_pbits)),
    boolean(AT(GSvlanAddressTableConfig, discard_unknown)),
};
DESCRIBE(GSvlanAddressTableConfig, svlan_record, svlan_fields);

static constexpr Field address_table_profile_fields[] = {
    number(AT(GPonProfileOltAddressTable, revision)),
    boolean(AT(GPonProfileOltAddressTable, exist)),
    text(AT(GPonProfileOltAddressTable, name)),
    text(AT(GPonProfileOltAddressTable, description)),
    record(AT(GPonProfileOltAddressTable, table_config), table_config_record),
    record(AT(GPonProfileOltAddressTable, svlan_config), svlan_record, "S-VLAN slots"),
};
DESCRIBE(GPonProfileOltAddressTable, address_table_profile_record, address_table_profile_fields);

} // namespace pondiff::tool
