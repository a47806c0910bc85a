#include "services/scratch.h"

#include <QDebug>
#include <QDir>
#include <QUuid>
#include <memory>

#include "services/errorstate.h"
#include "services/processfolder.h"

namespace docbench {

QString gTempFolder;
QString gTempBitmap;

namespace {

constexpr char kLocalCopies[] = "tessaformadocbench";
constexpr char kPreviewBitmap[] = "TessaDocJunkTemp.bmp";

// Deleted with the process.
std::unique_ptr<ProcessFolder>& OwnFolder() {
    static std::unique_ptr<ProcessFolder> folder;
    return folder;
}

// Where the environment names a folder that is not there, the toolkit answers with the current one.
QString SystemTempFolder() {
    const QString folder = QDir::tempPath();
    return QDir::isAbsolutePath(folder) ? folder : QStringLiteral("/tmp");
}

// Where no folder can be made. Whoever writes there fails and says so; no one else can guess the
// name and put something there first.
QString PathOfNothing() {
    return SystemTempFolder() + QStringLiteral("/docbench-") +
           QUuid::createUuid().toString(QUuid::WithoutBraces);
}

}  // namespace

void PrepareScratch() {
    std::unique_ptr<ProcessFolder>& folder = OwnFolder();
    ErrorState state;
    if (!folder)
        state.Run([&] { folder = std::make_unique<ProcessFolder>(SystemTempFolder()); });
    if (state.Failed())
        qWarning().noquote() << state.Description();
    gTempFolder = (folder ? folder->Path() : PathOfNothing()) + u'/';
    gTempBitmap = gTempFolder + QLatin1String(kPreviewBitmap);
    DeleteStaleScratch();
}

void DeleteStaleScratch() {
    DeleteScratch();
    if (const std::unique_ptr<ProcessFolder>& folder = OwnFolder())
        folder->DeleteAbandoned();
}

void DeleteScratch() {
    if (!gTempFolder
             .isEmpty())  // never a folder of this name in whatever folder is the current one
        QDir(gTempFolder + QLatin1String(kLocalCopies)).removeRecursively();
}

}  // namespace docbench
