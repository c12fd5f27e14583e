#include "tool/replacement.h"

#include <array>
#include <cerrno>
#include <cstdint>
#include <cstdio>
#include <fcntl.h>
#include <fmt/format.h>
#include <optional>
#include <sys/random.h>
#include <sys/xattr.h>
#include <unistd.h>

namespace pondiff::tool {

namespace {

constexpr char acl_name[] = "system.posix_acl_access";

std::string folder_of(const std::filesystem::path& file)
{
    return file.has_parent_path() ? file.parent_path().string() : ".";
}

/// A path by which an unnamed file can be linked to a name.
std::string path_of(int descriptor)
{
    return fmt::format("/proc/self/fd/{}", descriptor);
}

/// The ACL of a file in the system's binary form, empty if it has none.
/// @return nothing when it cannot be read
std::optional<std::string> acl_of(int file)
{
    std::array<char, std::size_t{64} << 10> bytes; // the longest possible value
    const ssize_t size = fgetxattr(file, acl_name, bytes.data(), bytes.size());
    if (size >= 0) {
        return std::string(bytes.data(), static_cast<std::size_t>(size));
    }
    if (errno == ENODATA || errno == EOPNOTSUPP) {
        return std::string();
    }
    return std::nullopt;
}

/// Removes the ACL that a new file may have got from its folder's default.
bool remove_acl(int file)
{
    return fremovexattr(file, acl_name) == 0 || errno == ENODATA || errno == EOPNOTSUPP;
}

} // namespace

Replacement::BlockedSignals::BlockedSignals()
{
    sigset_t all;
    sigfillset(&all);
    sigprocmask(SIG_SETMASK, &all, &before_);
}

Replacement::BlockedSignals::~BlockedSignals()
{
    sigprocmask(SIG_SETMASK, &before_, nullptr);
}

Replacement::Replacement(std::filesystem::path target) : target_(std::move(target)), file_(open_file()) {}

Replacement::~Replacement()
{
    if (!name_.empty()) {
        unlink(name_.c_str());
    }
}

bool Replacement::take_access_of(int original, const struct stat& status)
{
    constexpr mode_t permissions = 0777;
    struct stat own = {};
    const std::optional<std::string> acl = acl_of(original);
    if (!acl || fstat(file_.number(), &own) != 0) {
        return false;
    }
    // Each id separately, and only if it differs: the user may be allowed to change one but not to set both.
    if (own.st_uid != status.st_uid && fchown(file_.number(), status.st_uid, static_cast<gid_t>(-1)) != 0) {
        return false;
    }
    if (own.st_gid != status.st_gid && fchown(file_.number(), static_cast<uid_t>(-1), status.st_gid) != 0) {
        return false;
    }
    // With an ACL, the group bits of the mode are its mask. Setting the ACL sets the mode, too.
    if (!acl->empty()) {
        return fsetxattr(file_.number(), acl_name, acl->data(), acl->size(), 0) == 0;
    }
    return remove_acl(file_.number()) && fchmod(file_.number(), status.st_mode & permissions) == 0;
}

bool Replacement::take_place(bool existing)
{
    if (fsync(file_.number()) != 0) {
        return false;
    }
    if (name_.empty() && !existing) {
        return linkat(AT_FDCWD, path_of(file_.number()).c_str(), AT_FDCWD, target_.c_str(), AT_SYMLINK_FOLLOW) == 0;
    }
    if ((name_.empty() && !link_to_temporary_name()) || rename(name_.c_str(), target_.c_str()) != 0) {
        return false;
    }
    name_.clear();
    return true;
}

int Replacement::open_file()
{
    const int unnamed = open(folder_of(target_).c_str(), O_TMPFILE | O_WRONLY | O_CLOEXEC, 0600);
    if (unnamed >= 0) {
        if (access(path_of(unnamed).c_str(), F_OK) == 0) {
            return unnamed;
        }
        close(unnamed);
    }
    name_ = folder_of(target_) + "/.pondiff-XXXXXX";
    const int named = mkostemp(name_.data(), O_CLOEXEC);
    if (named < 0) {
        name_.clear();
    }
    return named;
}

bool Replacement::link_to_temporary_name()
{
    do {
        std::uint32_t number = 0;
        if (getrandom(&number, sizeof number, 0) != sizeof number) {
            return false;
        }
        name_ = fmt::format("{}/.pondiff-{:08x}", folder_of(target_), number);
        if (linkat(AT_FDCWD, path_of(file_.number()).c_str(), AT_FDCWD, name_.c_str(), AT_SYMLINK_FOLLOW) == 0) {
            return true;
        }
        name_.clear();
    } while (errno == EEXIST);
    return false;
}

} // namespace pondiff::tool
