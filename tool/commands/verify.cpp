#include "tool/account/alike.h"
#include "tool/commands/change.h"
#include "tool/commands/commands.h"
#include "tool/files.h"
#include "tool/plan/json.h"
#include "tool/visible.h"

#include <CLI/CLI.hpp>
#include <fmt/format.h>
#include <memory>
#include <string>

namespace pondiff::tool {

namespace {

std::string details()
{
    return R"(Says whether a script reaches what is wanted: the script that "pondiff diff"
prints for the two configurations or, with SCRIPT, another one. It is read
back line by line, as a device that runs RUNNING would.

Each field that is not as wanted afterwards is printed on a line: its path, the
value wanted, the value that it has, the class (see "pondiff plan --help") and
the reason or the line.

Areas that --only takes:
)" + list_of_areas() +
           R"(
Exit status:
  0  the device holds what is wanted
  1  it does not; the fields were printed
  2  error; see standard error

Examples:
  pondiff verify running.bin wanted.json
  pondiff verify running.bin wanted.json change.cli)";
}

struct Arguments {
    Change change;
    bool json = false;
    bool secrets = false;
};

std::string text_of(const Account& account, bool secrets)
{
    std::string text;
    for (const ObjectAccount& object : account.objects()) {
        for (const Item& item : object.items) {
            if (item.fate == Fate::carried) {
                continue;
            }
            const std::string reason = why(item);
            text += visible(fmt::format("{}: {}; {}{}{}", item.path, outcome(account, item, secrets),
                                        name_of(item.fate), reason.empty() ? "" : ": ", reason)) +
                    "\n";
        }
    }
    return text;
}

ExitStatus run(Arguments& arguments)
{
    const Change& change = arguments.change;
    const ScriptRequest request = change.request();
    const auto [running, wanted] = arguments.change.input.configurations(change.running, change.wanted);
    const std::string script = change.script_text(*running, *wanted);
    Plan plan = make_plan(*running, *wanted, script);
    if (arguments.json) {
        find_remedies(plan, *running, *wanted, request);
    }
    write_file(standard_stream,
               arguments.json ? plan_json(plan, arguments.secrets) : text_of(plan.account, arguments.secrets));
    return plan.account.verdict() == Account::Verdict::incomplete ? ExitStatus::found : ExitStatus::success;
}

std::function<ExitStatus()> setup(CLI::App& command)
{
    const auto arguments = std::make_shared<Arguments>();
    arguments->change.add_files(command, "RUNNING", "WANTED");
    arguments->change.add_script(command, "verify");
    arguments->change.add_options(command);
    command.add_flag("--json", arguments->json, "Print JSON, as \"pondiff plan --json\" does");
    command.add_flag("--show-secrets", arguments->secrets, "Show passwords and other secrets");
    command.footer(details());
    return [arguments] {
        arguments->change.input.check({arguments->change.running, arguments->change.wanted, arguments->change.script});
        return run(*arguments);
    };
}

} // namespace

const Command verify_command{"verify", "Say whether a script reaches what is wanted", setup};

} // namespace pondiff::tool
