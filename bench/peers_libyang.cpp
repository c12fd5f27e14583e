/// Times libyang's diff of two trees: bench-libyang MODULE TREE CHANGED-TREE, as bench-render writes them. Both trees
/// are in memory; parsing them is not part of the times.

#include "bench/times.h"

#include <cstdio>
#include <cstdlib>
#include <libyang/libyang.h>

namespace {

using namespace pondiff::bench;

void require(bool holds, const char* what)
{
    if (holds) {
        return;
    }
    std::fprintf(stderr, "bench-libyang: %s\n", what);
    std::exit(EXIT_FAILURE);
}

lyd_node* parse(const ly_ctx* context, const char* file)
{
    lyd_node* tree = nullptr;
    require(lyd_parse_data_path(context, file, LYD_JSON, LYD_PARSE_STRICT | LYD_PARSE_ONLY, 0, &tree) == LY_SUCCESS,
            ly_errmsg(context));
    return tree;
}

void report(const char* name, const lyd_node* orig, const lyd_node* cfg, bool differ, int runs)
{
    const double time = median_time(runs, [&] {
        lyd_node* diff = nullptr;
        require(lyd_diff_siblings(orig, cfg, 0, &diff) == LY_SUCCESS, "no diff");
        require((diff != nullptr) == differ, "an unexpected diff");
        lyd_free_siblings(diff);
    });
    constexpr double micro = 1e6;
    std::printf("%s %.1f\n", name, time * micro);
}

} // namespace

int main(int argc, char** argv)
{
    require(argc == 4, "usage: bench-libyang MODULE TREE CHANGED-TREE");
    ly_ctx* context = nullptr;
    require(ly_ctx_new(nullptr, 0, &context) == LY_SUCCESS, "no context");
    require(lys_parse_path(context, argv[1], LYS_IN_YANG, nullptr) == LY_SUCCESS, ly_errmsg(context));
    lyd_node* const tree = parse(context, argv[2]);
    lyd_node* const same = parse(context, argv[2]);
    lyd_node* const changed = parse(context, argv[3]);
    constexpr int runs = 5;
    report("equal", tree, same, false, runs);
    report("changed", tree, changed, true, runs);
    report("everything", nullptr, tree, true, runs);
    lyd_free_siblings(tree);
    lyd_free_siblings(same);
    lyd_free_siblings(changed);
    ly_ctx_destroy(context);
}
