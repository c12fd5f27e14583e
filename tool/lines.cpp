#include "tool/lines.h"

#include "tool/messages.h"
#include "tool/visible.h"

#include <algorithm>
#include <fmt/format.h>
#include <utility>

namespace pondiff::tool {

namespace {

constexpr std::size_t most_shown = 20;

std::string shown(std::string_view line)
{
    constexpr std::size_t longest = 200; // longer than any command of a device
    return line.size() <= longest ? visible(line) : visible(line.substr(0, longest)) + "...";
}

std::string place_of(const Line& line, const GCfg& configuration)
{
    const bool at_top = line.standing.view->kind == View::Kind::top;
    return (at_top ? "at " : "in ") + visible(place_text(line.standing, configuration));
}

} // namespace

LineReport::LineReport(std::string file, const GCfg& configuration, bool is_filled_in)
    : file_(std::move(file)), configuration_(configuration), is_filled_in_(is_filled_in)
{
}

void LineReport::add(const Line& line)
{
    if (line.kind == Line::Kind::refused) {
        mention(refused_, line, line.reason);
        return;
    }
    taken_ = taken_ || line.kind != Line::Kind::passed_over;
    if (line.ambiguous && !(is_filled_in_ && line.of_any_value)) {
        const auto same = std::find_if(ambiguous_.shown.begin(), ambiguous_.shown.end(),
                                       [&line](const Mention& mention) { return mention.text == line.text; });
        if (same != ambiguous_.shown.end()) {
            ++same->lines;
            ++ambiguous_.lines;
        } else {
            mention(ambiguous_, line, "it is written for several values and sets none");
        }
    }
}

void LineReport::mention(Mentions& mentions, const Line& line, const std::string& reason) const
{
    ++mentions.lines;
    if (mentions.shown.size() < most_shown) {
        mentions.shown.push_back({line.number, place_of(line, configuration_), reason, line.text});
    }
}

void LineReport::print() const
{
    print(refused_, "refused");
    print(ambiguous_, "ambiguous");
}

void LineReport::print(const Mentions& mentions, const char* what) const
{
    std::size_t more = mentions.lines;
    for (const Mention& mention : mentions.shown) {
        const std::string lines = mention.lines == 1 ? "" : fmt::format(" ({} such lines)", mention.lines);
        report_warning(fmt::format("{}:{}: {} {}: {}: {}{}", file_, mention.number, what, mention.place, mention.reason,
                                   shown(mention.text), lines));
        more -= mention.lines;
    }
    if (more == 1) {
        report_warning(fmt::format("{}: 1 more line is {}", file_, what));
    } else if (more != 0) {
        report_warning(fmt::format("{}: {} more lines are {}", file_, more, what));
    }
}

std::string LineReport::first_refused() const
{
    return refused_.shown.empty() ? "" : shown(refused_.shown.front().text);
}

} // namespace pondiff::tool
