#ifndef PON_DATATOCOMMANDSCONVERTOR_TEXT_H
#define PON_DATATOCOMMANDSCONVERTOR_TEXT_H

#include <cstddef>
#include <cstdint>
#include <cstdlib>
#include <cstring>

namespace pondiff {

/// Writes the first four characters of a number formatted with "%4d": the size of a placeholder.
void put_identifier(char* out, int value);
constexpr std::size_t identifier_width = 4;

/// For a Text that is created for every line: the compiler's hardening does not zero its memory, as it does for all
/// other locals.
#define PON_SCRATCH __attribute__((uninitialized))

/// A text under construction. It lives on the stack, which has room for any usual command line; only a longer one, by a
/// caller's own prefix or a word of another platform library, moves to the heap. When an allocation fails, the text
/// stays as it is and `failed` returns true.
class Text {
  public:
    Text() = default;
    ~Text()
    {
        if (data_ != inline_) {
            std::free(data_);
        }
    }
    Text(const Text&) = delete;
    Text& operator=(const Text&) = delete;

    void append(const char* bytes, std::size_t size);
    void append(const char* text) { append(text, std::strlen(text)); }
    void append(char character)
    {
        if (has_room(1)) {
            data_[size_++] = character;
        }
    }
    void append_natural(std::uint64_t value);
    void append_decimal(std::int64_t value);
    /// Like printf's %4d: right-aligned in four characters, wider values in full.
    void append_aligned(int value);
    /// Replaces the first `count` bytes by `text`.
    void replace_front(std::size_t count, const Text& text);
    /// Records that part of the text is missing.
    void fail() { failed_ = true; }

    char* data() { return data_; }
    const char* data() const { return data_; }
    /// The text with its terminator.
    char* c_str();
    std::size_t size() const { return size_; }
    bool failed() const { return failed_; }
    /// A copy on the heap that `free` releases; null when the allocation fails or part of the text is missing.
    char* release_copy() const;

  private:
    bool has_room(std::size_t size) { return capacity_ - size_ > size || grow(size); }
    bool grow(std::size_t more);
    template <class Number>
    void append_digits(Number value);

    static constexpr std::size_t inline_capacity = 1024;
    char inline_[inline_capacity];
    char* data_ = inline_;
    std::size_t size_ = 0;
    std::size_t capacity_ = inline_capacity; // one byte of it is kept for the terminator
    bool failed_ = false;
};

} // namespace pondiff

#endif
