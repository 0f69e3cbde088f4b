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

} // namespace tessarine::bench
