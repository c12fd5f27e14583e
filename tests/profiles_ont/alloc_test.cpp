#include "tests/support/diff.h"

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

TEST_F(Sla, EqualRecordsSayNothing)
{
    EXPECT_EQ(diff.elements(), Elements{});
}

} // namespace
