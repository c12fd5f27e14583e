/// Any document to a configuration: it is read, or refused with a message; what was read is written and read again.

#include "fuzz/checks.h"
#include "tool/json/json.h"
#include "tool/utf8.h"

#include <algorithm>
#include <cstring>
#include <memory>
#include <string_view>

namespace pondiff::fuzz {

namespace {

void check_message(const std::string& message)
{
    check(message.compare(0, 10, "input.json") == 0, "a message does not name the file: " + message);
    check(message.size() < 4096, "a message is long: " + message);
    check(tool::is_utf8(message), "a message is no text: " + message);
    check(std::none_of(message.begin(), message.end(), [](unsigned char c) { return c < ' ' || c == 0x7F; }),
          "a message holds control characters: " + message);
}

void check_kept(const GCfg& configuration, bool full)
{
    static const auto again = std::make_unique<GCfg>();
    tool::read_json(tool::write_json(configuration, full), "written.json", *again);
    check(std::memcmp(again.get(), &configuration, sizeof(GCfg)) == 0, "a configuration is not kept by its document");
}

} // namespace

} // namespace pondiff::fuzz

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    using namespace pondiff;
    static const auto configuration = std::make_unique<GCfg>();
    try {
        tool::read_json({reinterpret_cast<const char*>(data), size}, "input.json", *configuration);
    } catch (const tool::InputError& error) {
        fuzz::check_message(error.what());
        return 0;
    }
    fuzz::check_kept(*configuration, false);
    // With all its zeros the document has 16 MB and takes seconds.
    if (fuzz::chosen(data, size, 32768)) {
        fuzz::check_kept(*configuration, true);
    }
    return 0;
}
