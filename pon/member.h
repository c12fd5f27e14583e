#ifndef PON_MEMBER_H
#define PON_MEMBER_H

#include <cstddef>
#include <type_traits>

namespace pondiff {

/// A member of a record, as the struct declares it. The rows of record diffs and the descriptions in the program are
/// made from it, so that neither repeats an offset, a width or a sign.
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
