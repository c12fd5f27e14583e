#include "tool/language/slots.h"

#include "tool/describe/records.h"
#include "tool/language/objects.h"

#include <cstdint>
#include <cstring>
#include <map>
#include <vector>

namespace pondiff::tool {

namespace {

/// Where each slot of an array moves.
using Moves = std::vector<std::size_t>;

constexpr std::size_t nowhere = SIZE_MAX;

/// What tells the elements of an array apart, null where it is their number.
const Field* identity_of(const Field& array)
{
    switch (array.element.told) {
    case Element::Told::by_name:
        return array.record->name_member;
    case Element::Told::by_key:
        return array.record->key_member;
    default:
        return nullptr;
    }
}

bool have_same_identity(const Field& identity, const unsigned char* a, const unsigned char* b)
{
    a += identity.offset;
    b += identity.offset;
    return identity.form == Form::text ? text_in(identity, a) == text_in(identity, b)
                                       : std::memcmp(a, b, identity.width) == 0;
}

/// Every element in use gets a slot of its own; free ones move nowhere.
Moves moves_of(const Table& table, const Table& other)
{
    const Record& record = *table.field->record;
    const std::size_t count = table.field->count;
    Moves moves(count, nowhere);
    std::vector<bool> taken(count);
    const auto place = [&](const auto& fits) {
        for (std::size_t slot = 0; slot < count; ++slot) {
            for (std::size_t to = 0; in_use(record, table.at(slot)) && moves[slot] == nowhere && to < count; ++to) {
                if (!taken[to] && fits(slot, to)) {
                    moves[slot] = to;
                    taken[to] = true;
                }
            }
        }
    };
    place([&](std::size_t slot, std::size_t to) {
        return in_use(record, other.at(to)) &&
               have_same_identity(*identity_of(*table.field), table.at(slot), other.at(to));
    });
    place([&](std::size_t /*slot*/, std::size_t to) { return !in_use(record, other.at(to)); });
    place([](std::size_t /*slot*/, std::size_t /*to*/) { return true; });
    return moves;
}

void move_elements(const Table& table, const Moves& moves)
{
    const Field& field = *table.field;
    const std::vector<unsigned char> before(table.first, table.first + field.size);
    for (std::size_t slot = 0; slot < field.count; ++slot) {
        make_blank(*field.record, table.at(slot));
    }
    for (std::size_t slot = 0; slot < field.count; ++slot) {
        if (moves[slot] != nowhere) {
            std::memcpy(table.at(moves[slot]), before.data() + slot * field.width, field.width);
        }
    }
}

class Alignment {
  public:
    Alignment(const GCfg& other, GCfg& configuration)
        : bytes_(reinterpret_cast<unsigned char*>(&configuration)),
          other_(const_cast<unsigned char*>(reinterpret_cast<const unsigned char*>(&other)))
    {
        move(gcfg_record, 0);
        follow();
        equal_free_slots(gcfg_record, 0);
    }

  private:
    bool in_use_at(const Record& record, std::size_t offset) const
    {
        return in_use(record, bytes_ + offset) && in_use(record, other_ + offset);
    }

    void move(const Record& record, std::size_t offset)
    {
        for (const Field& field : record) {
            const std::size_t start = offset + field.offset;
            if (field.record == nullptr) {
                continue;
            }
            if (field.array && identity_of(field) != nullptr) {
                const Table table{&field, bytes_ + start};
                move_elements(table, moves_[start] = moves_of(table, {&field, other_ + start}));
            }
            for (std::size_t i = 0; i < field.count; ++i) {
                if (in_use_at(*field.record, start + i * field.width)) {
                    move(*field.record, start + i * field.width);
                }
            }
        }
    }

    void follow()
    {
        for_each_leaf(gcfg_record, [this](const Leaf& leaf) {
            const auto to = referred(leaf.field.reference);
            const auto moves = to ? moves_.find(to->offset) : moves_.end();
            if (moves == moves_.end()) {
                return;
            }
            unsigned char* const at = bytes_ + leaf.offset;
            const std::int64_t slot = slot_referred(leaf.field, get_number(leaf.field, at));
            if (slot >= 0 && slot < to->field->count && moves->second[static_cast<std::size_t>(slot)] != nowhere) {
                set_number(leaf.field, at, number_referring(leaf.field, moves->second[static_cast<std::size_t>(slot)]));
            }
        });
    }

    /// What free slots hold means nothing: it is no difference.
    void equal_free_slots(const Record& record, std::size_t offset)
    {
        for (const Field& field : record) {
            for (std::size_t i = 0; field.record != nullptr && i < field.count; ++i) {
                const std::size_t start = offset + field.offset + i * field.width;
                if (in_use_at(*field.record, start)) {
                    equal_free_slots(*field.record, start);
                } else if (!in_use(*field.record, bytes_ + start) && !in_use(*field.record, other_ + start)) {
                    std::memcpy(bytes_ + start, other_ + start, field.width);
                }
            }
        }
    }

    unsigned char* bytes_;
    unsigned char* other_;               ///< only read
    std::map<std::size_t, Moves> moves_; ///< by the offset of the array
};

} // namespace

void take_slots_of(const GCfg& other, GCfg& configuration)
{
    Alignment(other, configuration);
}

} // namespace pondiff::tool
