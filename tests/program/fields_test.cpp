/// Every field of the configuration, by its description: a change of it alone is a command, or it stands in the list
/// below with the reason why it is none.

#include "pon/command_file_generator.h"
#include "tests/support/plausible.h"
#include "tool/describe/description.h"
#include "tool/describe/records.h"
#include "tool/script.h"

#include <cstdlib>
#include <gtest/gtest.h>
#include <map>
#include <memory>
#include <set>
#include <string>
#include <vector>

using namespace pondiff::tool;

namespace {

struct Silent {
    const char* path; ///< with * for any index
    const char* reason;
};

constexpr Silent silent_fields[] = {
    {"system.network.ACSIp", "the address of the auto-configuration server: its record diff is in no walk"},
    {"system.network.ACSMask", "the same"},
    {"system.network.ACSVid", "the same"},
    {"system.user.*.name", "names the user in its commands"},
    {"system.user.*.group.*.exist", "group memberships have no command"},
    {"system.user.*.group.*.name", "the same"},
    {"system.services.http.enabled", "HTTP shows its allow list alone"},
    {"system.services.http.access_control", "the same"},
    {"system.services.https.enabled", "HTTPS shows its allow list alone"},
    {"system.services.https.access_control", "the same"},
    {"system.services.snmp.traps.*.type", "seen only together with a new address"},
    {"system.services.snmp.pattern_cfg", "the agent's own text"},
    {"system.services.snmp.private_cfg", "the agent's own text"},
    {"system.services.snmp.binary_cfg", "the agent's own text"},
    {"system.services.syslog.enabled", "no command"},
    {"system.services.alarm.type.*.type", "names the alarm in its commands"},
    {"system.services.alarm.cfg.load_average.1", "the first average alone has a command"},
    {"system.services.alarm.cfg.load_average.2", "the same"},
    {"system.services.alarm.cfg.min_rpm", "no command"},
    {"system.services.alarm.cfg.max_rpm", "no command"},
    {"system.services.web.session_timeout", "no command"},
    {"system.services.cli.custom_ont_list_showing.serial", "the column is always shown"},
    {"system.services.cli.custom_ont_list_showing.ont_id", "the column is always shown"},
    {"system.services.log.submodule.*.dest", "the level alone has a command"},
    {"system.services.log.submodule.*.show_time", "the same"},
    {"system.services.log.submodule.*.show_prog_name", "the same"},
    {"system.services.log.submodule.*.show_level", "the same"},
    {"system.services.log.submodule.*.show_submodule_name", "the same"},
    {"system.services.acs.**", "held for the device software"},
    {"system.services.auth.**", "held for the device software"},
    {"system.services.fan.**", "held for the device software"},
    {"system.services.routing.**", "routes have entry points of their own"},
    {"system.settings.level.*.privilege.*", "privilege levels have no command"},
    {"pon.olt.general.activation.check_password", "no command"},
    {"pon.olt.general.redundancy_cfg.**", "no command"},
    {"pon.olt.general.redundancy", "no command"},
    {"pon.olt.general.l3.**", "no command"},
    {"pon.olt.general.pppoeia_shaper", "no command"},
    {"pon.olt.general.profile_olt_dhcpra_redefinition.*.exist", "an entry is identified by its VLAN and profile"},
    {"pon.olt.general.profile_olt_dhcpv6ra_redefinition.*.exist", "the same"},
    {"pon.olt.general.dba_excess_allocations", "seen only together with the reduced latency"},
    {"pon.olt.general.dba_short_cycle.gpon_port.1", "the even port of a pair decides for both"},
    {"pon.olt.general.dba_short_cycle.gpon_port.3", "the same"},
    {"pon.olt.general.dba_short_cycle.gpon_port.5", "the same"},
    {"pon.olt.general.dba_short_cycle.gpon_port.7", "the same"},
    {"pon.olt.channel.*.max_ont_count", "no command"},
    {"pon.olt.channel.*.optics.laser_sd_polarity", "no command"},
    {"pon.olt.channel.*.optics.rssi_trigger_pulse_width", "no command"},
    {"pon.ont.*.auth_method", "no command"},
    {"pon.ont.*.ems_profile_index", "the management system's own"},
    {"pon.ont.*.custom_cross_connect.*.exist", "switched on it shows what differs, switched off nothing"},
    {"pon.ont.*.port.*.poe.power_detection_status", "a status"},
    {"pon.ont.*.port.*.poe.power_classification_status", "a status"},
    {"pon.ont.*.port.*.poe.current_power_consumption", "a status"},
    {"pon.network.mcvlan", "no command"},
    {"pon.network.mccos", "no command"},
    {"pon.network.terminal_vlan.*.tag.ethertype", "no command"},
    {"pon.profiles_olt.address_table.*.table_config.aging_timer", "no command"},
    {"pon.profiles_olt.dhcp_ra.*.circuit_id_mode", "seen only together with its format"},
    {"pon.profiles_olt.dhcp_ra.*.remote_id_mode", "the same"},
    {"pon.profiles_olt.dhcpv6_ra.*.write_interface_id_option", "seen only together with the other option"},
    {"pon.profiles_olt.dhcpv6_ra.*.write_remote_id_option", "the same"},
    {"pon.profiles_olt.dhcpv6_ra.*.interface_id_mode", "seen only together with its format"},
    {"pon.profiles_olt.dhcpv6_ra.*.remote_id_mode", "the same"},
    {"pon.profiles_ont.ports.*.port.*.poe.**", "no command in a profile"},
    {"pon.profiles_ont.management.*.ont_config_file", "seen only together with a new version"},
    {"pon.profiles_ont.voice.*.ont_config_file", "the same"},
};

/// Whether a path fits a pattern: * is one step, ** at the end any number of them.
bool fits(const std::string& path, const std::string& pattern)
{
    std::size_t p = 0;
    std::size_t q = 0;
    while (q < pattern.size()) {
        if (pattern.compare(q, 2, "**") == 0)
            return true;
        if (pattern[q] == '*') {
            while (p < path.size() && path[p] != '.')
                ++p;
            ++q;
        } else if (p < path.size() && path[p] == pattern[q]) {
            ++p;
            ++q;
        } else {
            return false;
        }
    }
    return p == path.size();
}

const Silent* silent(const std::string& path)
{
    for (const Silent& field : silent_fields)
        if (fits(path, field.path))
            return &field;
    return nullptr;
}

bool is_revision(const Leaf& leaf)
{
    return leaf.field.name == "revision";
}

/// Both an ordinary value and the opposite of a flag.
void flip(const Leaf& leaf, unsigned char* at)
{
    if (is_number(leaf.field.form))
        set_number(leaf.field, at, get_number(leaf.field, at) == 0 ? 1 : 0);
    else
        at[0] ^= 1;
}

/// Arrays of records at their first, a middle and their last element; of numbers every element.
bool is_sampled(const Field& field, std::size_t index)
{
    return field.record == nullptr || index == 0 || index == field.count / 2U || index + 1U == field.count;
}

template <class Visit>
void visit_sampled(const Record& record, std::size_t offset, Path& path, const Visit& visit)
{
    for (const Field& field : record) {
        for (std::size_t i = 0; i < field.count; ++i) {
            if (!is_sampled(field, i))
                continue;
            const std::size_t at = offset + field.offset + i * field.width;
            path.push(field, i);
            if (field.record)
                visit_sampled(*field.record, at, path, visit);
            else
                visit(Leaf{field, i, at, path});
            path.pop();
        }
    }
}

bool has_command(GCfg& orig, GCfg& cfg)
{
    const std::unique_ptr<char, decltype(&std::free)> text{GetDiff(&orig, &cfg), &std::free};
    return !changes_nothing(text.get(), orig);
}

class Fields : public testing::Test {
  protected:
    /// The paths of all sampled fields whose change is a command, over the configurations that `plausible` makes.
    void collect(int number)
    {
        const auto orig = plausible(number);
        const auto cfg = plausible(number);
        auto* const bytes = reinterpret_cast<unsigned char*>(cfg.get());
        const GCfg untouched = *cfg;
        ASSERT_EQ(initiate_diff(orig.get(), cfg.get(), 0, 0), 0);
        Path root;
        visit_sampled(gcfg_record, 0, root, [&](const Leaf& leaf) {
            unsigned char before[512];
            std::memcpy(before, bytes + leaf.offset, leaf.field.width);
            flip(leaf, bytes + leaf.offset);
            if (has_command(*orig, *cfg) || has_command(*cfg, *orig))
                with_command.insert(leaf.path.text());
            every_field.emplace(leaf.path.text(), is_revision(leaf));
            // A diff of the selective tunnel sorts its list.
            std::memcpy(cfg.get(), &untouched, sizeof untouched);
        });
        finalize_diff();
    }

    std::map<std::string, bool> every_field;
    std::set<std::string> with_command;
};

TEST_F(Fields, ChangedAloneIsACommandOrIsListed)
{
    collect(0);
    collect(1);
    ASSERT_GT(every_field.size(), 2500U);
    std::set<const Silent*> used;
    for (const auto& [path, revision] : every_field) {
        const Silent* const listed = silent(path);
        const bool shown = with_command.count(path) != 0;
        if (revision)
            EXPECT_FALSE(shown) << path << " is the device software's counter";
        else if (!listed)
            EXPECT_TRUE(shown) << path << " has no command and no reason";
        else
            EXPECT_FALSE(shown) << path << " has a command, though it is listed: " << listed->reason;
        used.insert(listed);
    }
    for (const Silent& field : silent_fields)
        EXPECT_TRUE(used.count(&field)) << field.path << " is no field";
}

} // namespace
