#ifndef TOOL_LANGUAGE_UNSAID_H
#define TOOL_LANGUAGE_UNSAID_H

#include "tool/language/reader.h"

#include <cstddef>
#include <set>

namespace pondiff::tool {

/// What a text of commands, read onto a blank configuration, cannot say: fields without a command, elements that no
/// command reaches, and switches that have a command for off alone, unless a line has given it.
class Unsaid {
  public:
    /// @param configuration  what the lines are read onto
    explicit Unsaid(GCfg& configuration);

    /// Takes the outcome of a line.
    void add(const Line& line);

    /// Fills these fields in: each is taken from the object of `base` that has the same number or name.
    /// @param base  null where there is none: nothing is filled in
    /// @return how many fields of the objects that the configuration has are left without a value
    std::size_t fill_in(const GCfg* base) const;

  private:
    std::size_t fill_in(const Record& record, unsigned char* at, const unsigned char* base) const;
    bool is_unsaid(const Field& field, std::size_t index, const unsigned char* at) const;

    unsigned char* bytes_;
    std::set<std::size_t> switched_off_; ///< by lines: the offsets of switches that have no other command
};

} // namespace pondiff::tool

#endif
