#include "tests/support/diff.h"

namespace {

TEST(Settings, SerialFormatIsTheRegistrysWord)
{
    Diff settings{getdiff_GSystemCommonSettings};
    settings.after.ont_sn_format = 2;
    EXPECT_EQ(settings.script(), "configure terminal\ncli ont-sn-format \"dashed\"\n");
}

TEST(Settings, PrivilegeLevelsHaveNoCommand)
{
    Diff settings{getdiff_GSystemCommonSettings};
    settings.after.level[13].privilege[16] = 1;
    EXPECT_EQ(settings.elements(), Elements{});
}

TEST(Settings, PrintAllForcesOnlyWithTheCommonSettings)
{
    for (const int common : {-1, 0, 3}) {
        Diff settings{getdiff_GSystemCommonSettings};
        settings.all = 1;
        settings.common = common;
        EXPECT_EQ(settings.elements(), Elements{}) << common;
    }
    for (const int common : {1, 2}) {
        Diff settings{getdiff_GSystemCommonSettings};
        settings.all = 1;
        settings.common = common;
        EXPECT_EQ(settings.script(), "configure terminal\ncli ont-sn-format \"pretty\"\n") << common;
    }
}

TEST(Settings, CommonAloneForcesNothing)
{
    Diff settings{getdiff_GSystemCommonSettings};
    settings.common = 2;
    EXPECT_EQ(settings.elements(), Elements{});
}

} // namespace
