#ifndef FUZZ_VALUES_H
#define FUZZ_VALUES_H

#include "fuzz/random.h"
#include "fuzz/scenario.h"

#include <string>

namespace pondiff::fuzz {

/// A leaf of the configuration. Every field of a record is as likely as the others, however many elements it has; of
/// the elements mostly those at the ends of the array.
Place any_place(Random& random);

/// Bytes for a leaf that mean something to its kind: edges of numbers and of tables, texts without an end, marks.
std::string any_bytes(const tool::Field& field, Random& random);

/// Adds a patch of the field of the same record that says whether its object exists, so that objects come and go.
void add_existence(const Patch& patch, Scenario& scenario, Random& random);

/// Adds a patch of any leaf, and sometimes one of its object's existence.
void add_any_patch(Scenario& scenario, Random& random);

} // namespace pondiff::fuzz

#endif
