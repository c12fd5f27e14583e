#include "tool/commands/candidates.h"
#include "tool/commands/commands.h"
#include "tool/errors.h"
#include "tool/files.h"
#include "tool/input.h"
#include "tool/json/json.h"
#include "tool/lines.h"

#include <CLI/CLI.hpp>
#include <climits>
#include <cstddef>
#include <fmt/format.h>
#include <memory>
#include <string>

namespace pondiff::tool {

namespace {

constexpr char details[] =
    R"(Follows a script line by line, as a device that runs RUNNING would, and writes
the configuration of the device afterwards as a JSON document.

A line that its view does not know, or whose value cannot be read, is refused:
it changes nothing, and the next line is read. A message on standard error gives
the line, its view and the reason. A line that is written for several values is
accepted, but sets nothing; a message reports it, too.

When a device has stopped within a script, --lines gives its configuration, and
"pondiff diff" the commands that remain: see the examples.

Exit status:
  0  every line was accepted
  1  lines were refused; the document was written
  2  error; see standard error. Nothing was written

Examples:
  pondiff apply running.json change.cli -o after.json
  pondiff diff running.json wanted.json | pondiff apply running.json -
  pondiff apply running.json change.cli --lines 17 | pondiff diff - wanted.json)";

struct Arguments {
    Input input;
    std::string running;
    std::string script;
    std::string output = standard_stream;
    int lines = INT_MAX;
};

ExitStatus run(Arguments& arguments)
{
    const std::unique_ptr<GCfg> configuration = arguments.input.configuration(arguments.running);
    const std::string script = Input::script(arguments.script);
    LineReport report(name_of_input(arguments.script), *configuration);
    read_script(
        script, *configuration, [&report](const Line& line) { report.add(line); },
        static_cast<std::size_t>(arguments.lines));
    report.print();
    write_file(arguments.output, write_json(*configuration, false));
    return report.any_refused() ? ExitStatus::refused : ExitStatus::success;
}

std::function<ExitStatus()> setup(CLI::App& command)
{
    const auto arguments = std::make_shared<Arguments>();
    command.add_option("RUNNING", arguments->running, "Configuration that the device runs; - is standard input")
        ->required();
    command.add_option("SCRIPT", arguments->script, "Commands to apply; - is standard input, but not for both")
        ->required();
    arguments->input.add_option(command);
    command.add_option("--lines", arguments->lines, "Apply only the first N lines")
        ->option_text("N")
        ->check(completed_by(""));
    command.add_option("-o,--output", arguments->output, "Write the document to FILE instead of standard output")
        ->option_text("FILE");
    command.footer(details);
    return [arguments] {
        arguments->input.check({arguments->running, arguments->script});
        if (arguments->lines < 0) {
            throw UsageError(fmt::format("--lines {}: expected 0 or more", arguments->lines));
        }
        return run(*arguments);
    };
}

} // namespace

const Command apply_command{"apply", "Write the configuration of a device after a script", setup};

} // namespace pondiff::tool
