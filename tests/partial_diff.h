#ifndef TESTS_PARTIAL_DIFF_H
#define TESTS_PARTIAL_DIFF_H

/// @file
/// What the tests of the partial diffs share.

#include "tests/support/diff.h"

/// A session over two blank configurations; the operations as their callers see them.
class PartialDiff : public testing::Test {
  protected:
    std::string system() const { return taken(GetSystemDiff(&session.orig->system, &session.cfg->system)); }
    std::string pon() const { return taken(GetPonDiff(&session.orig->pon, &session.cfg->pon)); }
    std::string ont(int slot, int index) const
    {
        return taken(GetGponOntDiff(&session.orig->pon.ont[slot], &session.cfg->pon.ont[slot], index));
    }
    std::string channel(int slot, int index) const
    {
        return taken(
            GetGponChannelDiff(&session.orig->pon.olt.channel[slot], &session.cfg->pon.olt.channel[slot], index));
    }
    std::string profiles_olt() const
    {
        return taken(GetGPonProfilesOltDiff(&session.orig->pon.profiles_olt, &session.cfg->pon.profiles_olt));
    }
    std::string profiles_ont() const
    {
        return taken(GetGPonProfilesOntDiff(&session.orig->pon.profiles_ont, &session.cfg->pon.profiles_ont));
    }
    std::string profile(std::string kind, int id) const
    {
        return taken(GetProfileDiff(&session.orig->pon, &session.cfg->pon, kind.data(), id));
    }
    std::string block(std::string name) const { return taken(GetBlockDiff(session.orig, session.cfg, name.data())); }
    std::string alarm() const { return taken(GetAlarmDiff(session.orig, session.cfg)); }
    static std::string headers() { return taken(GetTerminalVlanHeaders()); }

    void change_ont(int slot) const
    {
        session.orig->pon.ont[slot].exist = session.cfg->pon.ont[slot].exist = 1;
        session.cfg->pon.ont[slot].fec_up = 1;
    }
    void add_terminal_vlan(int slot, const std::string& name) const
    {
        session.cfg->pon.network.terminal_vlan[slot].exists = 1;
        put(session.cfg->pon.network.terminal_vlan[slot].name, name);
    }

    Session session;
};

#endif
