#include "tool/describe/table.h"

namespace pondiff::tool {

static constexpr Field sip_fields[] = {
    text(FIELD(GPonProfileOntVoiceSip, proxy), says("sip proxy <proxy>")),
    text(FIELD(GPonProfileOntVoiceSip, domain), says("sip domain <domain>")),
    text(FIELD(GPonProfileOntVoiceSip, outband_proxy), says("sip outbound-proxy <outband_proxy>")),
    number(FIELD(GPonProfileOntVoiceSip, port), says("sip port <port>").as_signed()),
    enumeration(FIELD(GPonProfileOntVoiceSip, proto), "GPonProfileOntVoiceSipProtocol_enum", says("sip proto <proto>")),
    number(FIELD(GPonProfileOntVoiceSip, expire_time), says("sip register expire <expire_time>")),
};
DESCRIBE(GPonProfileOntVoiceSip, sip_record, sip_fields);

static constexpr Field voice_profile_fields[] = {
    number(FIELD(GPonProfileOntVoice, revision), counter),
    boolean(FIELD(GPonProfileOntVoice, exist), existence),
    text(FIELD(GPonProfileOntVoice, name), says("name <name>")),
    text(FIELD(GPonProfileOntVoice, description), says("description <description>")),
    record(FIELD(GPonProfileOntVoice, sip), sip_record),
    text(FIELD(GPonProfileOntVoice, ont_config_version),
         says("ont-config version <ont_config_version> [file <ont_config_file>]")),
    text(FIELD(GPonProfileOntVoice, ont_config_file), with("ont_config_version")),
};
DESCRIBE(GPonProfileOntVoice, voice_profile_record, voice_profile_fields);

} // namespace pondiff::tool
