#ifndef PON_COMMAND_FILE_GENERATOR_H
#define PON_COMMAND_FILE_GENERATOR_H

/// @file
/// The main interface of the library: the diff session and the operations that return a script.
///
/// Order of calls: `initiate_diff`, any number of operations on the same two records, `finalize_diff`. The records
/// belong to the caller and are only read, except that the selective-tunnel lists of the new one are sorted in place.
/// Every text returned belongs to the caller, who releases it with `free`. When an allocation fails the result is null,
/// never a shortened text; the session stays usable, and `current_view` is as before the call. All state is
/// process-global: one session at a time, from one thread.

#include "gcfg/gcfg.h"
#include "pon/diff_builder.h"
#include "pon/visibility.h"

#include <cstdio>

PON_EXPORTS_BEGIN

/// Opens a session. A session that is still open is closed first.
/// @param orig          the configuration that the device runs
/// @param cfg           the configuration wanted
/// @param need_all_cfg  becomes `print_all`
/// @param common_type   becomes `print_common`
/// @return 0; -1 when a record is null or the name tables could not be built: the session is then empty
int initiate_diff(GCfg_t* orig, GCfg_t* cfg, int need_all_cfg, int common_type);

/// Closes the session and releases the name tables; harmless when none is open. The switches keep their values.
/// @return 0
int finalize_diff();

/// The commands that turn `orig` into `cfg`, one per line, from the current view to the top level of the CLI,
/// closed by "commit"; an empty text when there are none. With `print_common` at 1 the common records alone. Static
/// routes are left out.
char* GetDiff(GCfg_t* orig, GCfg_t* cfg);

/// The record diffs of the whole configuration, and of its PON part; both always return false.
bool getdiff_GCfg(GCfg* lhs, GCfg* rhs, int* key, List<char>& out);
bool getdiff_GPonCfg(GPonCfg* lhs, GPonCfg* rhs, int* key, List<char>& out);

// ------------------------------------------------------------------------------------------------- stream variants

/// The stream of the current operation, for other code to read; null outside these calls. The library writes nothing to
/// it.
extern FILE* file_to_dump;

/// `GetDiff`, except that the common records are those without the CLI settings and the IP source guard.
/// @param file  the value of `file_to_dump` during the call; null leaves that as it is until the call ends
char* GetDiffMemSafe(GCfg_t* orig, GCfg_t* cfg, FILE* file);

/// The static routes, which a full diff leaves out; back to the top level, closed by "commit" when there is any text.
char* GetRoutesDiffMemSafe(GSystemRoutingCfg_t* orig, GSystemRoutingCfg_t* cfg, FILE* file);

// --------------------------------------------------------------------------------------------------- partial diffs
//
// They differ, on purpose, in where they begin and end:
//
//                            begins in           ends at the   "commit"
//                            configure-view      top level
//   GetSystemDiff            no                  no            no
//   GetPonDiff               no                  no            no
//   GetGponOntDiff           yes                 yes           no
//   GetGponChannelDiff       yes                 yes           no
//   GetGPonProfilesOltDiff   no                  yes           when there is any text
//   GetGPonProfilesOntDiff   no                  yes           when there is any text
//   GetProfileDiff           yes                 yes           always: navigation is text
//   GetBlockDiff             yes                 yes           always
//   GetAlarmDiff             yes                 yes           always
//   GetTerminalVlanHeaders   yes                 no            no
//
// Where a script ends elsewhere, the next operation of the session continues from there.

char* GetSystemDiff(GSystemCfg_t* orig, GSystemCfg_t* cfg);
char* GetPonDiff(GPonCfg_t* orig, GPonCfg_t* cfg);

/// @param ont_index  0 to 531
char* GetGponOntDiff(GPonOntCfg_t* orig, GPonOntCfg_t* cfg, int ont_index);

/// @param channel_index  GPON port, 0 to 7
char* GetGponChannelDiff(GPonOltChannelCfg_t* orig, GPonOltChannelCfg_t* cfg, int channel_index);

char* GetGPonProfilesOltDiff(GPonProfilesOlt_t* orig, GPonProfilesOlt_t* cfg);
char* GetGPonProfilesOntDiff(GPonProfilesOnt_t* orig, GPonProfilesOnt_t* cfg);

/// @param profile  the kind: "address-table", "cross-connect", "dba", "dhcp-ra", "dhcpv6-ra", "management", "ports",
///                 "voice", "pppoe-ia", "shaping", "vlan" or "template"; anything else selects nothing
/// @param id       a slot, rendered without comparing it first; negative for every slot that differs
char* GetProfileDiff(GPonCfg_t* orig, GPonCfg_t* cfg, char* profile, int id);

/// @param cmd  "olt", "network", "backup", "cli", "config", "management", "ntp", "snmp", "ssh", "source_guard",
///             "telnet", "logging", "user" or "route"; anything else selects nothing
char* GetBlockDiff(GCfg_t* orig, GCfg_t* cfg, char* cmd);

char* GetAlarmDiff(GCfg_t* orig, GCfg_t* cfg);

/// Declares every terminal VLAN of the session's new configuration by name.
char* GetTerminalVlanHeaders();

PON_EXPORTS_END

#endif
