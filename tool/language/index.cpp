#include "tool/language/index.h"

#include "tool/describe/records.h"
#include "tool/language/objects.h"

#include <algorithm>
#include <charconv>
#include <stdexcept>

namespace pondiff::tool {

namespace {

/// What a template says, taken apart: see phrases.h.
struct Piece {
    enum class Kind : std::uint8_t { literal, any, split, prefixed };
    Kind kind = Kind::literal;
    std::string_view text;     ///< the literal, or what stands before the placeholder
    std::string_view names[2]; ///< of the placeholders
};

std::string_view take_until(std::string_view& text, char end)
{
    const std::size_t at = text.find(end);
    const std::string_view taken = text.substr(0, at);
    text.remove_prefix(at == text.npos ? text.size() : at + 1);
    return taken;
}

[[noreturn]] void fail(std::string_view form, const char* why)
{
    throw std::logic_error(std::string(form) + ": " + why);
}

Piece piece_of(std::string_view word, std::string_view form)
{
    Piece piece;
    const std::size_t open = word.find('<');
    if (open == word.npos) {
        piece.text = word;
        return piece;
    }
    const std::size_t close = word.find('>', open);
    if (close == word.npos) {
        fail(form, "a placeholder is not closed");
    }
    piece.text = word.substr(0, open);
    piece.names[0] = word.substr(open + 1, close - open - 1);
    const std::string_view rest = word.substr(close + 1);
    if (rest.empty()) {
        piece.kind = open == 0 ? Piece::Kind::any : Piece::Kind::prefixed;
        return piece;
    }
    if (open != 0 || rest.size() < 4 || rest.substr(0, 2) != "/<" || rest.back() != '>') {
        fail(form, "two placeholders in a word stand with a slash between them");
    }
    piece.kind = Piece::Kind::split;
    piece.names[1] = rest.substr(2, rest.size() - 3);
    return piece;
}

/// The variants of a template, with and without what may be left out.
void expand(const std::string& form, std::vector<std::string>& variants)
{
    const std::size_t open = form.find('[');
    if (open == form.npos) {
        variants.push_back(form);
        return;
    }
    const std::size_t close = form.find(']', open);
    if (close == form.npos) {
        fail(form, "a bracket is not closed");
    }
    const std::string part = form.substr(open + 1, close - open - 1);
    const std::string before = form.substr(0, open);
    const std::string behind = form.substr(close + 1);
    const std::size_t colon = part.find(':');
    if (colon == part.npos) {
        expand(before + part + behind, variants);
        expand(before + behind, variants);
        return;
    }
    const std::string member = part.substr(colon + 1);
    expand(before + part.substr(0, colon) + " {" + member + "=1}" + behind, variants);
    expand(before + "{" + member + "=0}" + behind, variants);
}

/// Whether a command has a place for the member.
bool shows(const std::string& form, std::string_view member)
{
    const std::string name(member);
    return form.find('<' + name + '>') != form.npos || form.find('{' + name + '=') != form.npos ||
           form.find(':' + name + ']') != form.npos;
}

void replace_all(std::string& text, std::string_view needle, std::string_view replacement)
{
    for (std::size_t at = 0; (at = text.find(needle, at)) != text.npos; at += replacement.size()) {
        text.replace(at, needle.size(), replacement);
    }
}

/// Whether the CLI has no word for some elements of an array. In a script, nothing tells them: two blanks follow one
/// another.
bool has_wordless(const Field& array)
{
    constexpr int values_of_a_byte = 256;
    const bool by_key = array.element.told == Element::Told::by_key;
    const Vocabulary words = by_key ? array.record->key_member->syntax.vocabulary : array.element.vocabulary;
    const int values = by_key ? values_of_a_byte : array.count;
    for (int value = 0; words != nullptr && value < values; ++value) {
        const char* const word = words(value);
        if (word == nullptr || *word == '\0') {
            return true;
        }
    }
    return false;
}

/// Places for the words of all commands: at least twice as many as there are, so that the next place is mostly free.
constexpr std::size_t index_size = 4096;
constexpr std::size_t edges_at_most = index_size / 2;

} // namespace

/// The place of the edge, or the free one that it would take.
inline std::size_t Index::place_of(std::uint32_t node, std::uint32_t hash) const
{
    const Edge* const edges = literals_.data();
    std::size_t place = (hash ^ node * 0x9E3779B9U) % index_size;
    while (edges[place].node != 0 && (edges[place].from != node || edges[place].hash != hash)) {
        place = (place + 1) % index_size;
    }
    return place;
}

class Index::Builder {
  public:
    explicit Builder(Index& index) : index_(index)
    {
        index.nodes_.emplace_back();
        index.literals_.resize(index_size);
    }

    const View* add_view(View::Kind kind, const Field* objects, std::uint32_t offset)
    {
        index_.nodes_.emplace_back();
        const auto node = static_cast<std::uint32_t>(index_.nodes_.size() - 1);
        index_.views_.push_back({kind, objects, offset, node});
        return &index_.views_.back();
    }

    void add_fixed(const View& view, const char* form, Pattern::Does does)
    {
        Pattern pattern;
        pattern.does = does;
        insert(view, {}, nullptr, form, pattern);
    }

    void describe(const Record& record, const Context& context)
    {
        for (const Field& field : record) {
            if (field.syntax.kind == Syntax::Kind::no_command) {
                continue; // of a record, too: its fields have no commands in this place
            }
            if (field.record != nullptr) {
                descend(field, context);
            } else {
                add_commands(record, field, context);
            }
        }
    }

  private:
    void descend(const Field& field, const Context& context)
    {
        const Element& element = field.element;
        Context inner = context;
        inner.offset += field.offset;
        if (element.lead != nullptr) {
            inner.lead = element.lead;
        }
        if (field.array || element.enter != nullptr) {
            inner.nested = context.array != nullptr;
            inner.array = &field;
            inner.array_offset = inner.offset;
            inner.offset = 0;
        }
        if (element.told == Element::Told::by_key && field.record->key_member->width < 2) {
            fail(field.name, "a key has two bytes at least"); // see Table::find
        }
        if (element.remove != nullptr) {
            add_element_command(element.remove, Pattern::Does::remove, field, inner, nullptr);
        }
        if (element.enter != nullptr) {
            const View* const view = add_view(View::Kind::object, &field, inner.array_offset);
            add_fixed(*view, "exit", Pattern::Does::leave);
            add_element_command(element.enter, Pattern::Does::enter, field, inner, view);
            inner = Context{view};
        }
        describe(*field.record, inner);
    }

    void add_element_command(const char* form, Pattern::Does does, const Field& array, const Context& context,
                             const View* view)
    {
        Pattern pattern;
        pattern.does = does;
        pattern.field = &array;
        pattern.view = view;
        add(form, *array.record, context, pattern);
    }

    void add_commands(const Record& record, const Field& field, Context context)
    {
        const Syntax& syntax = field.syntax;
        if (syntax.set == nullptr && syntax.off == nullptr) {
            return;
        }
        if (field.array && field.layout != Layout::ended_list && syntax.kind != Syntax::Kind::irregular) {
            context.nested = context.array != nullptr;
            context.array = &field;
            context.array_offset = context.offset + field.offset;
            context.offset = 0;
        }
        Pattern pattern;
        pattern.field = &field;
        switch (syntax.kind) {
        case Syntax::Kind::key:
            pattern.does = Pattern::Does::name;
            break;
        case Syntax::Kind::ambiguous:
            pattern.does = Pattern::Does::nothing;
            break;
        case Syntax::Kind::irregular:
        case Syntax::Kind::flags:
            pattern.does = Pattern::Does::read;
            break;
        default:
            break;
        }
        if (syntax.set != nullptr) {
            add(syntax.set, record, context, pattern);
        }
        if (syntax.off != nullptr) {
            pattern.off = true;
            add(syntax.off, record, context, pattern);
        }
    }

    void add(std::string form, const Record& record, const Context& context, const Pattern& pattern)
    {
        if (context.nested) {
            fail(form, "no command reaches into an array of an array");
        }
        replace_all(form, "<*>", context.lead != nullptr ? context.lead : "");
        for (std::size_t at = 0; at != form.npos;) {
            const std::size_t bar = form.find(" | ", at);
            add_command(form.substr(at, bar == form.npos ? form.npos : bar - at), record, context, pattern);
            at = bar == form.npos ? form.npos : bar + 3;
        }
    }

    void add_command(const std::string& form, const Record& record, const Context& context, Pattern pattern)
    {
        if (pattern.does == Pattern::Does::set && !shows(form, pattern.field->name)) {
            const Field& field = *pattern.field;
            pattern.targets.push_back(
                {&field, offset_of(field, context), -1, pattern.off ? field.syntax.off_value : 1});
        }
        std::vector<std::string> variants;
        expand(form, variants);
        for (std::string& variant : variants) {
            insert(*context.view, context, &record, variant, pattern);
            const std::size_t element = variant.find("<#>");
            if (element != variant.npos && context.array != nullptr && has_wordless(*context.array)) {
                Pattern of_any_element = pattern;
                of_any_element.does = Pattern::Does::nothing;
                insert(*context.view, context, &record, variant.erase(element, 3), of_any_element);
            }
        }
    }

    /// From the array's element, or from the view's object.
    static std::uint32_t offset_of(const Field& field, const Context& context)
    {
        return &field == context.array ? 0 : context.offset + field.offset;
    }

    /// Adds one command to a view.
    void insert(const View& view, const Context& context, const Record* record, const std::string& form,
                Pattern pattern)
    {
        const Pattern without_targets = pattern;
        index_.texts_.push_back(form);
        std::string_view rest = index_.texts_.back();
        pattern.array = context.array;
        pattern.array_offset = context.array_offset;
        if (pattern.does == Pattern::Does::read) {
            pattern.array_offset = context.offset + pattern.field->offset; // the field itself
        }
        std::uint32_t node = view.node;
        int words = 0;
        const auto capture = [&](std::string_view name) {
            tell(pattern, name, words, record, context, form);
            ++words;
        };
        while (!rest.empty()) {
            const std::string_view word = take_until(rest, ' ');
            if (word.empty()) {
                continue;
            }
            if (word.front() == '{') {
                assign(pattern, word, record, context, form);
                continue;
            }
            const Piece piece = piece_of(word, form);
            switch (piece.kind) {
            case Piece::Kind::literal:
                node = literal(node, piece.text);
                break;
            case Piece::Kind::any:
                node = child(node, &Node::any);
                capture(piece.names[0]);
                break;
            case Piece::Kind::split:
                node = child(node, &Node::split);
                capture(piece.names[0]);
                capture(piece.names[1]);
                break;
            case Piece::Kind::prefixed:
                index_.nodes_[node].prefix = piece.text;
                node = child(node, &Node::prefixed);
                capture(piece.names[0]);
                break;
            }
        }
        end(node, pattern, form);
        const std::size_t value = form.rfind('<');
        if (!pattern.terminal_vlan && pattern.field != nullptr && refers_to_terminal_vlan(*pattern.field)) {
            pattern = without_targets;
            pattern.terminal_vlan = true;
            insert(view, context, record, form.substr(0, value) + "terminal-vlan " + form.substr(value), pattern);
        }
    }

    /// What a placeholder means to the pattern.
    static void tell(Pattern& pattern, std::string_view name, int word, const Record* record, const Context& context,
                     const std::string& form)
    {
        if (name == "?" || (name == "#" && pattern.does == Pattern::Does::read)) {
            pattern.shown = word;
        } else if (name == "#" || name == "##" || name == "#1") {
            if (context.array == nullptr) {
                fail(form, "there is no array");
            }
            pattern.element = word;
            pattern.by_slot = name != "#";
            pattern.counted_from = name == "#1" ? 1 : 0;
        } else {
            const Field& field = member(record, name, form);
            pattern.targets.push_back({&field, offset_of(field, context), word});
        }
    }

    static void assign(Pattern& pattern, std::string_view word, const Record* record, const Context& context,
                       const std::string& form)
    {
        const std::size_t equals = word.find('=');
        if (equals == word.npos || word.back() != '}') {
            fail(form, "an assignment is {member=number}");
        }
        const Field& field = member(record, word.substr(1, equals - 1), form);
        std::int64_t number = 0;
        std::from_chars(word.data() + equals + 1, word.data() + word.size() - 1, number);
        pattern.targets.push_back({&field, offset_of(field, context), -1, number});
    }

    static const Field& member(const Record* record, std::string_view name, const std::string& form)
    {
        const Field* const end = record != nullptr ? record->end() : nullptr;
        for (const Field* field = record != nullptr ? record->begin() : nullptr; field != end; ++field) {
            if (field->name == name) {
                return *field;
            }
        }
        fail(form, "a placeholder names no member of the record");
    }

    std::uint32_t child(std::uint32_t node, std::uint32_t Node::*edge)
    {
        if (index_.nodes_[node].*edge == 0) {
            index_.nodes_.emplace_back();
            index_.nodes_[node].*edge = static_cast<std::uint32_t>(index_.nodes_.size() - 1);
        }
        return index_.nodes_[node].*edge;
    }

    std::uint32_t literal(std::uint32_t node, std::string_view word)
    {
        const std::uint32_t hash = hash_of(word);
        Edge& edge = index_.literals_[index_.place_of(node, hash)];
        if (edge.node == 0) {
            index_.nodes_.emplace_back();
            edge = {word, node, hash, static_cast<std::uint32_t>(index_.nodes_.size() - 1)};
            if (++edges_ == edges_at_most) {
                fail(word, "the table of the index is too small");
            }
        } else if (edge.word != word) {
            fail(word, "another word has its hash");
        }
        return edge.node;
    }

    void end(std::uint32_t node, const Pattern& pattern, const std::string& form)
    {
        if (index_.nodes_[node].pattern != nullptr) {
            fail(form, "two fields have this command");
        }
        index_.patterns_.push_back(pattern);
        index_.nodes_[node].pattern = &index_.patterns_.back();
        index_.all_.push_back(&index_.patterns_.back());
        if (pattern.field != nullptr) {
            index_.templates_.emplace(pattern.field, index_.texts_.back());
        }
    }

    Index& index_;
    std::size_t edges_ = 0;
};

Index::Index(const Record& record)
{
    Builder builder(*this);
    top_ = builder.add_view(View::Kind::top, nullptr, 0);
    configure_ = builder.add_view(View::Kind::configure, nullptr, 0);
    builder.add_fixed(*top_, "configure terminal", Pattern::Does::configure);
    builder.add_fixed(*top_, "commit", Pattern::Does::commit);
    builder.add_fixed(*configure_, "exit", Pattern::Does::leave);
    builder.describe(record, Context{configure_});
}

std::uint32_t Index::literal(std::uint32_t node, const Token& word) const
{
    const Edge& edge = literals_[place_of(node, word.hash)];
    return are_same(edge.word, word.text) ? edge.node : 0;
}

bool Index::match(std::uint32_t node, std::size_t at, std::size_t captured, const Tokens& tokens, Match& found) const
{
    const Node& here = nodes_[node];
    if (at == tokens.size()) {
        found.pattern = here.pattern;
        return here.pattern != nullptr;
    }
    const Token& token = tokens[at];
    if (!token.quoted) {
        const std::uint32_t next = literal(node, token);
        if (next != 0 && match(next, at + 1, captured, tokens, found)) {
            return true;
        }
    }
    // Between quotes, too: a word that shows a value, in part or as a whole, may stand there.
    if (here.prefixed != 0 && token.text.substr(0, here.prefix.size()) == here.prefix) {
        found.words[captured] = {token.text.substr(here.prefix.size()), token.quoted, 0};
        if (match(here.prefixed, at + 1, captured + 1, tokens, found)) {
            return true;
        }
    }
    const std::size_t slash = here.split != 0 ? token.text.find('/') : token.text.npos;
    if (slash != token.text.npos) {
        found.words[captured] = {token.text.substr(0, slash), token.quoted, 0};
        found.words[captured + 1] = {token.text.substr(slash + 1), token.quoted, 0};
        if (match(here.split, at + 1, captured + 2, tokens, found)) {
            return true;
        }
    }
    if (here.any == 0) {
        return false;
    }
    found.words[captured] = token;
    return match(here.any, at + 1, captured + 1, tokens, found);
}

bool Index::find(const View& view, const Tokens& tokens, Match& found) const
{
    return match(view.node, 0, 0, tokens, found);
}

const Index& command_index()
{
    static const Index index(gcfg_record);
    return index;
}

} // namespace pondiff::tool
