#ifndef TOOL_COMMANDS_DIFF_H
#define TOOL_COMMANDS_DIFF_H

namespace CLI {
class App;
}

namespace pondiff::tool {

/// Adds `pondiff diff`, which leaves its exit status in `status`.
void add_diff(CLI::App& program, int& status);

} // namespace pondiff::tool

#endif
