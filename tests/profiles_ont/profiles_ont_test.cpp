#include "tests/profiles_ont/profile_test.h"

namespace {

// ----------------------------------------------------------------------------------------------------------- container

class OntProfiles : public testing::Test {
  protected:
    template <class Profile>
    static void name(Profile& profile, const char* name)
    {
        profile.exist = 1;
        put(profile.name, name);
    }

    /// The walk over the profiles alone, from the top level.
    std::string walk(int all = 0)
    {
        session.open();
        diff->before = session.orig->pon.profiles_ont;
        diff->after = session.cfg->pon.profiles_ont;
        diff->all = all;
        return diff->script();
    }

    Session session;
    GPonProfilesOnt& before = session.orig->pon.profiles_ont;
    GPonProfilesOnt& after = session.cfg->pon.profiles_ont;
    std::unique_ptr<Diff<GPonProfilesOnt>> diff{new Diff<GPonProfilesOnt>(getdiff_GPonProfilesOnt)};
};

TEST_F(OntProfiles, KindsInOrderEachByAscendingSlot)
{
    name(after.template_ont[0], "t0");
    name(after.template_ont[31], "t31");
    name(after.management[0], "m0");
    name(after.management[31], "m31");
    name(after.voice[0], "v0");
    name(after.voice[31], "v31");
    name(after.ports[0], "p0");
    name(after.ports[31], "p31");
    name(after.alloc[0], "a0");
    name(after.alloc[127], "a127");
    name(after.cross_connect[0], "c0");
    name(after.cross_connect[127], "c127");
    name(after.shaping[0], "s0");
    name(after.shaping[127], "s127");
    diff->key[1] = 9;
    EXPECT_EQ(walk(), "configure terminal\nprofile shaping \"s0\"\n"
                      "exit\nprofile shaping \"s127\"\n"
                      "exit\nprofile cross-connect \"c0\"\n"
                      "exit\nprofile cross-connect \"c127\"\n"
                      "exit\nprofile dba \"a0\"\n"
                      "exit\nprofile dba \"a127\"\n"
                      "exit\nprofile ports \"p0\"\n"
                      "exit\nprofile ports \"p31\"\n"
                      "exit\nprofile voice \"v0\"\n"
                      "exit\nprofile voice \"v31\"\n"
                      "exit\nprofile management \"m0\"\n"
                      "exit\nprofile management \"m31\"\n"
                      "exit\ntemplate \"t0\"\n"
                      "exit\ntemplate \"t31\"\n");
    EXPECT_EQ(diff->key[0], 31);
    EXPECT_EQ(diff->key[1], 3) << "as the ports profiles left it";
}

TEST_F(OntProfiles, OtherKeySlotsAreLeftAsTheyAre)
{
    after.voice[3].revision = 9;
    for (int slot = 0; slot < 10; ++slot) {
        diff->key[slot] = 100 + slot;
    }
    EXPECT_EQ(walk(), "");
    EXPECT_EQ(diff->key[0], 31);
    for (int slot = 1; slot < 10; ++slot) {
        EXPECT_EQ(diff->key[slot], 100 + slot);
    }
}

TEST_F(OntProfiles, FreeSlotsThatDifferSayNothing)
{
    after.alloc[64].allocate_new_alloc = 1;
    after.ports[3].igmp_settings.robustness = 2;
    EXPECT_EQ(walk(), "");
    EXPECT_EQ(walk(1), "");
    EXPECT_EQ(diff->key[0], 31);
}

TEST_F(OntProfiles, RemovedProfilesHaveNoCommand)
{
    name(before.alloc[1], "gold");
    put(after.alloc[1].name, "gold");
    EXPECT_EQ(walk(), "");
}

TEST_F(OntProfiles, DumpHandsEveryEqualProfileToItsDiff)
{
    name(before.alloc[127], "gold");
    name(before.management[0], "omci");
    after = before;
    EXPECT_EQ(walk(1), "configure terminal\nprofile dba \"gold\"\n"
                       "name \"gold\"\n"
                       "description \"\"\n"
                       "no allocation-scheme\n"
                       "sla class \"data\"\n"
                       "sla status-reporting \"nsr\"\n"
                       "alloc size \"0\"\n"
                       "alloc period \"0\"\n"
                       "bandwidth fixed \"0\"\n"
                       "bandwidth guaranteed \"0\"\n"
                       "bandwidth besteffort \"0\"\n"
                       "exit\nprofile management \"omci\"\n"
                       "name \"omci\"\n"
                       "description \"\"\n"
                       "no omci-configuration\n"
                       "url \"\"\n"
                       "username \"\"\n"
                       "password \"\"\n"
                       "ont-config version \"\" file \"\"\n");
}

} // namespace
