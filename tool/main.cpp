#include "gcfg/gcfg.h"
#include "tool/commands/commands.h"
#include "tool/exit_status.h"
#include "tool/files.h"
#include "tool/messages.h"

#include <CLI/CLI.hpp>
#include <csignal>
#include <exception>
#include <fmt/format.h>
#include <functional>
#include <memory>
#include <new>
#include <sstream>
#include <string>
#include <utility>
#include <vector>

namespace {

using namespace pondiff::tool;

#define ADDRESS(name) &name##_command,
constexpr const Command* commands[] = {PONDIFF_COMMANDS(ADDRESS)};
#undef ADDRESS

std::string details()
{
    return fmt::format(R"(A configuration is everything that the device is told: its system settings and
its PON. Every command reads it in either of two forms, told apart by content:

  Record         The packed record that the device software keeps, exactly
                 {} bytes.
  JSON document  An object whose keys are the names of the record's fields.
                 Arrays of records are objects keyed by index, and what is
                 absent is zero, so that this is a whole configuration:
                 {{"pon": {{"ont": {{"70": {{"exist": true}}}}}}}}

Where a file is named, - stands for standard input or output; a file of that
name is ./-

Exit status:
  0  all went well; of "pondiff diff": there is nothing to do; of "pondiff
     check": nothing was found
  1  of "pondiff diff": a script was written; of "pondiff check": something was
     found
  2  trouble, told on standard error

Examples:
  pondiff diff running.bin wanted.json
  pondiff check wanted.json
  pondiff show running.bin > running.json
  pondiff pack running.json -o running.bin

"pondiff COMMAND --help" tells more of each command.)",
                       sizeof(GCfg));
}

/// What cannot be written, because the reader has gone or the file would grow too large, is an error like any other.
void ignore_signals_of_failed_writes()
{
    std::signal(SIGPIPE, SIG_IGN);
    std::signal(SIGXFSZ, SIG_IGN);
}

/// Sets the usage line apart from the description, as in a manual page, and shows arguments by their names alone.
class ManualFormatter : public CLI::Formatter {
  public:
    std::string make_option_opts(const CLI::Option* option) const override
    {
        return option->get_positional() ? "" : CLI::Formatter::make_option_opts(option);
    }
    std::string make_usage(const CLI::App* app, std::string name) const override
    {
        return "\n" + CLI::Formatter::make_usage(app, std::move(name));
    }
};

std::string complaint(const CLI::App& program, const CLI::ParseError& request)
{
    if (!program.get_subcommands().empty())
        return request.what();
    const std::vector<std::string> unknown = program.remaining();
    return unknown.empty() ? "a command is required" : unknown.front() + ": no such command or option";
}

/// Answers a request for help or for the version, or tells what is wrong with the command line.
int answer(const CLI::App& program, const CLI::ParseError& request)
{
    std::ostringstream text;
    if (program.exit(request, text, text) == 0) {
        write_file(standard_stream, text.str());
        return success;
    }
    std::string command = "pondiff";
    for (const CLI::App* const selected : program.get_subcommands())
        command += " " + selected->get_name();
    tell(complaint(program, request) + "\nTry '" + command + " --help'.");
    return trouble;
}

int run(int argc, char** argv)
{
    CLI::App program{"Compares complete configurations of a GPON optical line terminal (OLT)\n"
                     "and writes the CLI commands that turn the one into the other.",
                     "pondiff"};
    const auto formatter = std::make_shared<ManualFormatter>();
    formatter->column_width(21);
    formatter->label("SUBCOMMAND", "COMMAND");
    formatter->label("Positionals", "Arguments");
    program.formatter(formatter);
    program.set_help_flag("-h,--help", "Print this help and exit");
    program.set_version_flag("--version", "pondiff " PONDIFF_VERSION, "Print the version and exit");
    program.require_subcommand(1);
    program.footer(details());
    std::function<ExitStatus()> selected;
    for (const Command* const command : commands) {
        CLI::App& added = *program.add_subcommand(command->name, command->summary)->group("Commands");
        added.callback([&selected, run = command->setup(added)] { selected = run; });
    }
    try {
        program.parse(argc, argv);
        return selected();
    } catch (const CLI::ParseError& request) {
        return answer(program, request);
    }
}

} // namespace

int main(int argc, char** argv)
{
    ignore_signals_of_failed_writes();
    try {
        return run(argc, argv);
    } catch (const std::bad_alloc&) {
        tell("out of memory");
    } catch (const std::exception& error) {
        tell(error.what());
    }
    return trouble;
}
