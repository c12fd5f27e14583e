#ifndef BENCH_TIMES_H
#define BENCH_TIMES_H

#include <algorithm>
#include <cstddef>
#include <ctime>
#include <vector>

namespace pondiff::bench {

/// The processor time of this thread; other load does not count.
inline double seconds()
{
    constexpr double nano = 1e-9;
    timespec now{};
    clock_gettime(CLOCK_THREAD_CPUTIME_ID, &now);
    return static_cast<double>(now.tv_sec) + static_cast<double>(now.tv_nsec) * nano;
}

template <class Function>
double timed(const Function& function)
{
    const double start = seconds();
    function();
    return seconds() - start;
}

inline double median(std::vector<double> values)
{
    const auto middle = values.begin() + static_cast<std::ptrdiff_t>(values.size() / 2);
    std::nth_element(values.begin(), middle, values.end());
    return *middle;
}

/// The median time of so many runs, after one that is not counted.
template <class Function>
double median_time(int runs, const Function& function)
{
    std::vector<double> times;
    function();
    for (int i = 0; i < runs; ++i) {
        times.push_back(timed(function));
    }
    return median(times);
}

} // namespace pondiff::bench

#endif
