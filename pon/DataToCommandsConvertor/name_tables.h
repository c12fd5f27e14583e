#ifndef PON_DATATOCOMMANDSCONVERTOR_NAME_TABLES_H
#define PON_DATATOCOMMANDSCONVERTOR_NAME_TABLES_H

namespace pondiff {

/// The name in a slot; null where the slot is empty or outside the table.
inline const char* name_in(char* const* names, int slots, int index)
{
    return index >= 0 && index < slots ? names[index] : nullptr;
}

} // namespace pondiff

#endif
