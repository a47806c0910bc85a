// Loading a reference tree: each distinct document is read once, time grows with the rows, a large
// tree expands and scrolls without a pause, and memory stays in bounds.

#include <QApplication>
#include <QElapsedTimer>
#include <QFile>
#include <QScrollBar>
#include <algorithm>
#include <cstdio>

#include "bench/documents.h"
#include "bench/ratios.h"
#include "docmodel/access.h"
#include "services/language.h"
#include "services/seams.h"
#include "shell/picturestore.h"
#include "shell/referencetree.h"
#include "shell/referencetreeview.h"
#include "tests/support/countingaccess.h"

using namespace docbench;

namespace {

constexpr int kRounds = 9;
bool gKept = true;

void Keep(bool kept) {
    gKept = gKept && kept;
}

double Milliseconds(const std::function<void()>& work) {
    QElapsedTimer timer;
    timer.start();
    work();
    return double(timer.nsecsElapsed()) / 1e6;
}

double ResidentBytes() {
    QFile statm(QStringLiteral("/proc/self/statm"));
    if (!statm.open(QFile::ReadOnly))
        return 0;
    return statm.readAll().split(' ')[1].toDouble() * 4096;
}

double MedianLoad(const QString& path) {
    std::vector<double> times;
    for (int i = 0; i < kRounds; ++i) {
        ReferenceTree tree;
        times.push_back(Milliseconds([&] { tree.Load(path); }));
    }
    std::sort(times.begin(), times.end());
    return times[times.size() / 2];
}

void ReadsAndGrowth(const QTemporaryDir& folder) {
    const QString small = bench::MakeAssembly(folder, QStringLiteral("rows20000"), 20'000, 2'000);
    const QString large = bench::MakeAssembly(folder, QStringLiteral("rows80000"), 80'000, 2'000);
    {
        CountingAccess counting;
        ReferenceTree tree;
        tree.Load(small);
        std::printf("%d rows: %d documents read, %d records read\n", tree.Nodes().Count(),
                    counting.filesMade, counting.infosMade);
        Keep(bench::PrintRatio("documents read / distinct documents",
                               double(counting.filesMade) / 2'000, 1.0));
    }
    // Between these two only the rows grow, so what a further row costs is their difference.
    const double smallTime = MedianLoad(small);
    const double largeTime = MedianLoad(large);
    std::printf("20,000 rows: %.1f ms; 80,000 rows over as many documents: %.1f ms\n", smallTime,
                largeTime);
    Keep(bench::PrintRatio("time for 4 times the rows / 4 times the time",
                           largeTime / smallTime / 4, 1.0));
}

void LargeTreeInAView(const QTemporaryDir& folder) {
    const QString path = bench::MakeAssembly(folder, QStringLiteral("rows100000"), 100'000, 5'000);
    const double before = ResidentBytes();
    ReferenceTree tree;
    tree.Model().SetPictures(PictureOf);
    ReferenceTreeView view;
    view.SetTree(&tree.Model());
    view.resize(400, 800);
    view.show();
    tree.Load(path);
    view.ExpandNode(1);
    QCoreApplication::processEvents();
    const int rows = tree.Nodes().Count();

    double longest = 0;
    const auto step = [&](const char* what, const std::function<void()>& work) {
        const double time = Milliseconds([&] {
            work();
            QCoreApplication::processEvents();
            view.viewport()->repaint();
        });
        std::printf("  %-30s %.1f ms\n", what, time);
        longest = std::max(longest, time);
    };
    step("expand all", [&] { view.expandAll(); });
    step("scroll to the end", [&] { view.verticalScrollBar()->setValue(1 << 30); });
    step("scroll to the middle",
         [&] { view.verticalScrollBar()->setValue(view.verticalScrollBar()->maximum() / 2); });
    step("scroll a page",
         [&] { view.verticalScrollBar()->triggerAction(QScrollBar::SliderPageStepAdd); });
    step("collapse one",
         [&] { view.collapse(tree.Model().IndexOf(tree.Nodes().At(1).children[7])); });
    step("expand one", [&] { view.expand(tree.Model().IndexOf(tree.Nodes().At(1).children[7])); });
    Keep(bench::PrintRatio("longest pause with 100,000 rows / 100 ms", longest / 100, 1.0));
    const double perRow = (ResidentBytes() - before) / rows;
    std::printf("%d rows: %.0f bytes a row, with the view\n", rows, perRow);
    Keep(bench::PrintRatio("memory of a row / 1.5 KB", perRow / 1536, 1.0));
}

}  // namespace

int main(int argc, char* argv[]) {
    const QApplication application(argc, argv);
    const auto library = std::make_unique<docmodel::Access>();
    gSeams.documents = library.get();
    LoadResources();
    const QTemporaryDir folder;
    ReadsAndGrowth(folder);
    LargeTreeInAView(folder);
    return gKept ? 0 : 1;
}
