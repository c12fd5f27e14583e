/// Exported operations in a row, in one session.

#include "fuzz/checks.h"
#include "fuzz/operations.h"
#include "fuzz/pair.h"
#include "pon/command_file_generator.h"

#include <algorithm>

namespace pondiff::fuzz {

namespace {

constexpr std::size_t most_calls = 32;

std::vector<Texts> texts_of(Pair& pair, const Scenario& scenario)
{
    check(initiate_diff(pair.orig(), pair.cfg(), scenario.all, scenario.common) == 0, "no session");
    std::vector<Texts> texts;
    for (const Call& call : scenario.calls) {
        texts.push_back(run(call, pair.orig(), pair.cfg()));
        check(file_to_dump == nullptr, "a stream is still published");
    }
    check(finalize_diff() == 0, "a session was not closed");
    return texts;
}

} // namespace

} // namespace pondiff::fuzz

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    using namespace pondiff::fuzz;
    static Pair even(Pair::Address::even);
    static Pair odd(Pair::Address::odd);

    Scenario scenario = parse_scenario({reinterpret_cast<const char*>(data), size});
    scenario.calls.resize(std::min(scenario.calls.size(), most_calls));
    even.patch(scenario.patches);
    scramble(0);
    const std::vector<Texts> texts = texts_of(even, scenario);
    even.check_patches();
    if (chosen(data, size, 8)) {
        disturb(odd.orig(), odd.cfg());
        odd.patch(scenario.patches);
        check(texts_of(odd, scenario) == texts, "the texts depend on the records' addresses or on what went before");
        odd.check_patches();
        odd.restore(chosen(data, size, 64));
    }
    even.restore(chosen(data, size, 64));
    return 0;
}
