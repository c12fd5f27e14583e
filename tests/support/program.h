#ifndef TESTS_SUPPORT_PROGRAM_H
#define TESTS_SUPPORT_PROGRAM_H

/// @file
/// Base of the tests of the program: each test has its own folder, in which it runs the program.

#include "gcfg/gcfg.h"

#include <algorithm>
#include <csignal>
#include <cstdio>
#include <cstdlib>
#include <fcntl.h>
#include <filesystem>
#include <fstream>
#include <grp.h>
#include <gtest/gtest.h>
#include <iterator>
#include <map>
#include <string>
#include <sys/resource.h>
#include <sys/stat.h>
#include <sys/wait.h>
#include <unistd.h>
#include <vector>

using Arguments = std::vector<std::string>;

/// The result of a run.
struct Outcome {
    int status; ///< the exit status, or the signal that ended the program, negated
    std::string out;
    std::string err;
};

/// What standard error holds besides the lines that name what a script does not reach.
inline std::string besides_not_applied(const std::string& err)
{
    std::string rest;
    for (std::size_t begin = 0; begin < err.size();) {
        const std::size_t end = std::min(err.find('\n', begin), err.size() - 1) + 1;
        const std::string line = err.substr(begin, end - begin);
        rest += line.rfind("pondiff: not applied: ", 0) == 0 ? "" : line;
        begin = end;
    }
    return rest;
}

/// The paths of the fields that standard error names as not applied.
inline std::vector<std::string> fields_not_applied(const std::string& err)
{
    const std::string start = "pondiff: not applied: ";
    std::vector<std::string> paths;
    for (std::size_t at = 0; (at = err.find(start, at)) != err.npos;) {
        at += start.size();
        paths.push_back(err.substr(at, err.find(':', at) - at));
    }
    return paths;
}

/// The environment of a run.
struct Surroundings {
    std::string input{};                    ///< comes through a pipe
    std::string output_file{};              ///< where standard output goes; nowhere else than to `Outcome` when empty
    bool reader_gone = false;               ///< standard output is a pipe that nobody reads
    std::vector<int> closed{};              ///< standard descriptors that are closed
    std::vector<std::string> environment{}; ///< "NAME=value" each
    bool unprivileged = false;              ///< the super-user runs it as somebody else
    std::vector<gid_t> groups{};            ///< that somebody else belongs to, besides their own
    std::map<int, int> descriptors{};       ///< of the program, and of the test, whose files they stand for
    mode_t mask = 022;                      ///< permissions that new files do not get
    rlim_t largest_file = RLIM_INFINITY;
};

/// Preloads a library before the real ones; it reads `variable`, "NAME=value".
inline Surroundings with_other_library(const std::string& variable, const std::string& library = PONDIFF_OTHER_LIBRARY)
{
    const char* const options = std::getenv("ASAN_OPTIONS");
    Surroundings surroundings;
    surroundings.environment = {variable, "LD_PRELOAD=" + library,
                                "ASAN_OPTIONS=" + (options ? options + std::string(":") : "") +
                                    "verify_asan_link_order=0"};
    return surroundings;
}

/// What the program reports of a file of `size` bytes that is neither a record nor a document.
inline std::string no_configuration(std::size_t size)
{
    return "size is " + std::to_string(size) + ", but a record has " + std::to_string(sizeof(GCfg)) +
           " bytes and a JSON document begins with '{'";
}

class ProgramTest : public ::testing::Test {
  public:
    ProgramTest()
    {
        std::string name = (std::filesystem::temp_directory_path() / "program-test-XXXXXX").string();
        if (mkdtemp(name.data()) == nullptr) {
            std::abort();
        }
        folder_ = name;
    }
    ~ProgramTest() override { std::filesystem::remove_all(folder_); }

    std::filesystem::path path(const std::string& name) const { return folder_ / name; }

    void write(const std::string& name, const std::string& content) const
    {
        std::ofstream(path(name), std::ios::binary) << content;
    }

    std::string read(const std::string& name) const
    {
        std::ifstream file(path(name), std::ios::binary);
        return {std::istreambuf_iterator<char>(file), {}};
    }

    mode_t mode(const std::string& name) const
    {
        struct stat status = {};
        EXPECT_EQ(stat(path(name).c_str(), &status), 0);
        return status.st_mode & 07777;
    }

    /// The names of what the folder holds, hidden files included, in alphabetical order.
    std::vector<std::string> names() const
    {
        std::vector<std::string> found;
        for (const auto& entry : std::filesystem::directory_iterator(folder_)) {
            found.push_back(entry.path().filename().string());
        }
        std::sort(found.begin(), found.end());
        return found;
    }

    /// Runs the program in the folder of the test.
    Outcome run(const Arguments& arguments, const Surroundings& surroundings = {}) const
    {
        std::FILE* const out = std::tmpfile();
        std::FILE* const err = std::tmpfile();
        int input[2];
        if (out == nullptr || err == nullptr || pipe2(input, O_CLOEXEC) != 0) {
            std::abort();
        }
        const pid_t child = fork();
        if (child == 0) {
            dup2(input[0], STDIN_FILENO);
            become_program(arguments, surroundings, fileno(out), fileno(err));
        }
        close(input[0]);
        feed(input[1], surroundings.input);
        int status = 0;
        waitpid(child, &status, 0);
        return {WIFEXITED(status) ? WEXITSTATUS(status) : -WTERMSIG(status), content_of(out), content_of(err)};
    }

    static constexpr uid_t nobody = 65534;

  private:
    [[noreturn]] void become_program(const Arguments& arguments, const Surroundings& surroundings, int out,
                                     int err) const
    {
        if (surroundings.reader_gone) {
            int ends[2];
            if (pipe(ends) != 0) {
                std::abort();
            }
            close(ends[0]);
            out = ends[1];
        } else if (!surroundings.output_file.empty()) {
            out = open(surroundings.output_file.c_str(), O_WRONLY);
        }
        const rlimit limit{surroundings.largest_file, RLIM_INFINITY};
        if (out < 0 || dup2(out, STDOUT_FILENO) < 0 || dup2(err, STDERR_FILENO) < 0 || chdir(folder_.c_str()) != 0 ||
            setrlimit(RLIMIT_FSIZE, &limit) != 0) {
            std::abort();
        }
        if (surroundings.unprivileged && geteuid() == 0 &&
            (setgroups(surroundings.groups.size(), surroundings.groups.data()) != 0 || setgid(nobody) != 0 ||
             setuid(nobody) != 0)) {
            std::abort();
        }
        for (const auto& [number, file] : surroundings.descriptors) {
            if (dup2(file, number) < 0 || fcntl(number, F_SETFD, 0) != 0) { // it may have the number already
                std::abort();
            }
        }
        for (const int descriptor : surroundings.closed) {
            close(descriptor);
        }
        umask(surroundings.mask);
        Arguments words{PONDIFF_EMULATOR};
        const bool emulated = !words.empty();
        for (const std::string& variable : surroundings.environment) {
            const std::size_t equals = variable.find('=');
            const std::string name = variable.substr(0, equals);
            if (emulated && name == "LD_PRELOAD") { // the library is one for the program
                words.insert(words.end(), {"-E", variable});
            } else {
                setenv(name.c_str(), variable.substr(equals + 1).c_str(), 1);
            }
        }
        if (emulated) {
            words.insert(words.end(), {"-0", "pondiff"});
        }
        words.emplace_back(emulated ? PONDIFF_PROGRAM : "pondiff");
        words.insert(words.end(), arguments.begin(), arguments.end());
        std::vector<char*> argv;
        for (std::string& word : words) {
            argv.push_back(word.data());
        }
        argv.push_back(nullptr);
        execvp(emulated ? argv.front() : PONDIFF_PROGRAM, argv.data());
        std::abort();
    }

    /// The program may leave without reading everything.
    static void feed(int descriptor, const std::string& input)
    {
        void (*const before)(int) = std::signal(SIGPIPE, SIG_IGN);
        for (std::size_t done = 0; done < input.size();) {
            const ssize_t count = ::write(descriptor, input.data() + done, input.size() - done);
            if (count <= 0) {
                break;
            }
            done += static_cast<std::size_t>(count);
        }
        close(descriptor);
        std::signal(SIGPIPE, before);
    }

    static std::string content_of(std::FILE* file)
    {
        std::string content;
        std::rewind(file);
        for (int c = std::getc(file); c != EOF; c = std::getc(file)) {
            content += static_cast<char>(c);
        }
        std::fclose(file);
        return content;
    }

    std::filesystem::path folder_;
};

#endif
