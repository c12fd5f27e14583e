#ifndef TOOL_ACCOUNT_RISKS_H
#define TOOL_ACCOUNT_RISKS_H

/// @file
/// What a person who approves a script wants to see before all else. The descriptions say which changes of fields are
/// risks (`risky`, phrases.h); removed objects and emptied profiles always are.

#include "tool/account/replay.h"
#include "tool/describe/syntax.h"

#include <cstddef>
#include <cstdint>
#include <map>
#include <memory>
#include <set>
#include <string>
#include <utility>
#include <vector>

namespace pondiff::tool {

/// "management", "access" and so on.
const char* name_of(RiskKind kind);

struct Risk {
    RiskKind kind;
    std::string text; ///< a sentence without its full stop: `management ip changes from 192.0.2.1 to 192.0.2.2`
    LineNumbers lines;
};

/// Finds the risks of a script while a device takes it:
///
///     RiskWatch watch(running);
///     const Run run(running, script, [&watch](const Line& line, const GCfg& device) { watch.see(line, device); });
///     watch.risks();
///
/// A line that sets what the device holds already is none, nor is what happens to objects that the script has made.
class RiskWatch {
  public:
    explicit RiskWatch(const GCfg& running);

    /// @param device  what the device holds after the line
    void see(const Line& line, const GCfg& device);

    /// By kind, and of one kind in the order of the script. What several lines do to one field or list is one risk.
    std::vector<Risk> risks() const;

  private:
    /// All that the script does to one thing.
    struct Found {
        RiskKind kind;
        std::string subject;
        std::vector<std::string> changes;
        LineNumbers lines;
    };
    class Sight;

    std::unique_ptr<GCfg> before_;       ///< what the device holds before the next line
    std::set<std::size_t> made_;         ///< where the objects are that the script has made
    std::int64_t highest_privilege_ = 0; ///< that a user has before the script
    std::vector<Found> found_;
    std::map<std::pair<RiskKind, std::string>, std::size_t> numbers_; ///< of what is found, by kind and subject
};

} // namespace pondiff::tool

#endif
