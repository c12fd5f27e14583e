#ifndef TOOL_PLAN_PLAN_H
#define TOOL_PLAN_PLAN_H

#include "tool/account/account.h"
#include "tool/account/risks.h"
#include "tool/script.h"

#include <map>
#include <string>
#include <vector>

namespace pondiff::tool {

/// What is to be known of a change before it is made.
struct Plan {
    Account account;
    std::vector<Risk> risks;
    /// What to do about a field that the script does not set, by the field's path.
    std::map<std::string, std::string> remedies;

    /// What to do about a field that will not be as wanted.
    std::string remedy(const Item& item) const;
};

/// @param script   somebody's script for the change; like the configurations, it stays
Plan make_plan(const GCfg& running, const GCfg& wanted, std::string_view script);

/// Looks for what would set the fields that the script has no command for: another area, or a second script for what
/// the device holds after the first.
void find_remedies(Plan& plan, const GCfg& running, const GCfg& wanted, const ScriptRequest& request);

} // namespace pondiff::tool

#endif
