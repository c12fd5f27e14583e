#include "pon/DataToCommandsConvertor/views.h"

#include <cstddef>
#include <gtest/gtest.h>
#include <string>

using namespace pondiff;

namespace {

struct Entry {
    const char* name;
    const char* command;
    int id_count;
};

constexpr Entry REGISTRY[] = {
    {"root", "exit", 0},
    {"configure-view", "configure terminal", 0},
    {"if-gpon-view", "interface gpon-port $ID0", 1},
    {"if-ont-view", "interface ont $ID0", 1},
    {"address-table-view", "profile address-table $ID0", 1},
    {"container-view", "profile container $ID0", 1},
    {"cross-connect-view", "profile cross-connect $ID0", 1},
    {"dba-view", "profile dba $ID0", 1},
    {"template-view", "template $ID0", 1},
    {"dhcp-ra-view", "profile dhcp-ra $ID0", 1},
    {"management-view", "profile management $ID0", 1},
    {"ports-view", "profile ports $ID0", 1},
    {"voice-view", "profile voice $ID0", 1},
    {"pppoe-ia-view", "profile pppoe-ia $ID0", 1},
    {"shaping-view", "profile shaping $ID0", 1},
    {"vlan-view", "profile vlan $ID0", 1},
    {"dhcpv6-ra-view", "profile dhcpv6-ra $ID0", 1},
};

struct Row {
    const char* from;
    const char* to;
    const char* commandto;
    const char* commandfrom;
};

// The misspelled "managemant-view" stands in two rows of the device's table and stays.
constexpr Row ROWS[] = {
    {"root", "configure-view", "configure terminal", "exit"},
    {"root", "if-gpon-view", "configure terminal\ninterface gpon-port $ID0", "exit\nexit"},
    {"root", "template-view", "configure terminal\ntemplate $ID0", "exit\nexit"},
    {"root", "if-ont-view", "configure terminal\ninterface ont $ID0", "exit\nexit"},
    {"root", "address-table-view", "configure terminal\nprofile address-table $ID0", "exit\nexit"},
    {"root", "container-view", "configure terminal\nprofile container $ID0", "exit\nexit"},
    {"root", "cross-connect-view", "configure terminal\nprofile cross-connect $ID0", "exit\nexit"},
    {"root", "dba-view", "configure terminal\nprofile dba $ID0", "exit\nexit"},
    {"root", "dhcp-ra-view", "configure terminal\nprofile dhcp-ra $ID0", "exit\nexit"},
    {"root", "dhcpv6-ra-view", "configure terminal\nprofile dhcpv6-ra $ID0", "exit\nexit"},
    {"root", "management-view", "configure terminal\nprofile management $ID0", "exit\nexit"},
    {"root", "ports-view", "configure terminal\nprofile ports $ID0", "exit\nexit"},
    {"root", "voice-view", "configure terminal\nprofile voice $ID0", "exit\nexit"},
    {"root", "pppoe-ia-view", "configure terminal\nprofile pppoe-ia $ID0", "exit\nexit"},
    {"root", "shaping-view", "configure terminal\nprofile shaping $ID0", "exit\nexit"},
    {"root", "vlan-view", "configure terminal\nprofile vlan $ID0", "exit\nexit"},
    {"configure-view", "if-gpon-view", "interface gpon-port $ID0", "exit"},
    {"configure-view", "template-view", "template $ID0", "exit"},
    {"configure-view", "if-ont-view", "interface ont $ID0", "exit"},
    {"configure-view", "address-table-view", "profile address-table $ID0", "exit"},
    {"configure-view", "container-view", "profile container $ID0", "exit"},
    {"configure-view", "cross-connect-view", "profile cross-connect $ID0", "exit"},
    {"configure-view", "dba-view", "profile dba $ID0", "exit"},
    {"configure-view", "dhcp-ra-view", "profile dhcp-ra $ID0", "exit"},
    {"configure-view", "dhcpv6-ra-view", "profile dhcpv6-ra $ID0", "exit"},
    {"configure-view", "management-view", "profile management $ID0", "exit"},
    {"configure-view", "ports-view", "profile ports $ID0", "exit"},
    {"configure-view", "voice-view", "profile voice $ID0", "exit"},
    {"configure-view", "pppoe-ia-view", "profile pppoe-ia $ID0", "exit"},
    {"configure-view", "shaping-view", "profile shaping $ID0", "exit"},
    {"configure-view", "vlan-view", "profile vlan $ID0", "exit"},
    {"if-gpon-view", "if-gpon-view", "exit\ninterface gpon-port $ID0", "exit\ninterface gpon-port $ID0"},
    {"if-gpon-view", "template-view", "exit\ntemplate $ID0", "exit\ninterface gpon-port $ID0"},
    {"if-gpon-view", "if-ont-view", "exit\ninterface ont $ID0", "exit\ninterface gpon-port $ID0"},
    {"if-gpon-view", "address-table-view", "exit\nprofile address-table $ID0", "exit\ninterface gpon-port $ID0"},
    {"if-gpon-view", "container-view", "exit\nprofile container $ID0", "exit\ninterface gpon-port $ID0"},
    {"if-gpon-view", "cross-connect-view", "exit\nprofile cross-connect $ID0", "exit\ninterface gpon-port $ID0"},
    {"if-gpon-view", "dba-view", "exit\nprofile dba $ID0", "exit\ninterface gpon-port $ID0"},
    {"if-gpon-view", "dhcp-ra-view", "exit\nprofile dhcp-ra $ID0", "exit\ninterface gpon-port $ID0"},
    {"if-gpon-view", "dhcpv6-ra-view", "exit\nprofile dhcpv6-ra $ID0", "exit\ninterface gpon-port $ID0"},
    {"if-gpon-view", "management-view", "exit\nprofile management $ID0", "exit\ninterface gpon-port $ID0"},
    {"if-gpon-view", "ports-view", "exit\nprofile ports $ID0", "exit\ninterface gpon-port $ID0"},
    {"if-gpon-view", "voice-view", "exit\nprofile voice $ID0", "exit\ninterface gpon-port $ID0"},
    {"if-gpon-view", "pppoe-ia-view", "exit\nprofile pppoe-ia $ID0", "exit\ninterface gpon-port $ID0"},
    {"if-gpon-view", "shaping-view", "exit\nprofile shaping $ID0", "exit\ninterface gpon-port $ID0"},
    {"if-gpon-view", "vlan-view", "exit\nprofile vlan $ID0", "exit\ninterface gpon-port $ID0"},
    {"if-ont-view", "if-gpon-view", "exit\ninterface gpon-port $ID0", "exit\ninterface ont $ID0"},
    {"if-ont-view", "template-view", "exit\ntemplate $ID0", "exit\ninterface ont $ID0"},
    {"if-ont-view", "if-ont-view", "exit\ninterface ont $ID0", "exit\ninterface ont $ID0"},
    {"if-ont-view", "address-table-view", "exit\nprofile address-table $ID0", "exit\ninterface ont $ID0"},
    {"if-ont-view", "container-view", "exit\nprofile container $ID0", "exit\ninterface ont $ID0"},
    {"if-ont-view", "cross-connect-view", "exit\nprofile cross-connect $ID0", "exit\ninterface ont $ID0"},
    {"if-ont-view", "dba-view", "exit\nprofile dba $ID0", "exit\ninterface ont $ID0"},
    {"if-ont-view", "dhcp-ra-view", "exit\nprofile dhcp-ra $ID0", "exit\ninterface ont $ID0"},
    {"if-ont-view", "dhcpv6-ra-view", "exit\nprofile dhcpv6-ra $ID0", "exit\ninterface ont $ID0"},
    {"if-ont-view", "management-view", "exit\nprofile management $ID0", "exit\ninterface ont $ID0"},
    {"if-ont-view", "ports-view", "exit\nprofile ports $ID0", "exit\ninterface ont $ID0"},
    {"if-ont-view", "voice-view", "exit\nprofile voice $ID0", "exit\ninterface ont $ID0"},
    {"if-ont-view", "pppoe-ia-view", "exit\nprofile pppoe-ia $ID0", "exit\ninterface ont $ID0"},
    {"if-ont-view", "shaping-view", "exit\nprofile shaping $ID0", "exit\ninterface ont $ID0"},
    {"if-ont-view", "vlan-view", "exit\nprofile vlan $ID0", "exit\ninterface ont $ID0"},
    {"address-table-view", "address-table-view", "exit\nprofile address-table $ID0",
     "exit\nprofile address-table $ID0"},
    {"address-table-view", "if-gpon-view", "exit\ninterface gpon-port $ID0", "exit\nprofile address-table $ID0"},
    {"address-table-view", "template-view", "exit\ntemplate $ID0", "exit\nprofile address-table $ID0"},
    {"address-table-view", "if-ont-view", "exit\ninterface ont $ID0", "exit\nprofile address-table $ID0"},
    {"address-table-view", "container-view", "exit\nprofile container $ID0", "exit\nprofile address-table $ID0"},
    {"address-table-view", "cross-connect-view", "exit\nprofile cross-connect $ID0",
     "exit\nprofile address-table $ID0"},
    {"address-table-view", "dba-view", "exit\nprofile dba $ID0", "exit\nprofile address-table $ID0"},
    {"address-table-view", "dhcp-ra-view", "exit\nprofile dhcp-ra $ID0", "exit\nprofile address-table $ID0"},
    {"address-table-view", "dhcpv6-ra-view", "exit\nprofile dhcpv6-ra $ID0", "exit\nprofile address-table $ID0"},
    {"address-table-view", "management-view", "exit\nprofile management $ID0", "exit\nprofile address-table $ID0"},
    {"address-table-view", "ports-view", "exit\nprofile ports $ID0", "exit\nprofile address-table $ID0"},
    {"address-table-view", "voice-view", "exit\nprofile voice $ID0", "exit\nprofile address-table $ID0"},
    {"address-table-view", "pppoe-ia-view", "exit\nprofile pppoe-ia $ID0", "exit\nprofile address-table $ID0"},
    {"address-table-view", "shaping-view", "exit\nprofile shaping $ID0", "exit\nprofile address-table $ID0"},
    {"address-table-view", "vlan-view", "exit\nprofile vlan $ID0", "exit\nprofile address-table $ID0"},
    {"container-view", "container-view", "exit\nprofile container $ID0", "exit\nprofile container $ID0"},
    {"container-view", "if-gpon-view", "exit\ninterface gpon-port $ID0", "exit\nprofile container $ID0"},
    {"container-view", "template-view", "exit\ntemplate $ID0", "exit\nprofile container $ID0"},
    {"container-view", "if-ont-view", "exit\ninterface ont $ID0", "exit\nprofile container $ID0"},
    {"container-view", "address-table-view", "exit\nprofile address-table $ID0", "exit\nprofile container $ID0"},
    {"container-view", "cross-connect-view", "exit\nprofile cross-connect $ID0", "exit\nprofile container $ID0"},
    {"container-view", "dba-view", "exit\nprofile dba $ID0", "exit\nprofile container $ID0"},
    {"container-view", "dhcp-ra-view", "exit\nprofile dhcp-ra $ID0", "exit\nprofile container $ID0"},
    {"container-view", "dhcpv6-ra-view", "exit\nprofile dhcpv6-ra $ID0", "exit\nprofile container $ID0"},
    {"container-view", "management-view", "exit\nprofile management $ID0", "exit\nprofile container $ID0"},
    {"container-view", "ports-view", "exit\nprofile ports $ID0", "exit\nprofile container $ID0"},
    {"container-view", "voice-view", "exit\nprofile voice $ID0", "exit\nprofile container $ID0"},
    {"container-view", "pppoe-ia-view", "exit\nprofile pppoe-ia $ID0", "exit\nprofile container $ID0"},
    {"container-view", "shaping-view", "exit\nprofile shaping $ID0", "exit\nprofile container $ID0"},
    {"container-view", "vlan-view", "exit\nprofile vlan $ID0", "exit\nprofile container $ID0"},
    {"cross-connect-view", "cross-connect-view", "exit\nprofile cross-connect $ID0",
     "exit\nprofile cross-connect $ID0"},
    {"cross-connect-view", "dba-view", "exit\nprofile dba $ID0", "exit\nprofile cross-connect $ID0"},
    {"cross-connect-view", "if-gpon-view", "exit\ninterface gpon-port $ID0", "exit\nprofile cross-connect $ID0"},
    {"cross-connect-view", "template-view", "exit\ntemplate $ID0", "exit\nprofile cross-connect $ID0"},
    {"cross-connect-view", "if-ont-view", "exit\ninterface ont $ID0", "exit\nprofile cross-connect $ID0"},
    {"cross-connect-view", "address-table-view", "exit\nprofile address-table $ID0",
     "exit\nprofile cross-connect $ID0"},
    {"cross-connect-view", "container-view", "exit\nprofile container $ID0", "exit\nprofile cross-connect $ID0"},
    {"cross-connect-view", "dhcp-ra-view", "exit\nprofile dhcp-ra $ID0", "exit\nprofile cross-connect $ID0"},
    {"cross-connect-view", "dhcpv6-ra-view", "exit\nprofile dhcpv6-ra $ID0", "exit\nprofile cross-connect $ID0"},
    {"cross-connect-view", "management-view", "exit\nprofile management $ID0", "exit\nprofile cross-connect $ID0"},
    {"cross-connect-view", "ports-view", "exit\nprofile ports $ID0", "exit\nprofile cross-connect $ID0"},
    {"cross-connect-view", "voice-view", "exit\nprofile voice $ID0", "exit\nprofile cross-connect $ID0"},
    {"cross-connect-view", "pppoe-ia-view", "exit\nprofile pppoe-ia $ID0", "exit\nprofile cross-connect $ID0"},
    {"cross-connect-view", "shaping-view", "exit\nprofile shaping $ID0", "exit\nprofile cross-connect $ID0"},
    {"cross-connect-view", "vlan-view", "exit\nprofile vlan $ID0", "exit\nprofile cross-connect $ID0"},
    {"dba-view", "dba-view", "exit\nprofile dba $ID0", "exit\nprofile dba $ID0"},
    {"dba-view", "ports-view", "exit\nprofile ports $ID0", "exit\nprofile dba $ID0"},
    {"dba-view", "voice-view", "exit\nprofile voice $ID0", "exit\nprofile dba $ID0"},
    {"dba-view", "if-gpon-view", "exit\ninterface gpon-port $ID0", "exit\nprofile dba $ID0"},
    {"dba-view", "template-view", "exit\ntemplate $ID0", "exit\nprofile dba $ID0"},
    {"dba-view", "if-ont-view", "exit\ninterface ont $ID0", "exit\nprofile dba $ID0"},
    {"dba-view", "address-table-view", "exit\nprofile address-table $ID0", "exit\nprofile dba $ID0"},
    {"dba-view", "container-view", "exit\nprofile container $ID0", "exit\nprofile dba $ID0"},
    {"dba-view", "cross-connect-view", "exit\nprofile cross-connect $ID0", "exit\nprofile dba $ID0"},
    {"dba-view", "dhcp-ra-view", "exit\nprofile dhcp-ra $ID0", "exit\nprofile dba $ID0"},
    {"dba-view", "dhcpv6-ra-view", "exit\nprofile dhcpv6-ra $ID0", "exit\nprofile dba $ID0"},
    {"dba-view", "management-view", "exit\nprofile management $ID0", "exit\nprofile dba $ID0"},
    {"dba-view", "pppoe-ia-view", "exit\nprofile pppoe-ia $ID0", "exit\nprofile dba $ID0"},
    {"dba-view", "shaping-view", "exit\nprofile shaping $ID0", "exit\nprofile dba $ID0"},
    {"dba-view", "vlan-view", "exit\nprofile vlan $ID0", "exit\nprofile dba $ID0"},
    {"dhcp-ra-view", "dhcp-ra-view", "exit\nprofile dhcp-ra $ID0", "exit\nprofile dhcp-ra $ID0"},
    {"dhcp-ra-view", "template-view", "exit\ntemplate $ID0", "exit\nprofile dhcp-ra $ID0"},
    {"dhcp-ra-view", "management-view", "exit\nprofile management $ID0", "exit\nprofile dhcp-ra $ID0"},
    {"dhcp-ra-view", "ports-view", "exit\nprofile ports $ID0", "exit\nprofile dhcp-ra $ID0"},
    {"dhcp-ra-view", "voice-view", "exit\nprofile voice $ID0", "exit\nprofile dhcp-ra $ID0"},
    {"dhcp-ra-view", "pppoe-ia-view", "exit\nprofile pppoe-ia $ID0", "exit\nprofile dhcp-ra $ID0"},
    {"dhcp-ra-view", "shaping-view", "exit\nprofile shaping $ID0", "exit\nprofile dhcp-ra $ID0"},
    {"dhcp-ra-view", "vlan-view", "exit\nprofile vlan $ID0", "exit\nprofile dhcp-ra $ID0"},
    {"dhcp-ra-view", "dhcpv6-ra-view", "exit\nprofile dhcpv6-ra $ID0", "exit\nprofile dhcp-ra $ID0"},
    {"dhcpv6-ra-view", "dhcpv6-ra-view", "exit\nprofile dhcpv6-ra $ID0", "exit\nprofile dhcpv6-ra $ID0"},
    {"dhcpv6-ra-view", "template-view", "exit\ntemplate $ID0", "exit\nprofile dhcpv6-ra $ID0"},
    {"dhcpv6-ra-view", "management-view", "exit\nprofile management $ID0", "exit\nprofile dhcpv6-ra $ID0"},
    {"dhcpv6-ra-view", "ports-view", "exit\nprofile ports $ID0", "exit\nprofile dhcpv6-ra $ID0"},
    {"dhcpv6-ra-view", "voice-view", "exit\nprofile voice $ID0", "exit\nprofile dhcpv6-ra $ID0"},
    {"dhcpv6-ra-view", "pppoe-ia-view", "exit\nprofile pppoe-ia $ID0", "exit\nprofile dhcpv6-ra $ID0"},
    {"dhcpv6-ra-view", "shaping-view", "exit\nprofile shaping $ID0", "exit\nprofile dhcpv6-ra $ID0"},
    {"dhcpv6-ra-view", "vlan-view", "exit\nprofile vlan $ID0", "exit\nprofile dhcpv6-ra $ID0"},
    {"management-view", "management-view", "exit\nprofile management $ID0", "exit\nprofile management $ID0"},
    {"management-view", "template-view", "exit\ntemplate $ID0", "exit\nprofile management $ID0"},
    {"management-view", "ports-view", "exit\nprofile ports $ID0", "exit\nprofile management $ID0"},
    {"management-view", "voice-view", "exit\nprofile voice $ID0", "exit\nprofile management $ID0"},
    {"management-view", "pppoe-ia-view", "exit\nprofile pppoe-ia $ID0", "exit\nprofile management $ID0"},
    {"management-view", "shaping-view", "exit\nprofile shaping $ID0", "exit\nprofile management $ID0"},
    {"management-view", "vlan-view", "exit\nprofile vlan $ID0", "exit\nprofile management $ID0"},
    {"ports-view", "ports-view", "exit\nprofile ports $ID0", "exit\nprofile ports $ID0"},
    {"ports-view", "managemant-view", "exit\nprofile management $ID0", "exit\nprofile ports $ID0"},
    {"ports-view", "template-view", "exit\ntemplate $ID0", "exit\nprofile ports $ID0"},
    {"ports-view", "ports-view", "exit\nprofile ports $ID0", "exit\nprofile ports $ID0"},
    {"ports-view", "pppoe-ia-view", "exit\nprofile pppoe-ia $ID0", "exit\nprofile ports $ID0"},
    {"ports-view", "shaping-view", "exit\nprofile shaping $ID0", "exit\nprofile ports $ID0"},
    {"ports-view", "vlan-view", "exit\nprofile vlan $ID0", "exit\nprofile ports $ID0"},
    {"voice-view", "voice-view", "exit\nprofile voice $ID0", "exit\nprofile voice $ID0"},
    {"voice-view", "managemant-view", "exit\nprofile management $ID0", "exit\nprofile voice $ID0"},
    {"voice-view", "template-view", "exit\ntemplate $ID0", "exit\nprofile voice $ID0"},
    {"voice-view", "ports-view", "exit\nprofile ports $ID0", "exit\nprofile voice $ID0"},
    {"voice-view", "pppoe-ia-view", "exit\nprofile pppoe-ia $ID0", "exit\nprofile voice $ID0"},
    {"voice-view", "shaping-view", "exit\nprofile shaping $ID0", "exit\nprofile voice $ID0"},
    {"voice-view", "vlan-view", "exit\nprofile vlan $ID0", "exit\nprofile voice $ID0"},
    {"pppoe-ia-view", "pppoe-ia-view", "exit\nprofile pppoe-ia $ID0", "exit\nprofile pppoe-ia $ID0"},
    {"pppoe-ia-view", "template-view", "exit\ntemplate $ID0", "exit\nprofile pppoe-ia $ID0"},
    {"pppoe-ia-view", "pppoe-ia-view", "exit\nprofile pppoe-ia $ID0", "exit\nprofile pppoe-ia $ID0"},
    {"pppoe-ia-view", "shaping-view", "exit\nprofile shaping $ID0", "exit\nprofile pppoe-ia $ID0"},
    {"pppoe-ia-view", "vlan-view", "exit\nprofile vlan $ID0", "exit\nprofile pppoe-ia $ID0"},
    {"shaping-view", "shaping-view", "exit\nprofile shaping $ID0", "exit\nprofile shaping $ID0"},
    {"shaping-view", "template-view", "exit\ntemplate $ID0", "exit\nprofile shaping $ID0"},
    {"shaping-view", "vlan-view", "exit\nprofile vlan $ID0", "exit\nprofile shaping $ID0"},
    {"vlan-view", "vlan-view", "exit\nprofile vlan $ID0", "exit\nprofile vlan $ID0"},
    {"vlan-view", "template-view", "exit\ntemplate $ID0", "exit\nprofile vlan $ID0"},
    {"template-view", "template-view", "exit\ntemplate $ID0", "exit\ntemplate $ID0"},
};

constexpr std::size_t ROW_COUNT = sizeof ROWS / sizeof ROWS[0];
static_assert(ROW_COUNT == 170, "rows of the view-to-view table");
static_assert(sizeof REGISTRY / sizeof REGISTRY[0] == 17, "entries of the registry");

std::string text(const view2view::Way& way)
{
    return std::string(way.lead ? way.lead : "") + (way.enter ? way.enter : "");
}

} // namespace

TEST(ViewRegistry, HoldsTheSeventeenViewsInOrder)
{
    ASSERT_EQ(view_count(), 17U);
    for (std::size_t i = 0; i < 17; i++) {
        SCOPED_TRACE(i);
        EXPECT_STREQ(view(i).name, REGISTRY[i].name);
        EXPECT_STREQ(view(i).command, REGISTRY[i].command);
        EXPECT_EQ(view(i).id_count, REGISTRY[i].id_count);
    }
}

TEST(ViewTable, HoldsEveryRowInOrder)
{
    ASSERT_EQ(view2view_count(), ROW_COUNT);
    for (std::size_t i = 0; i < ROW_COUNT; i++) {
        SCOPED_TRACE(i);
        const view2view row = view2view_row(i);
        EXPECT_STREQ(row.from, ROWS[i].from);
        EXPECT_STREQ(row.to, ROWS[i].to);
        EXPECT_EQ(text(row.commandto), ROWS[i].commandto);
        EXPECT_EQ(text(row.commandfrom), ROWS[i].commandfrom);
    }
}

TEST(ViewTable, JoinsEveryTwoViews)
{
    for (const Entry& from : REGISTRY) {
        for (const Entry& to : REGISTRY) {
            if (&from == &to && to.id_count == 0)
                continue; // the top level and the configuration mode are never entered anew
            bool joined = false;
            for (std::size_t i = 0; i < view2view_count() && !joined; i++) {
                const view2view row = view2view_row(i);
                joined = (std::string(from.name) == row.from && std::string(to.name) == row.to) ||
                         (std::string(from.name) == row.to && std::string(to.name) == row.from);
            }
            EXPECT_TRUE(joined) << from.name << " to " << to.name;
        }
    }
}
