#ifndef PON_MEMBER_H
#define PON_MEMBER_H

#include <cstddef>
#include <type_traits>

namespace pondiff {

/// A member of a record, as the struct declares it. The rows of the record diffs and the descriptions of the program
/// both begin with one: neither states a place, a width or a sign again.
template <class Record, class Type>
struct Member {
    const char* record;
    const char* name;
    std::size_t offset;
};

} // namespace pondiff

/// The member `member` of the struct `record`.
#define FIELD(record, member)                                                                                          \
    (::pondiff::Member<record, std::remove_reference_t<decltype(record::member)>>{#record, #member,                    \
                                                                                  offsetof(record, member)})

#endif
