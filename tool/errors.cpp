#include "tool/errors.h"

#include <cstring>

namespace pondiff::tool {

FileError::FileError(const std::string& file, const std::string& reason) : Error(file + ": " + reason) {}

FileError::FileError(const std::string& file, int number) : FileError(file, std::strerror(number)) {}

} // namespace pondiff::tool
