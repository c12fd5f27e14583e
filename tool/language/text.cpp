#include "tool/language/text.h"

#include "pon/command_file_generator.h"
#include "pon/diff_builder.h"
#include "tool/describe/records.h"
#include "tool/language/objects.h"

#include <cstdlib>
#include <cstring>
#include <memory>
#include <new>
#include <string_view>

namespace pondiff::tool {

namespace {

unsigned char* bytes_of(GCfg& configuration)
{
    return reinterpret_cast<unsigned char*>(&configuration);
}

/// Whether a script names the entries of the array by their slots, besides by their keys.
bool names_slots(const Field& array)
{
    for (const Field& field : *array.record) {
        if (field.syntax.set != nullptr && std::string_view(field.syntax.set).find("<##>") != std::string_view::npos) {
            return array.element.told == Element::Told::by_key;
        }
    }
    return false;
}

/// Moves the entries in use to the front, where a device that reads them in this order puts them.
void close_gaps(const Field& array, unsigned char* first)
{
    std::size_t used = 0;
    for (std::size_t slot = 0; slot < array.count; ++slot) {
        unsigned char* const at = first + slot * array.width;
        if (!in_use(*array.record, at)) {
            continue;
        }
        if (slot != used) {
            std::memcpy(first + used * array.width, at, array.width);
            make_blank(*array.record, at);
        }
        ++used;
    }
}

void close_gaps(const Record& record, unsigned char* at)
{
    for (const Field& field : record) {
        if (field.record == nullptr) {
            continue;
        }
        if (field.array && names_slots(field)) {
            close_gaps(field, at + field.offset);
        } else if (!field.array) {
            close_gaps(*field.record, at + field.offset);
        }
    }
}

/// Whether a script is to show the field: what tells an object by its name has to stay, or the object is another one.
bool is_to_differ(const Field& field, const Element& element)
{
    if (field.syntax.kind == Syntax::Kind::counter || field.syntax.is_existence) {
        return false;
    }
    return element.told != Element::Told::by_name || field.name != "name";
}

/// Makes every field of what is in use another one than it is: all that has a command is then shown.
void make_different(const Record& record, unsigned char* at, const Element& element)
{
    if (!in_use(record, at)) {
        return;
    }
    for (const Field& field : record) {
        for (std::size_t i = 0; i < field.count; ++i) {
            unsigned char* const leaf = at + field.offset + i * field.width;
            if (field.record != nullptr) {
                if (field.layout != Layout::flag_set || leaf[0] != 0 || leaf[1] != 0) {
                    make_different(*field.record, leaf, field.array ? field.element : element);
                }
            } else if (is_to_differ(field, element)) {
                // Every bit of a set of switches; of a text one that no other text differs in.
                *leaf = static_cast<unsigned char>(*leaf ^ (is_number(field.form) ? 0xFFU : 0x80U));
            }
        }
    }
}

std::string taken(char* text)
{
    const std::unique_ptr<char, decltype(&std::free)> owned{text, &std::free};
    if (!owned) {
        throw std::bad_alloc();
    }
    return text;
}

/// No operation shows the address of the auto-configuration server: its record diff is called for it.
std::string commands_of_acs(GCfg& other, GCfg& wanted)
{
    int key[10] = {};
    List<char> commands;
    getdiff_GSystemAcsMgmtCfg(&other.system.network, &wanted.system.network, key, commands);
    std::string text;
    for (const ListElem<char>* node = commands.first; node != nullptr; node = node->next) {
        const std::string command = taken(node->elem);
        text += command.empty() ? "" : command + '\n';
    }
    return text;
}

} // namespace

std::string text_of_commands(const GCfg& configuration)
{
    const auto wanted = std::make_unique<GCfg>(configuration);
    close_gaps(gcfg_record, bytes_of(*wanted));
    const auto other = std::make_unique<GCfg>(*wanted);
    make_different(gcfg_record, bytes_of(*other), {});
    if (initiate_diff(other.get(), wanted.get(), 0, 0) != 0) {
        throw std::bad_alloc();
    }
    std::string text = taken(GetDiff(other.get(), wanted.get()));
    text += commands_of_acs(*other, *wanted);
    text += taken(GetRoutesDiffMemSafe(&other->system.services.routing, &wanted->system.services.routing, nullptr));
    finalize_diff();
    return text;
}

} // namespace pondiff::tool
