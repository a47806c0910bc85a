// Renames one document of a folder and rewrites every document below the folder that holds it: a
// demonstration of what the document library does, for a terminal. Exit codes as the program's.

#include <QCoreApplication>
#include <QDirIterator>
#include <QFileInfo>
#include <QTextStream>

#include "app/exitcodes.h"
#include "services/docaccess.h"
#include "services/documentlibrary.h"
#include "services/paths.h"

using namespace docbench;

namespace {

QTextStream& Out() {
    static QTextStream out(stdout);
    return out;
}

// Points every row of the holder that names `oldPath` to `newPath`; gives the number of such rows.
int Rewrite(DocumentAccess& library, const QString& holder, const QString& oldPath,
            const QString& newPath) {
    const auto file = library.MakeDocumentFile();
    file->Open(holder);
    int rewritten = 0;
    for (int i = 0; i < file->GetComponentCount(); ++i) {
        if (file->GetComponent(i, QString()).path != oldPath)
            continue;
        file->SetComponentPath(i, newPath);
        ++rewritten;
    }
    for (int i = 0; i < file->GetExternalReferenceCount(); ++i) {
        if (file->GetExternalReference(i, QString()).path != oldPath)
            continue;
        file->SetExternalReferencePath(i, newPath);
        ++rewritten;
    }
    if (rewritten > 0)
        file->Save();
    return rewritten;
}

QStringList DocumentsBelow(const QString& folder) {
    QStringList documents;
    QDirIterator files(folder, QDir::Files, QDirIterator::Subdirectories);
    while (files.hasNext()) {
        const QString path = files.next();
        if (DocTypeOf(path) != DocType::None)
            documents.append(path);
    }
    documents.sort();
    return documents;
}

int Rename(DocumentAccess& library, const QString& folder, const QString& oldPath,
           const QString& newName) {
    const QString newPath = FolderOf(oldPath) + newName;
    // The holders' rows are looked at by their paths, so they are read while the old file is there.
    const QStringList documents = DocumentsBelow(folder);
    if (QFileInfo::exists(newPath) || !QFile::copy(oldPath, newPath)) {
        QTextStream(stderr) << oldPath << " can't be renamed to " << newPath << ".\n";
        return kExitPartly;
    }
    int result = kExitDone;
    for (const QString& document : documents) {
        try {
            const int rows = Rewrite(library, document, oldPath, newPath);
            if (rows > 0)
                Out() << "  rewritten: " << document << " (" << rows << ")\n";
        } catch (const DocumentError& error) {
            QTextStream(stderr) << error.Description() << '\n';
            result = kExitPartly;
        }
    }
    if (result == kExitDone && !QFile::remove(oldPath))
        result = kExitPartly;
    Out() << "  " << FileNameOf(oldPath) << " is now " << newName << '\n';
    return result;
}

}  // namespace

int main(int argc, char* argv[]) {
    const QCoreApplication application(argc, argv);
    const QStringList arguments = QCoreApplication::arguments();
    if (arguments.size() != 4) {
        QTextStream(stderr) << "usage: docbench-rename-sample FOLDER DOCUMENT NEWNAME\n";
        return kExitUsage;
    }
    const DocumentLibrary library;
    if (!library.Access())
        return kExitPartly;
    return Rename(*library.Access(), QFileInfo(arguments[1]).canonicalFilePath(),
                  QFileInfo(arguments[2]).canonicalFilePath(), arguments[3]);
}
