#include "tool/describe/description.h"

#include "tool/describe/records.h"

#include <algorithm>

namespace pondiff::tool {

namespace {

template <class T>
std::int64_t read(const unsigned char* at)
{
    T value;
    std::memcpy(&value, at, sizeof value);
    return value;
}

} // namespace

std::int64_t get_number(const Field& field, const unsigned char* at)
{
    switch (field.width) {
    case 1:
        return field.is_signed ? read<std::int8_t>(at) : read<std::uint8_t>(at);
    case 2:
        return field.is_signed ? read<std::int16_t>(at) : read<std::uint16_t>(at);
    default:
        return field.is_signed ? read<std::int32_t>(at) : read<std::uint32_t>(at);
    }
}

void set_number(const Field& field, unsigned char* at, std::int64_t number)
{
    static_assert(__BYTE_ORDER__ == __ORDER_LITTLE_ENDIAN__, "the low bytes come first, as in the records");
    switch (field.width) { // sizes that the compiler knows
    case 1:
        std::memcpy(at, &number, 1);
        break;
    case 2:
        std::memcpy(at, &number, 2);
        break;
    default:
        std::memcpy(at, &number, 4);
    }
}

std::string Path::text() const
{
    std::string result;
    for (const Step& step : steps_) {
        if (!result.empty()) {
            result += '.';
        }
        result += step.field->name;
        if (step.field->array) {
            result += '.';
            result += std::to_string(step.index);
        }
    }
    return result;
}

bool overlaps(const Ranges& ranges, std::size_t offset, std::size_t size)
{
    return std::any_of(ranges.begin(), ranges.end(), [=](const Range& range) {
        return offset < range.offset + range.size && range.offset < offset + size;
    });
}

std::size_t count_differing_fields(const GCfg& a, const GCfg& b, const Ranges& ranges)
{
    const auto* const left = reinterpret_cast<const unsigned char*>(&a);
    const auto* const right = reinterpret_cast<const unsigned char*>(&b);
    std::size_t count = 0;
    for_each_leaf(
        gcfg_record,
        [&](std::size_t offset, std::size_t size) {
            return overlaps(ranges, offset, size) && std::memcmp(left + offset, right + offset, size) != 0;
        },
        [&count](const Leaf&) { ++count; });
    return count;
}

} // namespace pondiff::tool
