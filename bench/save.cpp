// Saving one changed reference of a small and of a large document, against a bare append of 4 KB
// with fsync.

#include <fcntl.h>
#include <unistd.h>

#include <QCoreApplication>
#include <QFile>
#include <QFileInfo>
#include <memory>

#include "bench/documents.h"
#include "bench/ratios.h"
#include "docmodel/access.h"

namespace {

QString gSmall;
QString gLarge;
QByteArray gPlain;

void BareAppend(benchmark::State& state) {
    const QByteArray block(4096, 'x');
    for (auto _ : state) {
        const int file = open(gPlain.constData(), O_WRONLY | O_APPEND | O_CREAT | O_CLOEXEC, 0644);
        if (file < 0 || write(file, block.constData(), size_t(block.size())) != block.size() ||
            fsync(file) != 0)
            return state.SkipWithError("append");
        close(file);
    }
}

void SaveReference(benchmark::State& state, const QString& path) {
    const auto library = std::make_unique<docmodel::Access>();
    int turn = 0;
    for (auto _ : state) {
        const auto file = library->MakeDocumentFile();
        file->Open(path);
        file->SetComponentPath(
            0, QFileInfo(path).path() + QStringLiteral("/other%1.tfmprt").arg(++turn % 10));
        file->Save();
    }
}

}  // namespace

int main(int argc, char* argv[]) {
    const QCoreApplication application(argc, argv);
    // Not the temporary folder, which may lie in memory: a save is about reaching the disk.
    const QTemporaryDir smallFolder(QDir::currentPath() + QStringLiteral("/bench-XXXXXX"));
    const QTemporaryDir largeFolder(QDir::currentPath() + QStringLiteral("/bench-XXXXXX"));
    gSmall = docbench::bench::MakeDocuments(smallFolder, 1, 10, 100 * 1024).first();
    gLarge = docbench::bench::MakeDocuments(largeFolder, 1, 10, 200 * 1024 * 1024).first();
    gPlain = QFile::encodeName(smallFolder.filePath(QStringLiteral("plain")));
    std::printf("documents: %lld and %lld bytes\n",
                static_cast<long long>(QFileInfo(gSmall).size()),
                static_cast<long long>(QFileInfo(gLarge).size()));
    benchmark::RegisterBenchmark("bare_append_4K_fsync", BareAppend);
    benchmark::RegisterBenchmark("save_100_KB_document",
                                 [](benchmark::State& state) { SaveReference(state, gSmall); });
    benchmark::RegisterBenchmark("save_200_MB_document",
                                 [](benchmark::State& state) { SaveReference(state, gLarge); });
    return docbench::bench::RunRatios(argc, argv,
                                      {{"save_200_MB_document", "save_100_KB_document", 1.5},
                                       {"save_100_KB_document", "bare_append_4K_fsync", 2.5},
                                       {"save_200_MB_document", "bare_append_4K_fsync", 2.5}});
}
