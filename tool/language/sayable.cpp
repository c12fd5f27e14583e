#include "tool/language/sayable.h"

#include "tool/language/notation.h"

#include <string_view>

namespace pondiff::tool {

bool has_command_for_first(const Field& field)
{
    return field.array && field.layout == Layout::plain && field.syntax.kind == Syntax::Kind::says &&
           field.syntax.set != nullptr && std::string_view(field.syntax.set).find("<#") == std::string_view::npos;
}

const char* why_no_command(const Path& path)
{
    for (const Path::Step& step : path.steps()) {
        const Syntax::Kind kind = step.field->syntax.kind;
        if (kind == Syntax::Kind::no_command || kind == Syntax::Kind::counter) {
            return step.field->syntax.reason;
        }
        if (step.index != 0 && has_command_for_first(*step.field)) {
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
        Said said;
        read_word(field, word_of(field, number), said);
        return said.result == Said::Result::value && said.number == number;
    }
    if (field.form == Form::boolean && syntax.kind == Syntax::Kind::says) {
        return (number != 0 ? syntax.set : syntax.off) != nullptr;
    }
    return true;
}

} // namespace pondiff::tool
