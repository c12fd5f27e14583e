#include "tool/check.h"

#include "tool/commands/commands.h"
#include "tool/files.h"
#include "tool/input.h"
#include "tool/visible.h"

#include <CLI/CLI.hpp>
#include <fmt/format.h>
#include <memory>
#include <string>
#include <vector>

namespace pondiff::tool {

namespace {

constexpr char details[] =
    R"(Values go into a script as they are stored. This command looks for values that
no script can carry. It prints a line for each: the file, the path of the field
and what is wrong. It does not show passwords and other secrets.

  quote              In a text: it ends the argument of the command early
  control character  In a text: what follows a line feed is another command
  placeholder        In a text, such as $ID0: the script shows a number instead
  no end             A text fills its field; there is no terminator
  shared name        Profiles of one kind, terminal VLANs or users share a name
  no such object     A reference to a profile or a terminal VLAN that does not
                     exist: it has no command or a wrong one
  no word            The value of an enumeration has no word in the CLI

Free slots are not checked. Quotes, control characters and placeholders are
allowed in texts that no command shows. A zero is allowed where a document may
simply have left the field out: an enumeration at 0, and a reference to profile
0 when slot 0 is free, unless another reference in the same record is -1, which
means none. In a template, every reference that it defines is checked.

Exit status:
  0  nothing was found
  1  lines were printed
  2  error; see standard error. With --strict, lines were printed

Examples:
  pondiff check wanted.json
  pondiff check --strict running.bin && pondiff show running.bin)";

struct Arguments {
    Input input;
    std::string configuration;
    bool strict = false;
};

ExitStatus run(Arguments& arguments)
{
    const std::unique_ptr<GCfg> configuration = arguments.input.configuration(arguments.configuration);
    const std::vector<Finding> findings = check(*configuration);
    if (findings.empty()) {
        return ExitStatus::success;
    }
    const std::string name = name_of_input(arguments.configuration);
    std::string text;
    for (const Finding& finding : findings) {
        text += visible(fmt::format("{}: {}: {}", name, finding.path, finding.text)) + "\n";
    }
    write_file(standard_stream, text);
    return arguments.strict ? ExitStatus::error : ExitStatus::found;
}

std::function<ExitStatus()> setup(CLI::App& command)
{
    const auto arguments = std::make_shared<Arguments>();
    command.add_option("FILE", arguments->configuration, "Configuration to check; - is standard input")->required();
    arguments->input.add_option(command);
    command.add_flag("--strict", arguments->strict, "Exit with status 2 instead of 1 when anything is found");
    command.footer(details);
    return [arguments] {
        arguments->input.check({arguments->configuration});
        return run(*arguments);
    };
}

} // namespace

const Command check_command{"check", "Report values of a configuration that no script can carry", setup};

} // namespace pondiff::tool
