#include "tool/describe/table.h"

namespace pondiff::tool {

static constexpr Field trap_fields[] = {
    enumeration(AT(GSystemSnmpTrap, type), "GSnmpTrapType_enum"),
    ipv4(AT(GSystemSnmpTrap, ipaddr)),
};
DESCRIBE(GSystemSnmpTrap, trap_record, trap_fields);

static constexpr Field alias_fields[] = {
    text(AT(GSystemSnmpAlias, name)),
    boolean(AT(GSystemSnmpAlias, upDownTrapEnable)),
};
DESCRIBE(GSystemSnmpAlias, alias_record, alias_fields);

static constexpr Field snmp_fields[] = {
    number(AT(GSystemSnmpCfg, revision)),
    boolean(AT(GSystemSnmpCfg, enabled)),
    boolean(AT(GSystemSnmpCfg, access_control)),
    record(AT(GSystemSnmpCfg, allow), allow_record, "allow-list entries"),
    record(AT(GSystemSnmpCfg, traps), trap_record, "traps"),
    enumeration(AT(GSystemSnmpCfg, version), "GSystemSNMPversion_enum"),
    secret(AT(GSystemSnmpCfg, communityro)),
    secret(AT(GSystemSnmpCfg, communityrw)),
    secret(AT(GSystemSnmpCfg, trap)),
    text(AT(GSystemSnmpCfg, location)),
    text(AT(GSystemSnmpCfg, contact)),
    record(AT(GSystemSnmpCfg, alias), alias_record, "aliases"),
    enumeration(AT(GSystemSnmpCfg, serialNum), "GOntSnDisplayFormatType_enum"),
    engine_id(AT(GSystemSnmpCfg, engineID)),
    silent(text(AT(GSystemSnmpCfg, pattern_cfg))),
    silent(secret(AT(GSystemSnmpCfg, private_cfg))),
    silent(text(AT(GSystemSnmpCfg, binary_cfg))),
};
DESCRIBE(GSystemSnmpCfg, snmp_record, snmp_fields);

} // namespace pondiff::tool
