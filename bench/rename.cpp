// Renaming a part that many large documents use, against a bare loop that appends as many bytes to
// each of them and waits for the disk; and what the list costs as it grows.
//
//   bench-rename [HOLDERS]      2,000 by default, of 1 MB each

#include <fcntl.h>
#include <unistd.h>

#include <QCoreApplication>
#include <QDir>
#include <QFileInfo>
#include <QTemporaryDir>
#include <algorithm>
#include <cstdio>

#include "bench/ratios.h"
#include "bench/timing.h"
#include "cells/celllist.h"
#include "docmodel/access.h"
#include "docmodel/builder.h"
#include "docmodel/referenceindex.h"
#include "rename/renamechecks.h"
#include "rename/renamelist.h"
#include "rename/renamesearch.h"
#include "rename/renametransaction.h"
#include "services/language.h"
#include "services/seams.h"

using namespace docbench;
using bench::Best;
using bench::Milliseconds;
using docmodel::DocumentBuilder;

namespace {

constexpr int kUsualHolders = 2'000;
constexpr qint64 kModelBytes = 1'000'000;
constexpr int kRounds = 3;

bool gKept = true;

void Compare(const char* label, double what, double limit) {
    gKept &= bench::PrintRatio(label, what, limit);
}

// A part and the assemblies that hold it.
struct Project {
    Project(const QString& path, int count, qint64 modelBytes) : folder(path) {
        QDir().mkpath(folder);
        part = folder + QStringLiteral("/part0.tfmprt");
        DocumentBuilder::New(part).Save();
        for (int i = 0; i < count; ++i) {
            holders.append(folder +
                           QStringLiteral("/holder%1.tfmasm").arg(i, 5, 10, QLatin1Char('0')));
            DocumentBuilder document = DocumentBuilder::New(holders.last());
            document.AddComponent(part);
            if (modelBytes > 0)
                document.SetModel(modelBytes, quint64(i));
            document.Save();
        }
    }
    QString folder;
    QString part;
    QStringList holders;
};

void FillList(const Project& project, CellList& list) {
    PrepareRenameList(list);
    const RenameSearch search{.document = project.part,
                              .parent = {},
                              .kinds = {},
                              .status = [](const QString&) {},
                              .yield = [] {},
                              .cancelled = [] { return false; },
                              .progress = [](const SearchCounts&, int) {}};
    RowBatch rows = RenameRows(list);
    SearchHolders(search, project.folder, rows);
    rows.Flush();
}

// Renames the part again and again: the list stays good for the next time.
double RenameOnce(Project& project, CellList& list, int round) {
    const QString next = project.folder + QStringLiteral("/part%1.tfmprt").arg(round + 1);
    RenameResult result;
    const double time = Milliseconds([&] {
        result = RunRename(list, {.oldPath = project.part, .newPath = next, .parent = {}},
                           {.status = [](const QString&) {}, .holders = [](int, int) {}});
    });
    if (result.updated != project.holders.size()) {
        std::printf("only %d of %lld holders were updated\n", result.updated,
                    qint64(project.holders.size()));
        gKept = false;
    }
    project.part = next;
    return time;
}

void AppendToEach(const QStringList& files, qint64 bytes) {
    const QByteArray block(bytes, 'x');
    for (const QString& name : files) {
        const int file = open(QFile::encodeName(name).constData(), O_WRONLY | O_APPEND | O_CLOEXEC);
        if (file < 0 || write(file, block.constData(), size_t(bytes)) != bytes || fsync(file) != 0)
            std::printf("%s can't be appended to\n", qPrintable(name));
        close(file);
    }
}

qint64 MostGrowth(const QStringList& files, const QList<qint64>& sizes) {
    qint64 most = 0;
    for (int i = 0; i < files.size(); ++i)
        most = std::max(most, QFileInfo(files[i]).size() - sizes[i]);
    return most;
}

QList<qint64> Sizes(const QStringList& files) {
    QList<qint64> sizes;
    for (const QString& file : files)
        sizes.append(QFileInfo(file).size());
    return sizes;
}

void AgainstAppending(const QString& folder, int holders) {
    Project project(folder + QStringLiteral("/renamed"), holders, kModelBytes);
    const Project plain(folder + QStringLiteral("/appended"), holders, kModelBytes);
    CellList list;
    FillList(project, list);
    const QList<qint64> before = Sizes(project.holders);
    double renaming = RenameOnce(project, list, 0);
    const qint64 growth = MostGrowth(project.holders, before);
    double appending = Milliseconds([&] { AppendToEach(plain.holders, growth); });
    for (int round = 1; round < kRounds; ++round) {
        renaming = std::min(renaming, RenameOnce(project, list, round));
        appending = std::min(appending, Milliseconds([&] { AppendToEach(plain.holders, growth); }));
    }
    std::printf("%d holders of %lld bytes: renaming %.0f ms, appending %.0f ms, %lld bytes each\n",
                holders, before.first(), renaming, appending, growth);
    Compare("renaming / appending as much to each with fsync", renaming / appending, 2);
    Compare("bytes written per holder / 16 KB", double(growth) / (16 * 1024), 1);
}

// What a user does with the list: fills it, ticks every row, has it checked.
double UseList(const Project& project) {
    return Best(kRounds, [&] {
        CellList list;
        FillList(project, list);
        for (const bool ticked : {false, true}) {
            for (int row = 0; row < list.Count(); ++row)
                list.Change(row, [ticked](CellRow& changed) { changed.ticked = ticked; });
        }
        const RenameSubject subject{
            .fullName = project.part, .folder = project.folder + u'/', .ancestorChain = {}};
        CheckHolders(list, subject, QStringLiteral("new.tfmprt"), [](int) {});
    });
}

void Growth(const QString& folder, int holders) {
    const Project few(folder + QStringLiteral("/few"), holders, 0);
    const Project many(folder + QStringLiteral("/many"), 4 * holders, 0);
    const double once = UseList(few);
    const double more = UseList(many);
    std::printf("list of %d rows %.1f ms, of %d rows %.1f ms\n", holders, once, 4 * holders, more);
    constexpr double kLinear = 1.5;  // what grows with the square would be 4
    Compare("time for 4 times the rows / 4 times the time", more / (4 * once), kLinear);
}

}  // namespace

int main(int argc, char* argv[]) {
    const QCoreApplication application(argc, argv);
    // Not the temporary folder, which may lie in memory: a save is about reaching the disk.
    const QTemporaryDir folder(QDir::currentPath() + QStringLiteral("/bench-XXXXXX"));
    docmodel::GlobalIndexSettings().file = folder.filePath("cache/references.sqlite");
    docmodel::Access access;
    gSeams.documents = &access;
    LoadResources();
    const int holders = argc > 1 ? QByteArray(argv[1]).toInt() : kUsualHolders;
    AgainstAppending(folder.path(), holders);
    Growth(folder.path(), holders);
    return gKept ? 0 : 1;
}
