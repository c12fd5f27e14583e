#ifndef PON_DIFF_BUILDER_COMPARISON_H
#define PON_DIFF_BUILDER_COMPARISON_H

#include <cstddef>
#include <cstdint>

namespace pondiff {

/// Which blocks of two configurations differ, found in one pass and kept for the duration of an operation. Containers
/// compare the same bytes at every level, from the whole configuration down to the element. With this, only blocks that
/// differ are read again: for one changed ONT, the two configurations are read little more than once instead of three
/// times.
///
/// Sorting a selective-tunnel list in place may make its block stale. That does no harm: the list is sorted by the last
/// diff that reads it.
class Comparison {
  public:
    Comparison(const void* lhs, const void* rhs, std::size_t size);
    ~Comparison();
    Comparison(const Comparison&) = delete;
    Comparison& operator=(const Comparison&) = delete;

    /// Whether two parts differ. Looked up when both are the same part of what has been compared, otherwise read.
    static bool differ(const void* lhs, const void* rhs, std::size_t size);

  private:
    static constexpr std::size_t block_size = 4096;
    static constexpr std::size_t most_blocks = 512;

    bool block_differs(std::size_t block) const { return (blocks_[block / 64] >> (block % 64) & 1) != 0; }
    bool range_differs(std::size_t offset, std::size_t size) const;

    static const Comparison* current_;

    const char* lhs_;
    const char* rhs_;
    std::size_t size_;
    const Comparison* outer_;
    std::uint64_t blocks_[most_blocks / 64] = {};
};

} // namespace pondiff

#endif
