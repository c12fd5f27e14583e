/// Plans as data: each .txt file of tests/plans is a scenario (fuzz/scenario.h) and, behind a line of dashes, the plan
/// of it. It begins with a device on which nothing is set. The plans are written by hand.

#include "fuzz/scenario.h"
#include "tests/support/case_files.h"
#include "tool/language/objects.h"
#include "tool/plan/text.h"

#include <gtest/gtest.h>

using namespace pondiff;
using namespace pondiff::tool;

namespace {

const std::filesystem::path folder = PLANS_DIR;

class Plans : public testing::TestWithParam<std::string> {};

TEST_P(Plans, AreAsWritten)
{
    const std::vector<std::string> parts = case_files::parts_of(case_files::content_of(folder / GetParam()));
    ASSERT_EQ(parts.size(), 2U);
    std::vector<std::string> senseless;
    const fuzz::Scenario scenario = fuzz::parse_scenario(parts[0], senseless);
    ASSERT_EQ(senseless, std::vector<std::string>{}) << "lines that make no sense";

    const auto running = blank_configuration();
    const auto wanted = blank_configuration();
    for (const fuzz::Patch& patch : scenario.patches) {
        fuzz::apply(patch, *running, *wanted);
    }
    const ScriptRequest request{whole_configuration(0)};
    const std::string script = script_of(request, *running, *wanted);
    Plan plan = make_plan(*running, *wanted, script);
    find_remedies(plan, *running, *wanted, request);
    EXPECT_EQ(plan_text(plan, {}), parts[1]) << "of the script\n" << script;
}

INSTANTIATE_TEST_SUITE_P(Realistic, Plans, testing::ValuesIn(case_files::all_in(folder)), case_files::name_of);

} // namespace
