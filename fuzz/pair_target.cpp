/// Two configurations to the text of their full diff.

#include "fuzz/checks.h"
#include "fuzz/operations.h"
#include "fuzz/pair.h"
#include "pon/command_file_generator.h"

namespace pondiff::fuzz {

namespace {

std::string full_diff_of(Pair& pair, const Scenario& scenario)
{
    check(initiate_diff(pair.orig(), pair.cfg(), scenario.all, scenario.common) == 0, "no session");
    return run("GetDiff", pair.orig(), pair.cfg()).front();
}

/// The walk over the tree pushes onto a caller's list what the operation writes straight into its text; only the way
/// back to the top level and "commit" follow.
void check_by_list(Pair& pair, const Scenario& scenario, const std::string& text)
{
    if (scenario.common == 1) {
        return;
    }
    check(initiate_diff(pair.orig(), pair.cfg(), scenario.all, scenario.common) == 0, "no session");
    std::string lines;
    for (const std::string& element : run("getdiff_GCfg", pair.orig(), pair.cfg())) {
        if (!element.empty() && element[0] != '\n') {
            lines += element + '\n';
        }
    }
    check(text.compare(0, lines.size(), lines) == 0, "a caller's list holds another script");
    const std::string rest = text.substr(lines.size());
    check(rest == "" || rest == "commit\n" || rest == "exit\ncommit\n" || rest == "exit\nexit\ncommit\n",
          "a caller's list holds less than the script");
}

/// Whatever they hold, two equal configurations need no command.
void check_equal(GCfg* cfg, GCfg* same, const Scenario& scenario)
{
    check(initiate_diff(cfg, same, 0, scenario.common) == 0, "no session");
    check(run("GetDiff", cfg, same).front().empty(), "equal records give a script");
}

} // namespace

} // namespace pondiff::fuzz

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    using namespace pondiff::fuzz;
    static Pair even(Pair::Address::even);
    static Pair odd(Pair::Address::odd);

    const bool all_bytes = chosen(data, size, 64);
    const Scenario scenario = parse_scenario({reinterpret_cast<const char*>(data), size});
    even.patch(scenario.patches);
    scramble(0);
    const std::string text = full_diff_of(even, scenario);
    // A sorted tunnel list need not stay as it is when it is sorted again: each script is made of fresh records.
    if (chosen(data, size, 8)) {
        disturb(odd.orig(), odd.cfg());
        odd.patch(scenario.patches);
        check(full_diff_of(odd, scenario) == text, "the text depends on the records' addresses or on what went before");
        check_equal(even.cfg(), odd.cfg(), scenario);
        odd.check_patches();
        odd.restore(all_bytes);
    }
    if (chosen(data, size, 16)) {
        odd.patch(scenario.patches);
        check_by_list(odd, scenario, text);
        odd.check_patches();
        odd.restore(all_bytes);
    }
    finalize_diff();
    even.check_patches();
    even.restore(all_bytes);
    return 0;
}
