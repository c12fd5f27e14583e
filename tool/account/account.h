#ifndef TOOL_ACCOUNT_ACCOUNT_H
#define TOOL_ACCOUNT_ACCOUNT_H

/// @file
/// The account of a script: what becomes of every field that is to change, or that changes. It is found by reading the
/// script back, never by asking the code that wrote it.

#include "tool/account/replay.h"
#include "tool/describe/description.h"

#include <array>
#include <cstddef>
#include <cstdint>
#include <functional>
#include <string>
#include <string_view>
#include <vector>

namespace pondiff::tool {

/// What becomes of a field. One that is as wanted before and after the script is in no account.
enum class Fate : std::uint8_t {
    carried,    ///< was not as wanted, and is afterwards
    no_command, ///< is not as wanted: no command ever sets it
    not_said,   ///< is not as wanted: there is a command, but the script has none for it
    refused,    ///< is not as wanted: a line would have set it, but the device refuses it
    different,  ///< is not as wanted: a line has set it to something else
    left_over,  ///< belongs to an object or an entry that is not wanted and still there
    disturbed,  ///< was as wanted, and is not afterwards
};
constexpr std::size_t number_of_fates = 7;

/// All but `carried`: what is not as wanted after the script.
constexpr std::array<Fate, 6> fates_not_carried = {Fate::no_command, Fate::not_said,  Fate::refused,
                                                   Fate::different,  Fate::left_over, Fate::disturbed};

/// "carried", "no_command" and so on.
const char* name_of(Fate fate);

/// The three configurations of an account, as indexes. The wanted one is the last: paths are those of its document.
enum At : std::size_t { running, after, wanted };

/// A field in the account.
struct Item {
    const Field* field;
    std::string path;                       ///< as documents write it
    std::array<const unsigned char*, 3> at; ///< its places; where `there` is false, a blank one
    std::array<bool, 3> there;              ///< whether its object or entry is there
    Fate fate;
    bool set;           ///< a line sets this field, not one that it depends on
    LineNumbers lines;  ///< that have set it, or would have
    std::string reason; ///< why it is not as wanted, where that is known
};

/// What is edited in one view, or named by one name; settings of the configure view by the part that they belong to.
struct ObjectAccount {
    enum class Change : std::uint8_t { changed, added, removed };
    const Field* array = nullptr; ///< whose element it is; null for a part of the configuration
    Change change = Change::changed;
    bool left_over = false; ///< not wanted, and still there after the script
    std::string name;       ///< as the CLI says it: "interface ont 1/6", "profile shaping "gold""; else the path
    std::string old_name;   ///< of an object that is renamed
    std::string detail;     ///< serial number or description: what a person knows it by
    std::string path;       ///< as documents write it
    std::vector<Item> items;
};

/// "added", "changed" or "removed".
const char* name_of(ObjectAccount::Change change);

class Account {
  public:
    enum class Verdict : std::uint8_t {
        nothing,    ///< the device holds what is wanted, before and after
        complete,   ///< the device holds what is wanted after the script
        incomplete, ///< it does not
    };

    /// @param script  like the configurations, it stays
    Account(const GCfg& running, const GCfg& wanted, std::string_view script,
            const std::function<void(const Line&, const GCfg&)>& watch = {});

    Verdict verdict() const;
    const Replay& replay() const { return replay_; }
    const GCfg& configuration(At which) const { return *configurations_[which]; }
    /// In the order of the script; those that no line concerns come last.
    const std::vector<ObjectAccount>& objects() const { return objects_; }
    /// Whether a line sets a field to a value that is not wanted.
    bool sets_wrongly() const;
    std::size_t count(Fate fate) const { return counts_[static_cast<std::size_t>(fate)]; }

    /// Where a field stands in the configuration: in the wanted one if its object is there, else in the first other
    /// one.
    std::size_t offset_of(const Item& item) const;

    /// A value as documents write it, but for a reference, which is the name of what it refers to. "none" and "" (of an
    /// object that is not there) stand without quotes.
    std::string value(const Item& item, At which) const;

  private:
    class Builder;

    std::array<const GCfg*, 3> configurations_;
    Replay replay_;
    std::vector<ObjectAccount> objects_;
    std::array<std::size_t, number_of_fates> counts_{};
};

} // namespace pondiff::tool

#endif
