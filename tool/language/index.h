#ifndef TOOL_LANGUAGE_INDEX_H
#define TOOL_LANGUAGE_INDEX_H

/// @file
/// Every command that the descriptions know, found by its words. The index is built of the descriptions once; there is
/// no other list of commands.

#include "tool/describe/description.h"
#include "tool/language/tokens.h"

#include <array>
#include <cstdint>
#include <deque>
#include <string>
#include <string_view>
#include <unordered_map>
#include <vector>

namespace pondiff::tool {

/// Where commands are given. An object view is that of one element of an array of the configuration.
struct View {
    enum class Kind : std::uint8_t { top, configure, object };
    Kind kind = Kind::top;
    const Field* objects = nullptr; ///< Kind::object: the array
    std::uint32_t offset = 0;       ///< of its first element in the configuration
    std::uint32_t node = 0;         ///< where the index of the view's commands begins
};

/// A member that a command sets.
struct Target {
    const Field* field;
    std::uint32_t offset;      ///< from the array's element, or from the view's object where there is no array
    int word;                  ///< which of the captured words is its value; -1: `constant` is
    std::int64_t constant = 0; ///< a number; for a list or an address 0: empty
};

/// A command.
struct Pattern {
    enum class Does : std::uint8_t {
        set,       ///< sets the targets
        name,      ///< names the array's element, and no more
        nothing,   ///< written for several elements or values: its words are read, and set nothing
        read,      ///< what the field's own reader makes of it
        remove,    ///< removes the array's element
        enter,     ///< enters the view of the array's element
        configure, ///< "configure terminal"
        leave,     ///< "exit"
        commit,
    };
    Does does = Does::set;
    bool off = false;
    bool terminal_vlan = false;   ///< the value is the name of a terminal VLAN that the number stands for
    const Field* field = nullptr; ///< whose command it is
    const Field* array = nullptr; ///< of which an element is told
    std::uint32_t array_offset = 0;
    int element = -1;             ///< which of the captured words tells the element; -1: the first one is meant
    bool by_slot = false;         ///< the element is told by its number, whatever the array says
    std::int8_t counted_from = 0; ///< the first number of an element
    int shown = -1;               ///< Does::read: the captured word; with flags: that of the bit
    const View* view = nullptr;   ///< Does::enter: which one
    std::vector<Target> targets;
};

/// A command that was found, and what stands at its placeholders.
struct Match {
    const Pattern* pattern = nullptr;
    std::array<Token, 8> words;
};

class Index {
  public:
    /// Builds the index of everything that `record`, the configuration, describes.
    explicit Index(const Record& record);
    Index(const Index&) = delete;
    Index& operator=(const Index&) = delete;

    /// Looks for the command of a view that the words are. @return whether there is one
    bool find(const View& view, const Tokens& tokens, Match& found) const;

    const View& top() const { return *top_; }
    const View& configure() const { return *configure_; }
    const std::vector<const Pattern*>& patterns() const { return all_; }
    /// Every command as it is written, with its placeholders, by the field whose command it is.
    const std::unordered_multimap<const Field*, std::string_view>& templates() const { return templates_; }

  private:
    struct Node {
        std::uint32_t any = 0;      ///< behind a word that is captured
        std::uint32_t split = 0;    ///< behind two captured words with a slash between them
        std::uint32_t prefixed = 0; ///< behind a word that begins with `prefix`; the rest is captured
        std::string_view prefix;
        const Pattern* pattern = nullptr; ///< of a command that ends here
    };
    /// A literal word behind a node, and the node behind the word. No two literals behind one node have the same hash.
    struct Edge {
        std::string_view word;
        std::uint32_t from = 0;
        std::uint32_t hash = 0;
        std::uint32_t node = 0; ///< 0 where there is no edge
    };
    struct Context {
        const View* view;
        const Field* array = nullptr;   ///< the nearest one in the view
        std::uint32_t array_offset = 0; ///< from the view's object
        std::uint32_t offset = 0;       ///< of the record, from the array's element or the view's object
        const char* lead = nullptr;
        bool nested = false; ///< in an array of an array: no command tells such elements apart
    };
    class Builder;

    std::size_t place_of(std::uint32_t node, std::uint32_t hash) const;
    std::uint32_t literal(std::uint32_t node, const Token& word) const;
    bool match(std::uint32_t node, std::size_t at, std::size_t captured, const Tokens& tokens, Match& found) const;

    std::vector<Node> nodes_;
    std::vector<Edge> literals_; ///< a hash table: where the place of an edge is taken, the next free one is its own
    std::deque<std::string> texts_;
    std::deque<Pattern> patterns_;
    std::deque<View> views_;
    std::vector<const Pattern*> all_;
    std::unordered_multimap<const Field*, std::string_view> templates_;
    const View* top_ = nullptr;
    const View* configure_ = nullptr;
};

/// The index of the configuration.
const Index& command_index();

} // namespace pondiff::tool

#endif
