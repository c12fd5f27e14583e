#include "fuzz/operations.h"

#include "fuzz/checks.h"
#include "pon/DataToCommandsConvertor.h"
#include "pon/command_file_generator.h"
#include "tests/support/elements.h"
#include "tool/areas.h"
#include "tool/profiles.h"

#include <algorithm>
#include <cstdio>
#include <cstdlib>

namespace pondiff::fuzz {

namespace {

constexpr char any_line[] = "\n";
constexpr char commit[] = "commit\n";

Texts script(char* text, std::string_view last = any_line)
{
    check(text != nullptr, "an operation gave no text");
    const std::string copy = text;
    std::free(text);
    check(copy.empty() ||
              (copy.size() >= last.size() && copy.compare(copy.size() - last.size(), last.size(), last) == 0),
          "the last line of a script is not complete");
    return {copy};
}

Texts number(int value)
{
    return {std::to_string(value)};
}

template <class Record>
Texts elements(bool (*diff)(Record*, Record*, int*, List<char>&), Record* orig, Record* cfg)
{
    List<char> list;
    int key[10] = {};
    check(!diff(orig, cfg, key, list), "a record diff gave true");
    return take_elements(list);
}

/// Nothing is written to it.
FILE* stream(const Call& call)
{
    return call.numbers[0] != 0 ? stdout : nullptr;
}

/// A part of a configuration; null for a configuration that is left out.
#define PART(configuration, path) ((configuration) != nullptr ? &(configuration)->path : nullptr)

/// Any number selects an element.
int within(int number, int count)
{
    return (number % count + count) % count;
}

/// The operations take plain `char*`: a text of its own, ended where a sanitizer sees it.
class Word {
  public:
    explicit Word(const std::string& word) : text_(strdup(word.c_str())) {}
    ~Word() { std::free(text_); }
    Word(const Word&) = delete;
    Word& operator=(const Word&) = delete;
    operator char*() const { return text_; }

  private:
    char* text_;
};

// clang-format off
constexpr Operation operations[] = {
    {"initiate_diff", false, 2, true, [](GCfg* orig, GCfg* cfg, const Call& call) {
        return number(initiate_diff(orig, cfg, call.numbers[0], call.numbers[1]));
    }},
    {"finalize_diff", false, 0, false, [](GCfg*, GCfg*, const Call&) {
        return number(finalize_diff());
    }},
    {"GetDiff", false, 0, true, [](GCfg* orig, GCfg* cfg, const Call&) {
        return script(GetDiff(orig, cfg), commit);
    }},
    {"getdiff_GCfg", false, 0, true, [](GCfg* orig, GCfg* cfg, const Call&) {
        return elements(getdiff_GCfg, orig, cfg);
    }},
    {"getdiff_GPonCfg", false, 0, true, [](GCfg* orig, GCfg* cfg, const Call&) {
        return elements(getdiff_GPonCfg, PART(orig, pon), PART(cfg, pon));
    }},
    {"GetDiffMemSafe", false, 1, true, [](GCfg* orig, GCfg* cfg, const Call& call) {
        return script(GetDiffMemSafe(orig, cfg, stream(call)), commit);
    }},
    {"GetRoutesDiffMemSafe", false, 1, false, [](GCfg* orig, GCfg* cfg, const Call& call) {
        return script(GetRoutesDiffMemSafe(PART(orig, system.services.routing), PART(cfg, system.services.routing),
                                           stream(call)),
                      commit);
    }},
    {"GetSystemDiff", false, 0, false, [](GCfg* orig, GCfg* cfg, const Call&) {
        return script(GetSystemDiff(PART(orig, system), PART(cfg, system)));
    }},
    {"GetPonDiff", false, 0, true, [](GCfg* orig, GCfg* cfg, const Call&) {
        return script(GetPonDiff(PART(orig, pon), PART(cfg, pon)));
    }},
    {"GetGponOntDiff", false, 1, false, [](GCfg* orig, GCfg* cfg, const Call& call) {
        const int index = call.numbers[0];
        const int i = within(index, GCFG_ONTS);
        return script(GetGponOntDiff(PART(orig, pon.ont[i]), PART(cfg, pon.ont[i]), index));
    }},
    {"GetGponChannelDiff", false, 1, false, [](GCfg* orig, GCfg* cfg, const Call& call) {
        const int index = call.numbers[0];
        const int i = within(index, GCFG_GPON_PORTS);
        return script(GetGponChannelDiff(PART(orig, pon.olt.channel[i]), PART(cfg, pon.olt.channel[i]), index));
    }},
    {"GetGPonProfilesOltDiff", false, 0, false, [](GCfg* orig, GCfg* cfg, const Call&) {
        return script(GetGPonProfilesOltDiff(PART(orig, pon.profiles_olt), PART(cfg, pon.profiles_olt)), commit);
    }},
    {"GetGPonProfilesOntDiff", false, 0, false, [](GCfg* orig, GCfg* cfg, const Call&) {
        return script(GetGPonProfilesOntDiff(PART(orig, pon.profiles_ont), PART(cfg, pon.profiles_ont)), commit);
    }},
    {"GetProfileDiff", true, 1, false, [](GCfg* orig, GCfg* cfg, const Call& call) {
        return script(GetProfileDiff(PART(orig, pon), PART(cfg, pon), Word(call.word), call.numbers[0]), commit);
    }},
    {"GetBlockDiff", true, 0, false, [](GCfg* orig, GCfg* cfg, const Call& call) {
        return script(GetBlockDiff(orig, cfg, Word(call.word)), commit);
    }},
    {"GetAlarmDiff", false, 0, false, [](GCfg* orig, GCfg* cfg, const Call&) {
        return script(GetAlarmDiff(orig, cfg), commit);
    }},
    {"GetTerminalVlanHeaders", false, 0, false, [](GCfg*, GCfg*, const Call&) {
        return script(GetTerminalVlanHeaders());
    }},
};
// clang-format on

#undef PART

} // namespace

const Operation* begin_operations()
{
    return std::begin(operations);
}

const Operation* end_operations()
{
    return std::end(operations);
}

const Operation* find_operation(std::string_view name)
{
    const auto* const found = std::find_if(begin_operations(), end_operations(),
                                           [name](const Operation& operation) { return operation.name == name; });
    return found == end_operations() ? nullptr : found;
}

const std::vector<std::string>& known_words()
{
    static const std::vector<std::string> words = [] {
        const std::vector<std::string_view> blocks = tool::names_of_blocks();
        std::vector<std::string> names(blocks.begin(), blocks.end());
        for (const tool::ProfileKind& kind : tool::profile_kinds) {
            names.emplace_back(kind.name);
        }
        return names;
    }();
    return words;
}

Texts run(const Call& call, GCfg* orig, GCfg* cfg)
{
    return call.operation->run(call.no_orig ? nullptr : orig, call.no_cfg ? nullptr : cfg, call);
}

Texts run(const char* name, GCfg* orig, GCfg* cfg)
{
    Call call;
    call.operation = find_operation(name);
    return run(call, orig, cfg);
}

void disturb(GCfg* orig, GCfg* cfg)
{
    initiate_diff(orig, cfg, 1, 2);
    std::free(GetAlarmDiff(orig, cfg));
    std::free(GetGponOntDiff(&orig->pon.ont[1], &cfg->pon.ont[1], 1));
    std::free(GetTerminalVlanHeaders());
    finalize_diff();
    scramble(-1);
}

void scramble(int value)
{
    sn_format = value;
    print_all = value;
    print_common = value;
    current_view = {nullptr, {value}};
}

} // namespace pondiff::fuzz
