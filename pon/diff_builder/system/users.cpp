#include "pon/diff_builder/rows.h"

using namespace pondiff;

bool getdiff_GSystemUser(GSystemUser* lhs, GSystemUser* rhs, int* key, List<char>& out)
{
    static constexpr Row<GSystemUser> privilege = number(FIELD(GSystemUser, priority), "user $ID0 privilege \"%s\"");
    if (nothing_to_emit(lhs, rhs) || (lhs->exist == 0 && rhs->exist == 0)) {
        return false;
    }
    if (rhs->exist == 0) {
        if (lhs->name[0] != '\0') {
            append(out, "no user \"%s\"", text_of(lhs->name));
        }
        return false;
    }
    const Where where{View::configure, key, out};
    // The password creates the user, so a new one always gets it.
    if (lhs->exist == 0 || wanted(changed_or_all, lhs->password, rhs->password)) {
        emit(where, "user $ID0 crypted_password \"%s\"", text_of(rhs->password));
    }
    emit_changed(privilege, changed_or_all, lhs, rhs, where);
    descend_each(changed_or_all, getdiff_GSystemUserGroup, lhs->group, rhs->group, of_element, key, out);
    return false;
}

/// Group memberships have no command.
bool getdiff_GSystemUserGroup(GSystemUserGroup* /*lhs*/, GSystemUserGroup* /*rhs*/, int* /*key*/, List<char>& /*out*/)
{
    return false;
}
