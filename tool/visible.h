#ifndef TOOL_VISIBLE_H
#define TOOL_VISIBLE_H

#include <cstddef>
#include <string>
#include <string_view>

namespace pondiff::tool {

/// Whether a terminal shows a text as it is: UTF-8 without control characters, and without characters that change the
/// direction of the text, end a line or have no width.
bool is_visible(std::string_view text);

/// The text with everything else escaped: \x1B for a byte, \u{202E} for a character.
std::string visible(std::string_view text);

/// A text that shows, cut behind `longest` bytes: between characters, with dots.
std::string shortened(std::string text, std::size_t longest);

} // namespace pondiff::tool

#endif
