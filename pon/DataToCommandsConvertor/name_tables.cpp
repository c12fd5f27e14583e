#include "pon/DataToCommandsConvertor/name_tables.h"

#include "platform/platform.h"
#include "pon/DataToCommandsConvertor.h"
#include "pon/DataToCommandsConvertor/views.h"
#include "pon/profile_kinds.h"

#include <cstdint>
#include <cstdlib>
#include <cstring>

#define NAME_TABLES(part, array, record, tables, ...)                                                                  \
    char* tables##2id_connection [PON_PROFILE_SLOTS(part, array)];                                                     \
    char* def_##tables##2id_connection [PON_PROFILE_SLOTS(part, array)];
PON_PROFILE_KINDS(NAME_TABLES)
#undef NAME_TABLES

char* terminalvlan2id_connection[GCFG_TERMINAL_VLANS];
char* user2id_connection[GCFG_USERS];
char* ont2id_connection[GCFG_ONTS];
char* def_ont2id_connection[512];
const char* alarm2id_connection[GCFG_ALARM_TYPES];
unsigned short profile_dhcpra_redefinition2id_connection[GCFG_RELAY_REDEFINITIONS];

char telnetip[GCFG_ALLOW_ENTRIES][16];
char sship[GCFG_ALLOW_ENTRIES][16];
char snmpip[GCFG_ALLOW_ENTRIES][16];
char routeip[GCFG_ROUTES][16];
char sourceguardip[GCFG_SOURCE_GUARD_BINDINGS][16];

int sn_format;

namespace {

/// A table of names, and where a configuration holds the named objects.
struct NameTable {
    char** names;
    char** old_names; ///< null where only the new configuration is named
    std::size_t slots;
    std::size_t first; ///< offset of the first object in GCfg
    std::size_t stride;
    std::size_t exists; ///< offset in the object of the flag that says it exists
    std::size_t exists_size;
    std::size_t name; ///< offset in the object of its name
    std::size_t name_size;
};

#define NAME_TABLE(names, old_names, array, record, exists)                                                            \
    {                                                                                                                  \
        names, old_names, sizeof(names) / sizeof *(names), offsetof(GCfg, array), sizeof(record),                      \
            offsetof(record, exists), sizeof(record::exists), offsetof(record, name), sizeof(record::name)             \
    }

constexpr NameTable name_tables[] = {
    NAME_TABLE(terminalvlan2id_connection, nullptr, pon.network.terminal_vlan, GVlanTagEx, exists),
    NAME_TABLE(user2id_connection, nullptr, system.user, GSystemUser, exist),
#define PROFILE_TABLE(part, array, record, tables, ...)                                                                \
    NAME_TABLE(tables##2id_connection, def_##tables##2id_connection, pon.part.array, record, exist),
    PON_PROFILE_KINDS(PROFILE_TABLE)
#undef PROFILE_TABLE
};

#undef NAME_TABLE

bool any_byte_set(const char* bytes, std::size_t size)
{
    for (std::size_t i = 0; i < size; ++i) {
        if (bytes[i] != 0) {
            return true;
        }
    }
    return false;
}

/// A copy on the heap of a name, which may fill its array to the last byte.
char* copy_of(const char* name, std::size_t capacity)
{
    const std::size_t size = strnlen(name, capacity);
    auto* const copy = static_cast<char*>(std::malloc(size + 1));
    if (copy) {
        std::memcpy(copy, name, size);
        copy[size] = '\0';
    }
    return copy;
}

/// Puts the names of all objects that exist into an empty table, each in its own heap block.
bool fill(const NameTable& table, char** names, const GCfg& configuration)
{
    const char* object = reinterpret_cast<const char*>(&configuration) + table.first;
    for (std::size_t i = 0; i < table.slots; ++i, object += table.stride) {
        if (!any_byte_set(object + table.exists, table.exists_size)) {
            continue;
        }
        names[i] = copy_of(object + table.name, table.name_size);
        if (!names[i]) {
            return false;
        }
    }
    return true;
}

void release(char** names, std::size_t slots)
{
    for (std::size_t i = 0; i < slots; ++i) {
        std::free(names[i]);
        names[i] = nullptr;
    }
}

bool fill_serials(const GCfg& configuration)
{
    constexpr std::size_t serial_size = 24;
    for (std::size_t i = 0; i < GCFG_ONTS; ++i) {
        ont2id_connection[i] = static_cast<char*>(std::calloc(1, serial_size));
        if (!ont2id_connection[i]) {
            return false;
        }
        if (i == 0) {
            std::strcpy(ont2id_connection[i], "0000000000000000");
        } else {
            convert_sn_by_format(ont2id_connection[i], configuration.pon.ont[i].serial);
        }
    }
    return true;
}

bool fill_name_tables(const GCfg& orig, const GCfg& cfg)
{
    for (const NameTable& table : name_tables) {
        if (!fill(table, table.names, cfg)) {
            return false;
        }
        if (table.old_names && !fill(table, table.old_names, orig)) {
            return false;
        }
    }
    return true;
}

void fill_addresses(const GSystemServices& services)
{
    for (std::size_t i = 0; i < GCFG_ALLOW_ENTRIES; ++i) {
        convert_ip_bintostr(telnetip[i], services.telnet.allow[i].ip);
        convert_ip_bintostr(sship[i], services.ssh.allow[i].ip);
        convert_ip_bintostr(snmpip[i], services.snmp.allow[i].ip);
    }
    for (std::size_t i = 0; i < GCFG_ROUTES; ++i) {
        convert_ip_bintostr(routeip[i], services.routing.route[i].prefix);
    }
    for (std::size_t i = 0; i < GCFG_SOURCE_GUARD_BINDINGS; ++i) {
        convert_ip_bintostr(sourceguardip[i], services.source_guard.bind[i].ip);
    }
}

constexpr char unassigned[] = "unassigned";

template <int Slots>
const char* name_or_unassigned(char* const (&names)[Slots], int index)
{
    return index >= 0 && index < Slots ? names[index] : unassigned;
}

template <int Slots>
const char* old_name_or_unassigned(char* const (&names)[Slots], int index)
{
    const char* const name = name_or_unassigned(names, index);
    return name ? name : unassigned;
}

} // namespace

int data_prepare(GCfg_t* orig, GCfg_t* cfg)
{
    data_free();
    current_view.name = pondiff::data_of(pondiff::View::root).name;
    if (!orig || !cfg) {
        return -1;
    }
    sn_format = cfg->system.settings.ont_sn_format;
    if (!fill_serials(*cfg) || !fill_name_tables(*orig, *cfg)) {
        data_free();
        return -1;
    }
    for (std::size_t i = 0; i < GCFG_ALARM_TYPES; ++i) {
        alarm2id_connection[i] = getCliAlarmType(static_cast<int>(cfg->system.services.alarm.type[i].type));
    }
    for (std::size_t i = 0; i < GCFG_RELAY_REDEFINITIONS; ++i) {
        profile_dhcpra_redefinition2id_connection[i] = cfg->pon.olt.general.profile_olt_dhcpra_redefinition[i].vid;
    }
    fill_addresses(cfg->system.services);
    return 0;
}

int data_free()
{
    release(ont2id_connection, GCFG_ONTS);
    for (const NameTable& table : name_tables) {
        release(table.names, table.slots);
        if (table.old_names) {
            release(table.old_names, table.slots);
        }
    }
    return 0;
}

#define LOOKUPS(part, array, record, tables, lookup, ...)                                                              \
    const char* get##lookup##Name(int index)                                                                           \
    {                                                                                                                  \
        return name_or_unassigned(tables##2id_connection, index);                                                      \
    }                                                                                                                  \
    const char* def_get##lookup##Name(int index)                                                                       \
    {                                                                                                                  \
        return old_name_or_unassigned(def_##tables##2id_connection, index);                                            \
    }
PON_PROFILE_KINDS(LOOKUPS)
#undef LOOKUPS

const char* getTerminalVlanName(int index)
{
    return name_or_unassigned(terminalvlan2id_connection, index);
}

char* convert_sn_by_format(char* out, const unsigned char* serial)
{
    enum { pretty, dense, dashed };
    constexpr int vendor_size = 4;
    if (sn_format == dense) {
        convert_sn_bintostr_dense(out, serial);
    }
    if (sn_format == dashed) {
        convert_sn_bintostr_dashed(out, serial);
    }
    if (sn_format != pretty) {
        return out;
    }
    convert_sn_bintostr_pretty(out, serial);
    for (int i = 0; i < vendor_size; ++i) {
        if (out[i] < 'A' || out[i] > 'Z') {
            convert_sn_bintostr_dense(out, serial);
            break;
        }
    }
    return out;
}
