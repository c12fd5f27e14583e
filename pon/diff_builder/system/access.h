#ifndef PON_DIFF_BUILDER_SYSTEM_ACCESS_H
#define PON_DIFF_BUILDER_SYSTEM_ACCESS_H

#include "pon/diff_builder.h"

namespace pondiff {

using AllowList = GSystemServiceAllow[GCFG_ALLOW_ENTRIES];

/// The permitted source networks of a service.
/// @param service  the beginning of its commands, such as "ip ssh"
void diff_allow_list(const char* service, AllowList& lhs, AllowList& rhs, int* key, List<char>& out);

} // namespace pondiff

#endif
