/// Properties of every record diff. Where one differs intentionally, a table gives the reason.

#include "tests/support/record_diffs.h"

#include <algorithm>
#include <cstring>
#include <fstream>
#include <set>
#include <string>
#include <utility>
#include <vector>

namespace {

/// A record diff that is an exception to a rule, and why.
struct Exception {
    const char* name;
    const char* reason;
};

using Exceptions = std::vector<Exception>;

bool is_in(const Exceptions& exceptions, const RecordDiff& diff)
{
    return std::any_of(exceptions.begin(), exceptions.end(),
                       [&diff](const Exception& exception) { return exception.name == std::string(diff.name); });
}

/// A record diff on two records of bytes.
class Untyped : public DiffRun {
  public:
    Untyped(const RecordDiff& diff, const std::string& record) : before(record), after(record), diff_(diff)
    {
        std::fill(std::begin(key), std::end(key), 1);
    }

    Elements elements() { return run(diff_.diff, before.data(), after.data(), diff_.record.size); }

    void set_exist(bool exist)
    {
        for (std::string* record : {&before, &after}) {
            std::memset(record->data() + diff_.exist.offset, 0, diff_.exist.size);
            (*record)[diff_.exist.offset] = exist ? 1 : 0;
        }
    }

    bool key_is_left() const
    {
        return std::all_of(std::begin(key), std::end(key), [](int slot) { return slot == 1; });
    }

    std::string before;
    std::string after;

  private:
    const RecordDiff& diff_;
};

/// A blank configuration and one in which nothing is blank.
class RecordDiffs : public testing::Test {
  protected:
    RecordDiffs()
    {
        fill(*session.cfg, 2);
        session.open();
    }

    static std::string blank(const RecordDiff& diff)
    {
        std::string record;
        record.resize(diff.record.size);
        return record;
    }
    std::string full(const RecordDiff& diff) const
    {
        return {reinterpret_cast<const char*>(session.cfg) + diff.record.offset, diff.record.size};
    }

    Session session;
};

TEST_F(RecordDiffs, AreAllListed)
{
    std::set<std::string> listed;
    for (const RecordDiff& diff : record_diffs()) {
        EXPECT_TRUE(listed.insert(diff.name).second) << diff.name << " is listed twice";
    }
    std::set<std::string> exported;
    std::ifstream symbols(PONDIFF_SYMBOLS);
    for (std::string line; std::getline(symbols, line);) {
        const std::size_t begin = line.find(" getdiff_"); // in front of it stands the name as the linker knows it
        if (begin != std::string::npos) {
            exported.insert(line.substr(begin + 1, line.find('(', begin) - begin - 1));
        }
    }
    EXPECT_EQ(listed, exported);
}

TEST_F(RecordDiffs, SayNothingOfEqualRecordsAndLeaveTheKey)
{
    const Exceptions exceptions = {
        {"getdiff_GPonOntSelectiveTunnel", "the list is given whenever the record diff is called"},
    };
    for (const RecordDiff& diff : record_diffs()) {
        SCOPED_TRACE(diff.name);
        for (const std::string& record : {blank(diff), full(diff)}) {
            for (const int common : {0, 1, 2}) {
                Untyped equal(diff, record);
                equal.common = common;
                EXPECT_EQ(equal.elements().empty(), !is_in(exceptions, diff));
                EXPECT_TRUE(equal.key_is_left());
            }
        }
    }
}

TEST_F(RecordDiffs, SayNothingOfANullRecordAndLeaveTheKey)
{
    const Exceptions may_lack_the_old_one = {
        {"getdiff_GPonOntSelectiveTunnel", "the old list is never read"},
    };
    for (const RecordDiff& diff : record_diffs()) {
        SCOPED_TRACE(diff.name);
        for (std::string record : {blank(diff), full(diff)}) {
            for (const int all : {0, 1}) {
                session.open(all, 2);
                List<char> out;
                int key[10] = {1, 1, 1, 1, 1, 1, 1, 1, 1, 1};
                EXPECT_EQ(diff.diff(record.data(), nullptr, key, out), 0);
                EXPECT_EQ(diff.diff(nullptr, nullptr, key, out), 0);
                EXPECT_EQ(take_elements(out), Elements{});
                EXPECT_EQ(diff.diff(nullptr, record.data(), key, out), 0);
                EXPECT_EQ(take_elements(out).empty(), !is_in(may_lack_the_old_one, diff));
                EXPECT_TRUE(std::all_of(std::begin(key), std::end(key), [](int slot) { return slot == 1; }));
            }
        }
    }
}

TEST_F(RecordDiffs, SayNothingOfTheRevision)
{
    int revisions = 0;
    for (const RecordDiff& diff : record_diffs()) {
        if (diff.revision.size == 0) {
            continue;
        }
        ++revisions;
        SCOPED_TRACE(diff.name);
        for (const std::string& record : {blank(diff), full(diff)}) {
            Untyped revised(diff, record);
            if (diff.exist.size != 0) {
                revised.set_exist(true);
            }
            revised.after[diff.revision.offset] = 7;
            EXPECT_EQ(revised.elements(), Elements{});
        }
    }
    EXPECT_GT(revisions, 0);
}

TEST_F(RecordDiffs, SayNothingOfFreeSlotsAndLeaveTheKey)
{
    const Exceptions exceptions = {
        {"getdiff_GSystemRouteCfg", "a removed route is given with what its slot holds"},
        {"getdiff_GSystemSourceGuardBindCfg", "so is a binding"},
        {"getdiff_GPonOltDhcpraCfgByVid", "so is a redefinition"},
        {"getdiff_GPonOltDhcpv6raCfgByVid", "so is a redefinition"},
        {"getdiff_GSvlanAddressTableConfig", "the VLAN's number says whether an entry is in use"},
    };
    int flags = 0;
    for (const RecordDiff& diff : record_diffs()) {
        if (diff.exist.size == 0) {
            continue;
        }
        ++flags;
        SCOPED_TRACE(diff.name);
        for (const int all : {0, 1}) {
            for (const int common : {0, 1, 2}) {
                Untyped free_slot(diff, full(diff));
                free_slot.before = blank(diff);
                free_slot.set_exist(false);
                free_slot.all = all;
                free_slot.common = common;
                EXPECT_EQ(free_slot.elements().empty(), !is_in(exceptions, diff));
                EXPECT_TRUE(free_slot.key_is_left());
                std::swap(free_slot.before, free_slot.after);
                EXPECT_EQ(free_slot.elements().empty(), !is_in(exceptions, diff));
                EXPECT_TRUE(free_slot.key_is_left());
            }
        }
    }
    EXPECT_GT(flags, 0);
}

} // namespace
