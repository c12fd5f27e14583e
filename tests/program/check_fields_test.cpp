/// The check over every field of the configuration, by its description.

#include "pon/command_file_generator.h"
#include "tests/support/plausible.h"
#include "tool/check.h"
#include "tool/profiles.h"

#include <cstdlib>
#include <cstring>
#include <functional>
#include <gtest/gtest.h>
#include <map>
#include <memory>
#include <set>
#include <string>
#include <unordered_set>

using namespace pondiff::tool;

namespace {

class CheckFields : public testing::Test {
  protected:
    static bool refers_to_profile(const Field& field)
    {
        return field.form == Form::reference && kind_of(field.reference) != nullptr;
    }

    void for_each(const std::function<void(const Leaf&, unsigned char*)>& visit) const
    {
        for_each_leaf(gcfg_record, [&](const Leaf& leaf) {
            visit(leaf, reinterpret_cast<unsigned char*>(cfg.get()) + leaf.offset);
        });
    }

    /// Puts the text in its field, terminated where there is room.
    static void put(const Leaf& leaf, unsigned char* at, const std::string& text)
    {
        ASSERT_LE(text.size(), leaf.field.width) << leaf.path.text();
        std::memset(at, 0, leaf.field.width);
        text.copy(reinterpret_cast<char*>(at), text.size());
    }

    /// The paths of the fields that a finding with such a text names.
    static std::set<std::string> named(const std::vector<Finding>& findings, const std::string& text)
    {
        std::set<std::string> paths;
        for (const Finding& finding : findings) {
            if (finding.text.find(text) != std::string::npos) {
                paths.insert(finding.path);
            }
        }
        return paths;
    }

    /// Everything exists and is in order.
    std::unique_ptr<GCfg> cfg = plausible(1);
};

/// The pieces of a text between a letter t and a quote.
std::unordered_set<std::string> marks_in(const std::string& script)
{
    std::unordered_set<std::string> marks;
    for (std::size_t quote = script.find('"'); quote != script.npos; quote = script.find('"', quote + 1)) {
        std::size_t start = quote;
        while (start > 0 && script[start - 1] >= '0' && script[start - 1] <= '9') {
            --start;
        }
        if (start > 0 && start != quote && script[start - 1] == 't') {
            marks.insert(script.substr(start, quote - start));
        }
    }
    return marks;
}

TEST_F(CheckFields, ConfigurationInWhichEverythingExistsIsInOrder)
{
    for (const Finding& finding : check(*cfg)) {
        ADD_FAILURE() << finding.path << ": " << finding.text;
    }
}

TEST_F(CheckFields, TextIsLookedAtWhereACommandShowsIt)
{
    std::map<std::string, std::string> marks; // by path
    for_each([&](const Leaf& leaf, unsigned char* at) {
        if (!is_text(leaf.field.form)) {
            return;
        }
        const std::string mark = std::to_string(marks.size());
        put(leaf, at, "t" + mark + "\"");
        marks.emplace(leaf.path.text(), mark);
    });
    ASSERT_GT(marks.size(), 5000U);

    const auto blank = std::make_unique<GCfg>();
    ASSERT_EQ(initiate_diff(blank.get(), cfg.get(), 0, 0), 0);
    const std::unique_ptr<char, decltype(&std::free)> script{GetDiff(blank.get(), cfg.get()), &std::free};
    finalize_diff();
    ASSERT_TRUE(script);
    const std::unordered_set<std::string> emitted = marks_in(script.get());

    const std::set<std::string> paths = named(check(*cfg), "holds a quote");
    for (const auto& [path, mark] : marks) {
        EXPECT_EQ(paths.count(path), emitted.count(mark)) << path;
    }
}

TEST_F(CheckFields, SecretsNeverShow)
{
    std::size_t secrets = 0;
    for_each([&](const Leaf& leaf, unsigned char* at) {
        if (leaf.field.form != Form::secret) {
            return;
        }
        std::string text = "hunter2\"$ID";
        text.resize(leaf.field.width, '\n');
        put(leaf, at, text);
        ++secrets;
    });
    const std::vector<Finding> findings = check(*cfg);
    EXPECT_EQ(named(findings, "the value has no end within its ").size(), secrets);
    for (const Finding& finding : findings) {
        EXPECT_EQ(finding.text.find("hunter"), std::string::npos) << finding.path;
    }
}

TEST_F(CheckFields, EveryTextNeedsItsEnd)
{
    std::set<std::string> expected;
    for_each([&](const Leaf& leaf, unsigned char* at) {
        if (!is_text(leaf.field.form)) {
            return;
        }
        std::string text = std::to_string(expected.size());
        text.resize(leaf.field.width, 'x');
        put(leaf, at, text);
        expected.insert(leaf.path.text());
    });
    EXPECT_EQ(named(check(*cfg), " has no end within its "), expected);
}

TEST_F(CheckFields, EveryEnumerationNeedsAWord)
{
    std::set<std::string> expected;
    for_each([&](const Leaf& leaf, unsigned char* at) {
        if (leaf.field.form != Form::enumeration) {
            return;
        }
        set_number(leaf.field, at, 199);
        expected.insert(leaf.path.text());
    });
    ASSERT_GT(expected.size(), 2000U);
    EXPECT_EQ(named(check(*cfg), "199 has no word in "), expected);
}

TEST_F(CheckFields, EveryReferenceNeedsItsProfile)
{
    std::set<std::string> expected;
    for_each([&](const Leaf& leaf, unsigned char* at) {
        if (leaf.field.name == "exist" && leaf.path.text().find("pon.profiles_o") == 0 &&
            leaf.path.text().find(".19.exist") != std::string::npos && leaf.field.owner != "GSvlanAddressTableConfig") {
            set_number(leaf.field, at, 0);
        }
        if (!refers_to_profile(leaf.field)) {
            return;
        }
        set_number(leaf.field, at, 19);
        // A template that does not exist has no references.
        if (leaf.path.text().find("template_ont.19.") == std::string::npos) {
            expected.insert(leaf.path.text());
        }
    });
    ASSERT_GT(expected.size(), 20000U);
    EXPECT_EQ(named(check(*cfg), "there is no "), expected);
}

TEST_F(CheckFields, EveryReferenceNeedsItsTerminalVlan)
{
    cfg->pon.network.terminal_vlan[9].exists = 0;
    std::set<std::string> expected;
    for_each([&](const Leaf& leaf, unsigned char* at) {
        if (leaf.field.form != Form::reference || refers_to_profile(leaf.field)) {
            return;
        }
        set_number(leaf.field, at, leaf.field.reference == Reference::terminal_vlan_id ? -109 : 109);
        expected.insert(leaf.path.text());
    });
    EXPECT_EQ(expected.size(), 5U * GCFG_CROSS_CONNECT_PROFILES);
    EXPECT_EQ(named(check(*cfg), "there is no terminal VLAN 9"), expected);
}

TEST_F(CheckFields, ConfigurationIsOnlyRead)
{
    const auto before = std::make_unique<GCfg>(*cfg);
    check(*cfg);
    check_change(*before, *cfg, true);
    EXPECT_EQ(std::memcmp(before.get(), cfg.get(), sizeof(GCfg)), 0);
}

TEST_F(CheckFields, AddressOfTheConfigurationMayBeOdd)
{
    for_each([](const Leaf& leaf, unsigned char* at) {
        if (is_number(leaf.field.form) && leaf.field.name != "exist" && leaf.field.name != "exists") {
            set_number(leaf.field, at, 101);
        }
    });
    std::vector<unsigned char> odd(sizeof(GCfg) + 1);
    std::memcpy(odd.data() + 1, cfg.get(), sizeof(GCfg));
    const std::vector<Finding> at_even = check(*cfg);
    const std::vector<Finding> at_odd = check(*reinterpret_cast<const GCfg*>(odd.data() + 1));
    ASSERT_EQ(at_odd.size(), at_even.size());
    EXPECT_GT(at_odd.size(), 1000U);
    for (std::size_t i = 0; i < at_odd.size(); ++i) {
        EXPECT_EQ(at_odd[i].path + at_odd[i].text, at_even[i].path + at_even[i].text);
    }
}

} // namespace
