#include "tool/describe/table.h"

namespace pondiff::tool {

static constexpr Field custom_cross_connect_fields[] = {
    boolean(FIELD(GPonOntCustomCrossConnect, exist), existence),
    number(FIELD(GPonOntCustomCrossConnect, vid), says("service <#> custom cvid <vid>").word("unused", -1)),
    number(FIELD(GPonOntCustomCrossConnect, cos), says("service <#> custom cos <cos>")),
    number(FIELD(GPonOntCustomCrossConnect, svid), says("service <#> custom svid <svid>").word("unused", -1)),
};
DESCRIBE(GPonOntCustomCrossConnect, custom_cross_connect_record, custom_cross_connect_fields);

static constexpr Field tunnel_fields[] = {
    ended_list(FIELD(GPonOntSelectiveTunnel, uvid),
               says("service <#> selective-tunnel uvid <uvid>", "service <#> selective-tunnel uvid"), "tunnel VLANs"),
};
DESCRIBE(GPonOntSelectiveTunnel, tunnel_record, tunnel_fields);

static const char* power_priority(int value)
{
    switch (value) {
    case 1:
        return "critical";
    case 2:
        return "high";
    case 3:
        return "low";
    default:
        return nullptr;
    }
}

static constexpr Field poe_fields[] = {
    boolean(FIELD(GPonUniPoE, enable), on_off("port <#> poe enable", "no port <#> poe enable")),
    number(FIELD(GPonUniPoE, power_detection_status), status),
    number(FIELD(GPonUniPoE, power_classification_status), status),
    number(FIELD(GPonUniPoE, pse_class_control), says("port <#> poe pse-class-control <pse_class_control>")),
    number(FIELD(GPonUniPoE, power_priority),
           says("port <#> poe power-priority <power_priority>").words(power_priority, "invalid value")),
    number(FIELD(GPonUniPoE, current_power_consumption), status),
};
DESCRIBE(GPonUniPoE, poe_record, poe_fields);

static constexpr Field uni_port_fields[] = {
    boolean(FIELD(GPonOntPort, shutdown),
            on_off("port <#> shutdown", "no port <#> shutdown").risky_when_on(RiskKind::shutdown)),
    record(FIELD(GPonOntPort, poe), poe_record),
};
DESCRIBE(GPonOntPort, uni_port_record, uni_port_fields);

static constexpr Field ont_fields[] = {
    number(FIELD(GPonOntCfg, revision), counter),
    boolean(FIELD(GPonOntCfg, exist), existence),
    text(FIELD(GPonOntCfg, description), says("description <description>")),
    boolean(FIELD(GPonOntCfg, enabled), on_off("no shutdown", "shutdown").risky_when_off(RiskKind::shutdown)),
    serial(FIELD(GPonOntCfg, serial), says("serial <serial>").risky_when_shared(RiskKind::serial)),
    secret(FIELD(GPonOntCfg, password), says("password <password>").at_most(10)),
    number(FIELD(GPonOntCfg, auth_method), no_command("the authentication method cannot be set")),
    boolean(FIELD(GPonOntCfg, fec_up), on_off("fec", "no fec")),
    boolean(FIELD(GPonOntCfg, downstream_broadcast), on_off("broadcast-downstream", "no broadcast-downstream")),
    number(FIELD(GPonOntCfg, ber_interval), says("ber interval <ber_interval>").word("none", 4294967295)),
    number(FIELD(GPonOntCfg, ber_update_period), says("ber update-period <ber_update_period>")),
    boolean(FIELD(GPonOntCfg, pppoe_sessions_unlimit), on_off("pppoe-sessions-unlimit", "no pppoe-sessions-unlimit")),
    record(FIELD(GPonOntCfg, custom_cross_connect), custom_cross_connect_record, "services"),
    record(FIELD(GPonOntCfg, tunnel), tunnel_record, "services"),
    reference(FIELD(GPonOntCfg, profile_ont_shaping), Reference::shaping,
              says("profile shaping <profile_ont_shaping>")),
    reference(FIELD(GPonOntCfg, profile_ont_cross_connect), Reference::cross_connect,
              says("service <#> profile cross-connect <profile_ont_cross_connect>"), "services"),
    reference(FIELD(GPonOntCfg, profile_ont_alloc), Reference::alloc,
              says("service <#> profile dba <profile_ont_alloc>"), "services"),
    reference(FIELD(GPonOntCfg, profile_ont_ports), Reference::ports, says("profile ports <profile_ont_ports>")),
    reference(FIELD(GPonOntCfg, profile_ont_voice), Reference::voice, says("profile voice <profile_ont_voice>")),
    reference(FIELD(GPonOntCfg, profile_ont_management), Reference::management,
              says("profile management <profile_ont_management>")),
    reference(FIELD(GPonOntCfg, template_ont), Reference::template_ont, says("template <template_ont>")),
    enumeration(FIELD(GPonOntCfg, rf_port_state), "GEnabledThirdState_enum", says("rf-port-state <rf_port_state>")),
    boolean(FIELD(GPonOntCfg, omci_error_tolerant), on_off("omci-error-tolerant", "no omci-error-tolerant")),
    enumeration(FIELD(GPonOntCfg, custom_model), "GOntCustomConfigModel_enum", says("custom-model <custom_model>")),
    number(FIELD(GPonOntCfg, ems_profile_index), no_command("it belongs to the management system")),
    record(FIELD(GPonOntCfg, voice), ont_voice_record),
    record(FIELD(GPonOntCfg, port), uni_port_record, "UNI ports"),
};
DESCRIBE(GPonOntCfg, ont_record, ont_fields);

} // namespace pondiff::tool
