#ifndef TOOL_DESCRIPTOR_H
#define TOOL_DESCRIPTOR_H

#include <string_view>
#include <unistd.h>
#include <utility>

namespace pondiff::tool {

/// An open file, or a negative number if it could not be opened.
class Descriptor {
  public:
    explicit Descriptor(int number) : number_(number) {}
    ~Descriptor()
    {
        if (number_ >= 0) {
            ::close(number_);
        }
    }
    Descriptor(const Descriptor&) = delete;
    Descriptor& operator=(const Descriptor&) = delete;

    int number() const { return number_; }
    /// Closes the file and returns whether that succeeded: some file systems report a full disk only here.
    bool close() { return ::close(std::exchange(number_, -1)) == 0; }

  private:
    int number_;
};

/// False when it fails; errno says why.
bool write_all(int descriptor, std::string_view content);

} // namespace pondiff::tool

#endif
