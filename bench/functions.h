#pragma once

#include "ratios.h"

#include <benchmark/benchmark.h>

namespace kelvo::bench {

// A function, measured in this process with Google Benchmark: it does its work in the loop over
// the state. A run is as many rounds of that loop as `rounds` says, or, where that is 0, as fill a
// twentieth of a second; told is the time of one. Processor time is that of the calling thread.
Side function(std::string name, std::function<void(benchmark::State &)> function, int rounds = 0);

} // namespace kelvo::bench
