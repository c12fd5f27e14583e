#ifndef PON_COMMAND_FILE_GENERATOR_FULL_DIFF_H
#define PON_COMMAND_FILE_GENERATOR_FULL_DIFF_H

#include "gcfg/gcfg.h"

namespace pondiff {

/// Which of the common records a full diff shows when it is restricted to them.
enum class CommonSet { whole, without_cli_and_source_guard };

char* full_diff(GCfg* orig, GCfg* cfg, CommonSet set);

} // namespace pondiff

#endif
