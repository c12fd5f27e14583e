#ifndef TOOL_VISIBLE_H
#define TOOL_VISIBLE_H

#include <string>
#include <string_view>

namespace pondiff::tool {

/// Whether a text shows on a terminal as it is: UTF-8 without control characters, and without the characters that turn
/// the direction of the text, end a line or take no room.
bool is_visible(std::string_view text);

/// The text with everything that would not show written out: \x1B for a byte, \u{202E} for a character.
std::string visible(std::string_view text);

} // namespace pondiff::tool

#endif
