// Searches of a whole library by properties, through the pane as the user starts them: the first
// one and the next ones, against what a user would do instead (a script that reads the property
// parts), and how the cost grows with documents and with hits.
//
//   bench-propertysearch [DOCUMENTS]      20,000 by default

#include <sys/resource.h>

#include <QApplication>
#include <QCheckBox>
#include <QDir>
#include <QLineEdit>
#include <QProcess>
#include <QPushButton>
#include <QTemporaryDir>
#include <QThread>
#include <cstdio>

#include "bench/ratios.h"
#include "bench/timing.h"
#include "docmodel/access.h"
#include "docmodel/referenceindex.h"
#include "panes/celllistview.h"
#include "search/searchrules.h"
#include "search/srccontrol.h"
#include "services/language.h"
#include "services/seams.h"
#include "services/texts.h"

using namespace docbench;
using bench::Best;

namespace {

constexpr int kUsualDocuments = 20'000;
constexpr int kRounds = 7;
constexpr int kSlowRounds = 2;  // of what takes seconds

bool gKept = true;

void Compare(const char* label, double what, double against, double limit) {
    gKept &= bench::PrintRatio(label, what / against, limit);
}

// The pane on screen, with rules on title and number, which the first `hits` documents satisfy.
class Searcher {
public:
    explicit Searcher(int hits) {
        pane_.resize(800, 600);
        pane_.show();
        CellList& rules = pane_.findChild<CellListView*>("searchlist")->List();
        rules.Append(MakeRule({}, Tr(Text::Title), Tr(Text::Contains), "DOCUMENT", kContains));
        rules.Append(MakeRule({}, "Number", "<", QString::number(hits), kLess));
        rules.Append(MakeRule({}, Tr(Text::Created), Tr(Text::Contains), "20", kContains));
        pane_.findChild<QCheckBox*>("srcRecursive")->setChecked(true);
    }
    int Search(const QString& folder) {
        pane_.findChild<QLineEdit*>("srcLookin")->setText(folder);
        pane_.findChild<QPushButton*>("srcStart")->click();
        return pane_.findChild<CellListView*>("srcResultlist")->List().Count();
    }

private:
    srcControl pane_;
};

// What the rules of a Searcher say.
constexpr char kScript[] = R"(
import os, sys, zipfile
from xml.etree import ElementTree
title = "{http://purl.org/dc/elements/1.1/}title"
created = "{http://purl.org/dc/terms/}created"
found = 0
for folder, _, files in os.walk(sys.argv[1]):
    for name in files:
        with zipfile.ZipFile(os.path.join(folder, name)) as package:
            core = ElementTree.fromstring(package.read("docProps/core.xml"))
            custom = ElementTree.fromstring(package.read("docProps/custom.xml"))
        named = {p.get("name"): p[0].text for p in custom}
        if ("document" in (core.findtext(title) or "").lower() and "20" in core.findtext(created)
                and float(named["Number"]) < float(sys.argv[2])):
            found += 1
print(found)
)";

QByteArray Run(const QString& program, const QStringList& arguments) {
    QProcess process;
    process.setProcessChannelMode(QProcess::ForwardedErrorChannel);
    process.start(program, arguments);
    if (!process.waitForFinished(-1)) {
        std::printf("%s can't be run\n", qPrintable(program));
        gKept = false;
    }
    return process.readAllStandardOutput().trimmed();
}

void MakeLibrary(const QString& folder, int documents) {
    Run(QCoreApplication::applicationDirPath() + QStringLiteral("/docmodel"),
        {QStringLiteral("make-library"), folder, QStringLiteral("--documents"),
         QString::number(documents), QStringLiteral("--payload"), QStringLiteral("4000")});
}

// What was written within the clock's grain would not be remembered.
void WaitPastTheGrain() {
    constexpr unsigned kPastTheGrain = 3;
    QThread::sleep(kPastTheGrain);
}

void AgainstOthers(const QString& library, int documents) {
    auto& index = docmodel::GlobalIndexSettings();
    const int hits = documents / 100;
    Searcher searcher(hits);
    QByteArray scriptFound;
    const auto runScript = [&] {
        scriptFound =
            Run("python3", {"-c", QLatin1String(kScript), library, QString::number(hits)});
    };
    runScript();  // all run with the files in memory; the first to run would have to fetch them
    const double script = Best(kSlowRounds, runScript);
    int found = 0;
    index.isOn = false;
    const double without = Best(kRounds, [&] { found = searcher.Search(library); });
    const int reference = found;
    index.isOn = true;
    const double first = Best(kRounds, [&] {
        QFile::remove(index.file);
        found = searcher.Search(library);
    });
    const double next = Best(kRounds, [&] { found = searcher.Search(library); });

    std::printf("%d documents found\n", found);
    std::printf("  script %.0f ms, without index %.1f ms, first %.1f ms, next %.1f ms\n", script,
                without, first, next);
    const bool same = found == reference && scriptFound.toInt() == found && found == hits;
    std::printf("  all found as many: %s\n", same ? "yes" : "NO");
    gKept &= same;
    constexpr double kFirst = 1.0 / 5;
    Compare("search without index / script", without, script, kFirst);
    Compare("first search, filling the index / script", first, script, kFirst);
    Compare("next search / script", next, script, 1.0 / 15);
}

void Growth(const QString& quarter, const QString& library, int documents) {
    Searcher few(documents / 400);
    Searcher all(documents);
    const auto measure = [](Searcher& searcher, const QString& folder) {
        searcher.Search(folder);
        return Best(kRounds, [&] { searcher.Search(folder); });
    };
    const auto measureFirst = [](Searcher& searcher, const QString& folder) {
        return Best(kRounds, [&] {
            QFile::remove(docmodel::GlobalIndexSettings().file);
            searcher.Search(folder);
        });
    };
    const double fewerFirst = measureFirst(few, quarter);
    const double moreFirst = measureFirst(few, library);
    const double fewer = measure(few, quarter);
    const double more = measure(few, library);
    const double fewerHits = measure(all, quarter);
    const double moreHits = measure(all, library);
    std::printf(
        "a quarter of the documents %.1f ms, all %.1f ms; each a hit %.1f ms and %.1f ms; "
        "first searches %.1f ms and %.1f ms\n",
        fewer, more, fewerHits, moreHits, fewerFirst, moreFirst);
    constexpr double kLinear = 1.5;  // what grows with the square would be 4
    Compare("time for 4 times the documents / 4 times the time", more, 4 * fewer, kLinear);
    Compare("first search for 4 times the documents / 4 times the time", moreFirst, 4 * fewerFirst,
            kLinear);
    Compare("time for 4 times the hits / 4 times the time", moreHits, 4 * fewerHits, kLinear);
}

}  // namespace

int main(int argc, char* argv[]) {
    const QApplication application(argc, argv);
    const QTemporaryDir folder;
    docmodel::GlobalIndexSettings().file = folder.filePath("cache/references.sqlite");
    docmodel::Access access;
    gSeams.documents = &access;
    LoadResources();
    const int documents = argc > 1 ? QByteArray(argv[1]).toInt() : kUsualDocuments;
    const QString library = folder.filePath("library");
    const QString quarter = folder.filePath("quarter");
    MakeLibrary(library, documents);
    MakeLibrary(quarter, documents / 4);
    WaitPastTheGrain();
    AgainstOthers(library, documents);

    rusage usage;
    getrusage(RUSAGE_SELF, &usage);
    std::printf("  index %.1f MB\n",
                double(QFileInfo(docmodel::GlobalIndexSettings().file).size()) / 1e6);
    Compare("peak memory / 300 MB", double(usage.ru_maxrss) / 1024, 300, 1);
    Growth(quarter, library, documents);
    return gKept ? 0 : 1;
}
