#ifndef TOOL_UTF8_H
#define TOOL_UTF8_H

#include <cstddef>
#include <cstdint>
#include <string_view>

namespace pondiff::tool {

/// A character of a text in UTF-8, or a byte that belongs to none.
struct Character {
    std::size_t size;   ///< in bytes
    std::uint32_t code; ///< the code point, or the byte
    bool valid;
};

/// The character that a text, which is not empty, begins with.
Character first_character(std::string_view text);

/// True when the bytes are text in UTF-8.
bool is_utf8(std::string_view bytes);

} // namespace pondiff::tool

#endif
