#include "pon/DataToCommandsConvertor.h"
#include "tool/describe/table.h"

namespace pondiff::tool {

static constexpr Syntax own_text = no_command("the agent's own text has no command");

static constexpr Field trap_fields[] = {
    enumeration(FIELD(GSystemSnmpTrap, type), "GSnmpTrapType_enum", with("ipaddr")),
    ipv4(FIELD(GSystemSnmpTrap, ipaddr), key("ip snmp traps <#> type <type>")),
};
DESCRIBE(GSystemSnmpTrap, trap_record, trap_fields);

static constexpr Field alias_fields[] = {
    text(FIELD(GSystemSnmpAlias, name), key("ip snmp alias name <#>")),
    boolean(FIELD(GSystemSnmpAlias, upDownTrapEnable),
            on_off("ip snmp alias name <##> up-down-trap", "no ip snmp alias name <##> up-down-trap")),
};
DESCRIBE(GSystemSnmpAlias, alias_record, alias_fields);

static constexpr Field snmp_fields[] = {
    number(FIELD(GSystemSnmpCfg, revision), counter),
    boolean(FIELD(GSystemSnmpCfg, enabled),
            on_off("ip snmp enable", "no ip snmp enable").risky_when_off(RiskKind::access)),
    boolean(FIELD(GSystemSnmpCfg, access_control),
            on_off("ip snmp access-control", "no ip snmp access-control").risky_when_off(RiskKind::access)),
    record(FIELD(GSystemSnmpCfg, allow), allow_record, by_key.led_by("ip snmp").risky(RiskKind::access),
           "allow-list entries"),
    record(FIELD(GSystemSnmpCfg, traps), trap_record, by_key, "traps"),
    enumeration(FIELD(GSystemSnmpCfg, version), "GSystemSNMPversion_enum",
                says("ip snmp version <version>").words(getGSystemSNMPversion)),
    secret(FIELD(GSystemSnmpCfg, communityro), says("ip snmp community read <communityro>")),
    secret(FIELD(GSystemSnmpCfg, communityrw), says("ip snmp community write <communityrw>")),
    secret(FIELD(GSystemSnmpCfg, trap), says("ip snmp trap-community <trap>")),
    text(FIELD(GSystemSnmpCfg, location), says("ip snmp location <location>")),
    text(FIELD(GSystemSnmpCfg, contact), says("ip snmp contact <contact>")),
    record(FIELD(GSystemSnmpCfg, alias), alias_record, by_key, "aliases"),
    enumeration(FIELD(GSystemSnmpCfg, serialNum), "GOntSnDisplayFormatType_enum",
                says("ip snmp ont-sn-format <serialNum>")),
    engine_id(FIELD(GSystemSnmpCfg, engineID), says("ip snmp engineID <engineID>")),
    silent(text(FIELD(GSystemSnmpCfg, pattern_cfg), own_text)),
    silent(secret(FIELD(GSystemSnmpCfg, private_cfg), own_text)),
    silent(text(FIELD(GSystemSnmpCfg, binary_cfg), own_text)),
};
DESCRIBE(GSystemSnmpCfg, snmp_record, snmp_fields);

} // namespace pondiff::tool
