#include "tests/support/diff.h"

namespace {

using Optics = GPonOltGeneralOpticsCfg;

/// One command: how it reads when the field is zero, how it reads once `set` has changed the field.
struct Command {
    const char* zero;
    const char* changed;
    void (*set)(Optics&);
};

const Command commands[] = {
    {"optics laser-reset", "optics laser-reset", [](Optics& o) { o.laser_reset_enable = 1; }},
    {"optics laser-reset polarity \"active-low\"", "optics laser-reset polarity \"active-high\"",
     [](Optics& o) { o.laser_reset_polarity = 1; }},
    {"optics signal-detect source \"laser-sd\"", "optics signal-detect source \"bcdr-sd\"",
     [](Optics& o) { o.sd_source = 2; }},
    {"optics signal-detect hold-normal", "optics signal-detect hold-normal", [](Optics& o) { o.sd_hold_normal = 1; }},
    {"optics signal-detect hold-snr-ranging", "optics signal-detect hold-snr-ranging",
     [](Optics& o) { o.sd_hold_snr_ranging = 1; }},
    {"optics reset type snr-ranging \"delay-based\"", "optics reset type snr-ranging \"double-reset\"",
     [](Optics& o) { o.reset_type_snr_ranging = 2; }},
    {"optics reset type normal \"start-burst-based\"", "optics reset type normal \"end-burst-based\"",
     [](Optics& o) { o.reset_type_normal = 1; }},
    {"optics reset data burst bcdr d1 \"0\"", "optics reset data burst bcdr d1 \"9\"",
     [](Optics& o) { o.reset_data_burst_bcdr_d1 = 9; }},
    {"optics reset data burst bcdr d2 \"0\"", "optics reset data burst bcdr d2 \"10\"",
     [](Optics& o) { o.reset_data_burst_bcdr_d2 = 10; }},
    {"optics reset data burst laser d1 \"0\"", "optics reset data burst laser d1 \"11\"",
     [](Optics& o) { o.reset_data_burst_laser_d1 = 11; }},
    {"optics reset data burst laser d2 \"0\"", "optics reset data burst laser d2 \"12\"",
     [](Optics& o) { o.reset_data_burst_laser_d2 = 12; }},
    {"optics reset snr burst bcdr d1 \"0\"", "optics reset snr burst bcdr d1 \"13\"",
     [](Optics& o) { o.reset_snr_burst_bcdr_d1 = 13; }},
    {"optics reset snr burst bcdr d2 \"0\"", "optics reset snr burst bcdr d2 \"14\"",
     [](Optics& o) { o.reset_snr_burst_bcdr_d2 = 14; }},
    {"optics reset snr burst laser d1 \"0\"", "optics reset snr burst laser d1 \"15\"",
     [](Optics& o) { o.reset_snr_burst_laser_d1 = 15; }},
    {"optics reset snr burst laser d2 \"0\"", "optics reset snr burst laser d2 \"16\"",
     [](Optics& o) { o.reset_snr_burst_laser_d2 = 16; }},
    {"optics reset rng burst bcdr d1 \"0\"", "optics reset rng burst bcdr d1 \"17\"",
     [](Optics& o) { o.reset_rng_burst_bcdr_d1 = 17; }},
    {"optics reset rng burst bcdr d2 \"0\"", "optics reset rng burst bcdr d2 \"18\"",
     [](Optics& o) { o.reset_rng_burst_bcdr_d2 = 18; }},
    {"optics reset rng burst laser d1 \"0\"", "optics reset rng burst laser d1 \"19\"",
     [](Optics& o) { o.reset_rng_burst_laser_d1 = 19; }},
    {"optics reset rng burst laser d2 \"0\"", "optics reset rng burst laser d2 \"20\"",
     [](Optics& o) { o.reset_rng_burst_laser_d2 = 20; }},
    {"optics reset single bcdr d1 \"0\"", "optics reset single bcdr d1 \"21\"",
     [](Optics& o) { o.reset_single_bcdr_d1 = 21; }},
    {"optics reset single bcdr d2 \"0\"", "optics reset single bcdr d2 \"22\"",
     [](Optics& o) { o.reset_single_bcdr_d2 = 22; }},
    {"optics reset single laser d1 \"0\"", "optics reset single laser d1 \"23\"",
     [](Optics& o) { o.reset_single_laser_d1 = 23; }},
    {"optics reset single laser d2 \"0\"", "optics reset single laser d2 \"24\"",
     [](Optics& o) { o.reset_single_laser_d2 = 24; }},
    {"optics reset double bcdr d4 \"0\"", "optics reset double bcdr d4 \"25\"",
     [](Optics& o) { o.reset_double_bcdr_d4 = 25; }},
    {"optics reset double bcdr d3 \"0\"", "optics reset double bcdr d3 \"26\"",
     [](Optics& o) { o.reset_double_bcdr_d3 = 26; }},
    {"optics reset double laser d4 \"0\"", "optics reset double laser d4 \"27\"",
     [](Optics& o) { o.reset_double_laser_d4 = 27; }},
    {"optics reset double laser d3 \"0\"", "optics reset double laser d3 \"28\"",
     [](Optics& o) { o.reset_double_laser_d3 = 28; }},
    {"optics snr timer \"0\"", "optics snr timer \"2900\"", [](Optics& o) { o.delay_snr_timer = 2900; }},
    {"optics snr preamble \"0\"", "optics snr preamble \"3000\"", [](Optics& o) { o.delay_snr_preamble = 3000; }},
    {"optics snr delimiter \"0\"", "optics snr delimiter \"3100\"", [](Optics& o) { o.delay_snr_delimiter = 3100; }},
    {"optics snr burst \"0\"", "optics snr burst \"3200\"", [](Optics& o) { o.delay_snr_burst = 3200; }},
    {"optics rng timer \"0\"", "optics rng timer \"3300\"", [](Optics& o) { o.delay_rng_timer = 3300; }},
    {"optics rng preamble \"0\"", "optics rng preamble \"3400\"", [](Optics& o) { o.delay_rng_preamble = 3400; }},
    {"optics rng delimiter \"0\"", "optics rng delimiter \"3500\"", [](Optics& o) { o.delay_rng_delimiter = 3500; }},
    {"optics rng burst \"0\"", "optics rng burst \"3600\"", [](Optics& o) { o.delay_rng_burst = 3600; }},
    {"optics delay single burst \"0\"", "optics delay single burst \"3700\"",
     [](Optics& o) { o.delay_single_burst = 3700; }},
    {"optics delay double burst \"0\"", "optics delay double burst \"65535\"",
     [](Optics& o) { o.delay_double_burst = 65535; }},
    {"optics preamble correlation-length \"0\"", "optics preamble correlation-length \"39\"",
     [](Optics& o) { o.preamble_correlation_preamble_length = 39; }},
    {"optics preamble snr-rng-length \"0\"", "optics preamble snr-rng-length \"40\"",
     [](Optics& o) { o.preamble_length_snr_rng = 40; }},
    {"optics preamble guard-time-data-mode \"0\"", "optics preamble guard-time-data-mode \"41\"",
     [](Optics& o) { o.preamble_guard_time_data_mode = 41; }},
    {"optics preamble size type1-data \"0\"", "optics preamble size type1-data \"42\"",
     [](Optics& o) { o.preamble_type1_size_data = 42; }},
    {"optics preamble size type2-data \"0\"", "optics preamble size type2-data \"43\"",
     [](Optics& o) { o.preamble_type2_size_data = 43; }},
    {"optics preamble size type3-data \"0\"", "optics preamble size type3-data \"44\"",
     [](Optics& o) { o.preamble_type3_size_data = 44; }},
    {"optics preamble pattern type3 \"0\"", "optics preamble pattern type3 \"170\"",
     [](Optics& o) { o.preamble_type3_pattern = 0xAA; }},
    {"optics preamble delimiter size \"0\"", "optics preamble delimiter size \"255\"",
     [](Optics& o) { o.preamble_delimiter_size = 255; }},
    {"optics preamble delimiter byte1 \"0\"", "optics preamble delimiter byte1 \"171\"",
     [](Optics& o) { o.preamble_delimiter_byte1 = 0xAB; }},
    {"optics preamble delimiter byte2 \"0\"", "optics preamble delimiter byte2 \"89\"",
     [](Optics& o) { o.preamble_delimiter_byte2 = 0x59; }},
    {"optics preamble delimiter byte3 \"0\"", "optics preamble delimiter byte3 \"131\"",
     [](Optics& o) { o.preamble_delimiter_byte3 = 0x83; }},
    {"optics voltage-if-mode \"lvpecl\"", "optics voltage-if-mode \"cml\"", [](Optics& o) { o.voltage_if_mode = 2; }},
};

class OltOptics : public testing::Test {
  protected:
    OltOptics()
    {
        diff.key[0] = 5;
        diff.view = "if-gpon-view";
        diff.view_key = 5;
    }

    Diff<Optics> diff{getdiff_GPonOltGeneralOpticsCfg};
};

TEST_F(OltOptics, EachFieldAloneIsOneCommandWhenSetAndWhenCleared)
{
    for (const Command& command : commands) {
        diff.before = diff.after = {};
        command.set(diff.after);
        EXPECT_EQ(diff.elements(), (Elements{"", command.changed}));
        std::swap(diff.before, diff.after);
        EXPECT_EQ(diff.elements(), (Elements{"", command.zero}));
    }
}

TEST_F(OltOptics, EveryFieldInOrderOnItsPort)
{
    diff.view = "root";
    std::string expected = "configure terminal\ninterface gpon-port    5\n";
    for (const Command& command : commands) {
        command.set(diff.after);
        expected += command.changed + std::string("\n");
    }
    EXPECT_EQ(diff.script(), expected);
}

TEST_F(OltOptics, PrintAllForcesFortyNineCommandsWhateverPartIsWanted)
{
    diff.view = "root";
    diff.all = 1;
    Elements expected;
    for (const Command& command : commands) {
        expected.emplace_back("");
        expected.emplace_back(command.zero);
    }
    expected[0] = "configure terminal\ninterface gpon-port    5";
    ASSERT_EQ(expected.size(), 2U * 49);
    for (const int common : {0, 1, 2}) {
        diff.common = common;
        EXPECT_EQ(diff.elements(), expected) << common;
    }
}

TEST_F(OltOptics, SignalDetectPolarityAndRssiPulseHaveNoCommand)
{
    diff.after.laser_sd_polarity = 1;
    diff.after.rssi_trigger_pulse_width = 1000;
    EXPECT_EQ(diff.elements(), Elements{});
}

TEST_F(OltOptics, SwitchesAreEmittedWhateverTheNewValue)
{
    diff.before.laser_reset_enable = 1;
    EXPECT_EQ(diff.elements(), (Elements{"", "optics laser-reset"}));
    diff.after.laser_reset_enable = 2;
    EXPECT_EQ(diff.elements(), (Elements{"", "optics laser-reset"}));
}

TEST_F(OltOptics, EveryWordOfItsVocabularies)
{
    const auto source = [this](u16 value) {
        diff.before = diff.after = {};
        diff.before.sd_source = 9;
        diff.after.sd_source = value;
        return diff.script();
    };
    EXPECT_EQ(source(0), "optics signal-detect source \"laser-sd\"\n");
    EXPECT_EQ(source(1), "optics signal-detect source \"bcdr-lock\"\n");
    EXPECT_EQ(source(2), "optics signal-detect source \"bcdr-sd\"\n");

    const auto reset_type = [this](u16 value) {
        diff.before = diff.after = {};
        diff.before.reset_type_snr_ranging = 9;
        diff.after.reset_type_snr_ranging = value;
        return diff.script();
    };
    EXPECT_EQ(reset_type(0), "optics reset type snr-ranging \"delay-based\"\n");
    EXPECT_EQ(reset_type(1), "optics reset type snr-ranging \"single-reset\"\n");
    EXPECT_EQ(reset_type(2), "optics reset type snr-ranging \"double-reset\"\n");
}

TEST_F(OltOptics, ValueWithoutAWordIsEmptyBetweenItsQuotes)
{
    diff.after.sd_source = 3;
    diff.after.reset_type_snr_ranging = 65535;
    diff.after.reset_type_normal = 2;
    EXPECT_EQ(diff.script(), "optics signal-detect source \"\"\n"
                             "optics reset type snr-ranging \"\"\n"
                             "optics reset type normal \"\"\n");
}

TEST_F(OltOptics, ValueThatTheRegistryDoesNotKnow)
{
    diff.after.laser_reset_polarity = 2;
    diff.after.voltage_if_mode = 65535;
    EXPECT_EQ(diff.script(), "optics laser-reset polarity \"unknown\"\n"
                             "optics voltage-if-mode \"unknown\"\n");
}

} // namespace
