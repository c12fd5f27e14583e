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

/// The first and the last characters of a word. Up to sixteen characters are no more than them.
struct Ends {
    std::uint64_t first = 0;
    std::uint64_t last = 0;
};

inline Ends ends_of(std::string_view text)
{
    Ends ends;
    const char* const end = text.data() + text.size();
    if (text.size() >= 8) { // sizes that the compiler knows
        std::memcpy(&ends.first, text.data(), 8);
        std::memcpy(&ends.last, end - 8, 8);
    } else if (text.size() >= 4) {
        std::memcpy(&ends.first, text.data(), 4);
        std::memcpy(&ends.last, end - 4, 4);
    } else if (!text.empty()) {
        ends.first =
            static_cast<unsigned char>(text.front()) * 256U + static_cast<unsigned char>(text[text.size() / 2]);
        ends.last = static_cast<unsigned char>(text.back());
    }
    return ends;
}

/// Of the length and the ends of a word; longer words that differ in their middle alone have the same.
inline std::uint32_t hash_of(std::string_view text)
{
    const Ends ends = ends_of(text);
    const std::uint64_t mixed = (ends.first * 0x9E3779B97F4A7C15U ^ (ends.last + text.size())) * 0xD6E8FEB86659FD93U;
    return static_cast<std::uint32_t>(mixed >> 32U);
}

/// Whether two words are the same; most have few characters.
inline bool are_same(std::string_view a, std::string_view b)
{
    if (a.size() != b.size()) {
        return false;
    }
    const Ends ends = ends_of(a);
    const Ends others = ends_of(b);
    return ends.first == others.first && ends.last == others.last && (a.size() <= 16 || a == b);
}

/// The words of a line. They refer to the line.
class Tokens {
  public:
    /// More words than any command has.
    static constexpr std::size_t most = 12;

    /// Takes the words of a line in place of those of another one.
    void read(std::string_view line);

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
