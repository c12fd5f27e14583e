#include "tool/account/risks.h"

#include "tool/account/meaning.h"
#include "tool/account/naming.h"
#include "tool/describe/records.h"
#include "tool/json/values.h"
#include "tool/language/objects.h"

#include <algorithm>
#include <cstring>
#include <fmt/format.h>
#include <utility>

namespace pondiff::tool {

const char* name_of(RiskKind kind)
{
    static constexpr const char* names[] = {"management", "access",   "user",   "removal",
                                            "emptied",    "shutdown", "serial", "network"};
    return names[static_cast<std::size_t>(kind)];
}

namespace {

unsigned char* bytes_of(GCfg& configuration)
{
    return reinterpret_cast<unsigned char*>(&configuration);
}

const unsigned char* bytes_of(const GCfg& configuration)
{
    return reinterpret_cast<const unsigned char*>(&configuration);
}

/// A part of the configuration in which every change is a risk.
struct RiskyPart {
    const Field* field;
    std::size_t offset;
};

void find_risky_parts(const Record& record, std::size_t base, std::vector<RiskyPart>& found)
{
    for (const Field& field : record) {
        if (field.record == nullptr) {
            continue;
        }
        if (field.element.risk.when != RiskMark::When::never) {
            found.push_back({&field, base + field.offset});
            continue;
        }
        for (std::size_t i = 0; i < field.count; ++i) {
            find_risky_parts(*field.record, base + field.offset + i * field.width, found);
        }
    }
}

/// Null when an offset is in none.
const RiskyPart* risky_part(std::size_t offset)
{
    static const std::vector<RiskyPart> parts = [] {
        std::vector<RiskyPart> all;
        find_risky_parts(gcfg_record, 0, all);
        return all;
    }();
    const auto found = std::find_if(parts.begin(), parts.end(), [offset](const RiskyPart& part) {
        return offset >= part.offset && offset < part.offset + part.field->size;
    });
    return found != parts.end() ? &*found : nullptr;
}

bool has_own_commands(const Field& array)
{
    return array.element.enter != nullptr || array.element.remove != nullptr;
}

std::size_t offset_of(const Path& path)
{
    std::size_t offset = 0;
    for (const Path::Step& step : path.steps()) {
        offset += step.field->offset + step.index * step.field->width;
    }
    return offset;
}

/// `profile vlan "homes" ("Provider tag")`
std::string label_of(const Path& object, const GCfg& configuration)
{
    const std::string detail = object_detail(object, bytes_of(configuration));
    const std::string name = object_name(object, bytes_of(configuration));
    return detail.empty() ? name : fmt::format("{} ({})", name, detail);
}

std::string counted(std::size_t count, std::string_view plural)
{
    return fmt::format("{} {}", count, plural.substr(0, plural.size() - (count == 1 ? 1 : 0)));
}

/// Whether the objects and entries that a path leads through are there.
bool is_there(const Path& path, const GCfg& configuration)
{
    const unsigned char* at = bytes_of(configuration);
    for (const Path::Step& step : path.steps()) {
        at += step.field->offset + step.index * step.field->width;
        if (step.field->array && step.field->record != nullptr && !in_use(*step.field->record, at)) {
            return false;
        }
    }
    return true;
}

/// `; 3 ONTs and 1 template refer to it`, empty when nothing does.
std::string references_to(const Field& array, std::size_t slot, const GCfg& configuration)
{
    struct Kind {
        std::string_view plural;
        std::set<std::size_t> objects;
    };
    std::vector<Kind> kinds;
    for_each_reference_to(configuration, array, slot, [&](const Field&, std::size_t offset) {
        const Path field = path_at(offset);
        const Path object = object_path(field);
        if (!is_there(field, configuration)) {
            return;
        }
        const Field& last = *object.steps().back().field;
        const bool is_object = last.array && has_own_commands(last);
        const std::string_view plural = is_object ? last.plural : "OLT settings";
        auto kind =
            std::find_if(kinds.begin(), kinds.end(), [plural](const Kind& other) { return other.plural == plural; });
        if (kind == kinds.end()) {
            kind = kinds.insert(kind, {plural, {}});
        }
        kind->objects.insert(is_object ? offset_of(object) : offset);
    });
    std::string text;
    for (const Kind& kind : kinds) {
        text += text.empty() ? "; " : &kind == &kinds.back() ? " and " : ", ";
        text += counted(kind.objects.size(), kind.plural);
    }
    const bool single = kinds.size() == 1 && kinds.front().objects.size() == 1;
    return kinds.empty() ? "" : text + (single ? " refers to it" : " refer to it");
}

/// A value as the CLI shows it, but for words.
std::string value_text(const Field& field, const unsigned char* at, const GCfg& configuration)
{
    std::string text;
    if (field.form == Form::reference) {
        const ReferenceMeant meant = reference_meant(field, at, configuration);
        if (meant.kind != ReferenceMeant::Kind::number) {
            return meant.kind == ReferenceMeant::Kind::none ? "none" : fmt::format("\"{}\"", meant.name);
        }
    }
    if (field.form == Form::number) {
        const std::int64_t number = get_number(field, at);
        append_number(text, field.syntax.shown_signed ? static_cast<std::int32_t>(number)
                                                      : number + field.syntax.counted_from);
        return text;
    }
    append_value(text, field, at);
    const bool quoted = field.form != Form::text && text.front() == '"';
    return quoted ? text.substr(1, text.size() - 2) : text;
}

std::string value_text(const GSystemServiceAllow& entry)
{
    return fmt::format("{}.{}.{}.{}/{}", entry.ip[0], entry.ip[1], entry.ip[2], entry.ip[3], entry.mask);
}

/// The name of a switch without the word that switches it: `ip ssh`, `port 3`.
std::string switched(std::string name)
{
    constexpr std::string_view no = "no ";
    if (name.compare(0, no.size(), no) == 0) {
        name.erase(0, no.size());
    }
    for (const std::string_view word : {"enable", "disable", "shutdown"}) {
        const std::size_t rest = name.size() - std::min(name.size(), word.size());
        if (name.compare(rest, word.size(), word) == 0) {
            name.erase(rest == 0 ? 0 : rest - 1);
        }
    }
    return name;
}

} // namespace

/// A line, seen by a watch.
class RiskWatch::Sight {
  public:
    Sight(RiskWatch& watch, const Line& line, const GCfg& device)
        : watch_(watch), line_(line), before_(*watch.before_), device_(device)
    {
    }

    void see()
    {
        if (line_.removed.array != nullptr) {
            see_removal();
            return; // what has referred to the object is counted there
        }
        for (const Setting& setting : line_.settings) {
            see(setting);
        }
    }

  private:
    const unsigned char* before(std::size_t offset) const { return bytes_of(before_) + offset; }
    const unsigned char* after(std::size_t offset) const { return bytes_of(device_) + offset; }

    void note(RiskKind kind, std::string subject, std::string change)
    {
        const auto known = watch_.numbers_.try_emplace({kind, subject}, watch_.found_.size());
        if (known.second) {
            watch_.found_.push_back({kind, std::move(subject), {}, {}});
        }
        Found& found = watch_.found_[known.first->second];
        if (found.changes.empty() || found.changes.back() != change) {
            found.changes.push_back(std::move(change));
        }
        const auto number = static_cast<std::uint32_t>(line_.number);
        if (found.lines.empty() || found.lines.back() != number) {
            found.lines.push_back(number);
        }
    }

    bool was_noted(RiskKind kind, const std::string& subject) const
    {
        return watch_.numbers_.count({kind, subject}) != 0;
    }

    bool has_highest_privilege(std::size_t slot) const
    {
        return before_.system.user[slot].priority >= watch_.highest_privilege_;
    }

    void see_removal()
    {
        const Object& removed = line_.removed;
        if (watch_.made_.erase(removed.offset) != 0) {
            return;
        }
        const Path object = object_path(path_at(removed.offset));
        const bool is_user = removed.array->record == &user_record;
        const bool is_own = is_user && has_highest_privilege(removed.slot);
        note(is_own ? RiskKind::user : RiskKind::removal, label_of(object, before_),
             "is removed" + std::string(is_own ? "; no user has a higher privilege" : "") +
                 references_to(*removed.array, removed.slot, before_));
    }

    void see(const Setting& setting)
    {
        const Field& field = *setting.field;
        const View& view = *line_.standing.view;
        const bool is_name = view.objects != nullptr && view.objects->record->name_member == &field;
        const RiskyPart* const part = risky_part(setting.offset);
        if (part != nullptr && part->field->array) {
            see_entry(*part, setting);
        } else if (is_name) {
            see_name(setting);
        } else if (field.syntax.risk.when != RiskMark::When::never) {
            see(setting, field.syntax.risk);
        } else if (part != nullptr) {
            see(setting, part->field->element.risk);
        }
    }

    /// An entry of an allow list.
    void see_entry(const RiskyPart& list, const Setting& setting)
    {
        const std::size_t slot = (setting.offset - list.offset) / list.field->width;
        GSystemServiceAllow was{};
        GSystemServiceAllow is{};
        std::memcpy(&was, before(list.offset + slot * sizeof was), sizeof was);
        std::memcpy(&is, after(list.offset + slot * sizeof is), sizeof is);
        const RiskKind kind = list.field->element.risk.kind;
        const bool changed = std::memcmp(&was, &is, sizeof is) != 0;
        const std::string name = fmt::format("{} allow list", list.field->element.lead);
        if (changed) {
            note(kind, name + ":",
                 in_use(*list.field->record, reinterpret_cast<const unsigned char*>(&was))
                     ? fmt::format("{} becomes {}", value_text(was), value_text(is))
                     : value_text(is) + " is added");
        }
        // One of nothing but zeros counts as free, but a device may take it at its word.
        if (is.mask == 0 && (changed || line_.created.array == list.field)) {
            note(kind, name + " admits any address:", value_text(is));
        }
    }

    void see_name(const Setting& setting)
    {
        const Standing& at = line_.standing;
        const std::size_t offset = at.view->offset + at.slot * at.view->objects->width;
        const bool emptied = *before(setting.offset) != 0 && *after(setting.offset) == 0;
        if (emptied && watch_.made_.count(offset) == 0) {
            note(RiskKind::emptied, label_of(object_path(path_at(offset)), before_),
                 "is emptied, not removed" + references_to(*at.view->objects, at.slot, device_));
        }
    }

    void see(const Setting& setting, const RiskMark& mark)
    {
        const Field& field = *setting.field;
        const unsigned char* const was = before(setting.offset);
        const unsigned char* const is = after(setting.offset);
        if (means_the_same(field, was, before_, is, device_) || field.syntax.kind == Syntax::Kind::existence ||
            field.syntax.kind == Syntax::Kind::key) {
            return;
        }
        const Path path = path_at(setting.offset);
        const Path object = object_path(path);
        if (mark.when == RiskMark::When::shared) {
            see_shared(setting, mark.kind, object);
            return;
        }
        if (watch_.made_.count(offset_of(object)) != 0 ||
            (mark.kind == RiskKind::user && !has_highest_privilege(object.steps().back().index))) {
            return;
        }
        const std::string name = setting_name(path, bytes_of(before_));
        if (mark.when == RiskMark::When::changed) {
            const std::string_view command = field.syntax.set != nullptr ? field.syntax.set : "";
            const bool is_switch = field.form == Form::boolean && field.syntax.kind != Syntax::Kind::with &&
                                   command.find('|') == command.npos;
            const std::string subject = subject_of(object, is_switch ? switched(name) : name);
            note(mark.kind, subject,
                 is_switch ? switch_text(get_number(field, is) != 0, mark.kind)
                           : change_text(setting, mark.kind, subject));
            return;
        }
        const std::string subject = subject_of(object, switched(name));
        const bool on = get_number(field, is) != 0;
        if (on == (mark.when == RiskMark::When::switched_on)) {
            const bool is_port = line_.standing.view->offset == offsetof(GCfg, pon.olt.channel);
            note(mark.kind, subject, switch_text(on, mark.kind) + (is_port ? onts_on_port(line_.standing.slot) : ""));
        } else if (was_noted(mark.kind, subject)) {
            note(mark.kind, subject, "then on again");
        }
    }

    /// The settings of an object with a view of its own stand behind its name; others have it in their command.
    std::string subject_of(const Path& object, const std::string& name) const
    {
        const Field& array = *object.steps().back().field;
        if (!array.array || array.element.enter == nullptr) {
            return name;
        }
        const std::string label = label_of(object, before_);
        return name.empty() ? label : fmt::format("{}: {}", label, name);
    }

    static std::string switch_text(bool on, RiskKind kind)
    {
        return kind == RiskKind::shutdown ? "is shut down" : on ? "is switched on" : "is switched off";
    }

    std::string change_text(const Setting& setting, RiskKind kind, const std::string& subject) const
    {
        const Field& field = *setting.field;
        if (field.form == Form::secret || field.form == Form::boolean) {
            return "changes";
        }
        const std::string to = value_text(field, after(setting.offset), device_);
        return was_noted(kind, subject)
                   ? "then to " + to
                   : fmt::format("changes from {} to {}", value_text(field, before(setting.offset), before_), to);
    }

    std::string onts_on_port(std::size_t port) const
    {
        std::size_t count = 0;
        for (std::size_t i = 0; i < GCFG_ONTS_PER_PORT; ++i) {
            count += device_.pon.ont[port * GCFG_ONTS_PER_PORT + i].exist != 0 ? 1U : 0U;
        }
        return count == 0 ? "" : fmt::format("; {} {} on it", counted(count, "ONTs"), count == 1 ? "is" : "are");
    }

    void see_shared(const Setting& setting, RiskKind kind, const Path& object)
    {
        const Field& field = *setting.field;
        const Path::Step& own = object.steps().back();
        const unsigned char* const value = after(setting.offset);
        const std::size_t first = setting.offset - own.index * own.field->width;
        if (std::all_of(value, value + field.width, [](unsigned char byte) { return byte == 0; })) {
            return;
        }
        std::string holder;
        std::size_t others = 0;
        for (std::size_t i = 0; i < own.field->count; ++i) {
            const std::size_t offset = first + i * own.field->width;
            if (i == own.index || std::memcmp(after(offset), value, field.width) != 0) {
                continue;
            }
            const Path there = object_path(path_at(offset));
            if (is_there(there, device_)) {
                holder = holder.empty() ? object_name(there, bytes_of(device_)) : holder;
                ++others;
            }
        }
        if (others != 0) {
            std::string text;
            append_value(text, field, value);
            note(kind, object_name(object, bytes_of(device_)),
                 fmt::format("gets {} {}, which {} still {}", field.name, text,
                             others == 1 ? holder : fmt::format("{} and {} more", holder, others - 1),
                             others == 1 ? "has" : "have"));
        }
    }

    RiskWatch& watch_;
    const Line& line_;
    const GCfg& before_;
    const GCfg& device_;
};

RiskWatch::RiskWatch(const GCfg& running) : before_(std::make_unique<GCfg>(running))
{
    for (const GSystemUser& user : running.system.user) {
        if (user.exist != 0) {
            highest_privilege_ = std::max<std::int64_t>(highest_privilege_, user.priority);
        }
    }
}

void RiskWatch::see(const Line& line, const GCfg& device)
{
    unsigned char* const before = bytes_of(*before_);
    const Object& created = line.created;
    if (created.array != nullptr) {
        make_blank(*created.array->record, before + created.offset);
        if (has_own_commands(*created.array)) {
            made_.insert(created.offset);
        }
    }
    Sight(*this, line, device).see();
    for (const Setting& setting : line.settings) {
        std::memcpy(before + setting.offset, bytes_of(device) + setting.offset, setting.size);
    }
    if (line.removed.array != nullptr) {
        make_blank(*line.removed.array->record, before + line.removed.offset);
    }
}

std::vector<Risk> RiskWatch::risks() const
{
    constexpr std::size_t most = 3; // changes that a sentence names
    std::vector<Risk> risks;
    for (const Found& found : found_) {
        const std::size_t shown = found.changes.size() <= most + 1 ? found.changes.size() : most;
        const auto end = found.changes.begin() + static_cast<std::ptrdiff_t>(shown);
        std::string text = fmt::format("{} {}", found.subject, fmt::join(found.changes.begin(), end, ", "));
        if (shown < found.changes.size()) {
            text += fmt::format(" and {} more", found.changes.size() - shown);
        }
        risks.push_back({found.kind, std::move(text), found.lines});
    }
    std::stable_sort(risks.begin(), risks.end(), [](const Risk& a, const Risk& b) { return a.kind < b.kind; });
    return risks;
}

} // namespace pondiff::tool
