#include "tests/support/diff.h"

namespace {

TEST(Cli, EveryFieldInOrder)
{
    Diff cli{getdiff_GSystemCliCfg};
    cli.after.session_timeout = 4294967295U;
    cli.after.number_of_cli_sessions = 255;
    cli.after.custom_ont_list_showing.rssi = 1;
    EXPECT_EQ(cli.elements(), behind("configure terminal", "cli session-timeout \"4294967295\"\n"
                                                           "cli max-sessions \"255\"\n"
                                                           "cli display rssi\n"));
}

TEST(Cli, EachFieldAlone)
{
    Diff timeout{getdiff_GSystemCliCfg};
    timeout.before.session_timeout = 1;
    EXPECT_EQ(timeout.elements(), (Elements{"configure terminal", "cli session-timeout \"0\""}));
    Diff sessions{getdiff_GSystemCliCfg};
    sessions.after.number_of_cli_sessions = 5;
    EXPECT_EQ(sessions.elements(), (Elements{"configure terminal", "cli max-sessions \"5\""}));
}

TEST(Cli, EqualRecordUnderPrintAllShowsEveryField)
{
    for (const int common : {0, 1, 2}) {
        Diff cli{getdiff_GSystemCliCfg};
        cli.all = 1;
        cli.common = common;
        EXPECT_EQ(cli.script(), "configure terminal\n"
                                "cli session-timeout \"0\"\n"
                                "cli max-sessions \"0\"\n"
                                "no cli display assigned-channel\n"
                                "no cli display gpon-port\n"
                                "no cli display status\n"
                                "no cli display rssi\n"
                                "no cli display version\n"
                                "no cli display equipment-id\n"
                                "no cli display config-password\n"
                                "no cli display received-password\n"
                                "no cli display description\n"
                                "no cli display profile management\n"
                                "no cli display profile shaping\n"
                                "no cli display profile ports\n"
                                "no cli display profile cross-connect\n"
                                "no cli display profile dba\n");
    }
}

TEST(OntListColumns, EachAloneOnAndOff)
{
    const auto expect = [](void (*set)(GCustomOntListShowing&, u16), const std::string& name) {
        for (const int value : {1, 2, 256, 65535}) {
            Diff on{getdiff_GCustomOntListShowing};
            set(on.after, static_cast<u16>(value));
            EXPECT_EQ(on.elements(), (Elements{"configure terminal", "cli display " + name}));
        }
        Diff still_on{getdiff_GCustomOntListShowing};
        set(still_on.before, 1);
        set(still_on.after, 2);
        EXPECT_EQ(still_on.elements(), (Elements{"configure terminal", "cli display " + name}));
        Diff off{getdiff_GCustomOntListShowing};
        set(off.before, 1);
        EXPECT_EQ(off.elements(), (Elements{"configure terminal", "no cli display " + name}));
    };
    using Columns = GCustomOntListShowing;
    expect([](Columns& columns, u16 value) { columns.assigned_channel = value; }, "assigned-channel");
    expect([](Columns& columns, u16 value) { columns.channel = value; }, "gpon-port");
    expect([](Columns& columns, u16 value) { columns.status = value; }, "status");
    expect([](Columns& columns, u16 value) { columns.rssi = value; }, "rssi");
    expect([](Columns& columns, u16 value) { columns.version = value; }, "version");
    expect([](Columns& columns, u16 value) { columns.equipment_id = value; }, "equipment-id");
    expect([](Columns& columns, u16 value) { columns.config_password = value; }, "config-password");
    expect([](Columns& columns, u16 value) { columns.received_password = value; }, "received-password");
    expect([](Columns& columns, u16 value) { columns.description = value; }, "description");
    expect([](Columns& columns, u16 value) { columns.profile_management = value; }, "profile management");
    expect([](Columns& columns, u16 value) { columns.profile_shaping = value; }, "profile shaping");
    expect([](Columns& columns, u16 value) { columns.profile_ports = value; }, "profile ports");
    expect([](Columns& columns, u16 value) { columns.profile_cross_connect = value; }, "profile cross-connect");
    expect([](Columns& columns, u16 value) { columns.profile_alloc = value; }, "profile dba");
}

TEST(OntListColumns, SerialAndOntIdAreAlwaysShown)
{
    Diff columns{getdiff_GCustomOntListShowing};
    columns.after.serial = 1;
    columns.after.ont_id = 1;
    EXPECT_EQ(columns.elements(), Elements{});
    Diff cli{getdiff_GSystemCliCfg};
    cli.after.custom_ont_list_showing.serial = 1;
    EXPECT_EQ(cli.elements(), Elements{});
}

TEST(OntListColumns, ProfilesComeLast)
{
    Diff columns{getdiff_GCustomOntListShowing};
    std::memset(&columns.after, 1, sizeof columns.after);
    const std::string expected = "configure terminal\n"
                                 "cli display assigned-channel\n"
                                 "cli display gpon-port\n"
                                 "cli display status\n"
                                 "cli display rssi\n"
                                 "cli display version\n"
                                 "cli display equipment-id\n"
                                 "cli display config-password\n"
                                 "cli display received-password\n"
                                 "cli display description\n"
                                 "cli display profile management\n"
                                 "cli display profile shaping\n"
                                 "cli display profile ports\n"
                                 "cli display profile cross-connect\n"
                                 "cli display profile dba\n";
    EXPECT_EQ(columns.script(), expected);
    columns.before = columns.after;
    EXPECT_EQ(columns.script(), "");
    columns.all = 1;
    EXPECT_EQ(columns.script(), expected);
}

} // namespace
