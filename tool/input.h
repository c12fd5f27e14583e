#ifndef TOOL_INPUT_H
#define TOOL_INPUT_H

/// @file
/// What files hold. The content decides, never the name:
///
/// - What begins with '{', blanks aside, is a JSON document.
/// - What has the record's exact size is a record. What meets both is a record when it holds a zero byte: no JSON text
///   holds one, and hardly a configuration is without.
/// - Anything else without a zero byte is a text of commands, if any of its lines is a command.

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

/// What a command reads.
class Input {
  public:
    /// Adds the option --base to a command. It concerns every text that the command reads as a configuration.
    void add_option(CLI::App& command);

    /// @param files  all that the command reads, but for the base
    /// @throws UsageError when two of them are standard input
    void check(std::initializer_list<std::string_view> files) const;

    /// The configuration that a file holds. What a text of commands cannot say comes from the base. Messages say which
    /// of its lines a device would refuse, and how many fields are left without a value.
    /// @throws FileError  when the file cannot be read
    /// @throws InputError when it holds no configuration, or a document with a mistake in it
    std::unique_ptr<GCfg> configuration(const std::string& file);

    /// The same of two files. What tells no slots, a text, has those of the other one.
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
