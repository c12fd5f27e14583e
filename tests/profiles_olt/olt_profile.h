#ifndef TESTS_PROFILES_OLT_OLT_PROFILE_H
#define TESTS_PROFILES_OLT_OLT_PROFILE_H

#include "tests/support/diff.h"

/// A profile in slot 4 that exists on both sides under the name "office"; the diff runs in a session that knows it.
template <class Profile>
class OltProfileTest : public testing::Test {
  protected:
    using Slots = Profile (GPonProfilesOlt::*)[GCFG_OLT_PROFILES];

    OltProfileTest(bool (*function)(Profile*, Profile*, int*, List<char>&), Slots slots) : diff(function), slots_(slots)
    {
        for (Profile* profile : {&diff.before, &diff.after}) {
            profile->exist = 1;
            put(profile->name, "office");
        }
        diff.key[0] = 4;
        diff.key[1] = 9;
    }

    Elements elements()
    {
        (session_.orig->pon.profiles_olt.*slots_)[4] = diff.before;
        (session_.cfg->pon.profiles_olt.*slots_)[4] = diff.after;
        session_.open();
        return diff.elements();
    }
    std::string script() { return joined(elements()); }

    Diff<Profile> diff;

  private:
    Session session_;
    Slots slots_;
};

#endif
