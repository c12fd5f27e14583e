#include "tool/areas.h"

#include "pon/blocks.h"
#include "pon/command_file_generator.h"
#include "tool/errors.h"
#include "tool/json/forms.h"
#include "tool/json/store.h"
#include "tool/profiles.h"

#include <algorithm>
#include <fmt/format.h>
#include <optional>
#include <string_view>
#include <vector>

namespace pondiff::tool {

namespace {

#define RECORDS(path)                                                                                                  \
    Range                                                                                                              \
    {                                                                                                                  \
        offsetof(GCfg, path), sizeof(GCfg::path)                                                                       \
    }

/// A record of a block of settings; a block of several records has a row for each.
struct BlockRecord {
    const char* name; ///< of the block
    Range record;
};

constexpr BlockRecord block_records[] = {
#define BLOCK_RECORD(name, path, diff) {name, RECORDS(path)},
    PON_BLOCKS(BLOCK_RECORD)
#undef BLOCK_RECORD
};

/// The names in a table, each once. Rows of the same name are adjacent.
template <class Table>
std::vector<std::string_view> names_of(const Table& table)
{
    std::vector<std::string_view> names;
    for (const auto& entry : table) {
        names.emplace_back(entry.name);
    }
    names.erase(std::unique(names.begin(), names.end()), names.end());
    return names;
}

/// "a, b and c"
std::string enumerated(const std::vector<std::string_view>& names)
{
    return fmt::format("{} and {}", fmt::join(names.begin(), names.end() - 1, ", "), names.back());
}

/// The number of a slot, if `digits` is one.
std::optional<int> slot_number(std::string_view digits, int slots)
{
    std::uint64_t number = 0;
    if (!parse_decimal(digits, number) || number >= static_cast<std::uint64_t>(slots)) {
        return std::nullopt;
    }
    return static_cast<int>(number);
}

/// The index of an ONT, written as itself or as port/id.
std::optional<int> ont_index(std::string_view text)
{
    const std::size_t slash = text.find('/');
    if (slash == text.npos) {
        return slot_number(text, GCFG_ONTS);
    }
    const std::optional<int> port = slot_number(text.substr(0, slash), GCFG_ONTS);
    const std::optional<int> id = slot_number(text.substr(slash + 1), GCFG_ONTS_PER_PORT);
    if (!port || !id || *port * GCFG_ONTS_PER_PORT + *id >= GCFG_ONTS) {
        return std::nullopt;
    }
    return *port * GCFG_ONTS_PER_PORT + *id;
}

/// An area as the user writes it.
struct Request {
    std::string_view name;     ///< the whole of it
    std::string_view argument; ///< the part after the first colon
};

[[noreturn]] void reject(const Request& request, const std::string& reason)
{
    throw UsageError(fmt::format("--only {}: {}", request.name, reason));
}

/// One element of an array.
Range element_of(const Range& array, int slots, int slot)
{
    const std::size_t size = array.size / static_cast<std::size_t>(slots);
    return {array.offset + static_cast<std::size_t>(slot) * size, size};
}

Area system_part(const Request& /*request*/)
{
    return {{RECORDS(system)}, [](GCfg& orig, GCfg& cfg) { return GetSystemDiff(&orig.system, &cfg.system); }};
}

Area pon_part(const Request& /*request*/)
{
    return {{RECORDS(pon)}, [](GCfg& orig, GCfg& cfg) { return GetPonDiff(&orig.pon, &cfg.pon); }};
}

Area ont(const Request& request)
{
    const std::optional<int> index = ont_index(request.argument);
    if (!index) {
        reject(request, fmt::format("no such ONT; there are 0 to {}, also written 0/0 to {}/{}", GCFG_ONTS - 1,
                                    (GCFG_ONTS - 1) / GCFG_ONTS_PER_PORT, (GCFG_ONTS - 1) % GCFG_ONTS_PER_PORT));
    }
    return {{element_of(RECORDS(pon.ont), GCFG_ONTS, *index)},
            [i = *index](GCfg& orig, GCfg& cfg) { return GetGponOntDiff(&orig.pon.ont[i], &cfg.pon.ont[i], i); }};
}

Area port(const Request& request)
{
    const std::optional<int> number = slot_number(request.argument, GCFG_GPON_PORTS);
    if (!number) {
        reject(request, fmt::format("no such GPON port; there are 0 to {}", GCFG_GPON_PORTS - 1));
    }
    return {{element_of(RECORDS(pon.olt.channel), GCFG_GPON_PORTS, *number)}, [i = *number](GCfg& orig, GCfg& cfg) {
                return GetGponChannelDiff(&orig.pon.olt.channel[i], &cfg.pon.olt.channel[i], i);
            }};
}

Area profiles_olt(const Request& /*request*/)
{
    return {{RECORDS(pon.profiles_olt)}, [](GCfg& orig, GCfg& cfg) {
                return GetGPonProfilesOltDiff(&orig.pon.profiles_olt, &cfg.pon.profiles_olt);
            }};
}

Area profiles_ont(const Request& /*request*/)
{
    return {{RECORDS(pon.profiles_ont)}, [](GCfg& orig, GCfg& cfg) {
                return GetGPonProfilesOntDiff(&orig.pon.profiles_ont, &cfg.pon.profiles_ont);
            }};
}

/// The profiles of a kind, or the one in a slot.
Area profile(const Request& request)
{
    const std::string_view argument = request.argument;
    const std::size_t colon = argument.find(':');
    const std::string_view name = argument.substr(0, colon);
    for (const ProfileKind& kind : profile_kinds) {
        if (kind.name != name) {
            continue;
        }
        Range records{kind.offset, static_cast<std::size_t>(kind.slots) * kind.size};
        int id = -1;
        if (colon != argument.npos) {
            const std::optional<int> slot = slot_number(argument.substr(colon + 1), kind.slots);
            if (!slot) {
                reject(request, fmt::format("no such {}; there are 0 to {}", kind.called, kind.slots - 1));
            }
            id = *slot;
            records = element_of(records, kind.slots, id);
        }
        return {{records}, [id, text = std::string(name)](GCfg& orig, GCfg& cfg) mutable {
                    return GetProfileDiff(&orig.pon, &cfg.pon, text.data(), id);
                }};
    }
    const std::vector<std::string_view> names = names_of(profile_kinds);
    reject(request, fmt::format("no such kind of profile{}; there are {}", suggestion(name, names), enumerated(names)));
}

Area block(const Request& request)
{
    Ranges records;
    for (const BlockRecord& row : block_records) {
        if (row.name == request.argument) {
            records.push_back(row.record);
        }
    }
    if (records.empty()) {
        const std::vector<std::string_view> names = names_of(block_records);
        reject(request,
               fmt::format("no such block{}; there are {}", suggestion(request.argument, names), enumerated(names)));
    }
    return {records, [text = std::string(request.argument)](GCfg& orig, GCfg& cfg) mutable {
                return GetBlockDiff(&orig, &cfg, text.data());
            }};
}

Area alarm(const Request& /*request*/)
{
    return {{RECORDS(system.services.alarm)}, [](GCfg& orig, GCfg& cfg) { return GetAlarmDiff(&orig, &cfg); }};
}

Area routes(const Request& /*request*/)
{
    return {{RECORDS(system.services.routing)}, [](GCfg& orig, GCfg& cfg) {
                return GetRoutesDiffMemSafe(&orig.system.services.routing, &cfg.system.services.routing, nullptr);
            }};
}

Area terminal_vlans(const Request& /*request*/)
{
    return {{RECORDS(pon.network.terminal_vlan)},
            [](GCfg& /*orig*/, GCfg& /*cfg*/) { return GetTerminalVlanHeaders(); }};
}

std::vector<std::string> port_numbers()
{
    std::vector<std::string> numbers;
    numbers.reserve(GCFG_GPON_PORTS);
    for (int i = 0; i < GCFG_GPON_PORTS; ++i) {
        numbers.push_back(std::to_string(i));
    }
    return numbers;
}

/// The names of the elements of a table.
template <const auto& table>
std::vector<std::string> all_names()
{
    const std::vector<std::string_view> names = names_of(table);
    return {names.begin(), names.end()};
}

/// A row of the list below: one area, or the areas of one kind, selected by an argument.
struct AreaKind {
    const char* name;
    const char* argument; ///< the part after the colon; null if there is none
    const char* shows;
    Area (*area)(const Request& request);
    std::vector<std::string> (*arguments)() = nullptr; ///< candidates for completion
};

constexpr AreaKind area_kinds[] = {
    {"system", nullptr, "The system part", system_part},
    {"pon", nullptr, "The PON part: network, profiles, OLT, ports and ONTs", pon_part},
    {"ont", "INDEX", "One ONT, 0 to 531; ont:1/6, port and id, is ont:70", ont},
    {"port", "N", "One GPON port, 0 to 7", port, port_numbers},
    {"profiles-olt", nullptr, "The OLT profiles", profiles_olt},
    {"profiles-ont", nullptr, "The ONT profiles and the templates", profiles_ont},
    {"profile", "KIND", "The profiles of a kind that differ", profile, all_names<profile_kinds>},
    {"profile", "KIND:ID", "The profile of a kind in the slot ID", profile},
    {"block", "NAME", "A block of settings", block, all_names<block_records>},
    {"alarm", nullptr, "The alarms", alarm},
    {"routes", nullptr, "The static routes, which the whole diff leaves out", routes},
    {"terminal-vlans", nullptr, "A line that declares each terminal VLAN of CFG by name", terminal_vlans},
};

std::string written(const AreaKind& kind)
{
    return kind.argument ? fmt::format("{}:{}", kind.name, kind.argument) : kind.name;
}

std::string list_of_kinds()
{
    std::vector<std::string> names;
    for (const AreaKind& kind : area_kinds) {
        names.push_back(written(kind));
    }
    return enumerated({names.begin(), names.end()});
}

/// The names in indented lines of a help page.
std::string wrapped(const std::vector<std::string_view>& names)
{
    constexpr std::size_t width = 80;
    std::string text;
    std::size_t column = width;
    for (const std::string_view name : names) {
        const bool last = name == names.back();
        if (column + 1 + name.size() + (last ? 0 : 1) > width) {
            text += text.empty() ? "    " : "\n    ";
            column = 4;
        } else {
            text += ' ';
            ++column;
        }
        text += fmt::format("{}{}", name, last ? "" : ",");
        column += name.size() + 1;
    }
    return text;
}

} // namespace

std::vector<std::string_view> names_of_blocks()
{
    return names_of(block_records);
}

Area whole_configuration(int common)
{
    Area area{{{0, sizeof(GCfg)}}, [](GCfg& orig, GCfg& cfg) { return GetDiff(&orig, &cfg); }};
    if (common == 1) {
        area.records = {RECORDS(system.services.cli), RECORDS(system.services.alarm),
                        RECORDS(system.settings),     RECORDS(pon.network),
                        RECORDS(pon.olt.general),     RECORDS(system.services.source_guard)};
    }
    return area;
}

Area area_named(const std::string& name)
{
    const std::size_t colon = name.find(':');
    const std::string_view kind_name = std::string_view(name).substr(0, colon);
    const std::string_view argument = colon == name.npos ? "" : std::string_view(name).substr(colon + 1);
    for (const AreaKind& kind : area_kinds) {
        if (kind.name == kind_name && (kind.argument || colon == name.npos)) {
            return kind.area({name, argument});
        }
    }
    reject({name, argument},
           fmt::format("no such area{}; there are {}", suggestion(kind_name, names_of(area_kinds)), list_of_kinds()));
}

std::vector<std::string> names_of_areas()
{
    std::vector<std::string> names;
    for (const AreaKind& kind : area_kinds) {
        if (!kind.argument) {
            names.emplace_back(kind.name);
        }
    }
    for (const AreaKind& kind : area_kinds) {
        for (const std::string& argument : kind.arguments ? kind.arguments() : std::vector<std::string>{}) {
            names.push_back(fmt::format("{}:{}", kind.name, argument));
        }
    }
    return names;
}

std::string area_candidates()
{
    std::string candidates;
    std::string_view previous;
    for (const AreaKind& kind : area_kinds) {
        if (kind.name != previous) {
            candidates += fmt::format("{}{}\t{}\n", kind.name, kind.argument ? ":" : "", kind.shows);
        }
        if (kind.arguments) {
            for (const std::string& argument : kind.arguments()) {
                candidates += fmt::format("{}:{}\t\n", kind.name, argument);
            }
        }
        previous = kind.name;
    }
    return candidates;
}

std::string list_of_areas()
{
    std::string text;
    for (const AreaKind& kind : area_kinds) {
        text += fmt::format("  {:<15}  {}\n", written(kind), kind.shows);
    }
    return text + fmt::format("\nKinds of profiles:\n{}\n\nBlocks of settings:\n{}\n", wrapped(names_of(profile_kinds)),
                              wrapped(names_of(block_records)));
}

} // namespace pondiff::tool
