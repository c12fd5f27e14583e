#include "tool/describe/table.h"

namespace pondiff::tool {

static constexpr Field user_group_fields[] = {
    boolean(FIELD(GSystemUserGroup, exist)),
    enumeration(FIELD(GSystemUserGroup, name), "GUsersGroup_enum"),
};
DESCRIBE(GSystemUserGroup, user_group_record, user_group_fields);

static constexpr Field user_fields[] = {
    number(FIELD(GSystemUser, revision)),
    boolean(FIELD(GSystemUser, exist)),
    text(FIELD(GSystemUser, name)),
    secret(FIELD(GSystemUser, password)),
    number(FIELD(GSystemUser, priority)),
    record(FIELD(GSystemUser, group), user_group_record, "groups"),
};
DESCRIBE(GSystemUser, user_record, user_fields);

} // namespace pondiff::tool
