#include "tool/describe/table.h"

namespace pondiff::tool {

static constexpr Field sla_fields[] = {
    enumeration(AT(GZorvanSLA, service_class), "GDBAServiceClass_enum"),
    enumeration(AT(GZorvanSLA, status_reporting), "GDBAStatusReport_enum"),
    number(AT(GZorvanSLA, alloc_size)),
    number(AT(GZorvanSLA, alloc_period)),
    number(AT(GZorvanSLA, fixed_bandwidth)),
    number(AT(GZorvanSLA, guaranteed_bandwidth)),
    number(AT(GZorvanSLA, besteffort_bandwidth)),
};
DESCRIBE(GZorvanSLA, sla_record, sla_fields);

static constexpr Field dba_fields[] = {
    record(AT(GPonOntDba, sla_data), sla_record),
};
DESCRIBE(GPonOntDba, dba_record, dba_fields);

static constexpr Field alloc_profile_fields[] = {
    number(AT(GPonProfileOntAlloc, revision)),
    boolean(AT(GPonProfileOntAlloc, exist)),
    text(AT(GPonProfileOntAlloc, name)),
    text(AT(GPonProfileOntAlloc, description)),
    record(AT(GPonProfileOntAlloc, dba), dba_record),
    boolean(AT(GPonProfileOntAlloc, allocate_new_alloc)),
};
DESCRIBE(GPonProfileOntAlloc, alloc_profile_record, alloc_profile_fields);

} // namespace pondiff::tool
