#ifndef TOOL_JSON_WORDS_H
#define TOOL_JSON_WORDS_H

#include "tool/describe/description.h"

#include <cstdint>
#include <string_view>
#include <vector>

namespace pondiff::tool {

/// The registry's words for the values of an enumeration. A word of several values stands for the first of them.
class Words {
  public:
    struct Word {
        std::int64_t value;
        std::string_view word;
    };

    /// The registry: type and value give a word.
    using Lookup = const char* (*)(const char*, int);

    /// The words of the values up to `largest`.
    Words(const char* type, std::int64_t largest, Lookup lookup);

    /// Empty when the value has no word.
    std::string_view word_of(std::int64_t value) const;
    /// Null when no value has the word.
    const Word* find(std::string_view word) const;

    std::vector<Word>::const_iterator begin() const { return words_.begin(); }
    std::vector<Word>::const_iterator end() const { return words_.end(); }

  private:
    std::vector<Word> words_; // by ascending value
};

/// Whether the registry has a word for the value of a field of Form::enumeration, even if other values share it.
bool has_word(const Field& field, std::int64_t value);

/// The words for a field of Form::enumeration. They are looked up once for each enumeration and width.
const Words& words_of(const Field& field);

} // namespace pondiff::tool

#endif
