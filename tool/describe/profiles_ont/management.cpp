#include "tool/describe/table.h"

namespace pondiff::tool {

static constexpr Field management_profile_fields[] = {
    number(FIELD(GPonProfileOntManagement, revision)),
    boolean(FIELD(GPonProfileOntManagement, exist)),
    text(FIELD(GPonProfileOntManagement, name)),
    text(FIELD(GPonProfileOntManagement, description)),
    boolean(FIELD(GPonProfileOntManagement, enable_omci_configuration)),
    text(FIELD(GPonProfileOntManagement, url)),
    text(FIELD(GPonProfileOntManagement, username)),
    secret(FIELD(GPonProfileOntManagement, password)),
    text(FIELD(GPonProfileOntManagement, ont_config_version)),
    text(FIELD(GPonProfileOntManagement, ont_config_file)),
};
DESCRIBE(GPonProfileOntManagement, management_profile_record, management_profile_fields);

} // namespace pondiff::tool
