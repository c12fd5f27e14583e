#ifndef TOOL_CHECK_H
#define TOOL_CHECK_H

/// @file
/// Values of a configuration that no script can carry, since a value is emitted as it is stored.
///
/// - Texts that hold a quote, a control character, a character that does not show, or a placeholder, which the library
///   replaces in any text that it emits. They are also reported in a free slot of a profile if the command that removes
///   the profile shows them. A text that no command shows may hold anything, but like the others it must be terminated.
/// - Names that two profiles of a kind, two terminal VLANs or two users share: the CLI cannot tell them apart.
/// - References to a profile or a terminal VLAN that does not exist. A document may also have left out a 0. So a
/// reference
///   to profile 0 is reported only if another one in the same record is -1, which shows that its writer knew how to
///   refer to none. In a template, the references are checked that its flags define, 0 or not.
/// - Enumerations at a value for which the registry has no word; at 0 they may have been left out.
///
/// Objects that do not exist, such as a free slot, have no other findings.

#include "gcfg/gcfg.h"

#include <cstddef>
#include <string>
#include <vector>

namespace pondiff::tool {

/// What is wrong with the value of one field.
struct Finding {
    std::size_t offset; ///< of the field, from the start of the configuration
    std::size_t size;
    std::string path;
    std::string text;    ///< shows the value, unless it is a password or another secret
    bool unsafe = false; ///< a text that would end its command, begin another one or hide a line
};

/// The findings in a configuration, in the order of its fields.
std::vector<Finding> check(const GCfg& configuration);

/// The findings in `cfg` that a change from `orig` introduces: those that `orig` has in the same field, with the same
/// value, are left out. A field that the change sets to 0 is not taken as left out of a document.
/// @param all  include all findings in `cfg`
std::vector<Finding> check_change(const GCfg& orig, const GCfg& cfg, bool all);

} // namespace pondiff::tool

#endif
