#include "tool/describe/table.h"

namespace pondiff::tool {

static constexpr Field sip_fields[] = {
    text(FIELD(GPonProfileOntVoiceSip, proxy)),
    text(FIELD(GPonProfileOntVoiceSip, domain)),
    text(FIELD(GPonProfileOntVoiceSip, outband_proxy)),
    number(FIELD(GPonProfileOntVoiceSip, port)),
    enumeration(FIELD(GPonProfileOntVoiceSip, proto), "GPonProfileOntVoiceSipProtocol_enum"),
    number(FIELD(GPonProfileOntVoiceSip, expire_time)),
};
DESCRIBE(GPonProfileOntVoiceSip, sip_record, sip_fields);

static constexpr Field voice_profile_fields[] = {
    number(FIELD(GPonProfileOntVoice, revision)),
    boolean(FIELD(GPonProfileOntVoice, exist)),
    text(FIELD(GPonProfileOntVoice, name)),
    text(FIELD(GPonProfileOntVoice, description)),
    record(FIELD(GPonProfileOntVoice, sip), sip_record),
    text(FIELD(GPonProfileOntVoice, ont_config_version)),
    text(FIELD(GPonProfileOntVoice, ont_config_file)),
};
DESCRIBE(GPonProfileOntVoice, voice_profile_record, voice_profile_fields);

} // namespace pondiff::tool
