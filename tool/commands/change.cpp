#include "tool/commands/change.h"

#include "tool/commands/candidates.h"

#include <CLI/CLI.hpp>
#include <fmt/format.h>

namespace pondiff::tool {

void Change::add_files(CLI::App& command, const char* running_name, const char* wanted_name)
{
    command.add_option(running_name, running, "Configuration that the device runs; - is standard input")->required();
    command.add_option(wanted_name, wanted, "Configuration wanted; - is standard input, but not for both")->required();
}

void Change::add_script(CLI::App& command, const char* what)
{
    command.add_option("SCRIPT", script, fmt::format("Commands to {} instead of those of \"pondiff diff\"", what));
}

void Change::add_options(CLI::App& command)
{
    command
        .add_option("--common", common,
                    "Choose what is compared. 1 compares the common settings\n"
                    "only: CLI, alarms, layout of serial numbers, PON network,\n"
                    "OLT and IP source guard. 0, the default, 2 and other\n"
                    "numbers compare everything; with --all, 1 and 2 show more\n"
                    "of what is equal, see below")
        ->option_text("N")
        ->check(completed_by("0\tthe whole configuration\n"
                             "1\tthe common settings only\n"
                             "2\twith --all, the common settings and the default relay profiles too\n"));
    command
        .add_option("--only", only,
                    "Compare one area alone. An area is a part of the\n"
                    "configuration, an ONT, a profile or a block of settings;\n"
                    "they are listed below. With it, --common matters only to\n"
                    "what --all renders")
        ->option_text("AREA")
        ->check(completed_by(area_candidates()));
    input.add_option(command);
}

std::string Change::script_text(GCfg& running_configuration, GCfg& wanted_configuration) const
{
    return script.empty() ? script_of(request(), running_configuration, wanted_configuration) : Input::script(script);
}

ScriptRequest Change::request() const
{
    return {only ? area_named(*only) : whole_configuration(common), false, common};
}

} // namespace pondiff::tool
