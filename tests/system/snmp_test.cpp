#include "tests/support/diff.h"

namespace {

TEST(Snmp, EveryFieldInOrder)
{
    Session session;
    GSystemSnmpCfg& snmp = session.cfg->system.services.snmp;
    snmp.enabled = 1;
    snmp.access_control = 1;
    snmp.version = 2;
    put(snmp.communityro, "public");
    put(snmp.communityrw, "private");
    put(snmp.trap, "traps");
    put(snmp.location, "hall 2, rack 7");
    put(snmp.contact, "noc@example.net");
    snmp.serialNum = 1;
    put(snmp.engineID, {0x80, 0, 0, 0, 5, 6, 7, 8, 9, 0xab, 0xcd, 0xef, 0xff});
    put(snmp.allow[3].ip, {10, 0, 0, 0});
    snmp.allow[3].mask = 8;
    snmp.traps[0].type = 1;
    put(snmp.traps[0].ipaddr, {192, 0, 2, 9});
    put(snmp.alias[17].name, "uplink");
    snmp.alias[17].upDownTrapEnable = 1;
    session.open();
    EXPECT_EQ(session.full_diff(), "configure terminal\n"
                                   "ip snmp enable\n"
                                   "ip snmp access-control\n"
                                   "ip snmp version \"v3\"\n"
                                   "ip snmp community read \"public\"\n"
                                   "ip snmp community write \"private\"\n"
                                   "ip snmp trap-community \"traps\"\n"
                                   "ip snmp location \"hall 2, rack 7\"\n"
                                   "ip snmp contact \"noc@example.net\"\n"
                                   "ip snmp ont-sn-format \"dense\"\n"
                                   "ip snmp engineID \"800000000506070809abcdefff\"\n"
                                   "ip snmp allow ip 10.0.0.0 mask \"8\"\n"
                                   "ip snmp traps 192.0.2.9 type v2\n"
                                   "ip snmp alias name \"uplink\"\n"
                                   "ip snmp alias name   17 up-down-trap\n"
                                   "exit\n"
                                   "commit\n");
}

TEST(Snmp, SwitchedOff)
{
    Diff snmp{getdiff_GSystemSnmpCfg};
    snmp.before.enabled = 1;
    EXPECT_EQ(snmp.elements(), (Elements{"configure terminal", "no ip snmp enable"}));
    snmp.before.enabled = 0;
    snmp.before.access_control = 1;
    EXPECT_EQ(snmp.elements(), (Elements{"configure terminal", "no ip snmp access-control"}));
}

TEST(Snmp, AnyNonZeroSwitchIsOnAndItsBytesAreCompared)
{
    Diff snmp{getdiff_GSystemSnmpCfg};
    snmp.before.enabled = 1;
    snmp.after.enabled = 2;
    snmp.after.access_control = 65535;
    EXPECT_EQ(snmp.script(), "configure terminal\nip snmp enable\nip snmp access-control\n");
}

TEST(Snmp, NavigationIsAnElementBeforeEachCommand)
{
    Diff snmp{getdiff_GSystemSnmpCfg};
    put(snmp.after.trap, "traps");
    put(snmp.after.traps[1].ipaddr, {192, 0, 2, 9});
    snmp.after.alias[0].upDownTrapEnable = 1;
    EXPECT_EQ(snmp.elements(), behind("configure terminal", "ip snmp trap-community \"traps\"\n"
                                                            "ip snmp traps 192.0.2.9 type v1\n"
                                                            "ip snmp alias name    0 up-down-trap\n"));
    EXPECT_EQ(snmp.key[0], 17);
}

TEST(Snmp, VersionWithoutAWordIsEmpty)
{
    for (const int version : {0, 3, 65535}) {
        Diff snmp{getdiff_GSystemSnmpCfg};
        snmp.before.version = 1;
        snmp.after.version = static_cast<u16>(version);
        EXPECT_EQ(snmp.script(), "configure terminal\nip snmp version \"\"\n") << version;
    }
    Diff snmp{getdiff_GSystemSnmpCfg};
    snmp.after.version = 1;
    EXPECT_EQ(snmp.script(), "configure terminal\nip snmp version \"v2\"\n");
}

TEST(Snmp, SerialFormatIsNamedByItsLowBitsAndComparedWhole)
{
    Diff snmp{getdiff_GSystemSnmpCfg};
    snmp.before.serialNum = 2;
    snmp.after.serialNum = 0x10002;
    EXPECT_EQ(snmp.script(), "configure terminal\nip snmp ont-sn-format \"dashed\"\n");
    snmp.after.serialNum = 0xFFFF0000U;
    EXPECT_EQ(snmp.script(), "configure terminal\nip snmp ont-sn-format \"pretty\"\n");
    snmp.after.serialNum = 0xFFFFFFFFU;
    EXPECT_EQ(snmp.script(), "configure terminal\nip snmp ont-sn-format \"unknown\"\n");
}

TEST(Snmp, TextsThatFillTheirArrays)
{
    Diff snmp{getdiff_GSystemSnmpCfg};
    put(snmp.after.communityro, std::string(64, 'r'));
    put(snmp.after.communityrw, std::string(64, 'w'));
    put(snmp.after.trap, std::string(64, 't'));
    put(snmp.after.location, std::string(255, 'l'));
    put(snmp.after.contact, std::string(255, 'c'));
    put(snmp.after.alias[17].name, std::string(64, 'a'));
    put(snmp.before.alias[17].name, std::string(63, 'a'));
    snmp.before.alias[17].upDownTrapEnable = snmp.after.alias[17].upDownTrapEnable = 'x';
    EXPECT_EQ(snmp.script(), "configure terminal\n"
                             "ip snmp community read \"" +
                                 std::string(64, 'r') +
                                 "\"\n"
                                 "ip snmp community write \"" +
                                 std::string(64, 'w') +
                                 "\"\n"
                                 "ip snmp trap-community \"" +
                                 std::string(64, 't') +
                                 "\"\n"
                                 "ip snmp location \"" +
                                 std::string(255, 'l') +
                                 "\"\n"
                                 "ip snmp contact \"" +
                                 std::string(255, 'c') +
                                 "\"\n"
                                 "ip snmp alias name \"" +
                                 std::string(64, 'a') + "\"\n");
}

TEST(Snmp, LastByteOfEachFieldIsCompared)
{
    Diff snmp{getdiff_GSystemSnmpCfg};
    snmp.after.communityro[63] = snmp.after.communityrw[63] = snmp.after.trap[63] = 'x';
    snmp.after.location[254] = snmp.after.contact[254] = 'x';
    snmp.after.engineID[12] = 1;
    EXPECT_EQ(snmp.script(), "configure terminal\n"
                             "ip snmp community read \"\"\n"
                             "ip snmp community write \"\"\n"
                             "ip snmp trap-community \"\"\n"
                             "ip snmp location \"\"\n"
                             "ip snmp contact \"\"\n"
                             "ip snmp engineID \"00000000000000000000000001\"\n");
}

TEST(Snmp, ConfigurationTextsOfTheAgentHaveNoCommand)
{
    Diff snmp{getdiff_GSystemSnmpCfg};
    put(snmp.after.pattern_cfg, "pattern");
    put(snmp.after.private_cfg, "private");
    put(snmp.after.binary_cfg, "binary");
    snmp.after.revision = 1;
    EXPECT_EQ(snmp.elements(), Elements{});
    EXPECT_EQ(snmp.key[0], 17);
}

TEST(Snmp, EqualRecordUnderPrintAllShowsAllOfIt)
{
    Session session;
    session.open();
    Diff snmp{getdiff_GSystemSnmpCfg};
    snmp.all = 1;
    std::string expected = "configure terminal\n"
                           "no ip snmp enable\n"
                           "no ip snmp access-control\n"
                           "ip snmp version \"\"\n"
                           "ip snmp community read \"\"\n"
                           "ip snmp community write \"\"\n"
                           "ip snmp trap-community \"\"\n"
                           "ip snmp location \"\"\n"
                           "ip snmp contact \"\"\n"
                           "ip snmp ont-sn-format \"pretty\"\n"
                           "ip snmp engineID \"00000000000000000000000000\"\n";
    for (int i = 0; i < 16; ++i) {
        expected += "ip snmp allow ip 0.0.0.0 mask \"0\"\n";
    }
    for (int i = 0; i < 16; ++i) {
        expected += "ip snmp traps 0.0.0.0 type v1\n";
    }
    for (const char* index :
         {" 0", " 1", " 2", " 3", " 4", " 5", " 6", " 7", " 8", " 9", "10", "11", "12", "13", "14", "15", "16", "17"}) {
        expected += "ip snmp alias name \"\"\nno ip snmp alias name   " + std::string(index) + " up-down-trap\n";
    }
    EXPECT_EQ(snmp.script(), expected);
    EXPECT_EQ(snmp.key[0], 17);
    EXPECT_EQ(snmp.key[1], 0);
}

TEST(SnmpTrap, TypeAloneSaysNothing)
{
    Diff trap{getdiff_GSystemSnmpTrap};
    trap.after.type = 1;
    EXPECT_EQ(trap.elements(), Elements{});
    Diff snmp{getdiff_GSystemSnmpCfg};
    snmp.after.traps[3].type = 2;
    EXPECT_EQ(snmp.elements(), Elements{});
}

TEST(SnmpTrap, NewAddressShowsTheType)
{
    Diff trap{getdiff_GSystemSnmpTrap};
    put(trap.after.ipaddr, {0, 0, 0, 255});
    trap.after.type = 2;
    EXPECT_EQ(trap.elements(), (Elements{"configure terminal", "ip snmp traps 0.0.0.255 type inform"}));
    trap.after.type = 65535;
    EXPECT_EQ(trap.elements(), (Elements{"configure terminal", "ip snmp traps 0.0.0.255 type unknown"}));
}

TEST(SnmpTrap, RemovedReceiverIsEmittedWithItsClearedValues)
{
    Diff trap{getdiff_GSystemSnmpTrap};
    put(trap.before.ipaddr, {192, 0, 2, 9});
    EXPECT_EQ(trap.elements(), (Elements{"configure terminal", "ip snmp traps 0.0.0.0 type v1"}));
}

TEST(SnmpTrap, ForcedByPrintAll)
{
    Diff trap{getdiff_GSystemSnmpTrap};
    trap.all = 1;
    trap.before.type = trap.after.type = 1;
    EXPECT_EQ(trap.elements(), (Elements{"configure terminal", "ip snmp traps 0.0.0.0 type v2"}));
}

TEST(SnmpAlias, NameAndTrapEachAlone)
{
    Diff alias{getdiff_GSystemSnmpAlias};
    alias.key[0] = 9;
    put(alias.after.name, "uplink");
    EXPECT_EQ(alias.elements(), (Elements{"configure terminal", "ip snmp alias name \"uplink\""}));
    put(alias.before.name, "uplink");
    alias.after.upDownTrapEnable = 2;
    EXPECT_EQ(alias.elements(), (Elements{"configure terminal", "ip snmp alias name    9 up-down-trap"}));
    alias.before.upDownTrapEnable = 1;
    EXPECT_EQ(alias.elements(), (Elements{"configure terminal", "ip snmp alias name    9 up-down-trap"}));
    alias.after.upDownTrapEnable = 0;
    EXPECT_EQ(alias.elements(), (Elements{"configure terminal", "no ip snmp alias name    9 up-down-trap"}));
}

TEST(SnmpAlias, ForcedByPrintAll)
{
    Diff alias{getdiff_GSystemSnmpAlias};
    put(alias.before.name, "uplink");
    alias.before.upDownTrapEnable = 1;
    alias.after = alias.before;
    EXPECT_EQ(alias.elements(), Elements{});
    alias.all = 1;
    EXPECT_EQ(alias.elements(), behind("configure terminal", "ip snmp alias name \"uplink\"\n"
                                                             "ip snmp alias name    0 up-down-trap\n"));
}

} // namespace
