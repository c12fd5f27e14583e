#ifndef TOOL_COMMANDS_CHANGE_H
#define TOOL_COMMANDS_CHANGE_H

#include "tool/input.h"
#include "tool/script.h"

#include <optional>
#include <string>

namespace pondiff::tool {

/// What a command is given that looks at a change: two configurations, and how its script is asked for.
struct Change {
    Input input;
    std::string running;
    std::string wanted;
    std::optional<std::string> only;
    int common = 0;
    std::string script; ///< the file; empty where the library writes the script

    /// Adds the two configurations to a command, under these names.
    void add_files(CLI::App& command, const char* running_name, const char* wanted_name);
    /// Adds a third file, the script. @param what  "plan" it instead of the one that the library writes
    void add_script(CLI::App& command, const char* what);
    /// Adds --only, --common and --base.
    void add_options(CLI::App& command);

    /// @throws UsageError when there is no such area
    ScriptRequest request() const;
    /// The script, from its file or the library.
    std::string script_text(GCfg& running_configuration, GCfg& wanted_configuration) const;
};

} // namespace pondiff::tool

#endif
