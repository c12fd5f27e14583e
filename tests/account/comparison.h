#ifndef TESTS_ACCOUNT_COMPARISON_H
#define TESTS_ACCOUNT_COMPARISON_H

/// @file
/// What configurations mean, written down field by field under names that hold in every slot. It has rules of its own
/// and shares nothing with the program's comparison but the description of the fields.

#include "tests/language/configurations.h"

#include <algorithm>
#include <array>
#include <cstring>
#include <functional>
#include <map>
#include <string>
#include <utility>
#include <vector>

namespace account_tests {

using namespace pondiff::tool;

/// A field that means something, in each configuration.
struct Meant {
    const Field* field = nullptr;
    std::string path;                ///< as documents write it, in the last configuration that has its object
    std::string object;              ///< the object or entry that it belongs to
    std::array<std::string, 3> text; ///< empty: blank, or not there
    std::array<bool, 3> there{};

    bool differs(std::size_t a, std::size_t b) const { return text[a] != text[b]; }
};

/// Objects by the offset of their slot in the first configuration, with the names that they are compared under.
using Renamed = std::map<std::size_t, std::string>;

class Comparison {
  public:
    explicit Comparison(std::array<const GCfg*, 3> configurations, Renamed renamed = {})
        : configurations_(configurations), renamed_(std::move(renamed))
    {
        for (std::size_t i = 0; i < 3; ++i) {
            names_[i] = names_of(*configurations_[i]);
        }
        names_alike_ = names_[0] == names_[1] && names_[1] == names_[2];
        for (which_ = 0; which_ < 3; ++which_) {
            write_down(gcfg_record, 0, "", "", "", true, false);
        }
        for (auto meant = fields_.begin(); meant != fields_.end();) {
            const bool same = !meant->second.differs(0, 1) && !meant->second.differs(1, 2);
            meant = same ? fields_.erase(meant) : std::next(meant);
        }
        for (auto& [key, meant] : fields_) {
            meant.path = path_of(meant.object) + meant.path;
        }
    }

    /// The fields that differ anywhere.
    const std::map<std::string, Meant>& fields() const { return fields_; }

    /// Whether two objects of a kind that differs anywhere have one name.
    bool shares_names() const { return shares_names_; }

    bool same(std::size_t a, std::size_t b) const
    {
        for (const auto& [key, meant] : fields_) {
            if (meant.differs(a, b)) {
                return false;
            }
        }
        return true;
    }

  private:
    /// An object or entry, in the last configuration that has it.
    struct Entry {
        std::string in;   ///< the one that it belongs to
        std::string path; ///< within that one
    };

    std::string path_of(const std::string& element) const
    {
        const auto found = elements_.find(element);
        return found == elements_.end() ? "" : path_of(found->second.in) + found->second.path;
    }

    using Names = std::map<std::pair<Reference, std::size_t>, std::string>;

    static bool all_zero(const unsigned char* at, std::size_t size)
    {
        for (std::size_t i = 0; i < size; ++i) {
            if (at[i] != 0) {
                return false;
            }
        }
        return true;
    }

    static bool is_there(const Record& record, const unsigned char* at)
    {
        bool has_key = false;
        for (const Field& field : record) {
            const bool is_key = field.syntax.kind == Syntax::Kind::key;
            if (is_key && field.syntax.zero_is_free) {
                return !all_zero(at + field.offset, field.width);
            }
            has_key = has_key || is_key;
        }
        for (const Field& field : record) {
            if (field.syntax.is_existence) {
                return !all_zero(at + field.offset, field.width);
            }
        }
        return !has_key || !all_zero(at, record.size);
    }

    static std::string text_at(const unsigned char* at, std::size_t size)
    {
        std::string text(reinterpret_cast<const char*>(at), size);
        return text.substr(0, text.find('\0'));
    }

    template <class Array>
    static void add_names(Names& names, Reference reference, const Array& objects)
    {
        for (std::size_t slot = 0; slot < sizeof objects / sizeof objects[0]; ++slot) {
            const auto& object = objects[slot];
            if (exists(object)) {
                names[{reference, slot}] =
                    text_at(reinterpret_cast<const unsigned char*>(object.name), sizeof object.name);
            }
        }
    }

    template <class Profile>
    static bool exists(const Profile& profile)
    {
        return profile.exist != 0;
    }
    static bool exists(const GVlanTagEx& vlan) { return vlan.exists != 0; }

    static Names names_of(const GCfg& configuration)
    {
        Names names;
        add_names(names, Reference::terminal_vlan_id, configuration.pon.network.terminal_vlan);
#define ADD_NAMES(part, array, ...) add_names(names, Reference::array, configuration.pon.part.array);
        PON_PROFILE_KINDS(ADD_NAMES)
#undef ADD_NAMES
        return names;
    }

    std::string name_or_none(Reference reference, std::int64_t slot, const char* none) const
    {
        const auto found = names_[which_].find({reference, static_cast<std::size_t>(slot)});
        return slot < 0 || found == names_[which_].end() ? none : "name " + found->second;
    }

    /// A VLAN id or a priority is 0 in what is blank, a profile is none.
    std::string reference_text(const Field& field, std::int64_t number) const
    {
        const bool is_id = field.reference == Reference::terminal_vlan_id;
        if (is_id || field.reference == Reference::terminal_vlan_priority) {
            const bool is_itself = is_id ? number >= 0 : number < 100;
            return is_itself ? number == 0 ? "" : std::to_string(number)
                             : name_or_none(Reference::terminal_vlan_id, is_id ? -100 - number : number - 100, "none");
        }
        return name_or_none(field.reference, number, "");
    }

    static std::string list_text(const Field& field, const unsigned char* at)
    {
        std::multimap<std::int64_t, int> sorted;
        for (std::size_t i = 0; i < field.count; ++i) {
            const std::int64_t number = get_number(field, at + i * field.width);
            if (number == -1) {
                break;
            }
            sorted.emplace(number, 0);
        }
        std::string text;
        for (const auto& entry : sorted) {
            text += std::to_string(entry.first) + ',';
        }
        return text;
    }

    std::string meaning(const Field& field, const unsigned char* at) const
    {
        if (field.syntax.is_existence) {
            return "on"; // what is not there is not written down
        }
        if (field.layout == Layout::ended_list) {
            return list_text(field, at);
        }
        if (field.form == Form::reference) {
            return reference_text(field, get_number(field, at));
        }
        if (is_text(field.form)) {
            std::string text = text_at(at, field.width);
            if (field.syntax.longest != 0) {
                text = text.substr(0, field.syntax.longest);
            }
            const std::string shown = "%GPON-PORT%";
            for (std::size_t i = 0; field.syntax.port_marker && (i = text.find(shown, i)) != text.npos;) {
                text.replace(i, shown.size(), "%CHANNELID%");
            }
            return (field.syntax.kind == Syntax::Kind::key ? "key " : "") + text;
        }
        const bool is_switch = field.form == Form::boolean || field.syntax.is_switch;
        std::string text;
        for (std::size_t i = 0; i < field.width; ++i) {
            text += std::to_string(at[i]) + ' ';
        }
        const bool zero = all_zero(at, field.width);
        if (field.syntax.kind == Syntax::Kind::key) {
            return "key " + text;
        }
        return zero ? "" : is_switch ? "on" : text;
    }

    const unsigned char* at(std::size_t offset) const
    {
        return reinterpret_cast<const unsigned char*>(configurations_[which_]) + offset;
    }

    bool equal(std::size_t offset, std::size_t size) const
    {
        const auto* const first = reinterpret_cast<const char*>(configurations_[0]);
        return std::memcmp(first + offset, reinterpret_cast<const char*>(configurations_[1]) + offset, size) == 0 &&
               std::memcmp(first + offset, reinterpret_cast<const char*>(configurations_[2]) + offset, size) == 0;
    }

    static bool has_references(const Field& field)
    {
        static std::map<const Field*, bool> known;
        const auto found = known.find(&field);
        if (found != known.end()) {
            return found->second;
        }
        bool any = field.form == Form::reference;
        for (std::size_t i = 0; field.record != nullptr && i < field.record->count; ++i) {
            any = has_references(field.record->fields[i]) || any;
        }
        return known[&field] = any;
    }

    /// @param key              where the record is, in words that hold in every slot
    /// @param element          the object or entry that it belongs to
    /// @param path             from there
    /// @param in_place         whether the same offsets belong to the same object in all configurations
    /// @param references_only  the rest is equal
    void write_down(const Record& record, std::size_t offset, const std::string& key, const std::string& element,
                    const std::string& path, bool in_place, bool references_only)
    {
        for (const Field& field : record) {
            const std::size_t start = offset + field.offset;
            const bool only = references_only || (in_place && equal(start, field.size));
            if (only && (names_alike_ || !has_references(field))) {
                continue;
            }
            const std::string name = (key.empty() ? "" : ".") + std::string(field.name);
            const std::string inner_key = key + name;
            const std::string inner_path = path + name;
            if (field.record == nullptr) {
                write_leaves(field, start, inner_key, element, inner_path);
            } else if (!field.array) {
                write_down(*field.record, start, inner_key, element, inner_path, in_place, only);
            } else {
                write_elements(field, start, inner_key, element, inner_path, in_place, only);
            }
        }
    }

    void write_leaves(const Field& field, std::size_t start, const std::string& key, const std::string& element,
                      const std::string& path)
    {
        if (field.syntax.kind == Syntax::Kind::counter) {
            return;
        }
        const std::size_t count = field.layout == Layout::ended_list ? 1 : field.count;
        for (std::size_t i = 0; i < count; ++i) {
            const std::string index = field.array && field.layout != Layout::ended_list ? "." + std::to_string(i) : "";
            Meant& meant = fields_[key + index];
            meant.field = &field;
            meant.path = path + index;
            meant.object = element;
            meant.text[which_] = meaning(field, at(start + i * field.width));
            meant.there[which_] = true;
        }
    }

    void write_elements(const Field& field, std::size_t start, const std::string& key, const std::string& outer,
                        const std::string& path, bool in_place, bool references_only)
    {
        const Record& record = *field.record;
        const Element::Told told = field.element.told;
        const bool by_place = told != Element::Told::by_name && told != Element::Told::by_key;
        std::map<std::string, int> seen;
        for (std::size_t slot = 0; slot < field.count; ++slot) {
            const std::size_t element = start + slot * field.width;
            const bool only = references_only || (by_place && in_place && equal(element, field.width));
            const bool nothing_new = only && (names_alike_ || !has_references(field));
            if (nothing_new || !is_there(record, at(element))) {
                continue;
            }
            std::string identity = std::to_string(slot);
            if (!by_place) {
                identity = identity_of(field, element);
                const int bearers = ++seen[identity] - 1;
                shares_names_ = shares_names_ || (bearers != 0 && told == Element::Told::by_name);
                identity = "[" + identity + "]" + std::to_string(bearers);
            }
            const std::string inner = key + '.' + identity;
            elements_[inner] = {outer, path + '.' + std::to_string(slot)};
            write_down(record, element, inner, inner, "",
                       in_place && (only || (by_place && is_there_in_all(record, element))), only);
        }
    }

    bool is_there_in_all(const Record& record, std::size_t element) const
    {
        return std::all_of(configurations_.begin(), configurations_.end(), [&](const GCfg* configuration) {
            return is_there(record, reinterpret_cast<const unsigned char*>(configuration) + element);
        });
    }

    std::string identity_of(const Field& field, std::size_t element) const
    {
        const auto renamed = renamed_.find(element);
        if (which_ == 0 && renamed != renamed_.end()) {
            return renamed->second;
        }
        for (const Field& member : *field.record) {
            const bool tells = field.element.told == Element::Told::by_name ? member.name == "name"
                                                                            : member.syntax.kind == Syntax::Kind::key;
            if (tells) {
                return member.form == Form::text ? text_at(at(element + member.offset), member.width)
                                                 : meaning(member, at(element + member.offset));
            }
        }
        return "";
    }

    std::array<const GCfg*, 3> configurations_;
    Renamed renamed_;
    std::array<Names, 3> names_;
    bool names_alike_ = false;
    bool shares_names_ = false;
    std::size_t which_ = 0;
    std::map<std::string, Meant> fields_;
    std::map<std::string, Entry> elements_;
};

} // namespace account_tests

#endif
