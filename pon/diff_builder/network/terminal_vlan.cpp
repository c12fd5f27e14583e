#include "pon/diff_builder/rows.h"

using namespace pondiff;

bool getdiff_GVlanTagEx(GVlanTagEx* lhs, GVlanTagEx* rhs, int* key, List<char>& out)
{
    static constexpr Row<GVlanTagEx> name = //
        text(FIELD(GVlanTagEx, name), "gpon network terminal-vlan \"%s\"");
    static constexpr Row<GVlanTagEx> tag[] = {
        number(FIELD(GVlanTagEx, tag.vid), "gpon network terminal-vlan \"%s\" vid \"%s\""),
        number(FIELD(GVlanTagEx, tag.prio), "gpon network terminal-vlan \"%s\" cos \"%s\""),
    };
    if (nothing_to_emit(lhs, rhs)) {
        return false;
    }
    if (rhs->exists == 0) {
        if (lhs->exists != 0 && lhs->name[0] != '\0') {
            append(out, "no gpon network terminal-vlan \"%s\"", text_of(lhs->name));
        }
        return false;
    }
    // Commands that set the VLAN id or the priority declare the name as well. A rename does not remove the old name.
    if (lhs->tag.vid == rhs->tag.vid && lhs->tag.prio == rhs->tag.prio) {
        emit_changed(name, changed_only, lhs, rhs, {View::configure, key, out});
    }
    const Value new_name = text_of(rhs->name);
    emit_changed(tag, changed_or_common, lhs, rhs, {View::configure, key, out, &new_name});
    return false;
}
