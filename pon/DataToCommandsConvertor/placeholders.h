#ifndef PON_DATATOCOMMANDSCONVERTOR_PLACEHOLDERS_H
#define PON_DATATOCOMMANDSCONVERTOR_PLACEHOLDERS_H

#include "pon/DataToCommandsConvertor/text.h"

namespace pondiff {

/// Replaces every "$ID" placeholder in a formatted line, including those that came with a value.
void substitute(Text& line, const int* key);

} // namespace pondiff

#endif
