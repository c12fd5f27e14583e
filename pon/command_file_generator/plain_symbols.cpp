#include "pon/command_file_generator.h"
#include "pondiff.h"

const char* pondiff_version()
{
    return PONDIFF_VERSION_STRING;
}

// Each forwards to the C++ operation of its name, except that GetSystemDiff_c renders the PON part: callers depend on
// it.

int initiate_diff_c(GCfg_t* orig, GCfg_t* cfg, int need_all_cfg, int common_type)
{
    return initiate_diff(orig, cfg, need_all_cfg, common_type);
}

int finalize_diff_c()
{
    return finalize_diff();
}

char* GetDiff_c(GCfg_t* orig, GCfg_t* cfg)
{
    return GetDiff(orig, cfg);
}

char* GetPonDiff_c(GPonCfg_t* orig, GPonCfg_t* cfg)
{
    return GetPonDiff(orig, cfg);
}

char* GetSystemDiff_c(GPonCfg_t* orig, GPonCfg_t* cfg)
{
    return GetPonDiff(orig, cfg);
}

char* GetGPonProfilesOltDiff_c(GPonProfilesOlt_t* orig, GPonProfilesOlt_t* cfg)
{
    return GetGPonProfilesOltDiff(orig, cfg);
}

char* GetGPonProfilesOntDiff_c(GPonProfilesOnt_t* orig, GPonProfilesOnt_t* cfg)
{
    return GetGPonProfilesOntDiff(orig, cfg);
}

char* GetTerminalVlanHeaders_c()
{
    return GetTerminalVlanHeaders();
}

char* GetGponOntDiff_c(GPonOntCfg_t* orig, GPonOntCfg_t* cfg, int ont_index)
{
    return GetGponOntDiff(orig, cfg, ont_index);
}

char* GetGponChannelDiff_c(GPonOltChannelCfg_t* orig, GPonOltChannelCfg_t* cfg, int channel_index)
{
    return GetGponChannelDiff(orig, cfg, channel_index);
}

char* GetProfileDiff_c(GPonCfg_t* orig, GPonCfg_t* cfg, char* profile, int id)
{
    return GetProfileDiff(orig, cfg, profile, id);
}

char* GetBlockDiff_c(GCfg_t* orig, GCfg_t* cfg, char* cmd)
{
    return GetBlockDiff(orig, cfg, cmd);
}

char* GetAlarmDiff_c(GCfg_t* orig, GCfg_t* cfg)
{
    return GetAlarmDiff(orig, cfg);
}
