#include "tool/describe/table.h"

namespace pondiff::tool {

static constexpr Field table_config_fields[] = {
    boolean(FIELD(GAddressTableConfig, remove_when_aged), on_off("remove-when-aged", "no remove-when-aged")),
    boolean(FIELD(GAddressTableConfig, discard_pid_unlearned_sa),
            on_off("discard-pid-unlearned-sa", "no discard-pid-unlearned-sa")),
    number(FIELD(GAddressTableConfig, aging_timer), no_command("a profile's aging time cannot be set")),
};
DESCRIBE(GAddressTableConfig, table_config_record, table_config_fields);

static constexpr Field svlan_fields[] = {
    boolean(FIELD(GSvlanAddressTableConfig, exist), existence),
    number(FIELD(GSvlanAddressTableConfig, svlan), key("s-vlan <#>").in_use_unless_zero()),
    enumeration(FIELD(GSvlanAddressTableConfig, forwarding_mode), "GVlanForwardingMode_enum",
                says("s-vlan <#> forwarding-mode <forwarding_mode>")),
    boolean(FIELD(GSvlanAddressTableConfig, use_svlan), on_off("s-vlan <#> use s-vlan", "no s-vlan <#> use s-vlan")),
    boolean(FIELD(GSvlanAddressTableConfig, use_cvlan), on_off("s-vlan <#> use c-vlan", "no s-vlan <#> use c-vlan")),
    boolean(FIELD(GSvlanAddressTableConfig, use_pbits), on_off("s-vlan <#> use pbits", "no s-vlan <#> use pbits")),
    boolean(FIELD(GSvlanAddressTableConfig, discard_unknown),
            on_off("s-vlan <#> discard-unknown", "no s-vlan <#> discard-unknown")),
};
DESCRIBE(GSvlanAddressTableConfig, svlan_record, svlan_fields);

static constexpr Field address_table_profile_fields[] = {
    number(FIELD(GPonProfileOltAddressTable, revision), counter),
    boolean(FIELD(GPonProfileOltAddressTable, exist), existence),
    text(FIELD(GPonProfileOltAddressTable, name), says("name <name>")),
    text(FIELD(GPonProfileOltAddressTable, description), says("description <description>")),
    record(FIELD(GPonProfileOltAddressTable, table_config), table_config_record),
    record(FIELD(GPonProfileOltAddressTable, svlan_config), svlan_record, by_key, "S-VLAN slots"),
};
DESCRIBE(GPonProfileOltAddressTable, address_table_profile_record, address_table_profile_fields);

} // namespace pondiff::tool
