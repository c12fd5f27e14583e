/// Every allocation of every exported operation fails, alone and with all later ones: the operation returns null,
/// nothing leaks, and the session continues. PONDIFF_FULL=1 in the environment does the same with the largest
/// configuration.

#include "pon/DataToCommandsConvertor/text.h"
#include "pon/blocks.h"
#include "pon/diff_builder/script.h"
#include "pon/profile_kinds.h"
#include "tests/support/allocation.h"
#include "tests/support/diff.h"
#include "tests/support/record_diffs.h"

#include <cstdlib>
#include <iterator>

namespace {

bool exhaustive()
{
    static const bool full = std::getenv("PONDIFF_FULL") != nullptr;
    return full;
}

constexpr Failing both_ways[] = {Failing::once, Failing::from_then_on};

/// A blank configuration and a full one, and a session over them that forces everything.
class FailingAllocations : public testing::Test {
  protected:
    FailingAllocations()
    {
        fill(*session.cfg, exhaustive() ? GCFG_ONTS : 2);
        session.open(1, 2);
    }

    Session session;
};

/// Fails each allocation of `operation` in turn. When it returns null, later operations behave as if it had not been
/// called.
template <class Operation>
void fail_each_allocation(const char* name, Operation operation)
{
    SCOPED_TRACE(name);
    const view_state before = current_view;
    const std::string whole = taken(operation());
    ASSERT_NE(whole, "");
    const view_state after = current_view;
    int nulls = 0;
    for (const Failing how : both_ways) {
        bool happened = true;
        for (int nth = 1; happened; ++nth) {
            SCOPED_TRACE(nth);
            current_view = before;
            char* text = nullptr;
            {
                const FailingAllocation failure(nth, how);
                text = operation();
                happened = failure.happened();
            }
            ASSERT_EQ(file_to_dump, nullptr);
            if (text != nullptr) {
                ASSERT_EQ(taken(text), whole) << "a shortened script";
                ASSERT_STREQ(current_view.name, after.name);
                continue;
            }
            ++nulls;
            ASSERT_TRUE(happened);
            ASSERT_STREQ(current_view.name, before.name);
            ASSERT_EQ(current_view.key[0], before.key[0]);
            ASSERT_EQ(taken(operation()), whole) << "the session stays usable";
        }
    }
    EXPECT_GE(nulls, 2) << "the first allocation of all can never be done without";
}

} // namespace

TEST_F(FailingAllocations, FullDiffs)
{
    fail_each_allocation("GetDiff", [this] { return GetDiff(session.orig, session.cfg); });
    fail_each_allocation("GetDiffMemSafe", [this] { return GetDiffMemSafe(session.orig, session.cfg, stdout); });
    fail_each_allocation("GetRoutesDiffMemSafe", [this] {
        return GetRoutesDiffMemSafe(&session.orig->system.services.routing, &session.cfg->system.services.routing,
                                    stdout);
    });
    print_common = 1;
    fail_each_allocation("GetDiff", [this] { return GetDiff(session.orig, session.cfg); });
    fail_each_allocation("GetDiffMemSafe", [this] { return GetDiffMemSafe(session.orig, session.cfg, nullptr); });
}

TEST_F(FailingAllocations, PartialDiffs)
{
    GCfg* const orig = session.orig;
    GCfg* const cfg = session.cfg;
    fail_each_allocation("GetSystemDiff", [&] { return GetSystemDiff(&orig->system, &cfg->system); });
    fail_each_allocation("GetPonDiff", [&] { return GetPonDiff(&orig->pon, &cfg->pon); });
    fail_each_allocation("GetGponOntDiff", [&] { return GetGponOntDiff(&orig->pon.ont[1], &cfg->pon.ont[1], 1); });
    fail_each_allocation("GetGponChannelDiff",
                         [&] { return GetGponChannelDiff(&orig->pon.olt.channel[7], &cfg->pon.olt.channel[7], 7); });
    fail_each_allocation("GetGPonProfilesOltDiff",
                         [&] { return GetGPonProfilesOltDiff(&orig->pon.profiles_olt, &cfg->pon.profiles_olt); });
    fail_each_allocation("GetGPonProfilesOntDiff",
                         [&] { return GetGPonProfilesOntDiff(&orig->pon.profiles_ont, &cfg->pon.profiles_ont); });
    fail_each_allocation("GetAlarmDiff", [&] { return GetAlarmDiff(orig, cfg); });
    fail_each_allocation("GetTerminalVlanHeaders", GetTerminalVlanHeaders);
}

TEST_F(FailingAllocations, EachKindOfProfile)
{
    char kinds[][16] = {
#define NAME(part, array, record, tables, lookup, prefix, name, called) name,
        PON_PROFILE_KINDS(NAME)
#undef NAME
    };
    for (char(&kind)[16] : kinds) {
        fail_each_allocation(kind, [&] { return GetProfileDiff(&session.orig->pon, &session.cfg->pon, kind, 1); });
        fail_each_allocation(kind, [&] { return GetProfileDiff(&session.orig->pon, &session.cfg->pon, kind, -1); });
    }
}

TEST_F(FailingAllocations, EachBlock)
{
    char blocks[][16] = {
#define NAME(name, path, diff) name,
        PON_BLOCKS(NAME)
#undef NAME
    };
    for (char(&block)[16] : blocks) {
        fail_each_allocation(block, [&] { return GetBlockDiff(session.orig, session.cfg, block); });
    }
}

TEST_F(FailingAllocations, ASessionGoesOnWhereAFailedOperationFoundIt)
{
    std::free(GetPonDiff(&session.orig->pon, &session.cfg->pon));
    ASSERT_STRNE(current_view.name, "root");
    fail_each_allocation("GetDiff", [this] { return GetDiff(session.orig, session.cfg); });
}

// ---------------------------------------------------------------------------------------------------- the session

namespace {

template <int Slots>
bool is_empty(char* const (&names)[Slots])
{
    for (const char* const name : names) {
        if (name != nullptr) {
            return false;
        }
    }
    return true;
}

void expect_no_names()
{
    EXPECT_TRUE(is_empty(ont2id_connection));
    EXPECT_TRUE(is_empty(user2id_connection));
    EXPECT_TRUE(is_empty(terminalvlan2id_connection));
    EXPECT_TRUE(is_empty(management2id_connection) && is_empty(def_management2id_connection));
    EXPECT_TRUE(is_empty(shaping2id_connection) && is_empty(def_shaping2id_connection));
    EXPECT_TRUE(is_empty(ports2id_connection) && is_empty(def_ports2id_connection));
    EXPECT_TRUE(is_empty(voice2id_connection) && is_empty(def_voice2id_connection));
    EXPECT_TRUE(is_empty(cross_connect2id_connection) && is_empty(def_cross_connect2id_connection));
    EXPECT_TRUE(is_empty(alloc2id_connection) && is_empty(def_alloc2id_connection));
    EXPECT_TRUE(is_empty(onttemplate2id_connection) && is_empty(def_onttemplate2id_connection));
    EXPECT_TRUE(is_empty(address_table2id_connection) && is_empty(def_address_table2id_connection));
    EXPECT_TRUE(is_empty(dhcpra2id_connection) && is_empty(def_dhcpra2id_connection));
    EXPECT_TRUE(is_empty(dhcpv6ra2id_connection) && is_empty(def_dhcpv6ra2id_connection));
    EXPECT_TRUE(is_empty(pppoeia2id_connection) && is_empty(def_pppoeia2id_connection));
    EXPECT_TRUE(is_empty(vlan2id_connection) && is_empty(def_vlan2id_connection));
}

} // namespace

TEST_F(FailingAllocations, OfASessionLeaveAnEmptyOneThatCanBeClosedAndOpenedAgain)
{
    const std::string whole = taken(GetAlarmDiff(session.orig, session.cfg));
    char vlan[] = "vlan";
    const auto vlans = [&] { return taken(GetProfileDiff(&session.orig->pon, &session.cfg->pon, vlan, 1)); };
    const std::string named = vlans();
    // Most of them are alike, such as the names of 532 ONTs: a few are enough by default.
    const int stride = exhaustive() ? 1 : 29;
    for (const Failing how : both_ways) {
        bool happened = true;
        for (int nth = 1; happened; nth += stride) {
            SCOPED_TRACE(nth);
            int status = 0;
            {
                const FailingAllocation failure(nth, how);
                status = initiate_diff(session.orig, session.cfg, 1, 2); // over one that is open, at first
                happened = failure.happened();
            }
            ASSERT_EQ(status, happened ? -1 : 0);
            if (!happened) {
                break;
            }
            expect_no_names();
            ASSERT_STREQ(current_view.name, "root");
            ASSERT_FALSE(taken(GetAlarmDiff(session.orig, session.cfg)).empty());
            if (nth % 2 == 0) {
                ASSERT_EQ(finalize_diff(), 0);
            }
            if (nth % 3 != 0) {
                continue;
            }
            session.open(1, 2);
            ASSERT_EQ(taken(GetAlarmDiff(session.orig, session.cfg)), whole);
            ASSERT_EQ(vlans(), named);
        }
        ASSERT_EQ(vlans(), named);
    }
}

/// The last allocations of a session are for names, of one configuration or the other.
TEST(FailingAllocation, OfAnyNameLeavesAnEmptySession)
{
    Session session;
    for (GCfg* const filled : {session.orig, session.cfg}) {
        *session.orig = GCfg{};
        *session.cfg = GCfg{};
        fill(*filled, 1);
        finalize_diff();
        int count = 0;
        {
            const CountedAllocations counted;
            session.open(1, 2);
            count = counted.count();
        }
        ASSERT_GT(count, GCFG_ONTS);
        for (int nth = GCFG_ONTS + 1; nth <= count; ++nth) {
            SCOPED_TRACE(nth);
            const FailingAllocation failure(nth, Failing::once);
            ASSERT_EQ(initiate_diff(session.orig, session.cfg, 1, 2), -1);
            expect_no_names();
        }
    }
}

// ------------------------------------------------------------------------------------- lists, texts and templates

TEST(FailingAllocation, OfAnOperationWithNothingToSayGivesNullToo)
{
    pondiff::Script script;
    {
        const FailingAllocation failure(1, Failing::once);
        EXPECT_EQ(script.release(), nullptr);
        EXPECT_TRUE(failure.happened());
    }
    EXPECT_EQ(taken(script.release()), "");
}

TEST(FailingAllocation, LeavesAScratchTextAsItWas)
{
    using pondiff::Text;
    void (*const append[])(Text&) = {
        [](Text& text) { text.append("more than is left"); }, [](Text& text) { text.append('v'); },
        [](Text& text) { text.append_natural(7); },           [](Text& text) { text.append_decimal(-7); },
        [](Text& text) { text.append_aligned(7); },
    };
    const std::string filled(1023, 'v');
    for (const auto& more : append) {
        SCOPED_TRACE(&more - append);
        Text text;
        text.append(filled.c_str());
        {
            const FailingAllocation failure(1, Failing::once);
            more(text);
            EXPECT_TRUE(failure.happened());
        }
        EXPECT_TRUE(text.failed());
        EXPECT_EQ(text.c_str(), filled);
        EXPECT_EQ(text.release_copy(), nullptr);
    }
}

TEST(FailingAllocation, LeavesTheTextToWhoeverPushesIt)
{
    List<char> list;
    char kept[] = "kept"; // freeing it aborts the test
    char pushed[] = "pushed";
    ASSERT_TRUE(list.push_back(pushed));
    for (const Failing how : both_ways) {
        const FailingAllocation failure(1, how);
        ASSERT_FALSE(list.push_back(kept));
    }
    ASSERT_EQ(list.size(), 1);
    ASSERT_EQ(list.first, list.last);
    EXPECT_STREQ(list.first->elem, "pushed");
    EXPECT_EQ(list.first->next, nullptr);
    EXPECT_STREQ(kept, "kept");
    EXPECT_TRUE(list.push_back(kept)) << "the next one is had again";
    EXPECT_EQ(list.last->elem, kept);
}

TEST(FailingAllocation, OfAFormatterGivesNull)
{
    unsigned char bytes[16] = {1, 2, 3, 4, 5, 6, 7, 8, 9};
    unsigned char many_bytes[2000] = {};
    short many_shorts[2000] = {};
    char password[] = "0123456789x";
    unsigned char key[3000];
    std::memset(key, 'k', sizeof key - 1);
    key[sizeof key - 1] = '\0';
    char type[] = "GBool_enum";
    const std::function<char*()> formatters[] = {
        [] { return u32_tostr(1); },
        [] { return u16_tostr(1); },
        [] { return int_tostr(-1); },
        [] { return u64_tostr(1); },
        [] { return double_tostr(0.5); },
        [] { return double_tostr(1e300); },
        [] { return int_tostr_or_unused(-1); },
        [] { return BerInterval_tostr(0xFFFFFFFF); },
        [] { return u64_tostr_hex(1); },
        [] { return u32_tostr_hex(1); },
        [] { return u16_tostr_hex(1); },
        [] { return int_3byte_tostr_hex(1); },
        [] { return int_tostr_hex(1); },
        [&] { return GIPAddr_t_tostr(bytes); },
        [&] { return GMACAddr_t_tostr(bytes); },
        [&] { return GOntSerial_t_tostr(bytes); },
        [&] { return GSNMPEngineID_t_tostr(bytes); },
        [&] { return GOntPassword_t_tostr(password); },
        [&] { return GEncryptionKey_t_tostr(key); },
        [&] { return Enum_tostr(type, 1); },
        [&] { return convertarrayu8tostr(many_bytes, 2000); },
        [&] { return convertarrays16tostr(many_shorts, 2000); },
        [&] { return convertarrays16tostr(many_shorts, 3); },
        [&] { return convertarrays16tostr(many_shorts, 0); },
    };
    for (const auto& formatter : formatters) {
        SCOPED_TRACE(&formatter - formatters);
        const std::string whole = taken(formatter());
        for (const Failing how : both_ways) {
            int nth = 1;
            for (bool happened = true; happened; ++nth) {
                char* text = nullptr;
                {
                    const FailingAllocation failure(nth, how);
                    text = formatter();
                    happened = failure.happened();
                }
                ASSERT_EQ(text == nullptr, happened);
                if (text != nullptr) {
                    ASSERT_EQ(taken(text), whole);
                }
            }
            ASSERT_GT(nth, 2) << "it allocates";
        }
    }
}

/// Templates of three lengths in a session with the user that they name.
class FailingAllocationOfATemplate : public testing::Test {
  protected:
    FailingAllocationOfATemplate()
    {
        session.cfg->system.user[3].exist = 1;
        put(session.cfg->system.user[3].name, "sixteen-letters!");
        session.open();
    }

    Session session;
    int ids[10] = {3, 44};
    std::string short_one = "user $ID0 password $ID1";
    std::string long_one = "user $ID0 " + std::string(1006, 'x') + "$ID1"; // grows once more when the name stands in it
    std::string longer_one = "user $ID0 " + std::string(5000, 'x') + "$ID";
};

TEST_F(FailingAllocationOfATemplate, GivesNull)
{
    for (std::string* const command : {&short_one, &long_one, &longer_one}) {
        const std::string whole = taken(useVariables(command->data(), ids));
        EXPECT_EQ(whole.substr(0, 24), "user \"sixteen-letters!\" ");
        for (const Failing how : both_ways) {
            int nth = 1;
            for (bool happened = true; happened; ++nth) {
                char* text = nullptr;
                {
                    const FailingAllocation failure(nth, how);
                    text = useVariables(command->data(), ids);
                    happened = failure.happened();
                }
                ASSERT_EQ(text == nullptr, happened) << nth;
                if (text != nullptr) {
                    ASSERT_EQ(taken(text), whole);
                }
            }
            ASSERT_GT(nth, 2);
        }
    }
}

TEST_F(FailingAllocationOfATemplate, IntoABufferLeavesAnEmptyText)
{
    for (std::string* const command : {&short_one, &long_one, &longer_one}) {
        std::string whole(8000, '!');
        ASSERT_EQ(generate_command_buf(command->data(), ids, whole.data(), whole.size()), 0);
        int failures = 0;
        for (const Failing how : both_ways) {
            bool happened = true;
            for (int nth = 1; happened; ++nth) {
                std::string buffer(8000, '!');
                int status = 1;
                {
                    const FailingAllocation failure(nth, how);
                    status = generate_command_buf(command->data(), ids, buffer.data(), buffer.size());
                    happened = failure.happened();
                }
                ASSERT_EQ(status, 0);
                failures += happened;
                ASSERT_STREQ(buffer.c_str(), happened ? "" : whole.c_str()) << "never a part of it";
            }
        }
        ASSERT_EQ(failures > 0, command != &short_one) << "a command of the usual length needs no heap";
    }
}

/// Each needs more than the room on the stack in another place: the template, the mark at its end, the name.
TEST(FailingAllocation, OfTheLastPartOfATemplateGivesNull)
{
    Session session;
    session.open();
    char longest_name[3000] = "";
    std::memset(longest_name, 'n', sizeof longest_name - 1);
    user2id_connection[3] = longest_name; // longer than a session makes any
    int ids[10] = {3, 44};
    std::string mark_at_the_end = std::string(1020, 'x') + "$ID";
    std::string named = "user $ID0 x";
    const std::string expected[] = {std::string(1020, 'x') + "   3", "user \"" + std::string(longest_name) + "\" x"};
    std::string* const commands[] = {&mark_at_the_end, &named};
    for (int i = 0; i < 2; ++i) {
        char* const command = commands[i]->data();
        EXPECT_EQ(taken(useVariables(command, ids)), expected[i]);
        const FailingAllocation failure(1, Failing::once);
        EXPECT_EQ(useVariables(command, ids), nullptr);
        EXPECT_TRUE(failure.happened());
    }
    user2id_connection[3] = nullptr;
}
