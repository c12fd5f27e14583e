/// Unsafe texts in scripts: everything that the script shows is checked, and nothing else.

#include "pon/command_file_generator.h"
#include "tool/unsafe.h"

#include <cstdlib>
#include <cstring>
#include <gtest/gtest.h>
#include <memory>
#include <string>
#include <vector>

using namespace pondiff::tool;

namespace {

class Unsafe : public testing::Test {
  protected:
    template <std::size_t N>
    static void put(char (&field)[N], const std::string& text)
    {
        std::memset(field, 0, N);
        std::memcpy(field, text.data(), text.size());
    }

    /// What is found in the full diff: "orig PATH: TEXT" for each.
    std::vector<std::string> found_in_full_diff()
    {
        return found([](GCfg& a, GCfg& b) { return GetDiff(&a, &b); });
    }

    template <class Operation>
    std::vector<std::string> found(Operation operation)
    {
        std::vector<std::string> lines;
        for (const UnsafeText& one : unsafe_texts(*orig, *cfg, [&](GCfg&a, GCfg&b) {
                 initiate_diff(&a, &b, 0, 0);
                 const std::unique_ptr<char, decltype(&std::free)> text{operation(a, b), &std::free};
                 finalize_diff();
                 return std::string(text.get());
             })) {
            lines.push_back((one.source == UnsafeText::Source::orig ? "orig " : "cfg ") + one.path + ": " + one.text);
        }
        return lines;
    }

    using Lines = std::vector<std::string>;
    std::unique_ptr<GCfg> orig = std::make_unique<GCfg>();
    std::unique_ptr<GCfg> cfg = std::make_unique<GCfg>();
};

TEST_F(Unsafe, PlainTextsAreNot)
{
    put(cfg->system.network.hostname, "olt-17, west");
    EXPECT_EQ(found_in_full_diff(), Lines{});
}

TEST_F(Unsafe, AQuoteInAChangedText)
{
    put(cfg->system.network.hostname, "a\"\nreload\nuser \"b");
    EXPECT_EQ(found_in_full_diff(), Lines{"cfg system.network.hostname: \"a\\\"\\nreload\\nuser \\\"b\" holds a quote "
                                          "and holds a control character"});
}

TEST_F(Unsafe, WhatTheScriptDoesNotShowIsNotFound)
{
    put(orig->system.network.hostname, "a\"b");
    put(cfg->system.network.hostname, "a\"b");
    put(cfg->pon.profiles_ont.shaping[3].description, "in a free slot\n");
    cfg->system.services.ntp.enabled = 1;
    EXPECT_EQ(found_in_full_diff(), Lines{});
}

TEST_F(Unsafe, TheTextsOfARemovedProfileReachTheScript)
{
    orig->pon.profiles_olt.dhcp_ra[1].exist = 1;
    put(orig->pon.profiles_olt.dhcp_ra[1].name, "ra1");
    put(cfg->pon.profiles_olt.dhcp_ra[1].name, "ra1");
    put(cfg->pon.profiles_olt.dhcp_ra[1].description, "x\"\nreload\nuser \"e");
    EXPECT_EQ(found_in_full_diff(), Lines{"cfg pon.profiles_olt.dhcp_ra.1.description: \"x\\\"\\nreload\\nuser \\\"e\" "
                                          "holds a quote and holds a control character"});
}

TEST_F(Unsafe, TheOldNameOfAnObjectEntersIt)
{
    orig->pon.profiles_ont.voice[0].exist = cfg->pon.profiles_ont.voice[0].exist = 1;
    put(orig->pon.profiles_ont.voice[0].name, "a\"b");
    put(cfg->pon.profiles_ont.voice[0].name, "plain");
    EXPECT_EQ(found_in_full_diff(), Lines{"orig pon.profiles_ont.voice.0.name: \"a\\\"b\" holds a quote"});
}

TEST_F(Unsafe, ANameThatBothShareIsWrittenToo)
{
    for (GCfg* const one : {orig.get(), cfg.get()}) {
        one->pon.profiles_ont.voice[0].exist = 1;
        put(one->pon.profiles_ont.voice[0].name, "a\x1B[2J");
    }
    put(cfg->pon.profiles_ont.voice[0].description, "new");
    EXPECT_EQ(found_in_full_diff(),
              Lines{"cfg pon.profiles_ont.voice.0.name: \"a\\u001b[2J\" holds a control character"});
}

TEST_F(Unsafe, AnAreaShowsNamesOfOtherAreas)
{
    orig->pon.ont[70].exist = cfg->pon.ont[70].exist = 1;
    orig->pon.ont[70].profile_ont_shaping = -1;
    cfg->pon.ont[70].profile_ont_shaping = 1;
    cfg->pon.profiles_ont.shaping[1].exist = 1;
    put(cfg->pon.profiles_ont.shaping[1].name, "a\nb");
    EXPECT_EQ(found([](GCfg& a, GCfg& b) { return GetGponOntDiff(&a.pon.ont[70], &b.pon.ont[70], 70); }),
              Lines{"cfg pon.profiles_ont.shaping.1.name: \"a\\nb\" holds a control character"});
}

TEST_F(Unsafe, CharactersThatHideALine)
{
    put(cfg->system.network.hostname, "a\xE2\x80\xAE"
                                      "b");
    EXPECT_EQ(found_in_full_diff(),
              Lines{"cfg system.network.hostname: \"a\\u{202E}b\" holds a character that does not show"});
    put(cfg->system.network.hostname, "a\x9B"
                                      "b");
    EXPECT_EQ(found_in_full_diff(), Lines{"cfg system.network.hostname: the text is not UTF-8"});
}

TEST_F(Unsafe, APlaceholderIsFilledIn)
{
    put(cfg->system.network.hostname, "rack $ID0");
    EXPECT_EQ(found_in_full_diff(), Lines{"cfg system.network.hostname: \"rack $ID0\" holds a placeholder"});
}

TEST_F(Unsafe, NamesThatStandWithoutQuotes)
{
    orig->pon.profiles_olt.vlan[0].exist = 1;
    put(orig->pon.profiles_olt.vlan[0].name, "my vlan");
    EXPECT_EQ(found_in_full_diff(),
              Lines{"orig pon.profiles_olt.vlan.0.name: \"my vlan\" holds a blank and is written without quotes"});
    put(orig->pon.profiles_olt.vlan[0].name, "");
    EXPECT_EQ(found_in_full_diff(),
              Lines{"cfg pon.profiles_olt.vlan.0.name: \"\" is empty and is written without quotes"});
}

TEST_F(Unsafe, BlanksBetweenQuotesAreFine)
{
    cfg->pon.profiles_ont.voice[0].exist = 1;
    put(cfg->pon.profiles_ont.voice[0].name, "two words");
    put(cfg->pon.profiles_ont.voice[0].description, "more than two words");
    EXPECT_EQ(found_in_full_diff(), Lines{});
}

TEST_F(Unsafe, ASecretIsNotShown)
{
    cfg->pon.ont[6].exist = 1;
    put(cfg->pon.ont[6].password, "a\"b");
    EXPECT_EQ(found_in_full_diff(), Lines{"cfg pon.ont.6.password: the value holds a quote"});
}

} // namespace
