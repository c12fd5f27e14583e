#include "tool/account/meaning.h"

#include "tool/describe/records.h"
#include "tool/language/objects.h"

#include <algorithm>
#include <cstring>
#include <map>
#include <memory>
#include <string_view>
#include <utility>
#include <vector>

namespace pondiff::tool {

namespace {

/// A text as far as it counts, its markers in one spelling.
std::string text_meant(const Field& field, const unsigned char* at)
{
    std::string text(text_in(field, at));
    if (field.syntax.longest != 0) {
        text.resize(std::min<std::size_t>(text.size(), field.syntax.longest));
    }
    if (field.syntax.port_marker) {
        spell_marker(text.data(), text.size());
    }
    return text;
}

/// The numbers of a list up to its end mark, in order.
std::vector<std::int64_t> list_meant(const Field& field, const unsigned char* at)
{
    std::vector<std::int64_t> numbers;
    for (std::size_t i = 0; i < field.count && get_number(field, at + i * field.width) != -1; ++i) {
        numbers.push_back(get_number(field, at + i * field.width));
    }
    std::sort(numbers.begin(), numbers.end());
    return numbers;
}

ReferenceMeant object_meant(const Referred& to, std::size_t slot, const GCfg& configuration)
{
    const auto* const object =
        reinterpret_cast<const unsigned char*>(&configuration) + to.offset + slot * to.field->width;
    if (!in_use(*to.field->record, object)) {
        return {ReferenceMeant::Kind::none, {}};
    }
    const Field& name = *to.field->record->name_member;
    return {ReferenceMeant::Kind::name, text_in(name, object + name.offset)};
}

} // namespace

ReferenceMeant reference_meant(const Field& field, const unsigned char* at, const GCfg& configuration)
{
    using Kind = ReferenceMeant::Kind;
    const std::int64_t number = get_number(field, at);
    const std::int64_t slot = slot_referred(field, number);
    const auto to = referred(field.reference);
    if (refers_to_terminal_vlan(field) && is_of_vlan(field, number)) {
        return {Kind::number, {}, number};
    }
    if (slot < 0 || slot >= to->field->count) {
        return {Kind::none, {}};
    }
    return object_meant(*to, static_cast<std::size_t>(slot), configuration);
}

namespace {

/// Whether a number refers to the same name in both: then what is equal means the same.
bool refer_alike(const GCfg& a, const GCfg& b)
{
    for (const Referred& to : referred_arrays()) {
        for (std::size_t slot = 0; slot < to.field->count; ++slot) {
            if (!(object_meant(to, slot, a) == object_meant(to, slot, b))) {
                return false;
            }
        }
    }
    return true;
}

const GCfg& blank()
{
    static const std::unique_ptr<GCfg> configuration = blank_configuration();
    return *configuration;
}

/// A field of one of the configurations.
struct One {
    const unsigned char* at;
    bool there; ///< whether the object that it belongs to is there
    const GCfg& configuration;
};

bool same_field(const Field& field, const One& a, const One& b)
{
    if (field.syntax.is_existence) {
        return a.there == b.there;
    }
    return (field.syntax.kind != Syntax::Kind::key || a.there == b.there) &&
           means_the_same(field, a.at, a.configuration, b.at, b.configuration);
}

template <std::size_t N>
class SideBySide {
  public:
    using Places = std::array<const unsigned char*, N>;
    using There = std::array<bool, N>;
    using Visit = std::function<void(const Beside<N>&)>;

    SideBySide(const std::array<const GCfg*, N>& configurations, const Visit& visit)
        : configurations_(configurations), visit_(visit)
    {
        Places places;
        There there;
        std::transform(configurations.begin(), configurations.end(), places.begin(),
                       [](const GCfg* configuration) { return reinterpret_cast<const unsigned char*>(configuration); });
        there.fill(true);
        refer_alike_ = std::all_of(configurations.begin(), configurations.end(), [&](const GCfg* configuration) {
            return refer_alike(*configuration, *configurations[0]);
        });
        element_ = places;
        compare(gcfg_record, places, there, reinterpret_cast<const unsigned char*>(&blank()));
    }

  private:
    void compare(const Record& record, const Places& places, const There& there, const unsigned char* blank)
    {
        for (const Field& field : record) {
            Places inner;
            for (std::size_t i = 0; i < N; ++i) {
                inner[i] = places[i] + field.offset;
            }
            if (refer_alike_ && are_equal(inner, field.size, there)) {
                continue;
            }
            if (field.record == nullptr) {
                compare_leaves(field, inner, there);
            } else if (!field.array) {
                step(field, 0, N - 1, [&] { compare(*field.record, inner, there, blank + field.offset); });
            } else if (is_told_by_number(field)) {
                compare_numbered(field, inner, there, blank + field.offset);
            } else {
                compare_told(field, inner, there, blank + field.offset);
            }
        }
    }

    static bool are_equal(const Places& places, std::size_t size, const There& there)
    {
        for (std::size_t i = 1; i < N; ++i) {
            if (there[i] != there[0] || std::memcmp(places[i], places[0], size) != 0) {
                return false;
            }
        }
        return true;
    }

    static bool is_told_by_number(const Field& array)
    {
        return array.element.told != Element::Told::by_name && array.element.told != Element::Told::by_key;
    }

    template <class Do>
    void step(const Field& field, std::size_t index, std::size_t counted_in, const Do& inside)
    {
        path_.push(field, index);
        counted_in_.push_back(counted_in);
        ++steps_;
        inside();
        --steps_;
        counted_in_.pop_back();
        path_.pop();
    }

    /// One object of the configurations that have it; `slots` are where, and -1 where it is not there.
    void compare_element(const Field& array, const Places& first, const There& there,
                         const std::array<std::ptrdiff_t, N>& slots, const unsigned char* blank)
    {
        Places element;
        There element_there = there;
        std::size_t index = 0;
        std::size_t counted_in = 0;
        for (std::size_t i = 0; i < N; ++i) {
            const bool in_slot = slots[i] >= 0;
            element[i] = first[i] + (in_slot ? slots[i] : 0) * static_cast<std::ptrdiff_t>(array.width);
            element_there[i] = there[i] && in_slot && in_use(*array.record, element[i]);
            if (!element_there[i]) {
                element[i] = blank;
            } else {
                index = static_cast<std::size_t>(slots[i]);
                counted_in = i;
            }
        }
        if (std::none_of(element_there.begin(), element_there.end(), [](bool one) { return one; })) {
            return;
        }
        const std::size_t outer = std::exchange(object_, steps_ + 1);
        const Places outer_element = std::exchange(element_, element);
        step(array, index, counted_in, [&] { compare(*array.record, element, element_there, blank); });
        object_ = outer;
        element_ = outer_element;
    }

    void compare_numbered(const Field& array, const Places& first, const There& there, const unsigned char* blank)
    {
        for (std::size_t slot = 0; slot < array.count; ++slot) {
            std::array<std::ptrdiff_t, N> slots;
            slots.fill(static_cast<std::ptrdiff_t>(slot));
            compare_element(array, first, there, slots, blank);
        }
    }

    /// Matches elements by what tells them; of several that are told alike, the first with the first, and so on.
    void compare_told(const Field& array, const Places& first, const There& there, const unsigned char* blank)
    {
        const Field* const key =
            array.element.told == Element::Told::by_name ? array.record->name_member : array.record->key_member;
        using Slots = std::array<std::vector<std::ptrdiff_t>, N>;
        std::map<std::string_view, Slots> elements;
        for (std::size_t i = 0; i < N; ++i) {
            for (std::size_t slot = 0; there[i] && slot < array.count; ++slot) {
                const unsigned char* const at = first[i] + slot * array.width;
                if (in_use(*array.record, at)) {
                    elements[identity(*key, at + key->offset)][i].push_back(static_cast<std::ptrdiff_t>(slot));
                }
            }
        }
        for (const auto& [told, slots] : elements) {
            std::size_t bearers = 0;
            for (const auto& of_one : slots) {
                bearers = std::max(bearers, of_one.size());
            }
            for (std::size_t k = 0; k < bearers; ++k) {
                std::array<std::ptrdiff_t, N> matched;
                for (std::size_t i = 0; i < N; ++i) {
                    matched[i] = k < slots[i].size() ? slots[i][k] : -1;
                }
                compare_element(array, first, there, matched, blank);
            }
        }
    }

    static std::string_view identity(const Field& key, const unsigned char* at)
    {
        return is_text(key.form) ? text_in(key, at) : std::string_view(reinterpret_cast<const char*>(at), key.width);
    }

    void compare_leaves(const Field& field, const Places& places, const There& there)
    {
        const bool whole = field.layout == Layout::ended_list;
        for (std::size_t i = 0; i < (whole ? 1U : field.count); ++i) {
            Places at;
            for (std::size_t k = 0; k < N; ++k) {
                at[k] = places[k] + i * field.width;
            }
            if (!mean_the_same(field, at, there)) {
                path_.push(field, i);
                visit_({field, at, there, element_, path_, counted_in_, object_});
                path_.pop();
            }
        }
    }

    bool mean_the_same(const Field& field, const Places& at, const There& there) const
    {
        for (std::size_t i = 1; i < N; ++i) {
            if (!same_field(field, {at[0], there[0], *configurations_[0]}, {at[i], there[i], *configurations_[i]})) {
                return false;
            }
        }
        return true;
    }

    const std::array<const GCfg*, N> configurations_;
    const Visit& visit_;
    bool refer_alike_ = false; ///< the same number refers to the same name in all of them
    Path path_;
    std::vector<std::size_t> counted_in_;
    std::size_t steps_ = 0;
    std::size_t object_ = 0;
    Places element_{};
};

} // namespace

bool means_the_same(const Field& field, const unsigned char* a, const GCfg& in_a, const unsigned char* b,
                    const GCfg& in_b)
{
    if (field.syntax.kind == Syntax::Kind::counter) {
        return true;
    }
    if (field.form == Form::reference) {
        return reference_meant(field, a, in_a) == reference_meant(field, b, in_b);
    }
    const std::size_t size = field.layout == Layout::ended_list ? field.size : field.width;
    if (std::memcmp(a, b, size) == 0) {
        return true;
    }
    if (field.layout == Layout::ended_list) {
        return list_meant(field, a) == list_meant(field, b);
    }
    if (field.form == Form::boolean || field.syntax.is_switch) {
        return (get_number(field, a) != 0) == (get_number(field, b) != 0);
    }
    return is_text(field.form) && text_meant(field, a) == text_meant(field, b);
}

bool same_in(const Beside<3>& beside, const std::array<const GCfg*, 3>& configurations, std::size_t a, std::size_t b)
{
    return same_field(beside.field, {beside.at[a], beside.there[a], *configurations[a]},
                      {beside.at[b], beside.there[b], *configurations[b]});
}

void for_each_different_meaning(const std::array<const GCfg*, 2>& configurations,
                                const std::function<void(const Beside<2>&)>& visit)
{
    SideBySide<2>(configurations, visit);
}

void for_each_different_meaning(const std::array<const GCfg*, 3>& configurations,
                                const std::function<void(const Beside<3>&)>& visit)
{
    SideBySide<3>(configurations, visit);
}

bool mean_the_same(const GCfg& a, const GCfg& b)
{
    bool same = true;
    for_each_different_meaning({&a, &b}, [&same](const Beside<2>&) { same = false; });
    return same;
}

} // namespace pondiff::tool
