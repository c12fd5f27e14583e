#ifndef PON_DATATOCOMMANDSCONVERTOR_H
#define PON_DATATOCOMMANDSCONVERTOR_H

/// @file
/// What a script needs besides its commands: CLI views and the navigation between them, placeholder substitution, the
/// name tables of a diff session, and the CLI words of enumerations.
///
/// All state is process-global and unlocked: one diff session at a time, from one thread.

#include "gcfg/gcfg.h"
#include "pon/visibility.h"

#include <cstddef>

PON_EXPORTS_BEGIN

// ---------------------------------------------------------------------------------------------------------- views

/// A place in the CLI: a view and the identifiers of the object that is being edited there.
struct view_state {
    const char* name; ///< one of the registry's own view names; null before the first session, which counts as "root"
    int key[10];      ///< object identifiers; only key[0] tells two objects of one view apart
};

/// The view that the device is in after it has run the script emitted so far. Navigation changes it, in whatever
/// operation; a session opens at "root".
extern view_state current_view;

/// Writes the commands that lead from `current_view` to `view` and the object `key`, and moves `current_view` there.
/// @param view  a view name, such as "configure-view" or "if-ont-view"
/// @param key   ten identifiers: the GPON port, ONT or profile index in key[0]
/// @param out   room for 1024 bytes; unchanged when the script is already there. Several commands are separated by line
///              feeds; there is none at the end.
/// @return 0; -1 when the view is unknown, which is also printed on standard output, when an argument is null, or when
///         the text would not fit. `current_view` is then unchanged.
int goto_view_buf(const char* view, int* key, char* out);

// --------------------------------------------------------------------------------------------------- placeholders

/// A copy of the template `command` in which each "$ID" and digit n is replaced by the identifier `ids[n]`, four
/// characters wide; some commands ("user $ID0 ...") show their first identifier as a name instead.
/// @param ids  ten identifiers
/// @return heap text, released with `free`; null when the allocation fails
char* useVariables(char* command, int* ids);

/// `useVariables` into a buffer of the caller: at most `size` bytes, terminator included; an empty text when memory for
/// a template of more than 1000 characters cannot be allocated. Always returns 0.
int generate_command_buf(char* command, int* ids, char* output, std::size_t size);

// ---------------------------------------------------------------------------------------------------- name tables

/// Names by slot index; null where the configuration holds no such object. Valid between `initiate_diff` and
/// `finalize_diff`; the texts belong to the session. The plain tables name the objects of the new configuration, the
/// `def_` tables those of the old one.
extern char* management2id_connection[GCFG_ONT_PROFILES];
extern char* shaping2id_connection[GCFG_SHAPING_PROFILES];
extern char* ports2id_connection[GCFG_ONT_PROFILES];
extern char* voice2id_connection[GCFG_ONT_PROFILES];
extern char* cross_connect2id_connection[GCFG_CROSS_CONNECT_PROFILES];
extern char* alloc2id_connection[GCFG_ALLOC_PROFILES];
extern char* onttemplate2id_connection[GCFG_ONT_PROFILES];
extern char* address_table2id_connection[GCFG_OLT_PROFILES];
extern char* dhcpra2id_connection[GCFG_OLT_PROFILES];
extern char* dhcpv6ra2id_connection[GCFG_OLT_PROFILES];
extern char* pppoeia2id_connection[GCFG_OLT_PROFILES];
extern char* vlan2id_connection[GCFG_OLT_PROFILES];

extern char* def_management2id_connection[GCFG_ONT_PROFILES];
extern char* def_shaping2id_connection[GCFG_SHAPING_PROFILES];
extern char* def_ports2id_connection[GCFG_ONT_PROFILES];
extern char* def_voice2id_connection[GCFG_ONT_PROFILES];
extern char* def_cross_connect2id_connection[GCFG_CROSS_CONNECT_PROFILES];
extern char* def_alloc2id_connection[GCFG_ALLOC_PROFILES];
extern char* def_onttemplate2id_connection[GCFG_ONT_PROFILES];
extern char* def_address_table2id_connection[GCFG_OLT_PROFILES];
extern char* def_dhcpra2id_connection[GCFG_OLT_PROFILES];
extern char* def_dhcpv6ra2id_connection[GCFG_OLT_PROFILES];
extern char* def_pppoeia2id_connection[GCFG_OLT_PROFILES];
extern char* def_vlan2id_connection[GCFG_OLT_PROFILES];

extern char* terminalvlan2id_connection[GCFG_TERMINAL_VLANS];
extern char* user2id_connection[GCFG_USERS];
/// Serial numbers in the layout that `sn_format` selects; slot 0 is always "0000000000000000".
extern char* ont2id_connection[GCFG_ONTS];
/// Declared for the device software; never filled or read.
extern char* def_ont2id_connection[512];
/// Not freed by `finalize_diff`, like the tables below: alarm type words, which are constants.
extern const char* alarm2id_connection[GCFG_ALARM_TYPES];
/// VLAN ids of the DHCP relay redefinitions, for record diffs of the device software.
extern unsigned short profile_dhcpra_redefinition2id_connection[GCFG_RELAY_REDEFINITIONS];
/// Addresses of the new configuration, dotted, whether the entry is in use or not.
extern char telnetip[GCFG_ALLOW_ENTRIES][16];
extern char sship[GCFG_ALLOW_ENTRIES][16];
extern char snmpip[GCFG_ALLOW_ENTRIES][16];
extern char routeip[GCFG_ROUTES][16];
extern char sourceguardip[GCFG_SOURCE_GUARD_BINDINGS][16];

/// Layout of ONT serial numbers: 0 pretty where the vendor code is four capital letters and dense elsewhere, 1 dense,
/// 2 dashed, any other value an empty text. Set when a session opens.
extern int sn_format;

/// Builds every table from the two configurations and sets the current view to "root"; what an earlier call built is
/// released first. Called by `initiate_diff`.
/// @return 0; -1 when an allocation fails or a record is null: there are no names then
int data_prepare(GCfg_t* orig, GCfg_t* cfg);

/// Frees the names; the other tables keep their content. Called by `finalize_diff`; harmless when there is nothing to
/// free.
int data_free();

/// The name of a profile of the new configuration; never freed by the caller.
/// @param index  slot; -1 (a reference to nothing) and indexes outside the table give "unassigned"
/// @return null when the slot holds no profile
const char* getManagementName(int index);
const char* getShapingName(int index);
const char* getPortsName(int index);
const char* getVoiceName(int index);
const char* getAddressTableName(int index);
const char* getCrossConnectName(int index);
const char* getAllocName(int index);
const char* getDhcpRaName(int index);
const char* getDhcpv6RaName(int index);
const char* getPppoeName(int index);
const char* getVlanName(int index);
const char* getTemplateName(int index);
/// The same for a terminal VLAN, 0 to 31.
const char* getTerminalVlanName(int index);

/// The same over the old configuration, except that an empty slot gives "unassigned" too: never null.
const char* def_getManagementName(int index);
const char* def_getShapingName(int index);
const char* def_getPortsName(int index);
const char* def_getVoiceName(int index);
const char* def_getAddressTableName(int index);
const char* def_getCrossConnectName(int index);
const char* def_getAllocName(int index);
const char* def_getDhcpRaName(int index);
const char* def_getDhcpv6RaName(int index);
const char* def_getPppoeName(int index);
const char* def_getVlanName(int index);
const char* def_getTemplateName(int index);

/// Writes an ONT serial number (8 bytes: 4 of the vendor, 4 of the device) in the layout that `sn_format` selects.
/// @param out  at least 24 bytes, zero-filled; untouched when `sn_format` names no layout
/// @return out
char* convert_sn_by_format(char* out, const unsigned char* serial);

// --------------------------------------------------------------------------------------------------- vocabularies

/// CLI words of enumerations whose words are not the device-wide registry's: constants, never freed.
const char* getCliAlarmType(int value);                     ///< "" for a value without a word
const char* getCliSubmoduleType(int value);                 ///< "" outside 0 to 13
const char* getCliSubmoduleDest(int value);                 ///< "invalid" outside 0 to 2
const char* getCliSubmoduleLevel(int value);                ///< "none" outside 0 to 7
const char* getOntUpstreamIgmpTagControl(int value);        ///< "pass" outside 1 to 3
const char* getOntDownstreamMulticastTagControl(int value); ///< "pass" outside 1 to 7
const char* getGDBAServiceClass(int value);                 ///< null outside 0 to 5
const char* getGOpticsSDSource(int value);                  ///< null outside 0 to 2
const char* getGOpticsResetType(int value);                 ///< null outside 0 to 2
const char* getGOpticsResetTypeNormal(int value);           ///< null outside 0 to 1
const char* getGSystemSNMPversion(int value);               ///< null outside 1 to 2

PON_EXPORTS_END

#endif
