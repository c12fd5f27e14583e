#ifndef FUZZ_OPERATIONS_H
#define FUZZ_OPERATIONS_H

#include "fuzz/scenario.h"

#include <cstddef>
#include <string>
#include <string_view>
#include <vector>

namespace pondiff::fuzz {

/// What a call gives: a script, a number, or the elements of a caller's list.
using Texts = std::vector<std::string>;

/// An exported operation of the library, called by name.
struct Operation {
    const char* name;
    bool takes_word;
    std::size_t numbers; ///< how many it takes
    bool costly;         ///< opens a session or walks everything
    Texts (*run)(GCfg* orig, GCfg* cfg, const Call& call);
};

const Operation* begin_operations();
const Operation* end_operations();
const Operation* find_operation(std::string_view name);

/// The words that `GetProfileDiff` and `GetBlockDiff` know.
const std::vector<std::string>& known_words();

/// Runs it. A script is a sequence of complete lines, or the program ends.
Texts run(const Call& call, GCfg* orig, GCfg* cfg);

/// Runs an operation that takes nothing but the two configurations.
Texts run(const char* name, GCfg* orig, GCfg* cfg);

/// What a session takes over from before it is opened would show in its texts: the same session is run behind a
/// scrambled global state, ...
void scramble(int value);
/// ... and behind another session with other switches that ends in some view, and another state.
void disturb(GCfg* orig, GCfg* cfg);

} // namespace pondiff::fuzz

#endif
