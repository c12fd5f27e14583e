#ifndef TOOL_LANGUAGE_TEXT_H
#define TOOL_LANGUAGE_TEXT_H

#include "gcfg/gcfg.h"

#include <string>

namespace pondiff::tool {

/// A configuration as a text of commands: every object and every setting that has a command, in the order and the
/// spelling of scripts. Read onto a blank configuration it gives one that means the same, but for what no command says.
std::string text_of_commands(const GCfg& configuration);

} // namespace pondiff::tool

#endif
