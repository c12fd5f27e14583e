#include "pon/diff_builder/profile.h"

using namespace pondiff;

bool getdiff_GPonProfileOntVoice(GPonProfileOntVoice* lhs, GPonProfileOntVoice* rhs, int* key, List<char>& out)
{
    if (no_profile(lhs, rhs)) {
        return false;
    }
    const Where where{View::voice, key, out};
    emit_profile_head(lhs, rhs, where);
    descend(changed_or_all, getdiff_GPonProfileOntVoiceSip, lhs->sip, rhs->sip, key, out);
    emit_ont_config(lhs, rhs, where);
    return false;
}

bool getdiff_GPonProfileOntVoiceSip(GPonProfileOntVoiceSip* lhs, GPonProfileOntVoiceSip* rhs, int* key, List<char>& out)
{
    static constexpr Row<GPonProfileOntVoiceSip> commands[] = {
        text(FIELD(GPonProfileOntVoiceSip, proxy), "sip proxy \"%s\""),
        text(FIELD(GPonProfileOntVoiceSip, domain), "sip domain \"%s\""),
        text(FIELD(GPonProfileOntVoiceSip, outband_proxy), "sip outbound-proxy \"%s\""),
        number_as_signed(FIELD(GPonProfileOntVoiceSip, port), "sip port %d"),
        enumeration(FIELD(GPonProfileOntVoiceSip, proto), "GPonProfileOntVoiceSipProtocol_enum", "sip proto \"%s\""),
        number(FIELD(GPonProfileOntVoiceSip, expire_time), "sip register expire %d"),
    };
    if (nothing_to_emit(lhs, rhs)) {
        return false;
    }
    emit_changed(commands, changed_or_all, lhs, rhs, {View::voice, key, out});
    return false;
}
