#include "tool/files.h"

#include <cerrno>
#include <climits>
#include <csignal>
#include <cstdlib>
#include <cstring>
#include <fcntl.h>
#include <filesystem>
#include <fmt/format.h>
#include <sys/stat.h>
#include <unistd.h>
#include <utility>

namespace pondiff::tool {

namespace {

/// Far above the largest document that a configuration makes.
constexpr std::size_t largest_file = std::size_t{64} << 20;

class Descriptor {
  public:
    explicit Descriptor(int number) : number_(number) {}
    ~Descriptor()
    {
        if (number_ >= 0)
            ::close(number_);
    }
    Descriptor(const Descriptor&) = delete;
    Descriptor& operator=(const Descriptor&) = delete;

    int number() const { return number_; }
    /// Closes the file where the outcome matters: some file systems report only here that the disk is full.
    bool close() { return ::close(std::exchange(number_, -1)) == 0; }

  private:
    int number_;
};

/// Holds signals back, so that none ends the program while a temporary file is about.
class SignalsHeld {
  public:
    SignalsHeld()
    {
        sigset_t all;
        sigfillset(&all);
        sigprocmask(SIG_SETMASK, &all, &before_);
    }
    ~SignalsHeld() { sigprocmask(SIG_SETMASK, &before_, nullptr); }
    SignalsHeld(const SignalsHeld&) = delete;
    SignalsHeld& operator=(const SignalsHeld&) = delete;

  private:
    sigset_t before_;
};

/// A new, empty file in the folder of another, gone again unless it takes that one's place.
class TemporaryFile {
  public:
    explicit TemporaryFile(const std::filesystem::path& neighbour)
        : name_((neighbour.parent_path() / ".pondiff-XXXXXX").string()), file_(mkostemp(name_.data(), O_CLOEXEC))
    {
    }
    ~TemporaryFile()
    {
        if (file_.number() >= 0)
            unlink(name_.c_str());
    }
    TemporaryFile(const TemporaryFile&) = delete;
    TemporaryFile& operator=(const TemporaryFile&) = delete;

    int descriptor() const { return file_.number(); }
    bool take_place_of(const std::filesystem::path& target)
    {
        if (fsync(file_.number()) != 0 || rename(name_.c_str(), target.c_str()) != 0)
            return false;
        file_.close();
        return true;
    }

  private:
    std::string name_;
    Descriptor file_;
};

std::string name_in_messages(const std::string& file, const char* standard_stream_name)
{
    if (file == standard_stream)
        return standard_stream_name;
    return file.empty() ? "''" : file;
}

std::string read_all(int descriptor, const std::string& name)
{
    std::string content(std::size_t{64} << 10, '\0');
    std::size_t size = 0;
    while (true) {
        const ssize_t count = read(descriptor, content.data() + size, content.size() - size);
        if (count < 0 && errno == EINTR)
            continue;
        if (count < 0)
            throw FileError(name, errno);
        if (count == 0)
            break;
        size += static_cast<std::size_t>(count);
        if (size > largest_file)
            throw FileError(name, EFBIG);
        if (size == content.size())
            content.resize(2 * size);
    }
    content.resize(size);
    return content;
}

bool write_all(int descriptor, std::string_view content)
{
    while (!content.empty()) {
        const ssize_t count = write(descriptor, content.data(), content.size());
        if (count < 0 && errno == EINTR)
            continue;
        if (count < 0)
            return false;
        content.remove_prefix(static_cast<std::size_t>(count));
    }
    return true;
}

void write_standard_output(std::string_view content, const std::string& name)
{
    if (!write_all(STDOUT_FILENO, content))
        throw FileError(name, errno);
    Descriptor copy{dup(STDOUT_FILENO)};
    if (copy.number() < 0 || !copy.close())
        throw FileError(name, errno);
}

void write_in_place(const std::string& file, std::string_view content, const std::string& name)
{
    Descriptor opened{open(file.c_str(), O_WRONLY | O_CLOEXEC | O_NOCTTY)};
    if (opened.number() < 0 || !write_all(opened.number(), content) || !opened.close())
        throw FileError(name, errno);
}

/// Where a chain of symbolic links ends, be there a file or not.
std::filesystem::path link_target(std::filesystem::path file)
{
    // The chain is finite: whoever asks has seen that the system can follow it, or that its end does not exist.
    // Asked of the system: on processors of 32 bits the C++ library takes a link of the far future for none.
    std::string target(PATH_MAX, '\0');
    while (true) {
        const ssize_t length = readlink(file.c_str(), target.data(), target.size());
        if (length < 0)
            return file;
        file = file.parent_path() / target.substr(0, static_cast<std::size_t>(length));
    }
}

bool take_permissions(int descriptor, const struct stat* existing)
{
    constexpr mode_t permissions = 0777;
    if (!existing) {
        const mode_t mask = umask(0);
        umask(mask);
        return fchmod(descriptor, 0666 & ~mask) == 0;
    }
    // Only a privileged user can give a file to its former owner; the mode is kept in any case.
    [[maybe_unused]] const bool owner_kept = fchown(descriptor, existing->st_uid, existing->st_gid) == 0;
    return fchmod(descriptor, existing->st_mode & permissions) == 0;
}

void replace_file(const std::string& file, const struct stat* existing, std::string_view content,
                  const std::string& name)
{
    const std::filesystem::path target = link_target(file);
    const SignalsHeld held;
    TemporaryFile temporary{target};
    if (temporary.descriptor() < 0 || !write_all(temporary.descriptor(), content) ||
        !take_permissions(temporary.descriptor(), existing) || !temporary.take_place_of(target))
        throw FileError(name, errno);
}

} // namespace

FileError::FileError(const std::string& file, int error)
    : Error(fmt::format("{}: {}", file, std::strerror(error)))
{
}

std::string name_of_input(const std::string& file)
{
    return name_in_messages(file, "standard input");
}

std::string read_file(const std::string& file)
{
    const std::string name = name_of_input(file);
    if (file == standard_stream)
        return read_all(STDIN_FILENO, name);
    const Descriptor opened{open(file.c_str(), O_RDONLY | O_CLOEXEC | O_NOCTTY)};
    if (opened.number() < 0)
        throw FileError(name, errno);
    return read_all(opened.number(), name);
}

void write_file(const std::string& file, std::string_view content)
{
    const std::string name = name_in_messages(file, "standard output");
    if (file == standard_stream)
        return write_standard_output(content, name);
    struct stat existing = {};
    if (stat(file.c_str(), &existing) != 0) {
        if (errno != ENOENT)
            throw FileError(name, errno);
        return replace_file(file, nullptr, content, name);
    }
    if (!S_ISREG(existing.st_mode))
        return write_in_place(file, content, name);
    if (access(file.c_str(), W_OK) != 0)
        throw FileError(name, errno);
    replace_file(file, &existing, content, name);
}

} // namespace pondiff::tool
