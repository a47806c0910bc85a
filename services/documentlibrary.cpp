#include "services/documentlibrary.h"

#include <QDir>
#include <QFileInfo>

#include "services/programfolder.h"
#include "services/seams.h"

namespace docbench {
namespace {

constexpr char kFileName[] = "docmodel.so";

QString WhatToDo() {
    return QStringLiteral("Please check the installation.");
}

// Why the last library could not be loaded; told again whenever a document is asked for.
QString& LastError() {
    static QString error;
    return error;
}

}  // namespace

DocumentLibrary::DocumentLibrary() : DocumentLibrary(ProgramFolder()) {}

DocumentLibrary::DocumentLibrary(const QString& folder) {
    const QString file = QDir(folder).filePath(QLatin1String(kFileName));
    if (!QFileInfo(file).isFile()) {
        error_ = QStringLiteral("The document library %1 is missing. %2").arg(file, WhatToDo());
    } else {
        loader_.setLoadHints(QLibrary::ResolveAllSymbolsHint | QLibrary::PreventUnloadHint);
        loader_.setFileName(file);
        QObject* root = loader_.instance();
        access_ = qobject_cast<DocumentAccess*>(root);
        if (!root)
            error_ = QStringLiteral("The document library %1 can't be loaded: %2. %3")
                         .arg(file, loader_.errorString(), WhatToDo());
        else if (!access_)
            error_ = QStringLiteral("The library %1 is not a document library of this version. %2")
                         .arg(file, WhatToDo());
    }
    LastError() = error_;
}

DocumentAccess& Documents() {
    if (gSeams.documents)
        return *gSeams.documents;
    throw DocumentError(LastError().isEmpty()
                            ? QStringLiteral("The document library is not loaded. ") + WhatToDo()
                            : LastError());
}

}  // namespace docbench
