#include "tool/commands/pack.h"

#include "tool/exit_status.h"
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

RECORD is replaced as a whole or, when anything fails, left as it was.

Exit status:
  0  the record was written
  2  trouble: an unreadable file, a mistake in the document, no room to write

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
    return success;
}

} // namespace

void add_pack(CLI::App& program, int& status)
{
    CLI::App& command = *program.add_subcommand("pack", "Make a record of a JSON document");
    const auto arguments = std::make_shared<Arguments>();
    command.add_option("JSON", arguments->document, "Configuration to read; - is standard input")
        ->required()
        ->option_text(" ");
    command.add_option("-o,--output", arguments->record, "File to write the record to, required; - is standard output")
        ->required()
        ->option_text("RECORD");
    command.footer(details);
    command.callback([arguments, &status] { status = run(*arguments); });
}

} // namespace pondiff::tool
