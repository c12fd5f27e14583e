#include "tests/support/diff.h"

namespace {

template <class Service>
void fill_entry(Service& service, int index, std::initializer_list<int> address, u8 mask)
{
    put(service.allow[index].ip, address);
    service.allow[index].mask = mask;
}

// ----------------------------------------------------------------------------------------------------- single entry

TEST(Allow, EntryOfAServiceWithoutAddressesIsItsIndex)
{
    Diff entry{getdiff_GSystemServiceAllow, "http"};
    entry.key[0] = 12;
    entry.after.mask = 24;
    EXPECT_EQ(entry.elements(), (Elements{"configure terminal", "http allow ip   12 mask \"24\""}));
}

TEST(Allow, AddressAloneIsAChange)
{
    Diff entry{getdiff_GSystemServiceAllow, "https"};
    put(entry.after.ip, {0, 0, 0, 1});
    EXPECT_EQ(entry.elements(), (Elements{"configure terminal", "https allow ip    0 mask \"0\""}));
}

TEST(Allow, EqualEntrySaysNothingUntilForced)
{
    Diff entry{getdiff_GSystemServiceAllow, "http"};
    entry.before.mask = entry.after.mask = 255;
    EXPECT_EQ(entry.elements(), Elements{});
    entry.all = 1;
    EXPECT_EQ(entry.elements(), (Elements{"configure terminal", "http allow ip    0 mask \"255\""}));
}

TEST(Allow, PrefixIsTheCallers)
{
    Diff entry{getdiff_GSystemServiceAllow, "service 100% $ID1"};
    entry.key[1] = 5;
    entry.after.mask = 1;
    EXPECT_EQ(entry.elements(), (Elements{"configure terminal", "service 100%    5 allow ip    0 mask \"1\""}));
}

TEST(Allow, AddressesComeFromTheTableOfTheirService)
{
    Session session;
    fill_entry(session.cfg->system.services.telnet, 3, {10, 0, 0, 1}, 8);
    fill_entry(session.cfg->system.services.ssh, 3, {10, 0, 0, 2}, 8);
    fill_entry(session.cfg->system.services.snmp, 3, {255, 255, 255, 255}, 8);
    session.open();
    const char* const texts[][2] = {
        {"ip telnet", "ip telnet allow ip 10.0.0.1 mask \"32\""},
        {"ip ssh", "ip ssh allow ip 10.0.0.2 mask \"32\""},
        {"ip snmp", "ip snmp allow ip 255.255.255.255 mask \"32\""},
        {"ip http", "ip http allow ip    3 mask \"32\""},
    };
    for (const auto& [service, command] : texts) {
        Diff entry{getdiff_GSystemServiceAllow, service};
        entry.key[0] = 3;
        entry.after.mask = 32;
        EXPECT_EQ(entry.elements(), (Elements{"configure terminal", command}));
    }
}

// --------------------------------------------------------------------------------------------------- HTTP and HTTPS

TEST(Http, SwitchesHaveNoCommand)
{
    Diff http{getdiff_GSystemHttpCfg};
    http.after.enabled = 1;
    http.after.access_control = 1;
    http.after.revision = 4;
    EXPECT_EQ(http.elements(), Elements{});
    EXPECT_EQ(http.key[0], 15);
}

TEST(Http, ChangedEntriesShowTheirIndex)
{
    Session session;
    Diff http{getdiff_GSystemHttpCfg};
    fill_entry(http.after, 0, {192, 0, 2, 0}, 24);
    fill_entry(http.before, 15, {192, 0, 2, 0}, 24);
    session.cfg->system.services.http = http.after;
    session.open();
    EXPECT_EQ(http.elements(),
              (Elements{"configure terminal", "http allow ip    0 mask \"24\"", "", "http allow ip   15 mask \"0\""}));
}

TEST(Http, PrintAllShowsEveryEntry)
{
    Diff http{getdiff_GSystemHttpCfg};
    http.all = 1;
    std::string expected = "configure terminal\n";
    for (const char* index :
         {" 0", " 1", " 2", " 3", " 4", " 5", " 6", " 7", " 8", " 9", "10", "11", "12", "13", "14", "15"}) {
        expected += "http allow ip   " + std::string(index) + " mask \"0\"\n";
    }
    EXPECT_EQ(http.script(), expected);
    EXPECT_EQ(http.key[0], 15);
}

TEST(Https, SwitchesHaveNoCommand)
{
    Diff https{getdiff_GSystemHttpsCfg};
    https.after.enabled = 1;
    https.after.access_control = 1;
    EXPECT_EQ(https.elements(), Elements{});
    EXPECT_EQ(https.key[0], 15);
}

TEST(Https, ChangedEntriesShowTheirIndex)
{
    Diff https{getdiff_GSystemHttpsCfg};
    fill_entry(https.after, 1, {192, 0, 2, 0}, 24);
    fill_entry(https.after, 10, {192, 0, 3, 0}, 25);
    EXPECT_EQ(https.elements(), behind("configure terminal", "https allow ip    1 mask \"24\"\n"
                                                             "https allow ip   10 mask \"25\"\n"));
}

TEST(Https, PrintAllShowsEveryEntry)
{
    Diff https{getdiff_GSystemHttpsCfg};
    https.all = 1;
    std::string expected = "configure terminal\n";
    for (const char* index :
         {" 0", " 1", " 2", " 3", " 4", " 5", " 6", " 7", " 8", " 9", "10", "11", "12", "13", "14", "15"}) {
        expected += "https allow ip   " + std::string(index) + " mask \"0\"\n";
    }
    EXPECT_EQ(https.script(), expected);
}

// --------------------------------------------------------------------------------------------------- Telnet and SSH

TEST(Telnet, SwitchedOn)
{
    Diff telnet{getdiff_GSystemTelnetCfg};
    telnet.after.enabled = 1;
    telnet.after.access_control = 1;
    EXPECT_EQ(telnet.elements(), (Elements{"configure terminal", "ip telnet enable", "", "ip telnet access-control"}));
}

TEST(Telnet, SwitchedOff)
{
    Diff telnet{getdiff_GSystemTelnetCfg};
    telnet.before.enabled = 1;
    EXPECT_EQ(telnet.elements(), (Elements{"configure terminal", "no ip telnet enable"}));
    telnet.before.enabled = 0;
    telnet.before.access_control = 1;
    EXPECT_EQ(telnet.elements(), (Elements{"configure terminal", "no ip telnet access-control"}));
}

TEST(Telnet, AnyNonZeroSwitchIsOnAndItsBytesAreCompared)
{
    Diff telnet{getdiff_GSystemTelnetCfg};
    telnet.before.enabled = 1;
    telnet.after.enabled = 2;
    telnet.after.access_control = 256;
    EXPECT_EQ(telnet.script(), "configure terminal\nip telnet enable\nip telnet access-control\n");
    telnet.before.enabled = telnet.after.enabled = 65535;
    telnet.before.access_control = 65535;
    EXPECT_EQ(telnet.script(), "configure terminal\nip telnet access-control\n");
}

TEST(Telnet, AddressesInAFullDiff)
{
    Session session;
    fill_entry(session.orig->system.services.telnet, 2, {203, 0, 113, 0}, 24);
    fill_entry(session.cfg->system.services.telnet, 15, {198, 51, 100, 128}, 25);
    session.cfg->system.services.telnet.enabled = 1;
    session.open();
    EXPECT_EQ(session.full_diff(), "configure terminal\n"
                                   "ip telnet enable\n"
                                   "ip telnet allow ip 0.0.0.0 mask \"0\"\n"
                                   "ip telnet allow ip 198.51.100.128 mask \"25\"\n"
                                   "exit\n"
                                   "commit\n");
}

TEST(Telnet, PrintAllShowsSwitchesAndEveryEntry)
{
    Session session;
    fill_entry(session.cfg->system.services.telnet, 1, {10, 1, 0, 0}, 16);
    session.settle();
    session.open();
    Diff telnet{getdiff_GSystemTelnetCfg};
    telnet.before = telnet.after = session.cfg->system.services.telnet;
    telnet.all = 1;
    std::string expected = "configure terminal\n"
                           "no ip telnet enable\n"
                           "no ip telnet access-control\n"
                           "ip telnet allow ip 0.0.0.0 mask \"0\"\n"
                           "ip telnet allow ip 10.1.0.0 mask \"16\"\n";
    for (int i = 2; i < 16; ++i) {
        expected += "ip telnet allow ip 0.0.0.0 mask \"0\"\n";
    }
    EXPECT_EQ(telnet.script(), expected);
    EXPECT_EQ(telnet.key[0], 15);
}

TEST(Ssh, SwitchedOn)
{
    Diff ssh{getdiff_GSystemSshCfg};
    ssh.after.enabled = 1;
    ssh.after.access_control = 1;
    EXPECT_EQ(ssh.elements(), (Elements{"configure terminal", "ip ssh enable", "", "ip ssh access-control"}));
    EXPECT_EQ(ssh.key[0], 15);
}

TEST(Ssh, SwitchedOff)
{
    Diff ssh{getdiff_GSystemSshCfg};
    ssh.before.enabled = 1;
    ssh.before.access_control = 1;
    EXPECT_EQ(ssh.elements(), (Elements{"configure terminal", "no ip ssh enable", "", "no ip ssh access-control"}));
}

TEST(Ssh, MaskAloneIsOneCommandWithTheAddressOfItsEntry)
{
    Session session;
    fill_entry(session.orig->system.services.ssh, 3, {10, 20, 30, 0}, 24);
    *session.cfg = *session.orig;
    session.cfg->system.services.ssh.allow[3].mask = 25;
    session.open();
    EXPECT_EQ(session.full_diff(), "configure terminal\n"
                                   "ip ssh allow ip 10.20.30.0 mask \"25\"\n"
                                   "exit\n"
                                   "commit\n");
}

TEST(Ssh, PrintAllShowsSwitchesAndEveryEntry)
{
    Session session;
    session.cfg->system.services.ssh.enabled = 1;
    session.cfg->system.services.ssh.access_control = 1;
    fill_entry(session.cfg->system.services.ssh, 15, {10, 1, 0, 0}, 16);
    session.settle();
    session.open();
    Diff ssh{getdiff_GSystemSshCfg};
    ssh.before = ssh.after = session.cfg->system.services.ssh;
    ssh.all = 1;
    std::string expected = "configure terminal\n"
                           "ip ssh enable\n"
                           "ip ssh access-control\n";
    for (int i = 0; i < 15; ++i) {
        expected += "ip ssh allow ip 0.0.0.0 mask \"0\"\n";
    }
    EXPECT_EQ(ssh.script(), expected + "ip ssh allow ip 10.1.0.0 mask \"16\"\n");
}

} // namespace
