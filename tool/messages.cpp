#include "tool/messages.h"

#include "tool/exit_status.h"
#include "tool/visible.h"

#include <cstdio>
#include <cstdlib>
#include <string>

namespace pondiff::tool {

namespace {

void print(const std::string& text)
{
    std::fwrite(text.data(), 1, text.size(), stderr);
}

std::string line(std::string_view message)
{
    return "pondiff: " + visible(message) + "\n";
}

} // namespace

void report_error(std::string_view message, std::string_view hint)
{
    print(line(message) + std::string(hint) + (hint.empty() ? "" : "\n"));
}

void report_warning(std::string_view message)
{
    print(line(message));
}

void end_out_of_memory()
{
    constexpr std::string_view message = "pondiff: out of memory\n";
    std::fwrite(message.data(), 1, message.size(), stderr);
    std::_Exit(static_cast<int>(ExitStatus::error));
}

} // namespace pondiff::tool
