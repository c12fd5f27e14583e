/// Times one comparison, with both records in memory: a session is opened, the script taken, the session closed.

#include "bench/configurations.h"
#include "bench/times.h"
#include "pon/command_file_generator.h"

#include <cstdio>
#include <cstdlib>

namespace {

using namespace pondiff::bench;

void report(const char* name, const Configuration& orig, const Configuration& cfg, int runs)
{
    const double time = median_time(runs, [&] {
        if (initiate_diff(orig.get(), cfg.get(), 0, 0) != 0) {
            std::abort();
        }
        std::free(GetDiff(orig.get(), cfg.get()));
        finalize_diff();
    });
    constexpr double micro = 1e6;
    std::printf("%s %.1f\n", name, time * micro);
}

} // namespace

int main()
{
    constexpr int many = 301;
    constexpr int few = 21;
    const Configuration everything = full();
    report("equal", everything, full(), many);
    report("changed", everything, with_other_hostname(), many);
    report("everything", blank(), everything, few);
}
