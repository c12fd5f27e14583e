#ifndef TOOL_PLAN_TEXT_H
#define TOOL_PLAN_TEXT_H

#include "tool/plan/plan.h"

#include <string>

namespace pondiff::tool {

struct PlanStyle {
    bool full = false;    ///< folds nothing
    bool color = false;   ///< for a terminal
    bool secrets = false; ///< shows them
};

/// The plan for a person: the verdict and the counts, the risks, what changes, and what will not be as wanted.
std::string plan_text(const Plan& plan, const PlanStyle& style);

} // namespace pondiff::tool

#endif
