#ifndef TOOL_LINES_H
#define TOOL_LINES_H

#include "tool/language/reader.h"

#include <cstddef>
#include <string>
#include <string_view>
#include <vector>

namespace pondiff::tool {

/// The lines of a text of commands that have no effect on a device: lines that it refuses, and ambiguous lines, which
/// it accepts although they set nothing, since they are written for several values.
class LineReport {
  public:
    /// @param file           the name of the text in messages
    /// @param configuration  what the device holds
    /// @param is_filled_in   whether what no text of commands can say is filled in: then no line is mentioned that is
    ///                       written whatever the value is
    LineReport(std::string file, const GCfg& configuration, bool is_filled_in = false);

    /// Adds the outcome of a line. The text that holds the line must outlive the report.
    void add(const Line& line);

    /// Prints a message for each refused line and for each different ambiguous line; if there are many, for the first.
    void print() const;

    bool any_taken() const { return taken_; }
    bool any_refused() const { return refused_.lines != 0; }
    /// The first line that was refused, as messages show it.
    std::string first_refused() const;

  private:
    struct Mention {
        std::size_t number;
        std::string place;
        std::string reason;
        std::string_view text;
        std::size_t lines = 1;
    };
    struct Mentions {
        std::vector<Mention> shown; ///< the first ones
        std::size_t lines = 0;      ///< all of them
    };

    void mention(Mentions& mentions, const Line& line, const std::string& reason) const;
    void print(const Mentions& mentions, const char* what) const;

    std::string file_;
    const GCfg& configuration_;
    bool is_filled_in_;
    bool taken_ = false;
    Mentions refused_;
    Mentions ambiguous_;
};

} // namespace pondiff::tool

#endif
