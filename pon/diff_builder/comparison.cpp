#include "pon/diff_builder/comparison.h"

#include <algorithm>
#include <cstring>

namespace pondiff {

const Comparison* Comparison::current_;

Comparison::Comparison(const void* lhs, const void* rhs, std::size_t size)
    : lhs_(static_cast<const char*>(lhs)), rhs_(static_cast<const char*>(rhs)),
      size_(std::min(size, block_size * most_blocks)), outer_(current_)
{
    for (std::size_t block = 0; block * block_size < size_; ++block) {
        const std::size_t at = block * block_size;
        if (std::memcmp(lhs_ + at, rhs_ + at, std::min(block_size, size_ - at)) != 0) {
            blocks_[block / 64] |= std::uint64_t{1} << (block % 64);
        }
    }
    current_ = this;
}

Comparison::~Comparison()
{
    current_ = outer_;
}

bool Comparison::range_differs(std::size_t offset, std::size_t size) const
{
    const std::size_t end = offset + size;
    for (std::size_t at = offset; at < end;) {
        const std::size_t block = at / block_size;
        const std::size_t next = std::min(end, (block + 1) * block_size);
        if (block_differs(block)) {
            const bool whole = next - at == std::min(block_size, size_ - block * block_size);
            if (whole || std::memcmp(lhs_ + at, rhs_ + at, next - at) != 0) {
                return true;
            }
        }
        at = next;
    }
    return false;
}

bool Comparison::differ(const void* lhs, const void* rhs, std::size_t size)
{
    constexpr std::size_t worth_looking_up = 256;
    const Comparison* const known = current_;
    if (known && size >= worth_looking_up) {
        // Unsigned: an address below the compared bytes becomes an offset far beyond them.
        const std::size_t offset =
            reinterpret_cast<std::uintptr_t>(lhs) - reinterpret_cast<std::uintptr_t>(known->lhs_);
        const std::size_t other = reinterpret_cast<std::uintptr_t>(rhs) - reinterpret_cast<std::uintptr_t>(known->rhs_);
        if (offset == other && offset <= known->size_ && size <= known->size_ - offset) {
            return known->range_differs(offset, size);
        }
    }
    return std::memcmp(lhs, rhs, size) != 0;
}

} // namespace pondiff
