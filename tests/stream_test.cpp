#include "tests/support/allocation.h"
#include "tests/support/diff.h"

#include <cstdio>

namespace {

/// What `file_to_dump` held while an operation was under way.
FILE* seen;
int looks;

void look()
{
    ++looks;
    seen = file_to_dump;
}

class Stream : public testing::Test {
  protected:
    Stream()
    {
        seen = nullptr;
        looks = 0;
        GSystemRouteCfg& route = session.cfg->system.services.routing.route[0];
        put(route.prefix, {198, 51, 100, 0});
        put(route.gateway, {192, 0, 2, 1});
        route.mask = 24;
    }
    ~Stream() override
    {
        std::fclose(file);
        file_to_dump = nullptr;
    }

    std::string diff(FILE* stream) const { return taken(GetDiffMemSafe(session.orig, session.cfg, stream)); }
    std::string routes(FILE* stream) const
    {
        return taken(GetRoutesDiffMemSafe(&session.orig->system.services.routing, &session.cfg->system.services.routing,
                                          stream));
    }

    Session session;
    FILE* const file = std::tmpfile();
};

TEST_F(Stream, WholeTreeIsWhatTheFullDiffShows)
{
    put(session.cfg->system.network.hostname, "olt-17");
    session.cfg->system.services.cli.session_timeout = 600;
    session.cfg->pon.ont[5].exist = 1;
    const std::string expected = "configure terminal\n"
                                 "hostname \"olt-17\"\n"
                                 "cli session-timeout \"600\"\n"
                                 "interface ont 0/5\n"
                                 "exit\n"
                                 "exit\n"
                                 "commit\n";
    for (const int common : {0, 2, -1}) {
        session.open(0, common);
        EXPECT_EQ(diff(file), expected);
        EXPECT_EQ(session.full_diff(), expected);
    }
    EXPECT_STREQ(current_view.name, "root");
}

TEST_F(Stream, CommonRecordsAreThoseOfTheFullDiffWithoutCliAndSourceGuard)
{
    session.cfg->system.services.source_guard.vid[4094].allowed = 1;
    session.cfg->pon.olt.general.ont_block_time = 60;
    session.cfg->pon.network.mac_age_time = 300;
    session.cfg->system.settings.ont_sn_format = 2;
    session.cfg->system.services.alarm.type[7].type = 3;
    session.cfg->system.services.alarm.type[7].severity = 1;
    session.cfg->system.services.cli.session_timeout = 600;
    put(session.cfg->system.network.hostname, "olt-17");
    session.open(0, 1);
    EXPECT_EQ(diff(file), "configure terminal\n"
                          "alarm login severity \"critical\"\n"
                          "cli ont-sn-format \"dashed\"\n"
                          "gpon network mac-age-time \"300\"\n"
                          "ont block-time \"60\"\n"
                          "exit\n"
                          "commit\n");
    EXPECT_EQ(session.full_diff(), "configure terminal\n"
                                   "cli session-timeout \"600\"\n"
                                   "alarm login severity \"critical\"\n"
                                   "cli ont-sn-format \"dashed\"\n"
                                   "gpon network mac-age-time \"300\"\n"
                                   "ont block-time \"60\"\n"
                                   "ip source-guard ignore-vlan 4094\n"
                                   "exit\n"
                                   "commit\n");
}

TEST_F(Stream, CliAloneShowsInTheFullDiffOnly)
{
    session.cfg->system.services.cli.session_timeout = 600;
    session.open(0, 1);
    EXPECT_EQ(diff(file), "");
    EXPECT_EQ(session.full_diff(), "configure terminal\ncli session-timeout \"600\"\nexit\ncommit\n");
}

TEST_F(Stream, CommonRecordsAreForcedByPrintAll)
{
    session.settle();
    session.open(1, 1);
    const std::string text = diff(file);
    const std::string front = "configure terminal\nalarm load-average severity \"indeterminate\"\n";
    const std::string back = "\nno gpon olt encryption\ngpon olt encryption key-update \"0\"\nexit\ncommit\n";
    session.cfg->system.services.alarm.type[0].type = 1;
    session.settle();
    session.open(1, 1);
    const std::string named = diff(file);
    ASSERT_GE(named.size(), front.size() + back.size());
    EXPECT_EQ(named.substr(0, front.size()), front);
    EXPECT_EQ(named.substr(named.size() - back.size()), back);
    EXPECT_NE(text, named);
    EXPECT_EQ(named.find("\ncli session-timeout"), std::string::npos);
    EXPECT_EQ(named.find("\nno ip source-guard"), std::string::npos);
}

TEST_F(Stream, EqualConfigurationsGiveAnEmptyTextWithoutCommit)
{
    session.settle();
    for (const int common : {0, 1, 2}) {
        session.open(0, common);
        EXPECT_EQ(diff(file), "");
        EXPECT_EQ(file_to_dump, nullptr);
    }
}

TEST_F(Stream, RoutesAreShownFromTheTopLevelBackToItWithCommit)
{
    session.open();
    EXPECT_EQ(routes(file), "configure terminal\n"
                            "ip route prefix 198.51.100.0 mask \"24\" gateway \"192.0.2.1\"\n"
                            "exit\n"
                            "commit\n");
    EXPECT_STREQ(current_view.name, "root");
    EXPECT_EQ(diff(file), "");
}

TEST_F(Stream, EqualRoutesGiveAnEmptyTextWithoutCommit)
{
    session.settle();
    session.open();
    EXPECT_EQ(routes(file), "");
    EXPECT_EQ(file_to_dump, nullptr);
    session.open(1, 2);
    EXPECT_EQ(routes(file), "");
}

TEST_F(Stream, RoutesHaveNothingToDoWithPrintCommon)
{
    session.open(0, 1);
    EXPECT_EQ(routes(file), "configure terminal\n"
                            "ip route prefix 198.51.100.0 mask \"24\" gateway \"192.0.2.1\"\n"
                            "exit\n"
                            "commit\n");
}

TEST_F(Stream, BothGoOnFromWhereTheScriptStands)
{
    session.cfg->pon.ont[5].exist = 1;
    session.open();
    const std::string ont = "configure terminal\ninterface ont 0/5\n";
    EXPECT_EQ(taken(GetPonDiff(&session.orig->pon, &session.cfg->pon)), ont);
    EXPECT_EQ(routes(file), "exit\n"
                            "ip route prefix 198.51.100.0 mask \"24\" gateway \"192.0.2.1\"\n"
                            "exit\n"
                            "commit\n");
    EXPECT_EQ(taken(GetPonDiff(&session.orig->pon, &session.cfg->pon)), ont);
    EXPECT_EQ(taken(GetDiffMemSafe(session.cfg, session.cfg, file)), "exit\nexit\ncommit\n");
    EXPECT_EQ(taken(GetTerminalVlanHeaders()), "configure terminal\n");
    EXPECT_EQ(
        taken(GetRoutesDiffMemSafe(&session.cfg->system.services.routing, &session.cfg->system.services.routing, file)),
        "exit\ncommit\n");
}

TEST_F(Stream, StreamIsPublishedForAsLongAsTheCallLasts)
{
    put(session.cfg->system.network.hostname, "olt-17");
    session.open();
    EXPECT_EQ(file_to_dump, nullptr);
    {
        const ObservedAllocations observed(look);
        std::free(GetDiffMemSafe(session.orig, session.cfg, file));
    }
    EXPECT_GT(looks, 0);
    EXPECT_EQ(seen, file);
    EXPECT_EQ(file_to_dump, nullptr);
    looks = 0;
    seen = nullptr;
    {
        const ObservedAllocations observed(look);
        std::free(
            GetRoutesDiffMemSafe(&session.orig->system.services.routing, &session.cfg->system.services.routing, file));
    }
    EXPECT_GT(looks, 0);
    EXPECT_EQ(seen, file);
    EXPECT_EQ(file_to_dump, nullptr);
}

TEST_F(Stream, NoStreamLeavesWhatIsPublishedUntilTheCallEnds)
{
    put(session.cfg->system.network.hostname, "olt-17");
    session.open();
    const ObservedAllocations observed(look);
    std::free(GetDiffMemSafe(session.orig, session.cfg, nullptr));
    EXPECT_GT(looks, 0);
    EXPECT_EQ(seen, nullptr);
    file_to_dump = file;
    std::free(GetDiffMemSafe(session.orig, session.cfg, nullptr));
    EXPECT_EQ(seen, file);
    EXPECT_EQ(file_to_dump, nullptr);
    seen = nullptr;
    file_to_dump = file;
    std::free(
        GetRoutesDiffMemSafe(&session.orig->system.services.routing, &session.cfg->system.services.routing, nullptr));
    EXPECT_EQ(seen, file);
    EXPECT_EQ(file_to_dump, nullptr);
}

TEST_F(Stream, NothingIsWrittenToTheStream)
{
    put(session.cfg->system.network.hostname, "olt-17");
    session.open();
    EXPECT_NE(diff(file), "");
    EXPECT_NE(routes(file), "");
    EXPECT_EQ(std::fflush(file), 0);
    EXPECT_EQ(std::ftell(file), 0);
    EXPECT_EQ(std::fseek(file, 0, SEEK_END), 0);
    EXPECT_EQ(std::ftell(file), 0);
}

TEST_F(Stream, OtherOperationsPublishNothing)
{
    put(session.cfg->system.network.hostname, "olt-17");
    session.open();
    file_to_dump = file;
    const ObservedAllocations observed(look);
    std::free(GetDiff(session.orig, session.cfg));
    std::free(GetSystemDiff(&session.orig->system, &session.cfg->system));
    EXPECT_GT(looks, 0);
    EXPECT_EQ(seen, file);
    EXPECT_EQ(file_to_dump, file);
}

TEST_F(Stream, NullRecordsGiveWhatEqualOnesGive)
{
    session.open(1, 1);
    EXPECT_EQ(taken(GetDiffMemSafe(nullptr, session.cfg, file)), "");
    EXPECT_EQ(taken(GetDiffMemSafe(session.orig, nullptr, file)), "");
    EXPECT_EQ(taken(GetRoutesDiffMemSafe(nullptr, &session.cfg->system.services.routing, file)), "");
    EXPECT_EQ(taken(GetRoutesDiffMemSafe(&session.orig->system.services.routing, nullptr, file)), "");
    EXPECT_EQ(file_to_dump, nullptr);
}

TEST_F(Stream, TextThatCannotBeHadIsNullAndTheStreamIsTakenBack)
{
    put(session.cfg->system.network.hostname, "olt-17");
    session.open();
    {
        const LimitedAllocations limit(0);
        EXPECT_EQ(GetDiffMemSafe(session.orig, session.cfg, file), nullptr);
        EXPECT_EQ(file_to_dump, nullptr);
        EXPECT_EQ(
            GetRoutesDiffMemSafe(&session.orig->system.services.routing, &session.cfg->system.services.routing, file),
            nullptr);
        EXPECT_EQ(file_to_dump, nullptr);
    }
    EXPECT_STREQ(current_view.name, "root");
    EXPECT_EQ(diff(file), "configure terminal\nhostname \"olt-17\"\nexit\ncommit\n");
}

} // namespace
