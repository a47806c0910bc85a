// From exec to the sample's tree on screen, against a bare Qt program that shows an empty main
// window.

#include <QCoreApplication>
#include <QElapsedTimer>
#include <QProcess>
#include <algorithm>
#include <cstdio>

#include "bench/ratios.h"

namespace {

constexpr int kRounds = 21;

double Milliseconds(const QString& program, const QStringList& arguments) {
    QElapsedTimer timer;
    timer.start();
    if (QProcess::execute(program, arguments) != 0) {
        std::fprintf(stderr, "%s failed\n", qPrintable(program));
        std::exit(1);
    }
    return double(timer.nsecsElapsed()) / 1e6;
}

double Median(std::vector<double>& times) {
    std::sort(times.begin(), times.end());
    return times[times.size() / 2];
}

}  // namespace

int main(int argc, char* argv[]) {
    const QCoreApplication application(argc, argv);
    if (argc != 2) {
        std::fprintf(stderr, "usage: bench-startup ASSEMBLY\n");
        return 2;
    }
    const QString folder = QCoreApplication::applicationDirPath();
    const QString bare = folder + QStringLiteral("/bench-barewindow");
    const QString program = folder + QStringLiteral("/docbench");
    const QStringList arguments{QStringLiteral("--quit-when-shown"),
                                QString::fromLocal8Bit(argv[1])};
    Milliseconds(bare, {});  // brings the programs into memory
    Milliseconds(program, arguments);
    std::vector<double> bareTimes;
    std::vector<double> docbenchTimes;
    for (int i = 0; i < kRounds; ++i) {
        bareTimes.push_back(Milliseconds(bare, {}));
        docbenchTimes.push_back(Milliseconds(program, arguments));
    }
    const double bareTime = Median(bareTimes);
    const double docbenchTime = Median(docbenchTimes);
    std::printf("bare window: %.1f ms; docbench with its tree: %.1f ms\n", bareTime, docbenchTime);
    return docbench::bench::PrintRatio("start to the tree on screen / bare Qt window",
                                       docbenchTime / bareTime, 2.5)
               ? 0
               : 1;
}
