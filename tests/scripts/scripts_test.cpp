/// Whole scripts as data: each .txt file of this folder is a scenario (fuzz/scenario.h) and, behind a line of dashes
/// for each of its calls, the text that the call gives. The texts are written by hand.

#include "fuzz/operations.h"
#include "fuzz/scenario.h"
#include "pon/command_file_generator.h"
#include "tool/json/json.h"

#include <algorithm>
#include <filesystem>
#include <fstream>
#include <gtest/gtest.h>
#include <iterator>
#include <memory>
#include <sstream>

namespace pondiff {

namespace {

const std::filesystem::path folder = SCRIPTS_DIR;

std::string content_of(const std::string& file)
{
    std::ifstream stream(folder / file, std::ios::binary);
    EXPECT_TRUE(stream) << file << " cannot be read";
    return {std::istreambuf_iterator<char>(stream), {}};
}

/// What stands between the lines of dashes.
std::vector<std::string> parts_of(const std::string& content)
{
    std::vector<std::string> parts(1);
    std::istringstream lines(content);
    for (std::string line; std::getline(lines, line);) {
        if (line == "----") {
            parts.emplace_back();
        } else {
            parts.back() += line + '\n';
        }
    }
    return parts;
}

std::unique_ptr<GCfg> begin_with(const fuzz::Scenario& scenario, std::size_t side)
{
    auto configuration = std::make_unique<GCfg>();
    if (scenario.base.size() == 2) {
        tool::read_json(content_of(scenario.base[side]), scenario.base[side], *configuration);
    }
    return configuration;
}

std::vector<std::string> all_files()
{
    std::vector<std::string> files;
    for (const auto& entry : std::filesystem::directory_iterator(folder)) {
        if (entry.path().extension() == ".txt") {
            files.push_back(entry.path().filename().string());
        }
    }
    std::sort(files.begin(), files.end());
    return files;
}

std::string name_of(const testing::TestParamInfo<std::string>& info)
{
    std::string name = std::filesystem::path(info.param).stem().string();
    std::replace(name.begin(), name.end(), '-', '_');
    return name;
}

class Scripts : public testing::TestWithParam<std::string> {};

TEST_P(Scripts, AreAsWritten)
{
    const std::vector<std::string> parts = parts_of(content_of(GetParam()));
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

INSTANTIATE_TEST_SUITE_P(Whole, Scripts, testing::ValuesIn(all_files()), name_of);

} // namespace

} // namespace pondiff
