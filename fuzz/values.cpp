#include "fuzz/values.h"

#include "tool/describe/records.h"

namespace pondiff::fuzz {

namespace {

std::string any_text(std::size_t width, Random& random)
{
    static const std::string telling[] = {"",       "a",      "$ID0", "$ID1",     "$ID",   "$ID9 ",   "$ID12",
                                          "$ID -1", "%s%n%d", "\"",   "\n",       "\r\n",  "\x1B[2J", "%CHANNELID%",
                                          "exit\n", "\\",     "\xFF", "\xC3\xA9", "no \"", "commit"};
    std::string text;
    switch (random.below(4)) {
    case 0:
        text = random.any_of(telling);
        break;
    case 1: // a full array
        text.assign(width, static_cast<char>(random.below(256)));
        break;
    case 2:
        while (text.size() < width) {
            text += random.any_of(telling) + 'x';
        }
        break;
    default:
        text.assign(random.below(width + 1), 'n');
        for (char& c : text) {
            c = static_cast<char>(random.below(256));
        }
    }
    text.resize(width);
    return text;
}

std::int64_t any_number(const tool::Field& field, Random& random)
{
    constexpr std::int64_t telling[] = {0,     1,     2,     3,        7,        8,   15,   16,   17,   31,   32,
                                        33,    42,    63,    64,       99,       100, 127,  128,  131,  132,  255,
                                        256,   511,   512,   531,      532,      999, 4094, 4095, 4096, 9999, 10000,
                                        32767, 32768, 65535, 16777215, 16777216, -1,  -2,   -99,  -100, -131, -132};
    switch (random.below(4)) {
    case 0:
        return static_cast<std::int64_t>(random.below(3));
    case 1:
        return random.one_in(2) ? tool::largest(field) : tool::smallest(field);
    case 2:
        return static_cast<std::int64_t>(random.below(256) << random.below(25));
    default:
        return random.any_of(telling);
    }
}

std::size_t any_index(std::size_t count, Random& random)
{
    switch (random.below(4)) {
    case 0:
        return 0;
    case 1:
        return count - 1;
    case 2:
        return 1 % count; // where the base has an object of most kinds
    default:
        return random.below(count);
    }
}

Patch any_patch(Random& random)
{
    constexpr Patch::Side sides[] = {Patch::Side::cfg, Patch::Side::cfg, Patch::Side::orig, Patch::Side::both};
    Patch patch;
    patch.side = random.any_of(sides);
    patch.place = any_place(random);
    patch.bytes = any_bytes(*patch.place.field, random);
    return patch;
}

} // namespace

Place any_place(Random& random)
{
    Place place;
    for (const tool::Record* record = &tool::gcfg_record; record != nullptr; record = place.field->record) {
        place.field = &record->fields[random.below(record->count)];
        const std::size_t index = any_index(place.field->count, random);
        place.offset += place.field->offset + index * place.field->width;
        place.path += place.path.empty() ? "" : ".";
        place.path += place.field->name;
        if (place.field->array) {
            place.path += '.' + std::to_string(index);
        }
    }
    return place;
}

std::string any_bytes(const tool::Field& field, Random& random)
{
    if (field.form == tool::Form::text || field.form == tool::Form::secret) {
        return any_text(field.width, random);
    }
    std::string bytes(field.width, '\0');
    if (tool::is_number(field.form)) {
        tool::set_number(field, reinterpret_cast<unsigned char*>(bytes.data()), any_number(field, random));
        return bytes;
    }
    const bool same = random.one_in(2);
    const auto first = static_cast<char>(random.below(256));
    for (char& byte : bytes) {
        byte = same ? first : static_cast<char>(random.below(256));
    }
    return bytes;
}

void add_existence(const Patch& patch, Scenario& scenario, Random& random)
{
    const std::string& path = patch.place.path;
    for (std::size_t dot = path.rfind('.'); dot != path.npos && dot != 0; dot = path.rfind('.', dot - 1)) {
        for (const char* const name : {"exist", "exists"}) {
            Patch existence;
            existence.place = find_place(path.substr(0, dot + 1) + name);
            if (existence.place.field == nullptr) {
                continue;
            }
            existence.side = random.one_in(2) ? Patch::Side::orig : Patch::Side::cfg;
            existence.bytes.resize(existence.place.field->width);
            existence.bytes[0] = static_cast<char>(random.below(2));
            scenario.patches.push_back(existence);
            return;
        }
    }
}

void add_any_patch(Scenario& scenario, Random& random)
{
    scenario.patches.push_back(any_patch(random));
    if (random.one_in(2)) {
        add_existence(Patch(scenario.patches.back()), scenario, random);
    }
}

} // namespace pondiff::fuzz
