/// Whole scripts as data: each .txt file of this folder is a scenario (fuzz/scenario.h) and, behind a line of dashes
/// for each of its calls, the text that the call gives. The texts are written by hand.

#include "fuzz/operations.h"
#include "fuzz/scenario.h"
#include "pon/command_file_generator.h"
#include "tests/support/case_files.h"
#include "tool/json/json.h"

#include <gtest/gtest.h>
#include <memory>

namespace pondiff {

namespace {

const std::filesystem::path folder = SCRIPTS_DIR;

std::unique_ptr<GCfg> begin_with(const fuzz::Scenario& scenario, std::size_t side)
{
    auto configuration = std::make_unique<GCfg>();
    if (scenario.base.size() == 2) {
        tool::read_json(case_files::content_of(folder / scenario.base[side]), scenario.base[side], *configuration);
    }
    return configuration;
}

class Scripts : public testing::TestWithParam<std::string> {};

TEST_P(Scripts, AreAsWritten)
{
    const std::vector<std::string> parts = case_files::parts_of(case_files::content_of(folder / GetParam()));
    std::vector<std::string> senseless;
    const fuzz::Scenario scenario = fuzz::parse_scenario(parts.front(), senseless);
    ASSERT_EQ(senseless, std::vector<std::string>{}) << "lines that make no sense";
    ASSERT_FALSE(scenario.base.empty()) << "the line \"base blank\" is missing";
    ASSERT_EQ(scenario.calls.size(), parts.size() - 1) << "each call has a text behind a line of dashes";
    ASSERT_FALSE(scenario.calls.empty());

    const auto orig = begin_with(scenario, 0);
    const auto cfg = begin_with(scenario, 1);
    for (const fuzz::Patch& patch : scenario.patches) {
        fuzz::apply(patch, *orig, *cfg);
    }
    ASSERT_EQ(initiate_diff(orig.get(), cfg.get(), scenario.all, scenario.common), 0);
    for (std::size_t i = 0; i < scenario.calls.size(); ++i) {
        std::string script;
        for (const std::string& text : fuzz::run(scenario.calls[i], orig.get(), cfg.get())) {
            script += text;
        }
        EXPECT_EQ(script, parts[i + 1]) << "of call " << i + 1 << ", " << scenario.calls[i].operation->name;
    }
    finalize_diff();
}

INSTANTIATE_TEST_SUITE_P(Whole, Scripts, testing::ValuesIn(case_files::all_in(folder)), case_files::name_of);

} // namespace

} // namespace pondiff
