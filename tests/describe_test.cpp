#include "platform/platform.h"
#include "tool/describe/description.h"
#include "tool/describe/records.h"
#include "tool/describe/table.h"

#include <cstring>
#include <gtest/gtest.h>
#include <map>
#include <memory>
#include <set>
#include <string>
#include <utility>
#include <vector>

using namespace pondiff::tool;

namespace {

// ------------------------------------------------------------------------------------------- what does not compile

struct __attribute__((packed)) Pair {
    std::uint16_t first;
    char second[5];
};

struct __attribute__((packed)) OtherPair {
    std::uint16_t first;
    char second[5];
};

constexpr Field complete[] = {number(FIELD(Pair, first)), text(FIELD(Pair, second))};
constexpr Field without_last[] = {number(FIELD(Pair, first))};
constexpr Field without_first[] = {text(FIELD(Pair, second))};
constexpr Field swapped[] = {text(FIELD(Pair, second)), number(FIELD(Pair, first))};
constexpr Field twice[] = {number(FIELD(Pair, first)), number(FIELD(Pair, first)), text(FIELD(Pair, second))};
constexpr Field of_another[] = {number(FIELD(Pair, first)), text(FIELD(OtherPair, second))};

static_assert(tile<Pair>(complete) && belong(complete, "Pair"));
static_assert(!tile<Pair>(without_last));
static_assert(!tile<Pair>(without_first));
static_assert(!tile<Pair>(swapped));
static_assert(!tile<Pair>(twice));
static_assert(tile<Pair>(of_another) && !belong(of_another, "Pair"));

/// Whether a table compiles whose first line has this syntax.
constexpr bool compiles(const Syntax& syntax, const Syntax& second = no_command("a reason"))
{
    const Field table[] = {number(FIELD(Pair, first), syntax), text(FIELD(Pair, second), second)};
    return have_syntax(table);
}

static_assert(compiles(says("first <#> <first> [second <second>]", "no first")));
static_assert(compiles(says("<*> first <first> {second=0}"), with("first")));
static_assert(compiles(says("first <first> [second:second]"), with("first")));
static_assert(!compiles({}));
static_assert(!compiles(says("first <frist>")));
static_assert(!compiles(says("first <second>")));
static_assert(!compiles(says("first <first")));
static_assert(!compiles(says("first first>")));
static_assert(!compiles(says("first <first> [second <second>")));
static_assert(!compiles(says("first <first> second]")));
static_assert(!compiles(says("first <first> [third:third]")));
static_assert(!compiles(says("first <first> {third=0}")));
static_assert(!compiles(says("first <first>", "no first <third>")));
static_assert(!compiles(says("first <first>"), with("first")));
static_assert(!compiles(says("first <first> <second>"), with("third")));
static_assert(!compiles(no_command("a reason"), with("first")));
static_assert(!compiles(no_command(nullptr)) && !compiles(no_command("")));
static_assert(!compiles(says("first <first> <second>"), with(nullptr)));

/// The same of a table of one switch.
constexpr bool compiles_switch(const Syntax& syntax)
{
    struct __attribute__((packed)) Switch {
        std::uint16_t on;
    };
    const Field table[] = {boolean(FIELD(Switch, on), syntax)};
    return have_syntax(table);
}

constexpr const char* bits[] = {"bit"};

static_assert(compiles_switch(on_off("on", "no on")));
static_assert(compiles_switch(on_off(nullptr, "no on")) && compiles_switch(on_off("on", nullptr)));
static_assert(!compiles_switch(on_off(nullptr, nullptr)));
static_assert(compiles_switch(flags("on <#>", "no on <#>", bits)));
static_assert(!compiles_switch(flags(nullptr, "no on <#>", bits)) && !compiles_switch(flags("on <#>", nullptr, bits)));
static_assert(compiles_switch(whatever_the_value("on")) && !compiles_switch(whatever_the_value(nullptr)));
static_assert(compiles_switch(irregular("on <?>", nullptr, [](Taking&) {})));
static_assert(!compiles_switch(irregular("on <?>", nullptr, nullptr)));
static_assert(!compiles_switch(irregular(nullptr, nullptr, [](Taking&) {})));
static_assert(compiles_switch(counter) && compiles_switch(existence));

// --------------------------------------------------------------------------------------------------------- helpers

void collect(const Record& record, std::map<std::string, const Record*>& records)
{
    records[record.name] = &record;
    for (const Field& field : record) {
        if (field.record != nullptr) {
            collect(*field.record, records);
        }
    }
}

std::map<std::string, const Record*> all_records()
{
    std::map<std::string, const Record*> records;
    collect(gcfg_record, records);
    return records;
}

/// "GSystemUser.password" for each field of which `wanted` is true.
template <class Wanted>
std::set<std::string> fields_that(Wanted wanted)
{
    std::set<std::string> result;
    for (const auto& [name, record] : all_records()) {
        for (const Field& field : *record) {
            if (wanted(field)) {
                result.insert(name + "." + std::string(field.name));
            }
        }
    }
    return result;
}

std::unique_ptr<GCfg> blank()
{
    auto record = std::make_unique<GCfg>();
    std::memset(record.get(), 0, sizeof(GCfg));
    return record;
}

std::vector<std::string> differences(const GCfg& a, const GCfg& b)
{
    std::vector<std::string> paths;
    for_each_difference(gcfg_record, &a, &b, [&paths](const Leaf& leaf) { paths.push_back(leaf.path.text()); });
    return paths;
}

using Paths = std::vector<std::string>;

} // namespace

// ------------------------------------------------------------------------------------------------------ the tables

TEST(Describe, NumbersHaveTheLimitsOfTheirFields)
{
    const auto find = [](const Record& record, std::string_view name) -> const Field& {
        for (const Field& field : record) {
            if (field.name == name) {
                return field;
            }
        }
        throw std::runtime_error("no such field");
    };
    const Field& offset = find(ntp_record, "timezone");
    EXPECT_EQ(smallest(offset), -32768);
    EXPECT_EQ(largest(offset), 32767);
    const Field& period = find(tftp_record, "backup_on_timer_period");
    EXPECT_EQ(smallest(period), -2147483648LL);
    EXPECT_EQ(largest(period), 2147483647LL);
    const Field& interval = find(ont_record, "ber_interval");
    EXPECT_EQ(smallest(interval), 0);
    EXPECT_EQ(largest(interval), 4294967295LL);
    const Field& alloc = find(ont_record, "profile_ont_alloc");
    EXPECT_TRUE(alloc.array);
    EXPECT_EQ(smallest(alloc), -32768);
    EXPECT_FALSE(find(ont_record, "password").array);
}

TEST(Describe, NumbersOfEveryWidthAndSignAreReadAndSet)
{
    const auto record = blank();
    auto* const bytes = reinterpret_cast<unsigned char*>(record.get());
    std::set<std::pair<unsigned, bool>> kinds;
    for_each_leaf(gcfg_record, [&](const Leaf& leaf) {
        if (!is_number(leaf.field.form)) {
            return;
        }
        for (const std::int64_t number : {smallest(leaf.field), largest(leaf.field), std::int64_t{1}}) {
            set_number(leaf.field, bytes + leaf.offset, number);
            ASSERT_EQ(get_number(leaf.field, bytes + leaf.offset), number) << leaf.path.text();
        }
        kinds.insert({leaf.field.width, leaf.field.is_signed});
    });
    const std::set<std::pair<unsigned, bool>> expected = {{1, false}, {1, true},  {2, false},
                                                          {2, true},  {4, false}, {4, true}};
    EXPECT_EQ(kinds, expected);
    EXPECT_EQ(static_cast<int>(record->system.services.alarm.cfg.min_temperature[1]), 1);
}

TEST(Describe, EveryEnumerationIsTheRegistrys)
{
    const std::string unknown = gpon_enum_find_name_by_type("", 0);
    for (const auto& [name, record] : all_records()) {
        for (const Field& field : *record) {
            if (field.form != Form::enumeration) {
                continue;
            }
            bool known = false;
            for (int value = 0; value < 16 && !known; ++value) {
                known = gpon_enum_find_name_by_type(field.enumeration, value) != unknown;
            }
            EXPECT_TRUE(known) << name << "." << field.name << " " << field.enumeration;
        }
    }
}

/// Documents show the registry's words, commands the library's own: on hosts, they are the same.
TEST(Describe, RegistryHasTheWordsOfTheLibrary)
{
    const std::string unknown = gpon_enum_find_name_by_type("", 0);
    std::size_t compared = 0;
    for (const auto& [name, record] : all_records()) {
        for (const Field& field : *record) {
            if (field.form != Form::enumeration || field.syntax.vocabulary == nullptr) {
                continue;
            }
            for (int value = 0; value < 1024; ++value) {
                const std::string word = gpon_enum_find_name_by_type(field.enumeration, value);
                const char* const own = field.syntax.vocabulary(value);
                if (word != unknown) {
                    EXPECT_EQ(own == nullptr ? "" : own, word) << name << "." << field.name << " " << value;
                    ++compared;
                }
            }
        }
    }
    EXPECT_GT(compared, 100U);
}

TEST(Describe, EveryArrayNamesItsElements)
{
    for (const auto& [name, record] : all_records()) {
        for (const Field& field : *record) {
            EXPECT_EQ(field.array, field.plural != nullptr) << name << "." << field.name;
        }
    }
}

TEST(Describe, SecretsAreMarked)
{
    const std::set<std::string> expected = {
        "GSystemUser.password",         "GSystemAcsCfg.password",
        "GSystemAuthNetCfg.secret",     "GSystemSnmpCfg.communityro",
        "GSystemSnmpCfg.communityrw",   "GSystemSnmpCfg.trap",
        "GSystemSnmpCfg.private_cfg",   "GPonOntCfg.password",
        "GPonOntVoicePort.auth_passwd", "GPonProfileOntManagement.password",
        "GPonTemplateOnt.password",
    };
    EXPECT_EQ(fields_that([](const Field& field) { return field.form == Form::secret; }), expected);
}

TEST(Describe, ReferencesNameWhatTheyReferTo)
{
    const std::map<std::string, Reference> expected = {
        {"GPonOltChannelCfg.profile_olt_vlan", Reference::vlan},
        {"GPonOltChannelCfg.profile_olt_address_table", Reference::address_table},
        {"GPonOltGeneralCfg.profile_olt_pppoeia", Reference::pppoe_ia},
        {"GPonOltGeneralCfg.profile_olt_dhcpra", Reference::dhcp_ra},
        {"GPonOltGeneralCfg.profile_olt_dhcpv6ra", Reference::dhcpv6_ra},
        {"GPonOltDhcpraCfgByVid.profile", Reference::dhcp_ra},
        {"GPonOltDhcpv6raCfgByVid.profile", Reference::dhcpv6_ra},
        {"GPonOntCfg.profile_ont_shaping", Reference::shaping},
        {"GPonOntCfg.profile_ont_cross_connect", Reference::cross_connect},
        {"GPonOntCfg.profile_ont_alloc", Reference::alloc},
        {"GPonOntCfg.profile_ont_ports", Reference::ports},
        {"GPonOntCfg.profile_ont_voice", Reference::voice},
        {"GPonOntCfg.profile_ont_management", Reference::management},
        {"GPonOntCfg.template_ont", Reference::template_ont},
        {"GPonTemplateOnt.profile_ont_shaping", Reference::shaping},
        {"GPonTemplateOnt.profile_ont_cross_connect", Reference::cross_connect},
        {"GPonTemplateOnt.profile_ont_alloc", Reference::alloc},
        {"GPonTemplateOnt.profile_ont_ports", Reference::ports},
        {"GPonTemplateOnt.profile_ont_voice", Reference::voice},
        {"GPonTemplateOnt.profile_ont_management", Reference::management},
        {"GPonProfileOntCrossConnect.outer_vid", Reference::terminal_vlan_id},
        {"GPonProfileOntCrossConnect.inner_vid", Reference::terminal_vlan_id},
        {"GPonProfileOntCrossConnect.u_vid", Reference::terminal_vlan_id},
        {"GPonProfileOntCrossConnect.outer_cos", Reference::terminal_vlan_priority},
        {"GPonProfileOntCrossConnect.u_cos", Reference::terminal_vlan_priority},
    };
    std::map<std::string, Reference> references;
    for (const auto& [name, record] : all_records()) {
        for (const Field& field : *record) {
            if (field.form == Form::reference) {
                references[name + "." + std::string(field.name)] = field.reference;
            }
        }
    }
    EXPECT_EQ(references, expected);
}

// -------------------------------------------------------------------------------------------------------- the walk

TEST(Describe, LeavesTileTheConfiguration)
{
    std::size_t next = 0;
    for_each_leaf(gcfg_record, [&next](const Leaf& leaf) {
        ASSERT_EQ(leaf.offset, next) << leaf.path.text();
        next += leaf.field.width;
    });
    EXPECT_EQ(next, sizeof(GCfg));
}

TEST(Describe, PathsLeadToTheLeaves)
{
    const std::map<std::size_t, std::string> expected = {
        {offsetof(GCfg, system.network.hostname), "system.network.hostname"},
        {offsetof(GCfg, system.user[15].group[3].name), "system.user.15.group.3.name"},
        {offsetof(GCfg, system.services.ssh.allow[0].ip), "system.services.ssh.allow.0.ip"},
        {offsetof(GCfg, system.services.alarm.cfg.load_average[2]), "system.services.alarm.cfg.load_average.2"},
        {offsetof(GCfg, system.services.source_guard.vid[4094].allowed),
         "system.services.source_guard.vid.4094.allowed"},
        {offsetof(GCfg, system.settings.level[13].privilege[16]), "system.settings.level.13.privilege.16"},
        {offsetof(GCfg, pon.olt.channel[7].optics.rssi_trigger_pulse_width),
         "pon.olt.channel.7.optics.rssi_trigger_pulse_width"},
        {offsetof(GCfg, pon.ont[70].serial), "pon.ont.70.serial"},
        {offsetof(GCfg, pon.ont[531].tunnel[15].uvid[41]), "pon.ont.531.tunnel.15.uvid.41"},
        {offsetof(GCfg, pon.ont[0].profile_ont_alloc[9]), "pon.ont.0.profile_ont_alloc.9"},
        {offsetof(GCfg, pon.network.terminal_vlan[31].tag.vid), "pon.network.terminal_vlan.31.tag.vid"},
        {offsetof(GCfg, pon.profiles_olt.address_table[31].svlan_config[511].use_pbits),
         "pon.profiles_olt.address_table.31.svlan_config.511.use_pbits"},
        {offsetof(GCfg, pon.profiles_ont.voice[31].ont_config_file), "pon.profiles_ont.voice.31.ont_config_file"},
    };
    std::map<std::size_t, std::string> found;
    for_each_leaf(gcfg_record, [&](const Leaf& leaf) {
        if (expected.count(leaf.offset) != 0) {
            found[leaf.offset] = leaf.path.text();
        }
    });
    EXPECT_EQ(found, expected);
}

TEST(Describe, WhatIsNotEnteredIsLeftOut)
{
    std::set<std::string> entered;
    for_each_leaf(
        gcfg_record, [](std::size_t offset, std::size_t) { return offset < offsetof(GCfg, system.user[1]); },
        [&entered](const Leaf& leaf) {
            const std::string path = leaf.path.text();
            entered.insert(path.substr(0, path.find('.', 7)));
        });
    EXPECT_EQ(entered, (std::set<std::string>{"system.network", "system.user"}));
    std::size_t users = 0;
    for_each_leaf(
        user_record, [](std::size_t offset, std::size_t) { return offset != offsetof(GSystemUser, group); },
        [&users](const Leaf&) { ++users; });
    EXPECT_EQ(users, 5U) << "all but the groups";
}

// ----------------------------------------------------------------------------------------------------- differences

TEST(Describe, EqualConfigurationsDoNotDiffer)
{
    EXPECT_EQ(count_differing_fields(*blank(), *blank()), 0U);
}

TEST(Describe, OneFieldIsOneDifference)
{
    const auto a = blank();
    const auto b = blank();
    std::strcpy(b->system.network.hostname, "node-17");
    EXPECT_EQ(count_differing_fields(*a, *b), 1U) << "a text is one";
    b->system.network.gateway[0] = 10;
    b->system.network.gateway[3] = 1;
    EXPECT_EQ(count_differing_fields(*a, *b), 2U) << "an address is one";
    std::memset(b->pon.ont[70].serial, 0x41, sizeof b->pon.ont[70].serial);
    EXPECT_EQ(count_differing_fields(*a, *b), 3U) << "a serial number is one";
    EXPECT_EQ(differences(*a, *b), (Paths{"system.network.hostname", "system.network.gateway", "pon.ont.70.serial"}));
}

TEST(Describe, ElementsOfNumberArraysCountEach)
{
    const auto a = blank();
    const auto b = blank();
    b->pon.ont[3].profile_ont_alloc[0] = 1;
    b->pon.ont[3].profile_ont_alloc[15] = -1;
    b->pon.olt.general.dba_short_cycle.gpon_port[4] = 1;
    b->system.services.alarm.cfg.temperature[1] = 80;
    b->system.services.source_guard.vid[100].allowed = 1;
    b->system.services.source_guard.vid[101].allowed = 1;
    EXPECT_EQ(differences(*a, *b),
              (Paths{"system.services.alarm.cfg.temperature.1", "system.services.source_guard.vid.100.allowed",
                     "system.services.source_guard.vid.101.allowed", "pon.olt.general.dba_short_cycle.gpon_port.4",
                     "pon.ont.3.profile_ont_alloc.0", "pon.ont.3.profile_ont_alloc.15"}));
    EXPECT_EQ(count_differing_fields(*a, *b), 6U);
}

TEST(Describe, BytesBehindATextsEndDiffer)
{
    const auto a = blank();
    const auto b = blank();
    b->pon.profiles_ont.management[31].url[127] = 'x';
    EXPECT_EQ(differences(*a, *b), Paths{"pon.profiles_ont.management.31.url"});
}

TEST(Describe, EveryLeafCountsOnceWhenAllDiffer)
{
    const auto a = blank();
    const auto b = blank();
    std::memset(b.get(), 0xFF, sizeof(GCfg));
    std::size_t leaves = 0;
    for_each_leaf(gcfg_record, [&leaves](const Leaf&) { ++leaves; });
    EXPECT_EQ(count_differing_fields(*a, *b), leaves);
    EXPECT_GT(leaves, 532U * (16 * 42 + 16 * 4 + 2 * 16)) << "those of the ONTs' arrays alone";
}

TEST(Describe, RecordsMayStandAtOddAddresses)
{
    const std::vector<unsigned char> a(sizeof(GCfg) + 1);
    std::vector<unsigned char> b(sizeof(GCfg) + 1);
    b[1 + offsetof(GCfg, pon.ont[531].ems_profile_index)] = 1;
    Paths paths;
    for_each_difference(gcfg_record, a.data() + 1, b.data() + 1,
                        [&paths](const Leaf& leaf) { paths.push_back(leaf.path.text()); });
    EXPECT_EQ(paths, Paths{"pon.ont.531.ems_profile_index"});
}
