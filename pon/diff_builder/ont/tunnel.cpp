#include "pon/diff_builder/rows.h"

using namespace pondiff;

namespace {

constexpr int end_mark = -1;

/// Sorts the list in place, ascending, in passes; pass i ends the sort when element i is an end mark. An end mark never
/// moves to the front: the parts before and after it are sorted separately, and only smaller values move past it. The
/// elements are packed, so they are read and written by value.
void sort_vids(GPonOntSelectiveTunnel& tunnel)
{
    constexpr int last = GCFG_TUNNEL_VIDS - 1;
    bool swapped = true;
    for (int pass = 0; swapped && pass < last && tunnel.uvid[pass] != end_mark; ++pass) {
        swapped = false;
        for (int i = 0; i < last - pass; ++i) {
            const s16 vid = tunnel.uvid[i];
            const s16 next = tunnel.uvid[i + 1];
            if (next >= vid || next == end_mark) {
                continue;
            }
            tunnel.uvid[i] = next;
            tunnel.uvid[i + 1] = vid;
            swapped = true;
        }
    }
}

/// The values up to the end mark, separated by commas; a run of successive ones is written as its first and last.
void append_ranges(const GPonOntSelectiveTunnel& tunnel, Text& list)
{
    bool in_run = false;
    for (int i = 0; i < GCFG_TUNNEL_VIDS && tunnel.uvid[i] != end_mark; ++i) {
        const int vid = tunnel.uvid[i];
        const bool run_goes_on =
            i + 1 < GCFG_TUNNEL_VIDS && tunnel.uvid[i + 1] != end_mark && tunnel.uvid[i + 1] == vid + 1;
        if (in_run && run_goes_on) {
            continue;
        }
        if (i != 0) {
            list.append(in_run ? '-' : ',');
        }
        list.append_decimal(vid);
        in_run = run_goes_on;
    }
}

} // namespace

/// Does not compare: the whole list is emitted each time.
bool getdiff_GPonOntSelectiveTunnel(GPonOntSelectiveTunnel* /*lhs*/, GPonOntSelectiveTunnel* rhs, int* key,
                                    List<char>& out)
{
    if (!rhs) {
        return false;
    }
    sort_vids(*rhs);
    Text list;
    append_ranges(*rhs, list);
    emit({View::ont, key, out}, "service $ID1 selective-tunnel uvid %s", Value::of_text(list.data(), list.size()));
    return false;
}
