#include "tool/describe/table.h"

namespace pondiff::tool {

static constexpr Field privilege_level_fields[] = {
    number(FIELD(GSystemPrivilegeLevel, privilege), no_command("privilege levels have no command"), "privileges"),
};
DESCRIBE(GSystemPrivilegeLevel, privilege_level_record, privilege_level_fields);

static constexpr Field common_settings_fields[] = {
    number(FIELD(GSystemCommonSettings, revision), counter),
    enumeration(FIELD(GSystemCommonSettings, ont_sn_format), "GOntSnDisplayFormatType_enum",
                says("cli ont-sn-format <ont_sn_format>")),
    record(FIELD(GSystemCommonSettings, level), privilege_level_record, "privilege levels"),
};
DESCRIBE(GSystemCommonSettings, common_settings_record, common_settings_fields);

} // namespace pondiff::tool
