#include "services/programfolder.h"

#include <QCoreApplication>
#include <QFile>
#include <QFileInfo>

#include <dlfcn.h>

namespace docbench {

QString ProgramFolder() {
    static const QString folder = [] {
        // Any object of the library will do to ask the loader where it came from.
        static const char here = 0;
        Dl_info library = {};
        if (dladdr(&here, &library) != 0 && library.dli_fname) {
            const QFileInfo file(QFile::decodeName(library.dli_fname));
            if (const QString path = file.canonicalFilePath(); !path.isEmpty())
                return QFileInfo(path).path();
        }
        return QCoreApplication::applicationDirPath();
    }();
    return folder;
}

}  // namespace docbench
