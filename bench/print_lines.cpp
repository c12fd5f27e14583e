#include "bench/print_lines.h"

#include <algorithm>
#include <cstdio>
#include <cstdlib>
#include <cstring>

namespace pondiff::bench {

namespace {

bool is_digit(char c)
{
    return c >= '0' && c <= '9';
}

bool is_number(std::string_view text)
{
    constexpr std::size_t digits_of_an_int = 9;
    if (!text.empty() && text.front() == '-') {
        text.remove_prefix(1);
    }
    if (text.empty() || text.size() > digits_of_an_int || (text.size() > 1 && text.front() == '0')) {
        return false;
    }
    for (const char c : text) {
        if (!is_digit(c)) {
            return false;
        }
    }
    return true;
}

} // namespace

PrintedLines::PrintedLines(std::string_view script) : bytes_(script.size())
{
    const std::string_view whole = script;
    while (!script.empty()) {
        const std::size_t size = script.find('\n');
        lines_.push_back(parse(script.substr(0, size)));
        script.remove_prefix(size + 1);
    }
    char* const printed = print();
    const bool same = whole == printed;
    std::free(printed);
    if (!same) {
        std::fputs("the forms of the lines do not give the script\n", stderr);
        std::abort();
    }
}

/// Values are what stands between quotes, and words that begin with a digit. A number behind several blanks is one
/// that was filled up to four characters.
PrintedLines::Line PrintedLines::parse(std::string_view line)
{
    Line result{};
    std::string form;
    std::size_t at = 0;
    const auto add = [&](std::string_view value, const char* number_form) {
        Argument& argument = result.first.kind == Kind::none ? result.first : result.second;
        if (is_number(value)) {
            argument = {Kind::number, std::atoi(std::string(value).c_str()), nullptr};
            form += number_form;
        } else {
            argument = {Kind::text, 0, kept(std::string(value))};
            form += "%s";
        }
    };
    while (at < line.size()) {
        const bool all_taken = result.second.kind != Kind::none;
        const bool begins_word = at == 0 || line[at - 1] == ' ';
        if (all_taken) {
            if (line[at] == '%') {
                form += '%';
            }
            form += line[at++];
        } else if (line[at] == '"') {
            const std::size_t end = std::min(line.find('"', at + 1), line.size());
            form += '"';
            add(line.substr(at + 1, end - at - 1), "%d");
            at = end;
            if (at < line.size()) {
                form += line[at++];
            }
        } else if (begins_word && (is_digit(line[at]) || line[at] == ' ')) {
            const std::size_t begin = std::min(line.find_first_not_of(' ', at), line.size());
            const std::size_t end = std::min(line.find(' ', begin), line.size());
            const std::string_view word = line.substr(begin, end - begin);
            if (is_number(word) && end - at <= 4) {
                add(word, end - at == 4 ? "%4d" : "%d");
            } else {
                form.append(line.substr(at, begin - at));
                if (!word.empty() && is_digit(word.front())) {
                    add(word, "%d");
                } else {
                    form.append(word);
                }
            }
            at = end;
        } else {
            if (line[at] == '%') {
                form += '%';
            }
            form += line[at++];
        }
    }
    result.form = kept(form);
    return result;
}

#pragma GCC diagnostic push
#pragma GCC diagnostic ignored "-Wformat-nonliteral"
#pragma GCC diagnostic ignored "-Wformat-security"
int PrintedLines::print_line(char* out, std::size_t capacity, const Line& line)
{
    const char* const form = line.form;
    const Argument& a = line.first;
    const Argument& b = line.second;
    switch (static_cast<int>(a.kind) * 3 + static_cast<int>(b.kind)) {
    case 0:
        return std::snprintf(out, capacity, form);
    case 3:
        return std::snprintf(out, capacity, form, a.number);
    case 4:
        return std::snprintf(out, capacity, form, a.number, b.number);
    case 5:
        return std::snprintf(out, capacity, form, a.number, b.text);
    case 6:
        return std::snprintf(out, capacity, form, a.text);
    case 7:
        return std::snprintf(out, capacity, form, a.text, b.number);
    default:
        return std::snprintf(out, capacity, form, a.text, b.text);
    }
}
#pragma GCC diagnostic pop

char* PrintedLines::print() const
{
    char* text = nullptr;
    std::size_t size = 0;
    std::size_t capacity = 4096;
    text = static_cast<char*>(std::malloc(capacity));
    for (const Line& line : lines_) {
        char buffer[1024];
        const auto length = static_cast<std::size_t>(print_line(buffer, sizeof buffer, line));
        if (capacity - size < length + 2) {
            capacity *= 2;
            text = static_cast<char*>(std::realloc(text, capacity));
        }
        std::memcpy(text + size, buffer, length);
        size += length;
        text[size++] = '\n';
    }
    text[size] = '\0';
    return text;
}

} // namespace pondiff::bench
