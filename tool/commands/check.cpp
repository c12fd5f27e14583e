#include "tool/check.h"

#include "tool/commands/commands.h"
#include "tool/files.h"

#include <CLI/CLI.hpp>
#include <fmt/format.h>
#include <iterator>
#include <memory>
#include <string>
#include <vector>

namespace pondiff::tool {

namespace {

constexpr char details[] =
    R"(Values go into a script as they are stored. Looks for those that no script can
carry and prints a line for each: the file, the path of the field and what is
wrong. Passwords and other secrets are not shown.

  quote              In a text: it ends the argument of the command early
  control character  In a text: behind a line feed begins another command
  placeholder        In a text, such as $ID0: the script has a number there
  no end             Of a text, which fills its field
  shared name        Of profiles of one kind, of terminal VLANs or of users
  no such object     A reference to a profile or a terminal VLAN that does not
                     exist: it has no command, or a wrong one
  no word            For the value of an enumeration

Free slots are passed over. So are quotes, control characters and placeholders
in texts that no command shows, and what may just have been left out of a
document: an enumeration at 0, and a profile that is 0 where slot 0 is free,
unless the same record has another one that is -1, which stands for none. In a
template, the profiles count that it defines.

Exit status:
  0  nothing was found
  1  lines were printed
  2  trouble: an unreadable file, a mistake in a document, no room to write;
     with --strict, lines were printed

Examples:
  pondiff check wanted.json
  pondiff check --strict running.bin && pondiff show running.bin)";

struct Arguments {
    std::string configuration;
    bool strict = false;
};

ExitStatus run(const Arguments& arguments)
{
    const std::unique_ptr<GCfg> configuration = read_configuration(arguments.configuration);
    const std::vector<Finding> findings = check(*configuration);
    if (findings.empty())
        return success;
    const std::string name = name_of_input(arguments.configuration);
    std::string text;
    for (const Finding& finding : findings)
        fmt::format_to(std::back_inserter(text), "{}: {}: {}\n", name, finding.path, finding.text);
    write_file(standard_stream, text);
    return arguments.strict ? trouble : found;
}

std::function<ExitStatus()> setup(CLI::App& command)
{
    const auto arguments = std::make_shared<Arguments>();
    command.add_option("FILE", arguments->configuration, "Configuration to look at; - is standard input")->required();
    command.add_flag("--strict", arguments->strict, "Exit with status 2 instead of 1 when anything is found");
    command.footer(details);
    return [arguments] { return run(*arguments); };
}

} // namespace

const Command check_command{"check", "Name the values of a configuration that no script can carry", setup};

} // namespace pondiff::tool
