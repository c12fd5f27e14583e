#ifndef TESTS_SUPPORT_DIFF_H
#define TESTS_SUPPORT_DIFF_H

/// @file
/// Helpers for the tests of record diffs: two blank records, change a field, compare the whole text.
///
///     Diff ntp{getdiff_GSystemNtpCfg};
///     put(ntp.after.ntpserver, {192, 0, 2, 1});
///     EXPECT_EQ(ntp.script(), "configure terminal\nip ntp ip \"192.0.2.1\"\n");

#include "pon/DataToCommandsConvertor.h"
#include "pon/command_file_generator.h"
#include "pon/diff_builder.h"
#include "tests/support/elements.h"

#include <cstring>
#include <functional>
#include <gtest/gtest.h>
#include <initializer_list>
#include <memory>
#include <string>

/// Writes a text and zeroes the rest of the array; a text that fills the array has no terminator.
template <std::size_t N>
void put(char (&field)[N], const std::string& text)
{
    ASSERT_LE(text.size(), N);
    std::memset(field, 0, N);
    std::memcpy(field, text.data(), text.size());
}

template <std::size_t N>
void put(unsigned char (&field)[N], std::initializer_list<int> bytes)
{
    ASSERT_EQ(bytes.size(), N);
    std::size_t i = 0;
    for (const int byte : bytes) {
        field[i++] = static_cast<unsigned char>(byte);
    }
}

/// The lines that an operation makes of the elements of its list: each that is neither empty nor begins with a line
/// feed, followed by one.
std::string joined(const Elements& elements);

/// What the commands of a script concern, each subject once in a row: the first word of a line, or two after "ip", "no"
/// aside. For tests of containers: which records they show, whatever commands these have.
Elements subjects(const std::string& script);

/// Takes the text of an operation and frees it.
std::string taken(char* text);

/// A record diff with untyped records; a prefix parameter is already bound. Returns what the record diff returns.
using AnyDiff = std::function<int(void* lhs, void* rhs, int* key, List<char>& out)>;

template <class Result, class Record>
AnyDiff any_diff(Result (*function)(Record*, Record*, int*, List<char>&))
{
    return [function](void* lhs, void* rhs, int* key, List<char>& out) {
        return function(static_cast<Record*>(lhs), static_cast<Record*>(rhs), key, out);
    };
}

template <class Result, class Record, class Prefix>
AnyDiff any_diff(Result (*function)(Prefix, Record*, Record*, int*, List<char>&), const char* prefix)
{
    return [function, text = std::string(prefix)](void* lhs, void* rhs, int* key, List<char>& out) mutable {
        return function(text.data(), static_cast<Record*>(lhs), static_cast<Record*>(rhs), key, out);
    };
}

/// Runs a diff once over records at even and once at odd addresses, both in the same state, and checks that the texts
/// agree and, unless `may_sort` is set, that the records are left as they were.
class DiffRun {
  public:
    int all = 0;               ///< print_all during the run
    int common = 0;            ///< print_common during the run
    const char* view = "root"; ///< the view before the run
    int view_key = 0;
    int key[10] = {}; ///< before the run, and after it as the diff left it
    bool may_sort = false;

  protected:
    Elements run(const AnyDiff& diff, void* before, void* after, std::size_t size);
};

template <class Record>
class Diff : public DiffRun {
  public:
    template <class Result>
    explicit Diff(Result (*function)(Record*, Record*, int*, List<char>&)) : diff_(any_diff(function))
    {
    }
    /// For diffs that take a leading text.
    template <class Result, class Prefix>
    Diff(Result (*function)(Prefix, Record*, Record*, int*, List<char>&), const char* prefix)
        : diff_(any_diff(function, prefix))
    {
    }

    Elements elements() { return run(diff_, &before, &after, sizeof(Record)); }
    std::string script() { return joined(elements()); }

    Record before{};
    Record after{};

  private:
    AnyDiff diff_;
};

/// Two blank configurations and a session over them. Fill `orig` and `cfg`, then open it.
class Session {
  public:
    Session();
    ~Session();
    Session(const Session&) = delete;
    Session& operator=(const Session&) = delete;

    void open(int all = 0, int common = 0) const;
    /// Makes the two configurations equal to the new one, so that tests change one field from there.
    void settle() const { *orig = *cfg; }
    std::string full_diff() const;

    std::unique_ptr<GCfg> orig_owner{new GCfg{}};
    std::unique_ptr<GCfg> cfg_owner{new GCfg{}};
    GCfg* const orig = orig_owner.get();
    GCfg* const cfg = cfg_owner.get();
};

#endif
