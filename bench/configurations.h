#ifndef BENCH_CONFIGURATIONS_H
#define BENCH_CONFIGURATIONS_H

/// @file
/// The configurations that the figures are measured with. They are the same in every run.

#include "gcfg/gcfg.h"

#include <cstdint>
#include <memory>

namespace pondiff::bench {

using Configuration = std::unique_ptr<GCfg>;

/// Every byte is zero.
Configuration blank();

/// Every byte is random.
Configuration random_bytes(std::uint64_t seed);

/// Every record exists, every field differs from a blank one and holds what a device might: about 200,000 lines of
/// script on top of a blank configuration. References point to profiles that exist, tunnel lists are full and sorted.
Configuration full();

/// The same kind, with so few objects that they make about 3,000 lines, each kind of object with about its share.
Configuration small();

/// The full one with one field changed.
Configuration with_other_hostname();

} // namespace pondiff::bench

#endif
