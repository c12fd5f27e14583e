#include "pon/command_file_generator.h"
#include "tool/areas.h"
#include "tool/check.h"
#include "tool/commands/candidates.h"
#include "tool/commands/commands.h"
#include "tool/describe/description.h"
#include "tool/errors.h"
#include "tool/files.h"
#include "tool/input.h"
#include "tool/messages.h"
#include "tool/script.h"
#include "tool/unsafe.h"

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
    return R"(Prints the script that changes a device from the configuration ORIG, which it
runs, to the configuration CFG: CLI commands, one per line, which begin and end
at the top level of the CLI. The last one is "commit".

A script that would change nothing is not printed. Such a script consists of
moves between views and "commit". Moves are "configure terminal", "exit", the
line that enters the view of a port, an ONT or a profile that ORIG has, and the
line that declares a terminal VLAN by a name that ORIG has. To enter the view of
an ONT or a profile that ORIG does not have creates it, so that is a change.

Some fields have no command, or none in the scope asked for. When the script
changes nothing although the configurations differ, a warning says how many
fields differ; with --only, how many fields of the area.

Values go into the script as they are stored. A warning names each value that no
script can carry, such as a description with a quote in it, unless ORIG has the
same value in the same field; with --all it names them all. For these values see
"pondiff check --help".

With --all, the script shows what is equal, too, as if it had changed. These are
left out while they are equal: users, static routes, the bindings and VLANs of
the IP source guard; names of VLAN profiles and terminal VLANs; session limits
of PPPoE profiles; upstream shapers and the storm control of shaping profiles;
services of ONT templates; the load average and the temperatures of the alarms;
and, unless --only or --common 1 selects them, ONTs and, each as a whole, the
management network, the services, the IP source guard and the layout of serial
numbers. The alarms, the layout of serial numbers, the PON network and the OLT
settings are shown with --common 1 or 2 only, the relay profiles of the OLT
settings with --common 2 only. Equal VLANs and groups of multicast entries are
shown as the commands that remove them.

Areas that --only takes:
)" + list_of_areas() +
           R"(
The script of an area begins at the top level. For most areas it ends there with
"commit". The scripts of ont and port have no "commit". The scripts of system,
pon and terminal-vlans end in the view of their last command, without "exit" and
"commit".

With -o, FILE becomes empty when nothing is to be printed, as with the
redirection of a shell.

Exit status:
  0  there is nothing to do
  1  a script was written
  2  error; see standard error. With --strict, CFG has a value that no script
     can carry

Examples:
  pondiff diff running.bin wanted.json
  pondiff diff --only ont:1/6 running.bin wanted.json
  pondiff diff --strict --common 1 running.bin wanted.bin
  pondiff diff -o change.cli running.bin - < wanted.json
  pondiff diff --all --common 2 running.bin wanted.bin > full.cli)";
}

struct Arguments {
    Input input;
    std::string orig;
    std::string cfg;
    std::string output = standard_stream;
    std::optional<std::string> only;
    int common = 0;
    bool all = false;
    bool strict = false;
    bool force = false;
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

/// Reports the texts that the script shows and must not, each with its file and path; true when there are any.
bool report_unsafe_texts(const Area& area, const GCfg& orig, const GCfg& cfg, const Arguments& arguments)
{
    const std::vector<UnsafeText> texts = unsafe_texts(
        orig, cfg, [&](GCfg& old_copy, GCfg& new_copy) { return script_of(area, old_copy, new_copy, arguments); });
    for (const UnsafeText& unsafe : texts) {
        if (unsafe.source == UnsafeText::Source::platform) {
            report_warning(unsafe.text);
            continue;
        }
        const std::string& file = unsafe.source == UnsafeText::Source::cfg ? arguments.cfg : arguments.orig;
        report_warning(fmt::format("{}: {}: {}", name_of_input(file), unsafe.path, unsafe.text));
    }
    return !texts.empty();
}

/// Warns of the values in an area that mean nothing to a device; true when there are any.
bool warn_of_findings(const Area& area, const GCfg& orig, const GCfg& cfg, const Arguments& arguments)
{
    bool any = false;
    for (const Finding& finding : check_change(orig, cfg, arguments.all)) {
        if (finding.unsafe || !overlaps(area.records, finding.offset, finding.size))
            continue;
        report_warning(fmt::format("{}: {}: {}", name_of_input(arguments.cfg), finding.path, finding.text));
        any = true;
    }
    return any;
}

void warn_of_silent_fields(std::size_t count)
{
    if (count == 1)
        report_warning("1 field differs without a command in this scope");
    else if (count != 0)
        report_warning(fmt::format("{} fields differ without a command in this scope", count));
}

ExitStatus run(const Area& area, Arguments& arguments)
{
    const auto [orig, cfg] = arguments.input.configurations(arguments.orig, arguments.cfg);
    if (report_unsafe_texts(area, *orig, *cfg, arguments) && !arguments.force)
        throw Error("no script is written: it would not do what it shows; --force writes it");
    if (warn_of_findings(area, *orig, *cfg, arguments) && arguments.strict)
        throw Error("no script is written: --strict");
    const std::string script = script_of(area, *orig, *cfg, arguments);
    const bool nothing_to_do = changes_nothing(script, *orig);
    write_file(arguments.output, nothing_to_do && !arguments.verbatim ? "" : script);
    if (!nothing_to_do)
        return ExitStatus::script_written;
    // With the common records alone, what differs elsewhere has no command in this scope either.
    warn_of_silent_fields(!arguments.only ? count_differing_fields(*orig, *cfg)
                                          : count_differing_fields(*orig, *cfg, area.records));
    return ExitStatus::success;
}

std::function<ExitStatus()> setup(CLI::App& command)
{
    const auto arguments = std::make_shared<Arguments>();
    command.add_option("ORIG", arguments->orig, "Configuration that the device runs; - is standard input")->required();
    command.add_option("CFG", arguments->cfg, "Configuration wanted; - is standard input, but not for both")
        ->required();
    command.add_flag("--all", arguments->all,
                     "Render what is equal, too, as if it had changed. For what\n"
                     "is left out while it is equal, see below");
    command
        .add_option("--common", arguments->common,
                    "Choose what is compared. 1 compares the common settings\n"
                    "only: CLI, alarms, layout of serial numbers, PON network,\n"
                    "OLT and IP source guard. 0, the default, 2 and other\n"
                    "numbers compare everything; with --all, 1 and 2 show more\n"
                    "of what is equal, see below")
        ->option_text("N")
        ->check(completed_by("0\tthe whole configuration\n"
                             "1\tthe common settings only\n"
                             "2\twith --all, the common settings and the default relay profiles too\n"));
    command
        .add_option("--only", arguments->only,
                    "Compare one area alone. An area is a part of the\n"
                    "configuration, an ONT, a profile or a block of settings;\n"
                    "they are listed below. With it, --common matters only to\n"
                    "what --all renders")
        ->option_text("AREA")
        ->check(completed_by(area_candidates()));
    arguments->input.add_option(command);
    command.add_flag("--strict", arguments->strict,
                     "Write no script when CFG has a value that means nothing to\n"
                     "a device; the exit status is then 2");
    command.add_flag("--force", arguments->force,
                     "Write the script even when a text in it has a quote, a\n"
                     "control character or the like, which ends its command or\n"
                     "hides a line");
    command.add_flag("--verbatim", arguments->verbatim,
                     "Print the script even when it would change nothing; the\n"
                     "exit status stays 0");
    command.add_option("-o,--output", arguments->output, "Write the script to FILE instead of standard output")
        ->option_text("FILE");
    command.footer(details());
    return [arguments] {
        arguments->input.check({arguments->orig, arguments->cfg});
        return run(arguments->only ? area_named(*arguments->only) : whole_configuration(arguments->common), *arguments);
    };
}

} // namespace

const Command diff_command{"diff", "Print the commands that turn one configuration into another", setup};

} // namespace pondiff::tool
