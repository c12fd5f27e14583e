#include "tool/profiles.h"

#include <algorithm>
#include <cstring>
#include <iterator>

namespace pondiff::tool {

namespace {

/// What every profile record begins with.
struct __attribute__((packed)) Head {
    u32 revision;
    GBool_t exist;
    GChar_t name[GCFG_NAME_SIZE];
};

#define BEGINS_WITH_HEAD(part, array, record, ...)                                                                     \
    static_assert(offsetof(record, exist) == offsetof(Head, exist));                                                   \
    static_assert(offsetof(record, name) == offsetof(Head, name) && sizeof(record::name) == sizeof(Head::name));
PON_PROFILE_KINDS(BEGINS_WITH_HEAD)
#undef BEGINS_WITH_HEAD

const char* start_of(const ProfileKind& kind, const GCfg& configuration, int slot)
{
    return reinterpret_cast<const char*>(&configuration) + kind.offset + static_cast<std::size_t>(slot) * kind.size;
}

} // namespace

constexpr ProfileKind profile_kinds[profile_kind_count] = {
#define PROFILE_KIND(part, array, record, tables, lookup, prefix, name, called)                                        \
    {name,                                                                                                             \
     prefix name,                                                                                                      \
     called,                                                                                                           \
     offsetof(GCfg, pon.part.array),                                                                                   \
     sizeof(record),                                                                                                   \
     PON_PROFILE_SLOTS(part, array),                                                                                   \
     Reference::array},
    PON_PROFILE_KINDS(PROFILE_KIND)
#undef PROFILE_KIND
};

const ProfileKind* kind_of(Reference reference)
{
    const ProfileKind* const end = std::end(profile_kinds);
    const ProfileKind* const found =
        std::find_if(profile_kinds, end, [reference](const ProfileKind& kind) { return kind.reference == reference; });
    return found != end ? found : nullptr;
}

bool ProfileKind::exists(const GCfg& configuration, int slot) const
{
    GBool_t exist;
    std::memcpy(&exist, start_of(*this, configuration, slot) + offsetof(Head, exist), sizeof exist);
    return exist != 0;
}

std::string_view ProfileKind::name_in(const GCfg& configuration, int slot) const
{
    const char* const text = start_of(*this, configuration, slot) + offsetof(Head, name);
    return {text, strnlen(text, sizeof Head::name)};
}

} // namespace pondiff::tool
