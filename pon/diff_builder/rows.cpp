#include "pon/diff_builder/rows.h"

#include "pon/DataToCommandsConvertor/placeholders.h"
#include "pon/DataToCommandsConvertor/views.h"
#include "pon/diff_builder/script.h"

namespace pondiff {

namespace {

template <class Unsigned, class Signed>
std::int64_t load_as(const char* field, bool is_signed)
{
    Unsigned value;
    std::memcpy(&value, field, sizeof value);
    return is_signed ? static_cast<std::int64_t>(static_cast<Signed>(value)) : static_cast<std::int64_t>(value);
}

/// A scalar of a packed record, read from wherever it stands.
std::int64_t load(const char* field, const RowData& row)
{
    switch (row.size) {
    case 1:
        return load_as<std::uint8_t, std::int8_t>(field, row.is_signed);
    case 2:
        return load_as<std::uint16_t, std::int16_t>(field, row.is_signed);
    default:
        return load_as<std::uint32_t, std::int32_t>(field, row.is_signed);
    }
}

bool holds_number(const RowData& row)
{
    return row.notation <= Value::Notation::ber_interval;
}

/// Formats a template with the leading value of the table's commands, if there is one, and the row's own values.
void format_command(Text& line, const Where& where, const char* format, const Value* values, std::size_t count)
{
    if (const char* const behind_lead = where.lead ? std::strchr(format, '%') : nullptr) {
        line.append(format, static_cast<std::size_t>(behind_lead - format));
        where.lead->append_to(line);
        format = behind_lead + 2;
    }
    append_formatted(line, format, values, count);
}

} // namespace

bool navigate(const Where& where)
{
    if (stands_at(where.view, where.key)) {
        return Script::of(where.out) || push(where.out, Text()); // a script has no use for empty elements
    }
    const view_state before = current_view;
    PON_SCRATCH Text text;
    goto_view(where.view, where.key, text);
    if (push(where.out, text)) {
        return true;
    }
    current_view = before; // the navigation is not in the script: the next command needs one
    return false;
}

bool command_values(const Where& where, const char* format, const Value* values, std::size_t count)
{
    PON_SCRATCH Text line;
    format_command(line, where, format, values, count);
    substitute(line, where.key);
    return push(where.out, line);
}

bool append_values(List<char>& out, const char* format, const Value* values, std::size_t count)
{
    PON_SCRATCH Text line;
    append_formatted(line, format, values, count);
    return push(out, line);
}

namespace {

/// `emit` for a row's template, whose parts are known: up to the first conversion, between the two, and the rest.
void emit_parts(const Where& where, const char* format, const RowData::Parts& parts, const Value* value)
{
    constexpr std::uint8_t none = RowData::Parts::none;
    if (!navigate(where)) {
        return;
    }
    PON_SCRATCH Text text;
    std::size_t done = 0;
    std::uint8_t next = parts.first;
    std::size_t mark = parts.mark; // position of the placeholder in the text
    bool values_hold_marks = false;
    const auto fill = [&](const Value& filling) {
        text.append(format + done, next - done);
        const std::size_t before = text.size();
        filling.append_to(text);
        values_hold_marks = values_hold_marks || filling.may_hold_mark();
        done = next + 2U;
        if (next < parts.mark) {
            mark += text.size() - before - 2;
        }
        next = parts.second;
    };
    if (where.lead && next != none) {
        fill(*where.lead);
    }
    if (value && next != none) {
        fill(*value);
    }
    text.append(format + done, parts.size - done);
    const int slot = parts.mark != none ? format[parts.mark + 3] - '0' : -1;
    // The object may be shown by name; any other placeholder is overwritten by a number of the same width.
    if (values_hold_marks || slot == of_object) {
        substitute(text, where.key);
    } else if (slot != -1 && !text.failed()) {
        put_identifier(text.data() + mark, where.key[slot]);
    }
    push(where.out, text);
}

} // namespace

void emit_row(const RowData& row, bool force, const void* lhs, const void* rhs, const Where& where)
{
    const char* const before = static_cast<const char*>(lhs) + row.offset;
    const char* const field = static_cast<const char*>(rhs) + row.offset;
    const bool is_number = holds_number(row);
    const std::int64_t mask = row.kind == RowData::Kind::flag && row.detail != 0 ? row.detail : -1;
    const std::int64_t number = is_number ? load(field, row) & mask : 0;
    if (!force && (is_number ? number == (load(before, row) & mask) : std::memcmp(before, field, row.compared) == 0)) {
        return;
    }
    const auto emit_value = [&](const Value& value) { emit_parts(where, row.format, row.parts, &value); };
    switch (row.kind) {
    case RowData::Kind::flag:
        if (number != 0) {
            emit_parts(where, row.format, row.parts, nullptr);
        } else {
            emit_parts(where, row.extra.words, row.extra_parts, nullptr);
        }
        break;
    case RowData::Kind::content:
        if (is_number) {
            emit_value(Value::of_number(row.notation, number, row.detail));
        } else if (row.notation == Value::Notation::text || row.notation == Value::Notation::channel_format) {
            emit_value(Value::of_text(field, row.size, row.notation));
        } else {
            emit_value(Value::of_bytes(row.notation, field));
        }
        break;
    case RowData::Kind::word:
        emit_value(row.extra.name(static_cast<int>(number)));
        break;
    case RowData::Kind::enum_word:
        emit_value(enum_word(row.extra.words, number));
        break;
    case RowData::Kind::reference:
        if (const char* const name = row.extra.name(static_cast<int>(number))) {
            emit_value(name);
        }
        break;
    }
}

} // namespace pondiff
