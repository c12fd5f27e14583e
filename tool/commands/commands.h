#ifndef TOOL_COMMANDS_COMMANDS_H
#define TOOL_COMMANDS_COMMANDS_H

#include "tool/exit_status.h"

#include <functional>

namespace CLI {
class App;
}

namespace pondiff::tool {

/// A sub-command. Its file, tool/commands/NAME.cpp, defines it as NAME_command.
struct Command {
    const char* name;
    const char* summary; ///< one line, for the list of commands
    /// Adds the arguments, the options and the rest of the help page. Returns what runs the command once the command
    /// line has been read.
    std::function<ExitStatus()> (*setup)(CLI::App& command);
};

/// All sub-commands, in the order of the help page.
#define PONDIFF_COMMANDS(COMMAND)                                                                                      \
    COMMAND(diff)                                                                                                      \
    COMMAND(plan)                                                                                                      \
    COMMAND(verify)                                                                                                    \
    COMMAND(check)                                                                                                     \
    COMMAND(pack)                                                                                                      \
    COMMAND(show)                                                                                                      \
    COMMAND(apply)                                                                                                     \
    COMMAND(complete)

#define DECLARATION(name) extern const Command name##_command;
PONDIFF_COMMANDS(DECLARATION)
#undef DECLARATION

} // namespace pondiff::tool

#endif
