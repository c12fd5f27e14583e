#include "fuzz/plain.h"

#include "fuzz/pair.h"

namespace pondiff::fuzz {

namespace {

/// The names of the objects that a patch concerns, for those that have none in the base: "s7" in slot 7.
void add_names(const Patch& patch, std::vector<Patch>& names)
{
    const std::string& path = patch.place.path;
    for (std::size_t dot = path.find('.'); dot != path.npos; dot = path.find('.', dot + 1)) {
        Patch name;
        name.side = Patch::Side::both;
        name.place = find_place(path.substr(0, dot + 1) + "name");
        const char* const base_name = reinterpret_cast<const char*>(&base()) + name.place.offset;
        if (name.place.field == nullptr || !tool::is_text(name.place.field->form) || *base_name != 0) {
            continue;
        }
        const std::string object = path.substr(0, dot);
        name.bytes = 's' + object.substr(object.rfind('.') + 1);
        name.bytes.resize(name.place.field->width);
        names.push_back(name);
    }
}

} // namespace

void make_plain(const tool::Field& field, unsigned char* at)
{
    if (!tool::is_text(field.form)) {
        return;
    }
    for (std::size_t i = 0; i < field.width && at[i] != 0; ++i) {
        const bool is_blank_in_name = at[i] == ' ' && field.name == "name";
        if (at[i] < ' ' || at[i] == 0x7F || at[i] == '"' || at[i] == '$' || is_blank_in_name) {
            at[i] = 'x';
        }
    }
    if (field.name == "name" && at[0] == 0) {
        at[0] = 'e';
    }
}

void make_plain(Scenario& scenario)
{
    std::vector<Patch> patches;
    for (Patch& patch : scenario.patches) {
        make_plain(*patch.place.field, reinterpret_cast<unsigned char*>(patch.bytes.data()));
        add_names(patch, patches);
    }
    patches.insert(patches.end(), scenario.patches.begin(), scenario.patches.end());
    scenario.patches = patches;
}

} // namespace pondiff::fuzz
