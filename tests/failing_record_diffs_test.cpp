/// Every allocation of every record diff fails, alone and with all later ones, while it fills a caller's list.

#include "tests/support/allocation.h"
#include "tests/support/diff.h"
#include "tests/support/record_diffs.h"

#include <algorithm>
#include <cstdlib>

namespace {

/// A command and the lines that entered its view.
using Placed = std::pair<std::string, std::string>;

bool enters_a_view(const std::string& line)
{
    for (const char* const verb : {"interface ", "profile ", "template "}) {
        if (line.compare(0, std::strlen(verb), verb) == 0) {
            return true;
        }
    }
    return false;
}

/// What a device would run, and where: "exit" and the lines that enter a view only move.
std::vector<Placed> commands_of(const Elements& elements)
{
    std::vector<Placed> commands;
    std::vector<std::string> views;
    for (const std::string& element : elements) {
        for (std::size_t at = 0; at < element.size();) {
            const std::size_t end = std::min(element.find('\n', at), element.size());
            const std::string line = element.substr(at, end - at);
            at = end + 1;
            if (line == "exit" && !views.empty()) {
                views.pop_back();
            } else if (line == "configure terminal" || (views.size() == 1 && enters_a_view(line))) {
                views.push_back(line);
            } else if (!line.empty()) {
                std::string where;
                for (const std::string& view : views) {
                    where += view + '\n';
                }
                commands.emplace_back(where, line);
            }
        }
    }
    return commands;
}

bool is_part_of(const std::vector<Placed>& some, const std::vector<Placed>& all)
{
    auto from = all.begin();
    for (const Placed& command : some) {
        from = std::find(from, all.end(), command);
        if (from == all.end()) {
            return false;
        }
        ++from;
    }
    return true;
}

Elements take(List<char>& list)
{
    EXPECT_TRUE(is_sound(list));
    return take_elements(list);
}

/// A blank configuration and a full one, and a session over them that forces everything.
class FailingRecordDiffs : public testing::Test {
  protected:
    /// The elements that a diff pushes onto a list of the caller's, the script being at the top level; `Guard` lives
    /// for as long as it works.
    template <class Guard, class... Arguments>
    Elements run(const RecordDiff& diff, Arguments... arguments)
    {
        List<char> list;
        int key[10] = {1, 1, 1, 1, 1, 1, 1, 1, 1, 1};
        current_view.name = "root";
        {
            Guard guard(arguments...);
            diff.run(*session.orig, *session.cfg, key, list);
            note(guard);
        }
        return take(list);
    }

    void fail_each_allocation(const RecordDiff& diff);

    Session session;

  private:
    static void note(const FailingAllocation& guard) { EXPECT_TRUE(guard.happened()); }
    void note(const CountedAllocations& guard) { allocations = guard.count(); }

    int allocations = 0;
};

/// The allocations to fail: all where there are few, else the first of them and some of the others.
std::vector<int> chosen(int count)
{
    const bool exhaustive = std::getenv("PONDIFF_FULL") != nullptr;
    const int few = exhaustive ? 1500 : 24;
    const int some = exhaustive ? 200 : 24;
    std::vector<int> numbers;
    for (int nth = 1; nth <= count; nth += count <= few || nth < some / 2 ? 1 : 2 * (count / some) - 1) {
        numbers.push_back(nth); // odd steps: texts and nodes by turns
    }
    return numbers;
}

void FailingRecordDiffs::fail_each_allocation(const RecordDiff& diff)
{
    const Elements whole = run<CountedAllocations>(diff);
    const std::vector<Placed> all = commands_of(whole);
    ASSERT_EQ(allocations, 2 * static_cast<int>(whole.size())) << "a text and a node for each element";
    for (const int nth : chosen(allocations)) {
        SCOPED_TRACE(nth);
        const Elements begun = run<FailingAllocation>(diff, nth, Failing::from_then_on);
        ASSERT_EQ(begun.size(), static_cast<std::size_t>((nth - 1) / 2));
        ASSERT_TRUE(std::equal(begun.begin(), begun.end(), whole.begin()));

        const Elements without = run<FailingAllocation>(diff, nth, Failing::once);
        ASSERT_LT(without.size(), whole.size());
        ASSERT_TRUE(is_part_of(commands_of(without), all)) << "a command in a view that it does not belong to";
    }
    EXPECT_EQ(run<CountedAllocations>(diff), whole) << "the next one is whole again";
}

} // namespace

TEST_F(FailingRecordDiffs, LeaveOutWhatCannotBeHadOfNewObjects)
{
    fill(*session.cfg, 2);
    session.open(1, 2);
    for (const RecordDiff& diff : record_diffs()) {
        SCOPED_TRACE(diff.name);
        fail_each_allocation(diff);
    }
}

TEST_F(FailingRecordDiffs, LeaveOutWhatCannotBeHadOfRemovedObjects)
{
    fill(*session.orig, 2);
    session.open(1, 2);
    for (const RecordDiff& diff : record_diffs()) {
        SCOPED_TRACE(diff.name);
        fail_each_allocation(diff);
    }
}

TEST_F(FailingRecordDiffs, StatusOfStormControlTellsWhatWasLost)
{
    constexpr int statuses[] = {1, 1, 3, 3, 11, 11, 13, 13, 0}; // by the allocation that fails; none does at the end
    fill(*session.cfg, 2);
    session.open();
    GPonOntStormControl none{};
    GPonOntStormControl& storm = session.cfg->pon.profiles_ont.shaping[1].upstream.storm_control;
    for (const Failing how : {Failing::once, Failing::from_then_on}) {
        for (int nth = 1; nth <= static_cast<int>(std::size(statuses)); ++nth) {
            List<char> list;
            int key[10] = {1};
            int status = 0;
            current_view.name = "root";
            {
                const FailingAllocation failure(nth, how);
                status = getdiff_GPonOntStormControl(&none, &storm, key, list);
            }
            EXPECT_EQ(status, statuses[nth - 1]) << nth;
            EXPECT_EQ(take(list).size(), static_cast<std::size_t>((nth - 1) / 2)) << "the first failure ends it";
            EXPECT_STREQ(current_view.name, nth <= 2 ? "root" : "shaping-view");
        }
    }
}
