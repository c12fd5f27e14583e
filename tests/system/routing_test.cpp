#include "tests/support/diff.h"

namespace {

void fill_route(GSystemRouteCfg& route, int host)
{
    route.exist = 1;
    put(route.prefix, {10, host, 0, 0});
    route.mask = 16;
    put(route.gateway, {192, 0, 2, host});
}

/// The diff of two routing tables in a session that knows the addresses of the new one.
class Routing : public testing::Test {
  protected:
    std::string script()
    {
        session.cfg->system.services.routing = diff.after;
        session.open();
        return diff.script();
    }

    Session session;
    Diff<GSystemRoutingCfg> diff{getdiff_GSystemRoutingCfg};
};

TEST_F(Routing, ChangedRoutesInSlotOrder)
{
    for (const int slot : {0, 1, 511}) {
        fill_route(diff.after.route[slot], slot % 256);
    }
    diff.before.route[1] = diff.after.route[1];
    EXPECT_EQ(script(), "configure terminal\n"
                        "ip route prefix 10.0.0.0 mask \"16\" gateway \"192.0.2.0\"\n"
                        "ip route prefix 10.255.0.0 mask \"16\" gateway \"192.0.2.255\"\n");
    EXPECT_EQ(diff.key[0], 511);
}

TEST_F(Routing, RemovedRouteIsEmittedWithItsClearedValues)
{
    fill_route(diff.before.route[4], 4);
    EXPECT_EQ(script(), "configure terminal\nip route prefix 0.0.0.0 mask \"0\" gateway \"0.0.0.0\"\n");
}

TEST_F(Routing, RouteThatNoLongerExistsKeepsItsValues)
{
    fill_route(diff.before.route[4], 4);
    diff.after = diff.before;
    diff.after.route[4].exist = 0;
    EXPECT_EQ(script(), "configure terminal\nip route prefix 10.4.0.0 mask \"16\" gateway \"192.0.2.4\"\n");
}

TEST_F(Routing, EachFieldOfARouteIsAChange)
{
    fill_route(diff.before.route[4], 4);
    diff.after = diff.before;
    diff.after.route[4].mask = 255;
    EXPECT_EQ(script(), "configure terminal\nip route prefix 10.4.0.0 mask \"255\" gateway \"192.0.2.4\"\n");
    diff.after = diff.before;
    put(diff.after.route[4].gateway, {255, 255, 255, 255});
    EXPECT_EQ(script(), "configure terminal\nip route prefix 10.4.0.0 mask \"16\" gateway \"255.255.255.255\"\n");
    diff.after = diff.before;
    put(diff.after.route[4].prefix, {172, 16, 0, 0});
    EXPECT_EQ(script(), "configure terminal\nip route prefix 172.16.0.0 mask \"16\" gateway \"192.0.2.4\"\n");
}

TEST_F(Routing, PrintAllForcesNoRoute)
{
    fill_route(diff.before.route[4], 4);
    fill_route(diff.before.route[5], 5);
    diff.after = diff.before;
    diff.all = 1;
    diff.common = 2;
    EXPECT_EQ(script(), "");
    EXPECT_EQ(diff.key[0], 511);
    diff.after.route[5].mask = 8;
    EXPECT_EQ(script(), "configure terminal\nip route prefix 10.5.0.0 mask \"8\" gateway \"192.0.2.5\"\n");
}

TEST_F(Routing, SingleRouteIsForcedByPrintAll)
{
    session.open();
    Diff route{getdiff_GSystemRouteCfg};
    route.key[0] = 7;
    fill_route(route.before, 4);
    route.after = route.before;
    EXPECT_EQ(route.elements(), Elements{});
    route.all = 1;
    EXPECT_EQ(route.elements(),
              (Elements{"configure terminal", "ip route prefix 0.0.0.0 mask \"16\" gateway \"192.0.2.4\""}));
}

TEST_F(Routing, AddressOutsideTheTableIsEmpty)
{
    session.open();
    Diff route{getdiff_GSystemRouteCfg};
    route.key[0] = 512;
    route.after.mask = 1;
    EXPECT_EQ(route.elements(), (Elements{"configure terminal", "ip route prefix  mask \"1\" gateway \"0.0.0.0\""}));
}

TEST_F(Routing, RoutesAreNoPartOfAFullDiff)
{
    fill_route(session.cfg->system.services.routing.route[0], 1);
    session.open();
    EXPECT_EQ(session.full_diff(), "");
}

} // namespace
