#ifndef TOOL_LANGUAGE_TOKENS_H
#define TOOL_LANGUAGE_TOKENS_H

#include <array>
#include <cstddef>
#include <cstdint>
#include <string_view>

namespace pondiff::tool {

/// A word of a command: what stands between blanks, or between quotes.
struct Token {
    std::string_view text;
    bool quoted;
    std::uint32_t hash; ///< of the text
};

/// FNV-1a
constexpr std::uint32_t hash_of(std::string_view text)
{
    std::uint32_t hash = 2166136261U;
    for (const char c : text) {
        hash = (hash ^ static_cast<unsigned char>(c)) * 16777619U;
    }
    return hash;
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
