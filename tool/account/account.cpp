#include "tool/account/account.h"

#include "tool/account/meaning.h"
#include "tool/account/naming.h"
#include "tool/json/forms.h"
#include "tool/json/values.h"
#include "tool/language/objects.h"
#include "tool/language/sayable.h"

#include <algorithm>
#include <fmt/format.h>
#include <map>
#include <utility>

namespace pondiff::tool {

const char* name_of(Fate fate)
{
    static constexpr const char* names[] = {"carried",   "no_command", "not_said", "refused",
                                            "different", "left_over",  "disturbed"};
    return names[static_cast<std::size_t>(fate)];
}

const char* name_of(ObjectAccount::Change change)
{
    static constexpr const char* names[] = {"changed", "added", "removed"};
    return names[static_cast<std::size_t>(change)];
}

namespace {

bool tells_or_shows_existence(const Field& field)
{
    return field.syntax.kind == Syntax::Kind::existence || field.syntax.kind == Syntax::Kind::key ||
           field.name == "name";
}

/// Why a script has no command for a value.
std::string why_not_said(const Item& item, std::string_view in_free_slot)
{
    const Syntax& syntax = item.field->syntax;
    if (!in_free_slot.empty()) {
        return std::string(in_free_slot);
    }
    if (syntax.kind == Syntax::Kind::with) {
        return fmt::format("it is set only together with {}", syntax.reason);
    }
    if (syntax.kind == Syntax::Kind::ambiguous) {
        return "its command is the same for every value";
    }
    if (is_number(item.field->form) && !item.field->array &&
        !can_be_said(*item.field, get_number(*item.field, item.at[wanted]))) {
        return "no command says this value";
    }
    return "the script has no command for it";
}

} // namespace

class Account::Builder {
  public:
    explicit Builder(Account& account) : account_(account) {}

    void build()
    {
        for_each_different_meaning(account_.configurations_, [this](const Beside<3>& beside) { add(beside); });
        merge_renamed();
        for (Entry& entry : entries_) {
            account_.objects_.push_back(std::move(entry.object));
        }
        auto& objects = account_.objects_;
        const auto is_empty = [](const ObjectAccount& object) { return object.items.empty(); };
        objects.erase(std::remove_if(objects.begin(), objects.end(), is_empty), objects.end());
        std::stable_sort(objects.begin(), objects.end(),
                         [](const ObjectAccount& a, const ObjectAccount& b) { return first_line(a) < first_line(b); });
        for (const ObjectAccount& object : objects) {
            for (const Item& item : object.items) {
                ++account_.counts_[static_cast<std::size_t>(item.fate)];
            }
        }
    }

  private:
    /// An object, and where it is in each configuration.
    struct Entry {
        ObjectAccount object;
        Path path;
        std::array<const unsigned char*, 3> at;
        std::array<bool, 3> there;
    };

    static std::uint32_t first_line(const ObjectAccount& object)
    {
        std::uint32_t first = UINT32_MAX;
        for (const Item& item : object.items) {
            first = item.lines.empty() ? first : std::min(first, item.lines.front());
        }
        return first;
    }

    const Replay& replay() const { return account_.replay_; }

    std::size_t offset_in(At which, const unsigned char* at) const
    {
        return static_cast<std::size_t>(at - reinterpret_cast<const unsigned char*>(account_.configurations_[which]));
    }

    bool same(const Beside<3>& beside, At a, At b) const { return same_in(beside, account_.configurations_, a, b); }

    /// The lines that have made, named or removed an object or an entry.
    LineNumbers lines_naming(const Record& record, const unsigned char* element, At which) const
    {
        const std::size_t offset = offset_in(which, element);
        const std::uint32_t line = which == after ? replay().line_creating(offset) : replay().line_removing(offset);
        if (line != 0) {
            return {line};
        }
        const Field* const name = record.name_member != nullptr ? record.name_member : record.key_member;
        return name != nullptr ? replay().lines_setting(offset + name->offset) : LineNumbers{};
    }

    /// The lines that have given a field what it holds after the script.
    LineNumbers lines_of(const Beside<3>& beside) const
    {
        const auto& steps = beside.path.steps();
        const Record* const record = beside.object != 0 ? steps[beside.object - 1].field->record : nullptr;
        if (!beside.there[after]) {
            return record != nullptr && beside.there[running] ? lines_naming(*record, beside.element[running], running)
                                                              : LineNumbers{};
        }
        LineNumbers lines = replay().lines_setting(offset_in(after, beside.at[after]));
        if (lines.empty() && beside.field.form == Form::reference) {
            lines = lines_naming_referred(beside);
        }
        if (lines.empty() && record != nullptr) {
            const std::uint32_t created = replay().line_creating(offset_in(after, beside.element[after]));
            lines = created != 0 ? LineNumbers{created} : LineNumbers{};
        }
        if (lines.empty() && record != nullptr && !beside.there[running]) {
            lines = lines_naming(*record, beside.element[after], after);
        }
        return lines;
    }

    LineNumbers lines_naming_referred(const Beside<3>& beside) const
    {
        const auto to = referred(beside.field.reference);
        const std::int64_t slot = slot_referred(beside.field, get_number(beside.field, beside.at[after]));
        if (slot < 0 || slot >= to->field->count) {
            return {};
        }
        const auto* const configuration = reinterpret_cast<const unsigned char*>(account_.configurations_[after]);
        return lines_naming(*to->field->record,
                            configuration + to->offset + static_cast<std::size_t>(slot) * to->field->width, after);
    }

    /// Whether a refused line would have set the field.
    bool concerns(const Replay::Refusal& refusal, const Beside<3>& beside) const
    {
        if (refusal.command == nullptr) {
            return false;
        }
        const Pattern& command = *refusal.command;
        const auto& targets = command.targets;
        const bool sets = command.field == &beside.field ||
                          std::any_of(targets.begin(), targets.end(),
                                      [&](const Target& target) { return target.field == &beside.field; });
        const auto& steps = beside.path.steps();
        const bool names = command.array != nullptr && beside.object != 0 && tells_or_shows_existence(beside.field) &&
                           steps[beside.object - 1].field == command.array;
        return (sets || names) && is_in_its_object(refusal, beside) && is_its_element(refusal, beside);
    }

    bool is_in_its_object(const Replay::Refusal& refusal, const Beside<3>& beside) const
    {
        const View& view = *refusal.standing.view;
        if (view.objects == nullptr || !beside.there[after]) {
            return true; // or its own object is missing
        }
        const std::size_t begin = view.offset + refusal.standing.slot * view.objects->width;
        const std::size_t offset = offset_in(after, beside.at[after]);
        return offset >= begin && offset < begin + view.objects->width;
    }

    /// Whether the element that a refused line names, if it names one by a text, is the one that the field is in.
    static bool is_its_element(const Replay::Refusal& refusal, const Beside<3>& beside)
    {
        const Field* const array = refusal.command->array;
        if (array == nullptr || refusal.command->element < 0 || array->element.told != Element::Told::by_name ||
            beside.object == 0) {
            return true;
        }
        const Step& step = beside.path.steps()[beside.object - 1];
        if (step.field != array) {
            return true;
        }
        const Field& name = *array->record->name_member;
        for (const At which : {running, wanted, after}) {
            if (beside.there[which] && text_in(name, beside.element[which] + name.offset) == refusal.element) {
                return true;
            }
        }
        return false;
    }

    const Replay::Refusal* refusal_of(const Beside<3>& beside) const
    {
        for (const Replay::Refusal& refusal : replay().refusals()) {
            if (concerns(refusal, beside)) {
                return &refusal;
            }
        }
        return nullptr;
    }

    /// What is to be said of a free slot that happened to hold the wanted value, so that the script leaves it out.
    std::string_view said_of_free_slot(const Beside<3>& beside) const
    {
        if (beside.there[running] || !beside.there[wanted]) {
            return {};
        }
        const std::size_t offset = offset_in(wanted, beside.at[wanted]);
        const auto* const before = reinterpret_cast<const unsigned char*>(account_.configurations_[running]) + offset;
        const bool held = std::equal(before, before + beside.field.width, beside.at[wanted]);
        return held ? "its slot held the same value before, so the script has no command for it" : std::string_view{};
    }

    void judge(const Beside<3>& beside, Item& item) const
    {
        item.lines = lines_of(beside);
        item.set = beside.there[after] ? !replay().lines_setting(offset_in(after, beside.at[after])).empty()
                                       : !item.lines.empty();
        if (same(beside, wanted, after)) {
            item.fate = Fate::carried;
            return;
        }
        const bool unwanted = beside.there[after] && !beside.there[wanted];
        const bool was_there = unwanted && replay().line_creating(offset_in(after, beside.element[after])) == 0;
        if (was_there) {
            item.fate = Fate::left_over;
            const Replay::Refusal* const refusal = refusal_of(beside);
            if (refusal != nullptr) {
                item.lines = {refusal->line};
                item.reason = refusal->reason + ", " + refusal->place;
            }
            return;
        }
        if (unwanted || same(beside, running, wanted)) {
            item.fate = Fate::disturbed;
            return;
        }
        if (const char* const reason = why_no_command(beside.path)) {
            item.fate = Fate::no_command;
            item.reason = reason;
            item.lines.clear();
            return;
        }
        if (beside.there[after] && item.set) {
            item.fate = Fate::different;
            return;
        }
        if (const Replay::Refusal* const refusal = refusal_of(beside)) {
            item.fate = Fate::refused;
            item.lines = {refusal->line};
            item.reason = refusal->reason + ", " + refusal->place;
            return;
        }
        item.fate = Fate::not_said;
        item.lines.clear();
        item.reason = why_not_said(item, said_of_free_slot(beside));
    }

    /// A list is one field.
    static std::string path_text(const Beside<3>& beside)
    {
        std::string text = beside.path.text();
        return beside.field.layout == Layout::ended_list ? text.substr(0, text.rfind('.')) : text;
    }

    void add(const Beside<3>& beside)
    {
        Item item{&beside.field, path_text(beside), beside.at, beside.there, Fate::carried, false, {}, {}};
        judge(beside, item);
        Entry& entry = entry_of(beside);
        if (beside.object == entry.path.steps().size()) {
            entry.there = beside.there;
            entry.at = beside.element;
        }
        entry.object.left_over = entry.object.left_over || item.fate == Fate::left_over;
        entry.object.items.push_back(std::move(item));
    }

    /// The object of a field. The fields of an object follow one another.
    Entry& entry_of(const Beside<3>& beside)
    {
        const std::size_t in = beside.counted_in[object_length(beside.path) - 1];
        if (last_ < entries_.size() && in == last_in_ && begins_with(beside.path, entries_[last_].path)) {
            return entries_[last_];
        }
        const Path path = object_path(beside.path);
        const auto* const configuration = reinterpret_cast<const unsigned char*>(account_.configurations_[in]);
        const std::string name = object_name(path, configuration);
        const auto [known, is_new] = numbers_.try_emplace({path.text(), name}, entries_.size());
        if (is_new) {
            Entry entry{{}, path, {}, {true, true, true}};
            const Field& field = *path.steps().back().field;
            entry.object.array = field.array ? &field : nullptr;
            entry.object.name = name;
            entry.object.detail = object_detail(path, configuration);
            entry.object.path = path.text();
            entries_.push_back(std::move(entry));
        }
        last_ = known->second;
        last_in_ = in;
        return entries_[last_];
    }

    static bool begins_with(const Path& path, const Path& object)
    {
        const auto same = [](const Step& a, const Step& b) { return a.field == b.field && a.index == b.index; };
        return object_length(path) == object.steps().size() &&
               std::equal(object.steps().begin(), object.steps().end(), path.steps().begin(), same);
    }

    /// An object that is there no more and one that is new are one, renamed, where the device has moved nothing.
    void merge_renamed()
    {
        for (Entry& entry : entries_) {
            const std::array<bool, 3>& there = entry.there;
            entry.object.change = !there[running] && there[wanted]   ? ObjectAccount::Change::added
                                  : there[running] && !there[wanted] ? ObjectAccount::Change::removed
                                                                     : ObjectAccount::Change::changed;
        }
        for (Entry& entry : entries_) {
            const bool is_new = !entry.there[running] && entry.there[after];
            if (!is_new || replay().line_creating(offset_in(after, entry.at[after])) != 0) {
                continue;
            }
            const std::size_t offset = offset_in(after, entry.at[after]);
            const auto old = std::find_if(entries_.begin(), entries_.end(), [&](const Entry& other) {
                return other.there[running] && !other.there[wanted] && !other.there[after] &&
                       offset_in(running, other.at[running]) == offset;
            });
            if (old != entries_.end()) {
                rename(*old, entry);
            }
        }
    }

    void rename(Entry& old, Entry& entry)
    {
        entry.object.old_name = old.object.name;
        entry.object.change = entry.there[wanted] ? ObjectAccount::Change::changed : ObjectAccount::Change::removed;
        auto& items = entry.object.items;
        const unsigned char* const old_at = old.at[running];
        const unsigned char* const new_at = entry.at[after];
        for (Item& item : items) {
            item.there[running] = true;
            item.at[running] = old_at + (item.at[after] - new_at);
        }
        if (entry.there[wanted]) {
            const auto was_so = [this](const Item& item) {
                return item.fate == Fate::carried &&
                       means_the_same(*item.field, item.at[running], *account_.configurations_[running],
                                      item.at[wanted], *account_.configurations_[wanted]);
            };
            items.erase(std::remove_if(items.begin(), items.end(), was_so), items.end());
        } else {
            take_emptied(old, entry);
        }
        old.object.items.clear();
    }

    /// What an object has lost that is still there under another name, though it is not wanted.
    void take_emptied(Entry& old, Entry& entry)
    {
        auto& items = entry.object.items;
        for (Item& item : old.object.items) {
            const bool is_known = std::any_of(items.begin(), items.end(), [&item](const Item& other) {
                return other.at[running] == item.at[running];
            });
            if (is_known) {
                continue;
            }
            item.there[after] = true;
            item.at[after] = entry.at[after] + (item.at[running] - old.at[running]);
            const LineNumbers lines = replay().lines_setting(offset_in(after, item.at[after]));
            item.lines = lines.empty() ? item.lines : lines;
            items.push_back(std::move(item));
        }
    }

    using Step = Path::Step;

    Account& account_;
    std::vector<Entry> entries_;
    std::map<std::pair<std::string, std::string>, std::size_t> numbers_;
    std::size_t last_ = SIZE_MAX; ///< the entry of the field before
    std::size_t last_in_ = 0;
};

Account::Account(const GCfg& running, const GCfg& wanted, std::string_view script,
                 const std::function<void(const Line&, const GCfg&)>& watch)
    : configurations_{&running, nullptr, &wanted}, replay_(running, script, watch)
{
    configurations_[after] = &replay_.after();
    Builder(*this).build();
}

Account::Verdict Account::verdict() const
{
    if (objects_.empty()) {
        return Verdict::nothing;
    }
    std::size_t all = 0;
    for (const std::size_t fate : counts_) {
        all += fate;
    }
    return count(Fate::carried) == all ? Verdict::complete : Verdict::incomplete;
}

bool Account::sets_wrongly() const
{
    const auto wrongly = [](const Item& item) {
        return item.set && (item.fate == Fate::different || item.fate == Fate::disturbed);
    };
    return std::any_of(objects_.begin(), objects_.end(), [&](const ObjectAccount& object) {
        return std::any_of(object.items.begin(), object.items.end(), wrongly);
    });
}

std::size_t Account::offset_of(const Item& item) const
{
    const At which = item.there[wanted] ? wanted : item.there[running] ? running : after;
    return static_cast<std::size_t>(item.at[which] - reinterpret_cast<const unsigned char*>(configurations_[which]));
}

std::string Account::value(const Item& item, At which) const
{
    const Field& field = *item.field;
    std::string text;
    if (!item.there[which]) {
        return text;
    }
    if (field.form == Form::reference) {
        const ReferenceMeant meant = reference_meant(field, item.at[which], *configurations_[which]);
        if (meant.kind != ReferenceMeant::Kind::number) {
            if (meant.kind == ReferenceMeant::Kind::none) {
                return "none";
            }
            append_quoted(text, meant.name);
            return text;
        }
    }
    if (field.layout != Layout::ended_list) {
        append_value(text, field, item.at[which]);
        return text;
    }
    for (std::size_t i = 0; i < field.count && get_number(field, item.at[which] + i * field.width) != -1; ++i) {
        text += text.empty() ? "[" : ", ";
        append_value(text, field, item.at[which] + i * field.width);
    }
    return text.empty() ? "[]" : text + "]";
}

} // namespace pondiff::tool
