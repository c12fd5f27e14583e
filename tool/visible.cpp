#include "tool/visible.h"

#include "tool/utf8.h"

#include <cstdint>
#include <fmt/format.h>

namespace pondiff::tool {

namespace {

/// Characters that control a terminal or are invisible.
constexpr struct {
    std::uint32_t first;
    std::uint32_t last;
} invisible[] = {
    {0x00, 0x1F},       // control characters
    {0x7F, 0x9F},       // DEL, and the the C1 control characters
    {0xAD, 0xAD},       // soft hyphen
    {0x061C, 0x061C},   // direction of Arabic letters
    {0x180E, 0x180E},   // no width
    {0x200B, 0x200F},   // no width; direction
    {0x2028, 0x202E},   // end of a line or paragraph; direction
    {0x2060, 0x206F},   // no width; direction
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

std::string shortened(std::string text, std::size_t longest)
{
    if (text.size() <= longest) {
        return text;
    }
    const auto continues = [&text](std::size_t at) { return (static_cast<unsigned char>(text[at]) & 0xC0U) == 0x80; };
    while (longest > 0 && continues(longest)) {
        --longest;
    }
    return text.substr(0, longest) + "...";
}

} // namespace pondiff::tool
