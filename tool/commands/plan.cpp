#include "tool/commands/candidates.h"
#include "tool/commands/change.h"
#include "tool/commands/commands.h"
#include "tool/errors.h"
#include "tool/files.h"
#include "tool/plan/json.h"
#include "tool/plan/text.h"

#include <CLI/CLI.hpp>
#include <cstdlib>
#include <fmt/format.h>
#include <memory>
#include <string>
#include <unistd.h>

namespace pondiff::tool {

namespace {

std::string details()
{
    return R"(Shows what a script does, for the person who approves it: the script that
"pondiff diff" prints for the two configurations or, with SCRIPT, another one.
It is read back line by line, as a device that runs RUNNING would, and what the
device then holds is compared with WANTED.

The first line has the verdict, "complete" or "INCOMPLETE", and the counts.
Then come the risks; every object that changes, with each field, its value
before and after, and the line that sets it; and what will not be as wanted:

  no_command  no command ever sets the field
  not_said    there is a command, but the script has none for the field
  refused     a line would set it, but the device refuses the line
  different   a line sets it to something else
  left_over   an object or an entry that is not wanted stays
  disturbed   the field is as wanted before the script, and not afterwards

Long lists are folded; --full unfolds them. Secrets are shown as ***.

With --json, the plan is one object. The file plan.schema.json, which is
installed in share/pondiff, describes every key:

  format     1
  verdict    nothing, complete or incomplete
  summary    counts of lines, objects, fields by class, and risks
  objects    name, path, change (added, changed, removed), old_name of one that
             is renamed, detail, and fields: path, running, wanted, after,
             class, lines, reason, remedy
  left_over  name and path of objects that are not wanted, or hold an entry that
             is not wanted, and stay
  risks      kind, text and lines
  refused    line, place and reason of lines that a device refuses
  script     the lines

Areas that --only takes:
)" + list_of_areas() +
           R"(
Exit status:
  0  there is nothing to do
  1  there is something to do; the plan was printed
  2  error; see standard error

Examples:
  pondiff plan running.bin wanted.json
  pondiff plan --full running.bin wanted.json | less
  pondiff plan running.bin wanted.json change.cli)";
}

struct Arguments {
    Change change;
    std::string color = "auto";
    PlanStyle style;
    bool json = false;
};

bool wants_color(const std::string& when)
{
    if (when != "auto") {
        return when == "always";
    }
    const char* const no_color = std::getenv("NO_COLOR");
    return isatty(STDOUT_FILENO) == 1 && (no_color == nullptr || *no_color == '\0');
}

ExitStatus run(Arguments& arguments)
{
    const ScriptRequest request = arguments.change.request();
    const auto [running, wanted] =
        arguments.change.input.configurations(arguments.change.running, arguments.change.wanted);
    const std::string script = arguments.change.script_text(*running, *wanted);
    Plan plan = make_plan(*running, *wanted, script);
    find_remedies(plan, *running, *wanted, request);
    write_file(standard_stream,
               arguments.json ? plan_json(plan, arguments.style.secrets) : plan_text(plan, arguments.style));
    const bool nothing = plan.account.verdict() == Account::Verdict::nothing && plan.account.replay().changes_nothing();
    return nothing ? ExitStatus::success : ExitStatus::script_written;
}

std::function<ExitStatus()> setup(CLI::App& command)
{
    const auto arguments = std::make_shared<Arguments>();
    arguments->change.add_files(command, "RUNNING", "WANTED");
    arguments->change.add_script(command, "plan");
    arguments->change.add_options(command);
    command.add_flag("--full", arguments->style.full, "Fold nothing");
    command
        .add_option("--color", arguments->color,
                    "Use colors: auto, on a terminal unless NO_COLOR is set;\nalways; never")
        ->option_text("WHEN")
        ->check(completed_by("auto\ton a terminal\nalways\t\nnever\t\n"));
    command.add_flag("--show-secrets", arguments->style.secrets, "Show passwords and other secrets");
    command.add_flag("--json", arguments->json, "Print the plan as JSON");
    command.footer(details());
    return [arguments] {
        arguments->change.input.check({arguments->change.running, arguments->change.wanted, arguments->change.script});
        if (arguments->color != "auto" && arguments->color != "always" && arguments->color != "never") {
            throw UsageError(fmt::format("--color {}: expected auto, always or never", arguments->color));
        }
        arguments->style.color = wants_color(arguments->color);
        return run(*arguments);
    };
}

} // namespace

const Command plan_command{"plan", "Show what a script does, for the person who approves it", setup};

} // namespace pondiff::tool
