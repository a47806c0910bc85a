#include "panes/folderwalk.h"

namespace docbench {

void FolderWalk::Run(const QString& folder) const {
    if (stopped())
        return;  // whoever is told what the walk enters may be gone
    if (entering)
        entering(folder);
    if (yields == WalkYields::AtFolders) {
        yield();
        if (stopped())
            return;
    }
    const QStringList subfolders = visit(folder);
    if (yields == WalkYields::AtSubfolders) {
        for (qsizetype i = 0; i < subfolders.size(); ++i) {
            yield();
            if (stopped())
                return;
        }
    }
    for (const QString& subfolder : subfolders) {
        if (yields == WalkYields::AtSubfolders) {
            yield();
            if (stopped())
                return;
        }
        Run(subfolder);
    }
}

}  // namespace docbench
