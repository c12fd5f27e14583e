#include "tests/profiles_ont/profile_test.h"

namespace {

class Sla : public testing::Test {
  protected:
    Sla()
    {
        session.orig->pon.profiles_ont.alloc[127].exist = 1;
        put(session.orig->pon.profiles_ont.alloc[127].name, "gold");
        session.open();
        diff.key[0] = 127;
    }

    Session session;
    Diff<GZorvanSLA> diff{getdiff_GZorvanSLA, "sla_data"};
};

TEST_F(Sla, EveryFieldInOrder)
{
    diff.after.service_class = 4;
    diff.after.status_reporting = 1;
    diff.after.alloc_size = 4294967295U;
    diff.after.alloc_period = 255;
    diff.after.fixed_bandwidth = 64;
    diff.after.guaranteed_bandwidth = 128;
    diff.after.besteffort_bandwidth = 1244160;
    EXPECT_EQ(diff.script(), "configure terminal\nprofile dba \"gold\"\n"
                             "sla class \"periodic-allocation\"\n"
                             "sla status-reporting \"mode0\"\n"
                             "alloc size \"4294967295\"\n"
                             "alloc period \"255\"\n"
                             "bandwidth fixed \"64\"\n"
                             "bandwidth guaranteed \"128\"\n"
                             "bandwidth besteffort \"1244160\"\n");
}

TEST_F(Sla, BandwidthsHaveNoSign)
{
    diff.after.fixed_bandwidth = 4294967295U;
    diff.after.guaranteed_bandwidth = 4294967294U;
    diff.after.besteffort_bandwidth = 2147483648U;
    EXPECT_EQ(diff.script(), "configure terminal\nprofile dba \"gold\"\n"
                             "bandwidth fixed \"4294967295\"\n"
                             "bandwidth guaranteed \"4294967294\"\n"
                             "bandwidth besteffort \"2147483648\"\n");
}

TEST_F(Sla, EveryServiceClass)
{
    const char* const words[] = {"omci", "voip", "cbr", "periodic-allocation", "type5", ""};
    for (std::uint16_t value = 1; value <= 6; ++value) {
        diff.after.service_class = value;
        EXPECT_EQ(diff.script(),
                  "configure terminal\nprofile dba \"gold\"\nsla class \"" + std::string(words[value - 1]) + "\"\n");
    }
}

TEST_F(Sla, PrintAllForcesWhateverPartIsWanted)
{
    for (const int common : {0, 1, 2}) {
        diff.all = 1;
        diff.common = common;
        EXPECT_EQ(diff.script(), "configure terminal\nprofile dba \"gold\"\n"
                                 "sla class \"data\"\n"
                                 "sla status-reporting \"nsr\"\n"
                                 "alloc size \"0\"\n"
                                 "alloc period \"0\"\n"
                                 "bandwidth fixed \"0\"\n"
                                 "bandwidth guaranteed \"0\"\n"
                                 "bandwidth besteffort \"0\"\n");
    }
}

TEST(Dba, ShowsTheSla)
{
    Diff<GPonOntDba> dba{getdiff_GPonOntDba};
    dba.view = "dba-view";
    EXPECT_EQ(dba.elements(), Elements{});
    dba.after.sla_data.alloc_period = 3;
    dba.after.sla_data.fixed_bandwidth = 64;
    EXPECT_EQ(dba.elements(), (Elements{"", "alloc period \"3\"", "", "bandwidth fixed \"64\""}));
}

TEST(Dba, DumpShowsEveryFieldOfAnEqualSla)
{
    Diff<GPonOntDba> dba{getdiff_GPonOntDba};
    dba.view = "dba-view";
    dba.all = 1;
    EXPECT_EQ(dba.script(), "sla class \"data\"\n"
                            "sla status-reporting \"nsr\"\n"
                            "alloc size \"0\"\n"
                            "alloc period \"0\"\n"
                            "bandwidth fixed \"0\"\n"
                            "bandwidth guaranteed \"0\"\n"
                            "bandwidth besteffort \"0\"\n");
}

class AllocProfile : public testing::Test {
  protected:
    ProfileDiff<GPonProfileOntAlloc> diff{getdiff_GPonProfileOntAlloc, "dba-view"};
};

TEST_F(AllocProfile, SchemeComesBeforeTheSla)
{
    put(diff.after.description, "voice");
    diff.after.allocate_new_alloc = 1;
    diff.after.dba.sla_data.service_class = 3;
    EXPECT_EQ(diff.elements(), behind("", "description \"voice\"\n"
                                          "allocation-scheme allocate-new-t-cont\n"
                                          "sla class \"cbr\"\n"));
    EXPECT_EQ(diff.key[0], 5);
    EXPECT_EQ(diff.key[1], 0);
}

TEST_F(AllocProfile, EachFieldAlone)
{
    diff.before.allocate_new_alloc = diff.after.allocate_new_alloc = 2;
    expect_each_alone<GPonProfileOntAlloc>(
        diff,
        {
            {[](GPonProfileOntAlloc& p) { put(p.description, "voice"); }, "description \"voice\"\n"},
            {[](GPonProfileOntAlloc& p) { p.allocate_new_alloc = 0; }, "no allocation-scheme\n"},
            {[](GPonProfileOntAlloc& p) { p.allocate_new_alloc = 1; }, "allocation-scheme allocate-new-t-cont\n"},
            {[](GPonProfileOntAlloc& p) { p.allocate_new_alloc = 65535; }, "allocation-scheme allocate-new-t-cont\n"},
            {[](GPonProfileOntAlloc& p) { p.dba.sla_data.besteffort_bandwidth = 7; }, "bandwidth besteffort \"7\"\n"},
            {[](GPonProfileOntAlloc& p) { p.revision = 9; }, ""},
        });
}

TEST_F(AllocProfile, NewProfileIsEnteredThenItsSchemeThenItsSla)
{
    Session session;
    session.cfg->pon.profiles_ont.alloc[5].exist = 1;
    put(session.cfg->pon.profiles_ont.alloc[5].name, "gold");
    session.open();
    diff.view = "root";
    diff.before = GPonProfileOntAlloc{};
    diff.after.allocate_new_alloc = 1;
    diff.after.dba.sla_data.guaranteed_bandwidth = 1000;
    EXPECT_EQ(diff.elements(),
              (Elements{"configure terminal\nprofile dba \"gold\"", "", "allocation-scheme allocate-new-t-cont", "",
                        "bandwidth guaranteed \"1000\""}));
}

TEST_F(AllocProfile, DumpForcesEveryStepWhateverPartIsWanted)
{
    for (const int common : {0, 1, 2}) {
        diff.all = 1;
        diff.common = common;
        EXPECT_EQ(diff.script(), "name \"gold\"\n"
                                 "description \"\"\n"
                                 "no allocation-scheme\n"
                                 "sla class \"data\"\n"
                                 "sla status-reporting \"nsr\"\n"
                                 "alloc size \"0\"\n"
                                 "alloc period \"0\"\n"
                                 "bandwidth fixed \"0\"\n"
                                 "bandwidth guaranteed \"0\"\n"
                                 "bandwidth besteffort \"0\"\n");
    }
}

} // namespace
