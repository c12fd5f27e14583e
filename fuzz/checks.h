#ifndef FUZZ_CHECKS_H
#define FUZZ_CHECKS_H

#include <cstddef>
#include <cstdint>
#include <cstdio>
#include <cstdlib>
#include <string>

namespace pondiff::fuzz {

/// Ends the program with a message when something that must hold does not.
inline void check(bool holds, const std::string& complaint)
{
    if (holds) {
        return;
    }
    std::fprintf(stderr, "\nfuzz: %s\n", complaint.c_str());
    std::abort();
}

/// Set by the replay of kept inputs: they go through every check.
inline bool every_check = false;

/// Costly checks are made for one input in `out_of`. The input decides, so that what is found is found again.
inline bool chosen(const std::uint8_t* data, std::size_t size, std::uint32_t out_of)
{
    std::uint32_t hash = 2166136261U; // FNV-1a
    for (std::size_t i = 0; i < size; ++i) {
        hash = (hash ^ data[i]) * 16777619U;
    }
    return every_check || (hash >> 8U) % out_of == 0;
}

} // namespace pondiff::fuzz

#endif
