/// What the library writes of two configurations, read onto the first: with values that a script can carry, every line
/// is known.

#include "fuzz/checks.h"
#include "fuzz/operations.h"
#include "fuzz/pair.h"
#include "fuzz/plain.h"
#include "fuzz/touched.h"
#include "pon/command_file_generator.h"
#include "tool/account/meaning.h"

#include <memory>

namespace pondiff::fuzz {

namespace {

/// A removed user or terminal VLAN is written wherever the script stands, so its line may stand in a view that has
/// none.
bool may_be_unknown(const tool::Line& line)
{
    return line.text.substr(0, 8) == "no user " || line.text.substr(0, 29) == "no gpon network terminal-vlan";
}

} // namespace

} // namespace pondiff::fuzz

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    using namespace pondiff;
    using namespace pondiff::fuzz;
    static Pair pair(Pair::Address::odd);
    static const auto device = std::make_unique<GCfg>(base());

    Scenario scenario = parse_scenario({reinterpret_cast<const char*>(data), size});
    make_plain(scenario);
    pair.patch(scenario.patches);
    Touched touched;
    touched.add(scenario.patches);
    touched.put_back(*device, *pair.orig());
    touched.add(scenario.patches);

    check(initiate_diff(pair.orig(), pair.cfg(), scenario.all, scenario.common) == 0, "no session");
    const std::string script = run("GetDiff", pair.orig(), pair.cfg()).front();
    finalize_diff();
    tool::read_script(script, *device, [&](const tool::Line& line) {
        touched.add(line);
        check(line.reason != "the view has no such command" || may_be_unknown(line),
              "a line that the library writes is unknown: " + std::string(line.text));
    });
    if (chosen(data, size, 8)) {
        tool::for_each_different_meaning({device.get(), pair.orig(), pair.cfg()}, [](const tool::Beside<3>& beside) {
            check(!beside.path.text().empty(), "a field that differs has no path");
        });
    }
    pair.restore(false);
    touched.put_back(*device, base());
    check(!chosen(data, size, 64) || std::memcmp(device.get(), &base(), sizeof(GCfg)) == 0,
          "a line has changed what it does not name");
    return 0;
}
