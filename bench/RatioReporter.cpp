#include "bench/RatioReporter.h"

#include <cstdio>
#include <string>
#include <vector>

namespace tessarine::bench {

namespace {

// "recovery/ours/100000/iterations:1" -> "recovery/ours/100000"
std::string plainName(const benchmark::BenchmarkReporter::Run& run) {
    std::string name = run.run_name.function_name;
    if (!run.run_name.args.empty())
        name += '/' + run.run_name.args;
    return name;
}

} // namespace

void RatioReporter::ReportRuns(const std::vector<Run>& runs) {
    ConsoleReporter::ReportRuns(runs);
    for (const Run& run : runs) {
        if (run.run_type != Run::RT_Aggregate)
            continue;
        if (run.aggregate_name == "median")
            medians_[plainName(run)] =
                run.GetAdjustedRealTime() / benchmark::GetTimeUnitMultiplier(run.time_unit);
        if (run.aggregate_name == "cv")
            spreads_[plainName(run)] = run.real_accumulated_time;
    }
}

void RatioReporter::Finalize() {
    for (const auto& [name, median] : medians_) {
        const std::size_t at = name.find("/ours");
        if (at == std::string::npos)
            continue;
        std::string bare = name;
        bare.replace(at, 5, "/bare");
        const auto baseline = medians_.find(bare);
        if (baseline == medians_.end() || baseline->second <= 0)
            continue;
        std::printf("ratio %-40s %.3f  (spread: ours %.1f %%, bare %.1f %%)\n", name.c_str(),
                    median / baseline->second, spreads_[name] * 100, spreads_[bare] * 100);
    }
}

int runBenchmarks(int argc, char** argv) {
    std::vector<char*> arguments{argv, argv + argc};
    std::string interleaved = "--benchmark_enable_random_interleaving=true";
    std::string repetitions = "--benchmark_repetitions=15";
    std::string aggregates = "--benchmark_report_aggregates_only=true";
    for (std::string* option : {&interleaved, &repetitions, &aggregates})
        arguments.insert(arguments.begin() + 1, option->data());
    int count = static_cast<int>(arguments.size());
    benchmark::Initialize(&count, arguments.data());
    RatioReporter reporter;
    benchmark::RunSpecifiedBenchmarks(&reporter);
    return 0;
}

} // namespace tessarine::bench
