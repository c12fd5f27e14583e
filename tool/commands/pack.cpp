#include "tool/commands/commands.h"
#include "tool/files.h"

#include <CLI/CLI.hpp>
#include <memory>
#include <string>
#include <string_view>

namespace pondiff::tool {

namespace {

constexpr char details[] =
    R"(Makes the record of a configuration that is written as a JSON document: what the
document leaves out is zero. "pondiff show" is the way back; a record that was
shown and packed again is the same, byte for byte.

RECORD is replaced as a whole or, after an error, left as it was.

Exit status:
  0  the record was written
  2  error; see standard error

Examples:
  pondiff pack wanted.json -o wanted.bin
  pondiff show running.bin | sed s/olt-16/olt-17/ | pondiff pack - -o wanted.bin)";

struct Arguments {
    std::string document;
    std::string record;
};

ExitStatus run(const Arguments& arguments)
{
    const std::unique_ptr<GCfg> record = read_configuration(arguments.document);
    write_file(arguments.record, {reinterpret_cast<const char*>(record.get()), sizeof(GCfg)});
    return ExitStatus::success;
}

std::function<ExitStatus()> setup(CLI::App& command)
{
    const auto arguments = std::make_shared<Arguments>();
    command.add_option("JSON", arguments->document, "Configuration to read; - is standard input")->required();
    command.add_option("-o,--output", arguments->record, "File to write the record to, required; - is standard output")
        ->required()
        ->option_text("RECORD");
    command.footer(details);
    return [arguments] { return run(*arguments); };
}

} // namespace

const Command pack_command{"pack", "Make a record of a JSON document", setup};

} // namespace pondiff::tool
