#include "tool/describe/table.h"

namespace pondiff::tool {

static constexpr Field user_group_fields[] = {
    boolean(AT(GSystemUserGroup, exist)),
    enumeration(AT(GSystemUserGroup, name), "GUsersGroup_enum"),
};
DESCRIBE(GSystemUserGroup, user_group_record, user_group_fields);

static constexpr Field user_fields[] = {
    number(AT(GSystemUser, revision)),
    boolean(AT(GSystemUser, exist)),
    text(AT(GSystemUser, name)),
    secret(AT(GSystemUser, password)),
    number(AT(GSystemUser, priority)),
    record(AT(GSystemUser, group), user_group_record, "groups"),
};
DESCRIBE(GSystemUser, user_record, user_fields);

} // namespace pondiff::tool
