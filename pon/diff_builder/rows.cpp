#include "pon/diff_builder/rows.h"

#include "pon/DataToCommandsConvertor/placeholders.h"
#include "pon/DataToCommandsConvertor/views.h"
#include "pon/diff_builder/list.h"

int print_all = 0;
int print_common = 1;

namespace pondiff {

namespace {

/// A scalar of a packed record, read from wherever it stands; the sign is carried on. Bytes arrive lowest first.
std::int64_t load(const void* record, const RowData& row)
{
    std::uint64_t value = 0;
    std::memcpy(&value, static_cast<const char*>(record) + row.offset, row.size);
    const unsigned unused = 64 - 8U * row.size;
    return row.is_signed ? static_cast<std::int64_t>(value << unused) >> unused : static_cast<std::int64_t>(value);
}

bool changed(const RowData& row, const void* lhs, const void* rhs)
{
    if (row.mask != 0)
        return ((load(lhs, row) ^ load(rhs, row)) & row.mask) != 0;
    return std::memcmp(static_cast<const char*>(lhs) + row.offset, static_cast<const char*>(rhs) + row.offset,
                       row.compared) != 0;
}

bool push_text(List<char>& out, const Text& text)
{
    if (!text.failed())
        return push(out, text.data(), text.size());
    if (Script* const script = Script::of(out))
        script->lose();
    return false;
}

/// The values of a template: the one that leads all of the table's commands, if there is one, and the row's own.
void format_command(Text& line, const Where& where, const char* form, const Value* values, std::size_t count)
{
    if (const char* const behind_lead = where.lead ? std::strchr(form, '%') : nullptr) {
        line.append(form, static_cast<std::size_t>(behind_lead - form));
        where.lead->append_to(line);
        form = behind_lead + 2;
    }
    format(line, form, values, count);
}

} // namespace

bool forced(Rule rule)
{
    if (print_all == 0)
        return false;
    switch (rule) {
    case changed_or_all:
        return true;
    case changed_or_common:
        return print_common == 1 || print_common == 2;
    case changed_or_profile_common:
        return print_common == 2;
    case changed_only:
        break;
    }
    return false;
}

bool navigate(const Where& where)
{
    if (stands_in(where.view, where.key))
        return push(where.out, "", 0);
    Text text;
    goto_view(where.view, where.key, text);
    return push_text(where.out, text);
}

bool command_values(const Where& where, const char* form, const Value* values, std::size_t count)
{
    Text line;
    format_command(line, where, form, values, count);
    substitute(line, where.key);
    return push_text(where.out, line);
}

bool append_values(List<char>& out, const char* form, const Value* values, std::size_t count)
{
    Text line;
    format(line, form, values, count);
    return push_text(out, line);
}

void emit_row(const RowData& row, bool force, const void* lhs, const void* rhs, const Where& where)
{
    if (!force && !changed(row, lhs, rhs))
        return;
    const void* const field = static_cast<const char*>(rhs) + row.offset;
    switch (row.kind) {
    case RowData::Kind::flag: {
        const std::int64_t flag = load(rhs, row);
        const bool on = (row.mask != 0 ? flag & row.mask : flag) != 0;
        emit(where, on ? row.form : row.extra.text);
        break;
    }
    case RowData::Kind::value: {
        const bool is_address = row.how >= Value::Form::ipv4;
        const Value value =
            is_address ? Value::bytes(row.how, field) : Value::number(row.how, load(rhs, row), row.digits);
        emit(where, row.form, value);
        break;
    }
    case RowData::Kind::text: {
        const Value value = Value::text(field, row.size, row.how);
        emit(where, row.form, value);
        break;
    }
    case RowData::Kind::word:
        emit(where, row.form, row.extra.name(static_cast<int>(load(rhs, row))));
        break;
    case RowData::Kind::enum_word:
        emit(where, row.form, enum_word(row.extra.text, load(rhs, row)));
        break;
    case RowData::Kind::reference:
        if (const char* const name = row.extra.name(static_cast<int>(load(rhs, row))))
            emit(where, row.form, name);
        break;
    }
}

} // namespace pondiff
