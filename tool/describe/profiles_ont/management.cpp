#include "tool/describe/table.h"

namespace pondiff::tool {

static constexpr Field management_profile_fields[] = {
    number(FIELD(GPonProfileOntManagement, revision), counter),
    boolean(FIELD(GPonProfileOntManagement, exist), existence),
    text(FIELD(GPonProfileOntManagement, name), says("name <name>")),
    text(FIELD(GPonProfileOntManagement, description), says("description <description>")),
    boolean(FIELD(GPonProfileOntManagement, enable_omci_configuration),
            on_off("omci-configuration", "no omci-configuration")),
    text(FIELD(GPonProfileOntManagement, url), says("url <url>")),
    text(FIELD(GPonProfileOntManagement, username), says("username <username>")),
    secret(FIELD(GPonProfileOntManagement, password), says("password <password>")),
    text(FIELD(GPonProfileOntManagement, ont_config_version),
         says("ont-config version <ont_config_version> [file <ont_config_file>]")),
    text(FIELD(GPonProfileOntManagement, ont_config_file), with("ont_config_version")),
};
DESCRIBE(GPonProfileOntManagement, management_profile_record, management_profile_fields);

} // namespace pondiff::tool
