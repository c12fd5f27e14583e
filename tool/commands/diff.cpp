#include "pon/command_file_generator.h"
#include "tool/areas.h"
#include "tool/check.h"
#include "tool/commands/candidates.h"
#include "tool/commands/commands.h"
#include "tool/describe/description.h"
#include "tool/files.h"
#include "tool/messages.h"
#include "tool/script.h"

#include <CLI/CLI.hpp>
#include <cstdlib>
#include <fmt/format.h>
#include <memory>
#include <new>
#include <optional>
#include <string>
#include <vector>

namespace pondiff::tool {

namespace {

std::string details()
{
    return R"(Prints the script that takes a device from the configuration ORIG, which it
runs, to the configuration CFG, which is wanted: CLI commands, one per line,
from the top level of the CLI back to it, closed by "commit".

A script that would change nothing is not printed. That is one of nothing but
moves from view to view: "configure terminal", "exit", the line that enters the
view of a port, an ONT or a profile that ORIG holds, the line that declares a
terminal VLAN by a name that ORIG holds, and "commit". Entering the view of an
ONT or a profile that ORIG does not hold creates it, so that counts as a change.

Some fields have no command, or none in the scope asked for. When the script
changes nothing although the configurations differ, one line on standard error
tells how many fields do; with --only, those of the area are counted.

Values go into the script as they are stored. One that no script can carry, such
as a description with a quote in it, is told on standard error, by the path of
its field in CFG, unless ORIG has the same there; with --all in any case.
"pondiff check --help" tells which values those are.

Areas that --only takes:
)" + list_of_areas() +
           R"(
The script of an area begins at the top level. That of most areas ends there,
closed by "commit"; "commit" is missing behind ont and port. The scripts of
system, pon and terminal-vlans end in the view of their last command, without
"exit" and "commit".

With -o, FILE is replaced as a whole or, when anything fails, left as it was. It
keeps its mode; a symbolic link stays and the file that it points to is
replaced. When nothing is to be printed, FILE is left alone, be it there or not.

Exit status:
  0  there is nothing to do
  1  a script was written
  2  trouble: an unreadable file, a mistake in a document, no room to write;
     with --strict, a value that no script can carry

Examples:
  pondiff diff running.bin wanted.json
  pondiff diff --only ont:1/6 running.bin wanted.json
  pondiff diff --strict --common 1 running.bin wanted.bin
  pondiff diff -o change.cli running.bin - < wanted.json
  pondiff diff --all --common 2 running.bin wanted.bin > full.cli)";
}

struct Arguments {
    std::string orig;
    std::string cfg;
    std::string output = standard_stream;
    std::optional<std::string> only;
    int common = 0;
    bool all = false;
    bool strict = false;
    bool verbatim = false;
};

class Session {
  public:
    Session(GCfg& orig, GCfg& cfg, const Arguments& arguments)
    {
        if (initiate_diff(&orig, &cfg, arguments.all, arguments.common) != 0)
            throw std::bad_alloc();
    }
    ~Session() { finalize_diff(); }
    Session(const Session&) = delete;
    Session& operator=(const Session&) = delete;
};

std::string script_of(const Area& area, GCfg& orig, GCfg& cfg, const Arguments& arguments)
{
    const Session session{orig, cfg, arguments};
    const std::unique_ptr<char, decltype(&std::free)> text{area.script(orig, cfg), &std::free};
    if (!text)
        throw std::bad_alloc();
    return text.get();
}

/// Tells of the values in an area that no script can carry; true when there are any.
bool tell_of_findings(const Area& area, const GCfg& orig, const GCfg& cfg, const Arguments& arguments)
{
    bool any = false;
    for (const Finding& finding : check_change(orig, cfg, arguments.all)) {
        if (!overlaps(area.records, finding.offset, finding.size))
            continue;
        tell(fmt::format("{}: {}: {}", name_of_input(arguments.cfg), finding.path, finding.text));
        any = true;
    }
    return any;
}

void tell_of_silent_fields(std::size_t count)
{
    if (count == 1)
        tell("1 field differs without a command in this scope");
    else if (count != 0)
        tell(fmt::format("{} fields differ without a command in this scope", count));
}

ExitStatus run(const Area& area, const Arguments& arguments)
{
    const std::unique_ptr<GCfg> orig = read_configuration(arguments.orig);
    const std::unique_ptr<GCfg> cfg = read_configuration(arguments.cfg);
    if (tell_of_findings(area, *orig, *cfg, arguments) && arguments.strict) {
        tell("no script is written: --strict");
        return trouble;
    }
    const std::string script = script_of(area, *orig, *cfg, arguments);
    const bool nothing_to_do = changes_nothing(script, *orig);
    if (!nothing_to_do || (arguments.verbatim && !script.empty()))
        write_file(arguments.output, script);
    if (!nothing_to_do)
        return script_written;
    // With the common records alone, what differs elsewhere has no command in this scope either.
    tell_of_silent_fields(!arguments.only ? count_differing_fields(*orig, *cfg)
                                          : count_differing_fields(*orig, *cfg, area.records));
    return success;
}

Area chosen_area(const Arguments& arguments)
{
    if (!arguments.only)
        return whole_configuration(arguments.common);
    try {
        return area_named(*arguments.only);
    } catch (const UnknownArea& error) {
        throw CLI::ParseError(fmt::format("--only {}: {}", *arguments.only, error.what()),
                              CLI::ExitCodes::ValidationError);
    }
}

std::function<ExitStatus()> setup(CLI::App& command)
{
    const auto arguments = std::make_shared<Arguments>();
    command.add_option("ORIG", arguments->orig, "Configuration that the device runs; - is standard input")->required();
    command.add_option("CFG", arguments->cfg, "Configuration wanted; - is standard input, but not for both")
        ->required();
    command.add_flag("--all", arguments->all,
                     "Render fields that are equal too, as if they had changed.\n"
                     "ONTs and a system part that are equal as a whole stay out");
    command
        .add_option("--common", arguments->common,
                    "Choose how the common settings take part. They are CLI,\n"
                    "alarms, layout of serial numbers, PON network, OLT and IP\n"
                    "source guard. 1 compares them alone. With --all, 1 and 2\n"
                    "render them too, and 2 also the default relay profiles.\n"
                    "0, the default, and other numbers compare the whole tree")
        ->option_text("N")
        ->check(completed_by("0\tthe whole tree\n"
                             "1\tthe common settings alone\n"
                             "2\twith --all, the common settings and the default relay profiles too\n"));
    command
        .add_option("--only", arguments->only,
                    "Compare one area alone. An area is a part of the\n"
                    "configuration, an ONT, a profile or a block of settings;\n"
                    "they are listed below. With it, --common matters only to\n"
                    "what --all renders")
        ->option_text("AREA")
        ->check(completed_by(area_candidates()));
    command.add_flag("--strict", arguments->strict,
                     "Write no script when CFG has a value that no script can\n"
                     "carry; the exit status is then 2");
    command.add_flag("--verbatim", arguments->verbatim,
                     "Print the script even when it would change nothing; the\n"
                     "exit status stays 0");
    command.add_option("-o,--output", arguments->output, "Write the script to FILE instead of standard output")
        ->option_text("FILE");
    command.footer(details());
    return [arguments] {
        if (arguments->orig == standard_stream && arguments->cfg == standard_stream)
            throw CLI::ParseError("only one of ORIG and CFG can be standard input", CLI::ExitCodes::ValidationError);
        return run(chosen_area(*arguments), *arguments);
    };
}

} // namespace

const Command diff_command{"diff", "Print the commands that turn one configuration into another", setup};

} // namespace pondiff::tool
