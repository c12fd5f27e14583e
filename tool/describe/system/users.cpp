#include "tool/describe/table.h"

namespace pondiff::tool {

static constexpr Syntax membership = no_command("group memberships have no command");

static constexpr Field user_group_fields[] = {
    boolean(FIELD(GSystemUserGroup, exist), membership.telling_existence()),
    enumeration(FIELD(GSystemUserGroup, name), "GUsersGroup_enum", membership),
};
DESCRIBE(GSystemUserGroup, user_group_record, user_group_fields);

static constexpr Field user_fields[] = {
    number(FIELD(GSystemUser, revision), counter),
    boolean(FIELD(GSystemUser, exist), existence),
    text(FIELD(GSystemUser, name), key()),
    secret(FIELD(GSystemUser, password), says("user <#> crypted_password <password>").risky(RiskKind::user)),
    number(FIELD(GSystemUser, priority), says("user <#> privilege <priority>").risky(RiskKind::user)),
    record(FIELD(GSystemUser, group), user_group_record, "groups"),
};
DESCRIBE(GSystemUser, user_record, user_fields);

} // namespace pondiff::tool
