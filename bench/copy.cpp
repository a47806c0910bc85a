// Copying an assembly of 2,000 documents, 2 GB in all, with its references, against a copy of the
// same files by "cp" and a "sync"; and the list of an assembly with many rows, against reading each
// of its documents once.
//
//   bench-copy [MEGABYTES]      2,000 by default

#include <unistd.h>

#include <QCoreApplication>
#include <QDir>
#include <QElapsedTimer>
#include <QProcess>
#include <QTemporaryDir>
#include <algorithm>
#include <cstdio>
#include <functional>

#include "bench/documents.h"
#include "bench/ratios.h"
#include "copy/copylist.h"
#include "copy/copyrun.h"
#include "copy/copywalk.h"
#include "copy/parentlist.h"
#include "docmodel/access.h"
#include "docmodel/builder.h"
#include "services/documentlibrary.h"
#include "services/language.h"
#include "services/seams.h"
#include "tests/support/failingaccess.h"

using namespace docbench;

namespace {

constexpr int kDocuments = 2000;
constexpr int kUsualMegabytes = 2000;
constexpr int kGroups = 180;
constexpr int kRounds = 5;
constexpr int kRows = 20'000;

bool gKept = true;

void Compare(const char* label, double what, double against, double limit) {
    gKept &= bench::PrintRatio(label, what / against, limit);
}

double Milliseconds(const std::function<void()>& work) {
    QElapsedTimer timer;
    timer.start();
    work();
    return double(timer.nsecsElapsed()) / 1e6;
}

void Require(bool holds, const char* what) {
    if (holds)
        return;
    std::printf("%s: NO\n", what);
    gKept = false;
}

QString Name(const QTemporaryDir& folder, const char* kind, int number) {
    return folder.filePath(QStringLiteral("source/%1%2").arg(QLatin1String(kind)).arg(number));
}

// One assembly of groups, whose parts are each used about once; all with a model.
QString MakeProject(const QTemporaryDir& folder, qint64 modelBytes) {
    QDir().mkpath(folder.filePath(QStringLiteral("source")));
    const int parts = kDocuments - kGroups - 1;
    const auto make = [&](const QString& path, const QStringList& references) {
        auto document = docmodel::DocumentBuilder::New(path);
        for (const QString& reference : references)
            document.AddComponent(reference);
        document.SetModel(modelBytes, quint64(qHash(path)));
        document.Save();
        return path;
    };
    QList<QStringList> ofGroups(kGroups);
    for (int i = 0; i < parts; ++i)
        ofGroups[i % kGroups].append(make(Name(folder, "part", i) + ".tfmprt", {}));
    QStringList groups;
    for (int i = 0; i < kGroups; ++i)
        groups.append(make(Name(folder, "group", i) + ".tfmasm", ofGroups[i]));
    return make(folder.filePath(QStringLiteral("source/top.tfmasm")), groups);
}

CopyResult CopyProject(const QString& top, const QString& target) {
    CellList copies;
    CellList parents;
    PrepareCopyList(copies);
    PrepareParentList(parents);
    const Affixes affixes{.prefix = QStringLiteral("n_"), .suffix = {}};
    ListReferences({.document = top, .targetFolder = target, .affixes = affixes}, copies);
    const QHash<QString, QString> replaced;
    const CopyPlan plan{.source = top,
                        .target = target + QStringLiteral("/n_top.tfmasm"),
                        .copies = copies,
                        .parents = parents,
                        .replacedFiles = replaced};
    return RunCopy(plan, {.status = [](const QString&) {},
                          .step = [](int, int, const QString&) {},
                          .rowDone = [](CopyProgress::List, int) {},
                          .rowInQuestion = [](CopyProgress::List, int) {},
                          .yield = [] { return true; }});
}

bool LeadsToCopiesAlone(const QString& document, const QString& folder) {
    const auto file = Documents().MakeDocumentFile();
    file->Open(document);
    for (int i = 0; i < file->GetComponentCount(); ++i) {
        if (!file->GetComponent(i, {}).path.startsWith(folder + QStringLiteral("/n_")))
            return false;
    }
    return true;
}

void AgainstCp(const QTemporaryDir& folder, qint64 modelBytes) {
    const QString top = MakeProject(folder, modelBytes);
    const QString target = folder.filePath(QStringLiteral("target"));
    // Each round begins with an empty folder and nothing left to write.
    const auto clean = [&] {
        QDir(target).removeRecursively();
        QDir().mkpath(target);
        sync();
    };
    double copy = 1e9;
    double cp = 1e9;
    for (int round = 0; round < kRounds; ++round) {
        clean();
        CopyResult result;
        copy = std::min(copy, Milliseconds([&] {
                            result = CopyProject(top, target);
                            sync();
                        }));
        Require(result.copied == kDocuments - 1 && result.failed == 0, "all were copied");
        Require(LeadsToCopiesAlone(target + QStringLiteral("/n_top.tfmasm"), target) &&
                    LeadsToCopiesAlone(target + QStringLiteral("/n_group7.tfmasm"), target),
                "the copies refer to copies");
        clean();
        cp = std::min(cp, Milliseconds([&] {
                          QProcess::execute(QStringLiteral("cp"),
                                            {QStringLiteral("-r"), QStringLiteral("--reflink=auto"),
                                             folder.filePath(QStringLiteral("source")), target});
                          sync();
                      }));
    }
    clean();
    std::printf("%d documents, %.0f MB: copied %.0f ms, cp and sync %.0f ms\n", kDocuments,
                double(modelBytes) * kDocuments / 1e6, copy, cp);
    constexpr double kLimit = 1.3;
    Compare("copy with rewritten references / cp --reflink=auto and sync", copy, cp, kLimit);
}

void ReadReferences(const QString& path) {
    const auto file = Documents().MakeDocumentFile();
    file->Open(path);
    for (int i = 0; i < file->GetComponentCount(); ++i)
        file->GetComponent(i, {});
}

void ListOfManyRows(const QTemporaryDir& folder) {
    const QString top = bench::MakeAssembly(folder, QStringLiteral("many"), kRows, kDocuments);
    QHash<QString, int> opened;
    CellList list;
    PrepareCopyList(list);
    const auto build = [&] { ListReferences({.document = top, .targetFolder = top}, list); };
    {
        const FailingAccess counting([&](const char* operation, const QString& path) {
            opened[path] += QByteArray(operation) == "Open";
        });
        build();
    }
    const bool once =
        std::all_of(opened.cbegin(), opened.cend(), [](int times) { return times == 1; });
    std::printf("%d rows over %d documents, each read once: %s\n", list.Count(), int(opened.size()),
                once ? "yes" : "NO");
    gKept &= once && list.Count() >= kRows * 9 / 10;
    double built = 1e9;
    double read = 1e9;
    for (int round = 0; round < kRounds; ++round) {
        built = std::min(built, Milliseconds(build));
        read = std::min(read, Milliseconds([&] {
                            for (auto it = opened.cbegin(); it != opened.cend(); ++it)
                                ReadReferences(it.key());
                        }));
    }
    std::printf("  list %.1f ms, reading the documents %.1f ms\n", built, read);
    constexpr double kLimit = 3;
    Compare("list / reading each of its documents once", built, read, kLimit);
}

}  // namespace

int main(int argc, char* argv[]) {
    const QCoreApplication application(argc, argv);
    docmodel::Access library;
    gSeams.documents = &library;
    LoadResources();
    const QTemporaryDir folder;
    const int megabytes = argc > 1 ? QByteArray(argv[1]).toInt() : kUsualMegabytes;
    ListOfManyRows(folder);
    AgainstCp(folder, qint64(megabytes) * 1'000'000 / kDocuments);
    return gKept ? 0 : 1;
}
