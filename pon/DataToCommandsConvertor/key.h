#ifndef PON_DATATOCOMMANDSCONVERTOR_KEY_H
#define PON_DATATOCOMMANDSCONVERTOR_KEY_H

namespace pondiff {

/// What the slots of a key identify. A command shows them as $ID0 and $ID1; the other slots belong to the caller.
enum KeySlot : int {
    of_object,  ///< the object that the view edits, or the entry that the command names
    of_element, ///< a part of that object: its service, port, entry or shaper
};
constexpr int key_slots = 10;

} // namespace pondiff

#endif
