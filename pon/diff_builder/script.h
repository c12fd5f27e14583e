#ifndef PON_DIFF_BUILDER_SCRIPT_H
#define PON_DIFF_BUILDER_SCRIPT_H

#include "pon/DataToCommandsConvertor/text.h"
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

    void append_line(const Text& line);
    bool empty() const { return size_ == 0; }
    bool failed() const { return failed_; }
    /// Hands over the text, on the heap and with its terminator; null when part of it was lost.
    char* release();

    /// The list as the script of the operation under way; null for every other list.
    static Script* of(const List<char>& list) { return under_way_ == &list ? under_way_ : nullptr; }

  private:
    bool grow(std::size_t more);

    static Script* under_way_;

    Script* outer_;
    char* text_ = nullptr;
    std::size_t size_ = 0;
    std::size_t capacity_ = 0;
    bool failed_ = false;
};

/// Appends a text as it is. @return false when memory for it could not be allocated
bool push(List<char>& out, const Text& text);

} // namespace pondiff

#endif
