#ifndef TOOL_COMMANDS_CHECK_H
#define TOOL_COMMANDS_CHECK_H

namespace CLI {
class App;
}

namespace pondiff::tool {

/// Adds the command `pondiff check`. When it is the one selected, parsing runs it and sets `status`.
void add_check(CLI::App& program, int& status);

} // namespace pondiff::tool

#endif
