#ifndef TOOL_UNSAFE_H
#define TOOL_UNSAFE_H

/// @file
/// Texts that no script can carry: they would end the command, begin another one or hide a line. Everything that the
/// script shows is checked, wherever it comes from: names of the old configuration, values that both share, objects of
/// other areas, words of the platform library.

#include "gcfg/gcfg.h"
#include "tool/describe/description.h"

#include <functional>
#include <string>
#include <string_view>
#include <vector>

namespace pondiff::tool {

/// The text of a field as messages show it; a secret is not shown.
std::string shown_text(const Field& field, std::string_view text);

/// What no command can show between quotes, one entry for each kind, such as " holds a quote".
std::vector<std::string> unsafe_parts(std::string_view text);

/// An unsafe text in a script.
struct UnsafeText {
    enum class Source { orig, cfg, platform };
    Source source;
    std::string path; ///< of its field; empty for a word of the platform library
    std::string text; ///< what is wrong; shows the value, unless it is a secret
};

/// The unsafe texts in the script of a change.
/// @param script  writes the script; it is called for copies of the configurations
std::vector<UnsafeText> unsafe_texts(const GCfg& orig, const GCfg& cfg,
                                     const std::function<std::string(GCfg& orig, GCfg& cfg)>& script);

} // namespace pondiff::tool

#endif
