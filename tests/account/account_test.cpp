/// The account of a script is complete: each field that differs is in it, once, and in the class that it belongs to.

#include "tests/account/comparison.h"
#include "tests/language/random_pairs.h"
#include "tool/account/account.h"
#include "tool/account/alike.h"

#include <cstdlib>
#include <gtest/gtest.h>
#include <map>
#include <string>

using namespace account_tests;
using language_tests::RandomPairs;
namespace fuzz = pondiff::fuzz;

namespace {

std::string name_at(const GCfg& configuration, const std::string& object)
{
    const fuzz::Place name = fuzz::find_place(object + ".name");
    return std::string(text_in(*name.field, reinterpret_cast<const unsigned char*>(&configuration) + name.offset));
}

/// Objects that the account counts as renamed are compared under their new name.
Renamed renamed_by(const Account& account)
{
    Renamed renamed;
    for (const ObjectAccount& object : account.objects()) {
        if (!object.old_name.empty()) {
            const fuzz::Place name = fuzz::find_place(object.path + ".name");
            renamed[name.offset - object.array->record->name_member->offset] =
                name_at(account.configuration(after), object.path);
        }
    }
    return renamed;
}

/// What is wrong with the class of a field, by what it means in the three configurations.
std::string wrong_class(const Item& item, const Meant& meant)
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
std::string standing(const std::string& path, const std::array<bool, 3>& there)
{
    return path + (there[after] ? "" : there[wanted] ? " wanted" : " running");
}

/// What is wrong with an account, in words; empty when nothing is.
std::string wrong_with(const Account& account)
{
    const Comparison comparison(
        {&account.configuration(running), &account.configuration(wanted), &account.configuration(after)},
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

std::size_t number_of_pairs()
{
    return std::getenv("PONDIFF_FULL") != nullptr ? 20000 : 3000;
}

TEST(Account, HasEveryFieldThatDiffersOnce)
{
    RandomPairs pairs(16);
    std::map<Account::Verdict, std::size_t> verdicts;
    std::size_t items = 0;
    for (std::size_t i = 0; i < number_of_pairs(); ++i) {
        pairs.next();
        const Account account(pairs.orig(), pairs.cfg(), pairs.script);
        ++verdicts[account.verdict()];
        for (const ObjectAccount& object : account.objects()) {
            items += object.items.size();
        }
        ASSERT_EQ(wrong_with(account), "") << "area \"" << pairs.area << "\" of\n"
                                           << fuzz::print_scenario(pairs.scenario) << pairs.script;
    }
    EXPECT_GT(verdicts[Account::Verdict::complete] * 10, number_of_pairs());
    EXPECT_GT(verdicts[Account::Verdict::incomplete] * 10, number_of_pairs());
    EXPECT_GT(items, 2 * number_of_pairs());
}

/// What a script sets to a value that is not wanted, with the lines that do.
std::string wrongly_set_by(const Account& account)
{
    std::string text;
    for (const ObjectAccount& object : account.objects()) {
        for (const Item& item : object.items) {
            const bool is_wrong = item.fate == Fate::different || item.fate == Fate::disturbed;
            if (is_wrong && item.set) {
                text += std::string(name_of(item.fate)) + ' ' + item.path + ": " + outcome(account, item, true) + ": ";
                for (const std::uint32_t line : item.lines) {
                    text += std::string(account.replay().lines()[line - 1]) + "; ";
                }
                text += '\n';
            }
        }
    }
    return text;
}

/// A refusal has to be rare to be taken seriously. What it is for: an entry of the source guard that is written out of
/// a free slot, a port's switch that its neighbour's command sets as well, a number without a word that is written as
/// another value's, several alarms of one type.
TEST(Account, RarelyFindsThatAScriptSetsWhatIsNotWanted)
{
    constexpr std::size_t most = 1000;
    RandomPairs pairs(17); // 23 of 10,000 are refused
    std::size_t count = 0;
    std::size_t wrong = 0;
    std::string which;
    while (count < most) {
        pairs.next();
        const Account account(pairs.orig(), pairs.cfg(), pairs.script);
        const Comparison comparison({&pairs.orig(), &pairs.cfg(), &account.configuration(after)});
        if (pairs.scenario.all != 0 || comparison.shares_names()) {
            continue;
        }
        ++count;
        if (account.sets_wrongly()) {
            ++wrong;
            which += wrongly_set_by(account);
        }
    }
    EXPECT_LT(wrong * 100, count) << which;
}

} // namespace
