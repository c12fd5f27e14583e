#ifndef TESTS_LANGUAGE_READINGS_H
#define TESTS_LANGUAGE_READINGS_H

/// @file
/// What a device makes of a script, as texts to be compared.

#include "tests/language/configurations.h"
#include "tool/account/meaning.h"
#include "tool/language/objects.h"

#include <algorithm>
#include <memory>
#include <string>
#include <vector>

namespace language_tests {

using Texts = std::vector<std::string>;

inline Texts sorted(Texts texts)
{
    std::sort(texts.begin(), texts.end());
    return texts;
}

/// Every field that means something else afterwards, with its new number or text.
inline Texts changes(const GCfg& before, const GCfg& after)
{
    Texts texts;
    for_each_different_meaning({&before, &after}, [&](const Beside<2>& beside) {
        const Field& field = beside.field;
        std::string value;
        if (field.layout == Layout::ended_list) {
            for (std::size_t i = 0; i < field.count && get_number(field, beside.at[1] + i * field.width) != -1; ++i) {
                value += (i == 0 ? "" : ",") + std::to_string(get_number(field, beside.at[1] + i * field.width));
            }
        } else if (is_number(field.form)) {
            value = std::to_string(get_number(field, beside.at[1]));
        } else if (is_text(field.form)) {
            value = text_in(field, beside.at[1]);
        } else {
            for (std::size_t i = 0; i < field.width; ++i) {
                value += (i == 0 ? "" : ".") + std::to_string(beside.at[1][i]);
            }
        }
        texts.push_back(beside.path.text() + ' ' + value);
    });
    return texts;
}

struct Reading {
    Texts refused;   ///< "line: reason"
    Texts ambiguous; ///< lines
    Texts changed;
};

/// @param before  what the device holds
inline Reading reading_of(const GCfg& before, const std::string& script)
{
    const auto after = std::make_unique<GCfg>(before);
    Reading reading;
    read_script(script, *after, [&](const Line& line) {
        if (line.kind == Line::Kind::refused) {
            reading.refused.push_back(std::to_string(line.number) + ": " + line.reason);
        }
        if (line.ambiguous) {
            reading.ambiguous.emplace_back(line.text);
        }
    });
    reading.changed = sorted(changes(before, *after));
    return reading;
}

} // namespace language_tests

#endif
