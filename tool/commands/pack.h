#ifndef TOOL_COMMANDS_PACK_H
#define TOOL_COMMANDS_PACK_H

namespace CLI {
class App;
}

namespace pondiff::tool {

/// Adds `pondiff pack`, which leaves its exit status in `status`.
void add_pack(CLI::App& program, int& status);

} // namespace pondiff::tool

#endif
