#ifndef TOOL_PLAN_JSON_H
#define TOOL_PLAN_JSON_H

#include "tool/plan/plan.h"

#include <string>

namespace pondiff::tool {

/// The plan for a program: docs/plan.schema.json describes it.
/// @param secrets  shows passwords and other secrets; else they are "***"
std::string plan_json(const Plan& plan, bool secrets);

} // namespace pondiff::tool

#endif
