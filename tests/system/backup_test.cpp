#include "tests/support/diff.h"

namespace {

TEST(Backup, EveryFieldInOrder)
{
    Diff backup{getdiff_GSystemTftpCfg};
    backup.after.backup_on_conf_save = 1;
    backup.after.backup_on_timer = 1;
    backup.after.backup_on_timer_period = 2147483647;
    put(backup.after.backup_uri, "tftp://192.0.2.5/olt-17");
    EXPECT_EQ(backup.elements(), behind("configure terminal", "backup on save\n"
                                                              "backup on timer\n"
                                                              "backup timer period \"2147483647\"\n"
                                                              "backup uri \"tftp://192.0.2.5/olt-17\"\n"));
}

TEST(Backup, SwitchedOff)
{
    Diff backup{getdiff_GSystemTftpCfg};
    backup.before.backup_on_conf_save = 1;
    EXPECT_EQ(backup.elements(), (Elements{"configure terminal", "no backup on save"}));
    backup.before.backup_on_conf_save = 0;
    backup.before.backup_on_timer = 1;
    EXPECT_EQ(backup.elements(), (Elements{"configure terminal", "no backup on timer"}));
}

TEST(Backup, AnyNonZeroSwitchIsOnAndItsBytesAreCompared)
{
    Diff backup{getdiff_GSystemTftpCfg};
    backup.before.backup_on_conf_save = 1;
    backup.after.backup_on_conf_save = 2;
    backup.after.backup_on_timer = 65535;
    EXPECT_EQ(backup.script(), "configure terminal\nbackup on save\nbackup on timer\n");
}

TEST(Backup, PeriodIsSigned)
{
    Diff backup{getdiff_GSystemTftpCfg};
    backup.after.backup_on_timer_period = -1;
    EXPECT_EQ(backup.script(), "configure terminal\nbackup timer period \"-1\"\n");
}

TEST(Backup, AddressThatFillsItsArray)
{
    // A record of its own, so that a sanitizer sees a read behind the address.
    Diff backup{getdiff_GSystemTftpCfg};
    put(backup.after.backup_uri, std::string(256, 'u'));
    EXPECT_EQ(backup.script(), "configure terminal\nbackup uri \"" + std::string(256, 'u') + "\"\n");
}

TEST(Backup, BytesBehindTheTerminatorCountAsAChange)
{
    Diff backup{getdiff_GSystemTftpCfg};
    backup.after.backup_uri[255] = 'x';
    EXPECT_EQ(backup.script(), "configure terminal\nbackup uri \"\"\n");
}

TEST(Backup, EqualRecordUnderPrintAllShowsEveryField)
{
    for (const int common : {0, 1, 2}) {
        Diff backup{getdiff_GSystemTftpCfg};
        backup.all = 1;
        backup.common = common;
        EXPECT_EQ(backup.script(), "configure terminal\n"
                                   "no backup on save\n"
                                   "no backup on timer\n"
                                   "backup timer period \"0\"\n"
                                   "backup uri \"\"\n");
    }
}

TEST(Autosave, EveryFieldInOrder)
{
    Diff autosave{getdiff_GSystemConfigCfg};
    autosave.after.autosave = 1;
    autosave.after.autosave_hour = 255;
    EXPECT_EQ(autosave.elements(),
              (Elements{"configure terminal", "config autosave enable", "", "config autosave hour \"255\""}));
}

TEST(Autosave, SwitchedOff)
{
    Diff autosave{getdiff_GSystemConfigCfg};
    autosave.before.autosave = 1;
    EXPECT_EQ(autosave.elements(), (Elements{"configure terminal", "no config autosave enable"}));
    autosave.after.autosave = 2;
    EXPECT_EQ(autosave.elements(), (Elements{"configure terminal", "config autosave enable"}));
}

TEST(Autosave, HourAlone)
{
    Diff autosave{getdiff_GSystemConfigCfg};
    autosave.before.autosave_hour = 3;
    EXPECT_EQ(autosave.elements(), (Elements{"configure terminal", "config autosave hour \"0\""}));
}

TEST(Autosave, EqualRecordUnderPrintAllShowsEveryField)
{
    Diff autosave{getdiff_GSystemConfigCfg};
    EXPECT_EQ(autosave.elements(), Elements{});
    autosave.all = 1;
    EXPECT_EQ(autosave.script(), "configure terminal\n"
                                 "no config autosave enable\n"
                                 "config autosave hour \"0\"\n");
}

} // namespace
