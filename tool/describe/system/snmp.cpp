#include "tool/describe/table.h"

namespace pondiff::tool {

static constexpr Field trap_fields[] = {
    enumeration(FIELD(GSystemSnmpTrap, type), "GSnmpTrapType_enum"),
    ipv4(FIELD(GSystemSnmpTrap, ipaddr)),
};
DESCRIBE(GSystemSnmpTrap, trap_record, trap_fields);

static constexpr Field alias_fields[] = {
    text(FIELD(GSystemSnmpAlias, name)),
    boolean(FIELD(GSystemSnmpAlias, upDownTrapEnable)),
};
DESCRIBE(GSystemSnmpAlias, alias_record, alias_fields);

static constexpr Field snmp_fields[] = {
    number(FIELD(GSystemSnmpCfg, revision)),
    boolean(FIELD(GSystemSnmpCfg, enabled)),
    boolean(FIELD(GSystemSnmpCfg, access_control)),
    record(FIELD(GSystemSnmpCfg, allow), allow_record, "allow-list entries"),
    record(FIELD(GSystemSnmpCfg, traps), trap_record, "traps"),
    enumeration(FIELD(GSystemSnmpCfg, version), "GSystemSNMPversion_enum"),
    secret(FIELD(GSystemSnmpCfg, communityro)),
    secret(FIELD(GSystemSnmpCfg, communityrw)),
    secret(FIELD(GSystemSnmpCfg, trap)),
    text(FIELD(GSystemSnmpCfg, location)),
    text(FIELD(GSystemSnmpCfg, contact)),
    record(FIELD(GSystemSnmpCfg, alias), alias_record, "aliases"),
    enumeration(FIELD(GSystemSnmpCfg, serialNum), "GOntSnDisplayFormatType_enum"),
    engine_id(FIELD(GSystemSnmpCfg, engineID)),
    silent(text(FIELD(GSystemSnmpCfg, pattern_cfg))),
    silent(secret(FIELD(GSystemSnmpCfg, private_cfg))),
    silent(text(FIELD(GSystemSnmpCfg, binary_cfg))),
};
DESCRIBE(GSystemSnmpCfg, snmp_record, snmp_fields);

} // namespace pondiff::tool
