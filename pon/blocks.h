#ifndef PON_BLOCKS_H
#define PON_BLOCKS_H

/// The blocks of settings that can be compared by themselves, in the order in which they are listed.
///
/// RECORD(block, path, diff): the block shows the record, or the array of records, `GCfg::path`, by the record diff
/// `diff`. A block of several records has a line for each, in the order of their commands.
#define PON_BLOCKS(RECORD)                                                                                             \
    RECORD("olt", pon.olt.general, getdiff_GPonOltGeneralCfg)                                                          \
    RECORD("network", pon.network, getdiff_GPonNetworkCfg)                                                             \
    RECORD("backup", system.services.tftp, getdiff_GSystemTftpCfg)                                                     \
    RECORD("cli", system.services.cli, getdiff_GSystemCliCfg)                                                          \
    RECORD("config", system.services.config, getdiff_GSystemConfigCfg)                                                 \
    RECORD("management", system.network, getdiff_GSystemMgmtCfg)                                                       \
    RECORD("ntp", system.services.ntp, getdiff_GSystemNtpCfg)                                                          \
    RECORD("snmp", system.services.snmp, getdiff_GSystemSnmpCfg)                                                       \
    RECORD("ssh", system.services.ssh, getdiff_GSystemSshCfg)                                                          \
    RECORD("source_guard", system.services.source_guard, getdiff_GSystemSourceGuardCfg)                                \
    RECORD("telnet", system.services.telnet, getdiff_GSystemTelnetCfg)                                                 \
    RECORD("logging", system.services.syslog, getdiff_GSystemSyslogCfg)                                                \
    RECORD("logging", system.services.log, getdiff_GSystemLogCfg)                                                      \
    RECORD("user", system.user, getdiff_GSystemUser)                                                                   \
    RECORD("route", system.services.routing, getdiff_GSystemRoutingCfg)

#endif
