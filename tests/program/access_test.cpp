/// A replaced file may be read and written by the same users as before, and nobody else.

#include "tests/support/writing.h"

#include <array>
#include <cstdlib>
#include <gmock/gmock.h>

using ::testing::HasSubstr;
using ::testing::Not;

namespace {

constexpr char not_kept[] =
    "pondiff: script: its owner, group and permissions cannot be kept (Operation not permitted); "
    "choose another file\n";

class Access : public Writing {
  public:
    Access() { write("script", "old\n"); }

    /// Lets others make files in the folder; false when they do not reach the program.
    bool open_to_others() const
    {
        if (geteuid() != 0 || !reachable_by_others()) {
            return false;
        }
        std::filesystem::permissions(path("."), std::filesystem::perms(0777));
        return true;
    }

    /// False when the file system has no ACLs, or Debian's package acl is missing.
    bool set_acl(const std::string& entries, const std::string& file) const
    {
        const std::string command = "setfacl " + entries + " '" + path(file).string() + "' 2>/dev/null";
        return std::system(command.c_str()) == 0;
    }

    std::string acl(const std::string& file) const
    {
        const std::string command = "getfacl --omit-header --absolute-names '" + path(file).string() + "'";
        std::FILE* const pipe = popen(command.c_str(), "r");
        std::array<char, 1000> text{};
        const std::size_t size = std::fread(text.data(), 1, text.size(), pipe);
        pclose(pipe);
        return {text.data(), size};
    }

    void set_owner(uid_t user, gid_t group) const { EXPECT_EQ(chown(path("script").c_str(), user, group), 0); }

    void expect_owner(uid_t user, gid_t group) const
    {
        struct stat status = {};
        EXPECT_EQ(stat(path("script").c_str(), &status), 0);
        EXPECT_EQ(status.st_uid, user);
        EXPECT_EQ(status.st_gid, group);
    }
};

// ---------------------------------------------------------------------------------------------------------------- ACLs

TEST_F(Access, AclIsKept)
{
    if (!set_acl("--set u::rw-,u:daemon:r--,g::---,m::rw-,o::---", "script")) {
        GTEST_SKIP() << "no ACLs here";
    }
    // The mode alone would give the group what the mask allows.
    ASSERT_EQ(mode("script"), 0660U);
    const Outcome outcome = write_script_to("script");
    EXPECT_EQ(outcome.err, "");
    EXPECT_EQ(read("script"), script);
    EXPECT_EQ(acl("script"), "user::rw-\nuser:daemon:r--\ngroup::---\nmask::rw-\nother::---\n\n");
}

TEST_F(Access, AclOfTheFolderIsNotTakenForThatOfTheFile)
{
    std::filesystem::permissions(path("script"), std::filesystem::perms(0660));
    if (!set_acl("-d -m u:daemon:rw", ".")) {
        GTEST_SKIP() << "no ACLs here";
    }
    EXPECT_EQ(write_script_to("script").status, 1);
    EXPECT_EQ(read("script"), script);
    EXPECT_EQ(acl("script"), "user::rw-\ngroup::rw-\nother::---\n\n");
}

TEST_F(Access, NewFileIsForItsOwnerAloneWhateverTheFolderPrescribes)
{
    if (!set_acl("-d -m u:daemon:rw,g::rw,o::r", ".")) {
        GTEST_SKIP() << "no ACLs here";
    }
    EXPECT_EQ(write_script_to("new").status, 1);
    EXPECT_EQ(mode("new"), 0600U);
    EXPECT_THAT(acl("new"), HasSubstr("\nother::---\n"));
    EXPECT_THAT(acl("new"), Not(HasSubstr("mask::r")));
}

// --------------------------------------------------------------------------------------------------- owners and groups

TEST_F(Access, SuperUserKeepsOwnerAndGroup)
{
    if (geteuid() != 0) {
        GTEST_SKIP() << "only for the super-user";
    }
    set_owner(1234, 5678);
    EXPECT_EQ(write_script_to("script").status, 1);
    EXPECT_EQ(read("script"), script);
    expect_owner(1234, 5678);
}

TEST_F(Access, FileOfSomebodyElseIsNotReplaced)
{
    if (!open_to_others()) {
        GTEST_SKIP() << "only for the super-user, where others reach the program";
    }
    std::filesystem::permissions(path("script"), std::filesystem::perms(0666));
    expect_error(write_script_to("script", as_somebody_else()), not_kept);
    EXPECT_EQ(read("script"), "old\n");
    EXPECT_EQ(mode("script"), 0666U);
    expect_owner(0, 0);
    EXPECT_EQ(names().size(), 3U);
}

TEST_F(Access, FileOfAnotherGroupIsReplacedByAMemberAlone)
{
    if (!open_to_others()) {
        GTEST_SKIP() << "only for the super-user, where others reach the program";
    }
    set_owner(nobody, 5678);
    std::filesystem::permissions(path("script"), std::filesystem::perms(0660));
    Surroundings surroundings = as_somebody_else();
    expect_error(write_script_to("script", surroundings), not_kept);
    EXPECT_EQ(read("script"), "old\n");

    surroundings.groups = {5678};
    EXPECT_EQ(write_script_to("script", surroundings).err, "");
    EXPECT_EQ(read("script"), script);
    expect_owner(nobody, 5678);
    EXPECT_EQ(mode("script"), 0660U);
}

} // namespace
