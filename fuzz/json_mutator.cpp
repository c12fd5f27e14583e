/// Changes of documents: members and values that the description of the records knows, and bytes.

#include "fuzz/values.h"
#include "tool/describe/records.h"
#include "tool/json/json.h"

#include <algorithm>
#include <cstring>
#include <memory>

extern "C" {
std::size_t LLVMFuzzerMutate(std::uint8_t* data, std::size_t size, std::size_t max_size);
std::size_t LLVMFuzzerCustomMutator(std::uint8_t* data, std::size_t size, std::size_t max_size, unsigned seed);
}

namespace pondiff::fuzz {

namespace {

/// The document of a configuration in which one leaf is set.
std::string any_document(Random& random)
{
    static const auto configuration = std::make_unique<GCfg>();
    const Place place = any_place(random);
    const std::string bytes = any_bytes(*place.field, random);
    auto* const at = reinterpret_cast<char*>(configuration.get()) + place.offset;
    std::memcpy(at, bytes.data(), bytes.size());
    std::string document = tool::write_json(*configuration, false);
    std::memset(at, 0, bytes.size());
    return document;
}

std::string any_token(Random& random)
{
    static const std::string tokens[] = {"{",
                                         "}",
                                         "[",
                                         "]",
                                         ",",
                                         ":",
                                         "\"",
                                         "\\",
                                         "{}",
                                         "[]",
                                         "null",
                                         "true",
                                         "false",
                                         "0",
                                         "-1",
                                         "1e9",
                                         "-0",
                                         "1.5",
                                         "65536",
                                         "\"\"",
                                         "\"0\"",
                                         "\"1-3,5\"",
                                         "\"531\"",
                                         "\\u0000",
                                         "\\ud800",
                                         "\xC3\xA9",
                                         "{\"hex\": \"00\"}",
                                         "\"hex\": \"FFFF\"",
                                         "\"-1\"",
                                         "\"0x88A8\"",
                                         "\"10.0.0.1\"",
                                         "\"2001:db8::1\"",
                                         "\"AA:BB:CC:DD:EE:FF\"",
                                         "99999999999999999999",
                                         " ",
                                         "\n"};
    if (random.one_in(2)) {
        return random.any_of(tokens);
    }
    const Place place = any_place(random);
    return '"' + std::string(place.field->name) + "\": ";
}

/// Puts a member of one document in front of another one's first member.
std::string with_member(const std::string& document, const std::string& other)
{
    const std::size_t brace = document.find('{');
    const std::size_t begin = other.find('{');
    const std::size_t end = other.rfind('}');
    if (brace == document.npos || begin == other.npos || end <= begin) {
        return other;
    }
    const bool first = document.find_first_not_of(" \n", brace + 1) == document.find('}', brace);
    return document.substr(0, brace + 1) + other.substr(begin + 1, end - begin - 1) + (first ? "" : ",") +
           document.substr(brace + 1);
}

std::string mutated(std::string document, Random& random)
{
    const std::size_t at = random.below(document.size() + 1);
    const std::size_t length = random.below(16);
    switch (random.below(6)) {
    case 0:
        return any_document(random);
    case 1:
        return with_member(document, any_document(random));
    case 2:
        return document.insert(at, any_token(random));
    case 3:
        return document.replace(at, length, any_token(random));
    case 4:
        return document.insert(random.below(document.size() + 1), std::string(document, at, 4 * length));
    default:
        return document.erase(at, length);
    }
}

} // namespace

} // namespace pondiff::fuzz

std::size_t LLVMFuzzerCustomMutator(std::uint8_t* data, std::size_t size, std::size_t max_size, unsigned seed)
{
    using namespace pondiff::fuzz;
    Random random(seed);
    if (random.one_in(3)) {
        return LLVMFuzzerMutate(data, size, max_size);
    }
    std::string document = mutated({reinterpret_cast<const char*>(data), size}, random);
    document.resize(std::min(document.size(), max_size));
    std::memcpy(data, document.data(), document.size());
    return document.size();
}
