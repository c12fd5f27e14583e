#include "tool/language/sayable.h"

#include "tool/language/notation.h"

#include <string_view>

namespace pondiff::tool {

namespace {

/// Whether the commands of an array of numbers are those of its first element alone.
bool concerns_first_alone(const Field& field)
{
    const bool one_each = field.array && field.record == nullptr && field.layout == Layout::plain &&
                          field.syntax.kind == Syntax::Kind::says;
    return one_each && std::string_view(field.syntax.set).find("<#") == std::string_view::npos;
}

} // namespace

const char* why_no_command(const Path& path)
{
    for (const Path::Step& step : path.steps()) {
        const Syntax::Kind kind = step.field->syntax.kind;
        if (kind == Syntax::Kind::no_command || kind == Syntax::Kind::counter) {
            return step.field->syntax.reason;
        }
        if (step.index != 0 && concerns_first_alone(*step.field)) {
            return "the first one alone has a command";
        }
    }
    return nullptr;
}

bool can_be_said(const Field& field, std::int64_t number)
{
    const Syntax& syntax = field.syntax;
    if (syntax.kind == Syntax::Kind::ambiguous) {
        return false;
    }
    if (syntax.kind == Syntax::Kind::flags) {
        return number >> syntax.flag_count == 0;
    }
    if (syntax.special != nullptr && number == syntax.special_value) {
        return true;
    }
    if (has_words(field) && !syntax.is_switch) {
        const Said said = read_word(field, word_of(field, number));
        return said.result == Said::Result::value && said.number == number;
    }
    if (field.form == Form::boolean && syntax.kind == Syntax::Kind::says) {
        return (number != 0 ? syntax.set : syntax.off) != nullptr;
    }
    return true;
}

} // namespace pondiff::tool
