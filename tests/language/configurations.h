#ifndef TESTS_LANGUAGE_CONFIGURATIONS_H
#define TESTS_LANGUAGE_CONFIGURATIONS_H

/// @file
/// What the tests of the reader do with configurations.

#include "fuzz/touched.h"
#include "pon/command_file_generator.h"
#include "tool/describe/description.h"
#include "tool/describe/records.h"
#include "tool/language/reader.h"

#include <cstdlib>
#include <cstring>
#include <memory>
#include <string>

namespace language_tests {

using namespace pondiff;
using namespace pondiff::tool;
using fuzz::Touched;

inline unsigned char* bytes_of(GCfg& configuration)
{
    return reinterpret_cast<unsigned char*>(&configuration);
}

/// The text that an operation of the library has returned.
inline std::string text_of(char* text)
{
    const std::unique_ptr<char, decltype(&std::free)> owned{text, &std::free};
    if (!owned) {
        std::abort();
    }
    return text;
}

/// Keys that are numbers or addresses tell the entries of a list apart.
inline void make_keys_distinct(GCfg& configuration)
{
    for_each_leaf(gcfg_record, [&](const Leaf& leaf) {
        if (leaf.field.syntax.kind != Syntax::Kind::key || is_text(leaf.field.form)) {
            return;
        }
        const std::size_t entry = (leaf.path.steps().end() - 2)->index + 1;
        unsigned char* const at = bytes_of(configuration) + leaf.offset;
        if (is_number(leaf.field.form)) {
            set_number(leaf.field, at, static_cast<std::int64_t>(entry));
        } else {
            at[2] = static_cast<unsigned char>(entry / 256);
            at[3] = static_cast<unsigned char>(entry % 256);
        }
    });
}

} // namespace language_tests

#endif
