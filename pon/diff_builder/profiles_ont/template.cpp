#include "pon/diff_builder/profile.h"

using namespace pondiff;

namespace {

using Template = GPonTemplateOnt;

constexpr Row<Template> identity[] = {
    serial(FIELD(Template, serial), "serial \"%s\""),
    on_off(FIELD(Template, serial_is_active), "define serial", "undefine serial"),
    ont_password(FIELD(Template, password), "password \"%s\""),
    on_off(FIELD(Template, password_is_active), "define password", "undefine password"),
    on_off(FIELD(Template, fec_up), "fec", "no fec"),
    on_off(FIELD(Template, fec_up_is_active), "define fec", "undefine fec"),
    on_off(FIELD(Template, downstream_broadcast), "broadcast-downstream", "no broadcast-downstream"),
    on_off(FIELD(Template, downstream_broadcast_is_active), "define broadcast-downstream",
           "undefine broadcast-downstream"),
    ber_interval(FIELD(Template, ber_interval), "ber interval \"%s\""),
    on_off(FIELD(Template, ber_interval_is_active), "define ber interval", "undefine ber interval"),
};

constexpr Row<Template> no_ber_update_period =
    whenever(FIELD(Template, ber_update_period), "ber update-period \"none\"");
constexpr Row<Template> ber_update_period = number(FIELD(Template, ber_update_period), "ber update-period \"%s\"");

constexpr Row<Template> before_services[] = {
    on_off(FIELD(Template, ber_update_period_is_active), "define ber update-period", "undefine ber update-period"),
    reference(FIELD(Template, profile_ont_shaping), getShapingName, "profile shaping \"%s\""),
    on_off(FIELD(Template, profile_ont_shaping_is_active), "define profile shaping", "undefine profile shaping"),
};

/// Of service 0; the number of the service leads.
constexpr Row<Template> service_commands[] = {
    reference(FIELD(Template, profile_ont_cross_connect[0]), getCrossConnectName,
              "service %d profile cross-connect \"%s\""),
    on_off(FIELD(Template, profile_ont_cross_connect_is_active[0]), "define service %d profile cross-connect",
           "undefine service %d profile cross-connect"),
    reference(FIELD(Template, profile_ont_alloc[0]), getAllocName, "service %d profile dba \"%s\""),
    on_off(FIELD(Template, profile_ont_alloc_is_active[0]), "define service %d profile dba",
           "undefine service %d profile dba"),
};

constexpr Row<Template> behind_services[] = {
    reference(FIELD(Template, profile_ont_ports), getPortsName, "profile ports \"%s\""),
    on_off(FIELD(Template, profile_ont_ports_is_active), "define profile ports", "undefine profile ports"),
    reference(FIELD(Template, profile_ont_voice), getVoiceName, "profile voice \"%s\""),
    on_off(FIELD(Template, profile_ont_voice_is_active), "define profile voice", "undefine profile voice"),
    // Unlike other references, it is emitted with an empty name when its slot is empty.
    word(FIELD(Template, profile_ont_management), getManagementName, "profile management \"%s\""),
    on_off(FIELD(Template, profile_ont_management_is_active), "define profile management",
           "undefine profile management"),
    enumeration(FIELD(Template, rf_port_state), "GEnabledThirdState_enum", "rf-port-state \"%s\""),
    on_off(FIELD(Template, rf_port_state_is_active), "define rf-port-state", "undefine rf-port-state"),
    on_off(FIELD(Template, omci_error_tolerant), "omci-error-tolerant", "no omci-error-tolerant"),
    on_off(FIELD(Template, omci_error_tolerant_is_active), "define omci-error-tolerant",
           "undefine omci-error-tolerant"),
};

} // namespace

bool getdiff_GPonTemplateOnt(GPonTemplateOnt* lhs, GPonTemplateOnt* rhs, int* key, List<char>& out)
{
    if (no_profile(lhs, rhs)) {
        return false;
    }
    const Where where{View::template_ont, key, out};
    emit_profile_head(lhs, rhs, where);
    emit_changed(identity, changed_or_all, lhs, rhs, where);
    emit_changed(rhs->ber_update_period == 0 ? no_ber_update_period : ber_update_period, changed_or_all, lhs, rhs,
                 where);
    emit_changed(before_services, changed_or_all, lhs, rhs, where);

    // A full dump leaves equal services out.
    for (int service = 0; service < GCFG_SERVICES; ++service) {
        const Value number = service;
        for (const Row<Template>& row : service_commands) {
            emit_changed(element(row, static_cast<std::size_t>(service)), changed_only, lhs, rhs,
                         {where.view, key, out, &number});
        }
    }

    emit_changed(behind_services, changed_or_all, lhs, rhs, where);
    return false;
}
