/// Times of the library, with both records in memory. The two sides of every ratio are timed alternately in the same
/// loop, so that other load affects both; the ratio of a run is the median of its pairs.

#include "bench/configurations.h"
#include "bench/print_lines.h"
#include "bench/times.h"
#include "pon/command_file_generator.h"
#include "tool/describe/records.h"
#include "tool/language/index.h"
#include "tool/language/objects.h"
#include "tool/language/reader.h"

#include <algorithm>
#include <benchmark/benchmark.h>
#include <cstdlib>
#include <cstring>
#include <memory>
#include <string>
#include <vector>

namespace {

using namespace pondiff::bench;

/// The session over two records.
class Session {
  public:
    Session(const Configuration& before, const Configuration& after) : orig(before.get()), cfg(after.get())
    {
        if (initiate_diff(orig, cfg, 0, 0) != 0) {
            std::abort();
        }
    }
    ~Session() { finalize_diff(); }
    Session(const Session&) = delete;
    Session& operator=(const Session&) = delete;

    void compare() const { benchmark::DoNotOptimize(std::memcmp(orig, cfg, sizeof(GCfg))); }
    void diff() const { std::free(GetDiff(orig, cfg)); }
    std::string script() const
    {
        char* const text = GetDiff(orig, cfg);
        std::string result = text;
        std::free(text);
        return result;
    }

    GCfg* const orig;
    GCfg* const cfg;
};

/// Times taken alternately: of something, and of the unit that it is measured in.
class Ratios {
  public:
    void add(double time, double unit)
    {
        ratios_.push_back(time / unit);
        times_.push_back(time);
        units_.push_back(unit);
    }
    void report(benchmark::State& state) const
    {
        constexpr double nano = 1e9;
        state.counters["ratio"] = median(ratios_);
        state.counters["ns"] = median(times_) * nano;
        state.counters["unit_ns"] = median(units_) * nano;
    }

  private:
    std::vector<double> ratios_, times_, units_;
};

void equal_records(benchmark::State& state)
{
    constexpr std::uint64_t seed = 8;
    const Configuration orig = random_bytes(seed);
    const Configuration cfg = random_bytes(seed);
    const Session session(orig, cfg);
    Ratios ratios;
    for ([[maybe_unused]] auto pass : state) {
        const double unit = timed([&] { session.compare(); });
        const double time = timed([&] { session.diff(); });
        state.SetIterationTime(time);
        ratios.add(time, unit);
    }
    ratios.report(state);
}

/// `flip` makes the new record differ, and makes it equal again. It is equal whenever the two are compared.
template <class Flip>
void one_change(benchmark::State& state, const Flip& flip)
{
    const Configuration orig = full();
    const Configuration cfg = full();
    const Session session(orig, cfg);
    flip(*cfg);
    if (session.script().empty()) {
        state.SkipWithError("the change has no command");
    }
    flip(*cfg);
    Ratios ratios;
    for ([[maybe_unused]] auto pass : state) {
        const double unit = timed([&] { session.compare(); });
        flip(*cfg);
        const double time = timed([&] { session.diff(); });
        flip(*cfg);
        state.SetIterationTime(time);
        ratios.add(time, unit);
    }
    ratios.report(state);
}

void changed_hostname(benchmark::State& state)
{
    one_change(state, [](GCfg& cfg) { cfg.system.network.hostname[0] ^= 1; });
}

void changed_ont_531(benchmark::State& state)
{
    one_change(state, [](GCfg& cfg) { cfg.pon.ont[531].fec_up ^= 1; });
}

void changed_last_shaping(benchmark::State& state)
{
    one_change(state, [](GCfg& cfg) {
        GPonProfileOntShaping& last = cfg.pon.profiles_ont.shaping[GCFG_SHAPING_PROFILES - 1];
        last.downstream.policer[GCFG_SHAPERS - 1].enable ^= 1;
    });
}

void open_and_close(benchmark::State& state)
{
    const Configuration orig = full();
    const Configuration cfg = full();
    Ratios ratios;
    for ([[maybe_unused]] auto pass : state) {
        const double unit = timed([&] { benchmark::DoNotOptimize(std::memcmp(orig.get(), cfg.get(), sizeof(GCfg))); });
        const double time = timed([&] {
            initiate_diff(orig.get(), cfg.get(), 0, 0);
            finalize_diff();
        });
        state.SetIterationTime(time);
        ratios.add(time, unit);
    }
    ratios.report(state);
}

/// A line of the whole script against one snprintf of it and its append.
void script_lines(benchmark::State& state, int all, int common)
{
    const Configuration orig = blank();
    const Configuration cfg = full();
    const Session session(orig, cfg);
    print_all = all;
    print_common = common;
    const PrintedLines printed(session.script());
    const auto lines = static_cast<double>(printed.count());
    Ratios ratios;
    for ([[maybe_unused]] auto pass : state) {
        const double unit = timed([&] { std::free(printed.print()); });
        const double time = timed([&] { session.diff(); });
        state.SetIterationTime(time);
        ratios.add(time / lines, unit / lines);
    }
    ratios.report(state);
    state.counters["lines"] = lines;
    state.counters["bytes"] = static_cast<double>(printed.bytes());
}

void full_script(benchmark::State& state)
{
    script_lines(state, 0, 0);
}

/// With everything forced, which avoids the comparison.
void full_dump(benchmark::State& state)
{
    constexpr int with_common_and_profiles = 2;
    script_lines(state, 1, with_common_and_profiles);
}

double count_lines(const Session& session)
{
    const std::string script = session.script();
    return static_cast<double>(std::count(script.begin(), script.end(), '\n'));
}

/// The time of one GetDiff of a session of its own.
double diff_time(const Configuration& orig, const Configuration& cfg, int runs)
{
    const Session session(orig, cfg);
    session.diff();
    return timed([&] {
               for (int i = 0; i < runs; ++i) {
                   session.diff();
               }
           }) /
           runs;
}

/// A line of a long script against a line of a short one. Both include the comparison of equal records, which matters
/// more in the short one, so the ratio is given without it, too.
void long_and_short_script(benchmark::State& state)
{
    constexpr int short_runs = 64;
    const Configuration orig = blank();
    const Configuration same = blank();
    const Configuration long_cfg = full();
    const Configuration short_cfg = small();
    const double long_lines = count_lines({orig, long_cfg});
    const double short_lines = count_lines({orig, short_cfg});
    Ratios ratios, without_comparing;
    for ([[maybe_unused]] auto pass : state) {
        const double comparing = diff_time(orig, same, short_runs);
        const double short_time = diff_time(orig, short_cfg, short_runs);
        const double long_time = diff_time(orig, long_cfg, 1);
        state.SetIterationTime(long_time);
        ratios.add(long_time / long_lines, short_time / short_lines);
        without_comparing.add((long_time - comparing) / long_lines, (short_time - comparing) / short_lines);
    }
    without_comparing.report(state);
    const double ratio_without_comparing = state.counters["ratio"];
    ratios.report(state);
    state.counters["without_comparing"] = ratio_without_comparing;
    state.counters["lines"] = short_lines;
}

/// The full script read onto a blank configuration, against writing it.
void read_full_script(benchmark::State& state)
{
    const Configuration orig = blank();
    const Configuration cfg = full();
    const Session session(orig, cfg);
    const std::string script = session.script();
    const auto unread = pondiff::tool::blank_configuration();
    const auto device = std::make_unique<GCfg>();
    Ratios ratios;
    for ([[maybe_unused]] auto pass : state) {
        std::memcpy(device.get(), unread.get(), sizeof(GCfg));
        const double unit = timed([&] { session.diff(); });
        const double time = timed([&] {
            pondiff::tool::read_script(script, *device,
                                       [](const pondiff::tool::Line& line) { benchmark::DoNotOptimize(&line); });
        });
        state.SetIterationTime(time);
        ratios.add(time, unit);
    }
    ratios.report(state);
}

/// Milliseconds for the index of all commands.
void build_index(benchmark::State& state)
{
    constexpr double milli = 1e-3;
    Ratios ratios;
    for ([[maybe_unused]] auto pass : state) {
        const double time =
            timed([] { benchmark::DoNotOptimize(pondiff::tool::Index(pondiff::tool::gcfg_record).patterns().data()); });
        state.SetIterationTime(time);
        ratios.add(time, milli);
    }
    ratios.report(state);
}

constexpr int many = 300;
constexpr int few = 20;

BENCHMARK(equal_records)->Iterations(many)->UseManualTime()->Unit(benchmark::kMicrosecond);
BENCHMARK(changed_hostname)->Iterations(many)->UseManualTime()->Unit(benchmark::kMicrosecond);
BENCHMARK(changed_ont_531)->Iterations(many)->UseManualTime()->Unit(benchmark::kMicrosecond);
BENCHMARK(changed_last_shaping)->Iterations(many)->UseManualTime()->Unit(benchmark::kMicrosecond);
BENCHMARK(open_and_close)->Iterations(many)->UseManualTime()->Unit(benchmark::kMicrosecond);
BENCHMARK(full_script)->Iterations(few)->UseManualTime()->Unit(benchmark::kMillisecond);
BENCHMARK(full_dump)->Iterations(few)->UseManualTime()->Unit(benchmark::kMillisecond);
BENCHMARK(read_full_script)->Iterations(few)->UseManualTime()->Unit(benchmark::kMillisecond);
BENCHMARK(build_index)->Iterations(few)->UseManualTime()->Unit(benchmark::kMillisecond);
BENCHMARK(long_and_short_script)->Iterations(few)->UseManualTime()->Unit(benchmark::kMillisecond);

} // namespace

BENCHMARK_MAIN();
