#include "tool/commands/candidates.h"
#include "tool/commands/commands.h"
#include "tool/files.h"

#include <CLI/CLI.hpp>
#include <algorithm>
#include <memory>
#include <sstream>
#include <string>
#include <string_view>
#include <vector>

namespace pondiff::tool {

namespace {

constexpr char details[] =
    R"(Prints the candidates for the last of the words after "pondiff" on a command
line, which may be empty: a line each, with the word, a tab and its meaning. A
line "files", without a tab, stands for file names. The completions for bash and
zsh call it.)";

constexpr char files[] = "files\n";

/// Adds a candidate if it continues what has been typed. The part after a colon is offered once the colon is typed.
void add(std::string& candidates, const std::string& typed, const std::string& word, const std::string& meaning)
{
    if (word.compare(0, typed.size(), typed) != 0) {
        return;
    }
    const bool unfinished = word.back() == ':';
    if (word.size() == typed.size() ? !unfinished : word.find(':', typed.size()) >= word.size() - 1) {
        candidates += word + "\t" + meaning + "\n";
    }
}

/// The first sentence of a description, on one line.
std::string summary_of(const CLI::Option& option)
{
    std::string text = option.get_description();
    std::replace(text.begin(), text.end(), '\n', ' ');
    return text.substr(0, text.find(". "));
}

std::vector<CLI::App*> commands_of(CLI::App& program)
{
    return program.get_subcommands([](CLI::App* command) { return !command->get_group().empty(); });
}

/// Null when there is none.
CLI::App* command_named(CLI::App& program, const std::string& name)
{
    const std::vector<CLI::App*> commands = commands_of(program);
    const auto found = std::find_if(commands.begin(), commands.end(),
                                    [&name](const CLI::App* command) { return command->get_name() == name; });
    return found != commands.end() ? *found : nullptr;
}

std::string commands_for(CLI::App& program, const std::string& typed)
{
    std::string candidates;
    for (const CLI::App* const command : commands_of(program)) {
        add(candidates, typed, command->get_name(), command->get_description());
    }
    return candidates;
}

std::string options_for(CLI::App& command, const std::string& typed)
{
    std::string candidates;
    for (const CLI::Option* const option : command.get_options()) {
        for (const std::string& name : option->get_snames()) {
            add(candidates, typed, "-" + name, summary_of(*option));
        }
        for (const std::string& name : option->get_lnames()) {
            add(candidates, typed, "--" + name, summary_of(*option));
        }
    }
    return candidates;
}

/// @param before  the part of the word before the argument: nothing, or "--option="
std::string arguments_for(CLI::Option& option, const std::string& before, const std::string& typed)
{
    const CLI::Validator* known = nullptr;
    try {
        known = option.get_validator(candidates_name);
    } catch (const CLI::OptionNotFound&) {
        return files;
    }
    std::string candidates;
    std::istringstream lines(known->get_description());
    for (std::string line; std::getline(lines, line);) {
        const std::size_t tab = line.find('\t');
        add(candidates, before + typed, before + line.substr(0, tab), line.substr(tab + 1));
    }
    return candidates;
}

/// The option with this name that takes an argument, or null.
CLI::Option* option_with_argument(CLI::App& command, const std::string& name)
{
    CLI::Option* const option = command.get_option_no_throw(name);
    return option && option->get_items_expected_max() > 0 ? option : nullptr;
}

bool is_option(const std::string& word)
{
    return word.size() > 1 && word.front() == '-';
}

/// What completes the last word of a command line. The words before it say which command and option it belongs to.
std::string candidates_for(CLI::App& program, const std::vector<std::string>& words)
{
    const std::string typed = words.empty() ? "" : words.back();
    CLI::App* command = &program;
    CLI::Option* option = nullptr; // takes the next word
    bool options_ended = false;
    for (std::size_t i = 0; i + 1 < words.size(); ++i) {
        const std::string& word = words[i];
        if (option) {
            option = nullptr;
        } else if (word == "--") {
            options_ended = true;
        } else if (is_option(word) && !options_ended) {
            option = option_with_argument(*command, word);
        } else if (command == &program) {
            command = command_named(program, word);
            if (!command) {
                return "";
            }
        }
    }
    if (option) {
        return arguments_for(*option, "", typed);
    }
    if (!options_ended && !typed.empty() && typed.front() == '-') {
        const std::size_t after_name = typed.find('=');
        option = option_with_argument(*command, typed.substr(0, after_name));
        return option && after_name != typed.npos
                   ? arguments_for(*option, typed.substr(0, after_name + 1), typed.substr(after_name + 1))
                   : options_for(*command, typed);
    }
    if (command == &program) {
        return commands_for(program, typed);
    }
    return command->get_options([](const CLI::Option* one) { return one->get_positional(); }).empty() ? "" : files;
}

std::function<ExitStatus()> setup(CLI::App& command)
{
    const auto words = std::make_shared<std::vector<std::string>>();
    command.add_option("WORD", *words,
                       "The words after \"pondiff\", the last one unfinished;\n"
                       "-- precedes them");
    command.group(""); // for the shells: not in the help
    command.footer(details);
    return [words, &program = *command.get_parent()] {
        write_file(standard_stream, candidates_for(program, *words));
        return ExitStatus::success;
    };
}

} // namespace

const Command complete_command{"complete", "Print what completes a command line", setup};

} // namespace pondiff::tool
