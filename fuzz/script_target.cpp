/// Any text read as a script, on a plausible configuration and on a blank one.

#include "fuzz/checks.h"
#include "fuzz/pair.h"
#include "fuzz/touched.h"
#include "tool/language/objects.h"
#include "tool/language/text.h"

#include <memory>
#include <string>
#include <string_view>

namespace pondiff::fuzz {

namespace {

/// What became of each line of a text.
std::string read_onto(GCfg& device, std::string_view text, Touched& touched)
{
    std::string account;
    tool::read_script(text, device, [&](const tool::Line& line) {
        const bool refused = line.kind == tool::Line::Kind::refused;
        check(refused == !line.reason.empty() && !(refused && !line.settings.empty()),
              "a line is refused without a reason, or sets something: " + std::string(line.text));
        account += std::to_string(static_cast<int>(line.kind)) + line.reason + '\n';
        touched.add(line);
    });
    return account;
}

/// A configuration that was read from a text has a text, and only one.
void check_saved(const GCfg& configuration)
{
    Touched touched;
    const auto first = tool::blank_configuration();
    read_onto(*first, tool::text_of_commands(configuration), touched);
    const std::string text = tool::text_of_commands(*first);
    const auto second = tool::blank_configuration();
    read_onto(*second, text, touched);
    check(tool::text_of_commands(*second) == text, "a text that was read is written in another way");
}

} // namespace

} // namespace pondiff::fuzz

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    using namespace pondiff;
    using namespace pondiff::fuzz;
    static const auto blank = tool::blank_configuration();
    static const std::unique_ptr<GCfg> devices[] = {std::make_unique<GCfg>(base()), std::make_unique<GCfg>(*blank)};

    const std::string_view text(reinterpret_cast<const char*>(data), size);
    for (const std::unique_ptr<GCfg>& device : devices) {
        const GCfg& before = device == devices[0] ? base() : *blank;
        Touched touched;
        const std::string account = read_onto(*device, text, touched);
        if (chosen(data, size, 1024)) {
            check_saved(*device);
        }
        touched.put_back(*device, before);
        if (chosen(data, size, 16)) {
            check(read_onto(*device, text, touched) == account, "a text is read in two ways");
            touched.put_back(*device, before);
        }
        check(!chosen(data, size, 64) || std::memcmp(device.get(), &before, sizeof(GCfg)) == 0,
              "a line has changed what it does not name");
    }
    return 0;
}
