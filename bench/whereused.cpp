// Where-used searches of a whole library: the first one and the next ones, against what a user
// would do instead (a script that looks into each document, a search tool that reads archives), and
// against merely listing the files.
//
//   bench-whereused [DOCUMENTS]      20,000 by default

#include <dirent.h>
#include <fcntl.h>
#include <sys/resource.h>
#include <sys/stat.h>
#include <unistd.h>

#include <QApplication>
#include <QDir>
#include <QLineEdit>
#include <QProcess>
#include <QSet>
#include <QTemporaryDir>
#include <QThread>
#include <cstdio>

#include "bench/ratios.h"
#include "bench/timing.h"
#include "docmodel/access.h"
#include "docmodel/builder.h"
#include "docmodel/referenceindex.h"
#include "panes/celllistview.h"
#include "services/language.h"
#include "services/seams.h"
#include "whereused/whereused.h"

using namespace docbench;
using bench::Best;

namespace {

constexpr int kUsualDocuments = 20'000;
constexpr int kRounds = 9;
constexpr int kSlowRounds = 2;  // of what takes seconds
constexpr char kTarget[] = "part000040";

bool gKept = true;

void Compare(const char* label, double what, double against, double limit) {
    gKept &= bench::PrintRatio(label, what / against, limit);
}

struct Found {
    qint64 rows = 0;
    QSet<QString> documents;
    SearchCounts counts;
};

void Walk(FolderSearcher& searcher, const QString& folder, Found& found) {
    ReferenceQuery query;
    query.pattern = folder + QStringLiteral("/*.*");
    query.baseName = QLatin1String(kTarget);
    query.extension = QStringLiteral("*");
    const int count = searcher.FindReferences(query);
    found.rows += count;
    for (int i = 0; i < count; ++i)
        found.documents.insert(searcher.GetResult(i).document);
    QStringList subfolders;
    for (int i = 0; i < searcher.GetSubfolderCount(); ++i)
        subfolders.append(searcher.GetSubfolder(i));
    for (const QString& subfolder : subfolders)
        Walk(searcher, subfolder, found);
}

Found Search(const QString& folder) {
    const auto searcher = docmodel::Access().MakeFolderSearcher();
    Found found;
    Walk(*searcher, folder, found);
    found.counts = searcher->GetSearchCounts();
    return found;
}

// Readdir and stat of every file: what nobody who looks at the files can do without.
qint64 BareWalk(int parent, const char* name) {
    DIR* folder = fdopendir(openat(parent, name, O_RDONLY | O_DIRECTORY | O_CLOEXEC));
    if (!folder)
        return 0;
    qint64 bytes = 0;
    while (const dirent* entry = readdir(folder)) {
        if (entry->d_name[0] == '.')
            continue;
        struct stat status;
        if (entry->d_type == DT_DIR)
            bytes += BareWalk(dirfd(folder), entry->d_name);
        else if (fstatat(dirfd(folder), entry->d_name, &status, 0) == 0)
            bytes += status.st_size;
    }
    closedir(folder);
    return bytes;
}

constexpr char kScript[] = R"(
import os, sys, zipfile
target = sys.argv[2].encode()
found = 0
for folder, _, files in os.walk(sys.argv[1]):
    for name in files:
        with zipfile.ZipFile(os.path.join(folder, name)) as package:
            if target in package.read("docmodel/document.xml").lower():
                found += 1
print(found)
)";

// The output of a program, whose exit code is not looked at.
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
    // What was written within the clock's grain would not be remembered.
    constexpr unsigned kPastTheGrain = 3;
    QThread::sleep(kPastTheGrain);
}

void AgainstOthers(const QString& library) {
    auto& index = docmodel::GlobalIndexSettings();
    const QByteArray folder = QFile::encodeName(library);
    QByteArray scriptFound;
    QByteArray toolFound;
    // All run with the files in memory; the first to run would have to fetch them.
    BareWalk(AT_FDCWD, folder.constData());
    const QStringList toolArguments = {"-z", "-r", "-l", "-F", QLatin1String(kTarget), library};
    Run("ugrep", toolArguments);

    const double script = Best(kSlowRounds, [&] {
        scriptFound = Run("python3", {"-c", QLatin1String(kScript), library, kTarget});
    });
    const double tool = Best(kSlowRounds, [&] { toolFound = Run("ugrep", toolArguments); });
    const double bare = Best(kRounds, [&] { BareWalk(AT_FDCWD, folder.constData()); });
    Found found;
    index.isOn = false;
    const double without = Best(kRounds, [&] { found = Search(library); });
    const Found reference = found;
    index.isOn = true;
    const double first = Best(kRounds, [&] {
        QFile::remove(index.file);
        found = Search(library);
    });
    const double next = Best(kRounds, [&] { found = Search(library); });

    std::printf("%d documents, %d unread, %lld rows in %lld documents\n", found.counts.documents,
                found.counts.unread, found.rows, qint64(found.documents.size()));
    std::printf("  script %.0f ms, ugrep %.0f ms, readdir and stat %.1f ms\n", script, tool, bare);
    std::printf("  without index %.1f ms, first %.1f ms, next %.1f ms\n", without, first, next);
    const bool same = found.rows == reference.rows && found.documents == reference.documents &&
                      scriptFound.toLongLong() == found.documents.size() &&
                      toolFound.count('\n') + 1 == found.documents.size();
    std::printf("  all found the same documents: %s\n", same ? "yes" : "NO");
    gKept &= same;
    constexpr double kFirst = 1.0 / 5;
    Compare("search without index / script", without, script, kFirst);
    Compare("search without index / ugrep -z", without, tool, kFirst);
    Compare("first search, filling the index / script", first, script, kFirst);
    Compare("first search, filling the index / ugrep -z", first, tool, kFirst);
    Compare("next search / script", next, script, 1.0 / 20);
    Compare("next search / readdir and stat", next, bare, 3);
}

// Documents that all refer to the target, `rows` rows in all.
void MakeUsers(const QString& folder, int rows, int rowsADocument = 20) {
    QDir().mkpath(folder);
    for (int i = 0; i < rows / rowsADocument; ++i) {
        auto document = docmodel::DocumentBuilder::New(
            folder + QStringLiteral("/user%1.tfmasm").arg(i, 5, 10, QLatin1Char('0')));
        for (int row = 0; row < rowsADocument; ++row)
            document.AddComponent(folder + u'/' + QLatin1String(kTarget) +
                                  QStringLiteral(".tfmprt"));
        document.Save();
    }
}

// The pane's own share: what it does with each row that is found.
double SearchInPane(const QString& folder, int rows) {
    whereUsed pane;
    pane.resize(800, 600);
    pane.show();
    pane.findChild<QLineEdit*>("wuName")->setText(QLatin1String(kTarget));
    pane.findChild<QLineEdit*>("wuLookin")->setText(folder);
    const double time = Best(kRounds, [&] { pane.Findnow(); });
    const int found = pane.findChild<CellListView*>("whereList")->List().Count();
    if (found != rows) {
        std::printf("%d rows in the pane instead of %d\n", found, rows);
        gKept = false;
    }
    return time;
}

void Growth(const QString& folder, const QString& library, int documents) {
    docmodel::GlobalIndexSettings().isOn = false;
    constexpr int kManyRows = 40'000;
    MakeUsers(folder + QStringLiteral("/few"), kManyRows / 4);
    MakeUsers(folder + QStringLiteral("/many"), kManyRows);
    const double few = Best(kRounds, [&] { Search(folder + QStringLiteral("/few")); });
    const double many = Best(kRounds, [&] { Search(folder + QStringLiteral("/many")); });
    std::printf("10,000 rows %.1f ms, 40,000 rows %.1f ms\n", few, many);
    constexpr double kLinear = 1.5;  // what grows with the square would be 4
    Compare("time for 4 times the rows / 4 times the time", many, 4 * few, kLinear);

    constexpr int kManyUsers = 10'000;
    MakeUsers(folder + QStringLiteral("/few users"), kManyUsers / 4, 1);
    MakeUsers(folder + QStringLiteral("/many users"), kManyUsers, 1);
    const double fewUsers = SearchInPane(folder + QStringLiteral("/few users"), kManyUsers / 4);
    const double manyUsers = SearchInPane(folder + QStringLiteral("/many users"), kManyUsers);
    std::printf("in the pane: 2,500 rows %.1f ms, 10,000 rows %.1f ms\n", fewUsers, manyUsers);
    Compare("time for 4 times the rows in the pane / 4 times the time", manyUsers, 4 * fewUsers,
            kLinear);

    const QString quarter = folder + QStringLiteral("/quarter");
    MakeLibrary(quarter, documents / 4);
    const double part = Best(kRounds, [&] { Search(quarter); });
    const double whole = Best(kRounds, [&] { Search(library); });
    Compare("time for 4 times the documents / 4 times the time", whole, 4 * part, kLinear);
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
    MakeLibrary(library, documents);
    AgainstOthers(library);

    rusage usage;
    getrusage(RUSAGE_SELF, &usage);
    std::printf("  index %.1f MB\n",
                double(QFileInfo(docmodel::GlobalIndexSettings().file).size()) / 1e6);
    Compare("peak memory / 300 MB", double(usage.ru_maxrss) / 1024, 300, 1);
    Growth(folder.path(), library, documents);
    return gKept ? 0 : 1;
}
