// Times of what is too slow to be run a thousand times.
#pragma once

#include <QElapsedTimer>
#include <algorithm>
#include <functional>

namespace docbench::bench {

inline double Milliseconds(const std::function<void()>& work) {
    QElapsedTimer timer;
    timer.start();
    work();
    return double(timer.nsecsElapsed()) / 1e6;
}

// The shortest of some runs: what others do on the machine at the same time only adds to it.
inline double Best(int rounds, const std::function<void()>& work) {
    double best = Milliseconds(work);
    for (int i = 1; i < rounds; ++i)
        best = std::min(best, Milliseconds(work));
    return best;
}

}  // namespace docbench::bench
