/// Runs a fuzzer's target on the files of the folders given, with every check: one line for each file that it ends at.

#include "fuzz/checks.h"

#include <algorithm>
#include <cstdio>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <string>
#include <vector>

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size);

namespace {

std::vector<std::filesystem::path> files_in(const std::filesystem::path& folder)
{
    std::vector<std::filesystem::path> files;
    for (const auto& entry : std::filesystem::directory_iterator(folder)) {
        if (entry.is_regular_file()) {
            files.push_back(entry.path());
        }
    }
    std::sort(files.begin(), files.end());
    return files;
}

std::vector<std::uint8_t> content_of(const std::filesystem::path& path)
{
    std::ifstream file(path, std::ios::binary);
    return {std::istreambuf_iterator<char>(file), {}};
}

} // namespace

int main(int argc, char** argv)
{
    pondiff::fuzz::every_check = true;
    for (int i = 1; i < argc; ++i) {
        const auto files = files_in(argv[i]);
        for (const auto& path : files) {
            std::printf("%s\n", path.c_str());
            std::fflush(stdout); // before a failure ends the program
            const std::vector<std::uint8_t> content = content_of(path);
            LLVMFuzzerTestOneInput(content.data(), content.size());
        }
        std::printf("%zu inputs in %s\n", files.size(), argv[i]);
        if (files.empty()) {
            return 1;
        }
    }
    return argc > 1 ? 0 : 1;
}
