#ifndef TOOL_CHECK_H
#define TOOL_CHECK_H

/// @file
/// Values of a configuration that no script can carry, since a value is emitted as it is stored.
///
/// - Texts that hold a quote, a control character, a character that does not show, or a placeholder, which the library
///   replaces in any text that it emits. In a free slot of a profile they count, too, where removing the profile shows
///   them. A text that no command shows may hold what it likes, but like the others it must have an end.
/// - Names that two profiles of a kind, two terminal VLANs or two users share: the CLI cannot tell them apart.
/// - References to a profile or a terminal VLAN that does not exist. A 0 is also what a document leaves out: one that
///   refers to a profile counts only beside a -1, a reference to none, in the same record, whose writer knew how to say
///   that. In a template the references count that its flags define, 0 or not.
/// - Enumerations at a value for which the registry has no word; at 0 they may have been left out.
///
/// What does not exist, such as a free slot, has no other findings.

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

/// Those in `cfg`, as the change that turns `orig` into it brings them: what `orig` has in the same field, with the
/// same value, is left out, and what the change sets to 0 has not been left out of a document.
/// @param all  leaves nothing out
std::vector<Finding> check_change(const GCfg& orig, const GCfg& cfg, bool all);

} // namespace pondiff::tool

#endif
