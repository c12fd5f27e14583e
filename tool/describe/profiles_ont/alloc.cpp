#include "tool/describe/table.h"

namespace pondiff::tool {

static constexpr Field sla_fields[] = {
    enumeration(FIELD(GZorvanSLA, service_class), "GDBAServiceClass_enum"),
    enumeration(FIELD(GZorvanSLA, status_reporting), "GDBAStatusReport_enum"),
    number(FIELD(GZorvanSLA, alloc_size)),
    number(FIELD(GZorvanSLA, alloc_period)),
    number(FIELD(GZorvanSLA, fixed_bandwidth)),
    number(FIELD(GZorvanSLA, guaranteed_bandwidth)),
    number(FIELD(GZorvanSLA, besteffort_bandwidth)),
};
DESCRIBE(GZorvanSLA, sla_record, sla_fields);

static constexpr Field dba_fields[] = {
    record(FIELD(GPonOntDba, sla_data), sla_record),
};
DESCRIBE(GPonOntDba, dba_record, dba_fields);

static constexpr Field alloc_profile_fields[] = {
    number(FIELD(GPonProfileOntAlloc, revision)),
    boolean(FIELD(GPonProfileOntAlloc, exist)),
    text(FIELD(GPonProfileOntAlloc, name)),
    text(FIELD(GPonProfileOntAlloc, description)),
    record(FIELD(GPonProfileOntAlloc, dba), dba_record),
    boolean(FIELD(GPonProfileOntAlloc, allocate_new_alloc)),
};
DESCRIBE(GPonProfileOntAlloc, alloc_profile_record, alloc_profile_fields);

} // namespace pondiff::tool
