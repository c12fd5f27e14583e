#include "pon/DataToCommandsConvertor/text.h"

#include <charconv>
#include <cstdlib>

namespace pondiff {

void put_identifier(char* out, int value)
{
    PON_SCRATCH Text aligned;
    aligned.append_aligned(value);
    std::memcpy(out, aligned.data(), identifier_width);
}

bool Text::grow(std::size_t more)
{
    const std::size_t wanted = (size_ + more + 1) * 2;
    const bool on_stack = data_ == inline_;
    auto* const bigger = failed_ ? nullptr : static_cast<char*>(std::realloc(on_stack ? nullptr : data_, wanted));
    if (!bigger) {
        failed_ = true;
        return false;
    }
    if (on_stack) {
        std::memcpy(bigger, data_, size_);
    }
    data_ = bigger;
    capacity_ = wanted;
    return true;
}

void Text::append(const char* bytes, std::size_t size)
{
    if (!has_room(size)) {
        return;
    }
    std::memcpy(data_ + size_, bytes, size);
    size_ += size;
}

template <class Number>
void Text::append_digits(Number value)
{
    constexpr std::size_t most_digits = 20; // of 64 bits, with a sign
    if (has_room(most_digits)) {
        size_ = static_cast<std::size_t>(std::to_chars(data_ + size_, data_ + size_ + most_digits, value).ptr - data_);
    }
}

void Text::append_natural(std::uint64_t value)
{
    append_digits(value);
}

void Text::append_decimal(std::int64_t value)
{
    append_digits(value);
}

void Text::append_aligned(int value)
{
    PON_SCRATCH Text digits;
    digits.append_digits(value);
    for (std::size_t size = digits.size(); size < identifier_width; ++size) {
        append(' ');
    }
    append(digits.data(), digits.size());
}

void Text::replace_front(std::size_t count, const Text& text)
{
    if (text.size_ > count && capacity_ - size_ <= text.size_ - count && !grow(text.size_ - count)) {
        return;
    }
    std::memmove(data_ + text.size_, data_ + count, size_ - count);
    std::memcpy(data_, text.data_, text.size_);
    size_ = size_ - count + text.size_;
}

char* Text::c_str()
{
    data_[size_] = '\0';
    return data_;
}

char* Text::release_copy() const
{
    auto* const copy = failed_ ? nullptr : static_cast<char*>(std::malloc(size_ + 1));
    if (copy) {
        std::memcpy(copy, data_, size_);
        copy[size_] = '\0';
    }
    return copy;
}

} // namespace pondiff
