/// Every number and switch flipped alone is in the class that its description promises.

#include "tests/account/checks.h"
#include "tests/language/configurations.h"
#include "tests/support/plausible.h"
#include "tool/language/sayable.h"
#include "tool/script.h"

#include <algorithm>
#include <gtest/gtest.h>
#include <iterator>
#include <map>
#include <memory>
#include <set>
#include <string>
#include <string_view>

using namespace account_tests;
using namespace language_tests;

namespace {

/// What tells objects and entries apart: its change makes others of them.
bool tells_objects(const Field& field)
{
    return field.syntax.kind == Syntax::Kind::key || field.syntax.is_existence || field.name == "name";
}

/// Fields with a command that the script of the whole configuration has not, when they alone are changed.
constexpr std::string_view unwritten[] = {
    "system.network.ACSVid",                                  // the auto-configuration server is in no walk
    "system.services.routing.route.0.mask",                   // routes have a script of their own
    "pon.olt.channel.0.unknown_multicast_forward_gem_port",   // goes with the switch beside it
    "pon.profiles_olt.dhcpv6_ra.0.write_interface_id_option", // both options have to change
};

/// The classes that a field may be in when it alone is changed to a number.
std::set<Fate> promised(const Leaf& leaf, std::int64_t number)
{
    const Field& field = leaf.field;
    if (!has_command(leaf.path)) {
        return {Fate::no_command};
    }
    const std::string path = leaf.path.text();
    if (std::find(std::begin(unwritten), std::end(unwritten), path) != std::end(unwritten)) {
        return {Fate::not_said};
    }
    if (field.syntax.kind == Syntax::Kind::with) {
        return {Fate::carried, Fate::not_said};
    }
    if (is_number(field.form) && !can_be_said(field, number)) {
        return {Fate::not_said, Fate::different};
    }
    return {Fate::carried};
}

TEST(SingleFields, AreInTheClassThatTheirDescriptionPromises)
{
    const auto orig = plausible(0);
    make_keys_distinct(*orig);
    const auto cfg = std::make_unique<GCfg>(*orig);
    const ScriptRequest everything{whole_configuration(0)};
    std::map<Fate, std::size_t> fates;
    std::set<const Field*> seen;
    std::string others;
    for_each_leaf(gcfg_record, [&](const Leaf& leaf) {
        const Field& field = leaf.field;
        if (!is_number(field.form) || field.form == Form::reference || tells_objects(field) ||
            field.layout != Layout::plain || field.syntax.kind == Syntax::Kind::counter ||
            !seen.insert(&field).second) {
            return;
        }
        set_number(field, bytes_of(*cfg) + leaf.offset, 1);
        const std::string script = script_of(everything, *orig, *cfg);
        const Account account(*orig, *cfg, script);
        EXPECT_EQ(wrong_with(account), "") << leaf.path.text();
        for (const ObjectAccount& object : account.objects()) {
            for (const Item& item : object.items) {
                ++fates[item.fate];
                if (item.path == leaf.path.text() && promised(leaf, 1).count(item.fate) == 0) {
                    others += item.path + ' ' + name_of(item.fate) + ": " + item.reason + '\n';
                }
            }
        }
        set_number(field, bytes_of(*cfg) + leaf.offset, get_number(field, bytes_of(*orig) + leaf.offset));
    });
    EXPECT_EQ(others, "");
    EXPECT_GT(fates[Fate::carried], 250U);
    EXPECT_GT(fates[Fate::no_command], 50U);
}

} // namespace
