#include "tool/commands/commands.h"
#include "tool/files.h"
#include "tool/json/json.h"

#include <CLI/CLI.hpp>
#include <memory>
#include <string>

namespace pondiff::tool {

namespace {

constexpr char details[] =
    R"(Writes a configuration as a JSON document, which "pondiff pack" and "pondiff
diff" read. The document leaves out every field that is zero. A document may be
shown as well: what comes out is the same configuration in the usual order and
notation.

With -o, FILE is replaced as a whole or, after an error, left as it was.

Exit status:
  0  the document was written
  2  error; see standard error

Examples:
  pondiff show running.bin | less
  pondiff show --full running.bin -o running.json)";

struct Arguments {
    std::string configuration;
    std::string output = standard_stream;
    bool full = false;
};

ExitStatus run(const Arguments& arguments)
{
    const std::unique_ptr<GCfg> record = read_configuration(arguments.configuration);
    write_file(arguments.output, write_json(*record, arguments.full));
    return ExitStatus::success;
}

std::function<ExitStatus()> setup(CLI::App& command)
{
    const auto arguments = std::make_shared<Arguments>();
    command.add_option("RECORD", arguments->configuration, "Configuration to read; - is standard input")->required();
    command.add_flag("--full", arguments->full, "Write the fields that are zero as well");
    command.add_option("-o,--output", arguments->output, "Write the document to FILE instead of standard output")
        ->option_text("FILE");
    command.footer(details);
    return [arguments] { return run(*arguments); };
}

} // namespace

const Command show_command{"show", "Write a configuration as a JSON document", setup};

} // namespace pondiff::tool
