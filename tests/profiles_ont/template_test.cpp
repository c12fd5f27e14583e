#include "tests/profiles_ont/profile_test.h"

namespace {

using Template = GPonTemplateOnt;

template <class Profile>
void name(Profile& profile, const char* text)
{
    profile.exist = 1;
    put(profile.name, text);
}

class OntTemplate : public testing::Test {
  protected:
    OntTemplate()
    {
        GPonProfilesOnt& profiles = session.cfg->pon.profiles_ont;
        name(profiles.shaping[127], "fast");
        name(profiles.cross_connect[1], "internet");
        name(profiles.alloc[2], "besteffort");
        name(profiles.ports[31], "four");
        name(profiles.voice[4], "lines");
        name(profiles.management[6], "omci");
        name(profiles.shaping[8], "");
        name(session.orig->pon.profiles_ont.shaping[9], "gone");
        session.open();
    }

    Session session;
    ProfileDiff<Template> diff{getdiff_GPonTemplateOnt, "template-view"};
};

TEST_F(OntTemplate, EveryFieldInOrder)
{
    Template& after = diff.after;
    put(after.description, "kiosks");
    put(after.serial, {'A', 'B', 'C', 'D', 1, 2, 3, 4});
    after.serial_is_active = 1;
    put(after.password, "0123456789");
    after.password_is_active = 1;
    after.fec_up = 1;
    after.fec_up_is_active = 1;
    after.downstream_broadcast = 1;
    after.downstream_broadcast_is_active = 1;
    after.ber_interval = 10000;
    after.ber_interval_is_active = 1;
    after.ber_update_period = 60;
    after.ber_update_period_is_active = 1;
    after.profile_ont_shaping = 127;
    after.profile_ont_shaping_is_active = 1;
    after.profile_ont_cross_connect[0] = 1;
    after.profile_ont_cross_connect_is_active[0] = 1;
    after.profile_ont_alloc[0] = 2;
    after.profile_ont_alloc_is_active[0] = 1;
    after.profile_ont_cross_connect[15] = -1;
    after.profile_ont_cross_connect_is_active[15] = 1;
    after.profile_ont_alloc[15] = -1;
    after.profile_ont_alloc_is_active[15] = 1;
    after.profile_ont_ports = 31;
    after.profile_ont_ports_is_active = 1;
    after.profile_ont_voice = 4;
    after.profile_ont_voice_is_active = 1;
    after.profile_ont_management = 6;
    after.profile_ont_management_is_active = 1;
    after.rf_port_state = 1;
    after.rf_port_state_is_active = 1;
    after.omci_error_tolerant = 1;
    after.omci_error_tolerant_is_active = 1;
    EXPECT_EQ(diff.script(), "description \"kiosks\"\n"
                             "serial \"ABCD01020304\"\n"
                             "define serial\n"
                             "password \"0123456789\"\n"
                             "define password\n"
                             "fec\n"
                             "define fec\n"
                             "broadcast-downstream\n"
                             "define broadcast-downstream\n"
                             "ber interval \"10000\"\n"
                             "define ber interval\n"
                             "ber update-period \"60\"\n"
                             "define ber update-period\n"
                             "profile shaping \"fast\"\n"
                             "define profile shaping\n"
                             "service 0 profile cross-connect \"internet\"\n"
                             "define service 0 profile cross-connect\n"
                             "service 0 profile dba \"besteffort\"\n"
                             "define service 0 profile dba\n"
                             "service 15 profile cross-connect \"unassigned\"\n"
                             "define service 15 profile cross-connect\n"
                             "service 15 profile dba \"unassigned\"\n"
                             "define service 15 profile dba\n"
                             "profile ports \"four\"\n"
                             "define profile ports\n"
                             "profile voice \"lines\"\n"
                             "define profile voice\n"
                             "profile management \"omci\"\n"
                             "define profile management\n"
                             "rf-port-state \"enabled\"\n"
                             "define rf-port-state\n"
                             "omci-error-tolerant\n"
                             "define omci-error-tolerant\n");
}

TEST_F(OntTemplate, EveryCommandBringsItsNavigation)
{
    put(diff.after.description, "kiosks");
    diff.after.ber_update_period = 60;
    diff.after.profile_ont_shaping = 127;
    diff.after.profile_ont_alloc_is_active[3] = 1;
    diff.after.rf_port_state = 2;
    EXPECT_EQ(diff.elements(), behind("", "description \"kiosks\"\n"
                                          "ber update-period \"60\"\n"
                                          "profile shaping \"fast\"\n"
                                          "define service 3 profile dba\n"
                                          "rf-port-state \"no-change\"\n"));
}

TEST_F(OntTemplate, EachSwitchAloneOnAndOff)
{
    struct Switch {
        void (*set)(Template& record, std::uint16_t value);
        const char* on;
        const char* off;
    };
    const Switch switches[] = {
        {[](Template& t, std::uint16_t v) { t.serial_is_active = v; }, "define serial\n", "undefine serial\n"},
        {[](Template& t, std::uint16_t v) { t.password_is_active = v; }, "define password\n", "undefine password\n"},
        {[](Template& t, std::uint16_t v) { t.fec_up = v; }, "fec\n", "no fec\n"},
        {[](Template& t, std::uint16_t v) { t.fec_up_is_active = v; }, "define fec\n", "undefine fec\n"},
        {[](Template& t, std::uint16_t v) { t.downstream_broadcast = v; }, "broadcast-downstream\n",
         "no broadcast-downstream\n"},
        {[](Template& t, std::uint16_t v) { t.downstream_broadcast_is_active = v; }, "define broadcast-downstream\n",
         "undefine broadcast-downstream\n"},
        {[](Template& t, std::uint16_t v) { t.ber_interval_is_active = v; }, "define ber interval\n",
         "undefine ber interval\n"},
        {[](Template& t, std::uint16_t v) { t.ber_update_period_is_active = v; }, "define ber update-period\n",
         "undefine ber update-period\n"},
        {[](Template& t, std::uint16_t v) { t.profile_ont_shaping_is_active = v; }, "define profile shaping\n",
         "undefine profile shaping\n"},
        {[](Template& t, std::uint16_t v) { t.profile_ont_ports_is_active = v; }, "define profile ports\n",
         "undefine profile ports\n"},
        {[](Template& t, std::uint16_t v) { t.profile_ont_voice_is_active = v; }, "define profile voice\n",
         "undefine profile voice\n"},
        {[](Template& t, std::uint16_t v) { t.profile_ont_management_is_active = v; }, "define profile management\n",
         "undefine profile management\n"},
        {[](Template& t, std::uint16_t v) { t.rf_port_state_is_active = v; }, "define rf-port-state\n",
         "undefine rf-port-state\n"},
        {[](Template& t, std::uint16_t v) { t.omci_error_tolerant = v; }, "omci-error-tolerant\n",
         "no omci-error-tolerant\n"},
        {[](Template& t, std::uint16_t v) { t.omci_error_tolerant_is_active = v; }, "define omci-error-tolerant\n",
         "undefine omci-error-tolerant\n"},
    };
    for (const Switch& one : switches) {
        for (const std::uint16_t on : on_values) {
            one.set(diff.before, 0);
            one.set(diff.after, on);
            EXPECT_EQ(diff.script(), one.on);
            std::swap(diff.before, diff.after);
            EXPECT_EQ(diff.script(), one.off);
        }
        one.set(diff.before, 1);
        one.set(diff.after, 2);
        EXPECT_EQ(diff.script(), one.on) << "the bytes differ";
        one.set(diff.before, 0);
        one.set(diff.after, 0);
    }
}

TEST_F(OntTemplate, EachValueAlone)
{
    expect_each_alone<Template>(
        diff, {
                  {[](Template& t) {
                       put(t.serial, {'A', 'B', 'C', 'D', 0, 0, 0, 255});
                   },
                   "serial \"ABCD000000FF\"\n"},
                  {[](Template& t) {
                       put(t.serial, {'a', 'B', 'C', 'D', 0, 0, 0, 255});
                   },
                   "serial \"61424344000000FF\"\n"},
                  {[](Template& t) { put(t.password, "secret"); }, "password \"secret\"\n"},
                  {[](Template& t) { put(t.password, "0123456789X"); }, "password \"0123456789\"\n"},
                  {[](Template& t) { t.password[10] = 'X'; }, "password \"\"\n"},
                  {[](Template& t) { t.ber_interval = 1; }, "ber interval \"1\"\n"},
                  {[](Template& t) { t.ber_interval = 4294967295U; }, "ber interval \"none\"\n"},
                  {[](Template& t) { t.ber_interval = 4294967294U; }, "ber interval \"4294967294\"\n"},
                  {[](Template& t) { t.ber_update_period = 1; }, "ber update-period \"1\"\n"},
                  {[](Template& t) { t.ber_update_period = 4294967295U; }, "ber update-period \"4294967295\"\n"},
                  {[](Template& t) { t.rf_port_state = 1; }, "rf-port-state \"enabled\"\n"},
                  {[](Template& t) { t.rf_port_state = 2; }, "rf-port-state \"no-change\"\n"},
                  {[](Template& t) { t.rf_port_state = 65535; }, "rf-port-state \"unknown\"\n"},
                  {[](Template& t) { t.revision = 9; }, ""},
              });
}

TEST_F(OntTemplate, SerialInTheLayoutThatTheDeviceShows)
{
    put(diff.after.serial, {'A', 'B', 'C', 'D', 1, 2, 3, 4});
    session.cfg->system.settings.ont_sn_format = 1;
    session.open();
    EXPECT_EQ(diff.script(), "serial \"4142434401020304\"\n");
    session.cfg->system.settings.ont_sn_format = 2;
    session.open();
    EXPECT_EQ(diff.script(), "serial \"41424344-01020304\"\n");
}

TEST_F(OntTemplate, UpdatePeriodOfZeroIsNone)
{
    diff.before.ber_update_period = 60;
    EXPECT_EQ(diff.script(), "ber update-period \"none\"\n");
}

TEST_F(OntTemplate, References)
{
    // What an old value other than 0 gives way to is what counts.
    diff.before.profile_ont_shaping = diff.before.profile_ont_ports = 20;
    diff.before.profile_ont_voice = diff.before.profile_ont_management = 20;
    diff.after = diff.before;
    expect_each_alone<Template>(
        diff, {
                  {[](Template& t) { t.profile_ont_shaping = 127; }, "profile shaping \"fast\"\n"},
                  {[](Template& t) { t.profile_ont_shaping = -1; }, "profile shaping \"unassigned\"\n"},
                  {[](Template& t) { t.profile_ont_shaping = 128; }, "profile shaping \"unassigned\"\n"},
                  {[](Template& t) { t.profile_ont_shaping = -32768; }, "profile shaping \"unassigned\"\n"},
                  {[](Template& t) { t.profile_ont_shaping = 8; }, "profile shaping \"\"\n"},
                  {[](Template& t) { t.profile_ont_shaping = 0; }, ""},
                  {[](Template& t) { t.profile_ont_shaping = 9; }, ""},
                  {[](Template& t) { t.profile_ont_ports = 31; }, "profile ports \"four\"\n"},
                  {[](Template& t) { t.profile_ont_ports = -1; }, "profile ports \"unassigned\"\n"},
                  {[](Template& t) { t.profile_ont_ports = 32; }, "profile ports \"unassigned\"\n"},
                  {[](Template& t) { t.profile_ont_ports = 0; }, ""},
                  {[](Template& t) { t.profile_ont_voice = 4; }, "profile voice \"lines\"\n"},
                  {[](Template& t) { t.profile_ont_voice = -1; }, "profile voice \"unassigned\"\n"},
                  {[](Template& t) { t.profile_ont_voice = 32767; }, "profile voice \"unassigned\"\n"},
                  {[](Template& t) { t.profile_ont_voice = 0; }, ""},
                  {[](Template& t) { t.profile_ont_management = 6; }, "profile management \"omci\"\n"},
                  {[](Template& t) { t.profile_ont_management = -1; }, "profile management \"unassigned\"\n"},
                  {[](Template& t) { t.profile_ont_management = 32; }, "profile management \"unassigned\"\n"},
                  {[](Template& t) { t.profile_ont_management = 0; }, "profile management \"\"\n"},
              });
}

TEST_F(OntTemplate, EachServiceInOrderWithItsIndex)
{
    std::string expected;
    for (std::size_t i = 0; i < 16; ++i) {
        diff.after.profile_ont_cross_connect[i] = 1;
        diff.after.profile_ont_cross_connect_is_active[i] = 1;
        diff.after.profile_ont_alloc[i] = 2;
        diff.after.profile_ont_alloc_is_active[i] = 1;
        const std::string number = std::to_string(i);
        expected += "service " + number + " profile cross-connect \"internet\"\n";
        expected += "define service " + number + " profile cross-connect\n";
        expected += "service " + number + " profile dba \"besteffort\"\n";
        expected += "define service " + number + " profile dba\n";
    }
    EXPECT_EQ(diff.script(), expected);
}

TEST_F(OntTemplate, EachFieldOfAServiceAlone)
{
    diff.before.profile_ont_cross_connect[7] = diff.before.profile_ont_alloc[7] = 20;
    diff.before.profile_ont_cross_connect_is_active[8] = diff.before.profile_ont_alloc_is_active[8] = 2;
    diff.after = diff.before;
    expect_each_alone<Template>(
        diff,
        {
            {[](Template& t) { t.profile_ont_cross_connect[7] = 1; }, "service 7 profile cross-connect \"internet\"\n"},
            {[](Template& t) { t.profile_ont_cross_connect[7] = -1; },
             "service 7 profile cross-connect \"unassigned\"\n"},
            {[](Template& t) { t.profile_ont_cross_connect[7] = 128; },
             "service 7 profile cross-connect \"unassigned\"\n"},
            {[](Template& t) { t.profile_ont_cross_connect[7] = 0; }, ""},
            {[](Template& t) { t.profile_ont_cross_connect_is_active[7] = 65535; },
             "define service 7 profile cross-connect\n"},
            {[](Template& t) { t.profile_ont_cross_connect_is_active[8] = 0; },
             "undefine service 8 profile cross-connect\n"},
            {[](Template& t) { t.profile_ont_cross_connect_is_active[8] = 1; },
             "define service 8 profile cross-connect\n"},
            {[](Template& t) { t.profile_ont_alloc[7] = 2; }, "service 7 profile dba \"besteffort\"\n"},
            {[](Template& t) { t.profile_ont_alloc[7] = -1; }, "service 7 profile dba \"unassigned\"\n"},
            {[](Template& t) { t.profile_ont_alloc[7] = 128; }, "service 7 profile dba \"unassigned\"\n"},
            {[](Template& t) { t.profile_ont_alloc[7] = 0; }, ""},
            {[](Template& t) { t.profile_ont_alloc_is_active[7] = 65535; }, "define service 7 profile dba\n"},
            {[](Template& t) { t.profile_ont_alloc_is_active[8] = 0; }, "undefine service 8 profile dba\n"},
            {[](Template& t) { t.profile_ont_alloc_is_active[8] = 1; }, "define service 8 profile dba\n"},
        });
}

constexpr char dump_before_services[] = "name \"gold\"\n"
                                        "description \"\"\n"
                                        "serial \"0000000000000000\"\n"
                                        "undefine serial\n"
                                        "password \"\"\n"
                                        "undefine password\n"
                                        "no fec\n"
                                        "undefine fec\n"
                                        "no broadcast-downstream\n"
                                        "undefine broadcast-downstream\n"
                                        "ber interval \"0\"\n"
                                        "undefine ber interval\n"
                                        "ber update-period \"none\"\n"
                                        "undefine ber update-period\n"
                                        "profile shaping \"unassigned\"\n"
                                        "undefine profile shaping\n";
constexpr char dump_behind_services[] = "profile ports \"unassigned\"\n"
                                        "undefine profile ports\n"
                                        "profile voice \"unassigned\"\n"
                                        "undefine profile voice\n"
                                        "profile management \"unassigned\"\n"
                                        "undefine profile management\n"
                                        "rf-port-state \"disabled\"\n"
                                        "undefine rf-port-state\n"
                                        "no omci-error-tolerant\n"
                                        "undefine omci-error-tolerant\n";

TEST_F(OntTemplate, DumpShowsAllButTheServicesWhateverPartIsWanted)
{
    for (const int common : {0, 1, 2}) {
        diff.before.profile_ont_shaping = diff.before.profile_ont_ports = -1;
        diff.before.profile_ont_voice = diff.before.profile_ont_management = -1;
        diff.after = diff.before;
        diff.all = 1;
        diff.common = common;
        EXPECT_EQ(diff.script(), std::string(dump_before_services) + dump_behind_services);
    }
}

TEST_F(OntTemplate, DumpShowsWhatHasChangedInTheServices)
{
    diff.before.profile_ont_shaping = diff.before.profile_ont_ports = -1;
    diff.before.profile_ont_voice = diff.before.profile_ont_management = -1;
    diff.after = diff.before;
    diff.after.profile_ont_cross_connect[3] = 1;
    diff.after.profile_ont_alloc_is_active[3] = 1;
    diff.all = 1;
    EXPECT_EQ(diff.script(), std::string(dump_before_services) +
                                 "service 3 profile cross-connect \"internet\"\n"
                                 "define service 3 profile dba\n" +
                                 dump_behind_services);
}

TEST_F(OntTemplate, DumpLeavesOutReferencesToEmptySlotsButTheOneToManagement)
{
    diff.all = 1;
    const std::string dump = diff.script();
    EXPECT_EQ(dump.find("\nprofile shaping"), std::string::npos);
    EXPECT_EQ(dump.find("\nprofile ports"), std::string::npos);
    EXPECT_EQ(dump.find("\nprofile voice"), std::string::npos);
    EXPECT_NE(dump.find("\nprofile management \"\"\n"), std::string::npos);
}

TEST_F(OntTemplate, ServiceNumbersAreNoPlaceholders)
{
    diff.key[1] = 12;
    diff.after.profile_ont_alloc_is_active[3] = 1;
    EXPECT_EQ(diff.script(), "define service 3 profile dba\n");
    EXPECT_EQ(diff.key[0], 5);
    EXPECT_EQ(diff.key[1], 12);
}

} // namespace
