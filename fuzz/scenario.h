#ifndef FUZZ_SCENARIO_H
#define FUZZ_SCENARIO_H

/// @file
/// A few changes of a pair of configurations, the switches and the operations to call: what a fuzzer feeds, and how the
/// tests of whole scripts are written (tests/scripts). As text it has a line for each, so that it can be read, written
/// by hand and kept when the records change:
///
///     # why                                   a remark; empty lines are passed over too
///     base blank                              where the pair begins, see `Scenario::base`
///     switches 1 2                            need_all_cfg and common_type of the session
///     cfg pon.ont.3.fec_up 1                  a field of the new configuration, of the old one ("orig"),
///     both system.user.0.name "a\x0ab"        or of both: a number in decimal, bytes in quotes,
///     cfg pon.ont.3.serial ABCD01020304       or what a document has for it
///     call GetProfileDiff vlan -1             an exported operation, with what it takes beside the records
///     call GetDiff no-orig                    ... and without one of them
///
/// A line that makes no sense is passed over; in what is kept it is an error.

#include "tool/describe/description.h"

#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

namespace pondiff::fuzz {

/// A leaf of the configuration: an element of a field that is no record.
struct Place {
    const tool::Field* field = nullptr;
    std::size_t offset = 0;
    std::string path;
};

/// Null field when there is no such leaf.
Place find_place(std::string_view path);

struct Patch {
    enum class Side : std::uint8_t { orig, cfg, both };
    Side side = Side::cfg;
    Place place;
    std::string bytes; ///< as many as the leaf has
};

/// Writes it into the configurations of its side.
void apply(const Patch& patch, GCfg& orig, GCfg& cfg);

struct Operation;

struct Call {
    const Operation* operation = nullptr;
    std::string word;
    int numbers[2] = {};
    bool no_orig = false;
    bool no_cfg = false;
};

struct Scenario {
    /// Nothing: both configurations are plausible, as the fuzzers have them. "blank": both are blank. Or the files of
    /// two documents, the old one first.
    std::vector<std::string> base;
    int all = 0;
    int common = 0;
    std::vector<Patch> patches;
    std::vector<Call> calls;
};

/// @param senseless  gets the lines that make no sense
Scenario parse_scenario(std::string_view text, std::vector<std::string>& senseless);
/// For a fuzzer, which has one base.
Scenario parse_scenario(std::string_view text);
std::string print_scenario(const Scenario& scenario);

} // namespace pondiff::fuzz

#endif
