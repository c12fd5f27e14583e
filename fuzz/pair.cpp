#include "fuzz/pair.h"

#include "bench/configurations.h"
#include "fuzz/checks.h"
#include "tool/describe/records.h"

#include <algorithm>
#include <cstring>

namespace pondiff::fuzz {

namespace {

constexpr std::size_t old_record = 0;
constexpr std::size_t new_record = 1;
constexpr std::size_t first_ont = offsetof(GCfg, pon.ont);
constexpr std::size_t behind_onts = first_ont + sizeof(GPonCfg::ont);

std::vector<s16> sorted(const char* vids)
{
    std::vector<s16> list(GCFG_TUNNEL_VIDS);
    std::memcpy(list.data(), vids, sizeof(GPonOntSelectiveTunnel));
    std::sort(list.begin(), list.end());
    return list;
}

std::string first_difference(const void* a, const void* b)
{
    std::string path;
    tool::for_each_difference(tool::gcfg_record, a, b, [&path](const tool::Leaf& leaf) {
        if (path.empty()) {
            path = leaf.path.text();
        }
    });
    return path;
}

} // namespace

const GCfg& base()
{
    static const bench::Configuration configuration = bench::small();
    return *configuration;
}

Pair::Record::Record(Address address)
    : block_(new char[sizeof(GCfg) + static_cast<std::size_t>(address)]),
      bytes_(block_.get() + static_cast<std::size_t>(address))
{
    std::memcpy(bytes_, &base(), sizeof(GCfg));
}

Pair::Pair(Address address) : records_{Record(address), Record(address)} {}

void Pair::keep(std::size_t record, std::size_t offset, std::size_t size, bool any_order)
{
    kept_.push_back({record, offset, std::string(records_[record].bytes() + offset, size), any_order});
}

void Pair::patch(const std::vector<Patch>& patches)
{
    std::set<std::size_t> tunnels; // of the new record, those of ONTs that may be shown
    for (const Patch& patch : patches) {
        const std::size_t offset = patch.place.offset;
        apply(patch, *orig(), *cfg());
        if (offset < first_ont || offset >= behind_onts) {
            continue;
        }
        const std::size_t ont = first_ont + (offset - first_ont) / sizeof(GPonOntCfg) * sizeof(GPonOntCfg);
        for (std::size_t i = 0; i < GCFG_SERVICES; ++i) {
            tunnels.insert(ont + offsetof(GPonOntCfg, tunnel) + i * sizeof(GPonOntSelectiveTunnel));
        }
    }
    for (const Patch& patch : patches) {
        if (patch.side != Patch::Side::cfg) {
            keep(old_record, patch.place.offset, patch.bytes.size(), false);
        }
        if (patch.side != Patch::Side::orig && patch.place.field->layout != tool::Layout::ended_list) {
            keep(new_record, patch.place.offset, patch.bytes.size(), false);
        }
    }
    for (const std::size_t tunnel : tunnels) {
        keep(new_record, tunnel, sizeof(GPonOntSelectiveTunnel), true);
    }
}

void Pair::check_patches() const
{
    for (const Kept& kept : kept_) {
        const char* const now = records_[kept.record].bytes() + kept.offset;
        if (std::memcmp(now, kept.bytes.data(), kept.bytes.size()) == 0) {
            continue;
        }
        check(kept.any_order && sorted(now) == sorted(kept.bytes.data()),
              "a record was changed at offset " + std::to_string(kept.offset));
    }
}

void Pair::restore(bool check_all)
{
    for (const Kept& kept : kept_) {
        std::memcpy(records_[kept.record].bytes() + kept.offset, reinterpret_cast<const char*>(&base()) + kept.offset,
                    kept.bytes.size());
    }
    kept_.clear();
    for (const Record& record : records_) {
        if (check_all && std::memcmp(record.bytes(), &base(), sizeof(GCfg)) != 0) {
            check(false, "a record was changed: " + first_difference(record.bytes(), &base()));
        }
    }
}

} // namespace pondiff::fuzz
