#ifndef TESTS_SUPPORT_RECORD_DIFFS_H
#define TESTS_SUPPORT_RECORD_DIFFS_H

/// @file
/// Every exported record diff by its name, on its record in two configurations: the element 1 of each array.

#include "tests/support/diff.h"

#include <cstddef>
#include <vector>

struct Bytes {
    std::size_t offset = 0;
    std::size_t size = 0;
};

struct RecordDiff {
    const char* name;
    Bytes record;   ///< in the configuration
    Bytes revision; ///< in the record; none in some
    Bytes exist;    ///< the same: the flag that says whether there is such an object
    AnyDiff diff;

    int run(GCfg& orig, GCfg& cfg, int* key, List<char>& out) const;
};

const std::vector<RecordDiff>& record_diffs();

/// A configuration whose every byte is the letter a, so that each field differs from a blank one, texts fill their
/// arrays and references lead nowhere; of each array of objects only the first so many elements, all of them existing.
void fill(GCfg& configuration, int objects);

#endif
