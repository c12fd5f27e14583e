#include "pon/DataToCommandsConvertor.h"
#include "tool/describe/table.h"

namespace pondiff::tool {

static constexpr Field sla_fields[] = {
    enumeration(FIELD(GZorvanSLA, service_class), "GDBAServiceClass_enum",
                says("sla class <service_class>").words(getGDBAServiceClass)),
    enumeration(FIELD(GZorvanSLA, status_reporting), "GDBAStatusReport_enum",
                says("sla status-reporting <status_reporting>")),
    number(FIELD(GZorvanSLA, alloc_size), says("alloc size <alloc_size>")),
    number(FIELD(GZorvanSLA, alloc_period), says("alloc period <alloc_period>")),
    number(FIELD(GZorvanSLA, fixed_bandwidth), says("bandwidth fixed <fixed_bandwidth>")),
    number(FIELD(GZorvanSLA, guaranteed_bandwidth), says("bandwidth guaranteed <guaranteed_bandwidth>")),
    number(FIELD(GZorvanSLA, besteffort_bandwidth), says("bandwidth besteffort <besteffort_bandwidth>")),
};
DESCRIBE(GZorvanSLA, sla_record, sla_fields);

static constexpr Field dba_fields[] = {
    record(FIELD(GPonOntDba, sla_data), sla_record),
};
DESCRIBE(GPonOntDba, dba_record, dba_fields);

static constexpr Field alloc_profile_fields[] = {
    number(FIELD(GPonProfileOntAlloc, revision), counter),
    boolean(FIELD(GPonProfileOntAlloc, exist), existence),
    text(FIELD(GPonProfileOntAlloc, name), says("name <name>")),
    text(FIELD(GPonProfileOntAlloc, description), says("description <description>")),
    record(FIELD(GPonProfileOntAlloc, dba), dba_record),
    boolean(FIELD(GPonProfileOntAlloc, allocate_new_alloc),
            on_off("allocation-scheme allocate-new-t-cont", "no allocation-scheme")),
};
DESCRIBE(GPonProfileOntAlloc, alloc_profile_record, alloc_profile_fields);

} // namespace pondiff::tool
