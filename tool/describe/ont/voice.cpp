#include "tool/describe/table.h"

namespace pondiff::tool {

static constexpr Field voice_port_fields[] = {
    text(FIELD(GPonOntVoicePort, number), says("voice port <#> number <number>")),
    enumeration(FIELD(GPonOntVoicePort, auth_validation), "GOntVoiceAuthValidation_enum",
                says("voice port <#> authentication validation <auth_validation>")),
    text(FIELD(GPonOntVoicePort, auth_name), says("voice port <#> authentication username <auth_name>")),
    secret(FIELD(GPonOntVoicePort, auth_passwd), says("voice port <#> authentication password <auth_passwd>")),
    text(FIELD(GPonOntVoicePort, auth_realm), says("voice port <#> authentication realm <auth_realm>")),
    number(FIELD(GPonOntVoicePort, physical_impedance), says("voice port <#> physical impedance <physical_impedance>")),
    number(FIELD(GPonOntVoicePort, physical_gain_tx), says("voice port <#> physical gain tx <physical_gain_tx>")),
    number(FIELD(GPonOntVoicePort, physical_gain_rx), says("voice port <#> physical gain rx <physical_gain_rx>")),
};
DESCRIBE(GPonOntVoicePort, voice_port_record, voice_port_fields);

static constexpr Field iphost_fields[] = {
    ipv4(FIELD(GPonOntVoiceIpHost, static_ip), says("voice iphost static ip <static_ip>")),
    ipv4(FIELD(GPonOntVoiceIpHost, static_mask), says("voice iphost static mask <static_mask>")),
    ipv4(FIELD(GPonOntVoiceIpHost, static_gateway), says("voice iphost static gateway <static_gateway>")),
};
DESCRIBE(GPonOntVoiceIpHost, iphost_record, iphost_fields);

static constexpr const char* caller_id[] = {
    "call-number", "call-name", "cid-block", "cid-number", "cid-name", "anon-cid-block"};
static constexpr const char* call_wait[] = {"enable", "call-id-annonce"};
static constexpr const char* call_progress[] = {
    "3way", "transfer", "hold", "park", "not-disturb", "flash-on-emergency", "emergency-hold", "6way"};
static constexpr const char* call_presentation[] = {"splash-ring", "special-dialtone", "visual", "call-forward"};

static constexpr Field voip_fields[] = {
    number(FIELD(GPonOntVoiceVoip, feature_cid),
           flags("voice features cid <#>", "no voice features cid <#>", caller_id)),
    number(FIELD(GPonOntVoiceVoip, feature_call_wait),
           flags("voice features call-wait <#>", "no voice features call-wait <#>", call_wait)),
    number(FIELD(GPonOntVoiceVoip, feature_call_progress),
           flags("voice features call-progress <#>", "no voice features call-progress <#>", call_progress)),
    number(FIELD(GPonOntVoiceVoip, feature_call_present),
           flags("voice features call-presentation <#>", "no voice features call-presentation <#>", call_presentation)),
    enumeration(FIELD(GPonOntVoiceVoip, fax_mode), "GPonProfileOntVoiceFaxMode_enum",
                says("voice fax-mode <fax_mode>")),
    enumeration(FIELD(GPonOntVoiceVoip, dtmf_mode), "GPonProfileOntVoiceDtmfMode_enum",
                says("voice dtmf mode <dtmf_mode>")),
    boolean(FIELD(GPonOntVoiceVoip, cas_events), on_off("voice rtp cas enable", "no voice rtp cas")),
    boolean(FIELD(GPonOntVoiceVoip, piggyback_events), on_off("voice rtp piggyback enable", "no voice rtp piggyback")),
    boolean(FIELD(GPonOntVoiceVoip, tone_events), on_off("voice rtp tone enable", "no voice rtp tone")),
    boolean(FIELD(GPonOntVoiceVoip, dtmf_events), on_off("voice rtp dtmf enable", "no voice rtp dtmf")),
};
DESCRIBE(GPonOntVoiceVoip, voip_record, voip_fields);

static constexpr Field ont_voice_fields[] = {
    record(FIELD(GPonOntVoiceCfg, voice_port), voice_port_record, "voice ports"),
    record(FIELD(GPonOntVoiceCfg, voice_iphost), iphost_record),
    record(FIELD(GPonOntVoiceCfg, voip), voip_record),
};
DESCRIBE(GPonOntVoiceCfg, ont_voice_record, ont_voice_fields);

} // namespace pondiff::tool
