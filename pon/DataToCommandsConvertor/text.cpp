#include "pon/DataToCommandsConvertor/text.h"

#include <cstdlib>

namespace pondiff {

namespace {

constexpr std::size_t most_digits = 20;

template <class Number>
std::size_t put_digits(char* out, Number value)
{
    std::size_t count = 1;
    for (Number rest = value; rest >= 10; rest /= 10)
        ++count;
    for (char* at = out + count; at != out; value /= 10)
        *--at = static_cast<char>('0' + value % 10);
    return count;
}

} // namespace

std::size_t put_natural(char* out, std::uint64_t value)
{
    // Nearly all values are narrow, and narrow division is several times as quick.
    return value <= UINT32_MAX ? put_digits(out, static_cast<std::uint32_t>(value)) : put_digits(out, value);
}

std::size_t put_decimal(char* out, std::int64_t value)
{
    if (value >= 0)
        return put_natural(out, static_cast<std::uint64_t>(value));
    *out = '-';
    return 1 + put_natural(out + 1, 0 - static_cast<std::uint64_t>(value));
}

Text::~Text()
{
    if (data_ != inline_)
        std::free(data_);
}

bool Text::grow(std::size_t more)
{
    const std::size_t wanted = (size_ + more + 1) * 2;
    char* const old = data_ == inline_ ? nullptr : data_;
    auto* const bigger = static_cast<char*>(std::realloc(old, wanted));
    if (!bigger) {
        failed_ = true;
        return false;
    }
    if (!old)
        std::memcpy(bigger, inline_, size_);
    data_ = bigger;
    capacity_ = wanted;
    return true;
}

void Text::append_natural(std::uint64_t value)
{
    if (has_room(most_digits))
        size_ += put_natural(data_ + size_, value);
}

void Text::append_decimal(std::int64_t value)
{
    if (has_room(most_digits))
        size_ += put_decimal(data_ + size_, value);
}

void Text::append_aligned(int value)
{
    constexpr std::size_t width = 4;
    char digits[most_digits];
    const std::size_t count = put_decimal(digits, value);
    if (count < width)
        append("    ", width - count);
    append(digits, count);
}

void Text::replace_front(std::size_t count, const Text& text)
{
    if (text.size_ > count && capacity_ - size_ <= text.size_ - count && !grow(text.size_ - count))
        return;
    std::memmove(data_ + text.size_, data_ + count, size_ - count);
    std::memcpy(data_, text.data_, text.size_);
    size_ = size_ - count + text.size_;
}

char* Text::c_str()
{
    data_[size_] = '\0';
    return data_;
}

char* Text::release_copy()
{
    auto* const copy = failed_ ? nullptr : static_cast<char*>(std::malloc(size_ + 1));
    if (copy)
        std::memcpy(copy, c_str(), size_ + 1);
    return copy;
}

} // namespace pondiff
