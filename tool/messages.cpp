#include "tool/messages.h"

#include <cstdio>
#include <string>

namespace pondiff::tool {

namespace {

void print(const std::string& text)
{
    std::fwrite(text.data(), 1, text.size(), stderr);
}

std::string line(std::string_view message)
{
    return "pondiff: " + std::string(message) + "\n";
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

} // namespace pondiff::tool
