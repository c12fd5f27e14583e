#ifndef TOOL_COMMANDS_CANDIDATES_H
#define TOOL_COMMANDS_CANDIDATES_H

#include <CLI/CLI.hpp>
#include <string>

namespace pondiff::tool {

/// The name of the validator that holds the candidates of an option.
inline constexpr char candidates_name[] = "candidates";

/// Says what the shell can complete the argument of an option with: `option->check(completed_by(candidates))`. An
/// option without it takes a file, which the shell completes by itself.
/// @param candidates  a line for each: the word, a tab and what it means. A word that ends in a colon is the first part
///                    of others.
inline CLI::Validator completed_by(const std::string& candidates)
{
    return {[](std::string& /*argument*/) { return std::string(); }, candidates, candidates_name};
}

} // namespace pondiff::tool

#endif
