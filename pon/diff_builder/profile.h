#ifndef PON_DIFF_BUILDER_PROFILE_H
#define PON_DIFF_BUILDER_PROFILE_H

/// @file
/// What the profile kinds share. Each record begins with the same four fields. Most kinds are created, named and
/// described the same way; the others combine the same steps differently.

#include "pon/diff_builder/rows.h"

namespace pondiff {

/// A slot that is free on both sides, or a record with nothing to emit.
template <class Profile>
bool no_profile(const Profile* lhs, const Profile* rhs)
{
    return nothing_to_emit(lhs, rhs) || (lhs->exist == 0 && rhs->exist == 0);
}

/// The new name, when a profile that existed is renamed or the rule forces it. Entering the view of a new profile names
/// it.
template <class Profile>
void emit_profile_name(Rule rule, const Profile* lhs, const Profile* rhs, const Where& where)
{
    if (forced(rule) || (lhs->exist == 1 && wanted(changed_only, lhs->name, rhs->name))) {
        emit(where, "name \"%s\"", text_of(rhs->name));
    }
}

/// A profile that did not exist is created by entering its view: the navigation is all that is emitted.
template <class Profile>
void enter_new_profile(const Profile* lhs, const Profile* rhs, const Where& where)
{
    if (lhs->exist == 0 && rhs->exist == 1) {
        navigate(where);
    }
}

template <class Profile>
void emit_profile_description(const Profile* lhs, const Profile* rhs, const Where& where)
{
    if (wanted(changed_or_all, lhs->description, rhs->description)) {
        emit(where, "description \"%s\"", text_of(rhs->description));
    }
}

/// The first commands of most kinds.
template <class Profile>
void emit_profile_head(const Profile* lhs, const Profile* rhs, const Where& where)
{
    emit_profile_name(changed_or_all, lhs, rhs, where);
    enter_new_profile(lhs, rhs, where);
    emit_profile_description(lhs, rhs, where);
}

/// The format of a subscriber's identifier that a relay agent sends, and whether it is sent in binary form. A change of
/// the mode alone emits nothing.
template <std::size_t N>
void emit_id_format(const Where& where, const char* command, const char (&lhs)[N], const char (&rhs)[N],
                    GDataMode_t mode)
{
    if (wanted(changed_or_all, lhs, rhs)) {
        emit(where, command, channel_format_of(rhs), mode != 0 ? " binary" : "");
    }
}

/// The version and file of the ONT's configuration, one command. A new file is emitted only together with a new
/// version.
template <class Profile>
void emit_ont_config(const Profile* lhs, const Profile* rhs, const Where& where)
{
    if (!wanted(changed_or_all, lhs->ont_config_version, rhs->ont_config_version)) {
        return;
    }
    if (wanted(changed_or_all, lhs->ont_config_file, rhs->ont_config_file)) {
        emit(where, "ont-config version \"%s\" file \"%s\"", text_of(rhs->ont_config_version),
             text_of(rhs->ont_config_file));
    } else {
        emit(where, "ont-config version \"%s\"", text_of(rhs->ont_config_version));
    }
}

} // namespace pondiff

#endif
