#ifndef TOOL_LANGUAGE_OBJECTS_H
#define TOOL_LANGUAGE_OBJECTS_H

/// @file
/// The objects of a configuration, and the entries of its lists: which are there, how one is found, made and removed.

#include "tool/describe/description.h"

#include <cstddef>
#include <functional>
#include <memory>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace pondiff::tool {

/// Whether an element of an array is in use: by its key where the key says so, by its flag of existence where it has
/// one; else an element of nothing but zeros is free, and a record that no key or name tells is always there.
bool in_use(const Record& record, const unsigned char* at);

/// What tells an element that has a number or a name, as commands have it: `3`, `1/6`, `"gold"`.
std::string name_of_element(const Field& array, std::size_t slot, const unsigned char* at);

/// Makes a record blank: numbers 0, texts empty, references none, lists empty.
void make_blank(const Record& record, unsigned char* at);

/// A configuration in which nothing exists and nothing is set.
std::unique_ptr<GCfg> blank_configuration();

/// Spells the port's marker in a relay format as records do, where it is spelled as the CLI does.
void spell_marker(char* text, std::size_t size);

/// A text up to its terminator or the end of its field.
std::string_view text_in(const Field& field, const unsigned char* at);

/// An array of the configuration whose elements the CLI knows by name, key or number.
struct Table {
    const Field* field; ///< the array
    unsigned char* first;

    unsigned char* at(std::size_t slot) const { return first + slot * field->width; }
    /// The first element in use whose `member` holds these bytes; texts are equal when they are up to their ends.
    std::optional<std::size_t> find(const Field& member, const unsigned char* bytes) const;
    std::optional<std::size_t> find_text(const Field& member, std::string_view text) const;
    bool has_text(std::size_t slot, const Field& member, std::string_view text) const;
    bool has_bytes(std::size_t slot, const Field& member, const unsigned char* bytes) const;
    /// The first one from a slot on.
    std::optional<std::size_t> free_slot(std::size_t from = 0) const;
};

/// The array of objects that a reference refers to, as an offset in the configuration; null when it refers to none.
struct Referred {
    const Field* field;
    std::size_t offset;
};
std::optional<Referred> referred(Reference reference);

/// Every array of objects that references refer to.
const std::vector<Referred>& referred_arrays();

/// Whether the field holds a VLAN id or a priority, or refers to a terminal VLAN.
bool refers_to_terminal_vlan(const Field& field);

/// Whether a number of such a field is a VLAN id or a priority. What is neither that nor a reference is none; what
/// removes a reference, or sets it to `unassigned`, sets all of its bits.
bool is_of_vlan(const Field& field, std::int64_t number);

/// The slot that a number of the field refers to, -1 where it refers to none; and the number that refers to a slot.
std::int64_t slot_referred(const Field& field, std::int64_t number);
std::int64_t number_referring(const Field& field, std::size_t slot);

/// Calls `visit` for each reference to the object in a slot, with its offset, also for what free slots hold.
void for_each_reference_to(const GCfg& configuration, const Field& array, std::size_t slot,
                           const std::function<void(const Field& reference, std::size_t offset)>& visit);

/// Makes every reference to the object in a slot a reference to none. Calls `visit` for each, with its offset.
void forget(GCfg& configuration, const Field& array, std::size_t slot,
            const std::function<void(const Field& reference, std::size_t offset)>& visit);

} // namespace pondiff::tool

#endif
