/// Times processes: bench-start RUNS COMMAND... starts each command so often, all of them in turn, and prints a line
/// for each: median and least processor time, and least elapsed time, in microseconds. A command is split at its
/// blanks; its standard output goes to /dev/null, and it may end with status 0 or 1.

#include <algorithm>
#include <cerrno>
#include <chrono>
#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <fcntl.h>
#include <spawn.h>
#include <sstream>
#include <string>
#include <sys/resource.h>
#include <sys/wait.h>
#include <unistd.h>
#include <vector>

namespace {

struct Command {
    std::string text;
    std::vector<std::string> words;
    std::vector<double> processor;
    std::vector<double> elapsed;
};

Command parse(const char* text)
{
    Command command;
    command.text = text;
    std::istringstream words(command.text);
    for (std::string word; words >> word;) {
        command.words.push_back(word);
    }
    return command;
}

[[noreturn]] void give_up(const Command& command, const char* why)
{
    std::fprintf(stderr, "bench-start: %s: %s\n", command.text.c_str(), why);
    std::exit(EXIT_FAILURE);
}

double microseconds(const timeval& time)
{
    constexpr double mega = 1e6;
    return static_cast<double>(time.tv_sec) * mega + static_cast<double>(time.tv_usec);
}

void run(Command& command, const posix_spawn_file_actions_t& actions)
{
    std::vector<char*> arguments;
    for (std::string& word : command.words) {
        arguments.push_back(word.data());
    }
    arguments.push_back(nullptr);

    const auto start = std::chrono::steady_clock::now();
    pid_t child = 0;
    if (const int error = posix_spawnp(&child, arguments.front(), &actions, nullptr, arguments.data(), environ)) {
        give_up(command, std::strerror(error));
    }
    int status = 0;
    rusage used{};
    if (wait4(child, &status, 0, &used) != child) {
        give_up(command, std::strerror(errno));
    }
    const std::chrono::duration<double, std::micro> elapsed = std::chrono::steady_clock::now() - start;

    if (!WIFEXITED(status) || WEXITSTATUS(status) > 1) {
        give_up(command, "failed");
    }
    command.elapsed.push_back(elapsed.count());
    command.processor.push_back(microseconds(used.ru_utime) + microseconds(used.ru_stime));
}

} // namespace

int main(int argc, char** argv)
{
    const int runs = argc > 2 ? std::atoi(argv[1]) : 0;
    if (runs < 1) {
        std::fputs("usage: bench-start RUNS COMMAND...\n", stderr);
        return EXIT_FAILURE;
    }
    std::vector<Command> commands;
    for (int i = 2; i < argc; ++i) {
        commands.push_back(parse(argv[i]));
    }
    posix_spawn_file_actions_t actions;
    posix_spawn_file_actions_init(&actions);
    posix_spawn_file_actions_addopen(&actions, STDOUT_FILENO, "/dev/null", O_WRONLY, 0);
    for (int i = 0; i < runs; ++i) {
        for (Command& command : commands) {
            run(command, actions);
        }
    }
    posix_spawn_file_actions_destroy(&actions);
    for (Command& command : commands) {
        std::sort(command.processor.begin(), command.processor.end());
        const double least_elapsed = *std::min_element(command.elapsed.begin(), command.elapsed.end());
        std::printf("%.0f %.0f %.0f\n", command.processor[command.processor.size() / 2], command.processor.front(),
                    least_elapsed);
    }
}
