#include "pon/diff_builder/profile.h"

using namespace pondiff;

bool getdiff_GPonProfileOntManagement(GPonProfileOntManagement* lhs, GPonProfileOntManagement* rhs, int* key,
                                      List<char>& out)
{
    static constexpr Row<GPonProfileOntManagement> commands[] = {
        on_off(FIELD(GPonProfileOntManagement, enable_omci_configuration), "omci-configuration",
               "no omci-configuration"),
        text(FIELD(GPonProfileOntManagement, url), "url \"%s\""),
        text(FIELD(GPonProfileOntManagement, username), "username \"%s\""),
        text(FIELD(GPonProfileOntManagement, password), "password \"%s\""),
    };
    if (no_profile(lhs, rhs)) {
        return false;
    }
    const Where where{View::management, key, out};
    emit_profile_head(lhs, rhs, where);
    emit_changed(commands, changed_or_all, lhs, rhs, where);
    emit_ont_config(lhs, rhs, where);
    return false;
}
