#include "tests/support/diff.h"

namespace {

void fill_binding(GSystemSourceGuardBindCfg& binding)
{
    binding.exist = 1;
    put(binding.ip, {10, 0, 0, 5});
    put(binding.mac, {0x02, 0x0a, 0xbc, 0xde, 0xf0, 0x12});
    binding.channel_index = 3;
    binding.ont_id = 17;
    binding.service_id = 2;
}

TEST(SourceGuard, SwitchedOn)
{
    Diff guard{getdiff_GSystemSourceGuardCfg};
    guard.after.enabled = 1;
    EXPECT_EQ(guard.elements(), (Elements{"configure terminal", "ip source-guard enable"}));
    guard.before.enabled = 2;
    EXPECT_EQ(guard.elements(), (Elements{"configure terminal", "ip source-guard enable"}));
    guard.after.enabled = 65535;
    EXPECT_EQ(guard.elements(), (Elements{"configure terminal", "ip source-guard enable"}));
}

TEST(SourceGuard, SwitchedOff)
{
    Diff guard{getdiff_GSystemSourceGuardCfg};
    guard.before.enabled = 1;
    EXPECT_EQ(guard.elements(), (Elements{"configure terminal", "no ip source-guard enable"}));
}

TEST(SourceGuard, ModeIsTheRegistrysWordUnquoted)
{
    Diff guard{getdiff_GSystemSourceGuardCfg};
    guard.after.mode = 1;
    EXPECT_EQ(guard.elements(), (Elements{"configure terminal", "ip source-guard mode dynamic"}));
    std::swap(guard.before, guard.after);
    EXPECT_EQ(guard.elements(), (Elements{"configure terminal", "ip source-guard mode static"}));
    guard.after.mode = 65535;
    EXPECT_EQ(guard.elements(), (Elements{"configure terminal", "ip source-guard mode unknown"}));
}

TEST(SourceGuard, WholeRecordInOrder)
{
    Session session;
    GSystemSourceGuardCfg& guard = session.cfg->system.services.source_guard;
    guard.enabled = 1;
    guard.mode = 1;
    fill_binding(guard.bind[0]);
    fill_binding(guard.bind[1023]);
    put(guard.bind[1023].ip, {255, 255, 255, 255});
    guard.vid[0].allowed = 1;
    guard.vid[4094].allowed = 1;
    session.orig->system.services.source_guard.vid[100].allowed = 1;
    session.open();
    EXPECT_EQ(session.full_diff(),
              "configure terminal\n"
              "ip source-guard enable\n"
              "ip source-guard mode dynamic\n"
              "ip source-guard bind ip 10.0.0.5 mac \"02:0A:BC:DE:F0:12\" interface-ont 3/17 service 2\n"
              "ip source-guard bind ip 255.255.255.255 mac \"02:0A:BC:DE:F0:12\" interface-ont 3/17 service 2\n"
              "ip source-guard ignore-vlan    0\n"
              "no ip source-guard ignore-vlan  100\n"
              "ip source-guard ignore-vlan 4094\n"
              "exit\n"
              "commit\n");
}

TEST(SourceGuard, PrintAllForcesSwitchAndModeAlone)
{
    for (const int common : {0, 1, 2}) {
        Diff guard{getdiff_GSystemSourceGuardCfg};
        fill_binding(guard.before.bind[4]);
        guard.before.vid[100].allowed = 1;
        guard.after = guard.before;
        guard.all = 1;
        guard.common = common;
        EXPECT_EQ(guard.elements(),
                  (Elements{"configure terminal", "no ip source-guard enable", "", "ip source-guard mode static"}));
        EXPECT_EQ(guard.key[0], 4094);
    }
}

TEST(SourceGuard, PrintAllShowsTheEntriesThatDiffer)
{
    Diff guard{getdiff_GSystemSourceGuardCfg};
    guard.all = 1;
    guard.after.vid[1].allowed = 1;
    EXPECT_EQ(guard.script(), "configure terminal\n"
                              "no ip source-guard enable\n"
                              "ip source-guard mode static\n"
                              "ip source-guard ignore-vlan    1\n");
}

TEST(SourceGuard, RevisionAloneSaysNothingAndWalksTheTables)
{
    Diff guard{getdiff_GSystemSourceGuardCfg};
    guard.after.revision = 1;
    EXPECT_EQ(guard.elements(), Elements{});
    EXPECT_EQ(guard.key[0], 4094);
}

TEST(SourceGuardBinding, RemovedBindingIsEmittedWithItsClearedValues)
{
    Session session;
    fill_binding(session.orig->system.services.source_guard.bind[8]);
    session.open();
    EXPECT_EQ(session.full_diff(),
              "configure terminal\n"
              "ip source-guard bind ip 0.0.0.0 mac \"00:00:00:00:00:00\" interface-ont 0/0 service 0\n"
              "exit\n"
              "commit\n");
}

TEST(SourceGuardBinding, EachFieldIsAChangeAndExistsIsNotConsulted)
{
    Session session;
    fill_binding(session.cfg->system.services.source_guard.bind[9]);
    session.open();
    GSystemSourceGuardBindCfg old;
    fill_binding(old);
    const auto changed = [&](void (*change)(GSystemSourceGuardBindCfg&)) {
        Diff binding{getdiff_GSystemSourceGuardBindCfg};
        binding.key[0] = 9;
        binding.before = binding.after = old;
        change(binding.after);
        return binding.script();
    };
    EXPECT_EQ(changed([](GSystemSourceGuardBindCfg&) {}), "");
    EXPECT_EQ(changed([](GSystemSourceGuardBindCfg& binding) { binding.exist = 0; }),
              "configure terminal\n"
              "ip source-guard bind ip 10.0.0.5 mac \"02:0A:BC:DE:F0:12\" interface-ont 3/17 service 2\n");
    EXPECT_EQ(changed([](GSystemSourceGuardBindCfg& binding) { binding.ip[3] = 6; }),
              "configure terminal\n"
              "ip source-guard bind ip 10.0.0.5 mac \"02:0A:BC:DE:F0:12\" interface-ont 3/17 service 2\n");
    EXPECT_EQ(changed([](GSystemSourceGuardBindCfg& binding) { binding.mac[5] = 0xff; }),
              "configure terminal\n"
              "ip source-guard bind ip 10.0.0.5 mac \"02:0A:BC:DE:F0:FF\" interface-ont 3/17 service 2\n");
    EXPECT_EQ(changed([](GSystemSourceGuardBindCfg& binding) { binding.channel_index = 255; }),
              "configure terminal\n"
              "ip source-guard bind ip 10.0.0.5 mac \"02:0A:BC:DE:F0:12\" interface-ont 255/17 service 2\n");
    EXPECT_EQ(changed([](GSystemSourceGuardBindCfg& binding) { binding.service_id = 255; }),
              "configure terminal\n"
              "ip source-guard bind ip 10.0.0.5 mac \"02:0A:BC:DE:F0:12\" interface-ont 3/17 service 255\n");
}

TEST(SourceGuardBinding, OntIdIsShownAsASignedNumber)
{
    Session session;
    session.open();
    Diff binding{getdiff_GSystemSourceGuardBindCfg};
    const std::string front =
        "configure terminal\nip source-guard bind ip 0.0.0.0 mac \"00:00:00:00:00:00\" interface-ont 0/";
    binding.after.ont_id = 2147483647U;
    EXPECT_EQ(binding.script(), front + "2147483647 service 0\n");
    binding.after.ont_id = 2147483648U;
    EXPECT_EQ(binding.script(), front + "-2147483648 service 0\n");
    binding.after.ont_id = 4294967295U;
    EXPECT_EQ(binding.script(), front + "-1 service 0\n");
}

TEST(SourceGuardBinding, SingleBindingIsForcedByPrintAll)
{
    sourceguardip[0][0] = '\0'; // as before any session
    Diff binding{getdiff_GSystemSourceGuardBindCfg};
    fill_binding(binding.before);
    binding.after = binding.before;
    binding.all = 1;
    EXPECT_EQ(binding.elements(), (Elements{"configure terminal", "ip source-guard bind ip  mac \"02:0A:BC:DE:F0:12\" "
                                                                  "interface-ont 3/17 service 2"}));
}

TEST(SourceGuardVlan, AnyNonZeroFlagIsOnAndItsBytesAreCompared)
{
    Diff vlan{getdiff_GSystemSourceGuardCfgVlanAllowed};
    vlan.key[0] = 100;
    vlan.after.allowed = 2;
    EXPECT_EQ(vlan.elements(), (Elements{"configure terminal", "ip source-guard ignore-vlan  100"}));
    vlan.before.allowed = 1;
    EXPECT_EQ(vlan.elements(), (Elements{"configure terminal", "ip source-guard ignore-vlan  100"}));
    vlan.after.allowed = 65535;
    EXPECT_EQ(vlan.elements(), (Elements{"configure terminal", "ip source-guard ignore-vlan  100"}));
    vlan.after.allowed = 0;
    EXPECT_EQ(vlan.elements(), (Elements{"configure terminal", "no ip source-guard ignore-vlan  100"}));
}

TEST(SourceGuardVlan, SingleFlagIsForcedByPrintAll)
{
    Diff vlan{getdiff_GSystemSourceGuardCfgVlanAllowed};
    vlan.key[0] = 7;
    EXPECT_EQ(vlan.elements(), Elements{});
    vlan.all = 1;
    EXPECT_EQ(vlan.elements(), (Elements{"configure terminal", "no ip source-guard ignore-vlan    7"}));
    vlan.before.allowed = vlan.after.allowed = 1;
    EXPECT_EQ(vlan.elements(), (Elements{"configure terminal", "ip source-guard ignore-vlan    7"}));
}

} // namespace
