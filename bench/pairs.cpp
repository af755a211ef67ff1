#include "pairs.h"

#include "allocations.h"

#include <algorithm>
#include <chrono>
#include <vector>

namespace {

using Clock = std::chrono::steady_clock;

double nanosecondsOf(Way way, int times)
{
    const auto begin = Clock::now();
    for (int i = 0; i < times; ++i) {
        way();
    }
    return std::chrono::duration<double, std::nano>(Clock::now() - begin).count() / times;
}

double median(std::vector<double> values)
{
    std::ranges::nth_element(values, values.begin() + static_cast<long>(values.size() / 2));
    return values[values.size() / 2];
}

double allocationsOf(Way way)
{
    const size_t before = allocationsOfThisThread();
    way();
    return static_cast<double>(allocationsOfThisThread() - before);
}

} // namespace

void comparePairs(benchmark::State& state, Way own, Way beside, int times)
{
    std::vector<double> ownTimes;
    std::vector<double> besideTimes;
    std::vector<double> ratios;
    for (auto _ : state) {
        besideTimes.push_back(nanosecondsOf(beside, times));
        ownTimes.push_back(nanosecondsOf(own, times));
        ratios.push_back(ownTimes.back() / besideTimes.back());
    }
    state.counters["ratio"] = median(ratios);
    state.counters["own_ns"] = median(ownTimes);
    state.counters["beside_ns"] = median(besideTimes);
    state.counters["own_allocs"] = allocationsOf(own);
    state.counters["beside_allocs"] = allocationsOf(beside);
}
