#include "tool/account/account.h"
#include "tool/account/alike.h"
#include "tool/check.h"
#include "tool/commands/candidates.h"
#include "tool/commands/change.h"
#include "tool/commands/commands.h"
#include "tool/describe/description.h"
#include "tool/errors.h"
#include "tool/files.h"
#include "tool/messages.h"
#include "tool/unsafe.h"

#include <CLI/CLI.hpp>
#include <algorithm>
#include <fmt/format.h>
#include <map>
#include <memory>
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

The script is read back before it is printed, as a device that runs ORIG would.
A message names each field that is not as CFG wants it afterwards; with --only,
the fields of the area. "pondiff plan" shows all of it in order. A script that
would set a field to a value that CFG does not want is not printed, unless
--force asks for it; --all and --verbatim print it.

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
  2  error; see standard error. The script is not written when a text in it is
     unsafe, when it sets what is not wanted, when it removes more than
     --max-removals or, with --strict, when CFG has a value that no script can
     carry or the script does not reach all that is wanted

Examples:
  pondiff diff running.bin wanted.json
  pondiff diff --only ont:1/6 running.bin wanted.json
  pondiff diff --strict --common 1 running.bin wanted.bin
  pondiff diff -o change.cli running.bin - < wanted.json
  pondiff diff --max-removals 5 --rollback back.cli running.bin wanted.bin
  pondiff diff --all --common 2 running.bin wanted.bin > full.cli)";
}

constexpr int any_number = -1;

struct Arguments {
    Change change;
    std::string output = standard_stream;
    bool all = false;
    bool strict = false;
    bool force = false;
    bool verbatim = false;
    std::string rollback;
    int max_removals = any_number;

    /// Whether the script is not meant to lead from one configuration to the other.
    bool is_dump() const { return all || verbatim; }
};

/// Reports the texts that the script shows and must not, each with its file and path.
/// @param from, to  the files of the configurations
/// @throws Error when there are any, unless it is forced
void check_texts(const ScriptRequest& request, const GCfg& running, const GCfg& wanted, const std::string& from,
                 const std::string& to, bool force)
{
    const std::vector<UnsafeText> texts = unsafe_texts(
        running, wanted, [&](GCfg& old_copy, GCfg& new_copy) { return script_of(request, old_copy, new_copy); });
    for (const UnsafeText& unsafe : texts) {
        const std::string& file = unsafe.source == UnsafeText::Source::cfg ? to : from;
        report_warning(unsafe.source == UnsafeText::Source::platform
                           ? unsafe.text
                           : fmt::format("{}: {}: {}", name_of_input(file), unsafe.path, unsafe.text));
    }
    if (!texts.empty() && !force) {
        throw Error("no script is written: it would not do what it shows; --force writes it");
    }
}

/// Warns of the values in an area that mean nothing to a device; true when there are any.
bool warn_of_findings(const Area& area, const GCfg& orig, const GCfg& cfg, const Arguments& arguments)
{
    bool any = false;
    for (const Finding& finding : check_change(orig, cfg, arguments.all)) {
        if (finding.unsafe || !overlaps(area.records, finding.offset, finding.size)) {
            continue;
        }
        report_warning(fmt::format("{}: {}: {}", name_of_input(arguments.change.wanted), finding.path, finding.text));
        any = true;
    }
    return any;
}

/// Names what the script does not reach; true when there is anything.
/// @param how    "not applied"
/// @param scope  outside of it nothing is missed
bool report_not_carried(const Account& account, const char* how, const Ranges& scope)
{
    constexpr std::size_t most = 20;
    std::vector<const Item*> items = items_with(account, fates_not_carried);
    const auto is_outside = [&](const Item* item) {
        const bool is_set = item->fate == Fate::different || item->fate == Fate::disturbed;
        return !is_set && !overlaps(scope, account.offset_of(*item), item->field->width);
    };
    items.erase(std::remove_if(items.begin(), items.end(), is_outside), items.end());
    std::size_t shown = 0;
    std::size_t more = 0;
    for (const Alike& alike : fold(account, items)) {
        const Item& item = *alike.item;
        if (++shown <= most) {
            report_warning(fmt::format("{}: {}{}: {}; {}", how, item.path, and_more(alike),
                                       outcome(account, item, false), why(item)));
        } else {
            more += 1 + alike.more;
        }
    }
    if (more != 0) {
        report_warning(fmt::format("{}: {} more fields; \"pondiff plan --full\" names them", how, more));
    }
    return shown != 0;
}

/// Refuses a script that removes more objects than the user has said.
void check_removals(const Account& account, int most)
{
    std::map<std::string_view, std::size_t> removed;
    std::size_t all = 0;
    for (const ObjectAccount& object : account.objects()) {
        const bool by_script = std::any_of(object.items.begin(), object.items.end(),
                                           [](const Item& item) { return item.fate == Fate::carried; });
        if (object.array != nullptr && object.change == ObjectAccount::Change::removed && by_script) {
            ++removed[object.array->plural];
            ++all;
        }
    }
    if (all <= static_cast<std::size_t>(most)) {
        return;
    }
    std::vector<std::string> counts;
    counts.reserve(removed.size());
    for (const auto& [kind, count] : removed) {
        counts.push_back(fmt::format("{}: {}", kind, count));
    }
    throw Error(fmt::format("no script is written: it removes {} objects ({}), more than --max-removals {}", all,
                            fmt::join(counts, ", "), most));
}

/// Writes the script that leads from what the device then holds to what it runs now.
void write_way_back(const ScriptRequest& request, GCfg& after, GCfg& orig, const Arguments& arguments)
{
    const Change& change = arguments.change;
    check_texts(request, after, orig, change.wanted, change.running, arguments.force);
    const std::string script = script_of(request, after, orig);
    const Account account(after, orig, script);
    report_not_carried(account, "not restored", request.area.records);
    write_file(arguments.rollback, account.replay().changes_nothing() ? "" : script);
}

/// Refuses a script that sets what is not wanted, or removes too much.
void check_outcome(const Account& account, const Arguments& arguments)
{
    if (account.sets_wrongly() && !arguments.force) {
        throw Error("no script is written: it would set fields to values that are not wanted; --force writes it");
    }
    if (arguments.max_removals != any_number) {
        check_removals(account, arguments.max_removals);
    }
}

ExitStatus run(Arguments& arguments)
{
    Change& change = arguments.change;
    ScriptRequest request = change.request();
    request.all = arguments.all;
    const auto [orig, cfg] = change.input.configurations(change.running, change.wanted);
    check_texts(request, *orig, *cfg, change.running, change.wanted, arguments.force);
    if (warn_of_findings(request.area, *orig, *cfg, arguments) && arguments.strict) {
        throw Error("no script is written: --strict");
    }
    const std::string script = script_of(request, *orig, *cfg);
    const Account account(*orig, *cfg, script);
    const Ranges scope = change.only ? request.area.records : Ranges{{0, sizeof(GCfg)}};
    const bool misses = !arguments.all && report_not_carried(account, "not applied", scope);
    if (misses && arguments.strict) {
        throw Error("no script is written: it does not reach all that is wanted, and --strict asks for it");
    }
    if (!arguments.is_dump()) {
        check_outcome(account, arguments);
    }
    if (!arguments.rollback.empty()) {
        const auto after = std::make_unique<GCfg>(account.replay().after());
        write_way_back(request, *after, *orig, arguments);
    }
    const bool nothing_to_do = account.replay().changes_nothing();
    write_file(arguments.output, nothing_to_do && !arguments.verbatim ? "" : script);
    return nothing_to_do ? ExitStatus::success : ExitStatus::script_written;
}

std::function<ExitStatus()> setup(CLI::App& command)
{
    const auto arguments = std::make_shared<Arguments>();
    arguments->change.add_files(command, "ORIG", "CFG");
    command.add_flag("--all", arguments->all,
                     "Render what is equal, too, as if it had changed. For what\n"
                     "is left out while it is equal, see below");
    arguments->change.add_options(command);
    command.add_flag("--strict", arguments->strict,
                     "Write no script when CFG has a value that means nothing to\n"
                     "a device, or when the script does not reach all that CFG\n"
                     "wants");
    command.add_flag("--force", arguments->force,
                     "Write the script even when a text in it has a quote, a\n"
                     "control character or the like, which ends its command or\n"
                     "hides a line, or when it sets what is not wanted");
    command.add_flag("--verbatim", arguments->verbatim,
                     "Print the script even when it would change nothing; the\n"
                     "exit status stays 0");
    command
        .add_option("--max-removals", arguments->max_removals,
                    "Write no script that removes more than N objects: ONTs,\n"
                    "profiles, terminal VLANs, users")
        ->option_text("N")
        ->check(completed_by(""));
    command
        .add_option("--rollback", arguments->rollback,
                    "Write the way back to FILE: the script from what the device\n"
                    "holds after this one to ORIG")
        ->option_text("FILE");
    command.add_option("-o,--output", arguments->output, "Write the script to FILE instead of standard output")
        ->option_text("FILE");
    command.footer(details());
    return [arguments] {
        if (!arguments->rollback.empty() && arguments->rollback == arguments->output) {
            throw UsageError(fmt::format("--rollback {}: this is where the script goes, too", arguments->rollback));
        }
        if (arguments->max_removals < any_number) {
            throw UsageError(fmt::format("--max-removals {}: expected 0 or more", arguments->max_removals));
        }
        arguments->change.input.check({arguments->change.running, arguments->change.wanted});
        return run(*arguments);
    };
}

} // namespace

const Command diff_command{"diff", "Print the commands that turn one configuration into another", setup};

} // namespace pondiff::tool
