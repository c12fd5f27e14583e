#include "tool/describe/table.h"

namespace pondiff::tool {

static constexpr Field profiles_ont_fields[] = {
    record(FIELD(GPonProfilesOnt, shaping), shaping_profile_record, by_name.entered_by("profile shaping <#>"),
           "shaping profiles"),
    record(FIELD(GPonProfilesOnt, cross_connect), cross_connect_profile_record,
           by_name.entered_by("profile cross-connect <#>"), "cross-connect profiles"),
    record(FIELD(GPonProfilesOnt, alloc), alloc_profile_record, by_name.entered_by("profile dba <#>"),
           "allocation profiles"),
    record(FIELD(GPonProfilesOnt, ports), ports_profile_record, by_name.entered_by("profile ports <#>"),
           "ports profiles"),
    record(FIELD(GPonProfilesOnt, management), management_profile_record, by_name.entered_by("profile management <#>"),
           "management profiles"),
    record(FIELD(GPonProfilesOnt, template_ont), template_record, by_name.entered_by("template <#>"), "templates"),
    record(FIELD(GPonProfilesOnt, voice), voice_profile_record, by_name.entered_by("profile voice <#>"),
           "voice profiles"),
};
DESCRIBE(GPonProfilesOnt, profiles_ont_record, profiles_ont_fields);

} // namespace pondiff::tool
