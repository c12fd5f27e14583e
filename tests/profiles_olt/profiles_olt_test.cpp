#include "tests/support/diff.h"

#include <sstream>

namespace {

class OltProfiles : public testing::Test {
  protected:
    OltProfiles() : orig(session.orig->pon.profiles_olt), cfg(session.cfg->pon.profiles_olt) {}

    Elements elements()
    {
        session.open();
        diff.before = orig;
        diff.after = cfg;
        return diff.elements();
    }
    std::string script() { return joined(elements()); }

    Session session;
    GPonProfilesOlt& orig;
    GPonProfilesOlt& cfg;
    Diff<GPonProfilesOlt> diff{getdiff_GPonProfilesOlt};
};

template <class Profile>
void name(Profile& profile, const std::string& text)
{
    profile.exist = 1;
    put(profile.name, text);
}

TEST_F(OltProfiles, OneChangedProfileIsTheOnlyOneShown)
{
    for (int slot = 0; slot < 32; ++slot) {
        name(orig.dhcp_ra[slot], "d" + std::to_string(slot));
        name(orig.dhcpv6_ra[slot], "six");
    }
    cfg = orig;
    cfg.dhcp_ra[5].relay_agent_enabled = 1;
    EXPECT_EQ(elements(), (Elements{"configure terminal\nprofile dhcp-ra \"d5\"", "enable"}));
}

TEST_F(OltProfiles, KeyHoldsTheLastIndexAfterwards)
{
    name(cfg.dhcp_ra[5], "d");
    diff.key[1] = 9;
    EXPECT_EQ(elements(), Elements{"configure terminal\nprofile dhcp-ra \"d\""});
    EXPECT_EQ(diff.key[0], 31);
    EXPECT_EQ(diff.key[1], 9);
}

TEST_F(OltProfiles, KindsInOrderWhateverTheirSlots)
{
    name(cfg.vlan[31], "v");
    name(cfg.address_table[4], "a");
    name(cfg.pppoe_ia[3], "p");
    name(cfg.dhcp_ra[2], "d");
    name(cfg.dhcpv6_ra[0], "six");
    EXPECT_EQ(script(), "configure terminal\nprofile vlan \"v\"\n"
                        "exit\nprofile address-table \"a\"\n"
                        "exit\nprofile pppoe-ia \"p\"\n"
                        "exit\nprofile dhcp-ra \"d\"\n"
                        "exit\nprofile dhcpv6-ra \"six\"\n");
}

TEST_F(OltProfiles, EveryStateOfAVlanProfile)
{
    for (const int slot : {0, 1, 31}) {
        name(orig.vlan[slot], "old" + std::to_string(slot));
    }
    cfg = orig;
    cfg.vlan[0] = GPonProfileOltVlan{};
    put(cfg.vlan[1].name, "new1");
    name(cfg.vlan[2], "new2");
    put(cfg.vlan[31].description, "main");
    EXPECT_EQ(script(), "configure terminal\n"
                        "no profile vlan old0\n"
                        "profile vlan \"old1\"\n"
                        "name \"new1\"\n"
                        "exit\nprofile vlan \"new2\"\n"
                        "exit\nprofile vlan \"old31\"\n"
                        "description \"main\"\n");
}

TEST_F(OltProfiles, FullDumpReachesEveryProfileInOrder)
{
    for (int slot = 0; slot < 32; ++slot) {
        const std::string number = std::to_string(slot);
        name(cfg.vlan[slot], "v" + number);
        name(cfg.address_table[slot], "a" + number);
        name(cfg.pppoe_ia[slot], "p" + number);
        name(cfg.dhcp_ra[slot], "d" + number);
        name(cfg.dhcpv6_ra[slot], "six" + number);
    }
    orig = cfg;
    diff.all = 1;

    std::string expected;
    for (const char* kind : {"vlan \"v", "address-table \"a", "pppoe-ia \"p", "dhcp-ra \"d", "dhcpv6-ra \"six"}) {
        for (int slot = 0; slot < 32; ++slot) {
            expected += "profile " + std::string(kind) + std::to_string(slot) + "\"\n";
        }
    }

    std::istringstream lines(script());
    std::string entered;
    for (std::string line; std::getline(lines, line);) {
        if (line.rfind("profile ", 0) == 0) {
            entered += line + "\n";
        }
    }
    EXPECT_EQ(entered, expected);
}

TEST_F(OltProfiles, FullDumpOfFreeSlotsSaysNothing)
{
    diff.all = 1;
    EXPECT_EQ(elements(), Elements{});
    EXPECT_EQ(diff.key[0], 31);
}

} // namespace
