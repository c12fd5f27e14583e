#include "pon/DataToCommandsConvertor/text.h"

#include <cstdlib>

namespace pondiff {

namespace {

/// The characters of 0 to 99, two by two, as they lie in memory.
struct DigitPairs {
    constexpr DigitPairs()
    {
        for (unsigned i = 0; i < 100; ++i)
            characters[i] = static_cast<std::uint16_t>(('0' + i % 10) << 8 | ('0' + i / 10));
    }
    std::uint16_t characters[100] = {};
};
constexpr DigitPairs pairs;

std::uint32_t four_digits(unsigned below_10000)
{
    return pairs.characters[below_10000 / 100] | static_cast<std::uint32_t>(pairs.characters[below_10000 % 100]) << 16;
}

/// How many of the four are zeros in front. Counted and used without branches: how wide the next number is cannot be
/// foretold.
unsigned bits_in_front(unsigned below_10000)
{
    return 8U * ((below_10000 < 1000) + (below_10000 < 100) + (below_10000 < 10));
}

template <class Number>
std::size_t put_digits(char* out, Number value)
{
    const std::size_t front = put_natural(out, value / 10000);
    const std::uint32_t rest = four_digits(static_cast<unsigned>(value % 10000));
    std::memcpy(out + front, &rest, sizeof rest);
    return front + sizeof rest;
}

} // namespace

std::size_t put_natural(char* out, std::uint64_t value)
{
    if (value < 10000) {
        const auto narrow = static_cast<unsigned>(value);
        const unsigned in_front = bits_in_front(narrow);
        const std::uint32_t digits = four_digits(narrow) >> in_front;
        std::memcpy(out, &digits, sizeof digits);
        return sizeof digits - in_front / 8;
    }
    // Narrow division is several times as quick.
    return value <= UINT32_MAX ? put_digits(out, static_cast<std::uint32_t>(value)) : put_digits(out, value);
}

std::size_t put_decimal(char* out, std::int64_t value)
{
    if (value >= 0)
        return put_natural(out, static_cast<std::uint64_t>(value));
    *out = '-';
    return 1 + put_natural(out + 1, 0 - static_cast<std::uint64_t>(value));
}

std::size_t put_aligned(char* out, int value)
{
    char digits[most_digits];
    const std::size_t count = put_decimal(digits, value);
    const std::size_t blanks = count < identifier_width ? identifier_width - count : 0;
    std::memset(out, ' ', blanks);
    std::memcpy(out + blanks, digits, count);
    return blanks + count;
}

void put_identifier(char* out, int value)
{
    if (value < 0 || value >= 10000) {
        char aligned[most_digits];
        put_aligned(aligned, value);
        std::memcpy(out, aligned, identifier_width);
        return;
    }
    const auto natural = static_cast<unsigned>(value);
    constexpr std::uint32_t zeros_to_blanks = ('0' ^ ' ') * 0x01010101U;
    const std::uint32_t aligned = four_digits(natural) ^ (zeros_to_blanks & ((1U << bits_in_front(natural)) - 1));
    std::memcpy(out, &aligned, sizeof aligned);
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

void Text::append(const char* bytes, std::size_t size)
{
    if (!has_room(size))
        return;
    std::memcpy(data_ + size_, bytes, size);
    size_ += size;
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
    if (has_room(most_digits))
        size_ += put_aligned(data_ + size_, value);
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
