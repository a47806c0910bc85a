// Runs benchmarks side by side and prints how they compare, since single times mean little on a
// machine that does other things as well.
#pragma once

#include <benchmark/benchmark.h>

#include <string>
#include <vector>

namespace docbench::bench {

// One line of the result: the median time of `what` divided by that of `against`.
struct Ratio {
    std::string what;
    std::string against;
    double limit;  // what the ratio should not pass
};

// Runs everything that is registered, interleaved at random in 9 repetitions, and prints the
// ratios. Gives the exit code: 1 when a limit is passed.
int RunRatios(int argc, char** argv, const std::vector<Ratio>& ratios);

// Prints one comparison that was measured otherwise; false when it passes the limit.
bool PrintRatio(const std::string& label, double ratio, double limit);

}  // namespace docbench::bench
