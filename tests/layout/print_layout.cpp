// Prints the layout of every record that a configuration is made of, in lines that C compiles: see records_in_c.c.
#include "tool/describe/records.h"

#include <fmt/format.h>
#include <set>
#include <string>

using namespace pondiff::tool;

namespace {

/// The type of the field or, of an array, of its elements.
std::string type_of(const Field& field)
{
    if (field.record != nullptr) {
        return field.record->name;
    }
    if (is_number(field.form)) {
        return fmt::format("{}{}", field.is_signed ? 's' : 'u', 8 * field.width);
    }
    return is_text(field.form) ? "char" : "u8";
}

/// Records that are part of others come before them, each once, even if it has several descriptions.
void print(const Record& record, std::set<std::string>& printed)
{
    for (const Field& field : record) {
        if (field.record != nullptr && printed.insert(field.record->name).second) {
            print(*field.record, printed);
        }
    }
    fmt::print("\nRECORD({}, {})\n", record.name, record.size);
    for (const Field& field : record) {
        fmt::print("FIELD({}, {}, {}, {}, {})\n", record.name, field.name, type_of(field), field.offset, field.size);
    }
}

} // namespace

int main()
{
    fmt::print("/* RECORD(struct, size) FIELD(struct, field, type of the elements, offset, size) */\n");
    std::set<std::string> printed;
    print(gcfg_record, printed);
}
