#include "tool/account/replay.h"

#include "tool/language/objects.h"

#include <algorithm>
#include <utility>

namespace pondiff::tool {

Replay::Replay(const GCfg& running, std::string_view script, const std::function<void(const Line&, const GCfg&)>& watch)
    : after_(std::make_unique<GCfg>(running))
{
    read_script(script, *after_, [&](const Line& line) {
        add(line);
        if (watch) {
            watch(line, *after_);
        }
    });
    // By offset, so that what concerns one is found at once; of one offset, in the order of the lines.
    for (Events* const events : {&settings_, &creations_, &removals_}) {
        std::stable_sort(events->all.begin(), events->all.end(),
                         [](const Event& a, const Event& b) { return a.offset < b.offset; });
    }
}

void Replay::Events::add(std::size_t offset, std::size_t size, std::size_t line)
{
    all.push_back({offset, size, static_cast<std::uint32_t>(line)});
    widest = std::max(widest, size);
}

void Replay::add(const Line& line)
{
    lines_.push_back(line.text);
    const Standing& at = line.standing;
    if (at.view->kind == View::Kind::object &&
        (entered_.empty() || entered_.front().view != at.view || entered_.front().slot != at.slot)) {
        const auto same_view = [&at](const Standing& other) { return other.view == at.view; };
        entered_.erase(std::remove_if(entered_.begin(), entered_.end(), same_view), entered_.end());
        entered_.insert(entered_.begin(), at);
    }
    if (line.kind == Line::Kind::refused) {
        changes_nothing_ = false;
        add_refusal(line);
        return;
    }
    if (line.ambiguous) {
        ambiguous_.push_back(static_cast<std::uint32_t>(line.number));
    }
    const bool changes = line.kind == Line::Kind::removal || line.ambiguous || line.created.array != nullptr ||
                         (line.kind == Line::Kind::setting && !line.names_only);
    changes_nothing_ = changes_nothing_ && !changes;
    for (const Setting& setting : line.settings) {
        if (setting.field->form == Form::secret) {
            mask(line, text_in(*setting.field, reinterpret_cast<const unsigned char*>(after_.get()) + setting.offset));
        }
        settings_.add(setting.offset, setting.size, line.number);
    }
    if (line.created.array != nullptr) {
        creations_.add(line.created.offset, line.created.array->width, line.number);
    }
    if (line.removed.array != nullptr) {
        removals_.add(line.removed.offset, line.removed.array->width, line.number);
    }
}

void Replay::add_refusal(const Line& line)
{
    Refusal refusal{static_cast<std::uint32_t>(line.number), "", line.reason, nullptr, line.standing, {}};
    refusal.place = (line.standing.view->kind == View::Kind::top ? "at " : "in ") + place_text(line.standing, *after_);
    const std::string closed = std::string(line.text) + '"';
    Tokens tokens;
    tokens.read(line.text);
    if (tokens.error() != nullptr) {
        tokens.read(closed); // a quote that is not closed is the commonest error
    }
    std::vector<Standing> places{line.standing};
    places.insert(places.end(), entered_.begin(), entered_.end());
    places.push_back({&command_index().configure(), 0});
    places.push_back({&command_index().top(), 0});
    for (const Standing& place : places) {
        Match match;
        if (!command_index().find(*place.view, tokens, match)) {
            continue;
        }
        refusal.command = match.pattern;
        refusal.standing = place;
        if (match.pattern->element >= 0) {
            refusal.element = match.words[static_cast<std::size_t>(match.pattern->element)].text;
        }
        break;
    }
    mask_refused(line);
    refusals_.push_back(std::move(refusal));
}

void Replay::mask(const Line& line, std::string_view secret)
{
    std::string text(line.text);
    const std::size_t at = secret.empty() ? text.npos : text.rfind(secret);
    if (at != text.npos) {
        masked_[static_cast<std::uint32_t>(line.number)] = text.replace(at, secret.size(), "***");
    }
}

/// A refused line may be any text: what follows a word that announces a secret is taken for one.
void Replay::mask_refused(const Line& line)
{
    for (const std::string_view word : {"pass", "communit", "secret"}) {
        const std::size_t at = line.text.find(word);
        const std::size_t end = at != line.text.npos ? line.text.find_first_of(" \t", at) : at;
        if (end != line.text.npos) {
            masked_[static_cast<std::uint32_t>(line.number)] = std::string(line.text.substr(0, end)) + " ***";
            return;
        }
    }
}

std::string Replay::masked(std::uint32_t line) const
{
    const auto found = masked_.find(line);
    return found != masked_.end() ? found->second : std::string(lines_[line - 1]);
}

LineNumbers Replay::lines_setting(std::size_t offset) const
{
    const std::uint32_t created = line_creating(offset);
    const auto by_offset = [](const Event& event, std::size_t wanted) { return event.offset < wanted; };
    LineNumbers lines;
    for (auto event = std::lower_bound(settings_.all.begin(), settings_.all.end(), offset, by_offset);
         event != settings_.all.end() && event->offset == offset; ++event) {
        if (event->line >= created && (lines.empty() || lines.back() != event->line)) {
            lines.push_back(event->line);
        }
    }
    return lines;
}

std::uint32_t Replay::last_over(const Events& events, std::size_t offset)
{
    std::uint32_t last = 0;
    auto event = std::upper_bound(events.all.begin(), events.all.end(), offset,
                                  [](std::size_t wanted, const Event& other) { return wanted < other.offset; });
    while (event != events.all.begin() && (--event)->offset + events.widest > offset) {
        if (event->offset + event->size > offset) {
            last = std::max(last, event->line);
        }
    }
    return last;
}

std::uint32_t Replay::line_creating(std::size_t offset) const
{
    return last_over(creations_, offset);
}

std::uint32_t Replay::line_removing(std::size_t offset) const
{
    return last_over(removals_, offset);
}

} // namespace pondiff::tool
