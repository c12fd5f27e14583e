#include "tool/input.h"

#include "tool/files.h"
#include "tool/json/json.h"
#include "tool/language/objects.h"
#include "tool/language/slots.h"
#include "tool/language/unsaid.h"
#include "tool/lines.h"
#include "tool/messages.h"

#include <CLI/CLI.hpp>
#include <algorithm>
#include <cstring>
#include <fmt/format.h>

namespace pondiff::tool {

namespace {

enum class Kind { document, record, text };

/// The text without the byte-order mark that an editor may have added.
std::string_view without_mark(std::string_view content)
{
    constexpr std::string_view byte_order_mark = "\xEF\xBB\xBF";
    if (content.substr(0, byte_order_mark.size()) == byte_order_mark) {
        content.remove_prefix(byte_order_mark.size());
    }
    return content;
}

bool begins_like_json(std::string_view content)
{
    content = without_mark(content);
    const std::size_t first = content.find_first_not_of(" \t\r\n");
    return first != std::string_view::npos && content[first] == '{';
}

Kind kind_of(std::string_view content)
{
    if (content.size() == sizeof(GCfg) && content.find('\0') != std::string_view::npos) {
        return Kind::record;
    }
    return begins_like_json(content) ? Kind::document : Kind::text;
}

std::unique_ptr<GCfg> from_record(std::string_view content)
{
    auto configuration = std::make_unique<GCfg>();
    std::memcpy(configuration.get(), content.data(), sizeof(GCfg));
    return configuration;
}

/// Whether a member or the end follows the brace that content begins with.
bool goes_on_like_json(std::string_view content)
{
    const std::size_t second = content.find_first_not_of(" \t\r\n", content.find('{') + 1);
    return second == content.npos || content[second] == '"' || content[second] == '}';
}

std::unique_ptr<GCfg> from_document(std::string_view content, const std::string& name)
{
    auto configuration = std::make_unique<GCfg>();
    try {
        read_json(content, name, *configuration);
    } catch (const InputError& error) {
        if (goes_on_like_json(content)) {
            throw;
        }
        throw InputError(fmt::format("{}; what begins with '{{' is read as a JSON document, so no text of commands may "
                                     "begin with it",
                                     error.what()));
    }
    return configuration;
}

[[noreturn]] void fail(std::string_view content, const std::string& name, const std::string& why)
{
    throw InputError(fmt::format("{}: size is {}, but a record has {} bytes and a JSON document begins with '{{'{}",
                                 name, content.size(), sizeof(GCfg), why));
}

void warn_of_unsaid(std::size_t count, const std::string& name, bool with_base)
{
    const bool one = count == 1;
    std::string why = "--base FILE takes them from a record or document";
    if (with_base) {
        why = one ? "the base does not have the object that it belongs to"
                  : "the base does not have the objects that they belong to";
    }
    if (count != 0) {
        report_warning(fmt::format("{}: {} {} no command and {} left unset; {}", name, count,
                                   one ? "field has" : "fields have", one ? "is" : "are", why));
    }
}

} // namespace

void Input::add_option(CLI::App& command)
{
    command
        .add_option("--base", base_file_,
                    "Take what no command can set from FILE, a record or JSON\n"
                    "document, when reading a text of commands")
        ->option_text("FILE");
}

void Input::check(std::initializer_list<std::string_view> files) const
{
    if (std::count(files.begin(), files.end(), standard_stream) + (base_file_ == standard_stream) > 1) {
        throw UsageError("only one of the files can be standard input");
    }
}

std::unique_ptr<GCfg> Input::configuration(const std::string& file)
{
    std::unique_ptr<GCfg> result;
    read(file, result);
    return result;
}

std::pair<std::unique_ptr<GCfg>, std::unique_ptr<GCfg>> Input::configurations(const std::string& first,
                                                                              const std::string& second)
{
    std::pair<std::unique_ptr<GCfg>, std::unique_ptr<GCfg>> both;
    const bool first_is_text = read(first, both.first);
    const bool second_is_text = read(second, both.second);
    if (second_is_text) {
        take_slots_of(*both.first, *both.second);
    } else if (first_is_text) {
        take_slots_of(*both.second, *both.first);
    }
    return both;
}

bool Input::read(const std::string& file, std::unique_ptr<GCfg>& configuration)
{
    base(); // reports errors in it even when no text needs it
    const std::string name = name_of_input(file);
    const std::string content = read_file(file);
    switch (kind_of(content)) {
    case Kind::document:
        configuration = from_document(content, name);
        return false;
    case Kind::record:
        configuration = from_record(content);
        return false;
    case Kind::text:
        break;
    }
    configuration = from_text(content, name);
    return true;
}

std::unique_ptr<GCfg> Input::from_text(std::string_view content, const std::string& name)
{
    if (content.find('\0') != content.npos) {
        fail(content, name, "");
    }
    auto configuration = blank_configuration();
    LineReport report(name, *configuration, base() != nullptr);
    Unsaid unsaid(*configuration);
    read_script(without_mark(content), *configuration, [&](const Line& line) {
        report.add(line);
        unsaid.add(line);
    });
    if (!report.any_taken()) {
        if (content.size() == sizeof(GCfg)) {
            return from_record(content);
        }
        fail(content, name,
             report.any_refused() ? ", and no line is a command; the first is: " + report.first_refused() : "");
    }
    report.print();
    warn_of_unsaid(unsaid.fill_in(base()), name, base() != nullptr);
    return configuration;
}

const GCfg* Input::base()
{
    if (!base_ && !base_file_.empty()) {
        const std::string name = name_of_input(base_file_);
        const std::string content = read_file(base_file_);
        switch (kind_of(content)) {
        case Kind::document:
            base_ = from_document(content, name);
            break;
        case Kind::record:
            base_ = from_record(content);
            break;
        case Kind::text:
            fail(content, name, ", and --base takes nothing else");
        }
    }
    return base_.get();
}

std::string Input::script(const std::string& file)
{
    std::string content = read_file(file);
    const Kind kind = kind_of(content);
    if (kind != Kind::text) {
        throw InputError(fmt::format("{}: expected a script, but this {}", name_of_input(file),
                                     kind == Kind::record ? "is a record" : "begins with '{' as a JSON document does"));
    }
    content.erase(0, content.size() - without_mark(content).size());
    return content;
}

} // namespace pondiff::tool
