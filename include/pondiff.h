/*
 * pondiff: the CLI commands that turn one configuration of a GPON OLT into another.
 *
 * The plain entry points, for C and for every language that loads a library by symbol names. C++ callers have the
 * typed operations of <pon/command_file_generator.h>; each function here forwards to the one of its name, except
 * GetSystemDiff_c.
 *
 * Order of calls: initiate_diff_c, any number of operations on the same two configurations, finalize_diff_c.
 *
 *     initiate_diff_c(&running, &wanted, 0, 0);
 *     char* script = GetDiff_c(&running, &wanted);
 *     if (script) fputs(script, stdout);
 *     free(script);
 *     finalize_diff_c();
 *
 * The signatures are shared with the device's software and do not change. So no parameter is const, although the
 * library only reads the names of profiles and blocks, and the configurations with the exception below: a C++ caller
 * casts a literal or a const record.
 *
 * Ownership: the configurations belong to the caller, who keeps them unchanged while the session is open. They are only
 * read, with one exception: the selective-tunnel lists (pon.ont[].tunnel[].uvid) of the wanted configuration are sorted
 * in place when a diff shows them. Every text returned belongs to the caller, who releases it with free(); it is
 * NUL-terminated, one command per line, each line closed by a line feed.
 *
 * Errors: an operation that cannot allocate its whole text returns NULL, never a shortened script; the
 * session stays usable and the position is as before. A null record, profile or block name selects nothing: the text
 * is that of two equal records.
 *
 * Position: the library remembers the CLI view that the script is in, across operations. A session starts at the top
 * level. Most operations return there; those that do not say so below, and the next one continues where they end. After
 * GetPonDiff_c, for instance, the next script begins with the navigation back to the top level.
 *
 * Switches, set by initiate_diff_c and kept until it is called again:
 *   need_all_cfg  non-zero: what is equal is rendered, too, as if it had changed. These are left out while they are
 *                 equal:
 *                 - users, static routes, the bindings and VLANs of the IP source guard;
 *                 - the names of VLAN profiles and terminal VLANs; the session limits of PPPoE profiles; the upstream
 *                   shapers and the storm control of shaping profiles; the services of ONT templates; the load average
 *                   and the temperatures of the alarms;
 *                 - unless common_type 1 or another operation selects them: ONTs, for GetDiff_c and GetPonDiff_c; and
 *                   each as a whole, for GetDiff_c, the management network, the services, the IP source guard and the
 *                   layout of serial numbers.
 *                 The VLAN and the groups of an equal multicast entry are rendered as the commands that remove them
 *                 ("no ... dynamic-entry").
 *   common_type   1: GetDiff_c shows the common records alone (CLI settings, alarms, layout of serial numbers, PON
 *                 network, OLT settings, IP source guard). Any other value: the whole configuration.
 *                 need_all_cfg forces the alarms, the layout of serial numbers, the PON network and the OLT settings
 *                 only when this is 1 or 2, and the relay profiles of the OLT settings only when it is 2.
 *
 * Threads: all state is process-global and unlocked. One session at a time, from one thread.
 */
#ifndef PONDIFF_H
#define PONDIFF_H

#include "gcfg/gcfg.h"

/* The version of this header, and of the whole project: the build takes it from here. */
#define PONDIFF_VERSION_MAJOR               0
#define PONDIFF_VERSION_MINOR               1
#define PONDIFF_VERSION_PATCH               0
#define PONDIFF_VERSION_STRING              PONDIFF_JOINED(PONDIFF_VERSION_MAJOR, PONDIFF_VERSION_MINOR, PONDIFF_VERSION_PATCH)
#define PONDIFF_JOINED(major, minor, patch) PONDIFF_QUOTED(major) "." PONDIFF_QUOTED(minor) "." PONDIFF_QUOTED(patch)
#define PONDIFF_QUOTED(number)              #number

#ifdef __cplusplus
extern "C" {
#endif

#if defined(__GNUC__)
#pragma GCC visibility push(default)
#endif

/*
 * The version of the library that has been loaded, such as "0.1.0": a constant. PONDIFF_VERSION_STRING is the one that
 * the caller was compiled with.
 */
const char* pondiff_version(void);

/*
 * Opens a session for the configuration that the device runs and the one wanted; a session that is still open is closed
 * first. Returns 0, or -1 when one of them is null or an allocation fails: no session is open then.
 */
int initiate_diff_c(GCfg_t* orig, GCfg_t* cfg, int need_all_cfg, int common_type);

/* Closes the session and frees its names; harmless when none is open. Returns 0. */
int finalize_diff_c(void);

/*
 * The whole difference except the static routes (GetBlockDiff_c "route"). Ends at the top level, followed by the line
 * "commit"; an empty text when there are no commands.
 */
char* GetDiff_c(GCfg_t* orig, GCfg_t* cfg);

/*
 * The PON part: network, OLT and ONT profiles, OLT, ONTs. No "commit"; the script stays in the view of its last
 * command. An empty text when there are no commands.
 */
char* GetPonDiff_c(GPonCfg_t* orig, GPonCfg_t* cfg);

/* Despite its name, the PON part, too: callers rely on that. The system part has no plain symbol. */
char* GetSystemDiff_c(GPonCfg_t* orig, GPonCfg_t* cfg);

/* The OLT profiles, or the ONT profiles, all kinds. Ends at the top level; "commit" when there is any text. */
char* GetGPonProfilesOltDiff_c(GPonProfilesOlt_t* orig, GPonProfilesOlt_t* cfg);
char* GetGPonProfilesOntDiff_c(GPonProfilesOnt_t* orig, GPonProfilesOnt_t* cfg);

/*
 * Declares each terminal VLAN that the wanted configuration had when the session was opened, by name, in the global
 * configuration view. No "commit"; the script stays in that view.
 */
char* GetTerminalVlanHeaders_c(void);

/*
 * One ONT, 0 to 531, shown as port ont_index / 64 and id ont_index % 64. Goes to the global configuration view first
 * and to the top level last: the text holds these navigations even when nothing differs. No "commit".
 */
char* GetGponOntDiff_c(GPonOntCfg_t* orig, GPonOntCfg_t* cfg, int ont_index);

/* One GPON port, 0 to 7, in the same way. */
char* GetGponChannelDiff_c(GPonOltChannelCfg_t* orig, GPonOltChannelCfg_t* cfg, int channel_index);

/*
 * The profiles of one kind: "address-table", "cross-connect", "dba", "dhcp-ra", "dhcpv6-ra", "management", "ports",
 * "voice", "pppoe-ia", "shaping", "vlan" or "template". A negative id shows every slot that differs; any other id that
 * one slot, which need_all_cfg renders even when it is equal. An unknown kind or slot selects nothing. Goes to the
 * global configuration view first and to the top level last, closed by "commit" even when nothing differs.
 */
char* GetProfileDiff_c(GPonCfg_t* orig, GPonCfg_t* cfg, char* profile, int id);

/*
 * One block of settings, in the same way: "olt", "network", "backup", "cli", "config", "management", "ntp", "snmp",
 * "ssh", "source_guard", "telnet", "logging", "user" or "route". An unknown name selects nothing.
 */
char* GetBlockDiff_c(GCfg_t* orig, GCfg_t* cfg, char* cmd);

/* The alarm settings, in the same way. */
char* GetAlarmDiff_c(GCfg_t* orig, GCfg_t* cfg);

#if defined(__GNUC__)
#pragma GCC visibility pop
#endif

#ifdef __cplusplus
}
#endif

#endif
