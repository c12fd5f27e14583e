#include "tool/describe/table.h"

namespace pondiff::tool {

static constexpr Field voice_port_fields[] = {
    text(FIELD(GPonOntVoicePort, number)),
    enumeration(FIELD(GPonOntVoicePort, auth_validation), "GOntVoiceAuthValidation_enum"),
    text(FIELD(GPonOntVoicePort, auth_name)),
    secret(FIELD(GPonOntVoicePort, auth_passwd)),
    text(FIELD(GPonOntVoicePort, auth_realm)),
    number(FIELD(GPonOntVoicePort, physical_impedance)),
    number(FIELD(GPonOntVoicePort, physical_gain_tx)),
    number(FIELD(GPonOntVoicePort, physical_gain_rx)),
};
DESCRIBE(GPonOntVoicePort, voice_port_record, voice_port_fields);

static constexpr Field iphost_fields[] = {
    ipv4(FIELD(GPonOntVoiceIpHost, static_ip)),
    ipv4(FIELD(GPonOntVoiceIpHost, static_mask)),
    ipv4(FIELD(GPonOntVoiceIpHost, static_gateway)),
};
DESCRIBE(GPonOntVoiceIpHost, iphost_record, iphost_fields);

static constexpr Field voip_fields[] = {
    number(FIELD(GPonOntVoiceVoip, feature_cid)),
    number(FIELD(GPonOntVoiceVoip, feature_call_wait)),
    number(FIELD(GPonOntVoiceVoip, feature_call_progress)),
    number(FIELD(GPonOntVoiceVoip, feature_call_present)),
    enumeration(FIELD(GPonOntVoiceVoip, fax_mode), "GPonProfileOntVoiceFaxMode_enum"),
    enumeration(FIELD(GPonOntVoiceVoip, dtmf_mode), "GPonProfileOntVoiceDtmfMode_enum"),
    boolean(FIELD(GPonOntVoiceVoip, cas_events)),
    boolean(FIELD(GPonOntVoiceVoip, piggyback_events)),
    boolean(FIELD(GPonOntVoiceVoip, tone_events)),
    boolean(FIELD(GPonOntVoiceVoip, dtmf_events)),
};
DESCRIBE(GPonOntVoiceVoip, voip_record, voip_fields);

static constexpr Field ont_voice_fields[] = {
    record(FIELD(GPonOntVoiceCfg, voice_port), voice_port_record, "voice ports"),
    record(FIELD(GPonOntVoiceCfg, voice_iphost), iphost_record),
    record(FIELD(GPonOntVoiceCfg, voip), voip_record),
};
DESCRIBE(GPonOntVoiceCfg, ont_voice_record, ont_voice_fields);

} // namespace pondiff::tool
