#ifndef TOOL_ERRORS_H
#define TOOL_ERRORS_H

#include <stdexcept>
#include <string>

namespace pondiff::tool {

/// An error that ends the program. `what()` says what happened and where; main reports it.
struct Error : std::runtime_error {
    using std::runtime_error::runtime_error;
};

/// A mistake on the command line.
struct UsageError : Error {
    using Error::Error;
};

/// A file that could not be read or written: its name and the reason.
struct FileError : Error {
    FileError(const std::string& file, const std::string& reason);
    /// @param number  an errno
    FileError(const std::string& file, int number);
};

/// A mistake in an input, with the file and the place: "cfg.json: pon.ont.600: index 600, but ...".
struct InputError : Error {
    using Error::Error;
};

} // namespace pondiff::tool

#endif
