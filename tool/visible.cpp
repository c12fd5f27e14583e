#include "tool/visible.h"

#include <cstdint>
#include <fmt/format.h>

namespace pondiff::tool {

namespace {

/// A character of a text, or a byte that belongs to none.
struct Character {
    std::size_t size;
    std::uint32_t code;
    bool valid;
};

/// The character that a text, which is not empty, begins with.
Character first_character(std::string_view text)
{
    const auto byte = [text](std::size_t i) { return static_cast<unsigned char>(text[i]); };
    const Character none{1, byte(0), false};
    if (byte(0) < 0x80) {
        return {1, byte(0), true};
    }
    const std::size_t size = byte(0) >= 0xF0 ? 4 : byte(0) >= 0xE0 ? 3 : 2;
    if (byte(0) < 0xC2 || byte(0) > 0xF4 || text.size() < size) {
        return none;
    }
    std::uint32_t code = byte(0) & (0xFFU >> (size + 1));
    for (std::size_t i = 1; i < size; ++i) {
        if ((byte(i) & 0xC0U) != 0x80) {
            return none;
        }
        code = code << 6U | (byte(i) & 0x3FU);
    }
    constexpr std::uint32_t least[] = {0, 0, 0x80, 0x800, 0x10000};
    const bool surrogate = code >= 0xD800 && code <= 0xDFFF;
    return code < least[size] || code > 0x10FFFF || surrogate ? none : Character{size, code, true};
}

/// Characters that terminals obey or that cannot be seen.
constexpr struct {
    std::uint32_t first;
    std::uint32_t last;
} invisible[] = {
    {0x00, 0x1F},       // control characters
    {0x7F, 0x9F},       // DEL, and the control characters of eight bits
    {0xAD, 0xAD},       // soft hyphen
    {0x061C, 0x061C},   // direction of Arabic letters
    {0x180E, 0x180E},   // takes no room
    {0x200B, 0x200F},   // take no room; direction
    {0x2028, 0x202E},   // end of a line or paragraph; direction
    {0x2060, 0x206F},   // take no room; direction
    {0xFEFF, 0xFEFF},   // byte-order mark
    {0xFFF9, 0xFFFB},   // annotations
    {0xE0000, 0xE007F}, // tags
};

bool shows(const Character& character)
{
    if (!character.valid) {
        return false;
    }
    for (const auto& range : invisible) {
        if (character.code >= range.first && character.code <= range.last) {
            return false;
        }
    }
    return true;
}

} // namespace

bool is_visible(std::string_view text)
{
    while (!text.empty()) {
        const Character character = first_character(text);
        if (!shows(character)) {
            return false;
        }
        text.remove_prefix(character.size);
    }
    return true;
}

std::string visible(std::string_view text)
{
    std::string result;
    while (!text.empty()) {
        const Character character = first_character(text);
        if (shows(character)) {
            result += text.substr(0, character.size);
        } else if (character.valid && character.code >= 0x80) {
            result += fmt::format("\\u{{{:X}}}", character.code);
        } else {
            result += fmt::format("\\x{:02X}", character.code);
        }
        text.remove_prefix(character.size);
    }
    return result;
}

} // namespace pondiff::tool
