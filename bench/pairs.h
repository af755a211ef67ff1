/// Two ways of doing something, measured in turns, so that their ratio holds whatever else the machine does.
#pragma once

#include <benchmark/benchmark.h>

using Way = void (*)();

constexpr int kTimesPerTurn = 200;

/// Lets each way run `times` times in turn, again and again, and counts "ratio", the median of the ratios, "own_ns" and
/// "beside_ns", the median times, and "own_allocs" and "beside_allocs", what each way takes from the heap on the calling
/// thread.
void comparePairs(benchmark::State& state, Way own, Way beside, int times = kTimesPerTurn);
