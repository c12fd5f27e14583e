#ifndef PON_COMMAND_FILE_GENERATOR_H
#define PON_COMMAND_FILE_GENERATOR_H

/// @file
/// The front door of the library: the diff session and the operations that return a script.
///
/// Order of calls: `initiate_diff`, any number of operations on the same two records, `finalize_diff`. The records are
/// the caller's and are only read, the selective-tunnel lists of the new one excepted (they are sorted in place). Every
/// text returned is the caller's, who releases it with `free`; null means that memory for the whole text could not be
/// had. All state is process-global: one session at a time, from one thread.

#include "gcfg/gcfg.h"
#include "pon/diff_builder.h"
#include "pon/visibility.h"

PON_EXPORTS_BEGIN

/// Opens a session. A session that is still open is closed first.
/// @param orig          the configuration that the device runs
/// @param cfg           the configuration wanted
/// @param need_all_cfg  becomes `print_all`
/// @param common_type   becomes `print_common`
/// @return 0; -1 when the name tables could not be built: the session is then empty
int initiate_diff(GCfg_t* orig, GCfg_t* cfg, int need_all_cfg, int common_type);

/// Closes the session and releases the name tables; harmless when none is open. The switches keep their values.
/// @return 0
int finalize_diff();

/// The commands that turn `orig` into `cfg`, one per line, from the top level of the CLI back to it, closed by
/// "commit"; an empty text when there are none. With `print_common` at 1 the common records alone.
char* GetDiff(GCfg_t* orig, GCfg_t* cfg);

/// The walk over the whole tree, and over its PON part; both always return false.
bool getdiff_GCfg(GCfg* lhs, GCfg* rhs, int* key, List<char>& out);
bool getdiff_GPonCfg(GPonCfg* lhs, GPonCfg* rhs, int* key, List<char>& out);

PON_EXPORTS_END

#endif
