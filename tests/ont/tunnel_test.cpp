#include "tests/support/diff.h"

#include <algorithm>
#include <random>

namespace {

using Vids = std::vector<int>;

/// The first values of the list; the rest are end marks.
void put(GPonOntSelectiveTunnel& tunnel, const Vids& vids)
{
    ASSERT_LE(vids.size(), 42U);
    for (std::size_t i = 0; i < 42; ++i) {
        tunnel.uvid[i] = static_cast<s16>(i < vids.size() ? vids[i] : -1);
    }
}

class OntTunnel : public testing::Test {
  protected:
    OntTunnel()
    {
        diff.view = "if-ont-view";
        diff.key[1] = 3;
        diff.may_sort = true;
        put(diff.before, {});
    }

    /// The text of the command for a list.
    std::string text_of(const Vids& vids)
    {
        put(diff.after, vids);
        const Elements elements = diff.elements();
        const std::string begin = "service    3 selective-tunnel uvid ";
        if (elements.size() != 2 || !elements[0].empty() || elements[1].substr(0, begin.size()) != begin) {
            return "not one command";
        }
        return elements[1].substr(begin.size());
    }

    /// The first values of the list as the diff left it.
    Vids left(std::size_t count) const
    {
        Vids vids;
        for (std::size_t i = 0; i < count; ++i) {
            vids.push_back(diff.after.uvid[i]);
        }
        return vids;
    }

    Diff<GPonOntSelectiveTunnel> diff{getdiff_GPonOntSelectiveTunnel};
};

TEST_F(OntTunnel, NamesTheServiceInTheViewOfTheOnt)
{
    diff.view = "root";
    diff.key[0] = 531;
    diff.key[1] = 15;
    put(diff.after, {10, 11, 12, 20, 30, 31});
    EXPECT_EQ(diff.elements(), (Elements{"configure terminal\ninterface ont 8/19",
                                         "service   15 selective-tunnel uvid 10-12,20,30-31"}));
}

TEST_F(OntTunnel, SortsTheNewRecord)
{
    EXPECT_EQ(text_of({5, 3, 4}), "3-5");
    EXPECT_EQ(left(42), (Vids{3,  4,  5,  -1, -1, -1, -1, -1, -1, -1, -1, -1, -1, -1, -1, -1, -1, -1, -1, -1, -1,
                              -1, -1, -1, -1, -1, -1, -1, -1, -1, -1, -1, -1, -1, -1, -1, -1, -1, -1, -1, -1, -1}));
}

TEST_F(OntTunnel, EqualListsAreGivenAllTheSame)
{
    put(diff.before, {7, 9});
    EXPECT_EQ(text_of({7, 9}), "7,9");
    diff.all = 1;
    EXPECT_EQ(text_of({7, 9}), "7,9");
}

TEST_F(OntTunnel, EmptyList)
{
    EXPECT_EQ(text_of({}), "");
}

TEST_F(OntTunnel, MarkInFrontHidesTheRestAndNothingIsSorted)
{
    EXPECT_EQ(text_of({-1, 3, 2}), "");
    EXPECT_EQ(left(4), (Vids{-1, 3, 2, -1}));
    EXPECT_EQ(text_of({-1, -5, -6}), "");
    EXPECT_EQ(left(4), (Vids{-1, -5, -6, -1}));
}

TEST_F(OntTunnel, SingleValuesAndRuns)
{
    EXPECT_EQ(text_of({4094}), "4094");
    EXPECT_EQ(text_of({1, 2}), "1-2");
    EXPECT_EQ(text_of({1, 3}), "1,3");
    EXPECT_EQ(text_of({1, 2, 4}), "1-2,4");
    EXPECT_EQ(text_of({1, 3, 4}), "1,3-4");
    EXPECT_EQ(text_of({1, 2, 3, 5, 6, 8, 10, 11}), "1-3,5-6,8,10-11");
}

TEST_F(OntTunnel, DuplicatesStayAndEndARun)
{
    EXPECT_EQ(text_of({7, 7}), "7,7");
    EXPECT_EQ(text_of({6, 5, 7, 5, 6}), "5,5-6,6-7");
    EXPECT_EQ(left(6), (Vids{5, 5, 6, 6, 7, -1}));
}

TEST_F(OntTunnel, NegativeValuesAndExtremes)
{
    EXPECT_EQ(text_of({32767, -32768}), "-32768,32767");
    EXPECT_EQ(text_of({-2, 0, -3}), "-3--2,0");
    EXPECT_EQ(text_of({32766, 32767, 0}), "0,32766-32767");
    EXPECT_EQ(text_of({-3, -2}), "-3--2"); // the mark behind -2 does not go on with the run
}

TEST_F(OntTunnel, MarkInTheMiddleDividesTheList)
{
    EXPECT_EQ(text_of({9, 8, -1, 7, 6}), "8-9");
    EXPECT_EQ(left(6), (Vids{8, 9, -1, 6, 7, -1}));
}

TEST_F(OntTunnel, PassesEndAtTheMark)
{
    EXPECT_EQ(text_of({1, -1, 9, 8, 7}), "1");
    EXPECT_EQ(left(6), (Vids{1, -1, 8, 7, 9, -1}));
}

TEST_F(OntTunnel, ValuesBelowTheMarkPassIt)
{
    EXPECT_EQ(text_of({5, -1, -7, 2}), "-7,5");
    EXPECT_EQ(left(5), (Vids{-7, 5, -1, 2, -1}));
    EXPECT_EQ(text_of({100, -1, -2, -3, -4}), "-4--2,100");
    EXPECT_EQ(left(6), (Vids{-4, -3, -2, 100, -1, -1}));
}

TEST_F(OntTunnel, FullListWithoutAMark)
{
    Vids descending(42);
    for (std::size_t i = 0; i < 42; ++i) {
        descending[i] = 42 - static_cast<int>(i);
    }
    EXPECT_EQ(text_of(descending), "1-42");
    std::reverse(descending.begin(), descending.end());
    EXPECT_EQ(left(42), descending);
}

TEST_F(OntTunnel, FullListWithItsLastValueApart)
{
    Vids vids(42);
    for (std::size_t i = 0; i < 41; ++i) {
        vids[i] = static_cast<int>(i);
    }
    vids[41] = 4094;
    EXPECT_EQ(text_of(vids), "0-40,4094");
}

TEST_F(OntTunnel, MarkInTheLastPlace)
{
    Vids vids(41);
    for (std::size_t i = 0; i < 41; ++i) {
        vids[i] = 41 - static_cast<int>(i);
    }
    EXPECT_EQ(text_of(vids), "1-41");
}

TEST_F(OntTunnel, AllEqual)
{
    std::string expected = "7";
    for (int i = 1; i < 42; ++i) {
        expected += ",7";
    }
    EXPECT_EQ(text_of(Vids(42, 7)), expected);
    EXPECT_EQ(left(42), Vids(42, 7));
}

TEST_F(OntTunnel, TextIsNeverCut)
{
    std::string expected = "-32768";
    for (int i = 1; i < 42; ++i) {
        expected += ",-32768";
    }
    ASSERT_EQ(expected.size(), 293U);
    EXPECT_EQ(text_of(Vids(42, -32768)), expected);

    Vids vids;
    expected.clear();
    for (int i = 0; i < 42; ++i) {
        vids.insert(vids.begin(), -32768 + 2 * i);
        expected += (i == 0 ? "" : ",") + std::to_string(-32768 + 2 * i);
    }
    EXPECT_EQ(text_of(vids), expected);
}

TEST_F(OntTunnel, NeighboursOfTheListAreLeftAlone)
{
    for (const int service : {0, 7, 15}) {
        GPonOntCfg ont;
        std::memset(&ont, 0x5A, sizeof ont);
        for (int i = 0; i < 42; ++i) {
            ont.tunnel[service].uvid[i] = static_cast<s16>(42 - i);
        }
        GPonOntCfg expected = ont;
        for (int i = 0; i < 42; ++i) {
            expected.tunnel[service].uvid[i] = static_cast<s16>(i + 1);
        }
        List<char> out;
        int key[10] = {};
        getdiff_GPonOntSelectiveTunnel(&ont.tunnel[service], &ont.tunnel[service], key, out);
        take_elements(out);
        EXPECT_EQ(std::memcmp(&ont, &expected, sizeof ont), 0);
    }
    current_view = {};
}

/// The sort and then the ranges, each step by itself.
Vids sorted_by_passes(Vids vids)
{
    for (std::size_t pass = 0; pass < 41; ++pass) {
        if (vids[pass] == -1) {
            break;
        }
        for (std::size_t j = 0; j <= 40 - pass; ++j) {
            if (vids[j + 1] != -1 && vids[j + 1] < vids[j]) {
                std::swap(vids[j], vids[j + 1]);
            }
        }
    }
    return vids;
}

std::string ranges_of(const Vids& vids)
{
    std::string text;
    bool run = false;
    int last = 0;
    for (std::size_t k = 0; k < 42 && vids[k] != -1; ++k) {
        if (k == 0) {
            text += std::to_string(vids[k]);
        } else if (vids[k] == last + 1) {
            run = true;
        } else {
            if (run) {
                text += "-" + std::to_string(last);
            }
            run = false;
            text += "," + std::to_string(vids[k]);
        }
        last = vids[k];
    }
    return run ? text + "-" + std::to_string(last) : text;
}

TEST_F(OntTunnel, AnyListIsSortedAndWrittenInPlainSteps)
{
    std::mt19937 random(20240229);
    for (int round = 0; round < 3000; ++round) {
        const int widest = round % 3 == 0 ? 4 : round % 3 == 1 ? 30 : 32767;
        std::uniform_int_distribution<int> any(round % 2 == 0 ? 0 : -widest, widest);
        Vids vids(42);
        for (int& vid : vids) {
            vid = any(random);
        }
        for (int marks = round % 4; marks > 0; --marks) {
            vids[random() % 42] = -1;
        }
        const Vids expected = sorted_by_passes(vids);
        ASSERT_EQ(text_of(vids), ranges_of(expected)) << testing::PrintToString(vids);
        ASSERT_EQ(left(42), expected) << testing::PrintToString(vids);
    }
}

} // namespace
