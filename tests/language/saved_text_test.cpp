/// Configurations as texts of commands: what is written is read again.

#include "bench/configurations.h"
#include "pon/DataToCommandsConvertor.h"
#include "tests/language/random_pairs.h"
#include "tool/account/meaning.h"
#include "tool/language/objects.h"
#include "tool/language/sayable.h"
#include "tool/language/text.h"

#include <algorithm>
#include <gtest/gtest.h>
#include <memory>
#include <string>

using namespace language_tests;

namespace {

/// A name of its own, and not empty, for each object and each entry that is told by a text; other keys distinct.
void make_told_apart(GCfg& configuration)
{
    for_each_leaf(gcfg_record, [&](const Leaf& leaf) {
        const bool tells = leaf.field.syntax.kind == Syntax::Kind::key || leaf.field.name == "name";
        if (!tells || !is_text(leaf.field.form)) {
            return;
        }
        unsigned char* const at = bytes_of(configuration) + leaf.offset;
        const std::string number = std::to_string((leaf.path.steps().end() - 2)->index);
        std::memcpy(at, "n000", 4);
        std::memcpy(at + 4 - number.size(), number.data(), number.size());
    });
}

std::unique_ptr<GCfg> any_configuration(fuzz::Random& random)
{
    auto configuration = std::make_unique<GCfg>(fuzz::base());
    for (int i = 0; i < 300; ++i) {
        fuzz::Scenario scenario;
        fuzz::add_any_patch(scenario, random);
        for (fuzz::Patch& patch : scenario.patches) {
            fuzz::make_plain(*patch.place.field, reinterpret_cast<unsigned char*>(patch.bytes.data()));
            std::memcpy(bytes_of(*configuration) + patch.place.offset, patch.bytes.data(), patch.bytes.size());
        }
    }
    make_keys_distinct(*configuration);
    make_told_apart(*configuration);
    return configuration;
}

int number_of_configurations()
{
    return std::getenv("PONDIFF_FULL") != nullptr ? 1000 : 60;
}

bool starts_with(const std::string& text, std::string_view start)
{
    return text.compare(0, start.size(), start) == 0;
}

/// Whether a field has a command that no script shows for what the configuration holds.
bool is_not_written(const Beside<2>& beside, const GCfg& configuration)
{
    const Field& field = beside.field;
    const std::string path = beside.path.text();
    const std::size_t entry = beside.path.steps().size() > 1 ? (beside.path.steps().end() - 2)->index : 0;
    if (field.form == Form::serial) {
        constexpr u16 last_layout = 2; // in any other no serial number is shown
        return configuration.system.settings.ont_sn_format > last_layout;
    }
    if (field.name == "unknown_multicast_forward_gem_port") {
        return configuration.pon.olt.channel[entry].unknown_multicast_forward == 0; // shown while the forwarding is on
    }
    if (field.name == "dba_excess_allocations") {
        return configuration.pon.olt.general.dba_reduced_latency == 0; // a mode of it
    }
    if (field.name == "write_remote_id_option") {
        return true; // the other switch of their command decides for both
    }
    if (beside.there[0]) {
        return false;
    }
    const GPonOltGeneralCfg& olt = configuration.pon.olt.general;
    const GPonProfilesOlt& profiles = configuration.pon.profiles_olt;
    if (starts_with(path, "pon.olt.general.profile_olt_dhcpra_redefinition")) {
        const s32 profile = olt.profile_olt_dhcpra_redefinition[entry].profile;
        return profile >= 0 && profile < 32 && profiles.dhcp_ra[profile].exist == 0; // has no name
    }
    if (starts_with(path, "pon.olt.general.profile_olt_dhcpv6ra_redefinition")) {
        const s32 profile = olt.profile_olt_dhcpv6ra_redefinition[entry].profile;
        return profile >= 0 && profile < 32 && profiles.dhcpv6_ra[profile].exist == 0;
    }
    if (starts_with(path, "system.services.alarm.type.")) {
        return *getCliAlarmType(static_cast<int>(u32(configuration.system.services.alarm.type[entry].type))) == '\0';
    }
    if (starts_with(path, "system.services.snmp.traps.")) {
        constexpr u32 last_type = 2; // any other has no word
        return u32(configuration.system.services.snmp.traps[entry].type) > last_type;
    }
    return false;
}

/// Whether the values have a command, by the descriptions.
bool can_be_written(const Beside<2>& beside)
{
    const Field& field = beside.field;
    const Syntax::Kind kind = field.syntax.kind;
    if (!has_command(beside.path) || kind == Syntax::Kind::ambiguous) {
        return false;
    }
    if (kind == Syntax::Kind::irregular && beside.path.steps().back().index % 2 != 0) {
        return false; // one command for two ports: the even one decides
    }
    return !is_number(field.form) || can_be_said(field, get_number(field, beside.at[1]));
}

std::unique_ptr<GCfg> read_anew(const std::string& text)
{
    auto configuration = blank_configuration();
    read_script(text, *configuration, [&](const Line& line) {
        // Written where a reference to a management profile has no name.
        EXPECT_TRUE(line.kind != Line::Kind::refused || line.text == "profile management \"\"")
            << place_text(line.standing, *configuration) << ": " << line.text << ": " << line.reason;
    });
    return configuration;
}

/// The first line in which two texts differ; whole texts are too long to be printed.
std::string first_difference(const std::string& text, const std::string& other)
{
    const auto end = std::mismatch(text.begin(), text.end(), other.begin(), other.end());
    if (end.first == text.end() && end.second == other.end()) {
        return "";
    }
    const auto start = text.rfind('\n', static_cast<std::size_t>(end.first - text.begin())) + 1;
    return text.substr(start, 100) + "\ninstead of\n" + other.substr(start, 100);
}

void expect_all_that_has_a_command(const GCfg& configuration)
{
    const auto read = read_anew(text_of_commands(configuration));
    for_each_different_meaning({read.get(), &configuration}, [&](const Beside<2>& beside) {
        EXPECT_TRUE(!can_be_written(beside) || is_not_written(beside, configuration)) << beside.path.text();
    });
}

/// What has once been read from a text can be written as one.
void expect_the_same_text_again(const GCfg& configuration)
{
    const auto sayable = read_anew(text_of_commands(configuration));
    const std::string text = text_of_commands(*sayable);
    const auto read = read_anew(text);
    EXPECT_TRUE(mean_the_same(*read, *sayable));
    EXPECT_EQ(first_difference(text_of_commands(*read), text), "");
}

TEST(SavedText, SaysEverythingThatHasACommand)
{
    fuzz::Random random(5);
    for (int i = 0; i < number_of_configurations() && !HasFailure(); ++i) {
        expect_all_that_has_a_command(*any_configuration(random));
    }
}

TEST(SavedText, ReadAndWrittenAgainIsTheSame)
{
    fuzz::Random random(6);
    for (int i = 0; i < number_of_configurations() && !HasFailure(); ++i) {
        expect_the_same_text_again(*any_configuration(random));
    }
}

TEST(SavedText, OfTheFullConfigurationSaysEverythingToo)
{
    const bench::Configuration configuration = bench::full();
    make_keys_distinct(*configuration);
    expect_all_that_has_a_command(*configuration);
    expect_the_same_text_again(*configuration);
}

TEST(SavedText, OfABlankConfigurationReadsAsABlankOne)
{
    const auto blank = blank_configuration();
    EXPECT_TRUE(mean_the_same(*read_anew(text_of_commands(*blank)), *blank));
}

} // namespace
