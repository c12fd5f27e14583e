#include "tool/account/meaning.h"
#include "tool/commands/candidates.h"
#include "tool/commands/commands.h"
#include "tool/errors.h"
#include "tool/files.h"
#include "tool/input.h"
#include "tool/json/json.h"
#include "tool/language/objects.h"
#include "tool/language/reader.h"
#include "tool/language/text.h"
#include "tool/messages.h"

#include <CLI/CLI.hpp>
#include <fmt/format.h>
#include <memory>
#include <string>

namespace pondiff::tool {

namespace {

constexpr char details[] =
    R"(Writes a configuration in the form that --as names; every command of pondiff
reads each of them.

  document  A JSON document, which leaves out every field that is zero
  text      The commands that set all of it, as a device lists them. A
            message counts the fields that they cannot set
  record    The packed record, as "pondiff pack" writes it

FILE may have any form, too: a document is rewritten in the usual order and
notation.

Exit status:
  0  the configuration was written
  2  error; see standard error

Examples:
  pondiff show running.bin | less
  pondiff show --full running.bin -o running.json
  pondiff show --as text running.bin > saved.cli)";

constexpr char forms[] = "document\tA JSON document\n"
                         "text\tCommands\n"
                         "record\tThe packed record\n";

struct Arguments {
    Input input;
    std::string configuration;
    std::string form = "document";
    std::string output = standard_stream;
    bool full = false;
};

/// Warns of the fields that a device would not have after reading the text.
std::string text_with_warning(const GCfg& configuration, const std::string& name)
{
    std::string text = text_of_commands(configuration);
    const auto read_back = blank_configuration();
    read_script(text, *read_back, [](const Line& /*line*/) {});
    std::size_t lost = 0;
    for_each_different_meaning({&configuration, read_back.get()}, [&lost](const Beside<2>& /*field*/) { ++lost; });
    if (lost != 0) {
        report_warning(fmt::format("{}: the text leaves out {}: no command sets {}, or no script can carry {}", name,
                                   lost == 1 ? "1 field" : fmt::format("{} fields", lost), lost == 1 ? "it" : "them",
                                   lost == 1 ? "its value" : "their values"));
    }
    return text;
}

std::string shown(const GCfg& configuration, const Arguments& arguments)
{
    if (arguments.form == "text") {
        return text_with_warning(configuration, name_of_input(arguments.configuration));
    }
    if (arguments.form == "record") {
        return {reinterpret_cast<const char*>(&configuration), sizeof configuration};
    }
    return write_json(configuration, arguments.full);
}

ExitStatus run(Arguments& arguments)
{
    const std::unique_ptr<GCfg> configuration = arguments.input.configuration(arguments.configuration);
    write_file(arguments.output, shown(*configuration, arguments));
    return ExitStatus::success;
}

void check(const Arguments& arguments)
{
    arguments.input.check({arguments.configuration});
    if (arguments.form != "document" && arguments.form != "text" && arguments.form != "record") {
        throw UsageError(arguments.form + ": no such form; there are document, text and record");
    }
    if (arguments.full && arguments.form != "document") {
        throw UsageError("only a document can be written with --full");
    }
}

std::function<ExitStatus()> setup(CLI::App& command)
{
    const auto arguments = std::make_shared<Arguments>();
    command.add_option("FILE", arguments->configuration, "Configuration to read; - is standard input")->required();
    command.add_option("--as", arguments->form, "Form to write: document, the default, text or record")
        ->option_text("FORM")
        ->check(completed_by(forms));
    arguments->input.add_option(command);
    command.add_flag("--full", arguments->full, "Write the fields that are zero as well, in a document");
    command.add_option("-o,--output", arguments->output, "Write to FILE instead of standard output")
        ->option_text("FILE");
    command.footer(details);
    return [arguments] {
        check(*arguments);
        return run(*arguments);
    };
}

} // namespace

const Command show_command{"show", "Write a configuration as a document, text or record", setup};

} // namespace pondiff::tool
