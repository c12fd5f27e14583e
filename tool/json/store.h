#ifndef TOOL_JSON_STORE_H
#define TOOL_JSON_STORE_H

#include "tool/describe/description.h"

#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

namespace pondiff::tool {

/// A value in the document.
struct JsonValue {
    enum class Type : std::uint8_t { null, boolean, whole, other_number, text, object, list };
    Type type;
    std::int64_t number = 0; ///< of a whole one, or 0 and 1 for a boolean
    std::string_view text;   ///< a text, or the digits of a number that is not whole or needs more than 64 bits
};

/// "expected ..., found ...": what is wrong with the value, which is not shown if it is a secret.
std::string mismatch(const std::string& expected, const JsonValue& value, bool secret = false);

/// What a document may have for the whole field, or for an element of an array.
std::string expectation(const Field& field, bool element);

/// Stores the value in the element of `field` at `at`, which holds zeros. Returns what is wrong with the value, or an
/// empty text.
std::string store(const Field& field, unsigned char* at, const JsonValue& value);

/// The same for the bytes of a text, written as hexadecimal digits.
std::string store_bytes(const Field& field, unsigned char* at, const JsonValue& value);

/// The one of `names` that a misspelt `name` probably means; empty if none is similar.
std::string_view nearest(std::string_view name, const std::vector<std::string_view>& names);

/// " (did you mean "..."?)", or an empty text.
std::string suggestion(std::string_view name, const std::vector<std::string_view>& names);

} // namespace pondiff::tool

#endif
