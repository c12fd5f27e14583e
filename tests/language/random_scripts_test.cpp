/// What the library writes, the reader knows: random pairs of configurations, all switches, whole scripts and those of
/// parts.

#include "tests/language/random_pairs.h"
#include "tool/language/objects.h"

#include <algorithm>
#include <cstdlib>
#include <gtest/gtest.h>
#include <optional>

using namespace language_tests;

namespace {

/// The value of a command: what its last quotes hold, or its last word.
std::string_view last_word(std::string_view line)
{
    const char end = line.back() == '"' ? '"' : ' ';
    line.remove_suffix(end == '"' ? 1 : 0);
    return line.substr(line.rfind(end) + 1);
}

/// Whether there is an object of a kind that is referred to, under this name.
bool is_name(GCfg& configuration, std::string_view name)
{
    for (const Referred& to : referred_arrays()) {
        const Table table{to.field, bytes_of(configuration) + to.offset};
        if (table.find_text(*to.field->record->name_member, name)) {
            return true;
        }
    }
    return false;
}

/// Whether some array of the elements that a line found no room for has none: "all 16 users are in use".
bool is_full(std::string_view reason, const Record& record, const unsigned char* at)
{
    for (const Field& field : record) {
        if (field.record == nullptr) {
            continue;
        }
        const auto used = [&](std::size_t i) { return in_use(*field.record, at + field.offset + i * field.width); };
        bool full = field.array && reason.find(std::string(" ") + field.plural + " are in use") != reason.npos;
        for (std::size_t i = 0; i < field.count; ++i) {
            full = full && used(i);
            if (used(i) && is_full(reason, *field.record, at + field.offset + i * field.width)) {
                return true;
            }
        }
        if (full) {
            return true;
        }
    }
    return false;
}

bool starts_with(std::string_view text, std::string_view start)
{
    return text.substr(0, start.size()) == start;
}

bool ends_with(std::string_view text, std::string_view end)
{
    return text.size() >= end.size() && text.substr(text.size() - end.size()) == end;
}

/// Whether a line that the library has written is refused for a reason that the device has, and not because the reader
/// does not know it.
bool is_refused_with_reason(const Line& line, RandomPairs& pairs)
{
    if (line.reason == "the view has no such command") {
        // A removed user or terminal VLAN is written wherever the script stands.
        return line.standing.view->kind != View::Kind::configure &&
               (starts_with(line.text, "no user ") || starts_with(line.text, "no gpon network terminal-vlan "));
    }
    if (ends_with(line.reason, ": no object has this name")) {
        // An object that is not there, or that the script's scope does not create.
        const std::string_view name =
            starts_with(line.text, "gpon olt profile dhcp") && line.text.find(" vid ") != line.text.npos
                ? last_word(line.text.substr(0, line.text.find(" vid ")))
                : last_word(line.text);
        return !is_name(pairs.device(), name);
    }
    if (ends_with(line.reason, " are in use")) {
        return is_full(line.reason, gcfg_record, bytes_of(pairs.device()));
    }
    // A slot that is freed: it is written with what stands in it then.
    return line.reason == "svlan: 0 is no entry" || line.reason == "type: dummy is no entry";
}

int number_of_pairs()
{
    return std::getenv("PONDIFF_FULL") != nullptr ? 200000 : 20000;
}

TEST(RandomScripts, EveryLineIsKnown)
{
    RandomPairs pairs(12);
    std::size_t lines = 0;
    std::size_t refused = 0;
    for (int i = 0; i < number_of_pairs(); ++i) {
        pairs.next();
        pairs.take([&](const Line& line) {
            ++lines;
            if (line.kind == Line::Kind::refused) {
                ++refused;
                EXPECT_TRUE(is_refused_with_reason(line, pairs))
                    << line.text << ": " << line.reason << ", in " << place_text(line.standing, pairs.orig())
                    << ", of the area \"" << pairs.area << "\" of\n"
                    << fuzz::print_scenario(pairs.scenario);
            }
        });
        if (HasFailure()) {
            return;
        }
    }
    EXPECT_GT(lines, 1000000U);
    EXPECT_LT(refused * 200, lines);
}

/// Lines account for everything that they change.
TEST(RandomScripts, LinesNameAllThatTheyChange)
{
    RandomPairs pairs(13);
    for (int i = 0; i < number_of_pairs() / 20; ++i) {
        pairs.next();
        pairs.take([](const Line&) {});
        pairs.put_back();
        ASSERT_EQ(std::memcmp(&pairs.device(), &pairs.orig(), sizeof(GCfg)), 0)
            << pairs.script << fuzz::print_scenario(pairs.scenario);
    }
}

} // namespace
