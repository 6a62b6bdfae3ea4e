#include "ratios.h"

#include <benchmark/benchmark.h>

#include <algorithm>
#include <cstdio>
#include <map>
#include <string>

namespace kelvo::bench {

namespace {

struct Samples
{
    std::vector<double> cpu, wall; // seconds a round, one for each repetition
};

// Shows the medians and how far the repetitions lie apart, and keeps them all.
class Collector : public benchmark::ConsoleReporter
{
public:
    Collector()
        : ConsoleReporter(OO_Tabular)
    {
    }

    void ReportRuns(const std::vector<Run> &runs) override
    {
        std::vector<Run> shown;
        for (const Run &run : runs) {
            failed = failed || run.error_occurred;
            if (run.error_occurred || run.aggregate_name == "median" || run.aggregate_name == "cv")
                shown.push_back(run);
            if (run.run_type != Run::RT_Iteration || run.error_occurred)
                continue;
            Samples &samples = byName[run.run_name.function_name];
            const double rounds = static_cast<double>(run.iterations);
            samples.cpu.push_back(run.cpu_accumulated_time / rounds);
            samples.wall.push_back(run.real_accumulated_time / rounds);
        }
        ConsoleReporter::ReportRuns(shown);
    }

    std::map<std::string, Samples> byName;
    bool failed = false;
};

double median(std::vector<double> values)
{
    const auto middle = values.begin() + static_cast<std::ptrdiff_t>(values.size() / 2);
    std::nth_element(values.begin(), middle, values.end());
    return *middle;
}

double ratioOf(const Samples &what, const Samples &yardstick, Clock clock)
{
    return clock == Clock::Cpu ? median(what.cpu) / median(yardstick.cpu)
                               : median(what.wall) / median(yardstick.wall);
}

} // namespace

int runAndCompare(int argc, char **argv, const std::vector<Ratio> &ratios)
{
    std::string shuffle = "--benchmark_enable_random_interleaving=true";
    std::vector<char *> arguments(argv, argv + argc);
    arguments.insert(arguments.begin() + 1, shuffle.data());
    int count = static_cast<int>(arguments.size());
    arguments.push_back(nullptr);
    benchmark::Initialize(&count, arguments.data());
    if (benchmark::ReportUnrecognizedArguments(count, arguments.data()))
        return 2;

    Collector collector;
    benchmark::RunSpecifiedBenchmarks(&collector);

    bool missed = false;
    std::printf("\n%-30s %-30s %-5s %7s %7s\n", "what", "against", "clock", "ratio", "budget");
    for (const Ratio &row : ratios) {
        const auto what = collector.byName.find(row.what);
        const auto yardstick = collector.byName.find(row.yardstick);
        if (what == collector.byName.end() || yardstick == collector.byName.end()) {
            std::printf("%-30s %-30s was not measured\n", row.what, row.yardstick);
            collector.failed = true;
            continue;
        }
        const double ratio = ratioOf(what->second, yardstick->second, row.clock);
        std::printf("%-30s %-30s %-5s %7.3f", row.what, row.yardstick,
                    row.clock == Clock::Cpu ? "cpu" : "wall", ratio);
        if (row.budget > 0)
            std::printf(" %7.2f%s", row.budget, ratio > row.budget ? "  MISSED" : "");
        std::printf("\n");
        missed = missed || (row.budget > 0 && ratio > row.budget);
    }
    benchmark::Shutdown();
    return missed || collector.failed ? 1 : 0;
}

} // namespace kelvo::bench
