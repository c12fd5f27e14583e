#include "tool/describe/records.h"
#include "tool/json/forms.h"
#include "tool/json/json.h"
#include "tool/json/store.h"

#include <algorithm>
#include <array>
#include <cstring>
#include <fmt/format.h>
#include <limits>
#include <nlohmann/json.hpp>
#include <vector>

namespace pondiff::tool {

namespace {

using nlohmann::json;

constexpr std::size_t none = std::numeric_limits<std::size_t>::max();

/// An object or a list that has begun and not ended.
struct Frame {
    enum class Kind : std::uint8_t {
        record,    ///< the fields of a record by their names
        elements,  ///< the elements of an array by their indexes
        list,      ///< the numbers of an array in their order
        slot_list, ///< the slots of a flag set; no objects or lists in it, here and below
        slots,     ///< the flags of a flag set by their slots
        bytes,     ///< the bytes of a text
    };
    Kind kind;
    const Record* record;       ///< Kind::record
    const Field* field;         ///< the others: the field that is being filled
    unsigned char* at;          ///< the record or the field
    std::size_t current = none; ///< which field or element is being filled
    std::size_t next = 0;       ///< Kind::record: the field that most likely comes
    std::array<std::uint64_t, 64> seen{};

    /// False when it has been marked before.
    bool mark(std::size_t index)
    {
        const std::uint64_t bit = std::uint64_t{1} << index % 64;
        const bool fresh = (seen.at(index / 64) & bit) == 0;
        seen.at(index / 64) |= bit;
        return fresh;
    }
};

/// Where a value goes.
struct Place {
    const Field& field;
    unsigned char* at;
    bool element; ///< of the array, not the whole field

    /// False when it is a single value.
    bool is_structured() const { return field.form == Form::record || (field.array && !element); }
};

/// Puts what the parser reports straight into the record, and throws at the first thing that does not fit. The frames
/// follow the description, so nothing can be nested deeper than the configuration is.
class Reader {
  public:
    Reader(std::string_view document, const std::string& file, GCfg& record)
        : document_(document), file_(file), root_(reinterpret_cast<unsigned char*>(&record))
    {
        frames_.reserve(16);
    }

    bool null() { return take({JsonValue::Type::null, 0, {}}); }
    bool boolean(bool truth) { return take({JsonValue::Type::boolean, truth ? 1 : 0, {}}); }
    bool number_integer(json::number_integer_t number) { return take({JsonValue::Type::whole, number, {}}); }

    bool number_unsigned(json::number_unsigned_t number)
    {
        if (number > static_cast<json::number_unsigned_t>(std::numeric_limits<std::int64_t>::max())) {
            return take({JsonValue::Type::other_number, 0, std::to_string(number)});
        }
        return take({JsonValue::Type::whole, static_cast<std::int64_t>(number), {}});
    }

    bool number_float(json::number_float_t, const std::string& digits)
    {
        return take({JsonValue::Type::other_number, 0, digits});
    }

    bool string(const std::string& text) { return take({JsonValue::Type::text, 0, text}); }
    static bool binary(const json::binary_t&) { return false; }

    bool start_object(std::size_t);
    bool key(const std::string& name);
    bool end_object();
    bool start_array(std::size_t);
    bool end_array();
    bool parse_error(std::size_t position, const std::string& token, const json::exception& error) const;

    /// Fails at an offset in the document.
    [[noreturn]] void fail_at(std::size_t offset, const std::string& complaint) const;

  private:
    std::string path() const;
    [[noreturn]] void fail(const std::string& complaint) const;
    [[noreturn]] void fail_index(Frame& frame, std::string_view index);
    void check(const std::string& complaint) const;

    bool take(const JsonValue& value);
    void take_slots(const Field& field, const JsonValue& value);
    Place next_place();
    void choose_field(Frame& frame, std::string_view name);
    void choose_element(Frame& frame, std::string_view name);
    bool choose_slots(Frame& frame, std::string_view text);
    bool choose_slot_range(Frame& frame, std::string_view text);
    void set_slots(const Frame& frame, const JsonValue& flag);
    void begin(Frame::Kind kind, const Place& place);

    std::string_view document_;
    const std::string& file_;
    unsigned char* root_;
    std::vector<Frame> frames_;
    std::vector<std::size_t> slots_; // of the flags that the next value is for
};

std::string Reader::path() const
{
    std::string result;
    for (const Frame& frame : frames_) {
        if (frame.current == none) {
            break;
        }
        result += result.empty() ? "" : ".";
        if (frame.kind == Frame::Kind::record) {
            result += frame.record->fields[frame.current].name;
        } else {
            result += std::to_string(frame.current);
        }
    }
    return result;
}

void Reader::fail(const std::string& complaint) const
{
    const std::string where = path();
    throw InputError(file_ + ": " + where + (where.empty() ? "" : ": ") + complaint);
}

void Reader::fail_index(Frame& frame, std::string_view index)
{
    frame.current = none;
    const std::string shown(index.substr(0, 20));
    throw InputError(fmt::format("{}: {}.{}: index {}, but there are {} {} (0 to {})", file_, path(), shown, shown,
                                 frame.field->count, frame.field->plural, frame.field->count - 1));
}

/// Fails when there is something to complain about.
void Reader::check(const std::string& complaint) const
{
    if (!complaint.empty()) {
        fail(complaint);
    }
}

// -------------------------------------------------------------------------------------------------------- the keys

bool Reader::key(const std::string& name)
{
    Frame& frame = frames_.back();
    frame.current = none;
    switch (frame.kind) {
    case Frame::Kind::record:
        choose_field(frame, name);
        break;
    case Frame::Kind::slots:
        slots_.clear();
        if (!choose_slots(frame, name)) {
            fail(mismatch("a number or a range such as \"100-200\" as key", {JsonValue::Type::text, 0, name}));
        }
        break;
    case Frame::Kind::bytes:
        if (name != "hex") {
            fail("unknown key " + quote(name) + ": the bytes of a text are given as \"hex\"");
        }
        if (!frame.mark(0)) {
            fail("duplicate key \"hex\"");
        }
        break;
    default:
        choose_element(frame, name);
    }
    return true;
}

void Reader::choose_field(Frame& frame, std::string_view name)
{
    const Record& record = *frame.record;
    // Keys mostly come in the order of the fields.
    for (std::size_t tried = 0; tried < record.count; ++tried) {
        const std::size_t candidate = frame.next < record.count ? frame.next : 0;
        frame.next = candidate + 1;
        if (record.fields[candidate].name == name) {
            if (!frame.mark(candidate)) {
                fail("duplicate key " + quote(name));
            }
            frame.current = candidate;
            return;
        }
    }
    std::vector<std::string_view> names;
    for (const Field& field : record) {
        names.push_back(field.name);
    }
    fail("unknown field " + quote(name) + suggestion(name, names));
}

void Reader::choose_element(Frame& frame, std::string_view name)
{
    const Field& field = *frame.field;
    std::uint64_t number = 0;
    if (!parse_decimal(name, number)) {
        fail(fmt::format("{} is no index: expected a number from 0 to {}", quote(name), field.count - 1));
    }
    if (number >= field.count) {
        fail_index(frame, name);
    }
    const auto index = static_cast<std::size_t>(number);
    if (!frame.mark(index)) {
        fail("duplicate key " + quote(name));
    }
    frame.current = index;
}

// ------------------------------------------------------------------------------------------------------ the values

/// Where the value that comes goes; no value is expected where the frames say so.
Place Reader::next_place()
{
    Frame& frame = frames_.back();
    if (frame.kind == Frame::Kind::record) {
        const Field& field = frame.record->fields[frame.current];
        return {field, frame.at + field.offset, false};
    }
    const Field& field = *frame.field;
    if (frame.kind == Frame::Kind::list) {
        frame.current = frame.current == none ? 0 : frame.current + 1;
        if (frame.current == field.count) {
            fail_index(frame, std::to_string(field.count));
        }
    }
    return {field, frame.at + frame.current * field.width, true};
}

bool Reader::take(const JsonValue& value)
{
    if (frames_.empty()) {
        fail(mismatch("an object with the fields of the configuration", value));
    }
    Frame& frame = frames_.back();
    switch (frame.kind) {
    case Frame::Kind::bytes:
        check(store_bytes(*frame.field, frame.at, value));
        return true;
    case Frame::Kind::slots:
        set_slots(frame, value);
        return true;
    case Frame::Kind::slot_list:
        take_slots(*frame.field, value);
        return true;
    default:
        break;
    }
    const Place place = next_place();
    if (place.field.layout == Layout::flag_set) {
        begin(Frame::Kind::slot_list, place);
        if (value.type != JsonValue::Type::text || !value.text.empty()) {
            take_slots(place.field, value);
        }
        frames_.pop_back();
    } else if (place.is_structured()) {
        fail(mismatch(expectation(place.field, place.element), value));
    } else {
        check(store(place.field, place.at, value));
    }
    return true;
}

bool Reader::start_object(std::size_t)
{
    if (frames_.empty()) {
        frames_.push_back({Frame::Kind::record, &gcfg_record, nullptr, root_});
        return true;
    }
    const JsonValue object{JsonValue::Type::object, 0, {}};
    if (frames_.back().kind >= Frame::Kind::slot_list) {
        return take(object);
    }
    const Place place = next_place();
    if (place.field.layout == Layout::flag_set) {
        begin(Frame::Kind::slots, place);
    } else if (place.field.array && !place.element) {
        begin(Frame::Kind::elements, place);
    } else if (place.field.form == Form::record) {
        begin(Frame::Kind::record, place);
    } else if (is_text(place.field.form)) {
        begin(Frame::Kind::bytes, place);
    } else {
        fail(mismatch(expectation(place.field, true), object));
    }
    return true;
}

bool Reader::end_object()
{
    const Frame& frame = frames_.back();
    if (frame.kind == Frame::Kind::bytes && frame.seen[0] == 0) {
        fail("expected the bytes of the text as \"hex\", found nothing");
    }
    frames_.pop_back();
    return true;
}

bool Reader::start_array(std::size_t)
{
    const JsonValue list{JsonValue::Type::list, 0, {}};
    if (frames_.empty() || frames_.back().kind >= Frame::Kind::slot_list) {
        return take(list);
    }
    const Place place = next_place();
    if (place.field.layout == Layout::flag_set) {
        begin(Frame::Kind::slot_list, place);
    } else if (place.field.array && !place.element && place.field.form != Form::record) {
        begin(Frame::Kind::list, place);
    } else {
        fail(mismatch(expectation(place.field, place.element), list));
    }
    return true;
}

bool Reader::end_array()
{
    const Frame& frame = frames_.back();
    if (frame.kind == Frame::Kind::list && frame.field->layout == Layout::ended_list) {
        for (std::size_t i = frame.current == none ? 0 : frame.current + 1; i < frame.field->count; ++i) {
            set_number(*frame.field, frame.at + i * frame.field->width, -1);
        }
    }
    frames_.pop_back();
    return true;
}

void Reader::begin(Frame::Kind kind, const Place& place)
{
    frames_.push_back({kind, place.field.record, &place.field, place.at});
}

// ------------------------------------------------------------------------------------------------------- flag sets

/// Sets the slots that a number or a text lists.
void Reader::take_slots(const Field& field, const JsonValue& value)
{
    Frame& frame = frames_.back();
    const std::string listed =
        value.type == JsonValue::Type::whole ? std::to_string(value.number) : std::string(value.text);
    const bool lists = value.type == JsonValue::Type::whole || value.type == JsonValue::Type::text;
    slots_.clear();
    if (!lists || !choose_slots(frame, listed)) {
        fail(mismatch(expectation(field, false), value));
    }
    set_slots(frame, {JsonValue::Type::whole, 1, {}});
}

/// "1,100-200"; false when the text has not that form.
bool Reader::choose_slots(Frame& frame, std::string_view text)
{
    while (true) {
        const std::size_t comma = text.find(',');
        if (!choose_slot_range(frame, text.substr(0, comma))) {
            return false;
        }
        if (comma == text.npos) {
            return true;
        }
        text.remove_prefix(comma + 1);
    }
}

bool Reader::choose_slot_range(Frame& frame, std::string_view text)
{
    constexpr std::string_view blanks = " ";
    text.remove_prefix(std::min(text.find_first_not_of(blanks), text.size()));
    text = text.substr(0, text.find_last_not_of(blanks) + 1);
    const std::size_t dash = text.find('-');
    const std::string_view ends[] = {text.substr(0, dash), dash == text.npos ? text : text.substr(dash + 1)};
    std::uint64_t first = 0;
    std::uint64_t last = 0;
    if (!parse_decimal(ends[0], first) || !parse_decimal(ends[1], last) || first > last) {
        return false;
    }
    if (last >= frame.field->count) {
        fail_index(frame, ends[1]);
    }
    for (auto slot = static_cast<std::size_t>(first); slot <= last; ++slot) {
        if (!frame.mark(slot)) {
            fail(fmt::format("{} is given twice", slot));
        }
        slots_.push_back(slot);
    }
    return true;
}

void Reader::set_slots(const Frame& frame, const JsonValue& flag)
{
    for (const std::size_t slot : slots_) {
        check(store(frame.field->record->fields[0], frame.at + slot * frame.field->width, flag));
    }
}

// --------------------------------------------------------------------------------------------------- syntax errors

bool Reader::parse_error(std::size_t position, const std::string&, const json::exception& error) const
{
    // The parser's message may quote the document, even a password.
    std::string reason = error.what();
    reason.erase(0, std::min(reason.find(": "), reason.size() - 2) + 2);
    reason.erase(std::min(reason.find("; last read: "), reason.size()));
    constexpr int number_overflow = 406;
    if (error.id == number_overflow) {
        reason = "number too large";
    }
    fail_at(position > 0 ? position - 1 : 0, reason);
}

void Reader::fail_at(std::size_t offset, const std::string& complaint) const
{
    const std::string_view before = document_.substr(0, offset);
    const auto lines = std::count(before.begin(), before.end(), '\n');
    const std::size_t line_start = lines == 0 ? 0 : before.rfind('\n') + 1;
    throw InputError(fmt::format("{}:{}:{}: {}", file_, lines + 1, before.size() - line_start + 1, complaint));
}

} // namespace

void read_json(std::string_view document, const std::string& file, GCfg& record)
{
    std::memset(&record, 0, sizeof record);
    Reader reader(document, file, record);
    // The parser would take it for the end of the document.
    const std::size_t zero_byte = document.find('\0');
    if (zero_byte != document.npos) {
        reader.fail_at(zero_byte, "a zero byte, which no JSON document holds");
    }
    json::sax_parse(document.data(), document.data() + document.size(), &reader);
}

} // namespace pondiff::tool
