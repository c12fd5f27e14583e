#include "pon/blocks.h"
#include "pon/command_file_generator.h"
#include "pon/command_file_generator/operation.h"
#include "pon/diff_builder/rows.h"
#include "pon/profile_kinds.h"

#include <cstring>

using namespace pondiff;

namespace {

/// An operation that enters the configuration mode first and returns to the top level last. Both navigations are part
/// of its text even when nothing differs.
template <class Body>
char* from_configure_view(Ending ending, Body body)
{
    Operation operation;
    operation.go_to(View::configure);
    body(operation.key, operation.script);
    operation.go_to(View::root);
    return operation.finish(ending);
}

/// All profiles of a kind that differ, or the one in the slot `id`, which is not compared first. A slot beyond the
/// array selects nothing.
template <class Profile, std::size_t Slots>
void diff_profiles(bool (*diff)(Profile*, Profile*, int*, List<char>&), Profile (&lhs)[Slots], Profile (&rhs)[Slots],
                   int id, int* key, List<char>& out)
{
    if (id < 0) {
        descend_each(changed_only, diff, lhs, rhs, of_object, key, out);
    } else if (static_cast<std::size_t>(id) < Slots) {
        key[of_object] = id;
        diff(&lhs[id], &rhs[id], key, out);
    }
}

void diff_profiles_of(const char* kind, GPonCfg& orig, GPonCfg& cfg, int id, int* key, List<char>& out)
{
#define DIFF_KIND(part, array, record, tables, lookup, prefix, name, called)                                           \
    if (std::strcmp(name, kind) == 0) {                                                                                \
        diff_profiles(getdiff_##record, orig.part.array, cfg.part.array, id, key, out);                                \
    }
    PON_PROFILE_KINDS(DIFF_KIND)
#undef DIFF_KIND
}

template <class Record>
void diff_record(bool (*diff)(Record*, Record*, int*, List<char>&), Record& orig, Record& cfg, int* key,
                 List<char>& out)
{
    diff(&orig, &cfg, key, out);
}

template <class Record, std::size_t Slots>
void diff_record(bool (*diff)(Record*, Record*, int*, List<char>&), Record (&orig)[Slots], Record (&cfg)[Slots],
                 int* key, List<char>& out)
{
    descend_each(changed_only, diff, orig, cfg, of_object, key, out);
}

void diff_block(const char* block, GCfg& orig, GCfg& cfg, int* key, List<char>& out)
{
#define DIFF_RECORD(name, path, diff)                                                                                  \
    if (std::strcmp(name, block) == 0) {                                                                               \
        diff_record(diff, orig.path, cfg.path, key, out);                                                              \
    }
    PON_BLOCKS(DIFF_RECORD)
#undef DIFF_RECORD
}

} // namespace

char* GetSystemDiff(GSystemCfg_t* orig, GSystemCfg_t* cfg)
{
    Operation operation;
    getdiff_GSystemCfg(orig, cfg, operation.key, operation.script);
    return operation.finish(Ending::plain);
}

char* GetPonDiff(GPonCfg_t* orig, GPonCfg_t* cfg)
{
    Operation operation;
    getdiff_GPonCfg(orig, cfg, operation.key, operation.script);
    return operation.finish(Ending::plain);
}

char* GetGponOntDiff(GPonOntCfg_t* orig, GPonOntCfg_t* cfg, int ont_index)
{
    return from_configure_view(Ending::plain, [&](int* key, List<char>& out) {
        key[of_object] = ont_index;
        getdiff_GPonOntCfg(orig, cfg, key, out);
    });
}

char* GetGponChannelDiff(GPonOltChannelCfg_t* orig, GPonOltChannelCfg_t* cfg, int channel_index)
{
    return from_configure_view(Ending::plain, [&](int* key, List<char>& out) {
        key[of_object] = channel_index;
        getdiff_GPonOltChannelCfg(orig, cfg, key, out);
    });
}

char* GetGPonProfilesOltDiff(GPonProfilesOlt_t* orig, GPonProfilesOlt_t* cfg)
{
    Operation operation;
    getdiff_GPonProfilesOlt(orig, cfg, operation.key, operation.script);
    operation.go_to(View::root);
    return operation.finish(Ending::commit);
}

char* GetGPonProfilesOntDiff(GPonProfilesOnt_t* orig, GPonProfilesOnt_t* cfg)
{
    Operation operation;
    getdiff_GPonProfilesOnt(orig, cfg, operation.key, operation.script);
    operation.go_to(View::root);
    return operation.finish(Ending::commit);
}

char* GetProfileDiff(GPonCfg_t* orig, GPonCfg_t* cfg, char* profile, int id)
{
    return from_configure_view(Ending::commit, [&](int* key, List<char>& out) {
        if (orig && cfg && profile) {
            diff_profiles_of(profile, *orig, *cfg, id, key, out);
        }
    });
}

char* GetBlockDiff(GCfg_t* orig, GCfg_t* cfg, char* cmd)
{
    return from_configure_view(Ending::commit, [&](int* key, List<char>& out) {
        if (orig && cfg && cmd) {
            diff_block(cmd, *orig, *cfg, key, out);
        }
    });
}

char* GetAlarmDiff(GCfg_t* orig, GCfg_t* cfg)
{
    return from_configure_view(Ending::commit, [&](int* key, List<char>& out) {
        if (orig && cfg) {
            getdiff_GSystemAlarmCfg(&orig->system.services.alarm, &cfg->system.services.alarm, key, out);
        }
    });
}

char* GetTerminalVlanHeaders()
{
    Operation operation;
    operation.go_to(View::configure);
    for (int i = 0; i < GCFG_TERMINAL_VLANS; ++i) {
        const char* const name = getTerminalVlanName(i);
        if (name && *name != '\0') {
            append(operation.script, "gpon network terminal-vlan \"%s\"", name);
        }
    }
    return operation.finish(Ending::plain);
}
