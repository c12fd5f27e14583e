/// Changes of scripts by the commands that the descriptions have: lines of commands with any words at their
/// placeholders, and whatever libFuzzer makes of bytes.

#include "fuzz/random.h"
#include "tool/language/index.h"

#include <algorithm>
#include <cstdint>
#include <cstring>
#include <string>
#include <string_view>
#include <vector>

extern "C" {
std::size_t LLVMFuzzerMutate(std::uint8_t* data, std::size_t size, std::size_t max_size);
std::size_t LLVMFuzzerCustomMutator(std::uint8_t* data, std::size_t size, std::size_t max_size, unsigned seed);
}

namespace pondiff::fuzz {

namespace {

const std::vector<std::string>& commands()
{
    static const std::vector<std::string> all = [] {
        std::vector<std::string> texts{"configure terminal", "exit", "exit", "commit"};
        for (const auto& [field, text] : tool::command_index().templates()) {
            texts.emplace_back(text);
        }
        return texts;
    }();
    return all;
}

std::string any_word(Random& random)
{
    static const std::string words[] = {"0",
                                        "1",
                                        "2",
                                        "8",
                                        "127",
                                        "4095",
                                        "65536",
                                        "-1",
                                        "0x8100",
                                        "10.0.0.1",
                                        "fe80::1",
                                        "1/6",
                                        "8/19",
                                        "8/20",
                                        "\"\"",
                                        "\"a b\"",
                                        "unassigned",
                                        "true",
                                        "false",
                                        "link",
                                        "dummy",
                                        "uplink",
                                        "AA:BB:CC:DD:EE:FF",
                                        "ABCD01020304",
                                        "5,7-9",
                                        "0-1",
                                        "unknown",
                                        "vlan-1",
                                        "x",
                                        "untagged",
                                        "unused",
                                        "none",
                                        "minor"};
    return random.any_of(words);
}

/// A command with words at its placeholders.
std::string any_line(Random& random)
{
    std::string line = random.any_of(commands());
    for (std::size_t open = 0; (open = line.find_first_of("<{")) != line.npos;) {
        const std::size_t close = std::min(line.find_first_of(">}", open), line.size() - 1);
        line.replace(open, close - open + 1, line[open] == '<' ? any_word(random) : "");
    }
    return line + '\n';
}

} // namespace

} // namespace pondiff::fuzz

std::size_t LLVMFuzzerCustomMutator(std::uint8_t* data, std::size_t size, std::size_t max_size, unsigned seed)
{
    using namespace pondiff::fuzz;
    Random random(seed);
    if (random.one_in(3)) {
        return LLVMFuzzerMutate(data, size, max_size);
    }
    std::string text(reinterpret_cast<const char*>(data), size);
    do {
        // At the begin of a line, over a line, or at the end.
        const std::size_t line = text.find('\n', random.below(text.size() + 1));
        const std::size_t at = line == text.npos ? text.size() : line + 1;
        const std::size_t length = random.one_in(3) ? text.find('\n', at) : 0;
        text.replace(at, length == text.npos ? length : length > at ? length - at + 1 : 0, any_line(random));
    } while (random.one_in(2));
    text.resize(std::min(text.size(), max_size));
    std::memcpy(data, text.data(), text.size());
    return text.size();
}
