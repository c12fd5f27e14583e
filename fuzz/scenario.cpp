#include "fuzz/scenario.h"

#include "fuzz/checks.h"
#include "fuzz/operations.h"
#include "tool/describe/records.h"
#include "tool/json/store.h"

#include <algorithm>
#include <charconv>
#include <cstring>
#include <limits>
#include <optional>

namespace pondiff::fuzz {

namespace {

std::string_view take_until(std::string_view& text, char end)
{
    const std::size_t at = text.find(end);
    const std::string_view taken = text.substr(0, at);
    text.remove_prefix(at == text.npos ? text.size() : at + 1);
    return taken;
}

template <class Number>
std::optional<Number> number_of(std::string_view digits)
{
    Number number{};
    const auto [end, error] = std::from_chars(digits.data(), digits.data() + digits.size(), number);
    if (error != std::errc{} || end != digits.data() + digits.size()) {
        return std::nullopt;
    }
    return number;
}

void append_quoted(std::string& out, std::string_view bytes)
{
    constexpr char digits[] = "0123456789abcdef";
    out += '"';
    for (const char c : bytes) {
        const auto byte = static_cast<unsigned char>(c);
        if (byte < ' ' || byte > '~' || c == '"' || c == '\\') {
            out += "\\x";
            out += digits[byte / 16];
            out += digits[byte % 16];
        } else {
            out += c;
        }
    }
    out += '"';
}

std::optional<std::string> unquoted(std::string_view text)
{
    if (text.size() < 2 || text.front() != '"' || text.back() != '"') {
        return std::nullopt;
    }
    text = text.substr(1, text.size() - 2);
    std::string bytes;
    while (!text.empty()) {
        unsigned char byte = 0;
        if (text.substr(0, 2) != "\\x") {
            bytes += text.front();
            text.remove_prefix(1);
        } else if (text.size() >= 4 &&
                   std::from_chars(text.data() + 2, text.data() + 4, byte, 16).ptr == text.data() + 4) {
            bytes += static_cast<char>(byte);
            text.remove_prefix(4);
        } else {
            return std::nullopt;
        }
    }
    return bytes;
}

/// What is printed last is not needed: zeros behind a text.
std::string_view without_zeros_behind(std::string_view bytes)
{
    return bytes.substr(0, bytes.find_last_not_of('\0') + 1);
}

std::optional<std::string> bytes_of(const tool::Field& field, std::string_view value)
{
    if (field.form == tool::Form::record) {
        return std::nullopt;
    }
    std::string bytes(field.width, '\0');
    auto* const at = reinterpret_cast<unsigned char*>(bytes.data());
    if (tool::is_number(field.form)) {
        if (const auto number = number_of<std::int64_t>(value)) {
            tool::set_number(field, at, *number);
            return bytes;
        }
    } else if (std::optional<std::string> quoted = unquoted(value)) {
        quoted->resize(field.width);
        return quoted;
    }
    const std::string mistake = tool::store(field, at, {tool::JsonValue::Type::text, 0, value});
    return mistake.empty() ? std::optional<std::string>(bytes) : std::nullopt;
}

constexpr const char* side_words[] = {"orig", "cfg", "both"};

std::optional<Patch> parse_patch(Patch::Side side, std::string_view rest)
{
    Patch patch;
    patch.side = side;
    patch.place = find_place(take_until(rest, ' '));
    if (patch.place.field == nullptr) {
        return std::nullopt;
    }
    std::optional<std::string> bytes = bytes_of(*patch.place.field, rest);
    if (!bytes) {
        return std::nullopt;
    }
    patch.bytes = *std::move(bytes);
    return patch;
}

std::optional<Call> parse_call(std::string_view rest)
{
    Call call;
    call.operation = find_operation(take_until(rest, ' '));
    if (call.operation == nullptr) {
        return std::nullopt;
    }
    std::size_t numbers = 0;
    while (!rest.empty()) {
        const std::string_view argument = take_until(rest, ' ');
        const auto number = number_of<int>(argument);
        if (argument == "no-orig") {
            call.no_orig = true;
        } else if (argument == "no-cfg") {
            call.no_cfg = true;
        } else if (number && numbers < call.operation->numbers) {
            call.numbers[numbers++] = *number;
        } else if (call.operation->takes_word) {
            call.word = argument.substr(0, argument.find('\0'));
        }
    }
    return call;
}

/// @return false when the line makes no sense
bool parse_line(std::string_view line, Scenario& scenario)
{
    if (line.empty() || line.front() == '#') {
        return true;
    }
    const std::string_view verb = take_until(line, ' ');
    if (verb == "base") {
        while (!line.empty()) {
            scenario.base.emplace_back(take_until(line, ' '));
        }
        return scenario.base == std::vector<std::string>{"blank"} || scenario.base.size() == 2;
    }
    if (verb == "switches") {
        const auto all = number_of<int>(take_until(line, ' '));
        const auto common = number_of<int>(line);
        scenario.all = all.value_or(0);
        scenario.common = common.value_or(0);
        return all && common;
    }
    if (verb == "call") {
        const std::optional<Call> call = parse_call(line);
        if (call) {
            scenario.calls.push_back(*call);
        }
        return call.has_value();
    }
    const auto* const word = std::find(std::begin(side_words), std::end(side_words), verb);
    if (word == std::end(side_words)) {
        return false;
    }
    const std::optional<Patch> patch = parse_patch(static_cast<Patch::Side>(word - side_words), line);
    if (patch) {
        scenario.patches.push_back(*patch);
    }
    return patch.has_value();
}

void print_patch(const Patch& patch, std::string& out)
{
    const tool::Field& field = *patch.place.field;
    out += side_words[static_cast<int>(patch.side)];
    out += ' ' + patch.place.path + ' ';
    if (tool::is_number(field.form)) {
        out += std::to_string(tool::get_number(field, reinterpret_cast<const unsigned char*>(patch.bytes.data())));
    } else {
        append_quoted(out, without_zeros_behind(patch.bytes));
    }
    out += '\n';
}

void print_call(const Call& call, std::string& out)
{
    out += "call ";
    out += call.operation->name;
    if (call.operation->takes_word && !call.word.empty()) {
        out += ' ' + call.word;
    }
    for (std::size_t i = 0; i < call.operation->numbers; ++i) {
        out += ' ' + std::to_string(call.numbers[i]);
    }
    out += call.no_orig ? " no-orig" : "";
    out += call.no_cfg ? " no-cfg" : "";
    out += '\n';
}

} // namespace

void apply(const Patch& patch, GCfg& orig, GCfg& cfg)
{
    if (patch.side != Patch::Side::cfg) {
        std::memcpy(reinterpret_cast<char*>(&orig) + patch.place.offset, patch.bytes.data(), patch.bytes.size());
    }
    if (patch.side != Patch::Side::orig) {
        std::memcpy(reinterpret_cast<char*>(&cfg) + patch.place.offset, patch.bytes.data(), patch.bytes.size());
    }
}

Place find_place(std::string_view path)
{
    Place place;
    place.path = path;
    const tool::Record* record = &tool::gcfg_record;
    while (record != nullptr) {
        const std::string_view name = take_until(path, '.');
        const auto* const field =
            std::find_if(record->begin(), record->end(), [name](const tool::Field& f) { return f.name == name; });
        if (field == record->end()) {
            return {};
        }
        std::size_t index = 0;
        if (field->array) {
            index = number_of<std::size_t>(take_until(path, '.')).value_or(std::numeric_limits<std::size_t>::max());
        }
        if (index >= field->count) {
            return {};
        }
        place.field = field;
        place.offset += field->offset + index * field->width;
        record = field->record;
    }
    return path.empty() ? place : Place{};
}

Scenario parse_scenario(std::string_view text, std::vector<std::string>& senseless)
{
    Scenario scenario;
    while (!text.empty()) {
        const std::string_view line = take_until(text, '\n');
        if (!parse_line(line, scenario)) {
            senseless.emplace_back(line);
        }
    }
    return scenario;
}

Scenario parse_scenario(std::string_view text)
{
    std::vector<std::string> senseless;
    Scenario scenario = parse_scenario(text, senseless);
    if (!scenario.base.empty()) {
        senseless.push_back("base " + scenario.base.front());
        scenario.base.clear();
    }
    check(!every_check || senseless.empty(),
          senseless.empty() ? "" : "a line that makes no sense: " + senseless.front());
    return scenario;
}

std::string print_scenario(const Scenario& scenario)
{
    std::string out = "switches " + std::to_string(scenario.all) + ' ' + std::to_string(scenario.common) + '\n';
    for (const Patch& patch : scenario.patches) {
        print_patch(patch, out);
    }
    for (const Call& call : scenario.calls) {
        print_call(call, out);
    }
    return out;
}

} // namespace pondiff::fuzz
