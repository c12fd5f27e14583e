#include "tool/describe/table.h"

namespace pondiff::tool {

static constexpr Field management_profile_fields[] = {
    number(AT(GPonProfileOntManagement, revision)),
    boolean(AT(GPonProfileOntManagement, exist)),
    text(AT(GPonProfileOntManagement, name)),
    text(AT(GPonProfileOntManagement, description)),
    boolean(AT(GPonProfileOntManagement, enable_omci_configuration)),
    text(AT(GPonProfileOntManagement, url)),
    text(AT(GPonProfileOntManagement, username)),
    secret(AT(GPonProfileOntManagement, password)),
    text(AT(GPonProfileOntManagement, ont_config_version)),
    text(AT(GPonProfileOntManagement, ont_config_file)),
};
DESCRIBE(GPonProfileOntManagement, management_profile_record, management_profile_fields);

} // namespace pondiff::tool
