#include "json_helpers.h"
#include "tool/describe/records.h"

#include <algorithm>
#include <cstring>
#include <gtest/gtest.h>
#include <random>
#include <rapidcheck/gtest.h>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

using namespace pondiff::json_tests;

namespace {

unsigned char* bytes_of(const Config& config)
{
    return reinterpret_cast<unsigned char*>(config.get());
}

/// The path of the first leaf in which the two differ, or nothing.
std::string first_difference(const Config& a, const Config& b)
{
    std::string first;
    for_each_difference(gcfg_record, a.get(), b.get(), [&first](const Leaf& leaf) {
        if (first.empty()) {
            first = leaf.path.text();
        }
    });
    return first;
}

/// What does not come back from the record's document.
std::string lost(const Config& config, bool full)
{
    const Config back = read(write_json(*config, full));
    if (std::memcmp(config.get(), back.get(), sizeof(GCfg)) == 0) {
        return "";
    }
    return "lost " + first_difference(config, back);
}

const std::vector<std::pair<std::size_t, std::size_t>>& leaves()
{
    static const auto places = [] {
        std::vector<std::pair<std::size_t, std::size_t>> result;
        for_each_leaf(gcfg_record, [&result](const Leaf& leaf) { result.emplace_back(leaf.offset, leaf.field.width); });
        return result;
    }();
    return places;
}

/// Bytes that mean something to texts, numbers or the format.
unsigned char telling_byte(std::mt19937& random)
{
    constexpr unsigned char likely[] = {0,   0,   0,   1,    2,    3,    '"',  '\\', '\n', '0',  'A', 0x1F,
                                        'z', '-', ',', 0x7F, 0x80, 0xBF, 0xC3, 0xE2, 0xED, 0xF0, 0xFF};
    return likely[random() % sizeof likely];
}

} // namespace

TEST(JsonProperty, RandomBytesAreKept)
{
    for (const unsigned seed : {1U, 2U}) {
        std::mt19937 random(seed);
        const Config config = blank();
        for (std::size_t i = 0; i < sizeof(GCfg); ++i) {
            bytes_of(config)[i] = static_cast<unsigned char>(random());
        }
        EXPECT_EQ(lost(config, false), "") << "seed " << seed;
        EXPECT_EQ(lost(config, true), "") << "seed " << seed;
    }
}

TEST(JsonProperty, TellingBytesAreKept)
{
    for (const unsigned seed : {1U, 2U}) {
        std::mt19937 random(seed);
        const Config config = blank();
        for (std::size_t i = 0; i < sizeof(GCfg); ++i) {
            bytes_of(config)[i] = telling_byte(random);
        }
        EXPECT_EQ(lost(config, false), "") << "seed " << seed;
        EXPECT_EQ(lost(config, true), "") << "seed " << seed;
    }
}

TEST(JsonProperty, EqualBytesAreKept)
{
    for (const int byte : {0x01, 0x20, 0x41, 0x7F, 0x80, 0xFF}) {
        const Config config = blank();
        std::memset(bytes_of(config), byte, sizeof(GCfg));
        EXPECT_EQ(lost(config, false), "") << byte;
        EXPECT_EQ(lost(config, true), "") << byte;
    }
}

/// Every leaf of the records takes part, some at a time, with the neighbours in its array both zero and not.
TEST(JsonProperty, EveryLeafIsKept)
{
    for (std::size_t turn = 0; turn < 7; ++turn) {
        std::mt19937 random(static_cast<unsigned>(turn));
        const Config config = blank();
        for (std::size_t i = turn; i < leaves().size(); i += 7) {
            const auto [offset, width] = leaves()[i];
            for (std::size_t at = 0; at < width; ++at) {
                bytes_of(config)[offset + at] = telling_byte(random);
            }
        }
        EXPECT_EQ(lost(config, false), "") << turn;
    }
}

RC_GTEST_PROP(JsonProperty, PatchesAreKept, ())
{
    const Config config = blank();
    const auto patches =
        *rc::gen::container<std::vector<std::pair<std::size_t, std::vector<unsigned char>>>>(rc::gen::pair(
            rc::gen::inRange<std::size_t>(0, leaves().size()), rc::gen::nonEmpty<std::vector<unsigned char>>()));
    for (const auto& [leaf, patch] : patches) {
        const auto [offset, width] = leaves()[leaf];
        std::memcpy(bytes_of(config) + offset, patch.data(), std::min(width, patch.size()));
    }
    RC_ASSERT(lost(config, false) == "");
}

/// Any changed document is read or refused with a message that names the file, and a record that was read can be
/// written and read again.
RC_GTEST_PROP(JsonProperty, DamagedDocumentsAreReadOrRefused, (unsigned seed))
{
    static const std::string sound = [] {
        const Config config = blank();
        std::mt19937 random(static_cast<unsigned>(leaves().size()));
        for (int i = 0; i < 300; ++i) {
            const auto [offset, width] = leaves()[random() % leaves().size()];
            for (std::size_t at = 0; at < width; ++at) {
                bytes_of(config)[offset + at] = telling_byte(random);
            }
        }
        config->system.services.source_guard.vid[100].allowed = 2;
        config->pon.ont[70].tunnel[1].uvid[0] = 7;
        return write_json(*config, false);
    }();
    constexpr std::string_view telling = "{}[]\",:0-9ehx \n\xFF";
    std::mt19937 random(seed);
    std::string document = sound;
    const int damages = *rc::gen::inRange(1, 6);
    for (int i = 0; i < damages; ++i) {
        const std::size_t at = random() % document.size();
        const std::size_t length = 1 + random() % 4;
        switch (random() % 4) {
        case 0:
            document.erase(at, length);
            break;
        case 1:
            document.insert(at, 1, telling[random() % telling.size()]);
            break;
        case 2:
            document.insert(at, document.substr(random() % document.size(), length));
            break;
        default:
            document[at] = static_cast<char>(telling_byte(random));
        }
    }
    const auto config = std::make_unique<GCfg>();
    try {
        read_json(document, "cfg.json", *config);
    } catch (const InputError& error) {
        RC_ASSERT(std::string(error.what()).substr(0, 9) == "cfg.json:");
        return;
    }
    RC_ASSERT(lost(config, false) == "");
}
