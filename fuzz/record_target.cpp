/// Any configuration to its document and back, by the patches of a scenario on a blank one.

#include "fuzz/checks.h"
#include "fuzz/scenario.h"
#include "tool/json/json.h"

#include <cstring>
#include <memory>

namespace pondiff::fuzz {

namespace {

void check_kept(const GCfg& configuration, bool full, bool twice)
{
    static const auto again = std::make_unique<GCfg>();
    const std::string document = tool::write_json(configuration, full);
    tool::read_json(document, "written.json", *again);
    check(std::memcmp(again.get(), &configuration, sizeof(GCfg)) == 0, "a configuration is not kept:\n" + document);
    check(!twice || tool::write_json(*again, full) == document, "a configuration has two documents:\n" + document);
}

} // namespace

} // namespace pondiff::fuzz

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    using namespace pondiff;
    static const auto configuration = std::make_unique<GCfg>();
    auto* const bytes = reinterpret_cast<char*>(configuration.get());
    const fuzz::Scenario scenario = fuzz::parse_scenario({reinterpret_cast<const char*>(data), size});
    for (const fuzz::Patch& patch : scenario.patches) {
        std::memcpy(bytes + patch.place.offset, patch.bytes.data(), patch.bytes.size());
    }
    fuzz::check_kept(*configuration, false, fuzz::chosen(data, size, 8));
    // With all its zeros the document has 16 MB and takes seconds.
    if (fuzz::chosen(data, size, 32768)) {
        fuzz::check_kept(*configuration, true, true);
    }
    for (const fuzz::Patch& patch : scenario.patches) {
        std::memset(bytes + patch.place.offset, 0, patch.bytes.size());
    }
    return 0;
}
