#ifndef TESTS_SUPPORT_CASE_FILES_H
#define TESTS_SUPPORT_CASE_FILES_H

/// @file
/// Test cases as data: each .txt file of a folder is a scenario (fuzz/scenario.h) and, behind a line of dashes each,
/// the texts that are expected of it.

#include <algorithm>
#include <filesystem>
#include <fstream>
#include <gtest/gtest.h>
#include <iterator>
#include <sstream>
#include <string>
#include <vector>

namespace case_files {

inline std::string content_of(const std::filesystem::path& file)
{
    std::ifstream stream(file, std::ios::binary);
    EXPECT_TRUE(stream) << file << " cannot be read";
    return {std::istreambuf_iterator<char>(stream), {}};
}

/// What stands between the lines of dashes.
inline std::vector<std::string> parts_of(const std::string& content)
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

/// The names of the cases in a folder.
inline std::vector<std::string> all_in(const std::filesystem::path& folder)
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

/// The name of a test.
inline std::string name_of(const testing::TestParamInfo<std::string>& info)
{
    std::string name = std::filesystem::path(info.param).stem().string();
    std::replace(name.begin(), name.end(), '-', '_');
    return name;
}

} // namespace case_files

#endif
