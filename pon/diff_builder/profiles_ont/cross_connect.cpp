#include "pon/diff_builder/profile.h"

using namespace pondiff;

namespace {

using Profile = GPonProfileOntCrossConnect;

constexpr int untagged_vid = 0;
constexpr int unused_cos = 255;
constexpr int no_mac_table_limit = 127;

/// The name of the terminal VLAN that a VLAN id refers to; null where it refers to none, or to one without a name.
const char* terminal_vlan_of_vid(int vid)
{
    return vid >= -131 && vid <= -100 ? getTerminalVlanName(-100 - vid) : nullptr;
}

/// The same for a priority.
const char* terminal_vlan_of_cos(int cos)
{
    return cos >= 100 && cos <= 131 ? getTerminalVlanName(cos - 100) : nullptr;
}

constexpr Row<Profile> bridging[] = {
    whenever(FIELD(Profile, model), "bridge"), // whatever the new model is
    number(FIELD(Profile, bridge_group), "bridge group \"%s\""),
    enumeration(FIELD(Profile, tag_mode), "GOntTagMode_enum", "tag-mode %s"),
};

constexpr Row<Profile> outer_terminal_vlan =
    word(FIELD(Profile, outer_vid), terminal_vlan_of_vid, "outer vid terminal-vlan \"%s\"");
constexpr Row<Profile> outer_vid = number(FIELD(Profile, outer_vid), "outer vid \"%d\"");

constexpr Row<Profile> outer_terminal_cos =
    word(FIELD(Profile, outer_cos), terminal_vlan_of_cos, "outer cos terminal-vlan \"%s\"");
constexpr Row<Profile> outer_cos = number(FIELD(Profile, outer_cos), "outer cos \"%d\"");

constexpr Row<Profile> inner_terminal_vlan =
    word(FIELD(Profile, inner_vid), terminal_vlan_of_vid, "inner vid terminal-vlan \"%s\"");
constexpr Row<Profile> inner_vid = number(FIELD(Profile, inner_vid), "inner vid \"%d\"");

constexpr Row<Profile> user_terminal_vlan =
    word(FIELD(Profile, u_vid), terminal_vlan_of_vid, "user vid terminal-vlan \"%s\"");
constexpr Row<Profile> user_untagged = whenever(FIELD(Profile, u_vid), "user vid untagged");
constexpr Row<Profile> user_vid = number(FIELD(Profile, u_vid), "user vid \"%d\"");

constexpr Row<Profile> user_terminal_cos =
    word(FIELD(Profile, u_cos), terminal_vlan_of_cos, "user cos terminal-vlan \"%s\"");
constexpr Row<Profile> user_cos_unused = whenever(FIELD(Profile, u_cos), "user cos unused");
constexpr Row<Profile> user_cos = number(FIELD(Profile, u_cos), "user cos \"%d\"");

constexpr Row<Profile> mac_table_unlimited = whenever(FIELD(Profile, mac_table_entry_limit), "no mac-table-limit");
constexpr Row<Profile> mac_table_limit = number(FIELD(Profile, mac_table_entry_limit), "mac-table-limit \"%s\"");

constexpr Row<Profile> service[] = {
    enumeration(FIELD(Profile, type), "GOntCrossConnectType_enum", "type \"%s\""),
    number(FIELD(Profile, iphost_eid), "iphost \"%s\""),
    number(FIELD(Profile, priority_queue), "priority \"%s\""),
};

} // namespace

bool getdiff_GPonProfileOntCrossConnect(GPonProfileOntCrossConnect* lhs, GPonProfileOntCrossConnect* rhs, int* key,
                                        List<char>& out)
{
    if (no_profile(lhs, rhs)) {
        return false;
    }
    const Where where{View::cross_connect, key, out};
    const auto emit_new = [&](const auto& rows) { emit_changed(rows, changed_or_all, lhs, rhs, where); };

    emit_profile_head(lhs, rhs, where);
    emit_new(bridging);
    emit_new(terminal_vlan_of_vid(rhs->outer_vid) ? outer_terminal_vlan : outer_vid);
    emit_new(terminal_vlan_of_cos(rhs->outer_cos) ? outer_terminal_cos : outer_cos);
    emit_new(terminal_vlan_of_vid(rhs->inner_vid) ? inner_terminal_vlan : inner_vid);

    if (terminal_vlan_of_vid(rhs->u_vid)) {
        emit_new(user_terminal_vlan);
    } else {
        emit_new(rhs->u_vid == untagged_vid ? user_untagged : user_vid);
    }

    if (terminal_vlan_of_cos(rhs->u_cos)) {
        emit_new(user_terminal_cos);
    } else {
        emit_new(rhs->u_cos == unused_cos ? user_cos_unused : user_cos);
    }

    emit_new(rhs->mac_table_entry_limit == no_mac_table_limit ? mac_table_unlimited : mac_table_limit);
    emit_new(service);
    return false;
}
