#ifndef TOOL_REPLACEMENT_H
#define TOOL_REPLACEMENT_H

#include "tool/descriptor.h"

#include <csignal>
#include <filesystem>
#include <string>
#include <sys/stat.h>

namespace pondiff::tool {

/// A new file that replaces another one, if there is one, once it is complete.
///
/// Until then it has no name, so that nothing is left of it when the program is killed, with two exceptions:
/// - To replace an existing file it first gets a temporary name, .pondiff-*, since the system can only rename files
/// that
///   have one. Killed between these two steps, the program leaves the complete file under that name.
/// - On file systems without unnamed files it has such a name from the beginning.
///
/// Signals that can be blocked are blocked until it is gone.
class Replacement {
  public:
    /// An empty file that only its owner may read and write, in the folder of `target`.
    explicit Replacement(std::filesystem::path target);
    ~Replacement();
    Replacement(const Replacement&) = delete;
    Replacement& operator=(const Replacement&) = delete;

    /// Negative when the file could not be created; errno says why.
    int descriptor() const { return file_.number(); }

    /// Gives it the owner, the group and the permissions of a file, including its ACL.
    /// @return false when one of these cannot be set; errno says why
    bool take_access_of(int original, const struct stat& status);

    /// Makes it the file at `target`, after its content has been flushed to the disk.
    /// @param existing  whether there is one already
    /// @return false when that fails; errno says why
    bool take_place(bool existing);

  private:
    /// Blocks signals, so that none ends the program while the file has a temporary name.
    class BlockedSignals {
      public:
        BlockedSignals();
        ~BlockedSignals();
        BlockedSignals(const BlockedSignals&) = delete;
        BlockedSignals& operator=(const BlockedSignals&) = delete;

      private:
        sigset_t before_;
    };

    int open_file();
    bool link_to_temporary_name();

    BlockedSignals blocked_signals_;
    std::filesystem::path target_;
    std::string name_; ///< the temporary name, while it has one
    Descriptor file_;
};

} // namespace pondiff::tool

#endif
