/// What a person sees before all else of a script, in the words that he or she reads.

#include "tests/language/configurations.h"
#include "tool/account/risks.h"
#include "tool/language/objects.h"

#include <gtest/gtest.h>
#include <utility>
#include <vector>

using namespace language_tests;

namespace {

/// "management: management ip changes ... [2, 3]"
using Texts = std::vector<std::string>;

/// The risks of commands of the configure view, whose lines are counted from 1.
Texts risks_of(const GCfg& running, const std::string& commands)
{
    RiskWatch watch(running);
    const std::string script = "configure terminal\n" + commands;
    const Replay run(running, script, [&watch](const Line& line, const GCfg& device) { watch.see(line, device); });
    for (const Replay::Refusal& refusal : run.refusals()) {
        ADD_FAILURE() << "line " << refusal.line - 1 << " is refused: " << refusal.reason;
    }
    Texts texts;
    for (const Risk& risk : watch.risks()) {
        std::string lines;
        for (const std::uint32_t line : risk.lines) {
            lines += (lines.empty() ? "" : ", ") + std::to_string(line - 1);
        }
        texts.push_back(std::string(name_of(risk.kind)) + ": " + risk.text + " [" + lines + "]");
    }
    return texts;
}

template <class Objects>
void make_exist(Objects& objects, std::size_t slot, const char* name)
{
    objects[slot].exist = 1;
    std::strcpy(objects[slot].name, name);
}

/// ONT 1/6 is slot 70, and has the serial number ABCD01020304; that of another one ends with another byte.
GPonOntCfg& add_ont(GCfg& configuration, std::size_t slot, unsigned char last = 4)
{
    GPonOntCfg& ont = configuration.pon.ont[slot];
    ont.exist = 1;
    ont.enabled = 1;
    const unsigned char serial[] = {'A', 'B', 'C', 'D', 1, 2, 3, last};
    static_assert(sizeof serial == sizeof ont.serial);
    std::memcpy(&ont.serial, serial, sizeof serial);
    return ont;
}

void set_ip(unsigned char (&ip)[4], unsigned char a, unsigned char b, unsigned char c, unsigned char d)
{
    ip[0] = a;
    ip[1] = b;
    ip[2] = c;
    ip[3] = d;
}

// ------------------------------------------------------------------------------------------------------------ removal

TEST(Risks, RemovedOntIsCalledByItsSerialNumberAndDescription)
{
    const auto running = blank_configuration();
    add_ont(*running, 70);
    std::strcpy(add_ont(*running, 2, 9).description, "Mill Lane 3");
    const Texts expected = {
        R"(removal: interface ont 0/2 ("Mill Lane 3", serial "ABCD01020309") is removed [1])",
        R"(removal: interface ont 1/6 (serial "ABCD01020304") is removed [2])",
    };
    EXPECT_EQ(risks_of(*running, "no interface ont 0/2\nno interface ont 1/6\n"), expected);
}

TEST(Risks, RemovedProfileSaysWhatRefersToIt)
{
    const auto running = blank_configuration();
    make_exist(running->pon.profiles_olt.vlan, 3, "homes");
    running->pon.olt.channel[0].profile_olt_vlan = 3;
    running->pon.olt.channel[7].profile_olt_vlan = 3;
    make_exist(running->pon.profiles_olt.address_table, 1, "unused");
    std::strcpy(running->pon.profiles_olt.address_table[1].description, "Old");
    const Texts expected = {
        R"(removal: profile vlan "homes" is removed; 2 GPON ports refer to it [1])",
        R"(removal: profile address-table "unused" ("Old") is removed [2])",
    };
    EXPECT_EQ(risks_of(*running, "no profile vlan homes\nno profile address-table unused\n"), expected);
}

TEST(Risks, RemovedTerminalVlanSaysWhatRefersToIt)
{
    const auto running = blank_configuration();
    running->pon.network.terminal_vlan[2].exists = 1;
    std::strcpy(running->pon.network.terminal_vlan[2].name, "voice");
    make_exist(running->pon.profiles_ont.cross_connect, 5, "telephone");
    running->pon.profiles_ont.cross_connect[5].outer_vid = -102;
    running->pon.profiles_ont.cross_connect[5].outer_cos = 102;
    const Texts expected = {
        R"(removal: gpon network terminal-vlan "voice" is removed; 1 cross-connect profile refers to it [1])"};
    EXPECT_EQ(risks_of(*running, "no gpon network terminal-vlan \"voice\"\n"), expected);
}

TEST(Risks, RemovedUserWithoutTheHighestPrivilegeIsOnlyRemoved)
{
    const auto running = blank_configuration();
    make_exist(running->system.user, 0, "admin");
    running->system.user[0].priority = 15;
    make_exist(running->system.user, 1, "guest");
    const Texts expected = {R"(removal: user "guest" is removed [1])"};
    EXPECT_EQ(risks_of(*running, "no user guest\n"), expected);
}

TEST(Risks, WhatTheScriptHasMadeOrWasNotThereIsNotRemoved)
{
    EXPECT_EQ(risks_of(*blank_configuration(),
                       "no interface ont 1/6\ninterface ont 1/7\nexit\nno interface ont 1/7\nno user eve\n"),
              Texts{});
}

// ------------------------------------------------------------------------------------------------------------ emptied

TEST(Risks, EmptiedProfileSaysHowManyUseIt)
{
    const auto running = blank_configuration();
    make_exist(running->pon.profiles_ont.shaping, 4, "gold");
    for (const std::size_t slot : {0U, 1U, 70U}) {
        add_ont(*running, slot, static_cast<unsigned char>(slot)).profile_ont_shaping = 4;
    }
    running->pon.ont[99].profile_ont_shaping = 4; // in a free slot
    make_exist(running->pon.profiles_ont.template_ont, 0, "home");
    running->pon.profiles_ont.template_ont[0].profile_ont_shaping = 4;
    const Texts expected = {
        R"(emptied: profile shaping "gold" is emptied, not removed; 3 ONTs and 1 template refer to it [2])"};
    EXPECT_EQ(risks_of(*running, "profile shaping \"gold\"\nname \"\"\nexit\n"), expected);
}

TEST(Risks, EmptiedProfileCountsAnOntOnceAndTheSettingsOfTheOlt)
{
    const auto running = blank_configuration();
    make_exist(running->pon.profiles_ont.alloc, 0, "best-effort");
    add_ont(*running, 70).profile_ont_alloc[0] = 0;
    running->pon.ont[70].profile_ont_alloc[15] = 0;
    make_exist(running->pon.profiles_olt.dhcp_ra, 6, "relay");
    running->pon.olt.general.profile_olt_dhcpra = 6;
    const Texts expected = {
        R"(emptied: profile dba "best-effort" is emptied, not removed; 1 ONT refers to it [2])",
        R"(emptied: profile dhcp-ra "relay" is emptied, not removed; 1 OLT setting refers to it [5])",
    };
    EXPECT_EQ(risks_of(*running, "profile dba \"best-effort\"\nname \"\"\nexit\nprofile dhcp-ra relay\nname \"\"\n"),
              expected);
}

TEST(Risks, RenamedProfileIsNone)
{
    const auto running = blank_configuration();
    make_exist(running->pon.profiles_ont.shaping, 4, "gold");
    EXPECT_EQ(risks_of(*running, "profile shaping \"gold\"\nname \"silver\"\nexit\n"), Texts{});
}

// --------------------------------------------------------------------------------------------------------- management

TEST(Risks, ManagementOfTheDevice)
{
    const auto running = blank_configuration();
    GSystemNetworkCfg& network = running->system.network;
    set_ip(network.ipaddr, 192, 0, 2, 1);
    set_ip(network.netmask, 255, 255, 255, 0);
    set_ip(network.gateway, 192, 0, 2, 254);
    network.mngmtvlan = 10;
    const Texts expected = {
        "management: management ip changes from 192.0.2.1 to 192.0.2.2 [1]",
        "management: management mask changes from 255.255.255.0 to 255.255.255.128 [2]",
        "management: management vid changes from 10 to 20 [3]",
        "management: management gateway changes from 192.0.2.254 to 192.0.2.126 [4]",
    };
    EXPECT_EQ(risks_of(*running, "management ip \"192.0.2.2\"\nmanagement mask \"255.255.255.128\"\n"
                                 "management vid \"20\"\nmanagement gateway \"192.0.2.126\"\nhostname olt\n"),
              expected);
}

TEST(Risks, SeveralLinesOfOneFieldAreOneRisk)
{
    const auto running = blank_configuration();
    set_ip(running->system.network.ipaddr, 192, 0, 2, 1);
    const Texts expected = {"management: management ip changes from 192.0.2.1 to 192.0.2.2, then to 192.0.2.1 [1, 3]"};
    EXPECT_EQ(risks_of(*running, "management ip \"192.0.2.2\"\nhostname olt\nmanagement ip \"192.0.2.1\"\n"), expected);
}

// ------------------------------------------------------------------------------------------------------------- access

TEST(Risks, WaysInThatAreSwitchedOff)
{
    const auto running = blank_configuration();
    GSystemServices& services = running->system.services;
    services.ssh.enabled = services.ssh.access_control = 1;
    services.telnet.enabled = services.telnet.access_control = 2; // on, as any number but 0
    services.snmp.enabled = services.snmp.access_control = 1;
    const Texts expected = {
        "access: ip ssh is switched off [1]",    "access: ip ssh access-control is switched off [2]",
        "access: ip telnet is switched off [3]", "access: ip telnet access-control is switched off [4]",
        "access: ip snmp is switched off [5]",   "access: ip snmp access-control is switched off [6]",
    };
    EXPECT_EQ(risks_of(*running, "no ip ssh enable\nno ip ssh access-control\nno ip telnet enable\n"
                                 "no ip telnet access-control\nno ip snmp enable\nno ip snmp access-control\n"),
              expected);
}

TEST(Risks, WaysInThatAreSwitchedOnAreNone)
{
    const auto running = blank_configuration();
    running->system.services.telnet.enabled = 2;
    EXPECT_EQ(risks_of(*running, "ip ssh enable\nip ssh access-control\nip telnet enable\nno ip snmp enable\n"),
              Texts{});
}

TEST(Risks, AllowListIsOneRisk)
{
    const auto running = blank_configuration();
    GSystemServiceAllow& entry = running->system.services.ssh.allow[2];
    set_ip(entry.ip, 10, 0, 0, 0);
    entry.mask = 8;
    const Texts expected = {
        "access: ip ssh allow list: 198.51.100.0/24 is added, 10.0.0.0/8 becomes 10.0.0.0/16 [1, 2]",
        "access: ip snmp allow list: 192.0.2.9/32 is added [4]",
    };
    EXPECT_EQ(risks_of(*running, "ip ssh allow ip 198.51.100.0 mask \"24\"\nip ssh allow ip 10.0.0.0 mask \"16\"\n"
                                 "ip ssh allow ip 10.0.0.0 mask \"16\"\nip snmp allow ip 192.0.2.9 mask \"32\"\n"),
              expected);
}

TEST(Risks, LongListsOfChangesAreCounted)
{
    std::string commands;
    for (int i = 1; i <= 5; ++i) {
        commands += "ip telnet allow ip 192.0.2." + std::to_string(i) + " mask \"32\"\n";
    }
    const Texts expected = {"access: ip telnet allow list: 192.0.2.1/32 is added, 192.0.2.2/32 is added, "
                            "192.0.2.3/32 is added and 2 more [1, 2, 3, 4, 5]"};
    EXPECT_EQ(risks_of(*blank_configuration(), commands), expected);
}

TEST(Risks, AllowListsOfTheWebAreToldByTheNumberOfTheEntry)
{
    const auto running = blank_configuration();
    GSystemServiceAllow& entry = running->system.services.https.allow[1];
    set_ip(entry.ip, 192, 0, 2, 0);
    entry.mask = 24;
    const Texts expected = {"access: https allow list: 192.0.2.0/24 becomes 192.0.2.0/16 [1]"};
    EXPECT_EQ(risks_of(*running, "https allow ip 1 mask \"16\"\n"), expected);
}

TEST(Risks, EntryThatAdmitsAnyAddress)
{
    const auto running = blank_configuration();
    GSystemServiceAllow& entry = running->system.services.http.allow[0];
    set_ip(entry.ip, 192, 0, 2, 0);
    entry.mask = 24;
    const Texts expected = {
        "access: ip ssh allow list admits any address: 0.0.0.0/0 [1]",
        "access: http allow list: 192.0.2.0/24 becomes 192.0.2.0/0 [2]",
        "access: http allow list admits any address: 192.0.2.0/0 [2]",
    };
    EXPECT_EQ(risks_of(*running, "ip ssh allow ip 0.0.0.0 mask \"0\"\nhttp allow ip 0 mask \"0\"\n"), expected);
}

// --------------------------------------------------------------------------------------------------------------- user

TEST(Risks, UserOfTheHighestPrivilege)
{
    const auto running = blank_configuration();
    make_exist(running->system.user, 3, "admin");
    make_exist(running->system.user, 5, "night");
    make_exist(running->system.user, 7, "guest");
    running->system.user[3].priority = 15;
    running->system.user[5].priority = 15;
    running->system.user[7].priority = 1;
    const Texts expected = {
        R"(user: user "admin" crypted_password changes [1])",
        R"(user: user "admin" privilege changes from 15 to 1 [2])",
        R"(user: user "night" is removed; no user has a higher privilege [3])",
    };
    EXPECT_EQ(risks_of(*running, "user admin crypted_password \"$1$new\"\nuser admin privilege 1\nno user night\n"
                                 "user guest crypted_password \"$1$guest\"\nuser guest privilege 2\n"),
              expected);
}

TEST(Risks, NewUserIsNone)
{
    const auto running = blank_configuration();
    make_exist(running->system.user, 3, "admin");
    running->system.user[3].priority = 15;
    EXPECT_EQ(risks_of(*running, "user eve privilege 15\nuser eve crypted_password \"$1$x\"\n"), Texts{});
}

// ----------------------------------------------------------------------------------------------------------- shutdown

TEST(Risks, PortsAndOntsThatAreShutDown)
{
    const auto running = blank_configuration();
    running->pon.olt.channel[1].enabled = 1;
    running->pon.olt.channel[2].enabled = 1;
    running->pon.olt.channel[3].enabled = 1;
    add_ont(*running, 70);
    add_ont(*running, 71, 5);
    add_ont(*running, 128, 6);
    const Texts expected = {
        R"(shutdown: interface gpon-port 1 is shut down; 2 ONTs are on it [2])",
        R"(shutdown: interface gpon-port 2 is shut down; 1 ONT is on it [5])",
        R"(shutdown: interface gpon-port 3 is shut down [8])",
        R"(shutdown: interface ont 1/6 (serial "ABCD01020304") is shut down [11])",
        R"(shutdown: interface ont 1/6 (serial "ABCD01020304"): port 3 is shut down [12])",
    };
    EXPECT_EQ(risks_of(*running,
                       "interface gpon-port 1\nshutdown\nexit\ninterface gpon-port 2\nshutdown\nexit\n"
                       "interface gpon-port 3\nshutdown\nexit\ninterface ont 1/6\nshutdown\nport 3 shutdown\nexit\n"),
              expected);
}

TEST(Risks, OntThatIsSwitchedOffAndOnAgainIsOneRisk)
{
    const auto running = blank_configuration();
    add_ont(*running, 70);
    const Texts expected = {
        R"(shutdown: interface ont 1/6 (serial "ABCD01020304") is shut down, then on again [2, 3])"};
    EXPECT_EQ(risks_of(*running, "interface ont 1/6\nshutdown\nno shutdown\nexit\n"), expected);
}

TEST(Risks, WhatIsDownAlreadyOrNewIsNotShutDown)
{
    const auto running = blank_configuration();
    add_ont(*running, 70).enabled = 0;
    running->pon.ont[70].port[1].shutdown = 1;
    EXPECT_EQ(risks_of(*running, "interface ont 1/6\nshutdown\nno shutdown\nport 1 shutdown\nexit\n"
                                 "interface gpon-port 1\nshutdown\nexit\n"
                                 "interface ont 1/7\nno shutdown\nshutdown\nport 0 shutdown\nexit\n"),
              Texts{});
}

// ------------------------------------------------------------------------------------------------------------- serial

TEST(Risks, SerialNumberThatAnotherOntStillHas)
{
    const auto running = blank_configuration();
    add_ont(*running, 70, 4);
    add_ont(*running, 3, 5);
    const Texts expected = {
        R"(serial: interface ont 0/3 gets serial "ABCD01020304", which interface ont 1/6 still has [2])",
        R"(serial: interface ont 2/0 gets serial "ABCD01020304", which interface ont 0/3 and 1 more still have [5])",
    };
    EXPECT_EQ(risks_of(*running, "interface ont 0/3\nserial \"41424344-01020304\"\nexit\n"
                                 "interface ont 2/0\nserial \"41424344-01020304\"\nexit\n"),
              expected);
}

TEST(Risks, SerialNumberThatIsFreeByThenIsNone)
{
    const auto running = blank_configuration();
    add_ont(*running, 70, 4);
    add_ont(*running, 71, 4).exist = 0;
    EXPECT_EQ(risks_of(*running, "interface ont 1/6\nserial \"41424344-01020307\"\nexit\n"
                                 "interface ont 2/0\nserial \"41424344-01020304\"\nexit\n"
                                 "interface ont 2/1\nserial \"00000000-00000000\"\nexit\n"),
              Texts{});
}

// ------------------------------------------------------------------------------------------------------------ network

TEST(Risks, SettingsThatConcernEveryOnt)
{
    const auto running = blank_configuration();
    running->pon.network.mac_age_time = 300;
    running->pon.network.svlan_ethertype = 0x8100;
    running->pon.network.terminal_vlan[0].exists = 1;
    running->pon.network.terminal_vlan[0].tag.vid = 310;
    std::strcpy(running->pon.network.terminal_vlan[0].name, "internet");
    GPonOltGeneralCfg& general = running->pon.olt.general;
    general.encryption.enable = 1;
    make_exist(running->pon.profiles_olt.dhcp_ra, 6, "relay");
    general.profile_olt_dhcpra_redefinition[0].exist = 1;
    general.profile_olt_dhcpra_redefinition[0].vid = 310;
    general.profile_olt_dhcpra_redefinition[0].profile = -1;
    general.absent_counter_max = 240;
    general.alarm_ont_battery_low_enabled = 1;
    const Texts expected = {
        R"(network: gpon network mac-age-time changes from 300 to 600 [1])",
        R"(network: gpon network svlan-ethertype changes from 0x8100 to 0x88A8 [2])",
        R"(network: gpon network terminal-vlan "internet" vid changes from 310 to 311 [3])",
        R"(network: gpon olt encryption is switched off [4])",
        R"(network: gpon olt profile dhcpra vid 310 changes from none to "relay" [5])",
        R"(network: gpon olt model changes from 1 to 2 [6])",
        R"(network: gpon olt unactivated-timout changes from 240 to -1 [7])",
        R"(network: gpon olt dba-reduced-latency allocation-mode changes [8])",
        R"(network: gpon olt dba-short-cycle gpon-port 2 is switched on [9])",
        R"(network: gpon olt dba-short-cycle gpon-port 3 is switched on [9])",
        R"(network: alarm ont-battery-low status is switched off [10])",
        R"(network: auto-reconfigure interface ont is switched on [11])",
    };
    EXPECT_EQ(risks_of(*running, "gpon network mac-age-time \"600\"\ngpon network svlan-ethertype \"0x88A8\"\n"
                                 "gpon network terminal-vlan \"internet\" vid \"311\"\nno gpon olt encryption\n"
                                 "gpon olt profile dhcpra relay vid 310\ngpon olt model \"2\"\n"
                                 "gpon olt unactivated-timout \"-1\"\n"
                                 "gpon olt dba-reduced-latency allocation-mode fair-allocations\n"
                                 "gpon olt dba-short-cycle gpon-port 2-3\nalarm ont-battery-low status disable\n"
                                 "auto-reconfigure interface ont\n"),
              expected);
}

TEST(Risks, NewTerminalVlanIsNone)
{
    EXPECT_EQ(risks_of(*blank_configuration(), "gpon network terminal-vlan voice\n"
                                               "gpon network terminal-vlan voice vid 320\n"),
              Texts{});
}

// ----------------------------------------------------------------------------------------------------------- harmless

TEST(Risks, HarmlessChangesAreNone)
{
    const auto running = blank_configuration();
    add_ont(*running, 70);
    make_exist(running->pon.profiles_ont.shaping, 0, "gold");
    EXPECT_EQ(risks_of(*running, "interface ont 1/6\ndescription \"Mill Lane 3\"\nprofile shaping gold\nexit\n"
                                 "profile shaping gold\nupstream 0 enable\nupstream 0 peak-rate 2048\nexit\n"
                                 "ip ntp enable\nno ip ntp enable\nip snmp location Barn\n"),
              Texts{});
}

TEST(Risks, LinesThatSetWhatTheDeviceHoldsAreNone)
{
    const auto running = blank_configuration();
    set_ip(running->system.network.ipaddr, 192, 0, 2, 1);
    make_exist(running->system.user, 3, "admin");
    running->system.user[3].priority = 15;
    std::strcpy(running->system.user[3].password, "$1$old");
    add_ont(*running, 70);
    add_ont(*running, 71); // has the serial number of 1/6 before the script already
    running->pon.network.mac_age_time = 300;
    set_ip(running->system.services.ssh.allow[0].ip, 10, 0, 0, 0);
    EXPECT_EQ(risks_of(*running, "management ip \"192.0.2.1\"\nuser admin crypted_password \"$1$old\"\n"
                                 "user admin privilege 15\ninterface ont 1/6\nserial \"41424344-01020304\"\n"
                                 "no port 0 shutdown\nexit\ngpon network mac-age-time 300\n"
                                 "ip ssh allow ip 10.0.0.0 mask \"0\"\nno gpon olt encryption\n"),
              Texts{});
}

TEST(Risks, RefusedLinesAreNone)
{
    const auto running = blank_configuration();
    running->system.services.ssh.enabled = 1;
    add_ont(*running, 70);
    RiskWatch watch(*running);
    const pondiff::tool::Replay run(
        *running, "no ip ssh enable\nconfigure terminal\nmanagement ip 300.0.0.1\nno interface ont 99/6\n",
        [&watch](const Line& line, const GCfg& device) { watch.see(line, device); });
    EXPECT_EQ(run.refusals().size(), 3U);
    EXPECT_TRUE(watch.risks().empty());
}

} // namespace
