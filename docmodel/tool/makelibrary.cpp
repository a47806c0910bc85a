// The command that fills a folder with documents for benchmarks: always the same ones for the same
// seed.

#include <unistd.h>

#include <QDir>
#include <limits>

#include "app/exitcodes.h"
#include "docmodel/builder.h"
#include "docmodel/fileops.h"
#include "docmodel/tool/command.h"

namespace docmodel::tool {

using docbench::kExitDone;

namespace {

constexpr int kDocumentsAFolder = 200;
// Of so many documents the last is a drawing, and of the rest every fourth an assembly.
constexpr int kDrawingEvery = 20;
constexpr int kAssemblyEvery = 4;
constexpr int kDerivedEvery = 11;  // of the parts, those derived from an earlier one

struct LibraryPlan {
    QString folder;
    int documents = 0;
    int references = 0;
    qint64 payload = 0;
    quint64 seed = 0;
};

// Syncing each of some ten thousand files would take the time; one sync at the end does as well for
// files that nobody has yet.
class UnsyncedFileOps : public FileOps {
public:
    UnsyncedFileOps() : former_(gFileOps) { gFileOps = this; }
    ~UnsyncedFileOps() override {
        gFileOps = former_;
        ::sync();
    }
    int Sync(int) override { return 0; }
    int SyncData(int) override { return 0; }

private:
    FileOps* former_;
};

bool IsDrawing(int index) {
    return index % kDrawingEvery == kDrawingEvery - 1;
}

bool IsAssembly(int index) {
    return !IsDrawing(index) && index % kAssemblyEvery == kAssemblyEvery - 1;
}

QString PathOf(const LibraryPlan& plan, int index) {
    const char* kind = IsDrawing(index) ? "drawing" : IsAssembly(index) ? "assembly" : "part";
    const char* extension = IsDrawing(index) ? "tfmdrw" : IsAssembly(index) ? "tfmasm" : "tfmprt";
    return QStringLiteral("%1/%2/%3%4.%5")
        .arg(plan.folder)
        .arg(index / kDocumentsAFolder, 4, 10, QLatin1Char('0'))
        .arg(QLatin1String(kind))
        .arg(index, 6, 10, QLatin1Char('0'))
        .arg(QLatin1String(extension));
}

// A number below `bound` that depends on nothing but the seed and the two places.
int Pick(const LibraryPlan& plan, int index, int row, int bound) {
    quint64 mixed =
        plan.seed + quint64(index) * 0x9E3779B97F4A7C15u + quint64(row) * 0xD1B54A32D192ED03u;
    mixed = (mixed ^ (mixed >> 30)) * 0xBF58476D1CE4E5B9u;
    mixed = (mixed ^ (mixed >> 27)) * 0x94D049BB133111EBu;
    return int((mixed ^ (mixed >> 31)) % quint64(bound));
}

// An earlier document that is no drawing, so that nothing ever refers to itself in a circle.
int EarlierModel(const LibraryPlan& plan, int index, int row) {
    const int picked = Pick(plan, index, row, index);
    return IsDrawing(picked) ? picked - 1 : picked;
}

void AddReferences(DocumentBuilder& document, const LibraryPlan& plan, int index) {
    constexpr int kMaxCount = 8;
    if (index == 0)
        return;
    if (IsDrawing(index)) {
        document.AddComponent(PathOf(plan, EarlierModel(plan, index, 0)));
    } else if (IsAssembly(index)) {
        for (int row = 0; row < plan.references; ++row)
            document.AddComponent(PathOf(plan, EarlierModel(plan, index, row)),
                                  1 + Pick(plan, index, -1 - row, kMaxCount));
    } else if (index % kDerivedEvery == 0) {
        document.AddExternal(PathOf(plan, EarlierModel(plan, index, 0)), QStringLiteral("derived"));
    }
}

void MakeDocument(const LibraryPlan& plan, int index) {
    const QDateTime time(QDate(2004, 1, 1), QTime(8, 0), Qt::UTC);
    DocumentBuilder document = DocumentBuilder::New(PathOf(plan, index));
    document.SetTitle(QStringLiteral("Document %1").arg(index));
    document.SetAuthor(QStringLiteral("make-library"));
    document.SetCreated(time.addSecs(index));
    document.SetLastSaved(time.addSecs(index), QStringLiteral("make-library"));
    document.SetCustomProperty(QStringLiteral("Number"), double(index));
    AddReferences(document, plan, index);
    if (plan.payload > 0)
        document.SetModel(plan.payload, plan.seed + quint64(index));
    document.Save();
}

LibraryPlan ReadPlan(const Arguments& given) {
    constexpr int kMaxDocuments = 1'000'000;
    constexpr int kMaxReferences = 10'000;
    constexpr qint64 kMaxPayload = 1 << 30;
    LibraryPlan plan;
    plan.folder = QDir::cleanPath(QDir().absoluteFilePath(given.At(0)));
    plan.documents = int(given.Number(QStringLiteral("documents"), 1, kMaxDocuments));
    plan.references = int(given.Number(QStringLiteral("references"), 0, kMaxReferences));
    plan.payload = given.Number(QStringLiteral("payload"), 0, kMaxPayload);
    plan.seed =
        quint64(given.Number(QStringLiteral("seed"), 0, std::numeric_limits<qint64>::max()));
    return plan;
}

}  // namespace

int RunMakeLibrary(const QStringList& arguments) {
    Arguments given(QStringLiteral("make-library"),
                    QStringLiteral("Fills a folder with parts, assemblies and drawings that refer "
                                   "to each other without circles, 200 to a subfolder."),
                    {{QStringLiteral("FOLDER"), QStringLiteral("Made if it is not there.")}});
    given.Parser().addOptions(
        {{QStringLiteral("documents"), QStringLiteral("How many; 1000 by default."),
          QStringLiteral("N"), QStringLiteral("1000")},
         {QStringLiteral("references"), QStringLiteral("Rows of each assembly; 10 by default."),
          QStringLiteral("K"), QStringLiteral("10")},
         {QStringLiteral("payload"),
          QStringLiteral("Bytes of model in each document; 20000 by default."),
          QStringLiteral("BYTES"), QStringLiteral("20000")},
         {QStringLiteral("seed"), QStringLiteral("Another seed gives another library."),
          QStringLiteral("S"), QStringLiteral("1")}});
    if (!given.Read(arguments))
        return kExitDone;
    const LibraryPlan plan = ReadPlan(given);
    const UnsyncedFileOps unsynced;
    for (int index = 0; index < plan.documents; ++index) {
        const QString folder = PathOf(plan, index).section(u'/', 0, -2);
        if (index % kDocumentsAFolder == 0 && !QDir().mkpath(folder))
            throw DocumentError(QStringLiteral("The folder %1 can't be made. Check the path and "
                                               "your rights there.")
                                    .arg(folder));
        MakeDocument(plan, index);
    }
    Out() << QStringLiteral("%1 documents in %2\n").arg(plan.documents).arg(plan.folder);
    return kExitDone;
}

}  // namespace docmodel::tool
