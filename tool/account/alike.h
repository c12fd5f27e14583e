#ifndef TOOL_ACCOUNT_ALIKE_H
#define TOOL_ACCOUNT_ALIKE_H

#include "tool/account/account.h"

#include <algorithm>
#include <cstddef>
#include <iterator>
#include <string>
#include <vector>

namespace pondiff::tool {

/// A field of an account, and how many follow it that are alike but for their place: the elements of an array.
struct Alike {
    const Item* item;
    std::size_t more = 0;
};

/// Folds the fields that follow one another and are alike.
std::vector<Alike> fold(const Account& account, const std::vector<const Item*>& items);

/// The fields that have one of these fates.
template <class Fates>
std::vector<const Item*> items_with(const Account& account, const Fates& fates)
{
    std::vector<const Item*> items;
    for (const ObjectAccount& object : account.objects()) {
        for (const Item& item : object.items) {
            if (std::find(std::begin(fates), std::end(fates), item.fate) != std::end(fates)) {
                items.push_back(&item);
            }
        }
    }
    return items;
}

/// " (and 15 more like it)", or nothing.
std::string and_more(const Alike& alike);

/// What a field that is not carried was to be, and what it is after the script: "wanted 5, stays 4".
std::string outcome(const Account& account, const Item& item, bool show_secrets);

/// Why it is not as wanted, in a few words.
std::string why(const Item& item);

/// "line 4", "lines 4 to 6, 9"
std::string text_of(const LineNumbers& lines);

/// A value as messages show it: on one line, cut where it is long, secrets as ***.
std::string shown_value(const Account& account, const Item& item, At which, bool show_secrets);

} // namespace pondiff::tool

#endif
