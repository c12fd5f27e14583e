#ifndef TOOL_INPUT_H
#define TOOL_INPUT_H

/// @file
/// Reads input files. Their form is recognized by the content, never by the name:
///
/// - A file that begins with '{', after any blanks, is a JSON document.
/// - A file of the record's exact size is a record. If both apply, it is a record when it holds a zero byte: no JSON
/// text
///   does, and nearly every record does.
/// - Any other file without a zero byte is a text of commands, if any of its lines is a command.

#include "gcfg/gcfg.h"
#include "tool/errors.h"

#include <initializer_list>
#include <memory>
#include <string>
#include <string_view>
#include <utility>

namespace CLI {
class App;
}

namespace pondiff::tool {

/// The input files of a command.
class Input {
  public:
    /// Adds the option --base to a command. It applies to every text that the command reads as a configuration.
    void add_option(CLI::App& command);

    /// @param files  all input files of the command except the base
    /// @throws UsageError when two of them are standard input
    void check(std::initializer_list<std::string_view> files) const;

    /// The configuration that a file holds. What a text of commands cannot say comes from the base. Messages say which
    /// of its lines a device would refuse, and how many fields are left without a value.
    /// @throws FileError  when the file cannot be read
    /// @throws InputError when it holds no configuration, or a document with a mistake in it
    std::unique_ptr<GCfg> configuration(const std::string& file);

    /// The same for two files. A text says nothing about slots, so its objects get the slots that they have in the
    /// other.
    std::pair<std::unique_ptr<GCfg>, std::unique_ptr<GCfg>> configurations(const std::string& first,
                                                                           const std::string& second);

    /// The lines that a file holds, valid or not.
    /// @throws FileError  when the file cannot be read
    /// @throws InputError when it holds a record or a document
    static std::string script(const std::string& file);

  private:
    /// @return whether it was a text of commands
    bool read(const std::string& file, std::unique_ptr<GCfg>& configuration);
    std::unique_ptr<GCfg> from_text(std::string_view content, const std::string& name);
    const GCfg* base();

    std::string base_file_;
    std::unique_ptr<GCfg> base_;
};

} // namespace pondiff::tool

#endif
