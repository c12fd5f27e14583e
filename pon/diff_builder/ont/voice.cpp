#include "pon/diff_builder/rows.h"

using namespace pondiff;

namespace {

using Port = GPonOntVoicePort;

constexpr Row<Port> identity[] = {
    text(FIELD(Port, number), "voice port %d number \"%s\""),
    text(FIELD(Port, auth_name), "voice port %d authentication username \"%s\""),
    text(FIELD(Port, auth_passwd), "voice port %d authentication password \"%s\""),
};

constexpr Row<Port> validation_and_line[] = {
    enumeration(FIELD(Port, auth_validation), "GOntVoiceAuthValidation_enum",
                "voice port %d authentication validation %s"),
    number(FIELD(Port, physical_impedance), "voice port %d physical impedance %d"),
    number(FIELD(Port, physical_gain_tx), "voice port %d physical gain tx %d"),
    number(FIELD(Port, physical_gain_rx), "voice port %d physical gain rx %d"),
};

void diff_port(const Port& lhs, const Port& rhs, int port, const Where& ont)
{
    const Value shown = port;
    const Where where{ont.view, ont.key, ont.out, &shown};
    emit_changed(identity, changed_or_all, &lhs, &rhs, where);
    // The new realm is compared with the old password, not with the old realm.
    if (wanted(changed_or_all, lhs.auth_passwd, rhs.auth_realm)) {
        emit(where, "voice port %d authentication realm \"%s\"", text_of(rhs.auth_realm));
    }
    emit_changed(validation_and_line, changed_or_all, &lhs, &rhs, where);
}

} // namespace

bool getdiff_GPonOntVoice(GPonOntVoiceCfg* lhs, GPonOntVoiceCfg* rhs, int* key, List<char>& out)
{
    using Host = GPonOntVoiceIpHost;
    using Voip = GPonOntVoiceVoip;
    static constexpr Row<Host> host[] = {
        ipv4(FIELD(Host, static_ip), "voice iphost static ip \"%s\""),
        ipv4(FIELD(Host, static_mask), "voice iphost static mask \"%s\""),
        ipv4(FIELD(Host, static_gateway), "voice iphost static gateway \"%s\""),
    };
    static constexpr Row<Voip> voip[] = {
        bit(FIELD(Voip, feature_cid), 1, "voice features cid call-number", "no voice features cid call-number"),
        bit(FIELD(Voip, feature_cid), 2, "voice features cid call-name", "no voice features cid call-name"),
        bit(FIELD(Voip, feature_cid), 4, "voice features cid cid-block", "no voice features cid cid-block"),
        bit(FIELD(Voip, feature_cid), 8, "voice features cid cid-number", "no voice features cid cid-number"),
        bit(FIELD(Voip, feature_cid), 16, "voice features cid cid-name", "no voice features cid cid-name"),
        bit(FIELD(Voip, feature_cid), 32, "voice features cid anon-cid-block", "no voice features cid anon-cid-block"),
        bit(FIELD(Voip, feature_call_wait), 1, "voice features call-wait enable", "no voice features call-wait enable"),
        bit(FIELD(Voip, feature_call_wait), 2, "voice features call-wait call-id-annonce",
            "no voice features call-wait call-id-annonce"),
        bit(FIELD(Voip, feature_call_progress), 1, "voice features call-progress 3way",
            "no voice features call-progress 3way"),
        bit(FIELD(Voip, feature_call_progress), 2, "voice features call-progress transfer",
            "no voice features call-progress transfer"),
        bit(FIELD(Voip, feature_call_progress), 4, "voice features call-progress hold",
            "no voice features call-progress hold"),
        bit(FIELD(Voip, feature_call_progress), 8, "voice features call-progress park",
            "no voice features call-progress park"),
        bit(FIELD(Voip, feature_call_progress), 16, "voice features call-progress not-disturb",
            "no voice features call-progress not-disturb"),
        bit(FIELD(Voip, feature_call_progress), 32, "voice features call-progress flash-on-emergency",
            "no voice features call-progress flash-on-emergency"),
        bit(FIELD(Voip, feature_call_progress), 64, "voice features call-progress emergency-hold",
            "no voice features call-progress emergency-hold"),
        bit(FIELD(Voip, feature_call_progress), 128, "voice features call-progress 6way",
            "no voice features call-progress 6way"),
        bit(FIELD(Voip, feature_call_present), 1, "voice features call-presentation splash-ring",
            "no voice features call-presentation splash-ring"),
        bit(FIELD(Voip, feature_call_present), 2, "voice features call-presentation special-dialtone",
            "no voice features call-presentation special-dialtone"),
        bit(FIELD(Voip, feature_call_present), 4, "voice features call-presentation visual",
            "no voice features call-presentation visual"),
        bit(FIELD(Voip, feature_call_present), 8, "voice features call-presentation call-forward",
            "no voice features call-presentation call-forward"),
        enumeration(FIELD(Voip, fax_mode), "GPonProfileOntVoiceFaxMode_enum", "voice fax-mode \"%s\""),
        enumeration(FIELD(Voip, dtmf_mode), "GPonProfileOntVoiceDtmfMode_enum", "voice dtmf mode \"%s\""),
        on_off(FIELD(Voip, cas_events), "voice rtp cas enable", "no voice rtp cas"),
        on_off(FIELD(Voip, piggyback_events), "voice rtp piggyback enable", "no voice rtp piggyback"),
        on_off(FIELD(Voip, tone_events), "voice rtp tone enable", "no voice rtp tone"),
        on_off(FIELD(Voip, dtmf_events), "voice rtp dtmf enable", "no voice rtp dtmf"),
    };
    if (nothing_to_emit(lhs, rhs)) {
        return false;
    }
    const Where where{View::ont, key, out};
    emit_changed(host, changed_or_all, &lhs->voice_iphost, &rhs->voice_iphost, where);
    for (int port = 0; port < GCFG_VOICE_PORTS; ++port) {
        diff_port(lhs->voice_port[port], rhs->voice_port[port], port, where);
    }
    emit_changed(voip, changed_or_all, &lhs->voip, &rhs->voip, where);
    return false;
}
