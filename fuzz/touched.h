#ifndef FUZZ_TOUCHED_H
#define FUZZ_TOUCHED_H

#include "fuzz/scenario.h"
#include "tool/language/reader.h"

#include <cstring>

namespace pondiff::fuzz {

/// What lines have changed in a configuration, by their own account, and what patches have: that alone is put back.
class Touched {
  public:
    void add(std::size_t offset, std::size_t size) { ranges_.push_back({offset, size}); }
    void add(const std::vector<Patch>& patches)
    {
        for (const Patch& patch : patches) {
            add(patch.place.offset, patch.bytes.size());
        }
    }
    void add(const tool::Line& line)
    {
        for (const tool::Setting& setting : line.settings) {
            add(setting.offset, setting.size);
        }
        for (const tool::Object& object : {line.created, line.removed}) {
            if (object.array != nullptr) {
                add(object.offset, object.array->width);
            }
        }
    }
    bool has(std::size_t offset, std::size_t size) const { return tool::overlaps(ranges_, offset, size); }
    void put_back(GCfg& configuration, const GCfg& before)
    {
        for (const tool::Range& range : ranges_) {
            std::memcpy(reinterpret_cast<char*>(&configuration) + range.offset,
                        reinterpret_cast<const char*>(&before) + range.offset, range.size);
        }
        ranges_.clear();
    }

  private:
    tool::Ranges ranges_;
};

} // namespace pondiff::fuzz

#endif
