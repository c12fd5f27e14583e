#ifndef TESTS_JSON_HELPERS_H
#define TESTS_JSON_HELPERS_H

#include "tool/json/json.h"

#include <cstring>
#include <memory>
#include <string>

namespace pondiff::json_tests {

using namespace tool;

using Config = std::unique_ptr<GCfg>;

inline Config blank()
{
    auto config = std::make_unique<GCfg>();
    std::memset(config.get(), 0, sizeof(GCfg));
    return config;
}

inline Config read(const std::string& document)
{
    auto config = std::make_unique<GCfg>();
    std::memset(config.get(), 0xA5, sizeof(GCfg));
    read_json(document, "cfg.json", *config);
    return config;
}

inline std::string error_of(const std::string& document)
{
    const auto config = std::make_unique<GCfg>();
    try {
        read_json(document, "cfg.json", *config);
    } catch (const InputError& error) {
        return error.what();
    }
    return "no error";
}

inline std::string shown(const Config& config)
{
    return write_json(*config, false);
}

/// What follows `"key": ` on its line.
inline std::string shown(const Config& config, const std::string& key, bool full = false)
{
    const std::string text = write_json(*config, full);
    const std::size_t at = text.find("\"" + key + "\": ");
    if (at == text.npos) {
        return "absent";
    }
    const std::size_t value = at + key.size() + 4;
    std::string line = text.substr(value, text.find('\n', value) - value);
    if (!line.empty() && line.back() == ',') {
        line.pop_back();
    }
    return line;
}

/// True when the document of the record, with and without what is zero, reads as the same bytes.
inline bool is_kept(const Config& config)
{
    return std::memcmp(read(write_json(*config, false)).get(), config.get(), sizeof(GCfg)) == 0 &&
           std::memcmp(read(write_json(*config, true)).get(), config.get(), sizeof(GCfg)) == 0;
}

inline std::string in_network(const std::string& members)
{
    return R"({"system": {"network": {)" + members + "}}}";
}

inline std::string in_ont(const std::string& members)
{
    return R"({"pon": {"ont": {"70": {)" + members + "}}}}";
}

inline std::string in_source_guard(const std::string& members)
{
    return R"({"system": {"services": {"source_guard": {)" + members + "}}}}";
}

} // namespace pondiff::json_tests

#endif
