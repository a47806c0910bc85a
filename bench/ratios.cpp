#include "bench/ratios.h"

#include <algorithm>
#include <cstdio>
#include <map>

namespace docbench::bench {

namespace {

// Collects the times that the console reporter shows.
class CollectingReporter : public benchmark::ConsoleReporter {
public:
    void ReportRuns(const std::vector<Run>& runs) override {
        for (const Run& run : runs) {
            if (run.run_type == Run::RT_Iteration && run.iterations > 0)
                times_[run.run_name.function_name].push_back(run.real_accumulated_time /
                                                             double(run.iterations));
        }
    }

    double MedianMicroseconds(const std::string& name) {
        std::vector<double>& times = times_[name];
        if (times.empty())
            return 0;
        std::sort(times.begin(), times.end());
        return times[times.size() / 2] * 1e6;
    }

private:
    std::map<std::string, std::vector<double>> times_;
};

}  // namespace

int RunRatios(int argc, char** argv, const std::vector<Ratio>& ratios) {
    std::vector<char*> arguments(argv, argv + argc);
    std::string repetitions = "--benchmark_repetitions=9";
    std::string interleaving = "--benchmark_enable_random_interleaving=true";
    std::string minimumTime = "--benchmark_min_time=0.1";
    arguments.insert(arguments.begin() + 1,
                     {repetitions.data(), interleaving.data(), minimumTime.data()});
    int count = int(arguments.size());
    benchmark::Initialize(&count, arguments.data());
    CollectingReporter reporter;
    benchmark::RunSpecifiedBenchmarks(&reporter);
    bool allKept = true;
    for (const Ratio& ratio : ratios) {
        const double what = reporter.MedianMicroseconds(ratio.what);
        const double against = reporter.MedianMicroseconds(ratio.against);
        std::printf("%s: %.1f us; %s: %.1f us\n", ratio.what.c_str(), what, ratio.against.c_str(),
                    against);
        allKept &= PrintRatio(ratio.what + " / " + ratio.against, what / against, ratio.limit);
    }
    return allKept ? 0 : 1;
}

bool PrintRatio(const std::string& label, double ratio, double limit) {
    const bool kept = ratio <= limit;
    std::printf("  %-60s %6.2f  (at most %.2f)%s\n", label.c_str(), ratio, limit,
                kept ? "" : "  PASSED THE LIMIT");
    return kept;
}

}  // namespace docbench::bench
