#include "pon/diff_builder/system/access.h"

#include "pon/diff_builder/rows.h"

using namespace pondiff;

namespace {

/// No command removes an entry: a cleared one is emitted like any other. The placeholder becomes the address for
/// services with a table of addresses, and the entry's index for the others.
void diff_allow_entry(const char* service, const GSystemServiceAllow* lhs, const GSystemServiceAllow* rhs, int* key,
                      List<char>& out)
{
    if (nothing_to_emit(lhs, rhs)) {
        return;
    }
    emit({View::configure, key, out}, "%s allow ip $ID0 mask \"%s\"", service, rhs->mask);
}

} // namespace

void pondiff::diff_allow_list(const char* service, AllowList& lhs, AllowList& rhs, int* key, List<char>& out)
{
    for (int i = 0; i < GCFG_ALLOW_ENTRIES; ++i) {
        key[of_object] = i;
        diff_allow_entry(service, &lhs[i], &rhs[i], key, out);
    }
}

bool getdiff_GSystemServiceAllow(char* prefix, GSystemServiceAllow* lhs, GSystemServiceAllow* rhs, int* key,
                                 List<char>& out)
{
    diff_allow_entry(prefix, lhs, rhs, key, out);
    return false;
}

/// The switches of HTTP and HTTPS have no commands.
bool getdiff_GSystemHttpCfg(GSystemHttpCfg* lhs, GSystemHttpCfg* rhs, int* key, List<char>& out)
{
    if (nothing_to_emit(lhs, rhs)) {
        return false;
    }
    diff_allow_list("http", lhs->allow, rhs->allow, key, out);
    return false;
}

bool getdiff_GSystemHttpsCfg(GSystemHttpsCfg* lhs, GSystemHttpsCfg* rhs, int* key, List<char>& out)
{
    if (nothing_to_emit(lhs, rhs)) {
        return false;
    }
    diff_allow_list("https", lhs->allow, rhs->allow, key, out);
    return false;
}

bool getdiff_GSystemTelnetCfg(GSystemTelnetCfg* lhs, GSystemTelnetCfg* rhs, int* key, List<char>& out)
{
    static constexpr Row<GSystemTelnetCfg> switches[] = {
        on_off(FIELD(GSystemTelnetCfg, enabled), "ip telnet enable", "no ip telnet enable"),
        on_off(FIELD(GSystemTelnetCfg, access_control), "ip telnet access-control", "no ip telnet access-control"),
    };
    if (nothing_to_emit(lhs, rhs)) {
        return false;
    }
    emit_changed(switches, changed_or_all, lhs, rhs, {View::configure, key, out});
    diff_allow_list("ip telnet", lhs->allow, rhs->allow, key, out);
    return false;
}

bool getdiff_GSystemSshCfg(GSystemSshCfg* lhs, GSystemSshCfg* rhs, int* key, List<char>& out)
{
    static constexpr Row<GSystemSshCfg> switches[] = {
        on_off(FIELD(GSystemSshCfg, enabled), "ip ssh enable", "no ip ssh enable"),
        on_off(FIELD(GSystemSshCfg, access_control), "ip ssh access-control", "no ip ssh access-control"),
    };
    if (nothing_to_emit(lhs, rhs)) {
        return false;
    }
    emit_changed(switches, changed_or_all, lhs, rhs, {View::configure, key, out});
    diff_allow_list("ip ssh", lhs->allow, rhs->allow, key, out);
    return false;
}
