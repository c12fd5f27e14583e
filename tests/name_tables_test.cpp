#include "tests/support/diff.h"

#include <algorithm>
#include <climits>
#include <string>

namespace {

template <class Profile>
void fill(Profile& profile, unsigned short exist, const std::string& name)
{
    profile.exist = exist;
    put(profile.name, name);
    put(profile.description, "the field behind the name");
}

struct Kind {
    const char* name;
    int slots;
    char** plain;
    char** old;
    const char* (*get)(int);
    const char* (*get_old)(int);
    void (*set)(GCfg& cfg, int slot, unsigned short exist, const std::string& name);
};

#define KIND(label, slots, table, lookup, profiles)                                                                    \
    {                                                                                                                  \
        label, slots, table##2id_connection, def_##table##2id_connection, get##lookup, def_get##lookup,                \
            [](GCfg& cfg, int slot, unsigned short exist, const std::string& name) {                                   \
                fill(cfg.pon.profiles[slot], exist, name);                                                             \
            }                                                                                                          \
    }

const Kind kinds[] = {
    KIND("management", 32, management, ManagementName, profiles_ont.management),
    KIND("shaping", 128, shaping, ShapingName, profiles_ont.shaping),
    KIND("ports", 32, ports, PortsName, profiles_ont.ports),
    KIND("voice", 32, voice, VoiceName, profiles_ont.voice),
    KIND("cross-connect", 128, cross_connect, CrossConnectName, profiles_ont.cross_connect),
    KIND("alloc", 128, alloc, AllocName, profiles_ont.alloc),
    KIND("template", 32, onttemplate, TemplateName, profiles_ont.template_ont),
    KIND("address-table", 32, address_table, AddressTableName, profiles_olt.address_table),
    KIND("dhcp-ra", 32, dhcpra, DhcpRaName, profiles_olt.dhcp_ra),
    KIND("dhcpv6-ra", 32, dhcpv6ra, Dhcpv6RaName, profiles_olt.dhcpv6_ra),
    KIND("pppoe-ia", 32, pppoeia, PppoeName, profiles_olt.pppoe_ia),
    KIND("vlan", 32, vlan, VlanName, profiles_olt.vlan),
};

std::string word(const char* kind, int slot)
{
    return std::string(kind).substr(0, 8) + " " + std::to_string(slot);
}

void fill_all(GCfg& cfg)
{
    for (const Kind& kind : kinds) {
        for (int slot = 0; slot < kind.slots; ++slot) {
            kind.set(cfg, slot, 1, word(kind.name, slot));
        }
    }
    for (int slot = 0; slot < 32; ++slot) {
        cfg.pon.network.terminal_vlan[slot].exists = 1;
        put(cfg.pon.network.terminal_vlan[slot].name, word("terminal", slot));
    }
    for (int slot = 0; slot < 16; ++slot) {
        cfg.system.user[slot].exist = 1;
        put(cfg.system.user[slot].name, word("user", slot));
    }
}

void expect_every_slot_null()
{
    for (const Kind& kind : kinds) {
        SCOPED_TRACE(kind.name);
        for (int slot = 0; slot < kind.slots; ++slot) {
            EXPECT_EQ(kind.plain[slot], nullptr) << slot;
            EXPECT_EQ(kind.old[slot], nullptr) << slot;
        }
    }
    const auto is_null = [](const char* name) { return !name; };
    EXPECT_TRUE(std::all_of(std::begin(terminalvlan2id_connection), std::end(terminalvlan2id_connection), is_null));
    EXPECT_TRUE(std::all_of(std::begin(user2id_connection), std::end(user2id_connection), is_null));
    EXPECT_TRUE(std::all_of(std::begin(ont2id_connection), std::end(ont2id_connection), is_null));
}

class NameTables : public testing::Test {
  protected:
    NameTables() { finalize_diff(); }
    ~NameTables() override { sn_format = 0; }

    Session session;
};

} // namespace

// --------------------------------------------------------------------------------------------------------- profiles

TEST_F(NameTables, EveryKindIsFilledFromItsOwnArray)
{
    fill_all(*session.cfg);
    session.open();
    for (const Kind& kind : kinds) {
        for (int slot = 0; slot < kind.slots; ++slot) {
            SCOPED_TRACE(word(kind.name, slot));
            EXPECT_STREQ(kind.plain[slot], word(kind.name, slot).c_str());
            EXPECT_STREQ(kind.get(slot), word(kind.name, slot).c_str());
            EXPECT_EQ(kind.old[slot], nullptr) << "there was none before";
            EXPECT_STREQ(kind.get_old(slot), "unassigned");
        }
    }
}

TEST_F(NameTables, EveryTwinIsFilledFromTheOldConfiguration)
{
    fill_all(*session.orig);
    session.open();
    for (const Kind& kind : kinds) {
        for (int slot = 0; slot < kind.slots; ++slot) {
            SCOPED_TRACE(word(kind.name, slot));
            EXPECT_STREQ(kind.old[slot], word(kind.name, slot).c_str());
            EXPECT_STREQ(kind.get_old(slot), word(kind.name, slot).c_str());
            EXPECT_EQ(kind.plain[slot], nullptr);
            EXPECT_EQ(kind.get(slot), nullptr);
        }
    }
    EXPECT_EQ(terminalvlan2id_connection[0], nullptr) << "terminal VLANs and users have no twin";
    EXPECT_EQ(user2id_connection[0], nullptr);
}

TEST_F(NameTables, BothSidesKeepTheirOwnNames)
{
    for (const Kind& kind : kinds) {
        kind.set(*session.orig, 5, 1, "before");
        kind.set(*session.cfg, 5, 1, "after");
    }
    session.open();
    for (const Kind& kind : kinds) {
        SCOPED_TRACE(kind.name);
        EXPECT_STREQ(kind.get(5), "after");
        EXPECT_STREQ(kind.get_old(5), "before");
    }
}

TEST_F(NameTables, AnyExistFlagButZeroCounts)
{
    for (const Kind& kind : kinds) {
        kind.set(*session.cfg, 0, 0, "absent");
        kind.set(*session.cfg, 1, 2, "two");
        kind.set(*session.cfg, 2, 0x100, "high byte");
        kind.set(*session.cfg, kind.slots - 1, 0xFFFF, "all bits");
    }
    session.open();
    for (const Kind& kind : kinds) {
        SCOPED_TRACE(kind.name);
        EXPECT_EQ(kind.get(0), nullptr);
        EXPECT_STREQ(kind.get(1), "two");
        EXPECT_STREQ(kind.get(2), "high byte");
        EXPECT_STREQ(kind.get(kind.slots - 1), "all bits");
        EXPECT_EQ(kind.get(3), nullptr);
    }
}

TEST_F(NameTables, OutsideATableEveryLookupSaysUnassigned)
{
    fill_all(*session.orig);
    fill_all(*session.cfg);
    session.open();
    for (const Kind& kind : kinds) {
        for (const int slot : {-1, -2, kind.slots, kind.slots + 1, 100000, INT_MAX, INT_MIN}) {
            SCOPED_TRACE(std::string(kind.name) + " " + std::to_string(slot));
            EXPECT_STREQ(kind.get(slot), "unassigned");
            EXPECT_STREQ(kind.get_old(slot), "unassigned");
        }
    }
    for (const int slot : {-1, -2, 32, 33, 100000, INT_MAX, INT_MIN}) {
        EXPECT_STREQ(getTerminalVlanName(slot), "unassigned");
    }
}

TEST_F(NameTables, AnEmptyNameIsAName)
{
    for (const Kind& kind : kinds) {
        kind.set(*session.cfg, 4, 1, "");
        kind.set(*session.orig, 4, 1, "");
    }
    session.open();
    for (const Kind& kind : kinds) {
        SCOPED_TRACE(kind.name);
        EXPECT_STREQ(kind.get(4), "");
        EXPECT_STREQ(kind.get_old(4), "");
    }
}

TEST_F(NameTables, ANameThatFillsItsFieldEndsThere)
{
    for (const Kind& kind : kinds) {
        kind.set(*session.cfg, 4, 1, "sixteen letters!");
        kind.set(*session.orig, 4, 1, "letters, sixteen");
    }
    GVlanTagEx& vlan = session.cfg->pon.network.terminal_vlan[4];
    vlan.exists = 1;
    put(vlan.name, "sixteen letters!");
    vlan.tag.ethertype = 0x4141;
    GSystemUser& user = session.cfg->system.user[4];
    user.exist = 1;
    put(user.name, "thirty-two letters in one name!!");
    put(user.password, "secret");
    session.open();
    for (const Kind& kind : kinds) {
        SCOPED_TRACE(kind.name);
        EXPECT_STREQ(kind.get(4), "sixteen letters!");
        EXPECT_STREQ(kind.get_old(4), "letters, sixteen");
    }
    EXPECT_STREQ(getTerminalVlanName(4), "sixteen letters!");
    EXPECT_STREQ(user2id_connection[4], "thirty-two letters in one name!!");
}

TEST_F(NameTables, BytesBehindATerminatorAreNotOfTheName)
{
    GPonProfileOntShaping& profile = session.cfg->pon.profiles_ont.shaping[9];
    fill(profile, 1, std::string("ab\0cd", 5));
    session.open();
    EXPECT_STREQ(getShapingName(9), "ab");
}

// ------------------------------------------------------------------------------------------ terminal VLANs and users

TEST_F(NameTables, TerminalVlansAndUsers)
{
    fill_all(*session.cfg);
    session.cfg->pon.network.terminal_vlan[1].exists = 0;
    session.cfg->pon.network.terminal_vlan[2].exists = 0x80;
    session.cfg->system.user[1].exist = 0;
    session.cfg->system.user[2].exist = 0x8000;
    session.open();
    for (int slot = 0; slot < 32; ++slot) {
        SCOPED_TRACE(slot);
        const std::string name = word("terminal", slot);
        EXPECT_STREQ(terminalvlan2id_connection[slot], slot == 1 ? nullptr : name.c_str());
        EXPECT_STREQ(getTerminalVlanName(slot), slot == 1 ? nullptr : name.c_str());
    }
    for (int slot = 0; slot < 16; ++slot) {
        EXPECT_STREQ(user2id_connection[slot], slot == 1 ? nullptr : word("user", slot).c_str());
    }
}

// ------------------------------------------------------------------------------------------------------------- ONTs

TEST_F(NameTables, OntsAreNamedByTheirSerialNumbers)
{
    session.cfg->system.settings.ont_sn_format = 1;
    for (int slot = 0; slot < 532; ++slot) {
        put(session.cfg->pon.ont[slot].serial, {'G', 'P', 'O', 'N', 0, 0, slot / 256, slot % 256});
    }
    session.open();
    EXPECT_STREQ(ont2id_connection[0], "0000000000000000") << "whatever its serial number";
    EXPECT_STREQ(ont2id_connection[1], "47504F4E00000001");
    EXPECT_STREQ(ont2id_connection[255], "47504F4E000000FF");
    EXPECT_STREQ(ont2id_connection[531], "47504F4E00000213");
}

TEST_F(NameTables, OntsThatDoNotExistAreNamedToo)
{
    session.open();
    EXPECT_STREQ(ont2id_connection[1], "0000000000000000");
    EXPECT_STREQ(ont2id_connection[531], "0000000000000000");
}

TEST_F(NameTables, AnOntsBlockIsTwentyFourBytesOfTextAndZeros)
{
    put(session.cfg->pon.ont[531].serial, {'A', 'B', 'C', 'D', 1, 2, 3, 4});
    session.open();
    const std::string text("ABCD01020304");
    EXPECT_EQ(std::string(ont2id_connection[531], 24), text + std::string(24 - text.size(), '\0'));
    EXPECT_EQ(std::string(ont2id_connection[0], 24), std::string(16, '0') + std::string(8, '\0'));
}

// ------------------------------------------------------------------------------------------------- the other tables

TEST_F(NameTables, AlarmSlotsHoldTheWordOfTheirType)
{
    GSystemAlarmCfg& alarm = session.cfg->system.services.alarm;
    alarm.type[0].type = 230;
    alarm.type[1].type = 7;
    alarm.type[2].type = 0;
    alarm.type[3].type = 0xFFFFFFFF;
    alarm.type[45].type = 100;
    session.orig->system.services.alarm.type[0].type = 1;
    session.open();
    EXPECT_STREQ(alarm2id_connection[0], "ont-storm-detected");
    EXPECT_STREQ(alarm2id_connection[1], "");
    EXPECT_STREQ(alarm2id_connection[2], "dummy");
    EXPECT_STREQ(alarm2id_connection[3], "");
    EXPECT_STREQ(alarm2id_connection[44], "dummy");
    EXPECT_STREQ(alarm2id_connection[45], "link");
}

TEST_F(NameTables, RedefinitionsKeepTheirVlanIds)
{
    for (int slot = 0; slot < 16; ++slot) {
        session.cfg->pon.olt.general.profile_olt_dhcpra_redefinition[slot].vid =
            static_cast<unsigned short>(65535 - slot);
        session.cfg->pon.olt.general.profile_olt_dhcpv6ra_redefinition[slot].vid = 6;
        session.orig->pon.olt.general.profile_olt_dhcpra_redefinition[slot].vid = 4;
    }
    session.open();
    for (int slot = 0; slot < 16; ++slot) {
        EXPECT_EQ(profile_dhcpra_redefinition2id_connection[slot], 65535 - slot);
    }
}

TEST_F(NameTables, AddressTablesHoldEveryAddressAsDottedText)
{
    GSystemServices& services = session.cfg->system.services;
    put(services.telnet.allow[0].ip, {10, 0, 0, 1});
    put(services.telnet.allow[15].ip, {10, 0, 0, 15});
    put(services.ssh.allow[0].ip, {10, 1, 0, 1});
    put(services.ssh.allow[15].ip, {255, 255, 255, 255});
    put(services.snmp.allow[0].ip, {10, 2, 0, 1});
    put(services.snmp.allow[15].ip, {100, 20, 3, 0});
    put(services.routing.route[0].prefix, {10, 3, 0, 0});
    put(services.routing.route[0].gateway, {9, 9, 9, 9});
    put(services.routing.route[511].prefix, {10, 3, 1, 255});
    put(services.source_guard.bind[0].ip, {10, 4, 0, 1});
    put(services.source_guard.bind[1023].ip, {10, 4, 3, 255});
    put(services.http.allow[0].ip, {8, 8, 8, 8});
    put(session.orig->system.services.ssh.allow[0].ip, {7, 7, 7, 7});
    session.open();
    EXPECT_STREQ(telnetip[0], "10.0.0.1");
    EXPECT_STREQ(telnetip[1], "0.0.0.0");
    EXPECT_STREQ(telnetip[15], "10.0.0.15");
    EXPECT_STREQ(sship[0], "10.1.0.1");
    EXPECT_STREQ(sship[15], "255.255.255.255");
    EXPECT_STREQ(snmpip[0], "10.2.0.1");
    EXPECT_STREQ(snmpip[15], "100.20.3.0");
    EXPECT_STREQ(routeip[0], "10.3.0.0");
    EXPECT_STREQ(routeip[1], "0.0.0.0");
    EXPECT_STREQ(routeip[511], "10.3.1.255");
    EXPECT_STREQ(sourceguardip[0], "10.4.0.1");
    EXPECT_STREQ(sourceguardip[1022], "0.0.0.0");
    EXPECT_STREQ(sourceguardip[1023], "10.4.3.255");
}

TEST_F(NameTables, AShorterAddressReplacesALongerOneOfAnEarlierSession)
{
    put(session.cfg->system.services.ssh.allow[2].ip, {255, 255, 255, 255});
    session.open();
    put(session.cfg->system.services.ssh.allow[2].ip, {1, 2, 3, 4});
    session.open();
    EXPECT_STREQ(sship[2], "1.2.3.4");
}

TEST_F(NameTables, TheOldOntTableStaysEmpty)
{
    for (GPonOntCfg& ont : session.orig->pon.ont) {
        put(ont.serial, {'A', 'B', 'C', 'D', 1, 2, 3, 4});
    }
    session.open();
    for (const char* name : def_ont2id_connection) {
        EXPECT_EQ(name, nullptr);
    }
}

// -------------------------------------------------------------------------------------------------------- life cycle

TEST_F(NameTables, NamesAreCopies)
{
    fill_all(*session.orig);
    fill_all(*session.cfg);
    put(session.cfg->pon.ont[1].serial, {'A', 'B', 'C', 'D', 1, 2, 3, 4});
    put(session.cfg->system.services.telnet.allow[0].ip, {10, 0, 0, 1});
    session.open();
    std::memset(session.orig, 0xFF, sizeof(GCfg));
    std::memset(session.cfg, 0xFF, sizeof(GCfg));
    for (const Kind& kind : kinds) {
        EXPECT_STREQ(kind.get(3), word(kind.name, 3).c_str());
        EXPECT_STREQ(kind.get_old(3), word(kind.name, 3).c_str());
    }
    EXPECT_STREQ(getTerminalVlanName(3), "terminal 3");
    EXPECT_STREQ(user2id_connection[3], "user 3");
    EXPECT_STREQ(ont2id_connection[1], "ABCD01020304");
    EXPECT_STREQ(alarm2id_connection[3], "dummy");
    EXPECT_STREQ(telnetip[0], "10.0.0.1");
}

TEST_F(NameTables, OpeningTwiceKeepsOnlyTheSecondSession)
{
    fill_all(*session.orig);
    fill_all(*session.cfg);
    session.open();
    *session.orig = GCfg{};
    *session.cfg = GCfg{};
    for (const Kind& kind : kinds) {
        kind.set(*session.cfg, 1, 1, "second");
    }
    session.open();
    for (const Kind& kind : kinds) {
        SCOPED_TRACE(kind.name);
        EXPECT_EQ(kind.get(0), nullptr);
        EXPECT_STREQ(kind.get(1), "second");
        EXPECT_EQ(kind.old[1], nullptr);
    }
    EXPECT_EQ(terminalvlan2id_connection[0], nullptr);
    EXPECT_EQ(user2id_connection[0], nullptr);
}

TEST_F(NameTables, AfterClosingEverySlotIsNull)
{
    fill_all(*session.orig);
    fill_all(*session.cfg);
    session.open();
    EXPECT_EQ(finalize_diff(), 0);
    expect_every_slot_null();
    for (const Kind& kind : kinds) {
        EXPECT_EQ(kind.get(0), nullptr);
        EXPECT_STREQ(kind.get_old(0), "unassigned");
        EXPECT_STREQ(kind.get(-1), "unassigned");
    }
    EXPECT_EQ(getTerminalVlanName(0), nullptr);
}

TEST_F(NameTables, WhatHoldsNoNamesIsKeptAfterClosing)
{
    GSystemServices& services = session.cfg->system.services;
    put(services.telnet.allow[15].ip, {10, 0, 0, 1});
    put(services.ssh.allow[15].ip, {10, 0, 0, 2});
    put(services.snmp.allow[15].ip, {10, 0, 0, 3});
    put(services.routing.route[511].prefix, {10, 0, 0, 4});
    put(services.source_guard.bind[1023].ip, {10, 0, 0, 5});
    services.alarm.type[45].type = 6;
    session.cfg->pon.olt.general.profile_olt_dhcpra_redefinition[GCFG_RELAY_REDEFINITIONS - 1].vid = 4094;
    session.open();
    EXPECT_EQ(finalize_diff(), 0);
    EXPECT_STREQ(telnetip[15], "10.0.0.1");
    EXPECT_STREQ(sship[15], "10.0.0.2");
    EXPECT_STREQ(snmpip[15], "10.0.0.3");
    EXPECT_STREQ(routeip[511], "10.0.0.4");
    EXPECT_STREQ(sourceguardip[1023], "10.0.0.5");
    EXPECT_STREQ(alarm2id_connection[45], "duplicate-mac");
    EXPECT_EQ(profile_dhcpra_redefinition2id_connection[GCFG_RELAY_REDEFINITIONS - 1], 4094);
}

TEST_F(NameTables, ClosingTwiceOrWithoutOpeningIsHarmless)
{
    EXPECT_EQ(finalize_diff(), 0);
    fill_all(*session.cfg);
    session.open();
    EXPECT_EQ(finalize_diff(), 0);
    EXPECT_EQ(finalize_diff(), 0);
    expect_every_slot_null();
    session.open();
    EXPECT_STREQ(getPortsName(31), "ports 31");
}

TEST_F(NameTables, PreparedAndFreedDirectly)
{
    fill_all(*session.cfg);
    EXPECT_EQ(data_prepare(session.orig, session.cfg), 0);
    EXPECT_EQ(data_prepare(session.orig, session.cfg), 0);
    EXPECT_STREQ(getVlanName(0), "vlan 0");
    EXPECT_EQ(data_free(), 0);
    EXPECT_EQ(data_free(), 0);
    expect_every_slot_null();
}

TEST_F(NameTables, ANullRecordLeavesAnEmptySession)
{
    fill_all(*session.orig);
    fill_all(*session.cfg);
    GCfg* const pairs[][2] = {{nullptr, session.cfg}, {session.orig, nullptr}, {nullptr, nullptr}};
    for (GCfg* const(&pair)[2] : pairs) {
        session.open();
        EXPECT_EQ(initiate_diff(pair[0], pair[1], 0, 0), -1);
        expect_every_slot_null();
    }
}

TEST_F(NameTables, PreparingMovesToTheTopLevelAndLeavesTheKey)
{
    current_view = {"vlan-view", {9, 8, 7, 6, 5, 4, 3, 2, 1, 0}};
    session.open();
    EXPECT_STREQ(current_view.name, "root");
    for (int slot = 0; slot < 10; ++slot) {
        EXPECT_EQ(current_view.key[slot], 9 - slot);
    }
    current_view = {"root", {}};
}
