#include "tool/language/unsaid.h"

#include "tool/describe/records.h"
#include "tool/language/objects.h"
#include "tool/language/sayable.h"

#include <cstring>
#include <optional>

namespace pondiff::tool {

namespace {

using Kind = Syntax::Kind;

bool has_no_command(const Field& field)
{
    return field.syntax.kind == Kind::no_command || field.syntax.kind == Kind::ambiguous;
}

/// A switch that is off already when nothing is set: what is on cannot be said.
bool is_only_switched_off(const Field& field)
{
    return field.syntax.kind == Kind::says && field.syntax.set == nullptr;
}

/// Whether the record's objects are there or not, and no command says it.
bool is_there_unsaid(const Field& field)
{
    return field.record != nullptr && field.record->existence_member != nullptr &&
           has_no_command(*field.record->existence_member);
}

/// The leaves of what is in use, but for those that mean nothing.
std::size_t count_leaves(const Record& record, const unsigned char* at)
{
    std::size_t count = 0;
    for (const Field& field : record) {
        if (field.record == nullptr) {
            count += field.syntax.kind == Kind::counter || field.syntax.kind == Kind::existence ? 0 : field.count;
            continue;
        }
        for (std::size_t i = 0; i < field.count; ++i) {
            const unsigned char* const element = at + field.offset + i * field.width;
            count += in_use(*field.record, element) ? count_leaves(*field.record, element) : 0;
        }
    }
    return count;
}

/// The element of `base` that is told as the one in a slot of `table` is; null where there is none.
const unsigned char* same_element(const Table& table, std::size_t slot, const Table& base)
{
    const Record& record = *table.field->record;
    const Element::Told told = table.field->element.told;
    std::optional<std::size_t> found = slot;
    if (told == Element::Told::by_name || told == Element::Told::by_key) {
        const Field& member = told == Element::Told::by_name ? *record.name_member : *record.key_member;
        const unsigned char* const identity = table.at(slot) + member.offset;
        found =
            member.form == Form::text ? base.find_text(member, text_in(member, identity)) : base.find(member, identity);
    }
    return found && in_use(record, base.at(*found)) ? base.at(*found) : nullptr;
}

} // namespace

Unsaid::Unsaid(GCfg& configuration) : bytes_(reinterpret_cast<unsigned char*>(&configuration)) {}

void Unsaid::add(const Line& line)
{
    for (const Setting& setting : line.settings) {
        if (is_only_switched_off(*setting.field)) {
            switched_off_.insert(setting.offset);
        }
    }
}

std::size_t Unsaid::fill_in(const GCfg* base) const
{
    return fill_in(gcfg_record, bytes_, reinterpret_cast<const unsigned char*>(base));
}

bool Unsaid::is_unsaid(const Field& field, std::size_t index, const unsigned char* at) const
{
    if (is_only_switched_off(field)) {
        return switched_off_.count(static_cast<std::size_t>(at - bytes_)) == 0;
    }
    return has_no_command(field) || is_there_unsaid(field) || (index != 0 && has_command_for_first(field));
}

/// @param base  the same object in the other configuration; null where there is none
std::size_t Unsaid::fill_in(const Record& record, unsigned char* at, const unsigned char* base) const
{
    std::size_t left = 0;
    for (const Field& field : record) {
        const Table table{&field, at + field.offset};
        const Table base_table{&field, const_cast<unsigned char*>(base != nullptr ? base + field.offset : nullptr)};
        for (std::size_t i = 0; i < field.count; ++i) {
            if (is_unsaid(field, i, table.at(i))) {
                if (base != nullptr) {
                    std::memcpy(table.at(i), base_table.at(i), field.width);
                } else {
                    left += field.record != nullptr ? count_leaves(*field.record, table.at(i)) : 1;
                }
            } else if (field.record != nullptr && in_use(*field.record, table.at(i))) {
                const auto* const same = base != nullptr ? same_element(table, i, base_table) : nullptr;
                left += fill_in(*field.record, table.at(i), same);
            }
        }
    }
    return left;
}

} // namespace pondiff::tool
