#ifndef FUZZ_RANDOM_H
#define FUZZ_RANDOM_H

#include <cstddef>
#include <random>

namespace pondiff::fuzz {

/// What a mutator decides by; the fuzzer gives the seed.
class Random {
  public:
    explicit Random(unsigned seed) : engine_(seed) {}

    /// Below `count`.
    std::size_t below(std::size_t count) { return engine_() / 7 % count; }
    bool one_in(std::size_t count) { return below(count) == 0; }

    template <class Container>
    auto& any_of(Container& container)
    {
        return container[below(std::size(container))];
    }

  private:
    std::minstd_rand engine_;
};

} // namespace pondiff::fuzz

#endif
