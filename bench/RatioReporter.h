#pragma once

#include <benchmark/benchmark.h>

#include <map>
#include <string>

namespace tessarine::bench {

// Prints, besides the usual table, how each benchmark "NAME/ours" compares with its "NAME/bare" of
// the same run: the ratio of the medians, and the medians' spread. Machines differ and are noisy;
// only the ratio says something.
class RatioReporter : public benchmark::ConsoleReporter {
public:
    void ReportRuns(const std::vector<Run>& runs) override;
    void Finalize() override;

private:
    std::map<std::string, double> medians_; // seconds of real time, by benchmark
    std::map<std::string, double> spreads_; // coefficient of variation
};

// Runs all benchmarks of the program, with the arguments of its command line, and reports as told
// above. The repetitions of all benchmarks are interleaved by default, so that what disturbs the
// machine disturbs ours and the baseline alike.
int runBenchmarks(int argc, char** argv);

} // namespace tessarine::bench
