#include "tests/support/diff.h"

namespace {

/// A user in slot 3 of both configurations, in a session that knows the name.
class Users : public testing::Test {
  protected:
    Users()
    {
        for (GSystemUser* user : {&diff.before, &diff.after}) {
            user->exist = 1;
            put(user->name, "admin");
            put(user->password, "$1$Kq8$old");
            user->priority = 15;
        }
        diff.key[0] = 3;
    }

    void open()
    {
        session.orig->system.user[3] = diff.before;
        session.cfg->system.user[3] = diff.after;
        session.open();
    }

    Elements elements()
    {
        open();
        return diff.elements();
    }

    Session session;
    Diff<GSystemUser> diff{getdiff_GSystemUser};
};

TEST_F(Users, NewPassword)
{
    put(diff.after.password, "$1$Kq8$new");
    EXPECT_EQ(elements(), (Elements{"configure terminal", "user \"admin\" crypted_password \"$1$Kq8$new\""}));
}

TEST_F(Users, NewPrivilege)
{
    diff.after.priority = 255;
    EXPECT_EQ(elements(), (Elements{"configure terminal", "user \"admin\" privilege \"255\""}));
}

TEST_F(Users, NewUserIsCreatedByItsPassword)
{
    diff.before = GSystemUser{};
    EXPECT_EQ(elements(), behind("configure terminal", "user \"admin\" crypted_password \"$1$Kq8$old\"\n"
                                                       "user \"admin\" privilege \"15\"\n"));
}

TEST_F(Users, NewUserGetsItsPasswordEvenWhereTheSlotHeldTheSame)
{
    diff.before.exist = 0;
    EXPECT_EQ(elements(), (Elements{"configure terminal", "user \"admin\" crypted_password \"$1$Kq8$old\""}));
}

TEST_F(Users, NewUserWithoutAPasswordGetsAnEmptyOne)
{
    diff.before = GSystemUser{};
    put(diff.after.password, "");
    diff.after.priority = 0;
    EXPECT_EQ(elements(), (Elements{"configure terminal", "user \"admin\" crypted_password \"\""}));
}

TEST_F(Users, RenamedUserAloneSaysNothing)
{
    put(diff.after.name, "operator");
    EXPECT_EQ(elements(), Elements{});
}

TEST_F(Users, AnyNonZeroFlagIsAUser)
{
    diff.before.exist = 2;
    diff.after.exist = 65535;
    EXPECT_EQ(elements(), Elements{});
    diff.after.priority = 1;
    EXPECT_EQ(diff.script(), "configure terminal\nuser \"admin\" privilege \"1\"\n");
    diff.after.exist = 256;
    diff.before.exist = 0;
    EXPECT_EQ(diff.script(), "configure terminal\n"
                             "user \"admin\" crypted_password \"$1$Kq8$old\"\n"
                             "user \"admin\" privilege \"1\"\n");
}

TEST_F(Users, GroupsHaveNoCommandAndLeaveTheirIndexInTheKey)
{
    diff.after.group[2].exist = 1;
    diff.after.group[15].name = 2;
    EXPECT_EQ(elements(), Elements{});
    EXPECT_EQ(diff.key[0], 3);
    EXPECT_EQ(diff.key[1], 15);
}

TEST_F(Users, GroupHasNoCommandOfItsOwn)
{
    Diff group{getdiff_GSystemUserGroup};
    group.after.exist = 1;
    group.all = 1;
    EXPECT_EQ(group.elements(), Elements{});
}

TEST_F(Users, RemovedUserIsOneLineWithoutNavigation)
{
    diff.after = GSystemUser{};
    EXPECT_EQ(elements(), Elements{"no user \"admin\""});
    EXPECT_EQ(diff.key[1], 0);
}

TEST_F(Users, RemovedUserIsOneLineWhereverTheScriptStands)
{
    diff.after.exist = 0;
    diff.view = "if-ont-view";
    EXPECT_EQ(elements(), Elements{"no user \"admin\""});
}

TEST_F(Users, RemovedUserUnderPrintAllIsTheSameLine)
{
    diff.after.exist = 0;
    diff.all = 1;
    EXPECT_EQ(elements(), Elements{"no user \"admin\""});
}

TEST_F(Users, RemovedUserKeepsPlaceholdersInItsName)
{
    put(diff.before.name, "u$ID0");
    diff.after.exist = 0;
    EXPECT_EQ(elements(), Elements{"no user \"u$ID0\""});
}

TEST_F(Users, RemovedUserWithANameOfOneLetter)
{
    put(diff.before.name, "a");
    diff.after.exist = 0;
    EXPECT_EQ(elements(), Elements{"no user \"a\""});
}

TEST_F(Users, RemovedUserWithoutANameSaysNothing)
{
    put(diff.before.name, "");
    diff.after = GSystemUser{};
    EXPECT_EQ(elements(), Elements{});
}

TEST_F(Users, RemovedUserWhoseNameFillsItsArray)
{
    put(diff.before.name, std::string(32, 'n'));
    put(diff.before.password, "not-part-of-it");
    diff.after.exist = 0;
    EXPECT_EQ(elements(), Elements{"no user \"" + std::string(32, 'n') + "\""});
}

TEST_F(Users, PrintAllShowsPasswordAndPrivilege)
{
    for (const int common : {0, 1, 2}) {
        diff.all = 1;
        diff.common = common;
        EXPECT_EQ(elements(), behind("configure terminal", "user \"admin\" crypted_password \"$1$Kq8$old\"\n"
                                                           "user \"admin\" privilege \"15\"\n"));
        EXPECT_EQ(diff.key[1], 15);
    }
}

TEST_F(Users, PasswordThatFillsItsArray)
{
    put(diff.after.password, std::string(130, 'p'));
    EXPECT_EQ(elements(),
              (Elements{"configure terminal", "user \"admin\" crypted_password \"" + std::string(130, 'p') + "\""}));
}

TEST_F(Users, BytesBehindThePasswordsTerminatorCountAsAChange)
{
    diff.after.password[129] = 'x';
    EXPECT_EQ(elements(), (Elements{"configure terminal", "user \"admin\" crypted_password \"$1$Kq8$old\""}));
}

TEST_F(Users, PlaceholderInThePasswordIsSubstituted)
{
    put(diff.after.password, "a$ID0b");
    EXPECT_EQ(elements(), (Elements{"configure terminal", "user \"admin\" crypted_password \"a   3b\""}));
}

TEST_F(Users, OutsideASessionTheNameIsEmpty)
{
    diff.after.priority = 1;
    EXPECT_EQ(diff.elements(), (Elements{"configure terminal", "user \"\" privilege \"1\""}));
}

TEST_F(Users, NameComesFromTheSlotOfTheNewConfiguration)
{
    put(session.orig->system.user[0].name, "root");
    session.orig->system.user[0].exist = 1;
    session.cfg->system.user[0] = session.orig->system.user[0];
    session.cfg->system.user[0].priority = 1;
    session.orig->system.user[7] = diff.before;
    session.cfg->system.user[15] = diff.after;
    session.open();
    EXPECT_EQ(session.full_diff(), "configure terminal\n"
                                   "user \"root\" privilege \"1\"\n"
                                   "no user \"admin\"\n"
                                   "user \"admin\" crypted_password \"$1$Kq8$old\"\n"
                                   "user \"admin\" privilege \"15\"\n"
                                   "exit\n"
                                   "commit\n");
}

TEST_F(Users, RemovedUserAloneInAFullDiff)
{
    diff.after = GSystemUser{};
    open();
    EXPECT_EQ(session.full_diff(), "no user \"admin\"\ncommit\n");
}

} // namespace
