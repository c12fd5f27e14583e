#include "tool/account/naming.h"

#include "tool/json/values.h"
#include "tool/language/objects.h"

#include <algorithm>
#include <fmt/format.h>

namespace pondiff::tool {

namespace {

bool is_object(const Path::Step& step)
{
    const Field& field = *step.field;
    return field.array && (field.element.enter != nullptr || field.element.remove != nullptr);
}

const unsigned char* place_of(const Path& path, const unsigned char* configuration)
{
    for (const Path::Step& step : path.steps()) {
        configuration += step.field->offset + step.index * step.field->width;
    }
    return configuration;
}

std::string told(const Path::Step& step, const unsigned char* at)
{
    switch (step.field->element.told) {
    case Element::Told::by_port_and_id:
        return fmt::format("{}/{}", step.index / GCFG_ONTS_PER_PORT, step.index % GCFG_ONTS_PER_PORT);
    case Element::Told::by_name: {
        const Field& name = *step.field->record->name_member;
        return fmt::format("\"{}\"", text_in(name, at + name.offset));
    }
    default:
        return std::to_string(step.index);
    }
}

} // namespace

Path object_path(const Path& field)
{
    constexpr std::size_t part = 2; // "system.network"
    const auto& steps = field.steps();
    const auto object = std::find_if(steps.begin(), steps.end(), is_object);
    const std::size_t length =
        object != steps.end() ? static_cast<std::size_t>(object - steps.begin()) + 1 : std::min(part, steps.size() - 1);
    Path path;
    for (std::size_t i = 0; i < length; ++i) {
        path.push(*steps[i].field, steps[i].index);
    }
    return path;
}

std::string object_name(const Path& object, const unsigned char* configuration)
{
    const Path::Step& step = object.steps().back();
    if (!is_object(step)) {
        return object.text();
    }
    constexpr std::string_view removes = "no ";
    const Element& element = step.field->element;
    std::string name = element.enter != nullptr ? element.enter : element.remove + removes.size();
    constexpr std::string_view place = "<#>";
    name.replace(name.find(place), place.size(), told(step, place_of(object, configuration)));
    return name;
}

std::string object_detail(const Path& object, const unsigned char* configuration)
{
    const Path::Step& step = object.steps().back();
    if (!is_object(step)) {
        return "";
    }
    const unsigned char* const at = place_of(object, configuration);
    std::string detail;
    for (const Field& field : *step.field->record) {
        const bool tells = field.form == Form::serial || field.name == "description";
        if (tells && !std::all_of(at + field.offset, at + field.offset + 1, [](unsigned char c) { return c == 0; })) {
            detail += detail.empty() ? "" : ", ";
            if (field.form == Form::serial) {
                detail += "serial ";
            }
            append_value(detail, field, at + field.offset);
        }
    }
    return detail;
}

} // namespace pondiff::tool
