#include "pon/DataToCommandsConvertor/placeholders.h"

#include "pon/DataToCommandsConvertor.h"
#include "pon/DataToCommandsConvertor/key.h"
#include "pon/DataToCommandsConvertor/name_tables.h"

#include <algorithm>
#include <cstring>

namespace pondiff {

namespace {

constexpr char mark[] = "$ID";
constexpr std::size_t mark_size = sizeof mark - 1;

template <int Slots>
const char* row_of(const char (&rows)[Slots][16], int index)
{
    return index >= 0 && index < Slots ? rows[index] : nullptr;
}

/// A command that shows its object by name; a null name is shown as an empty text. `prefix` is how it begins.
struct NamedCommand {
    template <std::size_t N>
    constexpr NamedCommand(const char (&begins)[N], const char* in_front, const char* behind,
                           const char* (*lookup)(int))
        : prefix(begins), size(N - 1), before(in_front), after(behind), name(lookup)
    {
    }
    const char* prefix;
    std::size_t size;
    const char* before; ///< text before the name
    const char* after;  ///< text after the name
    const char* (*name)(int index);
};

constexpr NamedCommand named_commands[] = {
    {"user $ID0", "user \"", "\" ", [](int i) { return name_in(user2id_connection, GCFG_USERS, i); }},
    {"log submodule $ID0", "log submodule ", " ", getCliSubmoduleType},
    {"alarm $ID0", "alarm ", " ",
     [](int i) { return i >= 0 && i < GCFG_ALARM_TYPES ? alarm2id_connection[i] : nullptr; }},
    {"ip ssh allow ip $ID0", "ip ssh allow ip ", " ", [](int i) { return row_of(sship, i); }},
    {"ip snmp allow ip $ID0", "ip snmp allow ip ", " ", [](int i) { return row_of(snmpip, i); }},
    {"ip telnet allow ip $ID0", "ip telnet allow ip ", " ", [](int i) { return row_of(telnetip, i); }},
    {"ip route prefix $ID0", "ip route prefix ", " ", [](int i) { return row_of(routeip, i); }},
    {"ip source-guard bind ip $ID0", "ip source-guard bind ip ", " ", [](int i) { return row_of(sourceguardip, i); }},
};

/// `first_mark` is the position of the line's first mark: a named command's prefix ends with it and the digit 0.
void name_first_identifier(Text& line, std::size_t first_mark, int id)
{
    const std::size_t prefix_size = first_mark + mark_size + 1;
    for (const NamedCommand& named : named_commands) {
        if (named.size != prefix_size || line.size() < prefix_size ||
            std::memcmp(line.data(), named.prefix, prefix_size) != 0) {
            continue;
        }
        const char* const name = named.name(id);
        Text shown;
        shown.append(named.before);
        shown.append(name ? name : "");
        shown.append(named.after);
        if (shown.failed()) {
            line.fail();
            return;
        }
        // The blank after the placeholder is removed with it: `after` has one.
        line.replace_front(std::min(prefix_size + 1, line.size()), shown);
        return;
    }
}

enum class Slot { none, number, outside };

/// Reads the slot number after a mark as scanf's %d does: blanks and a sign are skipped.
Slot read_slot(const char* at, const char* end, int& slot)
{
    while (at != end && (*at == ' ' || (*at >= '\t' && *at <= '\r'))) {
        ++at;
    }
    const bool negative = at != end && *at == '-';
    if (at != end && (*at == '-' || *at == '+')) {
        ++at;
    }
    if (at == end || *at < '0' || *at > '9') {
        return Slot::none;
    }
    int value = 0;
    for (; at != end && *at >= '0' && *at <= '9'; ++at) {
        value = std::min(value * 10 + (*at - '0'), key_slots);
    }
    if (value >= key_slots || (negative && value != 0)) {
        return Slot::outside;
    }
    slot = value;
    return Slot::number;
}

char* find_mark(char* from, const char* end)
{
    while (static_cast<std::size_t>(end - from) >= mark_size) {
        from = static_cast<char*>(std::memchr(from, mark[0], static_cast<std::size_t>(end - from) - mark_size + 1));
        if (!from) {
            return nullptr;
        }
        if (std::memcmp(from, mark, mark_size) == 0) {
            return from;
        }
        ++from;
    }
    return nullptr;
}

} // namespace

void substitute(Text& line, const int* key)
{
    const char* const first_mark = find_mark(line.data(), line.data() + line.size());
    if (!first_mark) {
        return;
    }
    name_first_identifier(line, static_cast<std::size_t>(first_mark - line.data()), key[of_object]);

    int slot = 0; // a mark without a number uses the number read last
    std::size_t done = 0;
    while (char* const at = find_mark(line.data() + done, line.data() + line.size())) {
        done = static_cast<std::size_t>(at - line.data());
        if (read_slot(at + mark_size, line.data() + line.size(), slot) == Slot::outside) {
            done += mark_size;
            continue;
        }
        done += identifier_width;
        if (done > line.size()) {
            line.append(' '); // a mark at the very end is also replaced by four characters
        }
        if (done > line.size()) {
            return;
        }
        put_identifier(line.data() + done - identifier_width, key[slot]);
    }
}

} // namespace pondiff

char* useVariables(char* command, int* ids)
{
    if (!command || !ids) {
        return nullptr;
    }
    pondiff::Text line;
    line.append(command);
    pondiff::substitute(line, ids);
    return line.release_copy();
}

int generate_command_buf(char* command, int* ids, char* output, std::size_t size)
{
    if (!command || !ids || !output || size == 0) {
        return 0;
    }
    pondiff::Text line;
    line.append(command);
    pondiff::substitute(line, ids);
    const std::size_t kept = line.failed() ? 0 : std::min(line.size(), size - 1);
    std::memcpy(output, line.data(), kept);
    output[kept] = '\0';
    return 0;
}
