#ifndef TOOL_ACCOUNT_REPLAY_H
#define TOOL_ACCOUNT_REPLAY_H

#include "tool/language/reader.h"

#include <cstddef>
#include <cstdint>
#include <functional>
#include <memory>
#include <string>
#include <string_view>
#include <unordered_map>
#include <vector>

namespace pondiff::tool {

/// Line numbers of a script, from 1, in order.
using LineNumbers = std::vector<std::uint32_t>;

/// What a device has made of a whole script: what it holds afterwards, and which lines have led to that.
class Replay {
  public:
    /// A line that the device has refused.
    struct Refusal {
        std::uint32_t line;
        std::string place;  ///< where it was given: "in interface ont 1/6"
        std::string reason; ///< why
        /// The command that it is, and where the device would have taken it; null where it is none anywhere.
        const Pattern* command = nullptr;
        Standing standing;
        std::string element; ///< what tells the element of the command's array
    };

    /// @param script  stays
    /// @param watch   called with each line, and with what the device holds after it
    Replay(const GCfg& running, std::string_view script,
           const std::function<void(const Line&, const GCfg&)>& watch = {});

    /// What the device holds after the script.
    const GCfg& after() const { return *after_; }

    /// The script's lines, without their line feeds.
    const std::vector<std::string_view>& lines() const { return lines_; }
    /// A line, from 1, with secrets replaced by ***.
    std::string masked(std::uint32_t line) const;
    const std::vector<Refusal>& refusals() const { return refusals_; }
    /// Whether the script is made of moves and of names that the device knows already.
    bool changes_nothing() const { return changes_nothing_; }
    /// Lines that the device has taken without setting anything, as they are written for several values.
    const LineNumbers& ambiguous() const { return ambiguous_; }

    /// The lines that have set what stands at an offset, since its object was made.
    LineNumbers lines_setting(std::size_t offset) const;
    /// The line that has made the object or entry that an offset is in; 0 where it was there before.
    std::uint32_t line_creating(std::size_t offset) const;
    /// The last line that has removed an object that an offset was in; 0 where there is none.
    std::uint32_t line_removing(std::size_t offset) const;

  private:
    struct Event {
        std::size_t offset;
        std::size_t size;
        std::uint32_t line;
    };
    struct Events {
        std::vector<Event> all;
        std::size_t widest = 0;

        void add(std::size_t offset, std::size_t size, std::size_t line);
    };

    void add(const Line& line);
    void add_refusal(const Line& line);
    void mask(const Line& line, std::string_view secret);
    void mask_refused(const Line& line);
    static std::uint32_t last_over(const Events& events, std::size_t offset);

    std::unique_ptr<GCfg> after_;
    std::vector<std::string_view> lines_;
    bool changes_nothing_ = true;
    std::unordered_map<std::uint32_t, std::string> masked_; ///< the lines that show a secret
    std::vector<Refusal> refusals_;
    LineNumbers ambiguous_;
    Events settings_;
    Events creations_;
    Events removals_;
    std::vector<Standing> entered_; ///< the objects whose views were entered, one of each view; the last one first
};

} // namespace pondiff::tool

#endif
