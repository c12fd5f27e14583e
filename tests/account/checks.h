#ifndef TESTS_ACCOUNT_CHECKS_H
#define TESTS_ACCOUNT_CHECKS_H

/// @file
/// Whether an account says what the configurations mean.

#include "fuzz/scenario.h"
#include "tests/account/comparison.h"
#include "tool/account/account.h"

#include <array>
#include <map>
#include <string>

namespace account_tests {

inline std::string name_at(const GCfg& configuration, const std::string& object)
{
    const pondiff::fuzz::Place name = pondiff::fuzz::find_place(object + ".name");
    return std::string(text_in(*name.field, reinterpret_cast<const unsigned char*>(&configuration) + name.offset));
}

/// Objects that the account counts as renamed are compared under their new name.
inline Renamed renamed_by(const Account& account)
{
    Renamed renamed;
    for (const ObjectAccount& object : account.objects()) {
        if (!object.old_name.empty()) {
            const pondiff::fuzz::Place name = pondiff::fuzz::find_place(object.path + ".name");
            renamed[name.offset - object.array->record->name_member->offset] =
                name_at(account.configuration(after), object.path);
        }
    }
    return renamed;
}

/// What is wrong with the class of a field, by what it means in the three configurations.
inline std::string wrong_class(const Item& item, const Meant& meant)
{
    const bool as_wanted = !meant.differs(wanted, after);
    const bool was_as_wanted = !meant.differs(running, wanted);
    if ((item.fate == Fate::carried) != as_wanted) {
        return "carried, or not";
    }
    if (item.there != meant.there) {
        return "there, or not";
    }
    switch (item.fate) {
    case Fate::carried:
        return was_as_wanted ? "nothing to carry" : "";
    case Fate::disturbed:
        return was_as_wanted || (meant.there[after] && !meant.there[wanted]) ? "" : "was not as wanted before";
    case Fate::left_over:
        return meant.there[after] && !meant.there[wanted] ? "" : "its object is wanted, or not there";
    default:
        return was_as_wanted ? "was as wanted before" : "";
    }
}

/// A path, and the last configuration that it is of.
inline std::string standing(const std::string& path, const std::array<bool, 3>& there)
{
    return path + (there[wanted] ? "" : there[after] ? " after" : " running");
}

/// What is wrong with an account, in words; empty when nothing is.
inline std::string wrong_with(const Account& account)
{
    const Comparison comparison(
        {&account.configuration(running), &account.configuration(after), &account.configuration(wanted)},
        renamed_by(account));
    std::map<std::string, const Item*> items;
    std::string wrong;
    for (const ObjectAccount& object : account.objects()) {
        for (const Item& item : object.items) {
            if (!items.emplace(standing(item.path, item.there), &item).second) {
                wrong += item.path + " is there twice\n";
            }
        }
    }
    for (const auto& [key, meant] : comparison.fields()) {
        const auto found = items.find(standing(meant.path, meant.there));
        const std::string values = "\"" + meant.text[0] + "\", \"" + meant.text[1] + "\", \"" + meant.text[2] + "\"";
        if (found == items.end()) {
            wrong += key + " (" + meant.path + ") is missing: " + values + "\n";
            continue;
        }
        const std::string why = wrong_class(*found->second, meant);
        if (!why.empty()) {
            wrong += meant.path + " is " + name_of(found->second->fate) + ": " + why + ": " + values + "\n";
        }
        items.erase(found);
    }
    for (const auto& [path, item] : items) {
        wrong += path + " does not differ, and is " + name_of(item->fate) + "\n";
    }
    const auto verdict = comparison.fields().empty()      ? Account::Verdict::nothing
                         : comparison.same(wanted, after) ? Account::Verdict::complete
                                                          : Account::Verdict::incomplete;
    if (account.verdict() != verdict) {
        wrong += "the verdict is wrong\n";
    }
    return wrong;
}

} // namespace account_tests

#endif
