#ifndef TOOL_JSON_VALUES_H
#define TOOL_JSON_VALUES_H

#include "tool/describe/description.h"

#include <string>

namespace pondiff::tool {

/// Appends a number in decimal.
void append_number(std::string& out, std::int64_t number);

/// Appends a value as documents write it; it is JSON.
/// @param field  not a record; of an array, one of its elements
void append_value(std::string& out, const Field& field, const unsigned char* at);

} // namespace pondiff::tool

#endif
