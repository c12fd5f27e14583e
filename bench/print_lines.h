#ifndef BENCH_PRINT_LINES_H
#define BENCH_PRINT_LINES_H

#include <cstddef>
#include <set>
#include <string>
#include <string_view>
#include <vector>

namespace pondiff::bench {

/// What the lines of a script are measured against: each is written anew by one snprintf of its form and appended to a
/// text that grows. The form has a conversion for each value of the line, as far as it has no more than two; what comes
/// behind those is part of the form, and a list of VLANs is one value.
class PrintedLines {
  public:
    explicit PrintedLines(std::string_view script);

    /// The script, on the heap; it ends like that of the library, with a terminator.
    char* print() const;

    std::size_t count() const { return lines_.size(); }
    std::size_t bytes() const { return bytes_; }

  private:
    enum class Kind : unsigned char { none, number, text };
    struct Argument {
        Kind kind = Kind::none;
        int number = 0;
        const char* text = nullptr;
    };
    struct Line {
        const char* form;
        Argument first;
        Argument second;
    };

    Line parse(std::string_view line);
    static int print_line(char* out, std::size_t capacity, const Line& line);
    const char* kept(std::string text) { return texts_.insert(std::move(text)).first->c_str(); }

    std::vector<Line> lines_;
    std::set<std::string> texts_;
    std::size_t bytes_;
};

} // namespace pondiff::bench

#endif
