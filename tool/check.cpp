#include "tool/check.h"

#include "tool/describe/description.h"
#include "tool/describe/records.h"
#include "tool/json/words.h"
#include "tool/language/objects.h"
#include "tool/profiles.h"
#include "tool/unsafe.h"

#include <algorithm>
#include <cstdlib>
#include <cstring>
#include <fmt/format.h>
#include <map>
#include <memory>
#include <new>
#include <set>
#include <string_view>
#include <utility>

namespace pondiff::tool {

namespace {

/// The value of a reference to no profile.
constexpr std::int64_t none = -1;

const Field* field_named(const Record& record, std::string_view name)
{
    const Field* const found =
        std::find_if(record.begin(), record.end(), [name](const Field& field) { return field.name == name; });
    return found != record.end() ? found : nullptr;
}

const Field* flag_of_existence(const Record& record)
{
    const Field* const flag = field_named(record, "exist");
    return flag ? flag : field_named(record, "exists");
}

/// Whether a record holds an object. Unlike `in_use`, it takes a record without a flag for one that always does: its
/// commands are emitted for every element, zeros or not.
bool object_exists(const Record& record, const unsigned char* at)
{
    // An S-VLAN slot counts if it has an S-VLAN, whatever its flag.
    const Field* const svlan = field_named(record, "svlan");
    const Field* const flag = svlan ? svlan : flag_of_existence(record);
    return !flag || get_number(*flag, at + flag->offset) != 0;
}

/// The terminal VLAN that a VLAN id or a priority refers to, or -1.
int terminal_vlan_of(Reference reference, std::int64_t number)
{
    const std::int64_t index = reference == Reference::terminal_vlan_id ? -100 - number : number - 100;
    return index >= 0 && index < GCFG_TERMINAL_VLANS ? static_cast<int>(index) : -1;
}

/// The meaning of a 0.
enum class Zeros : bool {
    left_out, ///< perhaps none: documents leave it out
    meant,
};

class Inspection {
  public:
    /// @param orig  what the device runs, if known: a field that is 0 only in `cfg` has not been left out
    Inspection(const GCfg& cfg, const GCfg* orig, Zeros zeros) : cfg_(cfg), orig_(orig), zeros_(zeros)
    {
        look_at(gcfg_record, 0, Presence::there);
        std::stable_sort(findings_.begin(), findings_.end(),
                         [](const Finding& a, const Finding& b) { return a.offset < b.offset; });
    }
    std::vector<Finding> findings() { return std::move(findings_); }

  private:
    /// A value and the record that holds it.
    struct Place {
        const Record& record;
        std::size_t record_offset;
        const Field& field;
        std::size_t index;
        std::size_t offset;
    };

    /// Whether an object exists. One that does not has no findings, except where a script for its removal shows its
    /// texts: no command removes such an object, so its changed fields are shown.
    enum class Presence { there, removable, absent };
    Presence presence_of(const Field& field, std::size_t offset, Presence outer) const
    {
        if (outer != Presence::there || object_exists(*field.record, at(offset))) {
            return outer;
        }
        return field.element.enter && !field.element.remove ? Presence::removable : Presence::absent;
    }

    static const unsigned char* bytes_of(const GCfg& configuration)
    {
        return reinterpret_cast<const unsigned char*>(&configuration);
    }
    const unsigned char* at(std::size_t offset) const { return bytes_of(cfg_) + offset; }
    std::int64_t number_at(const Place& place) const { return get_number(place.field, at(place.offset)); }

    void look_at(const Record& record, std::size_t offset, Presence presence);
    void look_at_names(const Field& array, std::size_t offset);
    void judge(const Place& place);
    void judge_end(const Place& place);
    void judge_text(const Place& place);
    void judge_enumeration(const Place& place);
    void judge_profile(const Place& place, const ProfileKind& kind);
    void judge_terminal_vlan(const Place& place);
    bool may_be_left_out(const Place& place) const;
    bool refers_to_nothing(const Place& place) const;
    void add(const Place& place, std::string text)
    {
        findings_.push_back({place.offset, place.field.width, path_.text(), std::move(text)});
    }

    const GCfg& cfg_;
    const GCfg* orig_;
    Zeros zeros_;
    Path path_;
    std::vector<Finding> findings_;
};

void Inspection::look_at(const Record& record, std::size_t offset, Presence presence)
{
    for (const Field& field : record) {
        const std::size_t start = offset + field.offset;
        for (std::size_t i = 0; i < field.count; ++i) {
            const std::size_t element = start + i * field.width;
            path_.push(field, i);
            const Place place{record, offset, field, i, element};
            if (field.record) {
                look_at(*field.record, element, presence_of(field, element, presence));
            } else if (presence == Presence::there) {
                judge(place);
            } else if (presence == Presence::removable) {
                judge_text(place);
            }
            path_.pop();
        }
        if (presence == Presence::there && field.record && field.array) {
            look_at_names(field, start);
        }
    }
}

/// Looks for elements of an array that share a name, if the CLI identifies them by name.
void Inspection::look_at_names(const Field& array, std::size_t offset)
{
    const Field* const name = field_named(*array.record, "name");
    if (!name || name->form != Form::text || !flag_of_existence(*array.record)) {
        return;
    }
    std::map<std::string_view, std::vector<std::size_t>> indexes_by_name;
    for (std::size_t i = 0; i < array.count; ++i) {
        const unsigned char* const element = at(offset + i * array.width);
        if (object_exists(*array.record, element)) {
            indexes_by_name[text_in(*name, element + name->offset)].push_back(i);
        }
    }
    const auto path_of = [this, &array](std::size_t index) {
        path_.push(array, index);
        std::string path = path_.text();
        path_.pop();
        return path;
    };
    for (const auto& [text, indexes] : indexes_by_name) {
        if (indexes.size() == 1) {
            continue;
        }
        for (const std::size_t i : indexes) {
            findings_.push_back({offset + i * array.width + name->offset, name->width, path_of(i) + ".name",
                                 fmt::format("{} is also the name of {}", shown_text(*name, text),
                                             path_of(i == indexes[0] ? indexes[1] : indexes[0]))});
        }
    }
}

void Inspection::judge(const Place& place)
{
    switch (place.field.form) {
    case Form::text:
    case Form::secret:
        judge_end(place);
        return judge_text(place);
    case Form::enumeration:
        return judge_enumeration(place);
    case Form::reference:
        if (const ProfileKind* const kind = kind_of(place.field.reference)) {
            return judge_profile(place, *kind);
        }
        return judge_terminal_vlan(place);
    default:
        return;
    }
}

void Inspection::judge_end(const Place& place)
{
    const std::string_view value = text_in(place.field, at(place.offset));
    if (value.size() == place.field.width) {
        add(place, shown_text(place.field, value) + fmt::format(" has no end within its {} bytes", place.field.width));
    }
}

/// What would reach a script and do harm there, whether the object exists or not.
void Inspection::judge_text(const Place& place)
{
    if (!is_text(place.field.form) || place.field.silent) {
        return;
    }
    const std::string_view value = text_in(place.field, at(place.offset));
    for (const std::string& part : unsafe_parts(value)) {
        add(place, shown_text(place.field, value) + part);
        findings_.back().unsafe = true;
    }
}

void Inspection::judge_enumeration(const Place& place)
{
    const std::int64_t value = number_at(place);
    if (!has_word(place.field, value) && !may_be_left_out(place)) {
        add(place, fmt::format("{} has no word in {}", value, place.field.enumeration));
    }
}

void Inspection::judge_profile(const Place& place, const ProfileKind& kind)
{
    const std::int64_t index = number_at(place);
    const bool inside = index >= 0 && index < kind.slots;
    if (index == none || (inside && kind.exists(cfg_, static_cast<int>(index)))) {
        return;
    }
    const Field* const flag = field_named(place.record, std::string(place.field.name) + "_is_active");
    if (flag) {
        if (get_number(*flag, at(place.record_offset + flag->offset + place.index * flag->width)) == 0) {
            return;
        }
    } else if (may_be_left_out(place) && !(orig_ && kind.exists(*orig_, 0)) && !refers_to_nothing(place)) {
        return;
    }
    add(place, inside ? fmt::format("there is no {} {}", kind.called, index)
                      : fmt::format("there is no {} {} (0 to {})", kind.called, index, kind.slots - 1));
}

void Inspection::judge_terminal_vlan(const Place& place)
{
    const int index = terminal_vlan_of(place.field.reference, number_at(place));
    if (index >= 0 && cfg_.pon.network.terminal_vlan[index].exists == 0) {
        add(place, fmt::format("there is no terminal VLAN {}", index));
    }
}

bool Inspection::may_be_left_out(const Place& place) const
{
    return zeros_ == Zeros::left_out && number_at(place) == 0 &&
           !(orig_ && get_number(place.field, bytes_of(*orig_) + place.offset) != 0);
}

/// Whether another reference in the same record is -1, a reference to no profile.
bool Inspection::refers_to_nothing(const Place& place) const
{
    for (const Field& field : place.record) {
        if (field.form == Form::reference && kind_of(field.reference)) {
            for (std::size_t i = 0; i < field.count; ++i) {
                if (get_number(field, at(place.record_offset + field.offset + i * field.width)) == none) {
                    return true;
                }
            }
        }
    }
    return false;
}

} // namespace

std::vector<Finding> check(const GCfg& configuration)
{
    return Inspection(configuration, nullptr, Zeros::left_out).findings();
}

std::vector<Finding> check_change(const GCfg& orig, const GCfg& cfg, bool all)
{
    std::vector<Finding> findings = Inspection(cfg, &orig, Zeros::left_out).findings();
    if (all || findings.empty()) {
        return findings;
    }
    std::set<std::pair<std::size_t, std::string>> old;
    for (Finding& finding : Inspection(orig, nullptr, Zeros::meant).findings()) {
        old.emplace(finding.offset, std::move(finding.text));
    }
    const auto is_old = [&](const Finding& finding) {
        return std::memcmp(reinterpret_cast<const char*>(&orig) + finding.offset,
                           reinterpret_cast<const char*>(&cfg) + finding.offset, finding.size) == 0 &&
               old.count({finding.offset, finding.text}) != 0;
    };
    findings.erase(std::remove_if(findings.begin(), findings.end(), is_old), findings.end());
    return findings;
}

} // namespace pondiff::tool
