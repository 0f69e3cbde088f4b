#include "bench/RatioReporter.h"

#include <QCoreApplication>

#include <benchmark/benchmark.h>

#include <string>
#include <vector>

// Interleaves the repetitions of all benchmarks by default, so that what disturbs the machine
// disturbs ours and the baseline alike.
int main(int argc, char** argv) {
    std::vector<char*> arguments{argv, argv + argc};
    std::string interleaved = "--benchmark_enable_random_interleaving=true";
    std::string repetitions = "--benchmark_repetitions=15";
    std::string aggregates = "--benchmark_report_aggregates_only=true";
    for (std::string* option : {&interleaved, &repetitions, &aggregates})
        arguments.insert(arguments.begin() + 1, option->data());
    int count = static_cast<int>(arguments.size());
    benchmark::Initialize(&count, arguments.data());
    const QCoreApplication application(argc, argv);
    tessarine::bench::RatioReporter reporter;
    benchmark::RunSpecifiedBenchmarks(&reporter);
    return 0;
}
