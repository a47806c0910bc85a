#include "services/scratch.h"

#include <QDir>
#include <memory>

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

}  // namespace

void PrepareScratch() {
    std::unique_ptr<ProcessFolder>& folder = OwnFolder();
    if (!folder)
        folder = std::make_unique<ProcessFolder>(QDir::tempPath());
    gTempFolder = folder->Path() + u'/';
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
