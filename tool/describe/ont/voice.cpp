#include "tool/describe/table.h"

namespace pondiff::tool {

static constexpr Field voice_port_fields[] = {
    text(AT(GPonOntVoicePort, number)),
    enumeration(AT(GPonOntVoicePort, auth_validation), "GOntVoiceAuthValidation_enum"),
    text(AT(GPonOntVoicePort, auth_name)),
    secret(AT(GPonOntVoicePort, auth_passwd)),
    text(AT(GPonOntVoicePort, auth_realm)),
    number(AT(GPonOntVoicePort, physical_impedance)),
    number(AT(GPonOntVoicePort, physical_gain_tx)),
    number(AT(GPonOntVoicePort, physical_gain_rx)),
};
DESCRIBE(GPonOntVoicePort, voice_port_record, voice_port_fields);

static constexpr Field iphost_fields[] = {
    ipv4(AT(GPonOntVoiceIpHost, static_ip)),
    ipv4(AT(GPonOntVoiceIpHost, static_mask)),
    ipv4(AT(GPonOntVoiceIpHost, static_gateway)),
};
DESCRIBE(GPonOntVoiceIpHost, iphost_record, iphost_fields);

static constexpr Field voip_fields[] = {
    number(AT(GPonOntVoiceVoip, feature_cid)),
    number(AT(GPonOntVoiceVoip, feature_call_wait)),
    number(AT(GPonOntVoiceVoip, feature_call_progress)),
    number(AT(GPonOntVoiceVoip, feature_call_present)),
    enumeration(AT(GPonOntVoiceVoip, fax_mode), "GPonProfileOntVoiceFaxMode_enum"),
    enumeration(AT(GPonOntVoiceVoip, dtmf_mode), "GPonProfileOntVoiceDtmfMode_enum"),
    boolean(AT(GPonOntVoiceVoip, cas_events)),
    boolean(AT(GPonOntVoiceVoip, piggyback_events)),
    boolean(AT(GPonOntVoiceVoip, tone_events)),
    boolean(AT(GPonOntVoiceVoip, dtmf_events)),
};
DESCRIBE(GPonOntVoiceVoip, voip_record, voip_fields);

static constexpr Field ont_voice_fields[] = {
    record(AT(GPonOntVoiceCfg, voice_port), voice_port_record, "voice ports"),
    record(AT(GPonOntVoiceCfg, voice_iphost), iphost_record),
    record(AT(GPonOntVoiceCfg, voip), voip_record),
};
DESCRIBE(GPonOntVoiceCfg, ont_voice_record, ont_voice_fields);

} // namespace pondiff::tool
