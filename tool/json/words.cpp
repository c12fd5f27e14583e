#include "tool/json/words.h"

#include "platform/platform.h"
#include "tool/utf8.h"

#include <algorithm>
#include <cstring>
#include <map>
#include <utility>

namespace pondiff::tool {

namespace {

/// The registry does not list its values. In every enumeration they are below this one.
constexpr int values_asked = 1024;
/// The registry takes values of 16 bits.
constexpr std::int64_t largest_value = 0xFFFF;

/// Whether the registry returned a word. Some registries return a fixed text for an unknown value.
bool is_word(const char* answer, const char* unknown)
{
    return answer != nullptr && *answer != '\0' && (unknown == nullptr || std::strcmp(answer, unknown) != 0);
}

} // namespace

Words::Words(const char* type, std::int64_t largest, Lookup lookup)
{
    const char* const unknown = lookup("", 0);
    for (int value = 0; value < values_asked && value <= largest; ++value) {
        const char* const word = lookup(type, value);
        if (is_word(word, unknown) && is_utf8(word) && find(word) == nullptr) {
            words_.push_back({value, word});
        }
    }
}

std::string_view Words::word_of(std::int64_t value) const
{
    const auto found = std::lower_bound(words_.begin(), words_.end(), value,
                                        [](const Word& word, std::int64_t wanted) { return word.value < wanted; });
    return found != words_.end() && found->value == value ? found->word : std::string_view();
}

const Words::Word* Words::find(std::string_view word) const
{
    const auto found =
        std::find_if(words_.begin(), words_.end(), [word](const Word& known) { return known.word == word; });
    return found != words_.end() ? &*found : nullptr;
}

bool has_word(const Field& field, std::int64_t value)
{
    return value <= largest_value && is_word(gpon_enum_find_name_by_type(field.enumeration, static_cast<int>(value)),
                                             gpon_enum_find_name_by_type("", 0));
}

const Words& words_of(const Field& field)
{
    static std::map<std::pair<std::string_view, std::uint32_t>, Words> asked;
    const auto key = std::make_pair(std::string_view(field.enumeration), field.width);
    const auto known = asked.find(key);
    if (known != asked.end()) {
        return known->second;
    }
    return asked.try_emplace(key, field.enumeration, largest(field), gpon_enum_find_name_by_type).first->second;
}

} // namespace pondiff::tool
