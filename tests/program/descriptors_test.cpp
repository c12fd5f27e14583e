/// Output files that are no plain names: descriptors, deleted files, and files that are inputs as well.

#include "tests/support/writing.h"

#include <gmock/gmock.h>

using ::testing::ElementsAre;

namespace {

class Descriptors : public Writing {
  public:
    Descriptors() : file_(open(path("log").c_str(), O_RDWR | O_CREAT | O_CLOEXEC, 0600)) { put("head\n"); }
    ~Descriptors() override { close(file_); }

    void put(const std::string& text) const
    {
        EXPECT_EQ(::write(file_, text.data(), text.size()), static_cast<ssize_t>(text.size()));
    }

    std::string content() const
    {
        std::string text(1000, '\0');
        const ssize_t size = pread(file_, text.data(), text.size(), 0);
        EXPECT_GE(size, 0);
        text.resize(static_cast<std::size_t>(size));
        return text;
    }

    /// The file of the test is the program's descriptor.
    Surroundings with_descriptor(int number) const
    {
        Surroundings surroundings;
        surroundings.descriptors = {{number, file_}};
        return surroundings;
    }

    void expect_written_to(const std::string& name, int number) const
    {
        const Outcome outcome = write_script_to(name, with_descriptor(number));
        EXPECT_EQ(outcome.out, "") << name;
        EXPECT_EQ(outcome.err, "") << name;
        EXPECT_EQ(outcome.status, 1) << name;
    }

  protected:
    int file_; // whose offset the program shares
};

TEST_F(Descriptors, NameOfADescriptorStandsForIt)
{
    std::filesystem::create_symlink("/dev/fd/5", path("link"));
    expect_written_to("/dev/stdout", 1);
    put("between\n");
    expect_written_to("/dev/fd/5", 5);
    expect_written_to("/proc/self/fd/5", 5);
    expect_written_to("link", 5);
    put("tail\n");
    const std::string text = script;
    EXPECT_EQ(content(), "head\n" + text + "between\n" + text + text + text + "tail\n");
    EXPECT_EQ(read("log"), content());
    EXPECT_THAT(names(), ElementsAre("cfg.json", "link", "log", "orig.json"));
}

TEST_F(Descriptors, FileThatHasBeenDeletedIsWrittenTo)
{
    std::filesystem::remove(path("log"));
    expect_written_to("/dev/fd/5", 5);
    EXPECT_EQ(content(), std::string("head\n") + script);
    EXPECT_THAT(names(), ElementsAre("cfg.json", "orig.json"));
}

TEST_F(Descriptors, FileOfAnotherProcessIsAppendedTo)
{
    const std::string name = "/proc/" + std::to_string(getpid()) + "/fd/" + std::to_string(file_);
    EXPECT_EQ(write_script_to(name).err, "");
    EXPECT_EQ(content(), std::string("head\n") + script);
    std::filesystem::remove(path("log"));
    EXPECT_EQ(write_script_to(name).err, "");
    EXPECT_EQ(content(), std::string("head\n") + script + script);
    EXPECT_THAT(names(), ElementsAre("cfg.json", "orig.json"));
}

TEST_F(Descriptors, DescriptorThatIsNotOpenOrNotForWriting)
{
    expect_error(write_script_to("/dev/fd/9"), "pondiff: /dev/fd/9: Bad file descriptor\n");
    const int read_only = open(path("log").c_str(), O_RDONLY | O_CLOEXEC);
    Surroundings surroundings;
    surroundings.descriptors = {{5, read_only}};
    expect_error(write_script_to("/dev/fd/5", surroundings), "pondiff: /dev/fd/5: Bad file descriptor\n");
    close(read_only);
    EXPECT_EQ(read("log"), "head\n");
}

TEST_F(Descriptors, FileWithTheNameOfANumberIsAFile)
{
    std::filesystem::create_directory(path("fd"));
    EXPECT_EQ(write_script_to("fd/1").out, "");
    EXPECT_EQ(read("fd/1"), script);
}

TEST_F(Descriptors, InputIsNotReplaced)
{
    const std::string before = read("cfg.json");
    std::filesystem::create_hard_link(path("cfg.json"), path("hard"));
    std::filesystem::create_symlink("cfg.json", path("soft"));
    const int descriptor = open(path("cfg.json").c_str(), O_RDWR | O_CLOEXEC);
    Surroundings surroundings;
    surroundings.descriptors = {{5, descriptor}};
    for (const char* const name : {"cfg.json", "./cfg.json", "hard", "soft", "/dev/fd/5"}) {
        expect_error(write_script_to(name, surroundings), std::string("pondiff: ") + name +
                                                              ": is an input as well; choose another file for the "
                                                              "output\n");
    }
    expect_error(run({"pack", "cfg.json", "-o", "cfg.json"}),
                 "pondiff: cfg.json: is an input as well; choose another file for the output\n");
    surroundings.descriptors = {{0, descriptor}};
    expect_error(run({"show", "-", "-o", "cfg.json"}, surroundings),
                 "pondiff: cfg.json: is an input as well; choose another file for the output\n");
    surroundings.descriptors = {{1, descriptor}};
    expect_error(run({"show", "cfg.json"}, surroundings),
                 "pondiff: standard output: is an input as well; choose another file for the output\n");
    close(descriptor);
    EXPECT_EQ(read("cfg.json"), before);
}

TEST_F(Descriptors, WhatIsNoRegularFileMayBeReadAndWritten)
{
    int ends[2];
    ASSERT_EQ(pipe2(ends, O_CLOEXEC), 0);
    ASSERT_EQ(::write(ends[1], "{}", 2), 2);
    close(ends[1]);
    Surroundings surroundings;
    surroundings.descriptors = {{0, ends[0]}};
    const Outcome outcome = run({"show", "/dev/stdin", "-o", "/dev/null"}, surroundings);
    EXPECT_EQ(outcome.err, "");
    EXPECT_EQ(outcome.status, 0);
    close(ends[0]);
}

// ------------------------------------------------------------------------------------------------- what changes
// meanwhile

TEST_F(Descriptors, FileThatChangesWhileItIsReadIsAnError)
{
    ASSERT_EQ(run({"pack", "cfg.json", "-o", "cfg.bin"}).status, 0);
    for (const char* const name : {"cfg.bin", "cfg.json"}) {
        const Outcome outcome = run({"show", name}, with_other_library(std::string("TEST_FILE_CHANGES=") + name));
        EXPECT_EQ(outcome.out, "");
        EXPECT_EQ(outcome.err, std::string("pondiff: ") + name + ": changed while it was read; try again\n");
        EXPECT_EQ(outcome.status, 2);
    }
}

} // namespace
