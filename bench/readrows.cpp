// Reading all reference rows of a document, against a bare loop of open, fstat, two preads and
// close over the same files.

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include <QCoreApplication>
#include <QFile>
#include <memory>

#include "bench/documents.h"
#include "bench/ratios.h"
#include "docmodel/access.h"

namespace {

constexpr int kDocuments = 200;
constexpr int kRows = 10;
constexpr qint64 kModelBytes = 200 * 1024;

QStringList gPaths;
QList<QByteArray> gNativePaths;

void BareRead(benchmark::State& state) {
    char buffer[4096];
    qsizetype next = 0;
    for (auto _ : state) {
        const int file = open(gNativePaths[next++ % kDocuments].constData(), O_RDONLY | O_CLOEXEC);
        struct stat status;
        if (file < 0 || fstat(file, &status) != 0)
            return state.SkipWithError("open");
        const off_t tail = status.st_size - off_t(sizeof buffer);
        benchmark::DoNotOptimize(pread(file, buffer, sizeof buffer, tail));
        benchmark::DoNotOptimize(pread(file, buffer, sizeof buffer, tail - off_t(sizeof buffer)));
        close(file);
    }
}

void ReadRows(benchmark::State& state) {
    const auto library = std::make_unique<docmodel::Access>();
    const QString noWebFolder;
    qsizetype next = 0;
    for (auto _ : state) {
        const auto file = library->MakeDocumentFile();
        file->Open(gPaths[next++ % kDocuments]);
        const int count = file->GetComponentCount();
        if (count != kRows)
            return state.SkipWithError("rows");
        for (int i = 0; i < count; ++i)
            benchmark::DoNotOptimize(file->GetComponent(i, noWebFolder));
        benchmark::DoNotOptimize(file->GetExternalReferenceCount());
        benchmark::DoNotOptimize(file->GetReferencesLocked());
    }
}

}  // namespace

int main(int argc, char* argv[]) {
    const QCoreApplication application(argc, argv);
    const QTemporaryDir folder;
    gPaths = docbench::bench::MakeDocuments(folder, kDocuments, kRows, kModelBytes);
    for (const QString& path : gPaths)
        gNativePaths.append(QFile::encodeName(path));
    benchmark::RegisterBenchmark("bare_open_fstat_2_preads_close", BareRead);
    benchmark::RegisterBenchmark("read_all_reference_rows", ReadRows);
    return docbench::bench::RunRatios(
        argc, argv, {{"read_all_reference_rows", "bare_open_fstat_2_preads_close", 3.0}});
}
