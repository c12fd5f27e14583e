#include "tool/commands/commands.h"
#include "tool/files.h"
#include "tool/input.h"

#include <CLI/CLI.hpp>
#include <memory>
#include <string>
#include <string_view>

namespace pondiff::tool {

namespace {

constexpr char details[] =
    R"(Writes the packed record of a configuration, such as a JSON document or a text
of commands. Fields that a document leaves out are zero. "pondiff show" does the
reverse: a record that is shown as a document and packed again is the same, byte
for byte.

Exit status:
  0  the record was written
  2  error; see standard error

Examples:
  pondiff pack wanted.json -o wanted.bin
  pondiff show running.bin | sed s/olt-16/olt-17/ | pondiff pack - -o wanted.bin)";

struct Arguments {
    Input input;
    std::string configuration;
    std::string record;
};

ExitStatus run(Arguments& arguments)
{
    const std::unique_ptr<GCfg> record = arguments.input.configuration(arguments.configuration);
    write_file(arguments.record, {reinterpret_cast<const char*>(record.get()), sizeof(GCfg)});
    return ExitStatus::success;
}

std::function<ExitStatus()> setup(CLI::App& command)
{
    const auto arguments = std::make_shared<Arguments>();
    command.add_option("FILE", arguments->configuration, "Configuration to read; - is standard input")->required();
    arguments->input.add_option(command);
    command.add_option("-o,--output", arguments->record, "File to write the record to, required; - is standard output")
        ->required()
        ->option_text("RECORD");
    command.footer(details);
    return [arguments] {
        arguments->input.check({arguments->configuration});
        return run(*arguments);
    };
}

} // namespace

const Command pack_command{"pack", "Write the packed record of a configuration", setup};

} // namespace pondiff::tool
