#ifndef TESTS_SUPPORT_PLAUSIBLE_H
#define TESTS_SUPPORT_PLAUSIBLE_H

/// @file
/// A configuration for tests, generated from the description of the records.

#include "tool/describe/description.h"
#include "tool/describe/records.h"

#include <cstdio>
#include <memory>

/// A configuration in which everything exists under a name of its own, with every other field at `number`.
inline std::unique_ptr<GCfg> plausible(int number)
{
    using namespace pondiff::tool;
    auto configuration = std::make_unique<GCfg>();
    auto* const bytes = reinterpret_cast<unsigned char*>(configuration.get());
    int serial = 0;
    for_each_leaf(gcfg_record, [&](const Leaf& leaf) {
        if (leaf.field.name == "exist" || leaf.field.name == "exists") {
            set_number(leaf.field, bytes + leaf.offset, 1);
        } else if (is_number(leaf.field.form)) {
            set_number(leaf.field, bytes + leaf.offset, number);
        } else if (leaf.field.name == "name" && leaf.field.form == Form::text) {
            std::snprintf(reinterpret_cast<char*>(bytes + leaf.offset), leaf.field.width, "n%d", ++serial);
        }
    });
    return configuration;
}

#endif
