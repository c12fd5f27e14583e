#ifndef TOOL_REPLACEMENT_H
#define TOOL_REPLACEMENT_H

#include "tool/descriptor.h"

#include <csignal>
#include <filesystem>
#include <string>
#include <sys/stat.h>

namespace pondiff::tool {

/// A new file that takes the place of another one, or of none, once it is complete.
///
/// Until then it has no name, so that nothing is left of it when the program is killed. Two moments are an exception:
/// - It takes the place of an existing file by way of a name of its own, .pondiff-*, since the system replaces names by
///   names alone. Killed between these two steps, the program leaves the complete file under that name.
/// - File systems that know no files without a name get one with such a name from the beginning.
///
/// Signals that can be held back wait until it is gone.
class Replacement {
  public:
    /// An empty file that its owner alone may read and write, in the folder of `target`.
    explicit Replacement(std::filesystem::path target);
    ~Replacement();
    Replacement(const Replacement&) = delete;
    Replacement& operator=(const Replacement&) = delete;

    /// Of the file, negative when it could not be made; errno says why.
    int descriptor() const { return file_.number(); }

    /// Gives it the owner, the group and the permissions of a file, its ACL included.
    /// @return false when it cannot have all of them; errno says why
    bool take_access_of(int original, const struct stat& status);

    /// Makes it the file at `target`, once its content is on the disk.
    /// @param existing  whether there is one already
    /// @return false when that fails; errno says why
    bool take_place(bool existing);

  private:
    /// Holds signals back, so that none ends the program while the file has a name of its own.
    class SignalsHeld {
      public:
        SignalsHeld();
        ~SignalsHeld();
        SignalsHeld(const SignalsHeld&) = delete;
        SignalsHeld& operator=(const SignalsHeld&) = delete;

      private:
        sigset_t before_;
    };

    int open_file();
    bool link_to_name_of_its_own();

    SignalsHeld signals_held_;
    std::filesystem::path target_;
    std::string name_; ///< of its own, while it has one
    Descriptor file_;
};

} // namespace pondiff::tool

#endif
