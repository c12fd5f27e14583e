#include "tool/utf8.h"

namespace pondiff::tool {

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

bool is_utf8(std::string_view bytes)
{
    while (!bytes.empty()) {
        const Character character = first_character(bytes);
        if (!character.valid) {
            return false;
        }
        bytes.remove_prefix(character.size);
    }
    return true;
}

} // namespace pondiff::tool
