/// A script that reaches what is wanted does so no more when a line of it is lost, changed or given in another view,
/// and the account names what that line was for.

#include "tests/account/checks.h"
#include "tests/language/random_pairs.h"

#include <algorithm>
#include <functional>
#include <gtest/gtest.h>
#include <map>
#include <optional>
#include <set>
#include <string>
#include <vector>

using namespace account_tests;
using language_tests::RandomPairs;
namespace fuzz = pondiff::fuzz;

namespace {

using Lines = std::vector<std::string>;

/// A field, whatever the script is: its place in the wanted configuration or, where that does not have it, in the
/// running one.
using Identity = const unsigned char*;

Identity identity_of(const Item& item)
{
    return item.there[wanted] ? item.at[wanted] : item.there[running] ? item.at[running] : nullptr;
}

std::set<Identity> not_carried(const Account& account)
{
    std::set<Identity> fields;
    for (const ObjectAccount& object : account.objects()) {
        for (const Item& item : object.items) {
            if (item.fate != Fate::carried) {
                fields.insert(identity_of(item));
            }
        }
    }
    return fields;
}

/// What each line carries.
std::map<std::size_t, std::set<Identity>> carried_by_line(const Account& account)
{
    std::map<std::size_t, std::set<Identity>> lines;
    for (const ObjectAccount& object : account.objects()) {
        for (const Item& item : object.items) {
            for (const std::uint32_t line : item.lines) {
                lines[line - 1].insert(identity_of(item));
            }
        }
    }
    return lines;
}

std::string joined(const Lines& lines)
{
    std::string text;
    for (const std::string& line : lines) {
        text += line + '\n';
    }
    return text;
}

/// A script that reaches what is wanted, and what is known of its lines.
struct Script {
    Lines lines;
    std::vector<std::pair<const View*, std::size_t>> views; ///< where each line is given
    std::map<std::size_t, std::set<Identity>> carried;      ///< by line

    std::size_t any_carrying(fuzz::Random& random) const
    {
        return std::next(carried.begin(), static_cast<std::ptrdiff_t>(random.below(carried.size())))->first;
    }
};

/// A script with an error in it, and the fields of the lines that it concerns.
struct Mutant {
    Lines lines;
    std::set<Identity> concerned;
};
using Mutation = std::function<std::optional<Mutant>(const Script&, fuzz::Random&)>;

std::optional<Mutant> without_a_line(const Script& script, fuzz::Random& random)
{
    const std::size_t line = script.any_carrying(random);
    Mutant mutant{script.lines, script.carried.at(line)};
    mutant.lines.erase(mutant.lines.begin() + static_cast<std::ptrdiff_t>(line));
    return mutant;
}

/// In what stands behind the first word.
std::optional<Mutant> with_another_digit(const Script& script, fuzz::Random& random)
{
    const std::size_t line = script.any_carrying(random);
    Mutant mutant{script.lines, script.carried.at(line)};
    std::string& text = mutant.lines[line];
    std::vector<std::size_t> digits;
    for (std::size_t i = text.find(' '); i < text.size(); ++i) {
        if (text[i] >= '0' && text[i] <= '9') {
            digits.push_back(i);
        }
    }
    if (digits.empty()) {
        return std::nullopt;
    }
    char& digit = text[random.any_of(digits)];
    digit = static_cast<char>('0' + (digit - '0' + 1 + static_cast<int>(random.below(9))) % 10);
    return mutant;
}

std::optional<Mutant> with_a_line_in_another_view(const Script& script, fuzz::Random& random)
{
    const std::size_t line = script.any_carrying(random);
    std::vector<std::size_t> places;
    for (std::size_t i = 0; i < script.lines.size(); ++i) {
        if (script.views[i] != script.views[line] && i != line + 1) {
            places.push_back(i);
        }
    }
    if (places.empty()) {
        return std::nullopt;
    }
    const auto place = static_cast<std::ptrdiff_t>(random.any_of(places));
    Mutant mutant{script.lines, script.carried.at(line)};
    mutant.lines.insert(mutant.lines.begin() + place, script.lines[line]);
    mutant.lines.erase(mutant.lines.begin() + static_cast<std::ptrdiff_t>(line) +
                       (place <= static_cast<std::ptrdiff_t>(line) ? 1 : 0));
    return mutant;
}

/// The lines that follow are given elsewhere, up to the next that begins at the top level.
std::set<Identity> carried_behind(const Script& script, std::size_t line)
{
    std::set<Identity> fields;
    for (std::size_t i = line + 1; i < script.lines.size() && script.lines[i] != "configure terminal"; ++i) {
        const auto found = script.carried.find(i);
        if (found != script.carried.end()) {
            fields.insert(found->second.begin(), found->second.end());
        }
    }
    return fields;
}

std::optional<Mutant> with_an_exit_doubled(const Script& script, fuzz::Random& random)
{
    std::vector<std::size_t> exits;
    for (std::size_t i = 0; i < script.lines.size(); ++i) {
        if (script.lines[i] == "exit" && !carried_behind(script, i).empty()) {
            exits.push_back(i);
        }
    }
    if (exits.empty()) {
        return std::nullopt;
    }
    const std::size_t line = random.any_of(exits);
    Mutant mutant{script.lines, carried_behind(script, line)};
    mutant.lines.insert(mutant.lines.begin() + static_cast<std::ptrdiff_t>(line), "exit");
    return mutant;
}

class ScriptErrors : public testing::Test {
  protected:
    /// The next script that reaches what is wanted, and does something.
    Script next()
    {
        for (;;) {
            pairs.next();
            Script script;
            const Account account(pairs.orig(), pairs.cfg(), pairs.script, [&script](const Line& line, const GCfg&) {
                script.lines.emplace_back(line.text);
                script.views.emplace_back(line.standing.view, line.standing.slot);
            });
            script.carried = carried_by_line(account);
            if (account.verdict() == Account::Verdict::complete && !script.carried.empty()) {
                return script;
            }
        }
    }

    void check(const Script& script, const Mutant& mutant)
    {
        const std::string text = joined(mutant.lines);
        const Account account(pairs.orig(), pairs.cfg(), text);
        ASSERT_EQ(wrong_with(account), "") << text;
        const std::set<Identity> missed = not_carried(account);
        const bool named = std::any_of(mutant.concerned.begin(), mutant.concerned.end(),
                                       [&missed](Identity field) { return missed.count(field) != 0; });
        if (account.verdict() == Account::Verdict::incomplete && named) {
            return;
        }
        // The fields are as wanted all the same, as the independent comparison has confirmed: a line that names a user,
        // for one, does so without the line before it.
        ++excused;
        excuses += std::to_string(missed.size()) + " missed\n" + joined(script.lines) + "---\n" + text + "\n";
    }

    void mutate(const Mutation& mutation, std::size_t mutants)
    {
        constexpr std::size_t of_one_script = 5;
        for (std::size_t i = 0; i < mutants;) {
            const Script script = next();
            for (std::size_t k = 0; k < of_one_script && i < mutants; ++k) {
                const std::optional<Mutant> mutant = mutation(script, random);
                if (!mutant) {
                    break;
                }
                check(script, *mutant);
                ++i;
                if (HasFatalFailure()) {
                    return;
                }
            }
        }
        EXPECT_LE(excused * 40, mutants) << excuses;
    }

    RandomPairs pairs{18};
    fuzz::Random random{18};
    std::size_t excused = 0;
    std::string excuses;
};

TEST_F(ScriptErrors, ShowWhatALostLineCarried)
{
    mutate(without_a_line, 300);
}

TEST_F(ScriptErrors, ShowWhatALineWithAnotherDigitCarried)
{
    mutate(with_another_digit, 300);
}

TEST_F(ScriptErrors, ShowWhatALineInAnotherViewCarried)
{
    mutate(with_a_line_in_another_view, 300);
}

TEST_F(ScriptErrors, ShowWhatFollowsADoubledExit)
{
    mutate(with_an_exit_doubled, 100);
}

} // namespace
