#ifndef PON_DATATOCOMMANDSCONVERTOR_PLACEHOLDERS_H
#define PON_DATATOCOMMANDSCONVERTOR_PLACEHOLDERS_H

#include "pon/DataToCommandsConvertor/text.h"

namespace pondiff {

/// Replaces every "$ID" placeholder of a finished template, the ones that values brought along included.
void substitute(Text& line, const int* key);

} // namespace pondiff

#endif
