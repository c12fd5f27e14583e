#ifndef TOOL_COMMANDS_CANDIDATES_H
#define TOOL_COMMANDS_CANDIDATES_H

#include <CLI/CLI.hpp>
#include <string>

namespace pondiff::tool {

/// The name of the validator that holds the candidates of an option.
inline constexpr char candidates_name[] = "candidates";

/// Gives the shell candidates for the argument of an option: `option->check(completed_by(candidates))`. An option
/// without them takes a file name, which the shell completes itself.
/// @param candidates  a line each: the word, a tab and its meaning. A word that ends in a colon is the first part of
///                    others.
inline CLI::Validator completed_by(const std::string& candidates)
{
    return {[](std::string& /*argument*/) { return std::string(); }, candidates, candidates_name};
}

} // namespace pondiff::tool

#endif
