/// Changes of scenarios that keep them scenarios: by the description of the records and the list of operations.

#include "fuzz/operations.h"
#include "fuzz/values.h"

#include <algorithm>
#include <cstring>

extern "C" {
std::size_t LLVMFuzzerMutate(std::uint8_t* data, std::size_t size, std::size_t max_size);
std::size_t LLVMFuzzerCustomMutator(std::uint8_t* data, std::size_t size, std::size_t max_size, unsigned seed);
std::size_t LLVMFuzzerCustomCrossOver(const std::uint8_t* data1, std::size_t size1, const std::uint8_t* data2,
                                      std::size_t size2, std::uint8_t* out, std::size_t max_size, unsigned seed);
}

namespace pondiff::fuzz {

namespace {

constexpr int last_switch = 3;
constexpr std::size_t most_calls = 8;

void mutate_bytes(Patch& patch, Random& random)
{
    const std::size_t width = patch.bytes.size();
    if (random.one_in(2)) {
        patch.bytes = any_bytes(*patch.place.field, random);
        return;
    }
    LLVMFuzzerMutate(reinterpret_cast<std::uint8_t*>(patch.bytes.data()), width, width);
}

Call any_call(Random& random)
{
    constexpr int telling[] = {0, 1, -1, 2, 5, 7, 8, 31, 32, 127, 128, 512, 531, 532, 2147483647, -2147483647 - 1};
    Call call;
    do {
        call.operation =
            begin_operations() + random.below(static_cast<std::size_t>(end_operations() - begin_operations()));
    } while (call.operation->costly && !random.one_in(3));
    for (int& number : call.numbers) {
        number = random.any_of(telling);
    }
    if (call.operation->takes_word) {
        call.word = random.any_of(known_words());
    }
    if (call.operation->takes_word && random.one_in(16)) {
        call.word += 'x';
    }
    call.no_orig = random.one_in(32);
    call.no_cfg = random.one_in(32);
    return call;
}

void mutate_patches(Scenario& scenario, Random& random)
{
    std::vector<Patch>& patches = scenario.patches;
    if (patches.empty() || random.one_in(3)) {
        add_any_patch(scenario, random);
        return;
    }
    Patch& patch = random.any_of(patches);
    switch (random.below(6)) {
    case 0:
        patches.erase(patches.begin() + (&patch - patches.data()));
        break;
    case 1:
        patch.side = static_cast<Patch::Side>(random.below(3));
        break;
    case 2:
        add_existence(Patch(patch), scenario, random);
        break;
    default:
        mutate_bytes(patch, random);
    }
}

void mutate_calls(Scenario& scenario, Random& random)
{
    std::vector<Call>& calls = scenario.calls;
    if (calls.empty() || (calls.size() < most_calls && random.one_in(3))) {
        calls.insert(calls.begin() + static_cast<std::ptrdiff_t>(random.below(calls.size() + 1)), any_call(random));
        return;
    }
    Call& call = random.any_of(calls);
    switch (random.below(3)) {
    case 0:
        calls.erase(calls.begin() + (&call - calls.data()));
        break;
    case 1:
        call = any_call(random);
        break;
    default:
        std::swap(call, random.any_of(calls));
    }
}

void mutate(Scenario& scenario, Random& random)
{
    constexpr bool calls_count = FUZZ_CALLS != 0; // the other targets call nothing of what is listed
    const std::size_t kind = random.below(8);
    if (kind == 0) {
        scenario.all = random.one_in(8) ? 1 : 0; // a forced script is long
        scenario.common = static_cast<int>(random.below(last_switch + 1));
    } else if (calls_count && kind <= 3) {
        mutate_calls(scenario, random);
    } else {
        mutate_patches(scenario, random);
    }
}

/// Writes the scenario; where there is no room for it all, without its last patches.
std::size_t store(Scenario& scenario, std::uint8_t* data, std::size_t max_size)
{
    std::string text = print_scenario(scenario);
    while (text.size() > max_size && !scenario.patches.empty()) {
        scenario.patches.pop_back();
        text = print_scenario(scenario);
    }
    const std::size_t size = std::min(text.size(), max_size);
    std::memcpy(data, text.data(), size);
    return size;
}

Scenario scenario_of(const std::uint8_t* data, std::size_t size)
{
    return parse_scenario({reinterpret_cast<const char*>(data), size});
}

template <class Element>
void take_some(std::vector<Element>& elements, const std::vector<Element>& others, Random& random)
{
    for (const Element& other : others) {
        if (random.one_in(2)) {
            elements.push_back(other);
        }
    }
}

} // namespace

} // namespace pondiff::fuzz

using namespace pondiff::fuzz;

std::size_t LLVMFuzzerCustomMutator(std::uint8_t* data, std::size_t size, std::size_t max_size, unsigned seed)
{
    Random random(seed);
    Scenario scenario = scenario_of(data, size);
    do {
        mutate(scenario, random);
    } while (random.one_in(2));
    return store(scenario, data, max_size);
}

std::size_t LLVMFuzzerCustomCrossOver(const std::uint8_t* data1, std::size_t size1, const std::uint8_t* data2,
                                      std::size_t size2, std::uint8_t* out, std::size_t max_size, unsigned seed)
{
    Random random(seed);
    Scenario scenario = scenario_of(data1, size1);
    const Scenario other = scenario_of(data2, size2);
    take_some(scenario.patches, other.patches, random);
    take_some(scenario.calls, other.calls, random);
    while (scenario.calls.size() > most_calls) {
        scenario.calls.erase(scenario.calls.begin() + static_cast<std::ptrdiff_t>(random.below(scenario.calls.size())));
    }
    return store(scenario, out, max_size);
}
