#include "tool/account/naming.h"

#include "tool/describe/records.h"
#include "tool/json/values.h"
#include "tool/language/objects.h"

#include <algorithm>
#include <fmt/format.h>
#include <vector>

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
    case Element::Told::by_key: {
        const Field& key = *step.field->record->key_member;
        std::string value;
        append_value(value, key, at + key.offset);
        return value;
    }
    case Element::Told::by_word:
        return step.field->element.vocabulary(static_cast<int>(step.index));
    default:
        return name_of_element(*step.field, step.index, at);
    }
}

/// What stands at the signs of a command (see phrases.h) that tell where the setting is.
struct Signs {
    std::string element;
    std::size_t number = 0; ///< of the element
    const char* lead = "";
    std::size_t index = 0; ///< in the field itself

    std::string value(std::string_view sign) const
    {
        return sign == "#"    ? element
               : sign == "##" ? std::to_string(number)
               : sign == "#1" ? std::to_string(number + 1)
               : sign == "*"  ? lead
               : sign == "?"  ? std::to_string(index)
                              : "";
    }
};

/// The words of a command that are there whatever the value is.
std::vector<std::string> fixed_words(std::string_view command, const Signs& signs)
{
    std::vector<std::string> words(1);
    while (!command.empty()) {
        const char sign = command.front();
        const std::size_t end = command.find(sign == '<' ? '>' : sign == '[' ? ']' : sign == '{' ? '}' : sign);
        if (sign == '<') {
            words.back() += signs.value(command.substr(1, end - 1));
        } else if (sign == ' ') {
            words.emplace_back();
        } else if (sign != '[' && sign != '{') {
            words.back() += sign;
        }
        command.remove_prefix(end + 1);
    }
    words.erase(std::remove(words.begin(), words.end(), ""), words.end());
    return words;
}

} // namespace

Path path_at(std::size_t offset)
{
    Path path;
    for (const Record* record = &gcfg_record; record != nullptr;) {
        const Field* const field = std::find_if(record->begin(), record->end(), [offset](const Field& member) {
            return offset < std::size_t{member.offset} + member.size;
        });
        offset -= field->offset;
        path.push(*field, field->array ? offset / field->width : 0);
        offset %= field->width;
        record = field->record;
    }
    return path;
}

std::size_t object_length(const Path& field)
{
    constexpr std::size_t deepest_part = 3; // "system.services.ssh"
    const auto& steps = field.steps();
    const auto object = std::find_if(steps.begin(), steps.end(), is_object);
    if (object != steps.end()) {
        return static_cast<std::size_t>(object - steps.begin()) + 1;
    }
    const auto not_a_part = [](const Path::Step& step) { return step.field->record == nullptr || step.field->array; };
    const auto part = std::find_if(steps.begin(), steps.end(), not_a_part) - steps.begin();
    return std::min(deepest_part, static_cast<std::size_t>(part));
}

Path object_path(const Path& field)
{
    Path path;
    for (std::size_t i = 0; i < object_length(field); ++i) {
        path.push(*field.steps()[i].field, field.steps()[i].index);
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

std::string setting_name(const Path& field, const unsigned char* configuration)
{
    Signs signs;
    signs.index = field.steps().back().index;
    const Record* record = &gcfg_record;
    Path to;
    for (const Path::Step& step : field.steps()) {
        to.push(*step.field, step.index);
        const Field& entered = *step.field;
        if (entered.array) {
            signs.element = told(step, place_of(to, configuration));
            signs.number = step.index;
        }
        if (entered.record != nullptr) {
            record = entered.record;
            signs.lead = entered.element.lead != nullptr ? entered.element.lead : signs.lead;
        }
    }
    const Field* said = field.steps().back().field;
    if (said->syntax.kind == Syntax::Kind::with) {
        said = std::find_if(record->begin(), record->end(),
                            [said](const Field& member) { return member.name == said->syntax.reason; });
    }
    if (said->syntax.set == nullptr && said->syntax.off == nullptr) {
        return "";
    }
    // Of several commands, the words that they begin with alike.
    std::string_view commands = said->syntax.set != nullptr ? said->syntax.set : said->syntax.off;
    constexpr std::string_view another = " | ";
    std::vector<std::string> words = fixed_words(commands.substr(0, commands.find(another)), signs);
    while (commands.find(another) != commands.npos) {
        commands.remove_prefix(commands.find(another) + another.size());
        const std::vector<std::string> others = fixed_words(commands.substr(0, commands.find(another)), signs);
        const auto end = words.begin() + static_cast<std::ptrdiff_t>(std::min(words.size(), others.size()));
        words.erase(std::mismatch(words.begin(), end, others.begin()).first, words.end());
    }
    return fmt::format("{}", fmt::join(words, " "));
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
        if (tells && at[field.offset] != 0) {
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
