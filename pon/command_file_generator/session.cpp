#include "pon/DataToCommandsConvertor.h"
#include "pon/command_file_generator.h"

int initiate_diff(GCfg_t* orig, GCfg_t* cfg, int need_all_cfg, int common_type)
{
    print_all = need_all_cfg;
    print_common = common_type;
    return data_prepare(orig, cfg);
}

int finalize_diff()
{
    return data_free();
}
