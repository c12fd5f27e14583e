/// The account of a script is complete: each field that differs is in it, once, and in the class that it belongs to.

#include "tests/account/checks.h"
#include "tests/language/random_pairs.h"
#include "tool/account/alike.h"
#include "tool/script.h"

#include <cstdlib>
#include <gtest/gtest.h>
#include <map>
#include <string>

using namespace account_tests;
using language_tests::RandomPairs;
namespace fuzz = pondiff::fuzz;

namespace {

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
        const Comparison comparison({&pairs.orig(), &account.configuration(after), &pairs.cfg()});
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

/// What the way back does not restore is in its account: no field is lost silently.
TEST(Account, OfTheWayBackHasEveryFieldThatIsNotRestored)
{
    RandomPairs pairs(19);
    std::size_t complete = 0;
    std::size_t restored = 0;
    while (complete < number_of_pairs() / 4) {
        pairs.next();
        const Account there(pairs.orig(), pairs.cfg(), pairs.script);
        if (there.verdict() != Account::Verdict::complete) {
            continue;
        }
        ++complete;
        const auto after_script = std::make_unique<GCfg>(there.replay().after());
        const ScriptRequest request{pairs.area.empty() ? whole_configuration(pairs.scenario.common)
                                                       : area_named(pairs.area),
                                    pairs.scenario.all != 0, pairs.scenario.common};
        const std::string script = script_of(request, *after_script, pairs.orig());
        const Account back(*after_script, pairs.orig(), script);
        ASSERT_EQ(wrong_with(back), "") << "area \"" << pairs.area << "\" of\n"
                                        << fuzz::print_scenario(pairs.scenario) << pairs.script << "and back:\n"
                                        << script;
        const Comparison left({&pairs.orig(), &back.configuration(after), &pairs.orig()});
        restored += left.same(running, after) ? 1 : 0;
    }
    EXPECT_GT(restored * 10, complete * 6);
}

} // namespace
