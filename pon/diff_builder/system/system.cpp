#include "pon/diff_builder/rows.h"

using namespace pondiff;

/// `print_all` forces nothing at this level: a full dump of two equal system parts has no system commands.
bool getdiff_GSystemCfg(GSystemCfg* lhs, GSystemCfg* rhs, int* key, List<char>& out)
{
    if (nothing_to_emit(lhs, rhs)) {
        return false;
    }
    descend(changed_only, getdiff_GSystemNetworkCfg, lhs->network, rhs->network, key, out);
    descend_each(changed_only, getdiff_GSystemUser, lhs->user, rhs->user, of_object, key, out);
    descend(changed_only, getdiff_GSystemServices, lhs->services, rhs->services, key, out);
    descend(changed_only, getdiff_GSystemCommonSettings, lhs->settings, rhs->settings, key, out);
    return false;
}

/// Routes are not shown here; the auto-configuration server, the authentication and the fan have no commands.
bool getdiff_GSystemServices(GSystemServices* lhs, GSystemServices* rhs, int* key, List<char>& out)
{
    if (nothing_to_emit(lhs, rhs)) {
        return false;
    }
    descend(changed_or_all, getdiff_GSystemHttpCfg, lhs->http, rhs->http, key, out);
    descend(changed_or_all, getdiff_GSystemHttpsCfg, lhs->https, rhs->https, key, out);
    descend(changed_or_all, getdiff_GSystemTelnetCfg, lhs->telnet, rhs->telnet, key, out);
    descend(changed_or_all, getdiff_GSystemSshCfg, lhs->ssh, rhs->ssh, key, out);
    descend(changed_or_all, getdiff_GSystemSnmpCfg, lhs->snmp, rhs->snmp, key, out);
    descend(changed_or_all, getdiff_GSystemSyslogCfg, lhs->syslog, rhs->syslog, key, out);
    descend(changed_or_all, getdiff_GSystemNtpCfg, lhs->ntp, rhs->ntp, key, out);
    descend(changed_or_all, getdiff_GSystemAlarmCfg, lhs->alarm, rhs->alarm, key, out);
    descend(changed_or_all, getdiff_GSystemWebCfg, lhs->web, rhs->web, key, out);
    descend(changed_or_all, getdiff_GSystemCliCfg, lhs->cli, rhs->cli, key, out);
    descend(changed_or_all, getdiff_GSystemLogCfg, lhs->log, rhs->log, key, out);
    descend(changed_or_all, getdiff_GSystemTftpCfg, lhs->tftp, rhs->tftp, key, out);
    descend(changed_or_all, getdiff_GSystemConfigCfg, lhs->config, rhs->config, key, out);
    descend(changed_only, getdiff_GSystemSourceGuardCfg, lhs->source_guard, rhs->source_guard, key, out);
    return false;
}

/// The timeout of web sessions has no command.
bool getdiff_GSystemWebCfg(GSystemWebCfg* /*lhs*/, GSystemWebCfg* /*rhs*/, int* /*key*/, List<char>& /*out*/)
{
    return false;
}
