#ifndef PON_DIFF_BUILDER_SCRIPT_H
#define PON_DIFF_BUILDER_SCRIPT_H

#include "pon/diff_builder.h"

#include <cstddef>

namespace pondiff {

/// The list that an operation of the library hands to its record diffs. Nobody ever looks at its elements, so it keeps
/// none: `push`, the one place that knows the two kinds of lists apart, puts what is meant for it straight into the
/// text that the operation returns, one line for each element that is neither empty nor begins with a line feed. The
/// list of a caller who calls a record diff himself gets every element.
class Script : public List<char> {
  public:
    Script();
    ~Script();
    Script(const Script&) = delete;
    Script& operator=(const Script&) = delete;

    void append_line(const char* text, std::size_t size);

    /// Room behind the text in which a line may be built, so that it need not be copied there; null when there is none.
    char* room()
    {
        constexpr std::size_t line = 1024; // no usual line is longer, its line feed included
        return !failed_ && (capacity_ - size_ > line || grow(line)) ? text_ + size_ : nullptr;
    }
    std::size_t room_size() const { return capacity_ - size_; }
    /// Takes the line that has been built in the room.
    void take_line(std::size_t size)
    {
        if (size == 0 || text_[size_] == '\n')
            return;
        size_ += size;
        text_[size_++] = '\n';
    }
    bool empty() const { return size_ == 0; }
    bool failed() const { return failed_; }
    /// Hands over the text, on the heap and with its terminator; null when part of it was lost.
    char* release();

    /// The list as the script of the operation under way; null for every other list.
    static Script* of(const List<char>& list) { return under_way_ == &list ? under_way_ : nullptr; }
    /// Notes that a text for the list could not be had.
    void lose() { failed_ = true; }

  private:
    bool grow(std::size_t more);

    static Script* under_way_;

    Script* outer_;
    char* text_ = nullptr;
    std::size_t size_ = 0;
    std::size_t capacity_ = 0;
    bool failed_ = false;
};

/// Appends a fragment as it is. @return false when memory cannot be had
bool push(List<char>& out, const char* text, std::size_t size);

} // namespace pondiff

#endif
