#ifndef TOOL_DESCRIBE_SYNTAX_H
#define TOOL_DESCRIBE_SYNTAX_H

#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>

namespace pondiff::tool {

/// A command that a reader of its own takes: what the command shows, and what the reader makes of it.
class Taking {
  public:
    virtual ~Taking() = default;
    /// The word at <?>.
    virtual std::string_view word() const = 0;
    /// Whether it is the off form.
    virtual bool off() const = 0;
    /// Sets an element of the field to a number that it can hold.
    virtual void set(std::size_t index, std::int64_t number) = 0;
    /// Refuses the command, which then sets nothing. @param reason  completes "refused: ..."
    virtual void refuse(std::string reason) = 0;
};

/// The words of an enumeration whose words are not the registry's: null or an empty text for a value without a word.
using Vocabulary = const char* (*)(int value);

/// What a person who approves a change wants to see first, the most serious first.
enum class RiskKind : std::uint8_t {
    management, ///< the device gets another address, mask, gateway or VLAN to be reached at
    access,     ///< a way in is switched off, no longer controlled, or open to others than before
    user,       ///< a user of the highest privilege, as whom one is probably logged in, is changed or removed
    removal,    ///< an object is removed
    emptied,    ///< a profile gets the empty name: the CLI cannot name it any more
    shutdown,   ///< a port or an ONT is shut down
    serial,     ///< an ONT gets the serial number that another one still has
    network,    ///< a setting that concerns every ONT
};

/// Which changes of a field, or in a record, are a risk.
struct RiskMark {
    enum class When : std::uint8_t {
        never,
        changed,
        switched_off,
        switched_on,
        shared, ///< it gets the value that the field has in another object
    };
    When when = When::never;
    RiskKind kind = RiskKind::network;
};

/// How the CLI says a field; made by the verbs of phrases.h.
struct Syntax {
    enum class Kind : std::uint8_t {
        undescribed,
        says,       ///< `set` sets the field to what it shows; `off` sets it to `off_value`
        flags,      ///< `set` and `off` concern the bit whose word of `flags` stands at <#>
        ambiguous,  ///< `set` is written whatever the value is: it is a command, but sets nothing
        irregular,  ///< `set` is taken by `read`
        with,       ///< set by the command of another member of the record, together with that member
        key,        ///< tells its element from the others of the array
        existence,  ///< whether the object is there: set by entering or naming it, cleared by removing it
        counter,    ///< counts revisions or shows a status: means nothing
        no_command, ///< no command sets it, for `reason`
    };

    Kind kind = Kind::undescribed;
    const char* set = nullptr;
    const char* off = nullptr;
    std::int64_t off_value = 0;
    /// A word that stands for a number: "none", "unused".
    const char* special = nullptr;
    std::int64_t special_value = 0;
    /// The words of the value where they are not those of the field's form.
    Vocabulary vocabulary = nullptr;
    const char* registry = nullptr;
    /// What the CLI writes for every value without a word of its own.
    const char* otherwise = nullptr;
    const char* const* flags = nullptr;
    std::size_t flag_count = 0;
    void (*read)(Taking&) = nullptr;
    const char* reason = nullptr;
    std::int8_t counted_from = 0; ///< the CLI's number for the value 0
    bool shown_signed = false;    ///< an unsigned number that the CLI shows as a signed one
    bool zero_is_free = false;    ///< of a key: the entry is in use unless its key is 0, and 0 names none
    bool is_switch = false;       ///< a number of which only zero or not counts, whatever its form
    bool is_existence = false;    ///< whether the object is there
    bool port_marker = false;     ///< a text whose marker %CHANNELID% the CLI shows as %GPON-PORT%
    std::uint8_t longest = 0;     ///< the most characters of a text where that is less than its array holds
    RiskMark risk;

    /// The off form, where it sets another value than 0.
    constexpr Syntax turned_off_by(const char* form, std::int64_t value) const
    {
        Syntax syntax = *this;
        syntax.off = form;
        syntax.off_value = value;
        return syntax;
    }
    constexpr Syntax word(const char* text, std::int64_t value) const
    {
        Syntax syntax = *this;
        syntax.special = text;
        syntax.special_value = value;
        return syntax;
    }
    /// @param fallback  the word of every value that has none; it may be the word of a value, too
    constexpr Syntax words(Vocabulary table, const char* fallback = nullptr) const
    {
        Syntax syntax = *this;
        syntax.vocabulary = table;
        syntax.otherwise = fallback;
        return syntax;
    }
    /// @param type  the registry's name of an enumeration
    constexpr Syntax words(const char* type) const
    {
        Syntax syntax = *this;
        syntax.registry = type;
        return syntax;
    }
    constexpr Syntax from_one() const
    {
        Syntax syntax = *this;
        syntax.counted_from = 1;
        return syntax;
    }
    constexpr Syntax as_signed() const
    {
        Syntax syntax = *this;
        syntax.shown_signed = true;
        return syntax;
    }
    constexpr Syntax in_use_unless_zero() const
    {
        Syntax syntax = *this;
        syntax.zero_is_free = true;
        return syntax;
    }
    constexpr Syntax as_switch() const
    {
        Syntax syntax = *this;
        syntax.is_switch = true;
        return syntax;
    }
    constexpr Syntax telling_existence() const
    {
        Syntax syntax = *this;
        syntax.is_existence = true;
        return syntax;
    }
    constexpr Syntax marked() const
    {
        Syntax syntax = *this;
        syntax.port_marker = true;
        return syntax;
    }
    constexpr Syntax at_most(std::uint8_t characters) const
    {
        Syntax syntax = *this;
        syntax.longest = characters;
        return syntax;
    }
    /// Every change is a risk.
    constexpr Syntax risky(RiskKind of) const { return marked_as({RiskMark::When::changed, of}); }
    constexpr Syntax risky_when_off(RiskKind of) const { return marked_as({RiskMark::When::switched_off, of}); }
    constexpr Syntax risky_when_on(RiskKind of) const { return marked_as({RiskMark::When::switched_on, of}); }
    constexpr Syntax risky_when_shared(RiskKind of) const { return marked_as({RiskMark::When::shared, of}); }

  private:
    constexpr Syntax marked_as(const RiskMark& mark) const
    {
        Syntax syntax = *this;
        syntax.risk = mark;
        return syntax;
    }
};

/// What the line of a record, or of an array, adds to the commands of its fields: how an element is told from the
/// others, and how it is entered and removed where it is an object.
struct Element {
    enum class Told : std::uint8_t {
        by_number,
        by_port_and_id, ///< an ONT: "1/6"
        by_word,        ///< a number whose words `vocabulary` has
        by_name,        ///< the member "name"
        by_key,         ///< the member whose syntax is a key
    };

    Told told = Told::by_number;
    const char* enter = nullptr;  ///< enters the view of an element
    const char* remove = nullptr; ///< removes an element
    const char* lead = nullptr;   ///< stands at <*>
    Vocabulary vocabulary = nullptr;
    RiskMark risk;

    constexpr Element entered_by(const char* command) const
    {
        Element element = *this;
        element.enter = command;
        return element;
    }
    constexpr Element removed_by(const char* command) const
    {
        Element element = *this;
        element.remove = command;
        return element;
    }
    constexpr Element led_by(const char* words) const
    {
        Element element = *this;
        element.lead = words;
        return element;
    }
    /// Every change of a field in it is a risk.
    constexpr Element risky(RiskKind kind) const
    {
        Element element = *this;
        element.risk = {RiskMark::When::changed, kind};
        return element;
    }
};

} // namespace pondiff::tool

#endif
