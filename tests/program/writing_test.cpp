#include "tests/support/writing.h"

#include <gmock/gmock.h>

using ::testing::ElementsAre;

namespace {

TEST_F(Writing, ScriptGoesToTheFileInsteadOfStandardOutput)
{
    const Outcome outcome = write_script_to("script");
    EXPECT_EQ(outcome.out, "");
    EXPECT_EQ(outcome.err, "");
    EXPECT_EQ(outcome.status, 1);
    EXPECT_EQ(read("script"), script);
    EXPECT_THAT(names(), ElementsAre("cfg.json", "orig.json", "script"));
}

// Configurations and scripts hold passwords.
TEST_F(Writing, NewFileIsForItsOwnerAlone)
{
    for (const mode_t mask : {0U, 022U, 077U}) {
        Surroundings surroundings;
        surroundings.mask = mask;
        EXPECT_EQ(write_script_to("script", surroundings).status, 1);
        EXPECT_EQ(mode("script"), 0600U);
        std::filesystem::remove(path("script"));
    }
    EXPECT_EQ(run({"pack", "cfg.json", "-o", "cfg.bin"}).status, 0);
    EXPECT_EQ(mode("cfg.bin"), 0600U);
    EXPECT_EQ(run({"show", "cfg.bin", "-o", "shown.json"}).status, 0);
    EXPECT_EQ(mode("shown.json"), 0600U);
}

TEST_F(Writing, ExistingFileIsReplacedAsAWholeAndKeepsItsMode)
{
    write("script", std::string(5000, 'x'));
    for (const mode_t kept : {0600U, 0664U, 0755U}) {
        std::filesystem::permissions(path("script"), std::filesystem::perms(kept));
        EXPECT_EQ(write_script_to("script").status, 1);
        EXPECT_EQ(mode("script"), kept);
        EXPECT_EQ(read("script"), script);
    }
}

TEST_F(Writing, OtherNamesOfTheFileKeepTheOldContent)
{
    write("script", "old\n");
    std::filesystem::create_hard_link(path("script"), path("backup"));
    write_script_to("script");
    EXPECT_EQ(read("script"), script);
    EXPECT_EQ(read("backup"), "old\n");
}

TEST_F(Writing, SymbolicLinkStaysAndItsTargetIsReplaced)
{
    std::filesystem::create_directory(path("scripts"));
    write("scripts/today", "old\n");
    std::filesystem::permissions(path("scripts/today"), std::filesystem::perms(0600));
    std::filesystem::create_symlink("scripts/latest", path("script"));
    std::filesystem::create_symlink("today", path("scripts/latest"));
    EXPECT_EQ(write_script_to("script").status, 1);
    EXPECT_EQ(std::filesystem::read_symlink(path("script")), "scripts/latest");
    EXPECT_EQ(std::filesystem::read_symlink(path("scripts/latest")), "today");
    EXPECT_FALSE(std::filesystem::is_symlink(path("scripts/today")));
    EXPECT_EQ(read("scripts/today"), script);
    EXPECT_EQ(mode("scripts/today"), 0600U);
}

TEST_F(Writing, SymbolicLinkToNothingGetsItsTarget)
{
    std::filesystem::create_directory(path("scripts"));
    std::filesystem::create_symlink(path("scripts/today"), path("script"));
    EXPECT_EQ(write_script_to("script").status, 1);
    EXPECT_TRUE(std::filesystem::is_symlink(path("script")));
    EXPECT_EQ(read("scripts/today"), script);
}

TEST_F(Writing, SymbolicLinkToItselfIsAnError)
{
    std::filesystem::create_symlink("script", path("script"));
    expect_error(write_script_to("script"), "pondiff: script: Too many levels of symbolic links\n");
}

// Times and sizes have 64 bits on every processor.
TEST_F(Writing, FileOfTheFarFutureIsReplaced)
{
    write("target", "older\n");
    std::filesystem::create_symlink("target", path("link"));
    for (const char* const name : {"target", "link"}) {
        timespec times[2] = {};
        times[0].tv_sec = times[1].tv_sec = time_t{0x9000'0000}; // in the year 2046
        ASSERT_EQ(utimensat(AT_FDCWD, path(name).c_str(), times, AT_SYMLINK_NOFOLLOW), 0);
    }
    const Outcome outcome = write_script_to("link");
    EXPECT_EQ(outcome.err, "");
    EXPECT_EQ(outcome.status, 1);
    struct stat link = {};
    ASSERT_EQ(lstat(path("link").c_str(), &link), 0);
    EXPECT_TRUE(S_ISLNK(link.st_mode));
    EXPECT_EQ(read("target"), script);
}

// As with the redirection of a shell: no old script is left that could be mistaken for the new one.
TEST_F(Writing, NothingToDoMakesTheFileEmpty)
{
    EXPECT_EQ(run({"diff", "orig.json", "orig.json", "-o", "script"}).status, 0);
    EXPECT_EQ(read("script"), "");
    EXPECT_EQ(mode("script"), 0600U);

    for (const Arguments& more : {Arguments{"-o", "script"}, Arguments{"--verbatim", "-o", "script"}}) {
        write("script", "old\n");
        std::filesystem::permissions(path("script"), std::filesystem::perms(0640));
        Arguments arguments{"diff", "orig.json", "orig.json"};
        arguments.insert(arguments.end(), more.begin(), more.end());
        EXPECT_EQ(run(arguments).status, 0);
        EXPECT_EQ(read("script"), "");
        EXPECT_EQ(mode("script"), 0640U);
    }
}

TEST_F(Writing, ErrorLeavesTheFileAlone)
{
    write("script", "old\n");
    write("cfg.json", R"({"system": {"network": {"hostname": "a\"b"}}})");
    EXPECT_EQ(run({"diff", "orig.json", "cfg.json", "--strict", "-o", "script"}).status, 2);
    EXPECT_EQ(read("script"), "old\n");
}

TEST_F(Writing, DashIsStandardOutput)
{
    const Outcome outcome = write_script_to("-");
    EXPECT_EQ(outcome.out, script);
    EXPECT_EQ(outcome.status, 1);
    EXPECT_THAT(names(), ElementsAre("cfg.json", "orig.json"));
}

TEST_F(Writing, FileThatCannotBeMadeIsNamedWithTheReason)
{
    expect_error(write_script_to("absent/script"), "pondiff: absent/script: No such file or directory\n");
    expect_error(write_script_to("cfg.json/script"), "pondiff: cfg.json/script: Not a directory\n");
    expect_error(write_script_to("."), "pondiff: .: Is a directory\n");
    expect_error(write_script_to(""), "pondiff: '': No such file or directory\n");
    expect_error(write_script_to(std::string(300, 'x')),
                 "pondiff: " + std::string(300, 'x') + ": File name too long\n");
    EXPECT_THAT(names(), ElementsAre("cfg.json", "orig.json"));
}

TEST_F(Writing, FileThatMayNotBeWrittenIsLeftAlone)
{
    if (!reachable_by_others()) {
        GTEST_SKIP() << "the program is out of the reach of others";
    }
    const Surroundings surroundings = as_somebody_else();
    std::filesystem::permissions(path("."), std::filesystem::perms(0777));
    write("script", "old\n");
    std::filesystem::permissions(path("script"), std::filesystem::perms(0444));
    expect_error(write_script_to("script", surroundings), "pondiff: script: Permission denied\n");
    EXPECT_EQ(read("script"), "old\n");

    std::filesystem::permissions(path("cfg.json"), std::filesystem::perms(0));
    expect_error(write_script_to("new", surroundings), "pondiff: cfg.json: Permission denied\n");

    std::filesystem::permissions(path("cfg.json"), std::filesystem::perms(0444));
    std::filesystem::permissions(path("."), std::filesystem::perms(0555));
    expect_error(write_script_to("new", surroundings), "pondiff: new: Permission denied\n");
    std::filesystem::permissions(path("."), std::filesystem::perms(0755));
    EXPECT_THAT(names(), ElementsAre("cfg.json", "orig.json", "script"));
}

TEST_F(Writing, FileThatGrowsTooLargeLeavesTheOldOneAndNothingElse)
{
    write("cfg.bin", "old\n");
    Surroundings surroundings;
    surroundings.largest_file = 100000;
    expect_error(run({"pack", "cfg.json", "-o", "cfg.bin"}, surroundings), "pondiff: cfg.bin: File too large\n");
    EXPECT_EQ(read("cfg.bin"), "old\n");
    expect_error(run({"pack", "cfg.json", "-o", "new.bin"}, surroundings), "pondiff: new.bin: File too large\n");
    EXPECT_THAT(names(), ElementsAre("cfg.bin", "cfg.json", "orig.json"));
}

TEST_F(Writing, DiskThatFailsLeavesTheOldFileAndNothingElse)
{
    write("cfg.bin", "old\n");
    expect_error(run({"pack", "cfg.json", "-o", "cfg.bin"}, with_other_library("TEST_DISK_FAILS=1")),
                 "pondiff: cfg.bin: Input/output error\n");
    EXPECT_EQ(read("cfg.bin"), "old\n");
    EXPECT_THAT(names(), ElementsAre("cfg.bin", "cfg.json", "orig.json"));
}

TEST_F(Writing, SignalInBetweenLeavesNoTemporaryFile)
{
    for (const int signal : {SIGHUP, SIGINT, SIGTERM}) {
        const Outcome outcome =
            run({"pack", "cfg.json", "-o", "cfg.bin"}, with_other_library("TEST_SIGNAL=" + std::to_string(signal)));
        EXPECT_EQ(outcome.status, -signal);
        EXPECT_EQ(read("cfg.bin").size(), sizeof(GCfg));
        EXPECT_THAT(names(), ElementsAre("cfg.bin", "cfg.json", "orig.json"));
    }
}

TEST_F(Writing, FileIsOldUntilTheNewContentIsOnTheDisk)
{
    write("cfg.bin", "old\n");
    const Outcome outcome =
        run({"pack", "cfg.json", "-o", "cfg.bin"}, with_other_library("TEST_SIGNAL=" + std::to_string(SIGKILL)));
    EXPECT_EQ(outcome.status, -SIGKILL);
    EXPECT_EQ(read("cfg.bin"), "old\n");
}

TEST_F(Writing, ProgramThatIsKilledLeavesNoTemporaryFile)
{
    const int unnamed = open(path(".").c_str(), O_TMPFILE | O_WRONLY | O_CLOEXEC, 0600);
    if (unnamed < 0) {
        GTEST_SKIP() << "the file system has no files without a name";
    }
    close(unnamed);
    for (const char* const file : {"new.bin", "cfg.json"}) {
        const Outcome outcome =
            run({"pack", "orig.json", "-o", file}, with_other_library("TEST_SIGNAL=" + std::to_string(SIGKILL)));
        EXPECT_EQ(outcome.status, -SIGKILL);
        EXPECT_THAT(names(), ElementsAre("cfg.json", "orig.json"));
    }
}

// The same where a file has a name from the beginning.
TEST_F(Writing, FileSystemWithoutFilesWithoutANameServesToo)
{
    const Surroundings named = with_other_library("TEST_NO_UNNAMED_FILES=1");
    for (const mode_t expected : {0600U, 0644U}) { // at first that of a new file
        EXPECT_EQ(run({"show", "cfg.json", "-o", "copy.json"}, named).err, "");
        EXPECT_EQ(mode("copy.json"), expected);
        EXPECT_EQ(run({"show", "cfg.json"}).out, read("copy.json"));
        std::filesystem::permissions(path("copy.json"), std::filesystem::perms(0644));
    }
    Surroundings surroundings = named;
    surroundings.largest_file = 100000;
    expect_error(run({"pack", "cfg.json", "-o", "cfg.bin"}, surroundings), "pondiff: cfg.bin: File too large\n");
    EXPECT_THAT(names(), ElementsAre("cfg.json", "copy.json", "orig.json"));
}

TEST_F(Writing, DeviceIsWrittenTo)
{
    // Never as the super-user, whose program could take the device's place.
    if (!reachable_by_others()) {
        GTEST_SKIP() << "the program is out of the reach of others";
    }
    std::filesystem::permissions(path("."), std::filesystem::perms(0777));
    std::filesystem::create_symlink("/dev/full", path("full"));
    expect_error(write_script_to("/dev/full", as_somebody_else()), "pondiff: /dev/full: No space left on device\n");
    expect_error(write_script_to("full", as_somebody_else()), "pondiff: full: No space left on device\n");
    EXPECT_EQ(write_script_to("/dev/null", as_somebody_else()).status, 1);
    EXPECT_THAT(names(), ElementsAre("cfg.json", "full", "orig.json"));
    EXPECT_TRUE(std::filesystem::is_symlink(path("full")));
}

TEST_F(Writing, PipeIsWrittenToAndStays)
{
    ASSERT_EQ(mkfifo(path("pipe").c_str(), 0600), 0);
    const int reader = open(path("pipe").c_str(), O_RDONLY | O_NONBLOCK | O_CLOEXEC);
    ASSERT_GE(reader, 0);
    EXPECT_EQ(write_script_to("pipe").status, 1);
    char content[sizeof script] = {};
    EXPECT_EQ(::read(reader, content, sizeof content), static_cast<ssize_t>(sizeof script - 1));
    EXPECT_STREQ(content, script);
    EXPECT_TRUE(std::filesystem::is_fifo(path("pipe")));
    close(reader);
}

TEST_F(Writing, StandardOutputThatIsFull)
{
    Surroundings surroundings;
    surroundings.output_file = "/dev/full";
    for (const Arguments& arguments : {Arguments{"diff", "orig.json", "cfg.json"}, Arguments{"show", "cfg.json"},
                                       Arguments{"pack", "cfg.json", "-o", "-"}, Arguments{"--help"}}) {
        expect_error(run(arguments, surroundings), "pondiff: standard output: No space left on device\n");
    }
}

TEST_F(Writing, StandardOutputThatNobodyReads)
{
    Surroundings surroundings;
    surroundings.reader_gone = true;
    for (const Arguments& arguments : {Arguments{"diff", "orig.json", "cfg.json"}, Arguments{"show", "cfg.json"},
                                       Arguments{"pack", "cfg.json", "-o", "-"}, Arguments{"diff", "--help"}}) {
        expect_error(run(arguments, surroundings), "pondiff: standard output: Broken pipe\n");
    }
}

TEST_F(Writing, StandardOutputThatIsClosed)
{
    Surroundings surroundings;
    surroundings.closed = {STDOUT_FILENO};
    expect_error(run({"diff", "orig.json", "cfg.json"}, surroundings),
                 "pondiff: standard output: Bad file descriptor\n");
    EXPECT_EQ(write_script_to("script", surroundings).status, 1);
    EXPECT_EQ(read("script"), script);
    // With nothing to print, a full disk is no error.
    EXPECT_EQ(run({"diff", "orig.json", "orig.json"}, surroundings).status, 0);
}

TEST_F(Writing, ClosedStreamsAreNotTakenForTheFile)
{
    write("cfg.json", R"({"system": {"network": {"hostname": "olt-17"}, "web": {}}})");
    Surroundings surroundings;
    surroundings.closed = {STDIN_FILENO, STDOUT_FILENO, STDERR_FILENO};
    EXPECT_EQ(write_script_to("script", surroundings).status, 2);
    EXPECT_THAT(names(), ElementsAre("cfg.json", "orig.json"));

    write("cfg.json", R"({"system": {"network": {"hostname": "olt-17"}}})");
    EXPECT_EQ(write_script_to("script", surroundings).status, 1);
    EXPECT_EQ(read("script"), script);
}

} // namespace
