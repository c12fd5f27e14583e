/// When two configurations mean the same.

#include "tests/language/configurations.h"
#include "tool/account/meaning.h"
#include "tool/language/objects.h"

#include <gtest/gtest.h>
#include <vector>

using namespace language_tests;

namespace {

class Meaning : public testing::Test {
  protected:
    /// The paths of the fields that differ.
    std::vector<std::string> differing() const
    {
        std::vector<std::string> paths;
        for_each_different_meaning({one.get(), other.get()},
                                   [&](const Beside<2>& beside) { paths.push_back(beside.path.text()); });
        return paths;
    }

    template <class Object>
    static void make_exist(Object& object, const char* name)
    {
        object.exist = 1;
        std::strcpy(object.name, name);
    }

    static void make_exist(GVlanTagEx& vlan, const char* name)
    {
        vlan.exists = 1;
        std::strcpy(vlan.name, name);
    }

    std::unique_ptr<GCfg> one = blank_configuration();
    std::unique_ptr<GCfg> other = blank_configuration();
};

using Paths = std::vector<std::string>;

TEST_F(Meaning, ObjectsAreMatchedByNameInAnySlot)
{
    make_exist(one->pon.profiles_ont.shaping[0], "x");
    make_exist(one->pon.profiles_ont.shaping[1], "y");
    make_exist(other->pon.profiles_ont.shaping[7], "x");
    make_exist(other->pon.profiles_ont.shaping[2], "y");
    make_exist(one->system.user[0], "eve");
    make_exist(other->system.user[15], "eve");
    make_exist(one->pon.network.terminal_vlan[0], "iptv");
    make_exist(other->pon.network.terminal_vlan[31], "iptv");
    EXPECT_EQ(differing(), Paths{});
    other->pon.profiles_ont.shaping[7].downstream.one_policer = 1;
    other->system.user[15].priority = 3;
    EXPECT_EQ(differing(), (Paths{"system.user.15.priority", "pon.profiles_ont.shaping.7.downstream.one_policer"}));
}

TEST_F(Meaning, OntsAndPortsAreMatchedByNumber)
{
    one->pon.ont[70].exist = 1;
    other->pon.ont[71].exist = 1;
    EXPECT_EQ(differing(), (Paths{"pon.ont.70.exist", "pon.ont.71.exist"}));
    other->pon.ont[71].exist = 0;
    one->pon.ont[70].exist = 0;
    one->pon.olt.channel[3].onus_range = 1;
    other->pon.olt.channel[4].onus_range = 1;
    EXPECT_EQ(differing(), (Paths{"pon.olt.channel.3.onus_range", "pon.olt.channel.4.onus_range"}));
}

TEST_F(Meaning, EntriesAreMatchedByTheirKeyInAnyOrder)
{
    auto& snmp = one->system.services.snmp;
    auto& other_snmp = other->system.services.snmp;
    snmp.traps[0] = {1, {10, 0, 0, 1}};
    snmp.traps[1] = {2, {10, 0, 0, 2}};
    other_snmp.traps[4] = {1, {10, 0, 0, 1}};
    other_snmp.traps[2] = {2, {10, 0, 0, 2}};
    one->system.services.ssh.allow[0] = {{10, 0, 0, 1}, 24};
    other->system.services.ssh.allow[9] = {{10, 0, 0, 1}, 24};
    one->system.services.routing.route[0] = {1, {10, 0, 0, 0}, 8, {10, 0, 0, 1}};
    other->system.services.routing.route[511] = {1, {10, 0, 0, 0}, 8, {10, 0, 0, 1}};
    one->system.services.alarm.type[0].type = 100;
    other->system.services.alarm.type[45].type = 100;
    EXPECT_EQ(differing(), Paths{});
    other_snmp.traps[4].type = 2;
    other->system.services.ssh.allow[9].mask = 8;
    other->system.services.routing.route[511].gateway[3] = 2;
    other->system.services.alarm.type[45].ttl = 7;
    EXPECT_EQ(differing(), (Paths{"system.services.ssh.allow.9.mask", "system.services.snmp.traps.4.type",
                                  "system.services.alarm.type.45.ttl", "system.services.routing.route.511.gateway"}));
}

/// Their commands name the entries of these two lists by number.
TEST_F(Meaning, EntriesOfNumberedListsAreMatchedByTheirNumber)
{
    one->system.services.http.allow[0].mask = 8;
    other->system.services.http.allow[1].mask = 8;
    EXPECT_EQ(differing(), (Paths{"system.services.http.allow.0.mask", "system.services.http.allow.1.mask"}));
}

TEST_F(Meaning, ReferencesAreNames)
{
    make_exist(one->pon.profiles_ont.shaping[0], "x");
    make_exist(other->pon.profiles_ont.shaping[7], "x");
    make_exist(other->pon.profiles_ont.shaping[2], "y");
    make_exist(one->pon.profiles_ont.shaping[2], "y");
    one->pon.ont[0].exist = other->pon.ont[0].exist = 1;
    one->pon.ont[0].profile_ont_shaping = 0;
    other->pon.ont[0].profile_ont_shaping = 7;
    EXPECT_EQ(differing(), Paths{});
    other->pon.ont[0].profile_ont_shaping = 2;
    EXPECT_EQ(differing(), Paths{"pon.ont.0.profile_ont_shaping"});
}

/// The same number that refers to another name means something else.
TEST_F(Meaning, EqualReferencesDifferWhereTheNamesDo)
{
    make_exist(one->pon.profiles_ont.shaping[0], "x");
    make_exist(other->pon.profiles_ont.shaping[0], "z");
    one->pon.ont[0].exist = other->pon.ont[0].exist = 1;
    one->pon.ont[0].profile_ont_shaping = other->pon.ont[0].profile_ont_shaping = 0;
    const Paths paths = differing();
    EXPECT_EQ(std::count(paths.begin(), paths.end(), "pon.ont.0.profile_ont_shaping"), 1);
}

TEST_F(Meaning, ReferencesToNothingAreNone)
{
    one->pon.ont[0].exist = other->pon.ont[0].exist = 1;
    one->pon.ont[0].profile_ont_shaping = -1;
    for (const short number :
         std::initializer_list<short>{0, 5, 127, 128, -2, 32767, -32768}) { // free slots, and none at all
        other->pon.ont[0].profile_ont_shaping = number;
        EXPECT_EQ(differing(), Paths{}) << number;
    }
    make_exist(other->pon.profiles_ont.shaping[5], "x");
    one->pon.profiles_ont.shaping[5] = other->pon.profiles_ont.shaping[5];
    other->pon.ont[0].profile_ont_shaping = 5;
    EXPECT_EQ(differing(), Paths{"pon.ont.0.profile_ont_shaping"});
}

/// A VLAN id is itself; what is neither one nor a reference to a terminal VLAN that exists is none.
TEST_F(Meaning, TerminalVlansAreNamesOrNone)
{
    make_exist(one->pon.profiles_ont.cross_connect[0], "c");
    make_exist(other->pon.profiles_ont.cross_connect[0], "c");
    auto& profile = one->pon.profiles_ont.cross_connect[0];
    auto& other_profile = other->pon.profiles_ont.cross_connect[0];
    profile.outer_vid = -1;
    profile.outer_cos = 255;
    for (const short vid : std::initializer_list<short>{-1, -2, -99, -100, -131, -132, -4095}) {
        other_profile.outer_vid = vid;
        other_profile.outer_cos = 255;
        EXPECT_EQ(differing(), Paths{}) << vid;
    }
    other_profile.outer_vid = -1;
    for (const u8 cos : std::initializer_list<u8>{100, 131, 132, 254, 255}) {
        other_profile.outer_cos = cos;
        EXPECT_EQ(differing(), Paths{}) << int{cos};
    }
    for (const short vid : std::initializer_list<short>{0, 1, 4095}) {
        other_profile.outer_vid = vid;
        EXPECT_EQ(differing(), Paths{"pon.profiles_ont.cross_connect.0.outer_vid"}) << vid;
    }
    other_profile.outer_vid = -1;
    for (const u8 cos : std::initializer_list<u8>{0, 7, 99}) {
        other_profile.outer_cos = cos;
        EXPECT_EQ(differing(), Paths{"pon.profiles_ont.cross_connect.0.outer_cos"}) << int{cos};
    }
    make_exist(one->pon.network.terminal_vlan[3], "iptv");
    make_exist(other->pon.network.terminal_vlan[8], "iptv");
    profile.outer_vid = -103;
    other_profile.outer_vid = -108;
    profile.outer_cos = 103;
    other_profile.outer_cos = 108;
    EXPECT_EQ(differing(), Paths{});
    other_profile.outer_vid = -109;
    other_profile.outer_cos = 109;
    EXPECT_EQ(differing(),
              (Paths{"pon.profiles_ont.cross_connect.0.outer_vid", "pon.profiles_ont.cross_connect.0.outer_cos"}));
}

TEST_F(Meaning, SwitchesAreOnOrOff)
{
    one->system.services.ssh.enabled = 1;
    other->system.services.ssh.enabled = 65535;
    make_exist(one->pon.profiles_olt.dhcp_ra[0], "d");
    make_exist(other->pon.profiles_olt.dhcp_ra[0], "d");
    one->pon.profiles_olt.dhcp_ra[0].remote_id_mode = 1; // a word of the registry, but a switch
    other->pon.profiles_olt.dhcp_ra[0].remote_id_mode = 2;
    EXPECT_EQ(differing(), Paths{});
    one->system.services.ssh.enabled = 0;
    one->pon.profiles_olt.dhcp_ra[0].remote_id_mode = 0;
    EXPECT_EQ(differing(), (Paths{"system.services.ssh.enabled", "pon.profiles_olt.dhcp_ra.0.remote_id_mode"}));
}

TEST_F(Meaning, TextsEndAtTheirTerminatorOrWithTheirField)
{
    std::memset(one->system.network.hostname, 'x', sizeof one->system.network.hostname);
    std::memset(other->system.network.hostname, 'x', sizeof other->system.network.hostname);
    EXPECT_EQ(differing(), Paths{});
    one->system.network.hostname[5] = '\0';
    EXPECT_EQ(differing(), Paths{"system.network.hostname"});
    other->system.network.hostname[5] = '\0';
    other->system.network.hostname[6] = 'y'; // garbage behind it
    EXPECT_EQ(differing(), Paths{});
}

TEST_F(Meaning, PasswordOfAnOntHasTenCharacters)
{
    one->pon.ont[0].exist = other->pon.ont[0].exist = 1;
    std::memcpy(one->pon.ont[0].password, "0123456789A", 11);
    std::memcpy(other->pon.ont[0].password, "0123456789B", 11);
    EXPECT_EQ(differing(), Paths{});
    other->pon.ont[0].password[9] = 'x';
    EXPECT_EQ(differing(), Paths{"pon.ont.0.password"});
}

TEST_F(Meaning, TunnelIsAListInAnyOrderUpToItsEnd)
{
    one->pon.ont[0].exist = other->pon.ont[0].exist = 1;
    const short vids[] = {7, 3, 3, -1, 99, 98};
    const short sorted[] = {3, 3, 7, -1, 5};
    std::memcpy(one->pon.ont[0].tunnel[2].uvid, vids, sizeof vids);
    std::memcpy(other->pon.ont[0].tunnel[2].uvid, sorted, sizeof sorted);
    EXPECT_EQ(differing(), Paths{});
    const short once[] = {3, 7, -1};
    std::memcpy(other->pon.ont[0].tunnel[2].uvid, once, sizeof once);
    EXPECT_EQ(differing(), Paths{"pon.ont.0.tunnel.2.uvid.0"});
}

TEST_F(Meaning, MarkerOfThePortHasTwoSpellings)
{
    make_exist(one->pon.profiles_olt.pppoe_ia[0], "p");
    make_exist(other->pon.profiles_olt.pppoe_ia[0], "p");
    std::strcpy(one->pon.profiles_olt.pppoe_ia[0].circuit_id_format, "%CHANNELID%/%GPON-PORT%");
    std::strcpy(other->pon.profiles_olt.pppoe_ia[0].circuit_id_format, "%GPON-PORT%/%CHANNELID%");
    EXPECT_EQ(differing(), Paths{});
    std::strcpy(one->system.network.hostname, "%CHANNELID%"); // no relay format
    std::strcpy(other->system.network.hostname, "%GPON-PORT%");
    EXPECT_EQ(differing(), Paths{"system.network.hostname"});
}

TEST_F(Meaning, WhatFreeSlotsHoldMeansNothing)
{
    std::memset(&other->pon.profiles_ont.shaping[30], 0x55, sizeof other->pon.profiles_ont.shaping[30]);
    other->pon.profiles_ont.shaping[30].exist = 0;
    std::memset(&other->pon.ont[1], 0x55, sizeof other->pon.ont[1]);
    other->pon.ont[1].exist = 0;
    std::memset(&other->system.services.alarm.type[4], 0x55, sizeof other->system.services.alarm.type[4]);
    other->system.services.alarm.type[4].type = 0;
    std::memset(&other->pon.olt.general.l3.dhcp[0], 0x55, sizeof other->pon.olt.general.l3.dhcp[0]);
    other->pon.olt.general.l3.dhcp[0].exist = 0;
    make_exist(one->system.user[0], "eve");
    make_exist(other->system.user[0], "eve");
    other->system.user[0].group[1].name = 3;
    EXPECT_EQ(differing(), Paths{});
    other->pon.olt.general.l3.dhcp[0] = {};
    other->pon.olt.general.l3.dhcp[0].exist = 1;
    other->system.user[0].group[1].exist = 1;
    EXPECT_EQ(differing(),
              (Paths{"system.user.0.group.1.exist", "system.user.0.group.1.name", "pon.olt.general.l3.dhcp.0.exist"}));
}

TEST_F(Meaning, RevisionsAndStatusMeanNothing)
{
    one->pon.ont[0].exist = other->pon.ont[0].exist = 1;
    other->system.network.revision = 9;
    other->pon.ont[0].revision = 9;
    other->pon.ont[0].port[0].poe.power_detection_status = 9;
    other->pon.ont[0].port[0].poe.current_power_consumption = 9;
    EXPECT_EQ(differing(), Paths{});
    EXPECT_TRUE(mean_the_same(*one, *other));
    other->pon.ont[0].port[0].poe.pse_class_control = 1;
    EXPECT_FALSE(mean_the_same(*one, *other));
}

} // namespace
