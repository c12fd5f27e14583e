#ifndef TOOL_COMMANDS_SHOW_H
#define TOOL_COMMANDS_SHOW_H

namespace CLI {
class App;
}

namespace pondiff::tool {

/// Adds `pondiff show`, which leaves its exit status in `status`.
void add_show(CLI::App& program, int& status);

} // namespace pondiff::tool

#endif
