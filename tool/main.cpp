#include "gcfg/gcfg.h"
#include "tool/commands/commands.h"
#include "tool/errors.h"
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
    return fmt::format(R"(A configuration holds all settings of a device: its system settings and its PON.
Every command reads it in any of three forms and recognizes the form by the
content:

  Record         The packed record that the device software keeps, exactly
                 {} bytes.
  JSON document  An object whose keys are the names of the record's fields.
                 Arrays of records are objects keyed by index, and what is
                 absent is zero, so that this is a whole configuration:
                 {{"pon": {{"ont": {{"70": {{"exist": true}}}}}}}}
  Text           The commands that set it, line by line, such as a device
                 lists them. What no line says is unset.

The file name - stands for standard input or output; write ./- for a file of
that name.

An output file is replaced as a whole or, after an error, left as it was. It
keeps its owner, group, mode and ACL; if that is not possible, nothing is
written. Only the owner may read and write a new file, since configurations and
scripts hold passwords. For a symbolic link, the file that it points to is
replaced. Devices, pipes and open files, such as /dev/stdout, are written to. An
output file must not also be an input.

Exit status:
  0  success: there is nothing to do, nothing was found, every line was accepted
  1  there is something to do or something was found; the help of each command
     says what
  2  error; see standard error

Examples:
  pondiff diff running.bin wanted.json
  pondiff plan running.bin wanted.json
  pondiff check wanted.json
  pondiff show running.bin > running.json
  pondiff pack running.json -o running.bin
  pondiff apply running.json change.cli > after.json

"pondiff COMMAND --help" describes each command.)",
                       sizeof(GCfg));
}

/// A failed write, to a closed pipe or beyond the size limit of files, is then an error like any other.
void ignore_signals_of_failed_writes()
{
    std::signal(SIGPIPE, SIG_IGN);
    std::signal(SIGXFSZ, SIG_IGN);
}

/// When an allocation fails the program ends at once. An exception is not enough: streams catch it and continue with
/// less text. Set before the static objects of the command line library are constructed.
[[gnu::constructor(101)]] void end_when_out_of_memory()
{
    std::set_new_handler(end_out_of_memory);
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

/// The command line of the program.
class Program {
  public:
    Program();

    /// Runs what the command line asks for.
    /// @throws Error
    ExitStatus run(int argc, char** argv);

    /// Refers the user to the help after a mistake on the command line.
    std::string hint() const;

  private:
    std::string mistake(const CLI::ParseError& error) const;

    CLI::App app_{"Compares complete configurations of a GPON optical line terminal (OLT)\n"
                  "and writes the CLI commands that turn the one into the other.",
                  "pondiff"};
    std::function<ExitStatus()> selected_;
};

Program::Program()
{
    const auto formatter = std::make_shared<ManualFormatter>();
    formatter->column_width(21);
    formatter->label("SUBCOMMAND", "COMMAND");
    formatter->label("Positionals", "Arguments");
    app_.formatter(formatter);
    app_.set_help_flag("-h,--help", "Print this help and exit");
    app_.set_version_flag("--version", "pondiff " PONDIFF_VERSION, "Print the version and exit");
    app_.require_subcommand(1);
    app_.footer(details());
    for (const Command* const command : commands) {
        CLI::App& added = *app_.add_subcommand(command->name, command->summary)->group("Commands");
        added.callback([this, run = command->setup(added)] { selected_ = run; });
    }
}

ExitStatus Program::run(int argc, char** argv)
{
    try {
        app_.parse(argc, argv);
    } catch (const CLI::Success& request) { // for the help or the version
        std::ostringstream text;
        app_.exit(request, text, text);
        write_file(standard_stream, text.str());
        return ExitStatus::success;
    } catch (const CLI::ParseError& error) {
        throw UsageError(mistake(error));
    }
    return selected_();
}

std::string Program::mistake(const CLI::ParseError& error) const
{
    if (!app_.get_subcommands().empty()) {
        return error.what();
    }
    const std::vector<std::string> unknown = app_.remaining();
    return unknown.empty() ? "a command is required" : unknown.front() + ": no such command or option";
}

std::string Program::hint() const
{
    std::string command = app_.get_name();
    for (const CLI::App* const selected : app_.get_subcommands()) {
        command += " " + selected->get_name();
    }
    return "Try '" + command + " --help'.";
}

} // namespace

int main(int argc, char** argv)
{
    ignore_signals_of_failed_writes();
    try {
        Program program;
        try {
            return static_cast<int>(program.run(argc, argv));
        } catch (const UsageError& error) {
            report_error(error.what(), program.hint());
        }
    } catch (const std::bad_alloc&) {
        end_out_of_memory();
    } catch (const std::exception& error) {
        report_error(error.what());
    }
    return static_cast<int>(ExitStatus::error);
}
