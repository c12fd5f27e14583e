#include "tool/describe/table.h"

namespace pondiff::tool {

static constexpr Field sip_fields[] = {
    text(AT(GPonProfileOntVoiceSip, proxy)),
    text(AT(GPonProfileOntVoiceSip, domain)),
    text(AT(GPonProfileOntVoiceSip, outband_proxy)),
    number(AT(GPonProfileOntVoiceSip, port)),
    enumeration(AT(GPonProfileOntVoiceSip, proto), "GPonProfileOntVoiceSipProtocol_enum"),
    number(AT(GPonProfileOntVoiceSip, expire_time)),
};
DESCRIBE(GPonProfileOntVoiceSip, sip_record, sip_fields);

static constexpr Field voice_profile_fields[] = {
    number(AT(GPonProfileOntVoice, revision)),
    boolean(AT(GPonProfileOntVoice, exist)),
    text(AT(GPonProfileOntVoice, name)),
    text(AT(GPonProfileOntVoice, description)),
    record(AT(GPonProfileOntVoice, sip), sip_record),
    text(AT(GPonProfileOntVoice, ont_config_version)),
    text(AT(GPonProfileOntVoice, ont_config_file)),
};
DESCRIBE(GPonProfileOntVoice, voice_profile_record, voice_profile_fields);

} // namespace pondiff::tool
