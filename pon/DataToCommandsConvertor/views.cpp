#include "pon/DataToCommandsConvertor/views.h"

#include "pon/DataToCommandsConvertor.h"
#include "pon/DataToCommandsConvertor/name_tables.h"

#include <cstdint>
#include <cstdio>
#include <cstring>

view_state current_view;

namespace pondiff {

namespace {

/// Indexes into the registry, and one name that no view has: two rows of the view-to-view table lead there.
enum ViewId : std::uint8_t {
    root,
    configure,
    if_gpon,
    if_ont,
    address_table,
    container,
    cross_connect,
    dba,
    ont_template,
    dhcp_ra,
    management,
    ports,
    voice,
    pppoe_ia,
    shaping,
    vlan,
    dhcpv6_ra,
    misspelt_management,
    no_view,
};

constexpr view_data views[] = {
    {"root", "exit", 0},
    {"configure-view", "configure terminal", 0},
    {"if-gpon-view", "interface gpon-port $ID0", 1},
    {"if-ont-view", "interface ont $ID0", 1},
    {"address-table-view", "profile address-table $ID0", 1},
    {"container-view", "profile container $ID0", 1},
    {"cross-connect-view", "profile cross-connect $ID0", 1},
    {"dba-view", "profile dba $ID0", 1},
    {"template-view", "template $ID0", 1},
    {"dhcp-ra-view", "profile dhcp-ra $ID0", 1},
    {"management-view", "profile management $ID0", 1},
    {"ports-view", "profile ports $ID0", 1},
    {"voice-view", "profile voice $ID0", 1},
    {"pppoe-ia-view", "profile pppoe-ia $ID0", 1},
    {"shaping-view", "profile shaping $ID0", 1},
    {"vlan-view", "profile vlan $ID0", 1},
    {"dhcpv6-ra-view", "profile dhcpv6-ra $ID0", 1},
};
constexpr std::size_t registered = sizeof views / sizeof *views;
static_assert(registered == misspelt_management);

/// The rows of the view-to-view table, grouped by the view that they start from. The table is searched in both
/// directions, so each group names only what no earlier group has joined; the order decides which row is met first.
struct RowGroup {
    ViewId from;
    std::uint8_t count;
    ViewId to[16];
};

constexpr RowGroup commandsv2v[] = {
    {root,
     16,
     {configure, if_gpon, ont_template, if_ont, address_table, container, cross_connect, dba, dhcp_ra, dhcpv6_ra,
      management, ports, voice, pppoe_ia, shaping, vlan}},
    {configure,
     15,
     {if_gpon, ont_template, if_ont, address_table, container, cross_connect, dba, dhcp_ra, dhcpv6_ra, management,
      ports, voice, pppoe_ia, shaping, vlan}},
    {if_gpon,
     15,
     {if_gpon, ont_template, if_ont, address_table, container, cross_connect, dba, dhcp_ra, dhcpv6_ra, management,
      ports, voice, pppoe_ia, shaping, vlan}},
    {if_ont,
     15,
     {if_gpon, ont_template, if_ont, address_table, container, cross_connect, dba, dhcp_ra, dhcpv6_ra, management,
      ports, voice, pppoe_ia, shaping, vlan}},
    {address_table,
     15,
     {address_table, if_gpon, ont_template, if_ont, container, cross_connect, dba, dhcp_ra, dhcpv6_ra, management,
      ports, voice, pppoe_ia, shaping, vlan}},
    {container,
     15,
     {container, if_gpon, ont_template, if_ont, address_table, cross_connect, dba, dhcp_ra, dhcpv6_ra, management,
      ports, voice, pppoe_ia, shaping, vlan}},
    {cross_connect,
     15,
     {cross_connect, dba, if_gpon, ont_template, if_ont, address_table, container, dhcp_ra, dhcpv6_ra, management,
      ports, voice, pppoe_ia, shaping, vlan}},
    {dba,
     15,
     {dba, ports, voice, if_gpon, ont_template, if_ont, address_table, container, cross_connect, dhcp_ra, dhcpv6_ra,
      management, pppoe_ia, shaping, vlan}},
    {dhcp_ra, 9, {dhcp_ra, ont_template, management, ports, voice, pppoe_ia, shaping, vlan, dhcpv6_ra}},
    {dhcpv6_ra, 8, {dhcpv6_ra, ont_template, management, ports, voice, pppoe_ia, shaping, vlan}},
    {management, 7, {management, ont_template, ports, voice, pppoe_ia, shaping, vlan}},
    {ports, 7, {ports, misspelt_management, ont_template, ports, pppoe_ia, shaping, vlan}},
    {voice, 7, {voice, misspelt_management, ont_template, ports, pppoe_ia, shaping, vlan}},
    {pppoe_ia, 5, {pppoe_ia, ont_template, pppoe_ia, shaping, vlan}},
    {shaping, 3, {shaping, ont_template, vlan}},
    {vlan, 2, {vlan, ont_template}},
    {ont_template, 1, {ont_template}},
};

const char* name_of(ViewId id)
{
    return id == misspelt_management ? "managemant-view" : views[id].name;
}

const char* command_of(ViewId id)
{
    return views[id == misspelt_management ? management : id].command;
}

/// What a row from `from` writes on the way to `to`, and on the way back.
view2view::Way way_to(ViewId from, ViewId to)
{
    const char* const lead = from == root        ? (to == configure ? "" : "configure terminal\n")
                             : from == configure ? ""
                                                 : "exit\n";
    return {lead, command_of(to)};
}

view2view::Way way_from(ViewId from, ViewId to)
{
    if (from == root)
        return {to == configure ? "exit" : "exit\nexit", ""};
    if (from == configure)
        return {"exit", ""};
    return {"exit\n", command_of(from)};
}

ViewId id_of(const char* name)
{
    for (std::size_t i = 0; i < registered; ++i)
        if (views[i].name == name || std::strcmp(views[i].name, name) == 0)
            return static_cast<ViewId>(i);
    return std::strcmp(name_of(misspelt_management), name) == 0 ? misspelt_management : no_view;
}

/// Two names match when they agree over the length of the shorter one.
bool prefix_match(const char* a, const char* b)
{
    if (a == b)
        return true;
    while (*a && *a == *b) {
        ++a;
        ++b;
    }
    return !*a || !*b;
}

const char* standing_view()
{
    return current_view.name ? current_view.name : views[root].name;
}

void move_to(ViewId id, const int* key)
{
    current_view.name = name_of(id);
    std::memmove(current_view.key, key, sizeof current_view.key); // the key may be the view's own
}

/// How the object of a view is written. Names come from the old configuration where it has the object: there the
/// script meets it.
struct Identifier {
    const char* view_prefix;
    char* const* names;
    char* const* old_names;
    int slots;
};

constexpr Identifier identifiers[] = {
    {"ont", ont2id_connection, nullptr, GCFG_ONTS},
    {"user", user2id_connection, nullptr, GCFG_USERS},
    {"management", management2id_connection, def_management2id_connection, GCFG_ONT_PROFILES},
    {"shaping", shaping2id_connection, def_shaping2id_connection, GCFG_SHAPING_PROFILES},
    {"ports-view", ports2id_connection, def_ports2id_connection, GCFG_ONT_PROFILES},
    {"voice-view", voice2id_connection, def_voice2id_connection, GCFG_ONT_PROFILES},
    {"address-table-view", address_table2id_connection, def_address_table2id_connection, GCFG_OLT_PROFILES},
    {"cross-connect-view", cross_connect2id_connection, def_cross_connect2id_connection, GCFG_CROSS_CONNECT_PROFILES},
    {"dba-view", alloc2id_connection, def_alloc2id_connection, GCFG_ALLOC_PROFILES},
    {"dhcp-ra-view", dhcpra2id_connection, def_dhcpra2id_connection, GCFG_OLT_PROFILES},
    {"dhcpv6-ra-view", dhcpv6ra2id_connection, def_dhcpv6ra2id_connection, GCFG_OLT_PROFILES},
    {"pppoe-ia-view", pppoeia2id_connection, def_pppoeia2id_connection, GCFG_OLT_PROFILES},
    {"vlan-view", vlan2id_connection, def_vlan2id_connection, GCFG_OLT_PROFILES},
    {"template-view", onttemplate2id_connection, def_onttemplate2id_connection, GCFG_ONT_PROFILES},
};

bool begins_with(const char* text, const char* prefix)
{
    return std::strncmp(text, prefix, std::strlen(prefix)) == 0;
}

void append_identifier(const char* view, const int* key, Text& out)
{
    for (const Identifier& identifier : identifiers) {
        if (!begins_with(view, identifier.view_prefix))
            continue;
        const char* name = identifier.old_names ? name_in(identifier.old_names, identifier.slots, key[0]) : nullptr;
        if (!name)
            name = name_in(identifier.names, identifier.slots, key[0]);
        out.append("\"", 1);
        out.append(name ? name : "");
        out.append("\"", 1);
        return;
    }
    if (begins_with(view, "if-ont-view")) {
        out.append_decimal(key[0] / GCFG_ONTS_PER_PORT);
        out.append("/", 1);
        out.append_decimal(key[0] % GCFG_ONTS_PER_PORT);
        return;
    }
    out.append_aligned(key[0]);
}

/// Writes the commands of one way; the placeholder, always the last thing in a command, becomes the identifier.
void render(const view2view::Way& way, const char* view, const int* key, Text& out)
{
    out.append(way.lead);
    const char* const placeholder = std::strstr(way.enter, "$ID");
    if (!placeholder) {
        out.append(way.enter);
        return;
    }
    out.append(way.enter, static_cast<std::size_t>(placeholder - way.enter));
    append_identifier(view, key, out);
}

bool direct_way(ViewId standing, ViewId wanted, const char* view, const int* key, Text& out)
{
    if (standing == no_view || wanted == no_view)
        return false;
    for (const RowGroup& group : commandsv2v) {
        for (std::size_t i = 0; i < group.count; ++i) {
            const bool forward = group.from == standing && group.to[i] == wanted;
            if (!forward && (group.to[i] != standing || group.from != wanted))
                continue;
            render(forward ? way_to(group.from, group.to[i]) : way_from(group.from, group.to[i]), view, key, out);
            move_to(wanted, key);
            return true;
        }
    }
    return false;
}

bool joined_to_root(ViewId id)
{
    for (const ViewId to : commandsv2v[0].to)
        if (to == id)
            return true;
    return false;
}

/// The way through the top level, for two views that no row joins: a name that only begins like a registered one, or a
/// standing view that is none of the registry's.
void way_through_root(ViewId standing, ViewId wanted, const char* view, const int* key, Text& out)
{
    if (joined_to_root(standing)) {
        render(way_from(root, standing), view, key, out);
        current_view.name = name_of(root);
    }
    out.append("\n", 1);
    if (joined_to_root(wanted)) {
        render(way_to(root, wanted), view, key, out);
        move_to(wanted, key);
    }
}

} // namespace

std::size_t view_count()
{
    return registered;
}

const view_data& view(std::size_t index)
{
    return views[index];
}

std::size_t view2view_count()
{
    std::size_t count = 0;
    for (const RowGroup& group : commandsv2v)
        count += group.count;
    return count;
}

view2view view2view_row(std::size_t index)
{
    const RowGroup* group = commandsv2v;
    for (; index >= group->count; ++group)
        index -= group->count;
    const ViewId to = group->to[index];
    return {name_of(group->from), name_of(to), way_to(group->from, to), way_from(group->from, to)};
}

const view_data* registered_view(const char* name)
{
    // Most views are asked for many times in a row, and an exact name matches no other entry.
    static const view_data* met_last = views;
    if (met_last->name == name || std::strcmp(met_last->name, name) == 0)
        return met_last;
    for (const view_data& entry : views)
        if (prefix_match(entry.name, name))
            return met_last = &entry;
    return nullptr;
}

int goto_view(const char* view, const int* key, Text& out)
{
    const view_data* const target = registered_view(view);
    if (!target) {
        std::printf("\n\n\n\nVIEW %s NOT FOUND!!!!!!!!!!!!!!\n\n\n", view);
        return -1;
    }
    if (prefix_match(standing_view(), view) && same_object(*target, key))
        return 0;
    const ViewId standing = id_of(standing_view());
    const ViewId wanted = id_of(view);
    if (!direct_way(standing, wanted, view, key, out))
        way_through_root(standing, wanted, view, key, out);
    return 0;
}

} // namespace pondiff

int goto_view_buf(const char* view, int* key, char* out)
{
    constexpr std::size_t capacity = 1024;
    if (!view || !key || !out)
        return -1;
    const view_state before = current_view;
    pondiff::Text text;
    const int result = pondiff::goto_view(view, key, text);
    if (text.failed() || text.size() >= capacity) {
        current_view = before;
        return -1;
    }
    if (text.size() != 0)
        std::memcpy(out, text.c_str(), text.size() + 1);
    return result;
}
