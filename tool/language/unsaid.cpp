#include "tool/language/unsaid.h"

#include "tool/describe/records.h"
#include "tool/language/objects.h"

#include <cstring>
#include <optional>

namespace pondiff::tool {

namespace {

using Kind = Syntax::Kind;

/// Whether no command sets the field. What means nothing is no loss; what makes an object is said by naming it.
bool is_unsaid(const Field& field)
{
    return field.syntax.kind == Kind::no_command || field.syntax.kind == Kind::ambiguous;
}

/// The leaves of what is in use, but for those that mean nothing.
std::size_t count_leaves(const Field& field, const unsigned char* at)
{
    if (field.record == nullptr) {
        return field.syntax.kind == Kind::counter || field.syntax.kind == Kind::existence ? 0 : field.count;
    }
    std::size_t count = 0;
    for (std::size_t i = 0; i < field.count; ++i) {
        const unsigned char* const element = at + i * field.width;
        for (const Field& inner : *field.record) {
            count += in_use(*field.record, element) ? count_leaves(inner, element + inner.offset) : 0;
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

/// @param base  the same object in the other configuration; null where there is none
std::size_t fill_in(const Record& record, unsigned char* at, const unsigned char* base)
{
    std::size_t left = 0;
    for (const Field& field : record) {
        unsigned char* const first = at + field.offset;
        auto* const base_first = const_cast<unsigned char*>(base != nullptr ? base + field.offset : nullptr);
        if (is_unsaid(field)) {
            if (base != nullptr) {
                std::memcpy(first, base_first, field.size);
            } else {
                left += count_leaves(field, first);
            }
            continue;
        }
        const Table table{&field, first};
        for (std::size_t i = 0; field.record != nullptr && i < field.count; ++i) {
            if (in_use(*field.record, table.at(i))) {
                const auto* const same = base != nullptr ? same_element(table, i, {&field, base_first}) : nullptr;
                left += fill_in(*field.record, table.at(i), same);
            }
        }
    }
    return left;
}

} // namespace

std::size_t fill_in_unsaid(GCfg& configuration, const GCfg* base)
{
    return fill_in(gcfg_record, reinterpret_cast<unsigned char*>(&configuration),
                   reinterpret_cast<const unsigned char*>(base));
}

} // namespace pondiff::tool
