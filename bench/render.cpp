/// Writes a configuration of the measurements, or what is made of it, to standard output; see `usage`.

#include "bench/configurations.h"
#include "pon/command_file_generator.h"
#include "tool/describe/records.h"

#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <string>
#include <string_view>

namespace {

using namespace pondiff::bench;
using namespace pondiff::tool;

constexpr char usage[] = R"(usage: bench-render WHAT CONFIGURATION
WHAT is one of
  record    the record itself
  script    the commands that make it of a blank one
  yang      the schema of all configurations, as a YANG module
  tree      the configuration as a JSON document of that module; what is zero is left out
CONFIGURATION is blank, full, small, or changed: the full one with another hostname
)";

// ------------------------------------------------------------------------------------------------------------ YANG
//
// A record is a container, an array of records a list with the index as key, any other field a leaf. An array of
// numbers is one leaf with all of them, which spares the trees two nodes for each number.

void add_schema(std::string& out, const Record& record)
{
    for (const Field& field : record) {
        const std::string name(field.name);
        if (field.record != nullptr) {
            out += field.array ? "list " + name + " { key \"index\"; leaf index { type uint16; }\n"
                               : "container " + name + " {\n";
            add_schema(out, *field.record);
            out += "}\n";
            continue;
        }
        const bool number = is_number(field.form) && !field.array;
        const std::string type = std::string(field.is_signed ? "" : "u") + "int" + std::to_string(8 * field.width);
        out += "leaf " + name + " { type " + (number ? type : "string") + "; }\n";
    }
}

std::string schema()
{
    std::string out = "module gcfg { yang-version 1.1; namespace \"urn:gcfg\"; prefix g;\ncontainer gcfg {\n";
    add_schema(out, gcfg_record);
    return out + "}\n}\n";
}

bool is_blank(const unsigned char* bytes, std::size_t size)
{
    for (std::size_t i = 0; i < size; ++i) {
        if (bytes[i] != 0) {
            return false;
        }
    }
    return true;
}

void add_leaf(std::string& out, const Field& field, const unsigned char* at)
{
    if (is_number(field.form) && !field.array) {
        out += std::to_string(get_number(field, at));
        return;
    }
    out += '"';
    if (is_number(field.form)) {
        for (std::size_t i = 0; i < field.count; ++i) {
            out += (i == 0 ? "" : ",") + std::to_string(get_number(field, at + i * field.width));
        }
    } else if (field.form == Form::text || field.form == Form::secret) {
        out.append(reinterpret_cast<const char*>(at), strnlen(reinterpret_cast<const char*>(at), field.width));
    } else {
        for (std::size_t i = 0; i < field.width; ++i) {
            out += (i == 0 ? "" : ".") + std::to_string(at[i]);
        }
    }
    out += '"';
}

void add_tree(std::string& out, const Record& record, const unsigned char* at, bool first)
{
    for (const Field& field : record) {
        const unsigned char* const start = at + field.offset;
        if (is_blank(start, field.size)) {
            continue;
        }
        out += first ? "\n\"" : ",\n\"";
        first = false;
        out += field.name;
        out += "\":";
        if (field.record == nullptr) {
            add_leaf(out, field, start);
        } else if (!field.array) {
            out += '{';
            add_tree(out, *field.record, start, true);
            out += '}';
        } else {
            const char* before = "[";
            for (std::size_t i = 0; i < field.count; ++i) {
                const unsigned char* const element = start + i * field.width;
                if (is_blank(element, field.width)) {
                    continue;
                }
                out += before;
                before = ",";
                out += "{\"index\":" + std::to_string(i);
                add_tree(out, *field.record, element, false);
                out += '}';
            }
            out += ']';
        }
    }
}

std::string tree(const GCfg& configuration)
{
    std::string out = "{\"gcfg:gcfg\":{";
    add_tree(out, gcfg_record, reinterpret_cast<const unsigned char*>(&configuration), true);
    return out + "}}\n";
}

// ----------------------------------------------------------------------------------------------------------------

std::string script(GCfg& cfg)
{
    const Configuration orig = blank();
    if (initiate_diff(orig.get(), &cfg, 0, 0) != 0) {
        std::abort();
    }
    char* const text = GetDiff(orig.get(), &cfg);
    if (!text) {
        std::abort();
    }
    std::string result = text;
    std::free(text);
    finalize_diff();
    return result;
}

Configuration configuration_of(std::string_view name)
{
    if (name == "blank") {
        return blank();
    }
    if (name == "full") {
        return full();
    }
    if (name == "small") {
        return small();
    }
    if (name == "changed") {
        return with_other_hostname();
    }
    return nullptr;
}

std::string rendered(std::string_view what, GCfg& configuration)
{
    if (what == "record") {
        return {reinterpret_cast<const char*>(&configuration), sizeof(GCfg)};
    }
    if (what == "script") {
        return script(configuration);
    }
    if (what == "yang") {
        return schema();
    }
    return what == "tree" ? tree(configuration) : "";
}

} // namespace

int main(int argc, char** argv)
{
    const Configuration configuration = argc == 3 ? configuration_of(argv[2]) : nullptr;
    const std::string text = configuration ? rendered(argv[1], *configuration) : "";
    if (text.empty() && (!configuration || std::string_view(argv[1]) != "script")) {
        std::fputs(usage, stderr);
        return EXIT_FAILURE;
    }
    return std::fwrite(text.data(), 1, text.size(), stdout) == text.size() && std::fflush(stdout) == 0 ? EXIT_SUCCESS
                                                                                                       : EXIT_FAILURE;
}
