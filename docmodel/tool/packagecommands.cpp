// The commands on the files of documents: reading them whole, and taking dead space out.

#include "app/exitcodes.h"
#include "docmodel/documentcontent.h"
#include "docmodel/package.h"
#include "docmodel/tool/command.h"

namespace docmodel::tool {

using namespace docbench;

namespace {

const QList<Position> kFiles = {{QStringLiteral("FILE..."), QStringLiteral("Documents.")}};

// Runs `work` on each document. A failure is told and the next one has its turn; the exit code is
// that of the worst.
template <typename Work>
int ForEachDocument(const QStringList& paths, Work work) {
    int result = kExitDone;
    for (const QString& path : paths) {
        try {
            RequireDocument(path);
            work(path);
        } catch (const OpenError& error) {
            Err() << error.Description() << '\n';
            result = kExitNoDocument;
        } catch (const DocumentError& error) {
            Err() << error.Description() << '\n';
            result = std::max(result, kExitPartly);
        }
    }
    return result;
}

// Reads everything that the library can read of a document. Raises DocumentError.
void Check(const QString& path) {
    const Package package = Package::Open(path);
    package.CheckParts();
    if (const std::optional<DocumentPart> tables = ReadTables(package)) {
        tables->Components();
        tables->Externals();
        tables->Configurations();
    }
    ReadCore(package);
    ReadCustom(package);
    Out() << QStringLiteral("%1: sound, %2 parts, %3 bytes, %4 of former states\n")
                 .arg(path)
                 .arg(package.PartNames().size())
                 .arg(package.FileSize())
                 .arg(package.DeadBytes());
}

}  // namespace

int RunCheck(const QStringList& arguments) {
    Arguments given(QStringLiteral("check"),
                    QStringLiteral("Reads documents whole and tells what is damaged."), kFiles);
    return given.Read(arguments) ? ForEachDocument(given.All(), Check) : kExitDone;
}

int RunCompact(const QStringList& arguments) {
    Arguments given(QStringLiteral("compact"),
                    QStringLiteral("Rewrites documents without the space that former states of "
                                   "them take."),
                    kFiles);
    if (!given.Read(arguments))
        return kExitDone;
    return ForEachDocument(given.All(), [](const QString& path) {
        const qint64 before = Package::Open(path).FileSize();
        PackageWriter::Compact(path);
        const qint64 after = Package::Open(path).FileSize();
        Out() << QStringLiteral("%1: %2 bytes less\n").arg(path).arg(before - after);
    });
}

}  // namespace docmodel::tool
