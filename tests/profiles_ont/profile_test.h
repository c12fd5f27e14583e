#ifndef TESTS_PROFILES_ONT_PROFILE_TEST_H
#define TESTS_PROFILES_ONT_PROFILE_TEST_H

#include "tests/support/diff.h"

/// Values of a switch that all say on.
inline constexpr std::uint16_t on_values[] = {1, 2, 256, 65535};
/// The same, without the one that tells existing profiles.
inline constexpr std::uint16_t odd_values[] = {2, 256, 257, 65535};

/// A profile that exists on both sides, while the script stands in its view: the texts are its commands alone.
template <class Profile>
class ProfileDiff : public Diff<Profile> {
  public:
    ProfileDiff(bool (*function)(Profile*, Profile*, int*, List<char>&), const char* profile_view)
        : Diff<Profile>(function)
    {
        for (Profile* profile : {&this->before, &this->after}) {
            profile->exist = 1;
            put(profile->name, "gold");
        }
        this->view = profile_view;
        this->view_key = this->key[0] = 5;
    }
};

/// A part of the profile in slot `profile`, with the number `part` where there are several, while the script stands in
/// the profile's view.
template <class Record>
class PartDiff : public Diff<Record> {
  public:
    template <class... Arguments>
    PartDiff(const char* profile_view, int profile, int part, Arguments... arguments) : Diff<Record>(arguments...)
    {
        this->view = profile_view;
        this->view_key = this->key[0] = profile;
        this->key[1] = part;
    }
};

/// A change of one field, and the text that it gives.
template <class Record>
struct Change {
    void (*make)(Record& after);
    const char* text;
};

/// Makes each change alone, in a record that is otherwise as it was.
template <class Record>
void expect_each_alone(const Diff<Record>& diff, std::initializer_list<Change<Record>> changes)
{
    for (const Change<Record>& change : changes) {
        Diff<Record> alone = diff;
        change.make(alone.after);
        EXPECT_EQ(alone.script(), change.text);
    }
}

#endif
