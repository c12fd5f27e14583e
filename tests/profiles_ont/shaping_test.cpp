#include "tests/profiles_ont/profile_test.h"
#include "tests/support/allocation.h"

namespace {

using Profile = GPonProfileOntShaping;
using Downstream = GPonOntShapingDownstream;
using Policer = GPonOntShapingDownstreamParams;
using Upstream = GPonOntShapingUpstream;
using Shaper = GPonOntShapingUpstreamParams;
using Storm = GPonOntStormControl;

/// Policer or shaper 3 and the other parts of shaping profile 8, while the script stands in its view.
template <class Record>
class Part : public PartDiff<Record> {
  public:
    template <class... Arguments>
    explicit Part(Arguments... arguments) : PartDiff<Record>("shaping-view", 8, 3, arguments...)
    {
    }
};

// ---------------------------------------------------------------------------------------------------------- downstream

TEST(DownstreamPolicer, EachFieldAlone)
{
    Part<Policer> policer{getdiff_GPonOntShapingDownstreamParams};
    policer.before = policer.after = {2, 1};
    expect_each_alone<Policer>(
        policer,
        {
            {[](Policer& p) { p.enable = 0; }, "no downstream policer    3 enable\n"},
            {[](Policer& p) { p.enable = 1; }, "downstream policer    3 enable\n"},
            {[](Policer& p) { p.enable = 65535; }, "downstream policer    3 enable\n"},
            {[](Policer& p) { p.peak_rate = 0; }, "downstream policer    3 peak-rate \"0\"\n"},
            {[](Policer& p) { p.peak_rate = 4294967295U; }, "downstream policer    3 peak-rate \"4294967295\"\n"},
        });
}

TEST(DownstreamPolicer, BothFieldsInOrder)
{
    Part<Policer> policer{getdiff_GPonOntShapingDownstreamParams};
    policer.after = {1, 64};
    EXPECT_EQ(policer.elements(), behind("", "downstream policer    3 enable\n"
                                             "downstream policer    3 peak-rate \"64\"\n"));
    EXPECT_EQ(policer.key[1], 3);
}

TEST(DownstreamPolicer, DumpShowsBothFieldsOfAnEqualPolicer)
{
    Part<Policer> policer{getdiff_GPonOntShapingDownstreamParams};
    EXPECT_EQ(policer.elements(), Elements{});
    policer.all = 1;
    EXPECT_EQ(policer.script(), "no downstream policer    3 enable\n"
                                "downstream policer    3 peak-rate \"0\"\n");
}

TEST(Downstream, OnePolicerComesBeforeThePolicers)
{
    Part<Downstream> downstream{getdiff_GPonOntShapingDownstream};
    downstream.after.one_policer = 1;
    downstream.after.policer[0].enable = 1;
    downstream.after.policer[15].peak_rate = 64;
    EXPECT_EQ(downstream.elements(), behind("", "downstream one-policer\n"
                                                "downstream policer    0 enable\n"
                                                "downstream policer   15 peak-rate \"64\"\n"));
    EXPECT_EQ(downstream.key[0], 8);
    EXPECT_EQ(downstream.key[1], 15);
}

TEST(Downstream, OnePolicerOnAndOff)
{
    Part<Downstream> downstream{getdiff_GPonOntShapingDownstream};
    downstream.before.one_policer = downstream.after.one_policer = 2;
    expect_each_alone<Downstream>(downstream,
                                  {
                                      {[](Downstream& d) { d.one_policer = 0; }, "no downstream one-policer\n"},
                                      {[](Downstream& d) { d.one_policer = 1; }, "downstream one-policer\n"},
                                      {[](Downstream& d) { d.one_policer = 65535; }, "downstream one-policer\n"},
                                  });
}

std::string downstream_dump()
{
    std::string dump = "no downstream one-policer\n";
    for (int i = 0; i < 16; ++i) {
        const std::string number = (i < 10 ? "   " : "  ") + std::to_string(i);
        dump += "no downstream policer " + number + " enable\n";
        dump += "downstream policer " + number + " peak-rate \"0\"\n";
    }
    return dump;
}

TEST(Downstream, DumpShowsEveryPolicerWhateverPartIsWanted)
{
    for (const int common : {0, 1, 2}) {
        Part<Downstream> downstream{getdiff_GPonOntShapingDownstream};
        downstream.all = 1;
        downstream.common = common;
        EXPECT_EQ(downstream.script(), downstream_dump());
        EXPECT_EQ(downstream.key[1], 15);
    }
}

// ------------------------------------------------------------------------------------------------------------ upstream

TEST(UpstreamShaper, EachFieldAlone)
{
    Part<Shaper> shaper{getdiff_GPonOntShapingUpstreamParams, "unicast"};
    shaper.before = shaper.after = {2, 1, 1};
    expect_each_alone<Shaper>(
        shaper,
        {
            {[](Shaper& s) { s.enable = 0; }, "no upstream unicast    3 enable\n"},
            {[](Shaper& s) { s.enable = 1; }, "upstream unicast    3 enable\n"},
            {[](Shaper& s) { s.enable = 65535; }, "upstream unicast    3 enable\n"},
            {[](Shaper& s) { s.commited_rate = 64; }, "upstream unicast    3 commited-rate 64\n"},
            {[](Shaper& s) { s.commited_rate = 2147483647U; }, "upstream unicast    3 commited-rate 2147483647\n"},
            {[](Shaper& s) { s.commited_rate = 2147483648U; }, "upstream unicast    3 commited-rate -2147483648\n"},
            {[](Shaper& s) { s.commited_rate = 4294967295U; }, "upstream unicast    3 commited-rate -1\n"},
            {[](Shaper& s) { s.peak_rate = 0; }, "upstream unicast    3 peak-rate 0\n"},
            {[](Shaper& s) { s.peak_rate = 2147483648U; }, "upstream unicast    3 peak-rate -2147483648\n"},
            {[](Shaper& s) { s.peak_rate = 4294967295U; }, "upstream unicast    3 peak-rate -1\n"},
        });
}

TEST(UpstreamShaper, ClassWithoutAWordHasTwoBlanks)
{
    // Two blanks and the three that align the number.
    Part<Shaper> shaper{getdiff_GPonOntShapingUpstreamParams, ""};
    shaper.after = {1, 64, 128};
    EXPECT_EQ(shaper.elements(), behind("", "upstream     3 enable\n"
                                            "upstream     3 commited-rate 64\n"
                                            "upstream     3 peak-rate 128\n"));
    std::swap(shaper.before, shaper.after);
    EXPECT_EQ(shaper.script(), "no upstream     3 enable\n"
                               "upstream     3 commited-rate 0\n"
                               "upstream     3 peak-rate 0\n");
}

TEST(UpstreamShaper, NullClassIsTheOneWithoutAWord)
{
    Diff<Shaper> shaper{+[](Shaper* lhs, Shaper* rhs, int* key, List<char>& out) {
        return getdiff_GPonOntShapingUpstreamParams(nullptr, lhs, rhs, key, out);
    }};
    shaper.view = "shaping-view";
    shaper.after.enable = 1;
    EXPECT_EQ(shaper.script(), "upstream     0 enable\n");
}

TEST(UpstreamShaper, DumpShowsWhatHasChangedAlone)
{
    for (const int common : {0, 1, 2}) {
        Part<Shaper> shaper{getdiff_GPonOntShapingUpstreamParams, "broadcast"};
        shaper.all = 1;
        shaper.common = common;
        EXPECT_EQ(shaper.elements(), Elements{});
        shaper.after.peak_rate = 1;
        EXPECT_EQ(shaper.elements(), (Elements{"", "upstream broadcast    3 peak-rate 1"}));
    }
}

TEST(Upstream, ClassesInOrderAndStormControlLast)
{
    Part<Upstream> upstream{getdiff_GPonOntShapingUpstream};
    upstream.after.storm_control.broadcast_threshold = 100;
    upstream.after.shaper_broadcast[0].commited_rate = 4294967295U;
    upstream.after.shaper_multicast[1].enable = 1;
    upstream.after.shaper_unicast[15].peak_rate = 64;
    upstream.after.shaper[0].peak_rate = 1;
    upstream.after.shaper[3].enable = 1;
    EXPECT_EQ(upstream.elements(), behind("", "upstream     0 peak-rate 1\n"
                                              "upstream     3 enable\n"
                                              "upstream unicast   15 peak-rate 64\n"
                                              "upstream multicast    1 enable\n"
                                              "upstream broadcast    0 commited-rate -1\n"
                                              "upstream broadcast storm-control rate-limit 100\n"));
    EXPECT_EQ(upstream.key[0], 8);
    EXPECT_EQ(upstream.key[1], 15);
}

TEST(Upstream, EveryShaperOfEveryClass)
{
    const struct {
        const char* word;
        Shaper (Upstream::*shapers)[16];
    } classes[] = {
        {"", &Upstream::shaper},
        {"unicast", &Upstream::shaper_unicast},
        {"multicast", &Upstream::shaper_multicast},
        {"broadcast", &Upstream::shaper_broadcast},
    };
    for (const auto& [word, shapers] : classes) {
        for (int i = 0; i < 16; ++i) {
            Part<Upstream> upstream{getdiff_GPonOntShapingUpstream};
            (upstream.after.*shapers)[i].peak_rate = 7;
            const std::string expected =
                std::string("upstream ") + word + (i < 10 ? "    " : "   ") + std::to_string(i) + " peak-rate 7\n";
            EXPECT_EQ(upstream.script(), expected);
        }
    }
}

TEST(Upstream, EqualPartsLeaveTheKeyButADumpDoesNot)
{
    Part<Upstream> upstream{getdiff_GPonOntShapingUpstream};
    EXPECT_EQ(upstream.elements(), Elements{});
    EXPECT_EQ(upstream.key[1], 3);
    upstream.all = 1;
    EXPECT_EQ(upstream.elements(), Elements{});
    EXPECT_EQ(upstream.key[1], 15);
}

// ------------------------------------------------------------------------------------------------------- storm control

TEST(StormControl, RateLimitWhenItHasChangedAndTheActionsThatAreOn)
{
    Part<Storm> storm{getdiff_GPonOntStormControl};
    storm.before.broadcast_threshold = storm.before.multicast_threshold = 50;
    storm.after = storm.before;
    expect_each_alone<Storm>(
        storm, {
                   {[](Storm& s) { s.broadcast_threshold = 100; }, "upstream broadcast storm-control rate-limit 100\n"},
                   {[](Storm& s) { s.broadcast_threshold = 0; }, "upstream broadcast storm-control rate-limit 0\n"},
                   {[](Storm& s) { s.broadcast_threshold = 4294967295U; },
                    "upstream broadcast storm-control rate-limit 4294967295\n"},
                   {[](Storm& s) { s.broadcast_logging = 1; }, "upstream broadcast storm-control logging\n"},
                   {[](Storm& s) { s.broadcast_logging = 65535; }, "upstream broadcast storm-control logging\n"},
                   {[](Storm& s) { s.broadcast_shutdown = 2; }, "upstream broadcast storm-control shutdown\n"},
                   {[](Storm& s) { s.broadcast_logging = s.broadcast_shutdown = 1; },
                    "upstream broadcast storm-control logging shutdown\n"},
                   {[](Storm& s) {
                        s.broadcast_threshold = 100;
                        s.broadcast_logging = s.broadcast_shutdown = 1;
                    },
                    "upstream broadcast storm-control rate-limit 100 logging shutdown\n"},
                   {[](Storm& s) { s.multicast_threshold = 100; }, "upstream multicast storm-control rate-limit 100\n"},
                   {[](Storm& s) { s.multicast_threshold = 4294967295U; },
                    "upstream multicast storm-control rate-limit 4294967295\n"},
                   {[](Storm& s) { s.multicast_logging = 2; }, "upstream multicast storm-control logging\n"},
                   {[](Storm& s) { s.multicast_shutdown = 65535; }, "upstream multicast storm-control shutdown\n"},
                   {[](Storm& s) {
                        s.multicast_threshold = 100;
                        s.multicast_shutdown = 1;
                    },
                    "upstream multicast storm-control rate-limit 100 shutdown\n"},
                   {[](Storm& s) {
                        s.multicast_threshold = 100;
                        s.multicast_logging = 1;
                    },
                    "upstream multicast storm-control rate-limit 100 logging\n"},
               });
}

TEST(StormControl, ActionsThatAreOffAreLeftOut)
{
    Part<Storm> storm{getdiff_GPonOntStormControl};
    storm.before = {50, 50, 1, 1, 1, 1};
    storm.after = storm.before;
    expect_each_alone<Storm>(
        storm,
        {
            {[](Storm& s) { s.broadcast_logging = 0; }, "upstream broadcast storm-control shutdown\n"},
            {[](Storm& s) { s.broadcast_shutdown = 0; }, "upstream broadcast storm-control logging\n"},
            {[](Storm& s) { s.broadcast_logging = s.broadcast_shutdown = 0; }, "upstream broadcast storm-control\n"},
            {[](Storm& s) { s.broadcast_logging = 2; }, "upstream broadcast storm-control logging shutdown\n"},
            {[](Storm& s) { s.broadcast_threshold = 60; },
             "upstream broadcast storm-control rate-limit 60 logging shutdown\n"},
            {[](Storm& s) { s.multicast_logging = 0; }, "upstream multicast storm-control shutdown\n"},
            {[](Storm& s) { s.multicast_shutdown = 0; }, "upstream multicast storm-control logging\n"},
            {[](Storm& s) { s.multicast_logging = s.multicast_shutdown = 0; }, "upstream multicast storm-control\n"},
            {[](Storm& s) { s.multicast_threshold = 60; },
             "upstream multicast storm-control rate-limit 60 logging shutdown\n"},
        });
}

TEST(StormControl, BroadcastComesFirstAndEachBringsItsNavigation)
{
    Part<Storm> storm{getdiff_GPonOntStormControl};
    storm.after = {100, 200, 1, 0, 0, 1};
    EXPECT_EQ(storm.elements(), behind("", "upstream broadcast storm-control rate-limit 100 logging\n"
                                           "upstream multicast storm-control rate-limit 200 shutdown\n"));
    EXPECT_EQ(storm.key[1], 3);
}

TEST(StormControl, DumpShowsWhatHasChangedAlone)
{
    for (const int common : {0, 1, 2}) {
        Part<Storm> storm{getdiff_GPonOntStormControl};
        storm.before = storm.after = {50, 50, 1, 1, 1, 1};
        storm.all = 1;
        storm.common = common;
        EXPECT_EQ(storm.elements(), Elements{});
        storm.after.multicast_logging = 0;
        EXPECT_EQ(storm.elements(), (Elements{"", "upstream multicast storm-control shutdown"}));
    }
}

/// The status of storm control's diff when so many allocations can be had, and the elements that it pushed.
struct StormRun {
    unsigned char status;
    Elements elements;
};

StormRun run_storm(Storm before, Storm after, int granted)
{
    StormRun run{};
    List<char> list;
    int key[10] = {8};
    current_view.name = "root";
    {
        const LimitedAllocations limit(granted);
        run.status = getdiff_GPonOntStormControl(&before, &after, key, list);
    }
    run.elements = take_elements(list);
    current_view.name = "root";
    return run;
}

/// The statuses of runs with ever more allocations, up to and with the first success; each once.
std::vector<int> statuses_of_failures(const Storm& before, const Storm& after)
{
    std::vector<int> statuses;
    for (int granted = 0; granted < 100; ++granted) {
        const int status = run_storm(before, after, granted).status;
        if (statuses.empty() || statuses.back() != status) {
            statuses.push_back(status);
        }
        if (status == 0) {
            break;
        }
    }
    return statuses;
}

TEST(StormControl, StatusTellsWhichTextCouldNotBeHad)
{
    const Storm both = {100, 200, 1, 1, 1, 1};
    const Storm broadcast = {100, 0, 0, 0, 0, 0};
    const Storm multicast = {0, 200, 0, 0, 0, 0};
    EXPECT_EQ(statuses_of_failures({}, both), (std::vector<int>{1, 3, 11, 13, 0}));
    EXPECT_EQ(statuses_of_failures({}, broadcast), (std::vector<int>{1, 3, 0}));
    EXPECT_EQ(statuses_of_failures({}, multicast), (std::vector<int>{11, 13, 0}));
    EXPECT_EQ(statuses_of_failures(both, both), (std::vector<int>{0}));
}

TEST(StormControl, FirstFailureEndsTheWork)
{
    Session session;
    session.orig->pon.profiles_ont.shaping[8].exist = 1;
    put(session.orig->pon.profiles_ont.shaping[8].name, "slow");
    session.open();
    const Storm both = {100, 200, 1, 1, 1, 1};
    const std::string entry = "configure terminal\nprofile shaping \"slow\"";
    const std::string broadcast = "upstream broadcast storm-control rate-limit 100 logging shutdown";
    const std::string multicast = "upstream multicast storm-control rate-limit 200 logging shutdown";
    for (int granted = 0; granted < 100; ++granted) {
        const StormRun run = run_storm({}, both, granted);
        switch (run.status) {
        case 1:
            EXPECT_EQ(run.elements, Elements{});
            break;
        case 3:
            EXPECT_EQ(run.elements, Elements{entry});
            break;
        case 11:
            EXPECT_EQ(run.elements, (Elements{entry, broadcast}));
            break;
        case 13:
            EXPECT_EQ(run.elements, (Elements{entry, broadcast, ""}));
            break;
        default:
            EXPECT_EQ(run.status, 0);
            EXPECT_EQ(run.elements, (Elements{entry, broadcast, "", multicast}));
            return;
        }
    }
    FAIL() << "no run succeeded";
}

// ------------------------------------------------------------------------------------------------------------- profile

class ShapingProfile : public testing::Test {
  protected:
    ShapingProfile() { diff.key[1] = 9; }

    ProfileDiff<Profile> diff{getdiff_GPonProfileOntShaping, "shaping-view"};
};

TEST_F(ShapingProfile, EveryPartInOrder)
{
    put(diff.after.description, "slow lane");
    diff.after.downstream.policer[1].enable = 1;
    diff.after.upstream.shaper_unicast[12].enable = 1;
    diff.after.upstream.storm_control.multicast_logging = 1;
    EXPECT_EQ(diff.elements(), behind("", "description \"slow lane\"\n"
                                          "downstream policer    1 enable\n"
                                          "upstream unicast   12 enable\n"
                                          "upstream multicast storm-control logging\n"));
    EXPECT_EQ(diff.key[0], 5);
    EXPECT_EQ(diff.key[1], 15);
}

TEST_F(ShapingProfile, UnchangedPartsLeaveTheKey)
{
    diff.after.revision = 9;
    EXPECT_EQ(diff.elements(), Elements{});
    EXPECT_EQ(diff.key[1], 9);
}

TEST_F(ShapingProfile, DumpShowsNeitherEqualShapersNorEqualStormControl)
{
    diff.all = 1;
    EXPECT_EQ(diff.script(), "name \"gold\"\ndescription \"\"\n" + downstream_dump());
    diff.after.upstream.shaper[3].enable = 1;
    diff.after.upstream.storm_control.broadcast_threshold = 1;
    EXPECT_EQ(diff.script(), "name \"gold\"\ndescription \"\"\n" + downstream_dump() +
                                 "upstream     3 enable\nupstream broadcast storm-control rate-limit 1\n");
}

TEST_F(ShapingProfile, PartsEnterTheViewOfTheProfile)
{
    Session session;
    session.cfg->pon.profiles_ont.shaping[8].exist = 1;
    put(session.cfg->pon.profiles_ont.shaping[8].name, "slow");
    session.open();

    Part<Downstream> downstream{getdiff_GPonOntShapingDownstream};
    downstream.view = "root";
    downstream.after.one_policer = 1;
    EXPECT_EQ(downstream.script(), "configure terminal\nprofile shaping \"slow\"\ndownstream one-policer\n");

    Part<Policer> policer{getdiff_GPonOntShapingDownstreamParams};
    policer.view = "root";
    policer.after.enable = 1;
    EXPECT_EQ(policer.script(), "configure terminal\nprofile shaping \"slow\"\ndownstream policer    3 enable\n");

    Part<Shaper> shaper{getdiff_GPonOntShapingUpstreamParams, "multicast"};
    shaper.view = "root";
    shaper.after.enable = 1;
    EXPECT_EQ(shaper.script(), "configure terminal\nprofile shaping \"slow\"\nupstream multicast    3 enable\n");

    Part<Storm> storm{getdiff_GPonOntStormControl};
    storm.view = "root";
    storm.after.broadcast_logging = 1;
    EXPECT_EQ(storm.script(), "configure terminal\nprofile shaping \"slow\"\n"
                              "upstream broadcast storm-control logging\n");
}

} // namespace
