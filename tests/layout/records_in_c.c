/* C sees every record as C++ does: records.layout is what the program, which is C++, has printed of them. */
#include "gcfg/gcfg.h"

#include <stddef.h>

#define RECORD(record, size)                                                                                           \
    static_assert(sizeof(record) == (size), "size of " #record);                                                       \
    static_assert(_Alignof(record) == 1, "alignment of " #record);                                                     \
    static_assert(_Generic((record##_t*)0, record * : 1, default : 0), #record "_t");

#define FIELD(record, field, type, offset, size)                                                                       \
    static_assert(offsetof(record, field) == (offset), "offset of " #record "." #field);                               \
    static_assert(sizeof(((record*)0)->field) == (size), "size of " #record "." #field);                               \
    static_assert(_Generic(((record*)0)->field, type : 1, type * : 1, default : 0), "type of " #record "." #field);

#include "records.layout"
