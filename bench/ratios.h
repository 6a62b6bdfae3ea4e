#pragma once

#include <vector>

// Measurements beside their yardsticks. Times of one machine say nothing about
// another; how many times as long as the yardstick a thing takes, measured in the
// same run, does.
namespace kelvo::bench {

enum class Clock {
    Cpu,  // of this thread: what other programs do meanwhile does not count
    Wall, // where waiting, as for a disk, is part of the matter
};

struct Ratio
{
    const char *what;      // a benchmark's function name
    const char *yardstick; // another one's
    double budget;         // at most; 0: for orientation, without a budget
    Clock clock = Clock::Cpu;
};

// Runs the registered benchmarks, the repetitions of all of them shuffled, so that
// a slow minute of the machine meets both sides. Then prints each ratio of the
// medians. Returns what main() does: 1 when a budget is missed or a benchmark
// failed, 2 when a name is wrong.
int runAndCompare(int argc, char **argv, const std::vector<Ratio> &ratios);

} // namespace kelvo::bench
