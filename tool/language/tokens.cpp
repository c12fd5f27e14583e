#include "tool/language/tokens.h"

namespace pondiff::tool {

namespace {

bool is_blank(char c)
{
    return c == ' ' || c == '\t';
}

/// Whether a character ends a word without quotes.
constexpr std::array<bool, 256> ends_word = [] {
    std::array<bool, 256> ends{};
    for (const char c : {' ', '\t', '"', '\0'}) {
        ends[static_cast<unsigned char>(c)] = true;
    }
    return ends;
}();

} // namespace

void Tokens::read(std::string_view line)
{
    size_ = 0;
    error_ = nullptr;
    const char* at = line.data();
    const char* const end = at + line.size();
    for (;;) {
        while (at != end && is_blank(*at)) {
            ++at;
        }
        if (at == end) {
            return;
        }
        if (size_ == most) {
            error_ = "no command has so many words";
            return;
        }
        const bool quoted = *at == '"';
        const char* const begin = quoted ? at + 1 : at;
        bool has_nul = false;
        if (quoted) {
            for (at = begin; at != end && *at != '"'; ++at) { // values are short
                has_nul = has_nul || *at == '\0';
            }
            if (at == end) {
                error_ = "a quote is not closed";
                return;
            }
        } else {
            while (at != end && !ends_word[static_cast<unsigned char>(*at)]) {
                ++at;
            }
        }
        const std::string_view text(begin, static_cast<std::size_t>(at - begin));
        tokens_[size_++] = {text, quoted, quoted ? 0 : hash_of(text)}; // only words are looked up
        at += quoted ? 1 : 0;
        if (at != end && !is_blank(*at)) {
            error_ = *at == '\0' ? "a NUL character stands in it" : "a quote stands inside a word";
            return;
        }
        if (has_nul) {
            error_ = "a NUL character stands in it";
            return;
        }
    }
}

} // namespace pondiff::tool
