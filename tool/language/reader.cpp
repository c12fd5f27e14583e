#include "tool/language/reader.h"

#include "tool/language/notation.h"
#include "tool/language/objects.h"

#include <algorithm>
#include <cstring>
#include <fmt/format.h>
#include <optional>
#include <utility>

namespace pondiff::tool {

namespace {

std::size_t size_of(const Field& field)
{
    return field.layout == Layout::ended_list ? field.size : field.width;
}

/// Sixteen bits of a key.
std::size_t hash_of_key(const Field& key, const unsigned char* bytes)
{
    std::uint16_t first = 0;
    std::uint16_t last = 0;
    std::memcpy(&first, bytes, sizeof first);
    std::memcpy(&last, bytes + key.width - sizeof last, sizeof last);
    return static_cast<std::uint16_t>(first + 2U * last);
}

} // namespace

Device::Device(GCfg& configuration)
    : configuration_(configuration), bytes_(reinterpret_cast<unsigned char*>(&configuration)),
      index_(command_index()), standing_{&index_.top(), 0}
{
}

const Line& Device::take(std::string_view line)
{
    if (!line.empty() && line.back() == '\r') {
        line.remove_suffix(1);
    }
    ++line_.number;
    line_.text = line;
    line_.kind = Line::Kind::passed_over;
    line_.ambiguous = false;
    line_.of_any_value = false;
    line_.names_only = false;
    line_.standing = standing_;
    line_.created = {};
    line_.removed = {};
    line_.reason.clear();
    line_.settings.clear();
    tokens_.read(line);
    const bool comment = tokens_.size() != 0 && !tokens_[0].quoted &&
                         (tokens_[0].text.substr(0, 1) == "!" || tokens_[0].text.substr(0, 1) == "#");
    if (comment || (tokens_.size() == 0 && tokens_.error() == nullptr)) {
        return line_;
    }
    if (tokens_.error() != nullptr) {
        refuse(tokens_.error());
    } else if (!index_.find(*standing_.view, tokens_, match_)) {
        refuse("the view has no such command");
    } else {
        take(match_);
    }
    return line_;
}

bool Device::take(const Match& match)
{
    line_.kind = Line::Kind::setting;
    switch (match.pattern->does) {
    case Pattern::Does::set:
    case Pattern::Does::name:
    case Pattern::Does::nothing:
        return set(match);
    case Pattern::Does::read:
        return match.pattern->field->syntax.kind == Syntax::Kind::flags ? read_flag(match) : read_irregular(match);
    case Pattern::Does::remove:
        line_.kind = Line::Kind::removal;
        return remove(match);
    case Pattern::Does::enter:
        line_.kind = Line::Kind::move;
        return enter(match);
    case Pattern::Does::configure:
        line_.kind = Line::Kind::move;
        standing_ = {&index_.configure(), 0};
        return true;
    case Pattern::Does::leave:
        line_.kind = Line::Kind::move;
        leave();
        return true;
    case Pattern::Does::commit:
        line_.kind = Line::Kind::move;
        return true;
    }
    return true;
}

void Device::leave()
{
    standing_ = {standing_.view->kind == View::Kind::object ? &index_.configure() : &index_.top(), 0};
}

/// The object that the view is of, or the whole configuration.
unsigned char* Device::base() const
{
    const View& view = *standing_.view;
    return view.objects == nullptr ? bytes_ : bytes_ + view.offset + standing_.slot * view.objects->width;
}

bool Device::set(const Match& match)
{
    const Pattern& pattern = *match.pattern;
    if (said_.size() < pattern.targets.size()) {
        said_.resize(pattern.targets.size());
    }
    line_.ambiguous = pattern.does == Pattern::Does::nothing;
    line_.of_any_value = line_.ambiguous && pattern.field->syntax.kind == Syntax::Kind::ambiguous;
    for (std::size_t i = 0; i < pattern.targets.size(); ++i) {
        const Target& target = pattern.targets[i];
        Said& said = said_[i];
        if (target.word < 0) {
            said.clear();
            said.number = target.constant;
            continue;
        }
        const Token& token = match.words[static_cast<std::size_t>(target.word)];
        if (pattern.terminal_vlan) {
            read_terminal_vlan(*target.field, token, configuration_, said);
        } else {
            read_value(*target.field, token, configuration_, said);
        }
        if (said.result == Said::Result::refused) {
            return refuse(fmt::format("{}: {}", target.field->name, said.reason));
        }
        line_.ambiguous = line_.ambiguous || said.result == Said::Result::ambiguous;
    }
    unsigned char* at = base();
    if (pattern.array != nullptr) {
        std::size_t slot = 0;
        if (!find_element(match, !line_.ambiguous, slot)) {
            return line_.kind != Line::Kind::refused;
        }
        at += pattern.array_offset + slot * pattern.array->width;
    }
    if (line_.ambiguous) {
        return true;
    }
    line_.names_only = pattern.does == Pattern::Does::name && pattern.array->element.told == Element::Told::by_name;
    for (std::size_t i = 0; i < pattern.targets.size(); ++i) {
        const Target& target = pattern.targets[i];
        store(*target.field, at + target.offset, said_[i]);
        if (pattern.by_slot || target.field->syntax.kind == Syntax::Kind::key || target.field->name == "name") {
            remember(nullptr, 0); // another entry may be the first of its name now
        }
        note(*target.field, at + target.offset, size_of(*target.field));
    }
    return true;
}

bool Device::enter(const Match& match)
{
    std::size_t slot = 0;
    if (!find_element(match, true, slot)) {
        return false;
    }
    standing_ = {match.pattern->view, slot};
    return true;
}

bool Device::remove(const Match& match)
{
    const Pattern& pattern = *match.pattern;
    std::size_t slot = 0;
    if (!find_element(match, false, slot)) {
        return line_.kind != Line::Kind::refused;
    }
    unsigned char* const at = base() + pattern.array_offset + slot * pattern.array->width;
    if (!in_use(*pattern.array->record, at)) {
        return true;
    }
    make_blank(*pattern.array->record, at);
    remember(nullptr, 0);
    forget(configuration_, *pattern.array, slot, [this](const Field& reference, std::size_t offset) {
        line_.settings.push_back({&reference, offset, reference.width});
    });
    line_.removed = {pattern.array, slot, static_cast<std::size_t>(at - bytes_)};
    return true;
}

bool Device::read_flag(const Match& match)
{
    const Pattern& pattern = *match.pattern;
    const Field& field = *pattern.field;
    const Syntax& syntax = field.syntax;
    const std::string_view word = match.words[static_cast<std::size_t>(pattern.shown)].text;
    const auto* const end = syntax.flags + syntax.flag_count;
    const auto* const found = std::find(syntax.flags, end, word);
    if (found == end) {
        return refuse(fmt::format("{}: no value has this word", field.name));
    }
    unsigned char* const at = base() + pattern.array_offset;
    const std::int64_t bit = std::int64_t{1} << (found - syntax.flags);
    const std::int64_t before = get_number(field, at);
    set_number(field, at, pattern.off ? before & ~bit : before | bit);
    note(field, at, field.width);
    return true;
}

class Device::IrregularTaking : public Taking {
  public:
    IrregularTaking(Device& device, const Match& match)
        : device_(device), pattern_(*match.pattern),
          word_(match.words[static_cast<std::size_t>(match.pattern->shown)].text)
    {
    }
    std::string_view word() const override { return word_; }
    bool off() const override { return pattern_.off; }
    void set(std::size_t index, std::int64_t number) override
    {
        const Field& field = *pattern_.field;
        unsigned char* const at = device_.base() + pattern_.array_offset + index * field.width;
        set_number(field, at, number);
        device_.note(field, at, field.width);
    }
    void refuse(std::string reason) override { device_.refuse(std::move(reason)); }

  private:
    Device& device_;
    const Pattern& pattern_;
    std::string_view word_;
};

bool Device::read_irregular(const Match& match)
{
    IrregularTaking taking(*this, match);
    match.pattern->field->syntax.read(taking);
    return line_.kind != Line::Kind::refused;
}

/// The element that a command tells. @return false when there is none, and none is created; it may be refused
bool Device::find_element(const Match& match, bool create, std::size_t& slot)
{
    const Pattern& pattern = *match.pattern;
    const Field& array = *pattern.array;
    if (pattern.element < 0) {
        return true;
    }
    const Token& token = match.words[static_cast<std::size_t>(pattern.element)];
    const Element::Told told = pattern.by_slot ? Element::Told::by_number : array.element.told;
    std::int64_t number = 0;
    switch (told) {
    case Element::Told::by_name:
        return find_by_text(match, *array.record->name_member, create, slot);
    case Element::Told::by_key:
        return find_by_key(match, create, slot);
    case Element::Told::by_word: {
        for (; number < array.count && token.text != array.element.vocabulary(static_cast<int>(number)); ++number) {
        }
        break;
    }
    case Element::Told::by_port_and_id: {
        const std::size_t slash = token.text.find('/');
        std::int64_t port = 0;
        if (slash == token.text.npos || !read_decimal(token.text.substr(0, slash), 0, array.count, port) ||
            !read_decimal(token.text.substr(slash + 1), 0, GCFG_ONTS_PER_PORT - 1, number)) {
            return refuse("expected a port and an id such as 1/6");
        }
        number += port * GCFG_ONTS_PER_PORT;
        break;
    }
    case Element::Told::by_number:
        if (!read_decimal(token.text, pattern.counted_from, array.count - 1 + pattern.counted_from, number)) {
            return refuse(fmt::format("expected a number from {} to {}", pattern.counted_from,
                                      array.count - 1 + pattern.counted_from));
        }
        number -= pattern.counted_from;
        break;
    }
    if (number >= array.count) {
        return refuse(fmt::format("there are no such {}", array.plural));
    }
    slot = static_cast<std::size_t>(number);
    unsigned char* const first = base() + pattern.array_offset;
    const bool has_flag = array.record != nullptr && array.record->existence_member != nullptr;
    return !create || !has_flag || in_use(*array.record, first + slot * array.width) ||
           this->create(array, first, slot, nullptr);
}

bool Device::find_by_text(const Match& match, const Field& member, bool create, std::size_t& slot)
{
    const Pattern& pattern = *match.pattern;
    const Token& token = match.words[static_cast<std::size_t>(pattern.element)];
    const Table table{pattern.array, base() + pattern.array_offset};
    if (named_array_ == table.first && table.has_text(named_slot_, member, token.text)) {
        slot = named_slot_;
        return true;
    }
    if (const auto found = table.find_text(member, token.text)) {
        slot = *found;
        remember(table.first, slot);
        return true;
    }
    if (!create) {
        return false;
    }
    read_value(member, token, configuration_, told_);
    if (told_.result == Said::Result::refused) {
        return refuse(fmt::format("{}: {}", member.name, told_.reason));
    }
    const auto free = find_free(table);
    if (!free) {
        return refuse(fmt::format("all {} {} are in use", pattern.array->count, pattern.array->plural));
    }
    slot = *free;
    return this->create(*pattern.array, table.first, slot, &member);
}

/// Whether a key may be in the table; most that are new need no search.
bool Device::may_be_there(const Table& table, const Field& key, const unsigned char* bytes)
{
    if (keyed_array_ != table.first) {
        keyed_array_ = table.first;
        keys_.reset();
        for (std::size_t i = 0; i < table.field->count; ++i) {
            keys_.set(hash_of_key(key, table.at(i) + key.offset));
        }
    }
    return keys_.test(hash_of_key(key, bytes));
}

bool Device::find_by_key(const Match& match, bool create, std::size_t& slot)
{
    const Pattern& pattern = *match.pattern;
    const Field& key = *pattern.array->record->key_member;
    if (is_text(key.form)) {
        return find_by_text(match, key, create, slot);
    }
    const Token& token = match.words[static_cast<std::size_t>(pattern.element)];
    read_value(key, token, configuration_, told_);
    if (told_.result != Said::Result::value) {
        line_.ambiguous = told_.result == Said::Result::ambiguous;
        return line_.ambiguous ? false : refuse(fmt::format("{}: {}", key.name, told_.reason));
    }
    if (key.syntax.zero_is_free && told_.number == 0) {
        return refuse(fmt::format("{}: {} is no entry", key.name, token.text));
    }
    unsigned char bytes[sizeof told_.bytes]{};
    store(key, bytes, told_);
    const Table table{pattern.array, base() + pattern.array_offset};
    if (named_array_ == table.first && table.has_bytes(named_slot_, key, bytes)) {
        slot = named_slot_;
        return true;
    }
    const auto found = may_be_there(table, key, bytes) ? table.find(key, bytes) : std::nullopt;
    if (found) {
        slot = *found;
        remember(table.first, slot);
        return true;
    }
    if (!create) {
        return false;
    }
    const auto free = find_free(table);
    if (!free) {
        return refuse(fmt::format("all {} {} are in use", pattern.array->count, pattern.array->plural));
    }
    slot = *free;
    keys_.set(hash_of_key(key, bytes));
    return this->create(*pattern.array, table.first, slot, &key);
}

std::optional<std::size_t> Device::find_free(const Table& table)
{
    // Without a flag of existence an entry is freed by being set to zeros.
    const bool is_freed_by_removal = table.field->record->existence_member != nullptr;
    const bool known = is_freed_by_removal && filled_array_ == table.first;
    const auto free = table.free_slot(known ? filled_ : 0);
    filled_array_ = table.first;
    filled_ = free.value_or(table.field->count);
    return free;
}

/// Makes a blank element in a free slot, and has `member`, where there is one, say what the command tells it by.
bool Device::create(const Field& array, unsigned char* first, std::size_t slot, const Field* member)
{
    unsigned char* const at = first + slot * array.width;
    make_blank(*array.record, at);
    line_.created = {&array, slot, static_cast<std::size_t>(at - bytes_)};
    if (const Field* const flag = array.record->existence_member) {
        set_number(*flag, at + flag->offset, 1);
        note(*flag, at + flag->offset, flag->width);
    }
    remember(first, slot);
    if (member != nullptr) {
        store(*member, at + member->offset, told_);
        note(*member, at + member->offset, member->width);
    }
    return true;
}

void Device::remember(const unsigned char* array, std::size_t slot)
{
    named_array_ = array;
    named_slot_ = slot;
    if (filled_array_ != array) {
        filled_array_ = nullptr;
    }
}

void Device::note(const Field& field, const unsigned char* at, std::size_t size)
{
    line_.settings.push_back({&field, static_cast<std::size_t>(at - bytes_), size});
}

bool Device::refuse(std::string reason)
{
    line_.kind = Line::Kind::refused;
    line_.reason = std::move(reason);
    return false;
}

std::string place_text(const Standing& standing, const GCfg& configuration)
{
    const View& view = *standing.view;
    if (view.objects == nullptr) {
        return view.kind == View::Kind::top ? "the top level" : "the configure view";
    }
    const auto* const object =
        reinterpret_cast<const unsigned char*>(&configuration) + view.offset + standing.slot * view.objects->width;
    std::string form = view.objects->element.enter;
    form.replace(form.find("<#>"), 3, name_of_element(*view.objects, standing.slot, object));
    return form;
}

} // namespace pondiff::tool
