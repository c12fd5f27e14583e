#include "tool/destination.h"

#include <charconv>
#include <climits>
#include <cstdlib>
#include <fmt/format.h>
#include <memory>
#include <string>
#include <string_view>
#include <unistd.h>

namespace pondiff::tool {

namespace {

/// The folder of a file, without symbolic links; empty where there is none.
std::string folder_of(const std::filesystem::path& file)
{
    const std::filesystem::path folder = file.has_parent_path() ? file.parent_path() : ".";
    const std::unique_ptr<char, decltype(&std::free)> path{realpath(folder.c_str(), nullptr), &std::free};
    return path ? path.get() : "";
}

/// The number that a text of digits stands for.
std::optional<int> number_of(const std::string& digits)
{
    int number = 0;
    const char* const end = digits.data() + digits.size();
    const auto [stop, failure] = std::from_chars(digits.data(), end, number);
    return failure == std::errc() && stop == end ? std::optional(number) : std::nullopt;
}

bool begins_with(std::string_view text, std::string_view beginning)
{
    return text.substr(0, beginning.size()) == beginning;
}

} // namespace

Destination destination_of(std::filesystem::path file)
{
    constexpr int most_links = 40; // the limit of the system
    const std::filesystem::path name = file;
    std::string target(PATH_MAX, '\0');
    for (int links = 0; links <= most_links; ++links) {
        const std::string folder = folder_of(file);
        const std::optional<int> number = number_of(file.filename().string());
        if (number && begins_with(folder, "/proc/") && std::filesystem::path(folder).filename() == "fd") {
            const bool own = begins_with(folder, fmt::format("/proc/{}/", getpid()));
            return {file, true, own ? number : std::nullopt};
        }
        // Not std::filesystem: on 32-bit processors it does not recognize links with a date after 2038.
        const ssize_t length = readlink(file.c_str(), target.data(), target.size());
        if (length < 0) {
            return {file, false, std::nullopt};
        }
        file = file.parent_path() / target.substr(0, static_cast<std::size_t>(length));
    }
    return {name, false, std::nullopt};
}

} // namespace pondiff::tool
