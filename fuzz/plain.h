#ifndef FUZZ_PLAIN_H
#define FUZZ_PLAIN_H

#include "fuzz/scenario.h"

namespace pondiff::fuzz {

/// Takes out of a value what no script can carry: quotes, control characters, placeholders; empty names, and blanks in
/// names, which some commands have without quotes.
void make_plain(const tool::Field& field, unsigned char* at);

/// The same for all values of a scenario. The objects that are patched get names where the base has none.
void make_plain(Scenario& scenario);

} // namespace pondiff::fuzz

#endif
