#ifndef PON_DIFF_BUILDER_COMPARISON_H
#define PON_DIFF_BUILDER_COMPARISON_H

#include <cstddef>
#include <cstdint>

namespace pondiff {

/// What one pass over two configurations has found out, for as long as the operation lasts: which of their blocks
/// differ. Containers ask about the same bytes at every level, from the whole configuration down to the element; with
/// this, only a block that differs is ever read again, and one changed ONT costs little more than one reading of the
/// two configurations instead of three.
///
/// A selective-tunnel list that is sorted in place may make its block stale. Nothing asks about such a list again: it
/// is sorted by the last diff that sees it.
class Comparison {
  public:
    Comparison(const void* lhs, const void* rhs, std::size_t size);
    ~Comparison();
    Comparison(const Comparison&) = delete;
    Comparison& operator=(const Comparison&) = delete;

    /// Whether two parts differ: looked up where they are the same part of what has been compared, else read.
    static bool differ(const void* lhs, const void* rhs, std::size_t size);

  private:
    static constexpr std::size_t block_size = 4096;
    static constexpr std::size_t most_blocks = 512;

    bool block_differs(std::size_t block) const { return (blocks_[block / 64] >> (block % 64) & 1) != 0; }
    bool range_differs(std::size_t offset, std::size_t size) const;

    static const Comparison* under_way_;

    const char* lhs_;
    const char* rhs_;
    std::size_t size_;
    const Comparison* outer_;
    std::uint64_t blocks_[most_blocks / 64] = {};
};

} // namespace pondiff

#endif
