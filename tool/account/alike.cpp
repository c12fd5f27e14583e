#include "tool/account/alike.h"

#include "tool/visible.h"

#include <fmt/format.h>

namespace pondiff::tool {

namespace {

bool are_alike(const Account& account, const Item& a, const Item& b)
{
    return a.field == b.field && a.fate == b.fate && a.lines == b.lines && a.reason == b.reason &&
           account.value(a, running) == account.value(b, running) &&
           account.value(a, wanted) == account.value(b, wanted) && account.value(a, after) == account.value(b, after);
}

} // namespace

std::vector<Alike> fold(const Account& account, const std::vector<const Item*>& items)
{
    std::vector<Alike> folded;
    for (const Item* const item : items) {
        if (!folded.empty() && are_alike(account, *folded.back().item, *item)) {
            ++folded.back().more;
        } else {
            folded.push_back({item});
        }
    }
    return folded;
}

std::string and_more(const Alike& alike)
{
    return alike.more == 0 ? "" : fmt::format(" (and {} more like it)", alike.more);
}

std::string outcome(const Account& account, const Item& item, bool show_secrets)
{
    const auto value = [&](At which) { return shown_value(account, item, which, show_secrets); };
    const bool is_set = item.fate == Fate::different || item.fate == Fate::disturbed;
    const std::string wish = item.there[wanted] ? "wanted " + value(wanted) : "not wanted";
    return fmt::format("{}, {} {}", wish,
                       is_set              ? "becomes"
                       : item.there[after] ? "stays"
                                           : "is",
                       item.there[after] ? value(after) : "not there");
}

std::string text_of(const LineNumbers& lines)
{
    std::string text;
    for (std::size_t i = 0; i < lines.size();) {
        std::size_t last = i;
        while (last + 1 < lines.size() && lines[last + 1] == lines[last] + 1) {
            ++last;
        }
        text += text.empty() ? "" : ", ";
        text += last == i ? std::to_string(lines[i]) : fmt::format("{} to {}", lines[i], lines[last]);
        i = last + 1;
    }
    return (lines.size() == 1 ? "line " : "lines ") + text;
}

std::string why(const Item& item)
{
    if (!item.reason.empty()) {
        return item.lines.empty() ? item.reason : fmt::format("{}: {}", text_of(item.lines), item.reason);
    }
    if (item.fate == Fate::left_over) {
        return "the script does not remove it";
    }
    return item.lines.empty() ? "" : fmt::format("{} of the script", text_of(item.lines));
}

std::string shown_value(const Account& account, const Item& item, At which, bool show_secrets)
{
    constexpr std::size_t longest = 60;
    if (item.field->form == Form::secret && !show_secrets) {
        return item.there[which] ? "***" : "";
    }
    return shortened(visible(account.value(item, which)), longest);
}

} // namespace pondiff::tool
