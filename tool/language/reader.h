#ifndef TOOL_LANGUAGE_READER_H
#define TOOL_LANGUAGE_READER_H

/// @file
/// What a device makes of a script, line by line. The reader knows the commands from the descriptions alone; how
/// scripts are written is nothing to it.
///
/// It is cautious: a line sets the fields that it shows and nothing else, and what a view does not know changes
/// nothing.

#include "tool/describe/description.h"
#include "tool/language/index.h"
#include "tool/language/notation.h"
#include "tool/language/objects.h"

#include <bitset>
#include <cstddef>
#include <cstdint>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace pondiff::tool {

/// A place in the CLI: a view and, where it is that of an object, which one.
struct Standing {
    const View* view = nullptr;
    std::size_t slot = 0;
};

/// A field that a line has set, or switched by another field's command, or a reference to what the line has removed.
struct Setting {
    const Field* field;
    std::size_t offset; ///< of the element in the configuration
    std::size_t size;
};

/// An object or an entry of a list.
struct Object {
    const Field* array = nullptr; ///< null where there is none
    std::size_t slot = 0;
    std::size_t offset = 0; ///< of the element in the configuration
};

/// A line of a script, and what the device has made of it.
struct Line {
    enum class Kind : std::uint8_t {
        passed_over, ///< blank or a comment
        move,        ///< from view to view, or "commit"
        setting,     ///< sets fields; none where it says nothing new or is ambiguous
        removal,     ///< removes an object
        refused,     ///< changes nothing
    };
    std::size_t number = 0; ///< from 1
    std::string_view text;  ///< without its line feed
    Kind kind = Kind::passed_over;
    bool ambiguous = false;    ///< taken, but written for several values
    bool of_any_value = false; ///< ambiguous as no command says the value, whatever its words
    Standing standing;         ///< where it was given
    Object created;            ///< what entering or naming has created
    bool names_only = false;   ///< names an object that is known by its name, and says nothing else
    Object removed;
    std::string reason; ///< Kind::refused: why
    std::vector<Setting> settings;
};

/// A device that takes the lines of a script.
class Device {
  public:
    /// @param configuration  what it holds; changed by what it takes
    explicit Device(GCfg& configuration);

    /// Takes the next line. @return what became of it; valid until the next one is taken
    const Line& take(std::string_view line);

    const Standing& standing() const { return standing_; }

  private:
    class IrregularTaking;

    bool take(const Match& match);
    bool set(const Match& match);
    bool enter(const Match& match);
    bool remove(const Match& match);
    bool read_flag(const Match& match);
    bool read_irregular(const Match& match);
    void leave();

    unsigned char* base() const;
    bool find_element(const Match& match, bool create, std::size_t& slot);
    bool find_by_text(const Match& match, const Field& member, bool create, std::size_t& slot);
    bool may_be_there(const Table& table, const Field& key, const unsigned char* bytes);
    bool find_by_key(const Match& match, bool create, std::size_t& slot);
    std::optional<std::size_t> find_free(const Table& table);
    bool create(const Field& array, unsigned char* first, std::size_t slot, const Field* member);
    void remember(const unsigned char* array, std::size_t slot);
    void note(const Field& field, const unsigned char* at, std::size_t size);
    bool refuse(std::string reason);

    GCfg& configuration_;
    unsigned char* bytes_;
    const Index& index_;
    Standing standing_;
    Line line_;
    Tokens tokens_;          ///< of the line
    Match match_;            ///< of the line
    std::vector<Said> said_; ///< of the targets of the line
    Said told_;              ///< what tells the element of the line
    /// The entry that was named last: the next line mostly names it again. Forgotten when what tells entries changes.
    const unsigned char* named_array_ = nullptr;
    std::size_t named_slot_ = 0;
    /// The array in which an entry was made last: before its slot `filled_` none is free.
    const unsigned char* filled_array_ = nullptr;
    std::size_t filled_ = 0;
    /// The array in which a key was looked for last, and the hashes of its keys: no other key is there.
    const unsigned char* keyed_array_ = nullptr;
    std::bitset<65536> keys_;
};

/// Takes every line of a script in turn and calls `visit(const Line&)` for each; the script's end ends its last line.
/// @param lines  how many are taken at most
template <class Visit>
void read_script(std::string_view script, GCfg& configuration, Visit&& visit, std::size_t lines = SIZE_MAX)
{
    Device device(configuration);
    for (; !script.empty() && lines > 0; --lines) {
        const std::size_t end = script.find('\n');
        visit(device.take(script.substr(0, end)));
        script.remove_prefix(end == script.npos ? script.size() : end + 1);
    }
}

/// Where a line was given, as messages say it: "interface ont 1/6".
std::string place_text(const Standing& standing, const GCfg& configuration);

} // namespace pondiff::tool

#endif
