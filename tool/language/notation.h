#ifndef TOOL_LANGUAGE_NOTATION_H
#define TOOL_LANGUAGE_NOTATION_H

/// @file
/// The values of commands, taken back exactly by the notation of their field.

#include "tool/describe/description.h"
#include "tool/language/tokens.h"

#include <cstdint>
#include <cstring>
#include <string>
#include <string_view>
#include <vector>

namespace pondiff::tool {

/// What a word of a command says about a field.
struct Said {
    enum class Result : std::uint8_t {
        value,
        ambiguous, ///< the word is written for several values
        refused,
    };
    Result result = Result::value;
    std::int64_t number = 0;           ///< of a number, whatever its form
    std::string_view text;             ///< of a text
    unsigned char bytes[16]{};         ///< of an address: as many as the field has
    std::vector<std::int64_t> numbers; ///< of a list
    std::string reason;                ///< Result::refused: why

    /// Makes it the number 0, the empty text, the address 0 and the empty list.
    void clear()
    {
        result = Result::value;
        number = 0;
        text = {};
        std::memset(bytes, 0, sizeof bytes);
        numbers.clear();
    }
};

/// Reads what the CLI itself writes for a value, and no other spelling of it.
/// @param field          not a record; of an array, one of its elements, but a list as a whole
/// @param configuration  where names are looked up
/// @param said           gets what the word says
void read_value(const Field& field, const Token& token, const GCfg& configuration, Said& said);

/// The same for a number that stands for a terminal VLAN, told by the VLAN's name.
void read_terminal_vlan(const Field& field, const Token& token, const GCfg& configuration, Said& said);

/// Whether the field's values are words, and the word of one; empty where it has none.
bool has_words(const Field& field);
std::string_view word_of(const Field& field, std::int64_t number);

/// The value for which a vocabulary has a word, among those that may occur.
void read_word(const Field& field, std::string_view word, Said& said);

/// A number from `least` to `greatest` in decimal, without leading zeros.
bool read_decimal(std::string_view digits, std::int64_t least, std::int64_t greatest, std::int64_t& number);

/// Puts what was said in the element of the field at `at`.
void store(const Field& field, unsigned char* at, const Said& said);

} // namespace pondiff::tool

#endif
