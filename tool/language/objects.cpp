#include "tool/language/objects.h"

#include "tool/describe/records.h"
#include "tool/profiles.h"

#include <algorithm>
#include <cstdint>
#include <cstring>
#include <fmt/format.h>
#include <map>
#include <vector>

namespace pondiff::tool {

namespace {

constexpr std::int64_t none = -1;

bool all_zero(const unsigned char* at, std::size_t size)
{
    return std::all_of(at, at + size, [](unsigned char byte) { return byte == 0; });
}

/// The described array that begins at an offset of the configuration.
const Field* array_at(const Record& record, std::size_t base, std::size_t offset)
{
    for (const Field& field : record) {
        const std::size_t start = base + field.offset;
        if (field.record == nullptr || offset < start || offset >= start + field.size) {
            continue;
        }
        return field.array && start == offset ? &field : array_at(*field.record, start, offset);
    }
    return nullptr;
}

std::map<Reference, Referred> find_referred()
{
    std::map<Reference, Referred> found;
    for (const ProfileKind& kind : profile_kinds) {
        found.emplace(kind.reference, Referred{array_at(gcfg_record, 0, kind.offset), kind.offset});
    }
    const std::size_t vlans = offsetof(GCfg, pon.network.terminal_vlan);
    for (const Reference reference : {Reference::terminal_vlan_id, Reference::terminal_vlan_priority}) {
        found.emplace(reference, Referred{array_at(gcfg_record, 0, vlans), vlans});
    }
    return found;
}

/// Every place of the configuration that refers to an object of some kind.
struct Referring {
    const Field* field;
    std::size_t offset;
};

const std::map<const Field*, std::vector<Referring>>& referring()
{
    static const std::map<const Field*, std::vector<Referring>> places = [] {
        std::map<const Field*, std::vector<Referring>> found;
        for_each_leaf(gcfg_record, [&found](const Leaf& leaf) {
            if (const auto to = referred(leaf.field.reference)) {
                found[to->field].push_back({&leaf.field, leaf.offset});
            }
        });
        return found;
    }();
    return places;
}

} // namespace

bool in_use(const Record& record, const unsigned char* at)
{
    const Field* const key = record.key_member;
    if (key != nullptr && key->syntax.zero_is_free) {
        return get_number(*key, at + key->offset) != 0;
    }
    const Field* const flag = record.existence_member;
    if (flag != nullptr) {
        return get_number(*flag, at + flag->offset) != 0;
    }
    return key == nullptr || !all_zero(at, record.size);
}

std::string name_of_element(const Field& array, std::size_t slot, const unsigned char* at)
{
    switch (array.element.told) {
    case Element::Told::by_port_and_id:
        return fmt::format("{}/{}", slot / GCFG_ONTS_PER_PORT, slot % GCFG_ONTS_PER_PORT);
    case Element::Told::by_name: {
        const Field& name = *array.record->name_member;
        return fmt::format("\"{}\"", text_in(name, at + name.offset));
    }
    default:
        return std::to_string(slot);
    }
}

void make_blank(const Record& record, unsigned char* at)
{
    std::memset(at, 0, record.size);
    for (const Field& field : record) {
        unsigned char* const first = at + field.offset;
        if (field.record != nullptr) {
            make_blank(*field.record, first);
            for (std::size_t i = 1; i < field.count; ++i) {
                std::memcpy(first + i * field.width, first, field.width);
            }
        } else if (field.layout == Layout::ended_list ||
                   (field.reference != Reference::none && !refers_to_terminal_vlan(field))) {
            std::memset(first, 0xFF, field.size); // -1, whatever its width
        }
    }
}

std::unique_ptr<GCfg> blank_configuration()
{
    auto configuration = std::make_unique<GCfg>();
    make_blank(gcfg_record, reinterpret_cast<unsigned char*>(configuration.get()));
    return configuration;
}

void spell_marker(char* text, std::size_t size)
{
    constexpr std::string_view shown = "%GPON-PORT%";
    constexpr std::string_view stored = "%CHANNELID%";
    static_assert(shown.size() == stored.size());
    const std::string_view all(text, size);
    for (std::size_t at = 0; (at = all.find(shown, at)) != all.npos; at += stored.size()) {
        std::memcpy(text + at, stored.data(), stored.size());
    }
}

std::string_view text_in(const Field& field, const unsigned char* at)
{
    const auto* const text = reinterpret_cast<const char*>(at);
    return {text, strnlen(text, field.width)};
}

bool Table::has_bytes(std::size_t slot, const Field& member, const unsigned char* bytes) const
{
    return std::memcmp(at(slot) + member.offset, bytes, member.width) == 0 && in_use(*field->record, at(slot));
}

bool Table::has_text(std::size_t slot, const Field& member, std::string_view text) const
{
    const unsigned char* const held = at(slot) + member.offset;
    if (text.size() > member.width || (text.size() != member.width && held[text.size()] != 0)) {
        return false; // most names differ in their length, and else in their last character
    }
    const bool may_be = text.empty() || held[text.size() - 1] == static_cast<unsigned char>(text.back());
    return may_be && std::memcmp(held, text.data(), text.size()) == 0 && in_use(*field->record, at(slot));
}

std::optional<std::size_t> Table::find(const Field& member, const unsigned char* bytes) const
{
    constexpr std::size_t number = sizeof(std::uint16_t); // the beginning of every key; VLANs are no more
    std::uint16_t start = 0;
    std::memcpy(&start, bytes, number);
    const unsigned char* key = first + member.offset;
    for (std::size_t i = 0; i < field->count; ++i, key += field->width) {
        std::uint16_t held = 0;
        std::memcpy(&held, key, number);
        if (held == start && has_bytes(i, member, bytes)) {
            return i;
        }
    }
    return std::nullopt;
}

std::optional<std::size_t> Table::find_text(const Field& member, std::string_view text) const
{
    for (std::size_t i = 0; i < field->count; ++i) {
        if (has_text(i, member, text)) {
            return i;
        }
    }
    return std::nullopt;
}

std::optional<std::size_t> Table::free_slot(std::size_t from) const
{
    for (std::size_t i = from; i < field->count; ++i) {
        if (!in_use(*field->record, at(i))) {
            return i;
        }
    }
    return std::nullopt;
}

std::optional<Referred> referred(Reference reference)
{
    static const std::map<Reference, Referred> known = find_referred();
    const auto found = known.find(reference);
    return found != known.end() ? std::optional(found->second) : std::nullopt;
}

const std::vector<Referred>& referred_arrays()
{
    static const std::vector<Referred> arrays = [] {
        std::vector<Referred> all{*referred(Reference::terminal_vlan_id)};
        for (const ProfileKind& kind : profile_kinds) {
            all.push_back(*referred(kind.reference));
        }
        return all;
    }();
    return arrays;
}

bool refers_to_terminal_vlan(const Field& field)
{
    return field.reference == Reference::terminal_vlan_id || field.reference == Reference::terminal_vlan_priority;
}

bool is_of_vlan(const Field& field, std::int64_t number)
{
    constexpr std::int64_t references = 100; // to terminal VLANs: from this number on
    return field.reference == Reference::terminal_vlan_id ? number >= 0 : number < references;
}

std::int64_t slot_referred(const Field& field, std::int64_t number)
{
    switch (field.reference) {
    case Reference::none:
        return none;
    case Reference::terminal_vlan_id:
        return number <= -100 && number > -100 - GCFG_TERMINAL_VLANS ? -100 - number : none;
    case Reference::terminal_vlan_priority:
        return number >= 100 && number < 100 + GCFG_TERMINAL_VLANS ? number - 100 : none;
    default:
        return number;
    }
}

std::int64_t number_referring(const Field& field, std::size_t slot)
{
    const auto number = static_cast<std::int64_t>(slot);
    switch (field.reference) {
    case Reference::terminal_vlan_id:
        return -100 - number;
    case Reference::terminal_vlan_priority:
        return 100 + number;
    default:
        return number;
    }
}

void for_each_reference_to(const GCfg& configuration, const Field& array, std::size_t slot,
                           const std::function<void(const Field& reference, std::size_t offset)>& visit)
{
    const auto places = referring().find(&array);
    if (places == referring().end()) {
        return;
    }
    const auto* const bytes = reinterpret_cast<const unsigned char*>(&configuration);
    for (const Referring& place : places->second) {
        const std::int64_t number = get_number(*place.field, bytes + place.offset);
        if (slot_referred(*place.field, number) == static_cast<std::int64_t>(slot)) {
            visit(*place.field, place.offset);
        }
    }
}

void forget(GCfg& configuration, const Field& array, std::size_t slot,
            const std::function<void(const Field& reference, std::size_t offset)>& visit)
{
    auto* const bytes = reinterpret_cast<unsigned char*>(&configuration);
    for_each_reference_to(configuration, array, slot, [&](const Field& reference, std::size_t offset) {
        set_number(reference, bytes + offset, none); // all bits set, where the number has no sign
        visit(reference, offset);
    });
}

} // namespace pondiff::tool
