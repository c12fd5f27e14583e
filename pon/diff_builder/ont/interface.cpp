#include "pon/diff_builder/rows.h"

using namespace pondiff;

namespace {

/// The profiles of each service in turn.
void emit_service_profiles(const GPonOntCfg* lhs, const GPonOntCfg* rhs, int* key, List<char>& out)
{
    static constexpr Row<GPonOntCfg> profiles[] = {
        reference(FIELD(GPonOntCfg, profile_ont_cross_connect[0]), getCrossConnectName,
                  "service %d profile cross-connect \"%s\""),
        reference(FIELD(GPonOntCfg, profile_ont_alloc[0]), getAllocName, "service %d profile dba \"%s\""),
    };
    for (int service = 0; service < GCFG_SERVICES; ++service) {
        const Value shown = service;
        for (const Row<GPonOntCfg>& profile : profiles) {
            emit_changed(element(profile, static_cast<std::size_t>(service)), changed_or_all, lhs, rhs,
                         {View::ont, key, out, &shown});
        }
    }
}

void diff_services(GPonOntCfg& lhs, GPonOntCfg& rhs, int* key, List<char>& out)
{
    for (int service = 0; service < GCFG_SERVICES; ++service) {
        key[of_element] = service;
        descend(changed_or_all, getdiff_GPonOntCustomCrossConnect, lhs.custom_cross_connect[service],
                rhs.custom_cross_connect[service], key, out);
        descend(changed_or_all, getdiff_GPonOntSelectiveTunnel, lhs.tunnel[service], rhs.tunnel[service], key, out);
    }
}

/// The settings of an ONT that exists in the new configuration.
void emit_settings(GPonOntCfg* lhs, GPonOntCfg* rhs, int* key, List<char>& out)
{
    static constexpr Row<GPonOntCfg> terminal[] = {
        text(FIELD(GPonOntCfg, description), "description \"%s\""),
        on_off(FIELD(GPonOntCfg, enabled), "no shutdown", "shutdown"),
        serial(FIELD(GPonOntCfg, serial), "serial \"%s\""),
        ont_password(FIELD(GPonOntCfg, password), "password \"%s\"", 10),
        on_off(FIELD(GPonOntCfg, fec_up), "fec", "no fec"),
        on_off(FIELD(GPonOntCfg, pppoe_sessions_unlimit), "pppoe-sessions-unlimit", "no pppoe-sessions-unlimit"),
        on_off(FIELD(GPonOntCfg, downstream_broadcast), "broadcast-downstream", "no broadcast-downstream"),
        ber_interval(FIELD(GPonOntCfg, ber_interval), "ber interval \"%s\""),
        number(FIELD(GPonOntCfg, ber_update_period), "ber update-period \"%s\""),
        reference(FIELD(GPonOntCfg, profile_ont_shaping), getShapingName, "profile shaping \"%s\""),
    };
    static constexpr Row<GPonOntCfg> profiles_and_modes[] = {
        reference(FIELD(GPonOntCfg, profile_ont_ports), getPortsName, "profile ports \"%s\""),
        reference(FIELD(GPonOntCfg, profile_ont_voice), getVoiceName, "profile voice \"%s\""),
        reference(FIELD(GPonOntCfg, profile_ont_management), getManagementName, "profile management \"%s\""),
        reference(FIELD(GPonOntCfg, template_ont), getTemplateName, "template \"%s\""),
        enumeration(FIELD(GPonOntCfg, rf_port_state), "GEnabledThirdState_enum", "rf-port-state \"%s\""),
        on_off(FIELD(GPonOntCfg, omci_error_tolerant), "omci-error-tolerant", "no omci-error-tolerant"),
        enumeration(FIELD(GPonOntCfg, custom_model), "GOntCustomConfigModel_enum", "custom-model \"%s\""),
    };
    const Where where{View::ont, key, out};
    emit_changed(terminal, changed_or_all, lhs, rhs, where);
    emit_service_profiles(lhs, rhs, key, out);
    emit_changed(profiles_and_modes, changed_or_all, lhs, rhs, where);
    descend(changed_or_all, getdiff_GPonOntVoice, lhs->voice, rhs->voice, key, out);
    diff_services(*lhs, *rhs, key, out);
    descend_each(changed_or_all, getdiff_GPonOntPort, lhs->port, rhs->port, of_element, key, out);
}

const char* power_priority_word(int value)
{
    switch (value) {
    case 1:
        return "critical";
    case 2:
        return "high";
    case 3:
        return "low";
    default:
        return "invalid value";
    }
}

} // namespace

/// The authentication method and the profile in the management system have no commands.
bool getdiff_GPonOntCfg(GPonOntCfg* lhs, GPonOntCfg* rhs, int* key, List<char>& out)
{
    if (nothing_to_emit(lhs, rhs)) {
        return false;
    }
    if (lhs->exist != rhs->exist) {
        if (rhs->exist == 0) {
            if (navigate({View::configure, key, out})) {
                append(out, "no interface ont %d/%d", key[of_object] / GCFG_ONTS_PER_PORT,
                       key[of_object] % GCFG_ONTS_PER_PORT);
            }
            return false;
        }
        navigate({View::ont, key, out}); // creates it
    }
    if (rhs->exist != 0) {
        emit_settings(lhs, rhs, key, out);
    }
    return false;
}

/// One that is switched off has no commands.
unsigned char getdiff_GPonOntCustomCrossConnect(GPonOntCustomCrossConnect* lhs, GPonOntCustomCrossConnect* rhs,
                                                int* key, List<char>& out)
{
    static constexpr Row<GPonOntCustomCrossConnect> commands[] = {
        number_or_unused(FIELD(GPonOntCustomCrossConnect, vid), "service $ID1 custom cvid \"%s\""),
        number_or_unused(FIELD(GPonOntCustomCrossConnect, svid), "service $ID1 custom svid \"%s\""),
        number_or_unused(FIELD(GPonOntCustomCrossConnect, cos), "service $ID1 custom cos \"%s\""),
    };
    if (nothing_to_emit(lhs, rhs) || rhs->exist == 0) {
        return 0;
    }
    emit_changed(commands, changed_or_all, lhs, rhs, {View::ont, key, out});
    return 0;
}

bool getdiff_GPonOntPort(GPonOntPort* lhs, GPonOntPort* rhs, int* key, List<char>& out)
{
    static constexpr Row<GPonOntPort> shutdown =
        on_off(FIELD(GPonOntPort, shutdown), "port $ID1 shutdown", "no port $ID1 shutdown");
    if (nothing_to_emit(lhs, rhs)) {
        return false;
    }
    emit_changed(shutdown, changed_or_all, lhs, rhs, {View::ont, key, out});
    descend(changed_or_all, getdiff_GPonUniPoE, lhs->poe, rhs->poe, key, out);
    return false;
}

bool getdiff_GPonUniPoE(GPonUniPoE* lhs, GPonUniPoE* rhs, int* key, List<char>& out)
{
    static constexpr Row<GPonUniPoE> commands[] = {
        on_off(FIELD(GPonUniPoE, enable), "port $ID1 poe enable", "no port $ID1 poe enable"),
        number(FIELD(GPonUniPoE, pse_class_control), "port $ID1 poe pse-class-control \"%d\""),
        word(FIELD(GPonUniPoE, power_priority), power_priority_word, "port $ID1 poe power-priority \"%s\""),
    };
    if (nothing_to_emit(lhs, rhs)) {
        return false;
    }
    emit_changed(commands, changed_or_all, lhs, rhs, {View::ont, key, out});
    return false;
}
