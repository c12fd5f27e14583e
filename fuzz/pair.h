#ifndef FUZZ_PAIR_H
#define FUZZ_PAIR_H

#include "fuzz/scenario.h"
#include "gcfg/gcfg.h"

#include <cstddef>
#include <memory>
#include <set>
#include <string>
#include <vector>

namespace pondiff::fuzz {

/// The configuration that the records of every pair are before they are patched: some objects of each kind.
const GCfg& base();

/// The two configurations of a session. They are 3.6 MB, so they are made once: an input writes its patches, and what
/// it wrote is all that is compared afterwards and put back.
class Pair {
  public:
    enum class Address : unsigned char { even, odd };

    explicit Pair(Address address);

    void patch(const std::vector<Patch>& patches);
    /// Fails when an operation has changed something that was patched. In the new configuration the VLANs of a
    /// selective tunnel may be in another order.
    void check_patches() const;
    /// Takes the patches off. With `check_all`, fails when anything else than what was patched has been changed since
    /// this was last asked.
    void restore(bool check_all);

    GCfg* orig() { return records_[0].get(); }
    GCfg* cfg() { return records_[1].get(); }

  private:
    /// A record that ends with its block, where a sanitizer watches.
    class Record {
      public:
        explicit Record(Address address);
        GCfg* get() const { return reinterpret_cast<GCfg*>(bytes_); }
        char* bytes() const { return bytes_; }

      private:
        std::unique_ptr<char[]> block_;
        char* bytes_;
    };

    /// Bytes of a record as they were when all patches had been written.
    struct Kept {
        std::size_t record;
        std::size_t offset;
        std::string bytes;
        bool any_order; ///< a list of VLANs
    };

    void keep(std::size_t record, std::size_t offset, std::size_t size, bool any_order);

    Record records_[2];
    std::vector<Kept> kept_;
};

} // namespace pondiff::fuzz

#endif
