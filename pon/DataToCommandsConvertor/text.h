#ifndef PON_DATATOCOMMANDSCONVERTOR_TEXT_H
#define PON_DATATOCOMMANDSCONVERTOR_TEXT_H

#include <cstddef>
#include <cstdint>
#include <cstdlib>
#include <cstring>

namespace pondiff {

/// The first four characters of the "%4d" of a number: what fits in place of a placeholder.
void put_identifier(char* out, int value);
constexpr std::size_t identifier_width = 4;

/// For a Text that is made for every line: the hardening, which zeroes all other locals, leaves its memory alone.
#define PON_SCRATCH __attribute__((uninitialized))

/// Scratch text being built. It lives on the stack and holds a command line of the usual length there; only what a
/// caller's own long prefix or a foreign platform library's long word exceeds goes to the heap. When memory cannot be
/// had, the text stays as it is and `failed` tells.
class Text {
  public:
    Text() = default;
    ~Text()
    {
        if (data_ != inline_)
            std::free(data_);
    }
    Text(const Text&) = delete;
    Text& operator=(const Text&) = delete;

    void append(const char* bytes, std::size_t size);
    void append(const char* text) { append(text, std::strlen(text)); }
    void append(char character)
    {
        if (has_room(1))
            data_[size_++] = character;
    }
    void append_natural(std::uint64_t value);
    void append_decimal(std::int64_t value);
    /// As the printing conversion %4d does: right-aligned in four characters, wider values in full.
    void append_aligned(int value);
    /// Puts `text` in place of the first `count` bytes.
    void replace_front(std::size_t count, const Text& text);
    /// Notes that a part of the text could not be had.
    void fail() { failed_ = true; }

    char* data() { return data_; }
    const char* data() const { return data_; }
    /// The text with its terminator.
    char* c_str();
    std::size_t size() const { return size_; }
    bool failed() const { return failed_; }
    /// A copy on the heap that `free` releases; null when the allocation fails or part of the text was lost.
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
