#include "pon/diff_builder/rows.h"

using namespace pondiff;

/// The polarity of signal detect and the width of the RSSI trigger pulse have no commands. The laser reset and the two
/// hold settings have one command each, whatever their value.
bool getdiff_GPonOltGeneralOpticsCfg(GPonOltGeneralOpticsCfg* lhs, GPonOltGeneralOpticsCfg* rhs, int* key,
                                     List<char>& out)
{
    using Optics = GPonOltGeneralOpticsCfg;
    static constexpr Row<Optics> commands[] = {
        whenever(FIELD(Optics, laser_reset_enable), "optics laser-reset"),
        enumeration(FIELD(Optics, laser_reset_polarity), "GOpticsPolarity_enum", "optics laser-reset polarity \"%s\""),
        word(FIELD(Optics, sd_source), getGOpticsSDSource, "optics signal-detect source \"%s\""),
        whenever(FIELD(Optics, sd_hold_normal), "optics signal-detect hold-normal"),
        whenever(FIELD(Optics, sd_hold_snr_ranging), "optics signal-detect hold-snr-ranging"),
        word(FIELD(Optics, reset_type_snr_ranging), getGOpticsResetType, "optics reset type snr-ranging \"%s\""),
        word(FIELD(Optics, reset_type_normal), getGOpticsResetTypeNormal, "optics reset type normal \"%s\""),
        number(FIELD(Optics, reset_data_burst_bcdr_d1), "optics reset data burst bcdr d1 \"%s\""),
        number(FIELD(Optics, reset_data_burst_bcdr_d2), "optics reset data burst bcdr d2 \"%s\""),
        number(FIELD(Optics, reset_data_burst_laser_d1), "optics reset data burst laser d1 \"%s\""),
        number(FIELD(Optics, reset_data_burst_laser_d2), "optics reset data burst laser d2 \"%s\""),
        number(FIELD(Optics, reset_snr_burst_bcdr_d1), "optics reset snr burst bcdr d1 \"%s\""),
        number(FIELD(Optics, reset_snr_burst_bcdr_d2), "optics reset snr burst bcdr d2 \"%s\""),
        number(FIELD(Optics, reset_snr_burst_laser_d1), "optics reset snr burst laser d1 \"%s\""),
        number(FIELD(Optics, reset_snr_burst_laser_d2), "optics reset snr burst laser d2 \"%s\""),
        number(FIELD(Optics, reset_rng_burst_bcdr_d1), "optics reset rng burst bcdr d1 \"%s\""),
        number(FIELD(Optics, reset_rng_burst_bcdr_d2), "optics reset rng burst bcdr d2 \"%s\""),
        number(FIELD(Optics, reset_rng_burst_laser_d1), "optics reset rng burst laser d1 \"%s\""),
        number(FIELD(Optics, reset_rng_burst_laser_d2), "optics reset rng burst laser d2 \"%s\""),
        number(FIELD(Optics, reset_single_bcdr_d1), "optics reset single bcdr d1 \"%s\""),
        number(FIELD(Optics, reset_single_bcdr_d2), "optics reset single bcdr d2 \"%s\""),
        number(FIELD(Optics, reset_single_laser_d1), "optics reset single laser d1 \"%s\""),
        number(FIELD(Optics, reset_single_laser_d2), "optics reset single laser d2 \"%s\""),
        number(FIELD(Optics, reset_double_bcdr_d4), "optics reset double bcdr d4 \"%s\""),
        number(FIELD(Optics, reset_double_bcdr_d3), "optics reset double bcdr d3 \"%s\""),
        number(FIELD(Optics, reset_double_laser_d4), "optics reset double laser d4 \"%s\""),
        number(FIELD(Optics, reset_double_laser_d3), "optics reset double laser d3 \"%s\""),
        number(FIELD(Optics, delay_snr_timer), "optics snr timer \"%s\""),
        number(FIELD(Optics, delay_snr_preamble), "optics snr preamble \"%s\""),
        number(FIELD(Optics, delay_snr_delimiter), "optics snr delimiter \"%s\""),
        number(FIELD(Optics, delay_snr_burst), "optics snr burst \"%s\""),
        number(FIELD(Optics, delay_rng_timer), "optics rng timer \"%s\""),
        number(FIELD(Optics, delay_rng_preamble), "optics rng preamble \"%s\""),
        number(FIELD(Optics, delay_rng_delimiter), "optics rng delimiter \"%s\""),
        number(FIELD(Optics, delay_rng_burst), "optics rng burst \"%s\""),
        number(FIELD(Optics, delay_single_burst), "optics delay single burst \"%s\""),
        number(FIELD(Optics, delay_double_burst), "optics delay double burst \"%s\""),
        number(FIELD(Optics, preamble_correlation_preamble_length), "optics preamble correlation-length \"%s\""),
        number(FIELD(Optics, preamble_length_snr_rng), "optics preamble snr-rng-length \"%s\""),
        number(FIELD(Optics, preamble_guard_time_data_mode), "optics preamble guard-time-data-mode \"%s\""),
        number(FIELD(Optics, preamble_type1_size_data), "optics preamble size type1-data \"%s\""),
        number(FIELD(Optics, preamble_type2_size_data), "optics preamble size type2-data \"%s\""),
        number(FIELD(Optics, preamble_type3_size_data), "optics preamble size type3-data \"%s\""),
        number(FIELD(Optics, preamble_type3_pattern), "optics preamble pattern type3 \"%s\""),
        number(FIELD(Optics, preamble_delimiter_size), "optics preamble delimiter size \"%s\""),
        number(FIELD(Optics, preamble_delimiter_byte1), "optics preamble delimiter byte1 \"%s\""),
        number(FIELD(Optics, preamble_delimiter_byte2), "optics preamble delimiter byte2 \"%s\""),
        number(FIELD(Optics, preamble_delimiter_byte3), "optics preamble delimiter byte3 \"%s\""),
        enumeration(FIELD(Optics, voltage_if_mode), "GOpticsVoltageInterface_enum", "optics voltage-if-mode \"%s\""),
    };
    if (nothing_to_emit(lhs, rhs)) {
        return false;
    }
    emit_changed(commands, changed_or_all, lhs, rhs, {View::gpon_port, key, out});
    return false;
}
