#include "tool/files.h"

#include "tool/descriptor.h"
#include "tool/destination.h"
#include "tool/replacement.h"

#include <algorithm>
#include <cerrno>
#include <cstdint>
#include <cstdlib>
#include <cstring>
#include <ctime>
#include <fcntl.h>
#include <fmt/format.h>
#include <sys/stat.h>
#include <unistd.h>
#include <utility>
#include <vector>

namespace pondiff::tool {

namespace {

/// Far larger than any document of a configuration.
constexpr std::size_t largest_file = std::size_t{64} << 20;

/// The regular files that have been read. Output must not replace any of them.
std::vector<std::pair<dev_t, ino_t>>& files_read()
{
    static std::vector<std::pair<dev_t, ino_t>> files;
    return files;
}

bool is_input(const struct stat& file)
{
    const auto& inputs = files_read();
    return S_ISREG(file.st_mode) &&
           std::find(inputs.begin(), inputs.end(), std::make_pair(file.st_dev, file.st_ino)) != inputs.end();
}

std::string name_in_messages(const std::string& file, const char* standard_stream_name)
{
    if (file == standard_stream) {
        return standard_stream_name;
    }
    return file.empty() ? "''" : file;
}

std::string read_all(int descriptor, const std::string& name)
{
    std::string content(std::size_t{64} << 10, '\0');
    std::size_t size = 0;
    while (true) {
        const ssize_t count = read(descriptor, content.data() + size, content.size() - size);
        if (count < 0 && errno == EINTR) {
            continue;
        }
        if (count < 0) {
            throw FileError(name, errno);
        }
        if (count == 0) {
            break;
        }
        size += static_cast<std::size_t>(count);
        if (size > largest_file) {
            throw FileError(name, EFBIG);
        }
        if (size == content.size()) {
            content.resize(2 * size);
        }
    }
    content.resize(size);
    return content;
}

std::int64_t nanoseconds(const timespec& time)
{
    return std::int64_t{1'000'000'000} * time.tv_sec + time.tv_nsec;
}

/// The state of a file that has not changed for longer than a tick of the clock for time stamps, so that any later
/// change gets another time stamp. Waits for that, but not for long when the file changes all the time.
struct stat settled_state(int descriptor, const std::string& name)
{
    constexpr std::int64_t tick = 20'000'000;
    struct stat state = {};
    for (int tries = 0; tries < 50; ++tries) {
        timespec now = {};
        if (fstat(descriptor, &state) != 0) {
            throw FileError(name, errno);
        }
        clock_gettime(CLOCK_REALTIME, &now);
        const std::int64_t age = nanoseconds(now) - nanoseconds(state.st_ctim);
        if (!S_ISREG(state.st_mode) || age < 0 || age >= tick) {
            break;
        }
        const timespec rest{0, static_cast<long>(tick - age)};
        nanosleep(&rest, nullptr);
    }
    return state;
}

bool same_content(const struct stat& before, const struct stat& after)
{
    return before.st_size == after.st_size && nanoseconds(before.st_mtim) == nanoseconds(after.st_mtim) &&
           nanoseconds(before.st_ctim) == nanoseconds(after.st_ctim);
}

/// Reads a file and fails when it changes meanwhile.
std::string read_unchanged(int descriptor, const std::string& name)
{
    const struct stat before = settled_state(descriptor, name);
    std::string content = read_all(descriptor, name);
    struct stat after = {};
    if (fstat(descriptor, &after) != 0) {
        throw FileError(name, errno);
    }
    if (!S_ISREG(after.st_mode)) {
        return content;
    }
    if (!same_content(before, after)) {
        throw FileError(name, "changed while it was read; try again");
    }
    files_read().emplace_back(after.st_dev, after.st_ino);
    return content;
}

void check_is_no_input(const struct stat& file, const std::string& name)
{
    if (is_input(file)) {
        throw FileError(name, "is an input as well; choose another file for the output");
    }
}

void write_to_descriptor(int descriptor, std::string_view content, const std::string& name)
{
    if (content.empty()) {
        return;
    }
    struct stat status = {};
    Descriptor copy{dup(descriptor)};
    if (copy.number() < 0 || fstat(copy.number(), &status) != 0) {
        throw FileError(name, errno);
    }
    check_is_no_input(status, name);
    if (!write_all(copy.number(), content) || !copy.close()) {
        throw FileError(name, errno);
    }
}

/// @param existing  the file to replace, or a closed descriptor if there is none
void replace_file(const std::filesystem::path& file, const Descriptor& existing, const struct stat& status,
                  std::string_view content, const std::string& name)
{
    Replacement replacement{file};
    if (replacement.descriptor() < 0) {
        throw FileError(name, errno);
    }
    const bool exists = existing.number() >= 0;
    if (exists && !replacement.take_access_of(existing.number(), status)) {
        throw FileError(name, fmt::format("its owner, group and permissions cannot be kept ({}); choose another file",
                                          std::strerror(errno)));
    }
    if (!write_all(replacement.descriptor(), content) || !replacement.take_place(exists)) {
        throw FileError(name, errno);
    }
}

} // namespace

std::string name_of_input(const std::string& file)
{
    return name_in_messages(file, "standard input");
}

std::string read_file(const std::string& file)
{
    const std::string name = name_of_input(file);
    if (file == standard_stream) {
        return read_unchanged(STDIN_FILENO, name);
    }
    const Descriptor opened{open(file.c_str(), O_RDONLY | O_CLOEXEC | O_NOCTTY)};
    if (opened.number() < 0) {
        throw FileError(name, errno);
    }
    return read_unchanged(opened.number(), name);
}

void write_file(const std::string& file, std::string_view content)
{
    const std::string name = name_in_messages(file, "standard output");
    const Destination destination =
        file == standard_stream ? Destination{"", true, STDOUT_FILENO} : destination_of(file);
    if (destination.descriptor) {
        return write_to_descriptor(*destination.descriptor, content, name);
    }
    Descriptor existing{open(file.c_str(), O_WRONLY | O_APPEND | O_CLOEXEC | O_NOCTTY)};
    struct stat status = {};
    if (existing.number() < 0 ? errno != ENOENT : fstat(existing.number(), &status) != 0) {
        throw FileError(name, errno);
    }
    check_is_no_input(status, name);
    if (existing.number() < 0 || (S_ISREG(status.st_mode) && !destination.of_a_process)) {
        return replace_file(destination.file, existing, status, content, name);
    }
    if (!write_all(existing.number(), content) || !existing.close()) {
        throw FileError(name, errno);
    }
}

} // namespace pondiff::tool
