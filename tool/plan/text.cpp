#include "tool/plan/text.h"

#include "tool/account/alike.h"
#include "tool/visible.h"

#include <algorithm>
#include <fmt/format.h>
#include <map>
#include <set>

namespace pondiff::tool {

namespace {

constexpr std::size_t most_alike = 3;   ///< objects with the same changes that are shown
constexpr std::size_t most_fields = 24; ///< of an object
constexpr std::size_t most_kinds = 4;   ///< of objects that are counted apart
constexpr std::size_t most_lines = 10;  ///< of a list
constexpr std::size_t longest_line = 60;
constexpr std::size_t widest_name = 32;

const char* title_of(Fate fate)
{
    switch (fate) {
    case Fate::no_command:
        return "No command sets these fields";
    case Fate::not_said:
        return "The script has no command for these fields";
    case Fate::refused:
        return "The device refuses the commands for these fields";
    case Fate::different:
        return "The script sets these fields to something else";
    case Fate::left_over:
        return "These are not wanted, and stay";
    case Fate::disturbed:
        return "These are as wanted now, and not afterwards";
    case Fate::carried:
        break;
    }
    return "";
}

/// "1 ONT", "2 ONTs"
std::string counted(std::size_t count, std::string_view plural)
{
    if (count == 1 && !plural.empty() && plural.back() == 's') {
        plural.remove_suffix(1);
    }
    return fmt::format("{} {}", count, plural);
}

class Writer {
  public:
    Writer(const Plan& plan, const PlanStyle& style) : plan_(plan), account_(plan.account), style_(style) {}

    std::string write()
    {
        write_verdict();
        write_risks();
        write_objects();
        for (const Fate fate : fates_not_carried) {
            write_not_applied(fate);
        }
        write_refused_lines();
        return std::move(out_);
    }

  private:
    static constexpr const char* bold = "1";
    static constexpr const char* red = "31";
    static constexpr const char* green = "32";
    static constexpr const char* yellow = "33";

    std::string colored(const std::string& text, const char* code) const
    {
        return style_.color ? fmt::format("\x1B[{}m{}\x1B[0m", code, text) : text;
    }

    void line(const std::string& text) { out_ += text + '\n'; }
    void title(const std::string& text) { line("\n" + colored(text, bold)); }

    // ----------------------------------------------------------------------------------------------- the first line

    void write_verdict()
    {
        const Account::Verdict verdict = account_.verdict();
        const std::size_t carried = account_.count(Fate::carried);
        std::size_t not_carried = 0;
        for (const Fate fate : fates_not_carried) {
            not_carried += account_.count(fate);
        }
        const bool is_idle = account_.replay().changes_nothing() && plan_.risks.empty();
        if (verdict == Account::Verdict::nothing && is_idle) {
            line(colored("nothing to do: the device holds what is wanted", green));
            return;
        }
        std::vector<std::string> counts = counts_of_objects();
        counts.insert(counts.begin(), counts.empty() ? "nothing changed" : "");
        counts.erase(std::remove(counts.begin(), counts.end(), ""), counts.end());
        const bool complete = verdict != Account::Verdict::incomplete;
        std::string text =
            fmt::format("{}: {}; {}; {} carried", complete ? "complete" : "INCOMPLETE", fmt::join(counts, ", "),
                        counted(account_.replay().lines().size(), "lines"), counted(carried, "fields"));
        if (not_carried != 0) {
            text += fmt::format(", {} NOT applied", not_carried);
        }
        text += plan_.risks.empty() ? "; no risks" : "; " + counted(plan_.risks.size(), "risks");
        line(colored(text, !complete ? red : plan_.risks.empty() ? green : yellow));
    }

    std::vector<std::string> counts_of_objects() const
    {
        std::vector<const Field*> kinds;
        std::map<const Field*, Counts> numbers;
        Counts totals;
        for (const ObjectAccount& object : account_.objects()) {
            if (numbers.count(object.array) == 0) {
                kinds.push_back(object.array);
            }
            ++numbers[object.array][word_of(object)];
            ++totals[word_of(object)];
        }
        std::vector<std::string> counts;
        if (kinds.size() > most_kinds) {
            add_counts(counts, totals, "objects");
            return counts;
        }
        for (const Field* const kind : kinds) {
            add_counts(counts, numbers[kind], kind != nullptr ? kind->plural : "parts of the settings");
        }
        return counts;
    }

    using Counts = std::map<std::string_view, std::size_t>;

    static void add_counts(std::vector<std::string>& counts, const Counts& numbers, std::string_view plural)
    {
        bool first = true;
        for (const std::string_view word : {"changed", "added", "removed", "left over"}) {
            const auto found = numbers.find(word);
            if (found != numbers.end()) {
                const std::size_t count = found->second;
                counts.push_back(
                    fmt::format("{} {}", first ? name_of_kind(count, plural) : std::to_string(count), word));
                first = false;
            }
        }
    }

    static std::string name_of_kind(std::size_t count, std::string_view plural)
    {
        return count == 1 && plural == "parts of the settings" ? "1 part of the settings" : counted(count, plural);
    }

    static const char* word_of(const ObjectAccount& object)
    {
        return is_left_over(object) ? "left over" : name_of(object.change);
    }

    /// Whether the object as a whole is not wanted and still there.
    static bool is_left_over(const ObjectAccount& object)
    {
        return object.array != nullptr &&
               std::any_of(object.items.begin(), object.items.end(), [&object](const Item& item) {
                   return item.fate == Fate::left_over && item.field == object.array->record->existence_member;
               });
    }

    // ---------------------------------------------------------------------------------------------------- the risks

    void write_risks()
    {
        if (plan_.risks.empty()) {
            return;
        }
        title("Risks");
        std::map<RiskKind, std::size_t> shown;
        std::map<RiskKind, std::size_t> more;
        for (const Risk& risk : plan_.risks) {
            if (!style_.full && ++shown[risk.kind] > most_lines) {
                ++more[risk.kind];
                continue;
            }
            line(colored(fmt::format("  {}", visible(risk.text)), yellow) + "  " + text_of(risk.lines));
        }
        for (const auto& [kind, count] : more) {
            line(fmt::format("  ... {} more of the kind \"{}\"", count, name_of(kind)));
        }
    }

    // -------------------------------------------------------------------------------------------------- the changes

    static std::string_view relative(const ObjectAccount& object, const Item& item)
    {
        return std::string_view(item.path).substr(object.path.size() + 1);
    }

    std::string value(const Item& item, At which) const { return shown_value(account_, item, which, style_.secrets); }

    std::string script_line(std::uint32_t number) const
    {
        const std::string text =
            style_.secrets ? std::string(account_.replay().lines()[number - 1]) : account_.replay().masked(number);
        return style_.full ? visible(text) : shortened(visible(text), longest_line);
    }

    /// What objects that are folded have in common.
    std::string signature(const ObjectAccount& object, bool values) const
    {
        std::string text =
            fmt::format("{}{}{}", fmt::ptr(object.array), word_of(object), object.array == nullptr ? object.path : "");
        for (const Item& item : object.items) {
            text += fmt::format("\n{}:{}", relative(object, item), name_of(item.fate));
            if (values) {
                text += fmt::format(":{}:{}", account_.value(item, running), account_.value(item, wanted));
            }
        }
        return text;
    }

    void write_objects()
    {
        if (!account_.objects().empty()) {
            title("Changes");
        }
        if (style_.full) {
            for (const ObjectAccount& object : account_.objects()) {
                write_object(object);
            }
        } else {
            write_folded();
        }
    }

    void write_folded()
    {
        using Objects = std::vector<const ObjectAccount*>;
        std::vector<std::string> order;
        std::map<std::string, Objects> alike;
        for (const ObjectAccount& object : account_.objects()) {
            Objects& group = alike[signature(object, true)];
            if (group.empty()) {
                order.push_back(signature(object, true));
            }
            group.push_back(&object);
        }
        std::map<std::string, std::size_t> shown;
        std::map<std::string, Objects> folded;
        for (const std::string& key : order) {
            const Objects& same = alike[key];
            const std::string fields = signature(*same.front(), false);
            if (++shown[fields] > most_alike) {
                Objects& others = folded[fields];
                others.insert(others.end(), same.begin(), same.end());
                continue;
            }
            const std::size_t count = same.size() <= most_alike + 1 ? same.size() : most_alike;
            for (std::size_t i = 0; i < count; ++i) {
                const ObjectAccount& object = *same[i];
                write_object(object);
            }
            if (count < same.size()) {
                write_more(*same.front(), same.size() - count, "with the same");
            }
        }
        for (const auto& [fields, others] : folded) {
            write_more(*others.front(), others.size(), "with other values in the same");
        }
    }

    void write_more(const ObjectAccount& object, std::size_t count, const char* how)
    {
        const std::size_t changes = object.items.size();
        line(fmt::format("  ... {} more {} {} {}", count, object.array != nullptr ? object.array->plural : "parts", how,
                         changes == 1 ? "change" : fmt::format("{} changes", changes)));
    }

    void write_object(const ObjectAccount& object)
    {
        std::string head = visible(object.name);
        if (!object.detail.empty()) {
            head += fmt::format(" ({})", visible(object.detail));
        }
        head = colored(head, bold);
        if (!object.old_name.empty()) {
            head += fmt::format(", renamed, was {}{}", visible(object.old_name),
                                is_left_over(object) ? ", not wanted" : "");
        } else if (object.array != nullptr) {
            head += is_left_over(object) ? ", not wanted" : fmt::format(", {}", word_of(object));
        }
        line("  " + head);
        if (is_gone(object)) {
            line("    " + where(object.items.front()));
            return;
        }
        const std::vector<Alike> fields = fields_of(object);
        std::size_t width = 0;
        for (const Alike& alike : fields) {
            width = std::max(width, relative(object, *alike.item).size());
        }
        width = std::min(width, widest_name);
        std::size_t shown = 0;
        for (const Alike& alike : fields) {
            if (!style_.full && ++shown > most_fields) {
                line(fmt::format("    ... {}", counted(fields.size() - most_fields, "more fields")));
                return;
            }
            line(fmt::format("    {:<{}}  {}  {}{}", relative(object, *alike.item), width, change_of(*alike.item),
                             where(*alike.item), and_more(alike)));
        }
    }

    /// What a person wants to see of an object; that a new one is there goes without saying.
    std::vector<Alike> fields_of(const ObjectAccount& object) const
    {
        std::vector<const Item*> items;
        items.reserve(object.items.size());
        for (const Item& item : object.items) {
            const bool is_name = item.field == object_name_field(object) ||
                                 (object.array != nullptr && item.field == object.array->record->existence_member);
            if (object.change != ObjectAccount::Change::added || !is_name || item.fate != Fate::carried) {
                items.push_back(&item);
            }
        }
        return folded(items);
    }

    std::vector<Alike> folded(const std::vector<const Item*>& items) const
    {
        if (!style_.full) {
            return fold(account_, items);
        }
        std::vector<Alike> all;
        all.reserve(items.size());
        for (const Item* const item : items) {
            all.push_back({item});
        }
        return all;
    }

    static const Field* object_name_field(const ObjectAccount& object)
    {
        return object.array != nullptr ? object.array->record->name_member : nullptr;
    }

    /// Whether an object is removed as a whole: its fields say nothing more.
    static bool is_gone(const ObjectAccount& object)
    {
        return object.change == ObjectAccount::Change::removed &&
               std::all_of(object.items.begin(), object.items.end(), [&object](const Item& item) {
                   return item.fate == Fate::carried && item.lines == object.items.front().lines;
               });
    }

    std::string change_of(const Item& item) const
    {
        if (item.field->form == Form::secret && !style_.secrets) {
            return "*** (changed)";
        }
        const std::string before = value(item, running);
        std::string wish = value(item, wanted);
        if (!item.there[running]) {
            return item.there[wanted] ? wish : "not wanted";
        }
        return item.there[wanted] ? fmt::format("{} -> {}", before, wish) : fmt::format("{} -> not there", before);
    }

    std::string where(const Item& item) const
    {
        if (item.fate != Fate::carried) {
            return colored(fmt::format("NOT applied: {}", name_of(item.fate)), red);
        }
        if (item.lines.empty()) {
            return "";
        }
        return fmt::format("{}: {}", text_of(item.lines), script_line(item.lines.back()));
    }

    // --------------------------------------------------------------------------------------------- what is not done

    void write_not_applied(Fate fate)
    {
        if (account_.count(fate) == 0) {
            return;
        }
        title(fmt::format("{} ({})", title_of(fate), account_.count(fate)));
        const std::vector<Alike> fields = folded(items_with(account_, std::array{fate}));
        std::size_t shown = 0;
        for (const Alike& alike : fields) {
            if (!style_.full && ++shown > most_lines) {
                line(fmt::format("  ... {} more", fields.size() - most_lines));
                return;
            }
            write_not_applied(alike);
        }
    }

    void write_not_applied(const Alike& alike)
    {
        const Item& item = *alike.item;
        std::string text = fmt::format("  {}{}: {}", colored(visible(item.path), red), and_more(alike),
                                       outcome(account_, item, style_.secrets));
        if (!item.lines.empty()) {
            text += fmt::format("; {}: {}", text_of(item.lines), script_line(item.lines.back()));
        }
        if (!item.reason.empty()) {
            text += "; " + visible(item.reason);
        }
        line(text);
        line("    " + plan_.remedy(item));
    }

    /// Lines that are refused and set nothing that is to change.
    void write_refused_lines()
    {
        const auto& refusals = account_.replay().refusals();
        if (refusals.empty()) {
            return;
        }
        title(fmt::format("Refused lines ({})", refusals.size()));
        std::size_t shown = 0;
        for (const Replay::Refusal& refusal : refusals) {
            if (!style_.full && ++shown > most_lines) {
                line(fmt::format("  ... {} more", refusals.size() - most_lines));
                return;
            }
            line(fmt::format("  line {}: {}; {}, {}", refusal.line, script_line(refusal.line), visible(refusal.reason),
                             visible(refusal.place)));
        }
    }

    const Plan& plan_;
    const Account& account_;
    const PlanStyle& style_;
    std::string out_;
};

} // namespace

std::string plan_text(const Plan& plan, const PlanStyle& style)
{
    return Writer(plan, style).write();
}

} // namespace pondiff::tool
