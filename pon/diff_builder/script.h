#ifndef PON_DIFF_BUILDER_SCRIPT_H
#define PON_DIFF_BUILDER_SCRIPT_H

#include "pon/DataToCommandsConvertor/text.h"
#include "pon/diff_builder.h"

#include <cstddef>

namespace pondiff {

/// The list that the library's own operations pass to record diffs. Its elements are never read, so it keeps none:
/// `push`, the only function that distinguishes the two kinds of lists, writes them directly into the text that the
/// operation returns, one line for each element that is not empty and does not begin with a line feed. A list of any
/// other caller of a record diff gets every element.
class Script : public List<char> {
  public:
    Script();
    ~Script();
    Script(const Script&) = delete;
    Script& operator=(const Script&) = delete;

    void append_line(const Text& line);
    bool empty() const { return size_ == 0; }
    bool failed() const { return failed_; }
    /// Hands over the text, on the heap and with its terminator; null when an allocation failed.
    char* release();

    /// The list as the script of the current operation; null for every other list.
    static Script* of(const List<char>& list) { return current_ == &list ? current_ : nullptr; }

  private:
    bool grow(std::size_t more);

    static Script* current_;

    Script* outer_;
    char* text_ = nullptr;
    std::size_t size_ = 0;
    std::size_t capacity_ = 0;
    bool failed_ = false;
};

/// Appends a text as it is. @return false when an allocation fails
bool push(List<char>& out, const Text& text);

} // namespace pondiff

#endif
