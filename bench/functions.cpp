#include "functions.h"

#include <cstdio>
#include <memory>
#include <utility>

namespace kelvo::bench {

namespace {

constexpr double leastSeconds = 0.05;

class Collector : public benchmark::BenchmarkReporter
{
public:
    bool ReportContext(const Context &) override { return true; }
    void ReportRuns(const std::vector<Run> &runs) override { m_runs = runs; }

    const std::vector<Run> &runs() const { return m_runs; }

private:
    std::vector<Run> m_runs;
};

// The benchmarks of one function, which Google Benchmark knows by name: "7/min_time:..." finds out
// how many rounds a run takes, "7/many/..." makes as many.
class Measured
{
public:
    Measured(std::function<void(benchmark::State &)> function, int rounds)
        : m_function(std::move(function))
        , m_rounds(rounds)
    {
        static int count = 0;
        m_name = std::to_string(++count);
        if (rounds == 0)
            benchmark::RegisterBenchmark(m_name.c_str(), m_function)->MinTime(leastSeconds);
        else
            registerMany();
    }

    std::optional<Taken> run()
    {
        Collector collector;
        benchmark::RunSpecifiedBenchmarks(&collector,
                                          '^' + m_name + (m_rounds == 0 ? "/min_time" : "/many"));
        if (collector.runs().size() != 1)
            return std::nullopt;
        const auto &run = collector.runs().front();
        if (run.error_occurred) {
            std::fprintf(stderr, "%s\n", run.error_message.c_str());
            return std::nullopt;
        }
        if (m_rounds == 0) {
            m_rounds = static_cast<int>(run.iterations);
            registerMany();
        }
        const auto rounds = static_cast<double>(run.iterations);
        return Taken{run.real_accumulated_time / rounds, run.cpu_accumulated_time / rounds, 0};
    }

private:
    void registerMany()
    {
        benchmark::RegisterBenchmark((m_name + "/many").c_str(), m_function)->Iterations(m_rounds);
    }

    std::function<void(benchmark::State &)> m_function;
    int m_rounds; // 0: not known yet
    std::string m_name;
};

} // namespace

Side function(std::string name, std::function<void(benchmark::State &)> function, int rounds)
{
    const auto measured = std::make_shared<Measured>(std::move(function), rounds);
    return {std::move(name), [measured] { return measured->run(); }};
}

} // namespace kelvo::bench
