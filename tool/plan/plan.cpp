#include "tool/plan/plan.h"

#include "tool/account/alike.h"

#include <algorithm>
#include <array>
#include <fmt/format.h>
#include <memory>
#include <set>
#include <string_view>
#include <unordered_set>

namespace pondiff::tool {

namespace {

/// The paths of what an account does not carry.
std::set<std::string> not_carried_by(const Account& account)
{
    std::set<std::string> paths;
    for (const Item* const item : items_with(account, fates_not_carried)) {
        paths.insert(item->path);
    }
    return paths;
}

class Remedies {
  public:
    Remedies(Plan& plan, const GCfg& running, const GCfg& wanted)
        : plan_(plan), running_(std::make_unique<GCfg>(running)), wanted_(std::make_unique<GCfg>(wanted)),
          open_(items_with(plan.account, std::array{Fate::not_said})),
          known_lines_(plan.account.replay().lines().begin(), plan.account.replay().lines().end())
    {
    }

    bool any_open() const { return !open_.empty(); }

    /// What a second script, written for what the device then holds, would set.
    void try_again(const ScriptRequest& request)
    {
        const auto device = std::make_unique<GCfg>(plan_.account.replay().after());
        take(*device, request, "run pondiff diff again after this script");
    }

    void try_area(const std::string& name)
    {
        const Area area = area_named(name);
        const bool concerned = std::any_of(open_.begin(), open_.end(), [&](const Item* item) {
            return overlaps(area.records, plan_.account.offset_of(*item), item->field->width);
        });
        if (concerned) {
            take(*running_, {area}, fmt::format("--only {}", name));
        }
    }

  private:
    void take(GCfg& device, const ScriptRequest& request, const std::string& remedy)
    {
        const std::string script = script_of(request, device, *wanted_);
        if (!has_other_lines(script)) {
            return;
        }
        const std::set<std::string> missed = not_carried_by(Account(device, *wanted_, script));
        const auto helps = [&](const Item* item) { return missed.count(item->path) == 0; };
        for (const Item* const item : open_) {
            if (helps(item)) {
                plan_.remedies.emplace(item->path, remedy);
            }
        }
        open_.erase(std::remove_if(open_.begin(), open_.end(), helps), open_.end());
    }

    /// Whether a script has a line that the plan's script has not.
    bool has_other_lines(std::string_view script) const
    {
        while (!script.empty()) {
            const std::size_t end = script.find('\n');
            if (known_lines_.count(script.substr(0, end)) == 0) {
                return true;
            }
            script.remove_prefix(end == script.npos ? script.size() : end + 1);
        }
        return false;
    }

    Plan& plan_;
    std::unique_ptr<GCfg> running_;
    std::unique_ptr<GCfg> wanted_;
    std::vector<const Item*> open_; ///< what nothing sets
    std::unordered_set<std::string_view> known_lines_;
};

} // namespace

std::string Plan::remedy(const Item& item) const
{
    const auto found = remedies.find(item.path);
    if (item.fate == Fate::not_said && found != remedies.end()) {
        return found->second;
    }
    constexpr const char* in_its_view = "give the command by hand, in the view that knows it";
    switch (item.fate) {
    case Fate::no_command:
        return "set it by hand: no command";
    case Fate::not_said:
        return "set it by hand";
    case Fate::refused:
        return in_its_view;
    case Fate::left_over:
        return item.reason.empty() ? "remove it by hand" : in_its_view;
    case Fate::different:
    case Fate::disturbed:
        return "correct the line, or set it by hand afterwards";
    case Fate::carried:
        break;
    }
    return "";
}

Plan make_plan(const GCfg& running, const GCfg& wanted, std::string_view script)
{
    RiskWatch watch(running);
    Account account(running, wanted, script,
                    [&watch](const Line& line, const GCfg& device) { watch.see(line, device); });
    return {std::move(account), watch.risks(), {}};
}

void find_remedies(Plan& plan, const GCfg& running, const GCfg& wanted, const ScriptRequest& request)
{
    Remedies remedies(plan, running, wanted);
    if (remedies.any_open()) {
        remedies.try_again(request);
    }
    for (const std::string& area : names_of_areas()) {
        if (remedies.any_open()) {
            remedies.try_area(area);
        }
    }
}

} // namespace pondiff::tool
