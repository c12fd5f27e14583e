#include "pon/DataToCommandsConvertor/text.h"

#include <cstdlib>

namespace pondiff {

namespace {

constexpr std::size_t most_digits = 20;

/// The digits of 0 to 99, two by two: a division serves two digits.
struct DigitPairs {
    constexpr DigitPairs()
    {
        for (std::size_t i = 0; i < 100; ++i) {
            digits[2 * i] = static_cast<char>('0' + i / 10);
            digits[2 * i + 1] = static_cast<char>('0' + i % 10);
        }
    }
    char digits[200] = {};
};
constexpr DigitPairs pairs;

template <class Number>
std::size_t count_digits(Number value)
{
    std::size_t count = 1;
    for (; value >= 10000; value /= 10000)
        count += 4;
    return count + (value >= 10) + (value >= 100) + (value >= 1000);
}

template <class Number>
std::size_t put_digits(char* out, Number value)
{
    const std::size_t count = count_digits(value);
    char* at = out + count;
    for (; value >= 100; value /= 100) {
        at -= 2;
        std::memcpy(at, pairs.digits + 2 * (value % 100), 2);
    }
    if (value >= 10)
        std::memcpy(out, pairs.digits + 2 * value, 2);
    else
        *out = static_cast<char>('0' + value);
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
    if (on_heap_)
        std::free(data_);
}

bool Text::grow(std::size_t more)
{
    const std::size_t wanted = (size_ + more + 1) * 2;
    auto* const bigger = static_cast<char*>(std::realloc(on_heap_ ? data_ : nullptr, wanted));
    if (!bigger) {
        failed_ = true;
        return false;
    }
    if (!on_heap_)
        std::memcpy(bigger, data_, size_);
    on_heap_ = true;
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
