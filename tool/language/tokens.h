#ifndef TOOL_LANGUAGE_TOKENS_H
#define TOOL_LANGUAGE_TOKENS_H

#include <array>
#include <cstddef>
#include <cstdint>
#include <cstring>
#include <string_view>

namespace pondiff::tool {

/// A word of a command: what stands between blanks, or between quotes.
struct Token {
    std::string_view text;
    bool quoted;
    std::uint32_t hash; ///< of the text
};

/// Of the length and the ends of a word; longer words that differ in their middle alone have the same.
inline std::uint32_t hash_of(std::string_view text)
{
    std::uint64_t ends[2] = {};
    const std::size_t part = text.size() >= 8 ? 8 : text.size() >= 4 ? 4 : text.empty() ? 0 : 1;
    const char* const last = text.data() + text.size() - part;
    switch (part) { // sizes that the compiler knows
    case 8:
        std::memcpy(&ends[0], text.data(), 8);
        std::memcpy(&ends[1], last, 8);
        break;
    case 4:
        std::memcpy(&ends[0], text.data(), 4);
        std::memcpy(&ends[1], last, 4);
        break;
    case 1:
        ends[0] = static_cast<unsigned char>(text.front()) * 256U + static_cast<unsigned char>(text[text.size() / 2]);
        ends[1] = static_cast<unsigned char>(*last);
        break;
    default:
        break;
    }
    const std::uint64_t mixed = (ends[0] * 0x9E3779B97F4A7C15U ^ (ends[1] + text.size())) * 0xD6E8FEB86659FD93U;
    return static_cast<std::uint32_t>(mixed >> 32U);
}

/// The words of a line. They refer to the line.
class Tokens {
  public:
    /// More words than any command has.
    static constexpr std::size_t most = 12;

    explicit Tokens(std::string_view line);

    std::size_t size() const { return size_; }
    const Token& operator[](std::size_t i) const { return tokens_[i]; }
    /// What is wrong with the line, whatever its view; null when nothing is.
    const char* error() const { return error_; }

  private:
    std::array<Token, most> tokens_;
    std::size_t size_ = 0;
    const char* error_ = nullptr;
};

} // namespace pondiff::tool

#endif
